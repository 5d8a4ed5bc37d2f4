// The instructions that processors share. Each works on the arguments of the program counter, and on success moves it
// on.

#include "ProcSim.h"

#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimObserver.h"
#include "ProcSimPorts.h"
#include "ProcSimWaveData.h"

#include "AsmFeMsgHndlr.h"
#include "ModAsmFeHookIf.h"
#include "Opcode.h"

namespace nsProc {

using nsModAsmFe::Arg;
using nsModAsmFe::Opcode;

namespace {

/// 1 for an odd number of ones in the low 8 bits.
int parity(int value)
{
    int result = 0;
    for (int bit = 0; bit < 8; ++bit)
        result ^= (value >> bit) & 1;
    return result;
}

} // namespace

void ProcSim::setCommonHandlers()
{
    using namespace nsModAsmFe;
    const std::pair<eOpcode_t, Handler> common[] = {
        {ocLoad, &ProcSim::simOpcode_load},
        {ocAdd, &ProcSim::simOpcode_addNoCarry},
        {ocAddc, &ProcSim::simOpcode_addWithCarry},
        {ocSub, &ProcSim::simOpcode_subNoCarry},
        {ocSubc, &ProcSim::simOpcode_subWithCarry},
        {ocAnd, &ProcSim::simOpcode_and},
        {ocOr, &ProcSim::simOpcode_or},
        {ocXor, &ProcSim::simOpcode_xor},
        {ocComp, &ProcSim::simOpcode_compNoCarry},
        {ocTest, &ProcSim::simOpcode_test},
        {ocJump, &ProcSim::simOpcode_jump},
        {ocCall, &ProcSim::simOpcode_call},
        {ocRet, &ProcSim::simOpcode_ret},
        {ocReti, &ProcSim::simOpcode_retI},
        {ocInt, &ProcSim::simOpcode_int},
        {ocNop, &ProcSim::simOpcode_nop},
        {ocRdmem, &ProcSim::simOpcode_rdMem},
        {ocWrmem, &ProcSim::simOpcode_wrMem},
        {ocRdprt, &ProcSim::simOpcode_rdPrt},
        {ocWrprt, &ProcSim::simOpcode_wrPrt},
    };
    for (const auto& entry : common)
        m_handlers[entry.first] = entry.second;
}

void ProcSim::setPicoBlazeHandlers()
{
    using namespace nsModAsmFe;
    setCommonHandlers();
    for (eOpcode_t opcode : {ocRol, ocRolc, ocRor, ocRorc, ocSl0, ocSl1, ocSlx, ocSr0, ocSr1, ocSrx})
        m_handlers[opcode] = &ProcSim::simOpcode_sr;
}

bool ProcSim::simOpcode_unsupported()
{
    m_lastMsg = QStringLiteral("errOcUnsupported");
    updateWidgets();
    modAsmFeHook->msgHndlr()->signMsg(nsModAsmFe::errOcUnsupported, &m_pc->srcRef, m_pc->name);
    return false;
}

bool ProcSim::simOpcode_load()
{
    int value = 0;
    return getValueRegNum(m_pc->arg1, &value) && setValueReg(m_pc->arg0, value) && finish();
}

bool ProcSim::simOpcode_add(bool withCarry)
{
    int dst = 0;
    int src = 0;
    if (!operands(&dst, &src))
        return false;
    return finishSum(dst + src + (withCarry ? m_core->carryBit() : 0), withCarry);
}

bool ProcSim::simOpcode_sub(bool withCarry)
{
    int dst = 0;
    int src = 0;
    if (!operands(&dst, &src))
        return false;
    return finishSum(dst - src - (withCarry ? m_core->carryBit() : 0), withCarry);
}

bool ProcSim::finishSum(int result, bool withCarry)
{
    if (!setValueReg(m_pc->arg0, result))
        return false;
    setCarryBitFromResult(result);
    if (withCarry && m_traits.chainsZero)
        m_core->setZeroBit(m_core->zeroBit() != 0 && isZeroResult(result));
    else
        setZeroBitFromResult(result);
    return finish();
}

bool ProcSim::simOpcode_and()
{
    int dst = 0;
    int src = 0;
    return operands(&dst, &src) && finishLogic(dst & src);
}

bool ProcSim::simOpcode_or()
{
    int dst = 0;
    int src = 0;
    return operands(&dst, &src) && finishLogic(dst | src);
}

bool ProcSim::simOpcode_xor()
{
    int dst = 0;
    int src = 0;
    return operands(&dst, &src) && finishLogic(dst ^ src);
}

bool ProcSim::finishLogic(int result)
{
    if (!setValueReg(m_pc->arg0, result))
        return false;
    if (m_traits.logicClearsCarry) {
        m_core->setCarryBit(0);
        setZeroBitFromResult(result);
    } else {
        m_core->setZeroBit((result & 0xFF) == 0);
    }
    return finish();
}

bool ProcSim::simOpcode_comp(bool withCarry)
{
    int dst = 0;
    int src = 0;
    if (!operands(&dst, &src))
        return false;
    const int difference = dst - src - (withCarry ? m_core->carryBit() : 0);
    m_core->setCarryBit(difference < 0);
    m_core->setZeroBit(difference == 0 && (!withCarry || m_core->zeroBit() != 0));
    return finish();
}

bool ProcSim::simOpcode_test()
{
    int dst = 0;
    int src = 0;
    if (!operands(&dst, &src))
        return false;
    const int common = dst & src;
    if (m_traits.logicClearsCarry)
        m_core->setCarryBit(parity(common));
    m_core->setZeroBit(common == 0);
    return finish();
}

bool ProcSim::simOpcode_testWithCarry()
{
    int dst = 0;
    int src = 0;
    if (!operands(&dst, &src))
        return false;
    const int common = dst & src;
    m_core->setCarryBit(m_core->carryBit() ^ parity(common));
    m_core->setZeroBit(common == 0 && m_core->zeroBit() != 0);
    return finish();
}

bool ProcSim::shifted(int* value, int* carry)
{
    const int before = *value;
    const int high = (before >> 7) & 1;
    const int low = before & 1;
    bool isLeft = true;
    switch (m_pc->opcode) {
    case nsModAsmFe::ocRol:
        *value = (before << 1) + high;
        break;
    case nsModAsmFe::ocRolc:
        *value = (before << 1) + m_core->carryBit();
        break;
    case nsModAsmFe::ocSl0:
        *value = before << 1;
        break;
    case nsModAsmFe::ocSl1:
        *value = (before << 1) + 1;
        break;
    case nsModAsmFe::ocSlx:
        *value = (before << 1) + low;
        break;
    default:
        isLeft = false;
        break;
    }
    if (isLeft) {
        *carry = high;
        return true;
    }
    switch (m_pc->opcode) {
    case nsModAsmFe::ocRor:
        *value = (before >> 1) + (low << 7);
        break;
    case nsModAsmFe::ocRorc:
        *value = (before >> 1) + (m_core->carryBit() << 7);
        break;
    case nsModAsmFe::ocSr0:
        *value = before >> 1;
        break;
    case nsModAsmFe::ocSr1:
        *value = (before >> 1) + 128;
        break;
    case nsModAsmFe::ocSrx:
        *value = (before >> 1) + (high << 7);
        break;
    default:
        signInternalError(tr("Can not shift/rotate!"));
        return false;
    }
    *carry = low;
    return true;
}

bool ProcSim::simOpcode_sr()
{
    int value = 0;
    int carry = 0;
    if (!getValueReg(m_pc->arg0, &value) || !shifted(&value, &carry) || !setValueReg(m_pc->arg0, value))
        return false;
    m_core->setCarryBit(carry);
    if (m_traits.logicClearsCarry)
        setZeroBitFromResult(value);
    else
        m_core->setZeroBit((value & 0xFF) == 0);
    return finish();
}

bool ProcSim::flowTarget(bool* taken, Opcode** target, QString* name)
{
    *taken = true;
    const Arg* arg = m_pc->arg0;
    if (arg->type == Arg::label)
        return getValueLabel(arg, target, name);
    if (arg->type == Arg::regRef && m_traits.takesComputedTargets)
        return getValueDoubleRefReg(m_pc, target, name);
    if (!isConditionMet(arg, taken))
        return false;
    return !*taken || getValueLabel(m_pc->arg1, target, name);
}

bool ProcSim::simOpcode_jump()
{
    bool taken = false;
    Opcode* target = nullptr;
    QString name;
    if (!flowTarget(&taken, &target, &name))
        return false;
    return taken ? finishAt(target) : finish();
}

bool ProcSim::simOpcode_call()
{
    bool taken = false;
    Opcode* target = nullptr;
    QString name;
    if (!flowTarget(&taken, &target, &name))
        return false;
    if (!taken)
        return finish();
    if (!pushToCallstack(name)) {
        signMsg(errCallStackOverflow);
        return false;
    }
    return finishAt(target);
}

bool ProcSim::simOpcode_ret()
{
    bool met = true;
    if (m_pc->arg0->type != Arg::empty && !isConditionMet(m_pc->arg0, &met))
        return false;
    return met ? returnFromCall() : finish();
}

bool ProcSim::returnFromCall()
{
    // The item holds the position of the call: the program continues after it.
    if (pullFromCallstack(false))
        return finish();
    addClocks();
    return true;
}

bool ProcSim::simOpcode_retI()
{
    m_core->setInterrupt(m_pc->arg0->type == Arg::enable ? eIntEnabled : eIntDisabled);
    // The item holds the position of the interrupted instruction, which is executed next.
    pullFromCallstack(true);
    addClocks();
    return true;
}

bool ProcSim::simOpcode_int()
{
    if (m_pc->arg0->type != Arg::enable && m_pc->arg0->type != Arg::disable) {
        signInternalError(tr("Unsupported argument!"));
        return false;
    }
    m_core->setInterrupt(m_pc->arg0->type == Arg::enable ? eIntEnabled : eIntDisabled);
    return finish();
}

bool ProcSim::simOpcode_nop()
{
    return finish();
}

bool ProcSim::simOpcode_rdMem()
{
    int addr = 0;
    int value = 0;
    if (!getValueRegNum(m_pc->arg1, &addr))
        return false;
    if (!m_core->scrpd(addr, &value)) {
        signMsg(errScrpdRd);
        return false;
    }
    return setValueReg(m_pc->arg0, value) && finish();
}

bool ProcSim::simOpcode_wrMem()
{
    int addr = 0;
    int value = 0;
    if (!getValueReg(m_pc->arg0, &value) || !getValueRegNum(m_pc->arg1, &addr))
        return false;
    if (!m_core->setScrpd(addr, value)) {
        signMsg(errScrpdWr);
        return false;
    }
    if (m_observer != nullptr)
        m_observer->scrpdWritten(addr, value);
    return finish();
}

bool ProcSim::readPort(const Arg* arg, int addr, int* value)
{
    if (m_observer != nullptr && m_ports->deviceToRead(addr) == nullptr) {
        bool handled = false;
        const bool supplied = m_observer->portSource(addr, value, &handled);
        if (handled)
            return supplied;
    }
    if (!m_ports->chkIOPluginToRd(addr, arg->dispName)) {
        signMsg(warnIODevAddedToRd);
        return false;
    }
    if (!m_ports->value(addr, arg->dispName, value)) {
        signMsg(errIODevRd);
        return false;
    }
    return true;
}

bool ProcSim::simOpcode_rdPrt()
{
    int addr = 0;
    int value = 0;
    if (!getValueRegNum(m_pc->arg1, &addr) || !readPort(m_pc->arg1, addr, &value) || !setValueReg(m_pc->arg0, value))
        return false;
    if (m_observer != nullptr)
        m_observer->portRead(addr, value & 0xFF);
    if (m_waves != nullptr && !m_waves->isEmpty())
        m_waves->addValue(addr, ProcSimWaveData::eAccessRd, value & 0xFF, m_clock->clocks);
    return finish();
}

bool ProcSim::simOpcode_wrPrt()
{
    int addr = 0;
    int value = 0;
    const bool isConstant = m_traits.takesPortConstants && m_pc->arg0->type == Arg::numeric;
    const bool isRead = isConstant ? getValueNum(m_pc->arg0, &value) && getValueNum(m_pc->arg1, &addr)
                                   : getValueReg(m_pc->arg0, &value) && getValueRegNum(m_pc->arg1, &addr);
    if (!isRead)
        return false;
    m_ports->setValue(addr, m_pc->arg1->dispName, value);
    if (m_observer != nullptr)
        m_observer->portWritten(addr, value & 0xFF);
    if (m_waves != nullptr && !m_waves->isEmpty())
        m_waves->addValue(addr, ProcSimWaveData::eAccessWr, value & 0xFF, m_clock->clocks);
    return finish();
}

} // namespace nsProc
