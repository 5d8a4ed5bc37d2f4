// Core, call stack, status bar and the question for a page.

#include "LMico8v3xSimCore.h"
#include "LMico8v3xSimCoreReg.h"
#include "XPBlze3SimCore.h"
#include "XPBlze6SimCore.h"

#include "ProcSimCallStack.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimEdtBit.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimResolvePageDialog.h"
#include "ProcSimScrpd.h"
#include "ProcSimStatusBar.h"

#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using namespace nsProc;

namespace {

ProcSimEdtNumeric* field(const QWidget& parent, const QString& toolTip)
{
    for (ProcSimEdtNumeric* edit : parent.findChildren<ProcSimEdtNumeric*>()) {
        if (edit->toolTip() == toolTip)
            return edit;
    }
    return nullptr;
}

TEST(SimCore, RegisterWithAliasAndHighlight)
{
    nsXPBlze3::XPBlze3SimCore core(64, 1024);
    EXPECT_TRUE(core.setReg(10, "counter", 0x5A));
    EXPECT_FALSE(core.setReg(16, "none", 1));
    int value = -1;
    EXPECT_FALSE(core.reg(16, "none", &value));
    EXPECT_TRUE(core.reg(10, "other", &value));
    EXPECT_EQ(value, 0x5A);
    ProcSimEdtNumeric* edit = field(core, "Register sA");
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->text(), "5A");
    EXPECT_TRUE(edit->isHighlighted());
    core.clearHighlighted();
    EXPECT_FALSE(edit->isHighlighted());
    EXPECT_EQ(core.data()->regAlias(0, 10), "other");
}

TEST(SimCore, EditOfARegisterIsReadAtOnceAndLimitedAtTheEnd)
{
    nsXPBlze3::XPBlze3SimCore core(64, 1024);
    ProcSimEdtNumeric* edit = field(core, "Register s3");
    ASSERT_NE(edit, nullptr);
    edit->selectAll();
    QTest::keyClicks(edit, "12c");
    int value = -1;
    EXPECT_TRUE(core.reg(3, QString(), &value));
    EXPECT_EQ(value, 255);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(edit->text(), "FF");
    EXPECT_FALSE(edit->isHighlighted());
}

TEST(SimCore, FlagsAskForTheFront)
{
    nsXPBlze3::XPBlze3SimCore core(64, 1024);
    QSignalSpy changes(&core, &ProcSimCore::contentChanged);
    core.setCarryBit(1);
    core.setZeroBit(1);
    EXPECT_EQ(changes.count(), 2);
    core.setReg(0, QString(), 1);
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(core.carryBit(), 1);
    EXPECT_EQ(core.zeroBit(), 1);
    const auto bits = core.findChildren<ProcSimEdtBit*>();
    ASSERT_EQ(bits.size(), 2);
    EXPECT_TRUE(bits.first()->isHighlighted());
    QTest::mouseClick(bits.first(), Qt::LeftButton);
    QTest::mouseClick(bits.last(), Qt::LeftButton);
    EXPECT_EQ(core.carryBit() + core.zeroBit(), 0);
}

TEST(SimCore, ClearIsCompleteButKeepsTheBank)
{
    nsXPBlze6::XPBlze6SimCore core(128, 4096);
    core.setBank(1);
    core.setReg(2, "x", 9);
    core.setScrpd(5, 7);
    core.setCarryBit(1);
    core.setInterrupt(eIntService);
    core.clear();
    int value = -1;
    EXPECT_TRUE(core.reg(2, QString(), &value));
    EXPECT_EQ(value, 0);
    EXPECT_TRUE(core.scrpd(5, &value));
    EXPECT_EQ(value, 0);
    EXPECT_EQ(core.carryBit(), 0);
    EXPECT_EQ(core.interrupt(), eIntDisabled);
    EXPECT_EQ(core.data()->bank(), 1);
}

TEST(SimCore, BanksAreTwoSetsOfRegisters)
{
    nsXPBlze6::XPBlze6SimCore core(64, 1024);
    core.setReg(0, "a", 1);
    core.toggleBank();
    core.setReg(0, "b", 2);
    auto* choice = core.findChild<QComboBox*>("procSimBank");
    ASSERT_NE(choice, nullptr);
    EXPECT_EQ(choice->currentText(), "B");
    EXPECT_EQ(choice->itemText(0), "A");
    EXPECT_EQ(choice->currentData().toInt(), 1);
    // The user goes back to bank A with the key.
    QTest::keyClick(choice, Qt::Key_Up);
    int value = -1;
    EXPECT_TRUE(core.reg(0, QString(), &value));
    EXPECT_EQ(value, 1);
}

