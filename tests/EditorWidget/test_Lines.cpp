// Commands for whole lines, and the keys that lead to them.

#include "EditorFixture.h"

#include <random>

namespace {

using nsModEditor::EditorWidget;

class Lines : public EditorTest
{
protected:
    /// One undo leads back to the text, one redo to what it was.
    void expectOneStep(const QString& before)
    {
        const QString after = text();
        editor->undo();
        EXPECT_EQ(text(), before);
        EXPECT_FALSE(editor->isUndoAvailable());
        editor->redo();
        EXPECT_EQ(text(), after);
    }
};

TEST_F(Lines, TabKeyInsertsATabAtTheCursor)
{
    editor->setText("abcd");
    moveTo(0, 2);
    QTest::keyClick(editor.get(), Qt::Key_Tab);
    EXPECT_EQ(text(), QString("ab\tcd"));
    EXPECT_EQ(column(), 3);
}

TEST_F(Lines, IndentReplacesASelectionInsideOneLine)
{
    editor->setText("abcd\nef");
    select(1, 3);
    QTest::keyClick(editor.get(), Qt::Key_Tab);
    EXPECT_EQ(text(), QString("a\td\nef"));
    EXPECT_FALSE(editor->hasSelection());
    expectOneStep("abcd\nef");
}

TEST_F(Lines, IndentOfSeveralLinesKeepsTheSelection)
{
    editor->setText("one\ntwo\nthree\nfour");
    select(1, 9); // into "three"
    editor->indent();
    EXPECT_EQ(text(), QString("\tone\n\ttwo\n\tthree\nfour"));
    EXPECT_EQ(anchor(), 1);
    EXPECT_EQ(pos(), 12);
    expectOneStep("one\ntwo\nthree\nfour");
}

TEST_F(Lines, IndentLeavesALineAtWhoseStartTheSelectionEnds)
{
    editor->setText("one\ntwo");
    select(0, 4);
    editor->indent();
    EXPECT_EQ(text(), QString("\tone\ntwo"));
}

TEST_F(Lines, DeindentTakesOneBlankAndKeepsTheCursorInTheText)
{
    editor->setText("  one\n\ttwo\nthree");
    moveTo(0, 3);
    QTest::keyClick(editor.get(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(text(), QString(" one\n\ttwo\nthree"));
    EXPECT_EQ(column(), 2);
    moveTo(1, 0);
    editor->deindent();
    EXPECT_EQ(text(), QString(" one\ntwo\nthree"));
    EXPECT_EQ(column(), 0);
    moveTo(2, 2);
    editor->deindent();
    EXPECT_EQ(text(), QString(" one\ntwo\nthree"));
    EXPECT_EQ(column(), 2);
}

TEST_F(Lines, DeindentOfSeveralLines)
{
    const QString before = "\tone\n two\nthree\n\tfour";
    editor->setText(before);
    select(2, 17); // up to the position after the tab of the last line
    editor->deindent();
    EXPECT_EQ(text(), QString("one\ntwo\nthree\nfour"));
    EXPECT_EQ(anchor(), 2);
    EXPECT_EQ(pos(), 14);
    expectOneStep(before);
}

TEST_F(Lines, OtherTabKeysAreSwallowed)
{
    editor->setText("abc");
    for (const auto modifiers : {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::AltModifier),
                                 Qt::ControlModifier | Qt::ShiftModifier}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Tab, modifiers, "\t");
        event.ignore();
        QApplication::sendEvent(editor.get(), &event);
        EXPECT_TRUE(event.isAccepted());
        EXPECT_EQ(text(), QString("abc"));
    }
    EXPECT_TRUE(editor->hasFocus());
}

TEST_F(Lines, CommentOutWalksDownTheFile)
{
    editor->setText("one\n  two\nthree");
    moveTo(0, 2);
    editor->commentOut();
    EXPECT_EQ(text(), QString(";one\n  two\nthree"));
    EXPECT_EQ(editor->cursorLine(), 1);
    EXPECT_EQ(column(), 0);
    editor->commentOut();
    editor->commentOut();
    EXPECT_EQ(text(), QString(";one\n;  two\n;three"));
    EXPECT_EQ(editor->cursorLine(), 2);
}

TEST_F(Lines, CommentOutOfASelectionLeavesALineAtWhoseStartItEnds)
{
    editor->setText("one\ntwo\nthree");
    select(1, 8);
    editor->commentOut();
    EXPECT_EQ(text(), QString(";one\n;two\nthree"));
    EXPECT_EQ(anchor(), 1);
    EXPECT_EQ(pos(), 10);
    expectOneStep("one\ntwo\nthree");
}

TEST_F(Lines, CommentOutOfASelectionInsideOneLine)
{
    editor->setText("one\ntwo");
    select(1, 2);
    editor->commentOut();
    EXPECT_EQ(text(), QString(";one\ntwo"));
    EXPECT_EQ(anchor(), 1);
    EXPECT_EQ(pos(), 3);
    EXPECT_EQ(editor->cursorLine(), 0);
}

TEST_F(Lines, CommentInRemovesTheSemicolonOnly)
{
    editor->setText("  ; word\n;;two\ncode ; remark\nlast");
    moveTo(0, 0);
    editor->commentIn();
    EXPECT_EQ(text(), QString("   word\n;;two\ncode ; remark\nlast"));
    EXPECT_EQ(editor->cursorLine(), 1);
    editor->commentIn();
    EXPECT_EQ(text(), QString("   word\n;two\ncode ; remark\nlast"));
    // A line that is no comment stays, and the cursor walks on all the same.
    editor->commentIn();
    EXPECT_EQ(text(), QString("   word\n;two\ncode ; remark\nlast"));
    EXPECT_EQ(editor->cursorLine(), 3);
}

TEST_F(Lines, CommentInOfASelection)
{
    const QString before = ";one\ntwo\n\t;three\n;four";
    editor->setText(before);
    select(0, 17);
    editor->commentIn();
    EXPECT_EQ(text(), QString("one\ntwo\n\tthree\n;four"));
    EXPECT_EQ(anchor(), 0);
    EXPECT_EQ(pos(), 15);
    expectOneStep(before);
}

TEST_F(Lines, DuplicateLineIgnoresASelection)
{
    editor->setText("one\ntwo\nthree");
    select(0, 5); // the cursor stands in "two"
    editor->duplicateLine();
    EXPECT_EQ(text(), QString("one\ntwo\ntwo\nthree"));
    EXPECT_FALSE(editor->hasSelection());
    EXPECT_EQ(editor->cursorLine(), 2);
    EXPECT_EQ(column(), 3);
    expectOneStep("one\ntwo\nthree");
}

TEST_F(Lines, MoveLineUpTakesTheCursorAlong)
{
    editor->setText("one\nlonger\nthree");
    moveTo(2, 2);
    editor->moveLineUp();
    EXPECT_EQ(text(), QString("one\nthree\nlonger"));
    EXPECT_EQ(editor->cursorLine(), 1);
    EXPECT_EQ(column(), 2);
    expectOneStep("one\nlonger\nthree");
}

TEST_F(Lines, MoveOfASelectionKeepsItsDirection)
{
    editor->setText("one\ntwo\nthree\nfour");
    select(10, 5); // from "three" back into "two"
    editor->moveLineUp();
    EXPECT_EQ(text(), QString("two\nthree\none\nfour"));
    EXPECT_EQ(anchor(), 6);
    EXPECT_EQ(pos(), 1);
    editor->moveLineDown();
    editor->moveLineDown();
    EXPECT_EQ(text(), QString("one\nfour\ntwo\nthree"));
    EXPECT_EQ(anchor(), 15);
    EXPECT_EQ(pos(), 10);
}

TEST_F(Lines, MoveLineDownIsOneStep)
{
    editor->setText("one\n\nthree");
    moveTo(0, 1);
    editor->moveLineDown();
    EXPECT_EQ(text(), QString("\none\nthree"));
    EXPECT_EQ(editor->cursorLine(), 1);
    EXPECT_EQ(column(), 1);
    expectOneStep("one\n\nthree");
}

TEST_F(Lines, MoveLeavesALineAtWhoseStartTheSelectionEnds)
{
    editor->setText("one\ntwo\nthree");
    select(4, 8);
    editor->moveLineUp();
    EXPECT_EQ(text(), QString("two\none\nthree"));
    // Back again; the end of the selection is then after the end of the text and is limited to it.
    editor->setText("one\ntwo");
    select(0, 4);
    editor->moveLineDown();
    EXPECT_EQ(text(), QString("two\none"));
    EXPECT_EQ(anchor(), 4);
    EXPECT_EQ(pos(), 7);
}

TEST_F(Lines, AtTheEdgesAMoveChangesNothingAndTakesPartInNoStep)
{
    editor->setText("one\ntwo");
    QTest::keyClicks(editor.get(), "a");
    editor->moveLineUp();
    EXPECT_EQ(text(), QString("aone\ntwo"));
    moveTo(1, 0);
    editor->moveLineDown();
    editor->commentOut();
    moveTo(0, 0);
    editor->commentOut();
    EXPECT_EQ(text(), QString(";aone\n;two"));
    // Each action is a step of its own.
    editor->undo();
    EXPECT_EQ(text(), QString("aone\n;two"));
    editor->undo();
    EXPECT_EQ(text(), QString("aone\ntwo"));
    editor->undo();
    EXPECT_EQ(text(), QString("one\ntwo"));
    EXPECT_FALSE(editor->isUndoAvailable());
    EXPECT_FALSE(editor->isModified());
    editor->redo();
    editor->redo();
    EXPECT_EQ(text(), QString("aone\n;two"));
}

TEST_F(Lines, AfterAMoveAtTheEdgeTheDocumentReportsItsChanges)
{
    editor->setText(numberedLines(300));
    editor->moveLineUp();
    editor->moveCursor(QTextCursor::End);
    editor->moveLineDown();
    moveTo(3, 0);
    QSignalSpy modified(editor.get(), &EditorWidget::modifiedChanged);
    QSignalSpy changes(editor->document(), &QTextDocument::contentsChange);
    QTest::keyClicks(editor.get(), "x");
    EXPECT_EQ(modified.count(), 1);
    // The typed letter and not the whole document: highlighting works on what is reported here.
    ASSERT_GE(changes.count(), 1);
    for (const QList<QVariant>& change : qAsConst(changes))
        EXPECT_LE(change.at(2).toInt(), 10);
}

class Random : public Lines, public ::testing::WithParamInterface<int>
{
};

/// Whatever is done, the document can be painted at any time, and the steps lead back to where they began.
TEST_P(Random, BearsEverything)
{
    std::mt19937 random(static_cast<unsigned>(GetParam()));
    const QString before = numberedLines(30);
    editor->setText(before);
    editor->setAutoReturnIndentEn(true);
    editor->setSelectionHighlightEn(true);
    editor->setDynamicLineWrapEn(GetParam() % 2 == 0);
    const auto key = [this](Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        return [this, code, modifiers] { QTest::keyClick(editor.get(), code, modifiers); };
    };
    QList<std::function<void()>> steps{
        [&] { QTest::keyClicks(editor.get(), "ab c"); },
        key(Qt::Key_Return),
        key(Qt::Key_Backspace),
        key(Qt::Key_Delete, Qt::ControlModifier),
        key(Qt::Key_Down, Qt::ShiftModifier),
        key(Qt::Key_Up),
        key(Qt::Key_PageDown),
        key(Qt::Key_PageUp, Qt::ShiftModifier),
        key(Qt::Key_Tab),
        [&] { QTest::mouseClick(editor->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(60, int(random() % 300))); },
        [&] { editor->setCursorToLine(int(random() % 40)); },
        [&] { editor->cut(); },
        [&] { editor->paste(); },
        [&] { editor->insertPlainText(QString("long ").repeated(40)); },
        [&] { editor->deindent(); },
        [&] { editor->commentOut(); },
        [&] { editor->duplicateLine(); },
        [&] { editor->moveLineUp(); },
        [&] { editor->moveLineDown(); },
        [&] { editor->replaceAll("long", "l\no", false, false); },
        [&] { editor->setLineHighlighted(int(random() % 20)); },
        [&] { editor->setSimBreakpoint(int(random() % 20)); },
        [&] { editor->grab(); },
        [&] { QApplication::processEvents(); },
    };
    const auto run = [&](int count) {
        for (; count > 0; --count)
            steps.at(int(random() % unsigned(steps.size())))();
    };
    run(400);
    EXPECT_TRUE(editor->isModified());
    EXPECT_NE(text(), before);
    for (int step = 0; step < 5000 && editor->isUndoAvailable(); ++step)
        editor->undo();
    EXPECT_EQ(text(), before);
    EXPECT_FALSE(editor->isModified());
    editor->grab();
    steps << [&] { editor->undo(); } << [&] { editor->redo(); } << key(Qt::Key_Z, Qt::ControlModifier);
    run(200);
    editor->setText(before);
    EXPECT_EQ(text(), before);
    EXPECT_FALSE(editor->isModified());
}

INSTANTIATE_TEST_SUITE_P(Seeds, Random, ::testing::Range(1, 9));

TEST_F(Lines, EveryCommandStandsAnEmptyDocument)
{
    editor->setText(QString());
    editor->deindent();
    editor->commentIn();
    EXPECT_EQ(text(), QString());
    editor->commentOut();
    EXPECT_EQ(text(), QString(";"));
    editor->commentIn();
    editor->indent();
    editor->duplicateLine();
    EXPECT_EQ(text(), QString("\t\n\t"));
    editor->selectAll();
    editor->deindent();
    EXPECT_EQ(text(), QString("\n"));
    editor->setText(QString());
    editor->moveLineUp();
    editor->moveLineDown();
    editor->undo();
    EXPECT_EQ(text(), QString());
}

} // namespace
