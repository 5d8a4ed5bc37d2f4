#pragma once

#include "ProcSimObserver.h"
#include "ProcSimWaveData.h"
#include "SimReads.h"
#include "SimTrace.h"

#include <QString>

#include <map>
#include <memory>

class ModAsmFeHookIf;

namespace nsProc {
struct ProcSimClock;
}

namespace nsNalvoSim {

/// Connects the simulator with the files of a run: supplies the values that the program reads, records trace and waves.
class SimWatch : public nsProc::ProcSimObserver
{
public:
    /// Opens a source of values for all ports that have none of their own, or for one port.
    /// @return why that failed, or an empty text
    QString openReads(const QString& file);
    QString openPortReads(int port, const QString& file);
    /// Records waves from now on.
    /// @param clock must outlive the watching
    /// @param asmFe the program, which has names for the ports; must outlive the watching
    void keepWaves(const nsProc::ProcSimClock* clock, ModAsmFeHookIf* asmFe)
    {
        m_clock = clock;
        m_asmFe = asmFe;
    }
    nsProc::ProcSimWaveData& waves() { return m_waves; }
    SimTrace& trace() { return m_trace; }

    /// To be called before each instruction.
    void begin() { m_pending = nullptr; }
    /// To be called after an instruction that had no effect.
    void takeBack();
    /// The instruction that was started last; null if there was none since begin().
    const nsModAsmFe::Opcode* opcode() const { return m_pending; }
    /// Result of the last read of a source.
    SimReads::eResult_t readResult() const { return m_readResult; }
    /// The port of that read.
    int readPort() const { return m_readPort; }
    /// The source of that read; null if the port has none.
    const SimReads* readSource() const { return m_readSource; }

    // ProcSimObserver
    void instruction(const nsModAsmFe::Opcode* opcode) override;
    void interruptEntered() override;
    bool portSource(int addr, int* value, bool* handled) override;
    void portRead(int addr, int value) override;
    void portWritten(int addr, int value) override;
    void scrpdWritten(int addr, int value) override;

private:
    void keepValue(int addr, nsProc::ProcSimWaveData::eAccessType_t access, int value);

    SimTrace m_trace;
    std::unique_ptr<SimReads> m_reads;
    std::map<int, std::unique_ptr<SimReads>> m_portReads;
    const nsProc::ProcSimClock* m_clock = nullptr;
    ModAsmFeHookIf* m_asmFe = nullptr;
    nsProc::ProcSimWaveData m_waves{0};
    const nsModAsmFe::Opcode* m_pending = nullptr;
    SimReads::eResult_t m_readResult = SimReads::resultValue;
    int m_readPort = 0;
    const SimReads* m_readSource = nullptr;
};

} // namespace nsNalvoSim
