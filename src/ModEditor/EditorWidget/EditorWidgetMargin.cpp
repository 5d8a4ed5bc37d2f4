// The margin: its columns, what is painted in them, its tool tips and its menu.

#include "EditorWidget.h"

#include "EditorWidgetLeftMargin.h"

#include <QAction>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QTextBlock>
#include <QToolTip>

namespace nsModEditor {

namespace {

const int symbolSpace = 15; ///< three symbols side by side, in pixels
const int symbolWidth = 5;
const int startPointerX = 2;
const int breakpointX = 7;
const int bookmarkX = 12;
const int menuIconSize = 10;
const int minAddrDigits = 3;

int digits(int value, int base)
{
    int count = 1;
    for (; value >= base; value /= base)
        ++count;
    return count;
}

} // namespace

void EditorWidget::initLeftMargin()
{
    m_leftMargin = new EditorWidgetLeftMargin(this);
    m_leftMargin->setAccessibleName(tr("Marks, addresses and line numbers"));
    connect(m_leftMargin, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(showLeftMarginContextMenu(QPoint)));
    connect(this, SIGNAL(blockCountChanged(int)), this, SLOT(updateLeftMarginWidth()));
    connect(this, SIGNAL(updateRequest(QRect, int)), this, SLOT(updateLeftMargin(QRect, int)));

    auto* menuAction = new QAction(tr("Marks of the line"), this);
    menuAction->setShortcut(QKeySequence("Ctrl+F10"));
    menuAction->setShortcutContext(Qt::WidgetShortcut);
    connect(menuAction, SIGNAL(triggered()), this, SLOT(showLeftMarginContextMenuAtCursor()));
    addAction(menuAction);
    updateLeftMarginWidth();
}

int EditorWidget::symbolMarginWidth() const
{
    return 2 * m_marginSpace + symbolSpace;
}

int EditorWidget::memPageAddrMarginWidth() const
{
    if (!m_memPageAddrEn)
        return 0;
    const int count = digits(m_memPageAddrMaxAddr, m_memPageAddrBase) + 2; // with the "0x"
    return count * fontMetrics().horizontalAdvance('9') + 2 + 2 * m_marginSpace;
}

int EditorWidget::lineNumberMarginWidth() const
{
    if (!m_lineNumberEn)
        return 0;
    return digits(blockCount(), 10) * fontMetrics().horizontalAdvance('9') + 2 + 2 * m_marginSpace;
}

int EditorWidget::leftMarginWidth() const
{
    return symbolMarginWidth() + memPageAddrMarginWidth() + lineNumberMarginWidth();
}

void EditorWidget::updateLeftMarginWidth()
{
    const int width = leftMarginWidth();
    if (viewportMargins().left() != width || viewportMargins().top() != m_noticeHeight)
        setViewportMargins(width, m_noticeHeight, 0, 0);
    const QRect rect = contentsRect();
    m_leftMargin->setGeometry(rect.left(), rect.top() + m_noticeHeight, width, rect.height() - m_noticeHeight);
    m_leftMargin->update();
}

void EditorWidget::updateLeftMargin(const QRect& rect, int)
{
    // After a scroll, the whole margin is painted: moving its pixels would blur them at a fractional scale of the
    // screen.
    m_leftMargin->update(0, rect.y(), m_leftMargin->width(), rect.height());
    if (rect.contains(viewport()->rect()))
        updateLeftMarginWidth();
}

void EditorWidget::setLineNumberEn(bool enabled)
{
    m_lineNumberEn = enabled;
    updateLeftMarginWidth();
}

void EditorWidget::setMemPageAddrEn(bool enabled)
{
    m_memPageAddrEn = enabled;
    updateLeftMarginWidth();
}

void EditorWidget::setMemPageAddrBase(int base)
{
    if (base < 2 || base > 36)
        return;
    m_memPageAddrBase = base;
    updateLeftMarginWidth();
}

void EditorWidget::setMemPageMaxAddr(int addr)
{
    m_memPageAddrMaxAddr = addr;
    updateLeftMarginWidth();
}

void EditorWidget::setMemPageAddrMap(EditorMemPageAddrMap* map)
{
    m_memPageAddrList = map != nullptr ? map->map(m_filePath) : nullptr;
    m_memPageAddrMap = m_memPageAddrList != nullptr ? map : nullptr;
    updateLeftMarginWidth();
}

void EditorWidget::setMemPageAddrInvalid(int)
{
    if (m_memPageAddrMap == nullptr)
        return;
    m_memPageAddrMap->valid = false;
    m_leftMargin->update();
}

void EditorWidget::setLeftMarginBgColor(const QColor& color)
{
    m_leftMarginBgColor = color;
    m_leftMargin->update();
}

void EditorWidget::setLeftMarginFgColor(const QColor& color)
{
    m_leftMarginFgColor = color;
    m_leftMargin->update();
}

void EditorWidget::setSimBreakpointSymbolColor(const QColor& color)
{
    m_simBreakpointSymbolColor = color;
    m_leftMargin->update();
}

void EditorWidget::setSimStartPointerSymbolColor(const QColor& color)
{
    m_simStartPointerSymbolColor = color;
    m_leftMargin->update();
}

void EditorWidget::setBookmarkSymbolColor(const QColor& color)
{
    m_bookmarkSymbolColor = color;
    m_leftMargin->update();
}

int EditorWidget::blockNumberFromPos(int y) const
{
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    for (; block.isValid() && top <= y; block = block.next()) {
        const qreal bottom = top + blockBoundingRect(block).height();
        if (block.isVisible() && y < bottom)
            return block.blockNumber();
        top = bottom;
    }
    return 0;
}

void EditorWidget::leftMarginPaintEvent(QPaintEvent* event)
{
    QPainter painter(m_leftMargin);
    const QRect area = event->rect();
    painter.fillRect(area, m_leftMarginBgColor);
    // Filled rectangles instead of lines, which stay sharp at any scale of the screen.
    if (m_memPageAddrEn)
        painter.fillRect(QRect(symbolMarginWidth(), area.top(), 1, area.height()), m_leftMarginFgColor);
    if (m_lineNumberEn)
        painter.fillRect(QRect(symbolMarginWidth() + memPageAddrMarginWidth(), area.top(), 1, area.height()),
                         m_leftMarginFgColor);

    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    const int symbolHeight = qRound(blockBoundingRect(block).height());
    // List and lines are read in parallel. An entry that is out of order hides the entries after it.
    const EditorMemPageAddrMap::sItem_t* entry = m_memPageAddrEn ? m_memPageAddrList : nullptr;
    for (; block.isValid() && top <= area.bottom(); block = block.next()) {
        const qreal bottom = top + blockBoundingRect(block).height();
        if (block.isVisible() && bottom >= area.top()) {
            const int line = block.blockNumber();
            while (entry != nullptr && entry->lineNo < line)
                entry = entry->next;
            paintBlock(&painter, block, qRound(top), symbolHeight);
            if (entry != nullptr && entry->lineNo == line)
                paintMemPageAddr(&painter, qRound(top), entry->memPageAddr);
        }
        top = bottom;
    }
}

/// Symbols and number of a line.
void EditorWidget::paintBlock(QPainter* painter, const QTextBlock& block, int top, int symbolHeight)
{
    QFont blockFont = font();
    blockFont.setPointSize(qMax(m_fontSize, 1));
    painter->setFont(blockFont);
    painter->setPen(m_leftMarginFgColor);
    const int line = block.blockNumber();
    if (line == m_simStartPointer)
        painter->fillRect(QRect(startPointerX, top, symbolWidth, symbolHeight), m_simStartPointerSymbolColor);
    if (m_simBreakpoints.contains(line))
        painter->fillRect(QRect(breakpointX, top, symbolWidth, symbolHeight), m_simBreakpointSymbolColor);
    if (m_bookmarks.contains(line))
        painter->fillRect(QRect(bookmarkX, top, symbolWidth, symbolHeight), m_bookmarkSymbolColor);
    if (!m_lineNumberEn)
        return;
    const QRect cell(symbolMarginWidth() + memPageAddrMarginWidth(), top, lineNumberMarginWidth() - m_marginSpace,
                     painter->fontMetrics().height());
    painter->drawText(cell, Qt::AlignRight, QString::number(line + 1));
}

void EditorWidget::paintMemPageAddr(QPainter* painter, int top, int addr)
{
    painter->setPen(m_memPageAddrMap->valid ? m_leftMarginFgColor : QColor(Qt::darkGray));
    const QRect cell(symbolMarginWidth(), top, memPageAddrMarginWidth() - m_marginSpace,
                     painter->fontMetrics().height());
    painter->drawText(cell, Qt::AlignRight, QString("0x%1").arg(addr, minAddrDigits, m_memPageAddrBase, QChar('0')));
}

void EditorWidget::showLeftMarginToolTip(const QPoint& pos)
{
    const int line = blockNumberFromPos(pos.y());
    QString text;
    if (pos.x() < 6 && line == m_simStartPointer)
        text = tr("Simulator start address");
    else if (pos.x() < 11 && m_simBreakpoints.contains(line))
        text = tr("Simulator breakpoint");
    else if (pos.x() <= 15 && m_bookmarks.contains(line))
        text = tr("Bookmark");
    QToolTip::showText(m_leftMargin->mapToGlobal(pos), text, m_leftMargin);
}

QIcon EditorWidget::leftMarginContextMenuIconFromColor(const QColor& color) const
{
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap(QSize(menuIconSize, menuIconSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(color);
    return QIcon(pixmap);
}

void EditorWidget::addMarginMenuEntries(QMenu* menu, int line)
{
    const auto add = [menu, this](const QString& text, const std::function<void()>& command) {
        QAction* entry = menu->addAction(text);
        connect(entry, &QAction::triggered, this, command);
        return entry;
    };
    add(m_simBreakpoints.contains(line) ? tr("Clear simulator breakpoint") : tr("Set simulator breakpoint"), [this,
                                                                                                              line] {
        setSimBreakpoint(line);
    })->setIcon(leftMarginContextMenuIconFromColor(m_simBreakpointSymbolColor));
    add(tr("Clear all simulator breakpoints of the current file"), [this] { clearSimBreakpoints(); });
    add(tr("Clear all simulator breakpoints"), [this] { emit clearAllBreakpoints(); });
    menu->addSeparator();
    add(tr("Set simulator start address to this line"), [this, line] {
        setSimStartPointer(line);
    })->setIcon(leftMarginContextMenuIconFromColor(m_simStartPointerSymbolColor));
    add(tr("Set simulator start address to processor default"), [this] { emit clearAllSimStartPointer(); });
    menu->addSeparator();
    add(m_bookmarks.contains(line) ? tr("Clear bookmark") : tr("Set bookmark"), [this, line] {
        setBookmark(line);
    })->setIcon(leftMarginContextMenuIconFromColor(m_bookmarkSymbolColor));
    add(tr("Clar all bookmarks of the current file"), [this] { clearBookmarks(); });
    add(tr("Clar all bookmarks"), [this] { emit clearAllBookmarks(); });
}

void EditorWidget::runLeftMarginContextMenu(int line, const QPoint& globalPos)
{
    const QPointer<QMenu> menu(new QMenu(m_leftMargin));
    addMarginMenuEntries(menu, line);
    menu->exec(globalPos);
    // The document may have been closed meanwhile, and the menu with it.
    delete menu;
}

void EditorWidget::showLeftMarginContextMenu(const QPoint& pos)
{
    runLeftMarginContextMenu(blockNumberFromPos(pos.y()), m_leftMargin->mapToGlobal(pos));
}

void EditorWidget::showLeftMarginContextMenuAtCursor()
{
    ensureCursorVisible();
    runLeftMarginContextMenu(cursorLine(),
                             m_leftMargin->mapToGlobal(QPoint(symbolMarginWidth(), cursorRect().bottom())));
}

} // namespace nsModEditor
