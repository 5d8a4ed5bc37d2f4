#include "ProcSimWaveColumns.h"

#include "ProcSimWaveTime.h"

#include <cmath>

namespace nsProc {

ProcSimWaveColumns::ProcSimWaveColumns(const ProcSimWaveData::sAddrChannel_t& channel, const ProcSimWaveTime& time,
                                       int width)
{
    const auto& values = channel.values;
    // The search starts in the middle of the channel, or at its first value if the view starts before the middle.
    const qint64 start = time.boundary(0);
    const size_t middle = values.size() / 2;
    const bool late = !values.empty() && values[middle].clock < start;
    size_t index = ProcSimWaveData::indexAt(channel, start, late ? middle : 0);
    if (index > 0)
        before = values[index - 1].value;
    int x = 0;
    while (index < values.size()) {
        // Continues with the column of the next value.
        const double place = time.xAt(double(values[index].clock));
        if (place >= width)
            return;
        x = qMax(x, int(std::floor(place)));
        while (x > 0 && time.boundary(x) > values[index].clock)
            --x;
        while (time.boundary(x + 1) <= values[index].clock)
            ++x;
        if (x >= width)
            return;
        const size_t end = ProcSimWaveData::indexAt(channel, time.boundary(x + 1), index);
        columns.push_back({x, index, end, values[end - 1].value, ProcSimWaveData::bits(channel, index, end)});
        index = end;
        ++x;
    }
}

} // namespace nsProc
