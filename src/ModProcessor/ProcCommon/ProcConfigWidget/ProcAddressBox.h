#pragma once

#include <QSpinBox>

namespace nsProc {

/// A field for an address: shown in decimal, as the project stores it, and taken in hexadecimal, too, as "0x3FF".
class ProcAddressBox : public QSpinBox
{
    Q_OBJECT

public:
    using QSpinBox::QSpinBox;

    /// The value in hexadecimal, as sources write it.
    QString hexText() const;

protected:
    QValidator::State validate(QString& text, int& pos) const override;
    int valueFromText(const QString& text) const override;
};

} // namespace nsProc
