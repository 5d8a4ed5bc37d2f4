#pragma once

#include "FakeEditorHook.h"
#include "FakeHooks.h"

#include "ModAsmFeHookIf.h"
#include "ModAsmFePluginIf.h"

#include <QStringList>

// Services that write into one common log who registers with them, as "+ModGuiPluginIf" and "-ModGuiPluginIf".

class RecordingGuiHook : public FakeGuiHook
{
public:
    explicit RecordingGuiHook(QStringList* log)
        : m_log(log)
    {
    }
    using FakeGuiHook::registerPlugin;
    using FakeGuiHook::unregisterPlugin;
    void registerPlugin(ModGuiPluginIf* plugin) override
    {
        m_log->append("+ModGuiPluginIf");
        FakeGuiHook::registerPlugin(plugin);
    }
    void unregisterPlugin(ModGuiPluginIf* plugin) override
    {
        m_log->append("-ModGuiPluginIf");
        FakeGuiHook::unregisterPlugin(plugin);
    }

private:
    QStringList* m_log;
};

class RecordingMsgHook : public FakeMsgHook
{
public:
    explicit RecordingMsgHook(QStringList* log)
        : m_log(log)
    {
    }
    using FakeMsgHook::registerPlugin;
    using FakeMsgHook::unregisterPlugin;
    void registerPlugin(ModMsgPluginIf* plugin) override
    {
        m_log->append("+ModMsgPluginIf");
        FakeMsgHook::registerPlugin(plugin);
    }
    void unregisterPlugin(ModMsgPluginIf* plugin) override
    {
        m_log->append("-ModMsgPluginIf");
        FakeMsgHook::unregisterPlugin(plugin);
    }

private:
    QStringList* m_log;
};

class RecordingActionHook : public FakeActionHook
{
public:
    explicit RecordingActionHook(QStringList* log)
        : m_log(log)
    {
    }
    using FakeActionHook::registerPlugin;
    using FakeActionHook::unregisterPlugin;
    void registerPlugin(ModActionPluginIf* plugin) override
    {
        m_log->append("+ModActionPluginIf");
        FakeActionHook::registerPlugin(plugin);
    }
    void unregisterPlugin(ModActionPluginIf* plugin) override
    {
        m_log->append("-ModActionPluginIf");
        FakeActionHook::unregisterPlugin(plugin);
    }

private:
    QStringList* m_log;
};

class RecordingCfgAppHook : public FakeCfgAppHook
{
public:
    explicit RecordingCfgAppHook(QStringList* log)
        : m_log(log)
    {
    }
    using FakeCfgAppHook::registerPlugin;
    using FakeCfgAppHook::unregisterPlugin;
    void registerPlugin(ModCfgAppPluginIfInterMod* plugin) override
    {
        m_log->append("+ModCfgAppPluginIfInterMod");
        FakeCfgAppHook::registerPlugin(plugin);
    }
    void unregisterPlugin(ModCfgAppPluginIfInterMod* plugin) override
    {
        m_log->append("-ModCfgAppPluginIfInterMod");
        FakeCfgAppHook::unregisterPlugin(plugin);
    }

private:
    QStringList* m_log;
};

class RecordingPrjHook : public FakePrjHook
{
public:
    explicit RecordingPrjHook(QStringList* log)
        : m_log(log)
    {
    }
    using FakePrjHook::registerPlugin;
    using FakePrjHook::unregisterPlugin;
    void registerPlugin(ModPrjPluginIfInterMod* plugin) override
    {
        m_log->append("+ModPrjPluginIfInterMod");
        FakePrjHook::registerPlugin(plugin);
    }
    void unregisterPlugin(ModPrjPluginIfInterMod* plugin) override
    {
        m_log->append("-ModPrjPluginIfInterMod");
        FakePrjHook::unregisterPlugin(plugin);
    }

private:
    QStringList* m_log;
};

class RecordingAsmFeHook : public ModAsmFeHookIf
{
public:
    explicit RecordingAsmFeHook(QStringList* log)
        : m_log(log)
    {
    }
    void registerPlugin(ModAsmFePluginIf* plugin) override { enter("+ModAsmFePluginIf", plugin, this); }
    void unregisterPlugin(ModAsmFePluginIf* plugin) override { enter("-ModAsmFePluginIf", plugin, nullptr); }
    void registerPlugin(ModAsmFePluginIfInterMod* plugin) override { enter("+ModAsmFePluginIfInterMod", plugin, this); }
    void unregisterPlugin(ModAsmFePluginIfInterMod* plugin) override
    {
        enter("-ModAsmFePluginIfInterMod", plugin, nullptr);
    }
    void registerPlugin(ModAsmFePluginIfBackend* plugin) override { enter("+ModAsmFePluginIfBackend", plugin, this); }
    void unregisterPlugin(ModAsmFePluginIfBackend* plugin) override
    {
        enter("-ModAsmFePluginIfBackend", plugin, nullptr);
    }
    nsModAsmFe::LabelList* labelList() override { return nullptr; }
    nsModAsmFe::EquList* equList() override { return nullptr; }
    nsModAsmFe::OrgList* orgList() override { return nullptr; }
    nsModAsmFe::SetList* setList() override { return nullptr; }
    nsModAsmFe::OpcodeList* opcodeList() override { return nullptr; }
    nsModAsmFe::IODevList* ioDevList() override { return nullptr; }
    bool setOverwriteBehaviorError() override { return false; }
    bool setOverwriteBehaviorWarning() override { return false; }
    bool isAssembled() override { return false; }
    bool instMemConfig(int*, int*, bool*) override { return false; }
    nsModAsmFe::AsmFeFileHndlr* fileHndlr() override { return nullptr; }
    nsModAsmFe::AsmFeMsgHndlr* msgHndlr() override { return nullptr; }
    nsModAsmFe::AsmFeParseArg* parseArg() override { return nullptr; }
    int asmBehaviorChkIntVector() override { return 2; }

private:
    template <class Plugin>
    void enter(const char* text, Plugin* plugin, ModAsmFeHookIf* hook)
    {
        m_log->append(text);
        plugin->modAsmFeHook = hook;
    }

    QStringList* m_log;
};

class RecordingEditorHook : public FakeEditorHook
{
public:
    explicit RecordingEditorHook(QStringList* log)
        : m_log(log)
    {
    }
    using FakeEditorHook::registerPlugin;
    using FakeEditorHook::unregisterPlugin;
    void registerPlugin(ModEditorPluginIf* plugin) override
    {
        m_log->append("+ModEditorPluginIf");
        FakeEditorHook::registerPlugin(plugin);
    }
    void unregisterPlugin(ModEditorPluginIf* plugin) override
    {
        m_log->append("-ModEditorPluginIf");
        FakeEditorHook::unregisterPlugin(plugin);
    }

private:
    QStringList* m_log;
};
