#include "ExactPicoBlaze6.h"

namespace {

const int deepest = 30; // one call more resets the core
const int addressMask = 0xFFF;

int dst(quint32 word)
{
    return int(word >> 8 & 15);
}

int src(quint32 word)
{
    return int(word >> 4 & 15);
}

int low8(quint32 word)
{
    return int(word & 0xFF);
}

} // namespace

ExactPicoBlaze6::ExactPicoBlaze6(const std::vector<quint32>& program, const Build& build)
    : ExactModel(program, build.memorySize)
    , m_build(build)
{
    m_scratchpad.resize(std::size_t(build.scratchpadSize));
}

std::vector<quint8> ExactPicoBlaze6::registers() const
{
    std::vector<quint8> all(m_registers[0].begin(), m_registers[0].end());
    all.insert(all.end(), m_registers[1].begin(), m_registers[1].end());
    return all;
}

void ExactPicoBlaze6::reset(qint64 nextClock)
{
    clearState();
    m_next = Slot::execute;
    m_pc = 0;
    m_clock = nextClock;
}

void ExactPicoBlaze6::clearState()
{
    m_carry = false;
    m_zero = false;
    m_enabled = false;
    m_bank = 0;
    m_depth = 0;
}

void ExactPicoBlaze6::step(ExactEvents* events)
{
    const Slot slot = m_next;
    const bool requested = isRequested(m_clock);
    m_resets = false;
    m_lastAddress = m_pc;
    switch (slot) {
    case Slot::execute:
        execute(events);
        break;
    case Slot::enter:
        enterInterrupt(events);
        break;
    case Slot::half:
    case Slot::halfPreempted:
        executeHalf(events, slot == Slot::halfPreempted);
        m_clock += 4;
        m_next = Slot::execute;
        return;
    }
    m_clock += 2;
    // An entry switches interrupts off, so that none follows directly.
    const bool preempts = requested && m_enabled;
    if (m_resets)
        m_next = preempts ? Slot::halfPreempted : Slot::half;
    else
        m_next = preempts ? Slot::enter : Slot::execute;
}

void ExactPicoBlaze6::execute(ExactEvents* events)
{
    const quint32 instruction = word(wrapped(m_pc));
    events->push_back({ExactEvent::Instruction, m_pc, 0, 0, m_clock});
    m_pc = (m_pc + 1) & addressMask;
    if (!memory(instruction, m_bank, events) && !arithmetic(instruction) && !shift(instruction)) {
        flow(instruction);
        special(instruction);
    }
}

void ExactPicoBlaze6::enterInterrupt(ExactEvents* events)
{
    events->push_back({ExactEvent::Interrupt, m_pc, 0, 0, m_clock});
    const quint32 preempted = word(wrapped(m_pc));
    const Cell newest = m_stack[std::size_t(m_depth)];
    push({m_pc, m_bank, m_carry, m_zero});
    // Of the pre-empted instruction, a switch of the bank comes through.
    if (preempted >> 12 == 0x37)
        m_bank = int(preempted & 1);
    else if (preempted >> 12 == 0x29)
        m_bank = newest.bank;
    m_enabled = false;
    m_pc = m_build.vector;
}

void ExactPicoBlaze6::executeHalf(ExactEvents* events, bool preempted)
{
    events->push_back({ExactEvent::Reset, m_pc, 0, 0, m_clock});
    const quint32 instruction = word(wrapped(m_pc));
    if (!preempted && !memory(instruction, 0, events) && !arithmetic(instruction) && !shift(instruction)) {
        if (instruction >> 12 == 0x21) // LOADRET
            reg(dst(instruction), m_bank) = quint8(low8(instruction));
    }
    // The pointer is back at the lowest cell while this address is written.
    m_stack[0].address = m_pc;
    clearState();
    m_pc = 0;
}

int ExactPicoBlaze6::operand(quint32 word, int bank)
{
    return (word & 0x1000) != 0 ? low8(word) : reg(src(word), bank);
}

/// @return whether the word is an instruction with two operands
bool ExactPicoBlaze6::arithmetic(quint32 word)
{
    const int group = int(word >> 13); // opcode without the bit that tells register from constant
    const int r = reg(dst(word), m_bank);
    const int v = operand(word, m_bank);
    const int c = m_carry ? 1 : 0;
    int result = 0;
    bool isKept = true;     // the register takes the result
    bool isChained = false; // zero only if it was set before
    switch (group) {
    case 0x00: // LOAD
        reg(dst(word), m_bank) = quint8(v);
        return true;
    case 0x0B: // STAR
        reg(dst(word), 1 - m_bank) = quint8(v);
        return true;
    case 0x01: // AND
        result = r & v;
        m_carry = false;
        break;
    case 0x02: // OR
        result = r | v;
        m_carry = false;
        break;
    case 0x03: // XOR
        result = r ^ v;
        m_carry = false;
        break;
    case 0x06: // TEST
    case 0x07: // TESTC
        isChained = group == 0x07;
        isKept = false;
        result = r & v;
        m_carry = isOdd(result) != (isChained && m_carry);
        break;
    case 0x08: // ADD
    case 0x09: // ADDC
        isChained = group == 0x09;
        result = r + v + (isChained ? c : 0);
        m_carry = result > 0xFF;
        break;
    case 0x0C: // SUB
    case 0x0D: // SUBC
    case 0x0E: // COMP
    case 0x0F: // COMPC
        isChained = (group & 1) != 0;
        isKept = group < 0x0E;
        result = r - v - (isChained ? c : 0);
        m_carry = result < 0;
        break;
    default:
        return false;
    }
    if (isKept)
        reg(dst(word), m_bank) = quint8(result);
    m_zero = (result & 0xFF) == 0 && (!isChained || m_zero);
    return true;
}

