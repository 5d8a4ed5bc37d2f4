// Values of the simulation, for those who only look at them.

#include "ModProcessor.h"

#include "ProcPluginIf.h"
#include "ProcShell.h"
#include "ProcSim.h"
#include "ProcSimCoreData.h"
#include "ProcSimEngine.h"
#include "ProcSimPorts.h"
#include "ProcTable.h"

namespace nsModProcessor {

namespace {

const int byteValues = 256;

} // namespace

/// Null without a simulation.
nsProc::ProcSim* ModProcessor::sim() const
{
    auto* shell = dynamic_cast<nsProc::ProcShell*>(m_current);
    nsProc::ProcSim* sim = shell != nullptr ? shell->sim() : nullptr;
    return sim != nullptr && sim->engine() != nullptr ? sim : nullptr;
}

bool ModProcessor::isSimulating()
{
    return sim() != nullptr;
}

bool ModProcessor::registerValue(const QString& name, int* value)
{
    const nsProc::ProcSim* sim = this->sim();
    if (sim == nullptr)
        return false;
    for (int i = 0; i < sim->core()->regCount(); ++i) {
        if (sim->engine()->table().regName(i) != name)
            continue;
        *value = sim->core()->regValue(sim->core()->bank(), i);
        return true;
    }
    return false;
}

bool ModProcessor::scratchpadValue(int addr, int* value)
{
    const nsProc::ProcSim* sim = this->sim();
    return sim != nullptr && sim->core()->scrpd(addr, value);
}

bool ModProcessor::portValue(int addr, int* value)
{
    const nsProc::ProcSim* sim = this->sim();
    if (sim == nullptr)
        return false;
    for (nsProc::ProcSimIOPluginIf* device : sim->ports()->devices()) {
        if (!device->chkAddr(addr))
            continue;
        // A read would take the value out of some devices: they are only asked what they hold.
        for (int candidate = 0; candidate < byteValues; ++candidate) {
            if (device->holds(addr, candidate)) {
                *value = candidate;
                return true;
            }
        }
        return false;
    }
    return false;
}

} // namespace nsModProcessor
