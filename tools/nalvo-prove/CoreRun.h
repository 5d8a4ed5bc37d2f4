#pragma once

#include "CoreSource.h"
#include "Primitives.h"
#include "ProcCoreConfig.h"
#include "ProveEvent.h"
#include "StateWords.h"

#include <QTemporaryDir>

#include <functional>
#include <utility>
#include <vector>

namespace nsNalvoProve {

/// What a core is given.
struct CoreStimulus
{
    Words words;
    std::vector<int> scratchpad; ///< at the start; empty or all 0: as after power-up
    std::vector<std::pair<qint64, int>> pageChanges;
    std::vector<int> reads;
    std::vector<std::pair<qint64, qint64>> requests; ///< from, and the first clock after it
    qint64 clocks = 0;                               ///< of the run
    bool showsState = true;                          ///< at the end
};

/// A run in VHDL shows the flags of the core in waves, which get too large beyond this.
constexpr qint64 mostClocksWithFlags = 4000000;

/// The core's side of a proof: its source, compiled with a bench in a temporary folder.
class CoreRun
{
public:
    enum eEnd_t {
        endDone,
        endFailed,  ///< see failure()
        endRefused, ///< an event was not wanted any more
        endStopped, ///< by the signal
    };

    /// All must outlive this.
    CoreRun(const CoreKind& kind, const CoreSource& source, const nsProc::ProcCoreConfig& config, int hwbuild);

    /// Compiles, and finds out how long after a reset the core begins.
    eEnd_t prepare();
    /// Runs the core.
    /// @param takeEvent gets each event within the clocks; false ends the run
    /// @param state is filled if the run got that far; what the core does not show stays empty
    eEnd_t run(const CoreStimulus& stimulus, const std::function<bool(const ProveEvent&)>& takeEvent,
               ProveState* state);
    /// The flags can be seen at the end of a run of so many clocks, if they are what their names say.
    bool showsFlags(qint64 clocks) const;
    /// For people: why a run has not shown the flags.
    QString whyNoFlags(qint64 clocks) const;
    /// For people, may have several lines.
    const QString& failure() const { return m_failure; }
    /// Of the HDL simulator.
    QString toolName() const;

private:
    eEnd_t fail(const QString& text);
    bool write(const QString& name, const QByteArray& text);
    bool copySources();
    bool copyBench();
    eEnd_t make(const QString& standard, bool showsFlags);
    eEnd_t compileVerilog(bool showsFlags, bool* isCompiled);
    eEnd_t compileVhdl(const QString& standard, bool* isCompiled);
    eEnd_t call(const QString& program, const QStringList& arguments, bool* isGood);
    eEnd_t findStart();
    QString option(const QString& name, const QString& value) const;
    QString option(const QString& name, qint64 value) const { return option(name, QString::number(value)); }
    QStringList options(const CoreStimulus& stimulus);
    eEnd_t simulate(const QStringList& options, qint64 clocks, const std::function<bool(const QByteArray&)>& takeLine);
    void noteMissing(const QByteArray& line);
    QString whatIsMissing() const;
    QString modelsName() const { return m_source.isVhdl() ? "models.vhd" : "models.v"; }
    bool writeWanted();
    void readWaves(ProveState* state) const;
    QString withNames(QString text) const;

    const CoreKind& m_kind;
    const CoreSource& m_source;
    const nsProc::ProcCoreConfig& m_config;
    int m_hwbuild;
    Primitives m_primitives;
    QTemporaryDir m_folder;
    QStringList m_copies;  ///< of the sources, in their order
    QString m_standard;    ///< of VHDL
    QString m_said;        ///< by the tool that was called last
    QStringList m_missing; ///< parts of the core that it has not found
    int m_start = 1;
    QString m_failure;
};

} // namespace nsNalvoProve
