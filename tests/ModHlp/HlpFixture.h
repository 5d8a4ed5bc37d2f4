#pragma once

#include "FakeHooks.h"
#include "HlpNetworkAccessManager.h"
#include "HlpWidget.h"
#include "ModClipboardHookIf.h"
#include "ModFindReplaceHookIf.h"
#include "ModHlp.h"
#include "ModNetworkHookIf.h"

#include <gtest/gtest.h>

#include <QNetworkProxy>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QWebView>

#include <memory>

/// As in the window: what is added is seen.
class ShowingGuiHook : public FakeGuiHook
{
public:
    void addWidget(ModGuiPluginIf* plugin, eLocation_t location, QWidget* widget, QString name) override
    {
        FakeGuiHook::addWidget(plugin, location, widget, name);
        if (!showsPages)
            return;
        widget->resize(600, 300);
        widget->show();
    }

    bool showsPages = true;
};

class FakeFindHook : public ModFindReplaceHookIf
{
public:
    void registerPluginWidget(ModFindReplacePluginIf*, QWidget* widget, int) override { widgets.append(widget); }
    void unregisterPluginWidget(QWidget* widget) override { widgets.removeAll(widget); }
    QString findString() override { return text; }
    QString replaceString() override { return {}; }
    bool isCaseSensitive() override { return caseSensitive; }
    bool isWholeWords() override { return false; }

    QList<QWidget*> widgets;
    QString text;
    bool caseSensitive = false;
};

class FakeClipboardHook : public ModClipboardHookIf
{
public:
    void setFeatureEnable(eClipboardFeature_t features, bool enable) override
    {
        if ((features & eClipboardFeatureCopy) != 0)
            canCopy = enable;
    }
    void registerPluginWidget(ModClipboardPluginIf*, QWidget* widget) override { widgets.append(widget); }
    void unregisterPluginWidget(QWidget* widget) override { widgets.removeAll(widget); }

    QList<QWidget*> widgets;
    bool canCopy = false;
};

class FakeNetworkHook : public ModNetworkHookIf
{
public:
    QNetworkProxy proxy() override { return QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), 9); }
};

/// A collection for tests, made once: a few pages in the folder "hlp" beside the folder "bin" of a program.
class TestCollection
{
public:
    /// The program file, which need not exist.
    static QString program();
    static QString file();
};

/// The module with fakes of its servers and a small collection.
class HlpFixture : public ::testing::Test
{
protected:
    HlpFixture();
    ~HlpFixture() override;

    /// The phases up to modRun().
    void start(const QString& program = TestCollection::program());
    /// The exit phases.
    void stop();

    QList<nsModHlp::HlpWidget*> pages() const { return hlp->pages(); }
    nsModHlp::HlpWidget* page() const { return hlp->pages().isEmpty() ? nullptr : hlp->pages().last(); }
    /// Waits until the page has loaded what it was told to.
    static ::testing::AssertionResult isLoaded(nsModHlp::HlpWidget* page, const QString& title);
    /// Waits until the last page shows a page of this title.
    ::testing::AssertionResult shows(const QString& title) const { return isLoaded(page(), title); }
    /// A click with the mouse on the link with this id.
    static void click(nsModHlp::HlpWidget* page, const QString& id) { click(page->view(), id); }
    static void click(QWebView* view, const QString& id);
    void find(const QString& text);
    QAction* action(const QString& text) const;

    FakeMsgHook msg;
    ShowingGuiHook gui;
    FakePrjHook prj;
    FakeCfgAppHook cfg;
    FakeScriptHook script;
    FakeFindHook finder;
    FakeClipboardHook clipboard;
    FakeNetworkHook network;
    std::unique_ptr<nsModHlp::ModHlp> hlp;
};
