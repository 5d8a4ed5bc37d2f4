// The exact simulation on the command line: its settings, its options, bounds, requests, pages, devices.

#include "ExactFixture.h"

namespace {

class ExactOptions : public ExactToolTest
{
protected:
    ExactOptions()
        : ExactToolTest("Xilinx PicoBlaze 3")
    {
    }
    /// The run is refused with this reason on standard error, and nothing is written.
    void expectWrongUsage(const QString& arguments, const QString& reason) const
    {
        const QStringList before = snapshot(path());
        const AsmToolResult result = run((arguments + " p.nalvo").split(' '));
        EXPECT_EQ(result.status, 2) << arguments.toStdString();
        EXPECT_TRUE(result.errLines().contains("nalvo-sim: " + reason)) << result.err.constData();
        EXPECT_EQ(snapshot(path()), before);
    }
};

class ExactPicoBlaze6Options : public ExactToolTest
{
protected:
    ExactPicoBlaze6Options()
        : ExactToolTest("Xilinx PicoBlaze 6")
    {
    }
};

class ExactMico8Options : public ExactToolTest
{
protected:
    ExactMico8Options()
        : ExactToolTest("Lattice Mico8 v3.x")
    {
    }
};

TEST_F(ExactOptions, TheProjectSaysWhetherTheSimulationIsExact)
{
    const QStringList lines = {"RET", "LOAD s0, 1", "end: JUMP end"};
    program(lines, {{"simExact", "1"}});
    EXPECT_EQ(shown("--until end").path, "000 001");
    EXPECT_EQ(shown("--until end --trace-clocks").path, "000@0 001@2");
    program(lines, {{"simExact", "0"}});
    EXPECT_EQ(shown("").key(), "errCallStackEmpty");
    EXPECT_EQ(shown("--exact --until end").path, "000 001");
    program(lines);
    EXPECT_EQ(shown("").key(), "errCallStackEmpty");
}

TEST_F(ExactOptions, WarningsAreASettingAndAnOption)
{
    const QStringList lines = {"NOP", "main: JUMP main"};
    program(lines);
    EXPECT_EQ(shown("-n 5 --start main").messages, QStringList());
    EXPECT_EQ(shown("-n 5 --start main -v").messages, QStringList("warning 2 warnCoreStart"));
    program(lines, {{"simCoreWarnings", "1"}});
    EXPECT_EQ(shown("-n 5 --start main").messages, QStringList("warning 2 warnCoreStart"));
    // They are of no use where the simulation does what the core does.
    EXPECT_EQ(shown("-n 5 --start main --exact -v").messages, QStringList());
    EXPECT_EQ(shown("-n 5 --start main -q").messages, QStringList());
}

TEST_F(ExactOptions, AStopAtTheStack)
{
    program({"NOP", "RET"}, {{"simExactStops", "1"}});
    ShownRun run = exact();
    EXPECT_EQ(run.path, "000@0");
    EXPECT_EQ(run.messages, QStringList("error 2 errCallStackEmpty"));
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.key(), "errCallStackEmpty");
    EXPECT_EQ(run.address(), 1);
    EXPECT_EQ(run.clocks(), 2);
    program({"deep: CALL deep"}, {{"simExactStops", "1"}});
    run = exact();
    EXPECT_EQ(run.instructions(), 31);
    EXPECT_EQ(run.messages, QStringList("error 1 errCallStackOverflow"));
    EXPECT_EQ(run.depth(), 31);
    // An entry that finds no room is refused before it.
    program({"INT ENABLE", "LOAD s0, 31", "CALL deep", "NOP", "deep: SUB s0, 1", "CALL NZ, deep", "NOP", "NOP",
             "#ORG ADDR, 0x3FF", "RETI DISABLE"},
            {{"simExactStops", "1"}});
    run = exact("--interrupt-at-clock 130");
    EXPECT_TRUE(run.path.endsWith("005@128 006@130")) << run.path.right(40).toStdString();
    EXPECT_EQ(run.messages, QStringList("error 8 errCallStackOverflow"));
    EXPECT_EQ(run.status, 3);
    // What the other bits are about goes on.
    program({"LOAD s1, 64", "RDMEM s0, (s1)", "NOP"}, {{"simExactStops", "1"}});
    EXPECT_EQ(exact("-n 9").messages, QStringList({"warning 2 errScrpdRd", "warning errNoOpcodeToExec"}));
}

