#include "HlpActionsHelp.h"

namespace nsModHlp {

HlpActionsHelp::HlpActionsHelp(QObject* parent)
    : ActionGroup(parent, ":/ModHlp/img/actions/")
{
    addEntries({
        {eActionOnlineHelp, QT_TR_NOOP("Online Help"), QT_TR_NOOP("View online help"), "help"},
        {eActionAbout, QT_TR_NOOP("About"), QT_TR_NOOP("View about information"), "about"},
    });
}

} // namespace nsModHlp
