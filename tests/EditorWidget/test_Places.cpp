// The cursor's way to lines, the flagged line, marks of what is selected, searching.

#include "EditorFixture.h"

#include <QHelpEvent>
#include <QTextLayout>

namespace {

using nsModEditor::EditorWidget;

class Places : public EditorTest
{
protected:
    /// Stretches of a line with a yellow ground, as "start+length".
    QStringList marked(int line) const
    {
        QStringList stretches;
        const QTextBlock block = editor->document()->findBlockByNumber(line);
        for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
            if (range.format.background().color() == QColor(Qt::yellow))
                stretches.append(QString("%1+%2").arg(range.start).arg(range.length));
        }
        return stretches;
    }
};

TEST_F(Places, TheCursorGoesToLines)
{
    editor->setText(numberedLines(300));
    editor->setCursorToLine(200);
    EXPECT_EQ(editor->cursorLine(), 200);
    const int middle = editor->viewport()->height() / 2;
    EXPECT_LT(qAbs(editor->cursorRect().center().y() - middle), 2 * editor->fontMetrics().height());
    editor->setCursorToLine(20);
    EXPECT_EQ(editor->cursorLine(), 20);
    editor->setCursorToLine(5000);
    EXPECT_EQ(editor->cursorLine(), 299);
    editor->setCursorToLine(-7);
    EXPECT_EQ(editor->cursorLine(), 0);
}

TEST_F(Places, UpwardsWrappedLinesCountByTheScreen)
{
    editor->setDynamicLineWrapEn(true);
    editor->setText("first\nsecond\n" + QString("word ").repeated(100) + "\nlast");
    ASSERT_GT(editor->document()->findBlockByNumber(2).layout()->lineCount(), 3);
    editor->setCursorToLine(3);
    EXPECT_EQ(editor->cursorLine(), 3);
    editor->setCursorToLine(1);
    EXPECT_EQ(editor->cursorLine(), 2);
}

TEST_F(Places, ATextThatOccursOnceWins)
{
    editor->setText("one\ntwo\nthree tag here\nfour\nfour");
    editor->setCursorToLine("Tag", 0);
    EXPECT_EQ(editor->cursorLine(), 2);
    EXPECT_EQ(editor->textCursor().selectedText(), QString("tag"));
    editor->setCursorToLine("four", 1);
    EXPECT_EQ(editor->cursorLine(), 1);
    EXPECT_FALSE(editor->hasSelection());
    editor->setCursorToLine("absent", 3);
    EXPECT_EQ(editor->cursorLine(), 3);
    editor->setCursorToLine("", 2);
    EXPECT_EQ(editor->cursorLine(), 2);
}

TEST_F(Places, PositionsAreCutToTheText)
{
    editor->setText("one\ntwo");
    editor->setCursorPos(5);
    EXPECT_EQ(editor->cursorPos(), 5);
    editor->setCursorPos(99);
    EXPECT_EQ(editor->cursorPos(), 7);
    editor->setCursorPos(-3);
    EXPECT_EQ(editor->cursorPos(), 0);
}

TEST_F(Places, OneLineIsFlagged)
{
    editor->setText(numberedLines(50));
    editor->setHighlightBgColor(Qt::cyan);
    editor->setCursorBgColor(Qt::magenta);
    ASSERT_EQ(editor->extraSelections().size(), 1);
    editor->setLineHighlighted(10);
    EXPECT_EQ(editor->cursorLine(), 10);
    moveTo(12, 3);
    QList<QTextEdit::ExtraSelection> shown = editor->extraSelections();
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[0].cursor.blockNumber(), 12);
    EXPECT_EQ(shown[0].format.background().color(), QColor(Qt::magenta));
    EXPECT_EQ(shown[1].cursor.blockNumber(), 10);
    EXPECT_EQ(shown[1].format.background().color(), QColor(Qt::cyan));
    EXPECT_TRUE(shown[1].format.boolProperty(QTextFormat::FullWidthSelection));
    const QImage image = editor->viewport()->grab().toImage();
    EXPECT_EQ(image.pixelColor(image.width() - 30, marginY(12)), QColor(Qt::magenta));
    EXPECT_EQ(image.pixelColor(image.width() - 30, marginY(10)), QColor(Qt::cyan));

    editor->setLineHighlighted(20);
    ASSERT_EQ(editor->extraSelections().size(), 2);
    EXPECT_EQ(editor->extraSelections()[1].cursor.blockNumber(), 20);
    // Whole lines are painted, whatever is selected in them.
    moveTo(20, 1);
    QTest::keyClick(editor.get(), Qt::Key_Right, Qt::ShiftModifier);
    editor->setLineHighlighted(20);
    EXPECT_FALSE(editor->extraSelections()[0].cursor.hasSelection());
    EXPECT_FALSE(editor->extraSelections()[1].cursor.hasSelection());
    editor->clearLineHighlighted();
    EXPECT_EQ(editor->extraSelections().size(), 1);
}

