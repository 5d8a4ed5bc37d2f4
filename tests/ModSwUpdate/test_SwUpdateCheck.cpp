// The request and what can come back, against a server on the loopback address.

#include "SwUpdateCheck.h"

#include "SwUpdateFixture.h"

using nsModSwUpdate::SwUpdateCheck;

namespace {

class SwUpdateCheckTest : public ::testing::Test
{
protected:
    SwUpdateCheckTest()
    {
        check.setServer(QUrl(server.address()));
        check.setProxy(QNetworkProxy::NoProxy);
    }

    void answerWith(const QByteArray& body, const QByteArray& status = "200 OK")
    {
        const QByteArray text = LocalHttpServer::page(body, status);
        server.answer = [text](const LocalHttpServer::Request&) { return text; };
    }
    /// Sends a request and waits for its end, whatever that is.
    void run()
    {
        check.chkUpdate("2016-9.1_r", "800x600", true);
        EXPECT_TRUE(check.isRunning());
        ASSERT_TRUE(QTest::qWaitFor([this] { return !check.isRunning(); }, 60000));
    }
    QString reason() const { return failed.isEmpty() ? QString() : failed.first().first().toString(); }

    LocalHttpServer server;
    SwUpdateCheck check;
    QSignalSpy ready{&check, &SwUpdateCheck::ready};
    QSignalSpy failed{&check, &SwUpdateCheck::failed};
};

TEST_F(SwUpdateCheckTest, theRequestIsAsTheServerExpects)
{
    answerWith(answerText(false));
    run();
    ASSERT_EQ(server.requests.size(), 1);
    EXPECT_EQ(server.requests[0].target,
              QByteArray("/nalvo/?release=2016-9.1_r&platform=Win&screenSize=800x600&addChangeLog"));
    EXPECT_TRUE(server.requests[0].head.startsWith("GET "));
    check.chkUpdate("2016-9.1_b", "1x2", false);
    ASSERT_TRUE(QTest::qWaitFor([this] { return server.requests.size() == 2; }, 60000));
    EXPECT_EQ(server.requests[1].target, QByteArray("/nalvo/?release=2016-9.1_b&platform=Win&screenSize=1x2"));
}

TEST_F(SwUpdateCheckTest, anAnswerIsTaken)
{
    answerWith(answerText(true));
    run();
    EXPECT_EQ(ready.size(), 1);
    EXPECT_EQ(failed.size(), 0);
    EXPECT_TRUE(check.isExpired());
    EXPECT_EQ(check.release(), "2031-4.2");
    EXPECT_EQ(check.date(), "2031-04-05");
    EXPECT_EQ(check.changeLog(), "First change\nSecond <b>change</b>");
    // The next answer replaces all of it.
    answerWith("<updateinfo><expired>0</expired></updateinfo>");
    run();
    EXPECT_EQ(ready.size(), 2);
    EXPECT_FALSE(check.isExpired());
    EXPECT_EQ(check.release(), "");
    EXPECT_EQ(check.changeLog(), "");
}

TEST_F(SwUpdateCheckTest, expiredIsADecimalNumberOtherThanZero)
{
    const QList<QPair<QByteArray, bool>> values = {{"1", true},    {"0", false},   {" 12 ", true},
                                                   {"-1", true},   {"", false},    {"true", false},
                                                   {"0x1", false}, {"000", false}, {"99999999999999999999", true}};
    for (const auto& value : values) {
        answerWith("<a><updateinfo><expired>" + value.first + "</expired></updateinfo></a>");
        run();
        EXPECT_EQ(check.isExpired(), value.second) << value.first.constData();
    }
    EXPECT_EQ(ready.size(), values.size());
}

TEST_F(SwUpdateCheckTest, whatIsNoAnswerEndsInSilence)
{
    const QList<QByteArray> bodies = {
        "",
        "no xml at all",
        "<other><expired>1</expired></other>",
        "<updateinfo><expired>1</expired>",
        "<updateinfo><expired>1</wrong></updateinfo>",
        answerText(true) + "<tail",
        QByteArray("\xff\xfe\x00\x01\x02", 5),
        QByteArray(1000, '\0'),
        "<updateinfo><expired><deep>1</deep></expired></updateinfo>",
        QByteArray(200000, '<'),
        QByteArray("<a>").repeated(200000),
    };
    for (const QByteArray& body : bodies) {
        answerWith(body);
        run();
        EXPECT_EQ(ready.size(), 0) << body.left(60).constData();
        EXPECT_EQ(failed.size(), 0) << body.left(60).constData();
    }
    EXPECT_EQ(server.requests.size(), bodies.size());
}

TEST_F(SwUpdateCheckTest, anHttpErrorEndsInSilenceWhateverItsText)
{
    for (const char* status : {"404 Not Found", "500 Internal Server Error", "401 Unauthorized", "304 Not Modified",
                               "300 Multiple Choices"}) {
        answerWith(answerText(true), status);
        run();
    }
    EXPECT_EQ(ready.size(), 0);
    EXPECT_EQ(failed.size(), 0);
}

TEST_F(SwUpdateCheckTest, aCutConnectionEndsInSilence)
{
    // In the middle of a text that is already complete as a document.
    server.answer = [](const LocalHttpServer::Request&) {
        return QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n") + answerText(true);
    };
    run();
    // Before the first byte.
    server.answer = [](const LocalHttpServer::Request& request) {
        request.socket->abort();
        return QByteArray();
    };
    run();
    EXPECT_EQ(ready.size(), 0);
    EXPECT_EQ(failed.size(), 0);
}

TEST_F(SwUpdateCheckTest, entitiesNeverUnfold)
{
    QByteArray bomb = "<!DOCTYPE updateinfo [<!ENTITY e0 \"lol\">";
    for (int i = 1; i < 30; ++i) {
        const QByteArray inner = "&e" + QByteArray::number(i - 1) + ";";
        bomb += "<!ENTITY e" + QByteArray::number(i) + " \"" + inner.repeated(10) + "\">";
    }
    bomb += "]><updateinfo><expired>1</expired><changelog>&e29;</changelog></updateinfo>";
    answerWith(bomb);
    run();
    // One that is harmless is refused as well.
    answerWith("<!DOCTYPE updateinfo><updateinfo><expired>1</expired></updateinfo>");
    run();
    answerWith("<!DOCTYPE updateinfo SYSTEM \"file:///etc/hostname\"><updateinfo><expired>1</expired></updateinfo>");
    run();
    EXPECT_EQ(ready.size(), 0);
    // Without a declaration an entity has no meaning.
    answerWith("<updateinfo><expired>1</expired><release>&e;</release></updateinfo>");
    run();
    EXPECT_EQ(ready.size(), 0);
}

TEST_F(SwUpdateCheckTest, ofAGigabyteOneMebibyteIsRead)
{
    server.answer = [this](const LocalHttpServer::Request& request) {
        server.flood(request.socket, qint64(1) << 30);
        return QByteArray();
    };
    run();
    EXPECT_EQ(ready.size(), 0);
    EXPECT_EQ(reason(), "The answer of the update server is too large.");
    ASSERT_TRUE(QTest::qWaitFor([this] { return server.gone == 1; }, 60000)) << "the connection stays open";
    // What the buffers of the system hold comes on top.
    EXPECT_GE(server.sent, SwUpdateCheck::answerMax);
    EXPECT_LT(server.sent, 64 * 1024 * 1024);
}

TEST_F(SwUpdateCheckTest, theBoundIsExact)
{
    QByteArray text = answerText(false);
    text.insert(text.size(), QByteArray(SwUpdateCheck::answerMax - text.size(), ' '));
    answerWith(text);
    run();
    EXPECT_EQ(ready.size(), 1);
    EXPECT_EQ(failed.size(), 0);
    answerWith(text + ' ');
    run();
    EXPECT_EQ(ready.size(), 1);
    EXPECT_EQ(failed.size(), 1);
}

TEST_F(SwUpdateCheckTest, aPackedAnswerIsNotUnpacked)
{
    const QByteArray body = qCompress(QByteArray(64 * 1024 * 1024, ' ')).mid(4);
    server.answer = [&body](const LocalHttpServer::Request&) {
        return "HTTP/1.1 200 OK\r\nContent-Encoding: deflate\r\nContent-Length: " + QByteArray::number(body.size()) +
               "\r\nConnection: close\r\n\r\n" + body;
    };
    run();
    EXPECT_TRUE(server.requests[0].head.contains("Accept-Encoding: identity"));
    EXPECT_EQ(ready.size(), 0);
    EXPECT_EQ(failed.size(), 0) << "64 MB have been unpacked";
}

// --- texts of strangers ---

TEST_F(SwUpdateCheckTest, textsArePlainAndShort)
{
    const QByteArray weird = "A\tB&#x202E;C&#x9b;&#x7f;D&#xE000;  E\n\n";
    answerWith("<updateinfo><expired>1</expired><release>" + weird + "</release><date>" + QByteArray(5000, 'x') +
               "</date><changelog>\n  one&#13;\n  two&#x2028;three&#x200b;</changelog></updateinfo>");
    run();
    EXPECT_EQ(check.release(), "A BCD E");
    EXPECT_EQ(check.date(), QString(SwUpdateCheck::nameMax - 3, 'x') + "...");
    EXPECT_EQ(check.changeLog(), "one\n  two\nthree");
    answerWith("<updateinfo><expired>1</expired><changelog>" + QByteArray("\xF0\x9F\x98\x80").repeated(100000) +
               "</changelog></updateinfo>");
    run();
    EXPECT_LE(check.changeLog().size(), int(SwUpdateCheck::changeLogMax));
    EXPECT_TRUE(check.changeLog().endsWith(QString::fromUtf8("\xF0\x9F\x98\x80...")));
}

// --- redirects ---

TEST_F(SwUpdateCheckTest, aRedirectOnTheServerIsFollowed)
{
    for (const char* status :
         {"301 Moved Permanently", "302 Found", "303 See Other", "307 Temporary Redirect", "308 Permanent Redirect"}) {
        server.requests.clear();
        ready.clear();
        server.answer = [status](const LocalHttpServer::Request& request) {
            return request.target == "/new?x=1" ? LocalHttpServer::page(answerText(true))
                                                : LocalHttpServer::redirect("/new?x=1", status);
        };
        run();
        EXPECT_EQ(ready.size(), 1) << status;
        EXPECT_EQ(server.requests.size(), 2) << status;
    }
    EXPECT_EQ(failed.size(), 0);
}

TEST_F(SwUpdateCheckTest, aRedirectToAnotherPlaceIsRefused)
{
    LocalHttpServer other;
    other.answer = [](const LocalHttpServer::Request&) { return LocalHttpServer::page(answerText(true)); };
    const QStringList places = {QStringLiteral("http://localhost:%1/").arg(other.port()),
                                QStringLiteral("//localhost:%1/").arg(other.port()),
                                "file:///etc/hostname",
                                "ftp://127.0.0.1/answer.xml",
                                "data:text/xml,<updateinfo><expired>1</expired></updateinfo>",
                                "qrc:/styles/styles/stylesheet.css",
                                "javascript:1"};
    for (const QString& place : places) {
        failed.clear();
        server.answer = [&place](const LocalHttpServer::Request&) { return LocalHttpServer::redirect(place); };
        run();
        EXPECT_TRUE(reason().startsWith("The update server leads to another place: "))
            << place.toStdString() << ": " << reason().toStdString();
    }
    EXPECT_EQ(ready.size(), 0);
    EXPECT_EQ(server.requests.size(), places.size());
    EXPECT_EQ(other.requests.size(), 0);
}

TEST_F(SwUpdateCheckTest, redirectsComeToAnEnd)
{
    server.answer = [](const LocalHttpServer::Request&) { return LocalHttpServer::redirect("/nalvo/?again"); };
    run();
    EXPECT_EQ(failed.size(), 1);
    EXPECT_EQ(ready.size(), 0);
    EXPECT_EQ(server.requests.size(), 1 + SwUpdateCheck::redirectsMax);
    // As many as are allowed.
    int count = 0;
    server.answer = [&count](const LocalHttpServer::Request&) {
        return ++count > SwUpdateCheck::redirectsMax ? LocalHttpServer::page(answerText(true))
                                                     : LocalHttpServer::redirect("/next");
    };
    run();
    EXPECT_EQ(ready.size(), 1);
}

TEST_F(SwUpdateCheckTest, aRedirectWithoutATargetEndsInSilence)
{
    server.answer = [](const LocalHttpServer::Request&) {
        return QByteArray("HTTP/1.1 302 Found\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
    };
    run();
    EXPECT_EQ(ready.size() + failed.size(), 0);
}

// --- life of a request ---

TEST_F(SwUpdateCheckTest, anAnswerAfterTheAbortIsIgnored)
{
    check.chkUpdate("r", "1x1", true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return server.requests.size() == 1; }, 60000));
    check.abort();
    EXPECT_FALSE(check.isRunning());
    if (server.requests[0].socket != nullptr)
        server.requests[0].socket->write(LocalHttpServer::page(answerText(true)));
    ASSERT_TRUE(QTest::qWaitFor([this] { return server.gone == 1; }, 60000));
    EXPECT_EQ(ready.size() + failed.size(), 0);
    check.abort();
}

