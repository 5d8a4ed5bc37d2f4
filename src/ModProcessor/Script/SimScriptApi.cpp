#include "SimScriptApi.h"

#include "ModProcessor.h"
#include "ProcShell.h"
#include "ProcSim.h"
#include "ProcSimBoundedRun.h"
#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimEngine.h"
#include "ProcTable.h"

#include "AsmFeFileHndlr.h"
#include "LabelTarget.h"
#include "ModAsmFeHookIf.h"
#include "ModPrjHookIf.h"
#include "ModScriptHookIf.h"
#include "Opcode.h"
#include "OpcodeList.h"

namespace nsModProcessor {

using nsProc::ProcShell;
using nsProc::ProcSim;
using nsProc::sSimBoundedRun_t;

SimScriptApi::SimScriptApi(ModProcessor* module)
    : QObject(module)
    , m_module(module)
{
}

ProcShell* SimScriptApi::shell() const
{
    return dynamic_cast<ProcShell*>(m_module->currentProcessor());
}

ProcSim* SimScriptApi::sim() const
{
    ProcSim* sim = shell() != nullptr ? shell()->sim() : nullptr;
    if (sim == nullptr || sim->engine() == nullptr)
        fail(tr("The simulator is not enabled."));
    else if (sim->isRunning())
        fail(tr("The simulator is running."));
    else
        return sim;
    return nullptr;
}

void SimScriptApi::fail(const QString& text) const
{
    if (m_module->modScriptHook != nullptr)
        m_module->modScriptHook->throwError(text);
}

// --- life ---

bool SimScriptApi::isEnabled() const
{
    return shell() != nullptr && shell()->sim() != nullptr;
}

bool SimScriptApi::enable()
{
    if (shell() == nullptr) {
        fail(tr("No processor is selected."));
        return false;
    }
    return isEnabled() || shell()->simStart();
}

void SimScriptApi::disable()
{
    if (isEnabled() && sim() != nullptr)
        shell()->simDisable();
}

void SimScriptApi::reset()
{
    if (sim() != nullptr)
        shell()->simRst();
}

// --- runs ---

void SimScriptApi::execute(sSimBoundedRun_t* run, int count)
{
    if (count < 1) {
        fail(tr("A run needs a number of instructions from 1 on."));
        return;
    }
    run->count = count;
    run->goesOn = [this] { return m_module->modScriptHook == nullptr || m_module->modScriptHook->scriptGoesOn(); };
    m_endReason.clear();
    shell()->simBoundedRun(run);
    switch (run->end) {
    case sSimBoundedRun_t::eEndCount:
        m_endReason = "count";
        break;
    case sSimBoundedRun_t::eEndTarget:
        m_endReason = "target";
        break;
    case sSimBoundedRun_t::eEndBreakpoint:
        m_endReason = "breakpoint";
        break;
    case sSimBoundedRun_t::eEndMessage:
        m_endReason = "message";
        break;
    case sSimBoundedRun_t::eEndStopped:
        m_endReason = "stopped";
        break;
    }
}

int SimScriptApi::step(int count)
{
    sSimBoundedRun_t run;
    run.stopsAtBreakpoints = false;
    if (sim() != nullptr)
        execute(&run, count);
    return run.executed;
}

int SimScriptApi::run(int count)
{
    sSimBoundedRun_t run;
    if (sim() != nullptr)
        execute(&run, count);
    return run.executed;
}

bool SimScriptApi::runTo(const QString& label, int count)
{
    if (sim() == nullptr)
        return false;
    ModAsmFeHookIf* assembler = m_module->modAsmFeHook;
    const nsModAsmFe::LabelTarget target =
        assembler->isAssembled()
            ? nsModAsmFe::LabelTarget::find(*assembler->labelList(), *assembler->opcodeList(), label)
            : nsModAsmFe::LabelTarget();
    if (target.label == nullptr) {
        fail(tr("No such label: %1").arg(label));
        return false;
    }
    if (target.opcode == nullptr) {
        fail(tr("No instruction stands at or behind the label: %1").arg(label));
        return false;
    }
    sSimBoundedRun_t run;
    run.target = target.opcode;
    execute(&run, count);
    return run.end == sSimBoundedRun_t::eEndTarget;
}

bool SimScriptApi::runToLine(const QString& file, int line, int count)
{
    if (sim() == nullptr)
        return false;
    ModAsmFeHookIf* assembler = m_module->modAsmFeHook;
    const QString path = m_module->modPrjHook != nullptr ? m_module->modPrjHook->convToAbsPath(file) : file;
    const int fileNo = assembler->isAssembled() ? assembler->fileHndlr()->fileNo(path) : -1;
    if (fileNo < 0) {
        fail(tr("No such source: %1").arg(file));
        return false;
    }
    sSimBoundedRun_t run;
    run.target = line > 0 ? assembler->opcodeList()->nextOfSrcRef(fileNo, line - 1) : nullptr;
    if (run.target == nullptr) {
        fail(tr("No instruction stands at or below line %1.").arg(line));
        return false;
    }
    execute(&run, count);
    return run.end == sSimBoundedRun_t::eEndTarget;
}

// --- position ---

int SimScriptApi::pc() const
{
    const ProcSim* sim = this->sim();
    const nsModAsmFe::Opcode* next = sim != nullptr ? sim->programCounter() : nullptr;
    return next != nullptr ? next->pageAddr : -1;
}

bool SimScriptApi::setPc(int addr)
{
    ProcSim* sim = this->sim();
    return sim != nullptr && sim->setPcFromAddr(addr);
}

QString SimScriptApi::file() const
{
    const ProcSim* sim = this->sim();
    const nsModAsmFe::Opcode* next = sim != nullptr ? sim->programCounter() : nullptr;
    return next != nullptr ? m_module->modAsmFeHook->fileHndlr()->absSrcFilePath(next->srcRef.fileNo) : QString();
}

int SimScriptApi::line() const
{
    const ProcSim* sim = this->sim();
    const nsModAsmFe::Opcode* next = sim != nullptr ? sim->programCounter() : nullptr;
    return next != nullptr ? next->srcRef.lineNo + 1 : 0;
}

// --- state ---

QStringList SimScriptApi::regNames() const
{
    QStringList names;
    const ProcSim* sim = this->sim();
    for (int i = 0; sim != nullptr && i < sim->core()->regCount(); ++i)
        names.append(sim->engine()->table().regName(i));
    return names;
}

int SimScriptApi::regOf(const ProcSim* sim, const QString& name, int bank) const
{
    if (bank < 0 || bank >= sim->core()->bankCount()) {
        fail(tr("There is no register bank %1.").arg(bank));
        return -1;
    }
    for (int i = 0; i < sim->core()->regCount(); ++i) {
        if (sim->engine()->table().regName(i).compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    fail(tr("There is no register %1.").arg(name));
    return -1;
}

bool SimScriptApi::isByte(int value) const
{
    if (value >= 0 && value <= 255)
        return true;
    fail(tr("%1 is not a value from 0 to 255.").arg(value));
    return false;
}

int SimScriptApi::reg(const QString& name) const
{
    const ProcSim* sim = this->sim();
    return sim != nullptr ? reg(name, sim->core()->bank()) : 0;
}

int SimScriptApi::reg(const QString& name, int bank) const
{
    const ProcSim* sim = this->sim();
    const int index = sim != nullptr ? regOf(sim, name, bank) : -1;
    return index >= 0 ? sim->core()->regValue(bank, index) : 0;
}

void SimScriptApi::setReg(const QString& name, int value)
{
    const ProcSim* sim = this->sim();
    if (sim != nullptr)
        setReg(name, value, sim->core()->bank());
}

void SimScriptApi::setReg(const QString& name, int value, int bank)
{
    ProcSim* sim = this->sim();
    const int index = sim != nullptr && isByte(value) ? regOf(sim, name, bank) : -1;
    if (index < 0)
        return;
    sim->core()->editReg(bank, index, value);
    sim->updateWidgets();
}

int SimScriptApi::bank() const
{
    const ProcSim* sim = this->sim();
    return sim != nullptr ? sim->core()->bank() : 0;
}

void SimScriptApi::setBank(int bank)
{
    ProcSim* sim = this->sim();
    if (sim == nullptr)
        return;
    if (bank < 0 || bank >= sim->core()->bankCount()) {
        fail(tr("There is no register bank %1.").arg(bank));
        return;
    }
    sim->core()->setBank(bank);
    sim->updateWidgets();
}

bool SimScriptApi::carry() const
{
    const ProcSim* sim = this->sim();
    return sim != nullptr && sim->core()->carryBit() != 0;
}

void SimScriptApi::setCarry(bool set)
{
    ProcSim* sim = this->sim();
    if (sim == nullptr)
        return;
    sim->core()->editCarryBit(set ? 1 : 0);
    sim->updateWidgets();
}

bool SimScriptApi::zero() const
{
    const ProcSim* sim = this->sim();
    return sim != nullptr && sim->core()->zeroBit() != 0;
}

void SimScriptApi::setZero(bool set)
{
    ProcSim* sim = this->sim();
    if (sim == nullptr)
        return;
    sim->core()->editZeroBit(set ? 1 : 0);
    sim->updateWidgets();
}

int SimScriptApi::scratchpadSize() const
{
    const ProcSim* sim = this->sim();
    return sim != nullptr ? sim->core()->scrpdSize() : 0;
}

int SimScriptApi::scratchpad(int addr) const
{
    const ProcSim* sim = this->sim();
    int value = 0;
    if (sim != nullptr && !sim->core()->scrpd(addr, &value))
        fail(tr("The scratchpad has no address %1.").arg(addr));
    return value;
}

void SimScriptApi::setScratchpad(int addr, int value)
{
    ProcSim* sim = this->sim();
    if (sim == nullptr || !isByte(value))
        return;
    if (addr < 0 || addr >= sim->core()->scrpdSize()) {
        fail(tr("The scratchpad has no address %1.").arg(addr));
        return;
    }
    sim->core()->editScrpd(addr, value);
    sim->updateWidgets();
}

int SimScriptApi::callDepth() const
{
    const ProcSim* sim = this->sim();
    return sim != nullptr ? sim->callStack()->count() : 0;
}

void SimScriptApi::interrupt()
{
    if (sim() != nullptr)
        shell()->simInt();
}

double SimScriptApi::clocks() const
{
    const ProcSim* sim = this->sim();
    return sim != nullptr ? double(sim->clock()->clocks) : 0;
}

} // namespace nsModProcessor
