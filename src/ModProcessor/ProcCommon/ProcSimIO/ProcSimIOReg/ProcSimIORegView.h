#pragma once

#include "ProcSimIODeviceView.h"

namespace nsProc {

class ProcSimEdtBitField;
class ProcSimEdtNumeric;
class ProcSimIOReg8Bit;

/// The card of a register: its value as a number and as bits.
class ProcSimIORegView : public ProcSimIODeviceView
{
    Q_OBJECT

public:
    explicit ProcSimIORegView(ProcSimIOReg8Bit* device);

protected:
    void showDevice() override;

private:
    void updateValue(int value);

    ProcSimIOReg8Bit* m_reg;
    ProcSimEdtNumeric* m_value;
    ProcSimEdtBitField* m_bits;
};

} // namespace nsProc
