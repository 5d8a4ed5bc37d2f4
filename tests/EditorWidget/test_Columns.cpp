// A selected column: made by mouse and keys, and what is typed, deleted and pasted in all of its lines.

#include "EditorFixture.h"

#include "TextColumns.h"

#include <QClipboard>
#include <QMimeData>

namespace {

using nsModEditor::TextColumns;

class Columns : public EditorTest
{
protected:
    void extend(Qt::Key key, int times = 1)
    {
        for (; times > 0; --times)
            QTest::keyClick(editor.get(), key, Qt::AltModifier | Qt::ShiftModifier);
    }
    void type(const QString& text) { QTest::keyClicks(editor.get(), text); }
    static QString clipboard() { return QApplication::clipboard()->text(); }
    void dragTo(const QPoint& pixels)
    {
        QMouseEvent event(QEvent::MouseMove, pixels, editor->viewport()->mapToGlobal(pixels), Qt::NoButton,
                          Qt::LeftButton, Qt::AltModifier);
        QApplication::sendEvent(editor->viewport(), &event);
    }
    QPoint pixelAt(int line, int column) const
    {
        QTextCursor cursor(editor->document()->findBlockByNumber(line));
        cursor.setPosition(cursor.position() + column);
        return editor->cursorRect(cursor).center();
    }
};

TEST_F(Columns, TypingGoesIntoAllLinesAndOneUndoTakesALetterBack)
{
    editor->setText("abc\ndef\nghi");
    moveTo(0, 1);
    extend(Qt::Key_Down, 2);
    type("X");
    EXPECT_EQ(text(), QString("aXbc\ndXef\ngXhi"));
    type("Y");
    EXPECT_EQ(text(), QString("aXYbc\ndXYef\ngXYhi"));
    editor->undo();
    EXPECT_EQ(text(), QString("aXbc\ndXef\ngXhi"));
    editor->undo();
    EXPECT_EQ(text(), QString("abc\ndef\nghi"));
    EXPECT_FALSE(editor->isModified());
}

TEST_F(Columns, AWideOneIsReplaced)
{
    editor->setText("abcd\nefgh\nijkl");
    moveTo(2, 3);
    extend(Qt::Key_Up, 2);
    extend(Qt::Key_Left, 2);
    EXPECT_TRUE(editor->hasSelection());
    type("-");
    EXPECT_EQ(text(), QString("a-d\ne-h\ni-l"));
    editor->undo();
    EXPECT_EQ(text(), QString("abcd\nefgh\nijkl"));
    EXPECT_FALSE(editor->isUndoAvailable());
}

TEST_F(Columns, ShortLinesAreFilledUp)
{
    editor->setText("abcdef\nx\n\nabcdef");
    moveTo(0, 4);
    extend(Qt::Key_Down, 3);
    type(";");
    EXPECT_EQ(text(), QString("abcd;ef\nx   ;\n    ;\nabcd;ef"));
}

TEST_F(Columns, BackspaceAndDelete)
{
    editor->setText("abc\nd\nefg");
    moveTo(0, 2);
    extend(Qt::Key_Down, 2);
    QTest::keyClick(editor.get(), Qt::Key_Backspace);
    EXPECT_EQ(text(), QString("ac\nd\neg"));
    QTest::keyClick(editor.get(), Qt::Key_Delete);
    EXPECT_EQ(text(), QString("a\nd\ne"));
    QTest::keyClick(editor.get(), Qt::Key_Backspace);
    QTest::keyClick(editor.get(), Qt::Key_Backspace);
    EXPECT_EQ(text(), QString("\n\n"));
    editor->setText("abc\ndef");
    moveTo(0, 0);
    extend(Qt::Key_Right, 2);
    extend(Qt::Key_Down);
    QTest::keyClick(editor.get(), Qt::Key_Delete);
    EXPECT_EQ(text(), QString("c\nf"));
}

TEST_F(Columns, CopyAndPasteAColumnElsewhere)
{
    editor->setText("12 one\n34 two\n56 six");
    moveTo(0, 0);
    extend(Qt::Key_Right, 2);
    extend(Qt::Key_Down, 2);
    editor->copy();
    EXPECT_EQ(clipboard(), QString("12\n34\n56"));
    editor->moveCursor(QTextCursor::End);
    EXPECT_FALSE(editor->hasSelection());
    moveTo(1, 6);
    editor->paste();
    EXPECT_EQ(text(), QString("12 one\n34 two12\n56 six34\n      56"));
    editor->undo();
    EXPECT_EQ(text(), QString("12 one\n34 two\n56 six"));
    EXPECT_FALSE(editor->isUndoAvailable());
}

TEST_F(Columns, CutIsOneStep)
{
    editor->setText("abc\ndef");
    moveTo(0, 1);
    extend(Qt::Key_Right);
    extend(Qt::Key_Down);
    QTest::keyClick(editor.get(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), QString("b\ne"));
    EXPECT_EQ(text(), QString("ac\ndf"));
    editor->undo();
    EXPECT_EQ(text(), QString("abc\ndef"));
}

TEST_F(Columns, PasteOfOneLineGoesIntoEachAndOfSeveralOneIntoEach)
{
    editor->setText("a\nb\nc");
    QApplication::clipboard()->setText("12");
    moveTo(0, 0);
    extend(Qt::Key_Down, 2);
    QTest::keyClick(editor.get(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text(), QString("12a\n12b\n12c"));
    QApplication::clipboard()->setText("x\r\ny\r\nz");
    editor->paste();
    EXPECT_EQ(text(), QString("12xa\n12yb\n12zc"));
    editor->undo();
    EXPECT_EQ(text(), QString("12a\n12b\n12c"));
}

TEST_F(Columns, MouseWithAltAlsoAfterTheEndOfALine)
{
    editor->setText("abcdef\nab\nabcdef");
    const QPoint from = pixelAt(0, 4);
    QTest::mousePress(editor->viewport(), Qt::LeftButton, Qt::AltModifier, from);
    dragTo(QPoint(from.x(), pixelAt(1, 0).y()));
    dragTo(QPoint(from.x(), pixelAt(2, 0).y()));
    QTest::mouseRelease(editor->viewport(), Qt::LeftButton, Qt::AltModifier, QPoint(from.x(), pixelAt(2, 0).y()));
    EXPECT_FALSE(editor->textCursor().hasSelection());
    type("|");
    EXPECT_EQ(text(), QString("abcd|ef\nab  |\nabcd|ef"));
    // A plain click ends it.
    QTest::mouseClick(editor->viewport(), Qt::LeftButton, Qt::NoModifier, pixelAt(0, 0));
    type("x");
    EXPECT_EQ(text(), QString("xabcd|ef\nab  |\nabcd|ef"));
}

TEST_F(Columns, OtherKeysAndChangesEndIt)
{
    editor->setText("abc\ndef");
    moveTo(0, 0);
    extend(Qt::Key_Down);
    QTest::keyClick(editor.get(), Qt::Key_Escape);
    type("1");
    EXPECT_EQ(text(), QString("abc\n1def"));
    extend(Qt::Key_Up);
    editor->undo();
    type("2");
    EXPECT_EQ(text().count('2'), 1);
    editor->setText("abc\ndef");
    extend(Qt::Key_Down);
    editor->setText("abc\ndef");
    type("3");
    EXPECT_EQ(text(), QString("3abc\ndef"));
    extend(Qt::Key_Down);
    editor->setCursorToLine(0);
    moveTo(0, 0);
    type("4");
    EXPECT_EQ(text().count('4'), 1);
}

TEST_F(Columns, StartsWithTheSelection)
{
    editor->setText("abcd\nefgh");
    select(1, 3);
    extend(Qt::Key_Down);
    editor->copy();
    EXPECT_EQ(clipboard(), QString("bc\nfg"));
}

TEST_F(Columns, TabsAndCharactersOfSeveralUnitsKeepTheirWidth)
{
    const TextColumns columns(QString::fromUtf8("a\tb\xf0\x9f\x98\x80"
                                                "e\u0301z"),
                              4);
    EXPECT_EQ(columns.columnOf(0), 0);
    EXPECT_EQ(columns.columnOf(2), 4);
    EXPECT_EQ(columns.columnOf(3), 5);
    EXPECT_EQ(columns.columnOf(5), 6);
    EXPECT_EQ(columns.columnOf(7), 7);
    EXPECT_EQ(columns.width(), 8);
    EXPECT_EQ(columns.indexAt(2), 1);
    EXPECT_EQ(columns.indexAt(6), 5);
    EXPECT_EQ(columns.indexAt(100), 8);
    // No half of a character is left behind.
    const QString face = QString::fromUtf8("\xf0\x9f\x98\x80");
    editor->setText(face + "a\n" + face + "b");
    moveTo(0, 2);
    extend(Qt::Key_Down);
    QTest::keyClick(editor.get(), Qt::Key_Backspace);
    EXPECT_EQ(text(), QString("a\nb"));
}

TEST_F(Columns, DeleteTakesAWholeTab)
{
    editor->setText("\ta\n\tb\nxyz\n");
    moveTo(0, 0);
    extend(Qt::Key_Down, 3);
    QTest::keyClick(editor.get(), Qt::Key_Delete);
    EXPECT_EQ(text(), QString("a\nb\nyz\n"));
    editor->undo();
    EXPECT_EQ(text(), QString("\ta\n\tb\nxyz\n"));
}

TEST_F(Columns, ReadOnlyTextCanBeCopiedOnly)
{
    editor->setText("abc\ndef");
    editor->setLocked(true);
    moveTo(0, 0);
    extend(Qt::Key_Right);
    extend(Qt::Key_Down);
    type("x");
    QTest::keyClick(editor.get(), Qt::Key_Backspace);
    editor->cut();
    editor->paste();
    EXPECT_EQ(text(), QString("abc\ndef"));
    EXPECT_EQ(clipboard(), QString("a\nd"));
}

TEST_F(Columns, IsSeen)
{
    editor->setText("abc\ndef");
    moveTo(1, 2);
    const QImage before = editor->grab().toImage();
    moveTo(0, 0);
    extend(Qt::Key_Down);
    extend(Qt::Key_Right, 2);
    EXPECT_NE(editor->grab().toImage(), before);
    QTest::keyClick(editor.get(), Qt::Key_Escape);
    EXPECT_EQ(editor->grab().toImage(), before);
}

} // namespace
