#include "ProveOptions.h"

#include "BatchOutput.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace nsNalvoProve {

using namespace nsBatch;

namespace {

const qint64 defaultInstructions = 10000;
/// What a run keeps of each instruction has to fit into memory.
const qint64 maxInstructions = 10000000;

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-prove", text);
}

// The parser breaks the lines of the options, but not these.
const char* const description = "Runs a Nalvo project on the source of the core itself, in an HDL simulator, and in\n"
                                "the simulation exactly as the core, and compares the two event by event: fetches,\n"
                                "reads, writes, interrupt entries, resets, all with their clocks; at the end\n"
                                "registers and scratchpad, and the flags where the source shows them.\n"
                                "\n"
                                "The source of the core is yours; it is not a part of this program. --core names\n"
                                "its file, or a folder in which the file is found with all that it uses:\n"
                                "    PicoBlaze 3  module or entity kcpsm3\n"
                                "    PicoBlaze 6  module or entity kcpsm6\n"
                                "    Mico8        module or entity lm8\n"
                                "Verilog runs under Icarus Verilog (iverilog, vvp), VHDL under ghdl: they are looked\n"
                                "for in PATH. What is in the file is executed as it stands, and HDL can read and\n"
                                "write files: give it only files that you trust.\n"
                                "\n"
                                "The simulation runs first. The values that it reads, from devices of the project\n"
                                "or from files, and the interrupt requests are then given to the core. Files of\n"
                                "values hold one hexadecimal byte a line; blank lines and comments behind ; or #\n"
                                "do not count. Without -n and --max-clocks, 10,000 instructions are executed. The\n"
                                "run ends earlier where a file of values is used up. Numbers are decimal, or\n"
                                "hexadecimal with 0x in front.\n"
                                "\n"
                                "Exit status:\n"
                                "    0    all equal\n"
                                "    1    different: the first difference is shown\n"
                                "    2    nothing proved: wrong usage, not assembled, the simulation stopped, the\n"
                                "         core or a tool is missing, or the core is not what it should be\n"
                                "    130  ended by a signal";

void setup(QCommandLineParser* parser)
{
    parser->setApplicationDescription(tr(description));
    parser->addOptions({
        {"core", tr("The source of the core: a file, or a folder that has it."), tr("FILE|FOLDER")},
        {"language", tr("Take the source in this language only: verilog or vhdl."), tr("LANGUAGE")},
        {{"n", "instructions"}, tr("End after N instructions."), tr("N")},
        {"max-clocks", tr("End with the instruction that reaches N clock cycles."), tr("N")},
        {"reads",
         tr("Values for all reads of ports that have no source of their own, in the order of the reads. - is standard "
            "input."),
         tr("FILE")},
        {"port", tr("Values for the reads of one port. Can be given for several ports."), tr("ADDR=FILE")},
        {"stimulus",
         tr("Values of ports and interrupt requests by the clock, one a line: C port ADDR VALUE, or C interrupt "
            "[LENGTH]. - is standard input."),
         tr("FILE")},
        {"hwbuild", tr("What HWBUILD reads: 0 (default) to 255."), tr("V")},
        {"interrupt-every",
         tr("The interrupt input is up for one clock at the beginning of the instructions N, 2N, 3N and so on."),
         tr("N")},
        {"interrupt-at", tr("The same for the Nth instruction, counted from 1."), tr("N[,N...]")},
        {"interrupt-at-clock",
         tr("The interrupt input is up in the clocks C to C+LENGTH-1; clock 0 is the first of the first instruction. "
            "LENGTH is 1 where left out. Can be given for several requests."),
         tr("C[:LENGTH]")},
        {{"f", "format"}, tr("Show messages and the result as text (default) or json."), tr("format"), "text"},
        {"q", tr("Show errors and the result alone.")},
        {{"h", "help"}, tr("Show this help.")},
        {"version", tr("Show the version.")},
    });
    parser->addPositionalArgument("PROJECT.nalvo", tr("The project to run."), "[--] PROJECT.nalvo");
}

bool readFormat(const QCommandLineParser& parser, ProveOptions* options)
{
    const QString format = parser.value("format");
    if (format != "text" && format != "json")
        return wrongUsage(tr("Unknown format: %1").arg(format));
    options->json = format == "json";
    options->quiet = parser.isSet("q");
    return true;
}

bool readCore(const QCommandLineParser& parser, ProveOptions* options)
{
    options->core = parser.value("core");
    if (options->core.isEmpty())
        return wrongUsage(tr("No source of the core given: --core FILE or FOLDER."));
    const QString language = parser.value("language").toLower();
    if (parser.isSet("language") && language != "verilog" && language != "vhdl")
        return wrongUsage(tr("Unknown language: %1").arg(parser.value("language")));
    if (parser.isSet("language"))
        options->language = language == "vhdl" ? ProveOptions::languageVhdl : ProveOptions::languageVerilog;
    return true;
}

bool readBounds(const QCommandLineParser& parser, ProveOptions* options)
{
    const bool isBound = parser.isSet("instructions") || !parser.isSet("max-clocks");
    options->instructions = isBound ? defaultInstructions : maxInstructions;
    qint64 build = 0;
    const bool success = readNumber(parser, "instructions", 1, maxInstructions, &options->instructions) &&
                         readNumber(parser, "max-clocks", 1, maxInstructions * 2, &options->clocks) &&
                         readNumber(parser, "hwbuild", 0, 255, &build);
    options->hwbuild = int(build);
    return success;
}

} // namespace

ProveOptions::eParse_t ProveOptions::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    setup(&parser);
    const eParse_t parsed = parseArguments(&parser, arguments);
    if (parsed != parseRun)
        return parsed;
    const bool isRight = readProject(parser) && readCore(parser, this) && readFormat(parser, this) &&
                         readBounds(parser, this) && inputs.readOptions(parser) &&
                         readNumber(parser, "interrupt-every", 1, unbounded, &interruptEvery) &&
                         readInterruptNumbers(parser, &interruptAt) && readInterruptClocks(parser, &interruptClocks);
    return isRight ? parseRun : parseWrong;
}

} // namespace nsNalvoProve
