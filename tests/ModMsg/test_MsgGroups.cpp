// Groups: what they show while they are open, and what is left of them afterwards.

#include "MsgFixture.h"

#include <QTest>

void MsgTest::initResources()
{
    Q_INIT_RESOURCE(nalvo);
}

TEST_F(MsgTest, ViewStandsAtTheBottomAndScriptsSeeTheService)
{
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(gui.widgets.value(viewer).location, ModGuiHookIf::eLocationDockBottom);
    EXPECT_EQ(gui.widgets.value(viewer).plugin, static_cast<ModGuiPluginIf*>(&msg));
    EXPECT_EQ(script.objects.value(QStringLiteral("msg")), &msg);
    EXPECT_EQ(viewer->objectName(), QStringLiteral("msgViewer"));
    EXPECT_TRUE(viewer->alternatingRowColors());
    EXPECT_TRUE(viewer->isAnimated());
}

TEST_F(MsgTest, GroupStartsFoldedWithTheOkPicture)
{
    hook->openMessageGroup("group", QUrl("pageid://asmFeMessages#grpX"));
    EXPECT_EQ(dump(), QString("i group\n"));
    QTreeWidgetItem* group = viewer->topLevelItem(0);
    EXPECT_EQ(group->text(1), QString("Show help page"));
    EXPECT_EQ(group->data(1, Qt::UserRole).toUrl(), QUrl("pageid://asmFeMessages#grpX"));
    EXPECT_EQ(group->text(2), QString());
}

TEST_F(MsgTest, CleanGroupFoldsToOneLine)
{
    hook->openMessageGroup("group");
    hook->showInfoMessage("one");
    hook->closeMessageGroup(true);
    EXPECT_EQ(dump(), QString("i group\n  i one\n  i Done\n"));
    QCoreApplication::processEvents();
    EXPECT_FALSE(viewer->topLevelItem(0)->isExpanded());
}

TEST_F(MsgTest, CleanGroupIsOpenWhileItIsAtWorkAndFoldsAtItsEnd)
{
    viewer->show();
    hook->openMessageGroup("group");
    hook->showInfoMessage("one");
    QCoreApplication::processEvents();
    EXPECT_TRUE(viewer->topLevelItem(0)->isExpanded());
    hook->closeMessageGroup(true);
    EXPECT_FALSE(viewer->topLevelItem(0)->isExpanded());
    QCoreApplication::processEvents();
    EXPECT_FALSE(viewer->topLevelItem(0)->isExpanded());
}

TEST_F(MsgTest, FailureAloneMarksTheGroupAndKeepsItOpen)
{
    hook->openMessageGroup("group");
    hook->closeMessageGroup(false);
    EXPECT_EQ(dump(), QString("e+ group\n  e Failure\n"));
    QCoreApplication::processEvents();
    EXPECT_TRUE(viewer->topLevelItem(0)->isExpanded());
}

TEST_F(MsgTest, WarningMarksAllOpenGroupsAndALaterErrorRaisesThemAgain)
{
    hook->openMessageGroup("outer");
    hook->openMessageGroup("middle");
    hook->openMessageGroup("inner");
    hook->showWarningMessage("w");
    EXPECT_EQ(dump(), QString("w+ outer\n  w+ middle\n    w+ inner\n      w w\n"));
    hook->showErrorMessage("e");
    EXPECT_EQ(dump(), QString("e+ outer\n  e+ middle\n    e+ inner\n      w w\n      e e\n"));
}

TEST_F(MsgTest, WarningLeavesAGroupWithAnErrorAsItIs)
{
    hook->openMessageGroup("outer");
    hook->showErrorMessage("e");
    viewer->topLevelItem(0)->setExpanded(false);
    hook->openMessageGroup("inner");
    hook->showWarningMessage("w");
    EXPECT_EQ(dump(), QString("e outer\n  e e\n  w+ inner\n    w w\n"));
}

TEST_F(MsgTest, InfoChangesNoGroup)
{
    hook->openMessageGroup("group");
    hook->showWarningMessage("w");
    hook->showInfoMessage("i");
    EXPECT_EQ(dump(), QString("w+ group\n  w w\n  i i\n"));
}

