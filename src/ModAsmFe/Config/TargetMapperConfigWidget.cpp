#include "TargetMapperConfigWidget.h"

#include "MyFieldTitle.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

namespace nsModAsmFe {

TargetMapperConfigWidget::TargetMapperConfigWidget(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QGridLayout(this))
{
    const QString kinds[targetCount] = {tr("Write VHDL files:"), tr("Write verilog files:"), tr("Write hex files:"),
                                        tr("Write mem files:")};
    const QString events[eventCount] = {tr("Button 1"), tr("Button 2"), tr("After saving")};
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setHorizontalSpacing(8);
    m_layout->setVerticalSpacing(6);
    m_layout->addWidget(new MyFieldTitle(tr("Events:"), this), 0, 0);
    for (int event = 0; event < eventCount; ++event)
        m_layout->addWidget(new QLabel(events[event], this), 0, event + 1, Qt::AlignCenter);
    for (int kind = 0; kind < targetCount; ++kind) {
        m_layout->addWidget(new MyFieldTitle(kinds[kind], this), kind + 1, 0);
        for (int event = 0; event < eventCount; ++event) {
            auto* box = new QCheckBox(this);
            box->setObjectName(QStringLiteral("targetEvent%1%2").arg(kind).arg(event));
            box->setToolTip(kinds[kind] + ' ' + events[event]);
            box->setAccessibleName(box->toolTip());
            m_layout->addWidget(box, kind + 1, event + 1, Qt::AlignCenter);
            m_boxes[kind][event] = box;
        }
    }
    for (int event = 0; event < eventCount; ++event)
        m_layout->setColumnMinimumWidth(event + 1, 96);
    m_layout->setColumnStretch(eventCount + 1, 1);
}

void TargetMapperConfigWidget::setLabelWidth(int width)
{
    m_layout->setColumnMinimumWidth(0, width);
}

void TargetMapperConfigWidget::setTarget(eTarget_t target, const TargetConfig& config)
{
    m_boxes[target][eventButton1]->setChecked(config.writeFileEventBut1);
    m_boxes[target][eventButton2]->setChecked(config.writeFileEventBut2);
    m_boxes[target][eventSave]->setChecked(config.writeFileEventSave);
}

void TargetMapperConfigWidget::target(eTarget_t target, TargetConfig* config) const
{
    config->writeFileEventBut1 = m_boxes[target][eventButton1]->isChecked();
    config->writeFileEventBut2 = m_boxes[target][eventButton2]->isChecked();
    config->writeFileEventSave = m_boxes[target][eventSave]->isChecked();
}

void TargetMapperConfigWidget::setConfig(const AsmFeConfig* config)
{
    setTarget(targetVhdl, config->targetVhdl);
    setTarget(targetVerilog, config->targetVerilog);
    setTarget(targetHex, config->targetHex);
    setTarget(targetMem, config->targetMem);
}

void TargetMapperConfigWidget::config(AsmFeConfig* config) const
{
    target(targetVhdl, &config->targetVhdl);
    target(targetVerilog, &config->targetVerilog);
    target(targetHex, &config->targetHex);
    target(targetMem, &config->targetMem);
}

} // namespace nsModAsmFe
