// The import of whole programs in the real window, by real keys and mouse: from the menu to an assembled project.

#include "MainWindowFixture.h"

#include "EditorWidget.h"
#include "ExampleFolder.h"
#include "FullDisk.h"
#include "ImportProgramDialog.h"
#include "ImportProgramReport.h"
#include "ImportWidget.h"
#include "ModAsmFeHookIf.h"
#include "ModCfgApp.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModalAnswers.h"
#include "OrdinaryUser.h"
#include "QtPrinters.h"

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>

using nsModEditor::EditorWidget;
using nsModImport::ImportProgramDialog;
using nsModImport::ImportProgramReport;
using nsModImport::ImportWidget;

namespace {

const char* const program = "        CONSTANT led, 01\nmain:   OUTPUT s0, led ; out\n        JUMP main\n";
const char* const words = "2C001\n34000\n";

class ImportProgramInWindow : public MainWindowFixture
{
protected:
    ImportProgramInWindow()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        makeTestWindow();
    }
    ~ImportProgramInWindow() override
    {
        if (window == nullptr)
            return;
        for (EditorWidget* widget : module<nsModEditor::ModEditor>()->editorWidgets())
            widget->clearModified();
    }
    void makeTestWindow()
    {
        makeWindow();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    }

    nsModPrj::ModPrj* prj() const { return module<nsModPrj::ModPrj>(); }
    ImportProgramDialog* dialog() const { return window->findChild<ImportProgramDialog*>(); }
    ImportProgramReport* report() const { return dialog()->findChild<ImportProgramReport*>(); }
    QPushButton* button(const QString& name) const { return dialog()->findChild<QPushButton*>(name); }
    QLineEdit* field(const QString& name) const { return dialog()->findChild<QWidget*>(name)->findChild<QLineEdit*>(); }
    QString hint() const { return dialog()->findChild<QLabel*>("importStep")->text(); }
    QTreeWidget* list(const QString& name) const { return dialog()->findChild<QTreeWidget*>(name); }
    QStringList messages() const
    {
        QStringList result;
        for (int i = 0; i < list("importMessages")->topLevelItemCount(); ++i)
            result.append(list("importMessages")->topLevelItem(i)->text(0));
        return result;
    }

