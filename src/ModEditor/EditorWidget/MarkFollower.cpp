#include "MarkFollower.h"

#include "DocumentViews.h"
#include "EditorWidget.h"
#include "LineMarks.h"

#include <QTextBlock>

namespace nsModEditor {

MarkFollower::MarkFollower(EditorWidget* editor, sDocumentMarks_t* marks)
    : QObject(editor)
    , m_editor(editor)
    , m_marks(marks)
    , m_lineCount(editor->blockCount())
{
    connect(editor->document(), &QTextDocument::contentsChange, this, &MarkFollower::follow);
}

/// @param newLine the line that a line has become, or -1 for none
template <class Function>
void MarkFollower::map(Function newLine)
{
    const QList<int> breakpoints = m_marks->simBreakpoints.lines();
    m_marks->simBreakpoints.map(newLine);
    m_marks->bookmarks.map(newLine);
    if (m_marks->simStartPointer >= 0)
        m_marks->simStartPointer = newLine(m_marks->simStartPointer);
    m_editor->views()->updateMargins();
    if (breakpoints != m_marks->simBreakpoints.lines())
        emit m_editor->simBreakpointChanged();
}

void MarkFollower::follow(int position, int, int added)
{
    const QTextDocument* document = m_editor->document();
    const int delta = document->blockCount() - m_lineCount;
    m_lineCount = document->blockCount();
    if (delta == 0 || m_marks->isEmpty() || m_editor->isSettingText() || !m_editor->comfort().marksFollowTextEn)
        return;
    const QTextBlock first = document->findBlock(position);
    const int end = qMin(position + added, document->characterCount() - 1);
    const QTextBlock last = document->findBlock(end);
    if (!first.isValid() || !last.isValid())
        return;
    const int line = first.blockNumber();
    const int newLines = last.blockNumber() - line;
    const int oldLines = qMax(newLines - delta, 0);
    // What follows the change is the rest of a line, which begins at the start of one only if the change has ended
    // there.
    const bool wholeLines = position == first.position() && end == last.position();
    map([&](int mark) {
        if (mark < line || (mark == line && !wholeLines))
            return mark;
        if (mark >= line + oldLines)
            return mark + delta;
        return mark - line < newLines ? mark : -1;
    });
}

void MarkFollower::moveLines(int first, int last, bool up)
{
    if (!m_editor->comfort().marksFollowTextEn || m_marks->isEmpty())
        return;
    const int other = up ? first - 1 : last + 1;
    map([&](int mark) {
        if (mark == other)
            return up ? last : first;
        return mark >= first && mark <= last ? mark + (up ? -1 : 1) : mark;
    });
}

} // namespace nsModEditor
