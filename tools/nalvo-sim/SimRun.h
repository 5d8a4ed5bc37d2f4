#pragma once

#include "BatchFiles.h"
#include "BatchProject.h"
#include "InterruptNumbers.h"
#include "ProcSimEngine.h"
#include "ProcSimWaveRecorder.h"
#include "SimDump.h"
#include "SimOptions.h"
#include "SimPortReads.h"
#include "SimProject.h"
#include "SimTrace.h"

#include <memory>
#include <vector>

namespace nsNalvoSim {

enum eExitStatus_t { exitReached = 0, exitNotAssembled = 1, exitWrongUsage = 2, exitStopped = 3, exitSignal = 130 };

/// One run of a project, from its opening to the files that are left.
class SimRun
{
public:
    explicit SimRun(const SimOptions& options);

    /// @return exit status; failures have been reported
    int run();

private:
    // Each of these reports its errors.
    bool assemble();
    bool findLabels();
    bool openOutputs(const QString& project);
    bool openOutput(nsBatch::OutputFile* file, const QString& name);
    bool startSim();
    void requestInterrupts();

    // The run.
    void execute();
    bool isBoundReached();
    /// Number of instructions until a bound, an interrupt or the next look at the signal.
    qint64 nextBlock() const;
    void raiseInterrupts();
    /// Reports what a block of instructions came to. @return the run goes on
    bool goesOn(const nsProc::SimOutcome& outcome);
    void show(const nsProc::SimOutcome& outcome) const;
    void show(const nsProc::sSimReport_t& report) const;
    void endByFailure(const nsProc::SimOutcome& outcome);
    void endByMessage(const nsProc::sSimReport_t& report);
    void endByReads(int port);
    void reportUnreadPort(int port) const;
    /// The instruction that ended the run, for people; empty if there is none.
    QString place() const;
    /// The link to an instruction; empty for null.
    nsModMsg::MsgUrl link(const nsModAsmFe::Opcode* opcode) const;
    void setEnd(SimEnd::eReason_t reason, const QString& text, const QString& key = QString());

    bool writeOutputs();
    bool finishOutput(nsBatch::OutputFile* file, bool written);
    void showSummary() const;
    int exitStatus() const;

    SimOptions m_options;
    nsBatch::BatchProject& m_batch;
    SimProject m_project;
    nsBatch::SimPortReads m_reads;
    std::unique_ptr<SimTrace> m_tracer; ///< null without a trace
    std::shared_ptr<nsProc::ProcSimWaveData> m_waves;
    std::unique_ptr<nsProc::ProcSimWaveRecorder> m_recorder; ///< null without waves
    std::unique_ptr<nsProc::ProcSimEngine> m_engine;
    nsModAsmFe::Opcode* m_start = nullptr; ///< not owned, as the next one
    nsModAsmFe::Opcode* m_until = nullptr;
    nsBatch::OutputFile m_trace;
    nsBatch::OutputFile m_vcd;
    nsBatch::OutputFile m_dump;
    SimEnd m_end;
    QString m_wrongUsage; ///< of options that the project does not fit; empty if it fits
    qint64 m_instructions = 0;
    nsBatch::InterruptNumbers m_interrupts;
    std::vector<qint64> m_requests; ///< clocks of requests that the engine does not know of, ascending
    size_t m_requested = 0;         ///< of them
};

} // namespace nsNalvoSim
