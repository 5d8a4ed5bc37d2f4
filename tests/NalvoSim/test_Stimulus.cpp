// Changes of the inputs by the clock.

#include "SimToolFixture.h"

namespace {

class SimToolStimulus : public SimToolTest
{
protected:
    /// Reads port 0x10 without end; each turn has three instructions, six clocks, and reads in its second clock.
    static QByteArray pollSource()
    {
        return "loop:\n"
               "        RDPRT   s0, 0x10\n"
               "        ADD     s1, 1\n"
               "        JUMP    loop\n"
               "isr:\n"
               "        RDPRT   s2, 0x11\n"
               "        RETI    ENABLE\n"
               "#ORG    ADDR, 0x3FF\n"
               "        JUMP    isr\n";
    }

    /// The lines of a trace that begin with one of the letters.
    QStringList traced(const QStringList& arguments, const QString& letters) const
    {
        const AsmToolResult result = run(QStringList{"-q", "--trace", "-"} + arguments + QStringList("p.nalvo"));
        EXPECT_EQ(result.status, 0) << result.err.constData();
        QStringList lines;
        for (const QString& line : QString::fromLatin1(result.out).split('\n')) {
            if (!line.isEmpty() && letters.contains(line[0]) && !line.startsWith("INT"))
                lines.append(line);
        }
        return lines;
    }

    /// The numbers of the instructions, from 1, in front of which an interrupt was entered.
    QList<int> entries(const QStringList& arguments) const
    {
        const AsmToolResult result = run(QStringList{"-q", "--trace", "-"} + arguments + QStringList("p.nalvo"));
        EXPECT_EQ(result.status, 0) << result.err.constData();
        QList<int> numbers;
        int count = 0;
        for (const QByteArray& line : result.out.split('\n')) {
            if (line.startsWith("INT"))
                numbers.append(count + 1);
            count += int(line.startsWith("I "));
        }
        return numbers;
    }

    void expectFailure(const QByteArray& text, const char* said) const
    {
        write("s.txt", text);
        const AsmToolResult result = run({"--stimulus", "s.txt", "-n", "3", "p.nalvo"});
        EXPECT_EQ(result.status, 2) << text.constData();
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.errLines(), QStringList(QString("nalvo-sim: ") + said)) << text.constData();
    }
};

TEST_F(SimToolStimulus, APortHasItsValueFromItsClockOn)
{
    writeProgram(pollSource());
    // The turns read in the clocks 1, 7, 13, 19.
    write("s.txt", "; a comment\n"
                   "13\tport 0x10 0xC3   # from here on\n"
                   "\n"
                   "  8 PORT 16 7\r\n"
                   "20 port 0x10 9");
    for (const QStringList& mode : {QStringList(), QStringList("--exact")})
        EXPECT_EQ(traced(mode + QStringList{"--stimulus", "s.txt", "-n", "13"}, "R"),
                  QStringList({"R 10 00", "R 10 00", "R 10 C3", "R 10 C3", "R 10 09"}));
    write("s.txt", "7 port 0x10 1\n");
    EXPECT_EQ(traced({"--stimulus", "s.txt", "-n", "6"}, "R"), QStringList({"R 10 00", "R 10 01"}));
    write("s.txt", "0 port 0x10 0x55\n");
    EXPECT_EQ(traced({"--stimulus", "s.txt", "-n", "1"}, "R"), QStringList("R 10 55"));
}

TEST_F(SimToolStimulus, ThePortOfAMico8IsReadWhenItIsReady)
{
    AsmProject project;
    project.processor = "Lattice Mico8 v3.x";
    project.settings["LMico8v3x/simWaitStates"] = "2";
    writeProject(project);
    write("a.psm", "        NOP\n        RDPRT   r1, 3\nloop:   JUMP    loop\n");
    // The core begins at the RDPRT; its strobe is in clock 1, two clocks later with the wait states.
    for (const char* clock : {"3", "4"}) {
        write("s.txt", QByteArray(clock) + " port 3 0x99\n");
        EXPECT_EQ(traced({"--exact", "--stimulus", "s.txt", "-n", "2"}, "R"),
                  QStringList(clock[0] == '3' ? "R 03 99" : "R 03 00"));
    }
}

