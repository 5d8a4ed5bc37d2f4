// Documents: making, opening, reloading, saving, printing and closing them, and the way to their lines.

#include "ModEditor.h"

#include "EditorRecovery.h"
#include "EditorWidget.h"

#include "ModClipboardHookIf.h"
#include "ModFindReplaceHookIf.h"
#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "MsgGroup.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>

namespace nsModEditor {

namespace {

const int findReplaceFeatures = 3; ///< replace, and search for whole words

/// A new page without a file, a text or a change.
bool isUntouched(EditorWidget* widget)
{
    return widget->filePath().isEmpty() && !widget->isModified() && widget->document()->isEmpty();
}

void setupDialog(QFileDialog* dialog)
{
    dialog->setNameFilters({ModEditor::tr("Assembler files(*.psm)"), ModEditor::tr("Any files(*)")});
    dialog->setDefaultSuffix("psm");
    dialog->setViewMode(QFileDialog::List);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
}

} // namespace

EditorWidget* ModEditor::currentEditorWidget() const
{
    if (modGuiHook == nullptr)
        return nullptr;
    auto* widget = qobject_cast<EditorWidget*>(modGuiHook->currentWidget(ModGuiHookIf::eLocationTabs));
    return m_editorWidgets.contains(widget) ? widget : nullptr;
}

EditorWidget* ModEditor::newEditorWidget(const QString& path)
{
    auto* widget = new EditorWidget;
    connectEditorWidget(widget);
    m_editorWidgets.append(widget);
    if (m_recovery != nullptr)
        m_recovery->add(widget);
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
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationTabs, widget,
                              path.isEmpty() ? tr("Untitled") : convToRelPath(path));
    return widget;
}

void ModEditor::removeEditorWidget(EditorWidget* widget)
{
    m_editorWidgets.removeOne(widget);
    if (m_recovery != nullptr)
        m_recovery->forget(widget);
    // Its breakpoints are removed with it.
    ++m_simBreakpointsRevision;
    m_disk.remove(widget);
    if (modGuiHook != nullptr)
        modGuiHook->removeWidget(widget);
    if (modClipboardHook != nullptr)
        modClipboardHook->unregisterPluginWidget(widget);
    if (modFindReplaceHook != nullptr)
        modFindReplaceHook->unregisterPluginWidget(widget);
    delete widget;
    watchDocuments();
    updateActionState();
}

void ModEditor::focusCurrentWidget()
{
    if (EditorWidget* widget = currentEditorWidget())
        widget->setFocus();
}

void ModEditor::newFile(QString text)
{
    EditorWidget* widget = newEditorWidget(QString());
    widget->setText(text);
    // What a script or an import brings is nowhere on the disk.
    widget->document()->setModified(!text.isEmpty());
}

EditorWidget* ModEditor::openFileWidget(const QString& path)
{
    for (EditorWidget* widget : qAsConst(m_editorWidgets)) {
        if (widget->filePath() == path) {
            if (modGuiHook != nullptr)
                modGuiHook->setCurrentWidget(widget);
            return widget;
        }
    }
    QByteArray bytes;
    if (!readFile(path, &bytes))
        return nullptr;
    QPointer<EditorWidget> widget = newEditorWidget(path);
    showContent(widget, bytes);
    // While this asks a question, the user can close the page.
    chkProjectMembership(path);
    return m_editorWidgets.contains(widget) ? widget.data() : nullptr;
}

bool ModEditor::openFile(QString path)
{
    return openFileWidget(path) != nullptr;
}

void ModEditor::openFilesByDialog()
{
    QFileDialog dialog(nullptr, tr("Open file"),
                       modPrjHook != nullptr ? modPrjHook->prjDir().absolutePath() : QString());
    setupDialog(&dialog);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    if (dialog.exec() != QDialog::Accepted)
        return;
    for (const QString& path : dialog.selectedFiles())
        openFile(path);
}

void ModEditor::openDroppedFiles(const QStringList& paths)
{
    for (const QString& path : paths)
        openFile(path);
    focusCurrentWidget();
}

bool ModEditor::selectFile(QString path)
{
    for (EditorWidget* widget : qAsConst(m_editorWidgets)) {
        if (widget->filePath() != path)
            continue;
        if (modGuiHook != nullptr)
            modGuiHook->setCurrentWidget(widget);
        return true;
    }
    return false;
}

