#pragma once

#include "MemRange.h"
#include "Opcode.h"

#include <QHash>
#include <QVector>

namespace nsModAsmFe {

/// The ranges of the instruction memory, in source order. Owns them. A range may be opened more than once.
class MemRangeList
{
public:
    MemRangeList() = default;
    ~MemRangeList();
    MemRangeList(const MemRangeList&) = delete;
    MemRangeList& operator=(const MemRangeList&) = delete;

    /// Deletes all elements.
    void clear();
    /// Takes the ownership.
    void append(MemRange* range);
    /// Null if the list is empty.
    MemRange* first() const { return m_ranges.isEmpty() ? nullptr : m_ranges.first(); }
    /// Dumps the list to standard output.
    void print() const;

    bool contains(int number) const { return m_byNumber.contains(number); }
    /// First range with this number, or null.
    MemRange* find(int number) const { return pieces(number).value(0, nullptr); }
    /// All pieces of a range, in source order.
    QVector<MemRange*> pieces(int number) const { return m_byNumber.value(number); }
    /// Calls f with each instruction of the range in source order, until f answers false.
    /// @return f never answered false
    template <class Function>
    bool forEachOpcode(int number, Function f) const;
    /// Instructions in all pieces of the range.
    int opcodeCount(int number) const;

private:
    QVector<MemRange*> m_ranges;
    QHash<int, QVector<MemRange*>> m_byNumber;
};

template <class Function>
bool MemRangeList::forEachOpcode(int number, Function f) const
{
    const QVector<MemRange*> ranges = pieces(number);
    for (const MemRange* range : ranges) {
        Opcode* opcode = range->firstOpcode;
        for (int i = 0; i < range->opcodeCount; ++i, opcode = opcode->next) {
            if (!f(opcode))
                return false;
        }
    }
    return true;
}

} // namespace nsModAsmFe
