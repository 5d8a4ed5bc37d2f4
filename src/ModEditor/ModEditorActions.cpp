// Actions: what the user chooses, what is offered when, find and replace, clipboard.

#include "ModEditor.h"

#include "DocumentCommands.h"
#include "DocumentMarks.h"
#include "EditorFinder.h"
#include "EditorStatusBar.h"
#include "EditorSupportMenu.h"
#include "EditorWidget.h"
#include "OpenDocuments.h"
#include "PageProperties.h"
#include "RecoveryOffer.h"
#include "TextActions.h"

#include "ModClipboardHookIf.h"
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
        m_documents->focusCurrent();
        break;
    case EditorActionsFile::eActionOpen:
        m_commands->openFilesByDialog();
        m_documents->focusCurrent();
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
    EditorWidget* widget = m_documents->current();
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
        m_marks->clearBreakpoints();
        break;
    case EditorActionsSim::eActionClearStartPointer:
        m_marks->clearStartPointers();
        break;
    }
}

void ModEditor::setActionState(EditorWidget* current)
{
    m_documents->reportCurrent(current);
    if (m_actionsFile == nullptr)
        return;
    if (!m_documents->contains(current))
        m_statusBar->clearFormat();
    m_actionsFile->setEnabled(false);
    m_actionsEdit->setEnabled(false);
    m_supportMenu->setEnabled(false);
    const bool valid = modPrjHook != nullptr && modPrjHook->isValid();
    m_textActions->setEnabled(false, valid);
    m_actionsSim->setEnabled(valid);
    if (!valid)
        return;
    m_actionsFile->setEnabled(EditorActionsFile::eActionNew, true);
    m_actionsFile->setEnabled(EditorActionsFile::eActionOpen, true);
    if (!m_documents->isEmpty()) {
        m_actionsFile->setEnabled(EditorActionsFile::eActionSaveAll, true);
        m_actionsFile->setEnabled(EditorActionsFile::eActionReloadAll, true);
        m_actionsFile->setEnabled(EditorActionsFile::eActionCloseAll, true);
    }
    if (!m_documents->contains(current))
        return;
    for (const auto action :
         {EditorActionsFile::eActionSave, EditorActionsFile::eActionSaveAs, EditorActionsFile::eActionReload,
          EditorActionsFile::eActionPrint, EditorActionsFile::eActionClose})
        m_actionsFile->setEnabled(action, true);
    m_actionsFile->setEnabled(EditorActionsFile::eActionCloseOthers, m_documents->all().size() > 1);
    for (int action = EditorActionsEdit::eActionIndent; action <= EditorActionsEdit::eActionResetZoom; ++action)
        m_actionsEdit->setEnabled(EditorActionsEdit::eAction_t(action), true);
    m_supportMenu->setEnabled(true);
    m_textActions->setEnabled(true, true);
    if (modClipboardHook != nullptr)
        modClipboardHook->setFeatureEnable(ModClipboardHookIf::eClipboardFeaturePaste, true);
    setActionStateEditorWidget(current);
}

/// Enables the actions for the current page.
void ModEditor::updateActionState()
{
    setActionState(m_documents->current());
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
    if (widget == nullptr || m_actionsEdit == nullptr || widget != m_documents->current())
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
    showCursorPosition(widget);
}

void ModEditor::showCursorPosition(EditorWidget* widget)
{
    if (m_statusBar == nullptr || widget != m_documents->current())
        return;
    const QTextCursor cursor = widget->textCursor();
    m_statusBar->setPosition(cursor.blockNumber(), cursor.positionInBlock());
}

void ModEditor::setModifiedState(EditorWidget* widget)
{
    widget->setProperty(PageProperties::modified, widget->isModified());
    if (modGuiHook != nullptr)
        modGuiHook->setWidgetIcon(widget, widget->isModified() ? QIcon(modifiedIcon) : QIcon());
    setActionStateEditorWidget(widget);
}

QMap<QString, QList<int>> ModEditor::simBreakpoints()
{
    return m_marks->breakpoints();
}

bool ModEditor::simBreakpointsChanged()
{
    return m_marks->haveBreakpointsChanged();
}

int ModEditor::simBreakpointsRevision()
{
    return m_marks->breakpointRevision();
}

bool ModEditor::simStartPointer(QString* path, int* line)
{
    return m_marks->startPointer(path, line);
}

void ModEditor::clipboardAction(ModClipboardHookIf::eClipboardFeature_t feature)
{
    EditorWidget* widget = m_documents->current();
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
    EditorWidget* widget = m_documents->current();
    return widget != nullptr ? widget->textCursor().selectedText() : QString();
}

void ModEditor::findExit()
{
    m_finder->end();
    if (modGuiHook != nullptr)
        modGuiHook->clearStatusBarText();
    // The search bar was in front of it.
    if (m_recoveryOffer != nullptr)
        m_recoveryOffer->showNotice();
}

void ModEditor::findNext(bool configChanged)
{
    m_finder->find(configChanged, false);
}

void ModEditor::findPrev(bool configChanged)
{
    m_finder->find(configChanged, true);
}

void ModEditor::replace(bool configChanged)
{
    m_finder->replace(configChanged);
}

void ModEditor::replaceAll(bool configChanged)
{
    m_finder->replaceAll(configChanged);
}

} // namespace nsModEditor
