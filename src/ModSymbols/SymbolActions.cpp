#include "SymbolActions.h"

namespace nsModSymbols {

SymbolActions::SymbolActions(QObject* parent)
    : ActionGroup(parent, ":/ModSymbols/img/")
{
    addEntries({
        {eActionDefinition, QT_TR_NOOP("Go to definition"),
         QT_TR_NOOP("Goes to where the name at the cursor is defined; Ctrl and a click on the name do the same"),
         nullptr, "F2"},
        {eActionUsages, QT_TR_NOOP("Find usages"), QT_TR_NOOP("Lists all places of the name at the cursor"), nullptr,
         "Shift+F2"},
        {eActionRename, QT_TR_NOOP("Rename..."),
         QT_TR_NOOP("Gives the label or constant at the cursor another name, in all sources"), nullptr, "Ctrl+Shift+R"},
        separator(),
        {eActionBack, QT_TR_NOOP("Back"), QT_TR_NOOP("To the place before the last jump"), nullptr, "Alt+Left"},
        {eActionForward, QT_TR_NOOP("Forward"), QT_TR_NOOP("To the place that was left by going back"), nullptr,
         "Alt+Right"},
        separator(),
        {eActionNextMessage, QT_TR_NOOP("Next message"), QT_TR_NOOP("To the place of the next message"), nullptr, "F8"},
        {eActionPrevMessage, QT_TR_NOOP("Previous message"), QT_TR_NOOP("To the place of the message before"), nullptr,
         "Shift+F8"},
    });
}

QList<QAction*> SymbolActions::nameActions() const
{
    return {entry(eActionDefinition), entry(eActionUsages), entry(eActionRename)};
}

} // namespace nsModSymbols
