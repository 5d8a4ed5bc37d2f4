#include "ProcSimIOFifo.h"

#include <QStringList>

namespace nsProc {

ProcSimIOFifo::ProcSimIOFifo(int initValue)
{
    setLastValue(initValue, eAccessNone);
}

void ProcSimIOFifo::setBase(int base)
{
    ProcSimIODevice::setBase(base);
    m_lines.setBase(base);
}

void ProcSimIOFifo::initValue(unsigned int* values, int count)
{
    m_lines.assign(values, count);
    setChanged();
}

void ProcSimIOFifo::setLastValue(int value, eAccess_t access)
{
    // Like a field with a range: a value that does not fit is not shown.
    if (value >= 0 && value <= maxValue)
        m_lastValue = value;
    m_lastAccess = access;
    setChanged();
}

void ProcSimIOFifo::setValue(int addr, QString name, int value)
{
    Q_UNUSED(addr)
    setUsedName(name);
    setLastValue(value, eAccessWr);
    setHighlightEn(true);
    m_lines.write(value);
}

bool ProcSimIOFifo::value(int addr, QString name, int* value)
{
    Q_UNUSED(addr)
    setUsedName(name);
    if (!m_lines.read(value)) {
        m_expanded = true;
        setChanged();
        return false;
    }
    setLastValue(*value, eAccessRd);
    return true;
}

void ProcSimIOFifo::clear()
{
    m_lastValue = 0;
    m_lines.resetPointer();
    clearHighlighted();
    setChanged();
}

void ProcSimIOFifo::replaceLines(int first, int removed, const QStringList& texts)
{
    m_lines.replace(first, removed, texts);
    setChanged();
}

void ProcSimIOFifo::setExpanded(bool expanded)
{
    m_expanded = expanded;
    setChanged();
}

} // namespace nsProc
