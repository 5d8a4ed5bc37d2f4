#include "NaiveProcessor.h"

#include <QStringList>

namespace {

const std::size_t deepestCalls = 31;

QString operandText(const Operand& operand, Family family)
{
    const QString name = family == Family::Mico8 ? QString("r%1").arg(operand.value)
                                                 : QString("s%1").arg(QString::number(operand.value, 16).toUpper());
    switch (operand.kind) {
    case Operand::none:
        return QString();
    case Operand::reg:
        return name;
    case Operand::inParentheses:
        return '(' + name + ')';
    case Operand::number:
        return QString::number(operand.value);
    case Operand::label:
        return QString("L%1").arg(operand.value);
    case Operand::ifZ:
    case Operand::flagZ:
        return "Z";
    case Operand::ifNZ:
        return "NZ";
    case Operand::ifC:
    case Operand::flagC:
        return "C";
    case Operand::ifNC:
        return "NC";
    case Operand::enable:
        return "ENABLE";
    case Operand::disable:
        return "DISABLE";
    case Operand::bankA:
        return "A";
    case Operand::bankB:
        return "B";
    }
    return QString();
}

} // namespace

QString Instruction::text(Family family) const
{
    QStringList operands;
    for (const Operand& operand : {first, second}) {
        if (operand.kind != Operand::none)
            operands.append(operandText(operand, family));
    }
    return mnemonic + ' ' + operands.join(", ");
}

NaiveProcessor::NaiveProcessor(Family family, const std::vector<Instruction>& program, int scrpdSize, int vector,
                               int clocksOfInstr)
    : scrpd(std::size_t(scrpdSize))
    , m_family(family)
    , m_program(program)
    , m_vector(vector)
    , m_clocksOfInstr(clocksOfInstr)
{
}

int NaiveProcessor::portValue(std::uint32_t readNumber)
{
    return int((readNumber * 2654435761u) >> 24);
}

NaiveProcessor::Bits NaiveProcessor::bitsOf(int value)
{
    Bits bits;
    for (std::size_t bit = 0; bit < 8; ++bit)
        bits[bit] = (value >> bit) % 2 != 0;
    return bits;
}

int NaiveProcessor::valueOf(const Bits& bits)
{
    int value = 0;
    for (std::size_t bit = 0; bit < 8; ++bit)
        value += bits[bit] ? 1 << bit : 0;
    return value;
}

NaiveProcessor::Bits NaiveProcessor::sum(const Bits& a, const Bits& b, bool* carryBit)
{
    Bits result;
    for (std::size_t bit = 0; bit < 8; ++bit) {
        const int ones = int(a[bit]) + int(b[bit]) + int(*carryBit);
        result[bit] = ones == 1 || ones == 3;
        *carryBit = ones >= 2;
    }
    return result;
}

int NaiveProcessor::source(const Operand& operand) const
{
    return operand.kind == Operand::number ? operand.value : regs[std::size_t(bank)][std::size_t(operand.value)];
}

bool NaiveProcessor::isMet(const Operand& condition) const
{
    switch (condition.kind) {
    case Operand::ifZ:
        return zero;
    case Operand::ifNZ:
        return !zero;
    case Operand::ifC:
        return carry;
    case Operand::ifNC:
        return !carry;
    default:
        return true;
    }
}

Outcome NaiveProcessor::goTo(int address)
{
    clocks += m_clocksOfInstr;
    pc = address < int(m_program.size()) ? address : -1;
    return pc < 0 ? Outcome::ended : Outcome::done;
}

Outcome NaiveProcessor::next()
{
    return goTo(pc + 1);
}

Outcome NaiveProcessor::step()
{
    writes.clear();
    if (interrupt == pending) {
        if (calls.size() >= deepestCalls)
            return Outcome::stackOverflow;
        interrupt = inService;
        calls.push_back({pc, carry, zero});
        pc = m_vector < int(m_program.size()) ? m_vector : -1;
        if (pc < 0)
            return Outcome::noVector;
    }
    return execute(m_program[std::size_t(pc)]);
}

Outcome NaiveProcessor::execute(const Instruction& instruction)
{
    static const QStringList memoryWords = {"RDMEM", "WRMEM", "RDPRT", "WRPRT"};
    static const QStringList flowWords = {"JUMP", "CALL", "RET", "RETI", "LOADRET"};
    if (arithmetic(instruction) || shift(instruction))
        return next();
    if (memoryWords.contains(instruction.mnemonic))
        return memory(instruction);
    if (flowWords.contains(instruction.mnemonic))
        return flow(instruction);
    return special(instruction);
}

bool NaiveProcessor::arithmetic(const Instruction& instruction)
{
    static const QStringList words = {"LOAD", "ADD",  "ADDC", "SUB",  "SUBC",  "AND",
                                      "OR",   "XOR",  "COMP", "COMPC", "TEST", "TESTC"};
    const int which = words.indexOf(instruction.mnemonic);
    if (which < 0)
        return false;
    int& r = dst(instruction);
    const int v = source(instruction.second);
    const Bits a = bitsOf(r);
    const Bits b = bitsOf(v);
    Bits inverted;
    Bits result;
    bool odd = false;
    const bool isPicoBlaze = m_family != Family::Mico8;
    for (std::size_t bit = 0; bit < 8; ++bit)
        inverted[bit] = !b[bit];
    switch (which) {
    case 0: // LOAD
        r = v;
        return true;
    case 1: // ADD
    case 2: // ADDC
    {
        const bool carryIn = which == 2 && carry;
        bool carryOut = carryIn;
        r = valueOf(sum(a, b, &carryOut));
        // The sum of 8 bits is zero, and its ninth bit does not matter.
        const bool isZero = r == 0;
        carry = carryOut;
        zero = which == 2 && m_family == Family::PicoBlaze6 ? zero && isZero : isZero;
        return true;
    }
    case 3: // SUB
    case 4: // SUBC
    {
        bool noBorrow = !(which == 4 && carry);
        const bool carriedIn = !noBorrow;
        r = valueOf(sum(a, inverted, &noBorrow));
        bool isZero = r == 0;
        // 0 - 255 - 1 has no zero in the result of the chained subtraction of a PicoBlaze 6, as it looks at more than 9 bits.
        const bool isMinus256 = carriedIn && valueOf(a) == 0 && valueOf(b) == 255;
        carry = !noBorrow;
        if (which == 4 && m_family == Family::PicoBlaze6)
            zero = zero && isZero && !isMinus256;
        else
            zero = isZero;
        return true;
    }
    case 5: // AND
    case 6: // OR
    case 7: // XOR
        for (std::size_t bit = 0; bit < 8; ++bit)
            result[bit] = which == 5 ? a[bit] && b[bit] : which == 6 ? a[bit] || b[bit] : a[bit] != b[bit];
        r = valueOf(result);
        zero = r == 0;
        if (isPicoBlaze)
            carry = false;
        return true;
    case 8: // COMP
    case 9: // COMPC
    {
        const int less = which == 9 && carry ? 1 : 0;
        zero = (which == 8 || zero) && r == v + less;
        carry = r < v + less;
        return true;
    }
    case 10: // TEST
    case 11: // TESTC
    {
        bool any = false;
        for (std::size_t bit = 0; bit < 8; ++bit) {
            any = any || (a[bit] && b[bit]);
            odd = odd != (a[bit] && b[bit]);
        }
        if (which == 11) {
            carry = carry != odd;
            zero = zero && !any;
        } else {
            if (isPicoBlaze)
                carry = odd;
            zero = !any;
        }
        return true;
    }
    default:
        return false;
    }
}

