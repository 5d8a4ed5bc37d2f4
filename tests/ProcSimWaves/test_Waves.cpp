// What is drawn, and how the user moves in time.

#include "WavesFixture.h"

#include <QSignalSpy>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>

namespace {

const QColor green(QStringLiteral("#00ff00"));

class WavesView : public WavesTest
{
protected:
    void SetUp() override
    {
        WavesTest::SetUp();
        viewer->addAddrChannel(1, wr, -1, {});
        settle();
    }
    void write(qint64 clock, int value) { viewer->data()->addValue(1, wr, value, clock); }
    /// Values of a counter, one each 10 clocks, up to a time.
    void count(qint64 end)
    {
        for (qint64 clock = viewer->data()->clock() + 10; clock <= end; clock += 10)
            write(clock, int(clock / 10) & 0xFF);
        settle();
    }
    void turnWheel(const QPoint& place, const QPoint& angle, Qt::KeyboardModifiers modifiers)
    {
        QWheelEvent event(place, waves->mapToGlobal(place), {}, angle, Qt::NoButton, modifiers, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(waves, &event);
    }
    int xAt(double clock) const { return int(std::floor(waves->time().xAt(clock))); }
    /// The first row below the axis, or one of its bits if the row is expanded.
    QRect row(int index, int x0 = 0, int x1 = 10000) const
    {
        const auto* wave = waves->waves().at(index);
        return {x0, wave->top, x1 - x0, wave->height - 1};
    }
    /// Rows of pixels in which a wave is drawn at a column.
    QList<int> greenAt(const QImage& image, int rowIndex, int x) const
    {
        QList<int> result;
        const QRect area = row(rowIndex);
        for (int y = area.top(); y <= area.bottom() && y < image.height(); ++y) {
            if (image.pixelColor(x, y) == green)
                result.append(y - area.top());
        }
        return result;
    }
    /// Text is the only thing in a row that is about white.
    static bool hasText(const QImage& image, const QRect& area)
    {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                const QColor color = image.pixelColor(x, y);
                if (color.red() > 0xa0 && color.green() > 0xa0 && color.blue() > 0xa0)
                    return true;
            }
        }
        return false;
    }
};

TEST_F(WavesView, FollowsTheEnd)
{
    count(50);
    EXPECT_EQ(waves->time().first(), 0);
    EXPECT_TRUE(waves->isFollowing());
    count(5000);
    EXPECT_GT(waves->time().first(), 4800);
    EXPECT_LT(xAt(5001), waves->width());
    EXPECT_GT(xAt(5001), waves->width() - 60);
    EXPECT_EQ(bar->value(), bar->maximum());
    // Time goes on without values too.
    viewer->setClock(9000);
    settle();
    EXPECT_LT(xAt(9001), waves->width());
    EXPECT_GT(xAt(9001), waves->width() - 60);
}

TEST_F(WavesView, StaysWhereTheUserHasScrolled)
{
    count(5000);
    bar->setValue(bar->maximum() / 2);
    EXPECT_FALSE(waves->isFollowing());
    const double first = waves->time().first();
    EXPECT_NEAR(first, 2450, 100);
    count(9000);
    EXPECT_EQ(waves->time().first(), first);
    EXPECT_LT(bar->value(), bar->maximum());
    // Back at the end it follows again.
    bar->setValue(bar->maximum());
    EXPECT_TRUE(waves->isFollowing());
    count(12000);
    EXPECT_GT(waves->time().first(), 11800);
    bar->setValue(0);
    EXPECT_EQ(waves->time().first(), 0);
    click("procSimWaveEnd");
    EXPECT_TRUE(waves->isFollowing());
    EXPECT_EQ(bar->value(), bar->maximum());
}

