#pragma once

#include "ProcCoreConfig.h"

namespace nsLMico8v3x {

/// Settings of a Mico8. Its interrupt vector is fixed by the hardware; its scratchpad has at least 32 bytes.
struct LMico8v3xConfig : nsProc::ProcCoreConfig
{
    LMico8v3xConfig()
    {
        intVectorAddr = 0;
        scrpdSize = 32;
        regCount = 32;
    }
};

} // namespace nsLMico8v3x
