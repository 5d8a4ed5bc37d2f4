#pragma once

#include "ModActionPluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModHlpPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModNetworkPluginIf.h"
#include "ModPluginIf.h"

#include <QObject>

namespace nsModSwUpdate {

/// Asks the update server whether there is a newer release.
class ModSwUpdate : public QObject,
                    public ModPluginIf,
                    public ModCfgAppPluginIf,
                    public ModNetworkPluginIf,
                    public ModHlpPluginIf,
                    public ModMsgPluginIf,
                    public ModActionPluginIf,
                    public ModConfigPluginIfDflt
{
    Q_OBJECT

public:
    explicit ModSwUpdate(QObject* parent = nullptr);

    // ModCfgAppPluginIf
    void rdAppCfg() override {}
    void wrAppCfg() override {}

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t) override { return {}; }
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t) override { return {}; }

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*>) override {}
    void modInit() override {}
    void modInitIntermod() override {}
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override {}
};

} // namespace nsModSwUpdate