TEST_F(WavesView, CtrlWheelZoomsAtThePointer)
{
    count(50000);
    bar->setValue(bar->maximum() / 2);
    for (const int angle : {120, 120, -120, -120, -120, -360, 240}) {
        const double scale = waves->time().pxPerClock();
        const double clock = waves->time().clockAt(300);
        turnWheel({300, 60}, {0, angle}, Qt::ControlModifier);
        EXPECT_EQ(angle > 0, waves->time().pxPerClock() > scale);
        EXPECT_NEAR(waves->time().xAt(clock), 300, 1.0);
    }
}

TEST_F(WavesView, ZoomHasEnds)
{
    count(50000);
    for (int step = 0; step < 60; ++step)
        turnWheel({300, 60}, {0, 240}, Qt::ControlModifier);
    EXPECT_EQ(waves->time().pxPerClock(), 64);
    for (int step = 0; step < 60; ++step)
        turnWheel({300, 60}, {0, -240}, Qt::ControlModifier);
    EXPECT_EQ(waves->time().first(), 0);
    EXPECT_EQ(bar->maximum(), 0);
    EXPECT_LT(xAt(50001), waves->width());
    EXPECT_GT(xAt(50001), waves->width() / 2);
}

TEST_F(WavesView, ZoomButtonsKeepTheEndOrTheMarker)
{
    count(50000);
    const double scale = waves->time().pxPerClock();
    click("procSimWaveZoomOut");
    EXPECT_EQ(waves->time().pxPerClock(), scale / 2);
    EXPECT_TRUE(waves->isFollowing());
    click("procSimWaveZoomIn");
    EXPECT_EQ(waves->time().pxPerClock(), scale);
    EXPECT_TRUE(waves->isFollowing());
    bar->setValue(bar->maximum() / 2);
    const qint64 marker = qint64(waves->time().clockAt(200));
    waves->setMarker(marker);
    const double place = waves->time().xAt(double(marker));
    click("procSimWaveZoomIn");
    EXPECT_NEAR(waves->time().xAt(double(marker)), place, 1);
    click("procSimWaveZoomOut");
    EXPECT_NEAR(waves->time().xAt(double(marker)), place, 2);
}

TEST_F(WavesView, FitShowsAllAlsoAsTimeGoesOn)
{
    count(50000);
    click("procSimWaveZoomFit");
    EXPECT_TRUE(waves->isFitting());
    EXPECT_EQ(bar->maximum(), 0);
    count(90000);
    EXPECT_EQ(bar->maximum(), 0);
    EXPECT_LT(xAt(90001), waves->width());
    EXPECT_GT(xAt(90001), waves->width() - 60);
    viewer->resize(700, 200);
    settle();
    EXPECT_LT(xAt(90001), waves->width());
    click("procSimWaveZoomIn");
    EXPECT_FALSE(waves->isFitting());
    EXPECT_GT(bar->maximum(), 0);
}

TEST_F(WavesView, FitStartsAtTheFirstValue)
{
    // After a reset the clock goes on, but the values before are gone.
    viewer->setClock(1000000);
    write(1000100, 1);
    write(1002000, 2);
    settle();
    click("procSimWaveZoomFit");
    EXPECT_NEAR(waves->time().xAt(1000100), 0, 2);
    EXPECT_LT(xAt(1002001), waves->width());
}

