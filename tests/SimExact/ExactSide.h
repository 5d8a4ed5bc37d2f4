#pragma once

#include "CoreRun.h"

#include "OpcodeList.h"
#include "ProcSimCoreData.h"
#include "ProcSimEngine.h"
#include "ProcSimObserver.h"

/// The simulation exactly as the core, with words in and events out as the naive models have them.
class ExactSide : private nsProc::ProcSimObserver
{
public:
    /// @param follows the run loop notifies each instruction
    ExactSide(Core core, const CoreBuild& build, const Stimulus& stimulus, bool follows = true);

    /// Executes so many instructions. @return what has ended the run too early; empty if nothing has
    std::string run(int count);
    /// The same one by one.
    std::string step(int count);
    /// Nothing if the state is that of the model, else the first difference.
    std::string differs(const ExactModel& model) const;

    const ExactEvents& events() const { return m_events; }
    void forgetEvents() { m_events.clear(); }
    nsProc::ProcSimEngine& engine() { return *m_engine; }
    qint64 clock() const;
    /// The next instruction is that at the vector; the entry is not seen yet, and may cost no clock.
    bool isEntryDue() const { return m_engine->core()->interrupt() == nsProc::eIntPending; }

private:
    bool followsInstructions() const override { return m_follows; }
    void instruction(int position, qint64 clock) override;
    void refused(int) override { m_events.pop_back(); }
    void interruptEntered() override { m_events.push_back({ExactEvent::Interrupt, 0, 0, 0, 0}); }
    void coreReset() override { m_events.push_back({ExactEvent::Reset, 0, 0, 0, 0}); }
    bool portSource(int addr, int* value, bool* handled) override;
    void portRead(int addr, int value) override { m_events.push_back({ExactEvent::Read, 0, addr, value, 0}); }
    void portWritten(int addr, int value) override { m_events.push_back({ExactEvent::Write, 0, addr, value, 0}); }
    void constantWritten(int lines, int value) override
    {
        m_events.push_back({ExactEvent::ConstantWrite, 0, lines, value, 0});
    }

    bool m_follows;
    nsModAsmFe::OpcodeList m_opcodes;
    std::unique_ptr<nsProc::ProcSimEngine> m_engine;
    std::vector<quint8> m_reads;
    size_t m_nextRead = 0;
    ExactEvents m_events;
};
