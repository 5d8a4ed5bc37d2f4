// What the widgets of a simulator say beside values and colours: tool tips, letters, names, and the room that texts
// have.

#include "LMico8v3xSimCoreReg.h"
#include "ProcSimCallStack.h"
#include "ProcSimCoreData.h"
#include "ProcSimEdtBit.h"
#include "ProcSimEdtInterrupt.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimHighlight.h"
#include "ProcSimStatusBar.h"
#include "XPBlze3SimCore.h"
#include "XPBlze3SimCoreReg.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QStackedWidget>
#include <QTest>
#include <QToolTip>

#include <algorithm>
#include <set>

using namespace nsProc;

namespace {

/// The tool tip that appears over a widget.
QString tipOver(QWidget* widget)
{
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), widget->mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(widget, &event);
    return QToolTip::text();
}

TEST(SimWords, ColumnOfTheCalledLabelIsAsWideAsItsLongestName)
{
    ProcSimCallStack stack(31);
    stack.resize(300, 200);
    stack.show();
    stack.add({"namespace_of_a_library::function_with_a_very_long_name_that_says_it_all", false, false, 1, 1});
    QApplication::processEvents();
    for (int column = 0; column < 5; ++column) {
        const int text = stack.fontMetrics().horizontalAdvance(stack.model()->index(0, column).data().toString());
        EXPECT_GE(stack.columnWidth(column), text) << column;
    }
    const int wide = stack.columnWidth(4);
    sCallStackItem_t item;
    stack.takeLast(&item);
    stack.add({"f", false, false, 1, 1});
    QApplication::processEvents();
    EXPECT_LT(stack.columnWidth(4), wide) << "it follows its contents";
}

TEST(SimWords, EachRegisterHasARowOfItsOwn)
{
    nsXPBlze3::XPBlze3SimCoreReg xpBlze3;
    nsLMico8v3x::LMico8v3xSimCoreReg mico(32);
    const std::pair<ProcSimCoreReg*, int> rows[] = {{&xpBlze3, 16}, {&mico, 32}};
    for (const auto& [regs, count] : rows) {
        regs->resize(240, regs->sizeHint().height());
        regs->show();
        std::set<int> tops;
        int last = -1;
        const auto fields = regs->findChild<QStackedWidget*>()->currentWidget()->findChildren<ProcSimEdtNumeric*>();
        for (const ProcSimEdtNumeric* field : fields) {
            EXPECT_GT(field->y(), last);
            last = field->y();
            tops.insert(last);
        }
        EXPECT_EQ(int(tops.size()), count);
    }
}

TEST(SimWords, RegisterHasNoSecondNameThatIsItsOwn)
{
    nsXPBlze3::XPBlze3SimCoreReg regs;
    const auto names = regs.findChildren<QLabel*>("procSimAlias");
    ASSERT_EQ(names.size(), 16);
    regs.resize(300, regs.sizeHint().height());
    regs.show();
    regs.setReg(10, "sA", 1);
    EXPECT_EQ(names.at(10)->text(), "");
    EXPECT_EQ(names.at(10)->toolTip(), "");
    regs.setReg(10, "SA", 1);
    EXPECT_EQ(names.at(10)->text(), "");
    regs.setReg(10, "count", 1);
    EXPECT_EQ(names.at(10)->text(), "count");
    // The name of another register is a name as any other.
    regs.setReg(10, "s0", 1);
    EXPECT_EQ(names.at(10)->text(), "s0");
    regs.setReg(10, "sa", 1);
    EXPECT_EQ(names.at(10)->text(), "");
    EXPECT_EQ(names.at(10)->toolTip(), "");
}

TEST(SimWords, InterruptIsToldByALetterAndATipToo)
{
    ProcSimEdtInterrupt mark;
    mark.resize(mark.sizeHint());
    mark.show();
    const struct
    {
        eInt_t state;
        const char* tip;
    } rows[] = {{eIntEnabled, "Interrupt: enabled"},
                {eIntDisabled, "Interrupt: disabled"},
                {eIntPending, "Interrupt: pending"},
                {eIntService, "Interrupt: in service"}};
    QList<QImage> letters;
    for (const auto& row : rows) {
        mark.setValue(row.state);
        EXPECT_TRUE(tipOver(&mark).endsWith(row.tip)) << qPrintable(tipOver(&mark));
        EXPECT_TRUE(tipOver(&mark).startsWith("If interrupt is enabled click to change status."));
        // Without any colour, and beside the square, the states still differ.
        QImage grey = mark.grab().toImage();
        grey = grey.copy(2 + 10, 0, grey.width() - 12, grey.height())
                   .convertToFormat(QImage::Format_Mono, Qt::ThresholdDither);
        for (const QImage& other : qAsConst(letters))
            EXPECT_NE(grey, other) << row.tip;
        letters.append(grey);
    }
}

TEST(SimWords, TimeHasATipThatPeopleRead)
{
    const struct
    {
        double frequency;
        qint64 clocks;
        const char* tip;
    } rows[] = {{50000000, 3799440, "75.99 ms"}, {50000000, 1, "20 ns"},   {1000000, 999, "999 us"},
                {1000000, 1000, "1 ms"},         {1000000, 999960, "1 s"}, {1000000, 12345678, "12.35 s"},
                {1, 123456, "123456 s"},         {50000000, 0, "0 s"}};
    for (const auto& row : rows) {
        ProcSimStatusBar bar(row.frequency);
        bar.addClkCntr(int(row.clocks));
        EXPECT_EQ(bar.findChild<QLabel*>("procSimTime")->toolTip().toStdString(), row.tip);
    }
    ProcSimStatusBar bar(50000000);
    bar.addClkCntr(3799440);
    EXPECT_EQ(bar.findChild<QLabel*>("procSimTime")->text(), "7.59888e+07") << "the text stays";
    ProcSimStatusBar endless(0);
    endless.addClkCntr(2);
    EXPECT_EQ(endless.findChild<QLabel*>("procSimTime")->toolTip(), "No clock frequency is set.");
}

TEST(SimWords, HighlightedFieldTellsSinceWhenItIsSo)
{
    nsXPBlze3::XPBlze3SimCore core(64, 1024);
    core.resize(260, 800);
    core.show();
    setHighlightNote(&core, "Red since then.");
    core.setReg(3, "x", 5);
    core.setCarryBit(1);
    core.setScrpd(7, 9);
    QList<QWidget*> fields;
    for (ProcSimEdtNumeric* field : core.findChildren<ProcSimEdtNumeric*>()) {
        if (field->isHighlighted())
            fields.append(field);
    }
    for (ProcSimEdtBit* bit : core.findChildren<ProcSimEdtBit*>()) {
        if (bit->isHighlighted())
            fields.append(bit);
    }
    ASSERT_EQ(fields.size(), 3);
    for (QWidget* field : fields)
        EXPECT_EQ(tipOver(field), field->toolTip() + "\nRed since then.");
    core.clearHighlighted();
    for (QWidget* field : fields)
        EXPECT_EQ(tipOver(field), field->toolTip());
}

} // namespace
