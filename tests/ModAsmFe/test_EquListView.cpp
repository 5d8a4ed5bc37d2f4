// The table of constants.

#include "QtPrinters.h"

#include "EquList.h"
#include "EquListView.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTreeWidget>

using namespace nsModAsmFe;

namespace {

QTreeWidget* treeOf(EquListView* view)
{
    return view->findChild<QTreeWidget*>("equListView");
}

void addEqu(EquList* list, const QString& nameSpace, const QString& name, int value)
{
    auto* equ = new Equ;
    equ->nameSpace = nameSpace;
    equ->name = name;
    equ->arg->type = Arg::numeric;
    equ->arg->iValue = value;
    list->append(equ);
}

TEST(EquListViewTest, namesAndValues)
{
    EquListView view;
    QSignalSpy changed(&view, SIGNAL(contentChanged(QWidget*)));
    view.addItem("led", "", 0x80);
    view.addItem("port", "a::b", -1);
    view.addItem("zero", "a", 0);
    QTreeWidget* tree = treeOf(&view);
    ASSERT_NE(tree, nullptr);
    ASSERT_EQ(tree->topLevelItemCount(), 3);
    EXPECT_EQ(tree->topLevelItem(0)->text(0), QString("led"));
    EXPECT_EQ(tree->topLevelItem(0)->text(1), QString("0x80"));
    EXPECT_EQ(tree->topLevelItem(1)->text(0), QString("a::b::port"));
    EXPECT_EQ(tree->topLevelItem(1)->text(1), QString("0xffffffff"));
    EXPECT_EQ(tree->topLevelItem(2)->text(0), QString("a::zero"));
    EXPECT_EQ(tree->topLevelItem(2)->text(1), QString("0x0"));
    EXPECT_EQ(changed.count(), 3);
    view.clear();
    EXPECT_EQ(tree->topLevelItemCount(), 0);
}

TEST(EquListViewTest, fillingTellsOnce)
{
    EquListView view;
    QSignalSpy changed(&view, SIGNAL(contentChanged(QWidget*)));
    view.addItem("old", "", 1);
    view.beginFill();
    view.addItem("a", "", 1);
    view.addItem("b", "", 2);
    EXPECT_EQ(changed.count(), 1);
    view.endFill();
    EXPECT_EQ(changed.count(), 2);
    ASSERT_EQ(treeOf(&view)->topLevelItemCount(), 2);
    EXPECT_EQ(treeOf(&view)->topLevelItem(0)->text(0), QString("a"));
    EXPECT_EQ(changed.last().first().value<QWidget*>(), static_cast<QWidget*>(&view));
}

TEST(EquListViewTest, theSameLinesAgainDisturbNobody)
{
    EquListView view;
    QSignalSpy changed(&view, SIGNAL(contentChanged(QWidget*)));
    const auto fill = [&](int lines, int value) {
        view.beginFill();
        for (int i = 0; i < lines; ++i)
            view.addItem(QString("name%1").arg(i), "ns", value);
        view.endFill();
    };
    fill(100, 1);
    EXPECT_EQ(changed.count(), 1);
    view.resize(200, 150);
    view.show();
    QTreeWidget* tree = treeOf(&view);
    tree->setCurrentItem(tree->topLevelItem(60));
    tree->verticalScrollBar()->setValue(50);
    fill(100, 1);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(tree->currentItem(), tree->topLevelItem(60));
    EXPECT_EQ(tree->verticalScrollBar()->value(), 50);
    fill(100, 2);
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(tree->topLevelItem(99)->text(1), QString("0x2"));
    EXPECT_EQ(tree->verticalScrollBar()->value(), 50);
    fill(99, 2);
    EXPECT_EQ(changed.count(), 3);
    fill(0, 2);
    EXPECT_EQ(changed.count(), 4);
    EXPECT_EQ(tree->topLevelItemCount(), 0);
}

TEST(EquListViewTest, listIsShownOnDemand)
{
    EquList list;
    addEqu(&list, "", "before", 1);
    // Nobody has asked for the view yet.
    list.showToListView();
    EquListView* view = list.listView();
    EXPECT_EQ(view, list.listView());
    EXPECT_EQ(treeOf(view)->topLevelItemCount(), 0);
    list.showToListView();
    EXPECT_EQ(treeOf(view)->topLevelItemCount(), 1);
    list.clear();
    // The view stays as of the last run until it is filled again.
    EXPECT_EQ(treeOf(view)->topLevelItemCount(), 1);
    list.showToListView();
    EXPECT_EQ(treeOf(view)->topLevelItemCount(), 0);
}

TEST(EquListViewTest, viewMayGoBeforeTheList)
{
    EquList list;
    auto* window = new QWidget;
    list.listView()->setParent(window);
    addEqu(&list, "", "x", 1);
    list.showToListView();
    delete window;
    list.showToListView();
    EXPECT_EQ(treeOf(list.listView())->topLevelItemCount(), 0);
}

TEST(EquListViewTest, tenThousandLines)
{
    EquList list;
    for (int i = 0; i < 10000; ++i)
        addEqu(&list, i % 2 == 0 ? "" : "ns", QString("name%1").arg(i), i);
    EquListView* view = list.listView();
    view->resize(300, 400);
    view->show();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 3; ++i)
        list.showToListView();
    EXPECT_LT(timer.elapsed(), 6000);
    QTreeWidget* tree = treeOf(view);
    ASSERT_EQ(tree->topLevelItemCount(), 10000);
    EXPECT_EQ(tree->topLevelItem(9999)->text(0), QString("ns::name9999"));
    EXPECT_EQ(tree->topLevelItem(9999)->text(1), QString("0x270f"));
    view->hide();
}

} // namespace
