#pragma once

#include "ProcSimWaveData.h"

#include <QString>

namespace nsProc {

enum eWaveKind_t { eWaveNumeric = 0, eWaveBit = 1 };

/// One row of the display: a channel's number, or one of its bits, and its place on the screen.
struct sWave_t
{
    int index = 0; ///< running number
    int kind = eWaveNumeric;
    int maximum = 255; ///< 255 for a number, 1 for a bit
    int bit = 0;       ///< of a bit: 0 to 7
    QString name;
    ProcSimWaveData::sAddrChannel_t* channel = nullptr; ///< not owned
    int top = 0;                                        ///< pixels
    int height = 0;                                     ///< pixels
};

} // namespace nsProc
