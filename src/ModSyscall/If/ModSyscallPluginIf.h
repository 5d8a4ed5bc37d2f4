#pragma once

class ModSyscallHookIf;

/// A client that fires events for external programs.
class ModSyscallPluginIf
{
public:
    virtual ~ModSyscallPluginIf() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModSyscallHookIf* modSyscallHook = nullptr;
};
