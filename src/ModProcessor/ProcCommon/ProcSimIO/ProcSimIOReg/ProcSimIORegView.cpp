#include "ProcSimIORegView.h"

#include "Colors.h"
#include "HelpRef.h"
#include "ProcSimEdtBitField.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimIOReg8Bit.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace nsProc {

ProcSimIORegView::ProcSimIORegView(ProcSimIOReg8Bit* device)
    : ProcSimIODeviceView(device, Colors::eKindRegister, tr("Register"))
    , m_reg(device)
    , m_value(new ProcSimEdtNumeric(this))
    , m_bits(new ProcSimEdtBitField(8, this))
{
    HelpRef::setWhatsThis(this,
                          tr("A register: one value of 8 bits, which reads see and writes change. Type it as a number, "
                             "or click its bits."),
                          QStringLiteral("pageId://simulatorDevices#device-register"));
    m_value->setToolTip(tr("Value"));
    m_value->setRange(0, ProcSimIODevice::maxValue);
    m_bits->setObjectName(QStringLiteral("procSimIOBits"));
    m_bits->setToolTip(tr("Value bit field"));
    directionLine()->addWidget(m_value);
    auto* line = new QHBoxLayout;
    line->addStretch(1);
    line->addWidget(m_bits);
    body()->addLayout(line);
    connect(m_value, &ProcSimEdtNumeric::edited, this, &ProcSimIORegView::updateValue);
    // The seven other bits are taken from the present value, which may be newer than the displayed one.
    connect(m_bits, &ProcSimEdtBitField::aboutToToggle, this, [this] { m_bits->setValue(m_reg->regValue()); });
    connect(m_bits, &ProcSimEdtBitField::valueChanged, this, &ProcSimIORegView::updateValue);
}

void ProcSimIORegView::updateValue(int value)
{
    m_reg->updateValue(value);
    refresh();
}

void ProcSimIORegView::showDevice()
{
    if (m_value->base() != m_reg->base())
        m_value->setBase(m_reg->base());
    m_value->setValue(m_reg->regValue());
    m_value->setHighlightEn(m_reg->isHighlighted());
    m_bits->setValue(m_reg->regValue());
    m_bits->setHighlightEn(m_reg->isHighlighted());
}

} // namespace nsProc
