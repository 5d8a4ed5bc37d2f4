#include "SimRun.h"

#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "BatchOutput.h"
#include "Opcode.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimIntLine.h"
#include "ProcSimPortNames.h"
#include "ProcSimVcd.h"
#include "ProcTable.h"
#include "SimLabels.h"
#include "SimMessages.h"
#include "SimStop.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace nsNalvoSim {

using namespace nsBatch;
using nsModAsmFe::Opcode;
using nsProc::ProcSimWaveData;

namespace {

const qint64 blockSize = 1 << 17;      ///< instructions between two looks at the signal
const qint64 traceBlockSize = 1 << 12; ///< the same with a trace, whose reader may be slow

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
    , m_batch(BatchProject::create(style(options)))
{
}

int SimRun::run()
{
    const QString project = m_options.project.isEmpty() ? QString() : QFileInfo(m_options.project).absoluteFilePath();
    if (!m_batch.open(project))
        return exitWrongUsage;
    if (!assemble()) {
        if (!m_options.quiet)
            printError(tr("not assembled"));
        return exitNotAssembled;
    }
    if (!m_wrongUsage.isEmpty())
        return wrongUsage(m_wrongUsage) ? exitReached : exitWrongUsage;
    if (!findLabels() || !m_reads.open(m_options.inputs) || !openOutputs(project))
        return exitWrongUsage;
    const bool started = startSim();
    if (started && !m_reads.connectTo(m_engine.get()))
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
    m_batch.assemble(nsModAsmFe::AsmFeConfig::eEventNone);
    // As in the window: after errors, a program that was assembled nevertheless can run.
    if (!m_batch.assembler().isAssembled())
        return false;
    const nsProc::Processor* processor = m_batch.processor();
    if (processor == nullptr) {
        m_batch.msg().showErrorMessage(tr("The project has no processor that can be simulated."), QUrl(), {});
        return false;
    }
    m_project = {&m_batch.assembler().program(), &m_batch.sources(), &m_batch.asmMsg(), &processor->table(),
                 *processor->runConfig()};
    if (m_options.verbose)
        m_project.config.coreWarnings = 1;
    if (m_options.isExact)
        m_project.config.exactSimulation = 1;
    if (m_project.config.exactSimulation == 0 && (m_options.tracesClocks || !m_options.interruptClocks.empty()))
        m_wrongUsage = tr("--trace-clocks and --interrupt-at-clock need --exact.");
    return true;
}

bool SimRun::findLabels()
{
    const std::pair<const QString*, Opcode**> labels[] = {{&m_options.start, &m_start}, {&m_options.until, &m_until}};
    for (const auto& label : labels) {
        if (label.first->isEmpty())
            continue;
        QString failure;
        *label.second = opcodeOfLabel(m_project, *label.first, &failure);
        if (*label.second == nullptr)
            return wrongUsage(failure);
    }
    return true;
}

bool SimRun::openOutputs(const QString& project)
{
    const ProjectFiles taken(project, m_batch.sources().files(), m_project.program->ioDevs);
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
    m_engine = std::make_unique<nsProc::ProcSimEngine>(m_project.processor, m_project.config);
    m_engine->load(&m_project.program->opcodes);
    nsProc::SimOutcome outcome;
    bool success = m_engine->initIODevices(m_project.program->ioDevs, &outcome);
    // What is wrong with a device is at no instruction, so it is shown before there is a position.
    show(outcome);
    if (success) {
        outcome = nsProc::SimOutcome();
        success = m_engine->moveToStart(&outcome);
        show(outcome);
    }
    if (!success) {
        const QString key = outcome.last()->key();
        setEnd(SimEnd::endMessage, tr("stopped by %1 before the first instruction").arg(key), key);
        return false;
    }
    if (m_start != nullptr)
        m_engine->setProgramCounter(m_start, &outcome);
    requestInterrupts();
    m_engine->core()->setHwbld(m_options.hwbuild);
    m_engine->addObserver(&m_reads);
    if (m_trace.isOpen()) {
        m_tracer = std::make_unique<SimTrace>(&m_trace, m_engine.get(), m_options.tracesClocks);
        m_reads.setBeforeWait([this] { m_tracer->flushExecuted(); });
        m_engine->addObserver(m_tracer.get());
    }
    if (m_vcd.isOpen()) {
        m_waves = std::make_shared<ProcSimWaveData>(0);
        m_recorder = std::make_unique<nsProc::ProcSimWaveRecorder>(m_waves, m_engine->clock());
        m_recorder->watchAll([this](int addr, ProcSimWaveData::eAccessType_t access) {
            return nsProc::ProcSimPortNames::nameOf(m_project.program->opcodes, m_project.program->equs, addr,
                                                    access == ProcSimWaveData::eAccessWr);
        });
        m_engine->addObserver(m_recorder.get());
    }
    return true;
}

/// Requests by the clock: the interrupt input of an exact simulation has them from the beginning.
void SimRun::requestInterrupts()
{
    for (const std::pair<qint64, qint64>& request : m_options.interruptClocks)
        m_engine->intLine()->request(request.first, request.second);
    for (const std::pair<qint64, qint64>& request : m_reads.stimulus().requests()) {
        if (m_engine->intLine() != nullptr)
            m_engine->intLine()->request(request.first, request.second);
        else
            m_requests.push_back(request.first);
    }
}

void SimRun::setEnd(SimEnd::eReason_t reason, const QString& text, const QString& key)
{
    m_end.reason = reason;
    m_end.text = text;
    m_end.key = key;
}

void SimRun::execute()
{
    m_interrupts = nsBatch::InterruptNumbers(m_options.interruptEvery, m_options.interruptAt);
    const int until = m_until != nullptr ? m_engine->program().positionOf(m_until) : nsProc::sSimInstr_t::none;
    while (!isBoundReached()) {
        raiseInterrupts();
        nsProc::SimOutcome outcome;
        m_instructions += m_engine->run(nextBlock(), until, &outcome);
        if (!goesOn(outcome))
            break;
    }
    if (m_tracer == nullptr)
        return;
    m_tracer->flush();
    if (m_tracer->hasFailed()) {
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
    else if (m_engine->clock()->clocks >= m_options.clocks)
        setEnd(SimEnd::endClocks, tr("bound of clocks reached"));
    else
        return false;
    return true;
}

qint64 SimRun::nextBlock() const
{
    qint64 count = m_tracer != nullptr ? traceBlockSize : blockSize;
    count = std::min(count, m_options.instructions - m_instructions);
    const qint64 request = m_requested < m_requests.size() ? m_requests[m_requested] : SimOptions::unbounded;
    const qint64 clocks = std::min(m_options.clocks, request) - m_engine->clock()->clocks;
    const qint64 perInstr = std::max(m_engine->clocksOfInstr(), 1);
    // With instructions that differ in their clocks, each of the last few is a block.
    const qint64 bounded = clocks / perInstr + (clocks % perInstr != 0 ? 1 : 0);
    count = std::min(count, m_engine->intLine() != nullptr ? std::max(bounded - 1, qint64(1)) : bounded);
    // The instruction that takes the interrupt starts a block.
    return std::min(count, m_interrupts.next() - m_instructions - 1);
}

void SimRun::raiseInterrupts()
{
    bool isDue = false;
    if (m_instructions + 1 == m_interrupts.next()) {
        m_interrupts.pass();
        isDue = true;
    }
    for (; m_requested < m_requests.size() && m_requests[m_requested] <= m_engine->clock()->clocks; ++m_requested)
        isDue = true;
    // A second call would withdraw a pending interrupt.
    if (isDue && (m_engine->intLine() != nullptr || m_engine->core()->interrupt() != nsProc::eIntPending))
        m_engine->toggleInterrupt();
}

bool SimRun::goesOn(const nsProc::SimOutcome& outcome)
{
    show(outcome);
    if (m_tracer != nullptr && m_tracer->hasFailed())
        return false;
    if (!outcome.wentOn()) {
        endByFailure(outcome);
        return false;
    }
    if (m_engine->position() == nsProc::sSimInstr_t::none) {
        const nsProc::sSimReport_t* last = outcome.last();
        if (last != nullptr && last->kind == nsProc::sSimReport_t::eKindMessage) {
            endByMessage(*last);
            return false;
        }
        // The program has come to its end without a message of its own.
        const nsProc::sSimReport_t end{nsProc::sSimReport_t::eKindMessage, nsProc::errNoOpcodeToExec, QString(), 0};
        show(end);
        endByMessage(end);
        return false;
    }
    if (m_until != nullptr && m_engine->programCounter() == m_until) {
        setEnd(SimEnd::endLabel, tr("label %1 reached").arg(m_options.until));
        return false;
    }
    return true;
}

void SimRun::show(const nsProc::SimOutcome& outcome) const
{
    showReports(&m_batch.msg(), *m_project.links, *m_engine, outcome);
}

void SimRun::show(const nsProc::sSimReport_t& report) const
{
    showReport(&m_batch.msg(), *m_project.links, *m_engine, report);
}

nsModMsg::MsgUrl SimRun::link(const Opcode* opcode) const
{
    return opcode != nullptr ? m_project.links->srcUrl(opcode->srcRef) : nsModMsg::MsgUrl();
}

void SimRun::endByFailure(const nsProc::SimOutcome& outcome)
{
    if (outcome.end == nsProc::SimOutcome::eEndNoPortValue) {
        endByReads(outcome.port);
        return;
    }
    const nsProc::sSimReport_t* last = outcome.last();
    // Who halts the engine knows why.
    if (last == nullptr)
        return;
    if (last->kind == nsProc::sSimReport_t::eKindMessage && last->msg == nsProc::errIODevRd)
        reportUnreadPort(outcome.port);
    endByMessage(*last);
}

QString SimRun::place() const
{
    const Opcode* opcode = m_engine->program().opcode(m_engine->begun());
    if (opcode == nullptr)
        return QString();
    return tr(" at address %1, %2:%3")
        .arg(hexText(opcode->pageAddr, 3), shownPath(m_project.files->absSrcFilePath(opcode->srcRef.fileNo)),
             QString::number(opcode->srcRef.lineNo + 1));
}

void SimRun::endByMessage(const nsProc::sSimReport_t& report)
{
    setEnd(SimEnd::endMessage, tr("stopped by %1").arg(report.key()) + place(), report.key());
}

void SimRun::endByReads(int port)
{
    const SimReads* source = m_reads.source();
    if (m_reads.result() == SimReads::resultStopped) {
        setEnd(SimEnd::endSignal, tr("interrupted"));
        return;
    }
    if (m_reads.result() == SimReads::resultFailed) {
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
    const Opcode* opcode = m_engine->programCounter();
    m_batch.msg().showErrorMessage(tr("No value for the read of port %1 at address %2: %3.")
                                       .arg("0x" + hexText(port, 2), hexText(opcode->pageAddr, 3), why),
                                   help, link(opcode));
    setEnd(SimEnd::endReads, tr("no value to read") + place(), key);
}

/// Reports which port can not be read, as the message of the simulator does not name it.
void SimRun::reportUnreadPort(int port) const
{
    const Opcode* opcode = m_engine->programCounter();
    m_batch.msg().showErrorMessage(tr("No value for the read of port %1 at address %2: its device has none.")
                                       .arg("0x" + hexText(port, 2), hexText(opcode->pageAddr, 3)),
                                   QUrl(), link(opcode));
}

bool SimRun::writeOutputs()
{
    bool success = !m_trace.isOpen() || finishOutput(&m_trace, true);
    if (m_vcd.isOpen()) {
        // A simulator that has not started has no values.
        if (m_waves == nullptr)
            m_waves = std::make_shared<ProcSimWaveData>();
        m_waves->setClock(m_engine->clock()->clocks);
        const bool written = nsProc::ProcSimVcd::write(m_vcd.device(), *m_waves, m_project.config.clkFreq);
        success = finishOutput(&m_vcd, written) && success;
    }
    if (m_dump.isOpen()) {
        const bool written = m_dump.write(dumpText(m_project, *m_engine, m_instructions, m_end));
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
    const qint64 clocks = m_engine->clock()->clocks;
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
