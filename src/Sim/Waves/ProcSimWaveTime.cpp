#include "ProcSimWaveTime.h"

#include <QCoreApplication>

#include <cmath>

namespace nsProc {

namespace {

/// The smallest of 1, 2, 5, 10, ... that is not less than the argument.
double roundStep(double step)
{
    const double decade = std::pow(10.0, std::floor(std::log10(step)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (decade * factor >= step * (1 - 1e-9))
            return decade * factor;
    }
    return decade * 10;
}

} // namespace

qint64 ProcSimWaveTime::boundary(int x) const
{
    return qint64(std::ceil(clockAt(x)));
}

QVector<ProcSimWaveTime::sTick_t> ProcSimWaveTime::ticks(int width, int distance) const
{
    QVector<sTick_t> result;
    // At least one clock, or at least one picosecond.
    const double perUnit = m_seconds ? 1 / m_clkFreq : 1;
    const double step = roundStep(qMax(distance / m_pxPerClock * perUnit, m_seconds ? 1e-12 : 1.0));
    double count = std::floor(qMax(m_first, 0.0) * perUnit / step);
    for (;; ++count) {
        const double moment = count * step;
        const double x = xAt(moment / perUnit);
        if (x > width)
            return result;
        result.append(
            {qRound(x), m_seconds ? secondsText(moment, step) : QString::number(qint64(std::llround(moment)))});
    }
}

/// @param step distance of the shown times, which determines the unit and the decimals
QString ProcSimWaveTime::secondsText(double seconds, double step) const
{
    if (seconds == 0)
        return QStringLiteral("0 s");
    struct sUnit_t
    {
        double size;
        const char* name;
    };
    static const sUnit_t units[] = {{1, "s"}, {1e-3, "ms"}, {1e-6, "us"}, {1e-9, "ns"}};
    const sUnit_t* unit = units;
    // The largest unit in which the time has an integer part, as long as three decimals suffice for the step.
    while (unit != std::end(units) - 1 && (seconds < unit->size * (1 - 1e-9) || step < unit->size * 0.999e-3))
        ++unit;
    const int decimals = qBound(0, int(std::ceil(-std::log10(step / unit->size) - 1e-9)), 3);
    return QStringLiteral("%1 %2").arg(seconds / unit->size, 0, 'f', decimals).arg(QLatin1String(unit->name));
}

QString ProcSimWaveTime::text(qint64 clock) const
{
    if (!m_seconds)
        return QString::number(clock);
    return secondsText(double(clock) / m_clkFreq, exactStep());
}

QString ProcSimWaveTime::clocksText(qint64 clock)
{
    return clock == 1 ? QCoreApplication::translate("ProcSimWaveTime", "1 clock")
                      : QCoreApplication::translate("ProcSimWaveTime", "%1 clocks").arg(clock);
}

QString ProcSimWaveTime::unitText(qint64 clock) const
{
    return m_seconds ? text(clock) : clocksText(clock);
}

QString ProcSimWaveTime::longText(qint64 clock) const
{
    if (!hasClkFreq())
        return clocksText(clock);
    return QStringLiteral("%1 (%2)").arg(clocksText(clock), secondsText(double(clock) / m_clkFreq, exactStep()));
}

/// A step with which the texts of adjacent clocks differ.
double ProcSimWaveTime::exactStep() const
{
    return roundStep(0.5 / m_clkFreq);
}

} // namespace nsProc