bool ModEditor::saveFile(EditorWidget* widget)
{
    if (widget == nullptr)
        return false;
    if (widget->filePath().isEmpty())
        return saveFileAs(widget);
    return saveChecked(widget);
}

/// Runs an action of the user in a message group, so that a run started by it does not clear its messages. An error
/// makes the group a failure; a cancelled dialog does not.
template <class Action>
bool ModEditor::inGroup(const QString& text, Action action)
{
    nsModMsg::MsgGroup group(modMsgHook, text);
    m_errorShown = false;
    const bool success = action();
    group.end(!m_errorShown);
    return success;
}

bool ModEditor::saveFile()
{
    return inGroup(tr("Saving..."), [this] {
        const bool success = saveFile(currentEditorWidget());
        setFileContentChanged();
        return success;
    });
}

void ModEditor::saveAllFiles()
{
    inGroup(tr("Saving..."), [this] {
        // While the dialog for an untitled document is open, the user can close pages.
        const QList<EditorWidget*> widgets = m_editorWidgets;
        for (EditorWidget* widget : widgets) {
            // A file that the user has not touched here is left to whoever may have changed or removed it, and a page
            // that nobody has typed into needs no name.
            if (m_editorWidgets.contains(widget) && !isUntouched(widget) &&
                (widget->isModified() || !m_disk.value(widget).onDisk.isKnown()))
                saveFile(widget);
        }
        setFileContentChanged();
        return true;
    });
}

bool ModEditor::saveFileAs(EditorWidget* widget)
{
    if (widget == nullptr)
        return false;
    QFileDialog dialog(nullptr, tr("Save file"), m_lastPath);
    setupDialog(&dialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    if (dialog.exec() != QDialog::Accepted || !m_editorWidgets.contains(widget))
        return false;
    const QStringList names = dialog.selectedFiles();
    if (names.size() != 1 || names.first().isEmpty())
        return false;
    const QString name = names.first();
    if (!canSaveAs(widget, name))
        return false;
    m_lastPath = QFileInfo(name).absolutePath();
    setNewPath(widget, name);
    chkProjectMembership(name);
    if (!m_editorWidgets.contains(widget) || !writeDocument(widget))
        return false;
    if (modGuiHook != nullptr)
        modGuiHook->setWidgetName(widget, convToRelPath(name));
    return true;
}

bool ModEditor::saveFileAs()
{
    return inGroup(tr("Saving..."), [this] {
        const bool success = saveFileAs(currentEditorWidget());
        setFileContentChanged();
        return success;
    });
}

bool ModEditor::saveFileAs(QString path)
{
    EditorWidget* widget = currentEditorWidget();
    if (path.isEmpty() || widget == nullptr)
        return false;
    return inGroup(tr("Saving..."), [this, widget, path] {
        if (!canSaveAs(widget, path))
            return false;
        setNewPath(widget, path);
        chkProjectMembership(path);
        if (!m_editorWidgets.contains(widget) || !writeDocument(widget))
            return false;
        if (modGuiHook != nullptr)
            modGuiHook->setWidgetName(widget, convToRelPath(path));
        setFileContentChanged();
        return true;
    });
}

void ModEditor::reloadFile(EditorWidget* widget)
{
    if (widget == nullptr || widget->filePath().isEmpty())
        return;
    const QString path = widget->filePath();
    if (widget->isModified()) {
        if (!askForReload(path) || !m_editorWidgets.contains(widget))
            return;
        keepText(widget, false);
        m_recovery->release(widget);
    }
    QByteArray bytes;
    if (m_editorWidgets.contains(widget) && readFile(path, &bytes))
        showContent(widget, bytes);
}

void ModEditor::reloadFile()
{
    reloadFile(currentEditorWidget());
}

void ModEditor::reloadAllFiles()
{
    const QList<EditorWidget*> widgets = m_editorWidgets;
    for (EditorWidget* widget : widgets) {
        if (m_editorWidgets.contains(widget))
            reloadFile(widget);
    }
}

void ModEditor::closeFile(EditorWidget* widget)
{
    if (widget == nullptr)
        return;
    settleFile(widget, false);
    if (m_editorWidgets.contains(widget))
        removeEditorWidget(widget);
}

void ModEditor::closeFile()
{
    closeFile(currentEditorWidget());
}

void ModEditor::closeFiles(const QList<EditorWidget*>& widgets)
{
    const auto close = [this, &widgets] {
        for (EditorWidget* widget : widgets) {
            if (m_editorWidgets.contains(widget))
                closeFile(widget);
        }
        return true;
    };
    // Only a save can report. A close that saves nothing leaves the messages of the last run alone.
    if (std::any_of(widgets.begin(), widgets.end(), [](EditorWidget* widget) { return widget->isModified(); }))
        inGroup(tr("Closing..."), close);
    else
        close();
}

void ModEditor::closeAllFiles()
{
    const QList<EditorWidget*> widgets = m_editorWidgets;
    closeFiles(widgets);
}

void ModEditor::closeOtherFiles()
{
    QList<EditorWidget*> widgets = m_editorWidgets;
    widgets.removeOne(currentEditorWidget());
    closeFiles(widgets);
}

void ModEditor::removeWidgetRequest(QWidget* widget)
{
    auto* document = qobject_cast<EditorWidget*>(widget);
    if (m_editorWidgets.contains(document))
        closeFile(document);
}

void ModEditor::printFile(EditorWidget* widget)
{
    if (widget == nullptr)
        return;
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, widget);
    dialog.setWindowTitle(tr("Print Document"));
    dialog.setOption(QAbstractPrintDialog::PrintSelection, widget->hasSelection());
    if (dialog.exec() == QDialog::Accepted && m_editorWidgets.contains(widget))
        printFile(widget, &printer);
}

