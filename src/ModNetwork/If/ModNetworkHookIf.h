#pragma once

class QNetworkProxy;

/// Access to the network settings. Served by nsModNetwork::ModNetwork.
class ModNetworkHookIf
{
public:
    virtual ~ModNetworkHookIf() = default;

    /// The proxy that the user has set.
    virtual QNetworkProxy proxy() = 0;
};
