// Values for the reads of a program: where they come from, how their files look, and what happens when they run out.

#include "SimToolFixture.h"

#include <csignal>
#include <sys/stat.h>
#include <sys/types.h>

namespace {

class SimToolReads : public SimToolTest
{
protected:
    SimToolReads() { writeProgram(echoSource()); }

    AsmToolResult shell(const QString& script) const
    {
        AsmToolSetup with = setup();
        with.program = "sh";
        with.env.insert("S", NALVO_TOOL);
        return run({"-c", script}, with);
    }

    /// What the program has read, from the trace. The run ends since there is no more.
    QByteArray values(const QByteArray& text) const
    {
        write("reads", text);
        const AsmToolResult result = run({"-q", "--reads", "reads", "--trace", "-", "p.nalvo"});
        EXPECT_EQ(result.status, 3) << result.err.constData();
        QByteArray read;
        for (const QByteArray& line : result.out.split('\n'))
            read += line.startsWith("R 10 ") ? line.mid(5) + ' ' : QByteArray();
        return read;
    }

    void expectBadLine(const QByteArray& text, const char* place) const
    {
        write("reads", text);
        const AsmToolResult result = run({"-q", "--reads", "reads", "--trace", "trace", "--dump", "dump", "p.nalvo"});
        EXPECT_EQ(result.status, 2) << text.left(100).constData();
        EXPECT_EQ(result.err, "nalvo-sim: " + QByteArray(place) + ": no hexadecimal byte\n");
        EXPECT_FALSE(exists("trace"));
        EXPECT_FALSE(exists("dump"));
    }
};

TEST_F(SimToolReads, OneByteALineBlanksAndCommentsAside)
{
    EXPECT_EQ(values("00\n7f\nFF\n"), QByteArray("00 7F FF "));
    EXPECT_EQ(values("1"), QByteArray("01 "));
    EXPECT_EQ(values("1\r\n\r\n2\r\n"), QByteArray("01 02 "));
    EXPECT_EQ(values("; head\n# head\n\n  \t\n 0x1a ; note\n\tB# note\n0XC;"), QByteArray("1A 0B 0C "));
    EXPECT_EQ(values("1;" + QByteArray(300000, 'z') + "\n2\n"), QByteArray("01 02 "));
    EXPECT_EQ(values(QByteArray("\n").repeated(200000) + "5\n"), QByteArray("05 "));
    EXPECT_EQ(values(""), QByteArray());
}

TEST_F(SimToolReads, ALineThatIsNoByteIsAnErrorWithItsPlace)
{
    expectBadLine("100\n", "reads:1");
    expectBadLine("1\n\n; x\nG\n", "reads:4");
    expectBadLine("1\n0x\n", "reads:2");
    expectBadLine("1 2\n", "reads:1");
    expectBadLine("-1\n", "reads:1");
    expectBadLine("0x123\n", "reads:1");
    expectBadLine(QByteArray("1\n\0\n", 4), "reads:2");
    expectBadLine(QByteArray(5000000, '1'), "reads:1");
    expectBadLine("\xef\xbb\xbf"
                  "1\n",
                  "reads:1");
}

TEST_F(SimToolReads, ALineThatIsNotReachedDoesNoHarm)
{
    write("reads", "1\nG\n");
    EXPECT_EQ(run({"-q", "-n", "5", "--reads", "reads", "p.nalvo"}).status, 0);
}

TEST_F(SimToolReads, MissingAndExhaustedSourcesNamePortAddressAndLine)
{
    const AsmToolResult missing = run({"p.nalvo"});
    EXPECT_EQ(missing.status, 3);
    EXPECT_EQ(missing.errLines(),
              QStringList({"a.psm:4: error: No value for the read of port 0x10 at address 001: it has no source of "
                           "values. [errNoReads]",
                           "nalvo-sim: no value to read at address 001, a.psm:4, 1 instruction, 2 clocks"}));
    write("reads", "1\n2\n");
    const AsmToolResult exhausted = run({"-q", "--port", "0x10=reads", "p.nalvo"});
    EXPECT_EQ(exhausted.status, 3);
    EXPECT_EQ(exhausted.errLines(),
              QStringList("a.psm:4: error: No value for the read of port 0x10 at address 001: reads is used up after 2 "
                          "values. [errReadsExhausted]"));
    const QJsonObject state = dump({"--reads", "reads", "p.nalvo"}, 3);
    EXPECT_EQ(reason(state), "reads");
    EXPECT_EQ(key(state), "errReadsExhausted");
    EXPECT_EQ(state.value("pc").toObject().value("address").toInt(), 1);
    EXPECT_EQ(reg(state, "s0"), 2);
    EXPECT_EQ(reg(state, "s1"), 2);
    EXPECT_EQ(state.value("instructions").toInt(), 9);
}

TEST_F(SimToolReads, APortOfItsOwnDoesNotFallBackToTheOthers)
{
    writeProgram(" RDPRT s0, 1\n RDPRT s1, 2\n RDPRT s2, 3\n RDPRT s3, 2\n RDPRT s4, 1\n RDPRT s5, 2\n"
                 "#ORG ADDR, 0x3FF\n RETI ENABLE\n");
    write("reads", "10\n11\n12\n13\n");
    write("two", "20\n21\n");
    const QJsonObject state = dump({"--reads", "reads", "--port", "2=two", "p.nalvo"}, 3);
    EXPECT_EQ(reg(state, "s0"), 0x10);
    EXPECT_EQ(reg(state, "s1"), 0x20);
    EXPECT_EQ(reg(state, "s2"), 0x11);
    EXPECT_EQ(reg(state, "s3"), 0x21);
    EXPECT_EQ(reg(state, "s4"), 0x12);
    EXPECT_EQ(key(state), "errReadsExhausted");
    EXPECT_EQ(state.value("pc").toObject().value("address").toInt(), 5);
}

TEST_F(SimToolReads, DevicesOfTheProjectAnswerFirst)
{
    const QByteArray device = "#SET IODEV::rx::EN,            TRUE\n"
                              "#SET IODEV::rx::TYPE,          FIFO\n"
                              "#SET IODEV::rx::SIZE,          2\n"
                              "#SET IODEV::rx::BASEADDR,      0x10\n"
                              "#SET IODEV::rx::SIMEN,         TRUE\n"
                              "#SET IODEV::rx::SIMACCESSMODE, RD\n"
                              "#SET IODEV::rx::VALUE,         0x47, 0x48\n";
    writeProgram(device + echoSource());
    write("reads", "01\n");
    const QJsonObject state = dump({"-q", "-n", "6", "--reads", "reads", "p.nalvo"});
    EXPECT_EQ(reg(state, "s0"), 0x48);
    const AsmToolResult empty = run({"-q", "--reads", "reads", "p.nalvo"});
    EXPECT_EQ(empty.status, 3);
    EXPECT_EQ(
        empty.errLines(),
        QStringList({"a.psm:11: error: Can not read IO value. [errIODevRd]",
                     "a.psm:11: error: No value for the read of port 0x10 at address 001: its device has none."}));
    const AsmToolResult both = run({"--port", "16=reads", "p.nalvo"});
    EXPECT_EQ(both.status, 2);
    EXPECT_TRUE(both.err.contains("nalvo-sim: A device of the project answers at the port already: 16\n"));
}

TEST_F(SimToolReads, FilesThatCanNotBeRead)
{
    mkdir("folder");
    EXPECT_EQ(run({"-q", "--reads", "folder", "p.nalvo"}).err,
              QByteArray("nalvo-sim: Can not read folder: Is a directory\n"));
    EXPECT_EQ(run({"-q", "--reads", "nosuch", "p.nalvo"}).err,
              QByteArray("nalvo-sim: Can not read nosuch: No such file or directory\n"));
    EXPECT_EQ(run({"-q", "--port", "1=nosuch", "--trace", "t", "p.nalvo"}).status, 2);
    EXPECT_FALSE(exists("t"));
    EXPECT_EQ(run({"-q", "--reads", "/dev/zero", "p.nalvo"}).err,
              QByteArray("nalvo-sim: /dev/zero:1: no hexadecimal byte\n"));
    EXPECT_EQ(run({"-q", "--reads", "/dev/null", "p.nalvo"}).status, 3);
    EXPECT_EQ(shell("\"$S\" -q --reads - p.nalvo <&-").err,
              QByteArray("nalvo-sim: standard input:1: Bad file descriptor\n"));
}

TEST_F(SimToolReads, EndlessAndHugeSourcesAreReadAsFarAsNeeded)
{
    EXPECT_EQ(shell("yes 2A | \"$S\" -q -n 400000 --reads - p.nalvo").status, 0);
    write("huge", "01\n02\n");
    QFile huge(path("huge"));
    ASSERT_TRUE(huge.resize(qint64(1) << 40));
    EXPECT_EQ(run({"-q", "-n", "8", "--reads", "huge", "p.nalvo"}).status, 0);
    EXPECT_EQ(run({"-q", "--reads", "huge", "p.nalvo"}).err, QByteArray("nalvo-sim: huge:3: no hexadecimal byte\n"));
}

TEST_F(SimToolReads, APipeIsASource)
{
    ASSERT_EQ(mkfifo(path("pipe").toUtf8().constData(), 0600), 0);
    const AsmToolResult result =
        shell("echo 33 >pipe & \"$S\" -q --reads pipe --trace - p.nalvo; status=$?; wait; exit $status");
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.out.contains("R 10 33\n"));
}

