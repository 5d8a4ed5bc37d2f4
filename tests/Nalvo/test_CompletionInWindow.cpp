// The list of words that complete what is typed.

#include "SymbolsWindow.h"

#include "CompletionPopup.h"

#include <QStringListModel>

namespace {

using nsModEditor::EditorWidget;
using nsModSymbols::CompletionPopup;

class CompletionInWindow : public SymbolsWindow
{
protected:
    void openWithCompletion()
    {
        writeSetting("ModSymbols/completionEn", "1");
        writeSetting("ModEditor/textCompleterPrefixLength", "2");
        open();
        document->moveCursor(QTextCursor::End);
    }
    CompletionPopup* list() const
    {
        auto* popup = document->findChild<CompletionPopup*>("completion");
        return popup != nullptr && popup->isVisible() ? popup : nullptr;
    }
    QStringList words(int column = 0) const
    {
        QStringList result;
        for (int i = 0; list() != nullptr && i < list()->model()->rowCount(); ++i)
            result.append(list()->model()->index(i, column).data().toString());
        return result;
    }
    void type(const QString& text) { QTest::keyClicks(document, text); }
    QString lastLine() const { return document->document()->lastBlock().text(); }
};

TEST_F(CompletionInWindow, byDefaultNothingComes)
{
    open();
    document->moveCursor(QTextCursor::End);
    type("LOAD s0, lim");
    EXPECT_EQ(list(), nullptr);
    key(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(list(), nullptr);
    EXPECT_TRUE(action("Complete word")->shortcut().isEmpty());
    // The command of the menu is there.
    action("Complete word")->trigger();
    EXPECT_EQ(words(), QStringList("limit"));
}

TEST_F(CompletionInWindow, theListComesAfterTwoLetters)
{
    openWithCompletion();
    type("l");
    EXPECT_EQ(list(), nullptr);
    type("o");
    ASSERT_NE(list(), nullptr);
    EXPECT_EQ(words(), QStringList("LOAD"));
    EXPECT_TRUE(words(1).first().startsWith("register, number or register: loads a register"));
    EXPECT_TRUE(document->hasFocus());
    QTest::keyClick(document, Qt::Key_Tab);
    EXPECT_EQ(lastLine(), "load");
    EXPECT_EQ(list(), nullptr);
    type(" s0, li");
    EXPECT_EQ(words(), QStringList("limit"));
    EXPECT_EQ(words(1), QStringList("26 = 0x1A = b00011010"));
    QTest::keyClick(document, Qt::Key_Return);
    EXPECT_EQ(lastLine(), "load s0, limit");
    // One step to undo.
    QTest::keyClick(document, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(lastLine(), "load s0, li");
}

TEST_F(CompletionInWindow, whatFitsTheArgumentComesFirst)
{
    openWithCompletion();
    type("CALL ns");
    EXPECT_EQ(words(), QStringList({"ns::start", "ns::work"}));
    type("::w");
    EXPECT_EQ(words(), QStringList("ns::work"));
    QTest::keyClick(document, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(lastLine(), "CALL ns::work");
    QTest::keyClick(document, Qt::Key_Return);
    // A name is found without its namespace.
    type("JUMP st");
    EXPECT_EQ(words(), QStringList({"ns::start", "start"}));
    QTest::keyClick(document, Qt::Key_Escape);
    EXPECT_EQ(list(), nullptr);
    EXPECT_EQ(lastLine(), "JUMP st");
    QTest::keyClick(document, Qt::Key_Return);
    // The first argument is a register, the second one a register or a constant.
    type("ADD ");
    key(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_NE(list(), nullptr);
    EXPECT_EQ(words().first(), "s0");
    EXPECT_LT(words().indexOf("sF"), words().indexOf("limit"));
    QTest::keyClick(document, Qt::Key_Escape);
    type("s0, ");
    key(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_LT(words().indexOf("limit"), words().indexOf("start"));
    QTest::keyClick(document, Qt::Key_Escape);
    QTest::keyClick(document, Qt::Key_Return);
    type("INT en");
    EXPECT_EQ(words(), QStringList("ENABLE"));
    QTest::keyClick(document, Qt::Key_Return);
    QTest::keyClick(document, Qt::Key_Return);
    type("#NA");
    EXPECT_EQ(words(), QStringList("#NAMESPACE"));
    QTest::keyClick(document, Qt::Key_Tab);
    EXPECT_EQ(lastLine(), "#NAMESPACE");
    screenshot("completion");
}

TEST_F(CompletionInWindow, aNameIsWrittenAsItsNamespaceNeedsIt)
{
    openWithCompletion();
    document = openFile("sub/other.psm");
    setCursorInto(document, "RET");
    document->moveCursor(QTextCursor::StartOfBlock);
    const auto line = [this] { return document->textCursor().block().text(); };
    type("LOAD s0, lim");
    EXPECT_EQ(words(), QStringList("limit"));
    QTest::keyClick(document, Qt::Key_Tab);
    EXPECT_EQ(line(), "LOAD s0, ::limitRET");
    QTest::keyClick(document, Qt::Key_Return);
    type("LOAD s1, ::tw");
    EXPECT_EQ(words(), QStringList("twice"));
    QTest::keyClick(document, Qt::Key_Tab);
    EXPECT_EQ(line(), "LOAD s1, ::twiceRET");
    QTest::keyClick(document, Qt::Key_Return);
    type("CALL wor");
    QTest::keyClick(document, Qt::Key_Tab);
    EXPECT_EQ(line(), "CALL ns::workRET");
    QTest::keyClick(document, Qt::Key_Return);
    action("Save all")->trigger();
    EXPECT_TRUE(module<nsModAsmFe::ModAsmFe>()->isAssembled());
    // Outside of all it stays as it is.
    document->moveCursor(QTextCursor::End);
    type("LOAD s0, lim");
    QTest::keyClick(document, Qt::Key_Tab);
    EXPECT_EQ(line(), "LOAD s0, limit");
}

TEST_F(CompletionInWindow, theListIsWalkedByKeys)
{
    openWithCompletion();
    type("SR");
    ASSERT_GT(words().size(), 2);
    const QStringList all = words();
    QTest::keyClick(document, Qt::Key_Down);
    EXPECT_EQ(list()->currentWord(), all.at(1));
    QTest::keyClick(document, Qt::Key_Up);
    QTest::keyClick(document, Qt::Key_Up);
    EXPECT_EQ(list()->currentWord(), all.last());
    screenshot("completionList", list());
    // Erasing and typing go on in the list.
    QTest::keyClick(document, Qt::Key_Backspace);
    EXPECT_GT(words().size(), all.size());
    type("R");
    EXPECT_EQ(words(), all);
    QTest::keyClick(document, Qt::Key_Left);
    EXPECT_EQ(list(), nullptr);
    EXPECT_EQ(lastLine(), "SR");
}

TEST_F(CompletionInWindow, commentsStringsAndReadOnlyDocumentsHaveNone)
{
    openWithCompletion();
    type("; LOAD lim");
    EXPECT_EQ(list(), nullptr);
    type(" \\navS");
    EXPECT_EQ(words(), QStringList("\\navSep \"\""));
    QTest::keyClick(document, Qt::Key_Return);
    EXPECT_EQ(lastLine(), "; LOAD lim \\navSep \"\"");
    EXPECT_EQ(document->textCursor().positionInBlock(), lastLine().size() - 1);
    document->moveCursor(QTextCursor::End);
    QTest::keyClick(document, Qt::Key_Return);
    type("#EQU text, \"lim");
    EXPECT_EQ(list(), nullptr);
    document->moveCursor(QTextCursor::End);
    type("\"'UTF-1");
    EXPECT_TRUE(words().contains("'UTF-16"));
    QTest::keyClick(document, Qt::Key_Escape);
    document->setReadOnly(true);
    action("Complete word")->trigger();
    EXPECT_EQ(list(), nullptr);
}

TEST_F(CompletionInWindow, theListGoesWithFocusAndDocument)
{
    openWithCompletion();
    type("LO");
    ASSERT_NE(list(), nullptr);
    openFile("sub/other.psm");
    EXPECT_EQ(list(), nullptr);
    editor()->selectFile(document->filePath());
    document->setFocus();
    type("A");
    ASSERT_NE(list(), nullptr);
    document->clearModified();
    editor()->closeAllFiles();
    EXPECT_TRUE(editor()->editorWidgets().isEmpty());
}

TEST_F(CompletionInWindow, theSwitchIsKept)
{
    open();
    EXPECT_FALSE(action("Completion while typing")->isChecked());
    action("Completion while typing")->trigger();
    EXPECT_EQ(action("Complete word")->shortcut(), QKeySequence("Ctrl+Space"));
    document->clearModified();
    closeWindow();
    EXPECT_EQ(readSetting("ModSymbols/completionEn"), "1");
}

} // namespace
