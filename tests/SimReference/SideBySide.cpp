#include "SideBySide.h"

#include "Opcode.h"
#include "OpcodeList.h"
#include "ProcShell.h"
#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimPorts.h"
#include "ProcTables.h"

#include <algorithm>
#include <sstream>

namespace {

QString processorName(Family family)
{
    return family == Family::PicoBlaze3   ? "Xilinx PicoBlaze 3"
           : family == Family::PicoBlaze6 ? "Xilinx PicoBlaze 6"
                                          : "Lattice Mico8 v3.x";
}

/// The build as the project file has it.
QHash<QString, int> settings(Family family, const Build& build)
{
    // The directives that place the pages are not held against the settings.
    QHash<QString, int> result = {{"AsmFe/behavior/set", 2}};
    if (family == Family::PicoBlaze6) {
        result["XPBlze6/scrpdSize"] = build.scrpdSize;
        result["XPBlze6/intVectorAddr"] = build.vector;
    } else if (family == Family::Mico8) {
        result["LMico8v3x/scrpdSize"] = build.scrpdSize;
        result["LMico8v3x/instrClkCnt"] = build.clocksOfInstr;
        result["LMico8v3x/regCount"] = build.regCount;
    }
    return result;
}

/// What the simulator must have reported. Internal errors have a text and no key.
struct Report
{
    const char* key;
    const char* internalText; ///< its start
};

Report reportOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::done:
        return {"", ""};
    case Outcome::ended:
        return {"internal", "Zero program pointer!"};
    case Outcome::stackOverflow:
        return {"errCallStackOverflow", ""};
    case Outcome::stackEmpty:
        return {"errCallStackEmpty", ""};
    case Outcome::badScrpdRead:
        return {"errScrpdRd", ""};
    case Outcome::badScrpdWrite:
        return {"errScrpdWr", ""};
    case Outcome::badRegister:
        return {"internal", "Register index exceeds register count: r"};
    case Outcome::noTarget:
        return {"internal", "No instruction at address: "};
    case Outcome::noVector:
        return {"errNoOpcodeAtIntVect", ""};
    }
    return {"", ""};
}

bool isExecuted(Outcome outcome)
{
    return outcome == Outcome::done || outcome == Outcome::ended || outcome == Outcome::stackEmpty;
}

} // namespace

SideBySide::SideBySide(Family family, const Program& program, const Build& build, bool isFollowed, bool warns)
    : m_family(family)
    , m_program(program)
    , m_isFollowed(isFollowed)
    , m_run(processorName(family), settings(family, build))
{
    if (!m_run.assemble(source())) {
        m_problem = "not assembled: " + m_run.summary();
        return;
    }
    for (nsModAsmFe::Opcode* opcode : *m_run.asmFe.opcodeList()) {
        m_positions[opcode] = int(m_opcodes.size());
        m_opcodes.push_back(opcode);
    }
    if (int(m_opcodes.size()) != program.size()) {
        m_problem = "another number of instructions was assembled";
        return;
    }
    const auto* shell = dynamic_cast<nsProc::ProcShell*>(m_run.processor.currentProcessor());
    nsProc::ProcCoreConfig config = *shell->runConfig();
    config.coreWarnings = int(warns);
    m_sim = std::make_unique<nsProc::ProcSimEngine>(nsProc::procTable(processorName(family)), config);
    m_sim->load(m_run.asmFe.opcodeList());
    m_sim->addObserver(this);
    nsProc::SimOutcome outcome;
    if (!m_sim->setProgramCounter(m_run.asmFe.opcodeList()->opcodeOfMemAddr(0), &outcome)) {
        m_problem = "the simulator does not start";
        return;
    }
    m_model = std::make_unique<NaiveProcessor>(family, m_program, build);
    m_problem = compareState() + compareTheRest();
}

SideBySide::~SideBySide() = default;

