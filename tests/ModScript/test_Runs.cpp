// Scripts that run: stopping them, a second one, functions that wait for their time, the debugger.

#include "ScriptFixture.h"

#include <QApplication>
#include <QMainWindow>
#include <QSignalSpy>

namespace {

const int patience = 60000; // ms; only reached when something hangs

} // namespace

TEST_F(ScriptTest, anEndlessLoopIsStoppedByTheUser)
{
    for (const char* text :
         {"while (true);", "while (true) { try { while (true); } catch (e) {} finally { while (true); } }",
          "function f() { while (true) [2, 1].sort(function() { while (true); }); } f();"}) {
        SCOPED_TRACE(text);
        msg.reset();
        EXPECT_FALSE(stopAction()->isEnabled());
        stopSoon();
        script->executeScriptFile(write(text));
        EXPECT_EQ(msg.errors(), QStringList("The script was stopped."));
        EXPECT_EQ(lastGroupResult(), "failed");
        EXPECT_FALSE(stopAction()->isEnabled());
        EXPECT_FALSE(script->isRunning());
    }
    EXPECT_TRUE(run("test.note('on');"));
    EXPECT_EQ(target.notes, QStringList("on"));
}

TEST_F(ScriptTest, aStopDuringACallEndsTheScriptAfterIt)
{
    target.during = [this] { script->stopScript(); };
    EXPECT_FALSE(run("test.meanwhile(); while (true) test.note('x');"));
    EXPECT_EQ(msg.errors(), QStringList("The script was stopped."));
}

TEST_F(ScriptTest, aConnectedFunctionIsStopped)
{
    EXPECT_TRUE(run("test.fired.connect(function() { while (true); });"));
    stopSoon();
    emit target.fired(1);
    EXPECT_EQ(msg.errors(), QStringList("The script was stopped."));
    msg.reset();
    // The script that has caused the signal ends as well.
    stopSoon();
    EXPECT_FALSE(run("test.fire(); test.note('on'); while (true);"));
    EXPECT_EQ(msg.errors(), QStringList("The script was stopped.")) << qPrintable(msg.dump());
    EXPECT_FALSE(script->isRunning());
}

TEST_F(ScriptTest, theTextOfAnExceptionCanBeStoppedAndCanFail)
{
    stopSoon();
    EXPECT_FALSE(run("throw { toString: function() { while (true); } };"));
    EXPECT_EQ(msg.errors(), QStringList("The script was stopped."));
    EXPECT_FALSE(run("throw { toString: function() { throw 1; } };"));
    EXPECT_EQ(msg.errors().value(1), "Uncaught exception at line 1 - an exception without a text");
}

TEST_F(ScriptTest, aSecondScriptIsRefused)
{
    const QString path = write("test.note('second');");
    bool wasEnabled = true;
    target.during = [&] {
        wasEnabled = action(0)->isEnabled();
        EXPECT_FALSE(run("test.note('second');"));
        script->executeScriptFile(path);
    };
    EXPECT_TRUE(run("test.meanwhile(); test.note('first');"));
    EXPECT_EQ(target.notes, QStringList("first"));
    EXPECT_EQ(msg.errors(), QStringList({"A script is running already.",
                                         "A script is running already, this one was not started: " + path}));
    EXPECT_TRUE(msg.groups().isEmpty());
    EXPECT_FALSE(wasEnabled);
    EXPECT_TRUE(action(0)->isEnabled());
}

TEST_F(ScriptTest, functionsRunInTheEventLoopWhenTheirTimeHasCome)
{
    EXPECT_TRUE(run("var id = setTimeout(function() { test.note('never'); }, 0);\n"
                    "setTimeout(function() { test.note('b'); }, 20);\n"
                    "setTimeout(function() { test.note('a'); setTimeout(function() { test.note('c'); }, 40); }, 0);\n"
                    "clearTimeout(id); clearTimeout(999); clearTimeout('x');\n"
                    "test.note(typeof id);"));
    EXPECT_EQ(target.notes, QStringList("number"));
    EXPECT_TRUE(stopAction()->isEnabled());
    EXPECT_TRUE(QTest::qWaitFor([this] { return target.notes.size() == 4; }, patience));
    EXPECT_EQ(target.notes, QStringList({"number", "a", "b", "c"}));
    EXPECT_FALSE(stopAction()->isEnabled());
}

