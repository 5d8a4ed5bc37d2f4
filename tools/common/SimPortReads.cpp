#include "SimPortReads.h"

namespace nsBatch {

QString SimPortReads::open(const QString& file)
{
    m_reads = std::make_unique<SimReads>();
    return m_reads->open(file);
}

QString SimPortReads::openPort(int port, const QString& file)
{
    auto reads = std::make_unique<SimReads>();
    const QString failure = reads->open(file);
    m_portReads[port] = std::move(reads);
    return failure;
}

bool SimPortReads::portSource(int addr, int* value, bool* handled)
{
    *handled = true;
    const auto own = m_portReads.find(addr);
    SimReads* source = own != m_portReads.end() ? own->second.get() : m_reads.get();
    m_source = source;
    m_result = SimReads::resultEnd;
    if (source == nullptr)
        return false;
    // The user or program that provides the value may want to see the trace first.
    if (m_beforeWait && source->mayWait())
        m_beforeWait();
    m_result = source->next(value);
    return m_result == SimReads::resultValue;
}

} // namespace nsBatch
