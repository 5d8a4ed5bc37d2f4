// What can happen in the window while a script runs.

#include "ScriptWindow.h"

#include "EditorWidget.h"
#include "ModEditor.h"
#include "ModalAnswers.h"
#include "Unattended.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>

namespace {

const int patience = 60000; // ms; only reached when something hangs

} // namespace

TEST_F(ScriptWindow, theActionsStandInTheMenuTools)
{
    EXPECT_TRUE(action("Run script...")->isEnabled());
    EXPECT_FALSE(action("Stop script")->isEnabled());
    EXPECT_FALSE(action("Run script...")->icon().isNull());
    EXPECT_FALSE(action("Stop script")->icon().isNull());
    QMenu* menu = nullptr;
    for (QAction* entry : window->menuBar()->actions()) {
        if (entry->menu()->actions().contains(action("Run script...")))
            menu = entry->menu();
    }
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(QString(menu->title()).remove('&'), QString("Tools"));
    menu->popup(window->pos());
    screenshot("scripts-menu", menu);
    menu->close();
}

TEST_F(ScriptWindow, theUserSelectsAScriptAndRunsIt)
{
    const QString path = writeFile("own.js", "test.note('ran');\nmsg.openMessageGroup('inner');\n");
    ModalAnswers answers({[&](QDialog* box) {
        auto* dialog = qobject_cast<QFileDialog*>(box);
        ASSERT_NE(dialog, nullptr);
        dialog->selectFile(path);
        QTest::keyClick(dialog->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
    }});
    trigger("Run script...");
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(target.notes, QStringList("ran"));
    // The group that the script has left open is closed, so that the view can be cleared again.
    EXPECT_EQ(messageTexts(), QStringList({"Execute script " + path, "inner", "Done", "Done"}));
    EXPECT_TRUE(run("msg.clearMessages();"));
    EXPECT_TRUE(messageTexts().isEmpty());
}

TEST_F(ScriptWindow, aCancelledSelectionRunsNothing)
{
    const QStringList before = messageTexts();
    ModalAnswers answers({[](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); }});
    trigger("Run script...");
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(messageTexts(), before);
}

TEST_F(ScriptWindow, theUserCanDoAllElseWhileAScriptRunsAndStopsIt)
{
    ASSERT_TRUE(run("open();"));
    QStringList done;
    std::vector<std::function<void()>> steps = {
        [&] { trigger("Run assembler"); },
        [&] { trigger("Configure..."); },
        [&] { trigger("Configure..."); },
        [&] { EXPECT_FALSE(action("Run script...")->isEnabled()); },
        [&] { EXPECT_FALSE(run("test.note('second');")); },
        [&] { run("config.closeDialog(true);"); },
        [&] { trigger("Stop script"); },
    };
    size_t next = 0;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, &user, [&] {
        if (next < steps.size())
            steps[next++]();
    });
    user.start(1);
    EXPECT_FALSE(run("var n = 0; while (true) { ++n; }"));
    EXPECT_EQ(next, steps.size());
    EXPECT_TRUE(hasMessage("A script is running already."));
    EXPECT_TRUE(hasMessage("The script was stopped."));
    EXPECT_EQ(notes("config.closeDialog(); test.note(assembler.isAssembled());"), QStringList("true"));
}

TEST_F(ScriptWindow, theUserClosesTheProjectUnderAScript)
{
    ASSERT_TRUE(run("open();"));
    QTimer::singleShot(0, window.get(), [this] { trigger("Close project"); });
    EXPECT_EQ(notes("while (project.isOpen()); test.note(processor.current()); test.note(project.path());\n"
                    "test.note(failure(function() { assembler.assemble(1); }));\n"
                    "test.note(failure(function() { simulator.enable(); }));\n"
                    "test.note(open());"),
              QStringList({"", "", "Error: No project is open.", "Error: No processor is selected.", "true"}));
}

TEST_F(ScriptWindow, aScriptClosesTheProjectThatItComesFrom)
{
    const QString path = writeFile("own.js", "test.note(project.path());\nproject.close();\nproject.close();\n"
                                             "test.note(project.isOpen());\nopen();\nproject.hndlAction(2);\n"
                                             "test.note(project.isOpen());\nproject.hndlAction(0);\n"
                                             "project.hndlAction(17);\n");
    ASSERT_TRUE(run("open();"));
    script()->executeScriptFile(path);
    EXPECT_EQ(target.notes, QStringList({project(), "false", "false"}));
    EXPECT_TRUE(hasMessage("No project to close!"));
}

