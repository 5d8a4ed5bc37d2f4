// The panel by itself: what its user does with it.

#include "NaviFixture.h"

using namespace nsModSrcNavi;

namespace {

class NaviUse : public NaviFixture
{
protected:
    NaviUse()
    {
        add(NaviTag::typeLabel, "label one");
        add(NaviTag::typeSeparator, "sep", "ref sep");
        add(NaviTag::typeGroupBegin, "group", "ref group");
        add(NaviTag::typeLabel, "label two");
        add(NaviTag::typeHardware, "hw", "ref hw");
        show();
    }
    NaviTag* tagOf(const QString& text) const { return hand.item(text)->data(0, Qt::UserRole).value<NaviTag*>(); }
};

} // namespace

TEST_F(NaviUse, aDoubleClickAsksForTheLine)
{
    QSignalSpy selected(&widget, &NaviWidget::selected);
    hand.click("sep");
    EXPECT_EQ(selected.count(), 0);
    hand.doubleClick("hw");
    ASSERT_EQ(selected.count(), 1);
    EXPECT_EQ(selected.first().first().value<NaviTag*>(), tagOf("hw"));
}

TEST_F(NaviUse, aDoubleClickOnAGroupDoesNotFoldIt)
{
    QSignalSpy selected(&widget, &NaviWidget::selected);
    hand.doubleClick("group");
    EXPECT_EQ(selected.count(), 1);
    EXPECT_TRUE(hand.item("group")->isExpanded());
}

TEST_F(NaviUse, returnIsADoubleClick)
{
    QSignalSpy selected(&widget, &NaviWidget::selected);
    hand.click("sep");
    QTest::keyClick(hand.tree, Qt::Key_Down);
    QTest::keyClick(hand.tree, Qt::Key_Return);
    ASSERT_EQ(selected.count(), 1);
    EXPECT_EQ(selected.first().first().value<NaviTag*>(), tagOf("group"));
    QTest::keyClick(hand.tree, Qt::Key_Enter);
    EXPECT_EQ(selected.count(), 2);
    // It counts as a click too.
    show();
    ASSERT_NE(hand.tree->currentItem(), nullptr);
    EXPECT_EQ(hand.tree->currentItem()->text(0), QString("group"));
    // Without a current item there is nothing to ask for.
    widget.clearTagList();
    QTest::keyClick(hand.tree, Qt::Key_Return);
    EXPECT_EQ(selected.count(), 2);
}

TEST_F(NaviUse, aRightClickTogglesTheBookmark)
{
    SrcNaviConfig config;
    config.bookmarkSymbolColor = QColor(1, 2, 3);
    widget.setConfig(&config);
    QSignalSpy clicked(hand.tree, &NaviTreeWidget::clickedRight);
    hand.rightClick("sep");
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked.first().at(1).toInt(), 0);
    EXPECT_TRUE(hand.isMarked("sep"));
    EXPECT_FALSE(hand.isMarked("group"));
    const QIcon icon = hand.item("sep")->icon(0);
    ASSERT_EQ(icon.availableSizes(), QList<QSize>({QSize(5, 12)}));
    const QImage image = icon.pixmap(5, 12).toImage();
    EXPECT_EQ(image.pixelColor(0, 0), QColor(1, 2, 3));
    EXPECT_EQ(image.pixelColor(4, 11), QColor(1, 2, 3));
    hand.rightClick("sep");
    EXPECT_FALSE(hand.isMarked("sep"));
    hand.rightClick("sep");
    EXPECT_TRUE(hand.isMarked("sep"));
}

TEST_F(NaviUse, theMenuKeyTogglesTheBookmarkOfTheCurrentItem)
{
    hand.click("hw");
    hand.tree->setFocus();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(hand.tree, &event);
    EXPECT_TRUE(hand.isMarked("hw"));
    QTest::keyClick(hand.tree, Qt::Key_Up);
    QApplication::sendEvent(hand.tree, &event);
    EXPECT_TRUE(hand.isMarked("label two"));
}

TEST_F(NaviUse, buttonsSetAndClear)
{
    // Nothing is current yet.
    hand.press("Set");
    hand.press("Clear");
    EXPECT_FALSE(hand.isMarked("label one"));
    hand.click("sep");
    hand.press("Set");
    EXPECT_TRUE(hand.isMarked("sep"));
    hand.press("Set"); // once is enough
    hand.press("Clear");
    EXPECT_FALSE(hand.isMarked("sep"));
    hand.press("Set");
    hand.click("hw");
    hand.press("Set");
    hand.click("group");
    hand.press("Clear"); // has none
    EXPECT_TRUE(hand.isMarked("sep"));
    EXPECT_TRUE(hand.isMarked("hw"));
    EXPECT_FALSE(hand.isMarked("group"));
    hand.press("Clear all");
    EXPECT_FALSE(hand.isMarked("sep"));
    EXPECT_FALSE(hand.isMarked("hw"));
}

