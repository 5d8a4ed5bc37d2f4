#include "OpcodeList.h"

#include "Opcode.h"

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
}

void OpcodeList::clear()
{
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
    // A list that was filled out of order, as only tests do it, is walked.
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

Opcode* OpcodeList::opcodeOfAddr(int pageAddr, int memRange) const
{
    buildIndexes();
    if (pageAddr < 0 || memRange < 0 || pageAddr >= m_rangeStride)
        return nullptr;
    const int pos = m_byRange.find(qint64(memRange) * m_rangeStride + pageAddr);
    return pos < 0 ? nullptr : m_opcodes[size_t(pos)];
}

Opcode* OpcodeList::opcodeOfAddr(int pageAddr) const
{
    buildIndexes();
    const int pos = m_byPageAddr.find(pageAddr);
    return pos < 0 ? nullptr : m_opcodes[size_t(pos)];
}

Opcode* OpcodeList::opcodeOfMemAddr(int memAddr) const
{
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
    m_rangeStride = 0;
    for (const Opcode* opcode : m_opcodes)
        m_rangeStride = std::max(m_rangeStride, qint64(opcode->pageAddr) + 1);

    std::vector<qint64> keys(m_opcodes.size());
    const auto build = [&](AddrIndex& index, auto key) {
        std::transform(m_opcodes.begin(), m_opcodes.end(), keys.begin(), key);
        index.build(keys);
    };
    build(m_byMemAddr, [](const Opcode* opcode) { return qint64(opcode->memAddr); });
    build(m_byPageAddr, [](const Opcode* opcode) { return qint64(opcode->pageAddr); });
    build(m_byRange, [this](const Opcode* opcode) {
        return opcode->memRange < 0 || opcode->pageAddr < 0 ? qint64(-1)
                                                            : opcode->memRange * m_rangeStride + opcode->pageAddr;
    });
    m_indexed = true;
}

} // namespace nsModAsmFe
