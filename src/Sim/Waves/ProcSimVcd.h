#pragma once

#include <QByteArray>

#include <functional>

class QIODevice;

namespace nsProc {

class ProcSimWaveData;

/// Writes what a wave viewer holds as a value change dump (IEEE 1364), which programs that show waves open.
///
/// Each watched port is a wire of 8 bits, of unknown value until the first stored one. The name consists of address and
/// access: `port_2A_rd`, and the channel's name if it has one. A clock is 1e12 / clkFreq picoseconds, each time is
/// rounded separately, so that errors do not add up; without a clock rate, a clock is a nanosecond. The date is
/// SOURCE_DATE_EPOCH, if that is set.
class ProcSimVcd
{
public:
    /// @param clkFreq Hz; 0 or below for unknown
    /// @return ASCII text, lines end with a line feed
    static QByteArray vcdText(const ProcSimWaveData& data, double clkFreq);
    /// Asked now and then; false ends the writing, which then does not look at the data any more.
    /// @param percent of the values that are written
    using Watch = std::function<bool(int percent)>;
    /// The same to a device that is open for writing, a piece at a time.
    /// @param watch may be empty
    /// @return false if the device took less than it was given, or the watch has ended it
    static bool write(QIODevice* device, const ProcSimWaveData& data, double clkFreq, Watch watch = {});
};

} // namespace nsProc
