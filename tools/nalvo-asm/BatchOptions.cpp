#include "BatchOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace nsNalvoAsm {

using nsModAsmFe::ModAsmFe;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-asm", text);
}

void setup(QCommandLineParser* parser)
{
    parser->setApplicationDescription(
        tr("Assembles a Nalvo project as the program's window does, without a display.\n\n"
           "Messages go to standard error as path:line: error: text [key]; with --format json they go to standard output, one "
           "object a line, and a last object sums up.\n\n"
           "Exit status: 0 assembled and all files written; 1 not, or an error was reported, or a warning under --werror; "
           "2 wrong usage, or the project cannot be opened."));
    parser->addOptions({
        {{"e", "event"},
         tr("Which output files to write: those of button1 (default), button2, save, or none."),
         tr("event"),
         "button1"},
        {{"f", "format"}, tr("How to show messages: text (default) or json."), tr("format"), "text"},
        {{"l", "listing"}, tr("Write a listing, one line an instruction. - is standard output."), tr("FILE")},
        {{"s", "symbols"}, tr("Write labels and constants as JSON. - is standard output."), tr("FILE")},
        {{"W", "werror"}, tr("Treat warnings as errors.")},
        {"q", tr("Show errors alone, and no summary.")},
        {"v", tr("Show info messages and groups too.")},
        {{"h", "help"}, tr("Show this help.")},
        {"version", tr("Show the version.")},
    });
    parser->addPositionalArgument("PROJECT.nalvo", tr("The project to assemble."));
}

} // namespace

bool BatchOptions::wrongUsage(const QString& text)
{
    std::fprintf(stderr, "nalvo-asm: %s\n%s\n", text.toLocal8Bit().constData(),
                 tr("Try nalvo-asm --help.").toLocal8Bit().constData());
    return false;
}

BatchOptions::eParse_t BatchOptions::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    setup(&parser);
    if (!parser.parse(arguments)) {
        wrongUsage(parser.errorText());
        return parseWrong;
    }
    if (parser.isSet("help")) {
        std::fputs(parser.helpText().toLocal8Bit().constData(), stdout);
        return parseEnd;
    }
    if (parser.isSet("version")) {
        std::printf("nalvo-asm %s\n", QCoreApplication::applicationVersion().toLocal8Bit().constData());
        return parseEnd;
    }
    const QStringList projects = parser.positionalArguments();
    if (projects.size() != 1) {
        wrongUsage(projects.isEmpty() ? tr("No project given.") : tr("More than one project given."));
        return parseWrong;
    }
    static const QHash<QString, ModAsmFe::eAssembleEvent_t> events = {{"none", ModAsmFe::eEventNone},
                                                                      {"button1", ModAsmFe::eEventButton1},
                                                                      {"button2", ModAsmFe::eEventButton2},
                                                                      {"save", ModAsmFe::eEventSave}};
    static const QHash<QString, eFormat_t> formats = {{"text", formatText}, {"json", formatJson}};
    if (!events.contains(parser.value("event"))) {
        wrongUsage(tr("Unknown event: %1").arg(parser.value("event")));
        return parseWrong;
    }
    if (!formats.contains(parser.value("format"))) {
        wrongUsage(tr("Unknown format: %1").arg(parser.value("format")));
        return parseWrong;
    }
    project = projects.first();
    event = events.value(parser.value("event"));
    format = formats.value(parser.value("format"));
    listingFile = parser.value("listing");
    symbolsFile = parser.value("symbols");
    werror = parser.isSet("werror");
    quiet = parser.isSet("q");
    verbose = parser.isSet("v");
    if (parser.isSet("listing") && listingFile.isEmpty()) {
        wrongUsage(tr("The name of the listing file is empty."));
        return parseWrong;
    }
    if (parser.isSet("symbols") && symbolsFile.isEmpty()) {
        wrongUsage(tr("The name of the symbols file is empty."));
        return parseWrong;
    }
    return check() ? parseRun : parseWrong;
}

bool BatchOptions::check()
{
    if (quiet && verbose)
        return wrongUsage(tr("-q and -v exclude each other."));
    const int atStdout = int(listingFile == "-") + int(symbolsFile == "-") + int(format == formatJson);
    if (atStdout > 1)
        return wrongUsage(tr("Only one of messages as JSON, listing and symbols can go to standard output."));
    return true;
}

} // namespace nsNalvoAsm
