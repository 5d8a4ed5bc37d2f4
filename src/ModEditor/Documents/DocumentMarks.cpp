#include "DocumentMarks.h"

#include "EditorWidget.h"
#include "OpenDocuments.h"

namespace nsModEditor {

void DocumentMarks::add(EditorWidget* widget)
{
    connect(widget, &EditorWidget::simBreakpointChanged, this, &DocumentMarks::noteBreakpoints);
    connect(widget, &EditorWidget::clearAllBreakpoints, this, &DocumentMarks::clearBreakpoints);
    connect(widget, &EditorWidget::clearAllSimStartPointer, this, &DocumentMarks::clearStartPointers);
    connect(widget, &EditorWidget::clearAllBookmarks, this, &DocumentMarks::clearBookmarks);
}

QMap<QString, QList<int>> DocumentMarks::breakpoints() const
{
    QMap<QString, QList<int>> breakpoints;
    for (const EditorWidget* widget : m_documents->all()) {
        if (!widget->filePath().isEmpty())
            breakpoints.insert(widget->filePath(), widget->simBreakpoints());
    }
    return breakpoints;
}

bool DocumentMarks::startPointer(QString* path, int* line) const
{
    for (const EditorWidget* widget : m_documents->all()) {
        if (widget->simStartPointer(line)) {
            *path = widget->filePath();
            return true;
        }
    }
    return false;
}

void DocumentMarks::noteBreakpoints()
{
    m_haveChanged = true;
    ++m_revision;
}

void DocumentMarks::clearBreakpoints()
{
    for (EditorWidget* widget : m_documents->all())
        widget->clearSimBreakpoints();
    noteBreakpoints();
    emit breakpointsCleared();
}

void DocumentMarks::clearStartPointers()
{
    for (EditorWidget* widget : m_documents->all())
        widget->clearSimStartPointer();
}

void DocumentMarks::clearBookmarks()
{
    for (EditorWidget* widget : m_documents->all())
        widget->clearBookmarks();
    emit bookmarksCleared();
}

} // namespace nsModEditor
