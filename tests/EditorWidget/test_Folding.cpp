// Folding of conditionals, namespaces and groups of the navigator.

#include "EditorFixture.h"

#include "Folding.h"
#include "LineCommands.h"

namespace {

using nsModEditor::Folding;
using nsModEditor::sFoldRange_t;

class Folds : public EditorTest
{
protected:
    void SetUp() override
    {
        EditorTest::SetUp();
        editor->setText("#IFDEF A\n one\n#ELSE\n two\n two\n#ENDIF\n#NAMESPACE n\n  #ifdef B\n  x\n  #endif\n"
                        "#ENDNAMESPACE\n; \\navGrpBegin \"g\"\nlast\n; \\navGrpEnd\nend");
        folding = editor->folding();
    }
    QList<int> hidden() const
    {
        QList<int> lines;
        for (QTextBlock block = editor->document()->begin(); block.isValid(); block = block.next()) {
            if (!block.isVisible())
                lines.append(block.blockNumber());
        }
        return lines;
    }

    Folding* folding = nullptr;
};

TEST_F(Folds, rangesAreThoseOfTheLanguage)
{
    EXPECT_EQ(Folding::rangesOf(editor->document()),
              (QVector<sFoldRange_t>{{0, 1}, {2, 5}, {6, 10}, {7, 9}, {11, 13}}));
    // What has no end, or no beginning, is none.
    editor->setText("#ENDIF\n#ENDNAMESPACE\n#IFDEF A\n#NAMESPACE b\n#ENDNAMESPACE\n;\\navGrpEnd");
    EXPECT_EQ(Folding::rangesOf(editor->document()), (QVector<sFoldRange_t>{{3, 4}}));
}

TEST_F(Folds, toggleHidesTheInnermostRangeAndShowsItAgain)
{
    const QString before = text();
    moveTo(8, 2);
    folding->toggle(8);
    EXPECT_EQ(hidden(), (QList<int>{8, 9}));
    // The cursor has gone to the line that stays.
    EXPECT_EQ(editor->cursorLine(), 7);
    folding->toggle(6);
    EXPECT_EQ(hidden(), (QList<int>{7, 8, 9, 10}));
    folding->toggle(6);
    EXPECT_TRUE(hidden().isEmpty());
    folding->toggle(14);
    EXPECT_TRUE(hidden().isEmpty());
    EXPECT_EQ(text(), before);
    EXPECT_FALSE(editor->isModified());
    EXPECT_FALSE(editor->isUndoAvailable());
}

TEST_F(Folds, allAndNone)
{
    folding->foldAll();
    EXPECT_EQ(hidden(), (QList<int>{1, 3, 4, 5, 7, 8, 9, 10, 12, 13}));
    editor->grab();
    folding->unfoldAll();
    EXPECT_TRUE(hidden().isEmpty());
}

TEST_F(Folds, whereverTheCursorGoesIsSeen)
{
    folding->foldAll();
    editor->setCursorToLine(4);
    EXPECT_EQ(editor->cursorLine(), 4);
    EXPECT_EQ(hidden(), (QList<int>{1, 7, 8, 9, 10, 12, 13}));
    editor->setCursorToLine("last", 0);
    EXPECT_EQ(editor->cursorLine(), 12);
    EXPECT_EQ(hidden(), (QList<int>{1, 7, 8, 9, 10}));
    editor->setLineHighlighted(8);
    EXPECT_EQ(hidden(), QList<int>{1});
    EXPECT_TRUE(editor->find("one", false, false, false, nsModEditor::EditorWidget::eFindOriginStart));
    EXPECT_TRUE(hidden().isEmpty());
    folding->foldAll();
    editor->setCursorToLine(14);
    EXPECT_EQ(editor->cursorLine(), 14);
    editor->setCursorToLine(6);
    EXPECT_EQ(editor->cursorLine(), 6);
    EXPECT_EQ(hidden().size(), 10);
}

TEST_F(Folds, keysGoOverThem)
{
    folding->foldAll();
    moveTo(0, 0);
    QTest::keyClick(editor.get(), Qt::Key_Down);
    EXPECT_EQ(editor->cursorLine(), 2);
    QTest::keyClick(editor.get(), Qt::Key_Down);
    EXPECT_EQ(editor->cursorLine(), 6);
    EXPECT_EQ(hidden().size(), 10);
}

TEST_F(Folds, editsAtTheirEdgesShowThem)
{
    const QString before = text();
    folding->toggle(0);
    moveTo(2, 0);
    QTest::keyClick(editor.get(), Qt::Key_Backspace);
    EXPECT_TRUE(hidden().isEmpty());
    editor->undo();
    EXPECT_EQ(text(), before);
    folding->toggle(0);
    moveTo(0, 0);
    editor->lineCommands().deleteLines();
    EXPECT_TRUE(hidden().isEmpty());
    editor->undo();
    folding->toggle(0);
    select(0, editor->document()->findBlockByNumber(1).position());
    QTest::keyClick(editor.get(), Qt::Key_Delete);
    EXPECT_FALSE(hidden().contains(0));
    editor->grab();
    editor->undo();
    EXPECT_EQ(text(), before);
    editor->grab();
}

TEST_F(Folds, aClickOnTheMarkUnfolds)
{
    folding->toggle(6);
    EXPECT_EQ(hidden().size(), 4);
    QTextCursor end(editor->document()->findBlockByNumber(6));
    end.movePosition(QTextCursor::EndOfBlock);
    QTest::mouseClick(editor->viewport(), Qt::LeftButton, Qt::NoModifier,
                      editor->cursorRect(end).center() + QPoint(10, 0));
    EXPECT_TRUE(hidden().isEmpty());
}

TEST_F(Folds, theMarginShowsTheNumbersOfTheLinesThatAreSeen)
{
    folding->toggle(0);
    const int y = editor->cursorRect(QTextCursor(editor->document()->findBlockByNumber(2))).center().y();
    EXPECT_EQ(editor->blockNumberFromPos(y), 2);
    editor->setText("new");
    EXPECT_TRUE(hidden().isEmpty());
}

TEST_F(Folds, aColumnOverThemShowsThem)
{
    folding->toggle(2);
    moveTo(2, 0);
    QTest::keyClick(editor.get(), Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_TRUE(hidden().isEmpty());
}

} // namespace
