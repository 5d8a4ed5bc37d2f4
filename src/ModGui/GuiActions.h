#pragma once

#include "ActionGroup.h"

namespace nsModGui {

/// The actions of the main window itself.
class GuiActions : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionSetDefaultWindowSize = 0 };

    explicit GuiActions(QObject* parent);

    /// None: it is rarely needed.
    QList<QAction*> toolBarActions() const override { return {}; }

signals:
    void triggered(nsModGui::GuiActions::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModGui
