#include "SideBySide.h"

#include "LMico8v3xConfig.h"
#include "LMico8v3xSim.h"
#include "Opcode.h"
#include "OpcodeList.h"
#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimPorts.h"
#include "XPBlze3Config.h"
#include "XPBlze3Sim.h"
#include "XPBlze6Config.h"
#include "XPBlze6Sim.h"

#include <sstream>

namespace {

const int mico8Clocks = 3;
const int mico8Scrpd = 64;

QString processorName(Family family)
{
    return family == Family::PicoBlaze3   ? "Xilinx PicoBlaze 3"
           : family == Family::PicoBlaze6 ? "Xilinx PicoBlaze 6"
                                          : "Lattice Mico8 v3.x";
}

std::unique_ptr<nsProc::ProcSim> makeSim(Family family)
{
    if (family == Family::PicoBlaze3)
        return std::make_unique<nsXPBlze3::XPBlze3Sim>();
    if (family == Family::PicoBlaze6)
        return std::make_unique<nsXPBlze6::XPBlze6Sim>();
    return std::make_unique<nsLMico8v3x::LMico8v3xSim>();
}

nsProc::ProcCoreConfig makeConfig(Family family)
{
    if (family == Family::PicoBlaze3)
        return nsXPBlze3::XPBlze3Config();
    if (family == Family::PicoBlaze6)
        return nsXPBlze6::XPBlze6Config();
    nsLMico8v3x::LMico8v3xConfig config;
    config.instrClkCnt = mico8Clocks;
    config.scrpdSize = mico8Scrpd;
    return config;
}

const char* keyOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::done:
    case Outcome::ended:
        return "";
    case Outcome::stackOverflow:
        return "errCallStackOverflow";
    case Outcome::stackEmpty:
        return "errCallStackEmpty";
    case Outcome::badScrpdRead:
        return "errScrpdRd";
    case Outcome::badScrpdWrite:
        return "errScrpdWr";
    case Outcome::noTarget:
        return "internal";
    case Outcome::noVector:
        return "errNoOpcodeAtIntVect";
    }
    return "";
}

} // namespace

const char* nameOf(Family family)
{
    return family == Family::PicoBlaze3 ? "PicoBlaze3" : family == Family::PicoBlaze6 ? "PicoBlaze6" : "Mico8";
}

SideBySide::SideBySide(Family family, const std::vector<Instruction>& program)
    : m_family(family)
    , m_program(program)
    , m_run(processorName(family), {{"LMico8v3x/scrpdSize", mico8Scrpd}, {"LMico8v3x/instrClkCnt", mico8Clocks}})
    , m_sim(makeSim(family))
{
    QStringList lines;
    for (std::size_t address = 0; address < program.size(); ++address)
        lines.append(QString("L%1: %2").arg(address).arg(program[address].text(family)));
    if (!m_run.assemble(lines)) {
        m_problem = m_run.summary();
        return;
    }
    for (nsModAsmFe::Opcode* opcode : *m_run.asmFe.opcodeList())
        m_opcodes.push_back(opcode);
    nsProc::ProcCoreConfig config = makeConfig(family);
    m_run.asmFe.instMemConfig(&config.pageSize, &config.pageCount, &config.sharedMemHi);
    m_sim->modAsmFeHook = &m_run.asmFe;
    m_sim->setObserver(this);
    if (!m_sim->simInit(&config)) {
        m_problem = "the simulator does not start";
        return;
    }
    const int clocks = family == Family::Mico8 ? mico8Clocks : 2;
    m_model = std::make_unique<NaiveProcessor>(family, m_program, config.scrpdSize, config.intVectorAddr, clocks);
}

SideBySide::~SideBySide() = default;

void SideBySide::portWritten(int addr, int value)
{
    m_writes.push_back({addr, value});
}

bool SideBySide::portSource(int, int* value, bool* handled)
{
    *handled = true;
    *value = NaiveProcessor::portValue(m_reads++);
    return true;
}

void SideBySide::goTo(int address)
{
    m_model->pc = address;
    m_sim->setProgramCounter(m_opcodes[std::size_t(address)]);
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
    m_sim->simInt();
}

void SideBySide::clearCalls()
{
    m_model->calls.clear();
    m_sim->callStack()->clear();
    m_sim->ports()->removeIOPlugins();
}

std::string SideBySide::step()
{
    m_writes.clear();
    const bool simulated = m_sim->simOpcode();
    return compare(m_model->step(), simulated, true);
}

std::string SideBySide::stepQuickly()
{
    m_writes.clear();
    const bool simulated = m_sim->simOpcode();
    return compare(m_model->step(), simulated, false);
}

std::string SideBySide::compare(Outcome outcome, bool simulated, bool all)
{
    std::string difference = compareOutcome(outcome, simulated);
    if (difference.empty())
        difference = compareState(all);
    return difference;
}

std::string SideBySide::compareOutcome(Outcome outcome, bool simulated)
{
    std::ostringstream text;
    const std::string key = m_sim->takeLastMsg().toStdString();
    // The end of the program is told beside whatever else there is to tell.
    const std::string expected = outcome == Outcome::ended ? "internal" : keyOf(outcome);
    if (key != expected)
        text << "message " << key << " instead of " << expected;
    const bool goesOn = outcome == Outcome::done || outcome == Outcome::ended || outcome == Outcome::stackEmpty;
    if (simulated != goesOn)
        text << " result " << simulated;
    if (m_reads != m_model->reads)
        text << " reads " << m_reads << " instead of " << m_model->reads;
    bool sameWrites = m_writes.size() == m_model->writes.size();
    for (std::size_t i = 0; sameWrites && i < m_writes.size(); ++i)
        sameWrites = m_writes[i].port == m_model->writes[i].port && m_writes[i].value == m_model->writes[i].value;
    if (!sameWrites)
        text << " port writes differ";
    return text.str();
}

std::string SideBySide::compareState(bool all)
{
    std::ostringstream text;
    const nsProc::ProcSimCoreData& core = *m_sim->core();
    for (int bank = 0; bank < core.bankCount(); ++bank) {
        for (int index = 0; index < core.regCount(); ++index) {
            const int expected = m_model->regs[std::size_t(bank)][std::size_t(index)];
            if (core.regValue(bank, index) != expected)
                text << " register " << bank << '/' << index << ' ' << core.regValue(bank, index) << " instead of " << expected;
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
        text << " calls " << m_sim->callStack()->count();
    const nsModAsmFe::Opcode* pc = m_sim->programCounter();
    if ((pc != nullptr ? pc->pageAddr : -1) != m_model->pc)
        text << " pc " << (pc != nullptr ? pc->pageAddr : -1) << " instead of " << m_model->pc;
    for (int addr = 0; all && addr < int(m_model->scrpd.size()); ++addr) {
        int cell = -1;
        core.scrpd(addr, &cell);
        if (cell != m_model->scrpd[std::size_t(addr)])
            text << " scratchpad " << addr << ' ' << cell;
    }
    return text.str();
}
