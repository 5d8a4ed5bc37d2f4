#include "CoreRun.h"

#include "BatchOutput.h"
#include "ChildProcess.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

namespace nsNalvoProve {

using nsBatch::shownPath;

namespace {

const int compileSeconds = 120;       ///< of processor time
const int runSeconds = 60;            ///< the same, whatever the run does
const qint64 clocksPerSecond = 2000;  ///< a run that is slower than that does not get on
const int mostLinesShown = 20;        ///< of what a tool has to say
const int mostForeignLines = 1000000; ///< that a core may print

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-prove", text);
}

QByteArray hexLines(const std::vector<int>& values)
{
    QByteArray text;
    for (const int value : values)
        text += QByteArray::number(value, 16) + '\n';
    return text;
}

/// A hexadecimal number of an event; one with unknown bits is none that a simulation has.
qint64 hexNumber(const QByteArray& text)
{
    bool ok = false;
    const uint number = text.toUInt(&ok, 16);
    return ok ? qint64(number) : -2;
}

/// @return false if the line is no event
bool toEvent(const QList<QByteArray>& words, ProveEvent* event)
{
    static const QList<QByteArray> names = {"I", "R", "W", "K", "INT", "RESET"};
    const int kind = names.indexOf(words.first());
    if (kind < 0)
        return false;
    event->kind = ProveEvent::eKind_t(kind);
    const bool isAccess = event->kind == ProveEvent::eRead || event->kind == ProveEvent::eWrite ||
                          event->kind == ProveEvent::eConstantWrite;
    if (words.size() != (isAccess ? 4 : 3))
        return false;
    if (isAccess || event->kind == ProveEvent::eFetch)
        event->address = hexNumber(words[1]);
    event->value = isAccess ? int(hexNumber(words[2])) : 0;
    bool ok = false;
    event->clock = words.last().toLongLong(&ok);
    return ok;
}

// ghdl shows the flags in waves, with a line for each moment.
const char* const wavesName = "flags.vcd";
const char* const wantedName = "flags.opt";

int bitOf(const QByteArray& text)
{
    return text == "1" ? 1 : text == "0" ? 0 : -1;
}

} // namespace

CoreRun::CoreRun(const CoreKind& kind, const CoreSource& source, const nsProc::ProcCoreConfig& config, int hwbuild)
    : m_kind(kind)
    , m_source(source)
    , m_config(config)
    , m_hwbuild(hwbuild)
    , m_primitives(kind, source)
{
}

QString CoreRun::toolName() const
{
    return m_source.isVhdl() ? QStringLiteral("ghdl") : QStringLiteral("Icarus Verilog");
}

CoreRun::eEnd_t CoreRun::fail(const QString& text)
{
    m_failure = text;
    return endFailed;
}

bool CoreRun::write(const QString& name, const QByteArray& text)
{
    QFile file(m_folder.filePath(name));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
    if (!isWritten)
        m_failure = tr("Can not write %1: %2").arg(file.fileName(), file.errorString());
    return isWritten;
}

/// The tools get names without blanks and quotes, whatever the user's files are called.
bool CoreRun::copySources()
{
    m_copies.clear();
    for (const QString& name : m_source.files()) {
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly)) {
            m_failure = tr("Can not read %1: %2").arg(shownPath(name), file.errorString());
            return false;
        }
        m_copies.append(QString("core%1.%2").arg(m_copies.size()).arg(m_source.isVhdl() ? "vhd" : "v"));
        if (!write(m_copies.last(), file.readAll()))
            return false;
    }
    return true;
}

bool CoreRun::copyBench()
{
    const QString bench = QString("%1_bench").arg(m_kind.name);
    const QStringList names = m_source.isVhdl() ? QStringList{"bench_stimulus.vhd", bench + ".vhd"}
                                                : QStringList{"stimulus.vh", bench + ".v"};
    return std::all_of(names.cbegin(), names.cend(),
                       [&](const QString& name) {
                           QFile file(":/prove/" + name);
                           if (!file.open(QIODevice::ReadOnly))
                               return false;
                           QByteArray text = file.readAll();
                           if (!m_source.adapter().isEmpty())
                               text.replace("    lm8 #(", "    lm8_as_known #(");
                           return write(name, text);
                       }) &&
           write("adapter.v", m_source.adapter()) && write(modelsName(), m_primitives.text());
}

