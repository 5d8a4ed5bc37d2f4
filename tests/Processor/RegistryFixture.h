#pragma once

#include "RecordingHooks.h"

#include "ModProcessor.h"
#include "ProcList.h"
#include "ProcPluginIf.h"

#include <gtest/gtest.h>

/// A processor that does nothing but write down what is asked of it, into the log of the services.
class FakeProcessor : public nsModProcessor::ProcPluginIf
{
public:
    FakeProcessor(const QString& name, QStringList* log)
        : m_name(name)
        , m_log(log)
    {
    }

    /// All hooks are there; or none of them is.
    bool hasAllHooks() const { return hookCount() == 7; }
    bool hasNoHook() const { return hookCount() == 0; }

    QString processorName() override { return m_name; }
    void modInit() override { enter("modInit", hasNoHook()); }
    void modInitIntermod() override { enter("modInitIntermod", hasAllHooks()); }
    void modExitIntermod() override { enter("modExitIntermod", hasAllHooks()); }
    void modExit() override { enter("modExit", hasNoHook()); }
    nsModProcessor::ProcConfigPluginIf* configWidget() override { return nullptr; }
    void configWidgetSetConfig() override { m_log->append("configWidgetSetConfig"); }
    void configWidgetFetchConfig() override { m_log->append("configWidgetFetchConfig"); }
    bool configWidgetCloseRequest() override { return mayClose; }
    void configWidgetClose() override {}
    void rdCfg() override { m_log->append("rdCfg"); }
    void wrCfg() override { m_log->append("wrCfg"); }
    QString processorDefine() override { return "PROC::FAKE"; }
    const QHash<QString, int>* regNames() override { return nullptr; }
    const QHash<QString, int>* regBankNames() override { return nullptr; }
    bool assembleStage1() override { return true; }
    bool assembleStage2() override { return true; }
    void setAssembled(bool) override {}
    int beConfig() override { return 1024; }
    void removeWidgetRequest(QWidget*) override {}
    void setFocus(ModGuiHookIf::eLocation_t, ModGuiPluginIf*, QWidget*) override {}
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t) override { return {}; }
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t) override { return {}; }

    bool mayClose = true; ///< knob: what configWidgetCloseRequest() answers

private:
    int hookCount() const
    {
        return int(modMsgHook != nullptr) + int(modGuiHook != nullptr) + int(modEditorHook != nullptr) +
               int(modActionHook != nullptr) + int(modAsmFeHook != nullptr) + int(modCfgAppHook != nullptr) +
               int(modPrjHook != nullptr);
    }
    void enter(const char* text, bool hooksAreRight)
    {
        EXPECT_TRUE(hooksAreRight) << text << " with " << hookCount() << " hooks";
        m_log->append(text);
    }

    QString m_name;
    QStringList* m_log;
};

/// The registry with services that record.
class RegistryTest : public ::testing::Test
{
protected:
    RegistryTest()
    {
        prj.registerPlugin(static_cast<ModPrjPluginIf*>(&registry));
        registry.modMsgHook = &msg;
        registry.modGuiHook = &gui;
        registry.modEditorHook = &editor;
        registry.modAsmFeHook = &asmFe;
        registry.modActionHook = &action;
        registry.modCfgAppHook = &cfgApp;
        registry.modScriptHook = &script;
    }
    ~RegistryTest() override { registry.prjClose(); }

    /// Opens a project with this processor, without a key for it if the name is null.
    void open(const QString& name)
    {
        if (!name.isNull())
            prj.tree.set("ModProcessor/processor", name);
        prj.open("/nowhere/p.nalvo");
    }
    QString storedName() { return prj.tree.get("ModProcessor/processor", QString("(none)")); }
    QString currentName()
    {
        return registry.currentProcessor() == nullptr ? QString() : registry.currentProcessor()->processorName();
    }
    nsModProcessor::ProcPluginIf* processor(const char* name) { return registry.processorList()->interface(name); }
    /// What has been logged since the last call.
    QStringList takeLog()
    {
        const QStringList taken = log;
        log.clear();
        return taken;
    }

    QStringList log;
    RecordingMsgHook msg{&log};
    RecordingGuiHook gui{&log};
    RecordingEditorHook editor{&log};
    RecordingAsmFeHook asmFe{&log};
    RecordingActionHook action{&log};
    RecordingCfgAppHook cfgApp{&log};
    RecordingPrjHook prj{&log};
    FakeScriptHook script;
    nsModProcessor::ModProcessor registry;
};

const char* const namePicoBlaze3 = "Xilinx PicoBlaze 3";
const char* const namePicoBlaze6 = "Xilinx PicoBlaze 6";
const char* const nameMico8 = "Lattice Mico8 v3.x";
