#pragma once

#include "ActionGroup.h"

namespace nsModSrcNavi {

/// The navigator's entries in the menu.
class NaviActions : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionQuickOpen = 0, eActionFileList = 1 };

    explicit NaviActions(QObject* parent);

    QList<QAction*> toolBarActions() const override { return {}; }

signals:
    void triggered(nsModSrcNavi::NaviActions::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModSrcNavi
