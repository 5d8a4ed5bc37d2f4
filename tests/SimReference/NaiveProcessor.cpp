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

const char* nameOf(Family family)
{
    return family == Family::PicoBlaze3 ? "PicoBlaze3" : family == Family::PicoBlaze6 ? "PicoBlaze6" : "Mico8";
}

int Program::find(int range, int address) const
{
    // What stands in the page itself hides what all pages share.
    for (int wanted : {range, 0}) {
        for (int position = 0; position < size(); ++position) {
            const Place& place = places[std::size_t(position)];
            if (place.range == wanted && place.address == address)
                return position;
        }
    }
    return -1;
}

Program inOnePage(std::vector<Instruction> instructions)
{
    Program program;
    program.instructions = std::move(instructions);
    for (int address = 0; address < program.size(); ++address)
        program.places.push_back({1, address});
    return program;
}

NaiveProcessor::NaiveProcessor(Family family, const Program& program, const Build& build)
    : m_family(family)
    , m_program(program)
    , m_build(build)
{
    scrpd.resize(std::size_t(build.scrpdSize));
    moveTo(program.find(1, 0));
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

void NaiveProcessor::moveTo(int position)
{
    pc = position < m_program.size() ? position : -1;
    if (pc >= 0 && m_program.places[std::size_t(pc)].range > 0)
        page = m_program.places[std::size_t(pc)].range;
}

Outcome NaiveProcessor::goTo(int position)
{
    clocks += m_build.clocksOfInstr;
    moveTo(position);
    return pc < 0 ? Outcome::ended : Outcome::done;
}

/// What follows in the source is what follows in the program, even where addresses are left out between the two.
Outcome NaiveProcessor::next()
{
    return goTo(pc + 1);
}

int NaiveProcessor::find(int address) const
{
    const int range = m_program.places[std::size_t(pc)].range;
    return m_program.find(range > 0 ? range : page, address);
}

Outcome NaiveProcessor::step()
{
    writes.clear();
    readPorts.clear();
    if (interrupt == pending) {
        interrupt = inService;
        if (calls.size() >= deepestCalls)
            return Outcome::stackOverflow;
        calls.push_back({"ISR", pc, carry, zero});
        moveTo(find(m_build.vector));
        if (pc < 0)
            return Outcome::noVector;
    }
    executed = pc;
    return execute(m_program.instructions[std::size_t(pc)]);
}

bool NaiveProcessor::isMissing(const Operand& operand) const
{
    return (operand.kind == Operand::reg || operand.kind == Operand::inParentheses) &&
           operand.value >= m_build.regCount;
}

/// The second register of a rotation is never looked at. What a read is stored in is looked at last, in memory().
bool NaiveProcessor::namesMissingRegister(const Instruction& instruction) const
{
    const QString& word = instruction.mnemonic;
    if (word.startsWith("RO"))
        return isMissing(instruction.first);
    if (word == "RDMEM" || word == "RDPRT")
        return isMissing(instruction.second);
    return isMissing(instruction.first) || isMissing(instruction.second);
}

Outcome NaiveProcessor::execute(const Instruction& instruction)
{
    static const QStringList memoryWords = {"RDMEM", "WRMEM", "RDPRT", "WRPRT"};
    static const QStringList flowWords = {"JUMP", "CALL", "RET", "RETI", "LOADRET"};
    if (namesMissingRegister(instruction))
        return Outcome::badRegister;
    if (arithmetic(instruction) || logic(instruction) || shift(instruction))
        return next();
    if (memoryWords.contains(instruction.mnemonic))
        return memory(instruction);
    if (flowWords.contains(instruction.mnemonic))
        return flow(instruction);
    return special(instruction);
}

bool NaiveProcessor::arithmetic(const Instruction& instruction)
{
    static const QStringList words = {"LOAD", "ADD", "ADDC", "SUB", "SUBC", "COMP", "COMPC"};
    const int which = words.indexOf(instruction.mnemonic);
    if (which < 0)
        return false;
    int& r = dst(instruction);
    const int v = source(instruction.second);
    switch (which) {
    case 0: // LOAD
        r = v;
        break;
    case 1: // ADD
    case 2: // ADDC
    {
        bool carryBit = which == 2 && carry;
        r = valueOf(sum(bitsOf(r), bitsOf(v), &carryBit));
        carry = carryBit;
        // The sum of 8 bits is zero, and its ninth bit does not matter.
        zero = r == 0 && (which == 1 || m_family != Family::PicoBlaze6 || zero);
        break;
    }
    case 3: // SUB
    case 4: // SUBC
        subtract(&r, v, which == 4);
        break;
    default: // COMP, COMPC
    {
        const int less = which == 6 && carry ? 1 : 0;
        zero = (which == 5 || zero) && r == v + less;
        carry = r < v + less;
        break;
    }
    }
    return true;
}

void NaiveProcessor::subtract(int* r, int v, bool chained)
{
    const bool borrowIn = chained && carry;
    // 0 - 255 - 1 has no zero in the result of the chained subtraction of a PicoBlaze 6, as it looks at more than 9
    // bits.
    const bool isMinus256 = borrowIn && *r == 0 && v == 255;
    Bits inverted = bitsOf(v);
    for (bool& bit : inverted)
        bit = !bit;
    bool noBorrow = !borrowIn;
    *r = valueOf(sum(bitsOf(*r), inverted, &noBorrow));
    carry = !noBorrow;
    if (chained && m_family == Family::PicoBlaze6)
        zero = zero && *r == 0 && !isMinus256;
    else
        zero = *r == 0;
}

bool NaiveProcessor::logic(const Instruction& instruction)
{
    static const QStringList words = {"AND", "OR", "XOR", "TEST", "TESTC"};
    const int which = words.indexOf(instruction.mnemonic);
    if (which < 0)
        return false;
    int& r = dst(instruction);
    const Bits a = bitsOf(r);
    const Bits b = bitsOf(source(instruction.second));
    Bits result;
    bool any = false;
    bool odd = false;
    for (std::size_t bit = 0; bit < 8; ++bit) {
        result[bit] = which == 1 ? a[bit] || b[bit] : which == 2 ? a[bit] != b[bit] : a[bit] && b[bit];
        any = any || result[bit];
        odd = odd != result[bit];
    }
    zero = !any && (which != 4 || zero);
    if (which < 3)
        r = valueOf(result);
    if (which == 4)
        carry = carry != odd;
    else if (m_family != Family::Mico8)
        carry = which == 3 && odd;
    return true;
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
        if (isMissing(instruction.first))
            return Outcome::badRegister;
        dst(instruction) = scrpd[std::size_t(address)];
    } else if (instruction.mnemonic == "WRMEM") {
        if (address >= int(scrpd.size()))
            return Outcome::badScrpdWrite;
        scrpd[std::size_t(address)] = dst(instruction);
    } else if (instruction.mnemonic == "RDPRT") {
        const int value = portValue(reads++);
        readPorts.push_back(address);
        if (isMissing(instruction.first))
            return Outcome::badRegister;
        dst(instruction) = value;
    } else {
        writes.push_back({address, source(instruction.first)});
    }
    return next();
}

