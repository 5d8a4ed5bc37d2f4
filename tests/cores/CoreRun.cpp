#include "CoreRun.h"

#include "ExactMico8.h"
#include "ExactPicoBlaze3.h"
#include "ExactPicoBlaze6.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

namespace {

const QString folder = QStringLiteral(NALVO_CORES_DIR);

bool write(const QString& name, const QByteArray& text)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

template <class Values>
QByteArray hexLines(const Values& values, int digits)
{
    QByteArray text;
    for (const auto& value : values)
        text += QByteArray::number(uint(value), 16).rightJustified(digits, '0') + '\n';
    return text;
}

QByteArray pulseLines(const std::vector<Pulse>& pulses)
{
    QByteArray text;
    for (const Pulse& pulse : pulses)
        text += QByteArray::number(pulse.clock) + ' ' + QByteArray::number(pulse.length) + '\n';
    return text;
}

std::pair<int, QString> finish(const QString& program, const QStringList& args, const QString& workDir)
{
    QProcess process;
    process.setWorkingDirectory(workDir);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, args);
    if (!process.waitForFinished(-1))
        return {-1, process.errorString()};
    const QString output = QString::fromLocal8Bit(process.readAll());
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, output};
}

} // namespace

const char* nameOf(Core core)
{
    static const char* const names[] = {"kcpsm3", "kcpsm6", "lm8"};
    return names[int(core)];
}

const char* nameOf(Language language)
{
    return language == Language::Verilog ? "Verilog" : "VHDL";
}

int memorySize(Core core)
{
    return core == Core::PicoBlaze3 ? 1024 : 4096;
}

std::unique_ptr<ExactModel> makeModel(Core core, const CoreBuild& build, const std::vector<quint32>& program,
                                      int waitStates)
{
    if (core == Core::PicoBlaze3)
        return std::make_unique<ExactPicoBlaze3>(program);
    if (core == Core::PicoBlaze6)
        return std::make_unique<ExactPicoBlaze6>(
            program, ExactPicoBlaze6::Build{build.scratchpadSize, build.vector, build.hwBuild, memorySize(core)});
    return std::make_unique<ExactMico8>(program, ExactMico8::Build{build.registers, build.scratchpadSize,
                                                                   build.addressBits, waitStates, memorySize(core)});
}

ModelRun runModel(Core core, const CoreBuild& build, const Stimulus& stimulus)
{
    ModelRun run;
    run.model = makeModel(core, build, stimulus.program, stimulus.waitStates);
    std::size_t reads = 0;
    run.model->setRead([&](int) { return reads < stimulus.reads.size() ? stimulus.reads[reads++] : quint8(0); });
    std::size_t next = 0;
    run.model->setInterrupt([&](qint64 clock) {
        const std::vector<Pulse>& pulses = stimulus.interrupts;
        while (next < pulses.size() && pulses[next].clock + pulses[next].length <= clock)
            ++next;
        return next < pulses.size() && pulses[next].clock <= clock;
    });
    ExactEvents events;
    std::size_t resets = 0;
    while (run.model->clock() < stimulus.clocks) {
        if (resets < stimulus.resets.size() && stimulus.resets[resets].clock <= run.model->clock()) {
            const Pulse& pulse = stimulus.resets[resets++];
            events.push_back({ExactEvent::Reset, 0, 0, 0, pulse.clock});
            run.model->reset(pulse.clock + pulse.length + 1);
        } else {
            run.model->step(&events);
        }
    }
    for (const ExactEvent& event : events) {
        if (event.clock < stimulus.clocks)
            run.lines += QString::fromStdString(event.text());
    }
    run.model->setRead({});
    run.model->setInterrupt({});
    return run;
}

