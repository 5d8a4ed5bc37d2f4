#include "ActionsConfig.h"

#include <QAction>
#include <QIcon>

namespace nsModConfig {

ActionsConfig::ActionsConfig(QObject* parent)
    : QActionGroup(parent)
{
    setExclusive(false);
    QAction* action = addAction(QIcon(QStringLiteral(":/ModCfgEdit/img/config.png")), tr("Configure..."));
    action->setToolTip(tr("Starts configuration dialog"));
    action->setStatusTip(action->toolTip());
    action->setMenuRole(QAction::PreferencesRole);
    action->setData(eActionConfigure);
    connect(this, QOverload<QAction*>::of(&QActionGroup::triggered), this, &ActionsConfig::handleAction);
}

void ActionsConfig::setEnabled(bool enabled)
{
    for (QAction* action : actions())
        action->setEnabled(enabled);
}

void ActionsConfig::setEnabled(eAction_t id, bool enabled)
{
    for (QAction* action : actions()) {
        if (action->data().toInt() == id)
            action->setEnabled(enabled);
    }
}

QList<QAction*> ActionsConfig::menuActions(ModActionHookIf::eActionClass_t actionClass) const
{
    return actionClass == ModActionHookIf::eActionClassConfiguration ? actions() : QList<QAction*>();
}

QList<QAction*> ActionsConfig::toolBarActions(ModActionHookIf::eActionClass_t actionClass) const
{
    return menuActions(actionClass);
}

void ActionsConfig::handleAction(QAction* action)
{
    emit triggered(static_cast<eAction_t>(action->data().toInt()));
}

} // namespace nsModConfig
