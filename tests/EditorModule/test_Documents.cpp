// Opening, reading, writing, reloading and closing of documents.

#include "EditorModuleTest.h"
#include "OrdinaryUser.h"

#include <sys/stat.h>

using nsModEditor::EditorWidget;

namespace {

using Documents = EditorModuleTest;

TEST_F(Documents, openingShowsTheTextUnderItsRelativeName)
{
    EditorWidget* widget = open("a.psm", "LOAD s0, 1\r\nNOP\n");
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->toPlainText(), "LOAD s0, 1\nNOP\n");
    EXPECT_FALSE(widget->isModified());
    EXPECT_EQ(gui.widgets.value(widget).name, "a.psm");
    EXPECT_EQ(sources.asked, QStringList({path("a.psm")}));
    EXPECT_EQ(findReplace.widgets.value(widget), 3);
    EXPECT_TRUE(clipboard.widgets.contains(widget));
}

TEST_F(Documents, openingAnOpenFileSelectsItsPageAndDoesNotReadItAgain)
{
    EditorWidget* first = open("a.psm", "one");
    open("b.psm", "two");
    write("a.psm", "changed");
    EXPECT_TRUE(editor.openFile(path("a.psm")));
    EXPECT_EQ(editor.editorWidgets().size(), 2);
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationTabs), first);
    EXPECT_EQ(first->toPlainText(), "one");
}

TEST_F(Documents, sameFileUnderTwoPathTextsOpensTwice)
{
    open("a.psm");
    EXPECT_TRUE(editor.openFile(dir.path() + "/./a.psm"));
    EXPECT_EQ(editor.editorWidgets().size(), 2);
}

TEST_F(Documents, missingFileIsReported)
{
    EXPECT_FALSE(editor.openFile(path("none.psm")));
    EXPECT_EQ(msg.errors(), QStringList({"File does not exist: " + path("none.psm")}));
    EXPECT_TRUE(editor.editorWidgets().isEmpty());
}

TEST_F(Documents, writeProtectedFileWarnsAndCanNotBeOpened)
{
    write("a.psm", "NOP");
    ASSERT_EQ(chmod(path("a.psm").toLocal8Bit().constData(), 0444), 0);
    ASSERT_EQ(chmod(dir.path().toLocal8Bit().constData(), 0755), 0);
    {
        const OrdinaryUser user;
        EXPECT_FALSE(editor.openFile(path("a.psm")));
    }
    EXPECT_EQ(msg.warnings(), QStringList({"File is not writable: " + path("a.psm")}));
    EXPECT_EQ(msg.errors(), QStringList({"Can not open file: " + path("a.psm")}));
    EXPECT_TRUE(editor.editorWidgets().isEmpty());
}

TEST_F(Documents, unreadableFileIsReported)
{
    write("a.psm", "NOP");
    ASSERT_EQ(chmod(path("a.psm").toLocal8Bit().constData(), 0), 0);
    ASSERT_EQ(chmod(dir.path().toLocal8Bit().constData(), 0755), 0);
    {
        const OrdinaryUser user;
        EXPECT_FALSE(editor.openFile(path("a.psm")));
    }
    EXPECT_EQ(msg.errors(), QStringList({"No read access for file: " + path("a.psm")}));
}

TEST_F(Documents, folderAndPipeAreRefusedAtOnce)
{
    EXPECT_FALSE(editor.openFile(dir.path()));
    ASSERT_EQ(mkfifo(path("pipe").toLocal8Bit().constData(), 0600), 0);
    EXPECT_FALSE(editor.openFile(path("pipe")));
    EXPECT_EQ(msg.errors(), QStringList({"Can not open file: " + dir.path(), "Can not open file: " + path("pipe")}));
}

TEST_F(Documents, nulByteEndsTheShownTextAndSavingDropsNothing)
{
    EditorWidget* widget = open("a.psm", QByteArray("NOP\0rest", 8));
    EXPECT_EQ(widget->toPlainText(), "NOP");
    EXPECT_TRUE(widget->isReadOnly());
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), QByteArray("NOP\0rest", 8));
}

