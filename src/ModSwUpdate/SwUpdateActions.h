#pragma once

#include "ActionGroup.h"

namespace nsModSwUpdate {

/// The entries of the updates in the menu "Help".
class SwUpdateActions : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionCheck = 0, eActionDownloadPage = 1 };

    explicit SwUpdateActions(QObject* parent);

    /// None: they are needed too rarely.
    QList<QAction*> toolBarActions() const override { return {}; }

signals:
    void triggered(nsModSwUpdate::SwUpdateActions::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModSwUpdate
