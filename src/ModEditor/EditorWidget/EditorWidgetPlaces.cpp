// Places in the document: the cursor, the flagged line, what is selected, searching.

#include "EditorWidget.h"

#include "DocumentViews.h"
#include "Folding.h"
#include "WordMarks.h"

#include <QHelpEvent>
#include <QRegExp>
#include <QTextBlock>

namespace nsModEditor {

namespace {

/// A name and a colon, as the navigator has it.
bool isLabel(const QString& text)
{
    return text.size() > 1 && text.endsWith(':') && !text.contains(' ') && !text.contains('\t');
}

/// The label at the start of a line, blanks aside, selected; of several the one nearest to the line. Null if there is
/// none.
QTextCursor labelIn(const QTextDocument* document, const QString& label, int line)
{
    QTextBlock nearest;
    const auto indentOf = [](const QTextBlock& block) {
        const QString text = block.text();
        int indent = 0;
        while (indent < text.size() && text.at(indent).isSpace())
            ++indent;
        return indent;
    };
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        if (block.text().midRef(indentOf(block), label.size()) != label)
            continue;
        if (!nearest.isValid() || qAbs(block.blockNumber() - line) < qAbs(nearest.blockNumber() - line))
            nearest = block;
    }
    if (!nearest.isValid())
        return {};
    QTextCursor cursor(nearest);
    cursor.setPosition(nearest.position() + indentOf(nearest));
    cursor.setPosition(cursor.position() + label.length(), QTextCursor::KeepAnchor);
    return cursor;
}

QTextDocument::FindFlags findFlags(bool caseSensitive, bool wholeWords, bool backward = false)
{
    QTextDocument::FindFlags flags;
    flags.setFlag(QTextDocument::FindCaseSensitively, caseSensitive);
    flags.setFlag(QTextDocument::FindWholeWords, wholeWords);
    flags.setFlag(QTextDocument::FindBackward, backward);
    return flags;
}

} // namespace

void EditorWidget::setCursorToLine(int line)
{
    QTextCursor cursor = textCursor();
    line = qBound(0, line, blockCount());
    if (folding()->hasHidden()) {
        // Hidden lines are no steps of the cursor.
        setCursorPos(m_textDocument->findBlockByNumber(qMin(line, blockCount() - 1)).position());
        return;
    }
    const int current = cursor.blockNumber();
    // Upwards it moves by lines on the screen, so a wrapped line counts as more than one.
    if (line >= current)
        cursor.movePosition(QTextCursor::NextBlock, QTextCursor::MoveAnchor, line - current);
    else
        cursor.movePosition(QTextCursor::Up, QTextCursor::MoveAnchor, current - line);
    setTextCursor(cursor);
    centerCursor();
}

void EditorWidget::setCursorToLine(const QString& text, int line)
{
    if (isLabel(text)) {
        // A label that is gone is not sought in the names and comments that contain it.
        const QTextCursor label = labelIn(m_textDocument, text, line);
        if (label.isNull()) {
            moveCursor(QTextCursor::Start);
            setCursorToLine(line);
        } else {
            setTextCursor(label);
            centerCursor();
        }
        return;
    }
    const QTextCursor hit = m_textDocument->find(text, 0);
    const bool isUnique = !hit.isNull() && m_textDocument->find(text, hit).isNull();
    if (isUnique) {
        setTextCursor(hit);
        centerCursor();
        return;
    }
    // From the start, the cursor moves downwards only, where a wrapped line counts as one.
    moveCursor(QTextCursor::Start);
    setCursorToLine(line);
}

int EditorWidget::cursorLine() const
{
    return textCursor().blockNumber();
}

int EditorWidget::cursorPos() const
{
    return textCursor().position();
}

void EditorWidget::setCursorPos(int pos)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(qBound(0, pos, m_textDocument->characterCount() - 1));
    setTextCursor(cursor);
    centerCursor();
}

void EditorWidget::setLineHighlighted(int line)
{
    // Uses the number of the line, so that the rows of wrapped lines above it do not count.
    line = qBound(0, line, blockCount() - 1);
    setCursorPos(m_textDocument->findBlockByNumber(line).position());
    m_views->flag(line);
}

void EditorWidget::markLine(int line)
{
    m_views->flag(line);
}

void EditorWidget::clearLineHighlighted()
{
    m_views->flag(-1);
}

void EditorWidget::setCursorBgColor(const QColor& color)
{
    m_lineHighlights.setCursorColor(color);
    m_views->takeLook();
}

void EditorWidget::setHighlightBgColor(const QColor& color)
{
    m_lineHighlights.setFlagColor(color);
    m_views->takeLook();
}

void EditorWidget::setSelectionHighlightEn(bool enabled)
{
    m_wordMarks->setSelectionEn(enabled);
}

bool EditorWidget::handleTipEvent(QHelpEvent* event)
{
    QTextCursor cursor = cursorForPosition(event->pos());
    cursor.select(QTextCursor::WordUnderCursor);
    const QString word = cursor.selectedText();
    if (QRegExp("^\\b\\S+\\b$").exactMatch(word))
        m_wordMarks->mark(word);
    else
        m_wordMarks->mark(QString());
    return true;
}

bool EditorWidget::find(const QString& text, bool caseSensitive, bool wholeWords, bool backward, eFindOrigin_t origin)
{
    if (origin == eFindOriginStart)
        moveCursor(QTextCursor::Start);
    else if (origin == eFindOriginEnd)
        moveCursor(QTextCursor::End);
    return QPlainTextEdit::find(text, findFlags(caseSensitive, wholeWords, backward));
}

bool EditorWidget::isHit(const QString& text, bool caseSensitive, bool wholeWords) const
{
    const QTextCursor selection = textCursor();
    const QTextCursor hit =
        m_textDocument->find(text, selection.selectionStart(), findFlags(caseSensitive, wholeWords));
    return !hit.isNull() && selection.hasSelection() && hit.selectionStart() == selection.selectionStart() &&
           hit.selectionEnd() == selection.selectionEnd();
}

void EditorWidget::replace(const QString& text)
{
    if (hasSelection() && !isReadOnly())
        insertText(text);
}

bool EditorWidget::replaceAll(const QString& text, const QString& replacement, bool caseSensitive, bool wholeWords)
{
    if (isReadOnly())
        return true;
    const QTextDocument::FindFlags flags = findFlags(caseSensitive, wholeWords);
    QTextCursor step(m_textDocument);
    QTextCursor last;
    step.beginEditBlock();
    // The search continues after the inserted text, so that it also ends if the replacement contains the searched text.
    for (QTextCursor hit = m_textDocument->find(text, 0, flags); !hit.isNull();
         hit = m_textDocument->find(text, hit, flags)) {
        hit.insertText(replacement);
        last = hit;
    }
    step.endEditBlock();
    if (!last.isNull())
        setTextCursor(last);
    return true;
}

} // namespace nsModEditor
