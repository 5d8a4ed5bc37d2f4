// Actions: what the user chooses, what is offered when, marks in all documents, find and replace, clipboard.

#include "ModEditor.h"

#include "EditorStatusBar.h"
#include "EditorSupportMenu.h"
#include "EditorWidget.h"
#include "MyNoticeBar.h"

#include "ModClipboardHookIf.h"
#include "ModFindReplaceHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrjHookIf.h"

#include <QIcon>

namespace nsModEditor {

namespace {

const char* const modifiedIcon = ":/ModEditor/img/extras/fileSaveSmall.png";

ModClipboardHookIf::eClipboardFeature_t features(int bits)
{
    return ModClipboardHookIf::eClipboardFeature_t(bits);
}

} // namespace

void ModEditor::handleActions(EditorActionsFile::eAction_t action)
{
    switch (action) {
    case EditorActionsFile::eActionNew:
        newFile(QString());
        focusCurrentWidget();
        break;
    case EditorActionsFile::eActionOpen:
        openFilesByDialog();
        focusCurrentWidget();
        break;
    case EditorActionsFile::eActionSaveAll:
        saveAllFiles();
        break;
    case EditorActionsFile::eActionSave:
        saveFile();
        break;
    case EditorActionsFile::eActionSaveAs:
        saveFileAs();
        break;
    case EditorActionsFile::eActionReloadAll:
        reloadAllFiles();
        break;
    case EditorActionsFile::eActionReload:
        reloadFile();
        break;
    case EditorActionsFile::eActionPrint:
        printFile();
        break;
    case EditorActionsFile::eActionClose:
        closeFile();
        break;
    case EditorActionsFile::eActionCloseAll:
        closeAllFiles();
        break;
    case EditorActionsFile::eActionCloseOthers:
        closeOtherFiles();
        break;
    }
}

void ModEditor::handleActions(EditorActionsEdit::eAction_t action)
{
    EditorWidget* widget = currentEditorWidget();
    if (widget == nullptr)
        return;
    switch (action) {
    case EditorActionsEdit::eActionUndo:
        widget->undo();
        break;
    case EditorActionsEdit::eActionRedo:
        widget->redo();
        break;
    case EditorActionsEdit::eActionIndent:
        widget->indent();
        break;
    case EditorActionsEdit::eActionDeindent:
        widget->deindent();
        break;
    case EditorActionsEdit::eActionCommentOut:
        widget->commentOut();
        break;
    case EditorActionsEdit::eActionCommentIn:
        widget->commentIn();
        break;
    case EditorActionsEdit::eActionDuplicateLine:
        widget->duplicateLine();
        break;
    case EditorActionsEdit::eActionMoveLineUp:
        widget->moveLineUp();
        break;
    case EditorActionsEdit::eActionMoveLineDown:
        widget->moveLineDown();
        break;
    case EditorActionsEdit::eActionResetZoom:
        widget->resetZoom();
        break;
    }
}

void ModEditor::handleActions(EditorActionsSim::eAction_t action)
{
    switch (action) {
    case EditorActionsSim::eActionClearBreakpoints:
        clearSimBreakpoints();
        break;
    case EditorActionsSim::eActionClearStartPointer:
        clearAllSimStartPointer();
        break;
    }
}

void ModEditor::setActionState(EditorWidget* current)
{
    if (m_actionsFile == nullptr)
        return;
    if (!m_editorWidgets.contains(current))
        m_statusBar->clearFormat();
    m_actionsFile->setEnabled(false);
    m_actionsEdit->setEnabled(false);
    m_supportMenu->setEnabled(false);
    const bool valid = modPrjHook != nullptr && modPrjHook->isValid();
    m_actionsSim->setEnabled(valid);
    if (!valid)
        return;
    m_actionsFile->setEnabled(EditorActionsFile::eActionNew, true);
    m_actionsFile->setEnabled(EditorActionsFile::eActionOpen, true);
    if (!m_editorWidgets.isEmpty()) {
        m_actionsFile->setEnabled(EditorActionsFile::eActionSaveAll, true);
        m_actionsFile->setEnabled(EditorActionsFile::eActionReloadAll, true);
        m_actionsFile->setEnabled(EditorActionsFile::eActionCloseAll, true);
    }
    if (!m_editorWidgets.contains(current))
        return;
    for (const auto action :
         {EditorActionsFile::eActionSave, EditorActionsFile::eActionSaveAs, EditorActionsFile::eActionReload,
          EditorActionsFile::eActionPrint, EditorActionsFile::eActionClose})
        m_actionsFile->setEnabled(action, true);
    m_actionsFile->setEnabled(EditorActionsFile::eActionCloseOthers, m_editorWidgets.size() > 1);
    for (int action = EditorActionsEdit::eActionIndent; action <= EditorActionsEdit::eActionResetZoom; ++action)
        m_actionsEdit->setEnabled(EditorActionsEdit::eAction_t(action), true);
    m_supportMenu->setEnabled(true);
    if (modClipboardHook != nullptr)
        modClipboardHook->setFeatureEnable(ModClipboardHookIf::eClipboardFeaturePaste, true);
    setActionStateEditorWidget(current);
}

/// Enables the actions for the current page.
void ModEditor::updateActionState()
{
    setActionState(currentEditorWidget());
}

void ModEditor::setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf*, QWidget* widget)
{
    // When the last page was removed there is neither a widget nor a location.
    if (location == ModGuiHookIf::eLocationTabs)
        setActionState(qobject_cast<EditorWidget*>(widget));
    else if (widget == nullptr)
        updateActionState();
}

