#pragma once

#include "ProcSimObserver.h"
#include "SimReads.h"

#include <QString>

#include <functional>
#include <map>
#include <memory>

namespace nsBatch {

/// Supplies the values that the program reads from ports without a device.
class SimPortReads : public nsProc::ProcSimObserver
{
public:
    /// Opens a source of values for all ports that have none of their own, or for one port.
    /// @return why that failed, or an empty text
    QString open(const QString& file);
    QString openPort(int port, const QString& file);
    /// @param prepare is called before a wait for a value
    void setBeforeWait(const std::function<void()>& prepare) { m_beforeWait = prepare; }

    /// Result of the last read of a source.
    SimReads::eResult_t result() const { return m_result; }
    /// The source of that read; null if the port has none.
    const SimReads* source() const { return m_source; }

    // ProcSimObserver
    bool followsInstructions() const override { return false; }
    bool portSource(int addr, int* value, bool* handled) override;

private:
    std::function<void()> m_beforeWait;
    std::unique_ptr<SimReads> m_reads;
    std::map<int, std::unique_ptr<SimReads>> m_portReads;
    SimReads::eResult_t m_result = SimReads::resultValue;
    const SimReads* m_source = nullptr;
};

} // namespace nsBatch
