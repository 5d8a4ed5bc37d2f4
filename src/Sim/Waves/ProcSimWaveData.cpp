#include "ProcSimWaveData.h"

#include <algorithm>

namespace nsProc {

namespace {

void appendBits(ProcSimWaveData::sAddrChannel_t* channel, size_t index, int value)
{
    if (index % ProcSimWaveData::blockSize == 0)
        channel->blocks.emplace_back();
    channel->blocks.back().add(value);
}

bool isBefore(const ProcSimWaveData::sValue_t& value, qint64 clock)
{
    return value.clock < clock;
}

} // namespace

ProcSimWaveData::sAddrChannel_t* ProcSimWaveData::addChannel(int addr, eAccessType_t access, const QString& name)
{
    if (channel(addr, access) != nullptr)
        return nullptr;
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

void ProcSimWaveData::removeChannel(const sAddrChannel_t* channel)
{
    const auto found = std::find_if(m_channels.begin(), m_channels.end(),
                                    [channel](const auto& candidate) { return candidate.get() == channel; });
    if (found == m_channels.end())
        return;
    m_count -= channel->values.size();
    m_channels.erase(found);
    ++m_changes;
}

void ProcSimWaveData::addValue(int addr, eAccessType_t access, int value, qint64 clock)
{
    sAddrChannel_t* target = channel(addr, access);
    if (target == nullptr)
        return;
    setClock(clock);
    if (m_limit != 0 && m_count >= m_limit)
        makeRoom();
    value &= 0xFF;
    appendBits(target, target->values.size(), value);
    target->values.push_back({clock, value});
    ++m_count;
    ++m_changes;
}

/// Deletes the older half of the channel with the most values. Releases its memory too, so that there is never room for
/// more than about twice the limit.
void ProcSimWaveData::makeRoom()
{
    const auto longest =
        std::max_element(m_channels.begin(), m_channels.end(), [](const auto& left, const auto& right) {
            return left->values.size() < right->values.size();
        });
    sAddrChannel_t* channel = longest->get();
    const size_t count = channel->values.size() - channel->values.size() / 2;
    std::vector<sValue_t> kept(channel->values.begin() + std::ptrdiff_t(count), channel->values.end());
    channel->values.swap(kept);
    channel->blocks.clear();
    for (size_t index = 0; index < channel->values.size(); ++index)
        appendBits(channel, index, channel->values[index].value);
    channel->dropped = true;
    m_count -= count;
}

void ProcSimWaveData::clearValues()
{
    for (const auto& target : m_channels)
        clearValues(target.get());
    m_clock = 0;
}

void ProcSimWaveData::clearValues(sAddrChannel_t* channel)
{
    if (channel->values.empty())
        return;
    m_count -= channel->values.size();
    std::vector<sValue_t>().swap(channel->values);
    std::vector<sBits_t>().swap(channel->blocks);
    channel->dropped = false;
    ++m_changes;
}

void ProcSimWaveData::clear()
{
    m_channels.clear();
    m_count = 0;
    ++m_changes;
}

void ProcSimWaveData::setClock(qint64 clock)
{
    if (clock < m_clock)
        clearValues();
    m_clock = clock;
}

ProcSimWaveData::sBits_t ProcSimWaveData::bits(const sAddrChannel_t& channel, size_t first, size_t end)
{
    sBits_t result;
    while (first < end) {
        if (first % blockSize == 0 && end - first >= blockSize) {
            result.add(channel.blocks[first / blockSize]);
            first += blockSize;
        } else {
            result.add(channel.values[first].value);
            ++first;
        }
    }
    return result;
}

size_t ProcSimWaveData::indexAt(const sAddrChannel_t& channel, qint64 clock, size_t from)
{
    const auto& values = channel.values;
    size_t step = 1;
    size_t low = from;
    while (low + step < values.size() && values[low + step].clock < clock) {
        low += step;
        step *= 2;
    }
    const size_t high = std::min(values.size(), low + step + 1);
    if (low >= high)
        return values.size();
    const auto begin = values.begin();
    return size_t(std::lower_bound(begin + std::ptrdiff_t(low), begin + std::ptrdiff_t(high), clock, isBefore) - begin);
}

} // namespace nsProc