TEST_F(SimToolStimulus, OtherPortsHaveTheirValuesFromElsewhere)
{
    writeProgram("        RDPRT   s0, 0x10\n        RDPRT   s1, 0x11\n        RDPRT   s2, 0x12\nend:    JUMP    end\n");
    write("s.txt", "0 port 0x11 0xBB\n");
    write("reads.txt", "AA\n");
    write("port.txt", "CC\n");
    EXPECT_EQ(traced({"--reads", "reads.txt", "--stimulus", "s.txt", "--port", "0x12=port.txt", "-n", "3"}, "R"),
              QStringList({"R 10 AA", "R 11 BB", "R 12 CC"}));
    const AsmToolResult twice = run({"--stimulus", "s.txt", "--port", "0x11=port.txt", "p.nalvo"});
    EXPECT_EQ(twice.status, 2);
    EXPECT_EQ(twice.errLines().value(1), "nalvo-sim: Both --port and --stimulus have values for one port: 17");
}

TEST_F(SimToolStimulus, ADeviceOfTheProjectIsNotOverruled)
{
    writeProgram("#SET IODEV::rx::EN,            TRUE\n"
                 "#SET IODEV::rx::TYPE,          FIFO\n"
                 "#SET IODEV::rx::SIZE,          2\n"
                 "#SET IODEV::rx::BASEADDR,      0x10\n"
                 "#SET IODEV::rx::SIMEN,         TRUE\n"
                 "#SET IODEV::rx::SIMACCESSMODE, RD\n"
                 "#SET IODEV::rx::VALUE,         0x47, 0x48\n" +
                 pollSource());
    write("s.txt", "0 port 0x10 1\n");
    const AsmToolResult result = run({"--stimulus", "s.txt", "-n", "3", "p.nalvo"});
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(result.err.contains("nalvo-sim: A device of the project answers at the port already: 16\n"));
}

TEST_F(SimToolStimulus, RequestsComeAtTheirClock)
{
    writeProgram("        INT     ENABLE\n" + pollSource());
    // Stated: in front of the first instruction that begins then or later. Lost while interrupts are off.
    write("s.txt", "0 interrupt\n0 port 0x10 0\n0 port 0x11 0\n5 interrupt 3\n");
    EXPECT_EQ(entries({"--stimulus", "s.txt", "-n", "20"}), QList<int>({4}));
    write("s.txt", "6 interrupt\n0 port 0x10 0\n0 port 0x11 0\n");
    EXPECT_EQ(entries({"--stimulus", "s.txt", "-n", "20"}), QList<int>({4}));
    // Two requests before one instruction are one.
    write("s.txt", "8 interrupt\n7 interrupt\n0 port 0x10 0\n0 port 0x11 0\n");
    EXPECT_EQ(entries({"--stimulus", "s.txt", "-n", "20"}), QList<int>({5}));
    // Beside those of the command line.
    EXPECT_EQ(entries({"--stimulus", "s.txt", "--interrupt-at", "2,16", "-n", "20"}), QList<int>({2, 5, 16}));
    // Exact: as --interrupt-at-clock does.
    for (int clock = 0; clock < 9; ++clock) {
        for (int length = 1; length < 4; ++length) {
            const QString span = QString::number(clock) + (length > 1 ? ":" + QString::number(length) : QString());
            write("s.txt", "0 port 0x10 0\n0 port 0x11 0\n");
            const QStringList exact = {"--exact", "-n", "20", "--stimulus", "s.txt"};
            const QList<int> wanted = entries(exact + QStringList{"--interrupt-at-clock", span});
            const QByteArray request =
                QByteArray::number(clock) + " interrupt" + (length > 1 ? " " + QByteArray::number(length) : "");
            write("s.txt", "0 port 0x10 0\n0 port 0x11 0\n" + request + "\n");
            EXPECT_EQ(entries(exact), wanted) << clock << ' ' << length;
        }
    }
}

TEST_F(SimToolStimulus, ABoundOfClocksHoldsBesideRequests)
{
    writeProgram("        INT     ENABLE\n" + pollSource());
    write("s.txt", "0 port 0x10 0\n0 port 0x11 0\n7 interrupt\n100 interrupt\n");
    const QJsonObject state = dump({"--stimulus", "s.txt", "--max-clocks", "21", "p.nalvo"});
    EXPECT_EQ(state.value("clocks").toInt(), 22);
    EXPECT_EQ(reason(state), "clocks");
}

