// Pages: how they are opened, what acts on the current one, what the project keeps.

#include "HlpFixture.h"

#include "QtPrinters.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QWebElement>
#include <QWebFrame>

using nsModHlp::HlpNetworkAccessManager;
using nsModHlp::HlpWidget;

namespace {

using Pages = HlpFixture;

TEST_F(Pages, aPageIsOpenedByItsIdInAnyCase)
{
    start();
    for (const char* url : {"pageId://about", "pageid://ABOUT", "PAGEID://About", "qthelp://nv/Nalvo/about.html"}) {
        hlp->openFile(QUrl(url));
        EXPECT_TRUE(shows("About page")) << url;
        EXPECT_EQ(gui.widgets.value(page()).name, "About page") << url;
    }
    EXPECT_EQ(pages().size(), 4);
    EXPECT_TRUE(script.scripts.isEmpty());
}

TEST_F(Pages, theNameOfTheTabIsThereBeforeThePageIs)
{
    gui.showsPages = false;
    start();
    hlp->openFile(QUrl("pageId://about"));
    EXPECT_EQ(gui.widgets.value(page()).name, "About page");
    EXPECT_EQ(page()->title(), "About page");
    EXPECT_EQ(page()->source(), QUrl("qthelp://nv/Nalvo/about.html"));
}

TEST_F(Pages, anUnknownPageShowsTheInternalErrorPage)
{
    start();
    // As the link of a message.
    hlp->handleUrl(QUrl("pageid://noSuchMessages#errSyntax"));
    EXPECT_TRUE(shows("Internal error page"));
    EXPECT_EQ(page()->source(), QUrl("qthelp://nv/Nalvo/error.html"));
}

TEST_F(Pages, whatIsNoPageShowsTheInternalErrorPage)
{
    start();
    for (const char* url : {"whatever://there", "file:///etc/hostname", "script:///app.exit", "javascript:alert(1)",
                            "data:text/html,x", "about.html", "qthelp://other/Nalvo/about.html"}) {
        hlp->openFile(QUrl(url));
        EXPECT_TRUE(shows("Internal error page")) << url;
    }
    EXPECT_TRUE(script.scripts.isEmpty());
    hlp->openFile(QUrl());
    EXPECT_EQ(pages().size(), 7);
}

TEST_F(Pages, theTableEndsAtTheFirstEmptyLine)
{
    start();
    EXPECT_TRUE(hlp->network()->hasPage("langNames"));
    EXPECT_FALSE(hlp->network()->hasPage("hidden"));
}

TEST_F(Pages, theURLOfAPageHasPathAndFragment)
{
    start();
    HlpNetworkAccessManager* network = hlp->network();
    EXPECT_EQ(network->resolved(QUrl("pageid://about")).toString(), "qthelp://nv/Nalvo/about.html");
    EXPECT_EQ(network->resolved(QUrl("pageid://about#a")).toString(), "qthelp://nv/Nalvo/about.html#a");
    EXPECT_EQ(network->resolved(QUrl("pageid://folder/inner.html#a")).path(), "/Nalvo/sub/inner.html");
    EXPECT_EQ(network->resolved(QUrl("pageid://placed")).fragment(), "errLast");
    EXPECT_EQ(network->resolved(QUrl("pageid://placed#errSyntax")).fragment(), "errSyntax");
    EXPECT_EQ(network->resolved(QUrl("http://there")), QUrl("http://there"));
}

TEST_F(Pages, aFragmentScrollsToItsAnchor)
{
    start();
    hlp->openFile(QUrl("pageId://asmFeMessages#errLast"));
    ASSERT_TRUE(shows("Messages page"));
    const QWebFrame* frame = page()->view()->page()->mainFrame();
    const QWebElement anchor = frame->findFirstElement("#errLast");
    ASSERT_FALSE(anchor.isNull());
    EXPECT_TRUE(QTest::qWaitFor([&] { return frame->scrollPosition().y() > 0; }, 20000));
    EXPECT_GT(anchor.geometry().top(), 2000);
    EXPECT_NEAR(frame->scrollPosition().y(), anchor.geometry().top(), 40);

    // Within the page that is there already, and back to another one.
    page()->setSource(QUrl("pageId://asmFeMessages#errSyntax"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return frame->scrollPosition().y() < 100; }, 20000));
}

