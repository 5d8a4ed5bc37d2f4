#pragma once

#include "LineMarks.h"
#include "SplitViews.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>
#include <QMap>
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
    /// A document is about to be closed: its marks are kept for the next time that it is opened.
    void noteClosing(EditorWidget* widget);
    /// A document was opened again, after restore(), and gets its marks back if the user wants marks to be kept.
    void noteOpened(EditorWidget* widget);
    // Also of documents that are closed.
    void clearBreakpoints();
    void clearBookmarks();
    /// No project is open any more.
    void clear() { m_closed.clear(); }

    /// The file of a project.
    static QString fileOf(const QString& project);

private:
    QJsonObject stateOf(EditorWidget* widget, bool keepMarks) const;
    void keepClosed(const QString& file, const LineMarks& breakpoints, const LineMarks& bookmarks);
    void restoreState(EditorWidget* widget, const QJsonObject& state, bool keepMarks, bool keepsCursor) const;

    const OpenDocuments* m_documents;
    EditorServices* m_services;
    SplitViews m_splitViews;
    QMap<QString, sDocumentMarks_t> m_closed; ///< of documents that were closed, by their name in the project
};

} // namespace nsModEditor
