// Events: which programs run, in which order, and what stops the chain; what happens around a program that is waited
// for.

#include "SyscallFixture.h"

#include <QTimer>

#include <functional>

using namespace nsModSyscall;

namespace {

class SyscallEvents : public SyscallFixture
{
protected:
    /// Does something as soon as the program has said that it is ready.
    void whenReady(int index, std::function<void()> action)
    {
        m_timer.callOnTimeout([this, index, action = std::move(action)] {
            const QString output = monitor(index) != nullptr ? outputOf(monitor(index)) : QString();
            // Of a flood only the end is to be seen.
            if (!output.contains("ready") && !output.contains("flood"))
                return;
            m_timer.stop();
            action();
        });
        m_timer.start(1);
    }

    QTimer m_timer;
};

} // namespace

TEST_F(SyscallEvents, anEventWithoutAProgramGoesOn)
{
    open();
    for (eEvent_t event : {eEventButton1, eEventButton2, eEventSave, static_cast<eEvent_t>(7)}) {
        EXPECT_TRUE(module->run(event));
        EXPECT_EQ(keys(), QStringList("infoNothingTodo"));
    }
}

TEST_F(SyscallEvents, eachEventRunsItsPrograms)
{
    setHelper(0, "exit 0");
    setHelper(1, "exit 0");
    set(1, "ExecEventBut1", 0);
    set(1, "ExecEventBut2", 1);
    setHelper(2, "exit 0");
    set(2, "ExecEventSave", 1);
    open();
    const auto groups = [this] {
        QStringList result;
        for (const FakeMsgHook::Entry& entry : msg.log) {
            if (entry.kind == FakeMsgHook::kindGroupOpen)
                result.append(entry.text.mid(QString("Calling external program ").size(), 1));
        }
        msg.log.clear();
        return result.join(' ');
    };
    EXPECT_TRUE(module->run(eEventButton1));
    EXPECT_EQ(groups(), "1 3");
    EXPECT_TRUE(module->run(eEventButton2));
    EXPECT_EQ(groups(), "2");
    EXPECT_TRUE(module->run(eEventSave));
    EXPECT_EQ(groups(), "3");
}

TEST_F(SyscallEvents, aSuccessIsReportedInAGroup)
{
    setHelper(0, "exit 0");
    open();
    EXPECT_TRUE(run());
    ASSERT_EQ(msg.log.size(), 4);
    EXPECT_EQ(msg.log.at(0).text, QString("Calling external program 1: ") + NALVO_HELPER + " exit 0");
    EXPECT_EQ(msg.log.at(0).hlpDoc, QUrl("pageid://syscallMessages#grpSyscall"));
    EXPECT_EQ(msg.log.at(1).key(), "infoWaiting");
    EXPECT_EQ(msg.log.at(2).key(), "infoExitWithSuccess");
    EXPECT_EQ(msg.log.at(3).kind, FakeMsgHook::kindGroupClose);
    EXPECT_TRUE(msg.log.at(3).success);
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationDockBottom), monitor(0));
}

TEST_F(SyscallEvents, withoutAbortAFailureIsReportedAndTheNextRuns)
{
    setHelper(0, "exit 3");
    setHelper(1, "exit 0");
    open();
    EXPECT_TRUE(run());
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "errExitWithoutSuccess", "infoWaiting", "infoExitWithSuccess"}));
}

TEST_F(SyscallEvents, abortStopsTheChain)
{
    setHelper(0, "exit 3");
    set(0, "AbortIfNoSuccess", 1);
    setHelper(1, "exit 0");
    open();
    EXPECT_FALSE(run());
    EXPECT_FALSE(msg.log.last().success) << "the group is closed as failed";
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "errExitWithoutSuccess"}));
}

TEST_F(SyscallEvents, theReturnValueOfSuccessCounts)
{
    setHelper(0, "exit 3");
    set(0, "AbortIfNoSuccess", 1);
    set(0, "RetValOfSuccess", 3);
    open();
    EXPECT_TRUE(run());
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "infoExitWithSuccess"}));
}

TEST_F(SyscallEvents, aCrashIsNoSuccessWhateverItsCode)
{
    setHelper(0, "crash");
    set(0, "RetValOfSuccess", SIGKILL);
    set(0, "AbortIfNoSuccess", 1);
    open();
    EXPECT_FALSE(run());
    EXPECT_EQ(monitor(0)->exitCode(), SIGKILL) << "the code alone would be a success";
    EXPECT_EQ(monitor(0)->state(), 2);
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "errExitWithoutSuccess"}));
}