Outcome NaiveProcessor::comeBack()
{
    if (calls.empty()) {
        clocks += m_build.clocksOfInstr;
        pc = -1;
        return Outcome::stackEmpty;
    }
    moveTo(calls.back().from);
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
        clocks += m_build.clocksOfInstr;
        if (calls.empty()) {
            pc = -1;
            return Outcome::stackEmpty;
        }
        moveTo(calls.back().from);
        carry = calls.back().carry;
        zero = calls.back().zero;
        calls.pop_back();
        return Outcome::done;
    }
    int target = -1;
    QString name;
    if (instruction.first.kind == Operand::inParentheses) {
        const int high = source(instruction.first);
        const int low = source(instruction.second);
        target = find(high * 256 + low);
        if (target < 0)
            return Outcome::noTarget;
        name = QString("%1 = %2, %3 = %4")
                   .arg(operandText({Operand::reg, instruction.first.value}, m_family), QString::number(high),
                        operandText({Operand::reg, instruction.second.value}, m_family), QString::number(low));
    } else {
        if (!isMet(instruction.first))
            return next();
        target = (instruction.first.kind == Operand::label ? instruction.first : instruction.second).value;
        name = QString("L%1").arg(target);
    }
    if (word == "CALL") {
        if (calls.size() >= deepestCalls)
            return Outcome::stackOverflow;
        calls.push_back({name, pc, carry, zero});
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
