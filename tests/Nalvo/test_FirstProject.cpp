// The first project of a new user, from an empty settings folder to the bytes of the output files, by mouse and
// keyboard alone.

#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "EditorWidget.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "MyLinkList.h"
#include "QtPrinters.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

using nsModEditor::EditorWidget;

namespace {

// The program counts on port 128. A number goes into the low byte, the register into bits 8 to 11, an address into the
// low ten bits:
//   0  LOAD s0, 0       0x00000 + 0<<8 + 0x00   = 00000
//   1  WRPRT s0, 128    0x2C000 + 0<<8 + 0x80   = 2C080
//   2  ADD s0, 1        0x18000 + 0<<8 + 0x01   = 18001
//   3  SL0 sA           0x20000 + 10<<8 + 0x06  = 20A06
//   4  JUMP loop        0x34000 + 1             = 34001
const char* const programLines[] = {"start:  LOAD s0, 0", "loop:   WRPRT s0, 128", "        ADD s0, 1",
                                    "        SL0 sA", "        JUMP loop"};
const char* const programText = "start:  LOAD s0, 0\nloop:   WRPRT s0, 128\n        ADD s0, 1\n        SL0 sA\n"
                                "        JUMP loop\n";
const char* const programHex = "00000\n2C080\n18001\n20A06\n34001\n";
/// Words of a page, to which the memory is filled up with the initial value.
const int memorySize = 1024;

/// One word a line, the whole memory.
QByteArray expectedHex()
{
    return QByteArray(programHex) + QByteArray("00000\n").repeated(memorySize - 5);
}

/// The written words alone: the line of the block ends in CR and LF, a word's in LF.
QByteArray expectedMem()
{
    return QByteArray("@0\r\n") + programHex;
}

class FirstProject : public MainWindowFixture
{
protected:
    FirstProject()
    {
        // A screen full; everything else is as on the first day.
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        start();
    }

    void start()
    {
        makeWindow();
        window->activateWindow();
        QCoreApplication::processEvents();
    }

    QString project() const { return projectDir() + "/blinker.nalvo"; }
    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QWidget* manager() const { return window->findChild<QWidget*>("prjMngr"); }
    QWidget* dialog() const { return window->findChild<QWidget*>("configDialog"); }
    EditorWidget* document() const
    {
        return qobject_cast<EditorWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    }

    static void click(QWidget* widget)
    {
        ASSERT_NE(widget, nullptr);
        ASSERT_TRUE(widget->isVisible()) << qPrintable(widget->objectName());
        ASSERT_TRUE(widget->isEnabled()) << qPrintable(widget->objectName());
        QTest::mouseClick(widget, Qt::LeftButton);
    }
    void clickButton(QWidget* parent, const QString& text)
    {
        ASSERT_NE(parent, nullptr);
        for (QPushButton* button : parent->findChildren<QPushButton*>()) {
            if (button->text() == text && button->isVisible()) {
                click(button);
                return;
            }
        }
        ADD_FAILURE() << "no button " << qPrintable(text);
    }
    /// The button in sight. Bars that were filled anew lay out their buttons when the window comes to rest.
    QToolButton* tool(const QString& text) const
    {
        for (QToolButton* button : window->findChildren<QToolButton*>()) {
            if (button->defaultAction() != nullptr && button->defaultAction()->text() == text && button->isVisible())
                return button;
        }
        return nullptr;
    }
    void clickTool(const QString& text)
    {
        QCoreApplication::processEvents();
        SCOPED_TRACE(qPrintable(text));
        click(tool(text));
    }
    void clickTab(QTabWidget* tabs, int index)
    {
        ASSERT_NE(tabs, nullptr);
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier, tabs->tabBar()->tabRect(index).center());
        ASSERT_EQ(tabs->currentIndex(), index);
    }
    /// Types where the keyboard stands.
    void type(const QString& text)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClicks(QApplication::focusWidget(), text);
    }
    void press(Qt::Key key)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key);
    }
    /// Turns the check box with the keyboard. @param part object name of the part of the page
    void toggle(const QString& part, const QString& name)
    {
        auto* box = dialog()->findChild<QWidget*>(part)->findChild<QCheckBox*>(name);
        ASSERT_NE(box, nullptr) << qPrintable(part + ' ' + name);
        ASSERT_TRUE(box->isEnabled()) << qPrintable(part + ' ' + name);
        const bool before = box->isChecked();
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Space);
        EXPECT_NE(box->isChecked(), before);
    }
    void showConfigPage(const QString& title)
    {
        ASSERT_NE(dialog(), nullptr);
        auto* list = dialog()->findChild<QListWidget*>("configList");
        const QList<QListWidgetItem*> items = list->findItems(title, Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1) << qPrintable(title);
        list->scrollToItem(items.first());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(items.first()).center());
        ASSERT_EQ(list->currentItem(), items.first());
    }
    bool hasMessage(const QString& start) const
    {
        for (const QString& text : messageTexts()) {
            if (text.startsWith(start))
                return true;
        }
        return false;
    }

    /// What the user sees leads to these steps.
    void expectStepsExist(const QStringList& steps) const;
    void generateProject();
    void writeProgram();
    void configure();
    void chooseProcessor();
    void enableOutput(const QString& part, const QString& file);
    void enableOutputs();
    void openFromStartPage();
};

