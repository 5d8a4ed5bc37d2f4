// Marks of lines, and the room for the margin that shows them.

#include "EditorWidget.h"

#include "DocumentViews.h"
#include "EditorWidgetLeftMargin.h"
#include "SecondView.h"

#include <QPainter>
#include <QTextBlock>

namespace nsModEditor {

int EditorWidget::symbolMarginWidth() const
{
    return m_leftMargin->symbolColumnWidth();
}

int EditorWidget::memPageAddrMarginWidth() const
{
    return m_leftMargin->addrColumnWidth();
}

int EditorWidget::lineNumberMarginWidth() const
{
    return m_leftMargin->lineNumberColumnWidth();
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
    if (m_views->second() != nullptr)
        m_views->second()->updateLeftMarginWidth();
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
    m_leftMargin->setLineNumberEn(enabled);
    updateLeftMarginWidth();
}

void EditorWidget::setMemPageAddrEn(bool enabled)
{
    m_leftMargin->setAddrEn(enabled);
    updateLeftMarginWidth();
}

void EditorWidget::setMemPageAddrBase(int base)
{
    if (m_leftMargin->setAddrBase(base))
        updateLeftMarginWidth();
}

void EditorWidget::setMemPageMaxAddr(int addr)
{
    m_leftMargin->setMaxAddr(addr);
    updateLeftMarginWidth();
}

void EditorWidget::setMemPageAddrMap(EditorMemPageAddrMap* map)
{
    m_leftMargin->setAddrMap(map, m_filePath);
    updateLeftMarginWidth();
}

void EditorWidget::setMemPageAddrInvalid(int)
{
    m_leftMargin->setAddrInvalid();
}

void EditorWidget::setMessageMarks(const QVector<sMessageMark>& marks)
{
    m_messageMarks.set(marks);
    m_views->updateMargins();
    if (m_views->second() != nullptr)
        m_views->second()->viewport()->update();
}

void EditorWidget::paintEvent(QPaintEvent* event)
{
    SourceEdit::paintEvent(event);
    QPainter painter(viewport());
    const QTextBlock block = firstVisibleBlock();
    m_messageMarks.paint(&painter, block, blockBoundingGeometry(block).translated(contentOffset()).topLeft(),
                         event->rect().bottom());
}

int EditorWidget::blockNumberFromPos(int y) const
{
    return lineAt(y);
}

void EditorWidget::leftMarginPaintEvent(QPaintEvent* event)
{
    m_leftMargin->paint(event);
}

void EditorWidget::showLeftMarginToolTip(const QPoint& pos)
{
    m_leftMargin->showToolTipAt(pos);
}

void EditorWidget::setMarks(const sDocumentMarks_t& marks)
{
    const bool isChanged = marks.simBreakpoints.lines() != m_marks.simBreakpoints.lines();
    // There is one start mark in all documents.
    if (marks.simStartPointer >= 0)
        emit clearAllSimStartPointer();
    m_marks = marks;
    m_views->updateMargins();
    if (isChanged)
        emit simBreakpointChanged();
}

void EditorWidget::setSimBreakpoint(int line)
{
    if (line < 0)
        return;
    m_marks.simBreakpoints.toggle(line);
    m_views->updateMargins();
    emit simBreakpointChanged();
}

void EditorWidget::clearSimBreakpoints()
{
    m_marks.simBreakpoints.clear();
    m_views->updateMargins();
}

void EditorWidget::setSimStartPointer(int line)
{
    const bool isOther = line != m_marks.simStartPointer;
    // Clears the mark of this document, too.
    emit clearAllSimStartPointer();
    if (isOther)
        m_marks.simStartPointer = qMax(line, -1);
    m_views->updateMargins();
}

bool EditorWidget::simStartPointer(int* line) const
{
    if (m_marks.simStartPointer < 0)
        return false;
    *line = m_marks.simStartPointer;
    return true;
}

void EditorWidget::clearSimStartPointer()
{
    m_marks.simStartPointer = -1;
    m_views->updateMargins();
}

void EditorWidget::setBookmark(int line)
{
    if (line < 0)
        return;
    m_marks.bookmarks.toggle(line);
    m_views->updateMargins();
}

void EditorWidget::clearBookmarks()
{
    m_marks.bookmarks.clear();
    m_views->updateMargins();
}

} // namespace nsModEditor
