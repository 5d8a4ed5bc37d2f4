#include "ProcSimWaveRecorder.h"

#include "ProcSimClock.h"

namespace nsProc {

ProcSimWaveRecorder::ProcSimWaveRecorder(std::shared_ptr<ProcSimWaveData> data,
                                         std::shared_ptr<const ProcSimClock> clock)
    : m_data(std::move(data))
    , m_clock(std::move(clock))
{
}

void ProcSimWaveRecorder::portRead(int addr, int value)
{
    addValue(addr, ProcSimWaveData::eAccessRd, value);
}

void ProcSimWaveRecorder::portWritten(int addr, int value)
{
    addValue(addr, ProcSimWaveData::eAccessWr, value);
}

void ProcSimWaveRecorder::constantWritten(int lines, int value)
{
    // The upper lines show a part of the constant.
    portWritten(lines & 0xF, value);
}

void ProcSimWaveRecorder::addValue(int addr, ProcSimWaveData::eAccessType_t access, int value)
{
    if (m_nameOf && m_data->channel(addr, access) == nullptr)
        m_data->addChannel(addr, access, m_nameOf(addr, access));
    m_data->addValue(addr, access, value, m_clock->clocks);
}

} // namespace nsProc
