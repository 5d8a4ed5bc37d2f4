#pragma once

#include "ActionGroup.h"

namespace nsModFindReplace {

/// The entries of find and replace in the menu "Edit".
class FindReplaceActions : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionFind = 0, eActionFindNext = 1, eActionFindPrev = 2, eActionReplace = 3 };

    explicit FindReplaceActions(QObject* parent);

    /// None: the bar has buttons of its own.
    QList<QAction*> toolBarActions() const override { return {}; }
    QAction* command(eAction_t action) const { return entry(action); }

signals:
    void triggered(nsModFindReplace::FindReplaceActions::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModFindReplace
