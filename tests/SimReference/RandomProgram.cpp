#include "RandomProgram.h"

#include <QStringList>

#include <algorithm>

namespace {

class Generator
{
public:
    Generator(Family family, std::mt19937* random)
        : m_family(family)
        , m_random(random)
    {
    }

    Machine machine(Layout layout)
    {
        const Build build = randomBuild();
        const Program program = places(layout);
        m_regCount = build.regCount;
        m_scrpdSize = build.scrpdSize;
        m_positions = int(program.places.size());
        Machine result = {build, program};
        for (int position = 0; position < m_positions; ++position)
            result.program.instructions.push_back(instruction());
        return result;
    }

private:
    Build randomBuild()
    {
        Build build;
        if (m_family == Family::PicoBlaze6) {
            build.scrpdSize = 64 << pick(3);
            build.vector = pick(2) == 0 ? 1023 : 1000 + pick(24);
        } else if (m_family == Family::Mico8) {
            static const int sizes[] = {32, 64, 300};
            build.scrpdSize = sizes[pick(3)];
            build.vector = 0;
            build.clocksOfInstr = 1 + pick(3);
            build.regCount = pick(2) == 0 ? 16 : 32;
        }
        return build;
    }

    /// In the order of the source; the first instruction of the first page or of the shared range has address 0.
    static Program places(Layout layout)
    {
        struct Block
        {
            int range, first, end; ///< addresses
        };
        static const std::vector<Block> blocks[layoutCount] = {
            {{1, 0, 1024}},
            {{1, 0, 300}, {1, 301, 500}, {1, 600, 1000}},
            {{0, 900, 1024}, {2, 0, 400}, {2, 410, 700}, {1, 0, 900}},
            {{1, 100, 512}, {1, 600, 1024}, {0, 0, 100}, {2, 100, 900}},
        };
        Program program;
        for (const Block& block : blocks[int(layout)]) {
            program.pageCount = std::max(program.pageCount, block.range);
            for (int address = block.first; address < block.end; ++address)
                program.places.push_back({block.range, address});
        }
        program.sharedHigh = layout != Layout::sharedLow;
        return program;
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

    QStringList mnemonics() const
    {
        QStringList words = {"LOAD", "ADD",  "ADDC", "SUB",  "SUBC",  "AND",   "OR",    "XOR",
                             "COMP", "TEST", "ROL",  "ROLC", "ROR",   "RORC",  "JUMP",  "CALL",
                             "RET",  "RETI", "INT",  "NOP",  "RDMEM", "WRMEM", "RDPRT", "WRPRT"};
        if (m_family == Family::Mico8)
            return words + QStringList({"CLR", "SET"});
        words += QStringList({"SL0", "SL1", "SLX", "SR0", "SR1", "SRX"});
        if (m_family == Family::PicoBlaze6)
            words += QStringList({"COMPC", "TESTC", "STAR", "REGBANK", "HWBUILD", "LOADRET"});
        return words;
    }

    /// Now and then one that the processor was built without.
    Operand reg() { return {Operand::reg, pick(m_family == Family::Mico8 && pick(20) == 0 ? 32 : m_regCount)}; }
    Operand inParentheses() { return {Operand::inParentheses, reg().value}; }
    /// Values at the edges come more often than they would by chance.
    Operand number()
    {
        static const int edges[] = {0, 1, 0x7F, 0x80, 0xFE, 0xFF};
        return {Operand::number, pick(3) == 0 ? edges[pick(6)] : pick(256)};
    }
    Operand label() { return {Operand::label, pick(m_positions)}; }
    Operand oneOf(Operand::Kind a, Operand::Kind b) { return {pick(2) == 0 ? a : b, 0}; }
    Operand condition() { return {Operand::Kind(Operand::ifZ + pick(4)), 0}; }

    void operands(Instruction* target)
    {
        const QString& word = target->mnemonic;
        static const QStringList oneRegister = {"ROL", "ROLC", "ROR", "RORC", "SL0",    "SL1",
                                                "SLX", "SR0",  "SR1", "SRX",  "HWBUILD"};
        if (oneRegister.contains(word)) {
            target->first = reg();
            // A rotation may name a second register, which does not take part.
            if (m_family == Family::Mico8 && pick(2) == 0)
                target->second = reg();
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
        else
            target->second = {Operand::number, pick(isScrpd ? m_scrpdSize : 256)};
        if (target->mnemonic == "WRPRT" && m_family == Family::PicoBlaze6 && pick(3) == 0) {
            target->first = number();
            target->second = {Operand::number, pick(16)};
        }
    }

    Family m_family;
    std::mt19937* m_random;
    int m_regCount = 0;
    int m_scrpdSize = 0;
    int m_positions = 0;
};

} // namespace

Machine randomMachine(Family family, Layout layout, std::mt19937* random)
{
    return Generator(family, random).machine(layout);
}
