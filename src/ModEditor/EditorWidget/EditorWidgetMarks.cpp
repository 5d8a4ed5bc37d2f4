// Marks of lines: the simulator's breakpoints and start address, bookmarks.

#include "EditorWidget.h"

#include "EditorWidgetLeftMargin.h"

namespace nsModEditor {

void EditorWidget::setSimBreakpoint(int line)
{
    if (line < 0)
        return;
    m_simBreakpoints.toggle(line);
    m_leftMargin->update();
    emit simBreakpointChanged();
}

void EditorWidget::clearSimBreakpoints()
{
    m_simBreakpoints.clear();
    m_leftMargin->update();
}

void EditorWidget::setSimStartPointer(int line)
{
    const bool isOther = line != m_simStartPointer;
    // Clears the mark of this document, too.
    emit clearAllSimStartPointer();
    if (isOther)
        m_simStartPointer = qMax(line, -1);
    m_leftMargin->update();
}

bool EditorWidget::simStartPointer(int* line) const
{
    if (m_simStartPointer < 0)
        return false;
    *line = m_simStartPointer;
    return true;
}

void EditorWidget::clearSimStartPointer()
{
    m_simStartPointer = -1;
    m_leftMargin->update();
}

void EditorWidget::setBookmark(int line)
{
    if (line < 0)
        return;
    m_bookmarks.toggle(line);
    m_leftMargin->update();
}

void EditorWidget::clearBookmarks()
{
    m_bookmarks.clear();
    m_leftMargin->update();
}

} // namespace nsModEditor