TEST_F(Pages, withOnePageOnlyASecondTakesThePlaceOfTheFirst)
{
    hlp->showOnlyOneHelpPage = true;
    start();
    hlp->openFile(QUrl("pageId://gettingStarted"));
    ASSERT_TRUE(shows("Start page"));
    HlpWidget* first = page();
    hlp->openFile(QUrl("pageId://about"));
    EXPECT_EQ(pages().size(), 1);
    EXPECT_EQ(page(), first);
    EXPECT_TRUE(shows("About page"));
    EXPECT_EQ(gui.widgets.value(page()).name, "About page");

    // Also while another page of the window is in front, which then makes room.
    QWidget other;
    gui.addWidget(nullptr, ModGuiHookIf::eLocationTabs, &other, "Other");
    hlp->openFile(QUrl("pageId://gettingStarted"));
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationTabs), first);
    EXPECT_EQ(pages().size(), 1);
    gui.removeWidget(&other);

    hlp->showOnlyOneHelpPage = false;
    hlp->openFile(QUrl("pageId://about"));
    EXPECT_EQ(pages().size(), 2);
}

TEST_F(Pages, theNavigationActionsFollowTheHistory)
{
    start();
    QAction* back = action("Go back");
    QAction* forward = action("Go forward");
    EXPECT_FALSE(back->isEnabled());
    hlp->openFile(QUrl("pageId://gettingStarted"));
    ASSERT_TRUE(shows("Start page"));
    EXPECT_FALSE(back->isEnabled());
    click(page(), "next");
    ASSERT_TRUE(shows("About page"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return back->isEnabled(); }, 20000));
    EXPECT_FALSE(forward->isEnabled());

    back->trigger();
    ASSERT_TRUE(shows("Start page"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return forward->isEnabled() && !back->isEnabled(); }, 20000));
    forward->trigger();
    ASSERT_TRUE(shows("About page"));

    // Another page has a history of its own, and what is no help page has none.
    hlp->openFile(QUrl("pageId://about"));
    hlp->setFocus(ModGuiHookIf::eLocationTabs, nullptr, page());
    EXPECT_FALSE(back->isEnabled());
    gui.setCurrentWidget(pages().first());
    hlp->setFocus(ModGuiHookIf::eLocationTabs, nullptr, pages().first());
    EXPECT_TRUE(back->isEnabled());
    hlp->closeFile();
    hlp->setFocus(ModGuiHookIf::eLocationTabs, nullptr, nullptr);
    EXPECT_FALSE(back->isEnabled());
    EXPECT_FALSE(forward->isEnabled());
}

TEST_F(Pages, theHelpActionsOpenTheirPages)
{
    start();
    EXPECT_EQ(action("Online Help")->toolTip().section('\n', 0, 0).left(16), "View online help");
    EXPECT_EQ(action("About")->toolTip().left(22), "View about information");
    action("Online Help")->trigger();
    EXPECT_TRUE(shows("Start page"));
    action("About")->trigger();
    EXPECT_TRUE(shows("About page"));
}

TEST_F(Pages, gettingStartedIsShownAtTheStartIfItIsSet)
{
    hlp->showGettingStarted = true;
    start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !pages().isEmpty(); }, 20000));
    EXPECT_EQ(pages().size(), 1);
    EXPECT_TRUE(shows("Start page"));
}

