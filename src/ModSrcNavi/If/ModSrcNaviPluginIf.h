#pragma once

class ModSrcNaviHookIf;

/// A client of the source navigator.
class ModSrcNaviPluginIf
{
public:
    virtual ~ModSrcNaviPluginIf() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModSrcNaviHookIf* modSrcNaviHook = nullptr;
};
