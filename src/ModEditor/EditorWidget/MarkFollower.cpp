#include "MarkFollower.h"

#include "DocumentViews.h"
#include "EditorWidget.h"
#include "LineMarks.h"

#include <QTextBlock>

namespace nsModEditor {

namespace {

const int maxMoves = 1000; ///< that are remembered

} // namespace

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
    if (m_editor->isSettingText())
        m_moves.clear();
    else if (delta == 0 && !m_isMoving)
        followSteps();
    m_steps = document->availableUndoSteps();
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

/// Undo and redo exchange the lines that a move has exchanged. The number of steps tells them from other changes, but
/// not always, so the line has to be there.
void MarkFollower::followSteps()
{
    const QTextDocument* document = m_editor->document();
    const int steps = document->availableUndoSteps();
    for (const sMove_t& move : qAsConst(m_moves)) {
        const bool isUndone = m_steps == move.after && steps == move.before;
        const bool isDoneAgain = m_steps == move.before && steps == move.after;
        if (!isUndone && !isDoneAgain)
            continue;
        const int from = isUndone ? move.to : move.from;
        const int to = isUndone ? move.from : move.to;
        if (document->findBlockByNumber(to).text() == move.text) {
            exchange(from, to);
            return;
        }
    }
}

/// The marks of a line that has gone to another place, and those of the lines in between.
void MarkFollower::exchange(int from, int to)
{
    if (!m_editor->comfort().marksFollowTextEn || m_marks->isEmpty())
        return;
    map([from, to](int mark) {
        if (mark == from)
            return to;
        if (mark > from && mark <= to)
            return mark - 1;
        return mark >= to && mark < from ? mark + 1 : mark;
    });
}

void MarkFollower::moveLines(int first, int last, bool up, const std::function<void()>& edit)
{
    const QTextDocument* document = m_editor->document();
    const int revision = document->revision();
    sMove_t move;
    move.before = document->availableUndoSteps();
    m_isMoving = true;
    edit();
    m_isMoving = false;
    if (document->revision() == revision)
        return;
    move.after = document->availableUndoSteps();
    move.from = up ? first - 1 : last + 1;
    move.to = up ? last : first;
    move.text = document->findBlockByNumber(move.to).text();
    // What was undone can not be done again any more.
    while (!m_moves.isEmpty() && m_moves.last().after > move.before)
        m_moves.removeLast();
    if (m_moves.size() == maxMoves)
        m_moves.removeFirst();
    m_moves.append(move);
    exchange(move.from, move.to);
}

} // namespace nsModEditor