CoreRun::eEnd_t CoreRun::call(const QString& program, const QStringList& arguments, bool* isGood)
{
    m_said.clear();
    m_missing.clear();
    int lines = 0;
    ChildProcess process;
    const ChildProcess::eEnd_t end =
        process.run(program, arguments, m_folder.path(), compileSeconds, [&](const QByteArray& line) {
            noteMissing(line);
            if (++lines <= mostLinesShown)
                m_said += "\n    " + withNames(QString::fromLocal8Bit(line));
            return true;
        });
    if (lines > mostLinesShown)
        m_said += "\n    " + tr("and %1 lines more").arg(lines - mostLinesShown);
    *isGood = end == ChildProcess::endExit && process.exitStatus() == 0;
    if (end == ChildProcess::endStopped)
        return endStopped;
    if (end == ChildProcess::endNotStarted)
        return fail(tr("Can not start %1: %2").arg(program, process.failure()));
    if (end == ChildProcess::endTime)
        return fail(tr("%1 has taken %2 seconds of processor time to compile the core")
                        .arg(program, QString::number(compileSeconds)));
    if (end == ChildProcess::endDied)
        return fail(tr("%1 has died while it compiled the core: %2").arg(program, process.failure()));
    return endDone;
}

/// What a tool says of a part of the core that is nowhere.
void CoreRun::noteMissing(const QByteArray& line)
{
    static const QRegularExpression patterns[] = {QRegularExpression(R"x(Unknown module type: (\w+))x"),
                                                  QRegularExpression(R"x(component "(\w+)" is not bound)x"),
                                                  QRegularExpression(R"x(unit "(\w+)" not found in library)x"),
                                                  QRegularExpression(R"x(no declaration for "(\w+)")x")};
    for (const QRegularExpression& pattern : patterns) {
        const QString name = pattern.match(QString::fromLatin1(line)).captured(1);
        const bool isPart = &pattern != &patterns[3] || m_source.instances().contains(name.toLower());
        if (!name.isEmpty() && isPart && !m_missing.contains(name))
            m_missing.append(name);
    }
}

/// @return a line, or an empty text
QString CoreRun::whatIsMissing() const
{
    return m_missing.isEmpty()
               ? QString()
               : tr("The core uses what is neither in its files nor among the models of nalvo-prove: %1")
                         .arg(m_missing.join(", ")) +
                     '\n';
}

CoreRun::eEnd_t CoreRun::compileVerilog(bool showsFlags, bool* isCompiled)
{
    const QString bench = QString("%1_bench").arg(m_kind.name);
    QStringList arguments = {"-g2005", "-I", ".", "-s", bench, "-o", "bench.vvp"};
    for (const QString& name : m_source.files()) {
        const QString folder = QFileInfo(name).path();
        if (!arguments.contains(folder))
            arguments += {"-I", folder};
    }
    const auto set = [&](const char* name, int value) {
        arguments.append(QString("-P%1.%2=%3").arg(bench, name).arg(value));
    };
    set("words", m_config.pageSize);
    set("pages", m_config.pageCount);
    if (m_kind.core == CoreKind::corePicoBlaze6) {
        set("hwbuild", m_hwbuild);
        set("vector", m_config.intVectorAddr);
    }
    if (m_kind.core != CoreKind::corePicoBlaze3)
        set("scratchpad_size", m_config.scrpdSize);
    if (m_kind.core == CoreKind::coreMico8) {
        set("registers", m_config.regCount);
        set("address_bits", m_config.addressBits);
    }
    const QString inside = m_source.adapter().isEmpty() ? "" : "part.";
    if (showsFlags)
        arguments += {"-DNALVO_FLAGS", "-DNALVO_CARRY=" + inside + m_source.carryName(),
                      "-DNALVO_ZERO=" + inside + m_source.zeroName()};
    arguments += m_copies;
    arguments.append(bench + ".v");
    arguments.append("adapter.v");
    if (m_primitives.isNeeded())
        arguments.append(modelsName());
    return call("iverilog", arguments, isCompiled);
}

