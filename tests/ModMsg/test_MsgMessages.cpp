// Single messages: columns, links, clicks, and who gets to hear of them.

#include "MsgFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using nsModMsg::MsgUrl;

namespace {

MsgUrl sourceLink(const QString& path, int line)
{
    MsgUrl url;
    url.setScheme("file");
    url.setPath(path);
    url.setFragment(line);
    return url;
}

} // namespace

TEST(MsgUrlTest, FragmentOfANumberIsItsDecimalText)
{
    MsgUrl url = sourceLink("/p/main.psm", 12);
    EXPECT_EQ(url.fragment(), QString("12"));
    EXPECT_EQ(url.displayName(), QString());
    url.setDisplayName("main.psm, 13");
    EXPECT_EQ(url.displayName(), QString("main.psm, 13"));
    EXPECT_EQ(MsgUrl(url).displayName(), QString("main.psm, 13"));
    EXPECT_TRUE(MsgUrl().isEmpty());
}

TEST_F(MsgTest, GradesShowTheirPictures)
{
    hook->showMessage(ModMsgHookIf::eMsgInfo, "i");
    hook->showMessage(ModMsgHookIf::eMsgWarning, "w");
    hook->showMessage(ModMsgHookIf::eMsgError, "e");
    EXPECT_EQ(dump(), QString("i i\nw w\ne e\n"));
}

TEST_F(MsgTest, UnknownGradeShowsNothing)
{
    hook->openMessageGroup("group");
    hook->showMessage(static_cast<ModMsgHookIf::eMsgType_t>(3), "x");
    EXPECT_EQ(dump(), QString("i group\n"));
}

TEST_F(MsgTest, LinksStandInTheirColumns)
{
    MsgUrl named = sourceLink("/p/main.psm", 4);
    named.setDisplayName("main.psm: line 5");
    hook->showErrorMessage("named", QUrl("pageid://asmFeMessages#errX"), named);
    hook->showErrorMessage("formed", QUrl(), sourceLink("/p/main.psm", 4));
    MsgUrl noLine;
    noLine.setPath("/p/main.psm");
    hook->showErrorMessage("no line", QUrl(), noLine);
    hook->showErrorMessage("nothing");

    QTreeWidgetItem* item = viewer->topLevelItem(0);
    EXPECT_EQ(item->text(1), QString("Show help page"));
    EXPECT_EQ(item->data(1, Qt::UserRole).toUrl(), QUrl("pageid://asmFeMessages#errX"));
    EXPECT_EQ(item->text(2), QString("main.psm: line 5"));
    EXPECT_EQ(item->data(2, Qt::UserRole).toUrl(), QUrl("file:///p/main.psm#4"));
    EXPECT_EQ(viewer->topLevelItem(1)->text(1), QString());
    EXPECT_EQ(viewer->topLevelItem(1)->text(2), QString("/p/main.psm#4"));
    EXPECT_EQ(viewer->topLevelItem(2)->text(2), QString("/p/main.psm"));
    EXPECT_EQ(viewer->topLevelItem(3)->text(2), QString());
    EXPECT_FALSE(viewer->topLevelItem(3)->data(2, Qt::UserRole).isValid());
}

TEST_F(MsgTest, EveryMessageTellsThatTheContentChanged)
{
    QSignalSpy spy(viewer, &nsModMsg::MsgViewer::contentChanged);
    hook->openMessageGroup("group");
    EXPECT_EQ(spy.count(), 0);
    hook->showInfoMessage("i");
    hook->showWarningMessage("w");
    hook->closeMessageGroup(true);
    ASSERT_EQ(spy.count(), 3);
    EXPECT_EQ(spy.at(0).at(0).value<QWidget*>(), viewer);
}

TEST_F(MsgTest, ClickCallsTheHandlersOfItsKind)
{
    RecordingUrlHndlr help, source, second;
    hook->registerPluginUrlHndlr(ModMsgHookIf::eUrlHndlrHelp, &help);
    hook->registerPluginUrlHndlr(ModMsgHookIf::eUrlHndlrSource, &source);
    hook->registerPluginUrlHndlr(ModMsgHookIf::eUrlHndlrSource, &second);
    hook->showErrorMessage("text", QUrl("pageid://p#k"), sourceLink("/p/main.psm", 7));
    viewer->resize(600, 200);
    viewer->show();
    QCoreApplication::processEvents();
    const QModelIndex row = viewer->model()->index(0, 0);
    const auto click = [&](int column) {
        QTest::mouseClick(viewer->viewport(), Qt::LeftButton, Qt::NoModifier,
                          viewer->visualRect(row.sibling(0, column)).center());
    };

    click(1);
    EXPECT_EQ(help.urls, QList<QUrl>{QUrl("pageid://p#k")});
    EXPECT_TRUE(source.urls.isEmpty());
    click(2);
    EXPECT_EQ(source.urls, QList<QUrl>{QUrl("file:///p/main.psm#7")});
    click(0);
    EXPECT_EQ(source.urls.count(), 2);
    EXPECT_EQ(second.urls.count(), 2);
    EXPECT_EQ(help.urls.count(), 1);
}

