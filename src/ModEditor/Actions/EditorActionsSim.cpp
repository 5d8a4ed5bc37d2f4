#include "EditorActionsSim.h"

namespace nsModEditor {

EditorActionsSim::EditorActionsSim(QObject* parent)
    : ActionGroup(parent, "")
{
    addEntries({
        {eActionClearBreakpoints, QT_TR_NOOP("Clear all breakpoints")},
        {eActionClearStartPointer, QT_TR_NOOP("Set simulator start address to zero")},
    });
}

} // namespace nsModEditor