TEST_F(SyscallEvents, aProgramThatIsNotWaitedForStopsItsNextEvent)
{
    setHelper(0, "rest");
    set(0, "BlockingModeEn", 0);
    setHelper(1, "exit 0");
    open();
    EXPECT_TRUE(run());
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "infoExitWithSuccess"})) << "those of the second program";
    EXPECT_FALSE(run());
    EXPECT_EQ(keys(), QStringList("errExeAlreadyRunning"));
    QTest::mouseClick(buttonOf(monitor(0), "syscallKill"), Qt::LeftButton);
    ASSERT_TRUE(waitForState(0, 2));
    EXPECT_TRUE(run());
}

TEST_F(SyscallEvents, anEmptyProgramCanNotBeStarted)
{
    setProgram(0, "", "");
    open();
    EXPECT_FALSE(run());
    EXPECT_EQ(keys(), QStringList("errCanNotStart"));
    EXPECT_EQ(statusOf(monitor(0)), "FailedToStart");
}

TEST_F(SyscallEvents, oneProgramByItsNumber)
{
    setHelper(1, "exit 0");
    open();
    EXPECT_TRUE(module->runProgram(1));
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "infoExitWithSuccess"}));
    for (int index : {-1, 2, 3}) {
        EXPECT_FALSE(module->runProgram(index)) << index;
        EXPECT_EQ(keys(), QStringList("errCanNotStart"));
    }
    bool result = false;
    EXPECT_TRUE(QMetaObject::invokeMethod(module.get(), "runProgram", Q_RETURN_ARG(bool, result), Q_ARG(int, 1)));
    EXPECT_TRUE(result) << "scripts can call it";
}

TEST_F(SyscallEvents, programsRunInTheFolderOfTheProject)
{
    setHelper(0, "folder");
    open();
    EXPECT_TRUE(run());
    EXPECT_EQ(QFileInfo(outputOf(monitor(0)).trimmed()).canonicalFilePath(),
              QFileInfo(folder.path()).canonicalFilePath());
}

TEST_F(SyscallEvents, aProgramBesideTheProject)
{
    QFile script(folder.filePath("run.sh"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\necho from the script $1\n");
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    script.close();
    setProgram(0, "run.sh", "x");
    set(0, "StoreRelToPrj", 1);
    open();
    EXPECT_TRUE(run());
    EXPECT_EQ(outputOf(monitor(0)), "from the script x\n");
    prj.savePrjCfg();
    EXPECT_EQ(prj.tree.get<QString>(key(0, "Exe"), {}), "run.sh");
}

TEST_F(SyscallEvents, monitorsComeAndGoWithTheProject)
{
    EXPECT_TRUE(gui.widgets.isEmpty());
    setHelper(0, "exit 0");
    setHelper(2, "exit 0");
    auto* front = new QWidget;
    gui.addWidget(nullptr, ModGuiHookIf::eLocationDockBottom, front, "Messages");
    gui.setWidgetVisible(ModGuiHookIf::eLocationDockBottom, true);
    open();
    ASSERT_EQ(gui.widgets.size(), 3);
    ASSERT_NE(monitor(0), nullptr);
    EXPECT_EQ(monitor(1), nullptr);
    EXPECT_TRUE(gui.hasWidget(ModGuiHookIf::eLocationDockBottom, monitor(2)));
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationDockBottom), front) << "the messages stay in front";
    const QPointer<QWidget> first = monitor(0);
    prj.close();
    EXPECT_TRUE(first.isNull());
    EXPECT_EQ(gui.widgets.size(), 1);
    EXPECT_EQ(module->programs[0].exe, NALVO_HELPER) << "the record stays until the next project";
    EXPECT_FALSE(module->runProgram(0));
    prj.open(prjFile());
    EXPECT_EQ(module->programs[0].exe, QString()) << "a project without the keys has the defaults";
    ASSERT_NE(monitor(0), nullptr);
    EXPECT_EQ(monitor(2), nullptr);
    delete front;
}

// --- while a program is waited for ---

TEST_F(SyscallEvents, theProjectIsClosed)
{
    setHelper(0, "rest");
    setHelper(1, "exit 0");
    open();
    int pid = 0;
    whenReady(0, [&] {
        pid = numberInOutput(monitor(0), "ready");
        prj.close();
        EXPECT_TRUE(isGone(pid)) << "the program ends with the project";
    });
    EXPECT_FALSE(run());
    EXPECT_GT(pid, 0);
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "warnTerminated"}));
    EXPECT_TRUE(gui.widgets.isEmpty());
}

