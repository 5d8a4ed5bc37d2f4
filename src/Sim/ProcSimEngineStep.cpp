// The single step: one instruction with all cases, and the marks that views show.

#include "ProcSimEngine.h"

#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreCheck.h"
#include "ProcSimCoreData.h"
#include "ProcSimExact.h"
#include "ProcSimInstr.h"
#include "ProcSimObserver.h"
#include "ProcSimPorts.h"

#include "Opcode.h"
#include "OpcodeList.h"

#include <QCoreApplication>

namespace nsProc {

using nsModAsmFe::Arg;
using nsModAsmFe::Opcode;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nsProc::ProcSim", text);
}

} // namespace

/// The machine of a single step: it works on the state itself, reports what fails, and notifies the observers.
class ProcSimEngine::Step
{
public:
    Step(ProcSimEngine* engine, SimOutcome* outcome)
        : logicClearsCarry(engine->m_table->sim.logicClearsCarry)
        , chainsZero(engine->m_table->sim.chainsZero)
        , m_engine(*engine)
        , m_outcome(*outcome)
        , m_core(*engine->m_core)
        , m_opcode(*engine->m_program.opcode(engine->m_pc))
        , m_fault(engine->m_program.fault(engine->m_pc))
    {
    }

    /// @return executed
    bool execute()
    {
        const sSimInstr_t& instr = m_engine.m_program.instr(m_engine.m_pc);
        if (m_fault == nullptr || m_fault->isLate)
            return ProcSimInstr<Step>::execute(*this, instr.opcode(), instr);
        if (m_fault->read != nullptr)
            m_core.noteAlias(m_fault->read->iValue, m_fault->read->dispName);
        return fail();
    }
    /// Goes on with a flow whose target was asked for.
    bool goOn(const sQuestion_t& question, int memRange)
    {
        int target = sSimInstr_t::none;
        m_label = question.label;
        if (!findTarget(question.addr, memRange, &target))
            return false;
        return (m_opcode.opcode != nsModAsmFe::ocCall || pushToCallstack()) && goTo(target);
    }

    const bool logicClearsCarry;
    const bool chainsZero;
    static constexpr bool chainsLowByte = false;
    static constexpr bool rotateKeepsCarry = false;

    // For the instructions.
    int shiftedReg(const sSimInstr_t& in) { return dstReg(in); }
    int dstReg(const sSimInstr_t& in) { return reg(in.dst, m_opcode.arg0); }
    int srcReg(const sSimInstr_t& in) { return reg(in.src, m_opcode.arg1); }
    bool setReg(const sSimInstr_t& in, int value)
    {
        if (m_fault != nullptr)
            return fail();
        return m_core.setReg(in.dst, m_opcode.arg0->dispName, value);
    }
    bool setOtherReg(const sSimInstr_t& in, int value)
    {
        m_core.toggleBank();
        m_core.setReg(in.dst, m_opcode.arg0->dispName, value);
        m_core.toggleBank();
        return true;
    }
    bool carry() const { return m_core.carryBit() != 0; }
    bool zero() const { return m_core.zeroBit() != 0; }
    void setCarry(bool value) { m_core.setCarryBit(value); }
    void setZero(bool value) { m_core.setZeroBit(value); }
    void setBank(int bank) { m_core.setBank(bank); }
    void setInterrupt(eInt_t state) { m_core.setInterrupt(state); }

    bool goTo(int position)
    {
        m_engine.moveTo(position, &m_outcome);
        addClocks();
        return true;
    }
    bool flowTarget(const sSimInstr_t& in, int* target);
    bool pushToCallstack();
    bool mayReturn() const { return true; }
    bool returnFromCall();
    bool returnFromInterrupt();

    bool readHwbld(int* value) { return m_core.readHwbld(value) || refuse(errHwBuildRd); }
    bool readScrpd(int addr, int* value) { return m_core.scrpd(addr, value) || refuse(errScrpdRd); }
    bool writeScrpd(int addr, int value);
    bool readPort(int addr, int* value);
    void notePortRead(int addr, int value);
    bool writePort(int addr, int value);
    bool simOpcode_unsupported()
    {
        m_outcome.reports.push_back({sSimReport_t::eKindUnsupported, errNoOpcodeToExec, m_opcode.name, 0});
        return false;
    }

private:
    /// Reports what the arguments can not be.
    bool fail()
    {
        m_outcome.reports.push_back(m_fault->report);
        return false;
    }
    bool refuse(eSimMsg_t msg)
    {
        m_outcome.report(msg);
        return false;
    }
    int reg(int index, const Arg* arg)
    {
        int value = 0;
        m_core.reg(index, arg->dispName, &value);
        return value;
    }
    void addClocks() { m_engine.m_clock->clocks += m_engine.m_clocksOfInstr; }
    bool findTarget(int addr, int memRange, int* target);
    bool pullFromCallstack(bool restoreFlags);

