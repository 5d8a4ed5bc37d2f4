#include "MemRangeList.h"

#include <cstdio>

namespace nsModAsmFe {

MemRangeList::~MemRangeList()
{
    clear();
}

void MemRangeList::clear()
{
    qDeleteAll(m_ranges);
    m_ranges.clear();
    m_byNumber.clear();
}

void MemRangeList::append(MemRange* range)
{
    if (!m_ranges.isEmpty())
        m_ranges.last()->next = range;
    m_ranges.append(range);
    m_byNumber[range->number].append(range);
}

void MemRangeList::print() const
{
    for (const MemRange* range : m_ranges)
        std::printf("memRange:\t%s (%d), %d instructions\n", qPrintable(range->name), range->number,
                    range->opcodeCount);
}

int MemRangeList::opcodeCount(int number) const
{
    int count = 0;
    for (const MemRange* range : pieces(number))
        count += range->opcodeCount;
    return count;
}

} // namespace nsModAsmFe
