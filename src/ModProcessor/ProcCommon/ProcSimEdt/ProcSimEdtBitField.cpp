#include "ProcSimEdtBitField.h"

#include "ProcSimEdtBit.h"

#include <QHBoxLayout>

namespace nsProc {

ProcSimEdtBitField::ProcSimEdtBitField(int bits, QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (int bit = bits - 1; bit >= 0; --bit) {
        auto* edit = new ProcSimEdtBit(this);
        edit->setToolTip(tr("Bit %1").arg(bit));
        layout->addWidget(edit);
        // Halves of a byte are easier to read.
        if (bit % 4 == 0 && bit > 0)
            layout->addSpacing(6);
        m_bits.prepend(edit);
        connect(edit, &ProcSimEdtBit::aboutToToggle, this, &ProcSimEdtBitField::aboutToToggle);
        connect(edit, &ProcSimEdtBit::valueChanged, this, [this] { emit valueChanged(value()); });
    }
}

void ProcSimEdtBitField::setValue(int value)
{
    for (int bit = 0; bit < m_bits.size(); ++bit)
        m_bits.at(bit)->setValue((value >> bit) & 1);
}

int ProcSimEdtBitField::value() const
{
    int value = 0;
    for (int bit = 0; bit < m_bits.size(); ++bit)
        value |= m_bits.at(bit)->value() << bit;
    return value;
}

void ProcSimEdtBitField::setHighlightEn(bool enabled)
{
    for (ProcSimEdtBit* bit : qAsConst(m_bits))
        bit->setHighlightEn(enabled);
}

} // namespace nsProc
