#pragma once

#include "ProcTables.h"

namespace nsXPBlze6 {

/// Settings of a PicoBlaze 6. The user chooses the interrupt vector and the size of the scratchpad: 64, 128 or 256
/// bytes.
struct XPBlze6Config : nsProc::ProcCoreConfig
{
    XPBlze6Config()
        : ProcCoreConfig(nsProc::xpBlze6Table().defaultConfig())
    {
    }
};

} // namespace nsXPBlze6
