// The fields of the simulator: numbers in a base, bits, the interrupt.

#include "ProcSimEdt8Bit.h"
#include "ProcSimEdtBit.h"
#include "ProcSimEdtBitField.h"
#include "ProcSimEdtInterrupt.h"
#include "ProcSimEdtNumeric.h"

#include <gtest/gtest.h>

#include <QFocusEvent>
#include <QSignalSpy>
#include <QTest>

using namespace nsProc;

namespace {

void type(QLineEdit* edit, const char* text)
{
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

TEST(SimEdtNumeric, ShowsTheWidthOfItsMaximumInEachBase)
{
    ProcSimEdtNumeric edit;
    edit.setRange(0, 255);
    EXPECT_TRUE(edit.setValue(0x0A));
    EXPECT_EQ(edit.text(), "0A");
    edit.setBase(10);
    EXPECT_EQ(edit.text(), "010");
    edit.setBase(8);
    EXPECT_EQ(edit.text(), "012");
    EXPECT_EQ(edit.value(), 10);
    EXPECT_TRUE(edit.alignment() & Qt::AlignRight);
}

TEST(SimEdtNumeric, RefusesWhatIsOutOfRange)
{
    ProcSimEdtNumeric edit;
    edit.setRange(0, 255);
    edit.setValue(7);
    EXPECT_FALSE(edit.setValue(256));
    EXPECT_FALSE(edit.setValue(-1));
    EXPECT_EQ(edit.value(), 7);
    EXPECT_EQ(edit.text(), "07");
}

TEST(SimEdtNumeric, EachKeyCountsAndTheEndOfTheEditLimits)
{
    ProcSimEdtNumeric edit;
    edit.setRange(0, 255);
    edit.show();
    QSignalSpy keys(&edit, &ProcSimEdtNumeric::edited);
    QSignalSpy ends(&edit, &ProcSimEdtNumeric::valueChanged);
    type(&edit, "1f");
    EXPECT_EQ(edit.value(), 0x1F);
    EXPECT_EQ(edit.text(), "1f");
    EXPECT_EQ(keys.count(), 2);
    EXPECT_EQ(ends.count(), 0);
    QTest::keyClicks(&edit, "f");
    EXPECT_EQ(edit.value(), 255);
    EXPECT_EQ(edit.text(), "1ff");
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(edit.text(), "FF");
    ASSERT_EQ(ends.count(), 1);
    EXPECT_EQ(ends.first().first().toInt(), 255);
}

TEST(SimEdtNumeric, TakesDigitsOfItsBaseOnly)
{
    ProcSimEdtNumeric edit;
    edit.setRange(0, 255);
    edit.setBase(8);
    type(&edit, "9x7");
    EXPECT_EQ(edit.text(), "7");
    edit.setBase(10);
    type(&edit, "A12");
    EXPECT_EQ(edit.text(), "12");
    type(&edit, "123456789");
    EXPECT_EQ(edit.text(), "12345678");
    EXPECT_EQ(edit.value(), 255);
}

TEST(SimEdtNumeric, EmptyFieldIsZeroAndShowsThatAtTheEnd)
{
    ProcSimEdtNumeric edit;
    edit.setRange(0, 255);
    edit.setValue(9);
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Delete);
    EXPECT_EQ(edit.value(), 0);
    EXPECT_EQ(edit.text(), "");
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&edit, &out);
    EXPECT_EQ(edit.text(), "00");
}

TEST(SimEdtNumeric, ValueThatSaysTheSameLeavesTheTypingAlone)
{
    ProcSimEdtNumeric edit;
    edit.setRange(0, 255);
    type(&edit, "5");
    edit.setValue(5);
    EXPECT_EQ(edit.text(), "5");
    edit.setValue(6);
    EXPECT_EQ(edit.text(), "06");
}

TEST(SimEdtNumeric, WidthDoesNotDependOnTheBase)
{
    ProcSimEdtNumeric edit;
    edit.setRange(0, 1024);
    const int width = edit.width();
    edit.setBase(8);
    EXPECT_EQ(edit.width(), width);
    edit.setBase(10);
    EXPECT_EQ(edit.width(), width);
}

TEST(SimEdtBit, ClickAndSpaceToggle)
{
    ProcSimEdtBit bit;
    QSignalSpy changes(&bit, &ProcSimEdtBit::valueChanged);
    bit.setValue(17);
    EXPECT_EQ(bit.text(), "1");
    EXPECT_EQ(changes.count(), 0);
    QTest::mouseClick(&bit, Qt::LeftButton);
    EXPECT_EQ(bit.value(), 0);
    QTest::keyClick(&bit, Qt::Key_Space);
    EXPECT_EQ(bit.text(), "1");
    EXPECT_EQ(changes.count(), 2);
}

TEST(SimEdtBitField, MostSignificantBitStandsAtTheLeft)
{
    ProcSimEdtBitField field(8);
    field.setValue(0x81);
    EXPECT_EQ(field.value(), 0x81);
    field.resize(field.sizeHint());
    field.show();
    QSignalSpy changes(&field, &ProcSimEdtBitField::valueChanged);
    const auto bits = field.findChildren<ProcSimEdtBit*>();
    ASSERT_EQ(bits.size(), 8);
    ProcSimEdtBit* leftmost = bits.first();
    for (ProcSimEdtBit* bit : bits) {
        if (bit->x() < leftmost->x())
            leftmost = bit;
    }
    QTest::mouseClick(leftmost, Qt::LeftButton);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes.first().first().toInt(), 0x01);
}

TEST(SimEdt8Bit, IsATruthValue)
{
    ProcSimEdt8Bit bit;
    QSignalSpy changes(&bit, &ProcSimEdt8Bit::valueChanged);
    bit.setValue(true);
    EXPECT_TRUE(bit.value());
    bit.toggleBit();
    EXPECT_FALSE(bit.value());
    ASSERT_EQ(changes.count(), 1);
    EXPECT_FALSE(changes.first().first().toBool());
}

TEST(SimEdtInterrupt, ShowsItsStateAndTogglesOnlyWhereItCan)
{
    ProcSimEdtInterrupt edit;
    EXPECT_EQ(edit.value(), eIntDisabled);
    EXPECT_TRUE(edit.toolTip().startsWith("If interrupt is enabled click to change status."));
    QSignalSpy changes(&edit, &ProcSimEdtInterrupt::valueChanged);
    const struct
    {
        eInt_t state;
        QColor color;
        eInt_t next;
    } rows[] = {{eIntEnabled, Qt::green, eIntPending},
                {eIntDisabled, Qt::darkGray, eIntDisabled},
                {eIntPending, Qt::darkGreen, eIntEnabled},
                {eIntService, Qt::darkRed, eIntService}};
    for (const auto& row : rows) {
        edit.setValue(row.state);
        const QImage square = edit.pixmap(Qt::ReturnByValue).toImage();
        EXPECT_EQ(square.width(), 10);
        EXPECT_EQ(square.height(), edit.fontMetrics().height());
        EXPECT_EQ(square.pixelColor(5, 5).name(), row.color.name());
        QTest::mouseClick(&edit, row.state == eIntPending ? Qt::RightButton : Qt::LeftButton);
        EXPECT_EQ(edit.value(), row.next);
    }
    EXPECT_EQ(changes.count(), 2);
}

} // namespace
