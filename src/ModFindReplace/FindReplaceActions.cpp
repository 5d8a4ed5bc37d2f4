#include "FindReplaceActions.h"

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
}

} // namespace nsModFindReplace
