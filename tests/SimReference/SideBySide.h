#pragma once

#include "NaiveProcessor.h"

#include "ProcRun.h"
#include "ProcSimEngine.h"
#include "ProcSimObserver.h"

#include <QHash>

#include <memory>
#include <string>
#include <utility>
#include <vector>

/// A simulator and the naive model on the same program, step by step.
class SideBySide : private nsProc::ProcSimObserver
{
public:
    /// Assembles the program and starts both sides at address 0.
    /// @param isFollowed the simulator notifies each instruction
    /// @param warns the simulator warns where the core would do otherwise
    SideBySide(Family family, const Program& program, const Build& build = Build(), bool isFollowed = true,
               bool warns = false);
    ~SideBySide() override;

    /// Not empty: why the comparison can not start.
    const std::string& problem() const { return m_problem; }
    /// One instruction on both sides.
    /// @return what differs afterwards, with the states of both sides before and after; empty if nothing does
    std::string step();
    /// The same without the comparison of what instructions that only compute can not have touched.
    std::string stepQuickly();
    /// Up to so many instructions, which the simulator executes in its loop.
    std::string run(int count);
    /// What the simulator has warned of: messages with the positions in the program.
    const std::vector<std::pair<int, int>>& warnings() const { return m_warnings; }
    /// What the last step came to.
    Outcome outcome() const { return m_outcome; }

    // Both sides at once.
    void goTo(int position);
    void setReg(int index, int value);
    void setFlags(bool carry, bool zero);
    void setHwBuild(int value);
    void raiseInterrupt();
    void clearCalls();

    NaiveProcessor& model() { return *m_model; }

private:
    bool followsInstructions() const override { return m_isFollowed; }
    void instruction(int position, qint64) override { m_executed.push_back(position); }
    void refused(int) override { m_executed.pop_back(); }
    void portWritten(int addr, int value) override;
    bool portSource(int addr, int* value, bool* handled) override;

    QStringList source();
    void takeWarnings(nsProc::SimOutcome* simulated);
    std::string compareOutcome(const nsProc::SimOutcome& simulated);
    std::string comparePorts(const std::vector<NaiveProcessor::PortWrite>& writes, const std::vector<int>& reads) const;
    std::string compareState();
    std::string compareTheRest();
    /// The simulator's, in the terms of the model.
    State simulated() const;
    std::string text(const State& state) const;

    Family m_family;
    Program m_program;
    std::vector<int> m_lines; ///< of the source, by position
    bool m_isFollowed;
    ProcRun m_run;
    std::unique_ptr<nsProc::ProcSimEngine> m_sim;
    std::unique_ptr<NaiveProcessor> m_model;
    std::vector<nsModAsmFe::Opcode*> m_opcodes; ///< by position
    QHash<const nsModAsmFe::Opcode*, int> m_positions;
    std::vector<NaiveProcessor::PortWrite> m_writes; ///< the simulator's, of the last step
    std::vector<int> m_readPorts;                    ///< the simulator's, of the last step
    std::vector<std::pair<int, int>> m_warnings;
    std::vector<int> m_executed; ///< positions, the simulator's, of the last step
    std::uint32_t m_reads = 0;
    Outcome m_outcome = Outcome::done;
    State m_before;
    std::string m_problem;
};
