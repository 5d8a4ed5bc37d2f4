#pragma once

#include <QString>

#include <vector>

namespace nsProc {

/// A return point. It holds a line and no instruction, so that it outlives the instructions of an assembler run.
struct sCallStackItem_t
{
    QString label; ///< name of what was called
    bool carry = false;
    bool zero = false;
    int pc = 0;        ///< address within the page
    int lineIndex = 0; ///< absolute source line
};

/// The call stack of a simulated processor.
class ProcSimCallStackData
{
public:
    explicit ProcSimCallStackData(int capacity)
        : m_capacity(capacity)
    {
    }

    /// @return false, with nothing changed, when the stack is full
    bool add(const sCallStackItem_t& item)
    {
        if (count() >= m_capacity)
            return false;
        m_items.push_back(item);
        ++m_changes;
        return true;
    }
    /// @return false, with nothing changed, when the stack is empty
    bool takeLast(sCallStackItem_t* item)
    {
        if (m_items.empty())
            return false;
        *item = m_items.back();
        m_items.pop_back();
        ++m_changes;
        return true;
    }
    void clear()
    {
        if (m_items.empty())
            return;
        m_items.clear();
        ++m_changes;
    }
    int count() const { return int(m_items.size()); }
    int capacity() const { return m_capacity; }
    const std::vector<sCallStackItem_t>& items() const { return m_items; }
    /// Counts additions and removals, for whoever shows the stack.
    unsigned changes() const { return m_changes; }

private:
    int m_capacity;
    unsigned m_changes = 0;
    std::vector<sCallStackItem_t> m_items;
};

} // namespace nsProc
