#include "LineCommands.h"

#include "TextColumns.h"

#include <QPlainTextEdit>
#include <QPoint>
#include <QTextBoundaryFinder>
#include <QTextDocument>

#include <algorithm>
#include <climits>

namespace nsModEditor {

namespace {

/// Number of blanks at the start.
int indentOf(const QString& text)
{
    int length = 0;
    while (length < text.length() && (text.at(length) == ' ' || text.at(length) == '\t'))
        ++length;
    return length;
}

/// Where the blanks at the end begin. A blank after a backslash is text. Characters beyond ASCII that look like blanks
/// stay: in a file of an unknown encoding they are halves of others.
int endOfText(const QString& text)
{
    int end = text.size();
    while (end > 0 && (text.at(end - 1) == ' ' || text.at(end - 1) == '\t'))
        --end;
    return end > 0 && end < text.size() && text.at(end - 1) == '\\' ? end + 1 : end;
}

/// The position, or the start of the character that it is within.
int placeOfCharacter(const QString& text, int position)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(qMin(position, text.size()));
    return finder.isAtBoundary() ? finder.position() : qMax(finder.toPreviousBoundary(), 0);
}

/// Replaces the text of a line, if it is another one.
void setLine(const QTextBlock& block, const QString& text)
{
    if (block.text() == text)
        return;
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.insertText(text);
}

int insertTab(QTextCursor cursor)
{
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.insertText("\t");
    return 1;
}

int insertBlanks(QTextCursor cursor, int width)
{
    if (cursor.block().length() == 1)
        return 0;
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.insertText(QString(width, ' '));
    return width;
}

/// A tab counts as the whole width.
int removeBlanks(QTextCursor cursor, int width)
{
    const QString text = cursor.block().text();
    int count = 0;
    while (count < width && count < text.length() && text.at(count) == ' ')
        ++count;
    if (count < width && count < text.length() && text.at(count) == '\t')
        ++count;
    cursor.setPosition(cursor.block().position());
    cursor.setPosition(cursor.block().position() + count, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    return -count;
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

LineCommands::LineCommands(QPlainTextEdit* edit, const sIndent_t& indent)
    : m_edit(edit)
    , m_indent(indent)
{
    m_indent.width = qMax(m_indent.width, 1);
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
    if (!m_indent.blanks && severalLines)
        forSelectedLines(insertTab);
    else if (severalLines)
        forSelectedLines([this](const QTextCursor& line) { return insertBlanks(line, m_indent.width); });
    else
        m_edit->textCursor().insertText(m_indent.blanks ? blanksToTabStop(cursor) : QString("\t"));
    m_edit->ensureCursorVisible();
}

void LineCommands::deindent()
{
    if (m_edit->isReadOnly())
        return;
    if (m_indent.blanks)
        forSelectedLines([this](const QTextCursor& line) { return removeBlanks(line, m_indent.width); });
    else
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

QPair<int, int> LineCommands::selectedLines() const
{
    return {firstSelectedBlock().blockNumber(), lastSelectedBlock().blockNumber()};
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

/// The blanks from the start of the selection to the next tab stop.
QString LineCommands::blanksToTabStop(const QTextCursor& cursor) const
{
    const QTextBlock block = m_edit->document()->findBlock(cursor.selectionStart());
    const int column = TextColumns(block.text(), m_indent.width).columnOf(cursor.selectionStart() - block.position());
    return QString(m_indent.width - column % m_indent.width, ' ');
}

bool LineCommands::removeIndent()
{
    QTextCursor cursor = m_edit->textCursor();
    const int at = cursor.positionInBlock();
    if (m_edit->isReadOnly() || cursor.hasSelection() || at == 0)
        return false;
    const QString before = cursor.block().text().left(at);
    if (indentOf(before) < at)
        return false;
    const TextColumns columns(before, m_indent.width);
    const int column = columns.columnOf(at);
    const int stop = (column - 1) / m_indent.width * m_indent.width;
    int from = at - 1;
    while (from > 0 && before.at(from) == ' ' && columns.columnOf(from) > stop)
        --from;
    cursor.setPosition(cursor.block().position() + from, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    m_edit->setTextCursor(cursor);
    return true;
}

bool LineCommands::goToTextStart(bool select)
{
    QTextCursor cursor = m_edit->textCursor();
    if (cursor.block().lineCount() > 1)
        return false;
    const int indent = indentOf(cursor.block().text());
    const int at = cursor.positionInBlock() == indent ? 0 : indent;
    cursor.setPosition(cursor.block().position() + at, select ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
    m_edit->setTextCursor(cursor);
    return true;
}

/// The selected lines, or the one of the cursor.
QList<QTextBlock> LineCommands::selectedBlocks() const
{
    QList<QTextBlock> blocks;
    const QTextBlock last = lastSelectedBlock();
    for (QTextBlock block = firstSelectedBlock(); block.isValid(); block = block.next()) {
        blocks.append(block);
        if (block == last)
            break;
    }
    return blocks;
}

void LineCommands::toggleComment()
{
    if (m_edit->isReadOnly())
        return;
    QList<QTextBlock> blocks = selectedBlocks();
    const auto isEmpty = [](const QTextBlock& block) { return indentOf(block.text()) == block.text().size(); };
    if (blocks.size() > 1)
        blocks.erase(std::remove_if(blocks.begin(), blocks.end(), isEmpty), blocks.end());
    if (blocks.isEmpty())
        return;
    const bool isComment = std::all_of(blocks.begin(), blocks.end(), [](const QTextBlock& block) {
        return block.text().midRef(indentOf(block.text())).startsWith(';');
    });
    int column = INT_MAX;
    for (const QTextBlock& block : qAsConst(blocks)) {
        const QString text = block.text();
        column = qMin(column, TextColumns(text, m_indent.width).columnOf(indentOf(text)));
    }
    QTextCursor step(m_edit->document());
    step.beginEditBlock();
    for (const QTextBlock& block : qAsConst(blocks)) {
        const QString text = block.text();
        QTextCursor line(block);
        if (!isComment) {
            line.setPosition(block.position() + TextColumns(text, m_indent.width).indexAt(column));
            line.insertText("; ");
            continue;
        }
        const int at = indentOf(text);
        line.setPosition(block.position() + at);
        line.setPosition(block.position() + at + (text.midRef(at).startsWith("; ") ? 2 : 1), QTextCursor::KeepAnchor);
        line.removeSelectedText();
    }
    step.endEditBlock();
    m_edit->ensureCursorVisible();
}

void LineCommands::deleteLines()
{
    if (m_edit->isReadOnly())
        return;
    const QTextBlock first = firstSelectedBlock();
    const QTextBlock last = lastSelectedBlock();
    const int column = m_edit->textCursor().positionInBlock();
    QTextCursor cursor(first);
    if (last.next().isValid()) {
        cursor.setPosition(last.next().position(), QTextCursor::KeepAnchor);
    } else {
        // The line end before the last line goes with it.
        cursor.setPosition(qMax(first.position() - 1, 0));
        cursor.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
    }
    const int line = first.blockNumber();
    cursor.removeSelectedText();
    const QTextBlock now = m_edit->document()->findBlockByNumber(qMin(line, m_edit->document()->blockCount() - 1));
    cursor.setPosition(now.position() + placeOfCharacter(now.text(), column));
    m_edit->setTextCursor(cursor);
    m_edit->ensureCursorVisible();
}

void LineCommands::joinLines()
{
    if (m_edit->isReadOnly())
        return;
    const int count = qMax(selectedBlocks().size() - 1, 1);
    QTextCursor cursor(firstSelectedBlock());
    int at = -1;
    cursor.beginEditBlock();
    for (int i = 0; i < count && cursor.block().next().isValid(); ++i) {
        const QTextBlock block = cursor.block();
        const QString text = block.text();
        const QString next = block.next().text();
        const int end = endOfText(text);
        const int start = indentOf(next);
        at = block.position() + end;
        QTextCursor gap(m_edit->document());
        gap.setPosition(at);
        gap.setPosition(block.next().position() + start, QTextCursor::KeepAnchor);
        gap.insertText(end > 0 && start < next.size() ? QString(" ") : QString());
    }
    cursor.endEditBlock();
    if (at < 0)
        return;
    cursor.setPosition(at);
    m_edit->setTextCursor(cursor);
    m_edit->ensureCursorVisible();
}

void LineCommands::sortLines()
{
    const QList<QTextBlock> blocks = selectedBlocks();
    if (m_edit->isReadOnly() || blocks.size() < 2)
        return;
    QStringList texts;
    for (const QTextBlock& block : blocks)
        texts.append(block.text());
    std::stable_sort(texts.begin(), texts.end(), [](const QString& a, const QString& b) {
        const int order = a.compare(b, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a < b;
    });
    const int first = blocks.first().blockNumber();
    QTextCursor cursor(m_edit->document());
    cursor.beginEditBlock();
    for (int i = 0; i < texts.size(); ++i)
        setLine(m_edit->document()->findBlockByNumber(first + i), texts.at(i));
    cursor.endEditBlock();
    const QTextBlock last = m_edit->document()->findBlockByNumber(first + texts.size() - 1);
    cursor.setPosition(m_edit->document()->findBlockByNumber(first).position());
    cursor.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
    m_edit->setTextCursor(cursor);
}

void LineCommands::changeCase(bool upper)
{
    if (m_edit->isReadOnly())
        return;
    QTextCursor cursor = m_edit->textCursor();
    const int position = cursor.position();
    const bool hasSelection = cursor.hasSelection();
    if (!hasSelection)
        cursor.select(QTextCursor::WordUnderCursor);
    const QString before = cursor.selectedText();
    const QString after = upper ? before.toUpper() : before.toLower();
    if (before == after)
        return;
    const int start = cursor.selectionStart();
    const bool backward = cursor.position() < cursor.anchor();
    cursor.insertText(after);
    const int end = start + after.size();
    cursor.setPosition(hasSelection ? (backward ? end : start) : qMin(position, end));
    if (hasSelection)
        cursor.setPosition(backward ? start : end, QTextCursor::KeepAnchor);
    m_edit->setTextCursor(cursor);
}

void LineCommands::changeLines(bool all, const std::function<QString(const QString& line)>& change)
{
    if (m_edit->isReadOnly())
        return;
    // In a line that is replaced, a cursor would go to its end.
    const auto placeOf = [this](int position) {
        const QTextBlock block = m_edit->document()->findBlock(position);
        return QPoint(position - block.position(), block.blockNumber());
    };
    const auto positionOf = [this](const QPoint& place) {
        const QTextBlock block = m_edit->document()->findBlockByNumber(place.y());
        return block.position() + placeOfCharacter(block.text(), qMin(place.x(), block.length() - 1));
    };
    QTextCursor cursor = m_edit->textCursor();
    const QPoint anchor = placeOf(cursor.anchor());
    const QPoint position = placeOf(cursor.position());
    const QTextBlock last = all ? m_edit->document()->lastBlock() : lastSelectedBlock();
    bool isChanged = false;
    QTextCursor step(m_edit->document());
    step.beginEditBlock();
    for (QTextBlock block = all ? m_edit->document()->firstBlock() : firstSelectedBlock(); block.isValid();
         block = block.next()) {
        const QString text = change(block.text());
        isChanged = isChanged || text != block.text();
        setLine(block, text);
        if (block == last)
            break;
    }
    step.endEditBlock();
    if (!isChanged)
        return;
    cursor.setPosition(positionOf(anchor));
    cursor.setPosition(positionOf(position), QTextCursor::KeepAnchor);
    m_edit->setTextCursor(cursor);
}

void LineCommands::removeTrailingBlanks(bool all)
{
    if (m_edit->isReadOnly())
        return;
    const QTextBlock last = all ? m_edit->document()->lastBlock() : lastSelectedBlock();
    QTextCursor step(m_edit->document());
    step.beginEditBlock();
    for (QTextBlock block = all ? m_edit->document()->firstBlock() : firstSelectedBlock(); block.isValid();
         block = block.next()) {
        const QString text = block.text();
        const int end = endOfText(text);
        if (end < text.size()) {
            QTextCursor cursor(block);
            cursor.setPosition(block.position() + end);
            cursor.setPosition(block.position() + text.size(), QTextCursor::KeepAnchor);
            cursor.removeSelectedText();
        }
        if (block == last)
            break;
    }
    step.endEditBlock();
}

} // namespace nsModEditor
