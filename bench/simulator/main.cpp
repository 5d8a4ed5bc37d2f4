// Speed of the simulator while the window handles its events, as a share of the speed of a loop that only handles
// events, and speed of the batch simulator.
//
// The whole window is shown with all docks of the simulator. The runs that are compared take turns, so that a temporary
// slowdown of the machine affects both; the result is the median of the rounds. Usage: bench_simulator
// PATH_OF_NALVO_SIM

#include "EditorWidget.h"
#include "ModAsmFe.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "NaiveProcessor.h"
#include "Nalvo.h"
#include "OpcodeList.h"
#include "ProcShell.h"
#include "ProcSim.h"
#include "ProcSimClock.h"
#include "ProcSimPorts.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <algorithm>

namespace {

const int rounds = 7;
const int roundTime = 400; ///< milliseconds

Operand reg(int index)
{
    return {Operand::reg, index};
}
Operand number(int value)
{
    return {Operand::number, value};
}
Operand label(int position)
{
    return {Operand::label, position};
}

/// A mixed program in an endless loop: arithmetic, logic, shifts, calls, branches, scratchpad.
std::vector<Instruction> mixedProgram()
{
    const int loop = 1;
    const int less = 10;
    const int proc = 17;
    return {{"LOAD", reg(0), number(0)},
            {"ADD", reg(0), number(1)}, // loop
            {"ADDC", reg(1), number(0)},
            {"XOR", reg(2), reg(0)},
            {"SR0", reg(2), {}},
            {"WRMEM", reg(2), number(5)},
            {"RDMEM", reg(3), number(5)},
            {"COMP", reg(3), number(100)},
            {"JUMP", {Operand::ifC, 0}, label(less)},
            {"SUB", reg(3), number(100)},
            {"CALL", label(proc), {}}, // less
            {"ROL", reg(4), {}},
            {"TEST", reg(4), number(1)},
            {"JUMP", {Operand::ifNZ, 0}, label(loop)},
            {"OR", reg(4), number(1)},
            {"AND", reg(5), reg(4)},
            {"JUMP", label(loop), {}},
            {"LOAD", reg(6), reg(3)}, // proc
            {"SUBC", reg(6), reg(1)},
            {"RET", {}, {}}};
}

QStringList sourceOf(const std::vector<Instruction>& program)
{
    QStringList lines;
    for (const Instruction& instruction : program)
        lines.append(QStringLiteral("L%1: ").arg(lines.size()) + instruction.text(Family::PicoBlaze3));
    return lines;
}

/// Instructions a second of the naive model of the tests.
double naiveRate(const Program& program)
{
    const int instructions = 300000;
    NaiveProcessor processor(Family::PicoBlaze3, program, Build());
    QElapsedTimer time;
    time.start();
    for (int count = 0; count < instructions; ++count)
        processor.step();
    return instructions * 1e9 / double(time.nsecsElapsed());
}

/// Ten instructions, one of which writes a port.
QStringList writingProgram()
{
    return {"loop: ADD s0, 1", "ADDC s1, 0", "XOR s2, s0", "SR0 s2",      "LOAD s3, s2",
            "ADD s3, s0",      "ROL s4",     "OR s4, s3",  "WRPRT s0, 7", "JUMP loop"};
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

class Bench
{
public:
    Bench(Nalvo* window, const QString& folder)
        : m_window(window)
        , m_folder(folder)
    {
    }

    template <class Type>
    Type* module() const
    {
        for (ModPluginIf* candidate : m_window->modules()) {
            if (Type* found = dynamic_cast<Type*>(candidate))
                return found;
        }
        return nullptr;
    }
    nsProc::ProcShell* shell() const
    {
        return dynamic_cast<nsProc::ProcShell*>(module<nsModProcessor::ModProcessor>()->currentProcessor());
    }
    nsProc::ProcSim* sim() const { return shell()->sim(); }

    /// Opens a project on the program and enables the simulator. @return path of the project
    QString start(const QString& name, QStringList lines)
    {
        // Lines for the breakpoints, which the program never reaches.
        for (int i = 0; i < 120; ++i)
            lines.append("NOP");
        write(name + ".psm", lines.join('\n') + '\n');
        const QString project =
            write(name + ".nalvo", "<project version=\"3\"><sources><srcFiles>" + name +
                                       ".psm</srcFiles></sources><ModProcessor><processor>Xilinx PicoBlaze 3"
                                       "</processor></ModProcessor></project>");
        if (!module<nsModPrj::ModPrj>()->openPrj(project))
            qFatal("can not open the project");
        auto* asmFe = module<nsModAsmFe::ModAsmFe>();
        asmFe->behaviorChkIntVector = 2;
        asmFe->assemble(nsModAsmFe::ModAsmFe::eEventNone);
        shell()->simEnableDisable();
        if (sim() == nullptr)
            qFatal("can not enable the simulator");
        QCoreApplication::processEvents();
        return project;
    }

    /// Rounds a second of a loop that only handles events.
    double bareRate() const
    {
        bool stop = false;
        QTimer::singleShot(roundTime, m_window, [&stop] { stop = true; });
        qint64 count = 0;
        QElapsedTimer time;
        time.start();
        for (; !stop; ++count)
            QCoreApplication::processEvents();
        return double(count) * 1e9 / double(time.nsecsElapsed());
    }
    /// Instructions a second of a run.
    double runRate(int milliseconds = roundTime) const
    {
        QTimer::singleShot(milliseconds, m_window, [this] { sim()->simStop(); });
        const qint64 before = sim()->clock()->clocks;
        QElapsedTimer time;
        time.start();
        shell()->simRun();
        return double(sim()->clock()->clocks - before) / 2 * 1e9 / double(time.nsecsElapsed());
    }
    void markLines(int first, int count) const
    {
        for (nsModEditor::EditorWidget* widget : module<nsModEditor::ModEditor>()->editorWidgets()) {
            for (int line = first; line < first + count; ++line)
                widget->setSimBreakpoint(line);
        }
    }

private:
    QString write(const QString& name, const QString& text) const
    {
        const QString path = m_folder + '/' + name;
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            qFatal("can not write %s", qPrintable(path));
        return path;
    }

    Nalvo* m_window;
    QString m_folder;
};

/// Seconds of a run of the batch simulator.
double batchTime(const QString& program, const QString& project, int instructions, const QString& trace, bool isExact)
{
    QStringList arguments = {"-q", "-n", QString::number(instructions)};
    if (isExact)
        arguments += "--exact";
    if (!trace.isEmpty())
        arguments += {"--trace", trace};
    QElapsedTimer time;
    time.start();
    if (QProcess::execute(program, arguments + QStringList(project)) != 0)
        qFatal("the batch simulator failed");
    return double(time.nsecsElapsed()) * 1e-9;
}

/// Instructions a second of the batch simulator, without the start of the process.
/// @param trace file for a trace; empty for none
double batchRate(const QString& program, const QString& project, int instructions, const QString& trace,
                 bool isExact = false)
{
    const double start = batchTime(program, project, 1, trace, isExact);
    return (instructions - 1) / (batchTime(program, project, instructions, trace, isExact) - start);
}

/// The figures of the batch simulator; the naive model takes turns with it.
void printBatch(const QString& program, const QString& project, const QString& traceFile,
                void (*print)(const char*, double, int))
{
    const Program mixed = inOnePage(mixedProgram());
    std::vector<double> rates;
    std::vector<double> traceRates;
    std::vector<double> ratios;
    std::vector<double> exactRatios;
    for (int round = 0; round < 5; ++round) {
        const double naive = naiveRate(mixed);
        rates.push_back(batchRate(program, project, 400000000, QString()));
        ratios.push_back(rates.back() / naive);
        exactRatios.push_back(batchRate(program, project, 400000000, QString(), true) / rates.back());
        traceRates.push_back(batchRate(program, project, 20000000, traceFile));
    }
    print("batch_rate_per_second", median(rates), 0);
    print("batch_trace_rate_per_second", median(traceRates), 0);
    print("batch_vs_naive", median(ratios), 0);
    print("exact_ratio", median(exactRatios), 2);
}

void print(const char* name, double value, int decimals)
{
    QTextStream(stdout) << name << ": " << QString::number(value, 'f', decimals) << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir folder;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path() + "/settings");
    QApplication application(argc, argv);
    QApplication::setStyle("fusion");
    Nalvo window(1, argv);
    window.resize(1400, 900);
    Bench bench(&window, folder.path());

    const QString project = bench.start("mixed", sourceOf(mixedProgram()));
    bench.runRate(200);
    std::vector<double> rates;
    std::vector<double> shares;
    std::vector<double> marked;
    // The runs without breakpoints come first, as the editor keeps the information that there was one.
    for (int round = 0; round < rounds; ++round) {
        const double bare = bench.bareRate();
        rates.push_back(bench.runRate());
        shares.push_back(rates.back() / bare);
    }
    bench.markLines(20, 100);
    for (int round = 0; round < rounds; ++round) {
        const double bare = bench.bareRate();
        marked.push_back(bench.runRate() / bare);
    }
    bench.markLines(20, 100);

    // The same loop with and without its write.
    QStringList silent = writingProgram();
    silent[8] = "LOAD s5, s0";
    std::vector<double> plainRates;
    std::vector<double> writeRates;
    for (int round = 0; round < rounds; ++round) {
        bench.start(QString("silent%1").arg(round), silent);
        bench.runRate(100);
        plainRates.push_back(bench.runRate());
        bench.start(QString("writing%1").arg(round), writingProgram());
        bench.runRate(100);
        writeRates.push_back(bench.runRate());
    }
    std::vector<double> portShares;
    for (int round = 0; round < rounds; ++round)
        portShares.push_back(writeRates[size_t(round)] / plainRates[size_t(round)]);
    // After a million writes, against a port without any.
    bench.start("long", writingProgram());
    std::vector<double> growth;
    for (int round = 0; round < rounds; ++round) {
        bench.sim()->ports()->removeIOPlugins();
        const double early = bench.runRate();
        for (int write = 0; write < 1000000; ++write)
            bench.sim()->ports()->setValue(7, QStringLiteral("7"), write & 0xFF);
        growth.push_back(early / bench.runRate());
    }

    print("rate_per_second", median(rates), 0);
    print("of_limit", median(shares), 2);
    print("with_100_breakpoints", median(marked) / median(shares), 2);
    print("with_port_writes", median(portShares), 2);
    print("write_growth", median(growth), 2);
    if (argc > 1)
        printBatch(QString::fromLocal8Bit(argv[1]), project, folder.filePath("trace"), print);
    return 0;
}
