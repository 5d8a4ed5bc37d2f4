#pragma once

class ModNetworkPluginIf;
class QNetworkProxy;

/// Access to the network settings. Served by nsModNetwork::ModNetwork.
class ModNetworkHookIf
{
public:
    virtual ~ModNetworkHookIf() = default;

    virtual void registerPlugin(ModNetworkPluginIf* plugin) = 0;
    virtual void unregisterPlugin(ModNetworkPluginIf* plugin) = 0;

    /// The proxy that the user has set.
    virtual QNetworkProxy proxy() = 0;
};