/// A run that another program talks with.
class SimToolTalk : public SimToolReads
{
protected:
    void start(const QStringList& arguments)
    {
        AsmToolSetup with = setup();
        m_process.setProgram(NALVO_TOOL);
        m_process.setArguments(arguments);
        m_process.setProcessEnvironment(with.env);
        m_process.setWorkingDirectory(with.folder);
        m_process.start();
        ASSERT_TRUE(m_process.waitForStarted());
    }
    void expectOut(const QByteArray& text)
    {
        while (m_out.size() < text.size() && m_process.waitForReadyRead(timeout))
            m_out += m_process.readAllStandardOutput();
        EXPECT_EQ(m_out, text);
        m_out.clear();
    }
    void say(const QByteArray& text)
    {
        m_process.write(text);
        ASSERT_TRUE(m_process.waitForBytesWritten(timeout));
    }
    int end()
    {
        EXPECT_TRUE(m_process.waitForFinished(timeout));
        EXPECT_EQ(m_process.exitStatus(), QProcess::NormalExit);
        return m_process.exitCode();
    }
    void signalStop() { ASSERT_EQ(kill(pid_t(m_process.processId()), SIGINT), 0); }

    static constexpr int timeout = 60000;
    ToolProcess m_process;
    QByteArray m_out;
};

