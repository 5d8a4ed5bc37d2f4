#pragma once

#include "ProcTables.h"

namespace nsXPBlze3 {

/// Settings of a PicoBlaze 3. Its interrupt vector and the size of its scratchpad are fixed by the hardware.
struct XPBlze3Config : nsProc::ProcCoreConfig
{
    XPBlze3Config()
        : ProcCoreConfig(nsProc::xpBlze3Table().defaultConfig())
    {
    }
};

} // namespace nsXPBlze3
