#pragma once

#include "ModActionPluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModEditorPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjPluginIf.h"
#include "ModSourcesPluginIf.h"
#include "ModSrcNaviHookIf.h"
#include "ModSrcNaviPluginIf.h"
#include "NaviActions.h"
#include "NaviTag.h"
#include "NaviTagList.h"
#include "PluginList.h"
#include "SrcNaviConfig.h"

#include <QObject>
#include <QPointer>

namespace nsModSrcNavi {

class FilePanel;
class NaviWidget;
class SrcNaviConfigPage;

/// The source navigator: a table of contents of the sources, as the assembler read them in its last run, the list of
/// the project's files, and quick open.
class ModSrcNavi : public QObject,
                   public ModSrcNaviHookIf,
                   public ModPluginIf,
                   public ModCfgAppPluginIf,
                   public ModPrjPluginIf,
                   public ModMsgPluginIf,
                   public ModGuiPluginIf,
                   public ModConfigPluginIfDflt,
                   public ModSourcesPluginIf,
                   public ModEditorPluginIf,
                   public ModActionPluginIf,
                   public SrcNaviConfig
{
    Q_OBJECT

public:
    explicit ModSrcNavi(QObject* parent = nullptr);
    ~ModSrcNavi() override;

    // ModSrcNaviHookIf
    void registerPlugin(ModSrcNaviPluginIf* plugin) override;
    void unregisterPlugin(ModSrcNaviPluginIf* plugin) override;
    void registerPlugin(ModSrcNaviPluginIfSymbols* plugin) override;
    void unregisterPlugin(ModSrcNaviPluginIfSymbols* plugin) override;
    void clearTagList() override;
    void addTag(NaviTag* tag) override;
    void showTagList() override;
    void setTargetFiles(QStringList templates, QStringList outputs, QMap<QString, int> errors) override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override;

    // ModCfgAppPluginIf
    void rdAppCfg() override;
    void wrAppCfg() override;

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override;
    void prjSave() override {}
    void prjClose() override;

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget*) override {}
    void setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf* plugin, QWidget* widget) override;
    void showFileRequest(QString path) override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t) override { return {}; }

    // ModConfigPluginIf
    nsModConfig::ModConfigPagePluginIf* configPage(int index) override;
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override;
    void configPageClose(bool accepted) override;

    // ModSourcesPluginIf
    void srcFileListChanged() override;
    void srcFileContentChanged() override;

    /// Puts the panel where the settings want it and gives it their look.
    void configureNaviWidget();

private slots:
    void sortModeChanged();
    void showSelectedTag(nsModSrcNavi::NaviTag* tag);
    void handleActions(nsModSrcNavi::NaviActions::eAction_t action);

private:
    ModGuiHookIf::eLocation_t dockLocation() const;

    PluginList<ModSrcNaviPluginIf> m_plugins;
    ModSrcNaviPluginIfSymbols* m_symbols = nullptr; ///< not owned
    NaviTagList m_tagList;
    QPointer<NaviWidget> m_naviWidget; ///< the window may take it along when it goes
    FilePanel* m_filePanel;
    NaviActions* m_actions = nullptr;         ///< null in a program without menus
    QPointer<SrcNaviConfigPage> m_configPage; ///< null while the settings dialog is closed
};

} // namespace nsModSrcNavi
