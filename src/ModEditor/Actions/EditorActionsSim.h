#pragma once

#include "ActionGroup.h"

namespace nsModEditor {

/// What can be done with the simulator's marks of all documents, in the menu.
class EditorActionsSim : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionClearBreakpoints = 0, eActionClearStartPointer = 1 };

    explicit EditorActionsSim(QObject* parent);

    /// There is none.
    QList<QAction*> toolBarActions() const override { return {}; }

signals:
    void triggered(nsModEditor::EditorActionsSim::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModEditor
