#pragma once

#include <QString>
#include <QVector>

namespace nsProc {

/// Converts between clocks and pixels: the visible range of simulated time, and the texts of its axis.
///
/// Pixel x shows the clocks from boundary(x) up to, but not including, boundary(x + 1). Where a clock is wider than a
/// pixel, it starts at the pixel whose range contains it.
class ProcSimWaveTime
{
public:
    struct sTick_t
    {
        int x;        ///< pixels
        QString text; ///< with its unit
    };

    /// @param clkFreq Hz; 0 or below for unknown: then only clocks can be shown
    explicit ProcSimWaveTime(double clkFreq)
        : m_clkFreq(clkFreq)
    {
    }

    bool hasClkFreq() const { return m_clkFreq > 0; }
    /// Shows seconds and their parts instead of clocks.
    void setSeconds(bool seconds) { m_seconds = seconds && hasClkFreq(); }
    bool isSeconds() const { return m_seconds; }

    double first() const { return m_first; }
    double pxPerClock() const { return m_pxPerClock; }
    void setFirst(double clock) { m_first = clock; }
    void setPxPerClock(double scale) { m_pxPerClock = scale; }

    double clockAt(double x) const { return m_first + x / m_pxPerClock; }
    double xAt(double clock) const { return (clock - m_first) * m_pxPerClock; }
    qint64 boundary(int x) const;

    /// Round times, at least `distance` pixels apart.
    QVector<sTick_t> ticks(int width, int distance) const;
    /// A time without superfluous decimals: "120" or "2.4 us".
    QString text(qint64 clock) const;
    /// A time with its unit: "120 clocks" or "2.4 us".
    QString unitText(qint64 clock) const;
    /// A time in both units, if both are known: "120 clocks (2.4 us)".
    QString longText(qint64 clock) const;

private:
    static QString clocksText(qint64 clock);
    double exactStep() const;
    QString secondsText(double seconds, double step) const;

    double m_clkFreq;
    bool m_seconds = false;
    double m_first = 0;
    double m_pxPerClock = 8;
};

} // namespace nsProc
