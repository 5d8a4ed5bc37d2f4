#pragma once

#include "ActionsConfig.h"
#include "ModActionPluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModConfigHookIf.h"
#include "ModConfigPageHookIf.h"
#include "ModConfigPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModHlpPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjPluginIf.h"
#include "ModScriptPluginIf.h"
#include "PluginList.h"

#include <QHash>
#include <QObject>

class QListWidget;
class QListWidgetItem;
class QStackedWidget;

namespace nsModConfig {

class ConfigDialog;
class ModConfigPagePluginIf;

/// The configuration dialog: a tab of the main window with one page for each subsystem that has settings.
///
/// The pages belong to the modules that give them. Pages and modules may be removed and the project may be closed while
/// the dialog is open; the dialog stays usable. Scripts know this object as "config".
class ModConfig : public QObject,
                  public ModConfigHookIf,
                  public ModConfigPageHookIf,
                  public ModPluginIf,
                  public ModMsgPluginIf,
                  public ModPrjPluginIf,
                  public ModGuiPluginIf,
                  public ModHlpPluginIf,
                  public ModActionPluginIf,
                  public ModScriptPluginIf,
                  public ModCfgAppPluginIfInterMod
{
    Q_OBJECT

public:
    explicit ModConfig(QObject* parent = nullptr);
    ~ModConfig() override;

    // ModConfigHookIf; the invocable ones for scripts, too
    void registerPlugin(ModConfigPluginIf* plugin) override;
    void unregisterPlugin(ModConfigPluginIf* plugin) override;
    Q_INVOKABLE void openDialog() override;
    Q_INVOKABLE void openDialog(QString title) override;
    Q_INVOKABLE void closeDialog(bool accepted = false) override;
    Q_INVOKABLE bool selectDialogPageByTitle(QString title) override;

    // ModConfigPageHookIf
    void showDialogPageHelp(ModConfigPagePluginIf* page) override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override;
    bool modExitRequest() override;
    void modExitIntermod() override;
    void modExit() override;

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override;
    void prjSave() override;
    void prjClose() override;

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget* widget) override;
    void setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf* plugin, QWidget* widget) override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) override;

private slots:
    void handleActions(nsModConfig::ActionsConfig::eAction_t action);
    void hndlEventSetDefault();
    void hndlEventRestore();
    void hndlEventClose();
    void hndlEventCancel();
    /// As "Cancel", but changes are not dropped without a question.
    void hndlEventEscape();
    /// Shows the help of the current page beside the dialog.
    void hndlEventHelp();
    void forgetDialog();
    void takeNewColors();
    void changeDlgPage(QListWidgetItem* next, QListWidgetItem* prev);

private:
    enum class eState_t { closed, opening, open, closing };

    /// The page of an entry of the list.
    struct sConfigItem_t
    {
        ModConfigPluginIf* plugin = nullptr;
        ModConfigPagePluginIf* page = nullptr;
        QStringList values; ///< what stood on the page when it was filled
        bool stale = false; ///< was disabled when the project was opened: does not show its values
    };

    void makeDialog();
    void addPages(ModConfigPluginIf* plugin);
    void addPage(ModConfigPluginIf* plugin, ModConfigPagePluginIf* page);
    void forgetPage(ModConfigPagePluginIf* page);
    void enableConfigItems(bool enable);
    void selectFirstEnabled();
    void selectLastPage();
    bool mayApply();
    void fillPage(QListWidgetItem* item);
    bool isChanged() const;
    void closePages(bool accepted);
    void closePage(QListWidgetItem* item, bool accepted);
    void removeDialog();
    void saveConfig();
    void setDockRightVisible(bool visible);
    QList<QListWidgetItem*> items() const;
    QListWidgetItem* itemOf(const ModConfigPagePluginIf* page) const;

    ConfigDialog* m_dialog = nullptr; ///< null while closed
    QListWidget* m_list = nullptr;    ///< of the dialog
    QStackedWidget* m_stack = nullptr;
    QHash<QListWidgetItem*, sConfigItem_t> m_items;
    PluginList<ModConfigPluginIf> m_plugins;
    ActionsConfig* m_actions = nullptr;
    eState_t m_state = eState_t::closed;
};

} // namespace nsModConfig
