#pragma once

#include "ProcSimWaveData.h"

#include <vector>

namespace nsProc {

class ProcSimWaveTime;

/// The values of a channel as far as a picture shows them: what happens in each column of pixels.
///
/// However many values there are, this holds at most one entry a column, and finding them costs little more than that.
struct ProcSimWaveColumns
{
    /// A column of pixels with values.
    struct sColumn_t
    {
        int x;
        size_t first;                  ///< index of the first value
        size_t end;                    ///< index after the last value
        int value;                     ///< the last value
        ProcSimWaveData::sBits_t bits; ///< of these values
    };

    /// @param width pixels that are visible
    ProcSimWaveColumns(const ProcSimWaveData::sAddrChannel_t& channel, const ProcSimWaveTime& time, int width);

    /// The value that holds at the left edge, -1 if it is unknown.
    int before = -1;
    std::vector<sColumn_t> columns;
};

} // namespace nsProc