TEST_F(Pages, findGoesFromHitToHitAndSaysWhereTheTextEnds)
{
    start();
    hlp->openFile(QUrl("pageId://gettingStarted"));
    ASSERT_TRUE(shows("Start page"));
    EXPECT_TRUE(finder.widgets.contains(page()));
    find("alpha");
    EXPECT_EQ(page()->selectedText(), "Alpha");
    EXPECT_EQ(gui.statusText, "");
    hlp->findNext(false);
    EXPECT_EQ(page()->selectedText(), "ALPHA");
    EXPECT_EQ(hlp->findInit(), "ALPHA");
    hlp->findNext(false);
    EXPECT_EQ(gui.statusText, "End of file reached.");
    // It goes on at the other end.
    EXPECT_EQ(page()->selectedText(), "Alpha");
    hlp->findNext(false);
    EXPECT_EQ(page()->selectedText(), "ALPHA");
    EXPECT_EQ(gui.statusText, "");
    hlp->findPrev(false);
    EXPECT_EQ(page()->selectedText(), "Alpha");
    hlp->findPrev(false);
    EXPECT_EQ(gui.statusText, "End of file reached.");
    EXPECT_EQ(page()->selectedText(), "ALPHA");

    finder.caseSensitive = true;
    find("alpha");
    EXPECT_EQ(gui.statusText, "End of file reached.");
    find("");
    hlp->closeAllFiles();
    find("alpha");
    EXPECT_EQ(hlp->findInit(), "");
    EXPECT_TRUE(finder.widgets.isEmpty());
}

TEST_F(Pages, theClipboardGetsTheSelection)
{
    start();
    hlp->openFile(QUrl("pageId://gettingStarted"));
    ASSERT_TRUE(shows("Start page"));
    EXPECT_FALSE(clipboard.canCopy);
    find("beta");
    EXPECT_TRUE(QTest::qWaitFor([&] { return clipboard.canCopy; }, 20000));
    QApplication::clipboard()->setText("old");
    hlp->clipboardAction(ModClipboardHookIf::eClipboardFeatureCut);
    hlp->clipboardAction(ModClipboardHookIf::eClipboardFeaturePaste);
    EXPECT_EQ(QApplication::clipboard()->text(), "old");
    hlp->clipboardAction(ModClipboardHookIf::eClipboardFeatureCopy);
    EXPECT_EQ(QApplication::clipboard()->text(), "beta");
    EXPECT_TRUE(clipboard.widgets.contains(page()));
    hlp->closeFile();
    EXPECT_TRUE(clipboard.widgets.isEmpty());
    hlp->clipboardAction(ModClipboardHookIf::eClipboardFeatureCopy);
}

TEST_F(Pages, theProjectKeepsTheOpenPages)
{
    start();
    prj.path = "/tmp/p.nalvo";
    hlp->openFile(QUrl("pageId://gettingStarted"));
    hlp->openFile(QUrl("pageId://asmFeMessages#errLast"));
    hlp->openFile(QUrl("pageId://about"));
    gui.setCurrentWidget(pages().at(1));
    hlp->prjSave();
    const QStringList saved = prj.value("ModHlp/openFiles", QStringList());
    EXPECT_EQ(saved, QStringList({"qthelp://nv/Nalvo/start.html", "qthelp://nv/Nalvo/asmfemessages.html#errLast",
                                  "qthelp://nv/Nalvo/about.html"}));
    EXPECT_EQ(prj.value("ModHlp/currentFile", QString()), saved.at(1));

    // At the end of the program, the project is saved after the pages are closed.
    stop();
    hlp->prjSave();
    EXPECT_EQ(prj.value("ModHlp/openFiles", QStringList()), saved);
    EXPECT_EQ(prj.value("ModHlp/currentFile", QString()), saved.at(1));
}

TEST_F(Pages, theProjectOpensItsPages)
{
    start();
    prj.setValue("ModHlp/openFiles", QStringList{"qthelp://nv/Nalvo/asmfemessages.html#errLast", "pageId://about"});
    prj.setValue("ModHlp/currentFile", QString("qthelp://nv/Nalvo/asmfemessages.html#errLast"));
    prj.open("/tmp/p.nalvo");
    ASSERT_EQ(pages().size(), 2);
    EXPECT_EQ(gui.widgets.value(pages().at(0)).name, "About page");
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationTabs), pages().at(1));
    EXPECT_TRUE(shows("Messages page"));

    // What is open already is not opened once more, however often the project is opened.
    gui.setCurrentWidget(pages().at(0));
    hlp->prjOpen();
    EXPECT_EQ(pages().size(), 2);
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationTabs), pages().at(1));
}

