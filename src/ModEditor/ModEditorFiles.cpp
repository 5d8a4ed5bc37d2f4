// Files and questions: reading and writing, and the questions that are asked before data is lost.

#include "ModEditor.h"

#include "EditorWidget.h"
#include "SafeFile.h"

#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "ModSourcesHookIf.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>

namespace nsModEditor {

bool ModEditor::readFile(const QString& path, QByteArray* bytes)
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
    if (!info.isFile() || info.size() > maxFileSize || !file.open(QIODevice::ReadWrite)) {
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

/// The bytes of a document for its file.
QByteArray ModEditor::encoded(EditorWidget* widget)
{
    const QString text = widget->text();
    DocumentFormat format = widget->format();
    if (!format.canEncode(text)) {
        // The text has a character that Latin-1 does not have: the document changes to UTF-8.
        format.setEncoding(DocumentFormat::eEncodingUtf8);
        widget->setFormat(format);
        showWarning(tr("File is written as UTF-8 from now on: ") + widget->filePath());
    }
    return format.encode(text);
}

bool ModEditor::writeFile(const QString& path, const QByteArray& bytes)
{
    SafeFile file(path);
    const bool opened = file.open();
    if (opened && file.write(bytes) == bytes.size() && file.commit())
        return true;
    showError((opened ? tr("Can not write data to file: ") : tr("Can not open file: ")) + path);
    if (modMsgHook != nullptr)
        modMsgHook->showInfoMessage(tr("Reason: ") + file.errorString());
    return false;
}

bool ModEditor::ask(const QString& title, const QString& first, const QString& path, const QStringList& closing)
{
    QString text = "<p>" + first + "</p>";
    if (!path.isEmpty())
        text += "<p><b>" + convToRelPath(path).toHtmlEscaped() + "</b><p>";
    for (const QString& line : closing)
        text += "<p>" + line + "</p>";
    return QMessageBox::question(QApplication::activeWindow(), title, text, QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

bool ModEditor::askForSave(const QString& path)
{
    return ask(tr("File was modified"), tr("The file was changed."), path,
               {tr("Do you want to save the file before closing?")});
}

bool ModEditor::askForReload(const QString& path)
{
    return ask(tr("File was modified"), tr("The file was changed:"), path,
               {tr("If you continue to reload all changes will be lost."), tr("Do you want to continue?")});
}

bool ModEditor::askForProjectMember(const QString& path)
{
    return ask(tr("Add file to project"), tr("The file is not added to the project:"), path,
               {tr("Do you want to add the file to the project?")});
}

void ModEditor::setFileContentChanged()
{
    if (modSourcesHook != nullptr)
        modSourcesHook->setFileContentChanged();
}

void ModEditor::chkProjectMembership(const QString& path)
{
    // Without a project there is nothing that a file could be a member of.
    if (modSourcesHook != nullptr && modPrjHook != nullptr && modPrjHook->isValid())
        modSourcesHook->chkProjectMembership(path);
}

QString ModEditor::convToRelPath(const QString& path) const
{
    return modPrjHook != nullptr && !path.isEmpty() ? modPrjHook->convToRelPath(path) : path;
}

void ModEditor::showError(const QString& text)
{
    m_errorShown = true;
    if (modMsgHook != nullptr)
        modMsgHook->showErrorMessage(text);
}

void ModEditor::showWarning(const QString& text)
{
    if (modMsgHook != nullptr)
        modMsgHook->showWarningMessage(text);
}

} // namespace nsModEditor