void FirstProject::expectStepsExist(const QStringList& steps) const
{
    settleLayout();
    for (const MyLinkList* list : window->findChildren<MyLinkList*>()) {
        if (!list->isVisible())
            continue;
        for (const QString& step : steps)
            EXPECT_TRUE(list->texts().contains(step)) << qPrintable(step);
        return;
    }
    ADD_FAILURE() << "nothing leads on";
}

void FirstProject::generateProject()
{
    auto* tabs = manager()->findChild<QTabWidget*>();
    clickTab(tabs, 0);
    click(manager()->findChild<QWidget*>("prjMngrNewFile")->findChild<QLineEdit*>());
    type(projectDir() + "/blinker");
    click(manager()->findChild<QLineEdit*>("prjMngrNewTitle"));
    type("Blinker");
    screenshot("first-1-new-project");
    clickButton(manager(), "Generate and open project");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    expectStepsExist({"Write the first source", "Choose a processor", "Choose the output files"});
    screenshot("first-1-opened");
}

void FirstProject::writeProgram()
{
    clickTool("New...");
    ASSERT_NE(document(), nullptr);
    EXPECT_TRUE(document()->hasFocus()) << "one can type at once";
    for (const char* line : programLines) {
        // The editor indents a new line as the one above; a label stands at the start of its line.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_End, Qt::ShiftModifier);
        type(line);
        press(Qt::Key_Return);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End, Qt::ShiftModifier);
    press(Qt::Key_Delete);
    ASSERT_EQ(document()->toPlainText(), QString(programText));
    ModalAnswers answers({[](QDialog* box) {
                              EXPECT_EQ(box->windowTitle(), "Save file");
                              QTest::keyClicks(box->findChild<QLineEdit*>("fileNameEdit"), "main");
                              QTest::keyClick(box->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
                          },
                          [](QDialog* box) {
                              EXPECT_EQ(box->windowTitle(), "Add file to project");
                              auto* question = qobject_cast<QMessageBox*>(box);
                              ASSERT_NE(question, nullptr);
                              EXPECT_TRUE(question->text().contains("<b>main.psm</b>")) << qPrintable(question->text());
                              QTest::mouseClick(question->button(QMessageBox::Yes), Qt::LeftButton);
                          }});
    QTest::keySequence(window.get(), QKeySequence(QKeySequence::Save));
    EXPECT_EQ(answers.seen(), 2);
    // A window manager would do this when a dialog closes.
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    EXPECT_EQ(content(projectDir() + "/main.psm"), programText);
    screenshot("first-2-written");
}

void FirstProject::chooseProcessor()
{
    showConfigPage("Processor");
    auto* processor = dialog()->findChild<QComboBox*>("processor");
    ASSERT_NE(processor, nullptr);
    EXPECT_EQ(processor->currentText(), "Unset");
    processor->setFocus();
    for (int i = 0; i < processor->count() && processor->currentText() != "Xilinx PicoBlaze 3"; ++i)
        QTest::keyClick(processor, Qt::Key_Down);
    ASSERT_EQ(processor->currentText(), "Xilinx PicoBlaze 3");
    screenshot("first-3-processor");
}

void FirstProject::enableOutput(const QString& part, const QString& file)
{
    toggle(part, "targetEnable");
    const auto* hint = dialog()->findChild<QWidget*>(part)->findChild<QLabel*>("targetHint");
    EXPECT_EQ(hint->text(), "No output file is given: nothing will be written.");
    auto* edit = dialog()->findChild<QWidget*>(part)->findChild<QWidget*>("targetOutputFile")->findChild<QLineEdit*>();
    ASSERT_NE(edit, nullptr);
    edit->setFocus();
    type(file);
    EXPECT_TRUE(hint->text().isEmpty()) << qPrintable(hint->text());
}

void FirstProject::enableOutputs()
{
    showConfigPage("Assembler");
    auto* hint = dialog()->findChild<QLabel*>("outputHint");
    ASSERT_NE(hint, nullptr);
    EXPECT_TRUE(hint->isVisible()) << "says what is missing";
    ASSERT_NO_FATAL_FAILURE(enableOutput("targetHex", "blinker.hex"));
    ASSERT_NO_FATAL_FAILURE(enableOutput("targetMem", "blinker.mem"));
    EXPECT_FALSE(hint->isVisible());
    toggle("targetMem", "targetGapStuffing");
    // Rows hex and mem, column button 2: button 1 alone stays.
    toggle("targetMapper", "targetEvent21");
    toggle("targetMapper", "targetEvent31");
    screenshot("first-4-outputs");
}

void FirstProject::configure()
{
    ASSERT_NO_FATAL_FAILURE(clickTool("Configure..."));
    ASSERT_NO_FATAL_FAILURE(chooseProcessor());
    ASSERT_NO_FATAL_FAILURE(enableOutputs());
    clickButton(dialog(), "Apply and close");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void FirstProject::openFromStartPage()
{
    auto* tabs = manager()->findChild<QTabWidget*>();
    if (tabs->currentIndex() != 1)
        clickTab(tabs, 1);
    click(manager()->findChild<QWidget*>("prjMngrOpenFile")->findChild<QLineEdit*>());
    type(project());
    clickButton(manager(), "Open project");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

TEST_F(FirstProject, fromNothingToTheBytesOfTheOutput)
{
    ASSERT_FALSE(QFile::exists(project()));
    ASSERT_NO_FATAL_FAILURE(generateProject());
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->isValid());
    EXPECT_EQ(window->windowTitle(), "Nalvo - blinker.nalvo ( Title: Blinker, Project version: 0.1)");
    EXPECT_EQ(manager(), nullptr) << "the start page makes room";

    ASSERT_NO_FATAL_FAILURE(writeProgram());
    EXPECT_TRUE(hasMessage("No assembler backend registerd. Please select a processor.")) << "says what is missing";
    EXPECT_FALSE(tool("Write output files button 1")->isEnabled());

    ASSERT_NO_FATAL_FAILURE(configure());
    EXPECT_EQ(window->findChild<QLabel*>("asmFeStatusBarProcessor")->text(), "Xilinx PicoBlaze 3");
    EXPECT_TRUE(content(project()).contains("<outputFile>blinker.hex</outputFile>")) << content(project()).constData();
    clickTool("Write output files button 2");
    EXPECT_FALSE(QFile::exists(projectDir() + "/blinker.hex")) << "button 2 was turned off";
    EXPECT_FALSE(QFile::exists(projectDir() + "/blinker.mem"));
    clickTool("Write output files button 1");
    screenshot("first-5-output");
    EXPECT_EQ(content(projectDir() + "/blinker.hex"), expectedHex());
    EXPECT_EQ(content(projectDir() + "/blinker.mem"), expectedMem());
}

TEST_F(FirstProject, theNextStartFindsAllAsItWas)
{
    ASSERT_NO_FATAL_FAILURE(generateProject());
    ASSERT_NO_FATAL_FAILURE(writeProgram());
    ASSERT_NO_FATAL_FAILURE(configure());
    clickTool("Write output files button 1");
    ASSERT_NE(document(), nullptr);
    document()->setFocus();
    QTest::keyClick(document(), Qt::Key_Home, Qt::ControlModifier);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    ASSERT_TRUE(closeWindow());
    const QByteArray closed = content(project());
    ASSERT_FALSE(closed.isEmpty());
    ASSERT_TRUE(QFile::remove(projectDir() + "/blinker.hex"));
    ASSERT_TRUE(QFile::remove(projectDir() + "/blinker.mem"));

    start();
    ASSERT_NO_FATAL_FAILURE(openFromStartPage());
    EXPECT_EQ(window->windowTitle(), "Nalvo - blinker.nalvo ( Title: Blinker, Project version: 0.1)");
    EXPECT_EQ(window->findChild<QLabel*>("asmFeStatusBarProcessor")->text(), "Xilinx PicoBlaze 3");
    ASSERT_NE(document(), nullptr) << "the source is open again";
    EXPECT_EQ(document()->filePath(), projectDir() + "/main.psm");
    EXPECT_EQ(document()->toPlainText(), QString(programText));
    EXPECT_EQ(document()->textCursor().blockNumber(), 2);
    clickTool("Write output files button 1");
    EXPECT_EQ(content(projectDir() + "/blinker.hex"), expectedHex());
    EXPECT_EQ(content(projectDir() + "/blinker.mem"), expectedMem());
    ASSERT_TRUE(closeWindow());
    EXPECT_EQ(content(project()), closed) << "a look changes nothing in the file";
    EXPECT_EQ(content(projectDir() + "/main.psm"), programText);
}
