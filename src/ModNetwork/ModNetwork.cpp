#include "ModNetwork.h"

#include <QNetworkProxy>

namespace nsModNetwork {

ModNetwork::ModNetwork(QObject* parent)
    : QObject(parent)
{
}

QNetworkProxy ModNetwork::proxy()
{
    return QNetworkProxy();
}

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
