// Life, program, position and observers.

#include "ProcSimEngine.h"

#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreCheck.h"
#include "ProcSimCoreData.h"
#include "ProcSimDevices.h"
#include "ProcSimExact.h"
#include "ProcSimObserver.h"
#include "ProcSimPorts.h"

#include "Opcode.h"
#include "OpcodeList.h"

#include <QCoreApplication>

#include <algorithm>

namespace nsProc {

using nsModAsmFe::Opcode;

ProcSimEngine::ProcSimEngine(const ProcTable* table, const ProcCoreConfig& config)
    : m_table(table)
    , m_config(config)
    , m_clocksOfInstr(table->instrClkCntOf(config))
    , m_pageNames(QStringLiteral("SHARED"))
    , m_watch([this] { forgetOpcodes(); })
    , m_program(table)
    , m_lastPage(std::min(1, config.pageCount))
    , m_core(
          std::make_shared<ProcSimCoreData>(table->regCountOf(config), table->bankCount(), table->scrpdSizeOf(config)))
    , m_callStack(std::make_shared<ProcSimCallStackData>(table->sim.callStackCapacity))
    , m_ports(std::make_shared<ProcSimPorts>())
    , m_clock(std::make_shared<ProcSimClock>())
{
    for (int page = 0; page < config.pageCount; ++page)
        m_pageNames.append(QStringLiteral("PAGE%1").arg(page));
    if (config.exactSimulation != 0)
        m_exact = std::make_unique<Exact>(this);
    else if (config.coreWarnings != 0)
        m_check = std::make_unique<ProcSimCoreCheck>(*table, m_config, *m_core, *m_callStack);
}

ProcSimEngine::~ProcSimEngine() = default;

void ProcSimEngine::load(nsModAsmFe::OpcodeList* opcodes)
{
    m_opcodes = opcodes;
    m_watch.watch(opcodes);
    forgetOpcodes();
    ensureDecoded();
}

void ProcSimEngine::decode()
{
    m_isDecoded = false;
    ensureDecoded();
}

void ProcSimEngine::forgetOpcodes()
{
    m_pc = sSimInstr_t::none;
    m_question = sQuestion_t();
    m_program.clear();
    m_callStack->forgetPositions();
    m_isDecoded = false;
}

void ProcSimEngine::ensureDecoded()
{
    if (m_isDecoded || m_opcodes == nullptr)
        return;
    if (m_exact != nullptr)
        m_exact->decode(*m_opcodes);
    else
        m_program.decode(*m_opcodes, m_core->regCount(), m_pageNames.size());
    if (m_check != nullptr) {
        m_check->forgetPlaces();
        m_program.leaveToStep([this](const sSimInstr_t& in) { return m_check->looksAt(in); });
    }
    m_isDecoded = true;
}

bool ProcSimEngine::initIODevices(const nsModAsmFe::IODevList& devices, SimOutcome* outcome)
{
    return ProcSimDevices(m_config, m_core.get(), m_ports.get(), outcome).init(devices);
}

bool ProcSimEngine::setProgramCounter(const Opcode* opcode, SimOutcome* outcome)
{
    m_question = sQuestion_t();
    ensureDecoded();
    if (m_exact != nullptr)
        return m_exact->moveTo(opcode, outcome);
    return moveTo(m_program.positionOf(opcode), outcome);
}

bool ProcSimEngine::moveToStart(SimOutcome* outcome)
{
    m_question = sQuestion_t();
    ensureDecoded();
    if (m_exact != nullptr)
        return m_exact->moveToStart(outcome);
    return setProgramCounter(m_opcodes != nullptr ? m_opcodes->opcodeOfMemAddr(0) : nullptr, outcome);
}

bool ProcSimEngine::moveToAddr(int addr, SimOutcome* outcome)
{
    m_question = sQuestion_t();
    ensureDecoded();
    if (m_exact != nullptr)
        return m_exact->moveToAddr(addr);
    const Opcode* target = opcodeOfPage(addr, page());
    return target != nullptr && setProgramCounter(target, outcome);
}

void ProcSimEngine::setConfig(const ProcCoreConfig& config)
{
    // What the simulation was built as stays.
    const int exactSimulation = m_config.exactSimulation;
    m_config = config;
    m_config.exactSimulation = exactSimulation;
}

int ProcSimEngine::clocksOfInstr() const
{
    return m_exact != nullptr ? Exact::maxClocks : m_clocksOfInstr;
}

qint64 ProcSimEngine::accessClock() const
{
    if (m_exact == nullptr)
        return m_clock->clocks + m_clocksOfInstr - 1;
    // The strobe is in the second clock, or later where the port waits.
    return m_clock->clocks + 1 + (m_table->core.hasLongAddresses ? m_config.waitStates : 0);
}

ProcSimIntLine* ProcSimEngine::intLine()
{
    return m_exact != nullptr ? &m_exact->line() : nullptr;
}

bool ProcSimEngine::moveTo(int position, SimOutcome* outcome)
{
    m_pc = position;
    if (position == sSimInstr_t::none) {
        outcome->reportInternal(QCoreApplication::translate("nsProc::ProcSim", "Zero program pointer!"));
        return false;
    }
    const Opcode* opcode = m_program.opcode(position);
    if (opcode->memRange < 0 || opcode->memRange >= m_pageNames.size()) {
        outcome->reportInternal(QCoreApplication::translate("nsProc::ProcSim", "Can not resolve page name!"));
        return false;
    }
    m_core->setPc(opcode->pageAddr, m_pageNames.at(opcode->memRange));
    m_lineIndex = opcode->srcRef.absLineNo;
    if (opcode->memRange > 0)
        m_lastPage = opcode->memRange;
    return true;
}

int ProcSimEngine::page() const
{
    const Opcode* opcode = programCounter();
    return opcode != nullptr && opcode->memRange > 0 ? opcode->memRange : m_lastPage;
}

Opcode* ProcSimEngine::opcodeOfPage(int addr, int memRange) const
{
    if (m_opcodes == nullptr)
        return nullptr;
    Opcode* opcode = m_opcodes->opcodeOfAddr(addr, memRange);
    // If the page has no instruction at the address, it may be in the range that all pages share.
    return opcode != nullptr ? opcode : m_opcodes->opcodeOfAddr(addr, 0);
}

int ProcSimEngine::positionOfPage(int addr, int memRange) const
{
    return m_program.positionOf(opcodeOfPage(addr, memRange));
}

void ProcSimEngine::toggleInterrupt()
{
    if (m_exact != nullptr) {
        m_exact->line().request(m_clock->clocks, 1);
        return;
    }
    if (m_core->interrupt() == eIntEnabled)
        m_core->setInterrupt(eIntPending);
    else if (m_core->interrupt() == eIntPending)
        m_core->setInterrupt(eIntEnabled);
    else if (m_check != nullptr)
        m_check->requestLost();
}

void ProcSimEngine::reset()
{
    if (m_exact != nullptr) {
        m_exact->reset();
    } else {
        m_core->clear();
        m_callStack->clear();
    }
    if (m_check != nullptr)
        m_check->clear();
    m_ports->clear();
    m_question = sQuestion_t();
}

void ProcSimEngine::clearHighlights()
{
    m_core->clearHighlighted();
    m_ports->clearTouched();
}

void ProcSimEngine::addObserver(ProcSimObserver* observer)
{
    m_observers.push_back(observer);
    if (observer->followsInstructions())
        m_followers.push_back(observer);
}

void ProcSimEngine::removeObserver(ProcSimObserver* observer)
{
    for (std::vector<ProcSimObserver*>* list : {&m_observers, &m_followers})
        list->erase(std::remove(list->begin(), list->end(), observer), list->end());
}

} // namespace nsProc
