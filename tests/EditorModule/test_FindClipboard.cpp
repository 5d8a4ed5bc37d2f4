// Find and replace, clipboard and insertion in the current document.

#include "EditorModuleTest.h"

#include "EditorSupportMenu.h"

#include <QApplication>
#include <QClipboard>

using nsModEditor::EditorWidget;

namespace {

class FindClipboard : public EditorModuleTest
{
protected:
    int at(EditorWidget* widget) const { return widget->textCursor().selectionStart(); }
};

TEST_F(FindClipboard, findsOnwardsAndWrapsOnTheSecondPress)
{
    EditorWidget* widget = open("a.psm", "ab x ab x");
    findReplace.find = "ab";
    editor.findNext(true);
    EXPECT_EQ(at(widget), 0);
    editor.findNext(false);
    EXPECT_EQ(at(widget), 5);
    editor.findNext(false);
    EXPECT_EQ(at(widget), 5);
    EXPECT_EQ(gui.statusText, "End of file reached, continuing from the begin...");
    editor.findNext(false);
    EXPECT_EQ(at(widget), 0);
    EXPECT_EQ(gui.statusText, "");
}

TEST_F(FindClipboard, backwardsTheSame)
{
    EditorWidget* widget = open("a.psm", "ab x ab x");
    findReplace.find = "ab";
    editor.findPrev(true);
    EXPECT_EQ(gui.statusText, "Begin of file reached, continuing from the end...");
    editor.findPrev(false);
    EXPECT_EQ(at(widget), 5);
    editor.findPrev(false);
    EXPECT_EQ(at(widget), 0);
}

TEST_F(FindClipboard, changedParametersMakeThePressCountAsNew)
{
    EditorWidget* widget = open("a.psm", "ab");
    findReplace.find = "zz";
    editor.findNext(true);
    EXPECT_EQ(gui.statusText, "End of file reached, continuing from the begin...");
    findReplace.find = "yy";
    gui.statusText.clear();
    editor.findNext(true);
    EXPECT_EQ(gui.statusText, "End of file reached, continuing from the begin...");
    editor.findNext(false);
    EXPECT_EQ(gui.statusText, "String not found.");
    EXPECT_EQ(widget->toPlainText(), "ab");
}

TEST_F(FindClipboard, caseAndWholeWordsCount)
{
    EditorWidget* widget = open("a.psm", "abc AB ab");
    findReplace.find = "ab";
    findReplace.wholeWords = true;
    editor.findNext(true);
    EXPECT_EQ(at(widget), 4);
    widget->setCursorPos(0);
    findReplace.caseSensitive = true;
    editor.findNext(true);
    EXPECT_EQ(at(widget), 7);
}

TEST_F(FindClipboard, replaceGoesOnToTheNextHit)
{
    EditorWidget* widget = open("a.psm", "ab ab");
    findReplace.find = "ab";
    findReplace.replacement = "xyz";
    editor.findNext(true);
    editor.replace(false);
    EXPECT_EQ(widget->toPlainText(), "xyz ab");
    EXPECT_EQ(at(widget), 4);
}

TEST_F(FindClipboard, replaceLeavesASelectionAloneThatIsNoHit)
{
    EditorWidget* widget = open("a.psm", "keep ab ab");
    findReplace.find = "ab";
    findReplace.replacement = "xyz";
    QTextCursor cursor = widget->textCursor();
    cursor.setPosition(4, QTextCursor::KeepAnchor);
    widget->setTextCursor(cursor);
    editor.replace(true);
    EXPECT_EQ(widget->toPlainText(), "keep ab ab");
    EXPECT_EQ(widget->textCursor().selectedText(), "ab");
    EXPECT_EQ(at(widget), 5);
    editor.replace(false);
    EXPECT_EQ(widget->toPlainText(), "keep xyz ab");
    EXPECT_EQ(at(widget), 9);
    // In other letters it is no hit when these count.
    findReplace.caseSensitive = true;
    findReplace.find = "AB";
    editor.replace(true);
    EXPECT_EQ(widget->toPlainText(), "keep xyz ab");
}

TEST_F(FindClipboard, replaceAllEndsAlsoWhereTheReplacementHoldsTheText)
{
    EditorWidget* widget = open("a.psm", "a a a");
    findReplace.find = "a";
    findReplace.replacement = "aa";
    editor.replaceAll(true);
    EXPECT_EQ(widget->toPlainText(), "aa aa aa");
    widget->undo();
    EXPECT_EQ(widget->toPlainText(), "a a a");
}

TEST_F(FindClipboard, withoutADocumentNothingHappens)
{
    editor.findNext(true);
    editor.findPrev(true);
    editor.replace(true);
    editor.replaceAll(true);
    EXPECT_EQ(editor.findInit(), "");
    editor.clipboardAction(ModClipboardHookIf::eClipboardFeatureCut);
    EXPECT_TRUE(msg.errors().isEmpty());
}

TEST_F(FindClipboard, searchStartsWithTheSelection)
{
    EditorWidget* widget = open("a.psm", "word");
    widget->selectAll();
    EXPECT_EQ(editor.findInit(), "word");
}

TEST_F(FindClipboard, cutCopyAndPaste)
{
    EditorWidget* widget = open("a.psm", "word");
    widget->selectAll();
    editor.clipboardAction(ModClipboardHookIf::eClipboardFeatureCut);
    EXPECT_EQ(widget->toPlainText(), "");
    editor.clipboardAction(ModClipboardHookIf::eClipboardFeaturePaste);
    editor.clipboardAction(ModClipboardHookIf::eClipboardFeaturePaste);
    EXPECT_EQ(widget->toPlainText(), "wordword");
    widget->selectAll();
    editor.clipboardAction(ModClipboardHookIf::eClipboardFeatureCopy);
    EXPECT_EQ(QApplication::clipboard()->text(), "wordword");
}

TEST_F(FindClipboard, insertionMenuInsertsAtTheCursorAndReplacesTheSelection)
{
    EditorWidget* widget = open("a.psm", "old");
    editor.supportMenu()->setEntry("A/b", "new", nsModEditor::EditorSupportMenu::typeText);
    widget->selectAll();
    editor.supportMenu()->node({"A", "b"})->action->trigger();
    EXPECT_EQ(widget->toPlainText(), "new");
}

} // namespace
