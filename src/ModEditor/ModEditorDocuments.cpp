// Documents: their pages, the commands that others may call, and the way to their lines.

#include "ModEditor.h"

#include "DocumentCommands.h"
#include "DocumentKeeper.h"
#include "DocumentMarks.h"
#include "DocumentSync.h"
#include "EditorRecovery.h"
#include "EditorServices.h"
#include "EditorWidget.h"
#include "HelpRef.h"
#include "OpenDocuments.h"

#include "ModClipboardHookIf.h"
#include "ModFindReplaceHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrjHookIf.h"
#include "ModSourcesHookIf.h"

namespace nsModEditor {

namespace {

const int findReplaceFeatures = 3; ///< replace, and search for whole words

} // namespace

EditorWidget* ModEditor::newEditorWidget(const QString& path)
{
    auto* widget = new EditorWidget;
    connectEditorWidget(widget);
    m_documents->add(widget);
    if (m_keeper->recovery() != nullptr)
        m_keeper->recovery()->add(widget);
    HelpRef::set(widget, QStringLiteral("pageId://editor"));
    widget->setSyntaxHighlighterConfig(m_syntaxHighlighterConfig);
    widget->setTipManager(m_tipManager);
    widget->setSupportMenu(m_supportMenu);
    widget->setTextCompletionList(m_textCompletionList);
    configureEditorWidget(widget);
    if (modClipboardHook != nullptr)
        modClipboardHook->registerPluginWidget(this, widget);
    if (modFindReplaceHook != nullptr)
        modFindReplaceHook->registerPluginWidget(this, widget, findReplaceFeatures);
    if (!path.isEmpty())
        widget->setFilePath(path);
    if (modGuiHook != nullptr)
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationTabs, widget, m_services->nameOf(path));
    return widget;
}

void ModEditor::removeEditorWidget(EditorWidget* widget)
{
    m_keeper->session().noteClosing(widget);
    m_documents->remove(widget);
    if (m_keeper->recovery() != nullptr)
        m_keeper->recovery()->forget(widget);
    m_marks->forgetOne();
    m_sync->forget(widget);
    m_commands->forget(widget);
    if (modGuiHook != nullptr)
        modGuiHook->removeWidget(widget);
    if (modClipboardHook != nullptr)
        modClipboardHook->unregisterPluginWidget(widget);
    if (modFindReplaceHook != nullptr)
        modFindReplaceHook->unregisterPluginWidget(widget);
    delete widget;
    m_sync->watchDocuments();
    updateActionState();
}

QList<PrjStep> ModEditor::prjSteps()
{
    if (modPrjHook == nullptr || !modPrjHook->isValid() || modSourcesHook == nullptr)
        return {};
    const QStringList sources = modSourcesHook->files();
    if (sources.isEmpty())
        return {{PrjStep::eOrderSource - 1, true, tr("Write the first source"), tr("Opens an empty document"),
                 [this] { handleActions(EditorActionsFile::eActionNew); }}};
    QList<PrjStep> files;
    for (const QString& path : sources)
        files.append(
            {PrjStep::eOrderFile, false, modPrjHook->convToRelPath(path), tr("Opens this source"), [this, path] {
                 openFile(path);
                 m_documents->focusCurrent();
             }});
    return files;
}

void ModEditor::newFile(QString text)
{
    m_commands->newFile(text);
}

bool ModEditor::openFile(QString path)
{
    return m_commands->openFile(path) != nullptr;
}

bool ModEditor::selectFile(QString path)
{
    return m_commands->selectFile(path);
}

void ModEditor::saveAllFiles()
{
    m_commands->saveAllFiles();
}

bool ModEditor::saveFile()
{
    return m_commands->saveFile();
}

bool ModEditor::saveFileAs()
{
    return m_commands->saveFileAs();
}

bool ModEditor::saveFileAs(QString path)
{
    return m_commands->saveFileAs(path);
}

void ModEditor::reloadAllFiles()
{
    m_commands->reloadAllFiles();
}

void ModEditor::reloadFile()
{
    m_commands->reloadFile(m_documents->current());
}

void ModEditor::closeAllFiles()
{
    m_commands->closeAllFiles();
}

void ModEditor::closeOtherFiles()
{
    m_commands->closeOtherFiles();
}

void ModEditor::closeFile()
{
    m_commands->closeFile(m_documents->current());
}

void ModEditor::removeWidgetRequest(QWidget* widget)
{
    auto* document = qobject_cast<EditorWidget*>(widget);
    if (m_documents->contains(document))
        m_commands->closeFile(document);
}

void ModEditor::printFile()
{
    m_commands->printFile(m_documents->current());
}

void ModEditor::setCursorToLine(QString path, QString lineRef, int line)
{
    if (EditorWidget* widget = m_commands->openFile(path)) {
        widget->setCursorToLine(lineRef, line);
        widget->setFocus(); // the user wants to edit the line
    } else {
        m_services->showError(tr("Can not select line!"));
    }
}

void ModEditor::setCursorToLine(QString path, int line)
{
    if (EditorWidget* widget = m_commands->openFile(path)) {
        widget->setCursorToLine(line);
        widget->setFocus(); // the user wants to edit the line
    } else {
        m_services->showError(tr("Can not select line!"));
    }
}

/// The line that a link names in its fragment, counted from 0.
int ModEditor::lineOf(const QUrl& url)
{
    return url.fragment().toInt();
}

void ModEditor::setCursorToLine(QUrl url)
{
    setCursorToLine(url.path(), lineOf(url));
}

void ModEditor::clearLineHighlited()
{
    m_isMessageFlagged = false;
    for (EditorWidget* widget : m_documents->all())
        widget->clearLineHighlighted();
}

void ModEditor::setLineHighlighted(QUrl url)
{
    setLineHighlighted(url.path(), lineOf(url));
}

void ModEditor::setLineHighlighted(QString path, int line)
{
    EditorWidget* widget = m_commands->openFile(path);
    if (widget == nullptr) {
        m_services->showError(tr("Can not highlight line!"));
        return;
    }
    clearLineHighlited();
    widget->setLineHighlighted(line);
}

void ModEditor::markLine(QString path, int line)
{
    clearLineHighlited();
    for (EditorWidget* widget : m_documents->all()) {
        if (widget->filePath() == path)
            widget->markLine(line);
    }
}

bool ModEditor::cursorLine(QString* path, int* line)
{
    EditorWidget* widget = m_documents->current();
    if (widget == nullptr) {
        m_services->showError(tr("Please select a text file to get the cursor line!"));
        return false;
    }
    const int cursor = widget->cursorLine();
    if (cursor < 0) {
        m_services->showError(tr("The current text file has no cursor!"));
        return false;
    }
    if (widget->filePath().isEmpty()) {
        m_services->showError(tr("The current text file is not saved!"));
        return false;
    }
    *path = widget->filePath();
    *line = cursor;
    return true;
}

void ModEditor::insertText(QString text)
{
    if (EditorWidget* widget = m_documents->current())
        widget->insertText(text);
}

} // namespace nsModEditor
