#include "ExactMico8.h"

namespace {

const int startAddress = 1;
const int vector = 0;

bool isAccess(quint32 word)
{
    return word >> 13 == 0x17;
}

bool isPortAccess(quint32 word)
{
    return isAccess(word) && (word & 4) == 0;
}

} // namespace

ExactMico8::ExactMico8(const std::vector<quint32>& program, const Build& build)
    : ExactModel(program, build.memorySize)
    , m_build(build)
    , m_registers(std::size_t(build.registers))
{
    m_scratchpad.resize(std::size_t(build.scratchpadSize));
    m_pc = startAddress;
    // The core executes the cleared register of the program memory first: SUB r0, r0.
    m_zero = true;
}

void ExactMico8::reset(qint64 nextClock)
{
    // The word that the program memory has delivered last goes through the core, which keeps its zero flag and nothing
    // else.
    const quint32 left = word(wrapped(m_pc));
    const auto registers = m_registers;
    m_carry = false;
    m_zero = false;
    if (!isAccess(left) && left >> 16 != 3)
        execute(left);
    m_registers = registers;
    m_carry = false;
    m_enabled = false;
    m_inRoutine = false;
    m_requested = false;
    m_entered = false;
    // Nothing is known of the stack's cells. They stay here.
    m_pointer = 0;
    m_pc = startAddress;
    m_clock = nextClock;
    m_nextAsked = nextClock - 1;
}

void ExactMico8::step(ExactEvents* events)
{
    if (m_entered)
        events->push_back({ExactEvent::Interrupt, vector, 0, 0, m_clock});
    m_entered = false;
    events->push_back({ExactEvent::Instruction, m_pc, 0, 0, m_clock});

    const quint32 instruction = word(wrapped(m_pc));
    m_putsOff = false;
    if (isAccess(instruction)) {
        m_pc = wrapped(m_pc + 1);
        access(instruction, events);
    } else {
        execute(instruction);
    }
    m_clock += isPortAccess(instruction) ? 3 + m_build.waitStates : isAccess(instruction) ? 3 : 2;

    // What comes up in the last clock is too late for the end of this instruction.
    for (; m_nextAsked < m_clock - 1; ++m_nextAsked)
        m_requested = isRequested(m_nextAsked) || m_requested;
    if (m_requested && m_enabled && !m_inRoutine && !m_putsOff) {
        push({m_pc, m_carry, m_zero});
        m_inRoutine = true;
        m_entered = true;
        m_pc = vector;
    }
}

void ExactMico8::execute(quint32 word)
{
    const int group = int(word >> 14);
    if (group >= 0x0C) {
        flow(word);
        return;
    }
    m_pc = wrapped(m_pc + 1);
    if (group == 0x0A)
        rotate(word);
    else if (group == 0x0B)
        flags(word);
    else
        arithmetic(word);
}

void ExactMico8::arithmetic(quint32 word)
{
    quint8& r = dst(word);
    const int v = (word & 0x2000) != 0 ? int(word & 0xFF) : src(word);
    const int c = m_carry ? 1 : 0;
    int result = 0;
    bool isKept = true; // the register takes the result
    switch (word >> 14) {
    case 0: // SUB
        result = r - v;
        m_carry = result < 0;
        break;
    case 1: // SUBC
        result = r - v - c;
        m_carry = result < 0;
        break;
    case 2: // ADD
        result = r + v;
        m_carry = result > 0xFF;
        break;
    case 3: // ADDC
        result = r + v + c;
        m_carry = result > 0xFF;
        break;
    case 4: // LOAD
        r = quint8(v);
        return;
    case 5: // AND
        result = r & v;
        break;
    case 6: // OR
        result = r | v;
        break;
    case 7: // XOR
        result = r ^ v;
        break;
    case 8: // COMP
        result = r - v;
        m_carry = result < 0;
        isKept = false;
        break;
    case 9: // TEST
        result = r & v;
        isKept = false;
        break;
    default:
        return;
    }
    m_zero = (result & 0xFF) == 0;
    if (isKept)
        r = quint8(result);
}