TEST(SimCore, HwBuildIsTheUsersAndMayBeMissing)
{
    nsXPBlze6::XPBlze6SimCore core(64, 1024);
    ProcSimEdtNumeric* edit = field(core, "Value that the instruction HWBUILD reads");
    ASSERT_NE(edit, nullptr);
    edit->selectAll();
    QTest::keyClicks(edit, "2e");
    int value = -1;
    EXPECT_TRUE(core.hwbld(&value));
    EXPECT_EQ(value, 0x2E);
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    EXPECT_FALSE(core.hwbld(&value));
    core.setHwbld(3);
    EXPECT_TRUE(core.hwbld(&value));
    EXPECT_EQ(edit->text(), "03");
}

TEST(SimCore, Mico8HasItsRegistersByNumber)
{
    nsLMico8v3x::LMico8v3xSimCore core(32, 64, 1024);
    EXPECT_NE(field(core, "Register r31"), nullptr);
    EXPECT_EQ(field(core, "Register r32"), nullptr);
    nsLMico8v3x::LMico8v3xSimCore small(16, 64, 1024);
    EXPECT_EQ(field(small, "Register r16"), nullptr);
}

TEST(SimCore, ProgramCounterIsShownWithItsPage)
{
    nsXPBlze3::XPBlze3SimCore core(64, 1024);
    core.setPc(0x2A, "PAGE0");
    EXPECT_EQ(core.pc(), 0x2A);
    auto* edit = core.findChild<ProcSimEdtNumeric*>();
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->text(), "02A");
    core.setBase(8);
    EXPECT_EQ(edit->text(), "0052");
    EXPECT_FALSE(edit->isReadOnly());
    core.setRunning(true);
    EXPECT_TRUE(edit->isReadOnly());
}

TEST(SimScrpd, ImageThatIsTooLongIsIgnoredAsAWhole)
{
    ProcSimScrpd scrpd(4);
    unsigned int image[5] = {1, 2, 3, 4, 5};
    EXPECT_FALSE(scrpd.initValues(image, 5));
    int value = -1;
    EXPECT_TRUE(scrpd.value(0, &value));
    EXPECT_EQ(value, 0);
    EXPECT_TRUE(scrpd.initValues(image, 3));
    EXPECT_TRUE(scrpd.value(2, &value));
    EXPECT_EQ(value, 3);
}

TEST(SimScrpd, OneCellIsHighlightedAndInSight)
{
    ProcSimScrpd scrpd(256);
    scrpd.resize(300, 120);
    scrpd.show();
    EXPECT_FALSE(scrpd.setValue(256, 1));
    EXPECT_FALSE(scrpd.setValue(-1, 1));
    EXPECT_TRUE(scrpd.setValue(1, 1));
    EXPECT_TRUE(scrpd.setValue(250, 0xAB));
    const auto cells = scrpd.findChildren<ProcSimEdtNumeric*>();
    ASSERT_EQ(cells.size(), 256);
    int highlighted = 0;
    for (const ProcSimEdtNumeric* cell : cells)
        highlighted += int(cell->isHighlighted());
    EXPECT_EQ(highlighted, 1);
    EXPECT_GT(scrpd.verticalScrollBar()->value(), 0);
    EXPECT_TRUE(scrpd.viewport()->rect().contains(cells.at(250)->mapTo(scrpd.viewport(), QPoint(2, 2))));
    scrpd.clear();
    int value = -1;
    EXPECT_TRUE(scrpd.value(250, &value));
    EXPECT_EQ(value, 0);
}

TEST(SimScrpd, HugeSizeIsNoBurden)
{
    ProcSimScrpd scrpd(2147483647);
    EXPECT_TRUE(scrpd.setValue(255, 3));
    int value = -1;
    EXPECT_TRUE(scrpd.value(2147483646, &value));
    EXPECT_EQ(value, 0);
    EXPECT_LE(scrpd.findChildren<ProcSimEdtNumeric*>().size(), 1024);
}

