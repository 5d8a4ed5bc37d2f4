#include "ClipboardActions.h"

#include <QAction>
#include <QIcon>

namespace nsModClipboard {

ClipboardActions::ClipboardActions(QObject* parent)
    : QActionGroup(parent)
{
    setExclusive(false);
    add(eActionCut, tr("Cut"), tr("Cut selection to clipboard"), QKeySequence::Cut,
        QStringLiteral(":/ModClipboard/img/edit-cut.png"));
    add(eActionCopy, tr("Copy"), tr("Copy selection to clipboard"), QKeySequence::Copy,
        QStringLiteral(":/ModClipboard/img/edit-copy.png"));
    add(eActionPaste, tr("Paste"), tr("Paste content from clipboard"), QKeySequence::Paste,
        QStringLiteral(":/ModClipboard/img/edit-paste.png"));
    connect(this, &QActionGroup::triggered, this, &ClipboardActions::handleAction);
}

void ClipboardActions::add(eAction_t id, const QString& text, const QString& toolTip, QKeySequence::StandardKey key,
                           const QString& icon)
{
    auto* action = new QAction(QIcon(icon), text, this);
    action->setToolTip(toolTip);
    action->setStatusTip(toolTip);
    action->setShortcuts(key);
    action->setData(id);
}

void ClipboardActions::setEnabled(bool enabled)
{
    for (QAction* action : actions())
        action->setEnabled(enabled);
}

void ClipboardActions::setEnabled(eAction_t id, bool enabled)
{
    for (QAction* action : actions()) {
        if (action->data().toInt() == id)
            action->setEnabled(enabled);
    }
}

QList<QAction*> ClipboardActions::menuActions(ModActionHookIf::eActionClass_t actionClass) const
{
    return actionClass == ModActionHookIf::eActionClassEdit ? actions() : QList<QAction*>();
}

QList<QAction*> ClipboardActions::toolBarActions(ModActionHookIf::eActionClass_t actionClass) const
{
    return menuActions(actionClass);
}

void ClipboardActions::handleAction(QAction* action)
{
    emit triggered(static_cast<eAction_t>(action->data().toInt()));
}

} // namespace nsModClipboard
