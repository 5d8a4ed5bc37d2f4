#include "ProcSimWaveData.h"

namespace nsProc {

ProcSimWaveData::sAddrChannel_t* ProcSimWaveData::addChannel(int addr, eAccessType_t access, const QString& name)
{
    auto added = std::make_unique<sAddrChannel_t>();
    added->addr = addr;
    added->access = access;
    added->name = name;
    m_channels.push_back(std::move(added));
    ++m_changes;
    return m_channels.back().get();
}

ProcSimWaveData::sAddrChannel_t* ProcSimWaveData::channel(int addr, eAccessType_t access) const
{
    for (const auto& candidate : m_channels) {
        if (candidate->addr == addr && candidate->access == access)
            return candidate.get();
    }
    return nullptr;
}

void ProcSimWaveData::addValue(int addr, eAccessType_t access, int value, qint64 clock)
{
    for (const auto& target : m_channels) {
        if (target->addr != addr || target->access != access)
            continue;
        if (m_limit != 0 && target->values.size() >= m_limit) {
            target->values.erase(target->values.begin(), target->values.begin() + long(target->values.size() / 2));
            target->dropped = true;
        }
        target->values.push_back({clock, value});
        ++m_changes;
    }
}

void ProcSimWaveData::clearValues()
{
    for (const auto& target : m_channels) {
        std::vector<sValue_t>().swap(target->values);
        target->dropped = false;
    }
    ++m_changes;
}

void ProcSimWaveData::clear()
{
    m_channels.clear();
    ++m_changes;
}

} // namespace nsProc