CoreRun::eEnd_t CoreRun::compileVhdl(const QString& standard, bool* isCompiled)
{
    const QString bench = QString("%1_bench").arg(m_kind.name);
    m_standard = "--std=" + standard;
    const QStringList common = {m_standard, "-fsynopsys", "-fexplicit", "--syn-binding", "-P."};
    *isCompiled = true;
    eEnd_t end = endDone;
    for (const QString& library : m_primitives.libraries()) {
        if (end == endDone && *isCompiled)
            end = call("ghdl", QStringList{"-a"} + common + QStringList{"--work=" + library, modelsName()}, isCompiled);
    }
    if (end == endDone && *isCompiled)
        end = call("ghdl", QStringList{"-i"} + common + m_copies + QStringList{"bench_stimulus.vhd", bench + ".vhd"},
                   isCompiled);
    if (end == endDone && *isCompiled)
        end = call("ghdl", QStringList{"-m"} + common + QStringList{bench}, isCompiled);
    // ghdl runs a core with holes in it.
    *isCompiled = *isCompiled && !m_said.contains(QLatin1String(" is not bound"));
    return end;
}

CoreRun::eEnd_t CoreRun::prepare()
{
    const QStringList tools = m_source.isVhdl() ? QStringList{"ghdl"} : QStringList{"iverilog", "vvp"};
    for (const QString& tool : tools) {
        if (QStandardPaths::findExecutable(tool).isEmpty())
            return fail(tr("%1 is not installed: a core in %2 runs under %3")
                            .arg(tool, m_source.isVhdl() ? "VHDL" : "Verilog", toolName()));
    }
    if (!m_folder.isValid())
        return fail(tr("Can not make a temporary folder: %1").arg(m_folder.errorString()));
    if (!copySources() || !copyBench())
        return endFailed;
    if (m_source.isVhdl()) {
        const eEnd_t end = make("93", false);
        return end == endFailed ? make("08", false) : end;
    }
    // First with the flags, whose names in the core may mean something else.
    const eEnd_t end = m_source.carryName().isEmpty() ? endFailed : make(QString(), true);
    return end == endFailed ? make(QString(), false) : end;
}

/// Compiles in one way.
CoreRun::eEnd_t CoreRun::make(const QString& standard, bool showsFlags)
{
    bool isCompiled = false;
    const eEnd_t end = m_source.isVhdl() ? compileVhdl(standard, &isCompiled) : compileVerilog(showsFlags, &isCompiled);
    if (end != endDone)
        return end;
    return isCompiled
               ? findStart()
               : fail(whatIsMissing() +
                      tr("%1 does not compile %2:").arg(toolName(), shownPath(m_source.files().first())) + m_said);
}

QString CoreRun::option(const QString& name, const QString& value) const
{
    return (m_source.isVhdl() ? "-g" : "+") + name + '=' + value;
}

CoreRun::eEnd_t CoreRun::simulate(const QStringList& options, qint64 clocks,
                                  const std::function<bool(const QByteArray&)>& takeLine)
{
    QString program = "vvp";
    QStringList arguments = {"-n", "bench.vvp"};
    if (m_source.isVhdl()) {
        program = "ghdl";
        arguments = QStringList{"-r",
                                m_standard,
                                "-fsynopsys",
                                "-fexplicit",
                                "--syn-binding",
                                "-P.",
                                QString("%1_bench").arg(m_kind.name),
                                option("words", m_config.pageSize),
                                option("pages", m_config.pageCount)};
        if (m_kind.core == CoreKind::corePicoBlaze6)
            arguments += {option("hwbuild", m_hwbuild), option("vector", m_config.intVectorAddr)};
        if (m_kind.core != CoreKind::corePicoBlaze3)
            arguments += option("scratchpad_size", m_config.scrpdSize);
        if (m_kind.core == CoreKind::coreMico8)
            arguments += {option("registers", m_config.regCount), option("address_bits", m_config.addressBits)};
    }
    ChildProcess process;
    const int seconds = runSeconds + int(clocks / clocksPerSecond);
    switch (process.run(program, arguments + options, m_folder.path(), seconds, takeLine)) {
    case ChildProcess::endNotStarted:
        return fail(tr("Can not start %1: %2").arg(program, process.failure()));
    case ChildProcess::endTime:
        return fail(tr("The core does not get on: %1 has taken %2 seconds of processor time for %3 clocks")
                        .arg(toolName(), QString::number(seconds), QString::number(clocks)));
    case ChildProcess::endStopped:
        return endStopped;
    case ChildProcess::endRefused:
        return endRefused;
    case ChildProcess::endDied:
        return fail(tr("%1 has died on the core: %2").arg(toolName(), process.failure()));
    case ChildProcess::endExit:
        break;
    }
    return endDone;
}

