// Time from the start of a process to its result: nalvo-asm, the window of the program, and a bare window.

#include "MonotonicClock.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

const int rounds = 61; ///< one more, the first, warms the caches of the machine

[[noreturn]] void fail(const QString& program, const QByteArray& why)
{
    std::fprintf(stderr, "bench_start: %s: %s\n", qPrintable(program), why.constData());
    std::exit(1);
}

/// What the program prints. @param ms from its start to its end
QByteArray run(const QString& program, const QStringList& arguments, double* ms)
{
    QProcess process;
    QElapsedTimer clock;
    clock.start();
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        fail(program, process.errorString().toLocal8Bit() + ": " + process.readAllStandardError());
    *ms = double(clock.nsecsElapsed()) / 1e6;
    return process.readAllStandardOutput();
}

double wholeRun(const QString& program, const QStringList& arguments)
{
    double ms = 0;
    run(program, arguments, &ms);
    return ms;
}

double firstPaint(const QString& program)
{
    double ms = 0;
    bool isNumber = false;
    const double painted = run(program, {QString::number(monotonicNow())}, &ms).trimmed().toDouble(&isNumber);
    if (!isNumber)
        fail(program, "the window was not painted");
    return painted;
}

void print(const char* name, QVector<double> values)
{
    std::sort(values.begin(), values.end());
    std::printf("%s_best: %.1f\n%s_median: %.1f\n", name, values.first(), name, values.at(values.size() / 2));
}

double best(const QVector<double>& values)
{
    return *std::min_element(values.begin(), values.end());
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QDir build(QCoreApplication::applicationDirPath());
    const QString nalvoAsm = build.filePath("nalvo-asm");
    const QString project = QStringLiteral(NALVO_SOURCE_DIR "/examples/uart_monitor/uart_monitor.nalvo");
    // All starts share the settings of one user, whose first start is not measured.
    QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        qunsetenv(variable);
    QVector<double> version;
    QVector<double> assembled;
    QVector<double> window;
    QVector<double> bare;
    QVector<double> libraries;
    // In turns, so that a busy moment of the machine hits all of them.
    for (int round = 0; round <= rounds; ++round) {
        const double ms[] = {wholeRun(nalvoAsm, {"--version"}), wholeRun(nalvoAsm, {project}),
                             firstPaint(build.filePath("bench_start_nalvo")),
                             firstPaint(build.filePath("bench_start_bare")),
                             firstPaint(build.filePath("bench_start_libraries"))};
        if (round == 0)
            continue;
        version.append(ms[0]);
        assembled.append(ms[1]);
        window.append(ms[2]);
        bare.append(ms[3]);
        libraries.append(ms[4]);
    }
    print("asm_version_ms", version);
    print("asm_project_ms", assembled);
    print("window_ms", window);
    print("bare_ms", bare);
    print("libraries_ms", libraries);
    std::printf("window_ratio: %.2f\n", best(window) / best(bare));
    return 0;
}
