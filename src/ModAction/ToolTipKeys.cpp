#include "ToolTipKeys.h"

#include "ButtonCommand.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>

namespace nsModAction {

ToolTipKeys::ToolTipKeys(QObject* parent)
    : QObject(parent)
{
    // The buttons of tool bars come and go with the commands.
    qApp->installEventFilter(this);
}

bool ToolTipKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return false;
    auto* button = qobject_cast<QAbstractButton*>(watched);
    const QAction* action = button != nullptr ? ButtonCommand::of(button) : nullptr;
    if (action == nullptr || action->shortcut().isEmpty() || button->toolTip().isEmpty())
        return false;
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       QStringLiteral("%1 (%2)").arg(button->toolTip(), keys), button);
    return true;
}

} // namespace nsModAction
