// Links and requests: what a page may do, and what it may not.

#include "HlpFixture.h"

#include "FakeBrowser.h"
#include "HelpRef.h"
#include "HlpDialogWindow.h"
#include "HlpWidgetNetworkReply.h"
#include "LocalHttpServer.h"
#include "QtPrinters.h"

#include <QApplication>
#include <QSignalSpy>
#include <QWebElement>
#include <QWebFrame>

using nsModHlp::HlpDialogWindow;
using nsModHlp::HlpNetworkAccessManager;
using nsModHlp::HlpWidget;

namespace {

class Links : public HlpFixture
{
protected:
    void startAtStartPage()
    {
        start();
        hlp->openFile(QUrl("pageId://gettingStarted"));
        ASSERT_TRUE(shows("Start page"));
    }
    /// Puts a page into a view by its text and says that it comes from the address.
    static void showText(QWebView* view, const QByteArray& body, const QString& address)
    {
        view->setContent("<html><head><title>Foreign</title></head><body>" + body + "</body></html>", "text/html",
                         QUrl(address));
        ASSERT_TRUE(QTest::qWaitFor([&] { return view->title() == "Foreign"; }, 20000)) << qPrintable(address);
    }
    /// A view without the rules of a help page, which loads through the same manager.
    std::unique_ptr<QWebView> bareView() const
    {
        auto view = std::make_unique<QWebView>();
        view->page()->setNetworkAccessManager(hlp->network());
        view->resize(600, 300);
        view->show();
        return view;
    }
    /// What a request is answered with.
    QByteArray answerTo(const QUrl& url, QString* type = nullptr) const
    {
        std::unique_ptr<QNetworkReply> reply(hlp->network()->get(QNetworkRequest(url)));
        QSignalSpy finished(reply.get(), &QNetworkReply::finished);
        QByteArray bytes;
        QObject::connect(reply.get(), &QNetworkReply::readyRead, reply.get(), [&] { bytes += reply->readAll(); });
        EXPECT_TRUE(QTest::qWaitFor([&] { return !finished.isEmpty(); }, 20000));
        EXPECT_EQ(finished.size(), 1);
        EXPECT_EQ(reply->error(), QNetworkReply::NoError);
        if (type != nullptr)
            *type = reply->header(QNetworkRequest::ContentTypeHeader).toString();
        return bytes;
    }

    FakeBrowser browser;
};

TEST_F(Links, aScriptLinkRunsItsCall)
{
    startAtStartPage();
    click(page(), "script");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !script.scripts.isEmpty(); }, 20000));
    EXPECT_EQ(script.scripts, QStringList{"foo(\"a\",3)"});
    // The page stays where it is.
    EXPECT_TRUE(shows("Start page"));
    EXPECT_EQ(pages().size(), 1);
}

TEST_F(Links, aScriptOfThePageInFrontOfADialogMayEndTheProgram)
{
    start();
    QDialog dialog;
    dialog.setModal(true);
    HelpRef::set(&dialog, "pageId://gettingStarted");
    dialog.show();
    ASSERT_EQ(QApplication::activeModalWidget(), &dialog);
    QTest::keyClick(&dialog, Qt::Key_F1);
    const QPointer<HlpDialogWindow> front(dialog.findChild<HlpDialogWindow*>());
    ASSERT_NE(front, nullptr);
    ASSERT_TRUE(isLoaded(front->page(), "Start page"));
    bool hasEnded = false;
    QObject::connect(hlp->findChild<HlpNetworkAccessManager*>(), &HlpNetworkAccessManager::callScript, &dialog, [&] {
        hlp->modExitIntermod();
        // The call comes from the page itself.
        EXPECT_NE(front, nullptr);
        EXPECT_FALSE(front->isVisible());
        hasEnded = true;
    });
    click(front->page(), "script");
    EXPECT_TRUE(QTest::qWaitFor([&] { return hasEnded && front == nullptr; }, 60000));
}

TEST_F(Links, theCallOfAScriptLink)
{
    const auto call = [](const char* url) { return HlpNetworkAccessManager::scriptCall(QUrl(url)); };
    EXPECT_EQ(call("script://foo?str=a&int=3"), "foo(\"a\",3)");
    EXPECT_EQ(call("script://foo?int=3&str=a"), "foo(3,\"a\")");
    EXPECT_EQ(call("script://foo"), "foo()");
    EXPECT_EQ(call("script://foo?other=a&str=b&"), "foo(\"b\")");
    EXPECT_EQ(call("script:///editor.openFile?str=a%20b%26c"), "editor.openFile(\"a b&c\")");
    EXPECT_EQ(call("script:editor.openFile"), "editor.openFile()");
    // A text stays a text, whatever it contains.
    EXPECT_EQ(call("script://foo?str=%22);evil(%22"), "foo(\"\\\");evil(\\\"\")");
    EXPECT_EQ(call("script://foo?str=a%0Ab%5C"), "foo(\"a\\nb\\\\\")");
    EXPECT_EQ(call("script://foo?str=%E2%80%A8"), "foo(\"\\u2028\")");
}

TEST_F(Links, aForeignPageCallsNoScript)
{
    startAtStartPage();
    const QByteArray body = "<p><a id=\"evil\" href=\"script:///evil\">evil link</a></p><img src=\"script:///evil\">"
                            "<iframe src=\"script:///evil\"></iframe>";
    for (const char* address :
         {"http://foreign.example/", "file:///tmp/page.html", "qthelp://other/Nalvo/start.html", "about:blank", ""}) {
        const std::unique_ptr<QWebView> view = bareView();
        showText(view.get(), body, address);
        click(view.get(), "evil");
        for (int turn = 0; turn < 10; ++turn)
            QApplication::processEvents();
        EXPECT_EQ(script.scripts, QStringList()) << address;
    }
    // A help page does not even show it; and the same link in a page of the collection is one.
    page()->view()->setContent(body, "text/html", QUrl("http://foreign.example/"));
    EXPECT_TRUE(shows("Start page"));
    showText(page()->view(), "<p><a id=\"evil\" href=\"script:///evil\">evil link</a></p>",
             "qthelp://nv/Nalvo/start.html");
    click(page(), "evil");
    EXPECT_TRUE(QTest::qWaitFor([&] { return script.scripts.contains("evil()"); }, 20000));
}

TEST_F(Links, nothingThatIsOpenedByItsNameCallsAScript)
{
    startAtStartPage();
    hlp->showOnlyOneHelpPage = true;
    hlp->openFile(QUrl("script:///evil"));
    EXPECT_TRUE(shows("Internal error page"));
    prj.setValue("ModHlp/openFiles",
                 QStringList{"script:///evil", "http://evil.example/", "file:///etc/hostname", "nonsense", ""});
    prj.setValue("ModHlp/currentFile", QString("script://evil"));
    prj.open("/tmp/foreign.nalvo");
    for (int turn = 0; turn < 10; ++turn)
        QApplication::processEvents();
    EXPECT_EQ(script.scripts, QStringList());
    EXPECT_EQ(browser.opened, QStringList());
    EXPECT_EQ(pages().size(), 1);
    // The view itself refuses it as well.
    page()->view()->load(QUrl("script:///evil"));
    for (int turn = 0; turn < 10; ++turn)
        QApplication::processEvents();
    EXPECT_EQ(script.scripts, QStringList());
}

TEST_F(Links, aForeignPageReachesNoFile)
{
    QTemporaryDir dir;
    QFile secret(dir.filePath("secret.html"));
    ASSERT_TRUE(secret.open(QIODevice::WriteOnly));
    secret.write("<html><body>secret</body></html>");
    secret.close();
    const QUrl url = QUrl::fromLocalFile(secret.fileName());
    startAtStartPage();
    const QByteArray body = "<iframe src=\"" + url.toEncoded() + "\"></iframe><p><a id=\"file\" href=\"" +
                            url.toEncoded() + "\">the file</a></p>";
    const std::unique_ptr<QWebView> bare = bareView();
    const struct
    {
        QWebView* view;
        const char* address;
    } rows[] = {{bare.get(), "http://foreign.example/"}, {page()->view(), "qthelp://nv/Nalvo/start.html"}};
    for (const auto& row : rows) {
        showText(row.view, body, row.address);
        click(row.view, "file");
        for (int turn = 0; turn < 10; ++turn)
            QApplication::processEvents();
        EXPECT_FALSE(row.view->page()->mainFrame()->toPlainText().contains("secret")) << row.address;
        for (const QWebFrame* child : row.view->page()->mainFrame()->childFrames())
            EXPECT_FALSE(child->toPlainText().contains("secret")) << row.address;
    }
    EXPECT_EQ(answerTo(url), " ");
    EXPECT_EQ(browser.opened, QStringList());
}

TEST_F(Links, aLinkToTheWebOpensInTheBrowser)
{
    startAtStartPage();
    click(page(), "web");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !browser.opened.isEmpty(); }, 20000));
    EXPECT_EQ(browser.opened, QStringList{"https://web.example/page?x=1"});
    EXPECT_TRUE(shows("Start page"));

    // Also if it does not come from a page.
    hlp->handleUrl(QUrl("http://web.example/"));
    EXPECT_EQ(browser.opened.size(), 2);
    EXPECT_EQ(pages().size(), 1);
}

TEST_F(Links, nothingIsLoadedFromOutside)
{
    LocalHttpServer server;
    server.answer = [](const LocalHttpServer::Request&) { return LocalHttpServer::page("body{}"); };
    const QByteArray there = server.address().toUtf8();
    startAtStartPage();
    showText(page()->view(),
             "<link rel=\"stylesheet\" href=\"" + there + "/a.css\"><img src=\"" + there + "/b.png\"><iframe src=\"" +
                 there + "/c.html\"></iframe><script src=\"" + there + "/d.js\"></script><p style=\"background:url(" +
                 there + "/e.png)\">text</p>",
             "qthelp://nv/Nalvo/start.html");
    EXPECT_EQ(answerTo(QUrl(server.address() + "/f")), " ");
    EXPECT_TRUE(server.requests.isEmpty());
    // The server would have answered.
    QNetworkAccessManager open;
    std::unique_ptr<QNetworkReply> reply(open.get(QNetworkRequest(QUrl(server.address() + "/g"))));
    QSignalSpy finished(reply.get(), &QNetworkReply::finished);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !finished.isEmpty(); }, 20000));
    EXPECT_EQ(server.requests.size(), 1);
}

