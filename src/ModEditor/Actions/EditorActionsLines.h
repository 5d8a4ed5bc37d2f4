#pragma once

#include "ActionGroup.h"

namespace nsModEditor {

/// More that can be done with the lines of the current document: commands for lines, and ways to them.
///
/// The shortcuts work in the widgets that have the actions, and in their children.
class EditorActionsLines : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t {
        eActionToggleComment = 0,
        eActionDeleteLines = 1,
        eActionJoinLines = 2,
        eActionSortLines = 3,
        eActionUpperCase = 4,
        eActionLowerCase = 5,
        eActionTrimLines = 6,
        eActionFormat = 7,
        eActionGotoLine = 8,
        eActionGotoBracket = 9,
        eActionSetBookmark = 10,
        eActionNextBookmark = 11,
        eActionPrevBookmark = 12,
        eActionFindInSources = 13,
        eActionFold = 14,
        eActionFoldAll = 15,
        eActionUnfoldAll = 16,
        eActionSplitBeside = 17,
        eActionSplitBelow = 18,
        eActionOtherView = 19,
        eActionUnsplit = 20,
    };

    explicit EditorActionsLines(QObject* parent);

    /// Commands that change lines.
    QList<QAction*> commands() const { return entriesBetween(eActionToggleComment, eActionFormat); }
    /// Ways to a place in the document.
    QList<QAction*> places() const { return entriesBetween(eActionGotoLine, eActionGotoBracket); }
    /// Needs no document.
    QAction* findInSources() const { return entry(eActionFindInSources); }
    QList<QAction*> folds() const { return entriesBetween(eActionFold, eActionUnfoldAll); }
    QList<QAction*> views() const { return entriesBetween(eActionSplitBeside, eActionUnsplit); }
    QList<QAction*> bookmarks() const { return entriesBetween(eActionSetBookmark, eActionPrevBookmark); }
    /// None.
    QList<QAction*> toolBarActions() const override { return {}; }

signals:
    void triggered(nsModEditor::EditorActionsLines::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }

private:
    QList<QAction*> entriesBetween(int first, int last) const;
};

} // namespace nsModEditor
