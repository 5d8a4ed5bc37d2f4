// The command line: what is understood, what is refused, and with which exit status.

#include "AsmToolFixture.h"

#include <gmock/gmock.h>

namespace {

class AsmToolOptions : public AsmToolTest
{
protected:
    /// The run is refused with this reason on standard error, and nothing else happens.
    void expectWrongUsage(const QStringList& arguments, const char* reason) const
    {
        const QStringList before = snapshot(path());
        const AsmToolResult result = run(arguments);
        EXPECT_EQ(result.status, 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(result.out, QByteArray());
        EXPECT_EQ(result.errLines(), QStringList({QString("nalvo-asm: ") + reason, "nalvo-asm: try nalvo-asm --help"}));
        EXPECT_EQ(snapshot(path()), before);
    }
};

TEST_F(AsmToolOptions, HelpFitsAnEightyColumnTerminalAndNamesEverything)
{
    for (const char* option : {"-h", "--help"}) {
        const AsmToolResult result = run({option});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, QByteArray());
        const QList<QByteArray> lines = result.out.split('\n');
        EXPECT_EQ(lines.first(), QByteArray("Usage: nalvo-asm [options] [--] PROJECT.nalvo"));
        for (const QByteArray& line : lines)
            EXPECT_LE(line.size(), 80) << line.constData();
        for (const char* word : {"-e, --event",
                                 "-f, --format",
                                 "-l, --listing",
                                 "-s, --symbols",
                                 "-W, --werror",
                                 "--explain",
                                 "  -q ",
                                 "  -v ",
                                 "-h, --help",
                                 "--version",
                                 "PROJECT.nalvo",
                                 "path:line: error: text [key]",
                                 "button1",
                                 "button2",
                                 "save",
                                 "none",
                                 "Exit status",
                                 "    0  ",
                                 "    1  ",
                                 "    2  ",
                                 "SOURCE_DATE_EPOCH",
                                 "--external-programs"})
            EXPECT_TRUE(result.out.contains(word)) << word;
    }
}

TEST_F(AsmToolOptions, HelpAndVersionNeedNoProject)
{
    const AsmToolResult result = run({"--version"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out.toStdString(), ::testing::MatchesRegex("nalvo-asm [0-9][-.0-9]+\n"));
    EXPECT_EQ(result.err, QByteArray());
    EXPECT_EQ(run({"--help", "no/such/project.nalvo"}).status, 0);
}

TEST_F(AsmToolOptions, WrongUsageIsTold)
{
    writeGoodProject();
    expectWrongUsage({}, "No project given.");
    expectWrongUsage({"-q", "--"}, "No project given.");
    expectWrongUsage({"p.nalvo", "q.nalvo"}, "More than one project given: p.nalvo, q.nalvo");
    expectWrongUsage({"--nosuch", "p.nalvo"}, "Unknown option 'nosuch'.");
    expectWrongUsage({"-x", "p.nalvo"}, "Unknown option 'x'.");
    expectWrongUsage({"p.nalvo", "-e"}, "Missing value after '-e'.");
    expectWrongUsage({"p.nalvo", "--listing"}, "Missing value after '--listing'.");
    expectWrongUsage({"--werror=1", "p.nalvo"}, "Unexpected value after '--werror'.");
    expectWrongUsage({"-e", "button3", "p.nalvo"}, "Unknown event: button3");
    expectWrongUsage({"-e", "", "p.nalvo"}, "Unknown event: ");
    expectWrongUsage({"-f", "xml", "p.nalvo"}, "Unknown format: xml");
    expectWrongUsage({"-q", "-v", "p.nalvo"}, "-q and -v exclude each other.");
    expectWrongUsage({"-l", "", "p.nalvo"}, "The name of the listing file is empty.");
    expectWrongUsage({"--explain"}, "Missing value after '--explain'.");
    expectWrongUsage({"--explain", ""}, "The key of the message is empty.");
    expectWrongUsage({"--explain", "errSyntax", "p.nalvo"}, "--explain takes one key and no project: p.nalvo");
    expectWrongUsage({"--symbols=", "p.nalvo"}, "The name of the symbols file is empty.");
}

TEST_F(AsmToolOptions, OptionsOfTheLibrariesAreUnknown)
{
    writeGoodProject();
    // A single dash with several letters stands for several options, so the first letter is what is unknown.
    expectWrongUsage({"-platform", "offscreen", "p.nalvo"}, "Unknown option 'p'.");
    expectWrongUsage({"-reverse", "p.nalvo"}, "Unknown option 'r'.");
}

TEST_F(AsmToolOptions, OneTextAloneGoesToStandardOutput)
{
    writeGoodProject();
    const char* const reason =
        "Only one of JSON messages, listing, symbols and dependencies can go to standard output.";
    expectWrongUsage({"-l", "-", "-s", "-", "p.nalvo"}, reason);
    expectWrongUsage({"-f", "json", "-l", "-", "p.nalvo"}, reason);
    expectWrongUsage({"-f", "json", "-s", "-", "p.nalvo"}, reason);
}

TEST_F(AsmToolOptions, ListingAndSymbolsNeedTwoFiles)
{
    writeGoodProject();
    mkdir("d");
    expectWrongUsage({"-l", "x", "-s", "x", "p.nalvo"}, "Two outputs can not go to the same file: x");
    expectWrongUsage({"-l", "d/../x", "-s", path("x"), "p.nalvo"}, "Two outputs can not go to the same file: d/../x");
    write("x", "");
    ASSERT_TRUE(QFile::link("x", path("link")));
    expectWrongUsage({"-l", "link", "-s", "x", "p.nalvo"}, "Two outputs can not go to the same file: link");
    EXPECT_EQ(run({"-l", "/dev/null", "-s", "/dev/null", "p.nalvo"}).status, 0);
}

TEST_F(AsmToolOptions, ShortAndLongFormsMeanTheSame)
{
    writeGoodProject();
    const QByteArray listing = run({"-q", "-l", "-", "p.nalvo"}).out;
    EXPECT_EQ(listing.count('\n'), 3);
    for (const QStringList& arguments :
         {QStringList{"-q", "--listing", "-", "p.nalvo"}, QStringList{"-q", "--listing=-", "p.nalvo"},
          QStringList{"-ql-", "p.nalvo"}, QStringList{"p.nalvo", "-l", "-", "-q"},
          QStringList{"-e", "button1", "-f", "text", "-q", "-l", "-", "p.nalvo"},
          QStringList{"--event", "button1", "--format", "text", "-q", "-l", "-", "p.nalvo"},
          QStringList{"-e", "save", "--event=button1", "-q", "-l", "-", "--", "p.nalvo"}}) {
        const AsmToolResult result = run(arguments);
        EXPECT_EQ(result.status, 0) << arguments.join(' ').toStdString();
        EXPECT_EQ(result.out, listing) << arguments.join(' ').toStdString();
        EXPECT_EQ(result.err, QByteArray());
    }
}

TEST_F(AsmToolOptions, EachEventWritesItsOwnFiles)
{
    writeProject(AsmProject().output("hex", "1.hex", "But1").output("mem", "2.mem", "But2"), "b.nalvo");
    writeProject(AsmProject().output("hex", "s.hex", "Save"), "s.nalvo");
    write("a.psm", goodSource());
    const QStringList names = {"1.hex", "2.mem", "s.hex"};
    const struct
    {
        QStringList arguments;
        QString written;
    } cases[] = {{{"b.nalvo"}, "1.hex"},
                 {{"-e", "button1", "b.nalvo"}, "1.hex"},
                 {{"-e", "button2", "b.nalvo"}, "2.mem"},
                 {{"-e", "save", "b.nalvo"}, ""},
                 {{"-e", "save", "s.nalvo"}, "s.hex"},
                 {{"-e", "none", "b.nalvo"}, ""},
                 {{"-e", "button1", "s.nalvo"}, ""}};
    for (const auto& entry : cases) {
        for (const QString& name : names)
            QFile::remove(path(name));
        const AsmToolResult result = run(entry.arguments);
        EXPECT_EQ(result.status, 0) << result.err.constData();
        for (const QString& name : names)
            EXPECT_EQ(exists(name), name == entry.written) << entry.arguments.join(' ').toStdString();
        EXPECT_TRUE(result.err.contains(entry.written.isEmpty() ? ", 0 files written" : ", 1 file written"));
    }
}

TEST_F(AsmToolOptions, QuietShowsErrorsAlone)
{
    writeGoodProject("#EQU unused, 1\n" + goodSource());
    EXPECT_EQ(run({"-q", "p.nalvo"}).err, QByteArray());
    EXPECT_EQ(run({"p.nalvo"}).errLines(),
              QStringList({"a.psm:1: warning: Unused EQU directive: unused [warnEquUnused]",
                           "nalvo-asm: assembled, 0 errors, 1 warning, 3 instructions, 1 file written"}));
    write("a.psm", "#EQU unused, 1\n NOSUCH\n");
    EXPECT_EQ(run({"-q", "p.nalvo"}).errLines(),
              QStringList({"a.psm:2: error: Unsupported instruction: NOSUCH [errOcUnsupported]"}));
}

TEST_F(AsmToolOptions, VerboseShowsInfosAndGroups)
{
    writeGoodProject();
    const QStringList usual = run({"p.nalvo"}).errLines();
    const AsmToolResult result = run({"-v", "p.nalvo"});
    EXPECT_EQ(result.status, 0);
    const QStringList lines = result.errLines();
    EXPECT_EQ(lines.first(), "info: Open project: " + path("p.nalvo"));
    EXPECT_TRUE(lines.contains("info: Assembling..."));
    EXPECT_TRUE(lines.contains("info: Parsing files... [grpParsingFiles]"));
    EXPECT_TRUE(lines.contains("info: Parsing file 1: " + path("a.psm") + " [infoParsingFile]"));
    EXPECT_TRUE(lines.contains("info: Run backend stage 1 for Xilinx PicoBlaze 3 ... [grpRunBackend1]"));
    EXPECT_EQ(lines.mid(lines.size() - 1), usual);
}

TEST_F(AsmToolOptions, WerrorFailsOnAWarningButWritesTheFiles)
{
    writeGoodProject();
    EXPECT_EQ(run({"-W", "p.nalvo"}).status, 0);
    writeGoodProject("#EQU unused, 1\n" + goodSource());
    EXPECT_EQ(run({"p.nalvo"}).status, 0);
    const QString warning = "a.psm:1: warning: Unused EQU directive: unused [warnEquUnused]";
    for (const char* option : {"-W", "--werror"}) {
        const AsmToolResult result = run({option, "p.nalvo"});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.errLines(),
                  QStringList({warning, "nalvo-asm: failed, 0 errors, 1 warning (counts as an error), 3 instructions, "
                                        "1 file written"}));
    }
    EXPECT_EQ(read("out.hex"), hexText());
    // A run must not fail without a message.
    const AsmToolResult quiet = run({"-qW", "p.nalvo"});
    EXPECT_EQ(quiet.status, 1);
    EXPECT_EQ(quiet.errLines(), QStringList(warning));
    EXPECT_EQ(run({"-Wv", "p.nalvo"}).status, 1);
    write("a.psm", "#EQU u, 1\n#EQU v, 1\n" + goodSource());
    EXPECT_TRUE(run({"-W", "p.nalvo"}).err.contains(", 2 warnings (count as errors), "));
}

TEST_F(AsmToolOptions, WerrorDoesNotCountKindsThatNoDeviceWrites)
{
    // A new project sets the events of all four kinds and enables one of them.
    AsmProject project = AsmProject().output("hex", "out.hex");
    for (const char* kind : {"mem", "vhdl", "verilog"})
        project.settings[QString("AsmFe/target/%1/writeFileEventBut1").arg(kind)] = "1";
    writeProject(project);
    write("a.psm", goodSource());
    const AsmToolResult result = run({"-W", "p.nalvo"});
    EXPECT_EQ(result.status, 0);
    const QString warning = "warning: No file defined to write. [warnIODevNoFileToWrite]";
    EXPECT_EQ(result.errLines(),
              QStringList({warning, warning, warning,
                           "nalvo-asm: assembled, 0 errors, 3 warnings, 3 instructions, 1 file written"}));
    EXPECT_EQ(run({"-qW", "p.nalvo"}).err, QByteArray());
    // Another warning counts as ever.
    write("a.psm", "#EQU unused, 1\n" + goodSource());
    const AsmToolResult failed = run({"-W", "p.nalvo"});
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.errLines().last(), "nalvo-asm: failed, 0 errors, 4 warnings (as errors: 1), 3 instructions, "
                                        "1 file written");
    EXPECT_EQ(run({"-qW", "p.nalvo"}).errLines(),
              QStringList("a.psm:1: warning: Unused EQU directive: unused [warnEquUnused]"));
}

TEST_F(AsmToolOptions, ProjectAndFilesMayStartWithADash)
{
    writeProject(AsmProject().output("hex", "-o.hex"), "-p.nalvo");
    write("a.psm", goodSource());
    EXPECT_EQ(run({"-p.nalvo"}).status, 2);
    EXPECT_EQ(run({"--listing=-list", "--", "-p.nalvo"}).status, 0);
    EXPECT_TRUE(exists("-o.hex"));
    EXPECT_EQ(read("-list").count('\n'), 3);
}

} // namespace