CoreRun::eEnd_t CoreRun::findStart()
{
    bool isFound = false;
    QString said;
    int lines = 0;
    QStringList arguments = {m_source.isVhdl() ? "-gprobe=true" : "+probe"};
    if (m_kind.core == CoreKind::coreMico8)
        arguments.append(option("waits", 0));
    const eEnd_t end = simulate(arguments, 0, [&](const QByteArray& line) {
        if (line.startsWith("START ")) {
            m_start = line.mid(6).toInt();
            isFound = true;
        } else if (++lines <= mostLinesShown) {
            said += "\n    " + withNames(QString::fromLocal8Bit(line));
        }
        return lines < mostForeignLines;
    });
    if (end == endStopped || end == endFailed)
        return end;
    if (!isFound)
        return fail(tr("%1 does not run the core:").arg(toolName()) + said);
    return m_start >= 0 ? endDone : fail(tr("The core does not execute any instruction after a reset"));
}

QStringList CoreRun::options(const CoreStimulus& stimulus)
{
    QStringList options = {option("clocks", stimulus.clocks), option("start", m_start)};
    const auto file = [&](const QString& name, const QByteArray& text) {
        options.append(option(name, name + ".txt"));
        return write(name + ".txt", text);
    };
    bool isWritten = file("program", hexLines(stimulus.words));
    if (!stimulus.reads.empty())
        isWritten = isWritten && file("reads", hexLines(stimulus.reads));
    QByteArray pulses;
    for (const std::pair<qint64, qint64>& request : stimulus.requests) {
        if (request.first < stimulus.clocks)
            pulses += QByteArray::number(request.first) + ' ' +
                      QByteArray::number(std::min(request.second, stimulus.clocks + 1) - request.first) + '\n';
    }
    QByteArray pages;
    for (const std::pair<qint64, int>& change : stimulus.pageChanges)
        pages += QByteArray::number(change.first) + ' ' + QByteArray::number(change.second) + '\n';
    if (!pages.isEmpty())
        isWritten = isWritten && file("page_changes", pages);
    if (!pulses.isEmpty())
        isWritten = isWritten && file("pulses", pulses);
    const int waits = m_kind.core == CoreKind::coreMico8 ? m_config.waitStates : 0;
    if (m_kind.core == CoreKind::coreMico8)
        options.append(option("waits", waits));
    if (std::any_of(stimulus.scratchpad.cbegin(), stimulus.scratchpad.cend(), [](int value) { return value != 0; })) {
        const Words words = wordsThatFill(m_kind, stimulus.scratchpad);
        isWritten = isWritten && file("before", hexLines(words));
        options.append(option("before_clocks", clocksOf(m_kind, words, waits)));
    }
    if (stimulus.showsState) {
        const Words words = wordsThatShow(m_kind, m_config.regCount, std::min(m_config.scrpdSize, cellsReached));
        isWritten = isWritten && file(m_source.isVhdl() ? "after_that" : "after", hexLines(words));
        options.append(option("after_clocks", clocksOf(m_kind, words, waits)));
    }
    return isWritten ? options : QStringList();
}

