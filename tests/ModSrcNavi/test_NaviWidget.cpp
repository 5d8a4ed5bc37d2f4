// The panel by itself: what it shows.

#include "NaviFixture.h"
#include "Settle.h"

#include <QLabel>
#include <QMetaType>
#include <QScrollBar>

using namespace nsModSrcNavi;

TEST_F(NaviFixture, standsInItsRows)
{
    QStringList labels;
    for (const QLabel* label : widget.findChildren<QLabel*>())
        labels.append(label->text());
    EXPECT_EQ(labels, QStringList({"Sort order:", "Bookmarks:"}));
    QStringList orders;
    for (int i = 0; i < hand.sortBox->count(); ++i) {
        orders.append(hand.sortBox->itemText(i));
        EXPECT_EQ(hand.sortBox->itemData(i).toInt(), i);
    }
    EXPECT_EQ(orders, QStringList({"Document structure", "Plain Ascent", "Plain Descent"}));
    EXPECT_EQ(hand.button("Set")->toolTip(), QString("Set bookmark"));
    EXPECT_EQ(hand.button("Clear")->toolTip(), QString("Clear bookmark"));
    EXPECT_EQ(hand.button("Clear all")->toolTip(), QString("Clear all bookmarks"));
    EXPECT_FALSE(hand.sortBox->toolTip().isEmpty());
    EXPECT_TRUE(hand.tree->isHeaderHidden());
    EXPECT_EQ(hand.tree->columnCount(), 1);
    EXPECT_FALSE(hand.tree->alternatingRowColors());
    EXPECT_TRUE(hand.tree->isAnimated());
    // From top to bottom, from left to right.
    const auto place = [this](QWidget* child) { return child->mapTo(&widget, QPoint()); };
    EXPECT_LT(place(hand.sortBox).y(), place(hand.button("Set")).y());
    EXPECT_EQ(place(hand.button("Clear")).y(), place(hand.button("Set")).y());
    EXPECT_LT(place(hand.button("Set")).x(), place(hand.button("Clear")).x());
    EXPECT_LT(place(hand.button("Clear")).x(), place(hand.button("Clear all")).x());
    EXPECT_LT(place(hand.button("Set")).y(), place(hand.tree).y());
}

TEST_F(NaviFixture, tabWalksThroughTheControlsInTheirOrder)
{
    hand.sortBox->setFocus();
    for (QWidget* next :
         QList<QWidget*>{hand.button("Set"), hand.button("Clear"), hand.button("Clear all"), hand.tree}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next);
    }
}

TEST_F(NaviFixture, itemsCarryTitleFileAndTag)
{
    NaviTag* tag = add(NaviTag::typeLabel, "start");
    show();
    const QTreeWidgetItem* item = hand.item("start");
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->data(0, Qt::ToolTipRole).toString(), QString("/project/src/main.psm"));
    const QVariant held = item->data(0, Qt::UserRole);
    EXPECT_EQ(held.value<NaviTag*>(), tag);
    EXPECT_NE(QMetaType::type("nsModSrcNavi::NaviTag *"), int(QMetaType::UnknownType));
    EXPECT_EQ(held.userType(), QMetaType::type("nsModSrcNavi::NaviTag *"));
}

TEST_F(NaviFixture, groupsNestInTheOrderOfTheDocument)
{
    add(NaviTag::typeSeparator, "before");
    add(NaviTag::typeGroupBegin, "outer");
    add(NaviTag::typeLabel, "a");
    add(NaviTag::typeGroupBegin, "inner");
    add(NaviTag::typeConstant, "b");
    add(NaviTag::typeGroupEnd, "");
    add(NaviTag::typeHardware, "c");
    add(NaviTag::typeGroupEnd, "");
    add(NaviTag::typeLabel, "after");
    show();
    EXPECT_EQ(hand.outline(), QStringList({"before", "outer", ".a", ".inner", "..b", ".c", "after"}));
    EXPECT_TRUE(hand.item("outer")->isExpanded());
    EXPECT_TRUE(hand.item("inner")->isExpanded());
    // What is open is also on the screen.
    EXPECT_TRUE(hand.tree->visualItemRect(hand.item("b")).isValid());
    show(true);
    EXPECT_EQ(hand.outline(), QStringList({"before", "outer", "a", "inner", "b", "c", "after"}));
}

TEST_F(NaviFixture, aGroupWithoutAnEndHoldsTheRest)
{
    add(NaviTag::typeGroupBegin, "open");
    add(NaviTag::typeGroupBegin, "open too");
    add(NaviTag::typeLabel, "a");
    show();
    EXPECT_EQ(hand.outline(), QStringList({"open", ".open too", "..a"}));
}

