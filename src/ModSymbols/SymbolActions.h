#pragma once

#include "ActionGroup.h"

namespace nsModSymbols {

/// What leads from name to name and from message to message, in the menu "Navigation".
class SymbolActions : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t {
        eActionDefinition = 0,
        eActionUsages = 1,
        eActionRename = 2,
        eActionBack = 3,
        eActionForward = 4,
        eActionNextMessage = 5,
        eActionPrevMessage = 6,
    };

    explicit SymbolActions(QObject* parent);

    QList<QAction*> toolBarActions() const override { return {}; }
    /// The actions for the name at the cursor, for the menu of a document.
    QList<QAction*> nameActions() const;
    QAction* action(eAction_t action) const { return entry(action); }

signals:
    void triggered(nsModSymbols::SymbolActions::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModSymbols
