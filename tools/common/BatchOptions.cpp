#include "BatchOptions.h"

#include "BatchOutput.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace nsBatch {

BatchOptions::eParse_t BatchOptions::parseArguments(QCommandLineParser* parser, const QStringList& arguments)
{
    if (!parser->parse(arguments)) {
        wrongUsage(parser->errorText());
        return parseWrong;
    }
    if (parser->isSet("help")) {
        print(stdout, parser->helpText().toLocal8Bit());
        return parseEnd;
    }
    if (parser->isSet("version")) {
        const QString version = arguments.value(0) + ' ' + QCoreApplication::applicationVersion();
        printLine(stdout, version.toLocal8Bit());
        return parseEnd;
    }
    return parseRun;
}

bool BatchOptions::readProject(const QCommandLineParser& parser)
{
    const QStringList projects = parser.positionalArguments();
    if (projects.size() == 1) {
        project = projects.first();
        return true;
    }
    return wrongUsage(
        projects.isEmpty()
            ? QCoreApplication::translate("nsBatch", "No project given.")
            : QCoreApplication::translate("nsBatch", "More than one project given: %1").arg(projects.join(", ")));
}

} // namespace nsBatch
