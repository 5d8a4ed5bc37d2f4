#include "ProveRun.h"

#include "BatchOutput.h"
#include "ProcTable.h"
#include "SimStop.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

#include <unistd.h>

namespace nsNalvoProve {

using namespace nsBatch;

namespace {

const size_t eventsShown = 10;

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-prove", text);
}

BatchMsgStyle style(const ProveOptions& options)
{
    BatchMsgStyle result;
    result.quiet = options.quiet;
    result.json = options.json;
    return result;
}

QStringList lastTexts(const std::vector<ProveEvent>& events, size_t end)
{
    QStringList texts;
    for (size_t i = end > eventsShown ? end - eventsShown : 0; i < std::min(end, events.size()); ++i)
        texts.append(events[i].text());
    return texts;
}

qint64 fetchesIn(const std::vector<ProveEvent>& events, size_t end)
{
    return std::count_if(events.begin(), events.begin() + long(std::min(end, events.size())),
                         [](const ProveEvent& event) { return event.kind == ProveEvent::eFetch; });
}

/// A core may go on reading the memory while it resets itself: that looks like instructions.
bool isOfReset(const ProveEvent& reset, const ProveEvent& event)
{
    const qint64 clocks = 4; // from what is half executed to the first instruction
    return event.kind == ProveEvent::eFetch && event.clock >= reset.clock && event.clock < reset.clock + clocks;
}

/// The reset that only the accesses of its half executed instruction follow; null if there is none.
/// @param end number of the events that count
const ProveEvent* lastReset(const std::vector<ProveEvent>& events, size_t end)
{
    for (size_t i = end; i > 0 && events[i - 1].kind != ProveEvent::eFetch; --i) {
        if (events[i - 1].kind == ProveEvent::eReset)
            return &events[i - 1];
    }
    return nullptr;
}

} // namespace

ProveRun::ProveRun(const ProveOptions& options)
    : m_options(options)
    , m_batch(BatchProject::create(style(options)))
{
}

int ProveRun::run()
{
    int status = assemble();
    // What is wrong with the core is said before a long simulation.
    for (const auto step : {&ProveRun::prepareCore, &ProveRun::simulate, &ProveRun::compare}) {
        if (status == exitEqual)
            status = (this->*step)();
    }
    hideProgress();
    return status;
}

int ProveRun::fail(const QString& text) const
{
    for (const QString& line : text.split('\n'))
        printError(line);
    return exitNothingProved;
}

void ProveRun::note(const QString& text) const
{
    if (!m_options.quiet && !m_options.json)
        printError(text);
}

int ProveRun::assemble()
{
    const QString project = m_options.project.isEmpty() ? QString() : QFileInfo(m_options.project).absoluteFilePath();
    if (!m_batch.open(project))
        return exitNothingProved;
    m_batch.assemble(nsModAsmFe::AsmFeConfig::eEventNone);
    if (!m_batch.assembler().isAssembled())
        return fail(tr("not assembled"));
    const nsProc::Processor* processor = m_batch.processor();
    m_kind = processor != nullptr ? CoreKind::find(processor->table().cfgSection) : nullptr;
    if (m_kind == nullptr)
        return fail(tr("The project has no processor that can be simulated."));
    m_project = {&m_batch.assembler().program(), &m_batch.asmMsg(), &m_batch.msg(), &processor->table(),
                 *processor->runConfig()};
    m_project.config.exactSimulation = 1;
    m_project.config.pageCount = std::max(m_project.config.pageCount, 1);
    if (m_project.config.pageCount == 1)
        m_project.config.pageSize = std::max(m_project.config.pageSize, m_kind->fullSize);
    if (m_project.config.pageSize > m_kind->fullSize)
        return fail(tr("A page of the memory is larger than what %1 can address: %2 words")
                        .arg(m_kind->shown, QString::number(m_project.config.pageSize)));
    return exitEqual;
}

int ProveRun::prepareCore()
{
    CoreSource any;
    QString failure = any.find(*m_kind, m_options.core, m_options.language);
    if (!failure.isEmpty())
        return fail(failure);
    // Where the core is there in both languages, the second one is taken if the first one does not do.
    for (const ProveOptions::eLanguage_t language : {ProveOptions::languageVerilog, ProveOptions::languageVhdl}) {
        if (m_options.language != ProveOptions::languageAny && m_options.language != language)
            continue;
        m_source = CoreSource();
        if (!m_source.find(*m_kind, m_options.core, language).isEmpty())
            continue;
        m_core = std::make_unique<CoreRun>(*m_kind, m_source, m_project.config, m_options.hwbuild);
        const CoreRun::eEnd_t end = m_core->prepare();
        if (end != CoreRun::endFailed) {
            m_result.core = shownPath(m_source.files().first());
            m_result.tool = m_core->toolName();
            return endOf(end);
        }
        failure += (failure.isEmpty() ? QString() : QStringLiteral("\n")) + m_core->failure();
    }
    return fail(failure);
}

