#include "ActionsConfig.h"

#include <QAction>

namespace nsModConfig {

ActionsConfig::ActionsConfig(QObject* parent)
    : ActionGroup(parent, ":/ModCfgEdit/img/")
{
    addEntries({
        {eActionConfigure, QT_TR_NOOP("Configure..."), QT_TR_NOOP("Starts configuration dialog"), "config"},
    });
    entry(eActionConfigure)->setMenuRole(QAction::PreferencesRole);
}

} // namespace nsModConfig
