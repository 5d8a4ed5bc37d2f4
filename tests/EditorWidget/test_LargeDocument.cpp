// Large documents: they open, are highlighted once, and take every command. What that costs is measured by
// bench/editor.

#include "EditorFixture.h"

namespace {

const int lineCount = 20000;

class LargeDocument : public EditorTest
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
        for (int line = 0; line < lineCount; ++line)
            large +=
                QString("label%1:\tLOAD s%2, 0x%3 ; word%4\n").arg(line).arg(line % 16).arg(line % 256).arg(line % 300);
        QApplication::processEvents();
    }

    QString large;
};

TEST_F(LargeDocument, OpensAndHighlightsOnce)
{
    editor->setSelectionHighlightEn(true);
    int highlighted = 0;
    QObject::connect(editor->document(), &QTextDocument::contentsChanged, [&] { ++highlighted; });
    editor->setText(large);
    QApplication::processEvents();
    EXPECT_LE(highlighted, 3);
    EXPECT_FALSE(editor->document()->findBlockByNumber(lineCount - 1).layout()->formats().isEmpty());
}

TEST_F(LargeDocument, CommandsReachEveryLine)
{
    editor->setText(large);
    editor->selectAll();
    editor->commentOut();
    for (int line = 0; line < lineCount; ++line)
        ASSERT_TRUE(editor->document()->findBlockByNumber(line).text().startsWith(';')) << line;
    editor->undo();
    EXPECT_EQ(editor->text(), large);
    editor->replaceAll("LOAD", "STORE", true, true);
    for (int line = 0; line < lineCount; ++line)
        ASSERT_EQ(editor->document()->findBlockByNumber(line).text().count("STORE"), 1) << line;
}

} // namespace
