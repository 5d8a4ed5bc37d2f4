// The dependency file: what stands in it, and what GNU make and ninja do with it.

#include "BuildFixture.h"

namespace {

/// A makefile that takes the rule of the last run.
const char* const makefile = "rom.hex:\n"
                             "\tnalvo-asm -q -o hex=rom.hex --depfile rom.d p.nalvo\n"
                             "-include rom.d\n";

const char* const ninjafile = "rule assemble\n"
                              "  command = nalvo-asm -q -o hex=rom.hex --depfile rom.d p.nalvo\n"
                              "  depfile = rom.d\n"
                              "%1"
                              "build rom.hex: assemble\n";

class AsmToolDepfile : public AsmBuildTest
{
protected:
    QByteArray depfile(const QStringList& arguments) const
    {
        const AsmToolResult result = run(QStringList{"-q", "--depfile", "-"} + arguments);
        EXPECT_EQ(result.status, 0) << result.err.constData();
        EXPECT_EQ(result.err, "");
        return result.out;
    }

    /// A project whose sources have these names; the first one has the program.
    void writeSources(const QStringList& names) const
    {
        AsmProject project;
        project.sources = names;
        writeProject(project);
        for (const QString& name : names)
            write(name, name == names.first() ? goodSource() : QByteArray("; nothing\n"));
    }

