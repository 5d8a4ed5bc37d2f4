#pragma once

#include "CfgLookAccess.h"
#include "CfgTree.h"
#include "ModCfgAppHookIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "PluginList.h"

class QSettings;

namespace nsModCfgApp {

/// The settings of one user, kept from one run of the program to the next in an ini file that is named by the
/// application's organisation and name.
///
/// The file is replaced in one step, so it always holds the old or the new settings. A file that can not be written is
/// reported; one that can not be read counts as missing.
class ModCfgApp : public CfgTree,
                  public CfgLookAccess<ModCfgAppHookIf>,
                  public ModPluginIf,
                  public ModMsgPluginIfInterMod
{
    Q_OBJECT

public:
    explicit ModCfgApp(QObject* parent = nullptr);
    ~ModCfgApp() override;

    /// Reads the file into the tree.
    void loadAppConfig();
    /// Calls rdAppCfg() of all clients.
    void distributeAppConfigToModules();
    /// Calls wrAppCfg() of all clients.
    void collectAppConfigFromModules();

    // ModCfgAppHookIf
    void registerPlugin(ModCfgAppPluginIfInterMod* plugin) override;
    void unregisterPlugin(ModCfgAppPluginIfInterMod* plugin) override;
    void registerPlugin(ModCfgAppPluginIf* plugin) override;
    void unregisterPlugin(ModCfgAppPluginIf* plugin) override;
    /// A key with an empty value is not stored: its default returns at the next start.
    void saveAppConfig() override;
    using CfgLookAccess::font;
    using CfgLookAccess::setFont;
    using CfgLookAccess::setValue;
    using CfgLookAccess::value;
    QDate value(QString key, QDate dflt) override;
    void setValue(QString key, QDate value) override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override;
    bool modExitRequest() override;
    void modExitIntermod() override;
    void modExit() override;

private:
    bool formatSettings(QByteArray* text, QString* reason);
    static void saveAppCfgNode(CfgNode* top, QSettings* settings);

    PluginList<ModCfgAppPluginIf> m_plugins;
};

} // namespace nsModCfgApp
