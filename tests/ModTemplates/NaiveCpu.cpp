#include "NaiveCpu.h"

#include "Opcode.h"
#include "OpcodeList.h"

#include <QtAlgorithms>

using namespace nsModAsmFe;

NaiveCpu::NaiveCpu(OpcodeList* program, bool isMico8)
    : m_program(program)
    , m_isMico8(isMico8)
{
}

bool NaiveCpu::call(Opcode* entry)
{
    m_at = entry;
    m_stack.clear();
    m_returned = false;
    steps = 0;
    problem.clear();
    while (!m_returned) {
        if (m_at == nullptr)
            problem = "ran off the end of the program";
        else if (++steps > maxSteps)
            problem = "does not return";
        else if (!step())
            problem = "unknown instruction " + m_at->name;
        if (!problem.isEmpty())
            return false;
    }
    return true;
}

int NaiveCpu::value(const Arg* arg) const
{
    const bool isRegister = arg->type == Arg::reg || arg->type == Arg::regRef;
    return isRegister ? reg[arg->iValue] : arg->iValue & 0xFF;
}

bool NaiveCpu::isTaken(const Arg* arg) const
{
    switch (arg->type) {
    case Arg::flagC:
        return carry;
    case Arg::flagNC:
        return !carry;
    case Arg::flagZ:
        return zero;
    case Arg::flagNZ:
        return !zero;
    default:
        return true;
    }
}

Opcode* NaiveCpu::target(const Arg* first, const Arg* second) const
{
    if (first->type == Arg::regRef)
        return m_program->opcodeOfAddr(((reg[first->iValue] << 8) | reg[second->iValue]) & 0xFFF);
    return first->type == Arg::label ? first->labelOpcode : second->labelOpcode;
}

void NaiveCpu::setResult(int result)
{
    reg[m_at->arg0->iValue] = result & 0xFF;
    zero = (result & 0xFF) == 0;
}

void NaiveCpu::doReturn()
{
    m_returned = m_stack.isEmpty();
    m_at = m_returned ? nullptr : m_stack.takeLast()->next;
}

bool NaiveCpu::step()
{
    if (flow())
        return true;
    if (!compute() && !shift() && !transfer() && !flags())
        return false;
    m_at = m_at->next;
    return true;
}

bool NaiveCpu::compute()
{
    const int a = value(m_at->arg0);
    const int b = value(m_at->arg1);
    const int c = carry ? 1 : 0;
    int result = 0;
    switch (m_at->opcode) {
    case ocAdd:
    case ocAddc:
        result = a + b + (m_at->opcode == ocAddc ? c : 0);
        break;
    case ocSub:
    case ocSubc:
        result = a - b - (m_at->opcode == ocSubc ? c : 0);
        break;
    case ocComp:
        carry = a < b;
        zero = a == b;
        return true;
    case ocTest:
        zero = (a & b) == 0;
        if (!m_isMico8)
            carry = qPopulationCount(quint8(a & b)) % 2 != 0;
        return true;
    case ocAnd:
    case ocOr:
    case ocXor:
        setResult(m_at->opcode == ocAnd ? a & b : m_at->opcode == ocOr ? a | b : a ^ b);
        carry = m_isMico8 && carry;
        return true;
    default:
        return false;
    }
    setResult(result);
    carry = result < 0 || result > 255;
    return true;
}

bool NaiveCpu::shift()
{
    const int a = value(m_at->arg0);
    const int top = a >> 7;
    const int bottom = a & 1;
    const int c = carry ? 1 : 0;
    const QHash<int, int> left = {{ocRol, top}, {ocRolc, c}, {ocSl0, 0}, {ocSl1, 1}, {ocSlx, bottom}};
    const QHash<int, int> right = {{ocRor, bottom}, {ocRorc, c}, {ocSr0, 0}, {ocSr1, 1}, {ocSrx, top}};
    if (left.contains(m_at->opcode)) {
        setResult((a << 1) + left.value(m_at->opcode));
        carry = top != 0;
    } else if (right.contains(m_at->opcode)) {
        setResult((a >> 1) + (right.value(m_at->opcode) << 7));
        carry = bottom != 0;
    } else {
        return false;
    }
    return true;
}

bool NaiveCpu::flow()
{
    switch (m_at->opcode) {
    case ocJump:
        m_at = isTaken(m_at->arg0) ? target(m_at->arg0, m_at->arg1) : m_at->next;
        return true;
    case ocCall:
        if (!isTaken(m_at->arg0)) {
            m_at = m_at->next;
            return true;
        }
        m_stack.append(m_at);
        m_at = target(m_at->arg0, m_at->arg1);
        return true;
    case ocLoadret:
        reg[m_at->arg0->iValue] = value(m_at->arg1);
        doReturn();
        return true;
    case ocRet:
        if (isTaken(m_at->arg0))
            doReturn();
        else
            m_at = m_at->next;
        return true;
    case ocReti:
        interruptEn = m_at->arg0->type == Arg::enable;
        doReturn();
        return true;
    default:
        return false;
    }
}

bool NaiveCpu::transfer()
{
    switch (m_at->opcode) {
    case ocLoad:
        reg[m_at->arg0->iValue] = value(m_at->arg1);
        return true;
    case ocRdmem:
        reg[m_at->arg0->iValue] = scratchpad[value(m_at->arg1)];
        return true;
    case ocWrmem:
        scratchpad[value(m_at->arg1)] = value(m_at->arg0);
        return true;
    case ocRdprt:
        reg[m_at->arg0->iValue] = readPort ? readPort(value(m_at->arg1)) : 0;
        return true;
    case ocWrprt:
        written.append({value(m_at->arg1), value(m_at->arg0)});
        return true;
    default:
        return false;
    }
}

bool NaiveCpu::flags()
{
    switch (m_at->opcode) {
    case ocClr:
    case ocSet:
        (m_at->arg0->type == Arg::flagC ? carry : zero) = m_at->opcode == ocSet;
        return true;
    case ocInt:
        interruptEn = m_at->arg0->type == Arg::enable;
        return true;
    case ocRegbank:
        bank = m_at->arg0->iValue;
        return true;
    case ocNop:
        return true;
    default:
        return false;
    }
}
