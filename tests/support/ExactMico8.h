#pragma once

#include "ExactModel.h"

#include <array>

/// The Mico8 as it is. Two clocks an instruction, three and the wait states for an access to a port, three for one to
/// the scratchpad. A request of an interrupt is latched in any clock and for good.
class ExactMico8 : public ExactModel
{
public:
    struct Build
    {
        int registers = 32;      ///< 16 or 32
        int scratchpadSize = 32; ///< a power of two
        int addressBits = 8;     ///< of ports, 8 to 32
        int waitStates = 0;      ///< of each port access
        int memorySize = 4096;
    };

    ExactMico8(const std::vector<quint32>& program, const Build& build);

    void step(ExactEvents* events) override;
    void reset(qint64 nextClock) override;
    std::vector<quint8> registers() const override { return m_registers; }
    int depth() const override { return m_pointer; }

private:
    /// A call or an entry of an interrupt, with the address where the return goes.
    struct Cell
    {
        int address = 0;
        bool carry = false;
        bool zero = false;
    };
    static const int stackSize = 16;

    void execute(quint32 word);
    void arithmetic(quint32 word);
    void rotate(quint32 word);
    void flags(quint32 word);
    void access(quint32 word, ExactEvents* events);
    void flow(quint32 word);
    bool isMet(quint32 word) const;
    quint32 accessAddress(quint32 word) const;
    void push(const Cell& cell);
    Cell pop();
    quint8& dst(quint32 word) { return m_registers[(word >> 8 & 31) % m_registers.size()]; }
    quint8 src(quint32 word) const { return m_registers[(word >> 3 & 31) % m_registers.size()]; }

    Build m_build;
    std::vector<quint8> m_registers;
    std::array<Cell, stackSize> m_stack{};
    int m_pointer = 0;
    bool m_requested = false;
    bool m_inRoutine = false;
    bool m_putsOff = false; ///< an interrupt waits for the instruction after this one
    bool m_entered = false; ///< an interrupt was entered behind the instruction before
    qint64 m_nextAsked = 0; ///< the first clock in which the interrupt input has not been looked at
};
