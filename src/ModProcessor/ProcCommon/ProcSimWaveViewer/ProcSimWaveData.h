#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>
#include <vector>

namespace nsProc {

/// The values that have passed through the watched ports of a simulated processor, by time.
class ProcSimWaveData
{
public:
    enum eAccessType_t { eAccessRd = 0, eAccessWr = 1 };

    /// A value and the clock count at which it passed.
    struct sValue_t
    {
        qint64 clock;
        int value; ///< 0 to 255
    };

    /// One watched port.
    struct sAddrChannel_t
    {
        int addr = 0;
        eAccessType_t access = eAccessRd;
        QString name;
        std::vector<sValue_t> values; ///< in the order of time
        bool dropped = false;         ///< the oldest values were given up for room
    };

    /// @param limit values that a channel keeps: beyond that the older half is given up; 0 for no limit
    explicit ProcSimWaveData(size_t limit = size_t(1) << 22) : m_limit(limit) {}

    bool isEmpty() const { return m_channels.empty(); }
    const std::vector<std::unique_ptr<sAddrChannel_t>>& channels() const { return m_channels; }
    /// @return owned by this object, lives until clear()
    sAddrChannel_t* addChannel(int addr, eAccessType_t access, const QString& name);
    /// Null if there is none.
    sAddrChannel_t* channel(int addr, eAccessType_t access) const;
    /// Appends to every channel of the address and access.
    /// @param clock clock count, not below that of the value before
    void addValue(int addr, eAccessType_t access, int value, qint64 clock);
    /// Forgets the values, keeps the channels.
    void clearValues();
    void clear();
    /// Counts changes, for whoever shows the waves.
    unsigned changes() const { return m_changes; }

private:
    size_t m_limit;
    unsigned m_changes = 0;
    std::vector<std::unique_ptr<sAddrChannel_t>> m_channels;
};

} // namespace nsProc