void ModEditor::setActionStateEditorWidget(EditorWidget* widget)
{
    if (widget == nullptr || m_actionsEdit == nullptr || widget != currentEditorWidget())
        return;
    m_actionsEdit->setEnabled(EditorActionsEdit::eActionUndo, widget->isUndoAvailable());
    m_actionsEdit->setEnabled(EditorActionsEdit::eActionRedo, widget->isRedoAvailable());
    if (modClipboardHook != nullptr)
        modClipboardHook->setFeatureEnable(
            features(ModClipboardHookIf::eClipboardFeatureCut | ModClipboardHookIf::eClipboardFeatureCopy),
            widget->hasSelection());
    m_statusBar->setFontSize(widget->fontSize());
    m_statusBar->setOverwrite(widget->overwriteMode());
    m_statusBar->setFormat(widget->format(), !widget->isReadOnly());
}

void ModEditor::setModifiedState(EditorWidget* widget)
{
    if (modGuiHook != nullptr)
        modGuiHook->setWidgetIcon(widget, widget->isModified() ? QIcon(modifiedIcon) : QIcon());
    setActionStateEditorWidget(widget);
}

QMap<QString, QList<int>> ModEditor::simBreakpoints()
{
    QMap<QString, QList<int>> breakpoints;
    for (EditorWidget* widget : qAsConst(m_editorWidgets)) {
        if (!widget->filePath().isEmpty())
            breakpoints.insert(widget->filePath(), widget->simBreakpoints());
    }
    return breakpoints;
}

bool ModEditor::simStartPointer(QString* path, int* line)
{
    for (EditorWidget* widget : qAsConst(m_editorWidgets)) {
        if (widget->simStartPointer(line)) {
            *path = widget->filePath();
            return true;
        }
    }
    return false;
}

void ModEditor::setSimBreakpointsChanged()
{
    m_simBreakpointsChangedFlag = true;
    ++m_simBreakpointsRevision;
}

void ModEditor::clearSimBreakpoints()
{
    for (EditorWidget* widget : qAsConst(m_editorWidgets))
        widget->clearSimBreakpoints();
    setSimBreakpointsChanged();
}

void ModEditor::clearAllSimStartPointer()
{
    for (EditorWidget* widget : qAsConst(m_editorWidgets))
        widget->clearSimStartPointer();
}

void ModEditor::clearAllBookmarks()
{
    for (EditorWidget* widget : qAsConst(m_editorWidgets))
        widget->clearBookmarks();
}

