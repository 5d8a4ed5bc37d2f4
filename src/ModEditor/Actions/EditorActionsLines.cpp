#include "EditorActionsLines.h"

#include <QAction>

namespace nsModEditor {

EditorActionsLines::EditorActionsLines(QObject* parent)
    : ActionGroup(parent, ":/ModEditor/img/edit/")
{
    addEntries({
        {eActionToggleComment, QT_TR_NOOP("Toggle comment"),
         QT_TR_NOOP("Make comments of the selected lines, or code again"), nullptr, "Ctrl+/"},
        {eActionDeleteLines, QT_TR_NOOP("Delete line"), QT_TR_NOOP("Delete the selected lines"), nullptr,
         "Ctrl+Shift+K"},
        {eActionJoinLines, QT_TR_NOOP("Join lines"), QT_TR_NOOP("Make one line of the selected ones"), nullptr,
         "Ctrl+J"},
        {eActionSortLines, QT_TR_NOOP("Sort lines"), QT_TR_NOOP("Sort the selected lines")},
        {eActionUpperCase, QT_TR_NOOP("Upper case"), QT_TR_NOOP("The selection or the word in upper case"), nullptr,
         "Ctrl+U"},
        {eActionLowerCase, QT_TR_NOOP("Lower case"), QT_TR_NOOP("The selection or the word in lower case"), nullptr,
         "Ctrl+Shift+U"},
        {eActionTrimLines, QT_TR_NOOP("Remove trailing blanks"),
         QT_TR_NOOP("Remove the blanks at the end of the selected lines, or of all lines")},
        {eActionFormat, QT_TR_NOOP("Format"),
         QT_TR_NOOP("Put labels, instructions, arguments and comments of the selected lines, or of all lines, in "
                    "columns"),
         nullptr, "Ctrl+Shift+I"},
        {eActionGotoLine, QT_TR_NOOP("Go to line..."), QT_TR_NOOP("Go to a line by its number"), nullptr, "Ctrl+G"},
        {eActionGotoBracket, QT_TR_NOOP("Go to matching bracket"), nullptr, nullptr, "Ctrl+6"},
        {eActionSetBookmark, QT_TR_NOOP("Set or clear bookmark"),
         QT_TR_NOOP("Set a bookmark at the line of the cursor, or clear it"), nullptr, "Ctrl+M"},
        {eActionNextBookmark, QT_TR_NOOP("Next bookmark"), QT_TR_NOOP("Go to the next bookmark of all documents"),
         nullptr, "Ctrl+."},
        {eActionPrevBookmark, QT_TR_NOOP("Previous bookmark"),
         QT_TR_NOOP("Go to the previous bookmark of all documents"), nullptr, "Ctrl+,"},
        {eActionFindInSources, QT_TR_NOOP("Find in sources..."),
         QT_TR_NOOP("Find and replace in all sources of the project"), nullptr, "Ctrl+Shift+F"},
        {eActionFold, QT_TR_NOOP("Fold or unfold"),
         QT_TR_NOOP("Hide the conditional, the namespace or the group at the cursor, or show what is hidden"), nullptr,
         "Ctrl+Shift+M"},
        {eActionFoldAll, QT_TR_NOOP("Fold all"), QT_TR_NOOP("Hide all conditionals, namespaces and groups")},
        {eActionUnfoldAll, QT_TR_NOOP("Unfold all"), QT_TR_NOOP("Show all lines")},
        {eActionSplitBeside, QT_TR_NOOP("Side by side"),
         QT_TR_NOOP("Show another place of the document to the right of this one"), nullptr, "Ctrl+Shift+L"},
        {eActionSplitBelow, QT_TR_NOOP("One below the other"),
         QT_TR_NOOP("Show another place of the document below this one"), nullptr, "Ctrl+Shift+T"},
        {eActionOtherView, QT_TR_NOOP("Go to the other view"),
         QT_TR_NOOP("Go on at the other place of the document that is shown"), nullptr, "Ctrl+Shift+O"},
        {eActionUnsplit, QT_TR_NOOP("Close the other view"), QT_TR_NOOP("Show the place of the cursor only"), nullptr,
         "Ctrl+Shift+X"},
    });
    // In other widgets these keys have other functions.
    for (QAction* action : commands() + places() + bookmarks() + folds() + views())
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
}

QList<QAction*> EditorActionsLines::entriesBetween(int first, int last) const
{
    QList<QAction*> entries;
    for (int number = first; number <= last; ++number)
        entries.append(entry(number));
    return entries;
}

} // namespace nsModEditor
