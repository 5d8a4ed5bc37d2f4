// nalvo-import: options, messages and exit states, the proof, and what it leaves alone.

#include "AsmToolFixture.h"

#include <QJsonArray>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class ImportTool : public AsmToolTest
{
protected:
    static QByteArray program()
    {
        return "        CONSTANT led, 01\nmain:   OUTPUT s0, led ; out\n        JUMP main\n";
    }
    static QByteArray hex() { return "2C001\n34000\n"; }

    /// Assembles a written project. @return the words of its hex output, without the zeros at the end
    QByteArray assembled(const QString& project) const
    {
        AsmToolSetup tool = setup();
        tool.program = NALVO_ASM;
        // Without a warning but for names that nothing uses and a vector without an instruction.
        const AsmToolResult result = run({project}, tool);
        EXPECT_EQ(result.status, 0) << result.err.constData();
        EXPECT_FALSE(result.err.contains("warnIODevNoFileToWrite")) << result.err.constData();
        const QFileInfo info(project);
        QByteArray words = read(info.path() + "/output/" + info.completeBaseName() + ".hex");
        words.replace("\r", "");
        while (words.endsWith("\n00000\n"))
            words.chop(6);
        return words;
    }
};

TEST_F(ImportTool, MakesAProjectThatAssembles)
{
    write("p.psm", program());
    const AsmToolResult result = run({"p.psm"});
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(result.errLines(), QStringList("warning: Not proved: there is no image of the old tool to compare with "
                                             "(--reference). [warnImpNoReference]"));
    EXPECT_EQ(QString(result.out).split('\n').first(),
              "2 words from 1 file (KCPSM3), not proved, as there is no reference.");
    EXPECT_TRUE(result.out.contains("Project: p/p.nalvo\n"));
    EXPECT_EQ(assembled("p/p.nalvo"), hex());
    EXPECT_EQ(read("p/src/p.psm"), "        #EQU led, 0x01\nmain:   WRPRT s0, led ; out\n        JUMP main\n");
    EXPECT_EQ(read("p.psm"), program());
}

TEST_F(ImportTool, ProvesTheResult)
{
    write("p.psm", program());
    write("p.hex", hex());
    const AsmToolResult result = run({"-d", "kcpsm3", "-o", "new/folder", "--reference", "p.hex", "p.psm"});
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(result.err, QByteArray());
    EXPECT_TRUE(result.out.startsWith("2 words, all equal\n")) << result.out.constData();
    EXPECT_TRUE(exists("new/folder/p.nalvo"));
}

