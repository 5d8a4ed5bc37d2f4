#pragma once

#include <QDoubleSpinBox>

namespace nsProc {

/// A spin box for numbers that do not fit into an int. It omits trailing zeros of the decimals.
class ProcNumberBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit ProcNumberBox(int decimals, QWidget* parent = nullptr);

    QString textFromValue(double value) const override;
};

} // namespace nsProc