/// One line an instruction, each with a label of its position, and what places them.
QStringList SideBySide::source()
{
    QStringList lines;
    if (m_program.pageCount > 1) {
        lines.append(QString("#SET INSTMEM::PAGECOUNT, %1").arg(m_program.pageCount));
        lines.append(QString("#SET INSTMEM::SHAREDMEMLOCATION, %1").arg(m_program.sharedHigh ? "HIMEM" : "LOMEM"));
        // A device of its own: in the default one there is no room for the copies of a shared word at address 0.
        lines += QStringList({"#SET IODEV::rom::EN, TRUE", "#SET IODEV::rom::SIZE, 2048",
                              "#SET IODEV::rom::VALUE, INSTMEM", "#SET IODEV::rom::SIMEN, FALSE"});
    }
    Place last = {m_program.pageCount > 1 ? -1 : 1, -1};
    for (int position = 0; position < m_program.size(); ++position) {
        const Place place = m_program.places[std::size_t(position)];
        if (place.range != last.range)
            lines.append("#ORG MEMRANGE, " +
                         (place.range == 0 ? QString("SHARED") : QString("PAGE%1").arg(place.range - 1)));
        if (place.range != last.range || place.address != last.address + 1)
            lines.append(QString("#ORG ADDR, %1").arg(place.address));
        last = place;
        m_lines.push_back(lines.size());
        lines.append(
            QString("L%1: %2").arg(position).arg(m_program.instructions[std::size_t(position)].text(m_family)));
    }
    return lines;
}

void SideBySide::portWritten(int addr, int value)
{
    m_writes.push_back({addr, value});
}

bool SideBySide::portSource(int addr, int* value, bool* handled)
{
    m_readPorts.push_back(addr);
    *handled = true;
    *value = NaiveProcessor::portValue(m_reads++);
    return true;
}

void SideBySide::goTo(int position)
{
    m_model->moveTo(position);
    nsProc::SimOutcome outcome;
    m_sim->setProgramCounter(m_opcodes[std::size_t(position)], &outcome);
}

void SideBySide::setReg(int index, int value)
{
    m_model->regs[std::size_t(m_model->bank)][std::size_t(index)] = value;
    m_sim->core()->editReg(m_sim->core()->bank(), index, value);
}

void SideBySide::setFlags(bool carry, bool zero)
{
    m_model->carry = carry;
    m_model->zero = zero;
    m_sim->core()->editCarryBit(carry);
    m_sim->core()->editZeroBit(zero);
}

void SideBySide::setHwBuild(int value)
{
    m_model->hwBuild = value;
    m_sim->core()->setHwbld(value);
}

void SideBySide::raiseInterrupt()
{
    if (m_model->interrupt == NaiveProcessor::enabled)
        m_model->interrupt = NaiveProcessor::pending;
    else if (m_model->interrupt == NaiveProcessor::pending)
        m_model->interrupt = NaiveProcessor::enabled;
    m_sim->toggleInterrupt();
}

void SideBySide::clearCalls()
{
    m_model->calls.clear();
    m_sim->callStack()->clear();
    m_sim->ports()->removeIOPlugins();
}

std::string SideBySide::step()
{
    m_before = *m_model;
    const int at = m_before.pc;
    std::string difference = stepQuickly();
    if (difference.empty())
        difference = compareTheRest();
    if (difference.empty())
        return difference;
    return difference + "\n  instruction " + std::to_string(at) + ": " +
           m_program.instructions[std::size_t(at)].text(m_family).toStdString() +
           "\n  both before:     " + text(m_before) + "\n  model after:     " + text(*m_model) +
           "\n  simulator after: " + text(simulated());
}

std::string SideBySide::stepQuickly()
{
    m_writes.clear();
    m_readPorts.clear();
    nsProc::SimOutcome simulated = m_sim->step();
    takeWarnings(&simulated);
    m_outcome = m_model->step();
    return compareOutcome(simulated) + comparePorts(m_model->writes, m_model->readPorts) + compareState();
}

