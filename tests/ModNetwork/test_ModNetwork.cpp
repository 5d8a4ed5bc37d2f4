// The proxy of the user: what clients get, and how it is stored.

#include "AppCfgOnDisk.h"
#include "FakeHooks.h"
#include "ModNetwork.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QNetworkProxy>

namespace {

using nsModNetwork::ModNetwork;
using nsModNetwork::NetworkConfig;

TEST(ModNetwork, withoutSettingsTheProxyIsThatOfTheDefaults)
{
    AppCfgOnDisk disk;
    ModNetwork network;
    disk.start(&network);
    const QNetworkProxy proxy = network.proxy();
    const NetworkConfig defaults;
    EXPECT_EQ(defaults.proxyType, NetworkConfig::proxyNone);
    EXPECT_EQ(proxy.type(), QNetworkProxy::NoProxy);
    EXPECT_EQ(proxy.hostName(), defaults.proxyHostName);
    EXPECT_EQ(proxy.port(), defaults.proxyPort);
    EXPECT_EQ(proxy.user(), defaults.proxyUserName);
    EXPECT_EQ(proxy.password(), defaults.proxyUserPassword);
    disk.end(&network);
}

TEST(ModNetwork, everyTypeHasItsCounterpart)
{
    const QList<QPair<int, QNetworkProxy::ProxyType>> types = {
        {0, QNetworkProxy::NoProxy},   {1, QNetworkProxy::DefaultProxy},     {2, QNetworkProxy::Socks5Proxy},
        {3, QNetworkProxy::HttpProxy}, {4, QNetworkProxy::HttpCachingProxy}, {5, QNetworkProxy::FtpCachingProxy},
    };
    ModNetwork network;
    for (const auto& type : types) {
        network.proxyType = type.first;
        EXPECT_EQ(network.proxy().type(), type.second) << type.first;
    }
    for (int other : {-1, 6, 1000}) {
        network.proxyType = other;
        EXPECT_EQ(network.proxy().type(), QNetworkProxy().type()) << other;
    }
}

TEST(ModNetwork, aChangeTakesEffectForTheNextRequest)
{
    ModNetwork network;
    ModNetworkHookIf* hook = &network;
    EXPECT_EQ(hook->proxy().type(), QNetworkProxy::NoProxy);
    network.proxyType = NetworkConfig::proxySocks5;
    network.proxyHostName = "proxy.example";
    network.proxyPort = 65535;
    network.proxyUserName = "jo";
    network.proxyUserPassword = "word";
    EXPECT_EQ(hook->proxy(), QNetworkProxy(QNetworkProxy::Socks5Proxy, "proxy.example", 65535, "jo", "word"));
}

TEST(ModNetwork, allFiveKeysSurviveARestart)
{
    AppCfgOnDisk disk;
    const QString password = QString::fromUtf8(" a:b,c;\"d\" = %5 \\n \xc3\xa4\xe2\x82\xac [x] ");
    {
        ModNetwork network;
        disk.start(&network);
        network.proxyType = NetworkConfig::proxyHttp;
        network.proxyPort = 8080;
        network.proxyHostName = "proxy.example";
        network.proxyUserName = "DOMAIN\\jo";
        network.proxyUserPassword = password;
        network.wrAppCfg();
        disk.save();
        for (const char* key : {"proxyType", "proxyPort", "proxyHostName", "proxyUserName", "proxyUserPassword"})
            EXPECT_NE(disk.stored(QStringLiteral("ModNetwork/") + key), "(none)") << key;
        disk.end(&network);
    }
    ModNetwork next;
    disk.start(&next);
    EXPECT_EQ(next.proxy(), QNetworkProxy(QNetworkProxy::HttpProxy, "proxy.example", 8080, "DOMAIN\\jo", password));
    // A text that is emptied is gone.
    next.proxyUserPassword.clear();
    next.wrAppCfg();
    disk.save();
    EXPECT_EQ(disk.stored("ModNetwork/proxyUserPassword"), "(none)");
    disk.end(&next);
}

TEST(ModNetwork, valuesOutsideOfTheirRange)
{
    FakeCfgAppHook cfg;
    ModNetwork network;
    cfg.registerPlugin(&network);
    for (const QPair<int, int>& port : QList<QPair<int, int>>{{-1, 0}, {0, 0}, {65535, 65535}, {65536, 65535}}) {
        cfg.tree.set("ModNetwork/proxyPort", port.first);
        network.rdAppCfg();
        EXPECT_EQ(network.proxy().port(), port.second);
    }
    // A type of a later program is not lost.
    cfg.tree.set("ModNetwork/proxyType", 9);
    network.rdAppCfg();
    EXPECT_EQ(network.proxy().type(), QNetworkProxy().type());
    network.wrAppCfg();
    EXPECT_EQ(cfg.tree.get("ModNetwork/proxyType", 0), 9);
}

class Client : public ModNetworkPluginIf
{
};

TEST(ModNetwork, clientsGetTheHook)
{
    ModNetwork network;
    Client client;
    network.registerPlugin(&client);
    network.registerPlugin(&client);
    network.registerPlugin(nullptr);
    EXPECT_EQ(client.modNetworkHook, &network);
    network.modRegisterPlugins({nullptr, &network});
    network.rdAppCfg();
    network.wrAppCfg();
}

} // namespace
