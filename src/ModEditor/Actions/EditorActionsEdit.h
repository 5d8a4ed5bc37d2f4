#pragma once

#include "ActionGroup.h"

namespace nsModEditor {

/// What can be done with the text of the current document, in menu and tool bar.
///
/// The shortcuts work in the widgets that have the actions, and in their children; an action that is only in the menu
/// has no working shortcut.
class EditorActionsEdit : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t {
        eActionUndo = 0,
        eActionRedo = 1,
        eActionIndent = 2,
        eActionDeindent = 3,
        eActionCommentOut = 4,
        eActionCommentIn = 5,
        eActionDuplicateLine = 6,
        eActionMoveLineUp = 7,
        eActionMoveLineDown = 8,
        eActionResetZoom = 9,
    };

    explicit EditorActionsEdit(QObject* parent);

    /// The first two.
    QList<QAction*> toolBarActions() const override { return actions().mid(0, 2); }

signals:
    void triggered(nsModEditor::EditorActionsEdit::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModEditor
