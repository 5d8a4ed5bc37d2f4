// Commands for whole lines.

#include "EditorWidget.h"

#include <QTextBlock>

namespace nsModEditor {

namespace {

int insertTab(QTextCursor cursor)
{
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.insertText("\t");
    return 1;
}

int removeBlank(QTextCursor cursor)
{
    const QString text = cursor.block().text();
    if (text.isEmpty() || !text.at(0).isSpace())
        return 0;
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.deleteChar();
    return -1;
}

int insertSemicolon(QTextCursor cursor)
{
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.insertText(";");
    return 1;
}

int removeSemicolon(QTextCursor cursor)
{
    const QString text = cursor.block().text();
    int at = 0;
    while (at < text.length() && text.at(at).isSpace())
        ++at;
    if (at == text.length() || text.at(at) != ';')
        return 0;
    cursor.setPosition(cursor.block().position() + at);
    cursor.deleteChar();
    return -1;
}

} // namespace

/// Runs the command on each line that the selection touches, or on the line of the cursor, as one step to undo.
void EditorWidget::forSelectedLines(const LineCommand& command)
{
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    if (!cursor.hasSelection()) {
        // A cursor of its own, so that the one of the user keeps its place in the text.
        command(QTextCursor(cursor.block()));
        cursor.endEditBlock();
        return;
    }
    const int start = cursor.selectionStart();
    int end = cursor.selectionEnd();
    for (QTextBlock block = m_textDocument->findBlock(start); block.isValid() && block.position() < end;
         block = block.next())
        end += command(QTextCursor(block));
    cursor.endEditBlock();
    cursor.setPosition(start);
    cursor.setPosition(qBound(0, end, m_textDocument->characterCount() - 1), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void EditorWidget::goToNextLine()
{
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::NextBlock);
    setTextCursor(cursor);
}

void EditorWidget::indent()
{
    if (isReadOnly())
        return;
    const QTextCursor cursor = textCursor();
    const bool severalLines =
        m_textDocument->findBlock(cursor.selectionStart()) != m_textDocument->findBlock(cursor.selectionEnd());
    if (severalLines)
        forSelectedLines(insertTab);
    else
        textCursor().insertText("\t");
    ensureCursorVisible();
}

void EditorWidget::deindent()
{
    if (isReadOnly())
        return;
    forSelectedLines(removeBlank);
    ensureCursorVisible();
}

void EditorWidget::commentOut()
{
    if (isReadOnly())
        return;
    const bool walksOn = !hasSelection();
    forSelectedLines(insertSemicolon);
    if (walksOn)
        goToNextLine();
    ensureCursorVisible();
}

void EditorWidget::commentIn()
{
    if (isReadOnly())
        return;
    const bool walksOn = !hasSelection();
    forSelectedLines(removeSemicolon);
    if (walksOn)
        goToNextLine();
    ensureCursorVisible();
}

void EditorWidget::duplicateLine()
{
    if (isReadOnly())
        return;
    QTextCursor cursor = textCursor();
    const QString text = cursor.block().text();
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertBlock();
    cursor.insertText(text);
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

QTextBlock EditorWidget::firstSelectedBlock() const
{
    return m_textDocument->findBlock(textCursor().selectionStart());
}

/// A line at whose start the selection ends does not belong to it.
QTextBlock EditorWidget::lastSelectedBlock() const
{
    const QTextCursor cursor = textCursor();
    const QTextBlock block = m_textDocument->findBlock(cursor.selectionEnd());
    return cursor.hasSelection() && block.position() == cursor.selectionEnd() ? block.previous() : block;
}

void EditorWidget::moveLineUp()
{
    if (isReadOnly())
        return;
    const QTextBlock previous = firstSelectedBlock().previous();
    if (!previous.isValid())
        return;
    exchangeLines(previous, lastSelectedBlock(), true);
    ensureCursorVisible();
}

void EditorWidget::moveLineDown()
{
    if (isReadOnly())
        return;
    const QTextBlock next = lastSelectedBlock().next();
    if (!next.isValid())
        return;
    exchangeLines(firstSelectedBlock(), next, false);
    ensureCursorVisible();
}

/// Moves the first line after the others or, if up is false, the last one before them. The selection moves with its
/// text.
void EditorWidget::exchangeLines(const QTextBlock& first, const QTextBlock& last, bool up)
{
    const QTextCursor selection = textCursor();
    const int anchor = selection.anchor();
    const int position = selection.position();

    QTextCursor cursor(first);
    cursor.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
    const QString text = cursor.selectedText();
    const QChar separator(QChar::ParagraphSeparator);
    const int split = up ? text.indexOf(separator) : text.lastIndexOf(separator);
    const QString head = text.left(split);
    const QString tail = text.mid(split + 1);
    cursor.beginEditBlock();
    cursor.insertText(tail + separator + head);
    cursor.endEditBlock();

    const int shift = up ? -(head.length() + 1) : tail.length() + 1;
    const int end = m_textDocument->characterCount() - 1;
    QTextCursor moved(m_textDocument);
    moved.setPosition(qBound(0, anchor + shift, end));
    moved.setPosition(qBound(0, position + shift, end), QTextCursor::KeepAnchor);
    setTextCursor(moved);
}

} // namespace nsModEditor
