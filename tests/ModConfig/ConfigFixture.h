#pragma once

#include "FakeHooks.h"
#include "ModConfig.h"
#include "ModConfigPagePluginIf.h"
#include "ModConfigPluginIf.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTest>
#include <QVBoxLayout>

#include <functional>

/// A page with one field that writes down what is done with it.
class RecordingPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
public:
    RecordingPage(const QString& title, bool needsPrj, QStringList* log)
        : m_title(title)
        , m_needsPrj(needsPrj)
        , m_log(log)
        , field(new QLineEdit(this))
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(field);
    }
    ~RecordingPage() override { note("deleted"); }

    QWidget* pageWidget() override { return this; }
    QIcon pageIcon() override { return QIcon(); }
    QString pageTitle() override { return m_title; }
    QString pageHelpRef() override { return "pageId://" + m_title + helpSuffix; }
    void setPrjConfigEnabled(bool enabled) override
    {
        note(enabled ? "project" : "no project");
        m_enabled = enabled || !m_needsPrj;
    }
    bool pageIsEnabled() override { return m_enabled; }
    void setFocus(bool focus) override { note(focus ? "front" : "back"); }
    void setDefaultConfig() override { field->setText("default"); }
    bool checkConfig() override
    {
        note("check");
        return valid;
    }

    bool valid = true; ///< knob: answer of checkConfig()
    QString helpSuffix;

private:
    void note(const char* what) { m_log->append(m_title + ' ' + what); }

    QString m_title;
    bool m_needsPrj = false;
    bool m_enabled = true;
    QStringList* m_log = nullptr;

public:
    QLineEdit* field = nullptr;
};

/// A module with pages that writes down what it is asked.
class RecordingClient : public ModConfigPluginIf
{
public:
    RecordingClient(const QString& name, QStringList* log, bool needsPrj = false, int pageCount = 1)
        : name(name)
        , log(log)
        , needsPrj(needsPrj)
        , pageCount(pageCount)
    {
    }
    ~RecordingClient() override { deletePages(); }

    int configPageCnt() override
    {
        log->append(name + " count");
        return pageCount;
    }
    nsModConfig::ModConfigPagePluginIf* configPage(int index) override
    {
        log->append(name + QString(" page %1").arg(index));
        if (givesNull)
            return nullptr;
        pages.append(new RecordingPage(pageCount == 1 ? name : name + QString::number(index), needsPrj, log));
        return pages.last();
    }
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override
    {
        log->append(name + " set");
        static_cast<RecordingPage*>(page)->field->setText(value);
    }
    bool configPageCloseRequest() override
    {
        log->append(name + " request");
        if (onRequest)
            onRequest();
        return agrees;
    }
    void configPageClose(bool accepted) override
    {
        log->append(name + (accepted ? " apply" : " close"));
        if (accepted && !pages.isEmpty() && pages.first())
            value = pages.first()->field->text();
        if (onClose)
            onClose();
        deletePages();
    }
    void configPagesClosed(bool accepted) override { log->append(name + (accepted ? " applied" : " closed")); }

    void deletePages()
    {
        for (const QPointer<RecordingPage>& page : qAsConst(pages))
            delete page;
        pages.clear();
    }
    RecordingPage* page(int index = 0) const { return pages.value(index); }

    QString name;
    QStringList* log;
    bool needsPrj;
    int pageCount;
    bool givesNull = false; ///< knob: no page at all
    bool agrees = true;     ///< knob: answer of configPageCloseRequest()
    QString value = "value";
    std::function<void()> onRequest;
    std::function<void()> onClose;
    QList<QPointer<RecordingPage>> pages;
};

/// Notes down the visits of the two savings.
class LoggingPrjHook : public FakePrjHook
{
public:
    explicit LoggingPrjHook(QStringList* log)
        : m_log(log)
    {
    }
    void savePrjCfg() override
    {
        m_log->append("save project");
        FakePrjHook::savePrjCfg();
    }

private:
    QStringList* m_log;
};

class LoggingCfgAppHook : public FakeCfgAppHook
{
public:
    explicit LoggingCfgAppHook(QStringList* log)
        : m_log(log)
    {
    }
    void saveAppConfig() override { m_log->append("save settings"); }

private:
    QStringList* m_log;
};

/// The module between fakes, with a "Prj" page that needs a project, followed by an "App" page that is always enabled.
class ConfigFixture : public ::testing::Test
{
protected:
    ConfigFixture()
        : prj(&log)
        , cfgApp(&log)
        , prjClient("Prj", &log, true)
        , appClient("App", &log)
        , config(std::make_unique<nsModConfig::ModConfig>())
    {
        msg.registerPlugin(static_cast<ModMsgPluginIf*>(config.get()));
        prj.registerPlugin(static_cast<ModPrjPluginIf*>(config.get()));
        gui.registerPlugin(static_cast<ModGuiPluginIf*>(config.get()));
        hlp.registerPlugin(config.get());
        script.registerPlugin(config.get());
        cfgApp.registerPlugin(static_cast<ModCfgAppPluginIfInterMod*>(config.get()));
        config->modRegisterPlugins({config.get()});
        config->registerPlugin(&prjClient);
        config->registerPlugin(&appClient);
        config->modInit();
        config->modInitIntermod();
        config->modRun();
    }
    ~ConfigFixture() override
    {
        config->modExitIntermod();
        config->modExit();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Opens the dialog and shows it on its own, as the fake window shows nothing.
    void openDialog()
    {
        config->openDialog();
        dialog()->resize(700, 400);
        dialog()->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog(), 60000));
    }
    QWidget* dialog() const { return gui.widgetNamed("Configuration"); }
    QListWidget* list() const { return dialog()->findChild<QListWidget*>(); }
    QStackedWidget* stack() const { return dialog()->findChild<QStackedWidget*>(); }
    QString current() const { return list()->currentItem() != nullptr ? list()->currentItem()->text() : QString(); }
    /// The page that is in front.
    QWidget* shownPage() const { return qobject_cast<QScrollArea*>(stack()->currentWidget())->widget(); }
    QListWidgetItem* item(const QString& title) const { return list()->findItems(title, Qt::MatchExactly).value(0); }
    bool isEnabled(const QString& title) const { return (item(title)->flags() & Qt::ItemIsEnabled) != 0; }
    void clickItem(const QString& title) const
    {
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list()->visualItemRect(item(title)).center());
    }
    void click(const QString& button) const
    {
        for (QPushButton* candidate : dialog()->findChildren<QPushButton*>()) {
            if (candidate->text() == button) {
                QTest::mouseClick(candidate, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no button " << qPrintable(button);
    }
    /// The lines of the log that end in one of the words.
    QStringList logOf(const QStringList& words) const
    {
        QStringList result;
        for (const QString& line : log) {
            for (const QString& word : words) {
                if (line.endsWith(' ' + word))
                    result.append(line);
            }
        }
        return result;
    }

    QStringList log;
    FakeMsgHook msg;
    LoggingPrjHook prj;
    FakeGuiHook gui;
    FakeHlpHook hlp;
    FakeScriptHook script;
    LoggingCfgAppHook cfgApp;
    RecordingClient prjClient;
    RecordingClient appClient;
    std::unique_ptr<nsModConfig::ModConfig> config;
};
