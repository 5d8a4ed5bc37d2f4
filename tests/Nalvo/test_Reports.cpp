// What an action reports is on the screen when the action has ended, also if it let the assembler run on its way.

#include "FullDisk.h"
#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "EditorWidget.h"
#include "ModConfig.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModSources.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMessageBox>

using nsModEditor::EditorWidget;

namespace {

class Reports : public MainWindowFixture
{
protected:
    Reports()
    {
        writeSetting("ModGui/width", "1200");
        writeSetting("ModGui/height", "800");
    }
    ~Reports() override
    {
        if (window != nullptr) {
            for (EditorWidget* widget : editor()->editorWidgets())
                widget->clearModified();
        }
    }

    /// Writes a project with these sources and open documents, and the sources main.psm and second.psm.
    QString makeProject(const QString& sources = "main.psm:second.psm", const QString& openFiles = QString(),
                        const QString& name = "p.nalvo")
    {
        writeFile("main.psm", "        LOAD s0, 1\n");
        // Nothing in it calls for a warning.
        writeFile("second.psm", "        LOAD s1, 2\n#ORG ADDR, 0x3FF\nvector: JUMP vector\n");
        const QString text = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n<project version=\"3\">\n"
                             "<PrjInfo><title>Title</title></PrjInfo>\n<sources><srcFiles>" +
                             sources + "</srcFiles></sources>\n<ModEditor><openFiles>" + openFiles +
                             "</openFiles></ModEditor>\n"
                             "<ModProcessor><processor>Xilinx PicoBlaze 3</processor></ModProcessor>\n</project>\n";
        return writeFile(name, text.toUtf8());
    }
    nsModPrj::ModPrj* prj() const { return module<nsModPrj::ModPrj>(); }
    nsModEditor::ModEditor* editor() const { return module<nsModEditor::ModEditor>(); }
    nsModSources::ModSources* sources() const { return module<nsModSources::ModSources>(); }
    EditorWidget* openDocument(const QString& path)
    {
        EXPECT_TRUE(editor()->openFile(path));
        return qobject_cast<EditorWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    }
    /// Puts a folder in the place of a file: nobody can write there any more, not even root.
    static void blockFile(const QString& path)
    {
        EXPECT_TRUE(QFile::remove(path));
        EXPECT_TRUE(QDir().mkpath(path));
    }

    /// Does a line with this text stand in the message view, with all groups around it unfolded?
    bool isShown(const QString& text) const
    {
        for (QTreeWidgetItemIterator it(messageView()); *it != nullptr; ++it) {
            if ((*it)->text(0) != text)
                continue;
            bool unfolded = messageView()->isVisible();
            for (QTreeWidgetItem* group = (*it)->parent(); group != nullptr; group = group->parent())
                unfolded = unfolded && group->isExpanded();
            return unfolded;
        }
        return false;
    }
    bool hasRun() const { return messageTexts().contains("Assembling..."); }
    std::string texts() const { return messageTexts().join('\n').toStdString(); }
    int topLines() const { return messageView()->topLevelItemCount(); }
    QString topLine(int row) const { return messageView()->topLevelItem(row)->text(0); }
};

void answerYes(QDialog* dialog)
{
    auto* box = qobject_cast<QMessageBox*>(dialog);
    ASSERT_NE(box, nullptr);
    box->button(QMessageBox::Yes)->click();
}

} // namespace

TEST_F(Reports, aVanishedSourceIsNamedWhenTheProjectHasOpened)
{
    makeWindow();
    const QString file = makeProject("main.psm:gone.psm");
    ASSERT_TRUE(prj()->openPrj(file));
    EXPECT_TRUE(hasRun());
    EXPECT_TRUE(isShown("File does not exist: " + projectDir() + "/gone.psm")) << texts();
}

TEST_F(Reports, theEntryOfAVanishedSourceDoesNotLeaveTheProjectInSilence)
{
    makeWindow();
    const QString file = makeProject("main.psm:gone.psm");
    ASSERT_TRUE(prj()->openPrj(file));
    ASSERT_TRUE(prj()->closePrj());
    const QString text = "Removed from the project, as it did not exist: " + projectDir() + "/gone.psm";
    EXPECT_TRUE(isShown(text)) << texts();
    QFile saved(file);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_FALSE(saved.readAll().contains("gone.psm"));
    // Once is enough.
    ASSERT_TRUE(prj()->openPrj(file));
    ASSERT_TRUE(prj()->closePrj());
    EXPECT_FALSE(messageTexts().contains(text));
}

TEST_F(Reports, aDocumentThatCanNotBeOpenedIsNamedWhenTheProjectHasOpened)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject("main.psm:second.psm", "gone.txt:main.psm")));
    EXPECT_TRUE(hasRun());
    EXPECT_TRUE(isShown("File does not exist: " + projectDir() + "/gone.txt")) << texts();
    EXPECT_EQ(editor()->editorWidgets().size(), 1);
}

TEST_F(Reports, aCleanOpenIsOneFoldedLine)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject()));
    ASSERT_EQ(topLines(), 1) << texts();
    EXPECT_EQ(topLine(0), QString("Opening project p.nalvo..."));
    EXPECT_FALSE(messageView()->topLevelItem(0)->isExpanded());
    EXPECT_TRUE(messageTexts().contains("Open project: Done"));
    // The next action starts with an empty view.
    openDocument(projectDir() + "/main.psm");
    editor()->saveFile();
    ASSERT_EQ(topLines(), 1) << texts();
    EXPECT_EQ(topLine(0), QString("Saving..."));
}

