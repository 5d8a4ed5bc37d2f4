#include "HlpActionsNavi.h"

namespace nsModHlp {

HlpActionsNavi::HlpActionsNavi(QObject* parent)
    : ActionGroup(parent, ":/ModHlp/img/actions/")
{
    addEntries({
        {eActionGoBack, QT_TR_NOOP("Go back"), QT_TR_NOOP("Navigate backward"), "go-previous"},
        {eActionGoForward, QT_TR_NOOP("Go forward"), QT_TR_NOOP("Navigate forward"), "go-next"},
    });
}

} // namespace nsModHlp
