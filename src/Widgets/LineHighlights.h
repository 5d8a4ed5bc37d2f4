#pragma once

#include <QTextEdit>

class QPlainTextEdit;

/// The coloured lines of a text: the one of the cursor, and one that is flagged or none.
class LineHighlights
{
public:
    explicit LineHighlights(QPlainTextEdit* edit);

    void setCursorColor(const QColor& color);
    void setFlagColor(const QColor& color);
    QColor cursorColor() const { return m_cursorLine.format.background().color(); }
    QColor flagColor() const { return m_flag.format.background().color(); }
    /// Whether the line of the cursor is coloured; it is at first.
    void setCursorShown(bool shown);
    /// The cursor has moved.
    void followCursor();
    /// Flags the line, counted from 0; a line that there is not takes the flag away.
    void flag(int line);
    void clearFlag();
    /// Lines were hidden or shown: a flagged line that is hidden is seen at the last visible one before it.
    void followFolds() { show(); }
    /// The line that is or was flagged last.
    int flaggedLine() const { return m_flag.cursor.blockNumber(); }
    bool isFlagged() const { return m_isFlagged; }

private:
    void show();

    QPlainTextEdit* m_edit; ///< not owned
    QTextEdit::ExtraSelection m_cursorLine;
    QTextEdit::ExtraSelection m_flag;
    bool m_isFlagged = false;
    bool m_isCursorShown = true;
};