    /// By the menu, which is there without a project.
    void openDialog()
    {
        QMenuBar* bar = window->menuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(bar->actions().at(1)).center());
        QMenu* menu = bar->actions().at(1)->menu();
        for (QAction* action : menu->actions()) {
            if (action->text() == "Import program...")
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        }
        ASSERT_NE(dialog(), nullptr);
        // Without a window manager the menu would stay the active window.
        QApplication::setActiveWindow(dialog());
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog(), 60000));
    }
    /// The user types into the field.
    void enter(const QString& name, const QString& text)
    {
        QLineEdit* edit = field(name);
        QTest::mouseClick(edit, Qt::LeftButton);
        edit->selectAll();
        if (text.isEmpty())
            QTest::keyClick(edit, Qt::Key_Delete);
        else
            QTest::keyClicks(edit, text);
    }
    void press(const QString& name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    static void doubleClick(QTreeWidgetItem* item)
    {
        const QPoint place = item->treeWidget()->visualItemRect(item).center();
        QTest::mouseClick(item->treeWidget()->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(item->treeWidget()->viewport(), Qt::LeftButton, {}, place);
    }
    void waitForEnd()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !dialog()->isBusy(); }, 60000));
    }
    void convert()
    {
        ASSERT_TRUE(button("importProgramConvert")->isEnabled()) << qPrintable(hint());
        press("importProgramConvert");
        waitForEnd();
    }
    void picture(const QString& name)
    {
        settleAnimations();
        screenshot(name, dialog());
    }
    QMessageBox* question() const { return dialog()->findChild<QMessageBox*>("importOverwrite"); }
    bool assemble()
    {
        for (QAction* action : window->findChildren<QAction*>()) {
            if (action->text() == "Run assembler")
                action->trigger();
        }
        return module<ModAsmFeHookIf>()->isAssembled();
    }
    QByteArray read(const QString& name) const
    {
        QFile file(projectDir() + '/' + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    QStringList entries() const
    {
        return QDir(projectDir()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    static void deleteLeftOver() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
    /// A program that takes long enough for all that a test does meanwhile, until it is cancelled.
    QString writeLongProgram() const
    {
        QByteArray text = "main: JUMP main\n";
        for (int i = 0; i < 200000; ++i)
            text += "; line\n CONSTANT value" + QByteArray::number(i) + "_, 1F\n";
        return writeFile("long.psm", text);
    }
};

struct Example
{
    const char* dialect; ///< its entry in the list
    const char* folder;
    const char* source;
    const char* reference;
    const char* processor;
};

void PrintTo(const Example& example, std::ostream* out)
{
    *out << example.folder;
}

class ImportedExampleInWindow : public ImportProgramInWindow, public ::testing::WithParamInterface<Example>
{
};

} // namespace

TEST_P(ImportedExampleInWindow, isProvedOpenedAndAssembled)
{
    const Example& example = GetParam();
    copyFolder(QStringLiteral(NALVO_SOURCE_DIR "/examples/import/") + example.folder, projectDir());
    // From the page, which belongs to a project.
    writeFile("p.nalvo", "<project version=\"3\"/>");
    ASSERT_TRUE(prj()->openPrj(projectDir() + "/p.nalvo"));
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->text() == "Import files...")
            action->trigger();
    }
    auto* page = window->findChild<ImportWidget*>();
    ASSERT_NE(page, nullptr);
    QTest::mouseClick(page->findChild<QPushButton*>("importProgram"), Qt::LeftButton);
    ASSERT_NE(dialog(), nullptr);
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog(), 60000));

    enter("importProgramSource", projectDir() + '/' + example.source);
    enter("importProgramReference", projectDir() + '/' + example.reference);
    auto* dialect = dialog()->findChild<QComboBox*>("importProgramDialect");
    dialect->setFocus();
    QTest::keyClicks(dialect, example.dialect);
    EXPECT_TRUE(dialect->currentText().startsWith(example.dialect));
    const QString name = QFileInfo(example.source).completeBaseName();
    EXPECT_EQ(field("importProgramFolder")->text(), projectDir() + '/' + name);
    QTest::keyClick(dialog(), Qt::Key_Return);
    waitForEnd();
    EXPECT_TRUE(report()->headline().endsWith(" words, all equal")) << qPrintable(report()->headline());
    picture(QString("import-program-%1").arg(example.folder));

    EXPECT_TRUE(button("importProgramOpen")->hasFocus() || button("importProgramOpen")->isDefault());
    QTest::keyClick(dialog(), Qt::Key_Return);
    deleteLeftOver();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(prj()->path(), projectDir() + '/' + name + '/' + name + ".nalvo");
    EXPECT_EQ(prj()->value("ModProcessor/processor", QString()), example.processor);
    EXPECT_TRUE(assemble()) << qPrintable(messageTexts().join('\n'));
}

INSTANTIATE_TEST_SUITE_P(
    All, ImportedExampleInWindow,
    ::testing::Values(Example{"KCPSM3", "kcpsm3", "belt_counter.psm", "belt_counter.hex", "Xilinx PicoBlaze 3"},
                      Example{"KCPSM6", "kcpsm6", "console.psm", "console.log", "Xilinx PicoBlaze 6"},
                      Example{"pBlazIDE", "pblazide", "stepper.psm", "stepper.hex", "Xilinx PicoBlaze 3"},
                      Example{"Mico8", "mico8_vendor", "flash_reader.s", "flash_reader.hex", "Lattice Mico8 v3.x"},
                      Example{"Mico8", "mico8_gnu", "monitor.s", "monitor.hex", "Lattice Mico8 v3.x"}),
    [](const auto& example) { return std::string(example.param.folder); });