std::string SideBySide::run(int count)
{
    m_writes.clear();
    m_readPorts.clear();
    m_executed.clear();
    nsProc::SimOutcome simulated;
    qint64 executed = 0;
    // A warning ends a run, which goes on behind it.
    for (size_t before = m_warnings.size() + 1; before != m_warnings.size() && executed < count;) {
        before = m_warnings.size();
        executed += m_sim->run(count - executed, nsProc::sSimInstr_t::none, &simulated);
        takeWarnings(&simulated);
        if (!simulated.wentOn() || !simulated.reports.empty() || m_sim->position() == nsProc::sSimInstr_t::none)
            break;
    }
    std::vector<NaiveProcessor::PortWrite> writes;
    std::vector<int> reads;
    std::vector<int> positions;
    int wanted = 0;
    for (m_outcome = Outcome::done; wanted < count && m_outcome == Outcome::done;) {
        m_outcome = m_model->step();
        writes.insert(writes.end(), m_model->writes.begin(), m_model->writes.end());
        reads.insert(reads.end(), m_model->readPorts.begin(), m_model->readPorts.end());
        if (isExecuted(m_outcome)) {
            ++wanted;
            positions.push_back(m_model->executed);
        }
    }
    std::ostringstream text;
    if (executed != wanted)
        text << " executed " << executed << " instead of " << wanted;
    if (m_isFollowed && m_executed != positions)
        text << " other instructions were notified";
    return text.str() + compareOutcome(simulated) + comparePorts(writes, reads) + compareState() + compareTheRest();
}

/// The model knows no core, and no warnings about it.
void SideBySide::takeWarnings(nsProc::SimOutcome* simulated)
{
    std::vector<nsProc::sSimReport_t> rest;
    for (const nsProc::sSimReport_t& report : simulated->reports) {
        if (report.kind == nsProc::sSimReport_t::eKindMessage && report.msg >= nsProc::warnCoreStart)
            m_warnings.emplace_back(report.msg, report.position);
        else
            rest.push_back(report);
    }
    simulated->reports = rest;
}

std::string SideBySide::compareOutcome(const nsProc::SimOutcome& simulated)
{
    std::ostringstream text;
    const nsProc::sSimReport_t* last = simulated.last();
    const std::string key = last != nullptr ? last->key().toStdString() : std::string();
    const Report expected = reportOf(m_outcome);
    if (key != expected.key)
        text << " message " << key << " instead of " << expected.key;
    else if (key == "internal" && !last->arg.startsWith(expected.internalText))
        text << " message " << last->arg.toStdString() << " instead of " << expected.internalText;
    if (simulated.wentOn() != isExecuted(m_outcome))
        text << " result " << simulated.wentOn();
    return text.str();
}

std::string SideBySide::comparePorts(const std::vector<NaiveProcessor::PortWrite>& writes,
                                     const std::vector<int>& reads) const
{
    const bool sameWrites =
        std::equal(m_writes.begin(), m_writes.end(), writes.begin(), writes.end(),
                   [](const auto& a, const auto& b) { return a.port == b.port && a.value == b.value; });
    return std::string(m_readPorts != reads ? " port reads differ" : "") + (sameWrites ? "" : " port writes differ");
}

std::string SideBySide::compareState()
{
    std::ostringstream text;
    const nsProc::ProcSimCoreData& core = *m_sim->core();
    for (int bank = 0; bank < core.bankCount(); ++bank) {
        for (int index = 0; index < core.regCount(); ++index) {
            const int expected = m_model->regs[std::size_t(bank)][std::size_t(index)];
            if (core.regValue(bank, index) != expected)
                text << " register " << bank << '/' << index << ' ' << core.regValue(bank, index) << " instead of "
                     << expected;
        }
    }
    if ((core.carryBit() != 0) != m_model->carry)
        text << " carry " << core.carryBit();
    if ((core.zeroBit() != 0) != m_model->zero)
        text << " zero " << core.zeroBit();
    if (core.bank() != m_model->bank)
        text << " bank " << core.bank();
    if (int(core.interrupt()) != int(m_model->interrupt))
        text << " interrupt " << core.interrupt();
    if (m_sim->clock()->clocks != m_model->clocks)
        text << " clocks " << m_sim->clock()->clocks << " instead of " << m_model->clocks;
    if (m_sim->callStack()->count() != int(m_model->calls.size()))
        text << " calls " << m_sim->callStack()->count() << " instead of " << m_model->calls.size();
    const int pc = m_positions.value(m_sim->programCounter(), -1);
    if (pc != m_model->pc)
        text << " pc " << pc << " instead of " << m_model->pc;
    return text.str();
}

