#include "ProcSimVcd.h"

#include "ProcSimWaveData.h"
#include "Release.h"

#include <QBuffer>
#include <QDateTime>

#include <cmath>
#include <functional>
#include <queue>
#include <utility>

namespace nsProc {

namespace {

constexpr int pieceSize = 1 << 16;
constexpr size_t valuesPerQuestion = 1 << 12;
/// Times stay below this, so that they fit into signed 64-bit counters of other programs.
constexpr long double timeMax = 4.6e18L;

/// The unit of time of a file.
struct sUnit_t
{
    const char* text;
    long double perSecond;
};

constexpr sUnit_t units[] = {{"1 ps", 1e12L}, {"1 ns", 1e9L}, {"1 us", 1e6L}, {"1 ms", 1e3L}, {"1 s", 1.0L}};

QByteArray dateText()
{
    bool ok = false;
    const qint64 epoch = qgetenv("SOURCE_DATE_EPOCH").toLongLong(&ok);
    const QDateTime moment = ok ? QDateTime::fromSecsSinceEpoch(epoch, Qt::UTC) : QDateTime::currentDateTime();
    return moment.toString(Qt::ISODate).toLatin1();
}

/// A short code of printable characters for the wire.
QByteArray wireCode(size_t index)
{
    QByteArray code;
    do {
        code.append(char('!' + index % 94));
        index /= 94;
    } while (index != 0);
    return code;
}

/// Unique, since no two channels have the same address and access.
QByteArray wireName(const ProcSimWaveData::sAddrChannel_t& channel)
{
    QByteArray name = "port_" + QByteArray::number(channel.addr, 16).toUpper().rightJustified(2, '0');
    name += channel.access == ProcSimWaveData::eAccessRd ? "_rd" : "_wr";
    if (channel.name.isEmpty())
        return name;
    name += '_';
    for (const QChar c : channel.name) {
        const char ascii = c.toLatin1();
        const bool legal =
            (ascii >= '0' && ascii <= '9') || (ascii >= 'A' && ascii <= 'Z') || (ascii >= 'a' && ascii <= 'z');
        name += legal ? ascii : '_';
    }
    return name;
}

/// Writes one file.
class Writer
{
public:
    Writer(QIODevice* device, const ProcSimWaveData& data, double clkFreq, ProcSimVcd::Watch watch)
        : m_device(device)
        , m_data(data)
        , m_watch(std::move(watch))
    {
        for (const auto& channel : data.channels())
            m_total += channel->values.size();
        if (!std::isfinite(clkFreq) || clkFreq <= 0) {
            m_unit = &units[1];
            return;
        }
        m_clkFreq = clkFreq;
        m_unit = std::begin(units);
        while (m_unit != std::end(units) - 1 && timeOf(m_data.clock()) > timeMax)
            ++m_unit;
    }

    bool write()
    {
        writeHead();
        writeChanges();
        flush();
        return m_ok;
    }

private:
    using Channel = ProcSimWaveData::sAddrChannel_t;

    /// Not rounded, in the unit of the file.
    long double timeOf(qint64 clock) const
    {
        return m_clkFreq > 0 ? static_cast<long double>(clock) * m_unit->perSecond / m_clkFreq
                             : static_cast<long double>(clock);
    }
    qint64 roundedTime(qint64 clock) const { return qint64(std::floor(std::min(timeOf(clock), timeMax) + 0.5L)); }

    void append(const QByteArray& text)
    {
        m_text += text;
        if (m_text.size() >= pieceSize)
            flush();
    }
    void flush()
    {
        m_ok = m_ok && m_device->write(m_text) == m_text.size();
        m_text.clear();
    }

    void writeHead()
    {
        append("$date\n    " + dateText() + "\n$end\n");
        append("$version\n    Nalvo " + Release::own().text().toLatin1() + "\n$end\n");
        append(QByteArray("$timescale\n    ") + m_unit->text + "\n$end\n");
        append("$scope module ports $end\n");
        for (size_t index = 0; index < m_data.channels().size(); ++index)
            append("$var wire 8 " + wireCode(index) + ' ' + wireName(*m_data.channels()[index]) + " [7:0] $end\n");
        append("$upscope $end\n$enddefinitions $end\n");
    }

    void writeValue(size_t channel, int value)
    {
        char bits[] = "b00000000 ";
        for (int bit = 0; bit < 8; ++bit)
            bits[8 - bit] = ((value >> bit) & 1) != 0 ? '1' : '0';
        append(QByteArray(bits) + wireCode(channel) + '\n');
    }

    /// The values that all wires have at time 0. On return, `next` holds the index of each channel's next value.
    void writeStart(std::vector<size_t>* next)
    {
        append("#0\n$dumpvars\n");
        for (size_t channel = 0; channel < next->size(); ++channel) {
            const auto& values = m_data.channels()[channel]->values;
            size_t& index = (*next)[channel];
            while (index < values.size() && roundedTime(values[index].clock) <= 0)
                ++index;
            if (index == 0)
                append("bxxxxxxxx " + wireCode(channel) + '\n');
            else
                writeValue(channel, values[index - 1].value);
        }
        append("$end\n");
    }

    /// The values of all channels in the order of time. If a channel has several values at the same time, which is
    /// possible above 1 THz, the last one is written.
    void writeChanges()
    {
        const auto& channels = m_data.channels();
        std::vector<size_t> next(channels.size(), 0);
        writeStart(&next);
        using Entry = std::pair<qint64, size_t>;
        std::priority_queue<Entry, std::vector<Entry>, std::greater<>> queue;
        const auto push = [&](size_t channel) {
            if (next[channel] < channels[channel]->values.size())
                queue.emplace(roundedTime(channels[channel]->values[next[channel]].clock), channel);
        };
        for (size_t channel = 0; channel < channels.size(); ++channel)
            push(channel);
        qint64 time = 0;
        while (m_ok && !queue.empty()) {
            if (m_watch && ++m_done % valuesPerQuestion == 0 && !m_watch(int(m_done * 100 / m_total))) {
                m_ok = false;
                return;
            }
            const Entry entry = queue.top();
            queue.pop();
            if (entry.first != time)
                append('#' + QByteArray::number(entry.first) + '\n');
            time = entry.first;
            const auto& values = channels[entry.second]->values;
            size_t& index = next[entry.second];
            while (index + 1 < values.size() && roundedTime(values[index + 1].clock) == time)
                ++index;
            writeValue(entry.second, values[index].value);
            ++index;
            push(entry.second);
        }
        // The waves end at the present time.
        const qint64 end = roundedTime(m_data.clock());
        if (end > time)
            append('#' + QByteArray::number(end) + '\n');
    }

    QIODevice* m_device;
    const ProcSimWaveData& m_data;
    ProcSimVcd::Watch m_watch;
    const sUnit_t* m_unit;
    size_t m_total = 0; ///< values to be written
    size_t m_done = 0;
    long double m_clkFreq = 0;
    QByteArray m_text;
    bool m_ok = true;
};

} // namespace

QByteArray ProcSimVcd::vcdText(const ProcSimWaveData& data, double clkFreq)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    write(&buffer, data, clkFreq);
    return buffer.data();
}

bool ProcSimVcd::write(QIODevice* device, const ProcSimWaveData& data, double clkFreq, Watch watch)
{
    return Writer(device, data, clkFreq, std::move(watch)).write();
}

} // namespace nsProc
