#pragma once

#include "SyscallEvent.h"

class ModSyscallPluginIf;

/// External programs bound to assembler events. Served by nsModSyscall::ModSyscall.
class ModSyscallHookIf
{
public:
    virtual ~ModSyscallHookIf() = default;

    virtual void registerPlugin(ModSyscallPluginIf* plugin) = 0;
    virtual void unregisterPlugin(ModSyscallPluginIf* plugin) = 0;

    /// Runs the programs of the event.
    /// @return false: the caller is to stop
    virtual bool run(nsModSyscall::eEvent_t event) = 0;
};
