#pragma once

#include "ProcSimObserver.h"
#include "SimInputFiles.h"
#include "SimReads.h"
#include "SimStimulus.h"

#include <QString>

#include <functional>
#include <map>
#include <memory>

namespace nsProc {
class ProcSimEngine;
}

namespace nsBatch {

/// Supplies the values that the program reads from ports without a device.
class SimPortReads : public nsProc::ProcSimObserver
{
public:
    /// Opens the files.
    /// @return false after a reported error
    bool open(const SimInputFiles& files);
    /// Looks whether the engine has no devices for the ports of the files, and reads its clock from now on.
    /// @param engine is set up; not owned
    /// @return false after a reported error
    bool connectTo(nsProc::ProcSimEngine* engine);
    /// @param prepare is called before a wait for a value
    void setBeforeWait(const std::function<void()>& prepare) { m_beforeWait = prepare; }

    /// Changes by the clock; none without a file of them.
    const SimStimulus& stimulus() const { return m_stimulus; }

    /// Result of the last read of a source.
    SimReads::eResult_t result() const { return m_result; }
    /// The source of that read; null if the port has none.
    const SimReads* source() const { return m_source; }

    // ProcSimObserver
    bool followsInstructions() const override { return false; }
    bool portSource(int addr, int* value, bool* handled) override;

private:
    std::unique_ptr<SimReads> openFile(const QString& name) const;

    std::function<void()> m_beforeWait;
    const nsProc::ProcSimEngine* m_engine = nullptr;
    SimStimulus m_stimulus;
    std::unique_ptr<SimReads> m_reads;
    std::map<int, std::unique_ptr<SimReads>> m_portReads;
    SimReads::eResult_t m_result = SimReads::resultValue;
    const SimReads* m_source = nullptr;
};

} // namespace nsBatch
