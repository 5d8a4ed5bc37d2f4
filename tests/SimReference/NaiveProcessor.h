#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <vector>

/// A second, naive model of the processors, for comparison with the simulator. It works bit by bit from the tables of meanings and
/// knows nothing of the assembler's objects: a program is a list of instructions in words of its own.

enum class Family { PicoBlaze3, PicoBlaze6, Mico8 };

/// An operand as the program names it.
struct Operand
{
    enum Kind { none, reg, inParentheses, number, label, ifZ, ifNZ, ifC, ifNC, enable, disable, bankA, bankB, flagC, flagZ };
    Kind kind = none;
    int value = 0; ///< number of a register, a constant, or the address of a label
};

struct Instruction
{
    QString mnemonic;
    Operand first;
    Operand second;

    /// As a source has it; labels are called L and their address.
    QString text(Family family) const;
};

/// What an instruction came to.
enum class Outcome {
    done,
    ended,          ///< done, and there is no next instruction
    stackOverflow,  ///< not done
    stackEmpty,     ///< done as far as it goes, and there is no next instruction
    badScrpdRead,   ///< not done
    badScrpdWrite,  ///< not done
    noTarget,       ///< not done
    noVector,       ///< interrupt entered without an instruction, and there is no next instruction
};

class NaiveProcessor
{
public:
    enum Interrupt { enabled, disabled, pending, inService };

    struct Call
    {
        int from;
        bool carry;
        bool zero;
    };
    struct PortWrite
    {
        int port;
        int value;
    };

    NaiveProcessor(Family family, const std::vector<Instruction>& program, int scrpdSize, int vector, int clocksOfInstr);

    Outcome step();
    /// Values that port reads deliver, by the number of the read; the same formula serves the other side.
    static int portValue(std::uint32_t readNumber);

    int pc = 0; ///< address, -1 for none
    std::array<std::array<int, 32>, 2> regs{};
    int bank = 0;
    bool carry = false;
    bool zero = false;
    Interrupt interrupt = disabled;
    std::vector<int> scrpd;
    std::vector<Call> calls;
    std::vector<PortWrite> writes; ///< of the last step
    std::uint32_t reads = 0;
    long long clocks = 0;
    int hwBuild = 0;

private:
    using Bits = std::array<bool, 8>;

    static Bits bitsOf(int value);
    static int valueOf(const Bits& bits);
    /// Adds with a ripple of carries. @param carryIn also the carry out afterwards
    static Bits sum(const Bits& a, const Bits& b, bool* carryBit);

    Outcome execute(const Instruction& instruction);
    bool arithmetic(const Instruction& instruction);
    bool shift(const Instruction& instruction);
    Outcome flow(const Instruction& instruction);
    Outcome memory(const Instruction& instruction);
    Outcome special(const Instruction& instruction);
    int& dst(const Instruction& instruction) { return regs[std::size_t(bank)][std::size_t(instruction.first.value)]; }
    int source(const Operand& operand) const;
    bool isMet(const Operand& condition) const;
    Outcome next();
    Outcome goTo(int address);
    Outcome comeBack();

    Family m_family;
    const std::vector<Instruction>& m_program;
    int m_vector;
    int m_clocksOfInstr;
};
