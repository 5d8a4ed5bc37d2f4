#include "EditorWidgetLeftMargin.h"

#include "EditorWidget.h"

#include <QAction>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTextBlock>
#include <QToolTip>
#include <QWheelEvent>

#include <functional>

namespace nsModEditor {

namespace {

const int symbolSpace = 15; ///< three symbols side by side, in pixels
const int symbolWidth = 5;
const int startPointerX = 2;
const int breakpointX = 7;
const int bookmarkX = 12;
const int menuIconSize = 10;
const int minAddrDigits = 3;
const int columnSpace = 2;  ///< between the columns, in pixels
const int messageTint = 48; ///< of 255, behind the number of a line with a message

int digits(int value, int base)
{
    int count = 1;
    for (; value >= base; value /= base)
        ++count;
    return count;
}

} // namespace

EditorWidgetLeftMargin::EditorWidgetLeftMargin(EditorWidget* editor)
    : EditorWidgetLeftMargin(editor, editor)
{
}

EditorWidgetLeftMargin::EditorWidgetLeftMargin(EditorWidget* editor, SourceEdit* view)
    : QWidget(view)
    , m_editor(editor)
    , m_view(view)
    , m_look(view == editor ? std::make_shared<sLook_t>() : editor->leftMargin()->m_look)
{
    setAttribute(Qt::WA_Hover);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setCursor(Qt::ArrowCursor);
    setAccessibleName(tr("Marks, addresses and line numbers"));
    connect(this, &QWidget::customContextMenuRequested, this, &EditorWidgetLeftMargin::showMenu);
}

void EditorWidgetLeftMargin::setBgColor(const QColor& color)
{
    m_look->bgColor = color;
    update();
}

void EditorWidgetLeftMargin::setFgColor(const QColor& color)
{
    m_look->fgColor = color;
    update();
}

void EditorWidgetLeftMargin::setBreakpointColor(const QColor& color)
{
    m_look->breakpointColor = color;
    update();
}

void EditorWidgetLeftMargin::setStartPointerColor(const QColor& color)
{
    m_look->startPointerColor = color;
    update();
}

void EditorWidgetLeftMargin::setBookmarkColor(const QColor& color)
{
    m_look->bookmarkColor = color;
    update();
}

bool EditorWidgetLeftMargin::setAddrBase(int base)
{
    if (base < 2 || base > 36)
        return false;
    m_look->addrBase = base;
    return true;
}

void EditorWidgetLeftMargin::setAddrMap(EditorMemPageAddrMap* map, const QString& path)
{
    m_look->addrList = map != nullptr ? map->map(path) : nullptr;
    m_look->addrMap = m_look->addrList != nullptr ? map : nullptr;
}

void EditorWidgetLeftMargin::setAddrInvalid()
{
    if (m_look->addrMap == nullptr)
        return;
    m_look->addrMap->valid = false;
    update();
}

QSize EditorWidgetLeftMargin::sizeHint() const
{
    return QSize(m_editor->leftMarginWidth(), 0);
}

bool EditorWidgetLeftMargin::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QString tip;
    for (const QString& message : m_editor->messagesAt(m_view->lineAt(help->pos().y())))
        tip += QStringLiteral("<div>%1</div>").arg(message.toHtmlEscaped());
    QToolTip::showText(help->globalPos(), tip, this);
    return true;
}

void EditorWidgetLeftMargin::paintEvent(QPaintEvent* event)
{
    if (m_view == m_editor)
        m_editor->leftMarginPaintEvent(event);
    else
        paint(event);
}

void EditorWidgetLeftMargin::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    if (event->x() > maxMarkX) {
        event->ignore();
        return;
    }
    const int line = m_view->lineAt(event->y());
    if (event->modifiers() == Qt::ControlModifier)
        m_editor->setSimStartPointer(line);
    else if (event->modifiers() == Qt::ShiftModifier)
        m_editor->setBookmark(line);
    else
        m_editor->setSimBreakpoint(line);
    event->accept();
    update();
}

