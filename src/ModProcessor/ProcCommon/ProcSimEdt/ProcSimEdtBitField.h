#pragma once

#include <QVector>
#include <QWidget>

namespace nsProc {

class ProcSimEdtBit;

/// A value as a row of bits, the most significant one at the left.
class ProcSimEdtBitField : public QWidget
{
    Q_OBJECT

public:
    /// @param bits 1 to 31
    explicit ProcSimEdtBitField(int bits, QWidget* parent = nullptr);

    void setValue(int value);
    int value() const;
    void setHighlightEn(bool enabled);

signals:
    /// The user is about to toggle a bit: a slot can set the present value before.
    void aboutToToggle();
    /// The user has toggled a bit.
    void valueChanged(int value);

private:
    QVector<ProcSimEdtBit*> m_bits; ///< the least significant one first
};

} // namespace nsProc
