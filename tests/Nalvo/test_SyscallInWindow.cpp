// External programs in the whole window: the examples, the question, and what a user does while one runs.

#include "AsmProject.h"
#include "ExampleFolder.h"
#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "ModConfigHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModSourcesHookIf.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>
#include <csignal>
#include <functional>

namespace {

const int timeout = 120000; // ms; only a test that hangs takes so long

class SyscallInWindow : public MainWindowFixture
{
protected:
    SyscallInWindow()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        makeWindow();
    }

    /// The monitor of the program, counted from 1.
    QWidget* monitor(int number) const
    {
        const QString title = QString("External program %1").arg(number);
        for (QTabBar* bar : window->findChildren<QTabBar*>()) {
            for (int i = 0; i < bar->count(); ++i) {
                auto* tabs = qobject_cast<QTabWidget*>(bar->parentWidget());
                if (tabs != nullptr && bar->tabText(i) == title)
                    return tabs->widget(i);
            }
        }
        return nullptr;
    }
    QString output(int number) const
    {
        return monitor(number)->findChild<QPlainTextEdit*>("syscallOutput")->toPlainText();
    }
    QString status(int number) const { return monitor(number)->findChild<QLabel*>("syscallStatus")->text(); }
    void press(int number, const char* name) const
    {
        QTest::mouseClick(monitor(number)->findChild<QPushButton*>(name), Qt::LeftButton);
    }
    void click(const QString& text)
    {
        for (QToolButton* button : window->findChildren<QToolButton*>()) {
            if (button->defaultAction() != nullptr && button->defaultAction()->text() == text) {
                ASSERT_TRUE(button->isEnabled());
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        FAIL() << "no button " << qPrintable(text);
    }
    bool isEnabled(const QString& text) const
    {
        const QList<QToolButton*> buttons = window->findChildren<QToolButton*>();
        return std::any_of(buttons.cbegin(), buttons.cend(), [&](const QToolButton* button) {
            return button->defaultAction() != nullptr && button->defaultAction()->text() == text && button->isEnabled();
        });
    }
    static void yes(QDialog* dialog)
    {
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Yes), Qt::LeftButton);
    }
    /// A project whose first program is a shell script, bound to button 1 and to saving.
    QString makeProject(const QByteArray& script)
    {
        writeFile("a.psm", "start:  JUMP start\n#ORG ADDR, 0x3FF\n        RETI ENABLE\n");
        writeFile("run.sh", script);
        AsmProject project;
        project.settings["Syscall/syscall0Exe"] = "sh";
        project.settings["Syscall/syscall0Arg"] = "run.sh";
        project.settings["Syscall/syscall0StoreRelToPrj"] = "0";
        project.settings["Syscall/syscall0ExecEventBut1"] = "1";
        project.settings["Syscall/syscall0Comment"] = "Works until it is told to end";
        return writeFile("p.nalvo", project.text());
    }
    void openAllowed(const QByteArray& script)
    {
        ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(makeProject(script)));
        click("Run assembler");
    }
    /// Does something once the program has said that it is ready.
    void whenReady(std::function<void()> action)
    {
        m_timer.callOnTimeout([this, action = std::move(action)] {
            if (monitor(1) == nullptr || !output(1).contains("ready"))
                return;
            m_timer.stop();
            action();
        });
        m_timer.start(1);
    }
    int pid() const { return output(1).section('\n', 0, 0).section(' ', 1).toInt(); }
    static bool isGone(int pid) { return pid > 0 && ::kill(pid, 0) != 0; }

    const QByteArray resting = "echo ready $$\nexec sleep 1000\n";

private:
    QTimer m_timer;
};

} // namespace

TEST_F(SyscallInWindow, ghdlChecksTheVhdlFileOfTheExample)
{
    copyFolder(NALVO_SOURCE_DIR "/examples", projectDir());
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/check_vhdl/check_vhdl.nalvo"));
    click("Run assembler");
    const bool isThere = !QStandardPaths::findExecutable("ghdl").isEmpty();
    ModalAnswers answers({[](QDialog* dialog) {
        screenshot("consent-program", dialog);
        yes(dialog);
    }});
    click("Write output files button 2");
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_TRUE(output(1).contains(isThere ? "PASS: " : "SKIPPED: ")) << qPrintable(output(1));
    EXPECT_TRUE(messageTexts().contains("Program exited with success."));
    module<ModGuiHookIf>()->setCurrentWidget(monitor(1));
    screenshot("syscall-monitor-pass");

    // A wrong template: the memory does not hold the program.
    QFile file(projectDir() + "/check_vhdl/rom.vhd.template");
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    text.replace("WORDS(addr / 16)", "WORDS(addr / 32)");
    file.resize(0);
    file.seek(0);
    file.write(text);
    file.close();
    click("Write output files button 2");
    EXPECT_EQ(answers.seen(), 1) << "the answer is kept";
    EXPECT_TRUE(output(1).contains(isThere ? "FAIL: " : "SKIPPED: ")) << qPrintable(output(1));
    EXPECT_EQ(messageTexts().contains("Program exited without success."), isThere);
    module<ModGuiHookIf>()->setCurrentWidget(monitor(1));
    screenshot("syscall-monitor-fail");
}

