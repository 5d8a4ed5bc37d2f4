#include "ProcSimCore.h"

#include "HelpRef.h"
#include "ProcSimCoreData.h"
#include "ProcSimCoreReg.h"
#include "ProcSimEdtBit.h"
#include "ProcSimEdtInterrupt.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimScrpd.h"

#include <QCheckBox>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace nsProc {

namespace {

/// Shows all registers where there is room, and lets them scroll where there is not: 32 of them are higher than a small
/// screen.
class RegArea : public QScrollArea
{
public:
    RegArea(QWidget* regs, QWidget* parent)
        : QScrollArea(parent)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFocusPolicy(Qt::NoFocus);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
        setWidget(regs);
    }

    QSize sizeHint() const override { return {minimumSizeHint().width(), widget()->sizeHint().height()}; }
    QSize minimumSizeHint() const override
    {
        const int width = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
        return {width, std::min(widget()->sizeHint().height(), 4 * leastRow)};
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::event(event);
    }

private:
    static const int leastRow = 24; ///< pixels
};

} // namespace

ProcSimCore::ProcSimCore(std::shared_ptr<ProcSimCoreData> data, int pcMax, ProcSimCoreReg* regs, QWidget* parent)
    : QWidget(parent)
    , m_data(std::move(data))
    , m_head(new QGridLayout)
    , m_pc(new ProcSimEdtNumeric(this))
    , m_pageName(new QLabel(this))
    , m_carry(new ProcSimEdtBit(this))
    , m_zero(new ProcSimEdtBit(this))
    , m_interrupt(new ProcSimEdtInterrupt(this))
    , m_hold(new QCheckBox(tr("Hold"), this))
    , m_regs(regs)
{
    setObjectName(QStringLiteral("procSimCore"));
    // The tab order is the order in which the fields get this parent.
    m_regs->setParent(this);
    m_scrpd = new ProcSimScrpd(m_data, this);
    m_pc->setRange(0, std::max(pcMax, 0));
    m_pc->setToolTip(tr("Address of the next instruction. Another one that is typed in takes effect with Return, or "
                        "when the field is left."));
    m_carry->setToolTip(tr("Carry flag, toggled with a click"));
    m_zero->setToolTip(tr("Zero flag, toggled with a click"));

    m_hold->setObjectName(QStringLiteral("procSimHoldInterrupt"));
    m_hold->setAccessibleName(tr("Hold interrupt"));
    m_hold->setToolTip(tr("Hold interrupt: keep the interrupt input up; the interrupt button lifts it for one clock"));
    m_hold->hide();

    addWhatsThis();

    m_head->setHorizontalSpacing(6);
    m_head->setVerticalSpacing(4);
    m_head->addWidget(title(tr("PC:"), m_pc, m_pc->toolTip()), 0, 0);
    auto* pcLine = new QHBoxLayout;
    pcLine->setSpacing(6);
    pcLine->addWidget(m_pc);
    pcLine->addWidget(m_pageName, 1);
    m_head->addLayout(pcLine, 0, 1);
    auto* flags = new QHBoxLayout;
    flags->setSpacing(4);
    const struct
    {
        const char* text;
        QWidget* widget;
    } pairs[] = {{QT_TR_NOOP("Carry"), m_carry}, {QT_TR_NOOP("Zero"), m_zero}, {QT_TR_NOOP("Int"), m_interrupt}};
    for (const auto& pair : pairs) {
        flags->addWidget(title(tr(pair.text), pair.widget, pair.widget->toolTip()));
        flags->addWidget(pair.widget);
        flags->addSpacing(10);
    }
    flags->addWidget(m_hold);
    flags->addStretch(1);
    m_head->setColumnStretch(1, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 4, 8);
    layout->setSpacing(6);
    layout->addLayout(m_head);
    layout->addLayout(flags);
    layout->addWidget(hLine());
    layout->addWidget(new RegArea(m_regs, this));
    layout->addWidget(hLine());
    layout->addWidget(m_scrpd, 1);

    // A click toggles the present value, which may be newer than the displayed one during a run.
    connect(m_carry, &ProcSimEdtBit::aboutToToggle, this, [this] { m_carry->setValue(m_data->carryBit()); });
    connect(m_zero, &ProcSimEdtBit::aboutToToggle, this, [this] { m_zero->setValue(m_data->zeroBit()); });
    connect(m_interrupt, &ProcSimEdtInterrupt::aboutToToggle, this,
            [this] { m_interrupt->setValue(m_data->interrupt()); });
    connect(m_carry, &ProcSimEdtBit::valueChanged, this, [this] { m_data->editCarryBit(m_carry->value()); });
    connect(m_zero, &ProcSimEdtBit::valueChanged, this, [this] { m_data->editZeroBit(m_zero->value()); });
    connect(m_interrupt, &ProcSimEdtInterrupt::valueChanged, this, [this] { changeInterrupt(); });
    connect(m_hold, &QCheckBox::toggled, this, &ProcSimCore::interruptHeld);
    connect(m_pc, &ProcSimEdtNumeric::valueChanged, this, &ProcSimCore::pcTyped);
    refresh();
}

ProcSimCore::~ProcSimCore() = default;

void ProcSimCore::setExact(bool isExact)
{
    m_hold->setVisible(isExact);
    m_isExact = isExact;
}

/// The user has clicked the state.
void ProcSimCore::changeInterrupt()
{
    if (!m_isExact) {
        m_data->setInterrupt(m_interrupt->value());
        return;
    }
    // What comes of a request is for the core to say.
    m_interrupt->setValue(m_data->interrupt());
    emit interruptRequested();
}

void ProcSimCore::addWhatsThis()
{
    HelpRef::setWhatsThis(
        this,
        tr("The state of the processor: program counter, flags, registers and scratchpad. What you type or click "
           "counts from the next instruction on. Red is what an instruction has changed."),
        QStringLiteral("pageId://simulatorState"));
    HelpRef::setWhatsThis(m_pc,
                          tr("The address of the next instruction within its page. Another one can be typed while no "
                             "program runs; it takes effect with Return, or when the field is left."),
                          QStringLiteral("pageId://simulatorState#pc"));
    HelpRef::setWhatsThis(
        m_carry,
        tr("The carry flag. A click, Space or Return toggles it, and the next instruction sees the new value."),
        QStringLiteral("pageId://simulatorState#flags"));
    HelpRef::setWhatsThis(
        m_zero, tr("The zero flag. A click, Space or Return toggles it, and the next instruction sees the new value."),
        QStringLiteral("pageId://simulatorState#flags"));
    HelpRef::setWhatsThis(
        m_interrupt,
        tr("The state of interrupts: E enabled, D disabled, P pending, S in service. A click on E makes one pending, "
           "which is taken before the next instruction; a click on P takes it back."),
        QStringLiteral("pageId://simulatorState#interrupt"));
    HelpRef::setWhatsThis(m_regs,
                          tr("The registers: name, value, and the name that the program last used for it. A value that "
                             "is typed counts from the next instruction on."),
                          QStringLiteral("pageId://simulatorState#registers"));
    HelpRef::setWhatsThis(m_scrpd,
                          tr("The scratchpad: rows of cells, with the address of the first one at the left. Each cell "
                             "can be changed; the one that was written last is red."),
                          QStringLiteral("pageId://simulatorState#scratchpad"));
}