TEST_F(ImportProgramInWindow, needsNoProjectAndSaysWhatIsMissing)
{
    openDialog();
    EXPECT_FALSE(prj()->isOpen());
    EXPECT_FALSE(button("importProgramConvert")->isEnabled());
    EXPECT_FALSE(button("importProgramStop")->isEnabled());
    EXPECT_FALSE(button("importProgramOpen")->isEnabled());
    EXPECT_EQ(hint(), "Choose the main source of a program.");
    picture("import-program-empty");
    enter("importProgramSource", projectDir() + "/none.psm");
    EXPECT_FALSE(button("importProgramConvert")->isEnabled());
    EXPECT_EQ(hint(), "The file does not exist.");
    enter("importProgramSource", writeFile("p.psm", program));
    EXPECT_TRUE(button("importProgramConvert")->isEnabled());
    enter("importProgramReference", projectDir());
    EXPECT_EQ(hint(), "This is a folder, not a file.");
    enter("importProgramReference", QString());
    enter("importProgramFolder", projectDir() + "/p.psm");
    EXPECT_EQ(hint(), "This is a file, not a folder.");
    enter("importProgramFolder", QString());
    EXPECT_EQ(hint(), "Choose the folder of the project.");
    enter("importProgramFolder", "beside");
    convert();
    EXPECT_EQ(report()->headline(), "2 words, not proved: there is no reference image");
    EXPECT_EQ(read("beside/src/p.psm"), "        #EQU led, 0x01\nmain:   WRPRT s0, led ; out\n        JUMP main\n");
    picture("import-program-unproved");
    press("importProgramOpen");
    EXPECT_EQ(prj()->path(), projectDir() + "/beside/p.nalvo");
    EXPECT_TRUE(assemble()) << qPrintable(messageTexts().join('\n'));
}

TEST_F(ImportProgramInWindow, differencesAndMessagesLeadToTheSource)
{
    const QString source = writeFile("p.psm", program);
    openDialog();
    enter("importProgramSource", source);
    enter("importProgramReference", writeFile("p.hex", "2C002\n34000\n"));
    convert();
    EXPECT_EQ(report()->headline(), "1 word differs, 1 word equal");
    QTreeWidget* differences = list("importDifferences");
    ASSERT_EQ(differences->topLevelItemCount(), 1);
    QTreeWidgetItem* difference = differences->topLevelItem(0);
    EXPECT_EQ(difference->text(0), "000");
    EXPECT_TRUE(difference->text(1).startsWith("2C001 WRPRT s0, 1 ")) << qPrintable(difference->text(1));
    EXPECT_TRUE(difference->text(2).startsWith("2C002 WRPRT s0, 2 ")) << qPrintable(difference->text(2));
    picture("import-program-different");
    doubleClick(difference);
    auto* front = qobject_cast<EditorWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    ASSERT_NE(front, nullptr);
    EXPECT_EQ(front->filePath(), source);
    QString path;
    int line = -1;
    EXPECT_TRUE(module<nsModEditor::ModEditor>()->cursorLine(&path, &line));
    EXPECT_EQ(line, 1);

    writeFile("p.psm", "main: LOAD s0, 1\n      FROB s0\n      JUMP main\n");
    enter("importProgramReference", QString());
    enter("importProgramFolder", projectDir() + "/other");
    convert();
    EXPECT_EQ(report()->headline(), "1 line left to do: the assembler stops there.");
    QTreeWidgetItem* message = list("importMessages")->topLevelItem(0);
    EXPECT_EQ(message->text(0), "Unknown word: \"FROB\"");
    EXPECT_EQ(message->text(1), "p.psm");
    EXPECT_EQ(message->text(2), "2");
    picture("import-program-left");
    list("importMessages")->setFocus();
    list("importMessages")->setCurrentItem(message);
    QTest::keyClick(list("importMessages"), Qt::Key_Return);
    EXPECT_TRUE(module<nsModEditor::ModEditor>()->cursorLine(&path, &line));
    EXPECT_EQ(line, 1);
    // The editor asks whether the original that it shows belongs to the new project.
    ModalAnswers no({});
    press("importProgramOpen");
    EXPECT_EQ(no.seen(), 1);
    EXPECT_FALSE(assemble());
    EXPECT_TRUE(messageTexts().join('\n').contains("NO_COUNTERPART"));
}

