// The external programs of a project in a batch run: only when asked for, and as the window runs them.

#include "AsmToolFixture.h"
#include "ExampleFolder.h"

#include <QStandardPaths>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

const int timeout = 120000; // ms; only a run that hangs takes so long
const QString option = QStringLiteral("--external-programs");

class AsmToolPrograms : public AsmToolTest
{
protected:
    /// A good project whose programs run at button 1.
    AsmToolPrograms()
    {
        project.output("hex", "out.hex");
        write("a.psm", goodSource());
    }
    /// Makes program `index` a shell script with this text.
    void setScript(int index, const QByteArray& text)
    {
        const QString name = QString("s%1.sh").arg(index);
        write(name, text);
        set(index, "Exe", "sh");
        set(index, "Arg", name);
        set(index, "StoreRelToPrj", "0");
        set(index, "En", "1");
        set(index, "ExecEventBut1", "1");
    }
    void set(int index, const char* name, const QString& value)
    {
        project.settings[QString("Syscall/syscall%1%2").arg(index).arg(name)] = value;
    }
    AsmToolResult runProject(const QStringList& options)
    {
        writeProject(project);
        return run(options + QStringList("p.nalvo"));
    }
    /// Starts a run whose first program rests, sends a signal, and checks that all has ended.
    void expectEndBy(int signal, const QByteArray& script)
    {
        setScript(0, script);
        writeProject(project);
        ToolProcess process;
        process.setup(NALVO_TOOL, {option, "p.nalvo"}, setup());
        process.start();
        ASSERT_TRUE(QTest::qWaitFor([this] { return exists("ready") && read("ready").endsWith('\n'); }, timeout));
        const int pid = read("ready").trimmed().toInt();
        ASSERT_GT(pid, 0);
        ASSERT_EQ(::kill(pid_t(process.processId()), signal), 0);
        ASSERT_TRUE(process.waitForFinished(timeout));
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit) << "it ends by the signal itself";
        EXPECT_EQ(process.exitCode(), signal);
        EXPECT_TRUE(QTest::qWaitFor([pid] { return ::kill(pid, 0) != 0; }, timeout));
    }

    AsmProject project;
};

} // namespace

TEST_F(AsmToolPrograms, areLeftOutUnlessAskedFor)
{
    setScript(0, "echo run > trace\n");
    AsmToolResult result = runProject({});
    EXPECT_EQ(result.status, 0);
    EXPECT_FALSE(exists("trace"));
    EXPECT_FALSE(result.err.contains("external")) << result.err.constData();
    result = runProject({"-v"});
    EXPECT_EQ(result.status, 0);
    EXPECT_FALSE(exists("trace"));
    EXPECT_TRUE(result.err.contains("info: The external programs of the event are left out; --external-programs runs "
                                    "them. [infoLeftOut]\n"))
        << result.err.constData();
    result = runProject({"-v", "-e", "save"});
    EXPECT_FALSE(result.err.contains("infoLeftOut")) << "nothing is bound to this event";
}

TEST_F(AsmToolPrograms, runWithTheirOutputOnStandardError)
{
    setScript(0, "echo on out\necho on err >&2\npwd\ncat\n");
    AsmToolSetup setup = this->setup();
    setup.folder = path("..");
    writeProject(project);
    const AsmToolResult result = run({"-q", option, path("p.nalvo")}, setup);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, QByteArray());
    EXPECT_EQ(result.err, QByteArray("on out\non err\n") + path().toUtf8() + '\n') << "in the project's folder";
}

TEST_F(AsmToolPrograms, theirOutputIsNotTouched)
{
    setScript(0, "printf '\\000\\377\\033[1m\\303'\nprintf '\\244\\r\\n'\n");
    const AsmToolResult result = runProject({"-q", option});
    EXPECT_EQ(result.err, QByteArray("\0\xff\x1b[1m\xc3\xa4\r\n", 10));
}

