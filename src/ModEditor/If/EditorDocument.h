#pragma once

#include <QPlainTextEdit>
#include <QString>
#include <QVector>

class QHelpEvent;
class QMenu;

namespace nsModEditor {

/// What a message says about a piece of a document.
struct sMessageMark
{
    enum eGrade_t { gradeInfo = 0, gradeWarning = 1, gradeError = 2 };

    eGrade_t grade = gradeError;
    int line = 0;   ///< from 0 on
    int column = 0; ///< of the first character, from 0 on
    int length = 0; ///< characters
    QString text;
};

/// An open document, for modules that work with its text. Owned by the editor.
class EditorDocument : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit EditorDocument(QWidget* parent = nullptr);

    /// Absolute; empty for a document that has no file yet.
    virtual QString filePath() const = 0;
    /// One line feed between lines.
    virtual QString text() const = 0;
    /// Marks these places, in the order of the lines, instead of those before. They move with the text.
    virtual void setMessageMarks(const QVector<sMessageMark>& marks) = 0;
    /// Texts of the marks in a line, from 0 on.
    virtual QStringList messagesAt(int line) const = 0;
    /// Where a mark is now. @param index of those that were set. @return null if there is no such mark
    virtual QTextCursor messagePlace(int index) const = 0;

signals:
    /// The menu of the text is about to be shown: entries can be added in front. It lives until it is closed.
    void menuRequested(QMenu* menu);
    /// The pointer rests on a view that shows this document beside it.
    void tipRequested(QPlainTextEdit* view, QHelpEvent* event);
};

} // namespace nsModEditor
