// The run loop: many instructions of the decoded program, without marks for views.

#include "ProcSimEngine.h"

#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreCheck.h"
#include "ProcSimCoreData.h"
#include "ProcSimExact.h"
#include "ProcSimInstr.h"
#include "ProcSimObserver.h"

#include "Opcode.h"

namespace nsProc {

using nsModAsmFe::Opcode;

/// The machine of the run loop: a copy of what instructions change most often, which is written back at the end. Where
/// it refuses an instruction, it has changed nothing, and the single step does it.
///
/// @tparam isObserved observers follow the instructions
/// @tparam isPaged instructions stand in several ranges, so that the present page must be kept in mind
template <bool isObserved, bool isPaged>
class ProcSimEngine::Loop
{
public:
    explicit Loop(ProcSimEngine* engine)
        : logicClearsCarry(engine->m_table->sim.logicClearsCarry)
        , chainsZero(engine->m_table->sim.chainsZero)
        , m_engine(*engine)
        , m_instrs(engine->m_program.instrs())
        , m_scrpd(engine->m_core->scrpdValues())
        , m_scrpdCount(unsigned(engine->m_core->scrpdValueCount()))
        , m_bank(engine->m_core->bank())
        , m_carry(engine->m_core->carryBit() != 0)
        , m_zero(engine->m_core->zeroBit() != 0)
        , m_pc(engine->m_pc)
        , m_page(engine->m_lastPage)
    {
        takeBank();
    }

    /// @return number of instructions that were executed
    static qint64 run(ProcSimEngine* engine, qint64 count, int until);

    const bool logicClearsCarry;
    const bool chainsZero;
    static constexpr bool chainsLowByte = false;
    static constexpr bool rotateKeepsCarry = false;

    // For the instructions.
    Q_ALWAYS_INLINE int shiftedReg(const sSimInstr_t& in) const { return m_regs[in.dst]; }
    Q_ALWAYS_INLINE int dstReg(const sSimInstr_t& in) const { return m_regs[in.dst]; }
    Q_ALWAYS_INLINE int srcReg(const sSimInstr_t& in) const { return m_regs[in.src]; }
    Q_ALWAYS_INLINE bool setReg(const sSimInstr_t& in, int value)
    {
        m_regs[in.dst] = quint8(value);
        return true;
    }
    Q_ALWAYS_INLINE bool setOtherReg(const sSimInstr_t& in, int value)
    {
        m_otherRegs[in.dst] = quint8(value);
        return true;
    }
    Q_ALWAYS_INLINE bool carry() const { return m_carry; }
    Q_ALWAYS_INLINE bool zero() const { return m_zero; }
    Q_ALWAYS_INLINE void setCarry(bool value) { m_carry = value; }
    Q_ALWAYS_INLINE void setZero(bool value) { m_zero = value; }
    Q_ALWAYS_INLINE void setBank(int bank)
    {
        m_bank = bank;
        takeBank();
    }
    Q_ALWAYS_INLINE void setInterrupt(eInt_t state) { m_engine.m_core->setInterrupt(state); }

    Q_ALWAYS_INLINE bool goTo(int position)
    {
        m_pc = position;
        if constexpr (isPaged)
            visit(position);
        return true;
    }
    Q_ALWAYS_INLINE bool flowTarget(const sSimInstr_t&, const int*) const { return true; }
    Q_ALWAYS_INLINE bool pushToCallstack()
    {
        const Opcode& opcode = *m_engine.m_program.opcode(m_pc);
        const QString& label = opcode.arg0->type == nsModAsmFe::Arg::label ? opcode.arg0->name : opcode.arg1->name;
        return m_engine.m_callStack->push(label, m_carry, m_zero, opcode.pageAddr, opcode.srcRef.absLineNo,
                                          m_engine.m_program.isFirstOfLine(m_pc) ? m_pc : int(sSimInstr_t::none));
    }
    /// Is there an item whose instruction was looked up, and one that follows?
    Q_ALWAYS_INLINE bool mayReturn() const
    {
        const sCallStackItem_t* item = m_engine.m_callStack->top();
        return item != nullptr && item->position >= 0 && m_instrs[item->position].next >= 0;
    }
    Q_ALWAYS_INLINE bool returnFromCall()
    {
        if (!mayReturn())
            return false;
        const int position = m_engine.m_callStack->top()->position;
        m_engine.m_callStack->pop();
        if constexpr (isPaged)
            visit(position);
        return goTo(m_instrs[position].next);
    }
    Q_ALWAYS_INLINE bool returnFromInterrupt()
    {
        const sCallStackItem_t* item = m_engine.m_callStack->top();
        m_carry = item->carry;
        m_zero = item->zero;
        const int position = item->position;
        m_engine.m_callStack->pop();
        return goTo(position);
    }

