#pragma once

#include "ProcTables.h"

namespace nsLMico8v3x {

/// Settings of a Mico8. Its interrupt vector is fixed by the hardware; its scratchpad has at least 32 bytes.
struct LMico8v3xConfig : nsProc::ProcCoreConfig
{
    LMico8v3xConfig()
        : ProcCoreConfig(nsProc::lMico8v3xTable().defaultConfig())
    {
    }
};

} // namespace nsLMico8v3x
