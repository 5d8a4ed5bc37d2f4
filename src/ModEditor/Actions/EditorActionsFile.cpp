#include "EditorActionsFile.h"

namespace nsModEditor {

EditorActionsFile::EditorActionsFile(QObject* parent)
    : ActionGroup(parent, ":/ModEditor/img/file/")
{
    addEntries({
        {eActionNew, QT_TR_NOOP("New..."), QT_TR_NOOP("New document"), "document-new", nullptr, QKeySequence::New},
        {eActionOpen, QT_TR_NOOP("Open..."), QT_TR_NOOP("Open document"), "document-open", nullptr, QKeySequence::Open},
        separator(),
        // One key writes every open document, since the assembler reads them all.
        {eActionSaveAll, QT_TR_NOOP("Save all"), QT_TR_NOOP("Save all documents"), "document-saveAll", nullptr,
         QKeySequence::Save},
        {eActionSave, QT_TR_NOOP("Save"), QT_TR_NOOP("Save document"), "document-save"},
        {eActionSaveAs, QT_TR_NOOP("Save as..."), QT_TR_NOOP("Save document as"), "document-save-as"},
        separator(),
        {eActionReloadAll, QT_TR_NOOP("Reload all"), QT_TR_NOOP("Reload all documents"), "document-revert"},
        {eActionReload, QT_TR_NOOP("Reload"), QT_TR_NOOP("Reload current document"), "document-revert", nullptr,
         QKeySequence::Refresh},
        separator(),
        {eActionPrint, QT_TR_NOOP("Print..."), QT_TR_NOOP("Print document"), "printer"},
        separator(),
        {eActionClose, QT_TR_NOOP("Close"), QT_TR_NOOP("Close document"), "document-close", nullptr,
         QKeySequence::Close},
        {eActionCloseAll, QT_TR_NOOP("Close all"), QT_TR_NOOP("Close all documents"), "document-close"},
        {eActionCloseOthers, QT_TR_NOOP("Close all other documents"), nullptr, "document-close"},
        separator(),
    });
}

} // namespace nsModEditor
