#include "EditorActionsMargin.h"

#include <QAction>

namespace nsModEditor {

EditorActionsMargin::EditorActionsMargin(QObject* parent)
    : ActionGroup(parent, ":/ModEditor/img/edit/")
{
    addEntries({
        {eActionMarks, QT_TR_NOOP("Marks of the line..."),
         QT_TR_NOOP("The menu of the margin: breakpoint, bookmark and start address of the line"), nullptr, "Ctrl+F10"},
        {eActionNotice, QT_TR_NOOP("Go to the notice"), QT_TR_NOOP("From the text to the notice above it, and back"),
         nullptr, "F6"},
    });
    // In other widgets these keys have other functions.
    for (QAction* action : actions())
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
}

} // namespace nsModEditor
