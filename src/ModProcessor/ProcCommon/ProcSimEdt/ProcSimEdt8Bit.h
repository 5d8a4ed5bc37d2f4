#pragma once

#include "ProcSimEdtBit.h"

namespace nsProc {

/// One bit of a byte, as a boolean.
class ProcSimEdt8Bit : public QWidget
{
    Q_OBJECT

public:
    explicit ProcSimEdt8Bit(QWidget* parent = nullptr);

    void setValue(bool value) { m_bit->setValue(value); }
    bool value() const { return m_bit->value() != 0; }
    /// Toggles the bit like a click of the user.
    void toggleBit();
    void setHighlightEn(bool enabled) { m_bit->setHighlightEn(enabled); }

signals:
    void valueChanged(bool value);

private:
    ProcSimEdtBit* m_bit;
};

} // namespace nsProc
