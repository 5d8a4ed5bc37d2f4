#pragma once

#include <QFrame>
#include <QPointer>

class QLineEdit;

namespace nsModEditor {

class EditorWidget;

/// The field for the number of a line to go to, at the upper edge of a document. It closes when it loses the focus.
class GotoLineField : public QFrame
{
    Q_OBJECT

public:
    /// Shows the field of the document; there is one at most. @return owned by the document
    static GotoLineField* open(EditorWidget* editor);

    /// Goes to "LINE" or "LINE:COLUMN", both counted from 1; beyond the end to the last one.
    /// @return false: this is no place
    static bool goTo(EditorWidget* editor, const QString& place);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit GotoLineField(EditorWidget* editor);
    void close();

    EditorWidget* m_editor;
    QLineEdit* m_edit;
};

} // namespace nsModEditor