TEST_F(ImportProgramInWindow, nothingIsOverwrittenWithoutAYes)
{
    openDialog();
    enter("importProgramSource", writeFile("p.psm", program));
    QDir(projectDir()).mkpath("p/src");
    writeFile("p/mine.txt", "mine");
    writeFile("p/src/p.psm", "old");
    press("importProgramConvert");
    ASSERT_TRUE(QTest::qWaitFor([this] { return question() != nullptr && question()->isVisible(); }, 60000));
    EXPECT_TRUE(question()->text().contains(projectDir() + "/p")) << "it names the folder";
    screenshot("import-program-question", question());
    EXPECT_FALSE(button("importProgramConvert")->isEnabled());
    QTest::keyClick(question(), Qt::Key_Return);
    waitForEnd();
    deleteLeftOver();
    EXPECT_EQ(report()->headline(), "Nothing was written.");
    EXPECT_EQ(read("p/src/p.psm"), "old");
    EXPECT_FALSE(QFile::exists(projectDir() + "/p/p.nalvo"));
    EXPECT_FALSE(button("importProgramOpen")->isEnabled());

    press("importProgramConvert");
    ASSERT_TRUE(QTest::qWaitFor([this] { return question() != nullptr && question()->isVisible(); }, 60000));
    QTest::mouseClick(question()->button(QMessageBox::Yes), Qt::LeftButton);
    waitForEnd();
    EXPECT_TRUE(read("p/src/p.psm").contains("WRPRT"));
    EXPECT_EQ(read("p/mine.txt"), "mine");
    EXPECT_EQ(read("p.psm"), program);
}

TEST_F(ImportProgramInWindow, theOriginalsAreNeverTouched)
{
    // The result would have its source in the place of the original one.
    QDir(projectDir()).mkpath("src");
    openDialog();
    enter("importProgramSource", writeFile("src/p.psm", program));
    enter("importProgramFolder", projectDir());
    press("importProgramConvert");
    ASSERT_TRUE(QTest::qWaitFor([this] { return question() != nullptr && question()->isVisible(); }, 60000));
    QTest::mouseClick(question()->button(QMessageBox::Yes), Qt::LeftButton);
    waitForEnd();
    EXPECT_EQ(read("src/p.psm"), program);
    EXPECT_TRUE(messages().join('\n').contains("is a file of the original program, which is never overwritten"));
    EXPECT_EQ(report()->headline(), "Nothing was written.");
}

TEST_F(ImportProgramInWindow, aStoppedImportLeavesNothing)
{
    const QString source = writeLongProgram();
    for (const bool isKey : {true, false}) {
        openDialog();
        enter("importProgramSource", source);
        press("importProgramConvert");
        ASSERT_TRUE(dialog()->isBusy());
        EXPECT_FALSE(button("importProgramConvert")->isEnabled()) << "a second start";
        EXPECT_TRUE(button("importProgramStop")->isEnabled());
        picture("import-program-running");
        dialog()->convert();
        if (isKey)
            QTest::keyClick(dialog(), Qt::Key_Escape);
        else
            press("importProgramStop");
        EXPECT_FALSE(dialog()->isBusy());
        EXPECT_EQ(report()->headline(), "Stopped: nothing was written.");
        picture("import-program-stopped");
        // The same key once more closes the dialog.
        QTest::keyClick(dialog(), Qt::Key_Escape);
        deleteLeftOver();
        EXPECT_EQ(dialog(), nullptr);
    }
    // Another import need not wait for those that were stopped.
    openDialog();
    enter("importProgramSource", writeFile("p.psm", program));
    convert();
    EXPECT_TRUE(button("importProgramOpen")->isEnabled());
    closeWindow();
    window.reset();
    EXPECT_EQ(entries(), QStringList({"long.psm", "p", "p.psm"}));
}

TEST_F(ImportProgramInWindow, dialogProjectAndWindowCloseInTheMiddle)
{
    const QString source = writeLongProgram();
    writeFile("q.nalvo", "<project version=\"3\"/>");
    ASSERT_TRUE(prj()->openPrj(projectDir() + "/q.nalvo"));
    openDialog();
    enter("importProgramSource", source);
    press("importProgramConvert");
    prj()->closePrj();
    EXPECT_NE(dialog(), nullptr) << "it belongs to no project";
    EXPECT_TRUE(dialog()->isBusy());
    dialog()->close();
    deleteLeftOver();
    EXPECT_EQ(dialog(), nullptr);

    openDialog();
    press("importProgramConvert");
    EXPECT_TRUE(dialog()->isBusy());
    closeWindow();
    deleteLeftOver();
    EXPECT_EQ(dialog(), nullptr);
    window.reset();

    makeTestWindow();
    openDialog();
    press("importProgramConvert");
    window.reset();
    EXPECT_EQ(entries(), QStringList({"long.psm", "q.nalvo"}));
}

