#include "OpcodeList.h"

#include "Opcode.h"
#include "OpcodeListWatch.h"

#include <algorithm>
#include <cstdio>

namespace nsModAsmFe {

namespace {

bool isBefore(const SrcReference& a, int fileNo, int lineNo)
{
    return a.fileNo != fileNo ? a.fileNo < fileNo : a.lineNo < lineNo;
}

} // namespace

OpcodeList::~OpcodeList()
{
    clear();
    for (OpcodeListWatch* watch : m_watches)
        watch->m_list = nullptr;
}

void OpcodeList::removeWatch(OpcodeListWatch* watch)
{
    m_watches.erase(std::remove(m_watches.begin(), m_watches.end(), watch), m_watches.end());
}

void OpcodeList::clear()
{
    for (OpcodeListWatch* watch : m_watches)
        watch->m_deleting();
    for (Opcode* opcode : m_opcodes)
        delete opcode;
    std::vector<Opcode*>().swap(m_opcodes);
    m_ascending = true;
    addressesChanged();
}

void OpcodeList::append(Opcode* opcode)
{
    if (!m_opcodes.empty()) {
        Opcode* last = m_opcodes.back();
        opcode->prev = last;
        last->next = opcode;
        m_ascending = m_ascending && last->srcRef.absLineNo <= opcode->srcRef.absLineNo &&
                      !isBefore(opcode->srcRef, last->srcRef.fileNo, last->srcRef.lineNo);
    }
    m_opcodes.push_back(opcode);
    addressesChanged();
}

Opcode* OpcodeList::first() const
{
    return m_opcodes.empty() ? nullptr : m_opcodes.front();
}

void OpcodeList::print() const
{
    for (const Opcode* opcode : m_opcodes) {
        std::printf("opcode:\t%s (%s)\n", qPrintable(opcode->name), opcodeName(opcode->opcode));
        std::printf("\tsrcRef:\t%04d, %04d, %04d\n", opcode->srcRef.fileNo, opcode->srcRef.lineNo,
                    opcode->srcRef.absLineNo);
        std::printf("\targ0:\t%s (%s)\n", qPrintable(opcode->arg0->dispName), argTypeName(opcode->arg0->type));
        std::printf("\targ1:\t%s (%s)\n", qPrintable(opcode->arg1->dispName), argTypeName(opcode->arg1->type));
        std::printf("\tmem:\t%d, %d, %d, %05x\n", opcode->memRange, opcode->pageAddr, opcode->memAddr,
                    unsigned(opcode->instWord));
    }
}

template <class Below>
Opcode* OpcodeList::firstNotBelow(Below below) const
{
    const auto end = m_opcodes.end();
    // A list that was filled out of order, which only tests do, is searched linearly.
    const auto it = m_ascending ? std::partition_point(m_opcodes.begin(), end, below)
                                : std::find_if_not(m_opcodes.begin(), end, below);
    return it == end ? nullptr : *it;
}

Opcode* OpcodeList::nextOfLineIndex(int absLineNo) const
{
    return firstNotBelow([absLineNo](const Opcode* opcode) { return opcode->srcRef.absLineNo < absLineNo; });
}

Opcode* OpcodeList::nextOfSrcRef(int fileNo, int lineNo) const
{
    return firstNotBelow([=](const Opcode* opcode) { return isBefore(opcode->srcRef, fileNo, lineNo); });
}

template <class Hits>
Opcode* OpcodeList::firstOf(Hits hits) const
{
    const auto it = std::find_if(m_opcodes.begin(), m_opcodes.end(), hits);
    return it == m_opcodes.end() ? nullptr : *it;
}

// The indexes contain mapped instructions only; an unmapped one is found by a linear search.

Opcode* OpcodeList::opcodeOfAddr(int pageAddr, int memRange) const
{
    if (pageAddr < 0 || memRange < 0)
        return firstOf([=](const Opcode* o) { return o->pageAddr == pageAddr && o->memRange == memRange; });
    buildIndexes();
    if (pageAddr >= m_rangeStride)
        return nullptr;
    const int pos = m_byRange.find(qint64(memRange) * m_rangeStride + pageAddr);
    return pos < 0 ? nullptr : m_opcodes[size_t(pos)];
}

Opcode* OpcodeList::opcodeOfAddr(int pageAddr) const
{
    if (pageAddr < 0)
        return firstOf([=](const Opcode* o) { return o->pageAddr == pageAddr; });
    buildIndexes();
    const int pos = m_byPageAddr.find(pageAddr);
    return pos < 0 ? nullptr : m_opcodes[size_t(pos)];
}

Opcode* OpcodeList::opcodeOfMemAddr(int memAddr) const
{
    if (memAddr < 0)
        return firstOf([=](const Opcode* o) { return o->memAddr == memAddr; });
    buildIndexes();
    const int pos = m_byMemAddr.find(memAddr);
    return pos < 0 ? nullptr : m_opcodes[size_t(pos)];
}

void OpcodeList::addressesChanged()
{
    if (!m_indexed)
        return;
    m_indexed = false;
    m_byRange.clear();
    m_byPageAddr.clear();
    m_byMemAddr.clear();
}

void OpcodeList::buildIndexes() const
{
    if (m_indexed)
        return;
    const size_t count = m_opcodes.size();
    std::vector<int> memAddrs(count);
    std::vector<int> pageAddrs(count);
    std::vector<int> ranges(count);
    int highest = -1;
    for (size_t i = 0; i < count; ++i) {
        memAddrs[i] = m_opcodes[i]->memAddr;
        pageAddrs[i] = m_opcodes[i]->pageAddr;
        ranges[i] = m_opcodes[i]->memRange;
        highest = std::max(highest, pageAddrs[i]);
    }
    m_rangeStride = qint64(highest) + 1;
    m_byMemAddr.build(count, [&](size_t i) { return qint64(memAddrs[i]); });
    m_byPageAddr.build(count, [&](size_t i) { return qint64(pageAddrs[i]); });
    m_byRange.build(count, [&](size_t i) {
        return ranges[i] < 0 || pageAddrs[i] < 0 ? qint64(-1) : ranges[i] * m_rangeStride + pageAddrs[i];
    });
    m_indexed = true;
}

} // namespace nsModAsmFe
