#include "RandomProgram.h"

#include <QStringList>

namespace {

class Generator
{
public:
    Generator(Family family, std::mt19937* random)
        : m_family(family)
        , m_random(random)
    {
    }

    Instruction instruction()
    {
        const QStringList words = mnemonics();
        Instruction result;
        result.mnemonic = words.at(pick(words.size()));
        operands(&result);
        return result;
    }

    int pick(int count) { return int((*m_random)() % unsigned(count)); }

private:
    QStringList mnemonics() const
    {
        QStringList words = {"LOAD", "ADD", "ADDC", "SUB",   "SUBC",  "AND",   "OR",    "XOR",  "COMP", "TEST", "ROL",
                             "ROLC", "ROR", "RORC", "JUMP",  "CALL",  "RET",   "RETI",  "INT",  "NOP",  "RDMEM", "WRMEM",
                             "RDPRT", "WRPRT"};
        if (m_family == Family::Mico8)
            return words + QStringList({"CLR", "SET"});
        words += QStringList({"SL0", "SL1", "SLX", "SR0", "SR1", "SRX"});
        if (m_family == Family::PicoBlaze6)
            words += QStringList({"COMPC", "TESTC", "STAR", "REGBANK", "HWBUILD", "LOADRET"});
        return words;
    }

    Operand reg() { return {Operand::reg, pick(m_family == Family::Mico8 ? 32 : 16)}; }
    Operand inParentheses() { return {Operand::inParentheses, reg().value}; }
    /// Values at the edges come more often than they would by chance.
    Operand number()
    {
        static const int edges[] = {0, 1, 0x7F, 0x80, 0xFE, 0xFF};
        return {Operand::number, pick(3) == 0 ? edges[pick(6)] : pick(256)};
    }
    Operand label() { return {Operand::label, pick(programSize)}; }
    Operand oneOf(Operand::Kind a, Operand::Kind b) { return {pick(2) == 0 ? a : b, 0}; }
    Operand condition() { return {Operand::Kind(Operand::ifZ + pick(4)), 0}; }

    void operands(Instruction* target)
    {
        const QString& word = target->mnemonic;
        static const QStringList oneRegister = {"ROL", "ROLC", "ROR", "RORC", "SL0", "SL1", "SLX", "SR0", "SR1", "SRX", "HWBUILD"};
        if (oneRegister.contains(word)) {
            target->first = reg();
        } else if (word == "JUMP" || word == "CALL") {
            flow(target);
        } else if (word == "RET") {
            if (m_family != Family::Mico8 && pick(2) == 0)
                target->first = condition();
        } else if (word == "RETI") {
            if (m_family != Family::Mico8)
                target->first = oneOf(Operand::enable, Operand::disable);
        } else if (word == "INT") {
            target->first = {pick(4) == 0 ? Operand::disable : Operand::enable, 0};
        } else if (word == "REGBANK") {
            target->first = oneOf(Operand::bankA, Operand::bankB);
        } else if (word == "CLR" || word == "SET") {
            target->first = oneOf(Operand::flagC, Operand::flagZ);
        } else if (word == "LOADRET") {
            target->first = reg();
            target->second = number();
        } else if (word.endsWith("MEM") || word.endsWith("PRT")) {
            memory(target);
        } else if (word != "NOP") {
            target->first = reg();
            target->second = pick(2) == 0 ? reg() : number();
        }
    }

    void flow(Instruction* target)
    {
        if (m_family == Family::PicoBlaze6 && pick(4) == 0) {
            target->first = inParentheses();
            target->second = inParentheses();
        } else if (pick(2) == 0) {
            target->first = label();
        } else {
            target->first = condition();
            target->second = label();
        }
    }

    void memory(Instruction* target)
    {
        target->first = reg();
        const bool isScrpd = target->mnemonic.endsWith("MEM");
        if (pick(2) == 0)
            target->second = inParentheses();
        else if (m_family == Family::Mico8)
            target->second = {Operand::number, pick(32)};
        else
            target->second = {Operand::number, pick(isScrpd ? 64 : 256)};
        if (target->mnemonic == "WRPRT" && m_family == Family::PicoBlaze6 && pick(3) == 0) {
            target->first = number();
            target->second = {Operand::number, pick(16)};
        }
    }

    Family m_family;
    std::mt19937* m_random;
};

} // namespace

std::vector<Instruction> randomProgram(Family family, std::mt19937* random)
{
    Generator generator(family, random);
    std::vector<Instruction> program;
    for (int address = 0; address < programSize; ++address)
        program.push_back(generator.instruction());
    return program;
}
