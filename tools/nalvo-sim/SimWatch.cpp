#include "SimWatch.h"

#include "Opcode.h"
#include "ProcSimClock.h"
#include "ProcSimPortNames.h"

namespace nsNalvoSim {

using nsProc::ProcSimWaveData;

QString SimWatch::openReads(const QString& file)
{
    m_reads = std::make_unique<SimReads>();
    return m_reads->open(file);
}

QString SimWatch::openPortReads(int port, const QString& file)
{
    auto reads = std::make_unique<SimReads>();
    const QString failure = reads->open(file);
    m_portReads[port] = std::move(reads);
    return failure;
}

void SimWatch::takeBack()
{
    if (m_pending != nullptr && m_trace.isOn())
        m_trace.takeBack();
    m_pending = nullptr;
}

void SimWatch::instruction(const nsModAsmFe::Opcode* opcode)
{
    m_pending = opcode;
    if (m_trace.isOn())
        m_trace.instruction(opcode->pageAddr, opcode->instWord);
}

void SimWatch::interruptEntered()
{
    if (m_trace.isOn())
        m_trace.interrupt();
}

bool SimWatch::portSource(int addr, int* value, bool* handled)
{
    *handled = true;
    const auto own = m_portReads.find(addr);
    SimReads* source = own != m_portReads.end() ? own->second.get() : m_reads.get();
    m_readPort = addr;
    m_readSource = source;
    m_readResult = SimReads::resultEnd;
    if (source == nullptr)
        return false;
    // The user or program that provides the value may want to see the trace first.
    if (m_trace.isOn() && source->mayWait())
        m_trace.flushExecuted();
    m_readResult = source->next(value);
    return m_readResult == SimReads::resultValue;
}

void SimWatch::portRead(int addr, int value)
{
    if (m_trace.isOn())
        m_trace.read(addr, value);
    keepValue(addr, ProcSimWaveData::eAccessRd, value);
}

void SimWatch::portWritten(int addr, int value)
{
    if (m_trace.isOn())
        m_trace.written(addr, value);
    keepValue(addr, ProcSimWaveData::eAccessWr, value);
}

void SimWatch::scrpdWritten(int addr, int value)
{
    if (m_trace.isOn())
        m_trace.scrpd(addr, value & 0xFF);
}

void SimWatch::keepValue(int addr, ProcSimWaveData::eAccessType_t access, int value)
{
    if (m_clock == nullptr)
        return;
    if (m_waves.channel(addr, access) == nullptr)
        m_waves.addChannel(addr, access,
                           nsProc::ProcSimPortNames::nameOf(m_asmFe, addr, access == ProcSimWaveData::eAccessWr));
    m_waves.addValue(addr, access, value, m_clock->clocks);
}

} // namespace nsNalvoSim
