#pragma once

#include <QIcon>
#include <QList>
#include <QString>
#include <Qt>

class ModGuiPluginIf;
class ModGuiPluginIfInterMod;
class QSplitter;
class QWidget;

/// The nine areas of the main window, its title and its status bar. Served by nsModGui::ModGui.
///
/// A module never places a widget itself: it names a location. Widgets stay in the ownership of the module that made
/// them; null widgets and bad locations do nothing and answer null or false.
class ModGuiHookIf
{
public:
    /// Where a widget goes.
    enum eLocation_t {
        eLocationNone = 0,         ///< no area
        eLocationTabs = 1,         ///< the tabbed centre
        eLocationCenterRight = 2,  ///< stacked area to the right of the centre
        eLocationCenterBelow = 3,  ///< stacked strip below the centre
        eLocationDockLeft = 4,     ///< left dock
        eLocationDockRight = 5,    ///< right dock
        eLocationDockBottom = 6,   ///< bottom dock
        eLocationStatusFirst = 7,  ///< first area of the status bar: the editor
        eLocationStatusSecond = 8, ///< second area of the status bar: the processor, a running simulator
        eLocationStatusThird = 9,  ///< third area of the status bar
    };

    virtual ~ModGuiHookIf() = default;

    virtual void registerPlugin(ModGuiPluginIfInterMod* plugin) = 0;
    virtual void unregisterPlugin(ModGuiPluginIfInterMod* plugin) = 0;
    virtual void registerPlugin(ModGuiPluginIf* plugin) = 0;
    virtual void unregisterPlugin(ModGuiPluginIf* plugin) = 0;

    /// The application's name, followed by " - " and the text if there is one.
    virtual void setWindowTitle(QString text) = 0;
    /// Puts the widget into the area and makes it current. The plug-in gets close requests and changes of the focus.
    /// @param name text of the tab; areas without tabs ignore it
    virtual void addWidget(ModGuiPluginIf* plugin, eLocation_t location, QWidget* widget, QString name) = 0;
    /// Takes the widget out of its area, without a parent, and forgets its owner.
    virtual void removeWidget(QWidget* widget) = 0;
    /// Brings the widget to the front of its area and shows the area.
    virtual void setCurrentWidget(QWidget* widget) = 0;
    /// Tab text, location eLocationTabs only. Equal texts get a number appended.
    virtual void setWidgetName(QWidget* widget, QString name) = 0;
    virtual void setWidgetIcon(QWidget* widget, QIcon icon) = 0;
    virtual QWidget* currentWidget(eLocation_t location) = 0;
    virtual void setWidgetVisible(eLocation_t location, bool visible) = 0;
    virtual bool widgetVisible(eLocation_t location) = 0;
    virtual bool hasWidget(eLocation_t location, QWidget* widget) = 0;
    /// Enables or disables the widget's tab.
    virtual void setEnabled(QWidget* widget, bool enabled) = 0;
    /// The widgets of eLocationTabs, the most recently current one last.
    virtual QList<QWidget*> centerWidgetList() = 0;
    /// Shows a text in the status bar and keeps it with the current widget of eLocationTabs.
    virtual void setStatusBarText(QString text) = 0;
    virtual void clearStatusBarText() = 0;
    /// What the centre shows below the name of the program while eLocationTabs has no page; null for a hint of its own.
    virtual void setEmptyPage(QWidget* page) = 0;
    /// Shows a second widget in the tab of a page of eLocationTabs, beside it or below it. The page stays the page in
    /// all calls and events; the second widget is nobody's page and stays its maker's. Null takes it out of the tab,
    /// without a parent, which removeWidget() of the page does, too.
    /// @return what holds both, for their order and sizes; it lives as long as both are there. Null without it.
    virtual QSplitter* splitPage(QWidget* page, QWidget* second, Qt::Orientation orientation) = 0;
};