void ProcSimCore::addHwbld()
{
    m_hwbld = new ProcSimEdtNumeric(this);
    setTabOrder(m_pc, m_hwbld);
    m_hwbld->setToolTip(tr("Value that the instruction HWBUILD reads"));
    HelpRef::setWhatsThis(m_hwbld,
                          tr("The value that HWBUILD reads into a register. While the field is empty there is none, "
                             "and the instruction stops with an error."),
                          QStringLiteral("pageId://simulatorState#hwbuild"));
    m_head->addWidget(title(tr("HWBuild:"), m_hwbld, m_hwbld->toolTip()), 1, 0);
    m_head->addWidget(m_hwbld, 1, 1, Qt::AlignLeft);
    // An empty field means that there is no value: the instruction then reports an error.
    connect(m_hwbld, &ProcSimEdtNumeric::edited, this,
            [this](int value) { m_data->setHwbld(m_hwbld->text().isEmpty() ? -1 : value); });
    connect(m_hwbld, &ProcSimEdtNumeric::valueChanged, this, [this](int value) { m_data->setHwbld(value); });
    refresh();
}

QLabel* ProcSimCore::title(const QString& text, QWidget* buddy, const QString& toolTip)
{
    auto* label = new QLabel(text, this);
    label->setBuddy(buddy);
    label->setToolTip(toolTip);
    return label;
}

QFrame* ProcSimCore::hLine()
{
    auto* line = new QFrame(this);
    line->setObjectName(QStringLiteral("hline"));
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

void ProcSimCore::setBase(int base)
{
    m_pc->setBase(base);
    m_regs->setBase(base);
    m_scrpd->setBase(base);
    if (m_hwbld != nullptr)
        m_hwbld->setBase(base);
}

void ProcSimCore::setRunning(bool running)
{
    m_pc->setReadOnly(running);
}

bool ProcSimCore::takeTypedPc(int* addr)
{
    if (!m_pc->takeEdit())
        return false;
    *addr = m_pc->value();
    return true;
}

void ProcSimCore::refresh()
{
    m_pc->setValue(m_data->pc());
    if (m_pageName->text() != m_data->pageName())
        m_pageName->setText(m_data->pageName());
    if (m_hwbld != nullptr && m_data->hwbld() >= 0)
        m_hwbld->setValue(m_data->hwbld());
    m_carry->setValue(m_data->carryBit());
    m_carry->setHighlightEn(m_data->isCarryHighlighted());
    m_zero->setValue(m_data->zeroBit());
    m_zero->setHighlightEn(m_data->isZeroHighlighted());
    m_interrupt->setValue(m_data->interrupt());
    m_regs->refresh();
    m_scrpd->refresh();
    if (m_data->takeContentChanged())
        emit contentChanged(this);
}

void ProcSimCore::setCarryBit(int value)
{
    m_data->setCarryBit(value);
    refresh();
}

int ProcSimCore::carryBit() const
{
    return m_data->carryBit();
}

void ProcSimCore::setZeroBit(int value)
{
    m_data->setZeroBit(value);
    refresh();
}

int ProcSimCore::zeroBit() const
{
    return m_data->zeroBit();
}

bool ProcSimCore::setReg(int index, const QString& alias, int value)
{
    const bool success = m_data->setReg(index, alias, value);
    refresh();
    return success;
}

bool ProcSimCore::reg(int index, const QString& alias, int* value)
{
    const bool success = m_data->reg(index, alias, value);
    refresh();
    return success;
}

bool ProcSimCore::initScrpd(unsigned int* values, int count)
{
    return m_scrpd->initValues(values, count);
}

bool ProcSimCore::setScrpd(int addr, int value)
{
    return m_scrpd->setValue(addr, value);
}

bool ProcSimCore::scrpd(int addr, int* value) const
{
    return m_scrpd->value(addr, value);
}

void ProcSimCore::setInterrupt(eInt_t state)
{
    m_data->setInterrupt(state);
    refresh();
}

eInt_t ProcSimCore::interrupt() const
{
    return m_data->interrupt();
}

void ProcSimCore::setPc(int addr, const QString& pageName)
{
    m_data->setPc(addr, pageName);
    refresh();
}

int ProcSimCore::pc() const
{
    return m_data->pc();
}

void ProcSimCore::clearHighlighted()
{
    m_data->clearHighlighted();
    refresh();
}

void ProcSimCore::clear()
{
    m_data->clear();
    refresh();
}

} // namespace nsProc
