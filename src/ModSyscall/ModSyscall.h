#pragma once

#include "ModCfgAppPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjPluginIf.h"
#include "ModSyscallHookIf.h"
#include "ModSyscallPluginIf.h"
#include "PluginList.h"
#include "SyscallConfig.h"

#include <QObject>

namespace nsModSyscall {

/// Runs the external programs of the project at events of the assembler.
class ModSyscall : public QObject,
                   public ModPluginIf,
                   public ModPrjPluginIf,
                   public ModMsgPluginIf,
                   public ModGuiPluginIf,
                   public ModConfigPluginIfDflt,
                   public ModCfgAppPluginIfInterMod,
                   public SyscallConfig,
                   public ModSyscallHookIf
{
    Q_OBJECT

public:
    explicit ModSyscall(QObject* parent = nullptr);

    // ModSyscallHookIf
    void registerPlugin(ModSyscallPluginIf* plugin) override;
    void unregisterPlugin(ModSyscallPluginIf* plugin) override;
    bool run(eEvent_t event) override;

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override {}
    void prjSave() override;
    void prjClose() override {}

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget*) override {}
    void setFocus(ModGuiHookIf::eLocation_t, ModGuiPluginIf*, QWidget*) override {}

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override {}
    void modInitIntermod() override {}
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override {}

private:
    PluginList<ModSyscallPluginIf> m_plugins;
};

} // namespace nsModSyscall
