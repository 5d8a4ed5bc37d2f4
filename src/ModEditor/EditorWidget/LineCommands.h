#pragma once

#include <QList>
#include <QPair>
#include <QTextBlock>
#include <QTextCursor>

#include <functional>

class QPlainTextEdit;

namespace nsModEditor {

/// Commands for whole lines of a text edit, at its cursor or its selection; each is one step to undo. A read-only text
/// edit is left as it is.
class LineCommands
{
public:
    /// What an indent consists of.
    struct sIndent_t
    {
        int width = 4;       ///< of a tab, in characters from 1
        bool blanks = false; ///< blanks up to the next tab stop, instead of one tab
    };

    explicit LineCommands(QPlainTextEdit* edit);
    LineCommands(QPlainTextEdit* edit, const sIndent_t& indent);

    /// A tab at the cursor, or in place of a selection inside one line, or in front of each line of the selection. With
    /// blanks, empty lines stay empty.
    void indent();
    /// Removes one blank or tab at the start of each line; with blanks up to the width of a tab.
    void deindent();
    /// Takes the blanks between the cursor and the tab stop before it away, where only blanks are before the cursor.
    /// @return false: nothing to do here
    bool removeIndent();
    /// Moves the cursor to the first character of its line that is no blank; from there to the start of the line.
    /// @return false: the line goes over several rows, where the key means the start of the row
    bool goToTextStart(bool select);
    /// A semicolon in front of each line; without a selection the cursor goes on to the next line.
    void commentOut();
    /// Removes the semicolon of each line that is a comment; without a selection the cursor goes on to the next line.
    void commentIn();
    void duplicateLine();
    /// The first and the last line that the commands concern.
    QPair<int, int> selectedLines() const;
    /// Exchanges the selected lines with the one above; nothing on the first line.
    void moveLineUp();
    /// Exchanges the selected lines with the one below; nothing on the last line.
    void moveLineDown();
    /// Makes comments of the selected lines, with the semicolons one below the other at the smallest indent. If all of
    /// them are comments, it takes the semicolons away again. Empty lines stay as they are.
    void toggleComment();
    /// Removes the selected lines.
    void deleteLines();
    /// Makes one line of the selected ones, or of the cursor's and the next one, with one blank in between.
    void joinLines();
    /// Sorts the selected lines, without regard to case at first.
    void sortLines();
    /// Changes the case of the selection, or of the word at the cursor.
    void changeCase(bool upper);
    /// Removes the blanks at the end of the lines. @param all of the document, not only the selected ones
    void removeTrailingBlanks(bool all);
    /// Replaces each line by what the function makes of it. @param all of the document, not only the selected ones
    void changeLines(bool all, const std::function<QString(const QString& line)>& change);

private:
    /// What a command does to one line. @param cursor anywhere in the line
    /// @return change of the length of the line
    using Command = std::function<int(QTextCursor cursor)>;

    void forSelectedLines(const Command& command);
    void goToNextLine();
    void exchangeLines(const QTextBlock& first, const QTextBlock& last, bool up);
    QString blanksToTabStop(const QTextCursor& cursor) const;
    QList<QTextBlock> selectedBlocks() const;
    QTextBlock firstSelectedBlock() const;
    QTextBlock lastSelectedBlock() const;

    QPlainTextEdit* m_edit; ///< not owned
    sIndent_t m_indent;
};

} // namespace nsModEditor
