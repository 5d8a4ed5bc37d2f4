#pragma once

#include <QList>
#include <QWidget>

#include <memory>

class QLabel;

namespace nsProc {

struct ProcSimClock;

/// The status bar of a simulation: number format, clock count and the time of these clocks.
class ProcSimStatusBar : public QWidget
{
    Q_OBJECT

public:
    /// @param clkFreq Hz; 0 makes the time infinite
    ProcSimStatusBar(std::shared_ptr<ProcSimClock> clock, double clkFreq, QWidget* parent = nullptr);
    /// With a clock of its own.
    explicit ProcSimStatusBar(double clkFreq, QWidget* parent = nullptr);

    void addClkCntr(int clocks);
    void updateValues();
    /// @param base "DEC", "HEX" or "OCT"; the counters stay decimal
    void setBase(const QString& base);
    /// Shows whether a command that takes more than one instruction is in progress.
    void setRunning(bool running);
    /// Shows that the simulation is exactly as the core.
    void setExact(bool isExact);
    /// Shows what has changed in the clock.
    void refresh();
    /// With all that a narrow window does without.
    QSize sizeHint() const override;

public slots:
    /// Sets the count to 0.
    void clear();

signals:
    /// The count has been set to 0.
    void cleared();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QLabel* addValue(const QString& name, int width);
    void addTitle(QWidget* title);
    void showTitles();

    std::shared_ptr<ProcSimClock> m_clock;
    double m_clkFreq;
    int m_clocksWidth; ///< pixels of the largest number
    int m_timeWidth;   ///< the same
    double m_timeFactor;
    QLabel* m_state;
    QLabel* m_exact;
    QLabel* m_base;
    QLabel* m_clocks = nullptr;
    QLabel* m_time = nullptr;
    QList<QWidget*> m_titles; ///< what a narrow window does without
    qint64 m_shown = -1;
};

} // namespace nsProc