void ModEditor::clipboardAction(ModClipboardHookIf::eClipboardFeature_t feature)
{
    EditorWidget* widget = currentEditorWidget();
    if (widget == nullptr)
        return;
    switch (feature) {
    case ModClipboardHookIf::eClipboardFeatureCut:
        widget->cut();
        break;
    case ModClipboardHookIf::eClipboardFeatureCopy:
        widget->copy();
        break;
    case ModClipboardHookIf::eClipboardFeaturePaste:
        widget->paste();
        break;
    }
}

QString ModEditor::findInit()
{
    EditorWidget* widget = currentEditorWidget();
    return widget != nullptr ? widget->textCursor().selectedText() : QString();
}

void ModEditor::findExit()
{
    if (modGuiHook != nullptr)
        modGuiHook->clearStatusBarText();
    // The search bar was in front of it.
    if (modGuiHook != nullptr && m_recoveryNotice != nullptr)
        modGuiHook->setCurrentWidget(m_recoveryNotice.data());
}

void ModEditor::setFindParameter()
{
    if (modFindReplaceHook == nullptr)
        return;
    m_findParameter.findString = modFindReplaceHook->findString();
    m_findParameter.replaceString = modFindReplaceHook->replaceString();
    m_findParameter.caseSensitive = modFindReplaceHook->isCaseSensitive();
    m_findParameter.wholeWords = modFindReplaceHook->isWholeWords();
    m_findParameter.wrapPending = false;
}

/// One search. If the text is not found, only a message is shown; the next search continues at the other end.
void ModEditor::find(bool configChanged, bool backward)
{
    if (configChanged)
        setFindParameter();
    EditorWidget* widget = currentEditorWidget();
    if (widget == nullptr)
        return;
    const sFindParameter_t& parameter = m_findParameter;
    const auto search = [&](EditorWidget::eFindOrigin_t origin) {
        return widget->find(parameter.findString, parameter.caseSensitive, parameter.wholeWords, backward, origin);
    };
    const auto say = [this](const QString& text) {
        if (modGuiHook != nullptr)
            modGuiHook->setStatusBarText(text);
    };
    if (search(EditorWidget::eFindOriginCursor)) {
        if (m_findParameter.wrapPending && modGuiHook != nullptr)
            modGuiHook->clearStatusBarText();
        m_findParameter.wrapPending = false;
        return;
    }
    if (!m_findParameter.wrapPending) {
        m_findParameter.wrapPending = true;
        say(backward ? tr("Begin of file reached, continuing from the end...")
                     : tr("End of file reached, continuing from the begin..."));
        return;
    }
    m_findParameter.wrapPending = false;
    if (!search(backward ? EditorWidget::eFindOriginEnd : EditorWidget::eFindOriginStart))
        say(tr("String not found."));
    else if (modGuiHook != nullptr)
        modGuiHook->clearStatusBarText();
}

void ModEditor::findNext(bool configChanged)
{
    find(configChanged, false);
}

void ModEditor::findPrev(bool configChanged)
{
    find(configChanged, true);
}

void ModEditor::replace(bool configChanged)
{
    if (configChanged)
        setFindParameter();
    EditorWidget* widget = currentEditorWidget();
    if (widget == nullptr)
        return;
    if (modFindReplaceHook != nullptr)
        m_findParameter.replaceString = modFindReplaceHook->replaceString();
    // The user may have selected another text since the search.
    if (widget->isHit(m_findParameter.findString, m_findParameter.caseSensitive, m_findParameter.wholeWords))
        widget->replace(m_findParameter.replaceString);
    findNext(configChanged);
}

void ModEditor::replaceAll(bool configChanged)
{
    if (configChanged)
        setFindParameter();
    EditorWidget* widget = currentEditorWidget();
    if (widget != nullptr)
        widget->replaceAll(m_findParameter.findString, m_findParameter.replaceString, m_findParameter.caseSensitive,
                           m_findParameter.wholeWords);
}

} // namespace nsModEditor
