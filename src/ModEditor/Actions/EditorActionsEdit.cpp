#include "EditorActionsEdit.h"

#include <QAction>
#include <QIcon>

namespace nsModEditor {

EditorActionsEdit::EditorActionsEdit(QObject* parent)
    : QActionGroup(parent)
{
    setExclusive(false);
    add(eActionUndo, tr("Undo..."), tr("Undo"), "edit-undo", QKeySequence::keyBindings(QKeySequence::Undo));
    add(eActionRedo, tr("Redo..."), tr("Redo"), "edit-redo", QKeySequence::keyBindings(QKeySequence::Redo));
    addSeparator();
    add(eActionIndent, tr("Indent"), tr("Indent"), QString(), {QKeySequence("Tab")});
    add(eActionDeindent, tr("Deindent"), tr("Deindent"), QString(), {QKeySequence("Shift+Tab")});
    addSeparator();
    add(eActionCommentOut, tr("Comment out"), tr("Comment out"), "document-save-as", {QKeySequence("Alt+C")});
    add(eActionCommentIn, tr("Comment in"), tr("Comment in"), QString(), {QKeySequence("Shift+Alt+C")});
    addSeparator();
    add(eActionDuplicateLine, tr("Duplicate line"), tr("Duplicate line"), QString(), {QKeySequence("Ctrl+D")});
    addSeparator();
    add(eActionMoveLineUp, tr("Move line up"), tr("Move line up"), QString(), {QKeySequence("Ctrl+Shift+Up")});
    add(eActionMoveLineDown, tr("Move line down"), tr("Move line down"), QString(), {QKeySequence("Ctrl+Shift+Down")});
    addSeparator();
    add(eActionResetZoom, tr("Reset zoom"), tr("Font size as in the settings"), QString(), {QKeySequence("Ctrl+0")});
    addSeparator();
    connect(this, SIGNAL(triggered(QAction*)), this, SLOT(handleAction(QAction*)));
}

QAction* EditorActionsEdit::add(eAction_t action, const QString& text, const QString& toolTip, const QString& icon,
                                const QList<QKeySequence>& keys)
{
    QAction* entry = addAction(text);
    if (!icon.isEmpty())
        entry->setIcon(QIcon(":/ModEditor/img/edit/" + icon + ".png"));
    entry->setToolTip(toolTip);
    entry->setStatusTip(toolTip);
    entry->setData(int(action));
    entry->setShortcuts(keys);
    // In other widgets these keys have other functions.
    entry->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    return entry;
}

void EditorActionsEdit::addSeparator()
{
    addAction(QString())->setSeparator(true);
}

void EditorActionsEdit::setEnabled(bool enabled)
{
    for (QAction* entry : actions())
        entry->setEnabled(enabled);
}

void EditorActionsEdit::setEnabled(eAction_t action, bool enabled)
{
    for (QAction* entry : actions()) {
        if (entry->data().isValid() && entry->data().toInt() == int(action))
            entry->setEnabled(enabled);
    }
}

QList<QAction*> EditorActionsEdit::menuActions() const
{
    return actions();
}

QList<QAction*> EditorActionsEdit::toolBarActions() const
{
    return actions().mid(0, 2);
}

void EditorActionsEdit::handleAction(QAction* action)
{
    // A separator has no function.
    if (action->data().isValid())
        emit triggered(eAction_t(action->data().toInt()));
}

} // namespace nsModEditor
