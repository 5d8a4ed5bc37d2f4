#include "AsmOptions.h"

#include "BatchFiles.h"
#include "BatchOutput.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>

namespace nsNalvoAsm {

using namespace nsBatch;
using nsModAsmFe::AsmFeConfig;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-asm", text);
}

// The parser breaks the lines of the options, but not these.
const char* const description = "Assembles a Nalvo project as the program's window does, without a display.\n"
                                "The project and the settings stay as they are. External programs of the project\n"
                                "run only with --external-programs.\n"
                                "\n"
                                "Messages go to standard error, one a line:\n"
                                "    path:line: error: text [key]\n"
                                "With --format json they go to standard output, one object a line; the last\n"
                                "object sums up.\n"
                                "\n"
                                "Exit status:\n"
                                "    0  assembled, and all files are written\n"
                                "    1  not assembled, a file not written, an error reported, an external program\n"
                                "       without success, or a warning with --werror\n"
                                "    2  wrong usage, or the project can not be opened\n"
                                "\n"
                                "With SOURCE_DATE_EPOCH in the environment, {TIMESTAMP} in templates is that\n"
                                "time in UTC.";

void setup(QCommandLineParser* parser)
{
    parser->setApplicationDescription(tr(description));
    parser->addOptions({
        {{"e", "event"},
         tr("Write the output files of this event: button1 (default), button2, save, or none."),
         tr("event"),
         "button1"},
        {{"f", "format"},
         tr("Show messages as text (default) or json. Without a project: put the lines of the source FILE into "
            "columns, on standard output. - is standard input."),
         tr("format|FILE"),
         "text"},
        {"in-place", tr("With --format FILE: write the source back into its file.")},
        {{"l", "listing"}, tr("Write a listing, one line an instruction, to FILE. - is standard output."), tr("FILE")},
        {{"s", "symbols"}, tr("Write labels and #EQUs as JSON to FILE. - is standard output."), tr("FILE")},
        {{"o", "output"},
         tr("Write the instruction memory to FILE as well, whatever the project writes. KIND is one of: %1. The help "
            "has the options. {DEVICE} in FILE writes each memory. The option may be repeated.")
             .arg(AsmOutputRequest::kindNames()),
         tr("KIND[:OPTION...]=FILE")},
        {"depfile",
         tr("Write a rule for make or ninja to FILE: the files that are written, and the project, sources and "
            "templates that they depend on. - is standard output."),
         tr("FILE")},
        {"depfile-target",
         tr("With --depfile: the rule is about NAME, and not about the files that are written. The option may be "
            "repeated."),
         tr("NAME")},
        {{"W", "werror"}, tr("Count warnings as errors, but for kinds of output that no device writes.")},
        {"allow-outside",
         tr("Write output files outside of the project's folder also where a source names them, not the "
            "project.")},
        {"explain",
         tr("Show what the help says about the message KEY: what it means, what causes it, an example. KEY is what "
            "stands in brackets behind a message. No project is assembled."),
         tr("KEY")},
        {"external-programs",
         tr("Run the project's external programs of the event, in the folder of the project, with their output on "
            "standard error and an empty input. A program without success counts as an error.")},
        {"q", tr("Show errors alone, and no summary. With -W, warnings too.")},
        {"v", tr("Show info messages and groups too.")},
        {{"h", "help"}, tr("Show this help.")},
        {"version", tr("Show the version.")},
    });
    parser->addPositionalArgument("PROJECT.nalvo", tr("The project to assemble."), "[--] PROJECT.nalvo");
}

/// A name of a format beside a project is the format of messages, all else a source.
bool isFormat(const QCommandLineParser& parser)
{
    const QString value = parser.value("format");
    return parser.isSet("format") && value != "text" && value != "json" && parser.positionalArguments().isEmpty();
}

} // namespace

AsmOptions::eParse_t AsmOptions::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    setup(&parser);
    const eParse_t parsed = parseArguments(&parser, arguments);
    if (parsed != parseRun)
        return parsed;
    if (parser.isSet("explain"))
        return readExplained(parser) ? parseRun : parseWrong;
    if (isFormat(parser))
        return readFormatted(parser) ? parseRun : parseWrong;
    if (parser.isSet("in-place"))
        return wrongUsage(tr("--in-place needs --format FILE and no project.")) ? parseRun : parseWrong;
    return readProject(parser) && readChoices(parser) && readOutputs(parser) && readFiles(parser) ? parseRun
                                                                                                  : parseWrong;
}

