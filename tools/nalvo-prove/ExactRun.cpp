#include "ExactRun.h"

#include "ProveOptions.h"
#include "StateWords.h"

#include "AsmFeMsgHndlr.h"
#include "AsmProgram.h"
#include "BatchMsg.h"
#include "BatchOutput.h"
#include "Opcode.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimEngine.h"
#include "ProcSimIntLine.h"
#include "ProcTable.h"
#include "SimMessages.h"
#include "SimStop.h"

#include <QCoreApplication>

#include <algorithm>

namespace nsNalvoProve {

using namespace nsBatch;
using nsModAsmFe::Opcode;

namespace {

const qint64 firstClock = -100;   ///< the core is in its reset, or earlier
const qint64 blockSize = 1 << 12; ///< instructions between two looks at the signal

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-prove", text);
}

} // namespace

ExactRun::ExactRun(const ProveProject& project, const ProveOptions& options)
    : m_project(project)
    , m_options(options)
    , m_interrupts(options.interruptEvery, options.interruptAt)
{
}

ExactRun::~ExactRun() = default;

bool ExactRun::start()
{
    if (!m_source.open(m_options.inputs))
        return false;
    m_timed = m_options.interruptClocks;
    m_timed.insert(m_timed.end(), m_source.stimulus().requests().begin(), m_source.stimulus().requests().end());
    return makeEngine();
}

bool ExactRun::startAgain(const ExactRun& first)
{
    m_isAgain = true;
    m_supplied = first.m_supplied;
    m_timed = first.m_timed;
    return makeEngine();
}

bool ExactRun::makeEngine()
{
    m_engine = std::make_unique<nsProc::ProcSimEngine>(m_project.processor, m_project.config);
    m_engine->load(&m_project.program->opcodes);
    nsProc::SimOutcome outcome;
    const bool success =
        m_engine->initIODevices(m_project.program->ioDevs, &outcome) && m_engine->moveToStart(&outcome);
    if (!m_isAgain)
        showReports(m_project.msg, *m_project.links, *m_engine, outcome);
    if (!success)
        return false;
    if (!m_source.connectTo(m_engine.get()))
        return false;
    const nsProc::ProcSimProgram& program = m_engine->program();
    for (int i = 0; i < program.count(); ++i)
        m_words.push_back(program.word(i));
    m_scratchpad = cells();
    const quint8* values = m_engine->core()->scrpdValues();
    const int count = m_engine->core()->scrpdValueCount();
    if (count > cellsReached &&
        std::any_of(values + cellsReached, values + count, [](quint8 value) { return value != 0; })) {
        printError(tr("The core can not be given the initial contents of the scratchpad from address %1 on.")
                       .arg(cellsReached));
        return false;
    }
    m_requests = m_timed;
    for (const std::pair<qint64, qint64>& request : m_timed)
        m_engine->intLine()->request(request.first, request.second);
    m_engine->core()->setHwbld(m_options.hwbuild);
    m_engine->addObserver(this);
    return true;
}

void ExactRun::run(qint64 instructions, qint64 clocks)
{
    while (m_instructions < instructions && m_engine->clock()->clocks < clocks) {
        if (isStopRequested())
            return stop(endSignal, tr("interrupted"));
        if (m_instructions + 1 == m_interrupts.next())
            raiseInterrupt();
        qint64 count = std::min(blockSize, instructions - m_instructions);
        count = std::min(count, m_interrupts.next() - m_instructions - 1);
        // No instruction is shorter than the half of the most that one can take.
        if (clocks != unbounded)
            count =
                std::min(count, std::max((clocks - m_engine->clock()->clocks) / m_engine->clocksOfInstr(), qint64(1)));
        nsProc::SimOutcome outcome;
        m_instructions += m_engine->run(count, nsProc::sSimInstr_t::none, &outcome);
        if (!m_isAgain)
            showReports(m_project.msg, *m_project.links, *m_engine, outcome);
        if (!outcome.wentOn())
            return endBy(outcome);
    }
}

void ExactRun::raiseInterrupt()
{
    m_requests.push_back({m_engine->clock()->clocks, 1});
    m_engine->toggleInterrupt();
    m_interrupts.pass();
}

void ExactRun::stop(eEnd_t end, const QString& text)
{
    m_end = end;
    m_endText = text;
}

void ExactRun::endBy(const nsProc::SimOutcome& outcome)
{
    if (outcome.end != nsProc::SimOutcome::eEndNoPortValue) {
        const nsProc::sSimReport_t* last = outcome.last();
        return stop(endStopped, tr("the simulation was stopped by %1").arg(last != nullptr ? last->key() : QString()));
    }
    const SimReads* source = m_source.source();
    const QString port = "0x" + QString::number(outcome.port, 16).toUpper().rightJustified(2, '0');
    const QString where = place(m_engine->position());
    if (source == nullptr)
        return stop(endStopped,
                    tr("port %1, which is read%2, has no source of values: --reads, --port, or a device of the project")
                        .arg(port, where.isEmpty() ? QString() : tr(" at %1").arg(where)));
    if (m_source.result() == SimReads::resultStopped)
        return stop(endSignal, tr("interrupted"));
    if (m_source.result() == SimReads::resultFailed)
        return stop(endFile, source->failure());
    stop(endReads, tr("%1 is used up after %2 values").arg(source->shownName(), QString::number(source->count())));
}

