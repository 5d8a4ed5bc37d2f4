#include "ProcActionsSim.h"

#include <QAction>

namespace nsProc {

namespace {

const ProcActionsSim::eAction_t bases[] = {ProcActionsSim::eActionBaseDec, ProcActionsSim::eActionBaseHex,
                                           ProcActionsSim::eActionBaseOct};

} // namespace

ProcActionsSim::ProcActionsSim(QObject* parent)
    : ActionGroup(parent, ":/ProcCommon/img/simulator/")
{
    addEntries({
        {eActionEnable, QT_TR_NOOP("Enable/disable simulator"), nullptr, "simEn"},
        separator(),
        {eActionReset, QT_TR_NOOP("Reset"), QT_TR_NOOP("Reset simulator"), "simRestart"},
        {eActionSetPc, QT_TR_NOOP("Set program counter from text cursor"), nullptr, "simSetPc"},
        {eActionInterrupt, QT_TR_NOOP("Interrupt"), QT_TR_NOOP("Toggle interrupt"), "simInt"},
        separator(),
        {eActionRun, QT_TR_NOOP("Run..."), QT_TR_NOOP("Run simulation"), "simRun", "F9"},
        {eActionNextLine, QT_TR_NOOP("Next line"), QT_TR_NOOP("Simulate next line"), "simNext", "F10"},
        {eActionNextInstruction, QT_TR_NOOP("Next instruction"), QT_TR_NOOP("Simulate next instruction"), "simNextLine",
         "F11"},
        {eActionToEndOfCall, QT_TR_NOOP("Simulate to end of call"), nullptr, "simToEndOfCall", "Shift+F11"},
        {eActionToCursor, QT_TR_NOOP("Simulate to cursor"), nullptr, "simToCursor", "Shift+F9"},
        separator(),
        {eActionBaseDec, QT_TR_NOOP("Dec"), QT_TR_NOOP("Set numeric base to decimal"), "baseDec"},
        {eActionBaseHex, QT_TR_NOOP("Hex"), QT_TR_NOOP("set numeric base to hexadecimal"), "baseHex"},
        {eActionBaseOct, QT_TR_NOOP("Oct"), QT_TR_NOOP("Set numeric base to octal"), "baseOct"},
    });
    for (const eAction_t action : bases)
        entry(action)->setCheckable(true);
}

void ProcActionsSim::setBase(eAction_t action)
{
    for (const eAction_t base : bases)
        entry(base)->setChecked(base == action);
}

bool ProcActionsSim::isEnabled(eAction_t action) const
{
    const QAction* one = entry(action);
    return one != nullptr && one->isEnabled();
}

void ProcActionsSim::setStopping(eAction_t action, bool stopping)
{
    if (stopping)
        setLook(action, "simStop", tr("Stop simulation"));
    else
        resetLook(action);
}

} // namespace nsProc
