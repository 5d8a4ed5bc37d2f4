// What one instruction comes to on the core.

#include "ProcSimExactStep.h"

#include <QCoreApplication>

namespace nsProc {

using namespace nsModAsmFe;

QString ProcSimEngine::Exact::Step::alias(int argument) const
{
    if (m_opcode == nullptr)
        return QString();
    return argument == 0 ? m_opcode->arg0->dispName : m_opcode->arg1->dispName;
}

int ProcSimEngine::Exact::Step::srcReg(const sSimInstr_t& in)
{
    // In a reset the address of a port or a written cell comes from the bank that the core has already gone back to.
    const int op = m_instr.opcode();
    const bool isAddress = op == ocRdprt || op == ocWrprt || op == ocWrmem;
    if (m_part == eHalf && isAddress)
        return m_core.regValue(0, in.src);
    return reg(in.src, 1);
}

bool ProcSimEngine::Exact::Step::setReg(const sSimInstr_t& in, int value)
{
    return m_part == eFlagsAlone || m_core.setReg(in.dst, alias(0), value);
}

bool ProcSimEngine::Exact::Step::setOtherReg(const sSimInstr_t& in, int value)
{
    if (m_part == eFlagsAlone)
        return true;
    m_core.toggleBank();
    m_core.setReg(in.dst, alias(0), value);
    m_core.toggleBank();
    return true;
}

void ProcSimEngine::Exact::Step::setInterrupt(eInt_t state)
{
    if (m_part != eWhole)
        return;
    // Where entries are kept off by the routine itself, a return from it does not touch the switch.
    if (m_instr.opcode() != ocReti || !m_exact.traits().latchesRequests)
        m_exact.m_isEnabled = state == eIntEnabled;
}

bool ProcSimEngine::Exact::Step::flowTarget(const sSimInstr_t& in, int* target)
{
    m_isTaken = true;
    if (in.target == sSimInstr_t::computed) {
        const int addrMask = (1 << m_engine.m_table->layout.flowBits) - 1;
        *target = m_exact.positionInPage(((dstReg(in) << 8) | srcReg(in)) & addrMask);
    }
    return true;
}

bool ProcSimEngine::Exact::Step::pushToCallstack()
{
    if (m_part != eWhole)
        return true;
    if (m_exact.m_depth >= m_exact.stackLimit()) {
        if (!m_exact.mayGoOn(errCallStackOverflow, ProcCoreConfig::eStopAtStack, m_position, &m_outcome))
            return false;
        m_resets = m_exact.traits().stack == sCoreTraits_t::eStackResets;
    }
    if (!m_resets)
        m_exact.push(m_exact.traits().stack == sCoreTraits_t::eStackOfReturns ? m_instr.next : m_position, m_position,
                     carry(), zero(), m_core.bank());
    return true;
}

/// Is a return at the depth 0 reported, and goes on?
bool ProcSimEngine::Exact::Step::mayReturn()
{
    if (m_part != eWhole || m_exact.m_depth > 0)
        return true;
    return m_exact.mayGoOn(errCallStackEmpty, ProcCoreConfig::eStopAtStack, m_position, &m_outcome);
}

bool ProcSimEngine::Exact::Step::returnFromCall()
{
    m_isTaken = true;
    if (m_part != eWhole)
        return true;
    // A return with a value has asked before it has loaded its register.
    if (m_instr.opcode() == ocRet && !mayReturn())
        return false;
    m_resets = m_exact.m_depth == 0 && m_exact.traits().stack == sCoreTraits_t::eStackResets;
    const int popped = m_exact.popAt(m_position).position;
    m_next = m_exact.traits().stack == sCoreTraits_t::eStackOfReturns ? popped : m_exact.following(popped);
    return true;
}

bool ProcSimEngine::Exact::Step::returnFromInterrupt()
{
    m_isTaken = true;
    if (m_part != eWhole)
        return true;
    m_resets = m_exact.m_depth == 0 && m_exact.traits().stack == sCoreTraits_t::eStackResets;
    const sCell_t cell = m_exact.popAt(m_position);
    const sCell_t& flags = m_exact.traits().hasFlagCopy ? m_exact.m_flagCopy : cell;
    m_core.setCarryBit(flags.carry);
    m_core.setZeroBit(flags.zero);
    if (m_core.bankCount() > 1)
        m_core.setBank(cell.bank);
    m_exact.m_isInRoutine = false;
    m_next = cell.position;
    return true;
}

bool ProcSimEngine::Exact::Step::readHwbld(int* value)
{
    return m_core.readHwbld(value) || refuse(errHwBuildRd);
}

int ProcSimEngine::Exact::Step::longAddress(int addr) const
{
    const int bits = m_engine.m_config.addressBits;
    if (!m_exact.traits().hasLongAddresses || bits <= 8 || m_instr.mode != sSimInstr_t::byRegister)
        return addr;
    // The registers r13, r14 and r15 are the upper bytes.
    quint32 result = quint32(addr);
    for (int byte = 1; byte < 4; ++byte)
        result |= quint32(m_core.regValue(m_core.bank(), 12 + byte)) << (8 * byte);
    return int(bits >= 32 ? result : result & ((quint32(1) << bits) - 1));
}

bool ProcSimEngine::Exact::Step::selectScrpd(int* addr, eSimMsg_t msg)
{
    *addr = longAddress(*addr);
    const int size = m_core.scrpdSize();
    if (quint32(*addr) < quint32(size))
        return true;
    if (m_part == eWhole && !m_exact.mayGoOn(msg, ProcCoreConfig::eStopAtScrpd, m_position, &m_outcome))
        return false;
    *addr = size > 0 ? int(quint32(*addr) % quint32(size)) : 0;
    return true;
}

bool ProcSimEngine::Exact::Step::readScrpd(int addr, int* value)
{
    return selectScrpd(&addr, errScrpdRd) && (m_core.scrpd(addr, value) || refuse(errScrpdRd));
}

bool ProcSimEngine::Exact::Step::writeScrpd(int addr, int value)
{
    if (!selectScrpd(&addr, errScrpdWr) || (!m_core.setScrpd(addr, value) && !refuse(errScrpdWr)))
        return false;
    for (ProcSimObserver* observer : m_engine.m_followers)
        observer->scrpdWritten(addr, value);
    return true;
}

bool ProcSimEngine::Exact::Step::readPort(int addr, int* value)
{
    // What is read may go to a register that is part of the address.
    m_port = longAddress(addr);
    return m_engine.readPort(m_port, alias(1), value, &m_outcome);
}

void ProcSimEngine::Exact::Step::notePortRead(int, int value)
{
    m_outcome.port = -1;
    for (ProcSimObserver* observer : m_engine.m_observers)
        observer->portRead(m_port, value);
}

bool ProcSimEngine::Exact::Step::writePort(int addr, int value)
{
    addr = longAddress(addr);
    const bool isConstant = m_instr.mode == sSimInstr_t::constantPort;
    m_engine.m_ports->setValue(addr, alias(1), value);
    for (ProcSimObserver* observer : m_engine.m_observers) {
        if (isConstant && m_exact.traits().constantWriteHasLines)
            observer->constantWritten(((value & 0xF) << 4) | (addr & 0xF), value & 0xFF);
        else
            observer->portWritten(addr, value & 0xFF);
    }
    return true;
}

bool ProcSimEngine::Exact::Step::simOpcode_unsupported()
{
    m_outcome.reports.push_back(
        {sSimReport_t::eKindUnsupported, errNoOpcodeToExec, m_opcode != nullptr ? m_opcode->name : QString(), 0});
    return false;
}

} // namespace nsProc
