#pragma once

#include "ProcSimObserver.h"
#include "ProcSimWaveData.h"

#include <functional>
#include <memory>

namespace nsProc {

struct ProcSimClock;

/// Keeps the values that pass through the watched ports of a simulated processor, with the clock count at which they
/// pass.
class ProcSimWaveRecorder : public ProcSimObserver
{
public:
    using NameOf = std::function<QString(int addr, ProcSimWaveData::eAccessType_t access)>;

    /// Reads the clock, writes the data.
    ProcSimWaveRecorder(std::shared_ptr<ProcSimWaveData> data, std::shared_ptr<const ProcSimClock> clock);

    /// Watches each port from its first access on.
    /// @param nameOf what the program calls a port
    void watchAll(NameOf nameOf) { m_nameOf = std::move(nameOf); }

    // ProcSimObserver
    bool followsInstructions() const override { return false; }
    void portRead(int addr, int value) override;
    void portWritten(int addr, int value) override;
    void constantWritten(int lines, int value) override;

private:
    void addValue(int addr, ProcSimWaveData::eAccessType_t access, int value);

    std::shared_ptr<ProcSimWaveData> m_data;
    std::shared_ptr<const ProcSimClock> m_clock;
    NameOf m_nameOf; ///< empty unless all ports are watched
};

} // namespace nsProc