TEST_F(AsmToolPrograms, reportAsTheWindowDoes)
{
    setScript(0, "");
    setScript(1, "exit 3\n");
    set(1, "RetValOfSuccess", "3");
    const AsmToolResult result = runProject({"-v", option});
    EXPECT_EQ(result.status, 0);
    const QByteArray expected = "info: Executing external programs...\n"
                                "info: Calling external program 1: sh s0.sh [grpSyscall]\n"
                                "info: Waiting for program... [infoWaiting]\n"
                                "info: Program exited with success. [infoExitWithSuccess]\n"
                                "info: Calling external program 2: sh s1.sh [grpSyscall]\n"
                                "info: Waiting for program... [infoWaiting]\n"
                                "info: Program exited with success. [infoExitWithSuccess]\n";
    EXPECT_TRUE(result.err.contains(expected)) << result.err.constData();
    const AsmToolResult none = runProject({"-v", option, "-e", "button2"});
    EXPECT_TRUE(none.err.contains("info: Nothing todo for event. [infoNothingTodo]\n")) << none.err.constData();
}

TEST_F(AsmToolPrograms, aFailureIsAnErrorAndTheNextRuns)
{
    setScript(0, "exit 7\n");
    setScript(1, "echo second\n");
    const AsmToolResult result = runProject({option});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errLines(),
              QStringList({"error: Program exited without success. [errExitWithoutSuccess]", "second",
                           "nalvo-asm: failed, 1 error, 0 warnings, 3 instructions, 1 file written"}));
}

TEST_F(AsmToolPrograms, abortStopsTheChain)
{
    setScript(0, "kill -9 $$\n");
    set(0, "AbortIfNoSuccess", "1");
    set(0, "RetValOfSuccess", "9");
    setScript(1, "echo second\n");
    const AsmToolResult result = runProject({"-q", option});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errLines(), QStringList("error: Program exited without success. [errExitWithoutSuccess]"));
}

TEST_F(AsmToolPrograms, aProgramThatIsMissing)
{
    setScript(0, "");
    for (const char* exe : {"", "no-such-program-anywhere", "./s0.sh"}) {
        set(0, "Exe", exe);
        const AsmToolResult result = runProject({"-q", option});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.errLines(), QStringList("error: Can not start program. [errCanNotStart]")) << exe;
    }
}

TEST_F(AsmToolPrograms, onesThatAreNotWaitedForAreAtTheEnd)
{
    // It ends after the listing is there, which is written after the run.
    setScript(0, "while [ ! -e list ]; do sleep 0.01; done\necho late\nexit 5\n");
    set(0, "BlockingModeEn", "0");
    const AsmToolResult result = runProject({"-q", option, "-l", "list"});
    EXPECT_EQ(result.status, 0) << "nobody looks at its result";
    EXPECT_EQ(result.err, "late\n");
}

TEST_F(AsmToolPrograms, doNotRunAfterAFailedRun)
{
    setScript(0, "echo run\n");
    write("a.psm", "        LOAD    s0, unknown\n");
    const AsmToolResult result = runProject({"-q", option});
    EXPECT_EQ(result.status, 1);
    EXPECT_FALSE(result.err.contains("run"));
}

TEST_F(AsmToolPrograms, messagesAsJsonStayAlone)
{
    setScript(0, "echo out\nexit 1\n");
    const AsmToolResult result = runProject({"-f", "json", option});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "out\n");
    const QList<QJsonObject> objects = result.objects();
    ASSERT_EQ(objects.size(), 2);
    EXPECT_EQ(objects.first().value("key").toString(), "errExitWithoutSuccess");
}

TEST_F(AsmToolPrograms, endWithTheRunOnASignal)
{
    for (int signal : {SIGINT, SIGTERM, SIGHUP}) {
        SCOPED_TRACE(signal);
        QFile::remove(path("ready"));
        expectEndBy(signal, "sh -c 'echo $$ > ready; while :; do sleep 100; done'\n");
    }
}