TEST_F(ScriptTest, aFunctionWaitsForTheEndOfTheScript)
{
    target.during = [] {
        for (int i = 0; i < 50; ++i)
            QTest::qWait(1);
    };
    EXPECT_TRUE(run("setTimeout(function() { test.note('later'); }, 0); test.meanwhile(); test.note('first');"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return target.notes.size() == 2; }, patience));
    EXPECT_EQ(target.notes, QStringList({"first", "later"}));
}

TEST_F(ScriptTest, onlyFunctionsCanWait)
{
    EXPECT_FALSE(run("setTimeout('test.note(1)', 0);"));
    EXPECT_EQ(msg.errors(), QStringList("Uncaught exception at line 1 - TypeError: setTimeout() needs a function."));
    for (const char* time : {"-5", "NaN", "'soon'", "undefined", "-1e300"})
        EXPECT_TRUE(run(QString("setTimeout(function() { test.note('x'); }, %1);").arg(time)));
    EXPECT_TRUE(QTest::qWaitFor([this] { return target.notes.size() == 5; }, patience));
    EXPECT_TRUE(run("setTimeout(function() { test.note('never'); }, 1e300);"));
    EXPECT_TRUE(stopAction()->isEnabled());
}

TEST_F(ScriptTest, anExceptionInALaterFunctionIsReported)
{
    script->executeScriptFile(write("setTimeout(function() {\nthrow new Error('late');\n}, 0);"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !msg.errors().isEmpty(); }, patience));
    EXPECT_EQ(msg.errors(), QStringList("Uncaught exception at line 2 - Error: late"));
    EXPECT_EQ(msg.messages().value(0).srcFile.displayName(), "s.js#2");
}

TEST_F(ScriptTest, aLaterFunctionIsStopped)
{
    EXPECT_TRUE(run("setTimeout(function() { stopped = true; while (true); }, 0);"));
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [this] {
        if (script->isRunning())
            stopAction()->trigger();
    });
    poll.start(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !msg.errors().isEmpty(); }, patience));
    EXPECT_EQ(msg.errors(), QStringList("The script was stopped."));
}

TEST_F(ScriptTest, aStopForgetsTheFunctionsThatWait)
{
    EXPECT_TRUE(run("function again() { setTimeout(again, 0); } again(); setTimeout(function() {}, 100000);"));
    EXPECT_TRUE(stopAction()->isEnabled());
    stopAction()->trigger();
    EXPECT_FALSE(stopAction()->isEnabled());
}

TEST_F(ScriptTest, nothingRunsAfterTheEndOfTheProgram)
{
    EXPECT_TRUE(run("setTimeout(function() { test.note('timeout'); }, 0);\n"
                    "test.fired.connect(function() { test.note('signal'); });"));
    script->modExitIntermod();
    script->modExit();
    emit target.fired(1);
    EXPECT_FALSE(run("test.note('script');"));
    script->executeScriptFile(write("test.note('file');"));
    script->registerObject(&target, "again");
    script->unregisterObject("again");
    script->stopScript();
    script->throwError("x");
    bool over = false;
    QTimer::singleShot(30, script.get(), [&over] { over = true; });
    EXPECT_TRUE(QTest::qWaitFor([&over] { return over; }, patience));
    EXPECT_TRUE(target.notes.isEmpty());
    EXPECT_TRUE(script->menuActions(ModActionHookIf::eActionClassTools).isEmpty());
}

TEST_F(ScriptTest, theModuleCanGoWhileItsScriptRuns)
{
    QTimer::singleShot(0, [this] { script.reset(); });
    ModScript* module = script.get();
    EXPECT_FALSE(module->executeScript("while (true);"));
    EXPECT_EQ(script, nullptr);
    make(nsModScript::eDebuggerNever);
    target.during = [this] { script.reset(); };
    script->executeScriptFile(write("test.meanwhile(); test.note('a'); while (true);"));
    EXPECT_EQ(script, nullptr);
    make(nsModScript::eDebuggerNever);
    EXPECT_TRUE(run("test.fired.connect(function() { test.meanwhile(); while (true); });"));
    emit target.fired(1);
    EXPECT_EQ(script, nullptr);
    // The engines are deleted from the event loop.
    bool over = false;
    QTimer::singleShot(100, [&over] { over = true; });
    EXPECT_TRUE(QTest::qWaitFor([&over] { return over; }, patience));
}