void ModEditor::printFile(EditorWidget* widget, QPrinter* printer)
{
    const QString name = widget->filePath().isEmpty() ? tr("Untitled") : convToRelPath(widget->filePath());
    if (!PrintedPages::print(widget->printJob(name, printer->printRange() == QPrinter::Selection), printer))
        showError(tr("Can not print: ") + name);
}

void ModEditor::printFile()
{
    printFile(currentEditorWidget());
}

void ModEditor::setCursorToLine(QString path, QString lineRef, int line)
{
    if (EditorWidget* widget = openFileWidget(path)) {
        widget->setCursorToLine(lineRef, line);
        widget->setFocus(); // the user wants to edit the line
    } else {
        showError(tr("Can not select line!"));
    }
}

void ModEditor::setCursorToLine(QString path, int line)
{
    if (EditorWidget* widget = openFileWidget(path)) {
        widget->setCursorToLine(line);
        widget->setFocus(); // the user wants to edit the line
    } else {
        showError(tr("Can not select line!"));
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
    for (EditorWidget* widget : qAsConst(m_editorWidgets))
        widget->clearLineHighlighted();
}

void ModEditor::setLineHighlighted(QUrl url)
{
    setLineHighlighted(url.path(), lineOf(url));
}

void ModEditor::setLineHighlighted(QString path, int line)
{
    EditorWidget* widget = openFileWidget(path);
    if (widget == nullptr) {
        showError(tr("Can not highlight line!"));
        return;
    }
    clearLineHighlited();
    widget->setLineHighlighted(line);
}

void ModEditor::markLine(QString path, int line)
{
    clearLineHighlited();
    for (EditorWidget* widget : qAsConst(m_editorWidgets)) {
        if (widget->filePath() == path)
            widget->markLine(line);
    }
}

bool ModEditor::cursorLine(QString* path, int* line)
{
    EditorWidget* widget = currentEditorWidget();
    if (widget == nullptr) {
        showError(tr("Please select a text file to get the cursor line!"));
        return false;
    }
    const int cursor = widget->cursorLine();
    if (cursor < 0) {
        showError(tr("The current text file has no cursor!"));
        return false;
    }
    if (widget->filePath().isEmpty()) {
        showError(tr("The current text file is not saved!"));
        return false;
    }
    *path = widget->filePath();
    *line = cursor;
    return true;
}

void ModEditor::insertText(QString text)
{
    if (EditorWidget* widget = currentEditorWidget())
        widget->insertText(text);
}

} // namespace nsModEditor
