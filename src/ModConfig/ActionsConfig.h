#pragma once

#include "ActionGroup.h"

namespace nsModConfig {

/// The entry that opens the configuration dialog.
class ActionsConfig : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionConfigure = 0 };
    Q_ENUM(eAction_t)

    explicit ActionsConfig(QObject* parent = nullptr);

signals:
    void triggered(nsModConfig::ActionsConfig::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModConfig
