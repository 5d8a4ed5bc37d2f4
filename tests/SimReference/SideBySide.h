#pragma once

#include "NaiveProcessor.h"

#include "ProcRun.h"
#include "ProcSim.h"
#include "ProcSimObserver.h"

#include <memory>
#include <string>
#include <vector>

/// A simulator and the naive model on the same program, step by step.
class SideBySide : private nsProc::ProcSimObserver
{
public:
    /// Assembles the program, one instruction a line, and starts both sides at address 0.
    SideBySide(Family family, const std::vector<Instruction>& program);
    ~SideBySide() override;

    /// Not empty: why the comparison can not start.
    const std::string& problem() const { return m_problem; }
    /// One instruction on both sides. @return what differs afterwards, with all that is needed to find it; empty if nothing does
    std::string step();
    /// The same without the comparison of what the instruction can not have touched.
    std::string stepQuickly();

    // Both sides at once.
    void goTo(int address);
    void setReg(int index, int value);
    void setFlags(bool carry, bool zero);
    void setHwBuild(int value);
    void raiseInterrupt();
    void clearCalls();

    NaiveProcessor& model() { return *m_model; }

private:
    void portWritten(int addr, int value) override;
    bool portSource(int addr, int* value, bool* handled) override;

    std::string compare(Outcome outcome, bool simulated, bool all);
    std::string compareOutcome(Outcome outcome, bool simulated);
    std::string compareState(bool all);

    Family m_family;
    std::vector<Instruction> m_program;
    ProcRun m_run;
    std::unique_ptr<nsProc::ProcSim> m_sim;
    std::unique_ptr<NaiveProcessor> m_model;
    std::vector<nsModAsmFe::Opcode*> m_opcodes;
    std::vector<NaiveProcessor::PortWrite> m_writes;
    std::uint32_t m_reads = 0;
    std::string m_problem;
};

const char* nameOf(Family family);
