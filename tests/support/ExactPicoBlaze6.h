#pragma once

#include "ExactModel.h"

#include <array>

/// The PicoBlaze 6 as it is. Two clocks an instruction; the interrupt input counts in the first one, for the next
/// instruction.
class ExactPicoBlaze6 : public ExactModel
{
public:
    struct Build
    {
        int scratchpadSize = 64; ///< 64, 128 or 256
        int vector = 0x3FF;
        int hwBuild = 0;
        int memorySize = 4096;
    };

    ExactPicoBlaze6(const std::vector<quint32>& program, const Build& build);

    void step(ExactEvents* events) override;
    void reset(qint64 nextClock) override;
    std::vector<quint8> registers() const override;
    int depth() const override { return m_depth; }

private:
    /// A call or an entry of an interrupt. The address is that of the CALL or of the pre-empted instruction.
    struct Cell
    {
        int address = 0;
        int bank = 0;
        bool carry = false;
        bool zero = false;
    };
    enum class Slot { execute, enter, half, halfPreempted };

    void execute(ExactEvents* events);
    void enterInterrupt(ExactEvents* events);
    void executeHalf(ExactEvents* events, bool preempted);
    bool arithmetic(quint32 word);
    bool shift(quint32 word);
    bool memory(quint32 word, int lateBank, ExactEvents* events);
    void flow(quint32 word);
    void special(quint32 word);
    bool isMet(quint32 word) const;
    void push(const Cell& cell);
    void pop(Cell* cell);
    quint8& reg(int number, int bank) { return m_registers[std::size_t(bank)][std::size_t(number)]; }
    int operand(quint32 word, int bank);
    void clearState();

    Build m_build;
    std::array<std::array<quint8, 16>, 2> m_registers{};
    std::array<Cell, 31> m_stack{}; ///< cell 0 belongs to no call
    int m_depth = 0;
    Slot m_next = Slot::execute;
    bool m_resets = false; ///< the instruction under way makes the core reset itself
    int m_lastAddress = 0; ///< of the instruction under way
};