TEST_F(MsgTest, ClosedGroupsKeepTheirState)
{
    hook->openMessageGroup("outer");
    hook->openMessageGroup("clean");
    hook->closeMessageGroup(true);
    hook->openMessageGroup("warned");
    hook->showWarningMessage("w");
    hook->closeMessageGroup(true);
    hook->openMessageGroup("failed");
    hook->closeMessageGroup(false);
    hook->closeMessageGroup(true);
    EXPECT_EQ(dump(), QString("e+ outer\n  i clean\n    i Done\n  w+ warned\n    w w\n    i Done\n"
                              "  e+ failed\n    e Failure\n  i Done\n"));
}

TEST_F(MsgTest, ClosingACleanGroupFoldsTheCleanGroupsAroundIt)
{
    hook->openMessageGroup("outer");
    hook->openMessageGroup("inner");
    viewer->topLevelItem(0)->setExpanded(true);
    viewer->topLevelItem(0)->child(0)->setExpanded(true);
    hook->closeMessageGroup(true);
    EXPECT_EQ(dump(), QString("i outer\n  i inner\n    i Done\n"));
}

TEST_F(MsgTest, FoldingStopsAtAGroupWithAWarning)
{
    hook->openMessageGroup("outer");
    hook->showWarningMessage("w");
    hook->openMessageGroup("inner");
    viewer->topLevelItem(0)->child(1)->setExpanded(true);
    hook->closeMessageGroup(true);
    EXPECT_EQ(dump(), QString("w+ outer\n  w w\n  i inner\n    i Done\n"));
}

TEST_F(MsgTest, SurplusCloseShowsItsLineAndDoesNoHarm)
{
    hook->closeMessageGroup(true);
    hook->closeMessageGroup(false);
    hook->showInfoMessage("after");
    hook->openMessageGroup("group");
    hook->closeMessageGroup(true);
    hook->showInfoMessage("root");
    EXPECT_EQ(dump(), QString("i Done\ne Failure\ni after\ni group\n  i Done\ni root\n"));
}

TEST_F(MsgTest, ClearEmptiesTheViewOutsideOfGroupsOnly)
{
    hook->openMessageGroup("group");
    hook->showInfoMessage("one");
    hook->clearMessages();
    EXPECT_EQ(dump(), QString("i group\n  i one\n"));
    hook->closeMessageGroup(true);
    hook->clearMessages();
    EXPECT_EQ(viewer->topLevelItemCount(), 0);
    EXPECT_EQ(viewer->columnCount(), 3);
    EXPECT_EQ(viewer->headerItem()->text(0), QString("Message"));
    EXPECT_EQ(viewer->headerItem()->text(1), QString("Help link"));
    EXPECT_EQ(viewer->headerItem()->text(2), QString("Source link"));
    hook->showInfoMessage("next");
    QCoreApplication::processEvents();
    EXPECT_EQ(dump(), QString("i next\n"));
}

TEST_F(MsgTest, TreeEmptiedFromOutsideInsideAGroupLeavesNothingBehind)
{
    hook->openMessageGroup("group");
    hook->showWarningMessage("w");
    viewer->clear();
    hook->showErrorMessage("e");
    hook->closeMessageGroup(false);
    QCoreApplication::processEvents();
    EXPECT_EQ(dump(), QString("e e\ne Failure\n"));
    delete viewer->topLevelItem(1);
    hook->showInfoMessage("i");
    QCoreApplication::processEvents();
    EXPECT_EQ(dump(), QString("e e\ni i\n"));
}

TEST_F(MsgTest, ViewDeletedFromOutsideIsTolerated)
{
    delete viewer;
    viewer = nullptr;
    hook->openMessageGroup("group");
    hook->showErrorMessage("e");
    hook->closeMessageGroup(true);
    hook->clearMessages();
    gui.widgets.clear();
    msg.modInit();
    msg.modInitIntermod();
    viewer = qobject_cast<nsModMsg::MsgViewer*>(gui.widgetNamed("Messages"));
    ASSERT_NE(viewer, nullptr);
    hook->showInfoMessage("again");
    EXPECT_EQ(dump(), QString("i again\n"));
}

TEST(MsgService, ReportsBeforeTheSetUpShowNothingAndHooksMayBeMissing)
{
    nsModMsg::ModMsg msg;
    ModMsgHookIf* hook = &msg;
    hook->openMessageGroup("group");
    hook->showErrorMessage("e");
    hook->closeMessageGroup(false);
    hook->clearMessages();
    msg.modInit();
    msg.modInitIntermod();
    hook->showErrorMessage("e");
    EXPECT_TRUE(msg.modExitRequest());
}
