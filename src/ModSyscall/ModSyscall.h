#pragma once

#include "ModCfgAppPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjPluginIf.h"
#include "ModScriptPluginIf.h"
#include "ModSyscallHookIf.h"
#include "ModSyscallPluginIf.h"
#include "PluginList.h"
#include "ProjectConsent.h"
#include "SyscallCommand.h"
#include "SyscallConfig.h"
#include "SyscallSequence.h"

#include <QObject>
#include <QPointer>

namespace nsModSyscall {

class SyscallConfigPage;
class SyscallMonWidget;
class SyscallMsgHndlr;

/// Runs the external programs of the project at events of the assembler, each in a monitor of its own.
///
/// A project is no licence to run code: a command that this user has neither typed in nor allowed is asked for before
/// it runs.
class ModSyscall : public QObject,
                   public ModPluginIf,
                   public ModPrjPluginIf,
                   public ModMsgPluginIf,
                   public ModGuiPluginIf,
                   public ModConfigPluginIfDflt,
                   public ModCfgAppPluginIfInterMod,
                   public ModScriptPluginIf,
                   public SyscallConfig,
                   public ModSyscallHookIf,
                   private SyscallPrograms
{
    Q_OBJECT

public:
    explicit ModSyscall(QObject* parent = nullptr);
    ~ModSyscall() override;

    // ModSyscallHookIf
    void registerPlugin(ModSyscallPluginIf* plugin) override;
    void unregisterPlugin(ModSyscallPluginIf* plugin) override;
    Q_INVOKABLE bool run(nsModSyscall::eEvent_t event) override;

    /// Runs one program, as its event does but without a message group.
    /// @param index from 0 on
    /// @return false: who called is to stop
    Q_INVOKABLE bool runProgram(int index);

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override {}
    void prjSave() override;
    void prjClose() override;

    // ModConfigPluginIf
    nsModConfig::ModConfigPagePluginIf* configPage(int index) override;
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override;
    void configPageClose(bool accepted) override;
    void configPagesClosed(bool accepted) override;

    // ModGuiPluginIf: the monitors stay where they are.
    void removeWidgetRequest(QWidget*) override {}
    void setFocus(ModGuiHookIf::eLocation_t, ModGuiPluginIf*, QWidget*) override {}

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override;
    void modExit() override {}

private slots:
    void handleConfigRequest(nsModSyscall::SyscallMonWidget* monitor);
    void handleStartRequest(nsModSyscall::SyscallMonWidget* monitor);

private:
    // SyscallPrograms
    bool hasProgram(int index) override;
    QString executableInfo(int index) override;
    bool isRunning(int index) override;
    ePermission_t mayRun(int index) override;
    bool start(int index) override;
    void showProgram(int index) override;
    eEnd_t wait(int index) override;
    int exitCode(int index) override;

    bool hasProject() const;
    bool scriptGoesOn();
    ProjectConsent consent() const;
    SyscallCommand commandOf(int index) const;
    bool isKnown(const SyscallCommand& command) const;
    ePermission_t ask(int index, const SyscallCommand& command);
    void takePage();
    void setupMonitors();
    void setupMonitor(int index);
    void addMonitor(int index);
    void removeMonitor(int index);
    void endPrograms(const QList<int>& indexes);

    PluginList<ModSyscallPluginIf> m_plugins;
    SyscallMsgHndlr* m_msgHndlr;
    SyscallSequence m_sequence;
    QPointer<SyscallMonWidget> monitors[programCount]; ///< those of enabled programs, while a project is open
    QPointer<SyscallConfigPage> m_page;                ///< while the settings dialog is open
    int m_openCount = 0;                               ///< of projects, to tell one from the next
};

} // namespace nsModSyscall
