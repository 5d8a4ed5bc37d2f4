#include "FindReplaceActions.h"

#include <QAction>
#include <QIcon>

namespace nsModFindReplace {

FindReplaceActions::FindReplaceActions(QObject* parent)
    : QActionGroup(parent)
{
    setExclusive(false);
    // The order of the menu.
    add(eActionFind, tr("Find"), QKeySequence::Find, QStringLiteral(":/ModFindReplace/img/actions/edit-find.png"));
    add(eActionFindPrev, tr("Find previous"), QKeySequence::FindPrevious,
        QStringLiteral(":/ModFindReplace/img/actions/edit-find-previous.png"));
    add(eActionFindNext, tr("Find next"), QKeySequence::FindNext,
        QStringLiteral(":/ModFindReplace/img/actions/edit-find-next.png"));
    add(eActionReplace, tr("Replace"), QKeySequence::Replace,
        QStringLiteral(":/ModFindReplace/img/actions/edit-replace.png"));
    // Some desktops define no standard key for it.
    QList<QKeySequence> replaceKeys = actions().last()->shortcuts();
    if (!replaceKeys.contains(QKeySequence(Qt::CTRL | Qt::Key_H)))
        replaceKeys.append(QKeySequence(Qt::CTRL | Qt::Key_H));
    actions().last()->setShortcuts(replaceKeys);
    connect(this, &QActionGroup::triggered, this, &FindReplaceActions::handleAction);
}

void FindReplaceActions::add(eAction_t id, const QString& text, QKeySequence::StandardKey key, const QString& icon)
{
    auto* action = new QAction(QIcon(icon), text, this);
    action->setToolTip(text);
    action->setStatusTip(text);
    action->setShortcuts(key);
    action->setData(id);
}

void FindReplaceActions::setEnabled(bool enabled)
{
    for (QAction* action : actions())
        action->setEnabled(enabled);
}

void FindReplaceActions::setEnabled(eAction_t id, bool enabled)
{
    for (QAction* action : actions()) {
        if (action->data().toInt() == id)
            action->setEnabled(enabled);
    }
}

QList<QAction*> FindReplaceActions::menuActions(ModActionHookIf::eActionClass_t actionClass) const
{
    return actionClass == ModActionHookIf::eActionClassEdit ? actions() : QList<QAction*>();
}

QList<QAction*> FindReplaceActions::toolBarActions(ModActionHookIf::eActionClass_t) const
{
    // The bar has buttons of its own.
    return {};
}

void FindReplaceActions::handleAction(QAction* action)
{
    emit triggered(static_cast<eAction_t>(action->data().toInt()));
}

} // namespace nsModFindReplace