TEST_F(Places, WithWrappedLinesTheFlagStandsOnItsLine)
{
    editor->setDynamicLineWrapEn(true);
    editor->setText("first\nsecond\n" + QString("word ").repeated(100) + "\nlast\n" + numberedLines(50));
    ASSERT_GT(editor->document()->findBlockByNumber(2).layout()->lineCount(), 3);
    for (const int line : {3, 1, 40, 0, 2, 3}) {
        editor->setLineHighlighted(line);
        ASSERT_EQ(editor->extraSelections().size(), 2);
        EXPECT_EQ(editor->extraSelections()[1].cursor.blockNumber(), line);
        EXPECT_EQ(editor->cursorLine(), line);
    }
    editor->setLineHighlighted(5000);
    EXPECT_EQ(editor->extraSelections()[1].cursor.blockNumber(), editor->blockCount() - 1);
    editor->setLineHighlighted(-5);
    EXPECT_EQ(editor->extraSelections()[1].cursor.blockNumber(), 0);
}

TEST_F(Places, TheFlagStaysOnItsNumberWhenTheTextIsReadAgain)
{
    editor->setText(numberedLines(50));
    editor->setLineHighlighted(10);
    editor->setText(numberedLines(60));
    ASSERT_EQ(editor->extraSelections().size(), 2);
    EXPECT_EQ(editor->extraSelections()[1].cursor.blockNumber(), 10);
    editor->setText("short");
    EXPECT_EQ(editor->extraSelections().size(), 1);
}

TEST_F(Places, WhatIsSelectedIsMarkedEverywhere)
{
    editor->setText("count = counter\nadd count, Count\nnone");
    editor->setSelectionHighlightEn(true);
    select(0, 5);
    EXPECT_EQ(marked(0), QStringList{"0+5"});
    EXPECT_EQ(marked(1), QStringList{"4+5"});
    EXPECT_TRUE(marked(2).isEmpty());
    QTest::keyClick(editor.get(), Qt::Key_Right);
    EXPECT_TRUE(marked(0).isEmpty());
    EXPECT_TRUE(marked(1).isEmpty());
    // By pattern: the plus sign repeats.
    editor->setText("ab+c abbc");
    select(0, 4);
    EXPECT_EQ(marked(0), QStringList{"5+4"});
    // Off again, nothing stays behind.
    editor->setSelectionHighlightEn(false);
    EXPECT_TRUE(marked(0).isEmpty());
    select(5, 9);
    EXPECT_TRUE(marked(0).isEmpty());
}

TEST_F(Places, InALargeDocumentTheLinesOnTheScreenAreMarkedFirst)
{
    editor->setText("count\n" + numberedLines(5000) + "\ncount");
    editor->setSelectionHighlightEn(true);
    select(0, 5);
    EXPECT_EQ(marked(0), QStringList{"0+5"});
    EXPECT_TRUE(QTest::qWaitFor([this] { return marked(5001) == QStringList{"0+5"}; }, 60000));
    select(0, 0);
    EXPECT_TRUE(marked(0).isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([this] { return marked(5001).isEmpty(); }, 60000));
    EXPECT_FALSE(editor->isModified());
}

TEST_F(Places, ATipEventMarksTheWordBelowThePointer)
{
    editor->setText("count other\ncount");
    const auto tipAt = [this](int line, int column) {
        QTextCursor cursor(editor->document()->findBlockByNumber(line));
        cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, column);
        QHelpEvent event(QEvent::ToolTip, editor->cursorRect(cursor).center(), QPoint());
        editor->handleTipEvent(&event);
    };
    tipAt(0, 2);
    EXPECT_EQ(marked(0), QStringList{"0+5"});
    EXPECT_EQ(marked(1), QStringList{"0+5"});
    tipAt(0, 8);
    EXPECT_EQ(marked(0), QStringList{"6+5"});
    EXPECT_TRUE(marked(1).isEmpty());
}