TEST_F(Documents, zeroByteFileOpensEmpty)
{
    EditorWidget* widget = open("a.psm", "");
    EXPECT_EQ(widget->toPlainText(), "");
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), "");
}

TEST_F(Documents, utf8SurvivesOpeningAndSaving)
{
    const QByteArray text = "; gr\xC3\xBC\xC3\x9F \xE2\x82\xAC\n";
    type(open("a.psm", text), ";");
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), ";" + text);
}

TEST_F(Documents, nonBreakingBlanksStayOnes)
{
    const QByteArray text = "; 12\xC2\xA0kHz\n";
    type(open("a.psm", text), ";");
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), ";" + text);
}

TEST_F(Documents, bytesThatAreNoUtf8AreNotLost)
{
    const QByteArray text = "; caf\xE9 \x80\xFF\n";
    msg.dropOnClear = false;
    open("a.psm", text);
    EXPECT_EQ(msg.warnings().size(), 1);
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), text);
    // A character beyond them makes it UTF-8, which is said.
    document("a.psm")->insertPlainText(QString(QChar(0x20AC)));
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(msg.warnings().size(), 2);
    EXPECT_TRUE(read("a.psm").startsWith("\xE2\x82\xAC; caf\xC3\xA9"));
}

TEST_F(Documents, savingWritesTheTextAndTellsTheSources)
{
    EditorWidget* widget = open("a.psm", "NOP\n");
    type(widget, "ADD ");
    EXPECT_TRUE(widget->isModified());
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(read("a.psm"), "ADD NOP\n");
    EXPECT_FALSE(widget->isModified());
    EXPECT_EQ(sources.contentChanges, 1);
}

TEST_F(Documents, savingWithoutADocumentStillTellsTheSources)
{
    EXPECT_FALSE(editor.saveFile());
    EXPECT_EQ(sources.contentChanges, 1);
}

TEST_F(Documents, saveAllWritesEveryDocumentAndTellsOnce)
{
    type(open("a.psm", "NOP"), "A");
    type(open("b.psm", "NOP"), "B");
    editor.saveAllFiles();
    EXPECT_EQ(read("a.psm"), "ANOP");
    EXPECT_EQ(read("b.psm"), "BNOP");
    EXPECT_EQ(sources.contentChanges, 1);
}

TEST_F(Documents, failedSaveKeepsTheOldFileAndTheText)
{
    EditorWidget* widget = open("a.psm", "NOP");
    type(widget, "X");
    QFile::remove(path("a.psm"));
    ASSERT_TRUE(QDir(dir.path()).mkdir("a.psm"));
    EXPECT_FALSE(editor.saveFile());
    EXPECT_EQ(msg.errors(), QStringList({"Can not open file: " + path("a.psm")}));
    EXPECT_TRUE(widget->isModified());
    EXPECT_EQ(widget->toPlainText(), "XNOP");
}

TEST_F(Documents, savingThroughALinkKeepsTheLink)
{
    write("real.psm", "NOP");
    ASSERT_TRUE(QFile::link(path("real.psm"), path("link.psm")));
    EXPECT_TRUE(editor.openFile(path("link.psm")));
    type(document("link.psm"), "X");
    EXPECT_TRUE(editor.saveFile());
    EXPECT_TRUE(QFileInfo(path("link.psm")).isSymLink());
    EXPECT_EQ(read("real.psm"), "XNOP");
}

TEST_F(Documents, saveAsByPathMovesTheDocument)
{
    EditorWidget* widget = open("a.psm", "NOP");
    EXPECT_FALSE(editor.saveFileAs(QString()));
    EXPECT_TRUE(editor.saveFileAs(path("sub.psm")));
    EXPECT_EQ(read("sub.psm"), "NOP");
    EXPECT_EQ(widget->filePath(), path("sub.psm"));
    EXPECT_EQ(gui.widgets.value(widget).name, "sub.psm");
    EXPECT_EQ(sources.contentChanges, 1);
}

