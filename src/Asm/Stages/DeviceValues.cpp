#include "DeviceValues.h"

#include "AsmFeMsgHndlr.h"
#include "AsmFeParseArg.h"
#include "AsmLimits.h"
#include "AsmProgram.h"
#include "Opcode.h"
#include "RunWatch.h"

#include <QRegExp>
#include <QStringList>

#include <limits>

namespace nsModAsmFe {

/// Which words, and which bits of them, an item takes from the instruction memory.
struct DeviceValues::sInstMemSpan_t
{
    int start = 0;
    int stop = 0; ///< below `start` the words go into the device in descending order
    int low = 0;
    unsigned int mask = ~0u;

    int count() const { return (stop >= start ? stop - start : start - stop) + 1; }
    bool contains(qint64 addr) const { return addr >= qMin(start, stop) && addr <= qMax(start, stop); }
};

DeviceValues::DeviceValues(AsmProgram& program, const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages, RunWatch& watch)
    : m_sets(program.sets)
    , m_opcodes(program.opcodes)
    , m_geometry(program.geometry)
    , m_numbers(numbers)
    , m_messages(messages)
    , m_watch(watch)
{
}

bool DeviceValues::setupIODevAttrValues(IODev* dev)
{
    dev->initDevice();
    for (Set* set : m_sets.values(dev->devName)) {
        if (!setupIODevAttrValue(dev, set))
            return false;
    }
    return true;
}

bool DeviceValues::setupIODevAttrValue(IODev* dev, Set* set)
{
    QString list = set->value;
    list.remove(QRegExp("[\\s]*"));
    int addr = 0;
    QRegExp withAddr("^([\\\\0xb]*[0-9a-fA-F]+)\\s*:(.*)");
    QRegExp withAppend("^append\\s*:(.*)");
    if (withAddr.exactMatch(list)) {
        const QString start = withAddr.cap(1);
        if (!AsmFeParseArg::isNumeric(start)) {
            m_messages.signMsg(errExpectNumeric, &set->srcRef, start);
            return false;
        }
        addr = m_numbers.toNumeric(start);
        list = withAddr.cap(2);
    } else if (withAppend.exactMatch(list)) {
        addr = dev->appendAddr;
        list = withAppend.cap(1);
    }
    const QStringList items = list.split(',', Qt::SkipEmptyParts);
    for (const QString& item : items) {
        if (!m_watch.goesOn())
            return false;
        bool success = false;
        if (AsmFeParseArg::isNumeric(item))
            success = setupIODevAttrValueNumeric(dev, set, item, addr);
        else if (item.startsWith(QLatin1String("INSTMEM"), Qt::CaseInsensitive))
            success = setupIODevAttrValueInstMem(dev, set, item, &addr);
        else
            m_messages.signMsg(errUnsupportedArgument, &set->srcRef, item);
        if (!success)
            return false;
        ++addr;
    }
    set->used = true;
    return true;
}

bool DeviceValues::setupIODevAttrValueNumeric(IODev* dev, Set* set, const QString& item, int addr)
{
    if (!dev->isInitValue(addr))
        m_messages.signMsg(warnIODevOverwriteValue, &set->srcRef, QString::number(addr));
    if (dev->setValue(addr, static_cast<unsigned int>(m_numbers.toNumeric(item)), &set->srcRef, false))
        return true;
    m_messages.signMsg(errIODevAddrExceedsDevSize, &set->srcRef, QString::number(addr), QString::number(dev->memSize));
    return false;
}

bool DeviceValues::setupIODevAttrValueInstMem(IODev* dev, Set* set, const QString& item, int* addr)
{
    m_instMemMapped = true;
    dev->instMem = true;
    sInstMemSpan_t span;
    if (!parseInstMemItem(set, item, &span))
        return false;
    if (span.count() > dev->memSize) {
        m_messages.signMsg(errIODevInstMemRangeExceedsIODeviceRange, &set->srcRef, QString::number(span.count()),
                           QString::number(dev->memSize));
        return false;
    }
    if (!mapInstMem(dev, set, span, *addr))
        return false;
    // The item occupies its whole length; the caller continues after its last cell.
    *addr = int(qMin<qint64>(qint64(*addr) + span.count() - 1, std::numeric_limits<int>::max() - 1));
    return true;
}

bool DeviceValues::parseInstMemItem(Set* set, const QString& item, sInstMemSpan_t* span)
{
    QString text = item.toUpper();
    text.remove(QLatin1String("INSTMEM"));
    const int total = m_geometry.pageSize * m_geometry.pageCount;
    QRegExp rangeAndBits("\\[(\\S+)\\]\\[(\\S+)\\]");
    QRegExp rangeOnly("\\[(\\S+)\\]");
    if (text.isEmpty()) {
        span->stop = total - 1;
    } else if (rangeAndBits.exactMatch(text)) {
        if (!parseInstMemRange(set, rangeAndBits.cap(1), span) || !parseInstMemBits(set, rangeAndBits.cap(2), span))
            return false;
    } else if (rangeOnly.exactMatch(text)) {
        if (!parseInstMemRange(set, rangeOnly.cap(1), span))
            return false;
    } else {
        m_messages.signMsg(errIODevExpectInstMemRange, &set->srcRef);
        return false;
    }
    return true;
}

bool DeviceValues::parseInstMemRange(Set* set, const QString& range, sInstMemSpan_t* span)
{
    const qint64 total = qint64(m_geometry.pageSize) * m_geometry.pageCount;
    qint64 start = 0;
    qint64 stop = 0;
    QRegExp page("PAGE([0-9])+");
    QRegExp pair("(\\S+):(\\S+)");
    if (range.startsWith(QLatin1String("PAGE"))) {
        if (!page.exactMatch(range)) {
            m_messages.signMsg(errIODevExpectInstMemRange, &set->srcRef);
            return false;
        }
        bool ok = false;
        const qint64 number = range.mid(4).toLongLong(&ok);
        start = (ok ? qMin<qint64>(number, AsmLimits::maxMemWords) : AsmLimits::maxMemWords) * m_geometry.pageSize;
        stop = start + m_geometry.pageSize - 1;
    } else if (AsmFeParseArg::isNumeric(range)) {
        start = stop = m_numbers.toNumeric(range);
    } else if (pair.exactMatch(range)) {
        for (const QString& part : {pair.cap(1), pair.cap(2)}) {
            if (!AsmFeParseArg::isNumeric(part)) {
                m_messages.signMsg(errExpectNumeric, &set->srcRef, part);
                return false;
            }
        }
        start = m_numbers.toNumeric(pair.cap(1));
        stop = m_numbers.toNumeric(pair.cap(2));
    } else {
        m_messages.signMsg(errIODevExpectInstMemRange, &set->srcRef);
        return false;
    }
    const auto outside = [total](qint64 addr) { return addr < 0 || addr >= total; };
    if (outside(start) || outside(stop)) {
        m_messages.signMsg(outside(start) ? errIODevRangeStartAddrOutsideOfInstMem
                                          : errIODevRangeStopAddrOutsideOfInstMem,
                           &set->srcRef, QString::number(outside(start) ? start : stop), QString::number(total - 1));
        return false;
    }
    span->start = int(start);
    span->stop = int(stop);
    return true;
}

bool DeviceValues::parseInstMemBits(Set* set, const QString& bits, sInstMemSpan_t* span)
{
    QRegExp pair("(\\S+):(\\S+)");
    if (!pair.exactMatch(bits)) {
        m_messages.signMsg(errIODevUnsupportedBitRange, &set->srcRef, bits);
        return false;
    }
    for (const QString& part : {pair.cap(1), pair.cap(2)}) {
        if (!AsmFeParseArg::isNumeric(part)) {
            m_messages.signMsg(errExpectNumeric, &set->srcRef, part);
            return false;
        }
    }
    const int high = m_numbers.toNumeric(pair.cap(1));
    const int low = m_numbers.toNumeric(pair.cap(2));
    if (high < low || low < 0 || low > 31) {
        m_messages.signMsg(errIODevUnsupportedBitRange, &set->srcRef, bits);
        return false;
    }
    span->low = low;
    span->mask = qint64(high) - low + 1 >= 32 ? ~0u : (1u << (high - low + 1)) - 1;
    return true;
}

bool DeviceValues::mapInstMem(IODev* dev, Set* set, const sInstMemSpan_t& span, int addr)
{
    for (Opcode* opcode : m_opcodes) {
        if (opcode->memRange != 0) {
            if (!m_watch.goesOn() || !mapInstWord(dev, set, span, addr, opcode, opcode->memAddr))
                return false;
            continue;
        }
        const qint64 end = qMax(span.start, span.stop);
        for (qint64 memAddr = opcode->memAddr; memAddr <= end; memAddr += m_geometry.pageSize) {
            if (!m_watch.goesOn() || !mapInstWord(dev, set, span, addr, opcode, memAddr))
                return false;
        }
    }
    return true;
}

/// Copies one word into the device, if it lies in the span.
bool DeviceValues::mapInstWord(IODev* dev, Set* set, const sInstMemSpan_t& span, int addr, Opcode* opcode,
                               qint64 memAddr)
{
    if (!span.contains(memAddr))
        return true;
    opcode->mappedToIODev = true;
    const qint64 cell = addr + (span.stop >= span.start ? memAddr - span.start : span.start - memAddr);
    if (cell > AsmLimits::maxMemWords) {
        m_messages.signMsg(errIODevAddrExceedsDevSize, &set->srcRef, QString::number(cell),
                           QString::number(dev->memSize));
        return false;
    }
    if (!dev->isInitValue(int(cell)))
        m_messages.signMsg(warnIODevOverwriteValue, &set->srcRef, QString::number(cell));
    const unsigned int word = (static_cast<unsigned int>(opcode->instWord) >> span.low) & span.mask;
    if (dev->setValue(int(cell), word, &opcode->srcRef, opcode->memRange == 0))
        return true;
    m_messages.signMsg(errIODevAddrExceedsDevSize, &set->srcRef, QString::number(cell), QString::number(dev->memSize));
    return false;
}

} // namespace nsModAsmFe
