#include "GuiActions.h"

namespace nsModGui {

GuiActions::GuiActions(QObject* parent)
    : ActionGroup(parent, ":/ModGui/img/actions/")
{
    addEntries({
        {eActionSetDefaultWindowSize, QT_TR_NOOP("Set default window size."),
         QT_TR_NOOP("Sets default window size for presentation screenshots"), "window-size"},
    });
}

} // namespace nsModGui
