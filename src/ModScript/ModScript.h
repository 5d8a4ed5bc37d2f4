#pragma once

#include "ModActionPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModScriptHookIf.h"
#include "ModScriptPluginIf.h"
#include "PluginList.h"

#include <QObject>

namespace nsModScript {

/// Runs scripts that drive the program.
class ModScript : public QObject,
                  public ModScriptHookIf,
                  public ModPluginIf,
                  public ModGuiPluginIf,
                  public ModActionPluginIf,
                  public ModMsgPluginIf
{
    Q_OBJECT

public:
    explicit ModScript(QObject* parent = nullptr);

    /// Runs the script of a file.
    void executeScriptFile(QString fileName);

    // ModScriptHookIf
    void registerObject(QObject* object, QString name) override;
    bool executeScript(QString script) override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t) override { return {}; }
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t) override { return {}; }

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

    void registerPlugin(ModScriptPluginIf* plugin);

private:
    PluginList<ModScriptPluginIf> m_plugins;
};

} // namespace nsModScript