TEST_F(AsmToolPrograms, stubbornOnesEndToo)
{
    expectEndBy(SIGINT, "trap '' TERM INT HUP\necho $$ > ready\nwhile :; do sleep 0.05; done\n");
}

TEST_F(AsmToolPrograms, endWithARunThatIsKilled)
{
    expectEndBy(SIGKILL, "echo $$ > ready\nexec sleep 1000\n");
}

// --- the examples ---

namespace {

class AsmToolProgramExamples : public AsmToolTest
{
protected:
    AsmToolProgramExamples() { copyFolder(NALVO_SOURCE_DIR "/examples", path("examples")); }

    AsmToolResult runExample(const QString& name, const AsmToolSetup& setup) const
    {
        return run({"-e", "button2", option, QString("examples/%1/%1.nalvo").arg(name)}, setup);
    }
    AsmToolResult runExample(const QString& name) const { return runExample(name, setup()); }
    /// A search path with the usual tools but not this one.
    AsmToolSetup setupWithout(const QString& tool) const
    {
        mkdir("bin");
        for (const char* other : {"sh", "dirname", "mktemp", "rm"}) {
            if (other != tool)
                QFile::link(QStandardPaths::findExecutable(other), path(QString("bin/") + other));
        }
        AsmToolSetup setup = this->setup();
        setup.env.insert("PATH", path("bin"));
        return setup;
    }
};

} // namespace

TEST_F(AsmToolProgramExamples, ghdlChecksTheVhdlFile)
{
    const AsmToolResult result = runExample("check_vhdl");
    EXPECT_EQ(result.status, 0) << result.err.constData();
    const bool isThere = !QStandardPaths::findExecutable("ghdl").isEmpty();
    EXPECT_TRUE(result.err.contains(isThere ? "PASS: " : "SKIPPED: ")) << result.err.constData();
}

TEST_F(AsmToolProgramExamples, ghdlFindsAWrongVhdlFile)
{
    const QString name = "examples/check_vhdl/rom.vhd.template";
    QByteArray text = read(name);
    ASSERT_TRUE(text.contains("WORDS(addr / 16)"));
    write(name, text.replace("WORDS(addr / 16)", "WORDS(addr / 32)"));
    const AsmToolResult result = runExample("check_vhdl");
    const bool isThere = !QStandardPaths::findExecutable("ghdl").isEmpty();
    EXPECT_EQ(result.status, isThere ? 1 : 0);
    EXPECT_TRUE(result.err.contains(isThere ? "FAIL: " : "SKIPPED: ")) << result.err.constData();
}

TEST_F(AsmToolProgramExamples, pythonReadsTheHexFile)
{
    const bool isThere = !QStandardPaths::findExecutable("python3").isEmpty();
    AsmToolResult result = runExample("check_hex");
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_TRUE(result.err.contains(isThere ? "\nPASS\n" : "SKIPPED: ") || result.err.startsWith("9 of 1024"))
        << result.err.constData();
    write("examples/check_hex/src/main.psm",
          "start:\n" + QByteArray("        LOAD    s0, 1\n").repeated(1000) +
              "        JUMP    start\n#ORG    ADDR, 0x3FF\n        RETI    ENABLE\n");
    result = runExample("check_hex");
    EXPECT_EQ(result.status, isThere ? 1 : 0);
    EXPECT_TRUE(result.err.contains(isThere ? "FAIL: more than 90%" : "SKIPPED: ")) << result.err.constData();
}

TEST_F(AsmToolProgramExamples, aToolThatIsAbsentIsSkipped)
{
    const AsmToolResult vhdl = runExample("check_vhdl", setupWithout("ghdl"));
    EXPECT_EQ(vhdl.status, 0);
    EXPECT_TRUE(vhdl.err.contains("SKIPPED: ghdl is not installed")) << vhdl.err.constData();
    const AsmToolResult hex = runExample("check_hex", setupWithout("python3"));
    EXPECT_EQ(hex.status, 0);
    EXPECT_TRUE(hex.err.contains("SKIPPED: python3 is not installed")) << hex.err.constData();
}
