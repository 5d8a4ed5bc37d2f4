#include "ExactSide.h"

#include "Opcode.h"
#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimIntLine.h"
#include "ProcTables.h"

#include <sstream>

using namespace nsProc;

namespace {

const ProcTable& tableOf(Core core)
{
    return core == Core::PicoBlaze3 ? xpBlze3Table() : core == Core::PicoBlaze6 ? xpBlze6Table() : lMico8v3xTable();
}

} // namespace

ExactSide::ExactSide(Core core, const CoreBuild& build, const Stimulus& stimulus, bool follows)
    : m_follows(follows)
    , m_reads(stimulus.reads)
{
    const ProcTable& table = tableOf(core);
    for (size_t address = 0; address < stimulus.program.size(); ++address) {
        auto* opcode = new nsModAsmFe::Opcode;
        opcode->opcode = nsModAsmFe::ocNop; // only the word counts
        opcode->memRange = 1;
        opcode->memAddr = opcode->pageAddr = int(address);
        opcode->instWord = int(stimulus.program[address]);
        opcode->srcRef.absLineNo = int(address);
        m_opcodes.append(opcode);
    }
    m_opcodes.addressesChanged();
    ProcCoreConfig config = table.defaultConfig();
    config.exactSimulation = 1;
    config.scrpdSize = build.scratchpadSize;
    config.regCount = build.registers;
    config.addressBits = build.addressBits;
    config.waitStates = stimulus.waitStates;
    if (core == Core::PicoBlaze6)
        config.intVectorAddr = build.vector;
    m_engine = std::make_unique<ProcSimEngine>(&table, config);
    m_engine->load(&m_opcodes);
    m_engine->core()->setHwbld(build.hwBuild);
    m_engine->addObserver(this);
    SimOutcome outcome;
    m_engine->moveToStart(&outcome);
    for (const Pulse& pulse : stimulus.interrupts)
        m_engine->intLine()->request(pulse.clock, pulse.length);
}

qint64 ExactSide::clock() const
{
    return m_engine->clock()->clocks;
}

void ExactSide::instruction(int position, qint64 clock)
{
    m_events.push_back({ExactEvent::Instruction, m_engine->program().address(position), 0, 0, clock});
}

bool ExactSide::portSource(int, int* value, bool* handled)
{
    *handled = true;
    *value = m_nextRead < m_reads.size() ? m_reads[m_nextRead] : 0;
    ++m_nextRead;
    return true;
}

std::string ExactSide::run(int count)
{
    for (int done = 0; done < count;) {
        SimOutcome outcome;
        done += int(m_engine->run(count - done, sSimInstr_t::none, &outcome));
        if (!outcome.wentOn())
            return "stopped by " + (outcome.last() != nullptr ? outcome.last()->key().toStdString() : "nothing");
    }
    return "";
}

std::string ExactSide::step(int count)
{
    for (int done = 0; done < count; ++done) {
        const SimOutcome outcome = m_engine->step();
        if (!outcome.wentOn())
            return "stopped by " + (outcome.last() != nullptr ? outcome.last()->key().toStdString() : "nothing");
    }
    return "";
}

std::string ExactSide::differs(const ExactModel& model) const
{
    const ProcSimCoreData& core = *m_engine->core();
    std::ostringstream text;
    const auto compare = [&text](const char* name, int index, int ours, int other) {
        if (ours != other)
            text << name << index << " is " << ours << ", the model has " << other << "; ";
    };
    const std::vector<quint8> registers = model.registers();
    for (int i = 0; i < int(registers.size()); ++i)
        compare("register ", i, core.regValue(i / core.regCount(), i % core.regCount()), registers[size_t(i)]);
    for (int i = 0; i < int(model.scratchpad().size()); ++i) {
        int value = 0;
        core.scrpd(i, &value);
        compare("cell ", i, value, model.scratchpad()[size_t(i)]);
    }
    compare("carry ", 0, core.carryBit(), model.carry() ? 1 : 0);
    compare("zero ", 0, core.zeroBit(), model.zero() ? 1 : 0);
    compare("bank ", 0, core.bank(), model.bank());
    if (!isEntryDue())
        compare("address ", 0, m_engine->program().address(m_engine->position()), model.programCounter());
    compare("clock ", 0, int(clock()), int(model.clock()));
    return text.str();
}