TEST_F(ExactOptions, AStopAtTheScratchpad)
{
    program({"LOAD s1, 64", "RDMEM s0, (s1)"}, {{"simExactStops", "2"}});
    ShownRun run = exact();
    EXPECT_EQ(run.path, "000@0");
    EXPECT_EQ(run.messages, QStringList("error 2 errScrpdRd"));
    EXPECT_EQ(run.status, 3);
    program({"LOAD s1, 64", "LOAD s0, 9", "WRMEM s0, (s1)"}, {{"simExactStops", "2"}});
    run = exact();
    EXPECT_EQ(run.path, "000@0 001@2");
    EXPECT_EQ(run.messages, QStringList("error 3 errScrpdWr"));
    EXPECT_EQ(run.cell(0), 0);
    program({"RET", "NOP"}, {{"simExactStops", "2"}});
    EXPECT_EQ(exact("-n 3").messages, QStringList({"warning 1 errCallStackEmpty", "warning errNoOpcodeToExec"}));
}

TEST_F(ExactOptions, AStopAtEmptyMemory)
{
    program({"LOAD s0, 5"}, {{"simExactStops", "4"}});
    ShownRun run = exact();
    EXPECT_EQ(run.path, "000@0");
    EXPECT_EQ(run.messages, QStringList("error errNoOpcodeToExec"));
    EXPECT_EQ(run.reg("s0"), 5);
    EXPECT_EQ(run.address(), 1);
    EXPECT_EQ(run.status, 3);
    program({"INT ENABLE", "NOP", "NOP"}, {{"simExactStops", "4"}});
    run = exact("--interrupt-at-clock 0");
    EXPECT_EQ(run.path, "000@0");
    EXPECT_EQ(run.messages, QStringList("error errNoOpcodeAtIntVect"));
    program({"RET", "LOAD s1, 64", "RDMEM s0, (s1)", "end: JUMP end"}, {{"simExactStops", "4"}});
    EXPECT_EQ(exact("--until end").messages, QStringList({"warning 1 errCallStackEmpty", "warning 3 errScrpdRd"}));
}

TEST_F(ExactOptions, AllStops)
{
    program({"RET"}, {{"simExactStops", "7"}});
    EXPECT_EQ(exact().messages, QStringList("error 1 errCallStackEmpty"));
    program({"NOP"}, {{"simExactStops", "7"}});
    EXPECT_EQ(exact().messages, QStringList("error errNoOpcodeToExec"));
    // They are those of the exact simulation alone, and a value out of range is the nearest one.
    program({"RET", "NOP"}, {{"simExactStops", "99"}});
    EXPECT_EQ(exact().messages, QStringList("error 1 errCallStackEmpty"));
    program({"RET", "NOP"}, {{"simExactStops", "-1"}});
    EXPECT_EQ(exact("-n 1").messages, QStringList("warning 1 errCallStackEmpty"));
}

TEST_F(ExactOptions, AWarningComesOnceForEachPlace)
{
    program({"start: LOAD s1, 64", "RDMEM s0, (s1)", "RDMEM s0, (s1)", "JUMP start"});
    EXPECT_EQ(exact("-n 1000").messages, QStringList({"warning 2 errScrpdRd", "warning 3 errScrpdRd"}));
    EXPECT_EQ(exact("-n 1000").instructions(), 1000);
    EXPECT_EQ(exact("-n 1000 -q").messages, QStringList());
}

TEST_F(ExactOptions, OptionsThatNeedTheExactSimulationSaySo)
{
    program({"NOP", "end: JUMP end"});
    const QString needs = "--trace-clocks and --interrupt-at-clock need --exact.";
    expectWrongUsage("--trace-clocks --trace t", needs);
    expectWrongUsage("--interrupt-at-clock 5", needs);
    expectWrongUsage("--interrupt-at-clock 5 -v --trace-clocks", needs);
    program({"NOP", "end: JUMP end"}, {{"simExact", "1"}});
    EXPECT_EQ(shown("--trace-clocks --interrupt-at-clock 5 --until end").path, "000@0");
    EXPECT_EQ(shown("--trace-clocks --interrupt-at-clock 5 --until end").status, 0);
}