TEST(SimCallStack, HoldsItsCapacityAndGivesBackWhatItTook)
{
    ProcSimCallStack stack(31);
    QSignalSpy changes(&stack, &ProcSimCallStack::contentChanged);
    sCallStackItem_t item;
    for (int level = 0; level < 31; ++level) {
        item.label = QString("f%1").arg(level);
        item.pc = 0x100 + level;
        item.carry = level % 2 != 0;
        item.lineIndex = level * 3;
        EXPECT_TRUE(stack.add(item));
    }
    EXPECT_FALSE(stack.add(item));
    EXPECT_EQ(stack.count(), 31);
    EXPECT_EQ(changes.count(), 31);
    const QAbstractItemModel* model = stack.model();
    QStringList titles;
    QStringList cells;
    for (int column = 0; column < 5; ++column) {
        titles.append(model->headerData(column, Qt::Horizontal).toString());
        cells.append(model->index(29, column).data().toString());
    }
    EXPECT_EQ(titles.join('|'), "Level|Program counter|Carry flag|Zero flag|Called label");
    EXPECT_EQ(cells.join('|'), "1D|11D|1|0|f29");
    EXPECT_EQ(model->index(29, 1).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignCenter));
    EXPECT_FALSE(model->flags(model->index(29, 1)) & Qt::ItemIsEditable);
    stack.setBase(10);
    EXPECT_EQ(model->index(29, 1).data().toString(), "285");
    sCallStackItem_t taken;
    EXPECT_TRUE(stack.takeLast(&taken));
    EXPECT_EQ(taken.label, "f30");
    EXPECT_EQ(taken.pc, 0x11E);
    EXPECT_FALSE(taken.carry);
    EXPECT_EQ(taken.lineIndex, 90);
    EXPECT_EQ(changes.count(), 32);
    stack.clear();
    EXPECT_EQ(stack.count(), 0);
    EXPECT_EQ(model->rowCount(), 0);
    EXPECT_FALSE(stack.takeLast(&taken));
}

QString texts(const ProcSimStatusBar& bar)
{
    QStringList parts;
    for (const QLabel* label : bar.findChildren<QLabel*>())
        parts.append(label->text());
    return parts.join(' ');
}

TEST(SimStatusBar, CountsClocksAndTime)
{
    ProcSimStatusBar bar(50000000);
    EXPECT_TRUE(texts(bar).contains("Value format: HEX")) << texts(bar).toStdString();
    bar.addClkCntr(2);
    bar.addClkCntr(3);
    EXPECT_EQ(bar.findChild<QLabel*>("procSimClocks")->text(), "5");
    EXPECT_EQ(bar.findChild<QLabel*>("procSimTime")->text(), "100");
    EXPECT_TRUE(texts(bar).endsWith("ns"));
    bar.setBase("OCT");
    EXPECT_EQ(bar.findChild<QLabel*>("procSimBase")->text(), "OCT");
    QSignalSpy cleared(&bar, &ProcSimStatusBar::cleared);
    QTest::mouseClick(bar.findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_EQ(bar.findChild<QLabel*>("procSimClocks")->text(), "0");
    EXPECT_EQ(bar.findChild<QLabel*>("procSimTime")->text(), "0");
    EXPECT_EQ(cleared.count(), 1);
}

TEST(SimStatusBar, UnitFollowsTheFrequency)
{
    const struct
    {
        double frequency;
        const char* unit;
        const char* timeOfTen;
    } rows[] = {{1000001, "ns", "9999.99"},
                {1000000, "us", "10"},
                {1001, "us", "9990.01"},
                {1000, "ms", "10"},
                {1, "ms", "10000"}};
    for (const auto& row : rows) {
        ProcSimStatusBar bar(row.frequency);
        bar.addClkCntr(10);
        EXPECT_TRUE(texts(bar).endsWith(row.unit)) << row.frequency;
        EXPECT_EQ(bar.findChild<QLabel*>("procSimTime")->text(), row.timeOfTen) << row.frequency;
    }
}

TEST(SimStatusBar, FrequencyOfZeroTakesForEver)
{
    ProcSimStatusBar bar(0);
    EXPECT_EQ(bar.findChild<QLabel*>("procSimTime")->text(), "0");
    bar.addClkCntr(2);
    EXPECT_EQ(bar.findChild<QLabel*>("procSimTime")->text(), "inf");
    bar.addClkCntr(2);
    EXPECT_EQ(bar.findChild<QLabel*>("procSimClocks")->text(), "4");
}

TEST(SimResolvePageDialog, AnswersWithTheRowThatIsCurrent)
{
    ProcSimResolvePageDialog dialog(3);
    EXPECT_EQ(dialog.windowTitle(), "Can not resolve page...");
    auto* list = dialog.findChild<QListWidget*>();
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->count(), 3);
    EXPECT_EQ(list->item(2)->text(), "Page 2");
    EXPECT_EQ(dialog.selectedRow(), 0);
    dialog.show();
    QTest::keyClick(list, Qt::Key_Down);
    auto* button = dialog.findChild<QPushButton*>();
    EXPECT_EQ(button->text(), "&Ok");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.selectedRow(), 1);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(dialog.selectedRow(), 1);
    dialog.show();
    const QPoint third = list->visualItemRect(list->item(2)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, third);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, third);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.selectedRow(), 2);
}

} // namespace
