#pragma once

#include "ActionGroup.h"

namespace nsModEditor {

/// Keys that lead from the text of the current document to what stands beside it.
///
/// The shortcuts work in the widgets that have the actions, and in their children.
class EditorActionsMargin : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t {
        eActionMarks = 0,  ///< the menu of the margin
        eActionNotice = 1, ///< the first bar above the text, and back
    };

    explicit EditorActionsMargin(QObject* parent);

    /// None.
    QList<QAction*> toolBarActions() const override { return {}; }

signals:
    void triggered(nsModEditor::EditorActionsMargin::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModEditor
