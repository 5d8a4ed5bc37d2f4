#pragma once

#include <QtGlobal>

namespace nsProc {

/// Sees what a simulated program does, as it does it, and can serve as the source of its port reads. Does nothing by
/// default.
///
/// In ProcSimEngine::run() the engine's position, flags, bank, page and clock count are those at the start of the loop
/// when instruction(), refused() and scrpdWritten() are called: these may rely on what they are given, on registers and
/// on the scratchpad alone.
class ProcSimObserver
{
public:
    virtual ~ProcSimObserver() = default;

    /// @return false: instructions and writes of the scratchpad need not be notified, so that the program runs faster.
    /// Asked when the observer is added
    virtual bool followsInstructions() const { return true; }

    /// An instruction is about to be executed.
    /// @param position in the program of the engine
    /// @param clock its first
    virtual void instruction(int /*position*/, qint64 /*clock*/) {}
    /// The instruction that was notified last was not executed after all: it had no effect.
    virtual void refused(int /*position*/) {}
    /// The processor has entered the interrupt; the instruction at the vector follows.
    virtual void interruptEntered() {}
    /// The core has reset itself; what the instruction that it was about to execute still does follows.
    virtual void coreReset() {}
    /// The program reads a port that no device answers.
    /// @param handled set to true: the return value is used, and no register is added for the user to fill in
    /// @return a value was supplied, 0 to 255; false stops the program before the instruction
    virtual bool portSource(int /*addr*/, int* /*value*/, bool* /*handled*/) { return false; }
    /// @param value 0 to 255
    virtual void portRead(int /*addr*/, int /*value*/) {}
    virtual void portWritten(int /*addr*/, int /*value*/) {}
    /// The core writes a constant by its strobe for constants. Where that is not told apart, it is portWritten().
    /// @param lines what the address lines show, 0 to 255: the port is the low four of them
    virtual void constantWritten(int /*lines*/, int /*value*/) {}
    virtual void scrpdWritten(int /*addr*/, int /*value*/) {}
};

} // namespace nsProc