TEST_F(MsgTest, ReturnKeyFollowsTheLinkOfTheCurrentCell)
{
    RecordingUrlHndlr source;
    hook->registerPluginUrlHndlr(ModMsgHookIf::eUrlHndlrSource, &source);
    hook->showErrorMessage("text", QUrl(), sourceLink("/p/main.psm", 7));
    viewer->setCurrentItem(viewer->topLevelItem(0), 0);
    QTest::keyClick(viewer, Qt::Key_Return);
    EXPECT_EQ(source.urls.count(), 1);
}

TEST_F(MsgTest, ClickOnATextWithoutSourceLinkDoesNothing)
{
    RecordingUrlHndlr help, source;
    hook->registerPluginUrlHndlr(ModMsgHookIf::eUrlHndlrHelp, &help);
    hook->registerPluginUrlHndlr(ModMsgHookIf::eUrlHndlrSource, &source);
    hook->showErrorMessage("text", QUrl("pageid://p#k"));
    viewer->show();
    QCoreApplication::processEvents();
    QTest::mouseClick(viewer->viewport(), Qt::LeftButton, Qt::NoModifier,
                      viewer->visualRect(viewer->model()->index(0, 0)).center());
    QTest::mouseClick(viewer->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(5, viewer->viewport()->height() - 5));
    EXPECT_TRUE(help.urls.isEmpty());
    EXPECT_TRUE(source.urls.isEmpty());
}

TEST_F(MsgTest, HandlerRunsOnceHoweverOftenItIsRegisteredAndNotAtAllAfterwards)
{
    RecordingUrlHndlr source;
    hook->registerPluginUrlHndlr(ModMsgHookIf::eUrlHndlrSource, nullptr);
    hook->registerPluginUrlHndlr(ModMsgHookIf::eUrlHndlrSource, &source);
    hook->registerPluginUrlHndlr(ModMsgHookIf::eUrlHndlrSource, &source);
    hook->registerPluginUrlHndlr(static_cast<ModMsgHookIf::eUrlHndlr_t>(9), &source);
    emit viewer->srcUrlClicked(QUrl("file:///a"));
    EXPECT_EQ(source.urls.count(), 1);
    emit viewer->srcUrlClicked(QUrl());
    EXPECT_EQ(source.urls.count(), 1);
    hook->unregisterPluginUrlHndlr(ModMsgHookIf::eUrlHndlrHelp, &source);
    emit viewer->srcUrlClicked(QUrl("file:///b"));
    EXPECT_EQ(source.urls.count(), 2);
    hook->unregisterPluginUrlHndlr(ModMsgHookIf::eUrlHndlrSource, &source);
    hook->unregisterPluginUrlHndlr(ModMsgHookIf::eUrlHndlrSource, nullptr);
    emit viewer->srcUrlClicked(QUrl("file:///c"));
    EXPECT_EQ(source.urls.count(), 2);
}

TEST_F(MsgTest, ClientsAreRegisteredOnceAndNullIsIgnored)
{
    ModMsgPluginIf client, stranger;
    ModMsgPluginIfInterMod inter;
    hook->registerPlugin(static_cast<ModMsgPluginIf*>(nullptr));
    hook->registerPlugin(static_cast<ModMsgPluginIfInterMod*>(nullptr));
    hook->unregisterPlugin(static_cast<ModMsgPluginIf*>(nullptr));
    hook->unregisterPlugin(static_cast<ModMsgPluginIfInterMod*>(nullptr));
    EXPECT_EQ(client.modMsgHook, nullptr);
    hook->registerPlugin(&client);
    hook->registerPlugin(&client);
    EXPECT_EQ(client.modMsgHook, hook);
    hook->unregisterPlugin(&client);
    EXPECT_EQ(client.modMsgHook, nullptr);
    // Had the second registration left an entry of its own, this one would clear the member again.
    client.modMsgHook = hook;
    hook->unregisterPlugin(&client);
    EXPECT_EQ(client.modMsgHook, hook);
    stranger.modMsgHook = hook;
    hook->unregisterPlugin(&stranger);
    EXPECT_EQ(stranger.modMsgHook, hook);
    hook->registerPlugin(&inter);
    EXPECT_EQ(inter.modMsgHook, hook);
    hook->unregisterPlugin(&inter);
    EXPECT_EQ(inter.modMsgHook, nullptr);
}

