#include "ProcSimIOMem.h"

#include <limits>

namespace nsProc {

ProcSimIOMem::ProcSimIOMem(int initValue)
    : m_initValue(static_cast<unsigned int>(qMax(0, initValue)))
{
    setMemSize(defaultSize);
}

bool ProcSimIOMem::chkAddr(int addr)
{
    return this->addr() != noAddr && addr >= this->addr() && addr < this->addr() + size();
}

void ProcSimIOMem::initValue(unsigned int* values, int count)
{
    if (values == nullptr || count > size())
        return;
    for (int row = 0; row < count; ++row)
        m_words[static_cast<size_t>(row)] = values[row];
    setChanged();
}

void ProcSimIOMem::setLast(int addr, unsigned int value, eAccess_t access)
{
    m_lastAddr = addr;
    if (value <= static_cast<unsigned int>(maxValue))
        m_lastValue = static_cast<int>(value);
    m_lastAccess = access;
    setChanged();
}

void ProcSimIOMem::setValue(int addr, QString name, int value)
{
    setUsedName(name);
    setLast(addr, static_cast<unsigned int>(qMax(0, value)), eAccessWr);
    setHighlightEn(true);
    if (addr < 0 || addr >= size())
        return;
    const auto row = static_cast<size_t>(addr);
    m_words[row] = static_cast<unsigned int>(qMax(0, value));
    m_touchedRow = addr;
    if (m_written[row] == 0) {
        m_written[row] = 1;
        m_writtenRows.push_back(addr);
    }
}

bool ProcSimIOMem::value(int addr, QString name, int* value)
{
    setUsedName(name);
    setChanged();
    if (addr < 0 || addr >= size())
        return false;
    const unsigned int result = m_words[static_cast<size_t>(addr)];
    if (result > static_cast<unsigned int>(std::numeric_limits<int>::max()))
        return false;
    m_touchedRow = addr;
    *value = static_cast<int>(result);
    setLast(addr, result, eAccessRd);
    return true;
}

void ProcSimIOMem::setMemSize(int size)
{
    const auto rows = static_cast<size_t>(qBound(0, size, maxSize));
    clearHighlighted();
    m_words.resize(rows, m_initValue);
    m_written.resize(rows, 0);
    if (m_touchedRow >= this->size())
        m_touchedRow = -1;
    setChanged();
}

bool ProcSimIOMem::setMemSizeFromGui(const QString& size)
{
    bool ok = false;
    const long long words = size.trimmed().toLongLong(&ok, 10);
    if (ok)
        setMemSize(static_cast<int>(qBound(1LL, words, static_cast<long long>(maxUserSize))));
    return ok;
}

void ProcSimIOMem::clearHighlighted()
{
    for (const int row : m_writtenRows)
        m_written[static_cast<size_t>(row)] = 0;
    if (!m_writtenRows.empty())
        setChanged();
    m_writtenRows.clear();
    ProcSimIODevice::clearHighlighted();
}

void ProcSimIOMem::clear()
{
    m_lastAddr = -1;
    m_lastValue = -1;
    m_lastAccess = eAccessNone;
    m_touchedRow = -1;
    clearHighlighted();
    setChanged();
}

void ProcSimIOMem::setWord(int row, int value)
{
    m_words[static_cast<size_t>(row)] = static_cast<unsigned int>(qBound(0, value, maxValue));
    setChanged();
}

void ProcSimIOMem::setExpanded(bool expanded)
{
    m_expanded = expanded;
    setChanged();
}

} // namespace nsProc
