// What is asked before something is lost, and what the answers do.

#include "EditorModuleTest.h"
#include "ModalAnswers.h"

#include <QFileDialog>
#include <QLineEdit>

using nsModEditor::EditorWidget;

namespace {

using Questions = EditorModuleTest;

/// Gives a file name to a file dialog and accepts it.
std::function<void(QDialog*)> chooseFile(const QString& path)
{
    return [path](QDialog* dialog) {
        auto* files = qobject_cast<QFileDialog*>(dialog);
        ASSERT_NE(files, nullptr);
        files->selectFile(path);
        static_cast<QDialog*>(files)->accept();
    };
}

TEST_F(Questions, closingAModifiedDocumentAsksAndYesSaves)
{
    type(open("a.psm", "NOP"), "X");
    QString title;
    QString text;
    ModalHelper helper([&](QDialog* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        title = box->windowTitle();
        text = box->text();
        EXPECT_TRUE(box->defaultButton() == box->button(QMessageBox::No));
        box->button(QMessageBox::Yes)->click();
    });
    editor.closeFile();
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(title, "File was modified");
    EXPECT_EQ(text,
              "<p>The file was changed.</p><p><b>a.psm</b><p><p>Do you want to save the file before closing?</p>");
    EXPECT_EQ(read("a.psm"), "XNOP");
    EXPECT_TRUE(editor.editorWidgets().isEmpty());
}

TEST_F(Questions, noDropsTheChangesAndCloses)
{
    type(open("a.psm", "NOP"), "X");
    ModalHelper helper(answer(QMessageBox::No));
    editor.closeFile();
    EXPECT_EQ(read("a.psm"), "NOP");
    EXPECT_TRUE(editor.editorWidgets().isEmpty());
}

TEST_F(Questions, anUnmodifiedDocumentClosesWithoutAQuestion)
{
    open("a.psm");
    ModalHelper helper(nullptr);
    editor.closeFile();
    EXPECT_EQ(helper.seen(), 0);
    EXPECT_TRUE(editor.editorWidgets().isEmpty());
}

TEST_F(Questions, failedSaveWhileClosingStillCloses)
{
    type(open("a.psm", "NOP"), "X");
    QFile::remove(path("a.psm"));
    ASSERT_TRUE(QDir(dir.path()).mkdir("a.psm"));
    ModalHelper helper(answer(QMessageBox::Yes));
    editor.closeFile();
    EXPECT_EQ(msg.errors(), QStringList({"Can not open file: " + path("a.psm")}));
    EXPECT_TRUE(editor.editorWidgets().isEmpty());
}

TEST_F(Questions, reloadOfAModifiedDocumentAsks)
{
    EditorWidget* widget = open("a.psm", "NOP");
    type(widget, "X");
    {
        ModalHelper helper(answer(QMessageBox::No));
        editor.reloadFile();
        EXPECT_EQ(helper.seen(), 1);
        EXPECT_EQ(widget->toPlainText(), "XNOP");
    }
    ModalHelper helper([&](QDialog* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        EXPECT_EQ(box->text(),
                  "<p>The file was changed:</p><p><b>a.psm</b><p>"
                  "<p>If you continue to reload all changes will be lost.</p><p>Do you want to continue?</p>");
        box->button(QMessageBox::Yes)->click();
    });
    editor.reloadFile();
    EXPECT_EQ(widget->toPlainText(), "NOP");
}

TEST_F(Questions, savingAnUntitledDocumentOpensTheDialog)
{
    editor.newFile("NOP");
    ModalHelper helper(chooseFile(path("new.psm")));
    EXPECT_TRUE(editor.saveFile());
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(read("new.psm"), "NOP");
    EXPECT_EQ(gui.widgets.value(editor.editorWidgets().first()).name, "new.psm");
}

TEST_F(Questions, cancelledDialogLeavesTheUntitledOneAndSavesTheOthers)
{
    type(open("a.psm", "NOP"), "X");
    editor.newFile("untitled");
    ModalHelper helper([](QDialog* dialog) { dialog->reject(); });
    editor.saveAllFiles();
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(read("a.psm"), "XNOP");
    EXPECT_EQ(editor.editorWidgets().size(), 2);
    EXPECT_EQ(sources.contentChanges, 1);
}

TEST_F(Questions, aCancelledDialogForTheFirstDocumentSavesThoseAfterIt)
{
    editor.newFile("untitled");
    type(open("a.psm", "NOP"), "X");
    type(open("b.psm", "NOP"), "Y");
    ModalHelper helper([](QDialog* dialog) { dialog->reject(); });
    editor.saveAllFiles();
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(read("a.psm"), "XNOP");
    EXPECT_EQ(read("b.psm"), "YNOP");
    EXPECT_TRUE(editor.editorWidgets().first()->isModified());
    EXPECT_EQ(editor.editorWidgets().first()->toPlainText(), "untitled");
    EXPECT_EQ(sources.contentChanges, 1);
}

TEST_F(Questions, saveAllAsksForNoNameOfAnUntouchedDocument)
{
    editor.newFile(QString());
    type(open("a.psm", "NOP"), "X");
    ModalHelper helper([](QDialog* dialog) { dialog->reject(); });
    editor.saveAllFiles();
    EXPECT_EQ(helper.seen(), 0);
    EXPECT_EQ(read("a.psm"), "XNOP");
    // One that somebody has typed into has something to save, also when the text is gone again.
    type(editor.editorWidgets().first(), "Z");
    editor.saveAllFiles();
    EXPECT_EQ(helper.seen(), 1);
}

TEST_F(Questions, aTextThatComesWithANewDocumentIsAChange)
{
    editor.newFile("from a script");
    EXPECT_TRUE(editor.editorWidgets().first()->isModified());
    EXPECT_FALSE(gui.widgets.value(editor.editorWidgets().first()).icon.isNull());
    editor.newFile(QString());
    EXPECT_FALSE(editor.editorWidgets().last()->isModified());
    ModalHelper helper(answer(QMessageBox::No));
    editor.closeAllFiles();
    EXPECT_EQ(helper.seen(), 1);
}

TEST_F(Questions, withoutAProjectNobodyIsAskedForMembership)
{
    prj.path.clear();
    editor.newFile("NOP");
    ModalHelper helper(chooseFile(path("new.psm")));
    EXPECT_TRUE(editor.saveFile());
    open("a.psm");
    EXPECT_TRUE(editor.saveFileAs(path("b.psm")));
    EXPECT_EQ(sources.asked, QStringList());
}

TEST_F(Questions, theProjectIsStillWholeWhenItsDocumentsAreAskedFor)
{
    prj.registerPlugin(&editor);
    type(open("a.psm", "NOP"), "X");
    editor.newFile("NOP");
    sources.asked.clear();
    bool wasOpen = false;
    int saves = -1;
    ModalAnswers answers({[&](QDialog* dialog) {
                              wasOpen = prj.isValid();
                              saves = prj.saves;
                              answer(QMessageBox::Yes)(dialog);
                          },
                          answer(QMessageBox::Yes), chooseFile(path("new.psm"))});
    prj.close();
    EXPECT_EQ(answers.seen(), 3);
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(saves, 0);
    EXPECT_EQ(read("a.psm"), "XNOP");
    // The new file can become a member, and is one of the open documents.
    EXPECT_EQ(sources.asked, QStringList({path("new.psm")}));
    EXPECT_EQ(prj.saved.get("ModEditor/openFiles", QStringList()), QStringList({"a.psm", "new.psm"}));
    EXPECT_TRUE(editor.editorWidgets().isEmpty());
}

TEST_F(Questions, theEndOfTheProgramAsksOnceAndBeforeAnythingElse)
{
    prj.registerPlugin(&editor);
    type(open("a.psm", "NOP"), "X");
    ModalHelper helper([](QDialog* dialog) { dialog->reject(); });
    EXPECT_TRUE(editor.modExitRequest());
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(editor.editorWidgets().size(), 1);
    prj.close();
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(read("a.psm"), "NOP");
}

TEST_F(Questions, openDialogOpensWhatWasChosen)
{
    write("a.psm", "NOP");
    ModalHelper helper([&](QDialog* dialog) {
        auto* files = qobject_cast<QFileDialog*>(dialog);
        ASSERT_NE(files, nullptr);
        EXPECT_EQ(files->windowTitle(), "Open file");
        EXPECT_EQ(files->nameFilters(), QStringList({"Assembler files(*.psm)", "Any files(*)"}));
        chooseFile(path("a.psm"))(dialog);
    });
    action(ModActionHookIf::eActionClassFile, "Open...")->trigger();
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_NE(document("a.psm"), nullptr);
}

TEST_F(Questions, pathInAQuestionIsNoMarkup)
{
    QDir(dir.path()).mkdir("<b>");
    type(open("<b>/a&b.psm", "NOP"), "X");
    ModalHelper helper([](QDialog* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        EXPECT_TRUE(box->text().contains("&lt;b&gt;/a&amp;b.psm"));
        box->button(QMessageBox::No)->click();
    });
    editor.closeAllFiles();
    EXPECT_EQ(helper.seen(), 1);
}

} // namespace