TEST_F(Places, FindBeginsWhereItIsTold)
{
    editor->setText("Word word wordy\nword");
    moveTo(0, 6);
    EXPECT_TRUE(editor->find("word", false, false, false, EditorWidget::eFindOriginCursor));
    EXPECT_EQ(editor->textCursor().selectionStart(), 10);
    EXPECT_TRUE(editor->find("word", false, true, false, EditorWidget::eFindOriginCursor));
    EXPECT_EQ(editor->textCursor().selectionStart(), 16);
    EXPECT_FALSE(editor->find("word", false, false, false, EditorWidget::eFindOriginCursor));
    EXPECT_EQ(editor->textCursor().selectionStart(), 16);
    EXPECT_TRUE(editor->find("word", true, false, false, EditorWidget::eFindOriginStart));
    EXPECT_EQ(editor->textCursor().selectionStart(), 5);
    EXPECT_TRUE(editor->find("word", false, false, true, EditorWidget::eFindOriginCursor));
    EXPECT_EQ(editor->textCursor().selectionStart(), 0);
    EXPECT_TRUE(editor->find("word", false, false, true, EditorWidget::eFindOriginEnd));
    EXPECT_EQ(editor->textCursor().selectionStart(), 16);
    EXPECT_FALSE(editor->find("", false, false, false, EditorWidget::eFindOriginStart));
}

TEST_F(Places, ReplaceNeedsASelection)
{
    editor->setText("one two");
    editor->replace("x");
    EXPECT_EQ(text(), QString("one two"));
    select(0, 3);
    editor->replace("x");
    EXPECT_EQ(text(), QString("x two"));
}

TEST_F(Places, ASelectionIsAHitOnlyAsAWhole)
{
    editor->setText("One one ones\none");
    const auto isHit = [this](int start, int end, bool caseSensitive, bool wholeWords) {
        select(start, end);
        return editor->isHit("one", caseSensitive, wholeWords);
    };
    EXPECT_TRUE(isHit(0, 3, false, false));
    EXPECT_TRUE(isHit(3, 0, false, false));
    EXPECT_FALSE(isHit(0, 3, true, false));
    EXPECT_TRUE(isHit(8, 11, true, false));
    EXPECT_FALSE(isHit(8, 11, true, true));
    EXPECT_TRUE(isHit(4, 7, true, true));
    EXPECT_FALSE(isHit(4, 6, false, false));
    EXPECT_FALSE(isHit(3, 7, false, false));
    EXPECT_FALSE(isHit(4, 4, false, false));
    EXPECT_TRUE(isHit(13, 16, true, true));
    EXPECT_FALSE(isHit(4, 16, true, true));
}

TEST_F(Places, ReplaceAllEndsAndIsOneStep)
{
    editor->setText("a b a\nA");
    EXPECT_TRUE(editor->replaceAll("a", "aa", false, false));
    EXPECT_EQ(text(), QString("aa b aa\naa"));
    editor->undo();
    EXPECT_EQ(text(), QString("a b a\nA"));
    EXPECT_TRUE(editor->replaceAll("a", "", true, true));
    EXPECT_EQ(text(), QString(" b \nA"));
    EXPECT_TRUE(editor->replaceAll("", "x", false, false));
    EXPECT_TRUE(editor->replaceAll("absent", "x", false, false));
    EXPECT_EQ(text(), QString(" b \nA"));
}

TEST_F(Places, ALabelIsFoundWhereALineBeginsWithIt)
{
    editor->setText("; loop: twice\nmain_loop:\n  loop: NOP\n  JUMP loop\n");
    editor->setCursorToLine("loop:", 0);
    EXPECT_EQ(editor->cursorLine(), 2);
    EXPECT_EQ(editor->textCursor().selectedText(), "loop:");
    // One that is gone is not sought in other names.
    editor->setText("; again\nmain_loop:\n  NOP\n");
    editor->setCursorToLine("loop:", 2);
    EXPECT_EQ(editor->cursorLine(), 2);
    EXPECT_FALSE(editor->textCursor().hasSelection());
}

} // namespace
