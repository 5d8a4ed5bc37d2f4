#pragma once

#include <QString>

class ModCfgAppHookIf;

namespace nsModNetwork {

/// The proxy of the user.
class NetworkConfig
{
public:
    enum eProxyType_t {
        proxyNone = 0,
        proxyDefault = 1, ///< that of the system
        proxySocks5 = 2,
        proxyHttp = 3,
        proxyHttpCaching = 4,
        proxyFtpCaching = 5
    };

    static constexpr int portMax = 65535;

    /// @return the type has a host of its own, and so a port, a user name and a password
    static bool needsHost(int proxyType) { return proxyType >= proxySocks5 && proxyType <= proxyFtpCaching; }

    /// Reads all keys from the application's settings. A missing key leaves the field as it is.
    void rdNetworkConfig(ModCfgAppHookIf* cfg);
    void wrNetworkConfig(ModCfgAppHookIf* cfg) const;

    int proxyType = proxyNone; ///< a value of eProxyType_t, or one that a later program has stored
    int proxyPort = 0;
    QString proxyHostName;
    QString proxyUserName;
    QString proxyUserPassword;
};

} // namespace nsModNetwork
