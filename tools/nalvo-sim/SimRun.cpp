#include "SimRun.h"

#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "BatchOutput.h"
#include "Opcode.h"
#include "OpcodeList.h"
#include "ProcShell.h"
#include "ProcSim.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimPorts.h"
#include "ProcSimVcd.h"
#include "SimLabels.h"
#include "SimStop.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace nsNalvoSim {

using namespace nsBatch;
using nsModAsmFe::Opcode;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-sim", text);
}

QString shownOutput(const QString& name)
{
    return name == "-" ? tr("standard output") : name;
}

QString hexText(int value, int digits)
{
    return QString::number(value, 16).toUpper().rightJustified(digits, '0');
}

BatchMsgStyle style(const SimOptions& options)
{
    BatchMsgStyle result;
    result.quiet = options.quiet;
    return result;
}

} // namespace

SimRun::SimRun(const SimOptions& options)
    : m_options(options)
    , m_modules(BatchModules::create(style(options)))
{
}

SimRun::~SimRun()
{
    if (m_sim == nullptr)
        return;
    m_modules.asmFe.unregisterPlugin(static_cast<ModAsmFePluginIfInterMod*>(m_sim.get()));
    m_modules.msg.unregisterPlugin(static_cast<ModMsgPluginIf*>(m_sim.get()));
}

int SimRun::run()
{
    const QString project = m_options.project.isEmpty() ? QString() : QFileInfo(m_options.project).absoluteFilePath();
    if (!m_modules.prj.openPrj(project))
        return exitWrongUsage;
    if (!assemble()) {
        if (!m_options.quiet)
            printError(tr("not assembled"));
        return exitNotAssembled;
    }
    if (!findLabels() || !openReads() || !openOutputs(project))
        return exitWrongUsage;
    const bool started = startSim();
    if (started && !checkPorts())
        return exitWrongUsage;
    if (started)
        execute();
    // After an invalid input no output files are written.
    const bool complete = m_end.reason != SimEnd::endFile && writeOutputs();
    showSummary();
    return complete ? exitStatus() : exitWrongUsage;
}

bool SimRun::assemble()
{
    m_modules.asmFe.assemble(nsModAsmFe::ModAsmFe::eEventNone);
    // As in the window: after errors, a program that was assembled nevertheless can run.
    if (!m_modules.asmFe.isAssembled())
        return false;
    m_shell = dynamic_cast<nsProc::ProcShell*>(m_modules.processor.currentProcessor());
    if (m_shell == nullptr)
        m_modules.msg.showErrorMessage(tr("The project has no processor that can be simulated."), QUrl(), {});
    return m_shell != nullptr;
}

bool SimRun::findLabels()
{
    const std::pair<const QString*, Opcode**> labels[] = {{&m_options.start, &m_start}, {&m_options.until, &m_until}};
    for (const auto& label : labels) {
        if (label.first->isEmpty())
            continue;
        QString failure;
        *label.second = opcodeOfLabel(&m_modules.asmFe, *label.first, &failure);
        if (*label.second == nullptr)
            return wrongUsage(failure);
    }
    return true;
}

bool SimRun::openReads()
{
    const auto checkOpened = [](const QString& name, const QString& failure) {
        if (!failure.isEmpty())
            printError(tr("Can not read %1: %2").arg(name == "-" ? tr("standard input") : name, failure));
        return failure.isEmpty();
    };
    if (!m_options.readsFile.isEmpty() && !checkOpened(m_options.readsFile, m_watch.openReads(m_options.readsFile)))
        return false;
    for (auto it = m_options.portFiles.cbegin(); it != m_options.portFiles.cend(); ++it) {
        if (!checkOpened(it.value(), m_watch.openPortReads(it.key(), it.value())))
            return false;
    }
    return true;
}

bool SimRun::openOutputs(const QString& project)
{
    const ProjectFiles taken(project, m_modules.asmFe.fileHndlr()->files(), *m_modules.asmFe.ioDevList());
    for (const QString& name : m_options.outputFiles()) {
        if (taken.contains(name)) {
            printError(tr("File of the project would be overwritten: %1").arg(name));
            return false;
        }
    }
    return openOutput(&m_trace, m_options.traceFile) && openOutput(&m_vcd, m_options.vcdFile) &&
           openOutput(&m_dump, m_options.dumpFile);
}

bool SimRun::openOutput(OutputFile* file, const QString& name)
{
    const QString failure = name.isEmpty() ? QString() : file->open(name);
    if (!failure.isEmpty())
        printError(tr("Can not write %1: %2").arg(shownOutput(name), failure));
    return failure.isEmpty();
}

