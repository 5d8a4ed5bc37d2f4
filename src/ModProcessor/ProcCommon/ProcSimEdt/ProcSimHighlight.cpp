#include "ProcSimHighlight.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace nsProc {

void showHighlight(QWidget* widget, bool highlighted)
{
    // The style sheet decides on all colours, so it has to look at the widget again.
    widget->setProperty("highlighted", highlighted);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace nsProc
