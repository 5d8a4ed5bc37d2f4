#include "ImportOptions.h"

#include "BatchOutput.h"

#include "ForeignDialect.h"
#include "RescueJob.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>

namespace nsNalvoImport {

using namespace nsBatch;
using nsImport::RescueJob;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-import", text);
}

// The parser breaks the lines of the options, but not these.
const char* const description =
    "Makes a Nalvo project of a program for another assembler, or of the image of a program.\n"
    "The originals stay as they are. The project is assembled in memory before it is written.\n"
    "\n"
    "Messages go to standard error, one a line:\n"
    "    path:line: error: text [key]\n"
    "What was done follows on standard output. With --format json, both go to standard output,\n"
    "one object a line; the last object sums up.\n"
    "\n"
    "Exit status:\n"
    "    0  the project is written, and with --reference all words are equal\n"
    "    1  something could not be converted (those lines make the assembler fail), words differ,\n"
    "       or nothing was written\n"
    "    2  wrong usage\n"
    "\n"
    "Included files are looked for beside the file that names them, beside the main source, and in the\n"
    "folders of -I. Nothing outside of these folders is read.";

void setup(QCommandLineParser* parser)
{
    parser->setApplicationDescription(tr(description));
    parser->addOptions({
        {{"d", "dialect"},
         tr("Dialect of the source: kcpsm3, kcpsm6, pblazide, mico8, or auto (default)."),
         tr("dialect"),
         "auto"},
        {{"o", "output"}, tr("Folder of the project; by default the name of the source."), tr("FOLDER")},
        {"I", tr("Look for included files in FOLDER, too, and allow to read them there. Can be repeated."),
         tr("FOLDER")},
        {"reference",
         tr("Compare the result with the image that the old tool has made: hex, mem, coe, mif, VHDL or Verilog with "
            "INIT strings, a log or a listing."),
         tr("IMAGE")},
        {"image", tr("Make the sources from an image alone. Needs --processor."), tr("IMAGE")},
        {"processor", tr("Processor of the image: pb3, pb6 or mico8."), tr("processor")},
        {{"f", "format"}, tr("Show messages as text (default) or json."), tr("format"), "text"},
        {"force", tr("Overwrite files in the folder of the project.")},
        {"q", tr("Show errors alone, and no summary.")},
        {"v", tr("Show info messages too.")},
        {{"h", "help"}, tr("Show this help.")},
        {"version", tr("Show the version.")},
    });
    parser->addPositionalArgument("SOURCE", tr("The main source of the program."), "[--] SOURCE");
}

} // namespace

ImportOptions::eParse_t ImportOptions::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    setup(&parser);
    const eParse_t parsed = parseArguments(&parser, arguments);
    if (parsed != parseRun)
        return parsed;
    return readChoices(parser) && (parser.isSet("image") ? readImage(parser) : readInput(parser)) ? parseRun
                                                                                                  : parseWrong;
}

bool ImportOptions::readChoices(const QCommandLineParser& parser)
{
    static const QHash<QString, bool> formats = {{"text", false}, {"json", true}};
    const QString formatName = parser.value("format");
    if (!formats.contains(formatName))
        return wrongUsage(tr("Unknown format: %1").arg(formatName));
    style.json = formats.value(formatName);
    style.quiet = parser.isSet("q");
    style.verbose = parser.isSet("v");
    if (style.quiet && style.verbose)
        return wrongUsage(tr("-q and -v exclude each other."));
    // The text has them in its summary.
    style.verbose = style.verbose || (style.json && !style.quiet);
    force = parser.isSet("force");
    for (const char* option : {"output", "I", "reference", "image"}) {
        if (parser.isSet(option) && parser.values(option).contains(QString()))
            return wrongUsage(tr("The name behind --%1 is empty.").arg(QLatin1String(option)));
    }
    output = parser.value("output");
    reference = parser.value("reference");
    folders = parser.values("I");
    for (const QString& folder : qAsConst(folders)) {
        if (!QFileInfo(folder).isDir())
            return wrongUsage(tr("Not a folder: %1").arg(folder));
    }
    return true;
}

bool ImportOptions::readInput(const QCommandLineParser& parser)
{
    const QString dialectName = parser.value("dialect");
    dialect = nsImport::ForeignDialect::ofKey(dialectName);
    if (dialect == nullptr && dialectName != "auto")
        return wrongUsage(tr("Unknown dialect: %1").arg(dialectName));
    if (parser.isSet("processor"))
        return wrongUsage(tr("--processor goes with --image: the dialect of a source tells its processor."));
    const QStringList sources = parser.positionalArguments();
    if (sources.size() != 1)
        return wrongUsage(sources.isEmpty() ? tr("No source given.")
                                            : tr("More than one source given: %1. Name the main one, which includes "
                                                 "the others.")
                                                  .arg(sources.join(", ")));
    source = sources.first();
    return true;
}

bool ImportOptions::readImage(const QCommandLineParser& parser)
{
    image = parser.value("image");
    for (const char* option : {"dialect", "I", "reference"}) {
        if (parser.isSet(option))
            return wrongUsage(tr("--image and --%1 exclude each other.").arg(QLatin1String(option)));
    }
    if (!parser.positionalArguments().isEmpty())
        return wrongUsage(
            tr("--image and a source exclude each other: %1").arg(parser.positionalArguments().join(", ")));
    if (!parser.isSet("processor"))
        return wrongUsage(tr("--image needs --processor."));
    const QString name = parser.value("processor");
    processor = RescueJob::processorOf(name);
    return processor != nullptr || wrongUsage(tr("Unknown processor: %1").arg(name));
}

} // namespace nsNalvoImport
