#include "ProcSimEdt8Bit.h"

#include <QHBoxLayout>

namespace nsProc {

ProcSimEdt8Bit::ProcSimEdt8Bit(QWidget* parent)
    : QWidget(parent)
    , m_bit(new ProcSimEdtBit(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_bit);
    setFocusProxy(m_bit);
    connect(m_bit, &ProcSimEdtBit::valueChanged, this, [this] { emit valueChanged(value()); });
}

void ProcSimEdt8Bit::toggleBit()
{
    setValue(!value());
    emit valueChanged(value());
}

} // namespace nsProc
