#include "ProcSimCoreCheck.h"

#include "ProcSimCallStackData.h"
#include "ProcSimCoreData.h"
#include "ProcSimInstr.h"

#include <algorithm>

namespace nsProc {

using namespace nsModAsmFe;

namespace {

/// A warning that is true of so many instructions that it comes at the first of them alone.
bool comesOnce(eSimMsg_t msg)
{
    return msg == warnCoreAccessClocks || msg == warnCoreEntryClocks;
}

const int slotClocks = 2;      ///< of an instruction on the core that accesses nothing
const int longAddressReg = 12; ///< the register behind it has the bits 8 to 15 of an address

} // namespace

/// A machine that finds the flags of an instruction and leaves all else alone.
class ProcSimCoreCheck::Flags
{
public:
    Flags(const ProcTable& table, const ProcSimCoreData& core)
        : logicClearsCarry(table.sim.logicClearsCarry)
        , chainsZero(table.sim.chainsZero)
        , m_core(core)
        , m_carry(core.carryBit() != 0)
        , m_zero(core.zeroBit() != 0)
    {
    }

    const bool logicClearsCarry;
    const bool chainsZero;
    static constexpr bool chainsLowByte = true;
    static constexpr bool rotateKeepsCarry = false;

    int dstReg(const sSimInstr_t& in) const { return m_core.regValue(m_core.bank(), in.dst); }
    int srcReg(const sSimInstr_t& in) const { return m_core.regValue(m_core.bank(), in.src); }
    int shiftedReg(const sSimInstr_t& in) const { return dstReg(in); }
    bool setReg(const sSimInstr_t&, int) const { return true; }
    bool setOtherReg(const sSimInstr_t&, int) const { return true; }
    bool carry() const { return m_carry; }
    bool zero() const { return m_zero; }
    void setCarry(bool value) { m_carry = value; }
    void setZero(bool value)
    {
        m_zero = value;
        m_setsZero = true;
    }
    bool setsZero() const { return m_setsZero; }
    void setBank(int) const {}
    void setInterrupt(eInt_t) const {}
    bool goTo(int) const { return true; }
    bool flowTarget(const sSimInstr_t&, const int*) const { return false; }
    bool pushToCallstack() const { return false; }
    bool mayReturn() const { return false; }
    bool returnFromCall() const { return false; }
    bool returnFromInterrupt() const { return false; }
    bool readHwbld(const int*) const { return false; }
    bool readScrpd(int, const int*) const { return false; }
    bool writeScrpd(int, int) const { return false; }
    bool readPort(int, const int*) const { return false; }
    void notePortRead(int, int) const {}
    bool writePort(int, int) const { return false; }
    bool simOpcode_unsupported() const { return false; }

private:
    const ProcSimCoreData& m_core;
    bool m_carry;
    bool m_zero;
    bool m_setsZero = false;
};

ProcSimCoreCheck::ProcSimCoreCheck(const ProcTable& table, const ProcCoreConfig& config, const ProcSimCoreData& core,
                                   const ProcSimCallStackData& stack)
    : m_table(table)
    , m_config(config)
    , m_core(core)
    , m_stack(stack)
    , m_banks(size_t(stack.capacity()) + 1)
    , m_isStartZero(table.core.startZero)
{
}

bool ProcSimCoreCheck::looksAt(const sSimInstr_t& in) const
{
    switch (in.opcode()) {
    case ocCall:
    case ocRet:
    case ocReti:
    case ocInt:
        return true;
    case ocSubc:
    case ocCompc:
        return m_table.sim.chainsZero;
    case ocRol:
    case ocRor:
    case ocRolc:
    case ocRorc:
        return m_table.core.rotatesSource;
    case ocRdmem:
    case ocWrmem:
        return m_table.core.hasLongAddresses;
    default:
        return false;
    }
}

void ProcSimCoreCheck::clear()
{
    m_copyCarry = false;
    m_copyZero = false;
    m_isInRoutine = false;
    m_isEnabled = false;
    m_isStartZero = m_table.core.startZero;
    m_hasBegun = false;
    m_isRequestLost = false;
    m_reported.clear();
}

void ProcSimCoreCheck::warn(eSimMsg_t msg, int position, SimOutcome* outcome)
{
    const quint64 place = (quint64(msg) << 32) + (comesOnce(msg) ? 0 : quint64(position));
    if (m_reported.contains(place))
        return;
    m_reported.insert(place);
    outcome->report(msg);
    outcome->reports.back().position = position;
}

int ProcSimCoreCheck::source(const sSimInstr_t& in) const
{
    return in.mode == sSimInstr_t::byRegister ? m_core.regValue(m_core.bank(), in.src) : in.value;
}

bool ProcSimCoreCheck::isTaken(const sSimInstr_t& in) const
{
    return ((in.mode >> (m_core.carryBit() + 2 * m_core.zeroBit())) & 1) != 0;
}

int ProcSimCoreCheck::coreClocks(int opcode) const
{
    const bool isPort = opcode == ocRdprt || opcode == ocWrprt;
    if (!isPort && opcode != ocRdmem && opcode != ocWrmem)
        return slotClocks;
    return m_table.core.accessClocks + (isPort && m_table.core.hasLongAddresses ? m_config.waitStates : 0);
}

void ProcSimCoreCheck::beforeInstruction(const ProcSimProgram& program, int position, SimOutcome* outcome)
{
    const sSimInstr_t& in = program.instr(position);
    if (!m_hasBegun && program.address(position) != m_table.core.startAddr)
        warn(warnCoreStart, position, outcome);
    m_hasBegun = true;
    if (m_isRequestLost)
        warn(warnCoreRequestKept, position, outcome);
    m_isRequestLost = false;
    // What the arguments can not be is reported when it is executed.
    if (program.fault(position) != nullptr)
        return;
    if (m_isStartZero)
        checkStartZero(position, in, outcome);
    if (coreClocks(in.opcode()) != m_table.instrClkCntOf(m_config))
        warn(warnCoreAccessClocks, position, outcome);
    switch (in.opcode()) {
    case ocSubc:
    case ocCompc:
        return checkArithmetic(position, in, outcome);
    case ocRol:
    case ocRor:
    case ocRolc:
    case ocRorc:
        return checkRotate(position, in, program.word(position), outcome);
    case ocCall:
        if (isTaken(in))
            checkPush(position, outcome);
        return;
    case ocReti:
        return checkReturn(position, in, outcome);
    case ocInt:
        m_isEnabled = in.value != 0;
        if (m_table.core.latchesRequests && m_isInRoutine && m_isEnabled)
            warn(warnCoreNoSecondLevel, position, outcome);
        return;
    case ocRdprt:
    case ocWrprt:
    case ocRdmem:
    case ocWrmem:
        return checkAccess(position, in, program.word(position), outcome);
    default:
        return;
    }
}

void ProcSimCoreCheck::checkStartZero(int position, const sSimInstr_t& in, SimOutcome* outcome)
{
    const bool isFlow = in.opcode() == ocJump || in.opcode() == ocCall;
    if (isFlow && (in.mode == sSimInstr_t::ifZero || in.mode == sSimInstr_t::ifNotZero))
        warn(warnCoreStartZero, position, outcome);
    Flags flags(m_table, m_core);
    ProcSimInstr<Flags>::execute(flags, in.opcode(), in);
    m_isStartZero = !flags.setsZero();
}

void ProcSimCoreCheck::checkAccess(int position, const sSimInstr_t& in, int word, SimOutcome* outcome)
{
    if (in.mode == sSimInstr_t::constantPort && m_table.core.constantWriteHasLines)
        warn(warnCoreConstantWrite, position, outcome);
    if (!m_table.core.hasLongAddresses)
        return;
    bool differs = false;
    if (in.mode == sSimInstr_t::byRegister) {
        for (int bit = 8; bit < m_config.addressBits; bit += 8) {
            const int bits = std::min(m_config.addressBits - bit, 8);
            const int upper = m_core.regValue(m_core.bank(), longAddressReg + bit / 8);
            differs = differs || (upper & ((1 << bits) - 1)) != 0;
        }
    } else {
        // A number of the source that its field in the word can not hold.
        const int mask = (1 << m_table.layout.portBits) - 1;
        differs = ((word >> m_table.layout.addrShift) & mask) != in.value;
    }
    if (differs)
        warn(warnCoreAddress, position, outcome);
}

void ProcSimCoreCheck::checkArithmetic(int position, const sSimInstr_t& in, SimOutcome* outcome)
{
    const int carry = m_core.carryBit();
    const int result = m_core.regValue(m_core.bank(), in.dst) - source(in) - carry;
    if (m_table.sim.chainsZero && result == -256 && m_core.zeroBit() != 0)
        warn(warnCoreChainedZero, position, outcome);
}

void ProcSimCoreCheck::checkRotate(int position, const sSimInstr_t& in, int word, SimOutcome* outcome)
{
    const int source = (word >> m_table.layout.srcShift) & ((1 << m_table.layout.regBits) - 1);
    const int value = m_core.regValue(m_core.bank(), in.dst);
    const int op = in.opcode();
    // Two registers with one value are as good as one.
    if (m_table.core.rotatesSource && m_core.regValue(m_core.bank(), source % m_core.regCount()) != value)
        warn(warnCoreRotateSource, position, outcome);
    const int outgoing = op == ocRol ? value >> 7 : value & 1;
    if (m_table.core.rotateKeepsCarry && (op == ocRol || op == ocRor) && outgoing != m_core.carryBit())
        warn(warnCoreRotateCarry, position, outcome);
}

void ProcSimCoreCheck::checkPush(int position, SimOutcome* outcome)
{
    const int depth = m_stack.count();
    m_banks[size_t(depth)] = m_core.bank();
    if (depth >= m_table.core.stackCells && depth < m_stack.capacity())
        warn(m_table.core.stack == sCoreTraits_t::eStackResets ? warnCoreReset : warnCoreStackWraps, position, outcome);
}

void ProcSimCoreCheck::checkReturn(int position, const sSimInstr_t& in, SimOutcome* outcome)
{
    const sCallStackItem_t* item = m_stack.top();
    m_isInRoutine = false;
    if (item == nullptr)
        return;
    if (m_table.core.hasFlagCopy && (item->carry != m_copyCarry || item->zero != m_copyZero))
        warn(warnCoreReturnedFlags, position, outcome);
    if (m_core.bankCount() > 1 && m_banks[size_t(m_stack.count() - 1)] != m_core.bank())
        warn(warnCoreReturnedBank, position, outcome);
    if (m_table.core.latchesRequests && m_isEnabled && in.value == 0)
        warn(warnCoreStaysEnabled, position, outcome);
}

int ProcSimCoreCheck::bankOfEntry(const sSimInstr_t& in) const
{
    if (in.opcode() == ocRegbank)
        return in.value;
    if (in.opcode() == ocReti && m_stack.count() > 0)
        return m_banks[size_t(m_stack.count() - 1)];
    return m_core.bank();
}

void ProcSimCoreCheck::beforeEntry(const ProcSimProgram& program, int position, SimOutcome* outcome)
{
    const sSimInstr_t& in = program.instr(position);
    Flags flags(m_table, m_core);
    if (m_table.core.entryKeepsNewFlags && program.fault(position) == nullptr &&
        ProcSimInstr<Flags>::execute(flags, in.opcode(), in) &&
        (flags.carry() != (m_core.carryBit() != 0) || flags.zero() != (m_core.zeroBit() != 0)))
        warn(warnCoreEntryFlags, position, outcome);
    if (!m_table.core.latchesRequests)
        warn(warnCoreEntryClocks, position, outcome);
    if (m_core.bankCount() > 1 && bankOfEntry(in) != m_core.bank())
        warn(warnCoreEntryBank, position, outcome);
    checkPush(position, outcome);
    m_copyCarry = m_core.carryBit() != 0;
    m_copyZero = m_core.zeroBit() != 0;
    m_isInRoutine = true;
}

} // namespace nsProc
