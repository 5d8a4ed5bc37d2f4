#include "NaviActions.h"

namespace nsModSrcNavi {

NaviActions::NaviActions(QObject* parent)
    : ActionGroup(parent, ":/ModSrcNavi/img/actions/")
{
    addEntries({
        {eActionQuickOpen, QT_TR_NOOP("Quick open..."),
         QT_TR_NOOP("Goes to a source or symbol of which some letters are typed"), nullptr, "Ctrl+P"},
        {eActionFileList, QT_TR_NOOP("Files of the project"),
         QT_TR_NOOP("Brings the list of the project's files to the front"), nullptr, "Ctrl+Shift+E"},
    });
}

} // namespace nsModSrcNavi
