// How the waves are drawn.

#include "Colors.h"
#include "ProcSimWaveColumns.h"
#include "ProcSimWavesWidget.h"

#include <QPainter>

namespace nsProc {

namespace {

constexpr int valueUnknown = -1;
constexpr int valueDense = -2;
/// Values that are shorter than this many pixels are drawn together as a block.
constexpr int segmentMin = 4;
constexpr int textDistance = 5;

int topOf(const sWave_t* wave)
{
    return wave->top + 4;
}

int bottomOf(const sWave_t* wave)
{
    return wave->top + wave->height - 5;
}

} // namespace

void ProcSimWavesWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setFont(m_font);
    m_columns.clear();
    paintGround(&painter);
    const int tickDistance = 24 + painter.fontMetrics().horizontalAdvance(QStringLiteral("000.000 us"));
    const QVector<ProcSimWaveTime::sTick_t> ticks = m_time.ticks(width(), tickDistance);
    if (!m_waves.isEmpty()) {
        painter.setPen(Colors::of(Colors::eWaveLine));
        for (const ProcSimWaveTime::sTick_t& tick : ticks)
            painter.drawLine(tick.x, m_axisHeight, tick.x, height());
    }
    painter.setClipRect(0, m_axisHeight, width(), height() - m_axisHeight);
    for (sWave_t* wave : m_waves) {
        if (wave->kind == eWaveBit)
            paintWaveBit(&painter, wave);
        else
            paintWaveNumeric(&painter, wave);
    }
    painter.setClipping(false);
    paintAxis(&painter, ticks);
    if (!m_waves.isEmpty())
        paintMarks(&painter);
    if (hasFocus()) {
        painter.setPen(Colors::of(Colors::eWaveFocus));
        painter.drawRect(0, 0, width() - 1, height() - 1);
    }
}

void ProcSimWavesWidget::paintGround(QPainter* painter)
{
    painter->fillRect(rect(), Colors::of(Colors::eWaveGround));
    if (m_data->isEmpty()) {
        painter->setPen(Colors::of(Colors::eWaveAxisText));
        painter->setFont(font());
        painter->drawText(rect().adjusted(8, m_axisHeight, -8, 0), Qt::AlignCenter | Qt::TextWordWrap,
                          tr("Enter the address of a port and press \"Add\" to see its values against time."));
        painter->setFont(m_font);
        return;
    }
    for (const sWave_t* wave : m_waves) {
        if (wave == m_current)
            painter->fillRect(0, wave->top, width(), wave->height, Colors::of(Colors::eWaveCurrent));
    }
    const int last = endColumn();
    if (last < width())
        painter->fillRect(last, m_axisHeight, width() - last, height(), Colors::of(Colors::eWaveAfterEnd));
    painter->setPen(Colors::of(Colors::eWaveLine));
    for (const sWave_t* wave : m_waves)
        painter->drawLine(0, wave->top + wave->height - 1, width(), wave->top + wave->height - 1);
}

void ProcSimWavesWidget::paintAxis(QPainter* painter, const QVector<ProcSimWaveTime::sTick_t>& ticks)
{
    painter->fillRect(0, 0, width(), m_axisHeight, Colors::of(Colors::eWaveAxis));
    if (m_data->isEmpty())
        return;
    const int baseLine = (m_axisHeight + painter->fontMetrics().ascent() - painter->fontMetrics().descent()) / 2;
    for (const ProcSimWaveTime::sTick_t& tick : ticks) {
        painter->setPen(Colors::of(Colors::eWavePointer));
        painter->drawLine(tick.x, m_axisHeight - 5, tick.x, m_axisHeight - 1);
        painter->setPen(Colors::of(Colors::eWaveAxisText));
        painter->drawText(tick.x + 4, baseLine, tick.text);
    }
}

/// The pointer's and the marker's lines.
void ProcSimWavesWidget::paintMarks(QPainter* painter)
{
    if (m_pointer >= 0 && !m_dragging) {
        painter->setPen(QPen(Colors::of(Colors::eWavePointer), 1, Qt::DotLine));
        painter->drawLine(m_pointer, m_axisHeight, m_pointer, height());
    }
    if (m_marker < 0)
        return;
    const double x = m_time.xAt(double(m_marker));
    if (x < 0 || x >= width())
        return;
    const int column = qRound(x);
    painter->setPen(Colors::of(Colors::eWaveMarker));
    painter->drawLine(column, m_axisHeight - 6, column, height());
    painter->setBrush(Colors::of(Colors::eWaveMarker));
    const QPoint flag[] = {{column - 4, m_axisHeight - 8}, {column + 4, m_axisHeight - 8}, {column, m_axisHeight - 3}};
    painter->drawPolygon(flag, 3);
    painter->setBrush(Qt::NoBrush);
}

/// The columns are shared by the rows of a channel and of its bits.
const ProcSimWaveColumns& ProcSimWavesWidget::columns(const sAddrChannel_t* channel)
{
    for (const auto& known : m_columns) {
        if (known.first == channel)
            return known.second;
    }
    m_columns.emplace_back(channel, ProcSimWaveColumns(*channel, m_time, width()));
    return m_columns.back().second;
}