bool SimRun::startSim()
{
    m_sim.reset(m_shell->createSim());
    m_modules.asmFe.registerPlugin(static_cast<ModAsmFePluginIfInterMod*>(m_sim.get()));
    m_modules.msg.registerPlugin(static_cast<ModMsgPluginIf*>(m_sim.get()));
    if (!m_sim->simInit(m_shell->runConfig())) {
        const QString key = m_sim->takeLastMsg();
        setEnd(SimEnd::endMessage, tr("stopped by %1 before the first instruction").arg(key), key);
        return false;
    }
    if (m_start != nullptr)
        m_sim->setProgramCounter(m_start);
    m_sim->core()->setHwbld(m_options.hwbuild);
    m_sim->setObserver(&m_watch);
    if (m_trace.isOpen())
        m_watch.trace().setFile(&m_trace);
    if (m_vcd.isOpen())
        m_watch.keepWaves(m_sim->clock(), &m_modules.asmFe);
    return true;
}

bool SimRun::checkPorts() const
{
    for (auto it = m_options.portFiles.cbegin(); it != m_options.portFiles.cend(); ++it) {
        if (m_sim->ports()->deviceToRead(it.key()) != nullptr)
            return wrongUsage(tr("A device of the project answers at the port already: %1").arg(it.key()));
    }
    return true;
}

void SimRun::setEnd(SimEnd::eReason_t reason, const QString& text, const QString& key)
{
    m_end.reason = reason;
    m_end.text = text;
    m_end.key = key;
}

void SimRun::execute()
{
    m_nextInterrupt = m_options.interruptEvery > 0 ? m_options.interruptEvery : SimOptions::unbounded;
    if (!m_options.interruptAt.empty())
        m_nextInterrupt = std::min(m_nextInterrupt, m_options.interruptAt.front());
    while (!isBoundReached()) {
        if (m_instructions + 1 == m_nextInterrupt)
            raiseInterrupt();
        if (!step())
            break;
    }
    m_watch.trace().flush();
    if (m_watch.trace().hasFailed()) {
        finishOutput(&m_trace, false);
        setEnd(SimEnd::endFile, tr("the trace can not be written"));
    }
}

bool SimRun::isBoundReached()
{
    if (isStopRequested())
        setEnd(SimEnd::endSignal, tr("interrupted"));
    else if (m_instructions >= m_options.instructions)
        setEnd(SimEnd::endInstructions, tr("bound of instructions reached"));
    else if (m_sim->clock()->clocks >= m_options.clocks)
        setEnd(SimEnd::endClocks, tr("bound of clocks reached"));
    else
        return false;
    return true;
}

void SimRun::raiseInterrupt()
{
    // A second call would withdraw a pending interrupt.
    if (m_sim->core()->interrupt() == nsProc::eIntEnabled)
        m_sim->simInt();
    const std::vector<qint64>& list = m_options.interruptAt;
    while (m_interruptAt < list.size() && list[m_interruptAt] <= m_nextInterrupt)
        ++m_interruptAt;
    const qint64 listed = m_interruptAt < list.size() ? list[m_interruptAt] : SimOptions::unbounded;
    const qint64 every = m_options.interruptEvery;
    const qint64 rounds = every > 0 ? m_nextInterrupt / every + 1 : 0;
    const bool isRegular = every > 0 && rounds <= SimOptions::unbounded / every;
    m_nextInterrupt = isRegular ? std::min(listed, rounds * every) : listed;
}

bool SimRun::step()
{
    m_watch.begin();
    if (!m_sim->simOpcode()) {
        const Opcode* opcode = m_watch.opcode();
        m_watch.takeBack();
        endByFailure(opcode);
        return false;
    }
    ++m_instructions;
    const Opcode* next = m_sim->programCounter();
    if (next == nullptr) {
        const Opcode* opcode = m_watch.opcode();
        setPlace(opcode);
        const QString key = m_sim->takeLastMsg();
        if (key.isEmpty() || key == "internal") {
            // At the end of the program the simulator reports nothing or a general error. Executing once more reports
            // the actual error.
            m_sim->simOpcode();
            endByFailure(opcode);
        } else {
            endByMessage(key);
        }
        return false;
    }
    if (next == m_until) {
        setEnd(SimEnd::endLabel, tr("label %1 reached").arg(m_options.until));
        return false;
    }
    m_watch.trace().writePiece();
    return !m_watch.trace().hasFailed();
}

void SimRun::endByFailure(const Opcode* opcode)
{
    setPlace(opcode);
    if (m_watch.readResult() != SimReads::resultValue) {
        endByReads(opcode);
        return;
    }
    const QString key = m_sim->takeLastMsg();
    if (key == "errIODevRd" && opcode != nullptr)
        reportUnreadPort(opcode);
    endByMessage(key);
}

