#pragma once

#include "ProcSimWave.h"
#include "ProcSimWaveColumns.h"
#include "ProcSimWaveData.h"
#include "ProcSimWaveTime.h"

#include <QList>
#include <QPoint>
#include <QStringList>
#include <QVector>
#include <QWidget>

class QScrollBar;

namespace nsProc {

/// Draws waves against time: one row a wave, under an axis of time.
///
/// It starts at a scale at which single values are readable, and follows the end of time until the user scrolls back;
/// at the end it follows again. Ctrl with the wheel zooms at the pointer, Shift with the wheel scrolls, and so does
/// dragging. A click sets a marker, a click on the marker takes it away. The cost of painting does not depend on the
/// number of values.
class ProcSimWavesWidget : public QWidget
{
    Q_OBJECT

public:
    using sAddrChannel_t = ProcSimWaveData::sAddrChannel_t;

    /// @param data not owned, must outlive this
    /// @param clkFreq Hz; 0 or below for unknown
    ProcSimWavesWidget(const ProcSimWaveData* data, double clkFreq, QWidget* parent = nullptr);

    /// The rows to draw, at their places; not owned. Before a row is deleted, the remaining ones must be set.
    void setWaves(const QList<sWave_t*>& waves);
    const QList<sWave_t*>& waves() const { return m_waves; }
    /// The row that is marked as the current one, null for none.
    void setCurrentWave(const sWave_t* wave);
    /// Height of the axis: rows are visible below it. Pixels.
    void setAxisHeight(int height);
    /// Base of the values: 8, 10 or 16.
    void setBase(int base);
    /// Shows no rows and no marker.
    void clear();
    /// Draws what is new and follows the end of time.
    void refresh();
    /// The bar that scrolls time; not owned, must outlive this.
    void setScrollBar(QScrollBar* bar);

    const ProcSimWaveTime& time() const { return m_time; }
    /// Shows seconds and their parts instead of clocks, if the clock rate is known.
    void setSeconds(bool seconds);
    /// Is the end of time kept in view?
    bool isFollowing() const { return m_follow; }
    /// Is the scale such that all of the time is in view, also as time goes on?
    bool isFitting() const { return m_fit; }
    /// Clock count of the marker, -1 for none.
    qint64 marker() const { return m_marker; }
    void setMarker(qint64 clock);

    /// Text of a value in the present base, two digits at least.
    QString valueText(int value) const { return m_valueTexts.at(value & 0xFF); }
    /// The value that a row shows at a time, -1 for an unknown one.
    static int valueAt(const sWave_t* wave, qint64 clock);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    void zoomIn();
    void zoomOut();
    void fit();
    /// Shows the end of time and follows it.
    void showEnd();

signals:
    void markerChanged(qint64 clock);
    /// The time under the pointer, -1 for none.
    void pointed(qint64 clock);
    /// The rows are to be scrolled: the wheel was turned over the waves.
    void rowsWheeled(QWheelEvent* event);
    /// A row was clicked.
    void waveClicked(nsProc::sWave_t* wave);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct sSegment_t
    {
        int x0;
        int x1;
        int value;
    };

    double begin() const;
    double end() const;
    double maxFirst() const;
    double fitScale() const;
    /// Moves the view; at the end it follows from now on.
    void setFirst(double clock);
    void zoom(double factor, double x);
    /// The fixed point of the zoom buttons: the marker if it is in view, the end if that is followed, else the middle.
    double zoomPlace() const;
    void updateScrollBar();
    void scrolled(int value);

    void paintGround(QPainter* painter);
    void paintAxis(QPainter* painter, const QVector<ProcSimWaveTime::sTick_t>& ticks);
    void paintMarks(QPainter* painter);
    void paintWaveNumeric(QPainter* painter, sWave_t* wave);
    void paintWaveBit(QPainter* painter, sWave_t* wave);
    void paintSegments(QPainter* painter, const sWave_t* wave, const QVector<sSegment_t>& segments);
    QVector<sSegment_t> segments(const ProcSimWaveColumns& columns) const;
    const ProcSimWaveColumns& columns(const sAddrChannel_t* channel);
    sWave_t* waveAt(int y) const;
    QString toolTipAt(const QPoint& pos) const;
    void setPointer(int x);
    /// The column after the present time.
    int endColumn() const;

    const ProcSimWaveData* m_data;
    ProcSimWaveTime m_time;
    QList<sWave_t*> m_waves;
    const sWave_t* m_current = nullptr;
    QScrollBar* m_scrollBar = nullptr;
    QStringList m_valueTexts;
    QFont m_font;
    int m_axisHeight = 24;
    int m_textWidth = 0;
    bool m_follow = true;
    bool m_fit = false;
    qint64 m_marker = -1;
    int m_pointer = -1;
    QPoint m_pressed;
    double m_pressedFirst = 0;
    bool m_dragging = false;
    std::vector<std::pair<const sAddrChannel_t*, ProcSimWaveColumns>> m_columns; ///< while a picture is being drawn
};

} // namespace nsProc
