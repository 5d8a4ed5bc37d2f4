// Commands: single instructions, runs, breakpoints, the interrupt.

#include "ProcSim.h"

#include "ProcSimCallStackData.h"
#include "ProcSimCoreData.h"
#include "ProcSimObserver.h"
#include "ProcSimPorts.h"
#include "ProcSimResolvePageDialog.h"
#include "ProcSimWidgets.h"

#include "AsmFeFileHndlr.h"
#include "ModAsmFeHookIf.h"
#include "ModEditorHookIf.h"
#include "Opcode.h"
#include "OpcodeList.h"

#include <QApplication>
#include <QMap>
#include <QTimer>

namespace nsProc {

using nsModAsmFe::Opcode;
using nsModAsmFe::OpcodeList;

bool ProcSim::simOpcode()
{
    if (m_traits.clearsEachInstr)
        clearHighlights();
    if (m_pc == nullptr) {
        signMsg(errNoOpcodeToExec);
        return false;
    }
    if (m_core->interrupt() == eIntPending && !enterInterrupt())
        return false;
    if (m_observer != nullptr)
        m_observer->instruction(m_pc);
    const int opcode = m_pc->opcode;
    const Handler handler =
        opcode >= 0 && opcode < nsModAsmFe::ocCount ? m_handlers[opcode] : &ProcSim::simOpcode_unsupported;
    return (this->*handler)();
}

bool ProcSim::enterInterrupt()
{
    m_core->setInterrupt(eIntService);
    // If the call stack is full, the interrupt is lost; the program can continue at the present instruction.
    if (!pushToCallstack(QStringLiteral("ISR"))) {
        signMsg(errCallStackOverflow);
        return false;
    }
    const Opcode* before = m_pc;
    Opcode* vector = nullptr;
    if (!getOpcodeOfAddr(m_config.intVectorAddr, &vector)) {
        if (m_pc == before) {
            m_pc = nullptr;
            signMsg(errNoOpcodeAtIntVect, QString(), m_config.intVectorAddr);
        }
        return false;
    }
    if (!setProgramCounter(vector))
        return false;
    if (m_observer != nullptr)
        m_observer->interruptEntered();
    return true;
}

void ProcSim::clearHighlights()
{
    if (m_core == nullptr)
        return;
    m_core->clearHighlighted();
    m_ports->clearTouched();
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
        if (m_pc != nullptr && m_pc->breakpoint != 0)
            break;
        if (ends() || !goOn())
            break;
    }
    endRun();
}

void ProcSim::simRun()
{
    if (m_running == 1 || m_core == nullptr || !takeTypedPc())
        return;
    startRun();
    runLoop([] { return false; });
}

void ProcSim::simNextInstruction()
{
    if (!m_traits.clearsEachInstr)
        clearHighlights();
    if (m_running == 1 || m_core == nullptr || !takeTypedPc())
        return;
    simOpcode();
    showHighlight();
}

void ProcSim::simNextLine()
{
    if (m_running == 1 || m_core == nullptr || !takeTypedPc())
        return;
    startRun();
    if (m_pc == nullptr || m_pc->opcode != nsModAsmFe::ocCall) {
        simOpcode();
        endRun();
        return;
    }
    const int depth = m_callStack->count();
    runLoop([this, depth] { return depth >= m_callStack->count(); });
}

void ProcSim::simToEndOfCall()
{
    if (m_running == 1 || m_core == nullptr || !takeTypedPc())
        return;
    startRun();
    const int depth = m_callStack->count();
    runLoop([this, depth] { return depth > m_callStack->count(); });
}

void ProcSim::simToCursor()
{
    if (m_running == 1 || m_core == nullptr || !takeTypedPc())
        return;
    syncBreakpoints();
    Opcode* target = nullptr;
    if (!getOpcodeOfCursor(&target) || target == m_pc)
        return;
    startRun();
    // The loop ends when the instructions are deleted, so a deleted target is never compared.
    runLoop([this, target] { return m_pc == target; });
}

bool ProcSim::setPcFromCursor()
{
    Opcode* target = nullptr;
    if (m_core == nullptr || !getOpcodeOfCursor(&target))
        return false;
    const bool success = setProgramCounter(target);
    showHighlight();
    return success;
}

