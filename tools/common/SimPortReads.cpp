#include "SimPortReads.h"

#include "BatchOutput.h"
#include "ProcSimEngine.h"
#include "ProcSimPorts.h"

#include <QCoreApplication>

namespace nsBatch {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nsBatch", text);
}

} // namespace

/// @return null after a reported error
std::unique_ptr<SimReads> SimPortReads::openFile(const QString& name) const
{
    auto reads = std::make_unique<SimReads>();
    const QString failure = reads->open(name);
    if (failure.isEmpty())
        return reads;
    printError(tr("Can not read %1: %2").arg(reads->shownName(), failure));
    return nullptr;
}

bool SimPortReads::open(const SimInputFiles& files)
{
    if (!files.reads.isEmpty()) {
        m_reads = openFile(files.reads);
        if (m_reads == nullptr)
            return false;
    }
    for (auto it = files.ports.cbegin(); it != files.ports.cend(); ++it) {
        m_portReads[it.key()] = openFile(it.value());
        if (m_portReads[it.key()] == nullptr)
            return false;
    }
    if (files.stimulus.isEmpty())
        return true;
    const QString failure = m_stimulus.read(files.stimulus);
    if (!failure.isEmpty()) {
        printError(failure);
        return false;
    }
    for (const int port : m_stimulus.ports()) {
        if (files.ports.contains(port))
            return wrongUsage(tr("Both --port and --stimulus have values for one port: %1").arg(port));
    }
    return true;
}

bool SimPortReads::connectTo(nsProc::ProcSimEngine* engine)
{
    m_engine = engine;
    QList<int> ports = m_stimulus.ports();
    for (const auto& reads : m_portReads)
        ports.append(reads.first);
    for (const int port : ports) {
        if (engine->ports()->deviceToRead(port) != nullptr)
            return wrongUsage(tr("A device of the project answers at the port already: %1").arg(port));
    }
    return true;
}

bool SimPortReads::portSource(int addr, int* value, bool* handled)
{
    *handled = true;
    if (m_stimulus.hasPort(addr)) {
        *value = m_stimulus.value(addr, m_engine->accessClock());
        return true;
    }
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