CoreRun::eEnd_t CoreRun::run(const CoreStimulus& stimulus, const std::function<bool(const ProveEvent&)>& takeEvent,
                             ProveState* state)
{
    QStringList arguments = options(stimulus);
    if (arguments.isEmpty())
        return endFailed;
    const bool hasWaves = stimulus.showsState && showsFlags(stimulus.clocks) && m_source.isVhdl();
    if (hasWaves) {
        if (!writeWanted())
            return endFailed;
        arguments += {QString("--vcd=") + wavesName, QString("--read-wave-opt=") + wantedName};
    }
    enum { before, running, after, done } phase = arguments.filter("before=").isEmpty() ? running : before;
    std::vector<int> shown;
    QString failure;
    int foreign = 0;
    const eEnd_t end = simulate(arguments, stimulus.clocks, [&](const QByteArray& line) {
        const QList<QByteArray> words = line.simplified().split(' ');
        ProveEvent event;
        if (words.first() == "BEGIN" && phase == before)
            phase = running;
        else if (words.first() == "FLAGS" && words.size() == 3) {
            state->carry = bitOf(words[1]);
            state->zero = bitOf(words[2]);
        } else if (words.first() == "STATE" && phase == running)
            phase = after;
        else if (words.first() == "END" && phase == after)
            phase = done;
        else if (toEvent(words, &event)) {
            if (phase == after && event.kind == ProveEvent::eWrite)
                shown.push_back(event.value);
            if (event.kind == ProveEvent::eFetch && event.address >= 0)
                event.address %= m_config.pageSize;
            return phase != running || takeEvent(event);
        } else if (!line.isEmpty()) {
            if (foreign < mostLinesShown)
                failure += "\n    " + withNames(QString::fromLocal8Bit(line));
            return ++foreign < mostForeignLines;
        }
        return true;
    });
    if (end == endFailed || end == endStopped)
        return end;
    if (end == endRefused)
        return foreign < mostForeignLines ? end : fail(tr("The core prints without end:") + failure);
    if (stimulus.showsState && phase != done)
        return fail(tr("%1 has ended before the run was over:").arg(toolName()) + failure);
    if (hasWaves)
        readWaves(state);
    const size_t registers = size_t(m_config.regCount) * (m_kind.core == CoreKind::corePicoBlaze6 ? 2 : 1);
    if (shown.size() >= registers) {
        state->registers.assign(shown.begin(), shown.begin() + long(registers));
        state->scratchpad.assign(shown.begin() + long(registers), shown.end());
    }
    return endDone;
}

bool CoreRun::showsFlags(qint64 clocks) const
{
    return !m_source.carryName().isEmpty() && (!m_source.isVhdl() || clocks <= mostClocksWithFlags);
}

QString CoreRun::whyNoFlags(qint64 clocks) const
{
    if (m_source.carryName().isEmpty())
        return tr("the core has no carry and zero, or carry_flag and zero_flag");
    return showsFlags(clocks) ? tr("%1 and %2 of the core are no flags").arg(m_source.carryName(), m_source.zeroName())
                              : tr("in VHDL they are seen up to clock %1").arg(mostClocksWithFlags);
}

/// Which signals the waves have. One that is not there is left out by ghdl.
bool CoreRun::writeWanted()
{
    const QString bench = QString("/%1_bench/").arg(m_kind.name);
    return write(wantedName, QString("$ version 1.1\n%1at_end\n%1core/%2\n%1core/%3\n")
                                 .arg(bench, m_source.carryName(), m_source.zeroName())
                                 .toLatin1());
}

/// Takes the flags as they are when the program has ended, before the reset that follows in the same moment.
void CoreRun::readWaves(ProveState* state) const
{
    QFile file(m_folder.filePath(wavesName));
    if (!file.open(QIODevice::ReadOnly))
        return;
    QHash<QByteArray, QString> names; ///< by the identifier of the wave
    QHash<QString, int> present;
    QHash<QString, int> past;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        const QList<QByteArray> words = line.split(' ');
        if (words.value(0) == "$var" && words.value(2) == "1")
            names[words.value(3)] = QString::fromLatin1(words.value(4));
        else if (line.startsWith('#'))
            past = present;
        else if (names.contains(line.mid(1)))
            present[names[line.mid(1)]] = bitOf(line.left(1));
        if (present.value("at_end") == 1)
            break;
    }
    state->carry = past.value(m_source.carryName(), -1);
    state->zero = past.value(m_source.zeroName(), -1);
}

/// The tools know the copies of the sources.
QString CoreRun::withNames(QString text) const
{
    for (int i = m_copies.size() - 1; i >= 0; --i)
        text.replace(m_copies[i] + ':', shownPath(m_source.files()[i]) + ':');
    return text;
}

} // namespace nsNalvoProve
