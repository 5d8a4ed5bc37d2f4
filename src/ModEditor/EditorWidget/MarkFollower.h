#pragma once

#include <QObject>
#include <QString>
#include <QVector>

#include <functional>

namespace nsModEditor {

class EditorWidget;
struct sDocumentMarks_t;

/// Keeps the marks of a document on their text when lines come and go before them, if the user wants it so. A mark
/// whose line is removed goes with it.
class MarkFollower : public QObject
{
    Q_OBJECT

public:
    /// @param editor owns the object @param marks of it, not owned
    MarkFollower(EditorWidget* editor, sDocumentMarks_t* marks);

    /// Runs an edit that moves the lines from first to last by one: down, and the one below them to their front, or up.
    /// Its undo and redo move the marks, too.
    void moveLines(int first, int last, bool up, const std::function<void()>& edit);

private:
    /// A change that has exchanged lines, and how many steps there were to undo before and after it.
    struct sMove_t
    {
        int before = 0;
        int after = 0;
        int from = 0; ///< line that went to the other side of its neighbours
        int to = 0;   ///< where it went
        QString text; ///< of it
    };

    void follow(int position, int removed, int added);
    void followSteps();
    void exchange(int from, int to);
    template <class Function>
    void map(Function newLine);

    EditorWidget* m_editor;
    sDocumentMarks_t* m_marks;
    bool m_isMoving = false;
    int m_lineCount = 1;      ///< of the text before a change
    int m_steps = 0;          ///< to undo, with the last change
    QVector<sMove_t> m_moves; ///< those that can be undone or done again
};

} // namespace nsModEditor