void SimRun::setPlace(const Opcode* opcode)
{
    if (opcode != nullptr)
        m_place = tr(" at address %1, %2:%3")
                      .arg(hexText(opcode->pageAddr, 3),
                           shownPath(m_modules.asmFe.fileHndlr()->absSrcFilePath(opcode->srcRef.fileNo)),
                           QString::number(opcode->srcRef.lineNo + 1));
}

void SimRun::endByMessage(const QString& key)
{
    setEnd(SimEnd::endMessage, tr("stopped by %1").arg(key) + m_place, key);
}

void SimRun::endByReads(const Opcode* opcode)
{
    const SimReads* source = m_watch.readSource();
    if (m_watch.readResult() == SimReads::resultStopped) {
        setEnd(SimEnd::endSignal, tr("interrupted"));
        return;
    }
    if (m_watch.readResult() == SimReads::resultFailed) {
        printError(source->failure());
        setEnd(SimEnd::endFile, tr("values for the reads can not be read"));
        return;
    }
    const QString why =
        source == nullptr
            ? tr("it has no source of values")
            : tr("%1 is used up after %2 values").arg(source->shownName(), QString::number(source->count()));
    const QString key = source == nullptr ? QStringLiteral("errNoReads") : QStringLiteral("errReadsExhausted");
    QUrl help;
    help.setFragment(key);
    m_modules.msg.showErrorMessage(tr("No value for the read of port %1 at address %2: %3.")
                                       .arg("0x" + hexText(m_watch.readPort(), 2), hexText(opcode->pageAddr, 3), why),
                                   help, m_modules.asmFe.msgHndlr()->srcUrl(opcode->srcRef));
    setEnd(SimEnd::endReads, tr("no value to read") + m_place, key);
}

/// Reports which port can not be read, as the message of the simulator does not name it.
void SimRun::reportUnreadPort(const Opcode* opcode)
{
    const nsModAsmFe::Arg* arg = opcode->arg1;
    const nsProc::ProcSimCoreData& core = *m_sim->core();
    const bool isReg = arg->type == nsModAsmFe::Arg::reg || arg->type == nsModAsmFe::Arg::regRef;
    const int port = isReg ? core.regValue(core.bank(), arg->iValue) : arg->iValue;
    m_modules.msg.showErrorMessage(tr("No value for the read of port %1 at address %2: its device has none.")
                                       .arg("0x" + hexText(port, 2), hexText(opcode->pageAddr, 3)),
                                   QUrl(), m_modules.asmFe.msgHndlr()->srcUrl(opcode->srcRef));
}

bool SimRun::writeOutputs()
{
    bool success = !m_trace.isOpen() || finishOutput(&m_trace, true);
    if (m_vcd.isOpen()) {
        if (m_sim->clock() != nullptr)
            m_watch.waves().setClock(m_sim->clock()->clocks);
        const bool written = nsProc::ProcSimVcd::write(m_vcd.device(), m_watch.waves(), m_shell->runConfig()->clkFreq);
        success = finishOutput(&m_vcd, written) && success;
    }
    if (m_dump.isOpen()) {
        const bool hasState = m_sim->core() != nullptr;
        const bool written =
            !hasState || m_dump.write(dumpText(&m_modules.asmFe, m_shell, m_sim.get(), m_instructions, m_end));
        success = finishOutput(&m_dump, written) && success;
    }
    return success;
}

bool SimRun::finishOutput(OutputFile* file, bool written)
{
    const QString failure = written ? file->commit() : file->failure();
    if (written && failure.isEmpty())
        return true;
    printError(tr("Can not write %1: %2").arg(shownOutput(file->name()), failure));
    return false;
}

void SimRun::showSummary() const
{
    if (m_options.quiet)
        return;
    const qint64 clocks = m_sim->clock() != nullptr ? m_sim->clock()->clocks : 0;
    QStringList parts = {m_end.text};
    parts << (m_instructions == 1 ? tr("1 instruction") : tr("%1 instructions").arg(m_instructions));
    parts << (clocks == 1 ? tr("1 clock") : tr("%1 clocks").arg(clocks));
    printError(parts.join(", "));
}

int SimRun::exitStatus() const
{
    switch (m_end.reason) {
    case SimEnd::endInstructions:
    case SimEnd::endClocks:
    case SimEnd::endLabel:
        return exitReached;
    case SimEnd::endMessage:
    case SimEnd::endReads:
        return exitStopped;
    case SimEnd::endSignal:
        return exitSignal;
    case SimEnd::endFile:
        break;
    }
    return exitWrongUsage;
}

} // namespace nsNalvoSim
