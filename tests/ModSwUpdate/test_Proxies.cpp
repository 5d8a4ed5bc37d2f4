// The request goes through the proxy of the user, with name and password, and never past it.

#include "ModNetwork.h"
#include "SwUpdateFixture.h"

namespace {

const char* const secret = "s3cret&Pass";

class ProxyTest : public SwUpdateFixture
{
protected:
    ProxyTest()
    {
        settings.proxyHostName = "127.0.0.1";
        settings.proxyUserName = "jo";
        settings.proxyUserPassword = secret;
        module->modNetworkHook = &settings;
    }
    void useProxy(int type, const LocalProxy& proxy)
    {
        settings.proxyType = type;
        settings.proxyPort = proxy.port();
    }
    /// Checks and waits for the end.
    bool check()
    {
        msg.reset();
        module->chkForUpdate();
        return QTest::qWaitFor([this] { return msg.texts().size() > 1; }, 60000);
    }

    nsModNetwork::ModNetwork settings;
    LocalHttpProxy http;
    LocalSocks5Proxy socks;
};

TEST_F(ProxyTest, httpWithNameAndPassword)
{
    for (int type : {nsModNetwork::NetworkConfig::proxyHttp, nsModNetwork::NetworkConfig::proxyHttpCaching}) {
        http.user = "jo";
        http.password = secret;
        http.handedOn = 0;
        useProxy(type, http);
        ASSERT_TRUE(check());
        EXPECT_EQ(msg.texts(), (QStringList{"Checking for update...", "No update available."}));
        EXPECT_EQ(http.handedOn, 1) << "not through the proxy";
    }
    EXPECT_EQ(server.requests.size(), 2);
    EXPECT_FALSE(server.requests[0].head.contains(QByteArray(secret).toBase64())) << "told to the server";
}

TEST_F(ProxyTest, socks5WithNameAndPassword)
{
    socks.user = "jo";
    socks.password = secret;
    useProxy(nsModNetwork::NetworkConfig::proxySocks5, socks);
    ASSERT_TRUE(check());
    EXPECT_EQ(msg.texts(), (QStringList{"Checking for update...", "No update available."}));
    EXPECT_EQ(socks.handedOn, 1);
    EXPECT_EQ(server.requests.size(), 1);
}

TEST_F(ProxyTest, withoutNameAndPassword)
{
    settings.proxyUserName.clear();
    settings.proxyUserPassword.clear();
    useProxy(nsModNetwork::NetworkConfig::proxySocks5, socks);
    ASSERT_TRUE(check());
    useProxy(nsModNetwork::NetworkConfig::proxyHttp, http);
    ASSERT_TRUE(check());
    EXPECT_EQ(socks.handedOn, 1);
    EXPECT_EQ(http.handedOn, 1);
    EXPECT_EQ(server.requests.size(), 2);
}

TEST_F(ProxyTest, aChangeTakesEffectForTheNextRequest)
{
    socks.user = "jo";
    socks.password = secret;
    settings.proxyType = nsModNetwork::NetworkConfig::proxyNone;
    ASSERT_TRUE(check());
    EXPECT_EQ(http.handedOn + socks.handedOn, 0);
    useProxy(nsModNetwork::NetworkConfig::proxyHttp, http);
    ASSERT_TRUE(check());
    EXPECT_EQ(http.handedOn, 1);
    useProxy(nsModNetwork::NetworkConfig::proxySocks5, socks);
    ASSERT_TRUE(check());
    EXPECT_EQ(http.handedOn, 1);
    EXPECT_EQ(socks.handedOn, 1);
    settings.proxyType = nsModNetwork::NetworkConfig::proxyNone;
    ASSERT_TRUE(check());
    EXPECT_EQ(http.handedOn + socks.handedOn, 2);
    EXPECT_EQ(server.requests.size(), 4);
}

TEST_F(ProxyTest, aChangeDuringARequestLeavesThatRequestAlone)
{
    server.answer = nullptr;
    useProxy(nsModNetwork::NetworkConfig::proxyHttp, http);
    module->chkForUpdate();
    settings.proxyType = nsModNetwork::NetworkConfig::proxyNone;
    settings.proxyPort = 1;
    ASSERT_TRUE(QTest::qWaitFor([this] { return server.requests.size() == 1; }, 60000));
    EXPECT_EQ(http.handedOn, 1);
    server.requests[0].socket->write(LocalHttpServer::page(answerText(false)));
    EXPECT_TRUE(waitForMessage("No update available."));
}

TEST_F(ProxyTest, theDefaultProxyIsThatOfTheSystem)
{
    settings.proxyType = nsModNetwork::NetworkConfig::proxyDefault;
    settings.proxyUserName.clear();
    // A system sends requests to the own machine past its proxy, so the server needs a name. Nobody looks it up.
    http.hostInstead = "127.0.0.1";
    module->setAddresses({QStringLiteral("updates.invalid:%1").arg(server.port()), QString()});
    qputenv("http_proxy", QStringLiteral("http://127.0.0.1:%1").arg(http.port()).toLatin1());
    ASSERT_TRUE(check());
    qunsetenv("http_proxy");
    EXPECT_EQ(msg.texts().last(), "No update available.");
    EXPECT_EQ(http.handedOn, 1);
    EXPECT_EQ(server.requests.size(), 1);
}

TEST_F(ProxyTest, aProxyForOtherRequestsIsNotPassedBy)
{
    useProxy(nsModNetwork::NetworkConfig::proxyFtpCaching, http);
    ASSERT_TRUE(check());
    EXPECT_TRUE(msg.texts(ModMsgHookIf::eMsgWarning).value(0).startsWith("Update check: ")) << msg.dump().toStdString();
    EXPECT_EQ(server.requests.size(), 0) << "sent without the proxy";
}

/// Everything that the program prints.
QStringList* printed = nullptr;
QtMessageHandler before = nullptr;

void remember(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    printed->append(text);
    before(type, context, text);
}

TEST_F(ProxyTest, aProxyThatRefusesIsReportedAtOnceAndThePasswordNowhere)
{
    QStringList lines;
    printed = &lines;
    before = qInstallMessageHandler(remember);
    testing::internal::CaptureStderr();
    http.user = "someone";
    http.password = "else";
    socks.user = "someone";
    socks.password = "other-word";
    for (int type = nsModNetwork::NetworkConfig::proxySocks5; type <= nsModNetwork::NetworkConfig::proxyHttpCaching;
         ++type) {
        const bool isSocks = type == nsModNetwork::NetworkConfig::proxySocks5;
        useProxy(type, isSocks ? static_cast<LocalProxy&>(socks) : http);
        EXPECT_TRUE(check());
        EXPECT_EQ(msg.texts().value(0), "Checking for update...");
        EXPECT_TRUE(msg.warnings().value(0).startsWith("Update check: ")) << msg.dump().toStdString();
        lines += msg.dump();
        for (const FakeMsgHook::Entry& entry : msg.log)
            lines += entry.hlpDoc.toString() + entry.srcFile.toString();
        // The stated end of a check without an answer.
        msg.reset();
        module->handleTimeout();
        EXPECT_EQ(msg.errors(), QStringList("Timeout during update check!"));
    }
    qInstallMessageHandler(before);
    lines += QString::fromLocal8Bit(testing::internal::GetCapturedStderr().c_str());
    EXPECT_GE(http.refused, 2);
    EXPECT_GE(socks.refused, 1);
    EXPECT_EQ(server.requests.size(), 0);
    const QByteArray packed = QByteArray("jo:") + secret;
    for (const QString& needle : {QString(secret), QString(packed.toBase64()), QString(QByteArray(secret).toBase64()),
                                  QString(QUrl::toPercentEncoding(secret))})
        EXPECT_FALSE(lines.join('\n').contains(needle)) << lines.join('\n').toStdString();
}

TEST_F(ProxyTest, aProxyThatIsNotThereIsReportedAtOnce)
{
    settings.proxyPort = 1;
    for (int type : {nsModNetwork::NetworkConfig::proxyHttp, nsModNetwork::NetworkConfig::proxySocks5}) {
        settings.proxyType = type;
        ASSERT_TRUE(check());
        EXPECT_TRUE(msg.warnings().value(0).startsWith("Update check: ")) << msg.dump().toStdString();
    }
    EXPECT_EQ(server.requests.size(), 0);
}

} // namespace
