#include "EditorServices.h"

#include "DialogParent.h"
#include "DocumentOnDisk.h"
#include "SafeFile.h"

#include "ModMsgHookIf.h"
#include "ModMsgPluginIf.h"
#include "ModPrjHookIf.h"
#include "ModPrjPluginIf.h"
#include "ModSourcesHookIf.h"
#include "ModSourcesPluginIf.h"
#include "MsgGroup.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>

namespace nsModEditor {

EditorServices::EditorServices(const ModMsgPluginIf* msg, const ModPrjPluginIf* prj, const ModSourcesPluginIf* sources)
    : m_msg(msg)
    , m_prj(prj)
    , m_sources(sources)
{
}

bool EditorServices::readFile(const QString& path, QByteArray* bytes)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        showError(tr("File does not exist: ") + path);
        return false;
    }
    if (!info.isReadable()) {
        showError(tr("No read access for file: ") + path);
        return false;
    }
    if (!info.isWritable())
        showWarning(tr("File is not writable: ") + path);
    // Reading a folder, a pipe or a device might never end; a larger file is not opened.
    QFile file(path);
    if (!info.isFile() || info.size() > DocumentOnDisk::maxFileSize || !file.open(QIODevice::ReadWrite)) {
        showError(tr("Can not open file: ") + path);
        return false;
    }
    *bytes = file.readAll();
    // A document that is the beginning of its file only would be saved as the whole.
    if (file.error() != QFileDevice::NoError || bytes->size() < file.size()) {
        showError(tr("Can not open file: ") + path);
        return false;
    }
    return true;
}

bool EditorServices::writeFile(const QString& path, const QByteArray& bytes)
{
    SafeFile file(path);
    const bool opened = file.open();
    if (opened && file.write(bytes) == bytes.size() && file.commit())
        return true;
    showError((opened ? tr("Can not write data to file: ") : tr("Can not open file: ")) + path);
    showInfo(tr("Reason: ") + file.errorString());
    return false;
}

bool EditorServices::ask(const QString& title, const QString& first, const QString& path,
                         const QStringList& closing) const
{
    QString text = "<p>" + first + "</p>";
    if (!path.isEmpty())
        text += "<p><b>" + relPath(path).toHtmlEscaped() + "</b><p>";
    for (const QString& line : closing)
        text += "<p>" + line + "</p>";
    return QMessageBox::question(DialogParent::get(), title, text, QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

bool EditorServices::askForSave(const QString& path) const
{
    return ask(tr("File was modified"), tr("The file was changed."), path,
               {tr("Do you want to save the file before closing?")});
}

bool EditorServices::askForReload(const QString& path) const
{
    return ask(tr("File was modified"), tr("The file was changed:"), path,
               {tr("If you continue to reload all changes will be lost."), tr("Do you want to continue?")});
}

bool EditorServices::askForProjectMember(const QString& path) const
{
    return ask(tr("Add file to project"), tr("The file is not added to the project:"), path,
               {tr("Do you want to add the file to the project?")});
}

void EditorServices::showError(const QString& text)
{
    m_errorShown = true;
    if (m_msg->modMsgHook != nullptr)
        m_msg->modMsgHook->showErrorMessage(text);
}

void EditorServices::showWarning(const QString& text) const
{
    if (m_msg->modMsgHook != nullptr)
        m_msg->modMsgHook->showWarningMessage(text);
}

void EditorServices::showInfo(const QString& text) const
{
    if (m_msg->modMsgHook != nullptr)
        m_msg->modMsgHook->showInfoMessage(text);
}

bool EditorServices::inGroup(const QString& text, const std::function<bool()>& action)
{
    nsModMsg::MsgGroup group(m_msg->modMsgHook, text);
    m_errorShown = false;
    const bool success = action();
    group.end(!m_errorShown);
    return success;
}

bool EditorServices::isProjectOpen() const
{
    return m_prj->modPrjHook != nullptr && m_prj->modPrjHook->isValid();
}

QString EditorServices::projectFolder() const
{
    return m_prj->modPrjHook != nullptr ? m_prj->modPrjHook->prjDir().absolutePath() : QString();
}

QString EditorServices::projectFile() const
{
    return isProjectOpen() ? m_prj->modPrjHook->prjDir().absoluteFilePath(m_prj->modPrjHook->prjFileName()) : QString();
}

QString EditorServices::relPath(const QString& path) const
{
    return m_prj->modPrjHook != nullptr && !path.isEmpty() ? m_prj->modPrjHook->convToRelPath(path) : path;
}

QString EditorServices::nameOf(const QString& path) const
{
    return path.isEmpty() ? tr("Untitled") : relPath(path);
}

void EditorServices::chkProjectMembership(const QString& path) const
{
    // Without a project there is nothing that a file could be a member of.
    if (m_sources->modSourcesHook != nullptr && isProjectOpen())
        m_sources->modSourcesHook->chkProjectMembership(path);
}

void EditorServices::setFileContentChanged() const
{
    if (m_sources->modSourcesHook != nullptr)
        m_sources->modSourcesHook->setFileContentChanged();
}

} // namespace nsModEditor