TEST_F(Reports, aSaveThatFailsSaysSoAfterTheRunToo)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject()));
    EditorWidget* widget = openDocument(projectDir() + "/main.psm");
    widget->insertText("; typed\n");
    blockFile(projectDir() + "/main.psm");
    EXPECT_FALSE(editor()->saveFile());
    EXPECT_TRUE(hasRun());
    EXPECT_TRUE(isShown("Can not open file: " + projectDir() + "/main.psm")) << texts();
    EXPECT_TRUE(widget->isModified());
}

TEST_F(Reports, aFullDiskIsNamedAfterTheRunToo)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject()));
    EditorWidget* widget = openDocument(projectDir() + "/main.psm");
    // The second document can be saved, and the run that follows succeeds with the old text of the first one.
    openDocument(projectDir() + "/second.psm")->insertText("; typed\n");
    widget->insertText(QString("; 0123456789\n").repeated(20000));
    {
        const FullDisk disk(50000);
        editor()->saveAllFiles();
    }
    EXPECT_TRUE(hasRun());
    EXPECT_TRUE(isShown("Can not write data to file: " + projectDir() + "/main.psm")) << texts();
    EXPECT_FALSE(isShown("Can not write data to file: " + projectDir() + "/second.psm")) << texts();
    EXPECT_TRUE(widget->isModified());
    EXPECT_EQ(QFile(projectDir() + "/main.psm").size(), 19);
    EXPECT_TRUE(topLine(0) == "Saving..." && messageView()->topLevelItem(0)->isExpanded()) << texts();
}

TEST_F(Reports, theProjectBeforeThatCanNotBeSavedIsNamedWhenTheNextOneHasOpened)
{
    makeWindow();
    const QString first = makeProject();
    const QString second = makeProject("main.psm:second.psm", QString(), "next.nalvo");
    ASSERT_TRUE(prj()->openPrj(first));
    blockFile(first);
    ASSERT_TRUE(prj()->openPrj(second));
    EXPECT_TRUE(hasRun());
    EXPECT_TRUE(isShown("Project file is directory: " + first)) << texts();
}

TEST_F(Reports, theSameWhenTheNextProjectIsMadeOrChosenInTheProjectManager)
{
    makeWindow();
    const QString first = makeProject();
    ASSERT_TRUE(prj()->openPrj(first));
    blockFile(first);
    prj()->prjMngrHndlEventGenerateOpen(projectDir() + "/made.nalvo", "Made");
    EXPECT_EQ(prj()->prjFileName(), QString("made.nalvo"));
    EXPECT_TRUE(isShown("Project file is directory: " + first)) << texts();
    blockFile(projectDir() + "/made.nalvo");
    prj()->prjMngrHndlEventOpen(makeProject("main.psm", QString(), "next.nalvo"));
    EXPECT_TRUE(isShown("Project file is directory: " + projectDir() + "/made.nalvo")) << texts();
    EXPECT_EQ(topLines(), 1) << texts();
}

TEST_F(Reports, aCloseThatCanNotSaveStaysUnfolded)
{
    makeWindow();
    const QString file = makeProject();
    ASSERT_TRUE(prj()->openPrj(file));
    blockFile(file);
    prj()->closePrj();
    EXPECT_TRUE(isShown("Project file is directory: " + file)) << texts();
    EXPECT_EQ(topLine(0), QString("Closing project p.nalvo..."));
}

TEST_F(Reports, anAddedFileIsNamedAndTheWarningBeforeItStays)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject("main.psm")));
    const QString latin1 = writeFile("latin1.psm", "; \xe4\n");
    ModalAnswers answers({answerYes});
    ASSERT_TRUE(editor()->openFile(latin1));
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_TRUE(hasRun());
    EXPECT_TRUE(isShown("File is no UTF-8 text, it is read and written as ISO 8859-1: " + latin1)) << texts();
    EXPECT_TRUE(messageTexts().contains("Added file to the project: " + latin1)) << texts();
}

TEST_F(Reports, aDocumentThatCanNotBeSavedAtItsCloseIsNamedAfterTheNextOneHasLetARunStart)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject("main.psm")));
    EditorWidget* widget = openDocument(projectDir() + "/main.psm");
    widget->insertText("; typed\n");
    blockFile(projectDir() + "/main.psm");
    editor()->newFile("; new\n");
    auto* untitled = qobject_cast<EditorWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    untitled->insertText("; more\n");
    const QString name = projectDir() + "/added.psm";
    const auto chooseName = [&](QDialog* dialog) {
        dialog->findChild<QLineEdit*>()->setText(name);
        dialog->accept();
    };
    ModalAnswers answers({answerYes, answerYes, chooseName, answerYes});
    editor()->closeAllFiles();
    EXPECT_EQ(answers.seen(), 4);
    EXPECT_TRUE(QFile::exists(name));
    EXPECT_TRUE(hasRun());
    EXPECT_TRUE(isShown("Can not open file: " + projectDir() + "/main.psm")) << texts();
}

TEST_F(Reports, aCancelledDialogIsNoFailure)
{
    makeWindow();
    ASSERT_TRUE(prj()->openPrj(makeProject()));
    editor()->newFile("; new\n");
    ModalAnswers answers({[](QDialog* dialog) { dialog->reject(); }});
    editor()->saveFile();
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_FALSE(messageTexts().contains("Failure")) << texts();
}

TEST_F(Reports, appliedSettingsThatCanNotBeSavedSaySoInTheirGroup)
{
    makeWindow();
    const QString file = makeProject();
    ASSERT_TRUE(prj()->openPrj(file));
    auto* config = module<nsModConfig::ModConfig>();
    config->openDialog();
    blockFile(file);
    config->closeDialog(true);
    EXPECT_TRUE(hasRun());
    EXPECT_TRUE(isShown("Project file is directory: " + file)) << texts();
    EXPECT_EQ(topLines(), 1) << texts();
}