TEST_F(ScriptWindow, theWindowClosesWhenTheScriptHasEnded)
{
    ASSERT_TRUE(run("open();"));
    bool wasVisible = false;
    QTimer::singleShot(0, window.get(), [&] {
        EXPECT_FALSE(closeWindow());
        EXPECT_FALSE(closeWindow());
        wasVisible = window->isVisible();
    });
    EXPECT_FALSE(run("while (true);"));
    EXPECT_TRUE(wasVisible);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }, patience));
    // The exit phases have run.
    EXPECT_TRUE(QFile::exists(settingsFile()));
    EXPECT_FALSE(run("test.note('after');"));
    EXPECT_TRUE(target.notes.isEmpty());
}

// The script waits for a program that is at work.
class ScriptWithProgram : public ScriptWindow
{
protected:
    ScriptWithProgram()
    {
        QFile file(project());
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        const QByteArray text =
            file.readAll().replace("</project>", "<Syscall><syscall0ExecEventBut1>1</syscall0ExecEventBut1>"
                                                 "<syscall0StoreRelToPrj>0</syscall0StoreRelToPrj>"
                                                 "<syscall0Exe>/bin/sh</syscall0Exe><syscall0Arg>rest.sh</syscall0Arg>"
                                                 "</Syscall></project>");
        file.seek(0);
        EXPECT_EQ(file.write(text), text.size());
        writeFile("rest.sh", "echo ready\nsleep 60\ntouch ended\n");
    }
    /// Runs a script that waits for the program. @param action what the user does then
    void wait(const std::function<void()>& action)
    {
        ModalAnswers answers({[](QDialog* dialog) { dialog->accept(); }});
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            const auto* output = window->findChild<QPlainTextEdit*>("syscallOutput");
            if (output == nullptr || !output->toPlainText().contains("ready"))
                return;
            look.stop();
            action();
        });
        look.start(1);
        EXPECT_FALSE(run("open(); assembler.assemble(1); test.note('after');"));
        EXPECT_FALSE(look.isActive());
        EXPECT_TRUE(target.notes.isEmpty());
        EXPECT_FALSE(QFile::exists(projectDir() + "/ended")) << "nobody has waited for its end";
    }
};

TEST_F(ScriptWithProgram, aStopAlsoEndsTheProgram)
{
    wait([this] { trigger("Stop script"); });
    EXPECT_TRUE(hasMessage("External program 1 was still running"));
    EXPECT_TRUE(hasMessage("The script was stopped."));
    EXPECT_EQ(window->findChild<QLabel*>("syscallStatus")->text().left(11), "Not running");
}

TEST_F(ScriptWithProgram, theWindowCloses)
{
    wait([this] { EXPECT_FALSE(closeWindow()); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }, patience));
}

// With nobody there, nobody would ever stop trying again.
TEST_F(ScriptWindow, aProjectThatCanNotBeSavedDoesNotHoldTheProgramWhereNobodyIs)
{
    ASSERT_TRUE(run("open();"));
    // Nobody, not even root, can write a file where a folder has its name.
    ASSERT_TRUE(QFile::remove(project()));
    ASSERT_TRUE(QDir().mkpath(project() + "/inside"));
    bool late = false;
    QTimer::singleShot(patience, window.get(), [&] {
        late = true;
        QDir(project()).removeRecursively();
    });
    Unattended::setOn(true);
    EXPECT_TRUE(closeWindow());
    Unattended::setOn(false);
    EXPECT_FALSE(late);
}

