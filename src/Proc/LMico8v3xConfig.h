#pragma once

#include "ProcCoreConfig.h"

namespace nsLMico8v3x {

/// Settings of a Mico8. Its interrupt vector is fixed by the hardware; its scratchpad has at least 32 bytes.
struct LMico8v3xConfig : nsProc::ProcCoreConfig
{
    static constexpr int minRegCount = 16;
    static constexpr int maxRegCount = 32;
    static constexpr int maxInstrClkCnt = 10000;

    LMico8v3xConfig()
    {
        intVectorAddr = 0;
        scrpdSize = 32;
        regCount = 32;
    }
};

} // namespace nsLMico8v3x
