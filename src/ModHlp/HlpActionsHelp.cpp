#include "HlpActionsHelp.h"

namespace nsModHlp {

HlpActionsHelp::HlpActionsHelp(QObject* parent)
    : ActionGroup(parent, ":/ModHlp/img/actions/")
{
    addEntries({
        {eActionOnlineHelp, QT_TR_NOOP("Online Help"), QT_TR_NOOP("View online help"), "help"},
        {eActionContext, QT_TR_NOOP("Explain"),
         QT_TR_NOOP("Explains the word at the cursor, or the part of the window that has the keyboard focus"), nullptr,
         "F1"},
        {eActionWhatsThis, QT_TR_NOOP("What's this"),
         QT_TR_NOOP("Says what the field with the keyboard focus is, or the one that is clicked next"), nullptr,
         "Shift+F1"},
        {eActionAbout, QT_TR_NOOP("About"), QT_TR_NOOP("View about information"), "about"},
    });
}

} // namespace nsModHlp
