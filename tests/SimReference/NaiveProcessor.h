#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <vector>

/// A second, naive model of the processors, for comparison with the simulator. It works bit by bit from the tables of
/// meanings and knows nothing of the assembler's objects: a program is a list of instructions in words of its own.

enum class Family { PicoBlaze3, PicoBlaze6, Mico8 };

const char* nameOf(Family family);

/// An operand as the program names it.
struct Operand
{
    enum Kind {
        none,
        reg,
        inParentheses,
        number,
        label,
        ifZ,
        ifNZ,
        ifC,
        ifNC,
        enable,
        disable,
        bankA,
        bankB,
        flagC,
        flagZ
    };
    Kind kind = none;
    int value = 0; ///< number of a register, a constant, or the position of a label
};

struct Instruction
{
    QString mnemonic;
    Operand first;
    Operand second;

    /// As a source has it; labels are called L and their position.
    QString text(Family family) const;
};

/// Where an instruction stands in the instruction memory.
struct Place
{
    int range = 1; ///< 0 shared by all pages, else the page, counted from 1
    int address = 0;
};

/// The instructions in the order of the source. A position is an index into both lists.
struct Program
{
    std::vector<Instruction> instructions;
    std::vector<Place> places;
    int pageCount = 1;
    bool sharedHigh = true; ///< the shared range is at the upper end of the addresses, else at the lower one

    int size() const { return int(instructions.size()); }
    /// @return position of what a program in this range finds at the address; -1 for nothing
    int find(int range, int address) const;
};

/// The instructions from address 0 on, in the only page.
Program inOnePage(std::vector<Instruction> instructions);

/// How the processor is built.
struct Build
{
    int scrpdSize = 64;
    int vector = 1023;
    int clocksOfInstr = 2;
    int regCount = 16;
};

/// What an instruction came to.
enum class Outcome {
    done,
    ended,         ///< done, and there is no next instruction
    stackOverflow, ///< not done
    stackEmpty,    ///< done as far as it goes, and there is no next instruction
    badScrpdRead,  ///< not done
    badScrpdWrite, ///< not done
    badRegister,   ///< not done: it names a register that the processor was built without
    noTarget,      ///< not done
    noVector,      ///< interrupt entered without an instruction, and there is no next instruction
};
const int outcomeCount = int(Outcome::noVector) + 1;

/// All that an instruction can change.
struct State
{
    enum Interrupt { enabled, disabled, pending, inService };

    struct Call
    {
        QString name;
        int from; ///< position
        bool carry;
        bool zero;
    };

    int pc = 0;   ///< position, -1 for none
    int page = 1; ///< range of the page that was executed last: the one that shared instructions are seen from
    std::array<std::array<int, 32>, 2> regs{};
    int bank = 0;
    bool carry = false;
    bool zero = false;
    Interrupt interrupt = disabled;
    std::vector<int> scrpd;
    std::vector<Call> calls;
    std::uint32_t reads = 0; ///< port reads so far
    long long clocks = 0;
};

class NaiveProcessor : public State
{
public:
    struct PortWrite
    {
        int port;
        int value;
    };

    NaiveProcessor(Family family, const Program& program, const Build& build);

    Outcome step();
    /// The next instruction is this one.
    void moveTo(int position);
    /// Values that port reads deliver, by the number of the read; the same formula serves the other side.
    static int portValue(std::uint32_t readNumber);

    std::vector<PortWrite> writes; ///< of the last step
    std::vector<int> readPorts;    ///< of the last step
    int executed = 0;              ///< position of the instruction of the last step
    int hwBuild = 0;

private:
    using Bits = std::array<bool, 8>;

    static Bits bitsOf(int value);
    static int valueOf(const Bits& bits);
    /// Adds with a ripple of carries. @param carryBit the carry in, afterwards the carry out
    static Bits sum(const Bits& a, const Bits& b, bool* carryBit);

    Outcome execute(const Instruction& instruction);
    bool arithmetic(const Instruction& instruction);
    void subtract(int* r, int v, bool chained);
    bool logic(const Instruction& instruction);
    bool shift(const Instruction& instruction);
    Outcome flow(const Instruction& instruction);
    Outcome memory(const Instruction& instruction);
    Outcome special(const Instruction& instruction);
    bool isMissing(const Operand& operand) const;
    bool namesMissingRegister(const Instruction& instruction) const;
    int& dst(const Instruction& instruction) { return regs[std::size_t(bank)][std::size_t(instruction.first.value)]; }
    int source(const Operand& operand) const;
    bool isMet(const Operand& condition) const;
    int find(int address) const;
    Outcome next();
    Outcome goTo(int position);
    Outcome comeBack();

    Family m_family;
    const Program& m_program;
    Build m_build;
};
