#include "ProcSimIODevice.h"

namespace nsProc {

void ProcSimIODevice::setName(QString name)
{
    m_name = name;
    m_usedName.clear();
    m_changed = true;
}

void ProcSimIODevice::setBase(int base)
{
    m_base = base;
    m_changed = true;
}

void ProcSimIODevice::setDirection(eDirection_t direction)
{
    switch (direction) {
    case eDirectionRd:
        setDirectionData(1);
        break;
    case eDirectionWr:
        setDirectionData(2);
        break;
    case eDirectionRdWr:
        setDirectionData(4);
        break;
    }
}

void ProcSimIODevice::setDirectionData(int data)
{
    m_directionData = data;
    m_changed = true;
}

bool ProcSimIODevice::chkDirection(eDirection_t direction)
{
    switch (direction) {
    case eDirectionRd:
        return m_directionData == 1 || m_directionData == 4;
    case eDirectionWr:
        return m_directionData == 2 || m_directionData == 4;
    case eDirectionRdWr:
        return m_directionData == 4;
    }
    return false;
}

void ProcSimIODevice::setBaseAddr(int addr, QString name)
{
    m_addr = addr >= 0 && addr <= maxAddr ? addr : int(noAddr);
    m_usedName = name;
    m_changed = true;
}

void ProcSimIODevice::setAddr(int addr)
{
    m_addr = qBound(0, addr, maxAddr);
    m_changed = true;
}

void ProcSimIODevice::setHighlightEn(bool enabled)
{
    if (m_highlighted == enabled)
        return;
    m_highlighted = enabled;
    m_changed = true;
}

bool ProcSimIODevice::takeChanged()
{
    const bool changed = m_changed;
    m_changed = false;
    return changed;
}

QString ProcSimIODevice::text(unsigned int value, int base)
{
    const int width = QString::number(maxValue, base).size();
    return QString::number(value, base).toUpper().rightJustified(width, QLatin1Char('0'));
}

bool ProcSimIODevice::number(const QString& text, int base, int* value)
{
    bool ok = false;
    const int result = text.trimmed().toInt(&ok, base);
    if (ok && result >= 0)
        *value = result;
    return ok && result >= 0;
}

} // namespace nsProc