/// What a numeric wave shows from left to right: values, blocks of values that are too dense, and at first perhaps
/// nothing.
QVector<ProcSimWavesWidget::sSegment_t> ProcSimWavesWidget::segments(const ProcSimWaveColumns& columns) const
{
    QVector<sSegment_t> result;
    const auto append = [&result](int x0, int x1, int value) {
        if (x1 <= x0)
            return;
        // A value that starts before the left edge may be longer than its visible part.
        if (x0 >= 0 && x1 - x0 < segmentMin && value != valueUnknown)
            value = valueDense;
        if (value == valueDense && !result.isEmpty() && result.last().value == valueDense)
            result.last().x1 = x1;
        else
            result.append({x0, x1, value});
    };
    const int textWidth = m_textWidth + 2 * textDistance;
    int start = -segmentMin;
    int value = columns.before;
    int lastX = start - textWidth;
    for (const ProcSimWaveColumns::sColumn_t& column : columns.columns) {
        const bool repeats = column.bits.isUniform() && column.bits.any == value;
        // Repeated equal values, such as those of a port that is polled, are drawn as one value if there is no room for
        // the text of each.
        const bool joins = repeats && (column.x - lastX < textWidth || column.end - column.first > 1);
        lastX = column.x;
        if (joins)
            continue;
        append(start, column.x, value);
        start = column.x;
        if (!column.bits.isUniform()) {
            append(column.x, column.x + 1, valueDense);
            start = column.x + 1;
        }
        value = column.value;
    }
    append(start, endColumn(), value);
    return result;
}

void ProcSimWavesWidget::paintWaveNumeric(QPainter* painter, sWave_t* wave)
{
    paintSegments(painter, wave, segments(columns(wave->channel)));
}

void ProcSimWavesWidget::paintSegments(QPainter* painter, const sWave_t* wave, const QVector<sSegment_t>& segments)
{
    const int top = topOf(wave);
    const int bottom = bottomOf(wave);
    const int middle = (top + bottom) / 2;
    const int baseLine =
        top + (bottom - top + 1 + painter->fontMetrics().ascent() - painter->fontMetrics().descent() + 1) / 2;
    QVector<QLine> lines;
    lines.reserve(segments.size() * 6);
    painter->setPen(Colors::of(Colors::eWaveUnknown));
    for (const sSegment_t& segment : segments) {
        if (segment.value == valueUnknown) {
            painter->drawLine(segment.x0, middle, segment.x1, middle);
        } else if (segment.value == valueDense) {
            painter->fillRect(segment.x0, top, segment.x1 - segment.x0, bottom - top + 1,
                              Colors::of(Colors::eWaveDense));
            lines << QLine(segment.x0, top, segment.x1 - 1, top) << QLine(segment.x0, bottom, segment.x1 - 1, bottom);
        } else {
            // A value is drawn as a band with pointed ends.
            const int x0 = segment.x0;
            const int x1 = segment.x1;
            lines << QLine(x0 + 2, top, x1 - 2, top) << QLine(x0 + 2, bottom, x1 - 2, bottom);
            lines << QLine(x0, middle, x0 + 2, top) << QLine(x0, middle, x0 + 2, bottom);
            lines << QLine(x1 - 2, top, x1, middle) << QLine(x1 - 2, bottom, x1, middle);
        }
    }
    painter->setPen(Colors::of(Colors::eWave));
    painter->drawLines(lines);
    painter->setPen(Colors::of(Colors::eWaveText));
    for (const sSegment_t& segment : segments) {
        if (segment.value < 0)
            continue;
        const int x = qMax(segment.x0, 0) + textDistance;
        // Nothing follows the last value: its text may extend beyond the present time.
        const bool isLast = &segment == &segments.last();
        if (x + m_textWidth + textDistance - 1 <= segment.x1 || (isLast && x + m_textWidth < width()))
            painter->drawText(x, baseLine, m_valueTexts.at(segment.value));
    }
}

void ProcSimWavesWidget::paintWaveBit(QPainter* painter, sWave_t* wave)
{
    const ProcSimWaveColumns& shown = columns(wave->channel);
    const int top = topOf(wave);
    const int bottom = bottomOf(wave);
    const auto bitOf = [wave](int value) { return (value >> wave->bit) & 1; };
    QVector<QLine> lines;
    int start = 0;
    int edges = 0; // columns before `start` in which the bit changes, side by side
    int level = shown.before < 0 ? valueUnknown : bitOf(shown.before);
    const auto appendEdges = [&] {
        if (edges == 1) {
            lines << QLine(start, top, start, bottom);
        } else if (edges > 1) {
            const int first = start - edges + 1;
            painter->fillRect(first, top, edges, bottom - top, Colors::of(Colors::eWaveDense));
            lines << QLine(first, top, start, top) << QLine(first, bottom, start, bottom);
        }
        edges = 0;
    };
    const auto append = [&](int x) {
        appendEdges();
        if (level == valueUnknown) {
            painter->setPen(Colors::of(Colors::eWaveUnknown));
            painter->drawLine(start, (top + bottom) / 2, x, (top + bottom) / 2);
        } else {
            const int y = level == 1 ? top : bottom;
            if (level == 1 && x > start)
                painter->fillRect(start, top, x - start, bottom - top, Colors::of(Colors::eWaveHigh));
            lines << QLine(start, y, x, y);
        }
    };
    for (const ProcSimWaveColumns::sColumn_t& column : shown.columns) {
        const int next = bitOf(column.value);
        if (bitOf(column.bits.any) == bitOf(column.bits.all) && next == level)
            continue;
        if (edges == 0 || column.x != start + 1)
            append(column.x);
        ++edges;
        start = column.x;
        level = next;
    }
    append(endColumn());
    painter->setPen(Colors::of(Colors::eWave));
    painter->drawLines(lines);
}

} // namespace nsProc