TEST_F(Documents, newFileIsUntitledWithItsText)
{
    editor.newFile("text");
    ASSERT_EQ(editor.editorWidgets().size(), 1);
    EXPECT_EQ(editor.editorWidgets().first()->toPlainText(), "text");
    EXPECT_EQ(gui.widgets.value(editor.editorWidgets().first()).name, "Untitled");
}

TEST_F(Documents, reloadingReadsTheFileAgain)
{
    EditorWidget* widget = open("a.psm", "old");
    write("a.psm", "new");
    editor.reloadFile();
    EXPECT_EQ(widget->toPlainText(), "new");
    EXPECT_FALSE(widget->isModified());
    EXPECT_FALSE(widget->isUndoAvailable());
}

TEST_F(Documents, reloadingAVanishedFileKeepsTheText)
{
    EditorWidget* widget = open("a.psm", "old");
    QFile::remove(path("a.psm"));
    editor.reloadAllFiles();
    EXPECT_EQ(widget->toPlainText(), "old");
    EXPECT_EQ(msg.errors().size(), 1);
}

TEST_F(Documents, closingOthersSparesTheCurrentOne)
{
    open("a.psm");
    open("b.psm");
    open("c.psm");
    focus(document("b.psm"));
    editor.closeOtherFiles();
    ASSERT_EQ(editor.editorWidgets().size(), 1);
    EXPECT_EQ(editor.editorWidgets().first()->filePath(), path("b.psm"));
    gui.current.clear();
    editor.closeOtherFiles();
    EXPECT_TRUE(editor.editorWidgets().isEmpty());
    EXPECT_TRUE(gui.center.isEmpty());
    EXPECT_TRUE(clipboard.widgets.isEmpty());
    EXPECT_TRUE(findReplace.widgets.isEmpty());
}

TEST_F(Documents, closeButtonOfAForeignPageIsIgnored)
{
    QWidget other;
    open("a.psm");
    editor.removeWidgetRequest(&other);
    EXPECT_EQ(editor.editorWidgets().size(), 1);
    editor.removeWidgetRequest(document("a.psm"));
    EXPECT_TRUE(editor.editorWidgets().isEmpty());
}

TEST_F(Documents, selectingNeverOpens)
{
    write("a.psm", "NOP");
    EXPECT_FALSE(editor.selectFile(path("a.psm")));
    open("a.psm");
    open("b.psm");
    EXPECT_TRUE(editor.selectFile(path("a.psm")));
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationTabs), document("a.psm"));
}

TEST_F(Documents, linksLeadToTheirLine)
{
    write("a.psm", "0\n1\n2\n3\n");
    QUrl url;
    url.setScheme("file");
    url.setPath(path("a.psm"));
    url.setFragment("2");
    editor.handleUrl(url);
    ASSERT_NE(document("a.psm"), nullptr);
    EXPECT_EQ(document("a.psm")->cursorLine(), 2);
    url.setPath(path("none.psm"));
    editor.handleUrl(url);
    EXPECT_EQ(msg.errors().last(), "Can not select line!");
    editor.setLineHighlighted(url);
    EXPECT_EQ(msg.errors().last(), "Can not highlight line!");
}

TEST_F(Documents, uniqueTextWinsOverTheLineNumber)
{
    write("a.psm", "; \\navConst \"A\"\nNOP\n; \\navConst \"B\"\nNOP\n");
    editor.setCursorToLine(path("a.psm"), "; \\navConst \"B\"", 0);
    EXPECT_EQ(document("a.psm")->cursorLine(), 2);
    editor.setCursorToLine(path("a.psm"), "NOP", 1);
    EXPECT_EQ(document("a.psm")->cursorLine(), 1);
}

TEST_F(Documents, twentyDocumentsOfOneNameCloseInAnyOrder)
{
    for (int i = 0; i < 20; ++i) {
        QDir(dir.path()).mkdir(QString::number(i));
        open(QString::number(i) + "/same.psm");
    }
    for (int i : {7, 0, 19, 3, 11})
        editor.removeWidgetRequest(document(QString::number(i) + "/same.psm"));
    EXPECT_EQ(editor.editorWidgets().size(), 15);
    editor.prjClose();
    EXPECT_TRUE(editor.editorWidgets().isEmpty());
}

} // namespace
