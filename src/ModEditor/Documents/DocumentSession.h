#pragma once

#include "SplitViews.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

namespace nsModEditor {

class EditorServices;
class EditorWidget;
class OpenDocuments;

/// What this user has seen of the documents of a project: places, how pages are split, and if the user wants it, marks
/// and zoom. It stands in a file of its own beside the project file, so that the project is the same for all of its
/// users.
///
/// The file is never in the way: where it can not be written, nothing is kept.
class DocumentSession
{
    Q_DECLARE_TR_FUNCTIONS(nsModEditor::DocumentSession)

public:
    /// Reads and writes the open documents. Not owned.
    DocumentSession(const OpenDocuments* documents, EditorServices* services);

    /// @param project path of the project's file @param keepMarks marks and zoom, too
    void save(const QString& project, bool keepMarks);
    /// Gives the open documents their places of the last session. A file that is damaged, or of another program, is
    /// ignored with a message.
    /// @param isNewer the cursors have been set from a newer source, and stay
    void restore(const QString& project, bool keepMarks, bool isNewer);

    /// The file of a project.
    static QString fileOf(const QString& project);

private:
    QJsonObject stateOf(EditorWidget* widget, bool keepMarks) const;
    void restoreState(EditorWidget* widget, const QJsonObject& state, bool keepMarks, bool keepsCursor) const;

    const OpenDocuments* m_documents;
    EditorServices* m_services;
    SplitViews m_splitViews;
};

} // namespace nsModEditor
