#include "ScriptActions.h"

namespace nsModScript {

ScriptActions::ScriptActions(QObject* parent)
    : ActionGroup(parent, ":/ModScript/img/actions/")
{
    addEntries({
        {eActionRun, QT_TR_NOOP("Run script..."), QT_TR_NOOP("Select a script file and run it"), "script-run"},
        {eActionStop, QT_TR_NOOP("Stop script"), QT_TR_NOOP("Stop the script that runs"), "script-stop"},
    });
}

} // namespace nsModScript