void EditorWidgetLeftMargin::wheelEvent(QWheelEvent* event)
{
    // A scroll area takes the wheel from its viewport only.
    QCoreApplication::sendEvent(m_view->viewport(), event);
}

int EditorWidgetLeftMargin::symbolColumnWidth() const
{
    return 2 * columnSpace + symbolSpace;
}

int EditorWidgetLeftMargin::addrColumnWidth() const
{
    if (!m_look->addrEn)
        return 0;
    const int count = digits(m_look->maxAddr, m_look->addrBase) + 2; // with the "0x"
    return count * m_view->fontMetrics().horizontalAdvance('9') + 2 + 2 * columnSpace;
}

int EditorWidgetLeftMargin::lineNumberColumnWidth() const
{
    if (!m_look->lineNumberEn)
        return 0;
    return digits(m_view->blockCount(), 10) * m_view->fontMetrics().horizontalAdvance('9') + 2 + 2 * columnSpace;
}

void EditorWidgetLeftMargin::paint(QPaintEvent* event)
{
    QPainter painter(this);
    const QRect area = event->rect();
    painter.fillRect(area, m_look->bgColor);
    // Filled rectangles instead of lines, which stay sharp at any scale of the screen.
    if (m_look->addrEn)
        painter.fillRect(QRect(symbolColumnWidth(), area.top(), 1, area.height()), m_look->fgColor);
    if (m_look->lineNumberEn)
        painter.fillRect(QRect(symbolColumnWidth() + addrColumnWidth(), area.top(), 1, area.height()), m_look->fgColor);

    QTextBlock block = m_view->firstVisibleBlock();
    qreal top = m_view->blockBoundingGeometry(block).translated(m_view->contentOffset()).top();
    const int symbolHeight = qRound(m_view->blockBoundingRect(block).height());
    // List and lines are read in parallel. An entry that is out of order hides the entries after it.
    const EditorMemPageAddrMap::sItem_t* entry = m_look->addrEn ? m_look->addrList : nullptr;
    for (; block.isValid() && top <= area.bottom(); block = block.next()) {
        const qreal bottom = top + m_view->blockBoundingRect(block).height();
        if (block.isVisible() && bottom >= area.top()) {
            const int line = block.blockNumber();
            while (entry != nullptr && entry->lineNo < line)
                entry = entry->next;
            paintBlock(&painter, block, qRound(top), symbolHeight);
            if (entry != nullptr && entry->lineNo == line)
                paintAddr(&painter, qRound(top), entry->memPageAddr);
        }
        top = bottom;
    }
}

/// Symbols and number of a line.
void EditorWidgetLeftMargin::paintBlock(QPainter* painter, const QTextBlock& block, int top, int symbolHeight)
{
    QFont blockFont = m_view->font();
    blockFont.setPointSize(qMax(m_editor->fontSize(), 1));
    painter->setFont(blockFont);
    painter->setPen(m_look->fgColor);
    const int line = block.blockNumber();
    if (line == m_editor->marks().simStartPointer)
        painter->fillRect(QRect(startPointerX, top, symbolWidth, symbolHeight), m_look->startPointerColor);
    if (m_editor->marks().simBreakpoints.contains(line))
        painter->fillRect(QRect(breakpointX, top, symbolWidth, symbolHeight), m_look->breakpointColor);
    if (m_editor->marks().bookmarks.contains(line))
        painter->fillRect(QRect(bookmarkX, top, symbolWidth, symbolHeight), m_look->bookmarkColor);
    const int grade = m_look->messageMarks != nullptr ? m_look->messageMarks->gradeOf(block) : -1;
    if (grade >= 0) {
        const int left = symbolColumnWidth() + addrColumnWidth() + 1;
        const int rowHeight = qRound(m_view->blockBoundingRect(block).height());
        QColor tint = MessageMarks::colorOf(grade);
        painter->fillRect(QRect(width() - columnSpace, top, columnSpace, rowHeight), tint);
        tint.setAlpha(messageTint);
        painter->fillRect(QRect(left, top, width() - columnSpace - left, rowHeight), tint);
    }
    if (!m_look->lineNumberEn)
        return;
    const QRect cell(symbolColumnWidth() + addrColumnWidth(), top, lineNumberColumnWidth() - columnSpace,
                     painter->fontMetrics().height());
    painter->drawText(cell, Qt::AlignRight, QString::number(line + 1));
}

