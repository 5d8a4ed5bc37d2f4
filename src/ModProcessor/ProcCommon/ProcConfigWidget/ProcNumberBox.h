#pragma once

#include <QDoubleSpinBox>

namespace nsProc {

/// A spin box for numbers that an int does not hold. It shows only those decimals that say something.
class ProcNumberBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit ProcNumberBox(int decimals, QWidget* parent = nullptr);

    QString textFromValue(double value) const override;
};

} // namespace nsProc
