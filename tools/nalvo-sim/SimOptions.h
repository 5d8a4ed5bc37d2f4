#pragma once

#include "BatchNumbers.h"
#include "BatchOptions.h"
#include "SimInputFiles.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <utility>
#include <vector>

class QCommandLineParser;

namespace nsNalvoSim {

/// What the command line asks for.
struct SimOptions : nsBatch::BatchOptions
{
    static constexpr qint64 unbounded = nsBatch::unbounded;

    /// Reads the arguments, and shows help, version or what is wrong with them.
    eParse_t parse(const QStringList& arguments);
    /// The files that are written, without standard output.
    QStringList outputFiles() const;

    qint64 instructions = unbounded; ///< the run ends after this many instructions
    qint64 clocks = unbounded;       ///< the run ends when the count is reached
    QString start;                   ///< label; empty: as the project starts
    QString until;                   ///< label; empty: none
    nsBatch::SimInputFiles inputs;
    int hwbuild = 0;
    qint64 interruptEvery = 0;       ///< 0: never
    std::vector<qint64> interruptAt; ///< numbers of instructions from 1, ascending, each once
    bool isExact = false;            ///< as the core does; else as the project says
    /// Requests at the interrupt input of an exact simulation: clocks from and length.
    std::vector<std::pair<qint64, qint64>> interruptClocks;
    bool tracesClocks = false;
    QString traceFile; ///< empty: none; "-": standard output; the same for those below
    QString vcdFile;
    QString dumpFile;
    bool quiet = false;   ///< errors alone
    bool verbose = false; ///< warns where the core would do otherwise

private:
    bool readBounds(const QCommandLineParser& parser);
    bool readInterrupts(const QCommandLineParser& parser);
    bool readLabels(const QCommandLineParser& parser);
    bool readOutputs(const QCommandLineParser& parser);
    bool checkFiles() const;
};

} // namespace nsNalvoSim
