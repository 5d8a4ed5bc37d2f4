#pragma once

#include "ActionGroup.h"

namespace nsModPrj {

/// The project's entries in menu and tool bar.
class PrjActions : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionNew = 0, eActionOpen = 1, eActionClose = 2 };
    Q_ENUM(eAction_t)

    explicit PrjActions(QObject* parent = nullptr);

    using ActionGroup::setEnabled;
    /// All entries at once. One that was disabled by itself stays so.
    void setEnabled(bool enabled) { QActionGroup::setEnabled(enabled); }

signals:
    void triggered(nsModPrj::PrjActions::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModPrj
