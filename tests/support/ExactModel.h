#pragma once

#include <QtGlobal>

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// What a core shows at its pins, in the order of the clocks.
struct ExactEvent
{
    enum Kind {
        Instruction,   ///< an instruction is executed
        Read,          ///< an input port is read
        Write,         ///< an output port is written
        ConstantWrite, ///< PicoBlaze 6 alone: a constant is written, with its low nibble in the upper half of the port
        Interrupt,     ///< an interrupt is entered
        Reset, ///< PicoBlaze 6 alone: the core resets itself; what follows is what its last instruction still does
    };
    Kind kind = Instruction;
    /// Of the instruction: executed, pre-empted or half executed. The vector for an interrupt of the Mico8, whose pins
    /// show no more. 0 for an access to a port.
    int address = 0;
    int port = 0;  ///< 0 unless a port is accessed
    int value = 0; ///< the same
    /// The first clock of the instruction; the clock of the strobe for an access. 0 is the first clock of the first
    /// instruction.
    qint64 clock = 0;

    bool operator==(const ExactEvent& other) const;
    /// As the benches of tests/cores print it: "I 01f 12", "R 07 ab 13".
    std::string text() const;
};

using ExactEvents = std::vector<ExactEvent>;

/// A naive model of a core as it is: words in, events out. It is written for clarity and shares nothing with the
/// simulator, which is compared with it.
class ExactModel
{
public:
    using Read = std::function<quint8(int port)>;
    using Interrupt = std::function<bool(qint64 clock)>;

    /// @param program words from address 0 on
    /// @param memorySize in words, a power of two; the rest of the memory holds the word 0, and addresses wrap at its
    /// end
    ExactModel(const std::vector<quint32>& program, int memorySize);
    virtual ~ExactModel() = default;

    /// Called for each port read, with all address bits; without it, 0 is read.
    void setRead(Read read) { m_read = std::move(read); }
    /// The level of the interrupt input in a clock. It is asked once for each clock that can matter, in ascending
    /// order.
    void setInterrupt(Interrupt interrupt) { m_interrupt = std::move(interrupt); }

    /// Executes one instruction or enters an interrupt, and appends what was seen. A reset of the core by itself is
    /// part of the step after the one that caused it.
    virtual void step(ExactEvents* events) = 0;
    /// The reset input between two instructions. No event is appended.
    /// @param nextClock the first clock of the instruction at the start address
    virtual void reset(qint64 nextClock) = 0;

    virtual std::vector<quint8> registers() const = 0; ///< of a PicoBlaze 6: bank A, then bank B
    const std::vector<quint8>& scratchpad() const { return m_scratchpad; }
    virtual int depth() const = 0; ///< of the call stack, modulo its size where it wraps
    int bank() const { return m_bank; }
    bool carry() const { return m_carry; }
    bool zero() const { return m_zero; }
    bool interruptsEnabled() const { return m_enabled; }
    int programCounter() const { return m_pc; } ///< address of the next instruction
    qint64 clock() const { return m_clock; }    ///< the first clock of the next instruction

protected:
    quint32 word(int address) const { return m_memory[std::size_t(address)]; }
    int wrapped(int address) const { return address & (int(m_memory.size()) - 1); }
    bool isRequested(qint64 clock) { return m_interrupt && m_interrupt(clock); }
    quint8 read(int port) { return m_read ? m_read(port) : quint8(0); }
    static bool isOdd(int value); ///< an odd number of ones
    /// The bit that a PicoBlaze shifts in: bits 2 to 0 of the word say which one.
    static bool shiftedIn(quint32 word, int value, bool carry);

    std::vector<quint8> m_scratchpad;
    int m_pc = 0;
    int m_bank = 0;
    bool m_carry = false;
    bool m_zero = false;
    bool m_enabled = false;
    qint64 m_clock = 0;

private:
    std::vector<quint32> m_memory;
    Read m_read;
    Interrupt m_interrupt;
};