TEST_F(ExactOptions, ARequestIsCheckedToTheCharacter)
{
    program({"NOP", "end: JUMP end"});
    for (const char* text : {"", "-1", "+1", "1.5", "x", "0x", "1:", ":1", "1:0", "1:-1", "1:2:3", "1,2", "5:x",
                             "9223372036854775808", "1:9223372036854775808"}) {
        const AsmToolResult result =
            run({"--exact", QString("--interrupt-at-clock=") + text, "--trace", "t", "p.nalvo"});
        EXPECT_EQ(result.status, 2) << text;
        EXPECT_FALSE(exists("t")) << text;
        EXPECT_TRUE(result.errLines().value(0).contains("--interrupt-at-clock")) << result.err.constData();
    }
    // The largest numbers neither overflow nor come round.
    EXPECT_EQ(exact("-n 3 --interrupt-at-clock 9223372036854775807:9223372036854775807").path, "000@0 001@2 001@4");
}

TEST_F(ExactOptions, RequestsMayOverlapAndComeInAnyOrder)
{
    program({"INT ENABLE", "loop: NOP", "JUMP loop", "#ORG ADDR, 0x3FF", "RETI ENABLE"});
    const QString path = "000@0 INT 3FF@4 INT 3FF@8 001@10 002@12 INT 3FF@16 001@18 002@20";
    EXPECT_EQ(exact("-n 8 --interrupt-at-clock 0:5 --interrupt-at-clock 12").path,
              "000@0 INT 3FF@4 INT 3FF@8 001@10 002@12 INT 3FF@16 001@18 002@20");
    // The same input, told in other ways: overlapping, one within the other, touching, twice, in hexadecimal.
    for (const char* requests : {"--interrupt-at-clock 12 --interrupt-at-clock 2:3 --interrupt-at-clock 0:4",
                                 "--interrupt-at-clock 0:5 --interrupt-at-clock 1:2 --interrupt-at-clock 12",
                                 "--interrupt-at-clock 0:2 --interrupt-at-clock 2:3 --interrupt-at-clock 12:1",
                                 "--interrupt-at-clock 12 --interrupt-at-clock 0:5 --interrupt-at-clock 12",
                                 "--interrupt-at-clock 0xC --interrupt-at-clock 0x0:0x5"})
        EXPECT_EQ(exact(QString("-n 8 ") + requests).path, path) << requests;
}

TEST_F(ExactOptions, AnInputThatIsHeldForGoodEntersBehindEachReturn)
{
    program({"INT ENABLE", "loop: NOP", "JUMP loop", "#ORG ADDR, 0x3FF", "RETI ENABLE"});
    EXPECT_EQ(exact("-n 4 --interrupt-at-clock 0:9223372036854775807").path, "000@0 INT 3FF@4 INT 3FF@8 INT 3FF@12");
}

