#pragma once

#include "ProcSimProgram.h"
#include "ProcSimTypes.h"

#include <QtAlgorithms>

namespace nsProc {

/// What each instruction does. This stands here once, for the single step and for the run loop: a machine lends it
/// registers, flags, scratchpad, call stack and ports.
///
/// An operation of a machine that returns false ends the instruction. Up to then the instruction has changed nothing,
/// or what the processor changes in this case, too. `logicClearsCarry` and `chainsZero` are those of the processor,
/// `chainsLowByte` and `rotateKeepsCarry` of an exact simulation.
template <class Machine>
class ProcSimInstr
{
public:
    using sInstr = const sSimInstr_t&;

    /// @param op the opcode of the instruction; anything else is refused
    /// @return executed
    Q_ALWAYS_INLINE static bool execute(Machine& m, int op, sInstr in)
    {
        using namespace nsModAsmFe;
        switch (op) {
        case ocLoad:
            return simOpcode_load(m, in);
        case ocStar:
            return simOpcode_star(m, in);
        case ocAdd:
            return simOpcode_add(m, in, false);
        case ocAddc:
            return simOpcode_add(m, in, true);
        case ocSub:
            return simOpcode_sub(m, in, false);
        case ocSubc:
            return simOpcode_sub(m, in, true);
        case ocComp:
            return simOpcode_comp(m, in, false);
        case ocCompc:
            return simOpcode_comp(m, in, true);
        case ocAnd:
            return simOpcode_and(m, in);
        case ocOr:
            return simOpcode_or(m, in);
        case ocXor:
            return simOpcode_xor(m, in);
        case ocTest:
            return simOpcode_test(m, in);
        case ocTestc:
            return simOpcode_testWithCarry(m, in);
        case ocRol:
            return simOpcode_sl(
                m, in, [](Machine&, int before) { return before >> 7; }, m.rotateKeepsCarry);
        case ocRolc:
            return simOpcode_sl(m, in, [](Machine& machine, int) { return int(machine.carry()); });
        case ocSl0:
            return simOpcode_sl(m, in, [](Machine&, int) { return 0; });
        case ocSl1:
            return simOpcode_sl(m, in, [](Machine&, int) { return 1; });
        case ocSlx:
            return simOpcode_sl(m, in, [](Machine&, int before) { return before & 1; });
        case ocRor:
            return simOpcode_sr(
                m, in, [](Machine&, int before) { return before & 1; }, m.rotateKeepsCarry);
        case ocRorc:
            return simOpcode_sr(m, in, [](Machine& machine, int) { return int(machine.carry()); });
        case ocSr0:
            return simOpcode_sr(m, in, [](Machine&, int) { return 0; });
        case ocSr1:
            return simOpcode_sr(m, in, [](Machine&, int) { return 1; });
        case ocSrx:
            return simOpcode_sr(m, in, [](Machine&, int before) { return before >> 7; });
        case ocClr:
            return setFlag(m, in, false);
        case ocSet:
            return setFlag(m, in, true);
        case ocJump:
            return simOpcode_jump(m, in);
        case ocCall:
            return simOpcode_call(m, in);
        case ocRet:
            return simOpcode_ret(m, in);
        case ocReti:
            return simOpcode_retI(m, in);
        case ocLoadret:
            return simOpcode_loadRet(m, in);
        case ocInt:
            return simOpcode_int(m, in);
        case ocNop:
            return m.goTo(in.next);
        case ocRegbank:
            return simOpcode_regBank(m, in);
        case ocHwbuild:
            return simOpcode_hwBuild(m, in);
        case ocRdmem:
            return simOpcode_rdMem(m, in);
        case ocWrmem:
            return simOpcode_wrMem(m, in);
        case ocRdprt:
            return simOpcode_rdPrt(m, in);
        case ocWrprt:
            return simOpcode_wrPrt(m, in);
        default:
            return m.simOpcode_unsupported();
        }
    }

private:
    /// The number or the value of the register that is the second argument.
    Q_ALWAYS_INLINE static int source(Machine& m, sInstr in)
    {
        return in.mode == sSimInstr_t::byRegister ? m.srcReg(in) : in.value;
    }
    static bool isZeroResult(int result) { return (result & ~0x100) == 0; }
    Q_ALWAYS_INLINE static bool isTaken(Machine& m, sInstr in)
    {
        return ((in.mode >> (int(m.carry()) + 2 * int(m.zero()))) & 1) != 0;
    }

    Q_ALWAYS_INLINE static bool simOpcode_load(Machine& m, sInstr in)
    {
        return m.setReg(in, source(m, in)) && m.goTo(in.next);
    }
    /// Writes the register of the other bank.
    Q_ALWAYS_INLINE static bool simOpcode_star(Machine& m, sInstr in)
    {
        return m.setOtherReg(in, source(m, in)) && m.goTo(in.next);
    }

    Q_ALWAYS_INLINE static bool simOpcode_add(Machine& m, sInstr in, bool withCarry)
    {
        const int value = m.dstReg(in);
        return finishSum(m, in, value + source(m, in) + (withCarry ? int(m.carry()) : 0), withCarry);
    }
    Q_ALWAYS_INLINE static bool simOpcode_sub(Machine& m, sInstr in, bool withCarry)
    {
        const int value = m.dstReg(in);
        return finishSum(m, in, value - source(m, in) - (withCarry ? int(m.carry()) : 0), withCarry);
    }
    Q_ALWAYS_INLINE static bool finishSum(Machine& m, sInstr in, int result, bool withCarry)
    {
        if (!m.setReg(in, result))
            return false;
        // As an unsigned number, so that a borrow counts.
        m.setCarry(quint32(result) > 255);
        if (withCarry && m.chainsZero)
            m.setZero(m.zero() && (isZeroResult(result) || (m.chainsLowByte && result == -256)));
        else
            m.setZero(isZeroResult(result) || result == -256);
        return m.goTo(in.next);
    }
    Q_ALWAYS_INLINE static bool simOpcode_comp(Machine& m, sInstr in, bool withCarry)
    {
        const int value = m.dstReg(in);
        const int difference = value - source(m, in) - (withCarry ? int(m.carry()) : 0);
        m.setCarry(difference < 0);
        m.setZero((difference == 0 || (withCarry && m.chainsLowByte && difference == -256)) &&
                  (!withCarry || m.zero()));
        return m.goTo(in.next);
    }

    Q_ALWAYS_INLINE static bool simOpcode_and(Machine& m, sInstr in)
    {
        const int value = m.dstReg(in);
        return finishLogic(m, in, value & source(m, in));
    }
    Q_ALWAYS_INLINE static bool simOpcode_or(Machine& m, sInstr in)
    {
        const int value = m.dstReg(in);
        return finishLogic(m, in, value | source(m, in));
    }
    Q_ALWAYS_INLINE static bool simOpcode_xor(Machine& m, sInstr in)
    {
        const int value = m.dstReg(in);
        return finishLogic(m, in, value ^ source(m, in));
    }
    Q_ALWAYS_INLINE static bool finishLogic(Machine& m, sInstr in, int result)
    {
        if (!m.setReg(in, result))
            return false;
        if (m.logicClearsCarry) {
            m.setCarry(false);
            m.setZero(isZeroResult(result) || result == -256);
        } else {
            m.setZero((result & 0xFF) == 0);
        }
        return m.goTo(in.next);
    }
    /// 1 for an odd number of ones in the low 8 bits.
    static bool parity(int value) { return (qPopulationCount(quint8(value)) & 1) != 0; }
    Q_ALWAYS_INLINE static bool simOpcode_test(Machine& m, sInstr in)
    {
        const int value = m.dstReg(in);
        const int common = value & source(m, in);
        if (m.logicClearsCarry)
            m.setCarry(parity(common));
        m.setZero(common == 0);
        return m.goTo(in.next);
    }
    Q_ALWAYS_INLINE static bool simOpcode_testWithCarry(Machine& m, sInstr in)
    {
        const int value = m.dstReg(in);
        const int common = value & source(m, in);
        m.setCarry(m.carry() != parity(common));
        m.setZero(common == 0 && m.zero());
        return m.goTo(in.next);
    }

    /// Shifts and rotations to the left. @param incoming the bit that comes in, 0 or 1
    template <class Incoming>
    Q_ALWAYS_INLINE static bool simOpcode_sl(Machine& m, sInstr in, Incoming incoming, bool keepsCarry = false)
    {
        const int before = m.shiftedReg(in);
        return finishShift(m, in, (before << 1) + incoming(m, before), keepsCarry ? m.carry() : (before & 0x80) != 0);
    }
    /// The same to the right.
    template <class Incoming>
    Q_ALWAYS_INLINE static bool simOpcode_sr(Machine& m, sInstr in, Incoming incoming, bool keepsCarry = false)
    {
        const int before = m.shiftedReg(in);
        return finishShift(m, in, (before >> 1) + (incoming(m, before) << 7),
                           keepsCarry ? m.carry() : (before & 1) != 0);
    }
    Q_ALWAYS_INLINE static bool finishShift(Machine& m, sInstr in, int result, bool outgoing)
    {
        if (!m.setReg(in, result))
            return false;
        m.setCarry(outgoing);
        m.setZero((result & 0xFF) == 0);
        return m.goTo(in.next);
    }
    Q_ALWAYS_INLINE static bool setFlag(Machine& m, sInstr in, bool value)
    {
        if (in.dst == 0)
            m.setCarry(value);
        else
            m.setZero(value);
        return m.goTo(in.next);
    }

    Q_ALWAYS_INLINE static bool simOpcode_jump(Machine& m, sInstr in)
    {
        if (!isTaken(m, in))
            return m.goTo(in.next);
        int target = in.target;
        return m.flowTarget(in, &target) && m.goTo(target);
    }
    Q_ALWAYS_INLINE static bool simOpcode_call(Machine& m, sInstr in)
    {
        if (!isTaken(m, in))
            return m.goTo(in.next);
        int target = in.target;
        return m.flowTarget(in, &target) && m.pushToCallstack() && m.goTo(target);
    }
    Q_ALWAYS_INLINE static bool simOpcode_ret(Machine& m, sInstr in)
    {
        return isTaken(m, in) ? m.returnFromCall() : m.goTo(in.next);
    }
    Q_ALWAYS_INLINE static bool simOpcode_retI(Machine& m, sInstr in)
    {
        if (!m.mayReturn())
            return false;
        m.setInterrupt(in.value != 0 ? eIntEnabled : eIntDisabled);
        return m.returnFromInterrupt();
    }
    Q_ALWAYS_INLINE static bool simOpcode_loadRet(Machine& m, sInstr in)
    {
        return m.mayReturn() && m.setReg(in, in.value) && m.returnFromCall();
    }
    Q_ALWAYS_INLINE static bool simOpcode_int(Machine& m, sInstr in)
    {
        m.setInterrupt(in.value != 0 ? eIntEnabled : eIntDisabled);
        return m.goTo(in.next);
    }

    Q_ALWAYS_INLINE static bool simOpcode_regBank(Machine& m, sInstr in)
    {
        m.setBank(in.value);
        return m.goTo(in.next);
    }
    Q_ALWAYS_INLINE static bool simOpcode_hwBuild(Machine& m, sInstr in)
    {
        int value = 0;
        if (!m.readHwbld(&value) || !m.setReg(in, value))
            return false;
        m.setCarry(true);
        m.setZero(isZeroResult(value));
        return m.goTo(in.next);
    }

    Q_ALWAYS_INLINE static bool simOpcode_rdMem(Machine& m, sInstr in)
    {
        int value = 0;
        return m.readScrpd(source(m, in), &value) && m.setReg(in, value) && m.goTo(in.next);
    }
    Q_ALWAYS_INLINE static bool simOpcode_wrMem(Machine& m, sInstr in)
    {
        const int value = m.dstReg(in);
        return m.writeScrpd(source(m, in), value) && m.goTo(in.next);
    }
    Q_ALWAYS_INLINE static bool simOpcode_rdPrt(Machine& m, sInstr in)
    {
        const int addr = source(m, in);
        int value = 0;
        if (!m.readPort(addr, &value) || !m.setReg(in, value))
            return false;
        m.notePortRead(addr, value & 0xFF);
        return m.goTo(in.next);
    }
    Q_ALWAYS_INLINE static bool simOpcode_wrPrt(Machine& m, sInstr in)
    {
        const int value = in.mode == sSimInstr_t::constantPort ? in.target : m.dstReg(in);
        return m.writePort(source(m, in), value) && m.goTo(in.next);
    }
};

} // namespace nsProc