/// @return whether the word is a shift, a rotate or HWBUILD
bool ExactPicoBlaze6::shift(quint32 word)
{
    if (word >> 12 != 0x14)
        return false;
    quint8& r = reg(dst(word), m_bank);
    const bool in = shiftedIn(word, r, m_carry);
    if ((word & 0x80) != 0) {
        r = quint8(m_build.hwBuild);
        m_carry = true;
    } else if ((word & 8) != 0) {
        m_carry = (r & 1) != 0;
        r = quint8(r >> 1 | (in ? 0x80 : 0));
    } else {
        m_carry = (r & 0x80) != 0;
        r = quint8(r << 1 | (in ? 1 : 0));
    }
    m_zero = r == 0;
    return true;
}

/// @param lateBank where the (sY) of a port access and of WRMEM comes from: a reset under way has changed the bank by
/// then
/// @return whether the word is an access to a port or to the scratchpad
bool ExactPicoBlaze6::memory(quint32 word, int lateBank, ExactEvents* events)
{
    const int lateAddress = operand(word, lateBank);
    quint8& r = reg(dst(word), m_bank);
    switch (word >> 12) {
    case 0x08:
    case 0x09: // RDPRT
        r = read(lateAddress);
        events->push_back({ExactEvent::Read, 0, lateAddress, r, m_clock + 1});
        return true;
    case 0x0A:
    case 0x0B: // RDMEM
        r = m_scratchpad[std::size_t(operand(word, m_bank) % m_build.scratchpadSize)];
        return true;
    case 0x2B: // WRPRT of a constant
        events->push_back({ExactEvent::ConstantWrite, 0, low8(word), int(word >> 4 & 0xFF), m_clock + 1});
        return true;
    case 0x2C:
    case 0x2D: // WRPRT
        events->push_back({ExactEvent::Write, 0, lateAddress, r, m_clock + 1});
        return true;
    case 0x2E:
    case 0x2F: // WRMEM
        m_scratchpad[std::size_t(lateAddress % m_build.scratchpadSize)] = r;
        return true;
    default:
        return false;
    }
}

/// Conditional instructions have bits 15 and 14 for the condition: Z, NZ, C, NC.
bool ExactPicoBlaze6::isMet(quint32 word) const
{
    if (word >> 16 != 3)
        return true;
    const bool flag = (word & 0x8000) != 0 ? m_carry : m_zero;
    return flag != ((word & 0x4000) != 0);
}

void ExactPicoBlaze6::flow(quint32 word)
{
    const int op = int(word >> 12);
    const int kind = op >> 4 == 3 ? 0x30 | (op & 3) : op;
    const int computed = (reg(dst(word), m_bank) << 8 | reg(src(word), m_bank)) & addressMask;
    const int target = op == 0x24 || op == 0x26 ? computed : int(word & addressMask);
    Cell cell;
    switch (kind) {
    case 0x20:
    case 0x24:
    case 0x30: // CALL
        if (isMet(word)) {
            push({m_lastAddress, m_bank, m_carry, m_zero});
            m_pc = target;
        }
        break;
    case 0x22:
    case 0x26:
    case 0x32: // JUMP
        if (isMet(word))
            m_pc = target;
        break;
    case 0x21: // LOADRET
        reg(dst(word), m_bank) = quint8(low8(word));
        [[fallthrough]];
    case 0x25:
    case 0x31: // RET
        if (isMet(word)) {
            pop(&cell);
            m_pc = (cell.address + 1) & addressMask;
        }
        break;
    default:
        break;
    }
}

void ExactPicoBlaze6::special(quint32 word)
{
    Cell cell;
    switch (word >> 12) {
    case 0x28: // INT
        m_enabled = (word & 1) != 0;
        break;
    case 0x29: // RETI
        pop(&cell);
        m_pc = cell.address;
        m_bank = cell.bank;
        m_carry = cell.carry;
        m_zero = cell.zero;
        m_enabled = (word & 1) != 0;
        break;
    case 0x37: // REGBANK
        m_bank = int(word & 1);
        break;
    default:
        break;
    }
}

void ExactPicoBlaze6::push(const Cell& cell)
{
    m_resets = m_depth == deepest;
    if (!m_resets)
        m_stack[std::size_t(++m_depth)] = cell;
}

void ExactPicoBlaze6::pop(Cell* cell)
{
    *cell = m_stack[std::size_t(m_depth)];
    m_resets = m_depth == 0;
    if (!m_resets)
        --m_depth;
}
