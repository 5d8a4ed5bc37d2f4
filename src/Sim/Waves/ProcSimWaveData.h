#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>
#include <vector>

namespace nsProc {

/// The values that have passed through the watched ports of a simulated processor, by time.
///
/// Time is the clock count. It only goes forward: when it goes back, because the user has cleared the count, all values
/// are deleted and time restarts. Uses no widgets, so that values can be added at the full speed of the simulator.
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

    /// Which bits are set in any and which in all of a number of values. A bit wave shows this where several values
    /// share a pixel.
    struct sBits_t
    {
        quint8 any = 0;
        quint8 all = 0xFF;

        void add(int value)
        {
            any = quint8(any | value);
            all = quint8(all & value);
        }
        void add(const sBits_t& other)
        {
            any |= other.any;
            all &= other.all;
        }
        /// Were all values the same?
        bool isUniform() const { return any == all; }
    };

    /// One watched port.
    struct sAddrChannel_t
    {
        int addr = 0;
        eAccessType_t access = eAccessRd;
        QString name;
        std::vector<sValue_t> values; ///< in the order of time
        std::vector<sBits_t> blocks;  ///< the bits of each blockSize values, the last block may be a part
        bool dropped = false;         ///< the oldest values were deleted to limit the memory
    };

    static constexpr size_t blockSize = 64;

    /// @param limit values that all channels together keep: beyond that, the older half of the longest one is deleted;
    /// 0 for no limit
    explicit ProcSimWaveData(size_t limit = size_t(1) << 22)
        : m_limit(limit)
    {
    }
    ProcSimWaveData(const ProcSimWaveData&) = delete;
    ProcSimWaveData& operator=(const ProcSimWaveData&) = delete;

    bool isEmpty() const { return m_channels.empty(); }
    const std::vector<std::unique_ptr<sAddrChannel_t>>& channels() const { return m_channels; }
    /// @return owned by this object, lives until it is removed; null if the address and access are watched already
    sAddrChannel_t* addChannel(int addr, eAccessType_t access, const QString& name);
    /// Null if there is none.
    sAddrChannel_t* channel(int addr, eAccessType_t access) const;
    /// Forgets the channel with its values; it is deleted.
    void removeChannel(const sAddrChannel_t* channel);
    /// Appends to the channel of the address and access, if there is one.
    /// @param value 0 to 255
    /// @param clock clock count; below that of the value before, time restarts
    void addValue(int addr, eAccessType_t access, int value, qint64 clock);
    /// Forgets the values, keeps the channels. Time starts at 0.
    void clearValues();
    void clearValues(sAddrChannel_t* channel);
    void clear();

    /// Time goes on without a value. Below the present time, it restarts.
    void setClock(qint64 clock);
    /// The present time: clock count of the last value or of setClock().
    qint64 clock() const { return m_clock; }
    /// Counts changes of values and channels, for whoever shows the waves.
    unsigned changes() const { return m_changes; }

    /// The bits of the values `first` up to, but not including, `end`. Fast even for many values.
    static sBits_t bits(const sAddrChannel_t& channel, size_t first, size_t end);
    /// Index of the first value at or after a time, the number of values if there is none.
    /// @param from index from which on to look: the search is quick if the value is near
    static size_t indexAt(const sAddrChannel_t& channel, qint64 clock, size_t from = 0);

private:
    void makeRoom();

    size_t m_limit;
    size_t m_count = 0;
    qint64 m_clock = 0;
    unsigned m_changes = 0;
    std::vector<std::unique_ptr<sAddrChannel_t>> m_channels;
};

} // namespace nsProc
