#include "EditorActionsEdit.h"

#include <QAction>

namespace nsModEditor {

EditorActionsEdit::EditorActionsEdit(QObject* parent)
    : ActionGroup(parent, ":/ModEditor/img/edit/")
{
    addEntries({
        {eActionUndo, QT_TR_NOOP("Undo..."), QT_TR_NOOP("Undo"), "edit-undo", nullptr, QKeySequence::Undo},
        {eActionRedo, QT_TR_NOOP("Redo..."), QT_TR_NOOP("Redo"), "edit-redo", nullptr, QKeySequence::Redo},
        separator(),
        {eActionIndent, QT_TR_NOOP("Indent"), nullptr, nullptr, "Tab"},
        {eActionDeindent, QT_TR_NOOP("Deindent"), nullptr, nullptr, "Shift+Tab"},
        separator(),
        {eActionCommentOut, QT_TR_NOOP("Comment out"), nullptr, "document-save-as", "Alt+C"},
        {eActionCommentIn, QT_TR_NOOP("Comment in"), nullptr, nullptr, "Shift+Alt+C"},
        separator(),
        {eActionDuplicateLine, QT_TR_NOOP("Duplicate line"), nullptr, nullptr, "Ctrl+D"},
        separator(),
        {eActionMoveLineUp, QT_TR_NOOP("Move line up"), nullptr, nullptr, "Ctrl+Shift+Up"},
        {eActionMoveLineDown, QT_TR_NOOP("Move line down"), nullptr, nullptr, "Ctrl+Shift+Down"},
        separator(),
        {eActionResetZoom, QT_TR_NOOP("Reset zoom"), QT_TR_NOOP("Font size as in the settings"), nullptr, "Ctrl+0"},
        separator(),
    });
    // In other widgets these keys have other functions.
    for (QAction* action : actions()) {
        if (!action->isSeparator())
            action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    }
}

} // namespace nsModEditor
