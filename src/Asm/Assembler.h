#pragma once

#include "AsmCharsets.h"
#include "AsmFeConfig.h"
#include "AsmFeMsgCatalogue.h"
#include "AsmFeParseArg.h"
#include "AsmProgram.h"
#include "AsmProjectInfo.h"
#include "AsmRunListener.h"
#include "AsmWords.h"
#include "RunWatch.h"
#include "SymbolTable.h"

#include <QStringList>

namespace nsModAsmFe {

class AsmBackend;
class AsmFeFileHndlr;
class AsmFeMsgHndlr;
struct AsmBeProgram;
struct sSymbolSource;

/// The assembler: from the sources on the disk to the output files.
///
/// run() runs the stages in a fixed order and is the only place that decides when a run stops. Each stage processes all
/// its elements before it returns, so that one run reports all the errors of a stage; after a failed stage the later
/// ones are skipped. A run is synchronous. The stages are classes of their own in Stages/: each says in its constructor
/// what it reads and writes.
///
///     AsmFeFileHndlr files;
///     AsmFeMsgHndlr messages(&files);     // messages.modMsgHook: where they go, null for nowhere
///     AsmFeConfig config;
///     Assembler assembler(files, messages, config);
///     assembler.setBackend(&processor);
///     assembler.run({"/tmp/a.psm"}, project, AsmFeConfig::eEventButton1);
///     assembler.program().opcodes.count();
class Assembler
{
public:
    /// Nothing is owned; all three must outlive the assembler.
    /// @param files written at every run: the list of sources
    /// @param messages take all reports
    /// @param config read at every run
    Assembler(AsmFeFileHndlr& files, AsmFeMsgHndlr& messages, const AsmFeConfig& config);
    Assembler(const Assembler&) = delete;
    Assembler& operator=(const Assembler&) = delete;

    /// The processor of the next runs. To take it away during a run abandons the run.
    /// @param backend null for none: a run ends with an error then; not owned
    void setBackend(AsmBackend* backend);
    AsmBackend* backend() const { return m_backend; }
    /// Asks the back end for its names again.
    void refreshProcessorNames() { m_words.setProcessor(m_backend); }
    /// @param listener null for none; not owned
    void setListener(AsmRunListener* listener);

    /// Assembles a program, in place of the one of the last run. Does nothing during a run.
    /// @param sources absolute paths in project order
    /// @param event which output files are written
    /// @return runSucceeded()
    bool run(const QStringList& sources, const AsmProjectInfo& project, AsmFeConfig::eAssembleEvent_t event);
    /// Forgets the program. During a run the run ends as failed, and then the program is dropped.
    void drop();
    bool isRunning() const { return m_running; }

    /// The last run assembled the program; during a run: no stage has failed so far.
    bool isAssembled() const { return m_assembled; }
    /// The last run assembled the program, wrote all files of its event, and no external program has failed.
    bool runSucceeded() const { return m_runSucceeded; }
    AsmProgram& program() { return m_program; }
    const AsmProgram& program() const { return m_program; }
    /// Output files that the last run has written, absolute, in order.
    const QStringList& writtenFiles() const { return m_program.writtenFiles; }

    /// The names in these sources with all their places, and the values that they have in the program of the last run.
    /// Reads all lines once more: some milliseconds for ten thousand. Not during a run.
    SymbolTable symbols(const QVector<sSymbolSource>& sources) const;

    const AsmWords& words() const { return m_words; }
    AsmCharsets& charsets() { return m_charsets; }
    AsmFeParseArg& parseArg() { return m_numbers; }

private:
    template <class Stage>
    bool runGroup(eMsgGrp_t group, const QString& arg, Stage stage);
    void runStages(AsmFeConfig::eAssembleEvent_t event);
    void runFrontEndStages(const QStringList& sources);
    bool checkEqus();
    bool checkInstructions();
    void runBackEndStages();
    void finishRun();
    void writeOutputs(AsmFeConfig::eAssembleEvent_t event);
    void runExternalPrograms(AsmFeConfig::eAssembleEvent_t event);
    void setupMetaTags();
    void clear();
    void dropProgram();
    AsmBeProgram backendProgram();

    AsmFeFileHndlr& m_files;
    AsmFeMsgHndlr& m_messages;
    const AsmFeConfig& m_config;
    AsmBackend* m_backend = nullptr; ///< not owned
    AsmRunListener m_nobody;         ///< stands in for a listener
    AsmRunListener* m_listener;      ///< not owned
    RunWatch m_watch;                ///< of the run in progress
    AsmFeParseArg m_numbers;
    AsmCharsets m_charsets;
    AsmWords m_words;
    AsmProgram m_program;
    AsmProjectInfo m_project; ///< of the last run
    bool m_running = false;   ///< a run must not be started from within a run
    bool m_abandoned = false; ///< project or back end were removed during the run
    bool m_assembled = false;
    bool m_runSucceeded = false;
};

} // namespace nsModAsmFe
