#pragma once

#include "ExactModel.h"

#include <array>

/// The PicoBlaze 3 as it is. Two clocks an instruction; the interrupt input counts in the first one, for the next
/// instruction.
class ExactPicoBlaze3 : public ExactModel
{
public:
    explicit ExactPicoBlaze3(const std::vector<quint32>& program);

    void step(ExactEvents* events) override;
    void reset(qint64 nextClock) override;
    std::vector<quint8> registers() const override { return {m_registers.begin(), m_registers.end()}; }
    int depth() const override { return m_pointer; }

private:
    void execute(quint32 word, ExactEvents* events);
    void enterInterrupt(quint32 preempted);
    bool arithmetic(quint32 word);
    bool shift(quint32 word);
    bool memory(quint32 word, ExactEvents* events);
    void flow(quint32 word);
    bool isMet(quint32 word) const;
    quint8& reg(int number) { return m_registers[std::size_t(number)]; }
    int operand(quint32 word) const;
    /// Takes the pointer one cell down. @return the address in that cell
    int pop();

    std::array<quint8, 16> m_registers{};
    std::array<int, 32> m_stack{};
    int m_pointer = 0;
    bool m_keptCarry = false; ///< one copy for interrupts of all levels
    bool m_keptZero = false;
    bool m_entersNext = false;
};
