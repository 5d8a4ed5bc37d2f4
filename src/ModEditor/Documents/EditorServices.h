#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <functional>

class ModMsgPluginIf;
class ModPrjPluginIf;
class ModSourcesPluginIf;

namespace nsModEditor {

/// What documents need around them: messages and questions to the user, names as the project has them, and reading and
/// writing of files with the reports that belong to it.
class EditorServices
{
    Q_DECLARE_TR_FUNCTIONS(nsModEditor::EditorServices)

public:
    /// Reads the hooks of messages, project and sources at each call; each of them may be missing. Not owned.
    EditorServices(const ModMsgPluginIf* msg, const ModPrjPluginIf* prj, const ModSourcesPluginIf* sources);

    /// Reads a whole file. @return false: the reason has been reported
    bool readFile(const QString& path, QByteArray* bytes);
    /// Replaces the file as a whole. @return false: the reason has been reported
    bool writeFile(const QString& path, const QByteArray& bytes);

    /// A modal question, which Enter and Esc answer with no. @param path the file it is about, may be empty
    bool ask(const QString& title, const QString& first, const QString& path, const QStringList& closing) const;
    bool askForSave(const QString& path) const;
    bool askForReload(const QString& path) const;
    bool askForProjectMember(const QString& path) const;

    void showError(const QString& text);
    void showWarning(const QString& text) const;
    void showInfo(const QString& text) const;
    /// Runs an action of the user in a message group, so that a run started by it does not clear its messages. An error
    /// makes the group a failure; a cancelled dialog does not. @return what the action returns
    bool inGroup(const QString& text, const std::function<bool()>& action);

    bool isProjectOpen() const;
    /// Folder of the project, absolute; empty without a project module.
    QString projectFolder() const;
    /// The file of the open project, absolute; empty if none is open.
    QString projectFile() const;
    /// The path as it is shown.
    QString relPath(const QString& path) const;
    /// The same for a document, which may be in no file yet. @param path empty for none
    QString nameOf(const QString& path) const;
    /// Offers a file to the open project. May ask a question, so that documents are closed meanwhile.
    void chkProjectMembership(const QString& path) const;
    /// Others shall look at the files again.
    void setFileContentChanged() const;

private:
    const ModMsgPluginIf* m_msg;
    const ModPrjPluginIf* m_prj;
    const ModSourcesPluginIf* m_sources;
    bool m_errorShown = false; ///< the present action of the user has reported an error
};

} // namespace nsModEditor