    ProcSimEngine& m_engine;
    SimOutcome& m_outcome;
    ProcSimCoreData& m_core;
    const Opcode& m_opcode;
    const ProcSimProgram::sFault_t* m_fault; ///< null if there is none
    QString m_label;                         ///< of a computed target
};

bool ProcSimEngine::Step::flowTarget(const sSimInstr_t& in, int* target)
{
    if (m_fault != nullptr)
        return fail();
    if (in.target != sSimInstr_t::computed) {
        if (m_opcode.opcode == nsModAsmFe::ocCall)
            m_label = m_opcode.arg0->type == Arg::label ? m_opcode.arg0->name : m_opcode.arg1->name;
        return true;
    }
    const int high = dstReg(in);
    const int low = srcReg(in);
    const int addr = (high << 8) + low;
    m_label = QStringLiteral("%1 = %2, %3 = %4")
                  .arg(m_opcode.arg0->name, QString::number(high), m_opcode.arg1->name, QString::number(low));
    int memRange = 0;
    if (m_engine.pageToLookIn(&memRange))
        return findTarget(addr, memRange, target);
    m_engine.m_question = {sQuestion_t::eTarget, addr, m_label};
    return false;
}

bool ProcSimEngine::Step::findTarget(int addr, int memRange, int* target)
{
    *target = m_engine.positionOfPage(addr, memRange);
    if (*target == sSimInstr_t::none)
        m_outcome.reportInternal(tr("No instruction at address: %1").arg(addr));
    return *target != sSimInstr_t::none;
}

bool ProcSimEngine::Step::pushToCallstack()
{
    const int position = m_engine.m_pc;
    return m_engine.m_callStack->push(m_label, carry(), zero(), m_opcode.pageAddr, m_opcode.srcRef.absLineNo,
                                      m_engine.m_program.isFirstOfLine(position) ? position : int(sSimInstr_t::none)) ||
           refuse(errCallStackOverflow);
}

/// Goes to the position that the innermost item holds.
bool ProcSimEngine::Step::pullFromCallstack(bool restoreFlags)
{
    sCallStackItem_t item;
    if (!m_engine.m_callStack->takeLast(&item)) {
        m_engine.moveTo(sSimInstr_t::none, &m_outcome);
        return refuse(errCallStackEmpty);
    }
    const int position = m_engine.m_program.positionOf(m_engine.m_opcodes->nextOfLineIndex(item.lineIndex));
    if (position == sSimInstr_t::none) {
        m_engine.moveTo(sSimInstr_t::none, &m_outcome);
        return refuse(errCallStackInvalidRetAddr);
    }
    m_engine.moveTo(position, &m_outcome);
    if (restoreFlags) {
        setCarry(item.carry);
        setZero(item.zero);
    }
    return true;
}

bool ProcSimEngine::Step::returnFromCall()
{
    // The item holds the position of the call: the program continues after it.
    if (pullFromCallstack(false))
        return goTo(m_engine.m_program.instr(m_engine.m_pc).next);
    addClocks();
    return true;
}

bool ProcSimEngine::Step::returnFromInterrupt()
{
    // The item holds the position of the interrupted instruction, which is executed next.
    pullFromCallstack(true);
    addClocks();
    return true;
}

bool ProcSimEngine::Step::writeScrpd(int addr, int value)
{
    if (!m_core.setScrpd(addr, value))
        return refuse(errScrpdWr);
    for (ProcSimObserver* observer : m_engine.m_followers)
        observer->scrpdWritten(addr, value);
    return true;
}

bool ProcSimEngine::Step::readPort(int addr, int* value)
{
    return m_engine.readPort(addr, m_opcode.arg1->dispName, value, &m_outcome);
}

void ProcSimEngine::Step::notePortRead(int addr, int value)
{
    m_outcome.port = -1;
    for (ProcSimObserver* observer : m_engine.m_observers)
        observer->portRead(addr, value);
}

bool ProcSimEngine::Step::writePort(int addr, int value)
{
    m_engine.m_ports->setValue(addr, m_opcode.arg1->dispName, value);
    for (ProcSimObserver* observer : m_engine.m_observers)
        observer->portWritten(addr, value & 0xFF);
    return true;
}

