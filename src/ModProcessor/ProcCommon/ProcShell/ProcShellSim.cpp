// The simulator's life and its actions.

#include "ProcShell.h"

#include "ProcSim.h"

#include "ModAsmFeHookIf.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"

namespace nsProc {

using Action = ProcActionsSim;

void ProcShell::handleActionsSim(Action::eAction_t action)
{
    switch (action) {
    case Action::eActionEnable:
        simEnableDisable();
        break;
    case Action::eActionRun:
        simRun();
        break;
    case Action::eActionNextLine:
        simNextLine();
        break;
    case Action::eActionNextInstruction:
        simNextInstruction();
        break;
    case Action::eActionToEndOfCall:
        simToEndOfCall();
        break;
    case Action::eActionToCursor:
        simToCursor();
        break;
    case Action::eActionInterrupt:
        simInt();
        break;
    case Action::eActionReset:
        simRst();
        break;
    case Action::eActionSetPc:
        setPcFromCursor();
        break;
    case Action::eActionBaseDec:
        setBaseDec();
        break;
    case Action::eActionBaseHex:
        setBaseHex();
        break;
    case Action::eActionBaseOct:
        setBaseOct();
        break;
    }
}

void ProcShell::simEnableDisable()
{
    if (m_sim == nullptr && simEnable())
        return;
    simDisable();
}

bool ProcShell::simStart()
{
    if (m_sim != nullptr || simEnable())
        return true;
    simDisable();
    return false;
}

bool ProcShell::simEnable()
{
    if (modAsmFeHook == nullptr || modMsgHook == nullptr)
        return false;
    // The simulator may be disabled while its set-up is still in progress.
    const std::shared_ptr<ProcSim> sim(createSim());
    m_sim = sim;
    modAsmFeHook->registerPlugin(static_cast<ModAsmFePluginIfInterMod*>(sim.get()));
    modMsgHook->registerPlugin(static_cast<ModMsgPluginIf*>(sim.get()));
    if (modGuiHook != nullptr)
        modGuiHook->registerPlugin(static_cast<ModGuiPluginIf*>(sim.get()));
    if (modEditorHook != nullptr)
        modEditorHook->registerPlugin(static_cast<ModEditorPluginIfSimulator*>(sim.get()));
    connect(sim.get(), &ProcSim::programCounterTyped, this, &ProcShell::takeProgramCounter);
    if (!sim->simInit(m_processor.runConfig()))
        return false;
    setActionsEnabled(true);
    setBase(Action::eActionBaseHex, eBaseHex);
    return true;
}

void ProcShell::simDisable()
{
    if (m_sim == nullptr)
        return;
    if (m_sim->isRunning()) {
        m_sim->simStop();
        setActionsEnabled(true);
        return;
    }
    removeSim();
}

void ProcShell::removeSim()
{
    const std::shared_ptr<ProcSim> sim = m_sim;
    if (sim == nullptr)
        return;
    m_sim.reset();
    setActionsEnabled(false);
    setActionsEnabled({Action::eActionEnable}, true);
    sim->simExit();
    // Uses the simulator's own hooks, as the processor may have been detached already.
    if (sim->modAsmFeHook != nullptr)
        sim->modAsmFeHook->unregisterPlugin(static_cast<ModAsmFePluginIfInterMod*>(sim.get()));
    if (sim->modMsgHook != nullptr)
        sim->modMsgHook->unregisterPlugin(static_cast<ModMsgPluginIf*>(sim.get()));
    if (sim->modGuiHook != nullptr)
        sim->modGuiHook->unregisterPlugin(static_cast<ModGuiPluginIf*>(sim.get()));
    if (sim->modEditorHook != nullptr)
        sim->modEditorHook->unregisterPlugin(static_cast<ModEditorPluginIfSimulator*>(sim.get()));
}

void ProcShell::dropServices()
{
    m_servicesGone = true;
    if (m_sim != nullptr)
        m_sim->dropServices();
}

void ProcShell::showStop(Action::eAction_t action, bool stopping)
{
    if (m_actions != nullptr)
        m_actions->setStopping(action, stopping);
}

void ProcShell::runSim(Action::eAction_t action, const std::function<void(ProcSim*)>& command)
{
    const std::shared_ptr<ProcSim> sim = m_sim;
    if (sim == nullptr)
        return;
    if (sim->isRunning()) {
        sim->simStop();
        setActionsEnabled(true);
        return;
    }
    setActionsEnabled({Action::eActionRun, Action::eActionNextLine, Action::eActionNextInstruction,
                       Action::eActionToEndOfCall, Action::eActionToCursor, Action::eActionSetPc},
                      false);
    setActionsEnabled({action}, true);
    showStop(action, true);
    command(sim.get());
    showStop(action, false);
    if (m_sim != sim)
        return;
    // If the processor was detached during the command, its simulator is removed now.
    if (!m_attached)
        removeSim();
    else
        setActionsEnabled(true);
}

void ProcShell::simRun()
{
    runSim(Action::eActionRun, std::mem_fn(&ProcSim::simRun));
}

void ProcShell::simNextLine()
{
    runSim(Action::eActionNextLine, std::mem_fn(&ProcSim::simNextLine));
}

void ProcShell::simToEndOfCall()
{
    runSim(Action::eActionToEndOfCall, std::mem_fn(&ProcSim::simToEndOfCall));
}

void ProcShell::simToCursor()
{
    runSim(Action::eActionToCursor, std::mem_fn(&ProcSim::simToCursor));
}

void ProcShell::simBoundedRun(sSimBoundedRun_t* run)
{
    runSim(Action::eActionRun, [run](ProcSim* sim) { sim->simBoundedRun(run); });
}

void ProcShell::simNextInstruction()
{
    if (const std::shared_ptr<ProcSim> sim = m_sim)
        sim->simNextInstruction();
}

void ProcShell::simInt()
{
    if (const std::shared_ptr<ProcSim> sim = m_sim)
        sim->simInt();
}

void ProcShell::simRst()
{
    const std::shared_ptr<ProcSim> sim = m_sim;
    if (sim == nullptr)
        return;
    sim->simRst();
    setActionsEnabled(true);
}

void ProcShell::setPcFromCursor()
{
    const std::shared_ptr<ProcSim> sim = m_sim;
    if (sim == nullptr)
        return;
    const bool success = sim->setPcFromCursor();
    setActionsEnabled({Action::eActionRun, Action::eActionNextLine, Action::eActionNextInstruction,
                       Action::eActionToEndOfCall, Action::eActionToCursor},
                      success);
}

void ProcShell::takeProgramCounter()
{
    // As with the cursor: there is a next instruction again.
    if (sender() == m_sim.get())
        setActionsEnabled({Action::eActionRun, Action::eActionNextLine, Action::eActionNextInstruction,
                           Action::eActionToEndOfCall, Action::eActionToCursor},
                          true);
}

void ProcShell::simReload()
{
    const std::shared_ptr<ProcSim> sim = m_sim;
    if (sim == nullptr)
        return;
    const bool success = sim->simReload(m_processor.runConfig());
    if (m_sim != sim)
        return;
    setActionsEnabled({Action::eActionRun, Action::eActionNextLine, Action::eActionNextInstruction,
                       Action::eActionToEndOfCall, Action::eActionToCursor},
                      success);
    if (success)
        setActionsEnabled({Action::eActionSetPc}, true);
}

void ProcShell::setBase(Action::eAction_t action, eBase_t base)
{
    setActionsEnabled({Action::eActionBaseDec, Action::eActionBaseHex, Action::eActionBaseOct}, true);
    setActionsEnabled({action}, false);
    if (m_actions != nullptr)
        m_actions->setBase(action);
    if (m_sim != nullptr)
        m_sim->setBase(base);
}

void ProcShell::setBaseDec()
{
    setBase(Action::eActionBaseDec, eBaseDec);
}

void ProcShell::setBaseHex()
{
    setBase(Action::eActionBaseHex, eBaseHex);
}

void ProcShell::setBaseOct()
{
    setBase(Action::eActionBaseOct, eBaseOct);
}

void ProcShell::setActionsEnabled(bool enabled)
{
    if (m_actions != nullptr)
        m_actions->setEnabled(enabled);
}

void ProcShell::setActionsEnabled(std::initializer_list<Action::eAction_t> actions, bool enabled)
{
    if (m_actions == nullptr)
        return;
    for (Action::eAction_t action : actions)
        m_actions->setEnabled(action, enabled);
}

} // namespace nsProc
