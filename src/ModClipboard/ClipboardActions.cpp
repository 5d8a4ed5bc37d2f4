#include "ClipboardActions.h"

namespace nsModClipboard {

ClipboardActions::ClipboardActions(QObject* parent)
    : ActionGroup(parent, ":/ModClipboard/img/")
{
    addEntries({
        {eActionCut, QT_TR_NOOP("Cut"), QT_TR_NOOP("Cut selection to clipboard"), "edit-cut", nullptr,
         QKeySequence::Cut},
        {eActionCopy, QT_TR_NOOP("Copy"), QT_TR_NOOP("Copy selection to clipboard"), "edit-copy", nullptr,
         QKeySequence::Copy},
        {eActionPaste, QT_TR_NOOP("Paste"), QT_TR_NOOP("Paste content from clipboard"), "edit-paste", nullptr,
         QKeySequence::Paste},
    });
}

} // namespace nsModClipboard
