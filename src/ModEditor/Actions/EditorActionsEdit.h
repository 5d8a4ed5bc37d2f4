#pragma once

#include <QActionGroup>
#include <QKeySequence>
#include <QList>

namespace nsModEditor {

/// What can be done with the text of the current document, in menu and tool bar.
///
/// The shortcuts work in the widgets that have the actions, and in their children; an action that is only in the menu
/// has no working shortcut.
class EditorActionsEdit : public QActionGroup
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

    void setEnabled(bool enabled);
    void setEnabled(eAction_t action, bool enabled);
    QList<QAction*> menuActions() const;
    QList<QAction*> toolBarActions() const;

signals:
    void triggered(nsModEditor::EditorActionsEdit::eAction_t action);

private slots:
    void handleAction(QAction* action);

private:
    QAction* add(eAction_t action, const QString& text, const QString& toolTip, const QString& icon,
                 const QList<QKeySequence>& keys);
    void addSeparator();
};

} // namespace nsModEditor