TEST_F(SyscallEvents, theProjectIsClosedAndAStubbornProgramFloods)
{
    setHelper(0, "stubbornFlood");
    open();
    int pid = 0;
    whenReady(0, [&] {
        pid = int(monitor(0)->process()->processId());
        prj.close();
    });
    EXPECT_FALSE(run());
    EXPECT_TRUE(isGone(pid));
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "warnKilled"}));
}

TEST_F(SyscallEvents, anotherProjectIsOpened)
{
    setHelper(0, "rest");
    open();
    const FakeTree tree = prj.tree;
    whenReady(0, [&] {
        prj.close();
        prj.tree = tree;
        prj.open(prjFile());
    });
    EXPECT_FALSE(run()) << "the event belongs to the project that has gone";
    ASSERT_NE(monitor(0), nullptr);
    EXPECT_EQ(monitor(0)->state(), 1);
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "warnTerminated"}));
}

TEST_F(SyscallEvents, theProgramIsDisabled)
{
    setHelper(0, "rest");
    setHelper(1, "exit 0");
    open();
    whenReady(0, [&] {
        module->programs[0].en = false;
        module->configPagesClosed(true);
        EXPECT_EQ(monitor(0), nullptr);
    });
    EXPECT_TRUE(run()) << "a failure without abort";
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "warnTerminated", "errExitWithoutSuccess", "infoWaiting",
                                   "infoExitWithSuccess"}));
}

TEST_F(SyscallEvents, theSettingsOfTheProgramChange)
{
    setHelper(0, "rest");
    set(0, "AbortIfNoSuccess", 1);
    open();
    whenReady(0, [&] {
        module->programs[0].exe = "/no/such/program";
        module->programs[0].abortIfNoSuccess = false;
        module->configPagesClosed(true);
        EXPECT_EQ(statusOf(monitor(0)), "Running") << "it goes on as it was started";
        EXPECT_TRUE(monitor(0)->executableInfo().startsWith("/no/such/program"));
        QTest::mouseClick(buttonOf(monitor(0), "syscallTerminate"), Qt::LeftButton);
    });
    EXPECT_FALSE(run()) << "what held at the start counts";
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "errExitWithoutSuccess"}));
}

TEST_F(SyscallEvents, aSecondEvent)
{
    setHelper(0, "rest");
    open();
    bool second = true;
    whenReady(0, [&] {
        second = run();
        QTest::mouseClick(buttonOf(monitor(0), "syscallStart"), Qt::LeftButton);
        QTest::mouseClick(buttonOf(monitor(0), "syscallConfigure"), Qt::LeftButton);
        QTest::mouseClick(buttonOf(monitor(0), "syscallSend"), Qt::LeftButton);
        QTest::mouseClick(buttonOf(monitor(0), "syscallTerminate"), Qt::LeftButton);
        QTest::mouseClick(buttonOf(monitor(0), "syscallKill"), Qt::LeftButton);
    });
    EXPECT_TRUE(run());
    EXPECT_FALSE(second);
    EXPECT_EQ(config.opened, QStringList("Ext progs"));
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "errExeAlreadyRunning", "errExitWithoutSuccess"}));
}

TEST_F(SyscallEvents, theApplicationEnds)
{
    setHelper(0, "rest");
    open();
    int pid = 0;
    bool result = true;
    QTimer::singleShot(0, [&] { result = run(); });
    whenReady(0, [&] {
        pid = numberInOutput(monitor(0), "ready");
        QCoreApplication::exit(0);
    });
    QCoreApplication::exec();
    EXPECT_FALSE(result);
    EXPECT_GT(pid, 0);
    EXPECT_TRUE(isGone(pid)) << "no program outlives the window";
}

TEST_F(SyscallEvents, theModuleIsDeletedWithRunningPrograms)
{
    setHelper(0, "rest");
    set(0, "BlockingModeEn", 0);
    open();
    EXPECT_TRUE(run());
    ASSERT_TRUE(waitForOutput(0, "ready"));
    const int pid = numberInOutput(monitor(0), "ready");
    prj.unregisterPlugin(static_cast<ModPrjPluginIf*>(module.get()));
    module.reset();
    EXPECT_TRUE(isGone(pid));
}

TEST_F(SyscallEvents, withoutAWindowNothingIsRun)
{
    gui.unregisterPlugin(static_cast<ModGuiPluginIf*>(module.get()));
    setHelper(0, "exit 0");
    open();
    EXPECT_TRUE(run());
    EXPECT_EQ(keys(), QStringList("infoNothingTodo"));
}
