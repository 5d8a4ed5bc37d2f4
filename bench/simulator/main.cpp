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
#include "Nalvo.h"
#include "OpcodeList.h"
#include "ProcShell.h"
#include "ProcSim.h"
#include "ProcSimClock.h"
#include "ProcSimPorts.h"
#include "Release.h"

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

/// A mixed program in an endless loop: arithmetic, logic, shifts, calls, branches, scratchpad.
QStringList mixedProgram()
{
    return {"start: LOAD s0, 0", "loop: ADD s0, 1", "ADDC s1, 0",        "XOR s2, s0",    "SR0 s2",
            "WRMEM s2, 5",       "RDMEM s3, 5",     "COMP s3, 100",      "JUMP C, less",  "SUB s3, 100",
            "less: CALL proc",   "ROL s4",          "TEST s4, 1",        "JUMP NZ, loop", "OR s4, 1",
            "AND s5, s4",        "JUMP loop",       "proc: LOAD s6, s3", "SUBC s6, s1",   "RET"};
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
double batchTime(const QString& program, const QString& project, int instructions)
{
    QElapsedTimer time;
    time.start();
    if (QProcess::execute(program, {"-q", "-n", QString::number(instructions), project}) != 0)
        qFatal("the batch simulator failed");
    return double(time.nsecsElapsed()) * 1e-9;
}

double batchRate(const QString& program, const QString& project)
{
    const int instructions = 40000000;
    std::vector<double> rates;
    for (int round = 0; round < 3; ++round) {
        const double start = batchTime(program, project, 1);
        rates.push_back((instructions - 1) / (batchTime(program, project, instructions) - start));
    }
    return median(rates);
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
    QCoreApplication::setApplicationVersion(QStringLiteral(NALVO_RELEASE));
    Nalvo window(1, argv);
    window.resize(1400, 900);
    Bench bench(&window, folder.path());

    const QString project = bench.start("mixed", mixedProgram());
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
        print("batch_rate_per_second", batchRate(QString::fromLocal8Bit(argv[1]), project), 0);
    return 0;
}