bool AsmOptions::readFormatted(const QCommandLineParser& parser)
{
    formattedFile = parser.value("format");
    inPlace = parser.isSet("in-place");
    if (formattedFile.isEmpty())
        return wrongUsage(tr("The name of the source is empty."));
    return formattedFile == "-" && inPlace ? wrongUsage(tr("Standard input can not be written back.")) : true;
}

bool AsmOptions::readExplained(const QCommandLineParser& parser)
{
    explainedKey = parser.value("explain");
    if (explainedKey.trimmed().isEmpty())
        return wrongUsage(tr("The key of the message is empty."));
    const QStringList projects = parser.positionalArguments();
    return projects.isEmpty() ? true
                              : wrongUsage(tr("--explain takes one key and no project: %1").arg(projects.join(", ")));
}

bool AsmOptions::readChoices(const QCommandLineParser& parser)
{
    static const QHash<QString, AsmFeConfig::eAssembleEvent_t> events = {{"none", AsmFeConfig::eEventNone},
                                                                         {"button1", AsmFeConfig::eEventButton1},
                                                                         {"button2", AsmFeConfig::eEventButton2},
                                                                         {"save", AsmFeConfig::eEventSave}};
    static const QHash<QString, bool> formats = {{"text", false}, {"json", true}};
    const QString eventName = parser.value("event");
    const QString formatName = parser.value("format");
    if (!events.contains(eventName))
        return wrongUsage(tr("Unknown event: %1").arg(eventName));
    if (!formats.contains(formatName))
        return wrongUsage(tr("Unknown format: %1").arg(formatName));
    event = events.value(eventName);
    style.json = formats.value(formatName);
    allowOutside = parser.isSet("allow-outside");
    externalPrograms = parser.isSet("external-programs");
    style.werror = parser.isSet("werror");
    // A kind of output whose event is set causes this warning if no device writes it, which is not an error.
    style.harmless = QStringList("warnIODevNoFileToWrite");
    style.quiet = parser.isSet("q");
    style.verbose = parser.isSet("v");
    return style.quiet && style.verbose ? wrongUsage(tr("-q and -v exclude each other.")) : true;
}

bool AsmOptions::readOutputs(const QCommandLineParser& parser)
{
    for (const QString& text : parser.values("output")) {
        AsmOutputRequest request;
        const QString problem = request.parse(text);
        if (!problem.isEmpty())
            return wrongUsage(problem);
        outputs.append(request);
    }
    depfileTargets = parser.values("depfile-target");
    if (depfileTargets.contains(QString()))
        return wrongUsage(tr("The name of the target is empty."));
    return depfileTargets.isEmpty() || parser.isSet("depfile") ? true
                                                               : wrongUsage(tr("--depfile-target needs --depfile."));
}

bool AsmOptions::readFiles(const QCommandLineParser& parser)
{
    listingFile = parser.value("listing");
    symbolsFile = parser.value("symbols");
    depfile = parser.value("depfile");
    if (parser.isSet("listing") && listingFile.isEmpty())
        return wrongUsage(tr("The name of the listing file is empty."));
    if (parser.isSet("symbols") && symbolsFile.isEmpty())
        return wrongUsage(tr("The name of the symbols file is empty."));
    if (parser.isSet("depfile") && depfile.isEmpty())
        return wrongUsage(tr("The name of the dependency file is empty."));
    QStringList files;
    int atStdout = int(style.json);
    for (const QString& file : {listingFile, symbolsFile, depfile}) {
        if (file == "-")
            ++atStdout;
        else if (!file.isEmpty())
            files.append(file);
    }
    if (atStdout > 1)
        return wrongUsage(
            tr("Only one of JSON messages, listing, symbols and dependencies can go to standard output."));
    for (int i = 0; i < files.size(); ++i) {
        const auto isSame = [&](const QString& other) { return isSameTarget(files[i], other); };
        if (std::any_of(files.cbegin() + i + 1, files.cend(), isSame))
            return wrongUsage(tr("Two outputs can not go to the same file: %1").arg(files[i]));
    }
    return true;
}

} // namespace nsNalvoAsm
