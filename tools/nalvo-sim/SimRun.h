#pragma once

#include "BatchFiles.h"
#include "BatchModules.h"
#include "SimDump.h"
#include "SimOptions.h"
#include "SimWatch.h"

#include <memory>

namespace nsNalvoSim {

enum eExitStatus_t { exitReached = 0, exitNotAssembled = 1, exitWrongUsage = 2, exitStopped = 3, exitSignal = 130 };

/// One run of a project, from its opening to the files that are left.
class SimRun
{
public:
    explicit SimRun(const SimOptions& options);
    ~SimRun();

    /// @return exit status; failures have been reported
    int run();

private:
    // Each of these reports its errors.
    bool assemble();
    bool findLabels();
    bool openReads();
    bool openOutputs(const QString& project);
    bool openOutput(nsBatch::OutputFile* file, const QString& name);
    bool startSim();
    bool checkPorts() const;

    // The run.
    void execute();
    bool isBoundReached();
    void raiseInterrupt();
    bool step();
    void endByFailure(const nsModAsmFe::Opcode* opcode);
    void endByMessage(const QString& key);
    void endByReads(const nsModAsmFe::Opcode* opcode);
    void reportUnreadPort(const nsModAsmFe::Opcode* opcode);
    /// Notes the instruction that ended the run. @param opcode null for none
    void setPlace(const nsModAsmFe::Opcode* opcode);
    void setEnd(SimEnd::eReason_t reason, const QString& text, const QString& key = QString());

    bool writeOutputs();
    bool finishOutput(nsBatch::OutputFile* file, bool written);
    void showSummary() const;
    int exitStatus() const;

    SimOptions m_options;
    nsBatch::BatchModules& m_modules;
    nsProc::ProcShell* m_shell = nullptr; ///< not owned
    SimWatch m_watch;
    std::unique_ptr<nsProc::ProcSim> m_sim;
    nsModAsmFe::Opcode* m_start = nullptr; ///< not owned, as the next one
    nsModAsmFe::Opcode* m_until = nullptr;
    nsBatch::OutputFile m_trace;
    nsBatch::OutputFile m_vcd;
    nsBatch::OutputFile m_dump;
    SimEnd m_end;
    qint64 m_instructions = 0;
    qint64 m_nextInterrupt = SimOptions::unbounded; ///< number of the instruction
    size_t m_interruptAt = 0;                       ///< index of the next one of the list
    QString m_place;                                ///< of the instruction that ended the run
};

} // namespace nsNalvoSim
