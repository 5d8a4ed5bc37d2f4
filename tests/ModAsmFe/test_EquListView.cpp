// The table of constants.

#include "QtPrinters.h"

#include "EquList.h"
#include "EquListView.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QSignalSpy>
#include <QTreeView>

using namespace nsModAsmFe;

namespace {

QTreeView* treeOf(EquListView* view)
{
    return view->findChild<QTreeView*>("equListView");
}

int lineCount(EquListView* view)
{
    return treeOf(view)->model()->rowCount();
}

QString textAt(EquListView* view, int row, int column)
{
    return treeOf(view)->model()->index(row, column).data().toString();
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
    QTreeView* tree = treeOf(&view);
    ASSERT_NE(tree, nullptr);
    ASSERT_EQ(lineCount(&view), 3);
    EXPECT_EQ(tree->model()->columnCount(), 2);
    EXPECT_EQ(tree->model()->headerData(0, Qt::Horizontal).toString(), QString("Name"));
    EXPECT_EQ(tree->model()->headerData(1, Qt::Horizontal).toString(), QString("Value"));
    EXPECT_EQ(textAt(&view, 0, 0), QString("led"));
    EXPECT_EQ(textAt(&view, 0, 1), QString("0x80"));
    EXPECT_EQ(textAt(&view, 1, 0), QString("a::b::port"));
    EXPECT_EQ(textAt(&view, 1, 1), QString("0xffffffff"));
    EXPECT_EQ(textAt(&view, 2, 0), QString("a::zero"));
    EXPECT_EQ(textAt(&view, 2, 1), QString("0x0"));
    EXPECT_EQ(changed.count(), 3);
    view.clear();
    EXPECT_EQ(lineCount(&view), 0);
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
    ASSERT_EQ(lineCount(&view), 2);
    EXPECT_EQ(textAt(&view, 0, 0), QString("a"));
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
    QTreeView* tree = treeOf(&view);
    tree->setCurrentIndex(tree->model()->index(60, 0));
    tree->verticalScrollBar()->setValue(50);
    QSignalSpy reset(tree->model(), SIGNAL(modelReset()));
    QSignalSpy rewritten(tree->model(), SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    fill(100, 1);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(reset.count() + rewritten.count(), 0);
    EXPECT_EQ(tree->currentIndex(), tree->model()->index(60, 0));
    EXPECT_EQ(tree->verticalScrollBar()->value(), 50);
    fill(100, 2);
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(textAt(&view, 99, 1), QString("0x2"));
    EXPECT_EQ(tree->verticalScrollBar()->value(), 50);
    // Values change, the selection stays.
    EXPECT_EQ(reset.count(), 0);
    EXPECT_EQ(tree->currentIndex(), tree->model()->index(60, 0));
    fill(99, 2);
    EXPECT_EQ(changed.count(), 3);
    fill(0, 2);
    EXPECT_EQ(changed.count(), 4);
    EXPECT_EQ(lineCount(&view), 0);
}

TEST(EquListViewTest, linesStayUntilTheListIsShownAgain)
{
    EquList list;
    addEqu(&list, "", "before", 1);
    EquListView view;
    EXPECT_EQ(lineCount(&view), 0);
    view.showList(list);
    EXPECT_EQ(lineCount(&view), 1);
    list.clear();
    // The view stays as of the last run until it is filled again.
    EXPECT_EQ(lineCount(&view), 1);
    view.showList(list);
    EXPECT_EQ(lineCount(&view), 0);
}

TEST(EquListViewTest, tenThousandLines)
{
    EquList list;
    for (int i = 0; i < 10000; ++i)
        addEqu(&list, i % 2 == 0 ? "" : "ns", QString("name%1").arg(i), i);
    EquListView shown;
    EquListView* view = &shown;
    view->resize(300, 400);
    view->show();
    QSignalSpy reset(treeOf(view)->model(), SIGNAL(modelReset()));
    for (int i = 0; i < 3; ++i)
        view->showList(list);
    EXPECT_EQ(reset.count(), 1);
    ASSERT_EQ(lineCount(view), 10000);
    EXPECT_EQ(textAt(view, 9999, 0), QString("ns::name9999"));
    EXPECT_EQ(textAt(view, 9999, 1), QString("0x270f"));
    // The last line can be reached.
    treeOf(view)->scrollToBottom();
    EXPECT_FALSE(treeOf(view)->visualRect(treeOf(view)->model()->index(9999, 0)).isEmpty());
    view->hide();
}

} // namespace