TEST_F(ImportTool, SaysWhereWordsDiffer)
{
    write("p.psm", program());
    write("p.hex", "2C002\n34000\n");
    const AsmToolResult result = run({"--reference", "p.hex", "p.psm"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.out.contains("000: program   2C001")) << result.out.constData();
    EXPECT_TRUE(result.out.contains("000: reference 2C002")) << result.out.constData();
    EXPECT_TRUE(result.out.contains("000 comes from p.psm:2: main:   OUTPUT s0, led ; out\n"));
    EXPECT_TRUE(result.out.contains("words differ"));
}

TEST_F(ImportTool, AWordThatIsMissingDiffers)
{
    write("p.psm", program());
    write("p.hex", "2C001\n");
    EXPECT_EQ(run({"--reference", "p.hex", "p.psm"}).status, 1);
    write("p.hex", "2C001\n34000\n00001\n");
    EXPECT_EQ(run({"--force", "--reference", "p.hex", "p.psm"}).status, 1);
    write("p.hex", "2C001\n34000\n00000\n");
    EXPECT_EQ(run({"--force", "--reference", "p.hex", "p.psm"}).status, 0);
}

TEST_F(ImportTool, AReferenceThatCanNotBeRead)
{
    write("p.psm", program());
    write("p.hex", "This is no image.\n");
    const QStringList names{"p.hex", "missing.hex", ".", "/dev/zero"};
    for (const QString& name : names) {
        const AsmToolResult result = run({"--reference", name, "p.psm"});
        EXPECT_EQ(result.status, 1) << name.toStdString();
        EXPECT_TRUE(result.err.contains("[errImpReference]")) << result.err.constData();
    }
    EXPECT_FALSE(exists("p"));
}

TEST_F(ImportTool, LinesWithoutACounterpartAreMarked)
{
    write("p.psm", "main: LOAD s0, 1\n      FROB s0\n      JUMP main\n");
    const AsmToolResult result = run({"-d", "kcpsm3", "p.psm"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errLines(), QStringList("p.psm:2: error: Unknown word: \"FROB\" [errImpUnknownWord]"));
    EXPECT_TRUE(result.out.contains("1 line is left to do"));
    AsmToolSetup tool = setup();
    tool.program = NALVO_ASM;
    const AsmToolResult assembler = run({"p/p.nalvo"}, tool);
    EXPECT_EQ(assembler.status, 1);
    EXPECT_TRUE(assembler.err.contains("p/src/p.psm:2: error: ")) << assembler.err.constData();
    EXPECT_TRUE(assembler.err.contains("NO_COUNTERPART"));
}

TEST_F(ImportTool, NothingIsOverwritten)
{
    write("p.psm", program());
    write("out/mine.txt", "mine");
    write("out/src/p.psm", "old");
    const QStringList before = snapshot(path("out"));
    AsmToolResult result = run({"-o", "out", "p.psm"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.err.contains("[errImpExists]"));
    EXPECT_EQ(snapshot(path("out")), before);
    // With --force, only the files of the result are.
    result = run({"-o", "out", "--force", "p.psm"});
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(read("out/mine.txt"), "mine");
    EXPECT_TRUE(read("out/src/p.psm").contains("WRPRT"));
    EXPECT_EQ(assembled("out/p.nalvo"), hex());
    // A file where the folder should be.
    write("file", "x");
    EXPECT_EQ(run({"-o", "file", "p.psm"}).status, 1);
    EXPECT_EQ(run({"-o", "file", "--force", "p.psm"}).status, 1);
    EXPECT_EQ(read("file"), "x");
    // A folder where a file should be.
    write("other/p.nalvo/mine.txt", "mine");
    EXPECT_EQ(run({"-o", "other", "--force", "p.psm"}).status, 1);
    EXPECT_EQ(read("other/p.nalvo/mine.txt"), "mine");
    EXPECT_FALSE(exists("other/src"));
}

TEST_F(ImportTool, AnEmptyFolderIsFilled)
{
    write("p.psm", program());
    mkdir("out");
    EXPECT_EQ(run({"-o", "out", "p.psm"}).status, 0);
    EXPECT_TRUE(exists("out/p.nalvo"));
}

TEST_F(ImportTool, TheOriginalsAreNeverTouched)
{
    write("src/p.psm", program());
    write("p.hex", hex());
    const QStringList before = snapshot(path("src"));
    AsmToolResult result = run({"-o", ".", "--force", "src/p.psm"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.err.contains("[errImpOriginal]")) << result.err.constData();
    // Also behind a link.
    ASSERT_TRUE(QFile::link(path(), path("link")));
    EXPECT_EQ(run({"-o", "link", "--force", "src/p.psm"}).status, 1);
    EXPECT_EQ(snapshot(path("src")), before);
    EXPECT_EQ(read("p.hex"), hex());
    EXPECT_FALSE(exists("p.nalvo"));
}

TEST_F(ImportTool, AFullDiskLeavesNothing)
{
    write("p.psm", program() + QByteArray("; comment\n").repeated(50000));
    write("out/src/p.psm", "old");
    const QStringList before = snapshot(path("out"));
    for (const QString& folder : {QString("new"), QString("out")}) {
        AsmToolSetup tool = setup();
        tool.inChild = [] {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit limit = {100000, 100000};
            setrlimit(RLIMIT_FSIZE, &limit);
        };
        const AsmToolResult result = run({"--force", "-o", folder, "p.psm"}, tool);
        EXPECT_EQ(result.status, 1);
        EXPECT_TRUE(result.err.contains("[errImpCannotWrite]")) << result.err.constData();
        EXPECT_EQ(snapshot(path("out")), before);
        EXPECT_EQ(QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList({"out", "p.psm"}));
    }
}

TEST_F(ImportTool, JsonMessages)
{
    write("p.psm", "CONSTANT COMP, 1\nmain: LOAD s0, COMP\n");
    write("p.hex", "00002\n");
    const QList<QJsonObject> objects = run({"-f", "json", "--reference", "p.hex", "p.psm"}).objects();
    ASSERT_GE(objects.size(), 4);
    EXPECT_EQ(objects.at(0).value("key").toString(), "infoImpDialectGuessed");
    EXPECT_EQ(objects.at(1).value("key").toString(), "infoImpRenamed");
    EXPECT_EQ(objects.at(1).value("file").toString(), "p.psm");
    EXPECT_EQ(objects.at(1).value("line").toInt(), 1);
    const QJsonObject proof = objects.at(objects.size() - 2);
    EXPECT_EQ(proof.value("proof").toString(), "different");
    const QJsonObject difference = proof.value("differences").toArray().first().toObject();
    EXPECT_EQ(difference.value("address").toInt(), 0);
    EXPECT_EQ(difference.value("word").toInt(), 1);
    EXPECT_EQ(difference.value("reference").toInt(), 2);
    EXPECT_EQ(difference.value("line").toInt(), 2);
    const QJsonObject sum = objects.last();
    EXPECT_EQ(sum.value("result").toString(), "different");
    EXPECT_EQ(sum.value("words").toInt(), 1);
    EXPECT_FALSE(sum.value("proved").toBool());
    EXPECT_EQ(sum.value("renamed").toInt(), 1);
    EXPECT_EQ(sum.value("project").toString(), "p/p.nalvo");
}

TEST_F(ImportTool, IncludedFilesAndFolders)
{
    write("lib/uart.psm", "send: OUTPUT s0, 01\n RETURN\n");
    write("prog/p.psm", "main: CALL send\n JUMP main\n INCLUDE \"uart.psm\"\n");
    AsmToolResult result = run({"-o", "out", "prog/p.psm"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.err.contains("prog/p.psm:3: error: ")) << result.err.constData();
    EXPECT_TRUE(result.err.contains("[errImpIncludeMissing]"));
    EXPECT_FALSE(exists("out"));
    result = run({"-o", "out", "-I", "lib", "prog/p.psm"});
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_TRUE(exists("out/src/uart.psm"));
    EXPECT_EQ(assembled("out/p.nalvo"), "20002\n22000\n2D001\n25000\n");
}

TEST_F(ImportTool, TheTimeOfALogIsTakenOver)
{
    write("p.psm", "LOAD s0, timestamp_hours\nOUTPUTK 1, 1\n");
    AsmToolSetup tool = setup();
    tool.env.insert("SOURCE_DATE_EPOCH", "3600");
    EXPECT_EQ(run({"-o", "a", "p.psm"}, tool).status, 0);
    EXPECT_EQ(assembled("a/p.nalvo"), "01001\n2B011\n");
}

TEST_F(ImportTool, TheMemoryIsAsLargeAsThatOfTheImage)
{
    const auto pageSize = [&](const QByteArray& depth, const QByteArray& text) {
        write("p.mif",
              "WIDTH=18; DEPTH=" + depth + "; ADDRESS_RADIX=HEX; DATA_RADIX=HEX;\nCONTENT BEGIN\n0: 22000;\nEND;\n");
        write("p.psm", text);
        run({"-d", "kcpsm6", "--force", "--reference", "p.mif", "p.psm"});
        const QByteArray project = read("p/p.nalvo");
        const int start = project.indexOf("<pageSize>") + 10;
        return project.mid(start, project.indexOf('<', start) - start).toInt();
    };
    EXPECT_EQ(pageSize("4096", "JUMP 000\n"), 4096);
    EXPECT_EQ(pageSize("2048", "JUMP 000\n"), 2048);
    EXPECT_EQ(pageSize("256", "JUMP 000\n"), 1024);
    // What the program needs counts, too.
    EXPECT_EQ(pageSize("256", "JUMP 000\nADDRESS 7FF\nJUMP 000\n"), 2048);
    EXPECT_EQ(pageSize("2048", "JUMP 800\n"), 4096);
}

TEST_F(ImportTool, MakesSourcesOfAnImage)
{
    write("p.hex", "2C001\n34000\n");
    AsmToolResult result = run({"--image", "p.hex", "--processor", "pb3", "-o", "out"});
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(assembled("out/p.nalvo"), hex());
    EXPECT_EQ(run({"--image", "p.hex", "--processor", "pb3", "-o", "out"}).status, 1);
    write("bad.hex", "2C001\n34000\n3FFFF\n");
    result = run({"--image", "bad.hex", "--processor", "pb3"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.err.contains("[errImpNoInstruction]")) << result.err.constData();
    EXPECT_TRUE(exists("bad/bad.nalvo"));
    result = run({"--image", "none.hex", "--processor", "pb6"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.err.contains("[errImpReference]"));
    const QJsonObject sum = run({"-f", "json", "--force", "--image", "p.hex", "--processor", "pb3"}).objects().last();
    EXPECT_EQ(sum.value("result").toString(), "imported");
    EXPECT_EQ(sum.value("words").toInt(), 2);
}

TEST_F(ImportTool, MakesSourcesOfEachKindOfImage)
{
    struct Kind
    {
        QByteArray whole;   ///< 00001 at 0, 34001 at 1
        QByteArray damaged; ///< in one line, which the message names
        int line;
    };
    const QByteArray zeros(56, '0');
    const QByteArray init = "INIT_00 => X\"" + zeros + "40010001\",\n";
    const QByteArray parity = "INITP_00 => X\"" + zeros + "0000000C\"\n";
    const QByteArray generics = "rom : RAMB16_S18\ngeneric map (\n";
    const QByteArray mif = "WIDTH=18;\nDEPTH=1024;\nADDRESS_RADIX=HEX;\nDATA_RADIX=HEX;\nCONTENT BEGIN\n";
    const QByteArray coe = "memory_initialization_radix=16;\nmemory_initialization_vector=\n";
    const QByteArray lattice = "#Format=Hex\n#Depth=1024\n#Width=18\n#AddrRadix=3\n#DataRadix=3\n#Data\n";
    const QByteArray log = "  000  00001  LOAD s0, 01\n";
    const Kind kinds[] = {
        {"00001\n34001\n", "00001\n3400G\n", 2},
        {"@000\n00001\n34001\n", "@000\n00001\n@\n34001\n", 3},
        {coe + "00001,\n34001;\n", coe + "00001,\n34O01;\n", 4},
        {mif + "0: 00001;\n1: 34001;\nEND;\n", mif + "0: 00001;\n1 34001;\nEND;\n", 7},
        {generics + init + parity + ")\nport map (",
         generics + "INIT_00 => X\"" + zeros + "0001\",\n" + parity + ")\nport map (", 3},
        {":03000000000001FC\n:03000100034001B8\n:00000001FF\n", ":03000000000001FC\n:03000100034001B9\n:00000001FF\n",
         2},
        {lattice + "00001\n34001\n", lattice + "00001\n3400x\n", 8},
        {log + "  001  34001  x: JUMP x\n", log + "  000  34001  x: JUMP x\n", 2},
    };
    for (const Kind& kind : kinds) {
        write("p.txt", kind.whole);
        AsmToolResult result = run({"--force", "--image", "p.txt", "--processor", "pb3", "-o", "out"});
        EXPECT_EQ(result.status, 0) << kind.whole.constData() << result.err.constData();
        EXPECT_EQ(assembled("out/p.nalvo"), "00001\n34001\n") << kind.whole.constData();
        write("p.txt", kind.damaged);
        result = run({"--image", "p.txt", "--processor", "pb3", "-o", "none"});
        EXPECT_EQ(result.status, 1) << kind.damaged.constData();
        EXPECT_TRUE(result.err.contains("line " + QByteArray::number(kind.line) + ": "))
            << kind.damaged.constData() << result.err.constData();
        EXPECT_FALSE(exists("none"));
    }
}

TEST_F(ImportTool, WrongUsage)
{
    write("p.psm", program());
    const QList<QStringList> wrong = {
        {},
        {"p.psm", "q.psm"},
        {"-d", "z80", "p.psm"},
        {"-f", "xml", "p.psm"},
        {"-o", "", "p.psm"},
        {"-I", "nowhere", "p.psm"},
        {"--reference", "", "p.psm"},
        {"-q", "-v", "p.psm"},
        {"--bogus", "p.psm"},
        {"--processor", "pb3", "p.psm"},
        {"--image", "x.hex"},
        {"--image", "x.hex", "--processor", "z80"},
        {"--image", "x.hex", "--processor", "pb3", "p.psm"},
        {"--image", "x.hex", "--processor", "pb3", "-d", "kcpsm3"},
    };
    for (const QStringList& arguments : wrong) {
        const AsmToolResult result = run(arguments);
        EXPECT_EQ(result.status, 2) << arguments.join(' ').toStdString();
        EXPECT_TRUE(result.err.startsWith("nalvo-import: ")) << result.err.constData();
    }
    EXPECT_FALSE(exists("p"));
}

TEST_F(ImportTool, HelpAndVersion)
{
    const AsmToolResult help = run({"--help"});
    EXPECT_EQ(help.status, 0);
    for (const char* option : {"--dialect", "--output", "-I", "--reference", "--image", "--processor", "--force"})
        EXPECT_TRUE(help.out.contains(option)) << option;
    EXPECT_EQ(run({"--version"}).status, 0);
}

TEST_F(ImportTool, AFullStandardOutputIsAFailure)
{
    write("p.psm", program());
    AsmToolSetup tool = setup();
    tool.stdoutFile = "/dev/full";
    EXPECT_EQ(run({"p.psm"}, tool).status, 1);
}

} // namespace