TEST_F(NaviFixture, aSurplusEndIsReportedInTheOrderOfTheDocumentOnly)
{
    add(NaviTag::typeGroupBegin, "group");
    add(NaviTag::typeLabel, "a");
    add(NaviTag::typeGroupEnd, "");
    add(NaviTag::typeGroupEnd, "");
    add(NaviTag::typeLabel, "b");
    show();
    EXPECT_EQ(hand.outline(), QStringList({"group", ".a", "Unexpected end tag", "b"}));
    EXPECT_EQ(colorOf(hand.item("Unexpected end tag")), QColor(Qt::red));
    EXPECT_FALSE(hand.item("Unexpected end tag")->data(0, Qt::FontRole).isValid());
    hand.click("Unexpected end tag");
    EXPECT_EQ(colorOf(hand.item("Unexpected end tag")), QColor(Qt::red));
    show(true);
    EXPECT_EQ(hand.outline(), QStringList({"group", "a", "b"}));
}

TEST_F(NaviFixture, eachTypeHasItsFormat)
{
    SrcNaviConfig config;
    const int types[] = {NaviTag::typeLabel, NaviTag::typeHardware, NaviTag::typeConstant, NaviTag::typeSeparator,
                         NaviTag::typeGroupBegin};
    for (int i = 0; i < SrcNaviConfig::fontContextCount; ++i) {
        config.fontFormats[i].setForeground(QColor(10 * i, 0, 0));
        config.fontFormats[i].setFontWeight(i == 0 ? 0 : 50 + i);
        config.fontFormats[i].setFontItalic(i % 2 == 1);
        add(types[i], QString::number(i));
    }
    add(77, "other");
    widget.setConfig(&config);
    show(true);
    for (int i = 0; i < SrcNaviConfig::fontContextCount; ++i) {
        const QTreeWidgetItem* item = hand.item(QString::number(i));
        EXPECT_EQ(colorOf(item), QColor(10 * i, 0, 0));
        EXPECT_EQ(item->font(0).weight(), 50 + i);
        EXPECT_EQ(item->font(0).italic(), i % 2 == 1);
        EXPECT_TRUE(item->icon(0).isNull());
    }
    EXPECT_FALSE(hand.item("other")->data(0, Qt::ForegroundRole).isValid());
    EXPECT_FALSE(hand.item("other")->data(0, Qt::FontRole).isValid());
}

TEST_F(NaviFixture, disabledTagsAreGreyAndTheirGroupsFolded)
{
    add(NaviTag::typeGroupBegin, "off", "x", true);
    add(NaviTag::typeLabel, "a", "", true);
    add(NaviTag::typeGroupEnd, "", "", true);
    add(NaviTag::typeLabel, "b");
    show();
    EXPECT_EQ(hand.outline(), QStringList({"off", ".a", "b"}));
    EXPECT_EQ(colorOf(hand.item("off")), QColor(Qt::gray));
    EXPECT_EQ(colorOf(hand.item("a")), QColor(Qt::gray));
    EXPECT_EQ(colorOf(hand.item("b")), QColor(Qt::black));
    EXPECT_EQ(hand.item("a")->font(0).weight(), int(QFont::Bold));
    EXPECT_FALSE(hand.item("off")->isExpanded());
    EXPECT_FALSE(hand.tree->visualItemRect(hand.item("a")).isValid());
    // Its user can open it; a click gives it its look again, and folds it.
    hand.item("off")->setExpanded(true);
    EXPECT_TRUE(hand.item("off")->isExpanded());
    settleAnimations(); // a fold that moves takes no clicks
    hand.click("off");
    EXPECT_FALSE(hand.item("off")->isExpanded());
}

TEST_F(NaviFixture, aNewListKeepsTheEntryLastClicked)
{
    add(NaviTag::typeSeparator, "one", "; \\navSep \"one\"");
    add(NaviTag::typeSeparator, "two", "; \\navSep \"two\"");
    show();
    hand.click("two");
    widget.clearTagList();
    EXPECT_EQ(hand.tree->topLevelItemCount(), 0);
    EXPECT_EQ(hand.tree->currentItem(), nullptr);
    // The line has moved and has another title, the text that finds it is the same.
    tags.clear();
    add(NaviTag::typeSeparator, "zero", "; \\navSep \"zero\"");
    add(NaviTag::typeSeparator, "new title", "; \\navSep \"two\"");
    add(NaviTag::typeSeparator, "one", "; \\navSep \"one\"");
    show();
    ASSERT_NE(hand.tree->currentItem(), nullptr);
    EXPECT_EQ(hand.tree->currentItem()->text(0), QString("new title"));
    EXPECT_TRUE(hand.tree->currentItem()->isSelected());
    show(true);
    ASSERT_NE(hand.tree->currentItem(), nullptr);
    EXPECT_EQ(hand.tree->currentItem()->text(0), QString("new title"));
    // It has gone: nothing is current.
    tags.erase(tags.begin() + 1);
    show();
    EXPECT_EQ(hand.tree->currentItem(), nullptr);
}

