// Commands: single instructions, runs, breakpoints, the interrupt.

#include "ProcSim.h"

#include "ProcSimBoundedRun.h"
#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimEngine.h"
#include "ProcSimIntLine.h"
#include "ProcSimResolvePageDialog.h"
#include "ProcSimWidgets.h"

#include "AsmFeFileHndlr.h"
#include "HelpRef.h"
#include "ModAsmFeHookIf.h"
#include "ModEditorHookIf.h"
#include "Opcode.h"
#include "OpcodeList.h"
#include "Unattended.h"

#include <QApplication>
#include <QMap>
#include <QTimer>

namespace nsProc {

using nsModAsmFe::Opcode;
using nsModAsmFe::OpcodeList;

namespace {

/// Of a bounded run; few enough that the window answers at once.
const int instructionsBetweenEvents = 256;

} // namespace

bool ProcSim::simOpcode()
{
    SimOutcome outcome = m_engine->step();
    while (outcome.end == SimOutcome::eEndAsksPage) {
        int memRange = 0;
        if (!resolvePage(&memRange))
            return false;
        outcome = m_engine->goOnInPage(memRange);
    }
    show(outcome);
    return outcome.wentOn();
}

void ProcSim::startRun()
{
    m_running = 1;
    m_displayTimer->start();
    showRunning(true);
    syncBreakpoints();
}

void ProcSim::endRun()
{
    m_running = 0;
    m_displayTimer->stop();
    showRunning(false);
    showHighlight();
}

/// Handles the user's events. @return the command in progress may go on
bool ProcSim::goOn()
{
    QCoreApplication::processEvents();
    if (m_running == 0)
        return false;
    syncBreakpoints();
    return true;
}

template <class Ends>
void ProcSim::runLoop(Ends ends)
{
    while (simOpcode()) {
        const Opcode* opcode = programCounter();
        if (opcode != nullptr && opcode->breakpoint != 0)
            break;
        if (ends() || !goOn())
            break;
    }
    endRun();
}

void ProcSim::simRun()
{
    if (m_running == 1 || m_engine == nullptr || !takeTypedPc())
        return;
    startRun();
    runLoop([] { return false; });
}

void ProcSim::simNextInstruction()
{
    if (!m_table.sim.clearsEachInstr && m_engine != nullptr)
        m_engine->clearHighlights();
    if (m_running == 1 || m_engine == nullptr || !takeTypedPc())
        return;
    simOpcode();
    showHighlight();
}

void ProcSim::simNextLine()
{
    if (m_running == 1 || m_engine == nullptr || !takeTypedPc())
        return;
    startRun();
    if (programCounter() == nullptr || programCounter()->opcode != nsModAsmFe::ocCall) {
        simOpcode();
        endRun();
        return;
    }
    const int depth = callStack()->count();
    runLoop([this, depth] { return depth >= callStack()->count(); });
}

void ProcSim::simToEndOfCall()
{
    if (m_running == 1 || m_engine == nullptr || !takeTypedPc())
        return;
    startRun();
    const int depth = callStack()->count();
    runLoop([this, depth] { return depth > callStack()->count(); });
}

void ProcSim::simToCursor()
{
    if (m_running == 1 || m_engine == nullptr || !takeTypedPc())
        return;
    syncBreakpoints();
    Opcode* target = nullptr;
    if (!getOpcodeOfCursor(&target) || target == programCounter())
        return;
    startRun();
    // The loop ends when the instructions are deleted, so a deleted target is never compared.
    runLoop([this, target] { return programCounter() == target; });
}

void ProcSim::simBoundedRun(sSimBoundedRun_t* run)
{
    run->end = sSimBoundedRun_t::eEndStopped;
    if (m_running == 1 || m_engine == nullptr || !takeTypedPc())
        return;
    startRun();
    for (;;) {
        if (!simOpcode()) {
            run->end = sSimBoundedRun_t::eEndMessage;
            break;
        }
        ++run->executed;
        const Opcode* opcode = programCounter();
        if (opcode != nullptr && opcode == run->target) {
            run->end = sSimBoundedRun_t::eEndTarget;
            break;
        }
        if (run->stopsAtBreakpoints && opcode != nullptr && opcode->breakpoint != 0) {
            run->end = sSimBoundedRun_t::eEndBreakpoint;
            break;
        }
        if (run->executed >= run->count) {
            run->end = sSimBoundedRun_t::eEndCount;
            break;
        }
        // The instructions may be deleted here: the run has ended then.
        if (run->executed % instructionsBetweenEvents == 0 && (!run->goesOn() || m_running == 0))
            break;
        syncBreakpoints();
    }
    endRun();
}

bool ProcSim::setPcFromCursor()
{
    Opcode* target = nullptr;
    if (m_engine == nullptr || !getOpcodeOfCursor(&target))
        return false;
    const bool success = setProgramCounter(target);
    showHighlight();
    return success;
}

bool ProcSim::setPcFromAddr(int addr)
{
    if (m_engine == nullptr || m_running == 1) {
        updateWidgets();
        return false;
    }
    if (!modAsmFeHook->isAssembled()) {
        signMsg(errNoOpcodeAssembled);
        return false;
    }
    SimOutcome outcome;
    if (!m_engine->moveToAddr(addr, &outcome)) {
        if (outcome.reports.empty())
            signMsg(errNoOpcodeToExec);
        else
            show(outcome);
        return false;
    }
    show(outcome);
    showHighlight();
    emit programCounterTyped();
    return true;
}

bool ProcSim::takeTypedPc()
{
    int addr = 0;
    return m_widgets->core == nullptr || !m_widgets->core->takeTypedPc(&addr) || setPcFromAddr(addr);
}

void ProcSim::simInt()
{
    if (m_engine == nullptr)
        return;
    m_engine->toggleInterrupt();
    if (m_running == 0)
        updateWidgets();
}

void ProcSim::simRst()
{
    m_running = 0;
    if (m_engine == nullptr)
        return;
    m_engine->reset();
    if (waveViewer() != nullptr)
        waveViewer()->clearValues();
    m_engine->clearHighlights();
    if (!modAsmFeHook->isAssembled()) {
        m_engine->dropProgramCounter();
        signMsg(errNoOpcodeAssembled);
    } else {
        goToStart();
    }
    showHighlight();
}

bool ProcSim::setProgramCounter(Opcode* opcode)
{
    SimOutcome outcome;
    const bool success = m_engine->setProgramCounter(opcode, &outcome);
    show(outcome);
    return success;
}

/// To the start mark of the editor, or else to where the processor starts.
bool ProcSim::goToStart()
{
    Opcode* start = simStartPointer();
    if (start != modAsmFeHook->opcodeList()->opcodeOfMemAddr(0))
        return setProgramCounter(start);
    SimOutcome outcome;
    const bool success = m_engine->moveToStart(&outcome);
    show(outcome);
    return success;
}

void ProcSim::holdInterrupt(bool up)
{
    if (m_engine == nullptr || m_engine->intLine() == nullptr)
        return;
    m_engine->intLine()->hold(up, m_engine->clock()->clocks);
    if (m_running == 0)
        updateWidgets();
}

Opcode* ProcSim::programCounter() const
{
    return m_engine != nullptr ? m_engine->programCounter() : nullptr;
}

Opcode* ProcSim::simStartPointer()
{
    QString path;
    int line = 0;
    OpcodeList* opcodes = modAsmFeHook->opcodeList();
    if (modEditorHook != nullptr && modEditorHook->simStartPointer(&path, &line)) {
        const int fileNo = modAsmFeHook->fileHndlr()->fileNo(path);
        if (fileNo >= 0)
            return opcodes->nextOfSrcRef(fileNo, line);
    }
    return opcodes->opcodeOfMemAddr(0);
}

bool ProcSim::getOpcodeOfCursor(Opcode** result)
{
    *result = nullptr;
    QString path;
    int line = 0;
    if (modEditorHook == nullptr || !modEditorHook->cursorLine(&path, &line))
        return false;
    const int fileNo = modAsmFeHook->fileHndlr()->fileNo(path);
    if (fileNo < 0) {
        signMsg(errPcNoPrjFile);
        return false;
    }
    if (!modAsmFeHook->isAssembled()) {
        signMsg(errNoOpcodeAssembled);
        return false;
    }
    *result = modAsmFeHook->opcodeList()->nextOfSrcRef(fileNo, line);
    if (*result == nullptr) {
        signMsg(errNoOpcodeToExec);
        return false;
    }
    return true;
}

bool ProcSim::getOpcodeOfAddr(int addr, Opcode** result)
{
    *result = nullptr;
    int memRange = m_engine->page();
    // Without anybody to ask, the page is the one that was executed last.
    const bool canAsk = modGuiHook != nullptr && !Unattended::isOn();
    if (canAsk && programCounter()->memRange == 0 && !resolvePage(&memRange))
        return false;
    *result = m_engine->opcodeOfPage(addr, memRange);
    return *result != nullptr;
}

bool ProcSim::resolvePage(int* memRange)
{
    updateWidgets();
    const Opcode* before = programCounter();
    const int deleted = m_deletions;
    ProcSimResolvePageDialog dialog(m_engine->config().pageCount, QApplication::activeWindow());
    HelpRef::set(&dialog, QStringLiteral("pageId://simulatorState#pc"));
    dialog.exec();
    // The row is the number of the range: the first row is the shared range.
    *memRange = dialog.selectedRow();
    return programCounter() == before && before != nullptr && m_deletions == deleted;
}

void ProcSim::syncBreakpoints()
{
    // Called before each instruction, so only two numbers are compared.
    if (modEditorHook != nullptr && modEditorHook->simBreakpointsChanged() &&
        (!m_breakpointsTaken || modEditorHook->simBreakpointsRevision() != m_breakpointsRevision))
        setBreakpoints();
}

void ProcSim::clearBreakpoints()
{
    for (Opcode* opcode : *modAsmFeHook->opcodeList())
        opcode->breakpoint = 0;
    m_breakpointsTaken = false;
}

void ProcSim::setBreakpoints()
{
    if (modEditorHook == nullptr)
        return;
    const QMap<QString, QList<int>> marks = modEditorHook->simBreakpoints();
    clearBreakpoints();
    const OpcodeList* opcodes = modAsmFeHook->opcodeList();
    for (auto it = marks.cbegin(); it != marks.cend(); ++it) {
        const int fileNo = modAsmFeHook->fileHndlr()->fileNo(it.key());
        if (fileNo < 0)
            continue;
        for (int line : it.value()) {
            if (Opcode* opcode = opcodes->nextOfSrcRef(fileNo, line))
                opcode->breakpoint = 1;
        }
    }
    m_breakpointsRevision = modEditorHook->simBreakpointsRevision();
    m_breakpointsTaken = true;
}

void ProcSim::showHighlight(bool isFollowed)
{
    updateWidgets();
    const Opcode* opcode = programCounter();
    if (opcode == nullptr || modEditorHook == nullptr)
        return;
    const QString path = modAsmFeHook->fileHndlr()->absSrcFilePath(opcode->srcRef.fileNo);
    if (isFollowed)
        modEditorHook->setLineHighlighted(path, opcode->srcRef.lineNo);
    else
        modEditorHook->markLine(path, opcode->srcRef.lineNo);
}

} // namespace nsProc
