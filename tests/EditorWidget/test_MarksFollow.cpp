// Marks that follow their text, where the user wants it so.

#include "EditorFixture.h"

#include "LineCommands.h"

namespace {

using nsModEditor::EditorWidget;

class MarksFollow : public EditorTest
{
protected:
    void SetUp() override
    {
        EditorTest::SetUp();
        follow(true);
        editor->setText(numberedLines(10));
    }
    void follow(bool enabled)
    {
        nsModEditor::sEditorComfort_t comfort;
        comfort.marksFollowTextEn = enabled;
        editor->setComfort(comfort);
    }
    QList<int> marks() const { return editor->bookmarks(); }
    void setMarks(const QList<int>& lines)
    {
        editor->clearBookmarks();
        for (const int line : lines)
            editor->setBookmark(line);
    }
};

TEST_F(MarksFollow, StayOnTheirNumberWithoutTheSetting)
{
    follow(false);
    setMarks({3});
    moveTo(0, 0);
    QTest::keyClick(editor.get(), Qt::Key_Return);
    EXPECT_EQ(marks(), QList<int>{3});
}

TEST_F(MarksFollow, ReturnAboveAtTheStartWithinAndBelow)
{
    setMarks({3});
    moveTo(1, 2);
    QTest::keyClick(editor.get(), Qt::Key_Return);
    EXPECT_EQ(marks(), QList<int>{4});
    moveTo(4, 0);
    QTest::keyClick(editor.get(), Qt::Key_Return);
    EXPECT_EQ(marks(), QList<int>{5});
    EXPECT_EQ(editor->document()->findBlockByNumber(5).text(), QString("line 3"));
    moveTo(5, 4);
    QTest::keyClick(editor.get(), Qt::Key_Return);
    EXPECT_EQ(marks(), QList<int>{5});
    moveTo(8, 0);
    QTest::keyClick(editor.get(), Qt::Key_Return);
    EXPECT_EQ(marks(), QList<int>{5});
    for (int i = 0; i < 4; ++i)
        editor->undo();
    EXPECT_EQ(text(), numberedLines(10));
    EXPECT_EQ(marks(), QList<int>{3});
}

TEST_F(MarksFollow, LinesThatGoTakeTheirMarksAlong)
{
    setMarks({2, 3, 6});
    moveTo(3, 1);
    editor->lineCommands().deleteLines();
    EXPECT_EQ(marks(), (QList<int>{2, 5}));
    // From within a line into another one, whose rest joins it.
    setMarks({1, 2, 3, 4});
    const QTextBlock first = editor->document()->findBlockByNumber(1);
    const QTextBlock last = editor->document()->findBlockByNumber(3);
    select(first.position() + 2, last.position() + 2);
    QTest::keyClick(editor.get(), Qt::Key_Delete);
    EXPECT_EQ(marks(), (QList<int>{1, 2}));
}

TEST_F(MarksFollow, JoinedLinesShareOneMark)
{
    setMarks({1, 2, 3});
    moveTo(2, 0);
    QTest::keyClick(editor.get(), Qt::Key_Backspace);
    EXPECT_EQ(marks(), (QList<int>{1, 2}));
}

TEST_F(MarksFollow, PasteOfLinesAndOneThatReplacesSome)
{
    setMarks({0, 5});
    moveTo(1, 0);
    editor->insertText("a\nb\nc\n");
    EXPECT_EQ(marks(), (QList<int>{0, 8}));
    select(0, editor->document()->findBlockByNumber(4).position());
    editor->insertText("x\n");
    EXPECT_EQ(marks(), (QList<int>{0, 5}));
    EXPECT_EQ(editor->document()->findBlockByNumber(5).text(), QString("line 5"));
}

TEST_F(MarksFollow, MovedLinesTakeThemAlong)
{
    setMarks({2, 4});
    moveTo(2, 0);
    editor->moveLineDown();
    EXPECT_EQ(marks(), (QList<int>{3, 4}));
    editor->moveLineDown();
    EXPECT_EQ(marks(), (QList<int>{4, 3}));
    select(editor->document()->findBlockByNumber(3).position(), editor->document()->findBlockByNumber(5).position());
    editor->moveLineUp();
    EXPECT_EQ(marks(), (QList<int>{3, 2}));
    EXPECT_EQ(editor->document()->findBlockByNumber(3).text(), QString("line 2"));
    EXPECT_EQ(editor->document()->findBlockByNumber(2).text(), QString("line 4"));
    // At the edge nothing moves.
    setMarks({0});
    moveTo(0, 0);
    editor->moveLineUp();
    EXPECT_EQ(marks(), QList<int>{0});
}

TEST_F(MarksFollow, UndoAndRedoOfAMovedLineTakeThemAlong)
{
    setMarks({2, 4});
    moveTo(2, 0);
    editor->moveLineDown();
    editor->moveLineDown();
    EXPECT_EQ(marks(), (QList<int>{4, 3}));
    editor->undo();
    EXPECT_EQ(marks(), (QList<int>{3, 4}));
    editor->undo();
    EXPECT_EQ(marks(), (QList<int>{2, 4}));
    editor->redo();
    editor->redo();
    EXPECT_EQ(marks(), (QList<int>{4, 3}));
    EXPECT_EQ(editor->document()->findBlockByNumber(4).text(), QString("line 2"));
    // The same move once more in place of its redo is one move.
    editor->undo();
    editor->undo();
    moveTo(2, 0);
    editor->moveLineDown();
    EXPECT_EQ(marks(), (QList<int>{3, 4}));
    editor->undo();
    EXPECT_EQ(marks(), (QList<int>{2, 4}));
    // Several lines, upwards.
    select(editor->document()->findBlockByNumber(4).position(), editor->document()->findBlockByNumber(6).position());
    editor->moveLineUp();
    EXPECT_EQ(marks(), (QList<int>{2, 3}));
    editor->undo();
    EXPECT_EQ(marks(), (QList<int>{2, 4}));
    // Another change of as many steps leaves them.
    QTextCursor cursor(editor->document()->findBlockByNumber(2));
    cursor.insertText("x");
    editor->undo();
    EXPECT_EQ(marks(), (QList<int>{2, 4}));
}

TEST_F(MarksFollow, BreakpointsAndTheStartMarkToo)
{
    editor->setSimBreakpoint(4);
    editor->setSimStartPointer(6);
    QSignalSpy changed(editor.get(), &EditorWidget::simBreakpointChanged);
    moveTo(0, 0);
    QTest::keyClick(editor.get(), Qt::Key_Return);
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{5});
    int start = 0;
    EXPECT_TRUE(editor->simStartPointer(&start));
    EXPECT_EQ(start, 7);
    EXPECT_EQ(changed.count(), 1);
    // Typing within a line reports nothing.
    QTest::keyClicks(editor.get(), "abc");
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(MarksFollow, ATextThatIsReplacedAsAWholeLeavesThemOnTheirNumbers)
{
    setMarks({3});
    editor->setText("a\nb");
    EXPECT_EQ(marks(), QList<int>{3});
    editor->setText(numberedLines(10));
    QTest::keyClick(editor.get(), Qt::Key_Return);
    EXPECT_EQ(marks(), QList<int>{4});
}

TEST_F(MarksFollow, FormattingAndSortingLeaveThemOnTheirLines)
{
    setMarks({3});
    editor->selectAll();
    editor->lineCommands().sortLines();
    editor->lineCommands().changeLines(true, [](const QString& line) { return line + "x"; });
    EXPECT_EQ(marks(), QList<int>{3});
}

} // namespace
