// The run loop of the exact simulation.

#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimExact.h"
#include "ProcSimInstr.h"
#include "ProcSimObserver.h"

#include <algorithm>

namespace nsProc {

using namespace nsModAsmFe;

/// The machine of the run loop: it has what instructions change most often, and leaves to the step what ports, the
/// interrupt logic, an end of the stack or of the scratchpad, or an empty cell would see.
///
/// @tparam isObserved observers follow the instructions
/// @tparam stack of the core, which tells the three cores apart
template <bool isObserved, sCoreTraits_t::eStack_t stack>
class ProcSimEngine::Exact::Loop
{
    using sInstr = const sSimInstr_t&;

public:
    explicit Loop(Exact* exact)
        : logicClearsCarry(exact->m_engine.m_table->sim.logicClearsCarry)
        , chainsZero(exact->m_engine.m_table->sim.chainsZero)
        , m_exact(*exact)
        , m_engine(exact->m_engine)
        , m_instrs(exact->program().instrs())
        , m_scrpd(exact->m_engine.m_core->scrpdValues())
        , m_scrpdCount(exact->hasLongAddresses() ? 0 : unsigned(exact->m_engine.m_core->scrpdValueCount()))
        , m_bank(exact->m_engine.m_core->bank())
        , m_carry(exact->m_engine.m_core->carryBit() != 0)
        , m_zero(exact->m_engine.m_core->zeroBit() != 0)
        , m_pc(exact->m_engine.m_pc)
    {
        takeBank();
    }

    /// @return number of instructions that were executed
    static qint64 run(Exact* exact, qint64 count, int until);

    const bool logicClearsCarry;
    const bool chainsZero;
    static constexpr bool chainsLowByte = true;
    static constexpr bool rotateKeepsCarry = stack == sCoreTraits_t::eStackOfReturns;

