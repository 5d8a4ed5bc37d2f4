#pragma once

#include "FakeCfgAppHook.h"
#include "ModGui.h"
#include "ModGuiPluginIf.h"
#include "WidgetAreaDock.h"
#include "WidgetAreaTabbed.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>

#include <functional>
#include <memory>
#include <utility>

/// A client that records the calls that it gets, in one list for all clients of a test.
struct GuiClient : public ModGuiPluginIf
{
    GuiClient(const QString& clientName, QStringList* clientLog)
        : name(clientName)
        , log(clientLog)
    {
    }
    void removeWidgetRequest(QWidget* widget) override
    {
        closeRequests.append(widget);
        if (onCloseRequest)
            onCloseRequest(widget);
    }
    void setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf* plugin, QWidget* widget) override
    {
        log->append(QStringLiteral("%1:%2:%3:%4")
                        .arg(name)
                        .arg(location)
                        .arg(plugin == this      ? QStringLiteral("own")
                             : plugin != nullptr ? QStringLiteral("other")
                                                 : QStringLiteral("none"))
                        .arg(widget != nullptr ? widget->objectName() : QStringLiteral("null")));
        // Once each, so that what it does to the window does not call it again.
        if (onFocus)
            std::exchange(onFocus, nullptr)(widget);
    }

    QString name;
    QStringList* log;
    QList<QWidget*> closeRequests;
    std::function<void(QWidget*)> onCloseRequest;
    std::function<void(QWidget*)> onFocus;
};

/// A widget that reports new content.
class Reporter : public QWidget
{
    Q_OBJECT

signals:
    void contentChanged(QWidget* widget);
};

/// The window with its areas and two clients, a and b.
class GuiTest : public ::testing::Test
{
protected:
    using Hook = ModGuiHookIf;

    GuiTest()
    {
        initResources();
        QCoreApplication::setApplicationName(QStringLiteral("Nalvo"));
        gui = new nsModGui::ModGui(&window);
        hook = gui;
        gui->modCfgAppHook = &cfg;
        hook->registerPlugin(&a);
        hook->registerPlugin(&b);
    }

    static void initResources();

    /// A widget that the test deletes at its end, if nobody has before.
    template <class Widget = QWidget>
    Widget* make(const char* name)
    {
        auto* widget = new Widget;
        widget->setObjectName(QLatin1String(name));
        made.push_back(std::make_unique<Guard>(widget));
        return widget;
    }

    nsModGui::WidgetAreaTabbed* tabs() const { return window.findChild<nsModGui::WidgetAreaTabbed*>(); }
    nsModGui::WidgetAreaDock* dock(const char* name) const
    {
        return window.findChild<nsModGui::WidgetAreaDock*>(QLatin1String(name));
    }
    QTabWidget* dockTabs(const char* name) const { return qobject_cast<QTabWidget*>(dock(name)->widget()); }
    QPushButton* closeButton() const { return qobject_cast<QPushButton*>(tabs()->cornerWidget()); }
    QStringList tabTexts() const
    {
        QStringList result;
        for (int i = 0; i < tabs()->count(); ++i)
            result.append(tabs()->tabText(i));
        return result;
    }

    struct Guard
    {
        explicit Guard(QWidget* guarded)
            : widget(guarded)
        {
        }
        ~Guard() { delete widget; }
        QPointer<QWidget> widget;
    };

    QStringList log;
    GuiClient a{QStringLiteral("a"), &log};
    GuiClient b{QStringLiteral("b"), &log};
    FakeCfgAppHook cfg;
    QMainWindow window;
    nsModGui::ModGui* gui = nullptr; ///< child of the window
    ModGuiHookIf* hook = nullptr;
    std::vector<std::unique_ptr<Guard>> made;
};