TEST_F(Pages, withOnePageOnlyTheProjectOpensTheCurrentOne)
{
    hlp->showOnlyOneHelpPage = true;
    start();
    prj.setValue("ModHlp/openFiles", QStringList{"pageId://about", "pageId://gettingStarted"});
    prj.setValue("ModHlp/currentFile", QString("pageId://about"));
    prj.open("/tmp/p.nalvo");
    EXPECT_EQ(pages().size(), 1);
    EXPECT_TRUE(shows("About page"));
}

TEST_F(Pages, aProjectWithoutACurrentPageLeavesTheOtherInFront)
{
    start();
    QWidget other;
    gui.addWidget(nullptr, ModGuiHookIf::eLocationTabs, &other, "Other");
    prj.setValue("ModHlp/openFiles", QStringList{"pageId://about"});
    prj.open("/tmp/p.nalvo");
    EXPECT_EQ(pages().size(), 1);
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationTabs), &other);
    gui.removeWidget(&other);
}

TEST_F(Pages, veryManyPagesOfAProjectAreBounded)
{
    gui.showsPages = false;
    start();
    QStringList files;
    for (int i = 0; i < 5000; ++i)
        files.append("qthelp://nv/Nalvo/asmfemessages.html#line" + QString::number(i));
    prj.setValue("ModHlp/openFiles", files);
    prj.setValue("ModHlp/currentFile", files.last());
    prj.open("/tmp/p.nalvo");
    EXPECT_GT(pages().size(), 50);
    EXPECT_LE(pages().size(), 101);
    EXPECT_EQ(page()->source().fragment(), "line4999");
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationTabs), page());
    hlp->closeAllFiles();
    EXPECT_TRUE(pages().isEmpty());
}

TEST_F(Pages, manyShownPages)
{
    start();
    for (int i = 0; i < 60; ++i)
        hlp->openFile(QUrl(i % 2 == 0 ? "pageId://about" : "pageId://asmFeMessages"));
    EXPECT_TRUE(shows("Messages page"));
    hlp->closeAllFiles();
    EXPECT_TRUE(pages().isEmpty());
    EXPECT_TRUE(gui.widgets.isEmpty());
}

TEST_F(Pages, aPageThatIsClosedWhileItLoads)
{
    start();
    for (int turns = 0; turns < 8; ++turns) {
        hlp->openFile(QUrl("pageId://asmFeMessages#errLast"));
        const QPointer<HlpWidget> closed(page());
        // From "nothing has been done yet" on, one turn of the event loop more each time.
        for (int turn = 0; turn < turns; ++turn)
            QApplication::processEvents();
        hlp->removeWidgetRequest(page());
        EXPECT_TRUE(pages().isEmpty());
        EXPECT_TRUE(QTest::qWaitFor([&] { return closed.isNull(); }, 20000));
    }
    hlp->closeFile();
    hlp->closeFile(nullptr);
    EXPECT_TRUE(gui.widgets.isEmpty());
}

TEST_F(Pages, theModuleEndsWhileAPageLoads)
{
    start();
    hlp->openFile(QUrl("pageId://asmFeMessages#errLast"));
    page()->view();
    stop();
    hlp.reset();
    // What was closed is deleted now, and nothing reaches for the module.
    for (int turn = 0; turn < 10; ++turn)
        QApplication::processEvents();
}

TEST_F(Pages, theModuleEndsWithoutTheExitPhases)
{
    start();
    hlp->openFile(QUrl("pageId://asmFeMessages#errLast"));
    ASSERT_TRUE(shows("Messages page"));
    QWidget dialog;
    hlp->showDialogHlpRef(&dialog, "pageId://about");
    hlp->openFile(QUrl("pageId://about"));
    hlp.reset();
    gui.widgets.clear();
    for (int turn = 0; turn < 10; ++turn)
        QApplication::processEvents();
}

TEST_F(Pages, theProxyOfTheUserIsTakenOver)
{
    start();
    hlp->openFile(QUrl("pageId://about"));
    EXPECT_EQ(hlp->network()->proxy().port(), 9);
}

} // namespace
