#pragma once

#include "DocumentSession.h"
#include "RecoveryStore.h"

#include <QObject>

#include <memory>

namespace nsModEditor {

class EditorRecovery;
class EditorServices;
class EditorWidget;
class OpenDocuments;

/// What must not be lost: puts texts aside that are in no file, tells the user so, and notes what is open.
class DocumentKeeper : public QObject
{
    Q_OBJECT

public:
    /// Reads the open documents and the project; writes the recovery store. Not owned.
    DocumentKeeper(const OpenDocuments* documents, EditorServices* services, QObject* parent = nullptr);
    ~DocumentKeeper() override;

    /// Nothing is kept before start() and after stop().
    void start();
    void stop();
    /// Null if nothing is kept.
    EditorRecovery* recovery() const { return m_recovery.get(); }

    /// Puts the text of the document aside and reports where it is.
    /// @param isNew the next start is to tell the user of it. @return false: the failure has been reported
    bool keepText(EditorWidget* widget, bool isNew);
    /// Puts the changed text of a document aside before that of its file replaces it. Undo does not bring it back where
    /// the document is being closed, or where the file can only be read.
    bool keepReplacedText(EditorWidget* widget);
    /// What was put aside is no longer that of the document.
    void release(EditorWidget* widget);
    bool isKept(EditorWidget* widget) const;

    /// What was open when the program was killed in the open project; without a project if it was not.
    RecoveryStore::Session takeSession();
    /// What comes back the next time that the project is opened.
    DocumentSession& session() { return m_session; }
    /// No project is open any more.
    void clearSession();

private:
    void keepSession();

    const OpenDocuments* m_documents; ///< not owned
    EditorServices* m_services;       ///< not owned
    std::unique_ptr<EditorRecovery> m_recovery;
    DocumentSession m_session;
};

} // namespace nsModEditor