TEST_F(ScriptWindow, modalDialogsAreAnsweredWhereNobodyIs)
{
    Unattended::setOn(true);
    testing::internal::CaptureStderr();
    QMessageBox box(QMessageBox::Question, "A title", "<p>Shall <b>it</b> be?</p>", QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(box.exec(), QMessageBox::No);
    // A box that has no answer for Esc.
    QMessageBox stubborn(QMessageBox::Question, "Another", "Text", QMessageBox::Yes | QMessageBox::Retry);
    EXPECT_NE(stubborn.exec(), QMessageBox::Yes);
    trigger("Run script...");
    Unattended::setOn(false);
    const std::string err = testing::internal::GetCapturedStderr();
    EXPECT_NE(err.find("Nobody can answer this: A title: Shall it be?\n"), std::string::npos) << err;
    EXPECT_NE(err.find("Nobody can answer this: Another: Text\n"), std::string::npos) << err;
    EXPECT_NE(err.find("Nobody can answer this: Run script\n"), std::string::npos) << err;
    // With a user again, a dialog waits.
    ModalAnswers answers({[](QDialog* dialog) {
        QTest::mouseClick(static_cast<QMessageBox*>(dialog)->button(QMessageBox::Yes), Qt::LeftButton);
    }});
    EXPECT_EQ(box.exec(), QMessageBox::Yes);
}

TEST_F(ScriptWindow, theWindowClosesUnderAConnectedFunctionToo)
{
    ASSERT_TRUE(run("app.windowTitleChanged.connect(function() { test.meanwhile(); while (true); });"));
    bool closed = true;
    target.during = [&] { closed = closeWindow(); };
    ASSERT_FALSE(run("open();"));
    EXPECT_FALSE(closed);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }, patience));
}

TEST_F(ScriptWindow, functionsThatWaitDoNotRunAfterTheWindowHasClosed)
{
    ASSERT_TRUE(run("open(); setTimeout(function() { test.note('late'); }, 0);\n"
                    "app.windowTitleChanged.connect(function() { test.note('title'); });"));
    EXPECT_TRUE(closeWindow());
    target.notes.clear();
    settleLayout();
    EXPECT_TRUE(target.notes.isEmpty());
}

TEST_F(ScriptWindow, theQuestionForAnUnsavedTextIsAskedDuringAScript)
{
    ASSERT_TRUE(run("open(); editor.openFile('" + projectDir() + "/multiply.psm'); editor.insertText('; new\\n');"));
    ModalAnswers answers({[](QDialog* box) {
        auto* question = qobject_cast<QMessageBox*>(box);
        ASSERT_NE(question, nullptr);
        EXPECT_EQ(question->windowTitle(), "File was modified");
        question->button(QMessageBox::Yes)->click();
    }});
    EXPECT_TRUE(run("project.close();"));
    EXPECT_EQ(answers.seen(), 1);
    QFile file(projectDir() + "/multiply.psm");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("; new\n"));
}

TEST_F(ScriptWindow, theWindowCanBeDeletedUnderAScript)
{
    ASSERT_TRUE(run("open();"));
    nsModScript::ModScript* module = script();
    QTimer::singleShot(0, [this] { window.reset(); });
    EXPECT_FALSE(module->executeScript("while (true) { project.isOpen(); }"));
    EXPECT_EQ(window, nullptr);
    bool over = false;
    QTimer::singleShot(100, [&over] { over = true; });
    EXPECT_TRUE(QTest::qWaitFor([&over] { return over; }, patience));
}

TEST_F(ScriptWindow, theLinkOfAnErrorLeadsToTheLineOfTheScript)
{
    ASSERT_TRUE(run("open();"));
    const QString path = writeFile("own.js", "1;\n2;\nnobody();\n");
    script()->executeScriptFile(path);
    QTreeWidgetItem* error = nullptr;
    for (QTreeWidgetItemIterator it(messageView()); *it != nullptr; ++it) {
        if ((*it)->text(0).startsWith("Uncaught exception at line 3 - "))
            error = *it;
    }
    ASSERT_NE(error, nullptr);
    EXPECT_EQ(error->text(2), "own.js#3");
    settleAnimations();
    messageView()->scrollToItem(error);
    screenshot("scripts-error");
    messageView()->scrollToItem(error);
    ModalAnswers answers({});
    QTest::mouseClick(messageView()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      messageView()->visualItemRect(error).center());
    const auto& widgets = module<nsModEditor::ModEditor>()->editorWidgets();
    ASSERT_FALSE(widgets.isEmpty());
    EXPECT_EQ(widgets.last()->filePath(), path);
    EXPECT_EQ(widgets.last()->textCursor().blockNumber(), 2);
}
