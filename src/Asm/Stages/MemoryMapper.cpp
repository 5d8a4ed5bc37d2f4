#include "MemoryMapper.h"

#include "AsmFeConfig.h"
#include "AsmFeMsgHndlr.h"
#include "AsmFeParseArg.h"
#include "AsmLimits.h"
#include "AsmProgram.h"
#include "Opcode.h"
#include "RunWatch.h"

#include <QRegExp>

namespace nsModAsmFe {

MemoryMapper::MemoryMapper(AsmProgram& program, const AsmFeConfig& config, const AsmFeParseArg& numbers,
                           AsmFeMsgHndlr& messages, RunWatch& watch)
    : m_orgs(program.orgs)
    , m_sets(program.sets)
    , m_opcodes(program.opcodes)
    , m_memRanges(program.memRanges)
    , m_geometry(program.geometry)
    , m_config(config)
    , m_numbers(numbers)
    , m_messages(messages)
    , m_watch(watch)
{
}

bool MemoryMapper::mapOpcodeToMem(int pageSize)
{
    const bool mapped = mapOpcodeToMemSetConfig(pageSize) && mapOpcodeToMemSetRanges() &&
                        mapOpcodeToMemSetAddresses() && mapOpcodeToMemCheckForUnmappedOpcode() &&
                        mapOpcodeToMemCheckForInterPageReferencing();
    m_opcodes.addressesChanged();
    return mapped;
}

bool MemoryMapper::mapOpcodeToMemCheckOrgDirectives()
{
    bool success = true;
    const auto refuse = [&](eMsgType_t type, const Org* org, const QString& text) {
        m_messages.signMsg(type, &org->srcRef, text);
        success = false;
    };
    for (Org* org = m_orgs.first(); org != nullptr; org = org->next) {
        if (!m_watch.goesOn())
            return false;
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
            org->iValue = m_numbers.toNumeric(org->value);
        } else if (name == QLatin1String("MEMRANGE")) {
            QRegExp page("^PAGE([0-9]+)$");
            const QString value = org->value.toUpper();
            if (value == QLatin1String("SHARED")) {
                org->iValue = 0;
            } else if (page.exactMatch(value)) {
                // A number that is too large stands for a page that cannot exist.
                bool ok = false;
                const int number = page.cap(1).toInt(&ok);
                org->iValue = ok && number < AsmLimits::maxPageCount ? number + 1 : AsmLimits::maxPageCount + 1;
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

bool MemoryMapper::mapOpcodeToMemSetConfig(int pageSize)
{
    m_geometry.pageSize = pageSize;
    m_geometry.pageCount = 1;
    m_geometry.isSharedHigh = true;
    const Set* last = nullptr;
    for (Set* set = m_sets.first(); set != nullptr; set = set->next) {
        if (set->nameSpaceUpper != QLatin1String("INSTMEM"))
            continue;
        if (set->nameUpper == QLatin1String("PAGESIZE")) {
            if (!mapOpcodeToMemSetConfigNumber(set, &m_geometry.pageSize, "pageSize"))
                return false;
            last = set;
        } else if (set->nameUpper == QLatin1String("PAGECOUNT")) {
            if (!mapOpcodeToMemSetConfigNumber(set, &m_geometry.pageCount, "pageCount"))
                return false;
            if (m_geometry.pageCount < 1 || m_geometry.pageCount > AsmLimits::maxPageCount) {
                m_messages.signMsg(errMMIvldRangePage, &set->srcRef);
                return false;
            }
            last = set;
        } else if (set->nameUpper == QLatin1String("SHAREDMEMLOCATION")) {
            if (!mapOpcodeToMemSetConfigSharedLocation(set))
                return false;
        }
    }
    // A memory of less than nothing has no room for any instruction either.
    m_geometry.pageSize = qMax(m_geometry.pageSize, 0);
    if (qint64(m_geometry.pageSize) * m_geometry.pageCount > AsmLimits::maxMemWords) {
        m_messages.signMsg(errMMInstMemTooLarge, last != nullptr ? &last->srcRef : nullptr,
                           QString::number(m_geometry.pageCount), QString::number(m_geometry.pageSize),
                           QString::number(AsmLimits::maxMemWords));
        return false;
    }
    return true;
}

bool MemoryMapper::mapOpcodeToMemSetConfigNumber(Set* set, int* value, const char* name)
{
    set->used = true;
    if (set->valueType != Set::valueNumeric) {
        m_messages.signMsg(errExpectNumeric, &set->srcRef, set->value);
        return false;
    }
    if (m_config.behaviorSet == AsmFeConfig::setError) {
        m_messages.signMsg(errSetOverwriteGuiSettings, &set->srcRef);
        return false;
    }
    if (m_config.behaviorSet == AsmFeConfig::setWarn && set->iValue != *value)
        m_messages.signMsg(warnSetOverwriteGuiSettings, &set->srcRef, QString::fromLatin1(name));
    *value = set->iValue;
    return true;
}

bool MemoryMapper::mapOpcodeToMemSetConfigSharedLocation(Set* set)
{
    set->used = true;
    const QString location = set->value.toUpper();
    if (location != QLatin1String("HIMEM") && location != QLatin1String("LOMEM")) {
        m_messages.signMsg(errMMUnsupportedSharedLoc, &set->srcRef, set->value);
        return false;
    }
    const bool high = location == QLatin1String("HIMEM");
    if (m_config.behaviorSet == AsmFeConfig::setError) {
        m_messages.signMsg(errSetOverwriteGuiSettings, &set->srcRef);
        return false;
    }
    if (m_config.behaviorSet == AsmFeConfig::setWarn && high != m_geometry.isSharedHigh)
        m_messages.signMsg(warnSetOverwriteGuiSettings, &set->srcRef, "sharedMemLocation");
    m_geometry.isSharedHigh = high;
    return true;
}

bool MemoryMapper::mapOpcodeToMemSetRanges()
{
    m_memRanges.clear();
    if (!addMemRanges())
        return false;
    assignMemRanges();
    return true;
}

bool MemoryMapper::addMemRanges()
{
    bool success = true;
    for (Org* org = m_orgs.first(); org != nullptr; org = org->next) {
        if (org->type != Org::memrange)
            continue;
        if (org->iValue > m_geometry.pageCount) {
            m_messages.signMsg(errMMPageOutsidePageCount, &org->srcRef, org->value);
            success = false;
            continue;
        }
        org->used = true;
        auto* range = new MemRange;
        range->name = org->value;
        range->number = org->iValue;
        range->srcRef = org->srcRef;
        m_memRanges.append(range);
    }
    if (m_geometry.pageCount < 2) {
        if (m_memRanges.first() == nullptr) {
            auto* range = new MemRange;
            range->name = QStringLiteral("PAGE0");
            range->number = 1;
            m_memRanges.append(range);
        }
        return success;
    }
    if (!m_memRanges.contains(0)) {
        m_messages.signMsg(errMMMissingRangeShared);
        success = false;
    }
    for (int number = 1; number <= m_geometry.pageCount; ++number) {
        if (!m_memRanges.contains(number)) {
            m_messages.signMsg(errMMMissingRangePage, QString::number(number - 1));
            success = false;
        }
    }
    return success;
}

void MemoryMapper::assignMemRanges()
{
    Opcode* opcode = m_opcodes.first();
    for (MemRange* range = m_memRanges.first(); range != nullptr; range = range->next) {
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

bool MemoryMapper::applyOrgAddresses()
{
    bool success = true;
    for (const Org* org = m_orgs.first(); org != nullptr; org = org->next) {
        if (org->type == Org::addr && (org->iValue >= m_geometry.pageSize || org->iValue < 0)) {
            m_messages.signMsg(errMMAddrOutsideMem, &org->srcRef, QString::number(org->iValue),
                               QString::number(m_geometry.pageSize));
            success = false;
        }
    }
    if (!success)
        return false;
    for (Org* org = m_orgs.first(); org != nullptr; org = org->next) {
        if (org->type != Org::addr)
            continue;
        if (Opcode* opcode = m_opcodes.nextOfLineIndex(org->srcRef.absLineNo)) {
            opcode->pageAddr = org->iValue;
            org->used = true;
        }
    }
    return true;
}

bool MemoryMapper::mapSharedRange(int* pageStart, int* pageLimit)
{
    if (!m_memRanges.contains(0))
        return true;
    int start = 0;
    int limit = m_geometry.pageSize;
    if (m_geometry.isSharedHigh) {
        if (!mapOpcodeToMemSetAddressesDownwards(0, &start, limit))
            return false;
        *pageLimit = start;
    } else {
        if (!mapOpcodeToMemSetAddressesUpwards(0, start, &limit))
            return false;
        *pageStart = limit;
    }
    m_messages.signMsg(infoMMMappingRangeShared, QString::number(start), QString::number(limit - 1));
    return true;
}

bool MemoryMapper::mapOpcodeToMemSetAddresses()
{
    if (!applyOrgAddresses())
        return false;
    int pageStart = 0;
    int pageLimit = m_geometry.pageSize;
    if (!mapSharedRange(&pageStart, &pageLimit))
        return false;
    for (int number = 1; number <= m_geometry.pageCount; ++number) {
        m_messages.signMsg(infoMMMappingRangePage, QString::number(number - 1), QString::number(pageStart),
                           QString::number(pageLimit - 1));
        int limit = pageLimit;
        if (!mapOpcodeToMemSetAddressesUpwards(number, pageStart, &limit))
            return false;
    }
    for (Opcode* opcode : m_opcodes)
        opcode->memAddr =
            opcode->memRange > 0 ? (opcode->memRange - 1) * m_geometry.pageSize + opcode->pageAddr : opcode->pageAddr;
    return true;
}

/// Gives an instruction the next free address, unless a directive has pinned it to one.
/// @param free in: next free address; out: the address after the instruction
bool MemoryMapper::placeOpcode(Opcode* opcode, int range, int* free, int limit)
{
    if (!m_watch.goesOn())
        return false;
    const int addr = opcode->pageAddr < 0 ? *free : opcode->pageAddr;
    if (addr < *free) {
        m_messages.signMsg(errMMAddrConflictPrevCode, &opcode->srcRef);
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

bool MemoryMapper::mapOpcodeToMemSetAddressesUpwards(int range, int start, int* limit)
{
    int free = start;
    const bool success =
        m_memRanges.forEachOpcode(range, [&](Opcode* opcode) { return placeOpcode(opcode, range, &free, *limit); });
    *limit = free;
    return success;
}

bool MemoryMapper::mapOpcodeToMemSetAddressesDownwards(int range, int* start, int limit)
{
    // After a pinned instruction addresses ascend; only the code before the first pin is placed from the top downwards.
    int free = *start;
    bool pinned = false;
    Opcode* last = nullptr;
    const bool success = m_memRanges.forEachOpcode(range, [&](Opcode* opcode) {
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

void MemoryMapper::mapOpcodeToMemSignErrorOutOfMemoryRange(const SrcReference* srcRef, int range, int addr)
{
    m_messages.signMsg(errMMAddrOutsideMem, srcRef, QString::number(addr), memRangeName(range));
}

QString MemoryMapper::memRangeName(int range) const
{
    const MemRange* memRange = m_memRanges.find(range);
    return memRange != nullptr ? memRange->name : QString();
}

bool MemoryMapper::mapOpcodeToMemCheckForUnmappedOpcode()
{
    for (const Opcode* opcode : m_opcodes) {
        if (opcode->memRange < 0 || opcode->pageAddr < 0) {
            m_messages.signMsg(errMMCodeOutsideRange, &opcode->srcRef);
            return false;
        }
    }
    return true;
}

bool MemoryMapper::mapOpcodeToMemCheckForInterPageReferencing()
{
    bool success = true;
    for (const Opcode* opcode : m_opcodes) {
        if (!m_watch.goesOn())
            return false;
        // The instruction check has set the opcode and the types of the arguments.
        if (opcode->memRange <= 0 || (opcode->opcode != ocJump && opcode->opcode != ocCall))
            continue;
        const Arg* arg = opcode->arg0->type == Arg::label ? opcode->arg0 : opcode->arg1;
        if (arg->type != Arg::label || arg->labelOpcode == nullptr)
            continue;
        const int target = arg->labelOpcode->memRange;
        if (target > 0 && target != opcode->memRange) {
            m_messages.signMsg(errMMPageCrossReference, &opcode->srcRef, memRangeName(opcode->memRange),
                               memRangeName(target));
            success = false;
        }
    }
    return success;
}

} // namespace nsModAsmFe
