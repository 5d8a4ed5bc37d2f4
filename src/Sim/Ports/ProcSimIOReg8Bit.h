#pragma once

#include "ProcSimIODevice.h"

namespace nsProc {

/// A register of 8 bits at a port. It can always be read.
class ProcSimIOReg8Bit : public ProcSimIODevice
{
public:
    /// Takes the first value; one that does not fit is refused.
    void initValue(unsigned int* values, int count) override;
    void setValue(int addr, QString name, int value) override;
    bool value(int addr, QString name, int* value) override;
    void setMemSize(int size) override { Q_UNUSED(size) }
    void clear() override;
    bool holds(int /*addr*/, int value) const override { return m_value == value; }

    int regValue() const { return m_value; }
    /// Value and bit field in one; a value outside of 0 to 255 is refused.
    void updateValue(int value);

private:
    int m_value = 0;
};

} // namespace nsProc
