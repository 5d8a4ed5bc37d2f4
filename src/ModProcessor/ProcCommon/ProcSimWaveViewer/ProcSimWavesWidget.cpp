#include "ProcSimWavesWidget.h"

#include "ProcSimWaveColumns.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace nsProc {

namespace {

constexpr double scaleMax = 64; ///< pixels a clock
constexpr double scaleAtStart = 8;
constexpr int endMargin = 32; ///< pixels after the present time, so that the last value can be read
constexpr double barRange = 1e9;

} // namespace

ProcSimWavesWidget::ProcSimWavesWidget(const ProcSimWaveData* data, double clkFreq, QWidget* parent)
    : QWidget(parent)
    , m_data(data)
    , m_time(clkFreq)
    , m_font(QStringLiteral("DejaVu Sans Mono"), 8)
{
    setObjectName(QStringLiteral("procSimWaves"));
    setToolTip(tr("Ctrl with the wheel zooms, Shift with the wheel or dragging scrolls, a click sets a marker"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_font.setStyleHint(QFont::Monospace);
    setBase(16);
}

QSize ProcSimWavesWidget::sizeHint() const
{
    return {600, 160};
}

QSize ProcSimWavesWidget::minimumSizeHint() const
{
    return {120, 64};
}

void ProcSimWavesWidget::setWaves(const QList<sWave_t*>& waves)
{
    m_waves = waves;
    if (!m_waves.contains(const_cast<sWave_t*>(m_current)))
        m_current = nullptr;
    update();
}

void ProcSimWavesWidget::setCurrentWave(const sWave_t* wave)
{
    if (m_current == wave)
        return;
    m_current = wave;
    update();
}

void ProcSimWavesWidget::setAxisHeight(int height)
{
    if (m_axisHeight == height)
        return;
    m_axisHeight = height;
    update();
}

void ProcSimWavesWidget::setBase(int base)
{
    m_valueTexts.clear();
    for (int value = 0; value < 256; ++value)
        m_valueTexts.append(QStringLiteral("%1").arg(value, 2, base, QLatin1Char('0')).toUpper());
    m_textWidth = QFontMetrics(m_font).horizontalAdvance(m_valueTexts.last());
    update();
}

void ProcSimWavesWidget::clear()
{
    setWaves({});
    setMarker(-1);
}

void ProcSimWavesWidget::setSeconds(bool seconds)
{
    m_time.setSeconds(seconds);
    update();
}

void ProcSimWavesWidget::setMarker(qint64 clock)
{
    if (m_marker == clock)
        return;
    m_marker = clock;
    update();
    emit markerChanged(clock);
}

int ProcSimWavesWidget::valueAt(const sWave_t* wave, qint64 clock)
{
    const size_t index = ProcSimWaveData::indexAt(*wave->channel, clock + 1);
    if (index == 0)
        return -1;
    const int value = wave->channel->values[index - 1].value;
    return wave->kind == eWaveBit ? (value >> wave->bit) & 1 : value;
}

double ProcSimWavesWidget::end() const
{
    return double(m_data->clock()) + 1;
}

/// Time of the first stored value.
double ProcSimWavesWidget::begin() const
{
    qint64 first = -1;
    for (const auto& channel : m_data->channels()) {
        if (!channel->values.empty() && (first < 0 || channel->values.front().clock < first))
            first = channel->values.front().clock;
    }
    return double(qMax<qint64>(0, first));
}

double ProcSimWavesWidget::maxFirst() const
{
    const double first = end() - qMax(1, width() - endMargin) / m_time.pxPerClock();
    // Less than a pixel is a rounding error.
    return first * m_time.pxPerClock() < 0.5 ? 0 : first;
}

double ProcSimWavesWidget::fitScale() const
{
    return qMin(scaleMax, qMax(1, width() - endMargin) / qMax(1.0, end() - begin()));
}

int ProcSimWavesWidget::endColumn() const
{
    return int(qBound(-1.0, std::ceil(m_time.xAt(end())), double(width())));
}

void ProcSimWavesWidget::refresh()
{
    // Time may have restarted.
    if (m_marker > m_data->clock())
        setMarker(-1);
    if (m_fit)
        m_time.setPxPerClock(fitScale());
    setFirst(m_follow || m_fit ? maxFirst() : m_time.first());
}

void ProcSimWavesWidget::setFirst(double clock)
{
    const double last = maxFirst();
    const double scale = m_time.pxPerClock();
    m_follow = clock >= last - 1 / scale;
    // Rounded to whole pixels, so that the picture does not flicker while it moves.
    m_time.setFirst(qMax(0.0, std::round(qMin(clock, last) * scale) / scale));
    updateScrollBar();
    update();
}

void ProcSimWavesWidget::zoom(double factor, double x)
{
    const double scaleMin = qMin(scaleAtStart, fitScale());
    const double scale = qBound(scaleMin, m_time.pxPerClock() * factor, scaleMax);
    const double clock = m_time.clockAt(x);
    const bool atEnd = m_follow && x >= m_time.xAt(end());
    m_fit = false;
    m_time.setPxPerClock(scale);
    setFirst(atEnd ? maxFirst() : clock - x / scale);
}

double ProcSimWavesWidget::zoomPlace() const
{
    const double marked = m_time.xAt(double(m_marker));
    if (m_marker >= 0 && marked >= 0 && marked < width())
        return marked;
    return m_follow ? m_time.xAt(end()) : width() / 2.0;
}

void ProcSimWavesWidget::zoomIn()
{
    zoom(2, zoomPlace());
}

void ProcSimWavesWidget::zoomOut()
{
    zoom(0.5, zoomPlace());
}

void ProcSimWavesWidget::fit()
{
    m_fit = true;
    refresh();
}

void ProcSimWavesWidget::showEnd()
{
    setFirst(maxFirst());
}

void ProcSimWavesWidget::setScrollBar(QScrollBar* bar)
{
    m_scrollBar = bar;
    connect(bar, &QScrollBar::valueChanged, this, &ProcSimWavesWidget::scrolled);
    updateScrollBar();
}

/// The bar counts in pixels, as long as they fit into its integers.
void ProcSimWavesWidget::updateScrollBar()
{
    if (m_scrollBar == nullptr)
        return;
    const double pixels = maxFirst() * m_time.pxPerClock();
    const double shrink = qMin(1.0, barRange / qMax(1.0, pixels));
    const int range = int(std::ceil(pixels * shrink));
    const QSignalBlocker blocker(m_scrollBar);
    m_scrollBar->setRange(0, range);
    m_scrollBar->setPageStep(qMax(1, int(width() * shrink)));
    m_scrollBar->setSingleStep(qMax(1, int(width() * shrink / 20)));
    m_scrollBar->setValue(m_follow ? range : int(m_time.first() * m_time.pxPerClock() * shrink));
}

void ProcSimWavesWidget::scrolled(int value)
{
    const int range = m_scrollBar->maximum();
    m_fit = false;
    setFirst(value >= range ? maxFirst() : maxFirst() * value / range);
}

void ProcSimWavesWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    refresh();
}

void ProcSimWavesWidget::wheelEvent(QWheelEvent* event)
{
    const QPoint angle = event->angleDelta();
    event->accept();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        zoom(std::pow(2.0, angle.y() / 240.0), event->position().x());
    } else if (event->modifiers().testFlag(Qt::ShiftModifier) || angle.x() != 0) {
        m_fit = false;
        const int turned = angle.x() != 0 ? angle.x() : angle.y();
        setFirst(m_time.first() - turned / 120.0 * width() / 10 / m_time.pxPerClock());
    } else {
        emit rowsWheeled(event);
    }
    setPointer(int(event->position().x()));
}

void ProcSimWavesWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = event->pos();
    m_pressedFirst = m_time.first();
    m_dragging = false;
}

void ProcSimWavesWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton)) {
        const int way = event->pos().x() - m_pressed.x();
        if (!m_dragging && qAbs(way) > 4) {
            m_dragging = true;
            setCursor(Qt::ClosedHandCursor);
        }
        if (m_dragging) {
            m_fit = false;
            setFirst(m_pressedFirst - way / m_time.pxPerClock());
        }
    }
    setPointer(event->pos().x());
}

void ProcSimWavesWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    unsetCursor();
    if (m_dragging) {
        m_dragging = false;
        return;
    }
    if (sWave_t* wave = waveAt(event->pos().y()))
        emit waveClicked(wave);
    const int x = event->pos().x();
    const qint64 clock = qint64(std::floor(m_time.clockAt(x + 0.5)));
    const bool onMarker = m_marker >= 0 && qAbs(m_time.xAt(double(m_marker)) - x) <= 3;
    if (onMarker)
        setMarker(-1);
    else if (clock >= 0 && clock <= m_data->clock() && !m_waves.isEmpty())
        setMarker(clock);
}

void ProcSimWavesWidget::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    setPointer(-1);
}

void ProcSimWavesWidget::setPointer(int x)
{
    m_pointer = x;
    const double clock = x < 0 ? -1 : std::floor(m_time.clockAt(x + 0.5));
    emit pointed(clock < end() ? qint64(clock) : -1);
    update();
}

void ProcSimWavesWidget::keyPressEvent(QKeyEvent* event)
{
    const double page = width() / m_time.pxPerClock();
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        m_fit = false;
        setFirst(m_time.first() + (event->key() == Qt::Key_Left ? -page : page) / 10);
        break;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        m_fit = false;
        setFirst(m_time.first() + (event->key() == Qt::Key_PageUp ? -page : page));
        break;
    case Qt::Key_Home:
        m_fit = false;
        setFirst(0);
        break;
    case Qt::Key_End:
        showEnd();
        break;
    case Qt::Key_Plus:
        zoomIn();
        break;
    case Qt::Key_Minus:
        zoomOut();
        break;
    case Qt::Key_Escape:
        setMarker(-1);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

sWave_t* ProcSimWavesWidget::waveAt(int y) const
{
    if (y < m_axisHeight)
        return nullptr;
    for (sWave_t* wave : m_waves) {
        if (y >= wave->top && y < wave->top + wave->height)
            return wave;
    }
    return nullptr;
}

bool ProcSimWavesWidget::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QString text = toolTipAt(help->pos());
    // If there is no value, the widget's own tool tip with the usage is shown.
    if (text.isEmpty())
        return QWidget::event(event);
    QToolTip::showText(help->globalPos(), text, this);
    return true;
}

/// The value under the pointer, and the time since which the port has it.
QString ProcSimWavesWidget::toolTipAt(const QPoint& pos) const
{
    const sWave_t* wave = waveAt(pos.y());
    // If a column of pixels has several values, the last one is used.
    const qint64 clock = m_time.boundary(pos.x() + 1) - 1;
    if (wave == nullptr || clock < 0 || double(clock) >= end())
        return {};
    const auto& values = wave->channel->values;
    const size_t next = ProcSimWaveData::indexAt(*wave->channel, clock + 1);
    if (next == 0)
        return tr("%1: no value yet").arg(wave->name);
    const int value = valueAt(wave, clock);
    const QString text = wave->kind == eWaveBit ? QString::number(value) : valueText(value);
    QString result = tr("%1: %2\nSince %3").arg(wave->name, text, m_time.longText(values[next - 1].clock));
    if (next < values.size())
        result += tr("\nUntil %1").arg(m_time.longText(values[next].clock));
    return result;
}

} // namespace nsProc
