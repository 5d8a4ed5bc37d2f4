#pragma once

#include <QObject>

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

    /// The lines from first to last have moved by one: down, and the one below them to their front, or up.
    void moveLines(int first, int last, bool up);

private:
    void follow(int position, int removed, int added);
    template <class Function>
    void map(Function newLine);

    EditorWidget* m_editor;
    sDocumentMarks_t* m_marks;
    int m_lineCount = 1; ///< of the text before a change
};

} // namespace nsModEditor
