#pragma once

#include "ActionGroup.h"

namespace nsProc {

/// What can be done with a simulator, in the menu and the tool bar.
class ProcActionsSim : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t {
        eActionEnable = 0,
        eActionRun = 1,
        eActionNextLine = 2,
        eActionNextInstruction = 3,
        eActionToEndOfCall = 4,
        eActionToCursor = 5,
        eActionInterrupt = 6,
        eActionReset = 7,
        eActionSetPc = 8,
        eActionBaseDec = 9,
        eActionBaseHex = 10,
        eActionBaseOct = 11,
    };

    explicit ProcActionsSim(QObject* parent = nullptr);

    bool isEnabled(eAction_t action) const;
    /// Checks the entry of the present base. @param action one of the three bases; any other: none is checked
    void setBase(eAction_t action);
    /// While its command is in progress, the action shows a stop sign; triggering it again stops the command.
    void setStopping(eAction_t action, bool stopping);

signals:
    void triggered(nsProc::ProcActionsSim::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsProc
