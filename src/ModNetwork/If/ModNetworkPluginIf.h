#pragma once

class ModNetworkHookIf;

/// A client of the network settings.
class ModNetworkPluginIf
{
public:
    virtual ~ModNetworkPluginIf() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModNetworkHookIf* modNetworkHook = nullptr;
};