    // For the instructions.
    Q_ALWAYS_INLINE int dstReg(sInstr in) const { return m_regs[in.dst]; }
    Q_ALWAYS_INLINE int srcReg(sInstr in) const { return m_regs[in.src]; }
    Q_ALWAYS_INLINE int shiftedReg(sInstr in) const { return m_regs[rotatesSource ? in.src : in.dst]; }
    Q_ALWAYS_INLINE bool setReg(sInstr in, int value)
    {
        m_regs[in.dst] = quint8(value);
        return true;
    }
    Q_ALWAYS_INLINE bool setOtherReg(sInstr in, int value)
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
    Q_ALWAYS_INLINE void setInterrupt(eInt_t) const {}
    Q_ALWAYS_INLINE bool goTo(int position)
    {
        m_pc = position;
        return true;
    }
    Q_ALWAYS_INLINE bool flowTarget(sInstr in, int* target)
    {
        if (in.target == sSimInstr_t::computed) {
            const int addr = (m_regs[in.dst] << 8) | m_regs[in.src];
            *target = m_exact.positionFrom(m_pc, addr & ((1 << m_engine.m_table->layout.flowBits) - 1));
        }
        return true;
    }
    Q_ALWAYS_INLINE bool pushToCallstack()
    {
        if (m_exact.m_depth >= m_exact.stackLimit())
            return false;
        m_exact.push(stack == sCoreTraits_t::eStackOfReturns ? m_instrs[m_pc].next : m_pc, m_pc, m_carry, m_zero,
                     m_bank);
        return true;
    }
    Q_ALWAYS_INLINE bool mayReturn() const { return m_exact.m_depth > 0; }
    Q_ALWAYS_INLINE bool returnFromCall()
    {
        if (!mayReturn())
            return false;
        const int position = m_exact.popAt(m_pc).position;
        return goTo(stack == sCoreTraits_t::eStackOfReturns ? position : m_instrs[position].next);
    }
    Q_ALWAYS_INLINE bool returnFromInterrupt() const { return false; }
    Q_ALWAYS_INLINE bool readScrpd(int addr, int* value)
    {
        if (unsigned(addr) >= m_scrpdCount)
            return false;
        *value = m_scrpd[addr];
        countAccess();
        return true;
    }
    Q_ALWAYS_INLINE bool writeScrpd(int addr, int value)
    {
        if (unsigned(addr) >= m_scrpdCount)
            return false;
        m_scrpd[addr] = quint8(value);
        countAccess();
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
    static constexpr bool rotatesSource = stack == sCoreTraits_t::eStackOfReturns;
    static constexpr int accessLead = stack == sCoreTraits_t::eStackOfReturns ? 1 : 0;

    /// Clocks that an access takes beyond those of an instruction.
    Q_ALWAYS_INLINE void countAccess() { m_extraClocks += accessLead; }
    Q_ALWAYS_INLINE void takeBank()
    {
        m_regs = m_engine.m_core->regValues(m_bank);
        m_otherRegs = m_engine.m_core->regValues(m_engine.m_core->bankCount() > 1 ? 1 - m_bank : 0);
    }

    Exact& m_exact;
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
    qint64 m_extraClocks = 0;
};

template <bool isObserved, sCoreTraits_t::eStack_t stack>
qint64 ProcSimEngine::Exact::Loop<isObserved, stack>::run(Exact* exact, qint64 count, int until)
{
    // A local object of which nobody keeps the address, so that its members stay in the machine's registers.
    Loop m(exact);
    ProcSimEngine& engine = exact->m_engine;
    qint64 left = count;
    while (left > 0) {
        const sSimInstr_t& instr = m.m_instrs[m.m_pc];
        if constexpr (isObserved) {
            if (instr.isLeftToStep())
                break;
            const qint64 clock = engine.m_clock->clocks + (count - left) * slotClocks + m.m_extraClocks;
            for (ProcSimObserver* observer : engine.m_followers)
                observer->instruction(m.m_pc, clock);
        }
        if ((isObserved && engine.m_isHalted) || !ProcSimInstr<Loop>::execute(m, instr.op, instr)) {
            if constexpr (isObserved) {
                for (ProcSimObserver* observer : engine.m_followers)
                    observer->refused(m.m_pc);
            }
            break;
        }
        --left;
        if (m.m_pc == until)
            break;
    }
    const qint64 executed = count - left;
    if (executed == 0)
        return 0;
    engine.m_core->setBank(m.m_bank);
    engine.m_core->editCarryBit(m.m_carry);
    engine.m_core->editZeroBit(m.m_zero);
    engine.m_clock->clocks += executed * slotClocks + m.m_extraClocks;
    exact->m_hasRun = true;
    exact->m_wasEmpty = false;
    exact->place(m.m_pc);
    if (exact->traits().latchesRequests)
        exact->latchRequests(engine.m_clock->clocks);
    if (engine.m_table->sim.clearsEachInstr)
        engine.clearHighlights();
    return executed;
}

template <bool isObserved>
qint64 ProcSimEngine::Exact::loop(qint64 count, int until)
{
    switch (traits().stack) {
    case sCoreTraits_t::eStackOfCalls:
        return Loop<isObserved, sCoreTraits_t::eStackOfCalls>::run(this, count, until);
    case sCoreTraits_t::eStackOfReturns:
        return Loop<isObserved, sCoreTraits_t::eStackOfReturns>::run(this, count, until);
    case sCoreTraits_t::eStackResets:
        break;
    }
    return Loop<isObserved, sCoreTraits_t::eStackResets>::run(this, count, until);
}

/// How many of the next instructions can not meet an interrupt request.
qint64 ProcSimEngine::Exact::quietCount(qint64 count) const
{
    if (m_isDue || m_isResetting)
        return 0;
    if (!m_isEnabled || m_isInRoutine)
        return count;
    if (m_isLatched)
        return 0;
    const qint64 clock = m_engine.m_clock->clocks;
    const qint64 next = m_line.nextUp(traits().latchesRequests ? std::min(m_seen, clock) : clock);
    if (next == ProcSimIntLine::never)
        return count;
    // Where requests are latched, an instruction that ends one clock before the request is not touched.
    const qint64 quiet =
        traits().latchesRequests ? (next - clock + 1) / traits().accessClocks : (next - clock + 1) / slotClocks;
    return std::max(std::min(count, quiet), qint64(0));
}

qint64 ProcSimEngine::Exact::run(qint64 count, int until, SimOutcome* outcome)
{
    qint64 executed = 0;
    followClock();
    while (executed < count) {
        const qint64 quiet = m_engine.m_pc != sSimInstr_t::none ? quietCount(count - executed) : 0;
        if (quiet > 0) {
            const qint64 fast = m_engine.m_followers.empty() ? loop<false>(quiet, until) : loop<true>(quiet, until);
            executed += fast;
            if (executed == count || (fast > 0 && m_engine.m_pc == until) || m_engine.m_isHalted)
                break;
        }
        m_isExecuted = false;
        *outcome = oneStep();
        executed += m_isExecuted ? 1 : 0;
        if (!outcome->wentOn() || !outcome->reports.empty() || m_engine.m_pc == until || m_engine.m_isHalted)
            break;
    }
    m_clock = m_engine.m_clock->clocks;
    showState();
    return executed;
}

} // namespace nsProc
