#pragma once

#include "BatchNumbers.h"
#include "BatchOptions.h"
#include "SimInputFiles.h"

#include <QString>

#include <utility>
#include <vector>

class QCommandLineParser;

namespace nsNalvoProve {

/// What the command line asks for.
struct ProveOptions : nsBatch::BatchOptions
{
    enum eLanguage_t { languageAny, languageVerilog, languageVhdl };

    /// Reads the arguments, and shows help, version or what is wrong with them.
    eParse_t parse(const QStringList& arguments);

    QString core;                       ///< file or folder
    eLanguage_t language = languageAny; ///< that the source of the core must have
    qint64 instructions = 0;            ///< the run ends after this many
    qint64 clocks = nsBatch::unbounded; ///< or when the count is reached
    nsBatch::SimInputFiles inputs;
    int hwbuild = 0;
    qint64 interruptEvery = 0;                              ///< 0: never
    std::vector<qint64> interruptAt;                        ///< numbers of instructions from 1, ascending, each once
    std::vector<std::pair<qint64, qint64>> interruptClocks; ///< clocks from and length
    bool json = false;
    bool quiet = false; ///< errors and the result alone
};

} // namespace nsNalvoProve