/// The second register goes into the first. The rotates through the carry alone change it.
void ExactMico8::rotate(quint32 word)
{
    const quint8 from = src(word);
    const bool isLeft = (word & 1) != 0;
    const bool isThroughCarry = (word & 2) != 0;
    const bool out = (from & (isLeft ? 0x80 : 1)) != 0;
    const bool in = isThroughCarry ? m_carry : out;
    const quint8 result = isLeft ? quint8(from << 1 | (in ? 1 : 0)) : quint8(from >> 1 | (in ? 0x80 : 0));
    dst(word) = result;
    m_zero = result == 0;
    if (isThroughCarry)
        m_carry = out;
}

void ExactMico8::flags(quint32 word)
{
    const bool isSet = (word & 1) != 0;
    switch (word >> 1 & 3) {
    case 0: // CLR C, SET C
        m_carry = isSet;
        break;
    case 1: // CLR Z, SET Z
        m_zero = isSet;
        break;
    case 2: // INT
        m_enabled = isSet;
        break;
    default:
        break;
    }
}

quint32 ExactMico8::accessAddress(quint32 word) const
{
    if ((word & 2) == 0)
        return word >> 3 & 31;
    // The upper bytes of a long address come from registers of their own.
    quint32 address = src(word);
    for (quint32 byte = 1; byte < 4; ++byte)
        address |= quint32(m_registers[12 + byte]) << 8 * byte;
    return m_build.addressBits == 32 ? address : address & ((quint32(1) << m_build.addressBits) - 1);
}

void ExactMico8::access(quint32 word, ExactEvents* events)
{
    const quint32 address = accessAddress(word);
    const bool isRead = (word & 1) != 0;
    quint8& r = dst(word);
    if (isPortAccess(word)) {
        if (isRead)
            r = read(int(address));
        events->push_back(
            {isRead ? ExactEvent::Read : ExactEvent::Write, 0, int(address), r, m_clock + 1 + m_build.waitStates});
        return;
    }
    quint8& cell = m_scratchpad[address % m_scratchpad.size()];
    if (isRead)
        r = cell;
    else
        cell = r;
}

/// Bits 13 and 12 of a conditional jump or call: Z, NZ, C, NC.
bool ExactMico8::isMet(quint32 word) const
{
    const bool flag = (word & 0x2000) != 0 ? m_carry : m_zero;
    return flag != ((word & 0x1000) != 0);
}

void ExactMico8::flow(quint32 word)
{
    const int behind = wrapped(m_pc + 1);
    const int target = wrapped(m_pc + int(word & 0xFFF));
    const int op = int(word >> 12);
    const bool isConditional = op < 0x38;
    m_pc = behind;
    if (isConditional && !isMet(word))
        return;
    if (op == 0x38 || (isConditional && op >= 0x34)) { // CALL
        push({behind, m_carry, m_zero});
        m_pc = target;
        m_putsOff = true;
    } else if (op == 0x39) { // RET
        m_pc = pop().address;
        m_putsOff = true;
    } else if (op == 0x3A) { // RETI
        const Cell cell = pop();
        m_pc = cell.address;
        m_carry = cell.carry;
        m_zero = cell.zero;
        m_inRoutine = false;
        m_putsOff = true;
    } else if (op == 0x3B || isConditional) { // JUMP; one that does not depend on the flags does not put off
        m_pc = target;
        m_putsOff = isConditional;
    }
}

void ExactMico8::push(const Cell& cell)
{
    m_stack[std::size_t(m_pointer)] = cell;
    m_pointer = (m_pointer + 1) % stackSize;
}

ExactMico8::Cell ExactMico8::pop()
{
    m_pointer = (m_pointer + stackSize - 1) % stackSize;
    return m_stack[std::size_t(m_pointer)];
}
