#pragma once

#include "ActionGroup.h"

namespace nsModScript {

/// The entries of scripts in the menu "Tools".
class ScriptActions : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionRun = 0, eActionStop = 1 };

    explicit ScriptActions(QObject* parent);

signals:
    void triggered(nsModScript::ScriptActions::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModScript
