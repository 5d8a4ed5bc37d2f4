#include "PrjActions.h"

#include <QAction>
#include <QIcon>

namespace nsModPrj {

PrjActions::PrjActions(QObject* parent)
    : QActionGroup(parent)
{
    setExclusive(false);
    add(eActionNew, tr("New project..."), tr("Creates a new project file and opens it"), QStringLiteral("project-new"));
    add(eActionOpen, tr("Open project..."), tr("Opens a project file"), QStringLiteral("project-open"));
    add(eActionClose, tr("Close project"), tr("Saves and closes the project"), QStringLiteral("project-close"));
    connect(this, QOverload<QAction*>::of(&QActionGroup::triggered), this, &PrjActions::handleAction);
}

void PrjActions::setEnabled(bool enabled)
{
    QActionGroup::setEnabled(enabled);
}

void PrjActions::setEnabled(eAction_t action, bool enabled)
{
    for (QAction* entry : actions()) {
        if (entry->data().toInt() == action)
            entry->setEnabled(enabled);
    }
}

QList<QAction*> PrjActions::menuActions() const
{
    return actions();
}

QList<QAction*> PrjActions::toolBarActions() const
{
    return actions();
}

void PrjActions::handleAction(QAction* action)
{
    emit triggered(static_cast<eAction_t>(action->data().toInt()));
}

void PrjActions::add(eAction_t action, const QString& text, const QString& toolTip, const QString& icon)
{
    QAction* entry = addAction(QIcon(QStringLiteral(":/ModPrj/img/actions/%1.png").arg(icon)), text);
    entry->setToolTip(toolTip);
    entry->setData(static_cast<int>(action));
}

} // namespace nsModPrj
