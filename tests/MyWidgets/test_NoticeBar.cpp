// The strip that reports a state: its buttons, its end by the user, the keyboard.

#include "MyNoticeBar.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

/// A bar inside a text edit, as documents have it.
class NoticeBar : public ::testing::Test
{
protected:
    NoticeBar()
    {
        bar = new MyNoticeBar(MyNoticeBar::eGradeWarning, "The file has changed <b>on the disk</b>.", &edit);
        reload = bar->addButton("Reload", "Reads the file again");
        keep = bar->addButton("Keep", "Leaves the text");
        bar->setGeometry(0, 0, 500, 40);
        edit.resize(500, 200);
        edit.show();
        bar->show();
        QApplication::setActiveWindow(&edit);
        edit.setFocus();
    }

    QPlainTextEdit edit;
    QPointer<MyNoticeBar> bar;
    QPushButton* reload;
    QPushButton* keep;
};

TEST_F(NoticeBar, showsPlainTextAndItsGrade)
{
    EXPECT_EQ(bar->text(), "The file has changed <b>on the disk</b>.");
    EXPECT_EQ(bar->findChild<QLabel*>("noticeBarText")->textFormat(), Qt::PlainText);
    EXPECT_EQ(bar->property("grade").toString(), "warning");
    bar->setGrade(MyNoticeBar::eGradeError);
    EXPECT_EQ(bar->property("grade").toString(), "error");
    EXPECT_TRUE(edit.hasFocus());
}

TEST_F(NoticeBar, aButtonReportsItsClickAndTheBarStays)
{
    QSignalSpy clicked(reload, &QPushButton::clicked);
    QTest::mouseClick(reload, Qt::LeftButton);
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_TRUE(bar->isVisible());
}

TEST_F(NoticeBar, theKeyboardGoesThroughItsButtonsInOrder)
{
    EXPECT_EQ(bar->firstControl(), reload);
    bar->firstControl()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), keep);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), bar->findChild<QPushButton*>("noticeBarClose"));
    // The text edit keeps the Tab key for itself: the end leads to the start.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), reload);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), bar->findChild<QPushButton*>("noticeBarClose"));
    EXPECT_EQ(edit.toPlainText(), "");
    reload->setEnabled(false);
    EXPECT_EQ(bar->firstControl(), keep);
}

TEST_F(NoticeBar, keysInTheBarAreNoTextOfTheEditor)
{
    reload->setFocus();
    QTest::keyClicks(reload, "abc");
    QTest::keyClick(reload, Qt::Key_Delete);
    EXPECT_EQ(edit.toPlainText(), "");
    EXPECT_TRUE(bar->isVisible());
}

TEST_F(NoticeBar, escapeAndTheCloseButtonEndIt)
{
    QSignalSpy closed(bar, &MyNoticeBar::closed);
    reload->setFocus();
    QTest::keyClick(reload, Qt::Key_Escape);
    EXPECT_EQ(closed.count(), 1);
    EXPECT_FALSE(bar->isVisible());
    EXPECT_TRUE(edit.hasFocus());
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.isNull(); }, 60000));

    QPointer<MyNoticeBar> other(new MyNoticeBar(MyNoticeBar::eGradeInfo, "text", &edit));
    other->show();
    QTest::mouseClick(other->findChild<QPushButton*>("noticeBarClose"), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return other.isNull(); }, 60000));
}

TEST_F(NoticeBar, aLongTextWrapsAndDoesNotWidenTheBar)
{
    bar->setText(QString("word ").repeated(200));
    EXPECT_LT(bar->minimumSizeHint().width(), 500);
    EXPECT_GT(bar->heightForWidth(500), 3 * bar->fontMetrics().height());
}

} // namespace
