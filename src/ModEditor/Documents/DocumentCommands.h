#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

class QPrinter;

namespace nsModEditor {

class DocumentKeeper;
class DocumentPages;
class DocumentSync;
class EditorServices;
class EditorWidget;
class OpenDocuments;

/// Makes, opens, reloads, saves, prints and closes documents, and asks before a text is lost. Questions nest the event
/// loop: a document may be gone after each of them.
class DocumentCommands : public QObject
{
    Q_OBJECT

public:
    /// Reads the open documents; writes them through pages and sync, and keeps what is not saved. Not owned.
    DocumentCommands(const OpenDocuments* documents, EditorServices* services, DocumentKeeper* keeper,
                     DocumentSync* sync, DocumentPages* pages, QObject* parent = nullptr);

    /// Folder that the next dialog for saving starts in, absolute.
    void setFolder(const QString& folder) { m_lastPath = folder; }

    /// A reload is a step that can be undone; otherwise it forgets all steps.
    void setReloadKeepsUndo(bool keeps) { m_reloadKeepsUndo = keeps; }

    void newFile(const QString& text);
    /// Shows the document of this path, which is opened if it is not yet.
    /// @return null: the reason has been reported, or the user has closed the page again
    EditorWidget* openFile(const QString& path);
    void openFilesByDialog();
    void openDroppedFiles(const QStringList& paths);
    /// @return false: there is no document of this path
    bool selectFile(const QString& path);

    bool saveFile();
    void saveAllFiles();
    bool saveFileAs();
    bool saveFileAs(const QString& path);
    void reloadFile(EditorWidget* widget);
    void reloadAllFiles();
    /// @param widget may be null
    void closeFile(EditorWidget* widget);
    void closeAllFiles();
    void closeOtherFiles();
    /// Asks for each changed document whether it is to be saved.
    /// @param isNew the user can not read the messages any more: the next start is to report what was kept
    void settleFiles(bool isNew);

    /// Changes the format in which the current document will be written. @param lineEnd a DocumentFormat::eLineEnd_t
    void setLineEnd(int lineEnd);
    /// The same for its byte order mark, which only UTF-8 can have.
    void setMark(bool mark);

    /// Asks for the printer. @param widget may be null
    void printFile(EditorWidget* widget);
    /// Prints the document, or what is selected in it, as the printer is set.
    void printFile(EditorWidget* widget, QPrinter* printer);

    /// The document is being closed.
    void forget(EditorWidget* widget) { m_givenUp.remove(widget); }

signals:
    /// The document has another name, to be shown on its page.
    void renamed(nsModEditor::EditorWidget* widget, const QString& name);

private:
    bool saveFile(EditorWidget* widget);
    bool saveFileAs(EditorWidget* widget);
    /// The document has this file from now on.
    bool saveUnder(EditorWidget* widget, const QString& path);
    void closeFiles(const QList<EditorWidget*>& widgets);
    void settleFile(EditorWidget* widget, bool isNew);

    const OpenDocuments* m_documents; ///< not owned
    EditorServices* m_services;       ///< not owned
    DocumentKeeper* m_keeper;         ///< not owned
    DocumentSync* m_sync;             ///< not owned
    DocumentPages* m_pages;           ///< not owned
    QString m_lastPath;
    bool m_reloadKeepsUndo = false;
    QHash<EditorWidget*, QString> m_givenUp; ///< texts that the user has agreed to lose
};

} // namespace nsModEditor