TEST_F(ScriptTest, aLoopInAnOperationLearnsThatTheScriptIsStopped)
{
    int looks = 0;
    target.during = [this, &looks] {
        while (script->scriptGoesOn()) {
            if (++looks == 5)
                stopAction()->trigger();
        }
    };
    EXPECT_FALSE(run("test.meanwhile(); while (true);"));
    EXPECT_EQ(looks, 5);
    EXPECT_TRUE(script->scriptGoesOn());
}

namespace {

/// The window of the debugger, while it is shown.
QMainWindow* debuggerWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->windowTitle() == "Qt Script Debugger")
            return qobject_cast<QMainWindow*>(widget);
    }
    return nullptr;
}

} // namespace

class ScriptDebuggerTest : public ScriptTest
{
protected:
    ScriptDebuggerTest()
    {
        make(nsModScript::eDebuggerAlways);
        QObject::connect(&m_look, &QTimer::timeout, &m_look, [this] {
            QMainWindow* window = debuggerWindow();
            if (window == nullptr || !inDebugger || busy)
                return;
            ++seen;
            busy = true;
            inDebugger(window);
            busy = false;
        });
        m_look.start(1);
    }

    std::function<void(QMainWindow*)> inDebugger; ///< what the user does while its window is shown
    int seen = 0;
    bool busy = false;

private:
    QTimer m_look;
};

TEST_F(ScriptDebuggerTest, anUncaughtExceptionShowsItsWindowUntilThatIsClosed)
{
    inDebugger = [](QMainWindow* window) { window->close(); };
    EXPECT_FALSE(run("1;\nnobody();"));
    EXPECT_GE(seen, 1);
    EXPECT_EQ(msg.errors(), QStringList("Uncaught exception at line 2 - ReferenceError: Can't find variable: nobody"));
}

TEST_F(ScriptDebuggerTest, aCaughtExceptionDoesNotShowIt)
{
    EXPECT_TRUE(run("try { nobody(); } catch (e) { test.note('caught'); }"));
    EXPECT_EQ(debuggerWindow(), nullptr);
}

TEST_F(ScriptDebuggerTest, aDebuggerStatementShowsItAndTheScriptGoesOn)
{
    inDebugger = [this](QMainWindow* window) {
        EXPECT_TRUE(script->isRunning());
        window->close();
    };
    EXPECT_TRUE(run("debugger;\ntest.note('on');"));
    EXPECT_GE(seen, 1);
    EXPECT_EQ(target.notes, QStringList("on"));
}

TEST_F(ScriptDebuggerTest, aStopAlsoEndsAScriptThatWaitsInTheDebugger)
{
    inDebugger = [this](QMainWindow*) { stopAction()->trigger(); };
    script->executeScriptFile(write("debugger; while (true);"));
    EXPECT_EQ(msg.errors(), QStringList("The script was stopped."));
    EXPECT_EQ(lastGroupResult(), "failed");
}

TEST_F(ScriptDebuggerTest, itsWindowGoesAtTheEndOfTheProgram)
{
    inDebugger = [this](QMainWindow*) { stopAction()->trigger(); };
    EXPECT_FALSE(run("debugger; while (true);"));
    inDebugger = nullptr;
    ASSERT_NE(debuggerWindow(), nullptr);
    script->modExitIntermod();
    EXPECT_EQ(debuggerWindow(), nullptr);
}

TEST_F(ScriptDebuggerTest, theModuleCanGoWhileItIsOpen)
{
    inDebugger = [this](QMainWindow*) { script.reset(); };
    ModScript* module = script.get();
    EXPECT_FALSE(module->executeScript("debugger; while (true);"));
    inDebugger = nullptr;
    EXPECT_TRUE(QTest::qWaitFor([] { return debuggerWindow() == nullptr; }, patience));
}

TEST_F(ScriptTest, withoutADisplayADebuggerStatementDoesNothing)
{
    ASSERT_EQ(QGuiApplication::platformName(), "offscreen");
    EXPECT_TRUE(run("debugger; test.note('on');"));
    EXPECT_FALSE(run("nobody();"));
    EXPECT_EQ(debuggerWindow(), nullptr);
    EXPECT_EQ(target.notes, QStringList("on"));
}
