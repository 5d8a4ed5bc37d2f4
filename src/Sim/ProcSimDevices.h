#pragma once

namespace nsModAsmFe {
class IODev;
class IODevList;
} // namespace nsModAsmFe

namespace nsProc {

class ProcSimCoreData;
class ProcSimPorts;
struct ProcCoreConfig;
struct SimOutcome;

/// Makes the devices that a program declares for the simulator, and fills the scratchpad from the one that is for it.
class ProcSimDevices
{
public:
    /// Reads the settings; writes scratchpad, ports and reports. Nothing is owned.
    ProcSimDevices(const ProcCoreConfig& config, ProcSimCoreData* core, ProcSimPorts* ports, SimOutcome* outcome)
        : m_config(config)
        , m_core(*core)
        , m_ports(*ports)
        , m_outcome(*outcome)
    {
    }

    /// @return false after a reported error; the devices without one are made nevertheless
    bool init(const nsModAsmFe::IODevList& devices);

private:
    bool initDevice(const nsModAsmFe::IODev& dev);

    const ProcCoreConfig& m_config;
    ProcSimCoreData& m_core;
    ProcSimPorts& m_ports;
    SimOutcome& m_outcome;
};

} // namespace nsProc
