#include "ModNetwork.h"

#include "NetworkConfigPage.h"

#include <QNetworkProxy>

namespace nsModNetwork {

ModNetwork::ModNetwork(QObject* parent)
    : QObject(parent)
{
}

ModNetwork::~ModNetwork()
{
    delete m_configPage;
}

QNetworkProxy ModNetwork::proxy()
{
    QNetworkProxy result;
    switch (proxyType) {
    case proxyNone:
        result.setType(QNetworkProxy::NoProxy);
        break;
    case proxyDefault:
        result.setType(QNetworkProxy::DefaultProxy);
        break;
    case proxySocks5:
        result.setType(QNetworkProxy::Socks5Proxy);
        break;
    case proxyHttp:
        result.setType(QNetworkProxy::HttpProxy);
        break;
    case proxyHttpCaching:
        result.setType(QNetworkProxy::HttpCachingProxy);
        break;
    case proxyFtpCaching:
        result.setType(QNetworkProxy::FtpCachingProxy);
        break;
    default:
        break;
    }
    result.setHostName(proxyHostName);
    result.setPort(quint16(proxyPort));
    result.setUser(proxyUserName);
    result.setPassword(proxyUserPassword);
    return result;
}

// --- settings ---

void ModNetwork::rdAppCfg()
{
    if (modCfgAppHook != nullptr)
        rdNetworkConfig(modCfgAppHook);
}

void ModNetwork::wrAppCfg()
{
    if (modCfgAppHook != nullptr)
        wrNetworkConfig(modCfgAppHook);
}

nsModConfig::ModConfigPagePluginIf* ModNetwork::configPage(int)
{
    if (m_configPage == nullptr)
        m_configPage = new NetworkConfigPage;
    return m_configPage;
}

void ModNetwork::configPageSetConfig(nsModConfig::ModConfigPagePluginIf*)
{
    if (m_configPage != nullptr)
        m_configPage->setConfig(this);
}

void ModNetwork::configPageClose(bool accepted)
{
    if (m_configPage != nullptr && accepted) {
        m_configPage->config(this);
        wrAppCfg();
    }
    delete m_configPage;
}

// --- life cycle ---

void ModNetwork::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModNetworkPluginIf>(modules, this);
}

void ModNetwork::registerPlugin(ModNetworkPluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modNetworkHook = this;
}

} // namespace nsModNetwork
