#include "GuiActions.h"

#include <QAction>

namespace nsModGui {

GuiActions::GuiActions(QObject* parent)
    : QActionGroup(parent)
{
    setExclusive(false);
    auto* action = new QAction(tr("Set default window size."), this);
    action->setIcon(QIcon(QStringLiteral(":/ModGui/img/actions/window-size.png")));
    action->setToolTip(tr("Sets default window size for presentation screenshots"));
    action->setStatusTip(action->toolTip());
    action->setData(eActionSetDefaultWindowSize);
    connect(this, &QActionGroup::triggered, this, &GuiActions::handleAction);
}

void GuiActions::setEnabled(bool enabled)
{
    for (QAction* action : actions())
        action->setEnabled(enabled);
}

void GuiActions::setEnabled(eAction_t id, bool enabled)
{
    for (QAction* action : actions()) {
        if (action->data().toInt() == id)
            action->setEnabled(enabled);
    }
}

QList<QAction*> GuiActions::menuActions(ModActionHookIf::eActionClass_t actionClass) const
{
    return actionClass == ModActionHookIf::eActionClassHelp ? actions() : QList<QAction*>();
}

QList<QAction*> GuiActions::toolBarActions(ModActionHookIf::eActionClass_t) const
{
    // Rarely needed, so it has no button.
    return {};
}

void GuiActions::handleAction(QAction* action)
{
    emit triggered(static_cast<eAction_t>(action->data().toInt()));
}

} // namespace nsModGui
