#include "SwUpdateActions.h"

namespace nsModSwUpdate {

SwUpdateActions::SwUpdateActions(QObject* parent)
    : ActionGroup(parent, ":/ModSwUpdate/img/actions/")
{
    addEntries({
        {eActionCheck, QT_TR_NOOP("Check for Nalvo update")},
        {eActionDownloadPage, QT_TR_NOOP("Open Nalvo download page"),
         QT_TR_NOOP("Open Nalvo download page in your standard web browser")},
    });
}

} // namespace nsModSwUpdate