    Q_ALWAYS_INLINE bool readScrpd(int addr, int* value) const
    {
        if (unsigned(addr) >= m_scrpdCount)
            return false;
        *value = m_scrpd[addr];
        return true;
    }
    Q_ALWAYS_INLINE bool writeScrpd(int addr, int value)
    {
        if (unsigned(addr) >= m_scrpdCount)
            return false;
        m_scrpd[addr] = quint8(value);
        if constexpr (isObserved) {
            for (ProcSimObserver* observer : m_engine.m_followers)
                observer->scrpdWritten(addr, value);
        }
        return true;
    }
    Q_ALWAYS_INLINE bool readHwbld(const int*) const { return false; }
    Q_ALWAYS_INLINE bool readPort(int, const int*) const { return false; }
    Q_ALWAYS_INLINE void notePortRead(int, int) const {}
    Q_ALWAYS_INLINE bool writePort(int, int) const { return false; }
    Q_ALWAYS_INLINE bool simOpcode_unsupported() const { return false; }

private:
    Q_ALWAYS_INLINE void takeBank()
    {
        m_regs = m_engine.m_core->regValues(m_bank);
        m_otherRegs = m_engine.m_core->regValues(m_engine.m_core->bankCount() > 1 ? 1 - m_bank : 0);
    }
    Q_ALWAYS_INLINE void visit(int position)
    {
        const int memRange = m_engine.m_program.opcode(position)->memRange;
        m_page = memRange > 0 ? memRange : m_page;
    }

    ProcSimEngine& m_engine;
    const sSimInstr_t* m_instrs;
    quint8* m_regs = nullptr;
    quint8* m_otherRegs = nullptr;
    quint8* m_scrpd;
    unsigned m_scrpdCount;
    int m_bank;
    bool m_carry;
    bool m_zero;
    int m_pc;
    int m_page;
};

template <bool isObserved, bool isPaged>
qint64 ProcSimEngine::Loop<isObserved, isPaged>::run(ProcSimEngine* engine, qint64 count, int until)
{
    // A local object of which nobody keeps the address, so that its members stay in the machine's registers.
    Loop m(engine);
    qint64 left = count;
    while (left > 0) {
        const sSimInstr_t& instr = m.m_instrs[m.m_pc];
        if constexpr (isObserved) {
            if (instr.isLeftToStep())
                break;
            for (ProcSimObserver* observer : engine->m_followers)
                observer->instruction(m.m_pc, engine->m_clock->clocks + (count - left) * engine->m_clocksOfInstr);
        }
        if ((isObserved && engine->m_isHalted) || !ProcSimInstr<Loop>::execute(m, instr.op, instr)) {
            if constexpr (isObserved) {
                for (ProcSimObserver* observer : engine->m_followers)
                    observer->refused(m.m_pc);
            }
            break;
        }
        --left;
        if (m.m_pc == until)
            break;
    }
    const qint64 executed = count - left;
    if (executed > 0)
        engine->storeLoop({m.m_bank, m.m_carry, m.m_zero, m.m_pc, m.m_page, executed});
    return executed;
}

void ProcSimEngine::storeLoop(const sLoopEnd_t& end)
{
    m_core->setBank(end.bank);
    m_core->editCarryBit(end.carry);
    m_core->editZeroBit(end.zero);
    m_clock->clocks += end.executed * m_clocksOfInstr;
    m_lastPage = end.page;
    SimOutcome unused;
    moveTo(end.pc, &unused);
    if (m_table->sim.clearsEachInstr)
        clearHighlights();
}

template <bool isObserved>
qint64 ProcSimEngine::loop(qint64 count, int until)
{
    return m_program.hasShared() ? Loop<isObserved, true>::run(this, count, until)
                                 : Loop<isObserved, false>::run(this, count, until);
}

qint64 ProcSimEngine::run(qint64 count, int until, SimOutcome* outcome)
{
    qint64 executed = 0;
    *outcome = SimOutcome();
    if (m_isHalted) {
        outcome->end = SimOutcome::eEndStopped;
        return 0;
    }
    if (m_exact != nullptr)
        return m_exact->run(count, until, outcome);
    while (executed < count) {
        const bool isLookedAt = m_check != nullptr && m_check->looksAtNext();
        if (m_program.isPlaced() && m_pc != sSimInstr_t::none && m_core->interrupt() != eIntPending && !isLookedAt) {
            const qint64 fast =
                m_followers.empty() ? loop<false>(count - executed, until) : loop<true>(count - executed, until);
            executed += fast;
            if (executed == count || (fast > 0 && m_pc == until) || m_isHalted)
                break;
        }
        *outcome = step();
        if (!outcome->wentOn())
            break;
        ++executed;
        if (!outcome->reports.empty() || m_pc == until || m_pc == sSimInstr_t::none || m_isHalted)
            break;
    }
    return executed;
}

} // namespace nsProc
