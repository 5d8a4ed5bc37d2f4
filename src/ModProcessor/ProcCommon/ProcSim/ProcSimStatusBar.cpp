#include "ProcSimStatusBar.h"

#include "MyButton.h"
#include "MyStatusBarTitle.h"
#include "ProcSimClock.h"

#include <QHBoxLayout>
#include <QLabel>

namespace nsProc {

namespace {

/// Time of one clock in the unit, with the arithmetic in single precision.
double timeOfClock(double clkFreq, const char** unit)
{
    const float frequency = float(clkFreq);
    if (frequency > 1000000.0f) {
        *unit = "ns";
        return double(1e9f / frequency);
    }
    if (frequency > 1000.0f) {
        *unit = "us";
        return double(1e6f / frequency);
    }
    *unit = "ms";
    return double(1000.0f / frequency);
}

} // namespace

ProcSimStatusBar::ProcSimStatusBar(std::shared_ptr<ProcSimClock> clock, double clkFreq, QWidget* parent)
    : QWidget(parent)
    , m_clock(std::move(clock))
{
    const char* unit = nullptr;
    m_timeFactor = timeOfClock(clkFreq, &unit);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 0, 8, 0);
    layout->setSpacing(6);
    // What follows a number must not move while it grows.
    layout->addWidget(new MyStatusBarTitle(tr("Value format:"), this));
    m_base = addValue(QStringLiteral("procSimBase"), fontMetrics().horizontalAdvance(QStringLiteral("HEXX")));
    layout->addSpacing(8);
    layout->addWidget(new MyStatusBarTitle(tr("Clock count:"), this));
    m_clocks = addValue(QStringLiteral("procSimClocks"), fontMetrics().horizontalAdvance(QString(12, '0')));
    layout->addWidget(new QLabel(tr("clocks"), this));
    layout->addSpacing(8);
    layout->addWidget(new MyStatusBarTitle(tr("Time count:"), this));
    m_time = addValue(QStringLiteral("procSimTime"), fontMetrics().horizontalAdvance(QStringLiteral("0.00000e+00")));
    layout->addWidget(new QLabel(QString::fromLatin1(unit), this));
    auto* button = new MyButton(tr("Clear"), this);
    button->setToolTip(tr("Set the clock count to zero"));
    layout->addWidget(button);
    connect(button, &QPushButton::clicked, this, &ProcSimStatusBar::clear);
    setBase(QStringLiteral("HEX"));
    updateValues();
}

ProcSimStatusBar::ProcSimStatusBar(double clkFreq, QWidget* parent)
    : ProcSimStatusBar(std::make_shared<ProcSimClock>(), clkFreq, parent)
{
}

QLabel* ProcSimStatusBar::addValue(const QString& name, int width)
{
    auto* label = new QLabel(this);
    label->setObjectName(name);
    label->setMinimumWidth(width);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout()->addWidget(label);
    return label;
}

void ProcSimStatusBar::addClkCntr(int clocks)
{
    m_clock->clocks += clocks;
    updateValues();
}

void ProcSimStatusBar::updateValues()
{
    m_shown = m_clock->clocks;
    m_clocks->setText(QString::number(m_shown));
    // No clock takes no time, also where a clock takes for ever.
    m_time->setText(QStringLiteral("%1").arg(m_shown == 0 ? 0.0 : double(m_shown) * m_timeFactor));
}

void ProcSimStatusBar::refresh()
{
    if (m_shown != m_clock->clocks)
        updateValues();
}

void ProcSimStatusBar::clear()
{
    m_clock->clocks = 0;
    updateValues();
    emit cleared();
}

void ProcSimStatusBar::setBase(const QString& base)
{
    m_base->setText(base);
}

} // namespace nsProc
