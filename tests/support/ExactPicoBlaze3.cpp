#include "ExactPicoBlaze3.h"

namespace {

const int memorySize = 1024;
const int vector = 0x3FF;
const int scratchpadSize = 64;
const int stackSize = 32;

int dst(quint32 word)
{
    return int(word >> 8 & 15);
}

} // namespace

ExactPicoBlaze3::ExactPicoBlaze3(const std::vector<quint32>& program)
    : ExactModel(program, memorySize)
{
    m_scratchpad.resize(scratchpadSize);
}

void ExactPicoBlaze3::reset(qint64 nextClock)
{
    // Nothing is known of the stack's cells and of the kept flags. They stay here.
    m_carry = false;
    m_zero = false;
    m_enabled = false;
    m_pointer = 0;
    m_entersNext = false;
    m_pc = 0;
    m_clock = nextClock;
}

void ExactPicoBlaze3::step(ExactEvents* events)
{
    const bool requested = isRequested(m_clock);
    const quint32 instruction = word(m_pc);
    // The pre-empted instruction leaves its address, too.
    m_stack[std::size_t(m_pointer)] = m_pc;
    if (m_entersNext) {
        events->push_back({ExactEvent::Interrupt, m_pc, 0, 0, m_clock});
        enterInterrupt(instruction);
    } else {
        events->push_back({ExactEvent::Instruction, m_pc, 0, 0, m_clock});
        execute(instruction, events);
    }
    m_clock += 2;
    // An entry switches interrupts off, so that none follows directly.
    m_entersNext = requested && m_enabled;
}

void ExactPicoBlaze3::enterInterrupt(quint32 preempted)
{
    m_keptCarry = m_carry;
    m_keptZero = m_zero;
    // The flags of the pre-empted instruction come through, its register does not. Loads and accesses have no flags.
    const auto before = m_registers;
    arithmetic(preempted) || shift(preempted);
    m_registers = before;
    m_pointer = (m_pointer + 1) % stackSize;
    m_enabled = false;
    m_pc = vector;
}

void ExactPicoBlaze3::execute(quint32 word, ExactEvents* events)
{
    m_pc = wrapped(m_pc + 1);
    if (!memory(word, events) && !arithmetic(word) && !shift(word))
        flow(word);
}

int ExactPicoBlaze3::operand(quint32 word) const
{
    return (word & 0x1000) != 0 ? m_registers[word >> 4 & 15] : int(word & 0xFF);
}

/// @return whether the word is an instruction with two operands
bool ExactPicoBlaze3::arithmetic(quint32 word)
{
    quint8& r = reg(dst(word));
    const int v = operand(word);
    const int c = m_carry ? 1 : 0;
    int result = 0;
    switch (word >> 13) { // opcode without the bit that tells constant from register
    case 0x00:            // LOAD
        r = quint8(v);
        return true;
    case 0x05: // AND
        result = r & v;
        m_carry = false;
        break;
    case 0x06: // OR
        result = r | v;
        m_carry = false;
        break;
    case 0x07: // XOR
        result = r ^ v;
        m_carry = false;
        break;
    case 0x09: // TEST
        result = r & v;
        m_carry = isOdd(result);
        m_zero = result == 0;
        return true;
    case 0x0A: // COMP
        m_carry = r < v;
        m_zero = r == v;
        return true;
    case 0x0C: // ADD
        result = r + v;
        m_carry = result > 0xFF;
        break;
    case 0x0D: // ADDC
        result = r + v + c;
        m_carry = result > 0xFF;
        break;
    case 0x0E: // SUB
        result = r - v;
        m_carry = result < 0;
        break;
    case 0x0F: // SUBC
        result = r - v - c;
        m_carry = result < 0;
        break;
    default:
        return false;
    }
    r = quint8(result);
    m_zero = r == 0;
    return true;
}

/// @return whether the word is a shift or a rotate
bool ExactPicoBlaze3::shift(quint32 word)
{
    if (word >> 12 != 0x20)
        return false;
    quint8& r = reg(dst(word));
    const bool in = shiftedIn(word, r, m_carry);
    if ((word & 8) != 0) {
        m_carry = (r & 1) != 0;
        r = quint8(r >> 1 | (in ? 0x80 : 0));
    } else {
        m_carry = (r & 0x80) != 0;
        r = quint8(r << 1 | (in ? 1 : 0));
    }
    m_zero = r == 0;
    return true;
}

/// @return whether the word is an access to a port or to the scratchpad
bool ExactPicoBlaze3::memory(quint32 word, ExactEvents* events)
{
    const int address = operand(word);
    quint8& r = reg(dst(word));
    switch (word >> 13) {
    case 0x02: // RDPRT
        r = read(address);
        events->push_back({ExactEvent::Read, 0, address, r, m_clock + 1});
        return true;
    case 0x03: // RDMEM
        r = m_scratchpad[std::size_t(address % scratchpadSize)];
        return true;
    case 0x16: // WRPRT
        events->push_back({ExactEvent::Write, 0, address, r, m_clock + 1});
        return true;
    case 0x17: // WRMEM
        m_scratchpad[std::size_t(address % scratchpadSize)] = r;
        return true;
    default:
        return false;
    }
}

/// Conditional instructions have bit 12, and bits 11 and 10 for the condition: Z, NZ, C, NC.
bool ExactPicoBlaze3::isMet(quint32 word) const
{
    if ((word & 0x1000) == 0)
        return true;
    const bool flag = (word & 0x800) != 0 ? m_carry : m_zero;
    return flag != ((word & 0x400) != 0);
}

void ExactPicoBlaze3::flow(quint32 word)
{
    switch (word >> 12) {
    case 0x30:
    case 0x31: // CALL
        if (isMet(word)) {
            m_pointer = (m_pointer + 1) % stackSize;
            m_pc = int(word & 0x3FF);
        }
        break;
    case 0x34:
    case 0x35: // JUMP
        if (isMet(word))
            m_pc = int(word & 0x3FF);
        break;
    case 0x2A:
    case 0x2B: // RET
        if (isMet(word))
            m_pc = wrapped(pop() + 1);
        break;
    case 0x38: // RETI
        m_pc = pop();
        m_carry = m_keptCarry;
        m_zero = m_keptZero;
        m_enabled = (word & 1) != 0;
        break;
    case 0x3C: // INT
        m_enabled = (word & 1) != 0;
        break;
    default:
        break;
    }
}

int ExactPicoBlaze3::pop()
{
    m_pointer = (m_pointer + stackSize - 1) % stackSize;
    return m_stack[std::size_t(m_pointer)];
}