TEST_F(NaviUse, labelsShareTheirBookmark)
{
    hand.rightClick("label one");
    EXPECT_TRUE(hand.isMarked("label one"));
    EXPECT_TRUE(hand.isMarked("label two"));
    EXPECT_FALSE(hand.isMarked("sep"));
    hand.click("label two");
    hand.press("Clear");
    EXPECT_FALSE(hand.isMarked("label one"));
    EXPECT_FALSE(hand.isMarked("label two"));
}

TEST_F(NaviUse, bookmarksSurviveARunAndAnotherOrder)
{
    hand.rightClick("sep");
    widget.clearTagList();
    tags.clear();
    add(NaviTag::typeLabel, "new");
    add(NaviTag::typeSeparator, "sep", "ref sep");
    show();
    EXPECT_TRUE(hand.isMarked("sep"));
    EXPECT_FALSE(hand.isMarked("new"));
    show(true);
    EXPECT_TRUE(hand.isMarked("sep"));
}

TEST_F(NaviUse, newColoursComeWithTheNextPainting)
{
    hand.rightClick("sep");
    SrcNaviConfig config;
    config.bookmarkSymbolColor = Qt::green;
    config.fontFormats[SrcNaviConfig::fontHw].setForeground(QColor(Qt::cyan));
    widget.setConfig(&config);
    EXPECT_EQ(colorOf(hand.item("hw")), QColor(Qt::darkBlue));
    widget.repaintColors();
    EXPECT_EQ(colorOf(hand.item("hw")), QColor(Qt::cyan));
    EXPECT_EQ(hand.item("sep")->icon(0).pixmap(5, 12).toImage().pixelColor(2, 2), QColor(Qt::green));
}

TEST_F(NaviUse, theMarkIsSeenAtOnce)
{
    const QRect row = hand.tree->visualItemRect(hand.item("sep"));
    hand.tree->setFocus();
    const QImage without = hand.tree->viewport()->grab(row).toImage();
    hand.rightClick("sep");
    hand.tree->clearSelection();
    hand.tree->setCurrentItem(nullptr);
    EXPECT_NE(hand.tree->viewport()->grab(row).toImage(), without);
}

TEST_F(NaviUse, theComboBoxTellsAnotherOrder)
{
    QSignalSpy changed(&widget, &NaviWidget::sortModeChanged);
    EXPECT_EQ(widget.sortMode(), SrcNaviConfig::sortDocument);
    hand.choose("Plain Ascent");
    EXPECT_EQ(widget.sortMode(), SrcNaviConfig::sortPlainAscent);
    EXPECT_EQ(changed.count(), 1);
    hand.choose("Plain Descent"); // by way of the others
    EXPECT_EQ(widget.sortMode(), SrcNaviConfig::sortPlainDescent);
    EXPECT_EQ(changed.count(), 4);
}

TEST_F(NaviUse, theOrderIsSetFromOutside)
{
    QSignalSpy changed(&widget, &NaviWidget::sortModeChanged);
    widget.setSortMode(SrcNaviConfig::sortPlainDescent);
    EXPECT_EQ(widget.sortMode(), SrcNaviConfig::sortPlainDescent);
    EXPECT_EQ(changed.count(), 1);
    // The first order can only be chosen, and there is no fourth.
    widget.setSortMode(SrcNaviConfig::sortDocument);
    widget.setSortMode(static_cast<SrcNaviConfig::eTagListSortMode_t>(3));
    EXPECT_EQ(widget.sortMode(), SrcNaviConfig::sortPlainDescent);
    SrcNaviConfig config;
    widget.setConfig(&config);
    EXPECT_EQ(widget.sortMode(), SrcNaviConfig::sortPlainDescent);
    config.tagListSortMode = SrcNaviConfig::sortPlainAscent;
    widget.setConfig(&config);
    EXPECT_EQ(widget.sortMode(), SrcNaviConfig::sortPlainAscent);
    EXPECT_EQ(changed.count(), 1);
    // The connection is there again, once.
    hand.choose("Document structure");
    EXPECT_EQ(changed.count(), 2);
}