bool NaiveProcessor::shift(const Instruction& instruction)
{
    const QString& word = instruction.mnemonic;
    static const QStringList left = {"ROL", "ROLC", "SL0", "SL1", "SLX"};
    static const QStringList right = {"ROR", "RORC", "SR0", "SR1", "SRX"};
    if (!left.contains(word) && !right.contains(word))
        return false;
    int& r = dst(instruction);
    const Bits before = bitsOf(r);
    Bits after;
    bool in = false;
    if (word == "ROL" || word == "SRX")
        in = before[7];
    else if (word == "ROR" || word == "SLX")
        in = before[0];
    else if (word == "ROLC" || word == "RORC")
        in = carry;
    else if (word == "SL1" || word == "SR1")
        in = true;
    if (left.contains(word)) {
        after[0] = in;
        for (std::size_t bit = 1; bit < 8; ++bit)
            after[bit] = before[bit - 1];
        carry = before[7];
    } else {
        after[7] = in;
        for (std::size_t bit = 0; bit < 7; ++bit)
            after[bit] = before[bit + 1];
        carry = before[0];
    }
    r = valueOf(after);
    zero = r == 0;
    return true;
}

Outcome NaiveProcessor::memory(const Instruction& instruction)
{
    const int address = source(instruction.second);
    if (instruction.mnemonic == "RDMEM") {
        if (address >= int(scrpd.size()))
            return Outcome::badScrpdRead;
        dst(instruction) = scrpd[std::size_t(address)];
    } else if (instruction.mnemonic == "WRMEM") {
        if (address >= int(scrpd.size()))
            return Outcome::badScrpdWrite;
        scrpd[std::size_t(address)] = dst(instruction);
    } else if (instruction.mnemonic == "RDPRT") {
        dst(instruction) = portValue(reads++);
    } else {
        writes.push_back({address, source(instruction.first)});
    }
    return next();
}

Outcome NaiveProcessor::comeBack()
{
    if (calls.empty()) {
        clocks += m_clocksOfInstr;
        pc = -1;
        return Outcome::stackEmpty;
    }
    pc = calls.back().from;
    calls.pop_back();
    return next();
}

Outcome NaiveProcessor::flow(const Instruction& instruction)
{
    const QString& word = instruction.mnemonic;
    if (word == "RET")
        return isMet(instruction.first) ? comeBack() : next();
    if (word == "LOADRET") {
        dst(instruction) = instruction.second.value;
        return comeBack();
    }
    if (word == "RETI") {
        interrupt = instruction.first.kind == Operand::enable ? enabled : disabled;
        clocks += m_clocksOfInstr;
        if (calls.empty()) {
            pc = -1;
            return Outcome::stackEmpty;
        }
        pc = calls.back().from;
        carry = calls.back().carry;
        zero = calls.back().zero;
        calls.pop_back();
        return Outcome::done;
    }
    int target = instruction.first.kind == Operand::label ? instruction.first.value : instruction.second.value;
    if (instruction.first.kind == Operand::inParentheses)
        target = source(instruction.first) * 256 + source(instruction.second);
    else if (!isMet(instruction.first))
        return next();
    if (target >= int(m_program.size()))
        return Outcome::noTarget;
    if (word == "CALL") {
        if (calls.size() >= deepestCalls)
            return Outcome::stackOverflow;
        calls.push_back({pc, carry, zero});
    }
    return goTo(target);
}

Outcome NaiveProcessor::special(const Instruction& instruction)
{
    const QString& word = instruction.mnemonic;
    if (word == "INT") {
        interrupt = instruction.first.kind == Operand::enable ? enabled : disabled;
    } else if (word == "REGBANK") {
        bank = instruction.first.kind == Operand::bankB ? 1 : 0;
    } else if (word == "STAR") {
        regs[std::size_t(1 - bank)][std::size_t(instruction.first.value)] = source(instruction.second);
    } else if (word == "HWBUILD") {
        dst(instruction) = hwBuild;
        carry = true;
        zero = hwBuild == 0;
    } else if (word == "CLR" || word == "SET") {
        (instruction.first.kind == Operand::flagC ? carry : zero) = word == "SET";
    }
    return next();
}
