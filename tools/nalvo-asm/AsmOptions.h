#pragma once

#include "BatchMsg.h"
#include "ModAsmFe.h"

#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace nsNalvoAsm {

/// What the command line asks for.
struct AsmOptions
{
    enum eParse_t
    {
        parseRun,   ///< go on with the options
        parseEnd,   ///< help or version was shown
        parseWrong, ///< the command line is wrong, which was told
    };

    /// Reads the arguments, and shows help, version or what is wrong with them.
    eParse_t parse(const QStringList& arguments);

    QString project;
    nsModAsmFe::ModAsmFe::eAssembleEvent_t event = nsModAsmFe::ModAsmFe::eEventButton1;
    nsBatch::BatchMsgStyle style;
    QString listingFile; ///< empty: none; "-": standard output
    QString symbolsFile; ///< empty: none; "-": standard output

private:
    bool readProject(const QCommandLineParser& parser);
    bool readChoices(const QCommandLineParser& parser);
    bool readFiles(const QCommandLineParser& parser);
};

} // namespace nsNalvoAsm