HdlCore::HdlCore(Core core, Language language, const CoreBuild& build, const QString& source)
    : m_core(core)
    , m_language(language)
    , m_build(build)
{
    const QString name = nameOf(core);
    const QString bench = folder + "/../../tools/nalvo-prove/hdl/" + name + "_bench";
    const QString path = source.isEmpty() ? sourceOf(core, language) : source;
    m_dir.setAutoRemove(!qEnvironmentVariableIsSet("NALVO_KEEP_CORES"));
    if (language == Language::Vhdl) {
        call("ghdl", {"-a", "--std=93", folder + "/../../tools/nalvo-prove/hdl/bench_stimulus.vhd"}) &&
            call("ghdl", {"-a", "--std=93", path}) && call("ghdl", {"-a", "--std=93", bench + ".vhd"});
        return;
    }
    QStringList args = {"-g2001",        "-Wall", "-Wno-timescale", "-I", folder + "/../../tools/nalvo-prove/hdl", "-s",
                        name + "_bench", "-o",    "bench.vvp"};
    if (core == Core::PicoBlaze6)
        args += {QString("-P%1_bench.hwbuild=%2").arg(name).arg(build.hwBuild),
                 QString("-P%1_bench.vector=%2").arg(name).arg(build.vector)};
    if (core != Core::PicoBlaze3)
        args += QString("-P%1_bench.scratchpad_size=%2").arg(name).arg(build.scratchpadSize);
    if (core == Core::Mico8)
        args += {QString("-P%1_bench.registers=%2").arg(name).arg(build.registers),
                 QString("-P%1_bench.address_bits=%2").arg(name).arg(build.addressBits)};
    call("iverilog", args + QStringList{path, bench + ".v"});
}

bool HdlCore::isToolThere(Language language)
{
    return !QStandardPaths::findExecutable(toolOf(language)).isEmpty();
}

QString HdlCore::toolOf(Language language)
{
    return language == Language::Verilog ? "iverilog" : "ghdl";
}

QString HdlCore::sourceOf(Core core, Language language)
{
    return folder + '/' + nameOf(core) + (language == Language::Verilog ? ".v" : ".vhd");
}

bool HdlCore::call(const QString& program, const QStringList& args)
{
    const auto [code, output] = finish(program, args, m_dir.path());
    // A warning is an error, too: the models are meant for any simulator.
    if (code == 0 && output.isEmpty())
        return true;
    m_error = program + ' ' + args.join(' ') + '\n' + output;
    return false;
}

QStringList HdlCore::stimulusArgs(const Stimulus& stimulus) const
{
    const QString sign = m_language == Language::Verilog ? "+" : "-g";
    QStringList args = {sign + "clocks=" + QString::number(stimulus.clocks), sign + "start=1"};
    const auto add = [&](const QString& name, const QByteArray& text) {
        if (text.isEmpty())
            return;
        write(file(name + ".txt"), text);
        args += sign + name + '=' + file(name + ".txt");
    };
    add("program", hexLines(stimulus.program, 5));
    add("reads", hexLines(stimulus.reads, 2));
    add("pulses", pulseLines(stimulus.interrupts));
    add("resets", pulseLines(stimulus.resets));
    if (m_core == Core::Mico8)
        args += sign + "waits=" + QString::number(stimulus.waitStates);
    return args;
}

QStringList HdlCore::run(const Stimulus& stimulus) const
{
    if (!isCompiled())
        return {"FAILED " + m_error};
    QStringList args = stimulusArgs(stimulus);
    QString program = "vvp";
    if (m_language == Language::Verilog) {
        args = QStringList{"-n", file("bench.vvp")} + args;
    } else {
        program = "ghdl";
        if (m_core == Core::PicoBlaze6)
            args += {QString("-ghwbuild=%1").arg(m_build.hwBuild), QString("-gvector=%1").arg(m_build.vector)};
        if (m_core != Core::PicoBlaze3)
            args += QString("-gscratchpad_size=%1").arg(m_build.scratchpadSize);
        if (m_core == Core::Mico8)
            args += {QString("-gregisters=%1").arg(m_build.registers),
                     QString("-gaddress_bits=%1").arg(m_build.addressBits)};
        args = QStringList{"-r", "--std=93", QString("%1_bench").arg(nameOf(m_core))} + args;
    }
    const auto [code, output] = finish(program, args, m_dir.path());
    const QStringList lines = output.split('\n', Qt::SkipEmptyParts);
    return code == 0 ? lines : QStringList{"FAILED " + output};
}

std::string difference(const QString& nameOfFirst, const QStringList& first, const QString& nameOfSecond,
                       const QStringList& second)
{
    if (first == second)
        return {};
    int at = 0;
    while (at < first.size() && at < second.size() && first[at] == second[at])
        ++at;
    return QString("after\n    %1\n%2: %3\n%4: %5")
        .arg(first.mid(qMax(0, at - 8), qMin(at, 8)).join("\n    "), nameOfFirst, first.value(at, "nothing"),
             nameOfSecond, second.value(at, "nothing"))
        .toStdString();
}
