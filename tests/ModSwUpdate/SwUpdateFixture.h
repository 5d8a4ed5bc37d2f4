#pragma once

#include "FakeBrowser.h"
#include "FakeHooks.h"
#include "LocalHttpServer.h"
#include "LocalProxies.h"
#include "ModNetworkHookIf.h"
#include "ModSwUpdate.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include <memory>

/// What answers of an update server look like.
inline QByteArray answerText(bool expired, const QByteArray& changeLog = "First change\nSecond <b>change</b>")
{
    QString log = QString::fromUtf8(changeLog).toHtmlEscaped();
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><updateinfo><expired>" + QByteArray(expired ? "1" : "0") +
           "</expired><release>2031-4.2</release><date>2031-04-05</date><changelog>" + log.toUtf8() +
           "</changelog></updateinfo>";
}

class FakeNetwork : public ModNetworkHookIf
{
public:
    QNetworkProxy proxy() override
    {
        ++asked;
        return value;
    }

    QNetworkProxy value = QNetworkProxy::NoProxy;
    int asked = 0;
};

/// The module as the window has it, with an update server of the test.
class SwUpdateFixture : public ::testing::Test
{
protected:
    SwUpdateFixture()
    {
        for (const char* name : {"http_proxy", "HTTP_PROXY", "no_proxy", "all_proxy"})
            qunsetenv(name);
        server.answer = [](const LocalHttpServer::Request&) { return LocalHttpServer::page(answerText(false)); };
        restart();
    }

    /// A start of the program as far as the phase in which the automatic check is made.
    void restart()
    {
        if (module != nullptr) {
            module->modExitIntermod();
            module->wrAppCfg();
            module->modExit();
        }
        module = std::make_unique<nsModSwUpdate::ModSwUpdate>();
        msg.registerPlugin(static_cast<ModMsgPluginIf*>(module.get()));
        cfg.plugins.clear();
        cfg.registerPlugin(module.get());
        module->modNetworkHook = &network;
        module->setAddresses({server.address(), page});
        module->modInit();
        module->rdAppCfg();
    }
    bool waitForMessage(const QString& text)
    {
        return QTest::qWaitFor([&] { return msg.texts().contains(text); }, 60000);
    }
    /// @return a check has been sent. One that has not been sent shows nothing.
    bool checksAtStart()
    {
        msg.reset();
        module->modRun();
        return msg.texts().contains("Checking for update...");
    }
    static QDate daysAgo(int days) { return QDate::currentDate().addDays(-days); }

    const QString page = "http://127.0.0.1/nalvo-update";
    LocalHttpServer server;
    FakeBrowser browser;
    FakeNetwork network;
    FakeMsgHook msg;
    FakeCfgAppHook cfg;
    std::unique_ptr<nsModSwUpdate::ModSwUpdate> module;
};