/// @return exitEqual for an end that is none
int ProveRun::endOf(CoreRun::eEnd_t end)
{
    if (end == CoreRun::endStopped) {
        hideProgress();
        printError(tr("interrupted"));
        return exitSignal;
    }
    if (end != CoreRun::endFailed)
        return exitEqual;
    hideProgress();
    return fail(m_core->failure());
}

int ProveRun::simulate()
{
    m_exact = std::make_unique<ExactRun>(m_project, m_options);
    if (!m_exact->start())
        return exitNothingProved;
    m_exact->run(m_options.instructions, m_options.clocks);
    if (m_exact->end() == ExactRun::endSignal) {
        printError(tr("interrupted"));
        return exitSignal;
    }
    if (m_exact->end() == ExactRun::endStopped || m_exact->end() == ExactRun::endFile)
        return fail(tr("nothing proved: %1").arg(m_exact->endText()));
    if (m_exact->instructions() == 0)
        return fail(tr("nothing proved: no instruction was executed: %1").arg(m_exact->endText()));
    m_trace = m_exact->trace();
    m_result.end = m_exact->endText();
    m_result.banks = m_kind->core == CoreKind::corePicoBlaze6 ? 2 : 1;
    return exitEqual;
}

CoreStimulus ProveRun::stimulusOf(const ExactRun& exact) const
{
    return {exact.words(), m_exact->scratchpad(), exact.pageChanges(), exact.reads(), exact.requests(), exact.clocks(),
            true};
}

int ProveRun::compareEvents(sSeen_t* seen, ProveState* state)
{
    const std::vector<ProveEvent>& ours = m_trace.events;
    const auto take = [&](const ProveEvent& event) {
        showProgress(event.clock);
        const size_t at = seen->equal;
        const bool isReset = at < ours.size() && ours[at].kind == ProveEvent::eReset && isOfReset(ours[at], event);
        if (isReset || (at < ours.size() && ours[at].equals(event))) {
            ++seen->equal;
            return true;
        }
        // What follows of the same reset.
        const ProveEvent* reset = lastReset(ours, at);
        if (reset != nullptr && isOfReset(*reset, event))
            return true;
        seen->other = event;
        seen->hasOther = true;
        return false;
    };
    return endOf(m_core->run(stimulusOf(*m_exact), take, state));
}

int ProveRun::compare()
{
    sSeen_t seen;
    ProveState state;
    const int status = compareEvents(&seen, &state);
    if (status != exitEqual)
        return status;
    if (seen.hasOther || seen.equal < m_trace.events.size())
        return showDifference(seen);
    m_result.instructions = m_exact->instructions();
    m_result.events = qint64(m_trace.events.size());
    m_result.clocks = m_exact->clocks();
    m_result.compared = QStringList{tr("fetches, accesses, interrupt entries and resets, with their clocks")};
    const auto noteState = [this](bool isThere, const QString& name) {
        (isThere ? m_result.compared : m_result.notCompared).append(name);
    };
    const size_t cells = state.scratchpad.size();
    noteState(!state.registers.empty(), tr("%1 registers").arg(m_trace.state.registers.size()));
    noteState(cells > 0, tr("%1 cells of the scratchpad").arg(cells));
    if (int(cells) < m_project.config.scrpdSize)
        noteState(false, tr("the cells of the scratchpad from %1 on").arg(cells));
    const bool areFlagsSeen = state.carry >= 0 && state.zero >= 0;
    noteState(areFlagsSeen, areFlagsSeen ? tr("C and Z at the end")
                                         : tr("C and Z at the end (%1)").arg(m_core->whyNoFlags(m_exact->clocks())));
    m_result.what = stateDifference(m_trace.state, state, m_result.banks);
    return m_result.what.isEmpty() ? report() : showStateDifference();
}

/// Finds the instruction that leaves the first difference of the states.
/// @param different instructions after which they differ
int ProveRun::findState(qint64 different, sStates_t* states)
{
    qint64 same = 0;
    while (different - same > 1) {
        const qint64 middle = same + (different - same) / 2;
        const int status = statesAfter(middle, states);
        if (status != exitEqual)
            return status;
        (states->difference.isEmpty() ? same : different) = middle;
    }
    return statesAfter(different, states);
}

