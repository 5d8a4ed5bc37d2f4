// What the user does to the core acts on its state as it is at that moment, not on the picture of it.

#include "XPBlze3SimCore.h"

#include "ProcSimCoreData.h"
#include "ProcSimEdtBit.h"
#include "ProcSimEdtInterrupt.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimScrpd.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QTest>

using namespace nsProc;

namespace {

TEST(SimLiveState, InterruptThatIsDisabledByNowStaysSo)
{
    nsXPBlze3::XPBlze3SimCore core(64, 1024);
    auto* mark = core.findChild<ProcSimEdtInterrupt*>();
    ASSERT_NE(mark, nullptr);
    for (const eInt_t now : {eIntDisabled, eIntService}) {
        for (const eInt_t shown : {eIntEnabled, eIntPending}) {
            core.setInterrupt(shown);
            core.data()->setInterrupt(now);
            QTest::mouseClick(mark, Qt::LeftButton);
            EXPECT_EQ(core.interrupt(), now) << shown;
            EXPECT_EQ(mark->value(), now);
        }
    }
    core.setInterrupt(eIntDisabled);
    core.data()->setInterrupt(eIntEnabled);
    QTest::keyClick(mark, Qt::Key_Space);
    EXPECT_EQ(core.interrupt(), eIntPending) << "enabled by now, so the click asks for an interrupt";
}

TEST(SimLiveState, FlagIsToggledAsItIsAndTheOtherOneStays)
{
    nsXPBlze3::XPBlze3SimCore core(64, 1024);
    const auto bits = core.findChildren<ProcSimEdtBit*>();
    ASSERT_EQ(bits.size(), 2);
    core.data()->setCarryBit(1);
    core.data()->setZeroBit(1);
    QTest::mouseClick(bits.first(), Qt::LeftButton);
    EXPECT_EQ(core.carryBit(), 0);
    EXPECT_EQ(core.zeroBit(), 1);
    EXPECT_EQ(bits.first()->value(), 0);
}

class SimScrpdCells : public ::testing::Test
{
protected:
    void show(ProcSimScrpd* scrpd, int width = 260, int height = 300)
    {
        scrpd->resize(width, height);
        scrpd->show();
        QApplication::setActiveWindow(scrpd);
        rest();
    }
    static void rest()
    {
        for (int i = 0; i < 5; ++i) {
            QApplication::sendPostedEvents();
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QApplication::processEvents();
        }
    }
    /// The field of an address, null if there is none at present.
    static ProcSimEdtNumeric* cell(const ProcSimScrpd& scrpd, const QString& addr)
    {
        for (ProcSimEdtNumeric* field : scrpd.findChildren<ProcSimEdtNumeric*>()) {
            if (field->toolTip() == "Address " + addr)
                return field;
        }
        return nullptr;
    }
    static bool isInSight(const ProcSimScrpd& scrpd, const QWidget* field)
    {
        return field != nullptr && field->isVisible() &&
               scrpd.viewport()->rect().contains(QRect(field->mapTo(scrpd.viewport(), QPoint()), field->size()));
    }
};

TEST_F(SimScrpdCells, AllOfALargeScratchpadCanBeSeenAndEdited)
{
    ProcSimScrpd scrpd(4096);
    scrpd.setValue(4095, 0xC3);
    scrpd.setValue(0, 1);
    show(&scrpd);
    QScrollBar* bar = scrpd.verticalScrollBar();
    bar->setValue(bar->maximum());
    rest();
    ProcSimEdtNumeric* last = cell(scrpd, "FFF");
    ASSERT_NE(last, nullptr);
    EXPECT_TRUE(isInSight(scrpd, last));
    EXPECT_EQ(last->text(), "C3");
    last->setFocus();
    last->selectAll();
    QTest::keyClicks(last, "7e");
    int value = 0;
    EXPECT_TRUE(scrpd.value(4095, &value));
    EXPECT_EQ(value, 0x7E);
    bool isTitled = false;
    for (const QLabel* label : scrpd.findChildren<QLabel*>()) {
        EXPECT_FALSE(label->text().contains("not shown"));
        isTitled = isTitled || (label->isVisible() && label->text() == "FFC");
    }
    EXPECT_TRUE(isTitled);
}

TEST_F(SimScrpdCells, NoMoreFieldsThanASightNeedsHoweverFarTheUserScrolls)
{
    ProcSimScrpd scrpd(65536);
    EXPECT_LE(scrpd.findChildren<ProcSimEdtNumeric*>().size(), 512);
    show(&scrpd);
    QScrollBar* bar = scrpd.verticalScrollBar();
    for (int step = 0; step <= 64; ++step) {
        bar->setValue(int(qint64(bar->maximum()) * step / 64));
        rest();
        EXPECT_LE(scrpd.findChildren<ProcSimEdtNumeric*>().size(), 512) << step;
        // No gap: each place in sight has its field.
        int inSight = 0;
        for (const ProcSimEdtNumeric* field : scrpd.findChildren<ProcSimEdtNumeric*>())
            inSight += int(isInSight(scrpd, field));
        EXPECT_GE(inSight, 4 * (scrpd.viewport()->height() / (scrpd.findChild<ProcSimEdtNumeric*>()->height() + 6) - 1))
            << step;
    }
}

TEST_F(SimScrpdCells, CellThatTheProgramWritesFarBelowComesIntoSight)
{
    ProcSimScrpd scrpd(4096);
    show(&scrpd);
    EXPECT_TRUE(scrpd.setValue(3000, 0xAB));
    rest();
    ProcSimEdtNumeric* field = cell(scrpd, "BB8");
    ASSERT_NE(field, nullptr);
    EXPECT_TRUE(isInSight(scrpd, field));
    EXPECT_TRUE(field->isHighlighted());
    EXPECT_EQ(field->text(), "AB");
    scrpd.setBase(10);
    rest();
    field = cell(scrpd, "3000");
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->text(), "171");
}

TEST_F(SimScrpdCells, TabulatorGoesThroughAllCells)
{
    ProcSimScrpd scrpd(1200);
    show(&scrpd);
    cell(scrpd, "000")->setFocus();
    const auto focused = [] {
        return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->toolTip() : QString();
    };
    const auto name = [](int addr) { return "Address " + QString::number(addr, 16).toUpper().rightJustified(3, '0'); };
    for (int addr = 0; addr < 1199; ++addr) {
        ASSERT_EQ(focused(), name(addr));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (addr % 64 == 0)
            rest();
    }
    for (int addr = 1199; addr > 0; --addr) {
        ASSERT_EQ(focused(), name(addr));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        if (addr % 64 == 0)
            rest();
    }
}

TEST_F(SimScrpdCells, FieldThatIsTypedInOutlivesALookElsewhere)
{
    ProcSimScrpd scrpd(4096);
    show(&scrpd);
    QScrollBar* bar = scrpd.verticalScrollBar();
    bar->setValue(bar->maximum() / 2);
    rest();
    ProcSimEdtNumeric* field = nullptr;
    for (ProcSimEdtNumeric* candidate : scrpd.findChildren<ProcSimEdtNumeric*>()) {
        if (isInSight(scrpd, candidate))
            field = candidate;
    }
    ASSERT_NE(field, nullptr);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "5");
    const QPointer<ProcSimEdtNumeric> alive(field);
    bar->setValue(bar->maximum());
    rest();
    ASSERT_NE(alive, nullptr);
    EXPECT_TRUE(field->hasFocus());
    EXPECT_EQ(field->text(), "5");
}

} // namespace
