#include "TargetMapperConfigWidget.h"

#include "MyFieldTitle.h"
#include "TargetKinds.h"

#include <QCheckBox>
#include <QGraphicsOpacityEffect>
#include <QGridLayout>
#include <QLabel>

#include <iterator>

namespace nsModAsmFe {

namespace {

/// Shown in grey, but enabled.
void setPale(QWidget* widget, bool pale)
{
    auto* effect = qobject_cast<QGraphicsOpacityEffect*>(widget->graphicsEffect());
    if (effect == nullptr) {
        effect = new QGraphicsOpacityEffect(widget);
        effect->setOpacity(0.4);
        widget->setGraphicsEffect(effect);
    }
    effect->setEnabled(pale);
}

} // namespace

TargetMapperConfigWidget::TargetMapperConfigWidget(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QGridLayout(this))
{
    const QString kinds[] = {tr("Write VHDL files:"),   tr("Write verilog files:"),   tr("Write hex files:"),
                             tr("Write mem files:"),    tr("Write MIF files:"),       tr("Write COE files:"),
                             tr("Write binary files:"), tr("Write Intel HEX files:"), tr("Write block RAM mem files:")};
    static_assert(std::size(kinds) == targetKindCount, "each kind has its title");
    const QString events[eventCount] = {tr("Button 1"), tr("Button 2"), tr("After saving")};
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setHorizontalSpacing(8);
    m_layout->setVerticalSpacing(6);
    m_layout->addWidget(new MyFieldTitle(tr("Events:"), this), 0, 0);
    for (int event = 0; event < eventCount; ++event)
        m_layout->addWidget(new QLabel(events[event], this), 0, event + 1, Qt::AlignCenter);
    for (int kind = 0; kind < targetKindCount; ++kind) {
        m_titles[kind] = new MyFieldTitle(kinds[kind], this);
        m_titles[kind]->setObjectName(QStringLiteral("targetEvents%1").arg(kind));
        m_layout->addWidget(m_titles[kind], kind + 1, 0);
        for (int event = 0; event < eventCount; ++event) {
            auto* box = new QCheckBox(this);
            box->setObjectName(QStringLiteral("targetEvent%1%2").arg(kind).arg(event));
            box->setToolTip(kinds[kind] + ' ' + events[event]);
            box->setAccessibleName(box->toolTip());
            m_layout->addWidget(box, kind + 1, event + 1, Qt::AlignCenter);
            connect(box, &QCheckBox::toggled, this, &TargetMapperConfigWidget::updateHint);
            m_boxes[kind][event] = box;
        }
    }
    for (int event = 0; event < eventCount; ++event)
        m_layout->setColumnMinimumWidth(event + 1, 96);
    m_layout->setColumnStretch(eventCount + 1, 1);
    m_hint =
        new QLabel(tr("Grey: this output is off. Its events only warn that no file is defined, unless a device of the "
                      "sources has a file of this kind; those of images, from MIF on, do not even warn."),
                   this);
    m_hint->setObjectName(QStringLiteral("targetEventsHint"));
    m_hint->setWordWrap(true);
    m_layout->addWidget(m_hint, targetKindCount + 1, 0, 1, eventCount + 2);
    for (int kind = 0; kind < targetKindCount; ++kind)
        setOutputEnabled(eTargetKind_t(kind), false);
}

void TargetMapperConfigWidget::setOutputEnabled(eTargetKind_t kind, bool enabled)
{
    m_isOn[kind] = enabled;
    setPale(m_titles[kind], !enabled);
    for (QCheckBox* box : m_boxes[kind])
        setPale(box, !enabled);
    updateHint();
}

/// Shows the hint while an event is set of an output that is off, and whose kind warns then.
void TargetMapperConfigWidget::updateHint()
{
    bool anyWarns = false;
    for (int kind = 0; kind < targetKindCount; ++kind) {
        for (const QCheckBox* box : m_boxes[kind])
            anyWarns = anyWarns || (!m_isOn[kind] && box->isChecked() && !targetKind(eTargetKind_t(kind)).isImage);
    }
    m_hint->setVisible(anyWarns);
}

void TargetMapperConfigWidget::setLabelWidth(int width)
{
    m_layout->setColumnMinimumWidth(0, width);
}

void TargetMapperConfigWidget::setConfig(const AsmFeConfig* config)
{
    for (int kind = 0; kind < targetKindCount; ++kind) {
        m_boxes[kind][eventButton1]->setChecked(config->targets[kind].writeFileEventBut1);
        m_boxes[kind][eventButton2]->setChecked(config->targets[kind].writeFileEventBut2);
        m_boxes[kind][eventSave]->setChecked(config->targets[kind].writeFileEventSave);
    }
}

void TargetMapperConfigWidget::config(AsmFeConfig* config) const
{
    for (int kind = 0; kind < targetKindCount; ++kind) {
        config->targets[kind].writeFileEventBut1 = m_boxes[kind][eventButton1]->isChecked();
        config->targets[kind].writeFileEventBut2 = m_boxes[kind][eventButton2]->isChecked();
        config->targets[kind].writeFileEventSave = m_boxes[kind][eventSave]->isChecked();
    }
}

} // namespace nsModAsmFe