TEST_F(Links, aPageRunsNoScriptOfItsOwn)
{
    startAtStartPage();
    showText(page()->view(),
             "<script>document.title = 'Changed';</script><p onclick=\"document.title='Changed'\" id=\"p\">p</p>",
             "qthelp://nv/Nalvo/start.html");
    click(page(), "p");
    EXPECT_EQ(page()->title(), "Foreign");
}

TEST_F(Links, linksToFilesAndUnknownSchemesLeadNowhere)
{
    startAtStartPage();
    for (const char* id : {"file", "unknown"}) {
        click(page(), id);
        for (int turn = 0; turn < 10; ++turn)
            QApplication::processEvents();
        EXPECT_TRUE(shows("Start page")) << id;
    }
    EXPECT_EQ(browser.opened, QStringList());
}

TEST_F(Links, aLinkToAPageIsFollowed)
{
    startAtStartPage();
    click(page(), "anchor");
    EXPECT_TRUE(shows("Messages page"));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return page()->view()->page()->mainFrame()->scrollPosition().y() > 1000; }, 20000));
    EXPECT_EQ(page()->source().fragment(), "errLast");
    EXPECT_EQ(pages().size(), 1);
}

TEST_F(Links, aLinkMayAskForAPageOfItsOwn)
{
    startAtStartPage();
    click(page(), "window");
    EXPECT_TRUE(QTest::qWaitFor([&] { return pages().size() == 2; }, 20000));
    EXPECT_TRUE(shows("About page"));
    EXPECT_EQ(pages().first()->title(), "Start page");
}

TEST_F(Links, typesByTheEndOfTheName)
{
    const struct
    {
        const char* file;
        const char* type;
    } rows[] = {{"a.svg", "image/svg+xml"},  {"a.svgz", "image/svg+xml"}, {"a.css", "text/css"},
                {"a.js", "text/javascript"}, {"a.txt", "text/plain"},     {"a.psm", "text/plain"},
                {"a.asm", "text/plain"},     {"a.vhd", "text/plain"},     {"a.html", "text/html"},
                {"a", "text/html"},          {"svg", "text/html"}};
    for (const auto& row : rows)
        EXPECT_EQ(HlpNetworkAccessManager::mimeType(QUrl(QString("qthelp://nv/Nalvo/") + row.file)), row.type)
            << row.file;
}

TEST_F(Links, requestsAreAnsweredFromTheCollection)
{
    start();
    QString type;
    EXPECT_TRUE(answerTo(QUrl("pageId://about"), &type).contains("<title>About page</title>"));
    EXPECT_TRUE(type.startsWith("text/html"));
    EXPECT_TRUE(answerTo(QUrl("pageId://nowhere")).contains("<title>Internal error page</title>"));
    EXPECT_TRUE(answerTo(QUrl("pageId://folder/inner.html")).contains("<title>Inner page</title>"));
    EXPECT_TRUE(answerTo(QUrl("qthelp://nv/Nalvo/pageIdRefList/pageIdRefList.csv")).startsWith("gettingstarted;"));
    EXPECT_EQ(answerTo(QUrl("qthelp://nv/Nalvo/nothing.html")), " ");
    EXPECT_EQ(answerTo(QUrl("whatever://there")), " ");
    EXPECT_EQ(answerTo(QUrl("script:///evil")), " ");
    EXPECT_EQ(script.scripts, QStringList());
}

TEST_F(Links, aReplyIsReadInAnyPieces)
{
    QNetworkRequest request(QUrl("qthelp://nv/Nalvo/x.css"));
    nsModHlp::HlpWidgetNetworkReply reply(request, "0123456789", "text/css");
    QSignalSpy finished(&reply, &QNetworkReply::finished);
    QSignalSpy meta(&reply, &QNetworkReply::metaDataChanged);
    QSignalSpy ready(&reply, &QNetworkReply::readyRead);
    EXPECT_TRUE(meta.isEmpty() && ready.isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !meta.isEmpty() && !ready.isEmpty(); }, 20000));
    EXPECT_EQ(reply.bytesAvailable(), 10);
    EXPECT_EQ(reply.header(QNetworkRequest::ContentLengthHeader).toInt(), 10);
    reply.abort();
    EXPECT_EQ(reply.read(4), "0123");
    EXPECT_EQ(reply.read(100), "456789");
    EXPECT_EQ(reply.read(100), "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !finished.isEmpty(); }, 20000));
    EXPECT_EQ(reply.read(100), "");
    QApplication::processEvents();
    EXPECT_EQ(finished.size(), 1);
}

} // namespace
