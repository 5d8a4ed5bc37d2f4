// Commands for lines beyond those of the edit menu: comments, deleting, joining, sorting, case, blanks, and the keys
// that help with indents.

#include "EditorFixture.h"

#include "Brackets.h"
#include "GotoLineField.h"
#include "LineCommands.h"

#include <QLineEdit>

namespace {

using nsModEditor::bracketPairAt;
using nsModEditor::GotoLineField;

class MoreLines : public EditorTest
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
    void setBlanks(bool smartHome = false)
    {
        nsModEditor::sEditorComfort_t comfort;
        comfort.indentWithBlanks = true;
        comfort.smartHomeEn = smartHome;
        editor->setComfort(comfort);
    }
    nsModEditor::LineCommands commands() { return editor->lineCommands(); }
};

TEST_F(MoreLines, TabInsertsBlanksUpToTheNextStop)
{
    setBlanks();
    editor->setText("abcd\nef");
    moveTo(0, 3);
    QTest::keyClick(editor.get(), Qt::Key_Tab);
    EXPECT_EQ(text(), QString("abc d\nef"));
    moveTo(1, 0);
    QTest::keyClick(editor.get(), Qt::Key_Tab);
    EXPECT_EQ(text(), QString("abc d\n    ef"));
}

TEST_F(MoreLines, IndentAndDeindentOfSeveralLinesWithBlanks)
{
    setBlanks();
    const QString before = "one\n\n  two\n\tthree";
    editor->setText(before);
    editor->selectAll();
    QTest::keyClick(editor.get(), Qt::Key_Tab);
    EXPECT_EQ(text(), QString("    one\n\n      two\n    \tthree"));
    expectOneStep(before);
    editor->selectAll();
    QTest::keyClick(editor.get(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(text(), QString("one\n\n  two\n\tthree"));
    editor->selectAll();
    QTest::keyClick(editor.get(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(text(), QString("one\n\ntwo\nthree"));
}

TEST_F(MoreLines, BackspaceTakesAnIndent)
{
    setBlanks();
    editor->setText("          x");
    moveTo(0, 10);
    for (const int expected : {8, 4, 0, 0}) {
        QTest::keyClick(editor.get(), Qt::Key_Backspace);
        EXPECT_EQ(column(), expected);
    }
    EXPECT_EQ(text(), QString("x"));
    editor->setText("ab  ");
    moveTo(0, 4);
    QTest::keyClick(editor.get(), Qt::Key_Backspace);
    EXPECT_EQ(text(), QString("ab "));
    // Blanks after a tab, and then the tab.
    editor->setText("\t  x");
    moveTo(0, 3);
    QTest::keyClick(editor.get(), Qt::Key_Backspace);
    EXPECT_EQ(text(), QString("\tx"));
    QTest::keyClick(editor.get(), Qt::Key_Backspace);
    EXPECT_EQ(text(), QString("x"));
}

TEST_F(MoreLines, BackspaceWithoutTheSettingTakesOneCharacter)
{
    editor->setText("        x");
    moveTo(0, 8);
    QTest::keyClick(editor.get(), Qt::Key_Backspace);
    EXPECT_EQ(column(), 7);
}

TEST_F(MoreLines, HomeGoesToTheFirstWordWithItsSettingOnly)
{
    editor->setText("    word");
    moveTo(0, 6);
    QTest::keyClick(editor.get(), Qt::Key_Home);
    EXPECT_EQ(column(), 0);
    setBlanks(true);
    moveTo(0, 6);
    for (const int expected : {4, 0, 4}) {
        QTest::keyClick(editor.get(), Qt::Key_Home);
        EXPECT_EQ(column(), expected);
    }
    moveTo(0, 6);
    QTest::keyClick(editor.get(), Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(anchor(), 6);
    EXPECT_EQ(pos(), 4);
}

TEST_F(MoreLines, ToggleCommentAtTheSmallestIndentAndBack)
{
    const QString before = "    one\n      two\n\n    ;three";
    editor->setText(before);
    editor->selectAll();
    commands().toggleComment();
    EXPECT_EQ(text(), QString("    ; one\n    ;   two\n\n    ; ;three"));
    expectOneStep(before);
    editor->selectAll();
    commands().toggleComment();
    EXPECT_EQ(text(), before);
}

TEST_F(MoreLines, ToggleCommentOfTheCursorsLine)
{
    editor->setText(";one\n  two\n");
    commands().toggleComment();
    EXPECT_EQ(text(), QString("one\n  two\n"));
    moveTo(1, 4);
    commands().toggleComment();
    EXPECT_EQ(text(), QString("one\n  ; two\n"));
    EXPECT_EQ(column(), 6);
    moveTo(2, 0);
    commands().toggleComment();
    EXPECT_EQ(text(), QString("one\n  ; two\n; "));
}

TEST_F(MoreLines, DeleteLinesAtTheStartTheMiddleAndTheEnd)
{
    editor->setText("one\ntwo\nthree\nfour");
    moveTo(1, 2);
    commands().deleteLines();
    EXPECT_EQ(text(), QString("one\nthree\nfour"));
    EXPECT_EQ(editor->cursorLine(), 1);
    EXPECT_EQ(column(), 2);
    expectOneStep("one\ntwo\nthree\nfour");
    moveTo(2, 3);
    commands().deleteLines();
    EXPECT_EQ(text(), QString("one\nthree"));
    EXPECT_EQ(editor->cursorLine(), 1);
    select(0, 4);
    commands().deleteLines();
    EXPECT_EQ(text(), QString("three"));
    commands().deleteLines();
    EXPECT_EQ(text(), QString());
    commands().deleteLines();
    EXPECT_EQ(text(), QString());
}

TEST_F(MoreLines, JoinLinesLeavesOneBlank)
{
    const QString before = "one  \n\t two\n\nthree";
    editor->setText(before);
    commands().joinLines();
    EXPECT_EQ(text(), QString("one two\n\nthree"));
    EXPECT_EQ(column(), 3);
    expectOneStep(before);
    editor->selectAll();
    commands().joinLines();
    EXPECT_EQ(text(), QString("one two three"));
    moveTo(0, 1);
    commands().joinLines();
    EXPECT_EQ(text(), QString("one two three"));
}

TEST_F(MoreLines, SortLinesNeedsSeveral)
{
    const QString before = "b\nC\na\nB\nlast";
    editor->setText(before);
    commands().sortLines();
    EXPECT_EQ(text(), before);
    select(0, 8);
    commands().sortLines();
    EXPECT_EQ(text(), QString("a\nB\nb\nC\nlast"));
    EXPECT_EQ(anchor(), 0);
    EXPECT_EQ(pos(), 7);
    expectOneStep(before);
}

TEST_F(MoreLines, CaseOfTheSelectionOrTheWord)
{
    editor->setText(QString::fromUtf8("load s0, stra\u00dfe"));
    moveTo(0, 2);
    commands().changeCase(true);
    EXPECT_EQ(text(), QString::fromUtf8("LOAD s0, stra\u00dfe"));
    EXPECT_EQ(column(), 2);
    select(9, 15);
    commands().changeCase(true);
    EXPECT_EQ(text(), QString::fromUtf8("LOAD s0, STRASSE"));
    EXPECT_EQ(editor->textCursor().selectedText(), QString("STRASSE"));
    select(16, 0);
    commands().changeCase(false);
    EXPECT_EQ(text(), QString("load s0, strasse"));
    EXPECT_EQ(anchor(), 16);
    EXPECT_EQ(pos(), 0);
}

TEST_F(MoreLines, WhatIsNoBlankOfOneByteIsNoBlank)
{
    // Bytes of another encoding, read as what they are not: the second half of a character, or three dots.
    const QString half = QString("; \u00a4") + QChar(0xa0);
    const QString dots = QString("; wait") + QChar(0x85);
    editor->setText(half + "  \n" + dots + "\t\n" + QChar(0x3000));
    commands().removeTrailingBlanks(true);
    EXPECT_EQ(editor->text(), half + "\n" + dots + "\n" + QChar(0x3000));
    moveTo(0, 0);
    commands().joinLines();
    EXPECT_EQ(editor->text(), half + " " + dots + "\n" + QChar(0x3000));
}

TEST_F(MoreLines, TrailingBlanks)
{
    const QString before = "one  \n\t\ntwo \\  \nthree ";
    editor->setText(before);
    moveTo(0, 5);
    commands().removeTrailingBlanks(false);
    EXPECT_EQ(text(), QString("one\n\t\ntwo \\  \nthree "));
    EXPECT_EQ(column(), 3);
    commands().removeTrailingBlanks(true);
    // A blank after a backslash is text.
    EXPECT_EQ(text(), QString("one\n\ntwo \\ \nthree"));
    editor->undo();
    editor->undo();
    EXPECT_EQ(text(), before);
}

TEST_F(MoreLines, CombiningMarksAndSurrogatesStayWhole)
{
    const QString face = QString::fromUtf8("\xf0\x9f\x98\x80");
    editor->setText("abcdef\n" + face + "e\u0301x");
    moveTo(0, 1);
    commands().deleteLines();
    // The second half of the character is no place for a cursor.
    EXPECT_EQ(column(), 0);
    commands().toggleComment();
    commands().changeCase(true);
    commands().toggleComment();
    EXPECT_EQ(text().left(2), face);
}

TEST_F(MoreLines, ReadOnlyTextStays)
{
    const QString before = "b  \n  a\nload (x)";
    editor->setText(before);
    setBlanks(true);
    editor->setLocked(true);
    editor->selectAll();
    commands().toggleComment();
    commands().deleteLines();
    commands().joinLines();
    commands().sortLines();
    commands().changeCase(true);
    commands().removeTrailingBlanks(true);
    commands().changeLines(true, [](const QString&) { return QString("x"); });
    EXPECT_FALSE(commands().removeIndent());
    QTest::keyClick(editor.get(), Qt::Key_Backspace);
    QTest::keyClick(editor.get(), Qt::Key_Tab);
    EXPECT_EQ(text(), before);
    EXPECT_FALSE(editor->isModified());
}

TEST_F(MoreLines, EmptyDocument)
{
    editor->setText(QString());
    commands().deleteLines();
    commands().joinLines();
    commands().sortLines();
    commands().changeCase(true);
    commands().removeTrailingBlanks(true);
    commands().changeLines(true, [](const QString& line) { return line; });
    EXPECT_EQ(text(), QString());
    EXPECT_FALSE(editor->isModified());
    commands().toggleComment();
    EXPECT_EQ(text(), QString("; "));
}

TEST_F(MoreLines, ChangedLinesKeepTheCursorsPlace)
{
    editor->setText("one\ntwo\nthree");
    select(5, 9);
    commands().changeLines(true, [](const QString& line) { return line.toUpper(); });
    EXPECT_EQ(text(), QString("ONE\nTWO\nTHREE"));
    EXPECT_EQ(anchor(), 5);
    EXPECT_EQ(pos(), 9);
    expectOneStep("one\ntwo\nthree");
}

TEST_F(MoreLines, BracketsHaveTheirPartnerInTheSameLineAndKind)
{
    const auto partner = [](const QString& line, int position) { return bracketPairAt(line, position).partner; };
    EXPECT_EQ(partner("f(a(b)c)", 1), 7);
    EXPECT_EQ(partner("f(a(b)c)", 8), 1); // before the cursor
    EXPECT_EQ(partner("f(a(b)c)", 3), 5);
    EXPECT_EQ(partner("(a \")\" )", 0), 7);
    EXPECT_EQ(partner("(a ; )", 0), -1);
    EXPECT_EQ(partner("x ; (a)", 4), 6);
    EXPECT_EQ(partner("('\\)')", 0), 5);
    EXPECT_EQ(partner("(]", 0), -1);
    EXPECT_EQ(partner("", 0), -1);
}

TEST_F(MoreLines, GotoLineTakesLineAndColumn)
{
    editor->setText("one\n\ttwo\nthree");
    EXPECT_TRUE(GotoLineField::goTo(editor.get(), "2"));
    EXPECT_EQ(editor->cursorLine(), 1);
    EXPECT_EQ(column(), 0);
    // Columns are those of the screen.
    EXPECT_TRUE(GotoLineField::goTo(editor.get(), "2:6"));
    EXPECT_EQ(column(), 2);
    EXPECT_TRUE(GotoLineField::goTo(editor.get(), "999999999:999999999"));
    EXPECT_EQ(pos(), text().size());
    EXPECT_TRUE(GotoLineField::goTo(editor.get(), "0"));
    EXPECT_EQ(editor->cursorLine(), 0);
    EXPECT_FALSE(GotoLineField::goTo(editor.get(), ""));
    EXPECT_FALSE(GotoLineField::goTo(editor.get(), ":3"));
}

TEST_F(MoreLines, GotoLineFieldByKeys)
{
    editor->setText(numberedLines(50));
    GotoLineField* field = GotoLineField::open(editor.get());
    auto* edit = field->findChild<QLineEdit*>("editGotoLine");
    ASSERT_TRUE(QTest::qWaitFor([&] { return edit->hasFocus(); }));
    QTest::keyClicks(edit, "17x");
    EXPECT_EQ(edit->text(), QString("17"));
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(editor->cursorLine(), 16);
    EXPECT_TRUE(editor->hasFocus());
    EXPECT_FALSE(editor->isModified());
    // A second time, and closed without a jump.
    field = GotoLineField::open(editor.get());
    edit = field->findChild<QLineEdit*>("editGotoLine");
    EXPECT_EQ(edit->text(), QString("17"));
    QTest::keyClicks(edit, "3");
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(editor->cursorLine(), 16);
    EXPECT_TRUE(editor->hasFocus());
}

/// What is painted above the text changes nothing in it.
TEST_F(MoreLines, RulerBlanksAndBracketsAreSeen)
{
    editor->setText("\tload (a b)");
    moveTo(0, 0);
    const QImage plain = editor->grab().toImage();
    nsModEditor::sEditorComfort_t comfort;
    comfort.rulerColumn = 30;
    editor->setComfort(comfort);
    const QImage ruler = editor->grab().toImage();
    EXPECT_NE(ruler, plain);
    comfort.rulerColumn = 0;
    comfort.showBlanksEn = true;
    editor->setComfort(comfort);
    const QImage blanks = editor->grab().toImage();
    EXPECT_NE(blanks, plain);
    EXPECT_NE(blanks, ruler);
    comfort.showBlanksEn = false;
    editor->setComfort(comfort);
    EXPECT_EQ(editor->grab().toImage(), plain);
    EXPECT_EQ(editor->text(), QString("\tload (a b)"));
}

} // namespace
