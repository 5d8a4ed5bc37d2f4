// One program in its monitor: its state, its output, its input, and how it ends.

#include "SyscallFixture.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBlock>

using namespace nsModSyscall;

namespace {

class SyscallMonitor : public ::testing::Test
{
protected:
    bool run(const QString& arg)
    {
        monitor.setConfig(NALVO_HELPER, arg, "A comment");
        return monitor.run();
    }
    bool waitForEnd()
    {
        return QTest::qWaitFor([this] { return monitor.state() != 0; }, syscallTimeout);
    }
    bool waitForOutput(const QString& text)
    {
        return QTest::qWaitFor([&] { return outputOf(&monitor).contains(text); }, syscallTimeout);
    }
    QList<bool> enabled() const
    {
        QList<bool> result;
        for (const char* name : {"syscallConfigure", "syscallStart", "syscallTerminate", "syscallKill", "syscallSend"})
            result.append(buttonOf(&monitor, name)->isEnabled());
        return result;
    }
    void click(const char* name) { QTest::mouseClick(buttonOf(&monitor, name), Qt::LeftButton); }

    SyscallMonWidget monitor;
};

/// Resident memory at its highest, in megabytes.
long peakMemory()
{
    QFile file("/proc/self/status");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').value(1).toLong() / 1024;
    }
    ADD_FAILURE() << "no figure";
    return 0;
}

#if defined(__SANITIZE_ADDRESS__)
const bool memoryIsMeasured = false; // freed memory is kept for a while
const QString floodSize = "20";
#else
const bool memoryIsMeasured = true;
const QString floodSize = "200";
#endif

} // namespace

TEST_F(SyscallMonitor, showsWhatItWillRun)
{
    monitor.setConfig("/bin/tool", "a  b", "What it is for");
    EXPECT_EQ(monitor.findChild<QLineEdit*>("syscallProgram")->text(), "/bin/tool a  b");
    EXPECT_TRUE(monitor.findChild<QLineEdit*>("syscallProgram")->isReadOnly());
    EXPECT_EQ(monitor.findChild<QLineEdit*>("syscallComment")->text(), "What it is for");
    EXPECT_EQ(monitor.executableInfo(), "/bin/tool a  b");
    EXPECT_EQ(statusOf(&monitor), "Not running");
    EXPECT_EQ(monitor.state(), 1);
    EXPECT_EQ(enabled(), QList<bool>({true, true, false, false, false}));
    QStringList texts;
    for (const QLabel* label : monitor.findChildren<QLabel*>())
        texts.append(label->text());
    for (const char* title : {"Comment:", "Program:", "Status:", "Output:", "Input:"})
        EXPECT_TRUE(texts.contains(title)) << title;
}

