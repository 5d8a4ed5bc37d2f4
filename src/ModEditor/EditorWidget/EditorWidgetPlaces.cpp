// Places in the document: the cursor, the flagged line, what is selected, searching.

#include "EditorWidget.h"

#include "EditorSyntaxHighlighter.h"

#include <QHelpEvent>
#include <QRegExp>
#include <QTextBlock>
#include <QTimer>

namespace nsModEditor {

namespace {

/// In documents with this many lines, lines that are not visible are marked after a delay, so that extending a
/// selection stays fast.
const int manyLines = 2000;
const int rehighlightDelay = 100; ///< milliseconds

/// A name and a colon, as the navigator has it.
bool isLabel(const QString& text)
{
    return text.size() > 1 && text.endsWith(':') && !text.contains(' ') && !text.contains('\t');
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

void EditorWidget::initHighlighting()
{
    m_highlightSelection.format.setBackground(QColor(0xF5CACA));
    m_highlightSelection.format.setProperty(QTextFormat::FullWidthSelection, true);
    m_cursorSelection.format.setBackground(QColor(0xE3EBF3));
    m_cursorSelection.format.setProperty(QTextFormat::FullWidthSelection, true);
    m_spareSelection.format.setBackground(QColor(0xD7D7D7));
    m_spareSelection.format.setProperty(QTextFormat::FullWidthSelection, true);
    m_rehighlightTimer->setSingleShot(true);
    m_rehighlightTimer->setInterval(rehighlightDelay);
    connect(m_rehighlightTimer, &QTimer::timeout, this, &EditorWidget::rehighlight);
    connect(this, SIGNAL(cursorPositionChanged()), this, SLOT(highlightCurrentLine()));
    highlightCurrentLine();
}

void EditorWidget::setCursorToLine(int line)
{
    QTextCursor cursor = textCursor();
    line = qBound(0, line, blockCount());
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
        if (!goToLabel(text, line)) {
            moveCursor(QTextCursor::Start);
            setCursorToLine(line);
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

/// @return false if no line begins with the label, blanks aside
bool EditorWidget::goToLabel(const QString& label, int line)
{
    QTextBlock nearest;
    const auto indentOf = [](const QTextBlock& block) {
        const QString text = block.text();
        int indent = 0;
        while (indent < text.size() && text.at(indent).isSpace())
            ++indent;
        return indent;
    };
    for (QTextBlock block = m_textDocument->begin(); block.isValid(); block = block.next()) {
        if (block.text().midRef(indentOf(block), label.size()) != label)
            continue;
        if (!nearest.isValid() || qAbs(block.blockNumber() - line) < qAbs(nearest.blockNumber() - line))
            nearest = block;
    }
    if (!nearest.isValid())
        return false;
    QTextCursor cursor(nearest);
    cursor.setPosition(nearest.position() + indentOf(nearest));
    cursor.setPosition(cursor.position() + label.length(), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    centerCursor();
    return true;
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
    const QTextBlock block = m_textDocument->findBlockByNumber(qBound(0, line, blockCount() - 1));
    setCursorPos(block.position());
    m_highlightSelection.cursor = QTextCursor(block);
    m_lineHighlightEn = true;
    setHighlightLinesToEditor();
}

void EditorWidget::markLine(int line)
{
    const QTextBlock block = m_textDocument->findBlockByNumber(line);
    m_lineHighlightEn = block.isValid();
    if (block.isValid())
        m_highlightSelection.cursor = QTextCursor(block);
    setHighlightLinesToEditor();
}

void EditorWidget::clearLineHighlighted()
{
    m_lineHighlightEn = false;
    setHighlightLinesToEditor();
}

void EditorWidget::setCursorBgColor(const QColor& color)
{
    m_cursorSelection.format.setBackground(color);
    setHighlightLinesToEditor();
}

void EditorWidget::setHighlightBgColor(const QColor& color)
{
    m_highlightSelection.format.setBackground(color);
    setHighlightLinesToEditor();
}

void EditorWidget::highlightCurrentLine()
{
    m_cursorSelection.cursor = textCursor();
    m_cursorSelection.cursor.clearSelection();
    setHighlightLinesToEditor();
}

void EditorWidget::setHighlightLinesToEditor()
{
    QList<QTextEdit::ExtraSelection> selections{m_cursorSelection};
    if (m_lineHighlightEn)
        selections.append(m_highlightSelection);
    setExtraSelections(selections);
}

void EditorWidget::setSelectionHighlightEn(bool enabled)
{
    m_selectionHighlightEn = enabled;
    if (enabled)
        highlightSelection();
    else
        setSelectionMarks(QString());
}

void EditorWidget::highlightSelection()
{
    if (!m_selectionHighlightEn)
        return;
    const QTextCursor cursor = textCursor();
    if (cursor.hasSelection())
        setSelectionMarks(cursor.selectedText());
    else
        setSelectionMarks(QString());
}

void EditorWidget::setSelectionMarks(const QString& text)
{
    // The text edit reports the selection again for each change of formats.
    if (text == m_markedText)
        return;
    m_markedText = text;
    m_syntaxHighlighter->setSelection(text);
    if (blockCount() < manyLines) {
        rehighlight();
        return;
    }
    rehighlightVisible();
    m_rehighlightTimer->start();
}

void EditorWidget::rehighlightVisible()
{
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    for (; block.isValid() && top <= viewport()->height(); block = block.next()) {
        m_syntaxHighlighter->rehighlightBlock(block);
        top += blockBoundingRect(block).height();
    }
}

bool EditorWidget::handleTipEvent(QHelpEvent* event)
{
    QTextCursor cursor = cursorForPosition(event->pos());
    cursor.select(QTextCursor::WordUnderCursor);
    const QString word = cursor.selectedText();
    if (QRegExp("^\\b\\S+\\b$").exactMatch(word))
        setSelectionMarks(word);
    else
        setSelectionMarks(QString());
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
