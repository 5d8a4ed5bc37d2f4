#pragma once

#include <QString>

#include <algorithm>
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
    int position = -1; ///< of the instruction at the line in the present program; below 0 if that was not looked up
};

/// The call stack of a simulated processor.
class ProcSimCallStackData
{
public:
    /// A view of the items that are on the stack, the outermost call first. It is valid until the next change.
    class Items
    {
    public:
        Items(const sCallStackItem_t* first, int count)
            : m_first(first)
            , m_count(count)
        {
        }

        const sCallStackItem_t* begin() const { return m_first; }
        const sCallStackItem_t* end() const { return m_first + m_count; }
        size_t size() const { return size_t(m_count); }
        bool empty() const { return m_count == 0; }
        const sCallStackItem_t& operator[](size_t index) const { return m_first[index]; }
        const sCallStackItem_t& front() const { return m_first[0]; }
        const sCallStackItem_t& back() const { return m_first[m_count - 1]; }

    private:
        const sCallStackItem_t* m_first;
        int m_count;
    };

    explicit ProcSimCallStackData(int capacity)
        : m_items(size_t(std::max(capacity, 0)))
    {
    }

    /// @return false, with nothing changed, when the stack is full
    bool add(const sCallStackItem_t& item)
    {
        return push(item.label, item.carry, item.zero, item.pc, item.lineIndex, item.position);
    }
    /// The same from the parts of an item.
    bool push(const QString& label, bool carry, bool zero, int pc, int lineIndex, int position)
    {
        if (m_count >= capacity())
            return false;
        sCallStackItem_t& item = m_items[size_t(m_count)];
        // What was called from here before has often the same name.
        if (item.label.constData() != label.constData())
            item.label = label;
        item.carry = carry;
        item.zero = zero;
        item.pc = pc;
        item.lineIndex = lineIndex;
        item.position = position;
        ++m_count;
        ++m_changes;
        return true;
    }
    /// The innermost item, valid until the next change; null if the stack is empty.
    const sCallStackItem_t* top() const { return m_count > 0 ? &m_items[size_t(m_count - 1)] : nullptr; }
    /// Removes the innermost item. The stack must not be empty.
    void pop()
    {
        --m_count;
        ++m_changes;
    }
    /// @return false, with nothing changed, when the stack is empty
    bool takeLast(sCallStackItem_t* item)
    {
        if (m_count == 0)
            return false;
        *item = *top();
        pop();
        return true;
    }
    void clear()
    {
        if (m_count == 0)
            return;
        m_count = 0;
        ++m_changes;
    }
    /// The program has changed: where the instructions stand is to be looked up again.
    void forgetPositions()
    {
        for (sCallStackItem_t& item : m_items)
            item.position = -1;
    }
    int count() const { return m_count; }
    int capacity() const { return int(m_items.size()); }
    Items items() const { return {m_items.data(), m_count}; }
    /// Counts additions and removals, for whoever shows the stack.
    unsigned changes() const { return m_changes; }

private:
    int m_count = 0;
    unsigned m_changes = 0;
    std::vector<sCallStackItem_t> m_items; ///< capacity() of them; those from m_count on are not on the stack
};

} // namespace nsProc