TEST_F(WavesView, ShiftWheelAndDraggingScroll)
{
    count(5000);
    const double first = waves->time().first();
    turnWheel({300, 60}, {0, 120}, Qt::ShiftModifier);
    EXPECT_NEAR(waves->time().first(), first - waves->width() / 10.0 / 8, 1);
    turnWheel({300, 60}, {0, -120}, Qt::ShiftModifier);
    EXPECT_TRUE(waves->isFollowing());
    QTest::mousePress(waves, Qt::LeftButton, {}, {300, 60});
    QTest::mouseMove(waves, {340, 60});
    QMouseEvent move(QEvent::MouseMove, QPointF(380, 60), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(waves, &move);
    QTest::mouseRelease(waves, Qt::LeftButton, {}, {380, 60});
    EXPECT_NEAR(waves->time().first(), first - 10, 0.2);
    EXPECT_EQ(waves->marker(), -1) << "dragging is no click";
}

TEST_F(WavesView, PicturesMoveByWholePixels)
{
    count(5000);
    waves->setFocus();
    for (int step = 0; step < 12; ++step) {
        turnWheel({300, 60}, {0, step % 3 == 0 ? 60 : -70}, Qt::ControlModifier);
        viewer->setClock(viewer->data()->clock() + 7);
        settle();
        QTest::keyClick(waves, Qt::Key_Left);
        const double pixels = waves->time().first() * waves->time().pxPerClock();
        EXPECT_NEAR(pixels, std::round(pixels), 1e-6);
    }
}

TEST_F(WavesView, WheelScrollsTheRows)
{
    for (int addr = 2; addr < 20; ++addr)
        viewer->addAddrChannel(addr, wr, -1, {});
    tree->verticalScrollBar()->setValue(0);
    turnWheel({300, 60}, {0, -120}, {});
    EXPECT_GT(tree->verticalScrollBar()->value(), 0);
    settle();
    EXPECT_NE(waves->waves().first()->channel->addr, 1);
    turnWheel({300, 60}, {0, 1200}, {});
    EXPECT_EQ(tree->verticalScrollBar()->value(), 0);
}

TEST_F(WavesView, KeysMoveInTime)
{
    count(5000);
    waves->setFocus();
    QTest::keyClick(waves, Qt::Key_Home);
    EXPECT_EQ(waves->time().first(), 0);
    QTest::keyClick(waves, Qt::Key_PageDown);
    const double page = waves->width() / 8.0;
    EXPECT_NEAR(waves->time().first(), page, 1);
    QTest::keyClick(waves, Qt::Key_Right);
    EXPECT_NEAR(waves->time().first(), page * 1.1, 1);
    QTest::keyClick(waves, Qt::Key_Left);
    QTest::keyClick(waves, Qt::Key_PageUp);
    EXPECT_NEAR(waves->time().first(), 0, 1);
    QTest::keyClick(waves, Qt::Key_Plus);
    EXPECT_EQ(waves->time().pxPerClock(), 16);
    QTest::keyClick(waves, Qt::Key_Minus);
    EXPECT_EQ(waves->time().pxPerClock(), 8);
    QTest::keyClick(waves, Qt::Key_End);
    EXPECT_TRUE(waves->isFollowing());
    waves->setMarker(4990);
    QTest::keyClick(waves, Qt::Key_Escape);
    EXPECT_EQ(waves->marker(), -1);
}

TEST_F(WavesView, ClickSetsTheMarkerAndTakesItAway)
{
    count(50);
    QTest::mouseClick(waves, Qt::LeftButton, {}, {100, row(0).center().y()});
    EXPECT_EQ(waves->marker(), 12);
    QTest::mouseClick(waves, Qt::LeftButton, {}, {204, row(0).center().y()});
    EXPECT_EQ(waves->marker(), 25);
    QTest::mouseClick(waves, Qt::LeftButton, {}, {201, row(0).center().y()});
    EXPECT_EQ(waves->marker(), -1);
    // Not in the future.
    QTest::mouseClick(waves, Qt::LeftButton, {}, {700, row(0).center().y()});
    EXPECT_EQ(waves->marker(), -1);
    // Not at a time that is no longer there.
    waves->setMarker(40);
    viewer->setClock(5);
    settle();
    EXPECT_EQ(waves->marker(), -1);
}

TEST_F(WavesView, ClickMakesTheRowThePresentOne)
{
    viewer->addAddrChannel(2, wr, -1, {});
    settle();
    QTest::mouseClick(waves, Qt::LeftButton, {}, {100, row(0).center().y()});
    EXPECT_EQ(tree->currentWave()->channel->addr, 1);
    QTest::mouseClick(waves, Qt::LeftButton, {}, {100, row(1).center().y()});
    EXPECT_EQ(tree->currentWave()->channel->addr, 2);
}

TEST_F(WavesView, ToolTipTellsTheValue)
{
    write(10, 0x1F);
    write(20, 0x2F);
    settle();
    const auto tip = [this](int x) {
        QToolTip::hideText();
        const QPoint place(x, row(0).center().y());
        QHelpEvent event(QEvent::ToolTip, place, waves->mapToGlobal(place));
        QApplication::sendEvent(waves, &event);
        return QToolTip::text();
    };
    EXPECT_EQ(tip(120), "Write 01: 1F\nSince 10 clocks (200 ns)\nUntil 20 clocks (400 ns)");
    EXPECT_EQ(tip(163), "Write 01: 2F\nSince 20 clocks (400 ns)");
    EXPECT_EQ(tip(20), "Write 01: no value yet");
    viewer->setBase(10);
    EXPECT_TRUE(tip(120).startsWith("Write 01: 31\n"));
    QToolTip::hideText();
}

TEST_F(WavesView, BitsAreHighAndLow)
{
    viewer->resize(1000, 500);
    tree->expandAll();
    write(10, 0x80);
    write(20, 0x01);
    viewer->setClock(30);
    const QImage image = picture();
    const int height = waves->waves().at(1)->height;
    const QList<int> high{4};
    const QList<int> low{height - 5};
    // Bit 7 is the first row below the number, bit 0 the last.
    EXPECT_EQ(greenAt(image, 1, 120), high);
    EXPECT_EQ(greenAt(image, 1, 200), low);
    EXPECT_EQ(greenAt(image, 8, 120), low);
    EXPECT_EQ(greenAt(image, 8, 200), high);
    EXPECT_EQ(greenAt(image, 4, 120), low);
    EXPECT_EQ(greenAt(image, 4, 200), low);
    // The edge joins both levels. A bit that does not change has none.
    EXPECT_EQ(greenAt(image, 1, 160).size(), height - 8);
    EXPECT_EQ(greenAt(image, 8, 160).size(), height - 8);
    EXPECT_EQ(greenAt(image, 4, 160), low);
    // Nothing is known before the first value, and nothing after now.
    EXPECT_TRUE(greenAt(image, 1, 40).isEmpty());
    EXPECT_EQ(greenAt(image, 8, 246), high);
    EXPECT_TRUE(greenAt(image, 8, 260).isEmpty());
}

TEST_F(WavesView, NumbersAreTubes)
{
    write(10, 0x12);
    write(20, 0x12);
    viewer->setClock(39);
    const QImage image = picture();
    const int height = waves->waves().at(0)->height;
    EXPECT_EQ(greenAt(image, 0, 140), (QList<int>{4, height - 5}));
    EXPECT_EQ(greenAt(image, 0, 240), (QList<int>{4, height - 5}));
    // The same value again is a value of its own where there is room.
    EXPECT_FALSE(greenAt(image, 0, 160).contains(4));
    EXPECT_TRUE(greenAt(image, 0, 160).contains((height - 1) / 2));
    EXPECT_TRUE(greenAt(image, 0, 40).isEmpty());
    EXPECT_TRUE(greenAt(image, 0, 330).isEmpty());
    // Both are written in full.
    const auto text = [&](int x0, int x1) { return image.copy(row(0, x0, x1).adjusted(0, 6, 0, -6)); };
    EXPECT_EQ(text(84, 104), text(164, 184));
    EXPECT_NE(text(84, 104), text(110, 130));
    viewer->setBase(10);
    const QImage decimal = picture();
    EXPECT_NE(decimal.copy(row(0, 84, 104)), image.copy(row(0, 84, 104)));
}

TEST_F(WavesView, LastValueIsReadableBehindTheEnd)
{
    write(10, 0x12);
    viewer->setClock(11);
    const QImage image = picture();
    EXPECT_TRUE(hasText(image, row(0, 80, 120)));
}

TEST_F(WavesView, DenseValuesAreABlock)
{
    count(200000);
    click("procSimWaveZoomFit");
    const QImage image = picture();
    const int height = waves->waves().at(0)->height;
    for (const int x : {50, 300, 600}) {
        const QColor inside = image.pixelColor(x, row(0).center().y());
        EXPECT_GT(inside.green(), 2 * inside.blue());
        EXPECT_EQ(greenAt(image, 0, x), (QList<int>{4, height - 5}));
    }
}

TEST_F(WavesView, DenseBitsAreBlocksOnlyWhereTheyChange)
{
    viewer->resize(1000, 500);
    tree->expandAll();
    for (qint64 clock = 0; clock < 400000; clock += 10)
        write(clock, clock < 200000 ? 0x02 | int(clock / 10 % 2) : 0x02);
    settle();
    click("procSimWaveZoomFit");
    const QImage image = picture();
    const auto block = [&](int rowIndex, int x) {
        const QColor color = image.pixelColor(x, row(rowIndex).center().y());
        return color.green() > 100 && color.blue() < 60;
    };
    EXPECT_TRUE(block(8, 100));
    EXPECT_FALSE(block(8, 600));
    EXPECT_FALSE(block(7, 100));
    EXPECT_EQ(greenAt(image, 7, 100), QList<int>{4});
    EXPECT_EQ(greenAt(image, 8, 600), QList<int>{waves->waves().at(8)->height - 5});
}

TEST_F(WavesView, PolledPortShowsItsValueHoweverOftenItIsRead)
{
    for (qint64 clock = 0; clock < 100000; clock += 10)
        write(clock, clock < 50000 ? 0x00 : 0x81);
    settle();
    click("procSimWaveZoomFit");
    const QImage image = picture();
    const int middle = xAt(50000);
    EXPECT_TRUE(hasText(image, row(0, 0, 30)));
    EXPECT_TRUE(hasText(image, row(0, middle, middle + 30)));
    EXPECT_FALSE(hasText(image, row(0, 40, middle - 4)));
    EXPECT_EQ(greenAt(image, 0, middle / 2).size(), 2);
}

TEST_F(WavesView, RowsEndAtTheAxis)
{
    for (int addr = 2; addr < 12; ++addr) {
        viewer->addAddrChannel(addr, wr, -1, {});
        viewer->data()->addValue(addr, wr, 0x55, 0);
    }
    viewer->setClock(60);
    tree->verticalScrollBar()->setValue(tree->verticalScrollBar()->maximum() / 2);
    const QImage image = picture();
    const int axis = waves->mapFromGlobal(tree->viewport()->mapToGlobal(QPoint(0, 0))).y();
    EXPECT_GT(axis, 10);
    EXPECT_EQ(countColor(image, QRect(0, 0, waves->width(), axis), green), 0);
    EXPECT_GT(countColor(image, QRect(0, axis, waves->width(), 100), green), 0);
}

TEST_F(WavesView, HugeTimesWork)
{
    write(4000000000000LL, 1);
    write(4000000000050LL, 2);
    settle();
    EXPECT_TRUE(waves->isFollowing());
    const QImage image = picture();
    EXPECT_GT(countColor(image, row(0), green), 50);
    bar->setValue(bar->maximum() / 2);
    EXPECT_NEAR(waves->time().first(), 2e12, 1e10);
    bar->setValue(bar->maximum());
    EXPECT_TRUE(waves->isFollowing());
    click("procSimWaveZoomFit");
    EXPECT_LT(xAt(4000000000050.0), waves->width());
}

TEST_F(WavesView, NothingNewPaintsNothing)
{
    count(500);
    struct Painted : QObject
    {
        int times = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            times += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } painted;
    waves->installEventFilter(&painted);
    for (int round = 0; round < 10; ++round)
        settle();
    EXPECT_EQ(painted.times, 0);
    write(600, 1);
    settle();
    EXPECT_GT(painted.times, 0);
    waves->removeEventFilter(&painted);
}

} // namespace