TEST_F(ExactOptions, RequestsByInstructionAreUpInItsFirstClock)
{
    // The second instruction begins with the clock 2: what it pre-empts is the third.
    program({"INT ENABLE", "NOP", "NOP", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI DISABLE"});
    EXPECT_EQ(exact("--until end --interrupt-at 2").path, exact("--until end --interrupt-at-clock 2").path);
    EXPECT_EQ(exact("--until end --interrupt-at 2").path, "000@0 001@2 INT 3FF@6 002@8");
    EXPECT_EQ(exact("-n 4 --interrupt-every 2").path, "000@0 001@2 INT 3FF@6 002@8");
}

TEST_F(ExactOptions, BoundsAreExactToTheInstructionAndTheClock)
{
    program({"INT ENABLE", "loop: NOP", "JUMP loop", "#ORG ADDR, 0x3FF", "RETI ENABLE"});
    EXPECT_EQ(exact("-n 0").path, "");
    for (int count = 1; count < 6; ++count)
        EXPECT_EQ(exact(QString("-n %1").arg(count)).instructions(), count);
    EXPECT_EQ(exact("--max-clocks 0").path, "");
    EXPECT_EQ(exact("--max-clocks 1").path, "000@0");
    EXPECT_EQ(exact("--max-clocks 2").path, "000@0");
    EXPECT_EQ(exact("--max-clocks 3").path, "000@0 001@2");
    EXPECT_EQ(exact("--max-clocks 4").path, "000@0 001@2");
    EXPECT_EQ(exact("--max-clocks 4").end(), "clocks");
    // An entry and the instruction at the vector are one step of four clocks.
    EXPECT_EQ(exact("--max-clocks 3 --interrupt-at-clock 0").path, "000@0 INT 3FF@4");
    EXPECT_EQ(exact("--max-clocks 3 --interrupt-at-clock 0").clocks(), 6);
    // A bound in the middle changes nothing of what comes: the same trace, whole.
    const QString whole = exact("--max-clocks 200000 --interrupt-at-clock 777:3 --interrupt-at-clock 150000").path;
    EXPECT_TRUE(whole.startsWith("000@0 001@2 002@4"));
    EXPECT_EQ(whole.count("INT"), 2);
    EXPECT_EQ(exact("--max-clocks 200000").clocks(), 200000);
    EXPECT_EQ(exact("--max-clocks 199999").clocks(), 200000);
    EXPECT_EQ(exact("--max-clocks 200001").clocks(), 200002);
}

TEST_F(ExactOptions, AReadWithoutAValueEndsTheRunBeforeTheInstruction)
{
    program({"LOAD s0, 1", "RDPRT s0, 0x10", "WRPRT s0, 0x20", "RDPRT s1, 0x10", "end: JUMP end"});
    write("values", "5A\n");
    const ShownRun run = exact("--reads values");
    EXPECT_EQ(run.path, "000@0 001@2 R10=5A 002@4 W20=5A");
    EXPECT_EQ(run.end(), "reads");
    EXPECT_EQ(run.key(), "errReadsExhausted");
    EXPECT_EQ(run.address(), 3);
    EXPECT_EQ(run.status, 3);
}

TEST_F(ExactOptions, TheVectorsInstructionThatReadsWithoutAValueLeavesTheEntry)
{
    program({"INT ENABLE", "NOP", "#ORG ADDR, 0x3FF", "RDPRT s0, 1"});
    const ShownRun run = exact("--reads /dev/null --interrupt-at-clock 0");
    EXPECT_EQ(run.path, "000@0 INT");
    EXPECT_EQ(run.end(), "reads");
    EXPECT_EQ(run.address(), 0x3FF);
    EXPECT_EQ(run.depth(), 1);
    EXPECT_EQ(run.clocks(), 4);
}

TEST_F(ExactPicoBlaze6Options, AHalfExecutedReadWithoutAValueEndsTheRunInTheReset)
{
    program({"JUMP on",        // 000
             "RDPRT s0, 0x09", // 001  line 2: half executed
             "on: LOAD s0, 7", // 002
             "RET"});          // 003
    const ShownRun run = exact("--reads /dev/null");
    EXPECT_EQ(run.path, "000@0 002@2 003@4 RESET");
    EXPECT_EQ(run.end(), "reads");
    EXPECT_EQ(run.reg("s0"), 7);
    EXPECT_EQ(run.status, 3);
    write("values", "5A\n");
    EXPECT_EQ(exact("--reads values -n 4").path, "000@0 002@2 003@4 RESET R09=5A 000@10");
}

TEST_F(ExactPicoBlaze6Options, AHalfExecutedReadWithoutAValueBehindAnEntryToo)
{
    program({"INT ENABLE", "LOAD s0, 30", "CALL deep", "NOP", "deep: SUB s0, 1", "CALL NZ, deep", "NOP", "NOP",
             "#ORG ADDR, 0x3FF", "RDPRT s5, 0x11"});
    const ShownRun run = exact("--reads /dev/null --interrupt-at-clock 126");
    EXPECT_TRUE(run.path.endsWith("006@126 INT RESET")) << run.path.right(60).toStdString();
    EXPECT_EQ(run.end(), "reads");
    EXPECT_EQ(run.messages.value(0), "warning 8 errCallStackOverflow");
}

TEST_F(ExactPicoBlaze6Options, WavesHaveAConstantAtThePortThatIsWritten)
{
    program({"WRPRT 0x5A, 0x3", "LOAD s0, 0xA5", "WRPRT s0, 0x3", "end: JUMP end"});
    ASSERT_EQ(run({"--exact", "--until", "end", "--vcd", "exact.vcd", "p.nalvo"}).status, 0);
    ASSERT_EQ(run({"--until", "end", "--vcd", "stated.vcd", "p.nalvo"}).status, 0);
    const QByteArray exact = read("exact.vcd");
    EXPECT_TRUE(exact.contains("b1011010 ") || exact.contains("b01011010 ")) << exact.constData();
    EXPECT_TRUE(exact.contains("b10100101 ")) << exact.constData();
    // The same signals with the same values; the times are equal, too.
    EXPECT_EQ(exact.mid(exact.indexOf("$timescale")), read("stated.vcd").mid(read("stated.vcd").indexOf("$timescale")));
}

/// Two pages of 1,024 words, with what selects a page at their top.
const QStringList twoPages = {"#SET INSTMEM::PAGECOUNT, 2",
                              "#ORG MEMRANGE, SHARED",
                              "toDisplay: LOAD sF, 1", // 3F9
                              "WRPRT sF, 0x80",        // 3FA
                              "CALL display",          // 3FB
                              "LOAD sF, 0",            // 3FC
                              "WRPRT sF, 0x80",        // 3FD
                              "back: RET",             // 3FE
                              "#ORG ADDR, 0x3FF",
                              "RETI ENABLE",
                              "#ORG MEMRANGE, PAGE0",
                              "main: INT ENABLE", // 000
                              "CALL toDisplay",   // 001
                              "end: JUMP end",    // 002
                              "#ORG MEMRANGE, PAGE1",
                              "display: LOAD s0, 5", // 000
                              "WRPRT s0, 0x20",      // 001
                              "RET"};                // 002

TEST_F(ExactOptions, AProgramOfTwoPages)
{
    program(twoPages);
    const ShownRun run = exact("--until end");
    EXPECT_EQ(run.path, "000@0 001@2 3F9@4 3FA@6 W80=01 3FB@8 000@10 001@12 W20=05 002@14 3FC@16 3FD@18 W80=00 3FE@20");
    EXPECT_EQ(run.messages, QStringList());
    EXPECT_EQ(exact("--until display").state.value("pc").toObject().value("page").toString(), "PAGE1");
    EXPECT_EQ(stated("--until end --start main").path,
              "000 001 3F9 3FA W80=01 3FB 000 001 W20=05 002 3FC 3FD W80=00 3FE");
    // An interrupt in the second page: the vector is shared, and the return comes back.
    EXPECT_EQ(
        exact("--until end --interrupt-at-clock 10").path,
        "000@0 001@2 3F9@4 3FA@6 W80=01 3FB@8 000@10 INT 3FF@14 001@16 W20=05 002@18 3FC@20 3FD@22 W80=00 3FE@24");
}

TEST_F(ExactOptions, AProgramThatRunsOffTheEndOfItsCodeStaysInItsPage)
{
    QStringList lines = twoPages;
    lines.last() = "NOP"; // 002 of the second page; from 003 to 3F8 there is nothing
    program(lines);
    const ShownRun run = exact("-n 1200 --until back");
    EXPECT_TRUE(run.path.startsWith("000@0 001@2 3F9@4 3FA@6 W80=01 3FB@8 000@10 001@12 W20=05 002@14 003@16"))
        << run.path.left(120).toStdString();
    // The shared range at the top of the second page, and the call into its beginning again.
    EXPECT_TRUE(run.path.contains("3F8@2042 3F9@2044 3FA@2046 W80=01 3FB@2048 000@2050 001@2052 W20=05"))
        << run.path.right(120).toStdString();
    EXPECT_EQ(run.messages, QStringList("warning errNoOpcodeToExec"));
}

TEST_F(ExactPicoBlaze6Options, AScratchpadThatADeviceFillsIsThereAtTheStart)
{
    const QStringList lines = {"#SET PROC::XPBLZE6::SCRPDIODEV, IODEV::pad",
                               "#SET IODEV::pad::EN, TRUE",
                               "#SET IODEV::pad::SIZE, 64",
                               "#SET IODEV::pad::SIMEN, TRUE",
                               "#SET IODEV::pad::VALUE, 0: 0x11, 0x22, 0x33",
                               "RDMEM s0, 1",
                               "LOAD s1, 0x42",
                               "RDMEM s2, (s1)",
                               "WRMEM s1, 1",
                               "end: JUMP end"};
    program(lines, {{"scrpdSize", "64"}});
    const ShownRun run = exact("--until end");
    EXPECT_EQ(run.path, "000@0 001@2 002@4 003@6 S01=42");
    EXPECT_EQ(run.reg("s0"), 0x22);
    EXPECT_EQ(run.reg("s2"), 0x33); // modulo 64
    EXPECT_EQ(run.cell(0), 0x11);
    EXPECT_EQ(run.messages, QStringList("warning 8 errScrpdRd"));
}

TEST_F(ExactMico8Options, AnInstructionBoundWithAccesses)
{
    program({"NOP", "main: WRPRT r0, 1", "JUMP main"});
    EXPECT_EQ(exact("--max-clocks 3").path, "001@0 W01=00");
    EXPECT_EQ(exact("--max-clocks 4").path, "001@0 W01=00 002@3");
    EXPECT_EQ(exact("--max-clocks 5").clocks(), 5);
    EXPECT_EQ(exact("--max-clocks 100000").clocks(), 100000);
    EXPECT_EQ(exact("--max-clocks 100001").clocks(), 100003);
}

} // namespace