TEST_F(SyscallInWindow, pythonReadsTheHexFileOfTheExample)
{
    copyFolder(NALVO_SOURCE_DIR "/examples", projectDir());
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/check_hex/check_hex.nalvo"));
    click("Run assembler");
    const bool isThere = !QStandardPaths::findExecutable("python3").isEmpty();
    ModalAnswers answers({yes});
    click("Write output files button 2");
    EXPECT_TRUE(output(1).contains(isThere ? "PASS" : "SKIPPED: ")) << qPrintable(output(1));
    EXPECT_TRUE(messageTexts().contains("Program exited with success."));
    QFile file(projectDir() + "/check_hex/src/main.psm");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("start:\n" + QByteArray("        LOAD    s0, 1\n").repeated(1000) + "        JUMP    start\n");
    file.close();
    click("Run assembler");
    click("Write output files button 2");
    EXPECT_TRUE(output(1).contains(isThere ? "FAIL" : "SKIPPED: ")) << qPrintable(output(1));
    EXPECT_EQ(messageTexts().contains("Program exited without success."), isThere);
}

TEST_F(SyscallInWindow, theMessagesStayInFrontWhenAProjectIsOpened)
{
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(makeProject(resting)));
    ASSERT_NE(monitor(1), nullptr);
    EXPECT_EQ(monitor(2), nullptr);
    EXPECT_TRUE(messageView()->isVisible());
    module<nsModPrj::ModPrj>()->closePrj();
    EXPECT_EQ(monitor(1), nullptr);
}

TEST_F(SyscallInWindow, aRefusedProgramIsAnError)
{
    openAllowed(resting);
    ModalAnswers answers({[](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Return); }});
    click("Write output files button 1");
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(status(1), "Not running");
    screenshot("syscall-refused");
    EXPECT_FALSE(messageTexts().filter("External program 1 is not allowed to run").isEmpty());
}

TEST_F(SyscallInWindow, theUserWorksOnWhileAProgramRuns)
{
    openAllowed(resting);
    ModalAnswers answers({yes});
    int ready = 0;
    whenReady([&] {
        ++ready;
        EXPECT_TRUE(monitor(1)->isVisible()) << "its monitor has come to the front";
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        screenshot("syscall-monitor-running");
        // A second press of the button, and a save.
        click("Write output files button 1");
        module<ModSourcesHookIf>()->setFileContentChanged();
        press(1, "syscallConfigure");
        auto* config = module<ModConfigHookIf>();
        EXPECT_TRUE(config->selectDialogPageByTitle("Ext progs"));
        screenshot("page-ext-progs-window");
        config->closeDialog(true);
        EXPECT_EQ(status(1), "Running");
        press(1, "syscallTerminate");
    });
    click("Write output files button 1");
    EXPECT_EQ(ready, 1);
    EXPECT_EQ(status(1), "Not running, return value: 15");
    // What was saved meanwhile is assembled, which has begun the messages anew.
    EXPECT_TRUE(QTest::qWaitFor([this] { return messageTexts().contains("Nothing todo for event."); }, timeout))
        << qPrintable(messageTexts().join('\n'));
    EXPECT_FALSE(messageTexts().contains("Program exited without success."));
}

TEST_F(SyscallInWindow, theProjectIsClosedWhileAProgramRuns)
{
    openAllowed(resting);
    ModalAnswers answers({yes});
    int program = 0;
    whenReady([&] {
        program = pid();
        click("Close project");
        EXPECT_EQ(monitor(1), nullptr);
    });
    click("Write output files button 1");
    EXPECT_TRUE(isGone(program));
    EXPECT_TRUE(messageTexts().contains("External program 1 was still running: it has been terminated."));
    // The window is as good as new.
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/p.nalvo"));
    click("Run assembler");
    EXPECT_FALSE(messageTexts().contains("Failure")) << qPrintable(messageTexts().join('\n'));
}

TEST_F(SyscallInWindow, anotherProjectIsOpenedWhileAProgramRuns)
{
    openAllowed(resting);
    ModalAnswers answers({yes});
    whenReady([&] { EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/p.nalvo")); });
    click("Write output files button 1");
    // The sources of the opened project are assembled after the run that was in progress.
    ASSERT_TRUE(QTest::qWaitFor([this] { return isEnabled("Write output files button 2"); }, timeout));
    EXPECT_FALSE(messageTexts().contains("Failure")) << qPrintable(messageTexts().join('\n'));
    click("Write output files button 2");
}

TEST_F(SyscallInWindow, theWindowIsClosedWhileAProgramRuns)
{
    openAllowed("trap '' TERM\necho ready $$\nwhile :; do sleep 0.05; done\n");
    ModalAnswers answers({yes});
    int program = 0;
    bool closed = false;
    whenReady([&] {
        program = pid();
        closed = closeWindow();
    });
    click("Write output files button 1");
    EXPECT_TRUE(closed);
    EXPECT_TRUE(isGone(program));
    EXPECT_EQ(readSetting("ModGui/width"), "1280") << "the exit phases have run";
}

TEST_F(SyscallInWindow, theDefaultProjectHasOneMonitor)
{
    writeFile("a.psm", "start:  JUMP start\n");
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(writeFile("q.nalvo", AsmProject().text())));
    ASSERT_NE(monitor(1), nullptr);
    EXPECT_EQ(monitor(1)->findChild<QLineEdit*>("syscallProgram")->text(), " ");
    press(1, "syscallStart");
    EXPECT_EQ(status(1), "FailedToStart");
}