TEST_F(SwUpdateCheckTest, aNewRequestTakesThePlaceOfTheOldOne)
{
    server.answer = [this](const LocalHttpServer::Request&) {
        return server.requests.size() == 1 ? QByteArray() : LocalHttpServer::page(answerText(true));
    };
    check.chkUpdate("r", "1x1", true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return server.requests.size() == 1; }, 60000));
    run();
    EXPECT_EQ(ready.size(), 1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return server.gone == 2; }, 60000)) << "the first connection stays open";
}

TEST_F(SwUpdateCheckTest, itMayBeDeletedAtAnyTime)
{
    auto doomed = std::make_unique<SwUpdateCheck>();
    QSignalSpy spy(doomed.get(), &SwUpdateCheck::ready);
    doomed->setServer(QUrl(server.address()));
    doomed->setProxy(QNetworkProxy::NoProxy);
    doomed->chkUpdate("r", "1x1", true);
    doomed.reset();
    doomed = std::make_unique<SwUpdateCheck>();
    doomed->setServer(QUrl(server.address()));
    doomed->setProxy(QNetworkProxy::NoProxy);
    doomed->chkUpdate("r", "1x1", true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return server.requests.size() >= 1; }, 60000));
    doomed.reset();
    ASSERT_TRUE(QTest::qWaitFor([this] { return server.gone == server.requests.size(); }, 60000));
    EXPECT_EQ(spy.size(), 0);
}

TEST_F(SwUpdateCheckTest, aReceiverMaySendTheNextRequest)
{
    answerWith(answerText(true));
    int count = 0;
    QObject::connect(&check, &SwUpdateCheck::ready, &check, [&] {
        if (++count < 3)
            check.chkUpdate("r", "1x1", true);
    });
    check.chkUpdate("r", "1x1", true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return count == 3; }, 60000));
    EXPECT_FALSE(check.isRunning());
}

TEST_F(SwUpdateCheckTest, withoutAServerNothingIsSent)
{
    for (const char* address : {"", "file:///etc/hostname", "ftp://127.0.0.1", "http://"}) {
        check.setServer(QUrl(address));
        check.chkUpdate("r", "1x1", true);
        EXPECT_FALSE(check.isRunning()) << address;
    }
}

TEST_F(SwUpdateCheckTest, aRefusedConnectionIsKnownAtOnce)
{
    server.close();
    run();
    EXPECT_EQ(ready.size(), 0);
    EXPECT_EQ(failed.size(), 1);
    EXPECT_FALSE(reason().isEmpty());
}

} // namespace
