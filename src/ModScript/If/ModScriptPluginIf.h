#pragma once

class ModScriptHookIf;

/// A client of the script engine.
class ModScriptPluginIf
{
public:
    virtual ~ModScriptPluginIf() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModScriptHookIf* modScriptHook = nullptr;
};
