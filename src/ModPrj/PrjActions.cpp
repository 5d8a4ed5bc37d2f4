#include "PrjActions.h"

#include <QAction>

namespace nsModPrj {

PrjActions::PrjActions(QObject* parent)
    : ActionGroup(parent, ":/ModPrj/img/actions/")
{
    addEntries({
        {eActionNew, QT_TR_NOOP("New project..."), QT_TR_NOOP("Creates a new project file and opens it"),
         "project-new"},
        {eActionOpen, QT_TR_NOOP("Open project..."), QT_TR_NOOP("Opens a project file"), "project-open"},
        {eActionClose, QT_TR_NOOP("Close project"), QT_TR_NOOP("Saves and closes the project"), "project-close"},
    });
    for (QAction* action : actions())
        action->setStatusTip(QString());
}

} // namespace nsModPrj
