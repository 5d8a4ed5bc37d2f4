#include "FindReplaceActions.h"

#include <QAction>

namespace nsModFindReplace {

FindReplaceActions::FindReplaceActions(QObject* parent)
    : ActionGroup(parent, ":/ModFindReplace/img/actions/")
{
    addEntries({
        {eActionFind, QT_TR_NOOP("Find"), nullptr, "edit-find", nullptr, QKeySequence::Find},
        {eActionFindPrev, QT_TR_NOOP("Find previous"), nullptr, "edit-find-previous", nullptr,
         QKeySequence::FindPrevious},
        {eActionFindNext, QT_TR_NOOP("Find next"), nullptr, "edit-find-next", nullptr, QKeySequence::FindNext},
        // Some desktops define no standard key for it.
        {eActionReplace, QT_TR_NOOP("Replace"), nullptr, "edit-replace", "Ctrl+H", QKeySequence::Replace},
    });
    // Some desktops have it for "Find next", too; here it leads to a line.
    QAction* next = entry(eActionFindNext);
    QList<QKeySequence> keys = next->shortcuts();
    if (keys.size() > 1)
        keys.removeAll(QKeySequence(QStringLiteral("Ctrl+G")));
    next->setShortcuts(keys);
}

} // namespace nsModFindReplace
