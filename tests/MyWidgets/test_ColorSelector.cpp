#include "ModalHelper.h"
#include "MyColorSelector.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QColorDialog>
#include <QSignalSpy>
#include <QTest>

namespace {

class ColorSelector : public ::testing::Test
{
protected:
    void SetUp() override
    {
        selector.setColor(QColor(10, 20, 30));
        selector.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&selector, 60000));
    }

    QPoint middle() const { return selector.rect().center(); }

    MyColorSelector selector;
};

} // namespace

TEST_F(ColorSelector, isFilledWithItsColour)
{
    EXPECT_EQ(selector.objectName(), "colorSelector");
    EXPECT_EQ(selector.color(), QColor(10, 20, 30));
    EXPECT_EQ(selector.grab().toImage().pixelColor(middle()), QColor(10, 20, 30));
    EXPECT_TRUE(selector.toolTip().contains("#0a141e"));
}

TEST_F(ColorSelector, aDisabledFieldIsPaler)
{
    selector.setEnabled(false);
    EXPECT_NE(selector.grab().toImage().pixelColor(middle()), QColor(10, 20, 30));
    EXPECT_EQ(selector.color(), QColor(10, 20, 30));
}

TEST_F(ColorSelector, anInvalidColourIsIgnored)
{
    selector.setColor(QColor());
    EXPECT_EQ(selector.color(), QColor(10, 20, 30));
}

TEST_F(ColorSelector, theLeftButtonOpensTheDialogAtThePresentColour)
{
    QSignalSpy changed(&selector, &MyColorSelector::colorChanged);
    QString title;
    QColor start;
    ModalHelper helper([&](QDialog* dialog) {
        title = dialog->windowTitle();
        start = qobject_cast<QColorDialog*>(dialog)->currentColor();
        qobject_cast<QColorDialog*>(dialog)->setCurrentColor(QColor(200, 100, 50));
        dialog->accept();
    });
    QTest::mouseClick(&selector, Qt::LeftButton, Qt::NoModifier, middle());
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(title, "Select color");
    EXPECT_EQ(start, QColor(10, 20, 30));
    EXPECT_EQ(selector.color(), QColor(200, 100, 50));
    EXPECT_EQ(selector.grab().toImage().pixelColor(middle()), QColor(200, 100, 50));
    EXPECT_TRUE(selector.toolTip().contains("#c86432"));
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(ColorSelector, aCancelledDialogKeepsTheColour)
{
    QSignalSpy changed(&selector, &MyColorSelector::colorChanged);
    ModalHelper helper([&](QDialog* dialog) {
        qobject_cast<QColorDialog*>(dialog)->setCurrentColor(QColor(200, 100, 50));
        dialog->reject();
    });
    QTest::mouseClick(&selector, Qt::LeftButton, Qt::NoModifier, middle());
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(selector.color(), QColor(10, 20, 30));
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(ColorSelector, ignoresTheRightButton)
{
    ModalHelper helper([](QDialog* dialog) { dialog->accept(); });
    QTest::mouseClick(&selector, Qt::RightButton, Qt::NoModifier, middle());
    QTest::mouseClick(&selector, Qt::MiddleButton, Qt::NoModifier, middle());
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(helper.seen(), 0);
    EXPECT_EQ(selector.color(), QColor(10, 20, 30));
}

TEST_F(ColorSelector, theSpaceBarOpensTheDialogAndOtherKeysDoNot)
{
    ModalHelper helper([](QDialog* dialog) {
        qobject_cast<QColorDialog*>(dialog)->setCurrentColor(QColor(1, 2, 3));
        dialog->accept();
    });
    QTest::keyClick(&selector, Qt::Key_A);
    EXPECT_EQ(helper.seen(), 0);
    QTest::keyClick(&selector, Qt::Key_Space);
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(selector.color(), QColor(1, 2, 3));
}

TEST_F(ColorSelector, theFocusShows)
{
    selector.clearFocus();
    const QImage without = selector.grab().toImage();
    selector.activateWindow();
    selector.setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(selector.hasFocus());
    const QImage with = selector.grab().toImage();
    EXPECT_NE(with, without);
    EXPECT_EQ(with.pixelColor(middle()), without.pixelColor(middle()));
}

TEST(ColorSelectorLife, theFieldMayGoWhileItsDialogIsOpen)
{
    auto* page = new QWidget;
    auto* selector = new MyColorSelector(page);
    page->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(page, 60000));
    int seen = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (QApplication::activeModalWidget() == nullptr || seen > 0)
            return;
        ++seen;
        delete page;
    });
    timer.start(1);
    QTest::keyClick(selector, Qt::Key_Space);
    EXPECT_EQ(seen, 1);
}