TEST_F(MsgTest, ScriptsCallTheShortForms)
{
    const auto call = [&](const char* name, QGenericArgument first, QGenericArgument second = QGenericArgument()) {
        return QMetaObject::invokeMethod(&msg, name, Qt::DirectConnection, first, second);
    };
    EXPECT_TRUE(call("openMessageGroup", Q_ARG(QString, "group")));
    EXPECT_TRUE(call("showInfoMessage", Q_ARG(QString, "i")));
    EXPECT_TRUE(call("showInfoMessage", Q_ARG(QString, "ih"), Q_ARG(QUrl, QUrl("pageid://p#k"))));
    EXPECT_TRUE(call("showWarningMessage", Q_ARG(QString, "w")));
    EXPECT_TRUE(call("showWarningMessage", Q_ARG(QString, "wh"), Q_ARG(QUrl, QUrl("pageid://p#k"))));
    EXPECT_TRUE(call("showErrorMessage", Q_ARG(QString, "e")));
    EXPECT_TRUE(call("showErrorMessage", Q_ARG(QString, "eh"), Q_ARG(QUrl, QUrl("pageid://p#k"))));
    EXPECT_TRUE(call("closeMessageGroup", Q_ARG(bool, true)));
    EXPECT_EQ(dump(), QString("e+ group\n  i i\n  i ih\n  w w\n  w wh\n  e e\n  e eh\n  i Done\n"));
    EXPECT_EQ(viewer->topLevelItem(0)->child(5)->text(1), QString("Show help page"));
    EXPECT_TRUE(QMetaObject::invokeMethod(&msg, "clearMessages"));
    EXPECT_EQ(viewer->topLevelItemCount(), 0);
}

TEST_F(MsgTest, NewestMessageIsInSightAndColumnsFitWhenControlReturns)
{
    viewer->resize(500, 150);
    viewer->show();
    QCoreApplication::processEvents();
    for (int i = 0; i < 300; ++i)
        hook->showInfoMessage(QString("message number %1").arg(i));
    const auto isSeen = [this](int row) {
        return viewer->viewport()->rect().contains(viewer->visualItemRect(viewer->topLevelItem(row)).center());
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return isSeen(299); }, 60000));
    EXPECT_GE(viewer->columnWidth(0), viewer->fontMetrics().horizontalAdvance("message number 299"));
    EXPECT_EQ(viewer->header()->sectionResizeMode(0), QHeaderView::ResizeToContents);
    EXPECT_EQ(viewer->header()->sectionResizeMode(1), QHeaderView::ResizeToContents);
    EXPECT_EQ(viewer->header()->sectionResizeMode(2), QHeaderView::Stretch);
    // Looking back is not disturbed as long as nothing new comes.
    viewer->verticalScrollBar()->setValue(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(viewer->verticalScrollBar()->value(), 0);
    hook->showInfoMessage("newest");
    EXPECT_TRUE(QTest::qWaitFor([&] { return isSeen(300); }, 60000));
}

TEST_F(MsgTest, NewestMessageOfAFoldedGroupShowsAsTheLineOfTheGroup)
{
    viewer->resize(500, 150);
    viewer->show();
    QCoreApplication::processEvents();
    for (int i = 0; i < 100; ++i)
        hook->showInfoMessage("filling");
    hook->openMessageGroup("outer");
    hook->openMessageGroup("inner");
    hook->showInfoMessage("one");
    hook->closeMessageGroup(true);
    hook->closeMessageGroup(true);
    const QTreeWidgetItem* outer = viewer->topLevelItem(100);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return viewer->viewport()->rect().contains(viewer->visualItemRect(outer).center()); }, 60000));
    EXPECT_FALSE(outer->isExpanded());
}

TEST_F(MsgTest, MessagesOfSeveralLinesKeepTheHeightOfTheRows)
{
    hook->showInfoMessage("one");
    hook->showInfoMessage("first\nsecond\nthird");
    viewer->show();
    QCoreApplication::processEvents();
    EXPECT_EQ(viewer->visualItemRect(viewer->topLevelItem(0)).height(),
              viewer->visualItemRect(viewer->topLevelItem(1)).height());
    EXPECT_EQ(viewer->topLevelItem(1)->text(0), QString("first\nsecond\nthird"));
}

TEST_F(MsgTest, ManyMessages)
{
    viewer->resize(600, 200);
    viewer->show();
    QCoreApplication::processEvents();
    hook->openMessageGroup("run");
    for (int i = 0; i < 20000; ++i) {
        if (i % 100 == 0)
            hook->openMessageGroup("stage");
        hook->showMessage(static_cast<ModMsgHookIf::eMsgType_t>(i % 3), "text", QUrl("pageid://p#k"),
                          sourceLink("/p/main.psm", i));
        if (i % 100 == 99)
            hook->closeMessageGroup(true);
    }
    hook->closeMessageGroup(true);
    QCoreApplication::processEvents();
    EXPECT_EQ(viewer->topLevelItem(0)->childCount(), 201);
}