/// Scratchpad, the newest call, and what is shown of the program counter.
std::string SideBySide::compareTheRest()
{
    std::ostringstream text;
    const nsProc::ProcSimCoreData& core = *m_sim->core();
    for (int addr = 0; addr < int(m_model->scrpd.size()); ++addr) {
        int cell = -1;
        core.scrpd(addr, &cell);
        if (cell != m_model->scrpd[std::size_t(addr)])
            text << " scratchpad " << addr << ' ' << cell << " instead of " << m_model->scrpd[std::size_t(addr)];
    }
    if (core.scrpdSize() != int(m_model->scrpd.size()))
        text << " scratchpad size " << core.scrpdSize();
    if (!m_model->calls.empty()) {
        const State::Call& expected = m_model->calls.back();
        const nsProc::sCallStackItem_t& item = m_sim->callStack()->items().back();
        if (item.label != expected.name)
            text << " call of " << item.label.toStdString() << " instead of " << expected.name.toStdString();
        if (item.lineIndex != m_lines[std::size_t(expected.from)] ||
            item.pc != m_program.places[std::size_t(expected.from)].address)
            text << " call at line " << item.lineIndex << ", address " << item.pc;
        if (item.carry != expected.carry || item.zero != expected.zero)
            text << " call with carry " << item.carry << ", zero " << item.zero;
    }
    if (m_model->pc >= 0) {
        const Place& place = m_program.places[std::size_t(m_model->pc)];
        const bool isShown = place.range == 0 ? core.pageName() == QLatin1String("SHARED")
                                              : core.pageName() == m_sim->pageNames().at(place.range);
        if (core.pc() != place.address || !isShown)
            text << " shown address " << core.pc() << " of " << core.pageName().toStdString();
    }
    return text.str();
}

State SideBySide::simulated() const
{
    const nsProc::ProcSimCoreData& core = *m_sim->core();
    State state;
    state.pc = m_positions.value(m_sim->programCounter(), -1);
    for (int bank = 0; bank < core.bankCount(); ++bank) {
        for (int index = 0; index < core.regCount(); ++index)
            state.regs[std::size_t(bank)][std::size_t(index)] = core.regValue(bank, index);
    }
    state.bank = core.bank();
    state.carry = core.carryBit() != 0;
    state.zero = core.zeroBit() != 0;
    state.interrupt = State::Interrupt(core.interrupt());
    for (int addr = 0; addr < core.scrpdSize(); ++addr) {
        int cell = 0;
        core.scrpd(addr, &cell);
        state.scrpd.push_back(cell);
    }
    for (const nsProc::sCallStackItem_t& item : m_sim->callStack()->items()) {
        const auto line = std::find(m_lines.begin(), m_lines.end(), item.lineIndex);
        state.calls.push_back({item.label, int(line - m_lines.begin()), item.carry, item.zero});
    }
    state.clocks = m_sim->clock()->clocks;
    return state;
}

std::string SideBySide::text(const State& state) const
{
    static const char* const interrupts[] = {"enabled", "disabled", "pending", "in service"};
    std::ostringstream text;
    text << "pc " << state.pc << " carry " << state.carry << " zero " << state.zero << " interrupt "
         << interrupts[state.interrupt] << " clocks " << state.clocks << " bank " << state.bank << std::hex
         << " registers";
    for (int bank = 0; bank < m_sim->core()->bankCount(); ++bank) {
        text << (bank > 0 ? " |" : "");
        for (int index = 0; index < m_sim->core()->regCount(); ++index)
            text << ' ' << state.regs[std::size_t(bank)][std::size_t(index)];
    }
    text << " scratchpad";
    for (int cell : state.scrpd)
        text << ' ' << cell;
    text << std::dec << " calls";
    for (const State::Call& call : state.calls)
        text << ' ' << call.name.toStdString() << " from " << call.from << " carry " << call.carry << " zero "
             << call.zero << ';';
    return text.str();
}
