#pragma once

#include "ProcCoreConfig.h"

namespace nsXPBlze3 {

/// Settings of a PicoBlaze 3. The interrupt vector and the scratchpad's size are fixed by the hardware.
struct XPBlze3Config : nsProc::ProcCoreConfig
{
};

} // namespace nsXPBlze3
