#pragma once

#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace nsBatch {

/// What the command lines of all batch programs have in common: a project, help and version.
struct BatchOptions
{
    enum eParse_t {
        parseRun,   ///< go on with the options
        parseEnd,   ///< help or version was shown
        parseWrong, ///< the command line is wrong, which was reported
    };

    QString project;

protected:
    /// Reads the arguments into the parser, and shows help, version or what is wrong with them.
    /// @return parseRun: the caller goes on with what the parser has
    static eParse_t parseArguments(QCommandLineParser* parser, const QStringList& arguments);
    /// @return false, after a reported error, unless there is exactly one project
    bool readProject(const QCommandLineParser& parser);
};

} // namespace nsBatch
