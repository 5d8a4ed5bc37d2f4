#pragma once

#include "ModActionHookIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModPluginIf.h"
#include "PluginList.h"
#include "Shortcuts.h"

#include <QMap>
#include <QObject>
#include <QPointer>

class ModActionPluginIf;
class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
class QWidget;

namespace nsModAction {

class MenuKeys;
class ShortcutsPage;

/// The menu bar and the tool bars of the main window. Every entry comes from a client; this module has none of its own.
class ModAction : public QObject,
                  public ModActionHookIf,
                  public ModPluginIf,
                  public ModCfgAppPluginIf,
                  public ModConfigPluginIfDflt
{
    Q_OBJECT

public:
    /// @param mainWindow window with the bars; not owned, parent of this object
    explicit ModAction(QMainWindow* mainWindow);
    ~ModAction() override;

    /// Makes the menus and tool bars of all classes, in the order of the screen.
    void setupActionClasses();
    /// Makes the menu and the tool bar of one class; a class that exists is left alone.
    void setupActionClass(QString title, eActionClass_t actionClass);

    // ModActionHookIf
    void registerPlugin(ModActionPluginIfInterMod* plugin) override;
    void unregisterPlugin(ModActionPluginIfInterMod* plugin) override;
    void registerPlugin(ModActionPluginIf* plugin) override;
    void unregisterPlugin(ModActionPluginIf* plugin) override;
    void refreshActions() override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override {}
    void modRun() override;
    bool modExitRequest() override { return true; }
    void modExitIntermod() override;
    void modExit() override {}

    // ModCfgAppPluginIf
    void rdAppCfg() override;
    void wrAppCfg() override;

    // ModConfigPluginIf
    nsModConfig::ModConfigPagePluginIf* configPage(int index) override;
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override;
    void configPageClose(bool accepted) override;

private:
    using ListOperation = QList<QAction*> (ModActionPluginIf::*)(eActionClass_t);

    /// The actions of all clients, with separators that are owned by the given menu or tool bar.
    QList<QAction*> collectActions(eActionClass_t actionClass, ListOperation list, QWidget* bar);
    void refreshMenu(eActionClass_t actionClass, QMenu* menu);
    void refreshToolBar(eActionClass_t actionClass, QToolBar* toolBar);

    QPointer<QMainWindow> m_mainWindow;
    MenuKeys* m_menuKeys = nullptr;          ///< owned by the window
    PluginList<ModActionPluginIf> m_plugins; ///< their order is the order of the groups in each menu
    QMap<eActionClass_t, QPointer<QMenu>> m_menus;
    QMap<eActionClass_t, QPointer<QToolBar>> m_toolBars;
    Shortcuts m_shortcuts;
    QPointer<ShortcutsPage> m_configPage; ///< while the settings are open
    bool m_active = false;                ///< set while the program runs; before and after that a refresh does nothing
};

} // namespace nsModAction
