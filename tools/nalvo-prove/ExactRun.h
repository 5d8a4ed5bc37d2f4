#pragma once

#include "InterruptNumbers.h"
#include "ProcCoreConfig.h"
#include "ProcSimObserver.h"
#include "ProveEvent.h"
#include "SimPortReads.h"

#include <QString>

#include <memory>
#include <utility>
#include <vector>

namespace nsModAsmFe {
class AsmFeMsgHndlr;
struct AsmProgram;
} // namespace nsModAsmFe
namespace nsBatch {
class BatchMsg;
}
namespace nsProc {
class ProcSimEngine;
struct ProcTable;
struct SimOutcome;
} // namespace nsProc

namespace nsNalvoProve {

struct ProveOptions;

/// What a simulation needs of an assembled project. Nothing is owned.
struct ProveProject
{
    nsModAsmFe::AsmProgram* program = nullptr;
    const nsModAsmFe::AsmFeMsgHndlr* links = nullptr;
    nsBatch::BatchMsg* msg = nullptr;
    const nsProc::ProcTable* processor = nullptr;
    nsProc::ProcCoreConfig config; ///< exact
};

/// The simulation's side of a proof, and what the core must be given to do the same.
class ExactRun : private nsProc::ProcSimObserver
{
public:
    enum eEnd_t {
        endBound,   ///< instructions or clocks
        endReads,   ///< a file of values is used up
        endStopped, ///< by a message, or by a read without any source
        endSignal,
        endFile, ///< the values can not be read
    };

    ExactRun(const ProveProject& project, const ProveOptions& options);
    ~ExactRun() override;

    /// Makes the simulator and opens the files of values.
    /// @return false after a reported error
    bool start();
    /// The same for a second run that does what another one has done: reads take its values.
    bool startAgain(const ExactRun& first);
    /// Executes as many instructions as asked for, or fewer; nothing is reported in a second run.
    void run(qint64 instructions, qint64 clocks);

    eEnd_t end() const { return m_end; }
    /// Why the run ended, for people. Empty for a bound.
    const QString& endText() const { return m_endText; }
    qint64 instructions() const { return m_instructions; }
    qint64 clocks() const;
    ProveTrace trace() const;

    // What the core is given.
    const std::vector<int>& words() const { return m_words; }           ///< the memory, page by page
    const std::vector<int>& scratchpad() const { return m_scratchpad; } ///< at the start
    const std::vector<int>& reads() const { return m_reads; }
    /// Clocks at which the interrupt input is up: from, and the first one after it; ascending, with gaps between.
    std::vector<std::pair<qint64, qint64>> requests() const;

    /// In a memory of several pages, the clock of each change and the page, counted from 0, that is read from then on.
    std::vector<std::pair<qint64, int>> pageChanges() const;

    /// File and line of the source; empty if no source filled the place.
    QString place(int position) const;

private:
    bool makeEngine();
    /// The cells of the scratchpad that can be compared.
    std::vector<int> cells() const;
    void raiseInterrupt();
    void endBy(const nsProc::SimOutcome& outcome);
    void stop(eEnd_t end, const QString& text);
    void add(ProveEvent::eKind_t kind, qint64 address, int value, qint64 clock);

    // ProcSimObserver
    void instruction(int position, qint64 clock) override;
    void interruptEntered() override;
    void coreReset() override;
    bool portSource(int addr, int* value, bool* handled) override;
    void portRead(int addr, int value) override;
    void portWritten(int addr, int value) override;
    void constantWritten(int lines, int value) override;

    ProveProject m_project;
    const ProveOptions& m_options;
    bool m_isAgain = false;
    nsBatch::SimPortReads m_source;
    std::vector<int> m_supplied; ///< values of the source, in their order
    size_t m_taken = 0;          ///< of them in a second run
    nsBatch::InterruptNumbers m_interrupts;
    std::unique_ptr<nsProc::ProcSimEngine> m_engine;
    std::vector<int> m_words;
    std::vector<int> m_scratchpad;
    std::vector<int> m_reads;
    std::vector<std::pair<qint64, qint64>> m_timed;    ///< requests by the clock that are asked for: from and length
    std::vector<std::pair<qint64, qint64>> m_requests; ///< all of them, with those by the number of an instruction
    std::vector<ProveEvent> m_events;
    int m_position = -1; ///< of what strobes now
    qint64 m_instructions = 0;
    eEnd_t m_end = endBound;
    QString m_endText;
};

} // namespace nsNalvoProve
