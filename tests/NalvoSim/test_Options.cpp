// The command line: what is understood, what is refused, and with which exit status.

#include "SimToolFixture.h"

#include <gmock/gmock.h>

namespace {

class SimToolOptions : public SimToolTest
{
protected:
    /// The run is refused with this reason on standard error, and nothing else happens.
    void expectWrongUsage(const QStringList& arguments, const char* reason) const
    {
        const QStringList before = snapshot(path());
        const AsmToolResult result = run(arguments);
        EXPECT_EQ(result.status, 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(result.out, QByteArray());
        EXPECT_EQ(result.errLines(), QStringList({QString("nalvo-sim: ") + reason, "nalvo-sim: try nalvo-sim --help"}));
        EXPECT_EQ(snapshot(path()), before);
    }
};

TEST_F(SimToolOptions, HelpFitsAnEightyColumnTerminalAndNamesEverything)
{
    for (const char* option : {"-h", "--help"}) {
        const AsmToolResult result = run({option});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, QByteArray());
        const QList<QByteArray> lines = result.out.split('\n');
        EXPECT_EQ(lines.first(), QByteArray("Usage: nalvo-sim [options] [--] PROJECT.nalvo"));
        for (const QByteArray& line : lines)
            EXPECT_LE(line.size(), 80) << line.constData();
        for (const char* word : {"-n, --instructions <N>",
                                 "--max-clocks <N>",
                                 "--start <LABEL>",
                                 "--until <LABEL>",
                                 "--reads <FILE>",
                                 "--port <ADDR=FILE>",
                                 "--hwbuild <V>",
                                 "--interrupt-every <N>",
                                 "--interrupt-at <N[,N...]>",
                                 "--trace <FILE>",
                                 "--vcd <FILE>",
                                 "--dump <FILE>",
                                 "  -q ",
                                 "-h, --help",
                                 "--version",
                                 "I aaa wwwww",
                                 "R pp vv",
                                 "W pp vv",
                                 "S aa vv",
                                 "    INT ",
                                 "one million",
                                 "Exit status",
                                 "    0    ",
                                 "    1    ",
                                 "    2    ",
                                 "    3    ",
                                 "    130  "})
            EXPECT_TRUE(result.out.contains(word)) << word;
    }
}

TEST_F(SimToolOptions, HelpAndVersionNeedNoProject)
{
    const AsmToolResult result = run({"--version"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out.toStdString(), ::testing::MatchesRegex("nalvo-sim [0-9][-.0-9]+\n"));
    EXPECT_EQ(result.err, QByteArray());
    EXPECT_EQ(run({"--help", "no/such/project.nalvo"}).status, 0);
}

TEST_F(SimToolOptions, HelpThatIsLostIsAnError)
{
    AsmToolSetup with = setup();
    with.stdoutFile = "/dev/full";
    for (const char* option : {"--help", "--version"}) {
        const AsmToolResult result = run({option}, with);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.err, QByteArray("nalvo-sim: Can not write standard output: No space left on device\n"));
    }
}

TEST_F(SimToolOptions, WrongUsageIsTold)
{
    writeProgram(loopSource());
    expectWrongUsage({}, "No project given.");
    expectWrongUsage({"p.nalvo", "q.nalvo"}, "More than one project given: p.nalvo, q.nalvo");
    expectWrongUsage({"--nosuch", "p.nalvo"}, "Unknown option 'nosuch'.");
    expectWrongUsage({"-x", "p.nalvo"}, "Unknown option 'x'.");
    expectWrongUsage({"p.nalvo", "-n"}, "Missing value after '-n'.");
    expectWrongUsage({"--reads", "", "p.nalvo"}, "The name of the file of reads is empty.");
    expectWrongUsage({"--start", "", "p.nalvo"}, "The name of the start label is empty.");
    expectWrongUsage({"--until=", "p.nalvo"}, "The name of the end label is empty.");
    expectWrongUsage({"--trace", "", "p.nalvo"}, "The name of the file is empty: --trace");
    expectWrongUsage({"--vcd", "", "p.nalvo"}, "The name of the file is empty: --vcd");
    expectWrongUsage({"--dump", "", "p.nalvo"}, "The name of the file is empty: --dump");
    expectWrongUsage({"--port", "16", "p.nalvo"}, "--port takes an address from 0 to 255, = and a file: 16");
    expectWrongUsage({"--port", "256=x", "p.nalvo"}, "--port takes an address from 0 to 255, = and a file: 256=x");
    expectWrongUsage({"--port", "16=", "p.nalvo"}, "The name of the file of a port is empty: 16=");
    expectWrongUsage({"--port", "16=x", "--port", "0x10=y", "p.nalvo"}, "Two files for one port: 0x10=y");
}

TEST_F(SimToolOptions, NumbersAreCheckedToTheCharacter)
{
    writeProgram(loopSource());
    for (const char* text : {"", "-1", "+1", " 1", "1 ", "1.5", "1e3", "0x", "0xG", "A", "9223372036854775808",
                             "0x8000000000000000", "99999999999999999999999", "١"}) {
        const QByteArray shown(text);
        expectWrongUsage({QString("--instructions=") + text, "p.nalvo"},
                         ("--instructions takes a number from 0 on: " + shown).constData());
        expectWrongUsage({QString("--max-clocks=") + text, "p.nalvo"},
                         ("--max-clocks takes a number from 0 on: " + shown).constData());
    }
    expectWrongUsage({"--hwbuild", "256", "p.nalvo"}, "--hwbuild takes a number from 0 to 255: 256");
    expectWrongUsage({"--interrupt-every", "0", "p.nalvo"}, "--interrupt-every takes a number from 1 on: 0");
    for (const char* text : {"0", "1,", ",1", "1,,2", "1;2", "1, 2", ""})
        expectWrongUsage(
            {QString("--interrupt-at=") + text, "p.nalvo"},
            (QByteArray("--interrupt-at takes numbers from 1 on, with commas between: ") + text).constData());
    EXPECT_EQ(dump({"-n", "0x10", "p.nalvo"}).value("instructions").toInt(), 16);
    EXPECT_EQ(dump({"-n", "0X0a", "p.nalvo"}).value("instructions").toInt(), 10);
    EXPECT_EQ(dump({"-n", "010", "p.nalvo"}).value("instructions").toInt(), 10);
    EXPECT_EQ(dump({"--max-clocks", "20", "-n", "9223372036854775807", "p.nalvo"}).value("clocks").toInt(), 20);
}

TEST_F(SimToolOptions, StandardStreamsServeOneEach)
{
    writeProgram(echoSource());
    const char* const input = "Only one of the inputs can come from standard input.";
    expectWrongUsage({"--reads", "-", "--port", "16=-", "p.nalvo"}, input);
    expectWrongUsage({"--port", "1=-", "--port", "2=-", "p.nalvo"}, input);
    const char* const output = "Only one of trace, waves and dump can go to standard output.";
    expectWrongUsage({"--trace", "-", "--vcd", "-", "p.nalvo"}, output);
    expectWrongUsage({"--vcd", "-", "--dump", "-", "p.nalvo"}, output);
    expectWrongUsage({"--trace", "-", "--dump", "-", "p.nalvo"}, output);
}

TEST_F(SimToolOptions, OutputsNeedFilesOfTheirOwn)
{
    writeProgram(echoSource());
    write("reads", "01\n");
    mkdir("d");
    ASSERT_TRUE(QFile::link("reads", path("link")));
    expectWrongUsage({"--trace", "x", "--dump", "d/../x", "p.nalvo"},
                     "Two outputs can not go to the same file: d/../x");
    expectWrongUsage({"--vcd", "x", "--dump", path("x"), "p.nalvo"},
                     ("Two outputs can not go to the same file: " + path("x").toUtf8()).constData());
    expectWrongUsage({"--reads", "reads", "--trace", "link", "p.nalvo"}, "An output would overwrite an input: link");
    expectWrongUsage({"--port", "16=reads", "--dump", "./reads", "p.nalvo"},
                     "An output would overwrite an input: ./reads");
    EXPECT_EQ(run({"-n", "1", "--trace", "/dev/null", "--vcd", "/dev/null", "--dump", "/dev/null", "p.nalvo"}).status,
              0);
}

TEST_F(SimToolOptions, LabelsThatDoNotExistNameThoseThatAreNear)
{
    writeProgram(loopSource());
    expectWrongUsage({"--start", "strat", "p.nalvo"}, "No such label: strat (near: start)");
    expectWrongUsage({"--until", "turn", "p.nalvo"}, "No such label: turn (near: inner::turn)");
    expectWrongUsage({"--until", "INNER::TURN", "p.nalvo"}, "No such label: INNER::TURN (near: inner::turn)");
    expectWrongUsage({"--until", "outer::turn", "p.nalvo"}, "No such label: outer::turn (near: inner::turn)");
    expectWrongUsage({"--until", "somethingelse", "p.nalvo"}, "No such label: somethingelse");
    expectWrongUsage({"--until", "::", "p.nalvo"}, "No such label: ::");
    const QByteArray longName(100000, 'x');
    expectWrongUsage({"--until", longName, "p.nalvo"}, ("No such label: " + longName).constData());
    write("a.psm", "#NAMESPACE inner\n" + QByteArray(" LOAD s0, 1\nlast:\n#ENDNAMESPACE\n"));
    expectWrongUsage({"-q", "--until", "inner::last", "p.nalvo"},
                     "No instruction stands at or behind the label: inner::last");
}

TEST_F(SimToolOptions, AtMostFiveNearNames)
{
    QByteArray source;
    for (char c = 'a'; c < 'k'; ++c)
        source += QByteArray("name_") + c + ":\n  LOAD s0, 1\n";
    writeProgram(source + "#ORG ADDR, 0x3FF\n RETI ENABLE\n");
    expectWrongUsage({"--until", "name_z", "p.nalvo"},
                     "No such label: name_z (near: name_a, name_b, name_c, name_d, name_e)");
}

} // namespace