TEST_F(SimToolStimulus, WhatIsWrongIsSaidWithItsLine)
{
    writeProgram(pollSource());
    expectFailure("0 port 0x10 1\n\n; x\n3 prot 0x10 1\n",
                  "s.txt:4: neither CLOCK port ADDR VALUE nor CLOCK interrupt [LENGTH]: 3 prot 0x10 1");
    expectFailure("0 port 0x10\n", "s.txt:1: neither CLOCK port ADDR VALUE nor CLOCK interrupt [LENGTH]: 0 port 0x10");
    expectFailure("0 interrupt 1 2", "s.txt:1: neither CLOCK port ADDR VALUE nor CLOCK interrupt [LENGTH]: "
                                     "0 interrupt 1 2");
    expectFailure("-1 port 0x10 1\n", "s.txt:1: a clock is a number from 0 on: -1");
    expectFailure("9223372036854775808 interrupt\n", "s.txt:1: a clock is a number from 0 on: 9223372036854775808");
    expectFailure("\n1 port 256 1\n", "s.txt:2: the address of a port is a number from 0 to 255: 256");
    expectFailure("1 port 0x10 FF\n", "s.txt:1: the value of a port is a number from 0 to 255: FF");
    expectFailure("1 interrupt 0\n", "s.txt:1: a length is a number from 1 on: 0");
    expectFailure("1 port 0x10 1\n4 interrupt\n1 port 16 2\n",
                  "s.txt:3: port 16 has a value from clock 1 on already, by line 1");
    EXPECT_TRUE(run({"--stimulus", "none.txt", "p.nalvo"}).err.startsWith("nalvo-sim: Can not read none.txt: "));
    EXPECT_TRUE(run({"--stimulus", ".", "p.nalvo"}).err.startsWith("nalvo-sim: Can not read .: "));
    EXPECT_TRUE(run({"--stimulus", "", "p.nalvo"}).err.startsWith("nalvo-sim: The name of the file is empty"));
    // Whatever the bytes are: it ends with an error in their line.
    write("s.txt", QByteArray("0 port 1 1\n") + QByteArray(100000, '\0') + "\xff\xfe\n");
    const AsmToolResult binary = run({"--stimulus", "s.txt", "p.nalvo"});
    EXPECT_EQ(binary.status, 2);
    EXPECT_TRUE(binary.err.startsWith("nalvo-sim: s.txt:2: neither ")) << binary.err.left(200).constData();
    EXPECT_LT(binary.err.size(), 300);
}

TEST_F(SimToolStimulus, TheLargestClocksAndLengthsDoNoHarm)
{
    writeProgram("        INT     ENABLE\n" + pollSource());
    write("s.txt", "0 port 0x10 0\n0 port 0x11 0\n9223372036854775807 interrupt 9223372036854775807\n"
                   "9223372036854775807 port 0x10 1\n3 interrupt 9223372036854775807\n");
    EXPECT_EQ(entries({"--stimulus", "s.txt", "-n", "9"}), QList<int>({3}));
    EXPECT_EQ(entries({"--exact", "--stimulus", "s.txt", "-n", "9"}).value(0), 4);
}

TEST_F(SimToolStimulus, StandardInputAndPipesAreReadToTheirEnd)
{
    writeProgram(pollSource());
    write("s.txt", "7 port 0x10 0x42\n");
    AsmToolSetup own = setup();
    own.stdinFile = path("s.txt");
    const AsmToolResult result = run({"-q", "--trace", "-", "--stimulus", "-", "-n", "4", "p.nalvo"}, own);
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_TRUE(result.out.contains("R 10 42\n")) << result.out.constData();
    EXPECT_EQ(run({"--stimulus", "-", "--reads", "-", "p.nalvo"}).status, 2);
    own.program = "/bin/sh";
    own.stdinFile = "/dev/null";
    const QString pipe = "mkfifo p && { printf '7 port 0x'; printf '10 0x42\\n'; } > p & "
                         "while ! test -p p; do :; done; exec \"$0\" -q --trace - --stimulus p -n 4 p.nalvo";
    EXPECT_TRUE(run({"-c", pipe, NALVO_TOOL}, own).out.contains("R 10 42\n"));
    // An output does not overwrite it.
    write("s.txt", "0 port 0x10 1\n");
    EXPECT_EQ(run({"--stimulus", "s.txt", "--trace", "s.txt", "-n", "1", "p.nalvo"}).status, 2);
    EXPECT_EQ(read("s.txt"), "0 port 0x10 1\n");
}

} // namespace
