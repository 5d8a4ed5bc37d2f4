#pragma once

#include "ProcSimIODevice.h"

#include <vector>

namespace nsProc {

/// A block of memory at consecutive ports.
///
/// The words are addressed by the port address itself, not by its distance from the base address: a block that does not
/// stand at address 0 answers at ports for which it has no word.
class ProcSimIOMem : public ProcSimIODevice
{
public:
    /// What the label beside the last access says.
    enum eAccess_t { eAccessNone, eAccessRd, eAccessWr };

    static constexpr int defaultSize = 16;    ///< words of a new block
    static constexpr int maxUserSize = 65536; ///< words that a user can ask for
    static constexpr int maxSize = 1 << 24;   ///< words that a program can declare

    /// @param initValue value of words that are new
    explicit ProcSimIOMem(int initValue);

    bool chkAddr(int addr) override;
    /// Does nothing if there are more values than words.
    void initValue(unsigned int* values, int count) override;
    /// Ignored if there is no word at the address.
    void setValue(int addr, QString name, int value) override;
    bool value(int addr, QString name, int* value) override;
    /// @param size limited to 0 to maxSize
    void setMemSize(int size) override;
    /// @param size decimal, limited to 1 to maxUserSize. @return false if that is no number
    bool setMemSizeFromGui(const QString& size);
    void clearHighlighted() override;
    /// Keeps the words.
    void clear() override;
    /// True only for the cell that was written last.
    bool holds(int addr, int value) const override
    {
        return m_lastAccess == eAccessWr && m_lastAddr == addr && m_lastValue == value &&
               (addr >= size() || m_words[size_t(addr)] == unsigned(value));
    }

    int size() const { return static_cast<int>(m_words.size()); }
    /// @param row within the size
    unsigned int word(int row) const { return m_words[static_cast<size_t>(row)]; }
    /// The user's value. @param value limited to 0 to maxValue
    void setWord(int row, int value);
    /// The row that was touched last; -1 for none.
    int touchedRow() const { return m_touchedRow; }
    /// Rows written since the marks were last cleared.
    const std::vector<int>& writtenRows() const { return m_writtenRows; }
    bool isWritten(int row) const { return m_written[static_cast<size_t>(row)] != 0; }
    /// -1 for none
    int lastAddr() const { return m_lastAddr; }
    int lastValue() const { return m_lastValue; }
    eAccess_t lastAccess() const { return m_lastAccess; }
    bool isExpanded() const { return m_expanded; }
    void setExpanded(bool expanded);

private:
    void setLast(int addr, unsigned int value, eAccess_t access);

    std::vector<unsigned int> m_words;
    std::vector<unsigned char> m_written;
    std::vector<int> m_writtenRows;
    unsigned int m_initValue;
    int m_touchedRow = -1;
    int m_lastAddr = -1;
    int m_lastValue = -1;
    eAccess_t m_lastAccess = eAccessNone;
    bool m_expanded = false;
};

} // namespace nsProc
