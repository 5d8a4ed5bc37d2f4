#include "ProcSimStatusBar.h"

#include "HelpRef.h"
#include "MyButton.h"
#include "MyStatusBarTitle.h"
#include "ProcSimClock.h"

#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>

namespace nsProc {

namespace {

const int gapBeforeTitle = 12; ///< pixels

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

/// A time in the unit that makes it short, with four digits or, from 10000 s on, with all seconds.
QString readableTime(double seconds)
{
    const struct
    {
        double length;
        const char* name;
    } units[] = {{1e-9, "ns"}, {1e-6, "us"}, {1e-3, "ms"}};
    for (const auto& unit : units) {
        // A value that would be rounded to 1000 of a unit is shown as 1 of the next unit.
        if (seconds > 0 && seconds < 999.95 * unit.length)
            return QString::number(seconds / unit.length, 'g', 4) + ' ' + QLatin1String(unit.name);
    }
    return QString::number(seconds, seconds < 9999.5 ? 'g' : 'f', seconds < 9999.5 ? 4 : 0) + QStringLiteral(" s");
}

} // namespace

ProcSimStatusBar::ProcSimStatusBar(std::shared_ptr<ProcSimClock> clock, double clkFreq, QWidget* parent)
    : QWidget(parent)
    , m_clock(std::move(clock))
    , m_clkFreq(clkFreq)
    , m_clocksWidth(fontMetrics().horizontalAdvance(QString(10, '0')))
    , m_timeWidth(fontMetrics().horizontalAdvance(QStringLiteral("0.00000e+00")))
{
    const char* unit = nullptr;
    m_timeFactor = timeOfClock(clkFreq, &unit);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 0, 2, 0);
    layout->setSpacing(3);
    // The widgets after a number must not move while it grows.
    const int stateWidth =
        std::max(fontMetrics().horizontalAdvance(tr("Running")), fontMetrics().horizontalAdvance(tr("Stopped")));
    m_state = addValue(QStringLiteral("procSimState"), stateWidth);
    m_state->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_state->setToolTip(tr("Whether the program is running"));
    m_exact = new QLabel(tr("Exact"), this);
    m_exact->setObjectName(QStringLiteral("procSimExact"));
    m_exact->setToolTip(tr("The simulation does exactly what the core does"));
    layout->addWidget(m_exact);
    addTitle(new MyStatusBarTitle(tr("Value format:"), this));
    m_base = addValue(QStringLiteral("procSimBase"), fontMetrics().horizontalAdvance(QStringLiteral("HEX")) + 4);
    m_base->setToolTip(tr("Value format: base of the numbers in the panels"));
    setExact(false);
    addTitle(new MyStatusBarTitle(tr("Clock count:"), this));
    m_clocks = addValue(QStringLiteral("procSimClocks"), m_clocksWidth);
    addTitle(new QLabel(tr("clocks"), this));
    addTitle(new MyStatusBarTitle(tr("Time count:"), this));
    m_time = addValue(QStringLiteral("procSimTime"), m_timeWidth);
    layout->addWidget(new QLabel(QString::fromLatin1(unit), this));
    HelpRef::setWhatsThis(this,
                          tr("Whether the program runs, the base of the numbers in the panels, and the clock cycles "
                             "since the simulator was enabled or Clear was pressed, also as a time."),
                          QStringLiteral("pageId://simulatorState#counters"));
    auto* button = new MyButton(tr("Clear"), this);
    button->setToolTip(tr("Set the clock count to zero"));
    layout->addWidget(button);
    connect(button, &QPushButton::clicked, this, &ProcSimStatusBar::clear);
    setRunning(false);
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

void ProcSimStatusBar::addTitle(QWidget* title)
{
    // Not in one with the value before it, which can be as wide as its place. A unit belongs to its value.
    if (qobject_cast<MyStatusBarTitle*>(title) != nullptr)
        title->setContentsMargins(gapBeforeTitle, 0, 0, 0);
    layout()->addWidget(title);
    m_titles.append(title);
}

/// The width with all titles, hidden or not, so that they come back when there is room for them.
QSize ProcSimStatusBar::sizeHint() const
{
    QSize size = QWidget::sizeHint();
    for (const QWidget* title : m_titles) {
        if (title->isHidden())
            size.rwidth() += title->sizeHint().width() + layout()->spacing();
    }
    return size;
}

void ProcSimStatusBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showTitles();
}

void ProcSimStatusBar::showTitles()
{
    const bool narrow = width() < sizeHint().width();
    for (QWidget* title : qAsConst(m_titles))
        title->setVisible(!narrow);
    if (m_time == nullptr)
        return;
    // At last the numbers have the room of their digits only, so that they do not stand on each other.
    const int room = QWidget::minimumSizeHint().width() - m_clocks->minimumWidth() - m_time->minimumWidth();
    const bool isTight = width() < room + m_clocksWidth + m_timeWidth;
    m_clocks->setMinimumWidth(isTight ? 0 : m_clocksWidth);
    m_time->setMinimumWidth(isTight ? 0 : m_timeWidth);
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
    // 0 clocks take no time, even if the time of one clock is infinite.
    m_time->setText(QStringLiteral("%1").arg(m_shown == 0 ? 0.0 : double(m_shown) * m_timeFactor));
    m_time->setToolTip(m_clkFreq > 0 ? readableTime(double(m_shown) / m_clkFreq) : tr("No clock frequency is set."));
}

void ProcSimStatusBar::setExact(bool isExact)
{
    m_exact->setVisible(isExact);
    showTitles();
}

void ProcSimStatusBar::setRunning(bool running)
{
    m_state->setText(running ? tr("Running") : tr("Stopped"));
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
