#include "SimOptions.h"

#include "BatchFiles.h"
#include "BatchNumbers.h"
#include "BatchOutput.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>

namespace nsNalvoSim {

using namespace nsBatch;

namespace {

const qint64 defaultInstructions = 1000000;

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-sim", text);
}

// The parser breaks the lines of the options, but not these.
const char* const description = "Assembles a Nalvo project in memory and runs it in the simulator, without a\n"
                                "display. Nothing of the project is changed, and none of its output files are\n"
                                "written.\n"
                                "\n"
                                "The run ends when a bound or the label is reached, with a message of the\n"
                                "simulator, when a read finds no value, or with an interrupt signal. With neither\n"
                                "bound given, it ends after one million instructions. Numbers are decimal, or\n"
                                "hexadecimal with 0x in front. Labels are written NAMESPACE::LABEL.\n"
                                "\n"
                                "Files of values hold one hexadecimal byte a line; blank lines and comments\n"
                                "behind ; or # do not count. A device of the project answers before any file.\n"
                                "\n"
                                "A file of --stimulus has one change a line, in any order:\n"
                                "    CLOCK port ADDR VALUE     the port has the value from this clock on\n"
                                "    CLOCK interrupt [LENGTH]  an interrupt is requested at this clock; exact:\n"
                                "                              for so many clocks, 1 where left out\n"
                                "\n"
                                "The trace has one event a line, numbers in hexadecimal:\n"
                                "    I aaa wwwww  instruction executed: address, word\n"
                                "    R pp vv      port read: port, value\n"
                                "    W pp vv      port written: port, value\n"
                                "    S aa vv      scratchpad written: address, value\n"
                                "    INT          interrupt entered\n"
                                "    K pp vv      exact: constant written, with all eight address lines\n"
                                "    RESET        exact: the core has reset itself\n"
                                "\n"
                                "Messages go to standard error, one a line:\n"
                                "    path:line: error: text [key]\n"
                                "\n"
                                "Exit status:\n"
                                "    0    the bound or the label was reached\n"
                                "    1    not assembled\n"
                                "    2    wrong usage, or a file can not be read or written\n"
                                "    3    stopped by a message of the simulator, or by a read without a value\n"
                                "    130  ended by an interrupt signal; the files are written\n"
                                "\n"
                                "With SOURCE_DATE_EPOCH in the environment, waves have that time as their date.";

void setup(QCommandLineParser* parser)
{
    parser->setApplicationDescription(tr(description));
    parser->addOptions({
        {{"n", "instructions"}, tr("End after N instructions."), tr("N")},
        {"max-clocks", tr("End with the instruction that reaches N clock cycles."), tr("N")},
        {"start", tr("Start at LABEL, as with the start mark there."), tr("LABEL")},
        {"until",
         tr("End when the program comes to LABEL, before what stands there is executed. One instruction at least is "
            "executed."),
         tr("LABEL")},
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
         tr("Raise an interrupt before the instructions N, 2N, 3N and so on, if interrupts are enabled then."),
         tr("N")},
        {"interrupt-at", tr("The same before the Nth instruction, counted from 1."), tr("N[,N...]")},
        {"exact", tr("Simulate exactly what the core does, where that differs from the simulation of the window.")},
        {"interrupt-at-clock",
         tr("Exact: the interrupt input is up in the clocks C to C+LENGTH-1; clock 0 is the first of the first "
            "instruction. LENGTH is 1 where left out. Can be given for several requests."),
         tr("C[:LENGTH]")},
        {"trace-clocks", tr("Exact: each I line of the trace has its first clock as a fourth, decimal field.")},
        {"trace", tr("Write the trace to FILE. - is standard output."), tr("FILE")},
        {"vcd",
         tr("Write the values at all ports as waves (VCD) to FILE. - is standard output. They are kept in memory until "
            "the end: 16 bytes a value."),
         tr("FILE")},
        {"dump", tr("Write the final state as JSON to FILE. - is standard output."), tr("FILE")},
        {"v", tr("Warn at each instruction that the core would execute with another outcome.")},
        {"q", tr("Show errors alone, and no summary.")},
        {{"h", "help"}, tr("Show this help.")},
        {"version", tr("Show the version.")},
    });
    parser->addPositionalArgument("PROJECT.nalvo", tr("The project to run."), "[--] PROJECT.nalvo");
}

} // namespace

SimOptions::eParse_t SimOptions::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    setup(&parser);
    const eParse_t parsed = parseArguments(&parser, arguments);
    if (parsed != parseRun)
        return parsed;
    quiet = parser.isSet("q");
    verbose = parser.isSet("v");
    const bool isRight = readProject(parser) && readBounds(parser) && readInterrupts(parser) && readLabels(parser) &&
                         inputs.readOptions(parser) && readOutputs(parser) && checkFiles();
    return isRight ? parseRun : parseWrong;
}

bool SimOptions::readBounds(const QCommandLineParser& parser)
{
    if (!parser.isSet("instructions") && !parser.isSet("max-clocks"))
        instructions = defaultInstructions;
    qint64 build = 0;
    const bool success = readNumber(parser, "instructions", 0, unbounded, &instructions) &&
                         readNumber(parser, "max-clocks", 0, unbounded, &clocks) &&
                         readNumber(parser, "hwbuild", 0, 255, &build);
    hwbuild = int(build);
    return success;
}

bool SimOptions::readInterrupts(const QCommandLineParser& parser)
{
    if (!readNumber(parser, "interrupt-every", 1, unbounded, &interruptEvery))
        return false;
    isExact = parser.isSet("exact");
    tracesClocks = parser.isSet("trace-clocks");
    return readInterruptNumbers(parser, &interruptAt) && readInterruptClocks(parser, &interruptClocks);
}

bool SimOptions::readLabels(const QCommandLineParser& parser)
{
    start = parser.value("start");
    until = parser.value("until");
    if (parser.isSet("start") && start.isEmpty())
        return wrongUsage(tr("The name of the start label is empty."));
    if (parser.isSet("until") && until.isEmpty())
        return wrongUsage(tr("The name of the end label is empty."));
    return true;
}

bool SimOptions::readOutputs(const QCommandLineParser& parser)
{
    traceFile = parser.value("trace");
    vcdFile = parser.value("vcd");
    dumpFile = parser.value("dump");
    for (const char* name : {"trace", "vcd", "dump"}) {
        if (parser.isSet(name) && parser.value(name).isEmpty())
            return wrongUsage(tr("The name of the file is empty: --%1").arg(name));
    }
    if (int(traceFile == "-") + int(vcdFile == "-") + int(dumpFile == "-") > 1)
        return wrongUsage(tr("Only one of trace, waves and dump can go to standard output."));
    return true;
}

QStringList SimOptions::outputFiles() const
{
    QStringList files = {traceFile, vcdFile, dumpFile};
    files.removeAll(QString());
    files.removeAll("-");
    return files;
}

bool SimOptions::checkFiles() const
{
    const QStringList outputs = outputFiles();
    const QStringList inputFiles = inputs.names();
    for (int i = 0; i < outputs.size(); ++i) {
        for (int j = 0; j < i; ++j) {
            if (isSameTarget(outputs.at(j), outputs.at(i)))
                return wrongUsage(tr("Two outputs can not go to the same file: %1").arg(outputs.at(i)));
        }
        for (const QString& input : inputFiles) {
            if (isSameTarget(input, outputs.at(i)))
                return wrongUsage(tr("An output would overwrite an input: %1").arg(outputs.at(i)));
        }
    }
    return true;
}

} // namespace nsNalvoSim
