#pragma once

namespace nsModAsmFe {
class Opcode;
}

namespace nsProc {

/// Sees what a simulated program does, as it does it, and can serve as the source of its port reads. Does nothing by
/// default.
class ProcSimObserver
{
public:
    virtual ~ProcSimObserver() = default;

    /// An instruction is about to be executed.
    virtual void instruction(const nsModAsmFe::Opcode* /*opcode*/) {}
    /// The processor has entered the interrupt; the instruction at the vector follows.
    virtual void interruptEntered() {}
    /// The program reads a port that no device answers.
    /// @param handled set to true: the return value is used, and no register is added for the user to fill in
    /// @return a value was supplied, 0 to 255; false stops the program before the instruction
    virtual bool portSource(int /*addr*/, int* /*value*/, bool* /*handled*/) { return false; }
    /// @param value 0 to 255
    virtual void portRead(int /*addr*/, int /*value*/) {}
    virtual void portWritten(int /*addr*/, int /*value*/) {}
    virtual void scrpdWritten(int /*addr*/, int /*value*/) {}
};

} // namespace nsProc