TEST_F(ImportProgramInWindow, theWindowClosesUnderTheQuestion)
{
    openDialog();
    enter("importProgramSource", writeFile("p.psm", program));
    QDir(projectDir()).mkpath("p");
    writeFile("p/mine.txt", "mine");
    press("importProgramConvert");
    ASSERT_TRUE(QTest::qWaitFor([this] { return question() != nullptr && question()->isVisible(); }, 60000));
    window.reset();
    EXPECT_EQ(QDir(projectDir() + "/p").entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList("mine.txt"));
}

TEST_F(ImportProgramInWindow, whatVanishesIsReported)
{
    openDialog();
    enter("importProgramSource", writeFile("p.psm", program));
    QFile::remove(projectDir() + "/p.psm");
    press("importProgramConvert");
    waitForEnd();
    EXPECT_EQ(report()->headline(), "Not imported: nothing was written.");
    EXPECT_TRUE(messages().constFirst().startsWith("Can not read \"")) << qPrintable(messages().join('\n'));

    // The folder of the program vanishes between the conversion and a look at a message.
    QDir(projectDir()).mkpath("gone");
    enter("importProgramSource", writeFile("gone/p.psm", "main: FROB s0\n JUMP main\n"));
    enter("importProgramFolder", projectDir() + "/out");
    convert();
    QDir(projectDir() + "/gone").removeRecursively();
    doubleClick(list("importMessages")->topLevelItem(0));
    EXPECT_TRUE(messageTexts().join('\n').contains("File does not exist"));
    // And so does the project before it is opened.
    QDir(projectDir() + "/out").removeRecursively();
    press("importProgramOpen");
    EXPECT_FALSE(prj()->isOpen());
    EXPECT_NE(dialog(), nullptr);
    // A folder that was removed is made anew.
    writeFile("p.psm", program);
    enter("importProgramSource", projectDir() + "/p.psm");
    convert();
    EXPECT_TRUE(QFile::exists(projectDir() + "/out/p.nalvo"));
}

TEST_F(ImportProgramInWindow, aFolderThatTakesNothingIsReported)
{
    QDir(projectDir()).mkpath("locked");
    const QString source = writeFile("p.psm", program);
    const auto everyone =
        QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    openDialog();
    enter("importProgramSource", source);
    enter("importProgramFolder", projectDir() + "/locked/p");
    for (const QString& path : {folder.path(), projectDir(), projectDir() + "/locked", source})
        QFile::setPermissions(path, everyone);
    {
        OrdinaryUser user;
        convert();
    }
    EXPECT_EQ(report()->headline(), "Nothing was written.");
    EXPECT_TRUE(messages().constFirst().startsWith("Can not write \"")) << qPrintable(messages().join('\n'));
    EXPECT_FALSE(button("importProgramOpen")->isEnabled());
    for (const QString& path : {folder.path(), projectDir(), projectDir() + "/locked"})
        QFile::setPermissions(path, everyone | QFile::WriteOwner);
    EXPECT_TRUE(QDir(projectDir() + "/locked").isEmpty());
    // A file in the way of the folder.
    enter("importProgramFolder", source + "/p");
    convert();
    EXPECT_TRUE(messages().constFirst().startsWith("Can not write \"")) << qPrintable(messages().join('\n'));
}

