#include "IODevViewerItem.h"

#include "Colors.h"
#include "IODev.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>

namespace nsModAsmFe {

namespace {

const int groupSize = 8; // cells without a wider gap between them
const int maxColumns = 256;

} // namespace

IODevViewerItem::IODevViewerItem(IODev* dev, QWidget* parent)
    : QWidget(parent)
    , m_dev(dev)
{
    setObjectName("ioDevViewerItem");
    setMouseTracking(true);
    measure();
}

void IODevViewerItem::setConfig(const sConfig_t& config)
{
    m_config = config;
    update();
}

void IODevViewerItem::setColumns(int columns)
{
    m_columns = qMax(groupSize, columns);
    m_hovered = -1;
    resize(sizeHint());
    updateGeometry();
    update();
}

/// Takes all measures from the font, so that the map grows with the rest of the window.
void IODevViewerItem::measure()
{
    m_addrFont = QFont("DejaVu Sans Mono");
    m_addrFont.setStyleHint(QFont::Monospace);
    m_addrFont.setPointSizeF(qMax(6.0, font().pointSizeF() * 0.85));
    const QFontMetrics metrics(m_addrFont);
    m_addrDigits = qMax(2, int(QString::number(qMax(0, m_dev->memSize - 1), 16).size()));
    m_gutter = metrics.horizontalAdvance('0') * (m_addrDigits + 1);
    m_cell = qMax(9, metrics.height() * 3 / 4);
    m_pitch = m_cell + qMax(1, m_cell / 8);
    m_group = m_cell / 3;
}

qint64 IODevViewerItem::rowCount(int columns) const
{
    return (qint64(m_dev->memSize) + columns - 1) / columns;
}

int IODevViewerItem::columnLeft(int column) const
{
    return m_gutter + column * m_pitch + column / groupSize * m_group;
}

int IODevViewerItem::columnsForWidth(int width) const
{
    int columns = groupSize;
    while (columns * 2 <= maxColumns && columnLeft(columns * 2 - 1) + m_cell <= width)
        columns *= 2;
    return columns;
}

QRect IODevViewerItem::cellRect(int addr) const
{
    return QRect(columnLeft(addr % m_columns), addr / m_columns * m_pitch, m_cell, m_cell);
}

int IODevViewerItem::cellAt(const QPoint& pos) const
{
    if (pos.x() < m_gutter || pos.y() < 0)
        return -1;
    const int groupWidth = groupSize * m_pitch + m_group;
    const int group = (pos.x() - m_gutter) / groupWidth;
    const int inGroup = (pos.x() - m_gutter) % groupWidth / m_pitch;
    const int column = group * groupSize + inGroup;
    if (inGroup >= groupSize || column >= m_columns)
        return -1;
    const qint64 addr = qint64(pos.y() / m_pitch) * m_columns + column;
    return addr < m_dev->memSize ? int(addr) : -1;
}

IODevViewerItem::eCellKind_t IODevViewerItem::kindOf(int addr) const
{
    const IODev::sMetaInfo_t* info = m_dev->metaInfo(addr);
    if (info == nullptr || info->isInitValue)
        return eInitValue;
    return info->mirrored ? eSharedValue : ePageValue;
}

QSize IODevViewerItem::sizeHint() const
{
    return QSize(columnLeft(m_columns - 1) + m_cell + 1, int(rowCount(m_columns)) * m_pitch);
}

void IODevViewerItem::showTip(QPoint pos, QPoint globalPos)
{
    const int addr = cellAt(pos);
    unsigned int value = 0;
    bool isInitValue = true;
    if (addr < 0 || !m_dev->value(addr, &value, &isInitValue)) {
        QToolTip::hideText();
        return;
    }
    const QString text = isInitValue ? tr("Address: 0x%1, Init value: 0x%2") : tr("Address: 0x%1, Value 0x%2");
    QToolTip::showText(globalPos, text.arg(addr, 0, 16).arg(value, 0, 16), this, cellRect(addr));
}

void IODevViewerItem::emitSrcRefRequest(QPoint pos)
{
    const int addr = cellAt(pos);
    SrcReference* srcRef = nullptr;
    if (addr < 0 || m_dev->isInitValue(addr) || !m_dev->srcRef(addr, &srcRef) || srcRef == nullptr)
        return;
    emit srcRefRequest(srcRef);
}

void IODevViewerItem::paintRow(QPainter* painter, int row) const
{
    const int first = row * m_columns;
    const int end = int(qMin(qint64(first) + m_columns, qint64(m_dev->memSize)));
    const QString address = QStringLiteral("%1").arg(first, m_addrDigits, 16, QLatin1Char('0'));
    painter->setPen(Colors::of(Colors::eTextSecond));
    painter->drawText(QRect(0, row * m_pitch, m_gutter, m_cell), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip,
                      address);
    for (int addr = first; addr < end; ++addr)
        painter->fillRect(cellRect(addr), m_config.color(kindOf(addr)));
}

void IODevViewerItem::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setFont(m_addrFont);
    const QRect area = event->rect();
    const int lastRow = int(qMin(rowCount(m_columns) - 1, qint64(area.bottom() / m_pitch)));
    for (int row = qMax(0, area.top() / m_pitch); row <= lastRow; ++row)
        paintRow(&painter, row);
    if (m_hovered >= 0) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(cellRect(m_hovered).adjusted(0, 0, -1, -1));
    }
}

void IODevViewerItem::setHovered(int addr)
{
    if (addr == m_hovered)
        return;
    const int before = m_hovered;
    m_hovered = addr;
    if (before >= 0)
        update(cellRect(before));
    if (addr >= 0)
        update(cellRect(addr));
    // A hand cursor over cells whose source a double click opens.
    SrcReference* srcRef = nullptr;
    if (addr >= 0 && !m_dev->isInitValue(addr) && m_dev->srcRef(addr, &srcRef) && srcRef != nullptr)
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
}

void IODevViewerItem::mouseMoveEvent(QMouseEvent* event)
{
    setHovered(cellAt(event->pos()));
    showTip(event->pos(), event->globalPos());
}

void IODevViewerItem::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    // Opening the line may show a question and start a run, which deletes this widget: so it is done after this mouse
    // event has been handled.
    const QPoint pos = event->pos();
    QTimer::singleShot(0, this, [this, pos] { emitSrcRefRequest(pos); });
}

void IODevViewerItem::leaveEvent(QEvent*)
{
    setHovered(-1);
}

void IODevViewerItem::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        measure();
        setColumns(m_columns);
    }
}

} // namespace nsModAsmFe