    static QStringList oddNames()
    {
        return {"a.psm",
                "with blank.psm",
                "two  blanks.psm",
                "money$.psm",
                "a#b.psm",
                "a:b.psm",
                "a\\b.psm",
                "a\\ b.psm",
                "a\\\\ b#c.psm",
                "~tilde.psm",
                "~/in home.psm",
                "sub dir/x.psm",
                "gr\xc3\xbc\xc3\x9f"
                "e.psm",
                "(b){c}[d]!.psm",
                "+,@.psm"};
    }
    /// Ninja has no way to write these in a dependency file.
    static QStringList namesForMakeAlone() { return {"tab\tx.psm", "a\\#b.psm", "a&b'c\"d<e>.psm"}; }
};

TEST_F(AsmToolDepfile, ARuleAndAnEmptyRuleForEachInput)
{
    writeGoodProject();
    EXPECT_EQ(depfile({"p.nalvo"}), "out.hex: \\\n p.nalvo \\\n a.psm\n\np.nalvo:\n\na.psm:\n");
}

TEST_F(AsmToolDepfile, AllOutputsDependOnAllSourcesAndOnTheTemplatesOfTheEvent)
{
    AsmProject project = AsmProject().output("hex", "out/r.hex").vhdl("t/t.vhd", "out/r.vhd");
    project.settings["AsmFe/target/verilog/en"] = "1";
    project.settings["AsmFe/target/verilog/entityName"] = "rom";
    project.settings["AsmFe/target/verilog/templateFile"] = "t/t.v";
    project.settings["AsmFe/target/verilog/outputFile"] = "out/r.v";
    project.settings["AsmFe/target/verilog/writeFileEventBut2"] = "1";
    project.sources = QStringList{"a.psm", "sub/b.psm"};
    writeProject(project);
    write("a.psm", goodSource());
    write("sub/b.psm", "; nothing\n");
    write("t/t.vhd", vhdlTemplate());
    write("t/t.v", vhdlTemplate());
    mkdir("out");
    EXPECT_EQ(depfile({"-o", "mif=r.mif", "-l", "r.lst", "p.nalvo"}),
              "out/r.vhd \\\n out/r.hex \\\n r.mif \\\n r.lst: \\\n p.nalvo \\\n a.psm \\\n sub/b.psm \\\n t/t.vhd\n"
              "\np.nalvo:\n\na.psm:\n\nsub/b.psm:\n\nt/t.vhd:\n");
    EXPECT_EQ(depfile({"-e", "button2", "p.nalvo"}), "out/r.v: \\\n p.nalvo \\\n a.psm \\\n sub/b.psm \\\n t/t.v\n"
                                                     "\np.nalvo:\n\na.psm:\n\nsub/b.psm:\n\nt/t.v:\n");
}

TEST_F(AsmToolDepfile, NamesCountFromTheFolderOfTheRun)
{
    writeGoodProject();
    mkdir("build/deep");
    AsmToolSetup with = setup();
    with.folder = path("build/deep");
    const AsmToolResult result = run({"-q", "--depfile", "rom.d", "../../p.nalvo"}, with);
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(read("build/deep/rom.d"), "../../out.hex: \\\n ../../p.nalvo \\\n ../../a.psm\n"
                                        "\n../../p.nalvo:\n\n../../a.psm:\n");
}

TEST_F(AsmToolDepfile, TheTargetCanBeNamed)
{
    writeGoodProject();
    EXPECT_EQ(depfile({"--depfile-target", "x/stamp", "--depfile-target", "a b", "-e", "none", "p.nalvo"}),
              "x/stamp \\\n a\\ b: \\\n p.nalvo \\\n a.psm\n\np.nalvo:\n\na.psm:\n");
}

TEST_F(AsmToolDepfile, WithoutAnOutputThereIsNoRule)
{
    writeGoodProject();
    const AsmToolResult result = run({"-e", "none", "--depfile", "rom.d", "p.nalvo"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errLines().value(0),
              "error: No file is written that could depend on the sources: name one by --depfile-target");
    EXPECT_FALSE(exists("rom.d"));
}

TEST_F(AsmToolDepfile, AFailureKeepsTheOldOne)
{
    writeGoodProject("start: JUMP nowhere\n");
    write("rom.d", "old");
    EXPECT_EQ(run({"--depfile", "rom.d", "p.nalvo"}).status, 1);
    EXPECT_EQ(read("rom.d"), "old");
    write("a.psm", "#EQU unused, 1\n" + goodSource());
    EXPECT_EQ(run({"-W", "--depfile", "rom.d", "p.nalvo"}).status, 1);
    EXPECT_EQ(read("rom.d"), "old");
    EXPECT_EQ(run({"--depfile", "rom.d", "p.nalvo"}).status, 0);
    EXPECT_TRUE(read("rom.d").startsWith("out.hex:"));
}

TEST_F(AsmToolDepfile, ItReplacesNoFileOfTheRun)
{
    writeGoodProject();
    for (const char* file : {"p.nalvo", "a.psm", "out.hex"}) {
        const AsmToolResult result = run({"--depfile", file, "p.nalvo"});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.errLines().value(0), QString("error: File of the project would be overwritten: ") + file);
    }
    EXPECT_EQ(read("a.psm"), goodSource());
    EXPECT_EQ(read("out.hex"), hexText());
    const AsmToolResult image = run({"-o", "mif=x", "--depfile", "x", "p.nalvo"});
    EXPECT_EQ(image.errLines().value(0), "error: File was already written in this run: x");
    const AsmToolResult listing = run({"-l", "x", "--depfile", "x", "p.nalvo"});
    EXPECT_EQ(listing.status, 2);
    EXPECT_EQ(listing.errLines().value(0), "nalvo-asm: Two outputs can not go to the same file: x");
}

TEST_F(AsmToolDepfile, WrongUsage)
{
    writeGoodProject();
    const auto reason = [&](const QStringList& arguments) {
        const AsmToolResult result = run(arguments + QStringList("p.nalvo"));
        EXPECT_EQ(result.status, 2);
        return result.errLines().value(0);
    };
    EXPECT_EQ(reason({"--depfile", ""}), "nalvo-asm: The name of the dependency file is empty.");
    EXPECT_EQ(reason({"--depfile-target", "x"}), "nalvo-asm: --depfile-target needs --depfile.");
    EXPECT_EQ(reason({"--depfile", "x", "--depfile-target", ""}), "nalvo-asm: The name of the target is empty.");
    EXPECT_EQ(reason({"--depfile", "-", "-l", "-"}),
              "nalvo-asm: Only one of JSON messages, listing, symbols and dependencies can go to standard output.");
}

TEST_F(AsmToolDepfile, AFileThatCanNotBeWritten)
{
    writeGoodProject();
    const AsmToolResult result = run({"--depfile", "none/rom.d", "p.nalvo"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.errLines().value(0).startsWith("error: Can not write none/rom.d: ")) << result.err.constData();
    const AsmToolResult full = run({"--depfile", "/dev/full", "p.nalvo"});
    EXPECT_EQ(full.status, 1);
    EXPECT_TRUE(full.errLines().value(0).startsWith("error: Can not write /dev/full: ")) << full.err.constData();
}

TEST_F(AsmToolDepfile, ANameThatNoRuleCanHold)
{
    for (const char* name : {"a%b.psm", "a=b.psm", "a;b.psm", "a\nb.psm", "a|b.psm", "a\\:b.psm", "a.psm\\", "a.psm ",
                             "a.psm\t", "a.psm&"}) {
        writeSources({name});
        const AsmToolResult result = run({"--depfile", "rom.d", "-o", "hex=rom.hex", "p.nalvo"});
        EXPECT_EQ(result.status, 1) << name;
        EXPECT_NE(result.err.indexOf("error: No rule of make can hold this name: a"), -1) << result.err.constData();
        EXPECT_FALSE(exists("rom.d")) << name;
    }
}

TEST_F(AsmToolDepfile, MakeBuildsAnewForEachInput)
{
    writeSources({"a.psm", "sub/b.psm"});
    write("Makefile", makefile);
    expectRebuilt([this] { return call("make"); }, {"p.nalvo", "a.psm", "sub/b.psm"});
}

TEST_F(AsmToolDepfile, MakeReadsOddNames)
{
    const QStringList names = oddNames() + namesForMakeAlone();
    writeSources(names);
    write("Makefile", makefile);
    expectRebuilt([this] { return call("make"); }, names);
}

TEST_F(AsmToolDepfile, NinjaBuildsAnewForEachInput)
{
    writeSources({"a.psm", "sub/b.psm"});
    write("build.ninja", QString(ninjafile).arg("").toUtf8());
    expectRebuilt([this] { return call("ninja"); }, {"p.nalvo", "a.psm", "sub/b.psm"});
}

TEST_F(AsmToolDepfile, NinjaReadsOddNames)
{
    writeSources(oddNames());
    write("build.ninja", QString(ninjafile).arg("  deps = gcc\n").toUtf8());
    expectRebuilt([this] { return call("ninja"); }, oddNames());
}

TEST_F(AsmToolDepfile, MakeGoesOnWithoutASourceThatIsNotNeededAnyMore)
{
    writeSources({"a.psm", "old name.psm"});
    write("Makefile", makefile);
    ASSERT_EQ(call("make").status, 0);
    AsmProject project;
    writeProject(project);
    ASSERT_TRUE(QFile::remove(path("old name.psm")));
    const AsmToolResult result = call("make");
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(runs(), 2);
    EXPECT_EQ(read("rom.d").indexOf("old"), -1);
}

TEST_F(AsmToolDepfile, AnErrorStopsMakeAndIsShownAgain)
{
    writeSources({"a.psm"});
    write("Makefile", makefile);
    ASSERT_EQ(call("make").status, 0);
    write("a.psm", "start: JUMP nowhere\n");
    setAge("a.psm", 1000);
    for (int i = 0; i < 2; ++i) {
        const AsmToolResult result = call("make");
        EXPECT_EQ(result.status, 2);
        EXPECT_NE(result.err.indexOf("a.psm:1: error:"), -1) << result.err.constData();
    }
}

} // namespace