TEST_F(ImportProgramInWindow, anImageAloneBecomesAProject)
{
    openDialog();
    auto* tabs = dialog()->findChild<QTabWidget*>("importProgramTabs");
    QTest::keyClick(dialog(), Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_EQ(hint(), "Choose the image of a program.");
    picture("import-program-image-empty");
    enter("importProgramImage", writeFile("rom.hex", words));
    auto* processor = dialog()->findChild<QComboBox*>("importProgramProcessor");
    processor->setFocus();
    QTest::keyClick(processor, Qt::Key_Home);
    convert();
    EXPECT_EQ(report()->headline(), "2 words, which the sources assemble to again");
    picture("import-program-image");
    press("importProgramOpen");
    EXPECT_EQ(prj()->path(), projectDir() + "/rom/rom.nalvo");
    EXPECT_TRUE(assemble()) << qPrintable(messageTexts().join('\n'));
}

TEST_F(ImportProgramInWindow, wordsThatAreNoInstructionSayWhy)
{
    openDialog();
    dialog()->findChild<QTabWidget*>("importProgramTabs")->setCurrentIndex(1);
    enter("importProgramImage", writeFile("rom.hex", "34000\n3FFFF\n"));
    convert();
    EXPECT_TRUE(messages().constFirst().contains("The Xilinx PicoBlaze 3 has no instruction with this word"))
        << qPrintable(messages().join('\n'));
    EXPECT_EQ(report()->headline(), "1 line left to do: the assembler stops there.");
}

TEST_F(ImportProgramInWindow, whatWasEnteredIsKept)
{
    openDialog();
    enter("importProgramSource", writeFile("p.psm", program));
    enter("importProgramFolder", projectDir() + "/mine");
    dialog()->findChild<QComboBox*>("importProgramDialect")->setCurrentIndex(2);
    ModalAnswers answers({[&](QDialog* choice) {
        EXPECT_NE(qobject_cast<QFileDialog*>(choice), nullptr);
        QTest::keyClicks(choice->focusWidget(), projectDir());
        QTest::keyClick(choice->focusWidget(), Qt::Key_Return);
    }});
    press("importFolderAdd");
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_TRUE(closeWindow());
    makeTestWindow();
    openDialog();
    EXPECT_EQ(field("importProgramSource")->text(), projectDir() + "/p.psm");
    EXPECT_EQ(field("importProgramFolder")->text(), projectDir() + "/mine");
    EXPECT_EQ(dialog()->findChild<QComboBox*>("importProgramDialect")->currentText(), "KCPSM6");
    auto* folders = dialog()->findChild<QListWidget*>("importFolders");
    ASSERT_EQ(folders->count(), 1);
    EXPECT_EQ(folders->item(0)->text(), projectDir());
    folders->setFocus();
    folders->setCurrentRow(0);
    QTest::keyClick(folders, Qt::Key_Delete);
    EXPECT_EQ(folders->count(), 0);
}

TEST_F(ImportProgramInWindow, takesADroppedFileAndOpensOnce)
{
    openDialog();
    ImportProgramDialog* first = dialog();
    openDialog();
    EXPECT_EQ(window->findChildren<ImportProgramDialog*>(), QList<ImportProgramDialog*>{first});
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(writeFile("p.psm", program))});
    QDragEnterEvent enterEvent({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(first, &enterEvent);
    EXPECT_TRUE(enterEvent.isAccepted());
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(first, &drop);
    EXPECT_EQ(field("importProgramSource")->text(), projectDir() + "/p.psm");
    EXPECT_EQ(field("importProgramFolder")->text(), projectDir() + "/p") << "beside the source";
}

TEST_F(ImportProgramInWindow, asksForUnsavedWorkBeforeTheProjectIsOpened)
{
    writeFile("q.nalvo", "<project version=\"3\"><sources><srcFiles>q.psm</srcFiles></sources></project>");
    writeFile("q.psm", "NOP\n");
    ASSERT_TRUE(prj()->openPrj(projectDir() + "/q.nalvo"));
    auto* editor = module<nsModEditor::ModEditor>();
    ASSERT_TRUE(editor->openFile(projectDir() + "/q.psm"));
    QTest::keyClicks(editor->editorWidgets().constFirst(), "; changed ");
    openDialog();
    enter("importProgramSource", writeFile("p.psm", program));
    convert();
    ModalAnswers answers({[](QDialog* box) {
        QTest::mouseClick(qobject_cast<QMessageBox*>(box)->button(QMessageBox::Yes), Qt::LeftButton);
    }});
    press("importProgramOpen");
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_TRUE(read("q.psm").startsWith("; changed ")) << read("q.psm").constData();
    EXPECT_EQ(prj()->path(), projectDir() + "/p/p.nalvo");
}
