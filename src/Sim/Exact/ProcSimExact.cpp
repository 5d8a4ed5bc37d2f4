// The core's state, its stack and its interrupt logic; the step.

#include "ProcSimExact.h"

#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimExactStep.h"

#include <QCoreApplication>

#include <algorithm>

namespace nsProc {

using namespace nsModAsmFe;

ProcSimEngine::Exact::Exact(ProcSimEngine* engine)
    : m_engine(*engine)
{
    m_engine.m_core->editZeroBit(traits().startZero);
    showInterrupt();
}

void ProcSimEngine::Exact::decode(const OpcodeList& opcodes)
{
    const int pageCount = std::max(m_engine.m_config.pageCount, 1);
    m_pageSize = std::max(m_engine.m_config.pageSize, pageCount > 1 ? 1 : traits().memorySize);
    m_engine.m_program.decodeMemory(opcodes, m_engine.m_core->regCount(), m_pageSize, pageCount);
    // A memory that has become smaller has the addresses of its first page left.
    const auto take = [this](int* position) {
        *position = *position < program().count() ? *position : *position % m_pageSize;
    };
    for (sCell_t& cell : m_cells) {
        take(&cell.position);
        take(&cell.caller);
    }
    m_engine.m_lastPage = std::min(m_engine.m_lastPage, pageCount);
    m_wasEmpty = false;
    m_reported.clear();
}

int ProcSimEngine::Exact::stackLimit() const
{
    // The cell at the pointer takes the address of each instruction: with the last one in use, the next call loses one.
    return traits().stackCells - (traits().stack == sCoreTraits_t::eStackOfCalls ? 1 : 0);
}

void ProcSimEngine::Exact::reset()
{
    ProcSimCoreData& core = *m_engine.m_core;
    core.editCarryBit(0);
    core.editZeroBit(!m_hasRun && traits().startZero);
    core.setBank(0);
    core.clearHighlighted();
    m_pointer = 0;
    m_depth = 0;
    m_isEnabled = false;
    m_isInRoutine = false;
    m_isLatched = false;
    m_isDue = false;
    m_isResetting = false;
    m_wasEmpty = false;
    m_clock = m_engine.m_clock->clocks;
    m_seen = m_clock;
    // The switch stays where it is.
    const bool isHeld = m_line.isHeld();
    m_line.clear();
    m_line.hold(isHeld, m_clock);
    m_reported.clear();
    showState();
}

ProcSimIntLine& ProcSimEngine::Exact::line()
{
    followClock();
    return m_line;
}

/// The user may have set the clock count to 0.
void ProcSimEngine::Exact::followClock()
{
    const qint64 shift = m_engine.m_clock->clocks - m_clock;
    if (shift == 0)
        return;
    m_line.shift(shift);
    m_seen = std::max(m_seen + shift, qint64(0));
    m_clock = m_engine.m_clock->clocks;
}

bool ProcSimEngine::Exact::moveToAddr(int addr)
{
    if (program().count() == 0 || addr < 0 || addr >= m_pageSize)
        return false;
    m_isDue = false;
    m_isResetting = false;
    place((std::max(m_engine.m_lastPage, 1) - 1) * m_pageSize + addr);
    return true;
}

bool ProcSimEngine::Exact::moveToStart(SimOutcome* outcome)
{
    if (program().count() == 0) {
        outcome->reportInternal(QCoreApplication::translate("nsProc::ProcSim", "Zero program pointer!"));
        m_engine.m_pc = sSimInstr_t::none;
        return false;
    }
    m_isDue = false;
    m_isResetting = false;
    place(traits().startAddr % pageSize());
    return true;
}

bool ProcSimEngine::Exact::moveTo(const Opcode* opcode, SimOutcome* outcome)
{
    int position = program().positionOf(opcode);
    if (position == sSimInstr_t::none)
        return m_engine.moveTo(position, outcome);
    const int size = pageSize();
    // What all pages share is executed in the present one.
    const int page = std::max(m_engine.m_lastPage, 1) - 1;
    if (opcode->memRange == 0 && (page + 1) * size <= program().count())
        position = page * size + position % size;
    m_isDue = false;
    m_isResetting = false;
    place(position);
    return true;
}

/// Goes to a cell of the memory.
void ProcSimEngine::Exact::place(int position)
{
    m_engine.m_pc = position;
    const int page = position / pageSize() + 1;
    const Opcode* opcode = program().opcode(position);
    const int range = opcode != nullptr ? opcode->memRange : page;
    m_engine.m_core->setPc(program().address(position), m_engine.m_pageNames.value(range));
    if (opcode != nullptr)
        m_engine.m_lineIndex = opcode->srcRef.absLineNo;
    m_engine.m_lastPage = page;
}

void ProcSimEngine::Exact::push(int position, int caller, bool carry, bool zero, int bank)
{
    const sCell_t cell{position, carry, zero, bank, caller};
    if (traits().stack == sCoreTraits_t::eStackResets) {
        m_cells[++m_pointer] = cell;
    } else {
        m_cells[m_pointer] = cell;
        m_pointer = wrapped(m_pointer + 1);
    }
    m_depth = std::min(m_depth + 1, traits().stackCells);
}

ProcSimEngine::Exact::sCell_t ProcSimEngine::Exact::popAt(int position)
{
    if (traits().stack == sCoreTraits_t::eStackOfCalls)
        m_cells[m_pointer].position = position;
    const sCell_t cell = top();
    if (traits().stack != sCoreTraits_t::eStackResets)
        m_pointer = wrapped(m_pointer - 1);
    else if (m_pointer > 0)
        --m_pointer;
    m_depth = std::max(m_depth - 1, 0);
    return cell;
}

const ProcSimEngine::Exact::sCell_t& ProcSimEngine::Exact::top() const
{
    return traits().stack == sCoreTraits_t::eStackResets ? m_cells[m_pointer] : m_cells[wrapped(m_pointer - 1)];
}

bool ProcSimEngine::Exact::mayGoOn(eSimMsg_t msg, int stop, int position, SimOutcome* outcome, int value)
{
    if ((m_engine.m_config.exactStops & stop) != 0) {
        outcome->report(msg, QString(), value);
        outcome->reports.back().position = position;
        return false;
    }
    const quint64 place = (quint64(msg) << 32) + quint64(position);
    if (m_reported.contains(place))
        return true;
    m_reported.insert(place);
    outcome->report(msg, QString(), value);
    outcome->reports.back().coreGoesOn = true;
    outcome->reports.back().position = position;
    return true;
}

/// Enters the interrupt in the place of the instruction at the program counter.
bool ProcSimEngine::Exact::enterInterrupt(SimOutcome* outcome)
{
    const int position = m_engine.m_pc;
    const int vector = positionInPage(m_engine.m_config.intVectorAddr);
    const bool isFull = m_depth >= stackLimit();
    if (isFull && !mayGoOn(errCallStackOverflow, ProcCoreConfig::eStopAtStack, position, outcome))
        return false;
    if (program().opcode(vector) == nullptr &&
        !mayGoOn(errNoOpcodeAtIntVect, ProcCoreConfig::eStopAtEmpty, vector, outcome, m_engine.m_config.intVectorAddr))
        return false;
    m_isDue = false;
    const ProcSimCoreData& core = *m_engine.m_core;
    m_flagCopy.carry = core.carryBit() != 0;
    m_flagCopy.zero = core.zeroBit() != 0;
    const bool resets = isFull && traits().stack == sCoreTraits_t::eStackResets;
    const int bank = top().bank;
    if (!resets)
        push(position, sSimInstr_t::none, m_flagCopy.carry, m_flagCopy.zero, core.bank());
    if (!traits().latchesRequests) {
        preempt(position);
        if (program().instr(position).opcode() == ocReti && core.bankCount() > 1)
            m_engine.m_core->setBank(bank);
        m_isEnabled = false;
        m_engine.m_clock->clocks += slotClocks;
    } else {
        m_isInRoutine = true;
    }
    place(vector);
    m_wasEmpty = program().opcode(vector) == nullptr;
    for (ProcSimObserver* observer : m_engine.m_observers)
        observer->interruptEntered();
    if (resets)
        resetByCore(false);
    return true;
}

/// What a pre-empted instruction leaves nevertheless.
void ProcSimEngine::Exact::preempt(int position)
{
    SimOutcome unused;
    const sSimInstr_t& in = program().instr(position);
    switch (in.opcode()) {
    case ocRegbank:
        m_engine.m_core->setBank(in.value);
        break;
    case ocJump:
    case ocCall:
    case ocRet:
    case ocReti:
    case ocLoadret:
    case ocInt:
    case ocRdprt:
    case ocWrprt:
    case ocRdmem:
    case ocWrmem:
    case ocHwbuild:
        break;
    default:
        if (traits().entryKeepsNewFlags)
            Step(this, position, Step::eFlagsAlone, &unused).execute();
    }
}

/// The core resets itself; the instruction at the program counter is half executed before.
void ProcSimEngine::Exact::resetByCore(bool isHalfLost)
{
    m_isResetting = true;
    m_isHalfLost = isHalfLost;
    for (ProcSimObserver* observer : m_engine.m_observers)
        observer->coreReset();
}

/// @return false if the half executed instruction waits for a value
bool ProcSimEngine::Exact::finishReset(SimOutcome* outcome)
{
    const int position = m_engine.m_pc;
    if (!m_isHalfLost && !Step(this, position, Step::eHalf, outcome).execute())
        return false;
    ProcSimCoreData& core = *m_engine.m_core;
    // The flags and the bank are cleared when the lowest cell takes the address.
    m_cells[0] = sCell_t();
    m_cells[0].position = position;
    core.setCarryBit(0);
    core.setZeroBit(0);
    core.setBank(0);
    m_pointer = 0;
    m_depth = 0;
    m_isEnabled = false;
    m_isDue = false;
    m_isResetting = false;
    m_wasEmpty = false;
    m_engine.m_clock->clocks += resetClocks;
    place(positionInPage(0));
    return true;
}

bool ProcSimEngine::Exact::executeOne(SimOutcome* outcome)
{
    const int position = m_engine.m_pc;
    const qint64 start = m_engine.m_clock->clocks;
    const bool isEmpty = program().opcode(position) == nullptr;
    // A gap is one place.
    if (isEmpty && !m_wasEmpty && !mayGoOn(errNoOpcodeToExec, ProcCoreConfig::eStopAtEmpty, position, outcome))
        return false;
    m_engine.m_begun = position;
    for (ProcSimObserver* observer : m_engine.m_followers)
        observer->instruction(position, start);
    if (m_engine.m_isHalted)
        return false;
    Step step(this, position, Step::eWhole, outcome);
    if (!step.execute())
        return false;
    const sSimInstr_t in = program().instr(position);
    m_hasRun = true;
    m_isExecuted = true;
    m_wasEmpty = isEmpty;
    place(step.next());
    endInstruction(in.opcode(), in.mode, step.isTaken(), start);
    if (step.resetsCore()) {
        const bool isHalfLost = m_isDue;
        m_isDue = false;
        resetByCore(isHalfLost);
    }
    return true;
}

/// @param end clock behind the last instruction
void ProcSimEngine::Exact::latchRequests(qint64 end)
{
    m_isLatched = m_isLatched || m_line.nextUp(m_seen) < end - latchLead;
    m_seen = std::max(m_seen, end - latchLead);
    m_line.forgetBefore(m_seen);
}

/// Counts the clocks of an instruction, and looks at the interrupt input.
void ProcSimEngine::Exact::endInstruction(int opcode, int condition, bool isTaken, qint64 start)
{
    const bool isPort = opcode == ocRdprt || opcode == ocWrprt;
    const bool isAccess = isPort || opcode == ocRdmem || opcode == ocWrmem;
    const int waits = isPort && traits().hasLongAddresses ? m_engine.m_config.waitStates : 0;
    const qint64 end = start + waits + (isAccess ? traits().accessClocks : slotClocks);
    m_engine.m_clock->clocks = end;
    if (!traits().latchesRequests) {
        // The input counts in the first clock alone.
        m_isDue = m_isEnabled && m_line.isUp(start);
        m_line.forgetBefore(start);
        return;
    }
    latchRequests(end);
    const bool isReturn = opcode == ocRet || opcode == ocReti;
    const bool putsOff =
        isReturn || (isTaken && (opcode == ocCall || (opcode == ocJump && condition != sSimInstr_t::always)));
    m_isDue = m_isLatched && m_isEnabled && !m_isInRoutine && !putsOff;
}

SimOutcome ProcSimEngine::Exact::step()
{
    followClock();
    SimOutcome outcome = oneStep();
    m_clock = m_engine.m_clock->clocks;
    showState();
    return outcome;
}

SimOutcome ProcSimEngine::Exact::oneStep()
{
    SimOutcome outcome;
    m_engine.m_begun = sSimInstr_t::none;
    if (m_engine.m_table->sim.clearsEachInstr)
        m_engine.clearHighlights();
    bool success = false;
    if (m_engine.m_pc == sSimInstr_t::none)
        outcome.report(errNoOpcodeToExec);
    else if ((!m_isResetting || finishReset(&outcome)) && (!m_isDue || enterInterrupt(&outcome)) &&
             (!m_isResetting || finishReset(&outcome)))
        success = executeOne(&outcome);
    if (success && m_isResetting)
        finishReset(&outcome);
    else if (!success && outcome.end == SimOutcome::eEndWentOn)
        outcome.end = SimOutcome::eEndStopped;
    if (!success && m_engine.m_begun != sSimInstr_t::none) {
        for (ProcSimObserver* observer : m_engine.m_followers)
            observer->refused(m_engine.m_begun);
    }
    return outcome;
}

void ProcSimEngine::Exact::showState()
{
    showInterrupt();
    showStack();
}

void ProcSimEngine::Exact::showInterrupt()
{
    eInt_t state = m_isEnabled ? eIntEnabled : eIntDisabled;
    if (m_isInRoutine)
        state = eIntService;
    else if (m_isDue || (m_isLatched && m_isEnabled))
        state = eIntPending;
    m_engine.m_core->setInterrupt(state);
}

/// Makes the list that views show from the cells, the innermost call last.
void ProcSimEngine::Exact::showStack()
{
    ProcSimCallStackData& shown = *m_engine.m_callStack;
    shown.clear();
    const bool resets = traits().stack == sCoreTraits_t::eStackResets;
    // Not the cell that is being written.
    for (int level = std::min(m_depth, stackLimit()); level > 0; --level) {
        const sCell_t& cell = m_cells[resets ? m_pointer - level + 1 : wrapped(m_pointer - level)];
        const bool isKnown = program().count() > 0;
        const Opcode* opcode = isKnown ? program().opcode(cell.position) : nullptr;
        const Opcode* call = isKnown && cell.caller >= 0 ? program().opcode(cell.caller) : nullptr;
        const QString label = cell.caller < 0                  ? QStringLiteral("ISR")
                              : call == nullptr                ? QString()
                              : call->arg0->type == Arg::label ? call->arg0->name
                                                               : call->arg1->name;
        shown.push(label, cell.carry, cell.zero, isKnown ? program().address(cell.position) : 0,
                   opcode != nullptr ? opcode->srcRef.absLineNo : 0, cell.position);
    }
}

} // namespace nsProc