/// The value that a program reads at a port: of a device, or else of the first observer that is its source.
/// @param name that the program uses for the port
/// @return false after a report, or with the end set
bool ProcSimEngine::readPort(int addr, const QString& name, int* value, SimOutcome* outcome)
{
    if (m_ports->deviceToRead(addr) == nullptr) {
        for (ProcSimObserver* observer : m_observers) {
            bool handled = false;
            const bool supplied = observer->portSource(addr, value, &handled);
            if (!handled)
                continue;
            if (supplied)
                return true;
            outcome->end = SimOutcome::eEndNoPortValue;
            outcome->port = addr;
            return false;
        }
    }
    outcome->port = addr;
    if (!m_ports->chkIOPluginToRd(addr, name)) {
        outcome->report(warnIODevAddedToRd);
        return false;
    }
    if (!m_ports->value(addr, name, value)) {
        outcome->report(errIODevRd);
        return false;
    }
    return true;
}

SimOutcome ProcSimEngine::step()
{
    if (m_exact != nullptr)
        return m_exact->step();
    SimOutcome outcome;
    m_question = sQuestion_t();
    m_begun = sSimInstr_t::none;
    if (m_table->sim.clearsEachInstr)
        clearHighlights();
    if (m_pc == sSimInstr_t::none) {
        outcome.report(errNoOpcodeToExec);
        finishStep(false, &outcome);
    } else if (m_core->interrupt() == eIntPending && !enterInterrupt(&outcome)) {
        finishStep(false, &outcome);
    } else {
        executeOne(&outcome);
    }
    return outcome;
}

SimOutcome ProcSimEngine::goOnInPage(int memRange)
{
    SimOutcome outcome;
    const sQuestion_t question = m_question;
    m_question = sQuestion_t();
    if (question.about == sQuestion_t::eVector) {
        if (enterVector(memRange, &outcome))
            executeOne(&outcome);
        else
            finishStep(false, &outcome);
    } else {
        finishStep(question.about == sQuestion_t::eTarget && Step(this, &outcome).goOn(question, memRange), &outcome);
    }
    return outcome;
}

void ProcSimEngine::executeOne(SimOutcome* outcome)
{
    m_begun = m_pc;
    for (ProcSimObserver* observer : m_followers)
        observer->instruction(m_begun, m_clock->clocks);
    if (m_check != nullptr && !m_isHalted)
        m_check->beforeInstruction(m_program, m_begun, outcome);
    finishStep(!m_isHalted && Step(this, outcome).execute(), outcome);
}

void ProcSimEngine::finishStep(bool executed, SimOutcome* outcome)
{
    if (executed)
        return;
    if (m_question.about != sQuestion_t::eNothing) {
        outcome->end = SimOutcome::eEndAsksPage;
        return;
    }
    if (outcome->end == SimOutcome::eEndWentOn)
        outcome->end = SimOutcome::eEndStopped;
    if (m_begun == sSimInstr_t::none)
        return;
    for (ProcSimObserver* observer : m_followers)
        observer->refused(m_begun);
}

bool ProcSimEngine::enterInterrupt(SimOutcome* outcome)
{
    const Opcode* opcode = programCounter();
    if (m_check != nullptr)
        m_check->beforeEntry(m_program, m_pc, outcome);
    m_core->setInterrupt(eIntService);
    // If the call stack is full, the interrupt is lost; the program can continue at the present instruction.
    if (!m_callStack->push(QStringLiteral("ISR"), m_core->carryBit() != 0, m_core->zeroBit() != 0, opcode->pageAddr,
                           opcode->srcRef.absLineNo, m_program.isFirstOfLine(m_pc) ? m_pc : int(sSimInstr_t::none))) {
        outcome->report(errCallStackOverflow);
        return false;
    }
    int memRange = 0;
    if (pageToLookIn(&memRange))
        return enterVector(memRange, outcome);
    m_question = {sQuestion_t::eVector, 0, QString()};
    return false;
}

bool ProcSimEngine::enterVector(int memRange, SimOutcome* outcome)
{
    const int vector = positionOfPage(m_config.intVectorAddr, memRange);
    if (vector == sSimInstr_t::none) {
        m_pc = sSimInstr_t::none;
        outcome->report(errNoOpcodeAtIntVect, QString(), m_config.intVectorAddr);
        return false;
    }
    if (!moveTo(vector, outcome))
        return false;
    for (ProcSimObserver* observer : m_observers)
        observer->interruptEntered();
    return true;
}

/// The page in which the next instruction finds an address.
/// @return false if that is to be asked for
bool ProcSimEngine::pageToLookIn(int* memRange) const
{
    *memRange = programCounter()->memRange;
    if (*memRange != 0)
        return true;
    *memRange = m_lastPage;
    return !m_asksPage;
}

} // namespace nsProc