void EditorWidgetLeftMargin::paintAddr(QPainter* painter, int top, int addr)
{
    painter->setPen(m_look->addrMap->valid ? m_look->fgColor : Colors::of(Colors::eMarginOld));
    const QRect cell(symbolColumnWidth(), top, addrColumnWidth() - columnSpace, painter->fontMetrics().height());
    painter->drawText(cell, Qt::AlignRight, QString("0x%1").arg(addr, minAddrDigits, m_look->addrBase, QChar('0')));
}

void EditorWidgetLeftMargin::showToolTipAt(const QPoint& pos)
{
    const int line = m_view->lineAt(pos.y());
    QString text;
    if (pos.x() < 6 && line == m_editor->marks().simStartPointer)
        text = tr("Simulator start address");
    else if (pos.x() < 11 && m_editor->marks().simBreakpoints.contains(line))
        text = tr("Simulator breakpoint");
    else if (pos.x() <= 15 && m_editor->marks().bookmarks.contains(line))
        text = tr("Bookmark");
    QToolTip::showText(mapToGlobal(pos), text, this);
}

QIcon EditorWidgetLeftMargin::iconOf(const QColor& color) const
{
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap(QSize(menuIconSize, menuIconSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(color);
    return QIcon(pixmap);
}

void EditorWidgetLeftMargin::addMenuEntries(QMenu* menu, int line)
{
    const auto add = [menu, this](const QString& text, const std::function<void()>& command) {
        QAction* entry = menu->addAction(text);
        connect(entry, &QAction::triggered, m_editor, command);
        return entry;
    };
    add(m_editor->marks().simBreakpoints.contains(line) ? tr("Clear simulator breakpoint")
                                                        : tr("Set simulator breakpoint"),
        [this, line] { m_editor->setSimBreakpoint(line); })
        ->setIcon(iconOf(m_look->breakpointColor));
    add(tr("Clear all simulator breakpoints of the current file"), [this] { m_editor->clearSimBreakpoints(); });
    add(tr("Clear all simulator breakpoints"), [this] { emit m_editor->clearAllBreakpoints(); });
    menu->addSeparator();
    add(tr("Set simulator start address to this line"), [this, line] {
        m_editor->setSimStartPointer(line);
    })->setIcon(iconOf(m_look->startPointerColor));
    add(tr("Set simulator start address to processor default"), [this] { emit m_editor->clearAllSimStartPointer(); });
    menu->addSeparator();
    add(m_editor->marks().bookmarks.contains(line) ? tr("Clear bookmark") : tr("Set bookmark"), [this, line] {
        m_editor->setBookmark(line);
    })->setIcon(iconOf(m_look->bookmarkColor));
    add(tr("Clar all bookmarks of the current file"), [this] { m_editor->clearBookmarks(); });
    add(tr("Clar all bookmarks"), [this] { emit m_editor->clearAllBookmarks(); });
}

void EditorWidgetLeftMargin::runMenu(int line, const QPoint& globalPos)
{
    const QPointer<QMenu> menu(new QMenu(this));
    addMenuEntries(menu, line);
    menu->exec(globalPos);
    // The document may have been closed meanwhile, and the menu with it.
    delete menu;
}

void EditorWidgetLeftMargin::showMenu(const QPoint& pos)
{
    runMenu(m_view->lineAt(pos.y()), mapToGlobal(pos));
}

void EditorWidgetLeftMargin::showMenuAtCursor()
{
    m_editor->ensureCursorVisible();
    runMenu(m_editor->cursorLine(), mapToGlobal(QPoint(symbolColumnWidth(), m_editor->cursorRect().bottom())));
}

} // namespace nsModEditor
