#include "LineCommands.h"

#include <QPlainTextEdit>
#include <QTextDocument>

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

LineCommands::LineCommands(QPlainTextEdit* edit)
    : m_edit(edit)
{
}

/// Runs the command on each line that the selection touches, or on the line of the cursor, as one step to undo.
void LineCommands::forSelectedLines(const Command& command)
{
    QTextCursor cursor = m_edit->textCursor();
    cursor.beginEditBlock();
    if (!cursor.hasSelection()) {
        // A cursor of its own, so that the one of the user keeps its place in the text.
        command(QTextCursor(cursor.block()));
        cursor.endEditBlock();
        return;
    }
    const int start = cursor.selectionStart();
    int end = cursor.selectionEnd();
    for (QTextBlock block = m_edit->document()->findBlock(start); block.isValid() && block.position() < end;
         block = block.next())
        end += command(QTextCursor(block));
    cursor.endEditBlock();
    cursor.setPosition(start);
    cursor.setPosition(qBound(0, end, m_edit->document()->characterCount() - 1), QTextCursor::KeepAnchor);
    m_edit->setTextCursor(cursor);
}

void LineCommands::goToNextLine()
{
    QTextCursor cursor = m_edit->textCursor();
    cursor.movePosition(QTextCursor::NextBlock);
    m_edit->setTextCursor(cursor);
}

void LineCommands::indent()
{
    if (m_edit->isReadOnly())
        return;
    const QTextCursor cursor = m_edit->textCursor();
    const bool severalLines =
        m_edit->document()->findBlock(cursor.selectionStart()) != m_edit->document()->findBlock(cursor.selectionEnd());
    if (severalLines)
        forSelectedLines(insertTab);
    else
        m_edit->textCursor().insertText("\t");
    m_edit->ensureCursorVisible();
}

void LineCommands::deindent()
{
    if (m_edit->isReadOnly())
        return;
    forSelectedLines(removeBlank);
    m_edit->ensureCursorVisible();
}

void LineCommands::commentOut()
{
    if (m_edit->isReadOnly())
        return;
    const bool walksOn = !m_edit->textCursor().hasSelection();
    forSelectedLines(insertSemicolon);
    if (walksOn)
        goToNextLine();
    m_edit->ensureCursorVisible();
}

void LineCommands::commentIn()
{
    if (m_edit->isReadOnly())
        return;
    const bool walksOn = !m_edit->textCursor().hasSelection();
    forSelectedLines(removeSemicolon);
    if (walksOn)
        goToNextLine();
    m_edit->ensureCursorVisible();
}

void LineCommands::duplicateLine()
{
    if (m_edit->isReadOnly())
        return;
    QTextCursor cursor = m_edit->textCursor();
    const QString text = cursor.block().text();
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertBlock();
    cursor.insertText(text);
    cursor.endEditBlock();
    m_edit->setTextCursor(cursor);
    m_edit->ensureCursorVisible();
}

QTextBlock LineCommands::firstSelectedBlock() const
{
    return m_edit->document()->findBlock(m_edit->textCursor().selectionStart());
}

/// A line at whose start the selection ends does not belong to it.
QTextBlock LineCommands::lastSelectedBlock() const
{
    const QTextCursor cursor = m_edit->textCursor();
    const QTextBlock block = m_edit->document()->findBlock(cursor.selectionEnd());
    return cursor.hasSelection() && block.position() == cursor.selectionEnd() ? block.previous() : block;
}

void LineCommands::moveLineUp()
{
    if (m_edit->isReadOnly())
        return;
    const QTextBlock previous = firstSelectedBlock().previous();
    if (!previous.isValid())
        return;
    exchangeLines(previous, lastSelectedBlock(), true);
    m_edit->ensureCursorVisible();
}

void LineCommands::moveLineDown()
{
    if (m_edit->isReadOnly())
        return;
    const QTextBlock next = lastSelectedBlock().next();
    if (!next.isValid())
        return;
    exchangeLines(firstSelectedBlock(), next, false);
    m_edit->ensureCursorVisible();
}

/// Moves the first line after the others or, if up is false, the last one before them. The selection moves with its
/// text.
void LineCommands::exchangeLines(const QTextBlock& first, const QTextBlock& last, bool up)
{
    const QTextCursor selection = m_edit->textCursor();
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
    const int end = m_edit->document()->characterCount() - 1;
    QTextCursor moved(m_edit->document());
    moved.setPosition(qBound(0, anchor + shift, end));
    moved.setPosition(qBound(0, position + shift, end), QTextCursor::KeepAnchor);
    m_edit->setTextCursor(moved);
}

} // namespace nsModEditor