TEST_F(SyscallMonitor, followsTheStateOfTheProgram)
{
    ASSERT_TRUE(run("rest"));
    EXPECT_EQ(monitor.state(), 0);
    EXPECT_EQ(statusOf(&monitor), "Running");
    EXPECT_EQ(enabled(), QList<bool>({true, false, true, true, true}));
    EXPECT_FALSE(monitor.run()) << "it runs already";
    ASSERT_TRUE(waitForOutput("ready"));
    click("syscallTerminate");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(monitor.state(), 2);
    EXPECT_EQ(statusOf(&monitor), "Not running, return value: 15");
    EXPECT_EQ(enabled(), QList<bool>({true, true, false, false, false}));

    ASSERT_TRUE(run("exit 42"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(monitor.state(), 1);
    EXPECT_EQ(monitor.exitCode(), 42);
    EXPECT_EQ(statusOf(&monitor), "Not running, return value: 42");
}

TEST_F(SyscallMonitor, anEmptyArgumentLineIsOneEmptyArgument)
{
    ASSERT_TRUE(run(""));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(outputOf(&monitor), "1:[]\n");
    ASSERT_TRUE(run("a  \"b"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(outputOf(&monitor), "3:[a][][\"b]\n") << "the output of the last run has gone";
}

TEST_F(SyscallMonitor, aProgramThatIsMissing)
{
    for (const char* exe : {"", "/no/such/program", "/"}) {
        monitor.setConfig(exe, "", "");
        EXPECT_FALSE(monitor.run()) << exe;
        EXPECT_EQ(statusOf(&monitor), "FailedToStart");
        EXPECT_EQ(enabled(), QList<bool>({true, true, false, false, false}));
        EXPECT_EQ(monitor.state(), 1);
        EXPECT_TRUE(monitor.waitForFinished(0));
    }
    ASSERT_TRUE(run("exit 0"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(statusOf(&monitor), "Not running, return value: 0");
}

TEST_F(SyscallMonitor, bothOutputsAreShown)
{
    QSignalSpy changed(&monitor, &SyscallMonWidget::contentChanged);
    ASSERT_TRUE(run("both"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(outputOf(&monitor).contains("on out\n"));
    EXPECT_TRUE(outputOf(&monitor).contains("on err\n"));
    ASSERT_FALSE(changed.isEmpty());
    EXPECT_EQ(changed.first().first().value<QWidget*>(), &monitor);
}

TEST_F(SyscallMonitor, bytesThatAreNoText)
{
    ASSERT_TRUE(run("bytes 6100c3a4ff1b5b0d0ae282ac"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(outputOf(&monitor), QString::fromUtf8("a\u2400\u00e4\ufffd\u241b[\n\u20ac"));
}

TEST_F(SyscallMonitor, sendGivesOneLineAndEndsTheInput)
{
    ASSERT_TRUE(run("echo"));
    ASSERT_TRUE(waitForOutput("input:"));
    auto* input = monitor.findChild<QLineEdit*>("syscallInput");
    QTest::keyClicks(input, "one line");
    input->setText(input->text() + QString::fromUtf8(" \u00e4"));
    click("syscallSend");
    EXPECT_EQ(input->text(), "");
    EXPECT_FALSE(buttonOf(&monitor, "syscallSend")->isEnabled()) << "a second text would be lost";
    input->setText("later");
    QTest::keyClick(input, Qt::Key_Return);
    EXPECT_EQ(input->text(), "later");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(outputOf(&monitor), QString::fromUtf8("input:one line \u00e4|end\n"));
}

TEST_F(SyscallMonitor, enterSends)
{
    ASSERT_TRUE(run("echo"));
    auto* input = monitor.findChild<QLineEdit*>("syscallInput");
    QTest::keyClicks(input, "x");
    QTest::keyClick(input, Qt::Key_Return);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(outputOf(&monitor), "input:x|end\n");
}

TEST_F(SyscallMonitor, aProgramThatClosesItsInput)
{
    ASSERT_TRUE(run("closeInput"));
    ASSERT_TRUE(waitForOutput("ready"));
    monitor.findChild<QLineEdit*>("syscallInput")->setText("nobody reads this");
    click("syscallSend");
    click("syscallKill");
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(statusOf(&monitor).contains("return value: 9")) << qPrintable(statusOf(&monitor));
}

TEST_F(SyscallMonitor, oneThatIgnoresTerminateIsKilled)
{
    ASSERT_TRUE(run("stubborn"));
    ASSERT_TRUE(waitForOutput("ready"));
    const int pid = numberInOutput(&monitor, "ready");
    click("syscallTerminate");
    EXPECT_FALSE(monitor.waitForFinished(50));
    EXPECT_EQ(statusOf(&monitor), "Running");
    click("syscallKill");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(monitor.state(), 2);
    EXPECT_TRUE(isGone(pid));
}

TEST_F(SyscallMonitor, aChildThatHoldsTheOutputsDoesNotHoldTheMonitor)
{
    ASSERT_TRUE(run("leaveChild"));
    ASSERT_TRUE(waitForEnd());
    const int child = numberInOutput(&monitor, "child");
    EXPECT_EQ(statusOf(&monitor), "Not running, return value: 0");
    EXPECT_FALSE(isGone(child)) << "what a program leaves on purpose stays";
    // The monitor is free for the next run.
    ASSERT_TRUE(run("exit 3"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(monitor.exitCode(), 3);
    ::kill(child, SIGKILL);
}

TEST_F(SyscallMonitor, aScriptAndItsToolEndTogether)
{
    ASSERT_TRUE(run("waitForChild"));
    ASSERT_TRUE(waitForOutput("child"));
    const int child = numberInOutput(&monitor, "child");
    click("syscallTerminate");
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(QTest::qWaitFor([child] { return isGone(child); }, syscallTimeout));
}

TEST_F(SyscallMonitor, aFloodOnBothOutputsLeavesItsEnd)
{
    monitor.resize(900, 180);
    monitor.show();
    const long before = peakMemory();
    ASSERT_TRUE(run("flood " + floodSize));
    // The window works meanwhile: timers run, and painting is asked for.
    int turns = 0;
    QTimer turn;
    QObject::connect(&turn, &QTimer::timeout, [&] {
        ++turns;
        ASSERT_LE(monitor.findChild<QPlainTextEdit*>("syscallOutput")->blockCount(), SyscallOutput::maxLines + 1);
    });
    turn.start(0);
    ASSERT_TRUE(monitor.waitForFinished(syscallTimeout));
    EXPECT_GT(turns, 10);
    const auto* view = monitor.findChild<QPlainTextEdit*>("syscallOutput");
    EXPECT_TRUE(QTest::qWaitFor([&] { return view->blockCount() == SyscallOutput::maxLines + 1; }, syscallTimeout));
    QSignalSpy changed(&monitor, &SyscallMonWidget::contentChanged);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            changed.clear();
            QTest::qWait(100);
            return changed.isEmpty();
        },
        syscallTimeout));
    EXPECT_EQ(view->blockCount(), SyscallOutput::maxLines + 1);
    EXPECT_EQ(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum()) << "the view follows";
    if (memoryIsMeasured) {
        EXPECT_LT(peakMemory() - before, 150) << "megabytes for 400 megabytes of output";
    }
}

TEST_F(SyscallMonitor, aLineWithoutEndIsBounded)
{
    monitor.show();
    const long before = peakMemory();
    ASSERT_TRUE(run("endlessLine " + floodSize));
    ASSERT_TRUE(monitor.waitForFinished(syscallTimeout));
    const auto* view = monitor.findChild<QPlainTextEdit*>("syscallOutput");
    EXPECT_TRUE(QTest::qWaitFor([&] { return view->blockCount() >= SyscallOutput::maxLines; }, syscallTimeout));
    if (memoryIsMeasured) {
        EXPECT_LT(peakMemory() - before, 250) << "megabytes for 400 megabytes of output";
    }
}

TEST_F(SyscallMonitor, aFloodWithoutEndLeavesTheButtonsAlive)
{
    monitor.show();
    ASSERT_TRUE(run("stubbornFlood"));
    ASSERT_TRUE(waitForOutput("flood"));
    click("syscallTerminate");
    const QString before = outputOf(&monitor);
    EXPECT_TRUE(QTest::qWaitFor([&] { return outputOf(&monitor) != before; }, syscallTimeout)) << "it goes on";
    click("syscallKill");
    ASSERT_TRUE(waitForEnd());
}

TEST_F(SyscallMonitor, theUserCanReadWhileMoreComes)
{
    monitor.resize(900, 180);
    monitor.show();
    ASSERT_TRUE(run("stubbornFlood"));
    auto* view = monitor.findChild<QPlainTextEdit*>("syscallOutput");
    ASSERT_TRUE(QTest::qWaitFor([&] { return view->verticalScrollBar()->maximum() > 100; }, syscallTimeout));
    view->verticalScrollBar()->setValue(10);
    QSignalSpy changed(&monitor, &SyscallMonWidget::contentChanged);
    ASSERT_TRUE(QTest::qWaitFor([&] { return changed.size() > 3; }, syscallTimeout));
    EXPECT_LT(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum());
    click("syscallKill");
    ASSERT_TRUE(waitForEnd());
}

TEST_F(SyscallMonitor, isDeletedWithARunningProgram)
{
    auto other = std::make_unique<SyscallMonWidget>();
    other->setConfig(NALVO_HELPER, "stubbornFlood", "");
    ASSERT_TRUE(other->run());
    ASSERT_TRUE(QTest::qWaitFor([&] { return outputOf(other.get()).contains("flood"); }, syscallTimeout));
    const int pid = int(other->process()->processId());
    other.reset();
    EXPECT_TRUE(isGone(pid));
}

TEST_F(SyscallMonitor, aWaitEndsWithTheMonitorAndWithTheApplication)
{
    auto* other = new SyscallMonWidget;
    other->setConfig(NALVO_HELPER, "rest", "");
    ASSERT_TRUE(other->run());
    QTimer::singleShot(0, [other] { delete other; });
    EXPECT_TRUE(other->waitForFinished(syscallTimeout));

    ASSERT_TRUE(run("rest"));
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    EXPECT_TRUE(monitor.waitForFinished(syscallTimeout));
    EXPECT_EQ(monitor.state(), 0);
    EXPECT_TRUE(monitor.waitForFinished(syscallTimeout)) << "no loop begins any more";
    // The next loop of the application ends what the exit has left.
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    click("syscallKill");
    ASSERT_TRUE(waitForEnd());
}

TEST_F(SyscallMonitor, aWaitThatEndsInTime)
{
    ASSERT_TRUE(run("rest"));
    EXPECT_FALSE(monitor.waitForFinished(1));
    click("syscallKill");
    EXPECT_TRUE(monitor.waitForFinished(syscallTimeout));
    EXPECT_TRUE(monitor.waitForFinished(0));
}