TEST_F(NaviFixture, ofEqualTextsTheLastBecomesCurrent)
{
    add(NaviTag::typeSeparator, "first", "same");
    add(NaviTag::typeSeparator, "second", "same");
    show();
    hand.click("first");
    show();
    ASSERT_NE(hand.tree->currentItem(), nullptr);
    EXPECT_EQ(hand.tree->currentItem()->text(0), QString("second"));
}

TEST_F(NaviFixture, aLabelIsNotKept)
{
    add(NaviTag::typeLabel, "start");
    show();
    hand.click("start");
    show();
    EXPECT_EQ(hand.tree->currentItem(), nullptr);
}

TEST_F(NaviFixture, onlyAClickRemembersAnEntry)
{
    add(NaviTag::typeSeparator, "one", "1");
    add(NaviTag::typeSeparator, "two", "2");
    show();
    hand.click("one");
    QTest::keyClick(hand.tree, Qt::Key_Down);
    EXPECT_EQ(hand.tree->currentItem()->text(0), QString("two"));
    show();
    EXPECT_EQ(hand.tree->currentItem()->text(0), QString("one"));
}

TEST_F(NaviFixture, theKeptEntryIsInSight)
{
    for (int i = 0; i < 500; ++i)
        add(NaviTag::typeSeparator, QString::number(i), QString("ref %1").arg(i));
    show();
    hand.click("400");
    hand.tree->scrollToTop();
    widget.clearTagList();
    show();
    EXPECT_TRUE(hand.tree->viewport()->rect().contains(hand.tree->visualItemRect(hand.tree->currentItem())));
}

TEST_F(NaviFixture, withoutAKeptEntryTheTreeDoesNotJump)
{
    for (int i = 0; i < 500; ++i)
        add(NaviTag::typeLabel, QString::number(i));
    show();
    hand.tree->verticalScrollBar()->setValue(250);
    widget.clearTagList();
    show();
    EXPECT_EQ(hand.tree->verticalScrollBar()->value(), 250);
    // Another order is another list.
    hand.choose("Plain Descent");
    show(true);
    EXPECT_EQ(hand.tree->verticalScrollBar()->value(), 0);
}

TEST_F(NaviFixture, reportsNewContentAndNoneThatIsTheSame)
{
    QSignalSpy changed(&widget, SIGNAL(contentChanged(QWidget*)));
    show();
    EXPECT_EQ(changed.count(), 0) << "nothing before, nothing now";
    NaviTag* a = add(NaviTag::typeLabel, "a");
    show();
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.first().first().value<QWidget*>(), &widget);
    // The next run makes the same list anew, with lines that may have moved.
    widget.clearTagList();
    a->line += 7;
    show();
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(hand.tree->topLevelItemCount(), 1);

    const auto expectReport = [&](const char* what) {
        show();
        EXPECT_EQ(changed.count(), 1) << what;
        changed.clear();
        show();
        EXPECT_EQ(changed.count(), 0) << what;
    };
    changed.clear();
    add(NaviTag::typeLabel, "b");
    expectReport("one more");
    a->title = "c";
    expectReport("title");
    a->type = NaviTag::typeSeparator;
    expectReport("type");
    a->disabled = true;
    expectReport("disabled");
    a->filePath = "/project/other.psm";
    expectReport("file");
    show(true);
    EXPECT_EQ(changed.count(), 1) << "order";
}

TEST_F(NaviFixture, nullsAreNoTags)
{
    QList<NaviTag*> list{nullptr, add(NaviTag::typeLabel, "a"), nullptr};
    widget.showTagList(&list, false);
    EXPECT_EQ(hand.outline(), QStringList({"a"}));
    widget.showTagList(nullptr, true);
    EXPECT_EQ(hand.outline(), QStringList());
    widget.setConfig(nullptr);
    widget.setSelected(nullptr, 0);
    widget.setCursor(nullptr, 0);
    widget.setBookmark(nullptr, 0);
}

TEST_F(NaviFixture, endlessNestingDoesNoHarm)
{
    const int depth = 20000;
    for (int i = 0; i < depth; ++i)
        add(NaviTag::typeGroupBegin, QString("g%1").arg(i));
    for (int i = 0; i < depth; ++i)
        add(NaviTag::typeGroupEnd, "");
    add(NaviTag::typeLabel, "after");
    show();
    EXPECT_EQ(hand.outline().size(), depth + 1);
    // All ends have found their groups.
    EXPECT_EQ(hand.outline().last(), QString("after"));
    EXPECT_EQ(hand.tree->topLevelItemCount(), 2);
}

TEST_F(NaviFixture, tenThousandTags)
{
    for (int i = 0; i < 10000; ++i)
        add(i % 10 == 0   ? NaviTag::typeGroupBegin
            : i % 10 == 9 ? NaviTag::typeGroupEnd
                          : NaviTag::typeLabel,
            QString("title %1").arg(i));
    show();
    widget.clearTagList();
    show();
    QApplication::processEvents();
    widget.grab();
    EXPECT_EQ(hand.tree->topLevelItemCount(), 1000);
}
