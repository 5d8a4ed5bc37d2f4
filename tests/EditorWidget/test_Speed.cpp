// Large documents. The limits are wide, as tests share the machine; they fail when a cost grows with the square of a
// size.

#include "EditorFixture.h"

#include <QElapsedTimer>

namespace {

using nsModEditor::EditorMemPageAddrMap;
using nsModEditor::EditorWidget;

const int lineCount = 20000;

class Speed : public EditorTest
{
protected:
    void SetUp() override
    {
        EditorTest::SetUp();
        QTextCharFormat format;
        format.setFontWeight(QFont::Bold);
        for (int word = 0; word < 250; ++word)
            config.addKeyword(QString("word%1").arg(word), format);
        config.addRule(QString(";[^\n]*"), format);
        config.addRule(QString("\\b0[xX]{1}[0-9A-Fa-f]+\\b"), format);
        for (int line = 0; line < lineCount; ++line)
            large +=
                QString("label%1:\tLOAD s%2, 0x%3 ; word%4\n").arg(line).arg(line % 16).arg(line % 256).arg(line % 300);
        QApplication::processEvents();
    }
    /// Time of a call until all is painted, in milliseconds; the best of some, since others use the machine, too.
    template <class Call>
    double paintedAfter(Call call, int rounds = 10)
    {
        double best = 1e9;
        for (int round = 0; round < rounds; ++round) {
            QApplication::processEvents();
            QElapsedTimer timer;
            timer.start();
            call();
            QApplication::processEvents();
            best = qMin(best, timer.nsecsElapsed() / 1e6);
        }
        return best;
    }

    QString large;
};

TEST_F(Speed, OpensAndHighlightsOnce)
{
    editor->setSelectionHighlightEn(true);
    int highlighted = 0;
    QObject::connect(editor->document(), &QTextDocument::contentsChanged, [&] { ++highlighted; });
    const double time = paintedAfter([&] { editor->setText(large); }, 1);
    RecordProperty("milliseconds", QString::number(time).toStdString());
    EXPECT_LT(time, 3000);
    EXPECT_LE(highlighted, 3);
    EXPECT_FALSE(editor->document()->findBlockByNumber(lineCount - 1).layout()->formats().isEmpty());
}

TEST_F(Speed, KeysArePaintedAtOnce)
{
    editor->setText(large);
    editor->setSelectionHighlightEn(true);
    for (int line = 0; line < lineCount; ++line) {
        editor->setSimBreakpoint(line);
        editor->setBookmark(line);
    }
    QStringList files{"/p/a.psm"};
    EditorMemPageAddrMap map(&files);
    for (int line = 0; line < lineCount; ++line)
        map.addItem(0, line, line);
    editor->setFilePath("/p/a.psm");
    editor->setMemPageAddrEn(true);
    editor->setMemPageAddrMap(&map);
    editor->setCursorToLine(lineCount - 100);

    const double letter = paintedAfter([&] { QTest::keyClick(editor.get(), Qt::Key_A); });
    const double lineBreak = paintedAfter([&] { QTest::keyClick(editor.get(), Qt::Key_Return); });
    const double down = paintedAfter([&] { QTest::keyClick(editor.get(), Qt::Key_Down); });
    const double scroll = paintedAfter([&] { QTest::keyClick(editor.get(), Qt::Key_PageUp); });
    const double selecting = paintedAfter([&] { QTest::keyClick(editor.get(), Qt::Key_Right, Qt::ShiftModifier); });
    const double selectAll = paintedAfter([&] {
        editor->moveCursor(QTextCursor::Start);
        editor->selectAll();
    });
    RecordProperty("letter", QString::number(letter).toStdString());
    RecordProperty("lineBreak", QString::number(lineBreak).toStdString());
    RecordProperty("down", QString::number(down).toStdString());
    RecordProperty("scroll", QString::number(scroll).toStdString());
    RecordProperty("selecting", QString::number(selecting).toStdString());
    RecordProperty("selectAll", QString::number(selectAll).toStdString());
    EXPECT_LT(letter, 60);
    EXPECT_LT(lineBreak, 60);
    EXPECT_LT(down, 60);
    EXPECT_LT(scroll, 80);
    EXPECT_LT(selecting, 150);
    EXPECT_LT(selectAll, 600);
    editor->setMemPageAddrMap(nullptr);
}

TEST_F(Speed, CommandsOnAllLines)
{
    editor->setText(large);
    editor->selectAll();
    const double comment = paintedAfter([&] { editor->commentOut(); }, 1);
    const double undo = paintedAfter([&] { editor->undo(); }, 1);
    const double replace = paintedAfter([&] { editor->replaceAll("LOAD", "STORE", true, true); }, 1);
    RecordProperty("comment", QString::number(comment).toStdString());
    RecordProperty("undo", QString::number(undo).toStdString());
    RecordProperty("replace", QString::number(replace).toStdString());
    EXPECT_LT(comment, 6000);
    EXPECT_LT(undo, 6000);
    EXPECT_LT(replace, 6000);
    EXPECT_EQ(editor->document()->findBlockByNumber(lineCount - 1).text().count("STORE"), 1);
}

} // namespace