/// All events are equal, but not what is in the core at the end.
int ProveRun::showStateDifference()
{
    sStates_t states;
    const int status = findState(m_exact->instructions(), &states);
    if (status != exitEqual)
        return status;
    m_result.isEqual = false;
    m_result.what = states.difference;
    m_result.place = m_exact->place(states.position);
    m_result.instructions = states.instructions - 1;
    setStates(states);
    const auto end = std::find_if(m_trace.events.begin(), m_trace.events.end(),
                                  [&states](const ProveEvent& event) { return event.clock >= states.clock; });
    m_result.events = end - m_trace.events.begin();
    m_result.simulationEvents = lastTexts(m_trace.events, size_t(m_result.events));
    m_result.coreEvents = m_result.simulationEvents;
    return report();
}

void ProveRun::setStates(const sStates_t& states)
{
    m_result.simulationState = states.ours;
    m_result.coreState = states.others;
    m_result.stateClock = states.clock;
}

int ProveRun::showDifference(const sSeen_t& seen)
{
    const std::vector<ProveEvent>& ours = m_trace.events;
    const size_t at = seen.equal;
    m_result.isEqual = false;
    m_result.instructions = std::max(fetchesIn(ours, at + 1) - 1, qint64(0));
    m_result.events = qint64(at);
    m_result.clocks = at < ours.size() ? ours[at].clock : m_exact->clocks();
    m_result.simulationEvents = lastTexts(ours, at + 1);
    m_result.coreEvents = at < ours.size() ? m_result.simulationEvents.mid(0, m_result.simulationEvents.size() - 1)
                                           : m_result.simulationEvents;
    if (seen.hasOther)
        m_result.coreEvents.append(seen.other.text());
    m_result.what = tr("%1 in the simulation, %2 in the core")
                        .arg(at < ours.size() ? ours[at].text() : tr("nothing more"),
                             seen.hasOther ? seen.other.text() : tr("nothing more"));
    // An entry or a reset belongs to what came before it.
    for (size_t i = std::min(at + 1, ours.size()); i > 0 && m_result.place.isEmpty(); --i)
        m_result.place = m_exact->place(ours[i - 1].position);
    sStates_t states;
    int status = statesAfter(m_result.instructions, &states);
    if (status != exitEqual)
        return status;
    setStates(states);
    if (!states.difference.isEmpty()) {
        // Something went wrong before it could be seen from outside.
        status = findState(m_result.instructions, &states);
        m_result.origin = states.difference;
        m_result.originPlace = m_exact->place(states.position);
        m_result.originClock = states.clock;
    }
    return status == exitEqual ? report() : status;
}

/// Both states after so many instructions.
int ProveRun::statesAfter(qint64 instructions, sStates_t* states)
{
    ExactRun again(m_project, m_options);
    if (!again.startAgain(*m_exact))
        return exitNothingProved;
    again.run(instructions, unbounded);
    const ProveTrace trace = again.trace();
    *states = sStates_t();
    states->instructions = instructions;
    states->clock = again.clocks();
    states->ours = trace.state;
    for (const ProveEvent& event : trace.events)
        states->position = event.kind == ProveEvent::eFetch ? event.position : states->position;
    const int status = endOf(m_core->run(
        stimulusOf(again), [](const ProveEvent&) { return true; }, &states->others));
    states->difference = stateDifference(states->ours, states->others, m_result.banks);
    return status;
}

int ProveRun::report()
{
    hideProgress();
    print(stdout, m_options.json ? m_result.json() : m_result.text());
    // In front of what is said about it, where both go to one place.
    std::fflush(stdout);
    note(tr("%1 under %2").arg(m_result.core, m_result.tool));
    if (!m_result.compared.isEmpty())
        note(tr("compared: %1").arg(m_result.compared.join(", ")));
    if (!m_result.notCompared.isEmpty())
        note(tr("not compared: %1").arg(m_result.notCompared.join(", ")));
    if (!m_result.end.isEmpty())
        note(tr("the run ended early: %1").arg(m_result.end));
    const QString failure = stdoutFailure();
    if (!failure.isEmpty())
        return fail(tr("Can not write standard output: %1").arg(failure));
    return m_result.isEqual ? exitEqual : exitDifferent;
}

void ProveRun::showProgress(qint64 clock)
{
    const int percent = int(clock * 100 / std::max(m_exact->clocks(), qint64(1)));
    if (percent == m_percent || m_options.quiet || isatty(STDERR_FILENO) == 0)
        return;
    m_percent = percent;
    print(stderr,
          '\r' +
              tr("%1 % of %2 clocks").arg(QString::number(percent), QString::number(m_exact->clocks())).toLocal8Bit());
}

void ProveRun::hideProgress()
{
    if (m_percent >= 0)
        print(stderr, "\r\033[K");
    m_percent = -1;
}

} // namespace nsNalvoProve
