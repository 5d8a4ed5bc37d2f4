#include "ProcSimIOReg8Bit.h"

namespace nsProc {

void ProcSimIOReg8Bit::initValue(unsigned int* values, int count)
{
    if (count > 0 && values != nullptr && values[0] <= static_cast<unsigned int>(maxValue))
        updateValue(static_cast<int>(values[0]));
}

void ProcSimIOReg8Bit::updateValue(int value)
{
    if (value < 0 || value > maxValue)
        return;
    m_value = value;
    setChanged();
}

void ProcSimIOReg8Bit::setValue(int addr, QString name, int value)
{
    setBaseAddr(addr, name);
    updateValue(value);
    setHighlightEn(true);
}

bool ProcSimIOReg8Bit::value(int addr, QString name, int* value)
{
    setBaseAddr(addr, name);
    *value = m_value;
    return true;
}

void ProcSimIOReg8Bit::clear()
{
    updateValue(0);
    clearHighlighted();
}

} // namespace nsProc
