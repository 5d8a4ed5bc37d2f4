// Two texts side by side.

#include "ModalHelper.h"
#include "QtPrinters.h"
#include "Readable.h"
#include "TextCompareDialog.h"
#include "TextCompareSide.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include <algorithm>

namespace {

QString numbered(int count)
{
    QStringList lines;
    for (int i = 0; i < count; ++i)
        lines.append(QString("line %1").arg(i));
    return lines.join('\n');
}

class TextCompare : public ::testing::Test
{
protected:
    void show(const QString& left, const QString& right)
    {
        dialog.setTexts("Mine", left, "Other", right);
        dialog.show();
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog, 60000));
    }
    QPushButton* button(const QString& name) { return dialog.findChild<QPushButton*>(name); }
    QString state() { return dialog.findChild<QLabel*>("textCompareState")->text(); }

    TextCompareDialog dialog;
};

TEST_F(TextCompare, bothSidesStandInStepWithTheirNumbers)
{
    show("a\nb\nc\nd", "a\nx\ny\nc");
    EXPECT_EQ(dialog.leftSide()->toPlainText(), "a\nb\n\nc\nd");
    EXPECT_EQ(dialog.rightSide()->toPlainText(), "a\nx\ny\nc\n");
    const QVector<TextCompareSide::sRow_t> left = dialog.leftSide()->rows();
    EXPECT_EQ(left.at(1).kind, TextCompareSide::eRowChanged);
    EXPECT_EQ(left.at(2).kind, TextCompareSide::eRowMissing);
    EXPECT_EQ(left.at(2).line, -1);
    EXPECT_EQ(left.at(3).line, 2);
    EXPECT_EQ(left.at(4).kind, TextCompareSide::eRowOnlyHere);
    EXPECT_EQ(dialog.rightSide()->rows().at(2).kind, TextCompareSide::eRowOnlyHere);
    EXPECT_EQ(dialog.differenceCount(), 2);
}

TEST_F(TextCompare, differencesAreWalkedByKeysAndButtons)
{
    show("a\nb\nc\nd\ne", "a\nx\nc\ny\ne");
    EXPECT_EQ(dialog.currentDifference(), 0);
    EXPECT_EQ(state(), "Difference 1 of 2");
    EXPECT_FALSE(button("textComparePrevious")->isEnabled());
    QTest::mouseClick(button("textCompareNext"), Qt::LeftButton);
    EXPECT_EQ(dialog.currentDifference(), 1);
    EXPECT_FALSE(button("textCompareNext")->isEnabled());
    QTest::keyClick(&dialog, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(dialog.currentDifference(), 0);
    EXPECT_EQ(dialog.leftSide()->textCursor().blockNumber(), 1);
}

TEST_F(TextCompare, equalTextsSaySo)
{
    show("a\nb", "a\nb");
    EXPECT_EQ(state(), "The lines are equal.");
    EXPECT_FALSE(button("textCompareNext")->isEnabled());
    EXPECT_EQ(dialog.currentDifference(), -1);
}

TEST_F(TextCompare, sidesScrollTogether)
{
    show(numbered(500), numbered(400) + "\nend");
    dialog.leftSide()->verticalScrollBar()->setValue(123);
    EXPECT_EQ(dialog.rightSide()->firstRow(), 123);
    dialog.rightSide()->verticalScrollBar()->setValue(7);
    EXPECT_EQ(dialog.leftSide()->firstRow(), 7);
}

TEST_F(TextCompare, theTextsCanNotBeChangedButCopied)
{
    show("a\nb", "a\nc");
    QTest::keyClicks(dialog.leftSide(), "typed");
    EXPECT_EQ(dialog.leftSide()->toPlainText(), "a\nb");
    EXPECT_TRUE(dialog.leftSide()->textInteractionFlags() & Qt::TextSelectableByKeyboard);
}

TEST_F(TextCompare, veryLongTextsShowTheirDifferencesAlone)
{
    const QString text = numbered(300000);
    QString other = text;
    other.replace("line 150000\n", "changed\n");
    show(text, other);
    EXPECT_EQ(dialog.differenceCount(), 1);
    EXPECT_LT(dialog.leftSide()->blockCount(), 1000);
    EXPECT_EQ(dialog.rightSide()->textCursor().block().text(), "changed");
    EXPECT_TRUE(dialog.leftSide()->toPlainText().contains("equal line"));
    // All of the lines differ: still no more rows than a window can hold.
    QStringList reversed = text.split('\n');
    std::reverse(reversed.begin(), reversed.end());
    show(text, reversed.join('\n'));
    EXPECT_LE(dialog.leftSide()->blockCount(), TextCompareDialog::maxRows + 1);
    EXPECT_TRUE(dialog.leftSide()->toPlainText().endsWith("... the rest is not shown ..."));
}

TEST_F(TextCompare, buttonsOfTheCallerEndItWithTheirResult)
{
    dialog.setTexts("Mine", "a", "Other", "b");
    QPushButton* take = dialog.addButton("Take the other", "Reads the file", 7);
    ModalHelper helper([take](QDialog*) { QTest::mouseClick(take, Qt::LeftButton); });
    EXPECT_EQ(dialog.exec(), 7);
}

TEST_F(TextCompare, closeAndEscapeEndItWithNothing)
{
    dialog.setTexts("Mine", "a", "Other", "b");
    ModalHelper helper([](QDialog* shown) { QTest::keyClick(shown, Qt::Key_Escape); });
    EXPECT_EQ(dialog.exec(), 0);
}

TEST_F(TextCompare, pictureForAPerson)
{
    show("; counter\nstart:\n  LOAD s0, 1\n  ADD s0, 1\n  JUMP start\n",
         "; counter\nstart:\n  LOAD s0, 2\n  ADD s0, 1\n  OUTPUT s0, 7\n  OUTPUT s0, 8\n  JUMP start\n");
    QDir().mkpath(NALVO_BINARY_DIR "/screenshots");
    EXPECT_TRUE(expectReadable(&dialog).save(NALVO_BINARY_DIR "/screenshots/textCompareDialog.png"));
}

} // namespace
