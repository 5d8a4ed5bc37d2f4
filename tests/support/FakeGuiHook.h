#pragma once

#include "ModGuiHookIf.h"
#include "ModGuiPluginIf.h"

#include <QHash>
#include <QPointer>
#include <QStringList>
#include <QWidget>

/// Stands in for the main window: remembers which widget stands where, shows nothing.
class FakeGuiHook : public ModGuiHookIf
{
public:
    struct Widget
    {
        ModGuiPluginIf* plugin = nullptr;
        eLocation_t location = eLocationNone;
        QString name;
        QIcon icon;
        bool enabled = true;
    };

    void registerPlugin(ModGuiPluginIfInterMod* plugin) override { setHook(plugin, this); }
    void unregisterPlugin(ModGuiPluginIfInterMod* plugin) override { setHook(plugin, nullptr); }
    void registerPlugin(ModGuiPluginIf* plugin) override { setHook(plugin, this); }
    void unregisterPlugin(ModGuiPluginIf* plugin) override { setHook(plugin, nullptr); }
    void setWindowTitle(QString text) override { titles.append(text); }
    void addWidget(ModGuiPluginIf* plugin, eLocation_t location, QWidget* widget, QString name) override
    {
        if (widget == nullptr || location <= eLocationNone || location > eLocationStatusThird)
            return;
        widgets.insert(widget, Widget{plugin, location, name, QIcon(), true});
        current.insert(location, widget);
        if (location == eLocationTabs)
            center.append(widget);
    }
    void removeWidget(QWidget* widget) override
    {
        if (!widgets.contains(widget))
            return;
        const eLocation_t location = widgets.take(widget).location;
        center.removeAll(widget);
        if (current.value(location) == widget)
            current.remove(location);
        widget->setParent(nullptr);
    }
    void setCurrentWidget(QWidget* widget) override
    {
        if (!widgets.contains(widget))
            return;
        const eLocation_t location = widgets.value(widget).location;
        current.insert(location, widget);
        visible.insert(location, true);
        if (location == eLocationTabs) {
            center.removeAll(widget);
            center.append(widget);
        }
    }
    void setWidgetName(QWidget* widget, QString name) override
    {
        if (widgets.contains(widget))
            widgets[widget].name = name;
    }
    void setWidgetIcon(QWidget* widget, QIcon icon) override
    {
        if (widgets.contains(widget))
            widgets[widget].icon = icon;
    }
    QWidget* currentWidget(eLocation_t location) override { return current.value(location, nullptr); }
    void setWidgetVisible(eLocation_t location, bool show) override { visible.insert(location, show); }
    bool widgetVisible(eLocation_t location) override { return visible.value(location, false); }
    bool hasWidget(eLocation_t location, QWidget* widget) override
    {
        return widgets.contains(widget) && widgets.value(widget).location == location;
    }
    void setEnabled(QWidget* widget, bool enabled) override
    {
        if (widgets.contains(widget))
            widgets[widget].enabled = enabled;
    }
    QList<QWidget*> centerWidgetList() override { return center; }
    void setStatusBarText(QString text) override { statusText = text; }
    void clearStatusBarText() override { statusText.clear(); }
    void setEmptyPage(QWidget* page) override { emptyPage = page; }
    QSplitter* splitPage(QWidget*, QWidget*, Qt::Orientation) override { return nullptr; }

    /// The first widget with this name, or null.
    QWidget* widgetNamed(const QString& name) const
    {
        for (auto it = widgets.cbegin(); it != widgets.cend(); ++it) {
            if (it.value().name == name)
                return it.key();
        }
        return nullptr;
    }

    QStringList titles;              ///< every title that was set, in order
    QHash<QWidget*, Widget> widgets; ///< what stands in the window
    QHash<int, QWidget*> current;    ///< current widget of an area
    QHash<int, bool> visible;        ///< areas that were shown or hidden
    QList<QWidget*> center;          ///< widgets of the tabs, the most recently current one last
    QString statusText;
    QPointer<QWidget> emptyPage;

private:
    template <class Plugin>
    void setHook(Plugin* plugin, ModGuiHookIf* hook)
    {
        if (plugin != nullptr)
            plugin->modGuiHook = hook;
    }
};
