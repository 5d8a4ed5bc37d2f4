#pragma once

#include "GuiActions.h"

#include "ModActionPluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModGuiHookIf.h"
#include "ModGuiPluginIf.h"
#include "ModPluginIf.h"
#include "PluginList.h"

#include <QHash>
#include <QObject>
#include <QPointer>

class ColorScheme;
class QMainWindow;
class QStatusBar;

namespace nsModGui {

class DockShares;
class GuiConfigPage;
class SplashScreen;
class WidgetArea;
class WidgetAreaDock;
class WidgetAreaTabbed;

/// Divides the main window into its nine areas, and looks after its title, style sheet, geometry and splash screen.
///
/// All areas are made in the constructor and stay as long as the window. Widgets in them stay with their owners: one
/// that its owner deletes is forgotten here.
class ModGui : public QObject,
               public ModGuiHookIf,
               public ModPluginIf,
               public ModActionPluginIf,
               public ModCfgAppPluginIf,
               public ModConfigPluginIfDflt
{
    Q_OBJECT

public:
    /// @param window the window to divide, not null; not owned, parent of this object
    explicit ModGui(QMainWindow* window);
    ~ModGui() override;

    // ModGuiHookIf
    void registerPlugin(ModGuiPluginIfInterMod* plugin) override;
    void unregisterPlugin(ModGuiPluginIfInterMod* plugin) override;
    void registerPlugin(ModGuiPluginIf* plugin) override;
    void unregisterPlugin(ModGuiPluginIf* plugin) override;
    void setWindowTitle(QString text) override;
    void addWidget(ModGuiPluginIf* plugin, eLocation_t location, QWidget* widget, QString name) override;
    void removeWidget(QWidget* widget) override;
    void setCurrentWidget(QWidget* widget) override;
    void setWidgetName(QWidget* widget, QString name) override;
    void setWidgetIcon(QWidget* widget, QIcon icon) override;
    QWidget* currentWidget(eLocation_t location) override;
    void setWidgetVisible(eLocation_t location, bool visible) override;
    bool widgetVisible(eLocation_t location) override;
    bool hasWidget(eLocation_t location, QWidget* widget) override;
    void setEnabled(QWidget* widget, bool enabled) override;
    QList<QWidget*> centerWidgetList() override { return m_centerWidgets; }
    void setStatusBarText(QString text) override;
    void clearStatusBarText() override;
    void setEmptyPage(QWidget* page) override;
    QSplitter* splitPage(QWidget* page, QWidget* second, Qt::Orientation orientation) override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override {}
    void modRun() override;
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) override;

    // ModConfigPluginIf
    nsModConfig::ModConfigPagePluginIf* configPage(int index) override;
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override;
    void configPageClose(bool accepted) override;

    // ModCfgAppPluginIf
    void rdAppCfg() override;
    void wrAppCfg() override;

private slots:
    void handleActions(nsModGui::GuiActions::eAction_t action);
    void removeWidgetRequest(QWidget* widget);
    void currentWidgetChanged(QWidget* area, QWidget* widget);

private:
    struct sWidgetData_t
    {
        ModGuiPluginIf* plugin = nullptr; ///< the owner, may be null
        QString statusBarText;            ///< text last set while the widget was current in the tabs
        QMetaObject::Connection destroyed;
    };
    /// One of the nine areas, as long as the window lives.
    struct sArea_t
    {
        QPointer<QWidget> widget;
        WidgetArea* area = nullptr;
    };

    static constexpr int areaCount = eLocationStatusThird + 1;

    void restoreState();
    bool holdsFocus(const QWidget* widget) const;
    void focusPage();
    void focusNewPage();
    void endOfPage();
    void setupCenter();
    void setupDocks();
    void setupStatusBar();
    void setupStyle();
    template <class Area>
    void setArea(eLocation_t location, Area* area);
    WidgetArea* area(int location) const;
    WidgetAreaTabbed* tabs() const;
    eLocation_t locationOf(QWidget* widget) const;
    void forgetWidget(QWidget* widget);
    void showStoredStatusText(QWidget* widget);

    /// The main window; null while it is being destroyed, when its children still report.
    QMainWindow* window() const;

    QPointer<QObject> m_windowObject;
    QPointer<QStatusBar> m_statusBar;     ///< of the window; it can go before the pages do
    WidgetAreaTabbed* m_tabbed = nullptr; ///< owned by the window
    sArea_t m_areas[areaCount];           ///< by location; the first stays empty
    PluginList<ModGuiPluginIf> m_plugins;
    QHash<QWidget*, sWidgetData_t*> m_widgets;
    QList<QWidget*> m_centerWidgets; ///< widgets of the tabs, the most recently current one last
    QList<QPointer<WidgetAreaDock>> m_docks;
    QPointer<DockShares> m_dockShares;   ///< child of the window
    QPointer<ColorScheme> m_colorScheme; ///< child of the window
    GuiActions* m_actions = nullptr;
    QPointer<GuiConfigPage> m_configPage; ///< while the settings are open
    QPointer<SplashScreen> m_splashScreen;
};

} // namespace nsModGui
