#pragma once

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
    explicit LineCommands(QPlainTextEdit* edit);

    /// A tab at the cursor, or in place of a selection inside one line, or in front of each line of the selection.
    void indent();
    /// Removes one blank or tab at the start of each line.
    void deindent();
    /// A semicolon in front of each line; without a selection the cursor goes on to the next line.
    void commentOut();
    /// Removes the semicolon of each line that is a comment; without a selection the cursor goes on to the next line.
    void commentIn();
    void duplicateLine();
    /// Exchanges the selected lines with the one above; nothing on the first line.
    void moveLineUp();
    /// Exchanges the selected lines with the one below; nothing on the last line.
    void moveLineDown();

private:
    /// What a command does to one line. @param cursor anywhere in the line
    /// @return change of the length of the line
    using Command = std::function<int(QTextCursor cursor)>;

    void forSelectedLines(const Command& command);
    void goToNextLine();
    void exchangeLines(const QTextBlock& first, const QTextBlock& last, bool up);
    QTextBlock firstSelectedBlock() const;
    QTextBlock lastSelectedBlock() const;

    QPlainTextEdit* m_edit; ///< not owned
};

} // namespace nsModEditor
