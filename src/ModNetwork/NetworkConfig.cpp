#include "NetworkConfig.h"

#include "CfgItems.h"
#include "ModCfgAppHookIf.h"

#include <limits>

namespace nsModNetwork {

namespace {

template <class Items, class Config>
void allItems(Items items, Config& config)
{
    items.item(QStringLiteral("ModNetwork/proxyType"), config.proxyType, std::numeric_limits<int>::min(),
               std::numeric_limits<int>::max());
    items.item(QStringLiteral("ModNetwork/proxyPort"), config.proxyPort, 0, NetworkConfig::portMax);
    items.item(QStringLiteral("ModNetwork/proxyHostName"), config.proxyHostName);
    items.item(QStringLiteral("ModNetwork/proxyUserName"), config.proxyUserName);
    items.item(QStringLiteral("ModNetwork/proxyUserPassword"), config.proxyUserPassword);
}

} // namespace

void NetworkConfig::rdNetworkConfig(ModCfgAppHookIf* cfg)
{
    allItems(CfgReader<ModCfgAppHookIf>(cfg), *this);
}

void NetworkConfig::wrNetworkConfig(ModCfgAppHookIf* cfg) const
{
    allItems(CfgWriter<ModCfgAppHookIf>(cfg), *this);
}

} // namespace nsModNetwork
