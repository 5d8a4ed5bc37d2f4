#pragma once

#include "ModCfgAppPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModNetworkHookIf.h"
#include "ModNetworkPluginIf.h"
#include "ModPluginIf.h"
#include "NetworkConfig.h"
#include "PluginList.h"

#include <QObject>
#include <QPointer>

namespace nsModNetwork {

class NetworkConfigPage;

/// The user's network settings, for all who send something.
class ModNetwork : public QObject,
                   public ModNetworkHookIf,
                   public ModPluginIf,
                   public ModCfgAppPluginIf,
                   public ModMsgPluginIf,
                   public ModConfigPluginIfDflt,
                   public NetworkConfig
{
    Q_OBJECT

public:
    explicit ModNetwork(QObject* parent = nullptr);
    ~ModNetwork() override;

    // ModNetworkHookIf
    QNetworkProxy proxy() override;

    // ModCfgAppPluginIf
    void rdAppCfg() override;
    void wrAppCfg() override;

    // ModConfigPluginIf
    nsModConfig::ModConfigPagePluginIf* configPage(int) override;
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override;
    void configPageClose(bool accepted) override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override {}
    void modInitIntermod() override {}
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override {}

    void registerPlugin(ModNetworkPluginIf* plugin);

private:
    PluginList<ModNetworkPluginIf> m_plugins;
    QPointer<NetworkConfigPage> m_configPage;
};

} // namespace nsModNetwork