TEST_F(SimToolTalk, WhoAnswersSeesFirstWhatTheProgramHasDone)
{
    start({"-q", "--reads", "-", "--trace", "-", "p.nalvo"});
    expectOut("I 000 3C001\n");
    say("07\n");
    expectOut("I 001 04010\nR 10 07\nI 002 18101\nI 003 2C020\nW 20 07\nI 004 34001\n");
    m_process.closeWriteChannel();
    EXPECT_EQ(end(), 3);
    EXPECT_EQ(m_process.readAllStandardOutput(), QByteArray());
}

TEST_F(SimToolTalk, AnInterruptSignalEndsAWaitingRunWithItsFiles)
{
    start({"--reads", "-", "--trace", "-", "--dump", "dump", "--vcd", "vcd", "p.nalvo"});
    expectOut("I 000 3C001\n");
    say("07\n");
    expectOut("I 001 04010\nR 10 07\nI 002 18101\nI 003 2C020\nW 20 07\nI 004 34001\n");
    signalStop();
    EXPECT_EQ(end(), 130);
    EXPECT_EQ(m_process.readAllStandardError(), QByteArray("nalvo-sim: interrupted, 5 instructions, 10 clocks\n"));
    const QJsonObject state = QJsonDocument::fromJson(read("dump")).object();
    EXPECT_EQ(reason(state), "signal");
    EXPECT_EQ(reg(state, "s0"), 7);
    EXPECT_TRUE(read("vcd").contains("b00000111 !\n"));
}

TEST_F(SimToolTalk, AnInterruptSignalEndsABusyRunAtALineEnd)
{
    writeProgram(loopSource());
    start({"-n", "9223372036854775807", "--trace", "-", "--dump", "dump", "p.nalvo"});
    ASSERT_TRUE(m_process.waitForReadyRead(timeout));
    signalStop();
    EXPECT_EQ(end(), 130);
    const QByteArray trace = m_process.readAllStandardOutput();
    const QJsonObject state = QJsonDocument::fromJson(read("dump")).object();
    EXPECT_EQ(trace.count('\n'), state.value("instructions").toInt());
    EXPECT_TRUE(trace.endsWith('\n'));
}

TEST_F(SimToolTalk, AnInterruptSignalEndsTheWaitForAPipe)
{
    ASSERT_EQ(mkfifo(path("pipe").toUtf8().constData(), 0600), 0);
    start({"--reads", "pipe", "--trace", "-", "--dump", "dump", "p.nalvo"});
    expectOut("I 000 3C001\n");
    signalStop();
    EXPECT_EQ(end(), 130);
    EXPECT_EQ(m_process.readAllStandardError(), QByteArray("nalvo-sim: interrupted, 1 instruction, 2 clocks\n"));
    EXPECT_EQ(reason(QJsonDocument::fromJson(read("dump")).object()), "signal");
}

TEST_F(SimToolTalk, ARunInTheBackgroundKeepsIgnoringTheSignal)
{
    m_process.setup(NALVO_TOOL, {}, [this] {
        AsmToolSetup with = setup();
        with.inChild = [] { std::signal(SIGINT, SIG_IGN); };
        return with;
    }());
    m_process.setStandardInputFile(QString());
    start({"-q", "--reads", "-", "--trace", "-", "p.nalvo"});
    expectOut("I 000 3C001\n");
    signalStop();
    say("07\n");
    expectOut("I 001 04010\nR 10 07\nI 002 18101\nI 003 2C020\nW 20 07\nI 004 34001\n");
    m_process.closeWriteChannel();
    EXPECT_EQ(end(), 3);
}

} // namespace
