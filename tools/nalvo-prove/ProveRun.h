#pragma once

#include "BatchProject.h"
#include "CoreRun.h"
#include "CoreSource.h"
#include "ExactRun.h"
#include "ProveOptions.h"
#include "ProveResult.h"

#include <memory>

namespace nsNalvoProve {

enum eExitStatus_t { exitEqual = 0, exitDifferent = 1, exitNothingProved = 2, exitSignal = 130 };

/// One proof, from the project to the result that is shown.
class ProveRun
{
public:
    explicit ProveRun(const ProveOptions& options);

    /// @return exit status; failures have been reported
    int run();

private:
    /// What the core has done.
    struct sSeen_t
    {
        size_t equal = 0; ///< events that are those of the simulation
        bool hasOther = false;
        ProveEvent other; ///< the next one, which is not
    };
    /// Both sides after a number of instructions.
    struct sStates_t
    {
        ProveState ours;
        ProveState others;
        QString difference; ///< empty if there is none
        qint64 instructions = 0;
        qint64 clock = 0;
        int position = -1; ///< of the last one
    };

    // Each of these returns exitEqual to go on, or the exit status after a reported error.
    int assemble();
    int simulate();
    int prepareCore();
    int compare();

    int endOf(CoreRun::eEnd_t end);
    CoreStimulus stimulusOf(const ExactRun& exact) const;
    int compareEvents(sSeen_t* seen, ProveState* state);
    int showDifference(const sSeen_t& seen);
    int showStateDifference();
    int statesAfter(qint64 instructions, sStates_t* states);
    int findState(qint64 different, sStates_t* states);
    void setStates(const sStates_t& states);
    int report();
    void showProgress(qint64 clock);
    void hideProgress();
    int fail(const QString& text) const;
    void note(const QString& text) const;

    ProveOptions m_options;
    nsBatch::BatchProject& m_batch;
    ProveProject m_project;
    const CoreKind* m_kind = nullptr;
    CoreSource m_source;
    std::unique_ptr<ExactRun> m_exact;
    std::unique_ptr<CoreRun> m_core;
    ProveTrace m_trace; ///< of the simulation
    ProveResult m_result;
    int m_percent = -1; ///< that is shown
};

} // namespace nsNalvoProve