bool ProcSim::setPcFromAddr(int addr)
{
    Opcode* target = nullptr;
    if (m_core == nullptr || m_running == 1) {
        updateWidgets();
        return false;
    }
    if (!modAsmFeHook->isAssembled()) {
        signMsg(errNoOpcodeAssembled);
        return false;
    }
    if (!opcodeOfPage(addr, m_pc != nullptr && m_pc->memRange > 0 ? m_pc->memRange : m_lastPage, &target)) {
        signMsg(errNoOpcodeToExec);
        return false;
    }
    const bool success = setProgramCounter(target);
    showHighlight();
    if (success)
        emit programCounterTyped();
    return success;
}

bool ProcSim::takeTypedPc()
{
    int addr = 0;
    return m_widgets->core == nullptr || !m_widgets->core->takeTypedPc(&addr) || setPcFromAddr(addr);
}

void ProcSim::simInt()
{
    if (m_core == nullptr)
        return;
    if (m_core->interrupt() == eIntEnabled)
        m_core->setInterrupt(eIntPending);
    else if (m_core->interrupt() == eIntPending)
        m_core->setInterrupt(eIntEnabled);
    if (m_running == 0)
        updateWidgets();
}

void ProcSim::simRst()
{
    m_running = 0;
    if (m_core == nullptr)
        return;
    m_core->clear();
    m_callStack->clear();
    m_ports->clear();
    if (waveViewer() != nullptr)
        waveViewer()->clearValues();
    clearHighlights();
    if (!modAsmFeHook->isAssembled()) {
        m_pc = nullptr;
        signMsg(errNoOpcodeAssembled);
    } else {
        setProgramCounter(simStartPointer());
    }
    showHighlight();
}

bool ProcSim::setProgramCounter(Opcode* opcode)
{
    m_pc = opcode;
    if (opcode == nullptr) {
        signInternalError(tr("Zero program pointer!"));
        return false;
    }
    if (opcode->memRange < 0 || opcode->memRange >= m_pageNames.size()) {
        signInternalError(tr("Can not resolve page name!"));
        return false;
    }
    m_core->setPc(opcode->pageAddr, m_pageNames.at(opcode->memRange));
    m_lineIndex = opcode->srcRef.absLineNo;
    if (opcode->memRange > 0)
        m_lastPage = opcode->memRange;
    return true;
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
    int memRange = m_pc->memRange;
    if (memRange == 0 && !resolvePage(&memRange))
        return false;
    return opcodeOfPage(addr, memRange, result);
}

bool ProcSim::opcodeOfPage(int addr, int memRange, Opcode** result) const
{
    const OpcodeList* opcodes = modAsmFeHook->opcodeList();
    *result = opcodes->opcodeOfAddr(addr, memRange);
    // If the page has no instruction at the address, it may be in the range that all pages share.
    if (*result == nullptr)
        *result = opcodes->opcodeOfAddr(addr, 0);
    return *result != nullptr;
}

bool ProcSim::resolvePage(int* memRange)
{
    // Without a main window the user can not be asked: the page that was executed last is used.
    if (modGuiHook == nullptr) {
        *memRange = m_lastPage;
        return true;
    }
    updateWidgets();
    const Opcode* before = m_pc;
    const int deleted = m_deletions;
    ProcSimResolvePageDialog dialog(m_config.pageCount, QApplication::activeWindow());
    dialog.exec();
    // The row is the number of the range: the first row is the shared range.
    *memRange = dialog.selectedRow();
    return m_pc == before && m_pc != nullptr && m_deletions == deleted;
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
    if (m_pc == nullptr || modEditorHook == nullptr || m_core == nullptr)
        return;
    const QString path = modAsmFeHook->fileHndlr()->absSrcFilePath(m_pc->srcRef.fileNo);
    if (isFollowed)
        modEditorHook->setLineHighlighted(path, m_pc->srcRef.lineNo);
    else
        modEditorHook->markLine(path, m_pc->srcRef.lineNo);
}

} // namespace nsProc
