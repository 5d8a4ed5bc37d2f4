// Memory mapping: ranges, pages and addresses of the instructions.

#include "ModAsmFe.h"

#include "AsmFeParseArg.h"
#include "Opcode.h"

#include <QRegExp>

namespace nsModAsmFe {

namespace {

const int maxPageCount = 1024;

} // namespace

bool ModAsmFe::mapOpcodeToMem()
{
    const bool mapped = mapOpcodeToMemSetConfig() && mapOpcodeToMemSetRanges() && mapOpcodeToMemSetAddresses() &&
                        mapOpcodeToMemCheckForUnmappedOpcode() && mapOpcodeToMemCheckForInterPageReferencing();
    m_opcodeList.addressesChanged();
    return mapped;
}

bool ModAsmFe::mapOpcodeToMemCheckOrgDirectives()
{
    bool success = true;
    const auto refuse = [&](eMsgType_t type, const Org* org, const QString& text) {
        m_msgHndlr->signMsg(type, &org->srcRef, text);
        success = false;
    };
    for (Org* org = m_orgList.first(); org != nullptr; org = org->next) {
        if (AsmFeParseArg::isNumeric(org->name)) {
            org->value = org->name;
            org->name = QStringLiteral("ADDR");
        }
        const QString name = org->name.toUpper();
        if (name == QLatin1String("ADDR")) {
            if (!AsmFeParseArg::isNumeric(org->value)) {
                refuse(errExpectNumeric, org, org->value);
                continue;
            }
            org->type = Org::addr;
            org->iValue = m_parseArg->toNumeric(org->value);
        } else if (name == QLatin1String("MEMRANGE")) {
            QRegExp page("^PAGE([0-9]+)$");
            const QString value = org->value.toUpper();
            if (value == QLatin1String("SHARED")) {
                org->iValue = 0;
            } else if (page.exactMatch(value)) {
                // A number that is too large stands for a page that cannot exist.
                bool ok = false;
                const int number = page.cap(1).toInt(&ok);
                org->iValue = ok && number < maxPageCount ? number + 1 : maxPageCount + 1;
            } else {
                refuse(errOrgExpectMemRange, org, org->value);
                continue;
            }
            org->type = Org::memrange;
        } else {
            refuse(errUnsupportedArgument, org, org->name);
        }
    }
    return success;
}

bool ModAsmFe::mapOpcodeToMemSetConfig()
{
    m_pageSize = m_asmBe != nullptr ? m_asmBe->beConfig() : 0;
    m_pageCount = 1;
    m_sharedMemHi = true;
    m_instMemMapped = false;
    const Set* last = nullptr;
    for (Set* set = m_setList.first(); set != nullptr; set = set->next) {
        if (set->nameSpaceUpper != QLatin1String("INSTMEM"))
            continue;
        if (set->nameUpper == QLatin1String("PAGESIZE")) {
            if (!mapOpcodeToMemSetConfigNumber(set, &m_pageSize, "pageSize"))
                return false;
            last = set;
        } else if (set->nameUpper == QLatin1String("PAGECOUNT")) {
            if (!mapOpcodeToMemSetConfigNumber(set, &m_pageCount, "pageCount"))
                return false;
            if (m_pageCount < 1 || m_pageCount > maxPageCount) {
                m_msgHndlr->signMsg(errMMIvldRangePage, &set->srcRef);
                return false;
            }
            last = set;
        } else if (set->nameUpper == QLatin1String("SHAREDMEMLOCATION")) {
            if (!mapOpcodeToMemSetConfigSharedLocation(set))
                return false;
        }
    }
    // A memory of less than nothing has no room for any instruction either.
    m_pageSize = qMax(m_pageSize, 0);
    if (qint64(m_pageSize) * m_pageCount > maxMemWords) {
        m_msgHndlr->signMsg(errMMInstMemTooLarge, last != nullptr ? &last->srcRef : nullptr,
                            QString::number(m_pageCount), QString::number(m_pageSize), QString::number(maxMemWords));
        return false;
    }
    return true;
}

bool ModAsmFe::mapOpcodeToMemSetConfigNumber(Set* set, int* value, const char* name)
{
    set->used = true;
    if (set->valueType != Set::valueNumeric) {
        m_msgHndlr->signMsg(errExpectNumeric, &set->srcRef, set->value);
        return false;
    }
    if (behaviorSet == setError) {
        m_msgHndlr->signMsg(errSetOverwriteGuiSettings, &set->srcRef);
        return false;
    }
    if (behaviorSet == setWarn && set->iValue != *value)
        m_msgHndlr->signMsg(warnSetOverwriteGuiSettings, &set->srcRef, QString::fromLatin1(name));
    *value = set->iValue;
    return true;
}

bool ModAsmFe::mapOpcodeToMemSetConfigSharedLocation(Set* set)
{
    set->used = true;
    const QString location = set->value.toUpper();
    if (location != QLatin1String("HIMEM") && location != QLatin1String("LOMEM")) {
        m_msgHndlr->signMsg(errMMUnsupportedSharedLoc, &set->srcRef, set->value);
        return false;
    }
    const bool high = location == QLatin1String("HIMEM");
    if (behaviorSet == setError) {
        m_msgHndlr->signMsg(errSetOverwriteGuiSettings, &set->srcRef);
        return false;
    }
    if (behaviorSet == setWarn && high != m_sharedMemHi)
        m_msgHndlr->signMsg(warnSetOverwriteGuiSettings, &set->srcRef, "sharedMemLocation");
    m_sharedMemHi = high;
    return true;
}

bool ModAsmFe::mapOpcodeToMemSetRanges()
{
    m_memRangeList.clear();
    if (!addMemRanges())
        return false;
    assignMemRanges();
    return true;
}

bool ModAsmFe::addMemRanges()
{
    bool success = true;
    for (Org* org = m_orgList.first(); org != nullptr; org = org->next) {
        if (org->type != Org::memrange)
            continue;
        if (org->iValue > m_pageCount) {
            m_msgHndlr->signMsg(errMMPageOutsidePageCount, &org->srcRef, org->value);
            success = false;
            continue;
        }
        org->used = true;
        auto* range = new MemRange;
        range->name = org->value;
        range->number = org->iValue;
        range->srcRef = org->srcRef;
        m_memRangeList.append(range);
    }
    if (m_pageCount < 2) {
        if (m_memRangeList.first() == nullptr) {
            auto* range = new MemRange;
            range->name = QStringLiteral("PAGE0");
            range->number = 1;
            m_memRangeList.append(range);
        }
        return success;
    }
    if (!m_memRangeList.contains(0)) {
        m_msgHndlr->signMsg(errMMMissingRangeShared);
        success = false;
    }
    for (int number = 1; number <= m_pageCount; ++number) {
        if (!m_memRangeList.contains(number)) {
            m_msgHndlr->signMsg(errMMMissingRangePage, QString::number(number - 1));
            success = false;
        }
    }
    return success;
}

void ModAsmFe::assignMemRanges()
{
    Opcode* opcode = m_opcodeList.first();
    for (MemRange* range = m_memRangeList.first(); range != nullptr; range = range->next) {
        while (opcode != nullptr && opcode->srcRef.absLineNo < range->srcRef.absLineNo)
            opcode = opcode->next;
        range->firstOpcode = opcode;
        while (opcode != nullptr &&
               (range->next == nullptr || opcode->srcRef.absLineNo < range->next->srcRef.absLineNo)) {
            opcode->memRange = range->number;
            ++range->opcodeCount;
            opcode = opcode->next;
        }
    }
}

bool ModAsmFe::applyOrgAddresses()
{
    bool success = true;
    for (const Org* org = m_orgList.first(); org != nullptr; org = org->next) {
        if (org->type == Org::addr && (org->iValue >= m_pageSize || org->iValue < 0)) {
            m_msgHndlr->signMsg(errMMAddrOutsideMem, &org->srcRef, QString::number(org->iValue),
                                QString::number(m_pageSize));
            success = false;
        }
    }
    if (!success)
        return false;
    for (Org* org = m_orgList.first(); org != nullptr; org = org->next) {
        if (org->type != Org::addr)
            continue;
        if (Opcode* opcode = m_opcodeList.nextOfLineIndex(org->srcRef.absLineNo)) {
            opcode->pageAddr = org->iValue;
            org->used = true;
        }
    }
    return true;
}

bool ModAsmFe::mapSharedRange(int* pageStart, int* pageLimit)
{
    if (!m_memRangeList.contains(0))
        return true;
    int start = 0;
    int limit = m_pageSize;
    if (m_sharedMemHi) {
        if (!mapOpcodeToMemSetAddressesDownwards(0, &start, limit))
            return false;
        *pageLimit = start;
    } else {
        if (!mapOpcodeToMemSetAddressesUpwards(0, start, &limit))
            return false;
        *pageStart = limit;
    }
    m_msgHndlr->signMsg(infoMMMappingRangeShared, QString::number(start), QString::number(limit - 1));
    return true;
}

bool ModAsmFe::mapOpcodeToMemSetAddresses()
{
    if (!applyOrgAddresses())
        return false;
    int pageStart = 0;
    int pageLimit = m_pageSize;
    if (!mapSharedRange(&pageStart, &pageLimit))
        return false;
    for (int number = 1; number <= m_pageCount; ++number) {
        m_msgHndlr->signMsg(infoMMMappingRangePage, QString::number(number - 1), QString::number(pageStart),
                            QString::number(pageLimit - 1));
        int limit = pageLimit;
        if (!mapOpcodeToMemSetAddressesUpwards(number, pageStart, &limit))
            return false;
    }
    for (Opcode* opcode : m_opcodeList)
        opcode->memAddr =
            opcode->memRange > 0 ? (opcode->memRange - 1) * m_pageSize + opcode->pageAddr : opcode->pageAddr;
    return true;
}

/// Gives an instruction the next free address, unless a directive has pinned it to one.
/// @param free in: next free address; out: the address after the instruction
bool ModAsmFe::placeOpcode(Opcode* opcode, int range, int* free, int limit)
{
    const int addr = opcode->pageAddr < 0 ? *free : opcode->pageAddr;
    if (addr < *free) {
        m_msgHndlr->signMsg(errMMAddrConflictPrevCode, &opcode->srcRef);
        return false;
    }
    if (addr >= limit) {
        mapOpcodeToMemSignErrorOutOfMemoryRange(&opcode->srcRef, range, addr);
        return false;
    }
    opcode->pageAddr = addr;
    *free = addr + 1;
    return true;
}

bool ModAsmFe::mapOpcodeToMemSetAddressesUpwards(int range, int start, int* limit)
{
    int free = start;
    const bool success =
        m_memRangeList.forEachOpcode(range, [&](Opcode* opcode) { return placeOpcode(opcode, range, &free, *limit); });
    *limit = free;
    return success;
}

bool ModAsmFe::mapOpcodeToMemSetAddressesDownwards(int range, int* start, int limit)
{
    // After a pinned instruction addresses ascend; only the code before the first pin is placed from the top downwards.
    int free = *start;
    bool pinned = false;
    Opcode* last = nullptr;
    const bool success = m_memRangeList.forEachOpcode(range, [&](Opcode* opcode) {
        last = opcode;
        pinned = pinned || opcode->pageAddr >= 0;
        return !pinned || placeOpcode(opcode, range, &free, limit);
    });
    if (!success)
        return false;
    for (Opcode* opcode = last; opcode != nullptr && opcode->memRange == range; opcode = opcode->prev) {
        if (opcode->pageAddr < 0)
            opcode->pageAddr = limit - 1;
        limit = opcode->pageAddr;
        if (limit < 0) {
            mapOpcodeToMemSignErrorOutOfMemoryRange(&opcode->srcRef, range, limit);
            return false;
        }
    }
    *start = limit;
    return true;
}

void ModAsmFe::mapOpcodeToMemSignErrorOutOfMemoryRange(const SrcReference* srcRef, int range, int addr)
{
    m_msgHndlr->signMsg(errMMAddrOutsideMem, srcRef, QString::number(addr), memRangeName(range));
}

QString ModAsmFe::memRangeName(int range) const
{
    const MemRange* memRange = m_memRangeList.find(range);
    return memRange != nullptr ? memRange->name : QString();
}

bool ModAsmFe::mapOpcodeToMemCheckForUnmappedOpcode()
{
    for (const Opcode* opcode : m_opcodeList) {
        if (opcode->memRange < 0 || opcode->pageAddr < 0) {
            m_msgHndlr->signMsg(errMMCodeOutsideRange, &opcode->srcRef);
            return false;
        }
    }
    return true;
}

bool ModAsmFe::mapOpcodeToMemCheckForInterPageReferencing()
{
    bool success = true;
    for (const Opcode* opcode : m_opcodeList) {
        // The instruction check has set the opcode and the types of the arguments.
        if (opcode->memRange <= 0 || (opcode->opcode != ocJump && opcode->opcode != ocCall))
            continue;
        const Arg* arg = opcode->arg0->type == Arg::label ? opcode->arg0 : opcode->arg1;
        if (arg->type != Arg::label || arg->labelOpcode == nullptr)
            continue;
        const int target = arg->labelOpcode->memRange;
        if (target > 0 && target != opcode->memRange) {
            m_msgHndlr->signMsg(errMMPageCrossReference, &opcode->srcRef, memRangeName(opcode->memRange),
                                memRangeName(target));
            success = false;
        }
    }
    return success;
}

} // namespace nsModAsmFe
