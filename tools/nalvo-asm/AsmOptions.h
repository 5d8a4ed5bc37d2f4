#pragma once

#include "AsmFeConfig.h"
#include "AsmOutputRequest.h"
#include "BatchMsg.h"
#include "BatchOptions.h"

#include <QString>
#include <QStringList>
#include <QVector>

class QCommandLineParser;

namespace nsNalvoAsm {

/// What the command line asks for.
struct AsmOptions : nsBatch::BatchOptions
{
    /// Reads the arguments, and shows help, version or what is wrong with them.
    eParse_t parse(const QStringList& arguments);

    nsModAsmFe::AsmFeConfig::eAssembleEvent_t event = nsModAsmFe::AsmFeConfig::eEventButton1;
    nsBatch::BatchMsgStyle style;
    bool allowOutside = false;         ///< outputs that a source names may lie outside of the project's folder
    bool externalPrograms = false;     ///< the project's programs are run
    QString listingFile;               ///< empty: none; "-": standard output
    QString symbolsFile;               ///< empty: none; "-": standard output
    QVector<AsmOutputRequest> outputs; ///< written beside those of the project
    QString depfile;                   ///< empty: none; "-": standard output
    QStringList depfileTargets;        ///< stand in the rule in place of the files that are written
    QString formattedFile;             ///< the source to format; empty: none; "-": standard input
    bool inPlace = false;              ///< it is written back
    QString explainedKey;              ///< the message to explain; empty: a project is assembled

private:
    bool readExplained(const QCommandLineParser& parser);
    bool readFormatted(const QCommandLineParser& parser);
    bool readChoices(const QCommandLineParser& parser);
    bool readOutputs(const QCommandLineParser& parser);
    bool readFiles(const QCommandLineParser& parser);
};

} // namespace nsNalvoAsm
