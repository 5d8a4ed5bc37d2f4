#pragma once

#include "BatchMsg.h"
#include "BatchOptions.h"

#include <QStringList>

class QCommandLineParser;

namespace nsImport {
struct ForeignDialect;
}
namespace nsProc {
struct ProcTable;
}

namespace nsNalvoImport {

/// What the command line asks for.
struct ImportOptions : nsBatch::BatchOptions
{
    /// Reads the arguments, and shows help, version or what is wrong with them.
    eParse_t parse(const QStringList& arguments);

    nsBatch::BatchMsgStyle style;
    QString source;                                    ///< main source; empty if an image is read
    const nsImport::ForeignDialect* dialect = nullptr; ///< null: found by the words of the source
    QString output;                                    ///< folder of the project
    QStringList folders;                               ///< of included files
    QString reference;                                 ///< image of the old tool; empty: none
    bool force = false;                                ///< files of the output folder are overwritten
    QString image;                                     ///< image to make sources from; empty: none
    const nsProc::ProcTable* processor = nullptr;      ///< of the image

private:
    bool readChoices(const QCommandLineParser& parser);
    bool readInput(const QCommandLineParser& parser);
    bool readImage(const QCommandLineParser& parser);
};

} // namespace nsNalvoImport