qint64 ExactRun::clocks() const
{
    return m_engine->clock()->clocks;
}

std::vector<int> ExactRun::cells() const
{
    std::vector<int> values;
    for (int i = 0; i < std::min(m_engine->core()->scrpdSize(), cellsReached); ++i) {
        int value = 0;
        m_engine->core()->scrpd(i, &value);
        values.push_back(value & 0xFF);
    }
    return values;
}

ProveTrace ExactRun::trace() const
{
    ProveTrace trace;
    trace.events = m_events;
    // An entry may have come after the last instruction, and one more instruction may have been refused.
    while (!trace.events.empty() && trace.events.back().clock >= clocks())
        trace.events.pop_back();
    const nsProc::ProcSimCoreData& core = *m_engine->core();
    for (int bank = 0; bank < core.bankCount(); ++bank) {
        for (int i = 0; i < core.regCount(); ++i)
            trace.state.registers.push_back(core.regValue(bank, i));
    }
    trace.state.scratchpad = cells();
    trace.state.carry = core.carryBit();
    trace.state.zero = core.zeroBit();
    return trace;
}

std::vector<std::pair<qint64, qint64>> ExactRun::requests() const
{
    std::vector<std::pair<qint64, qint64>> sorted;
    for (const std::pair<qint64, qint64>& request : m_requests)
        sorted.push_back(
            {request.first, request.second > unbounded - request.first ? unbounded : request.first + request.second});
    std::sort(sorted.begin(), sorted.end());
    std::vector<std::pair<qint64, qint64>> merged;
    for (const std::pair<qint64, qint64>& span : sorted) {
        if (!merged.empty() && span.first <= merged.back().second)
            merged.back().second = std::max(merged.back().second, span.second);
        else
            merged.push_back(span);
    }
    return merged;
}

std::vector<std::pair<qint64, int>> ExactRun::pageChanges() const
{
    std::vector<std::pair<qint64, int>> changes;
    const int size = m_engine->program().pageSize();
    if (m_engine->program().count() <= size)
        return changes;
    for (const ProveEvent& event : m_events) {
        if (event.kind != ProveEvent::eFetch)
            continue;
        const int page = event.position / size;
        // The memory is read in the clock before.
        if (changes.empty() || changes.back().second != page)
            changes.push_back({event.clock - 1, page});
    }
    // From power-up on, too.
    if (!changes.empty())
        changes.front().first = firstClock;
    return changes;
}

QString ExactRun::place(int position) const
{
    const Opcode* opcode = m_engine->program().opcode(position);
    if (opcode == nullptr)
        return QString();
    const nsModMsg::MsgUrl url = m_project.links->srcUrl(opcode->srcRef);
    return shownPath(url.path()) + ':' + QString::number(opcode->srcRef.lineNo + 1);
}

void ExactRun::add(ProveEvent::eKind_t kind, qint64 address, int value, qint64 clock)
{
    m_events.push_back({kind, address, value, clock, m_position});
}

void ExactRun::instruction(int position, qint64 clock)
{
    // What was refused comes again, or the clock has not passed it at the end.
    while (!m_events.empty() && m_events.back().clock >= clock && m_events.back().kind == ProveEvent::eFetch)
        m_events.pop_back();
    m_position = position;
    add(ProveEvent::eFetch, m_engine->program().address(position), 0, clock);
}

void ExactRun::interruptEntered()
{
    m_position = -1;
    // Where an entry takes a slot, that has passed already.
    const bool isFree = m_project.processor->core.latchesRequests;
    const qint64 clock = m_engine->clock()->clocks;
    add(ProveEvent::eEntry, ProveEvent::unknown, 0, isFree ? clock : clock - 2);
}

void ExactRun::coreReset()
{
    m_position = m_engine->position();
    add(ProveEvent::eReset, ProveEvent::unknown, 0, m_engine->clock()->clocks);
}

bool ExactRun::portSource(int addr, int* value, bool* handled)
{
    if (m_isAgain) {
        *handled = true;
        if (m_taken >= m_supplied.size())
            return false;
        *value = m_supplied[m_taken++];
        return true;
    }
    const bool isThere = m_source.portSource(addr, value, handled);
    if (isThere)
        m_supplied.push_back(*value);
    return isThere;
}

void ExactRun::portRead(int addr, int value)
{
    m_reads.push_back(value);
    add(ProveEvent::eRead, quint32(addr), value, m_engine->accessClock());
}

void ExactRun::portWritten(int addr, int value)
{
    add(ProveEvent::eWrite, quint32(addr), value, m_engine->accessClock());
}

void ExactRun::constantWritten(int lines, int value)
{
    add(ProveEvent::eConstantWrite, lines, value, m_engine->accessClock());
}

} // namespace nsNalvoProve
