#include "LineHighlights.h"

#include "Colors.h"

#include <QPlainTextEdit>
#include <QTextBlock>

LineHighlights::LineHighlights(QPlainTextEdit* edit)
    : m_edit(edit)
{
    m_flag.format.setBackground(Colors::of(Colors::eEditorFlaggedLine));
    m_flag.format.setProperty(QTextFormat::FullWidthSelection, true);
    m_cursorLine.format.setBackground(Colors::of(Colors::eEditorCursorLine));
    m_cursorLine.format.setProperty(QTextFormat::FullWidthSelection, true);
}

void LineHighlights::setCursorColor(const QColor& color)
{
    m_cursorLine.format.setBackground(color);
    show();
}

void LineHighlights::setFlagColor(const QColor& color)
{
    m_flag.format.setBackground(color);
    show();
}

void LineHighlights::setCursorShown(bool shown)
{
    m_isCursorShown = shown;
    show();
}

void LineHighlights::followCursor()
{
    m_cursorLine.cursor = m_edit->textCursor();
    m_cursorLine.cursor.clearSelection();
    show();
}

void LineHighlights::flag(int line)
{
    const QTextBlock block = m_edit->document()->findBlockByNumber(line);
    m_isFlagged = block.isValid();
    if (block.isValid())
        m_flag.cursor = QTextCursor(block);
    show();
}

void LineHighlights::clearFlag()
{
    m_isFlagged = false;
    show();
}

void LineHighlights::show()
{
    QList<QTextEdit::ExtraSelection> selections;
    if (m_isCursorShown)
        selections.append(m_cursorLine);
    if (m_isFlagged) {
        QTextEdit::ExtraSelection shown = m_flag;
        QTextBlock block = m_flag.cursor.block();
        while (!block.isVisible() && block.previous().isValid())
            block = block.previous();
        if (block != m_flag.cursor.block())
            shown.cursor = QTextCursor(block);
        selections.append(shown);
    }
    m_edit->setExtraSelections(selections);
}
