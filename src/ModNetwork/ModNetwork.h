#pragma once

#include "ModCfgAppPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModNetworkHookIf.h"
#include "ModNetworkPluginIf.h"
#include "ModPluginIf.h"
#include "PluginList.h"

#include <QObject>

namespace nsModNetwork {

/// The user's network settings, for all who send something.
class ModNetwork : public QObject,
                   public ModNetworkHookIf,
                   public ModPluginIf,
                   public ModCfgAppPluginIf,
                   public ModMsgPluginIf,
                   public ModConfigPluginIfDflt
{
    Q_OBJECT

public:
    explicit ModNetwork(QObject* parent = nullptr);

    // ModNetworkHookIf
    QNetworkProxy proxy() override;

    // ModCfgAppPluginIf
    void rdAppCfg() override {}
    void wrAppCfg() override {}

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
};

} // namespace nsModNetwork
