// What a run ends with: the exit status of all that may be wrong with a project, and what a run leaves alone.

#include "AsmToolFixture.h"

#include <QDateTime>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

class AsmToolOutcome : public AsmToolTest
{
protected:
    /// The project can not be opened, for this reason.
    void expectNotOpened(const QString& project, const QString& reason) const
    {
        const AsmToolResult result = run({"--", project});
        EXPECT_EQ(result.status, 2) << project.toStdString();
        EXPECT_EQ(result.out, QByteArray());
        EXPECT_EQ(result.errLines(),
                  QStringList({"error: " + reason, "nalvo-asm: failed, 1 error, 0 warnings, 0 instructions, "
                                                   "0 files written"}));
    }
};

TEST_F(AsmToolOutcome, AGoodProject)
{
    writeGoodProject();
    const AsmToolResult result = run({"p.nalvo"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, QByteArray());
    EXPECT_EQ(read("out.hex"), hexText());
}

TEST_F(AsmToolOutcome, ProjectsThatCanNotBeOpened)
{
    mkdir("folder.nalvo");
    write("broken.nalvo", "<?xml version=\"1.0\"?><project version=\"3\"><sources>");
    write("binary.nalvo", QByteArray("\x7f"
                                     "ELF\0\0\xff\xfe",
                                     8));
    write("empty.nalvo", "");
    ASSERT_EQ(mkfifo(QFile::encodeName(path("fifo.nalvo")).constData(), 0600), 0);
    ASSERT_TRUE(QFile::link("nowhere", path("link.nalvo")));
    expectNotOpened("missing.nalvo", "Project file does not exist: " + path("missing.nalvo"));
    expectNotOpened("link.nalvo", "Project file does not exist: " + path("link.nalvo"));
    expectNotOpened("no/folder.nalvo", "Project file does not exist: " + path("no/folder.nalvo"));
    expectNotOpened("-", "Project file does not exist: " + path("-"));
    expectNotOpened("", "No project file set.");
    expectNotOpened("folder.nalvo", "Project file is no valid file: " + path("folder.nalvo"));
    expectNotOpened(".", "Project file is no valid file: " + path());
    expectNotOpened("fifo.nalvo", "Project file is no valid file: " + path("fifo.nalvo"));
    expectNotOpened("/dev/zero", "Project file is no valid file: /dev/zero");
    for (const char* name : {"broken.nalvo", "binary.nalvo", "empty.nalvo"})
        expectNotOpened(name, "Project file not XML conform!" + path(name));
}

TEST_F(AsmToolOutcome, ADocumentThatIsNoProjectAssemblesNothing)
{
    write("other.nalvo", "<?xml version=\"1.0\"?><html/>");
    const AsmToolResult result = run({"-q", "other.nalvo"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errLines(),
              QStringList("error: No assembler backend registerd. Please select a processor. [errNoAsmBe]"));
}

TEST_F(AsmToolOutcome, WithoutAProcessorOrWithAnUnknownOne)
{
    for (const char* processor : {"", "No Such Processor"}) {
        AsmProject project;
        project.processor = processor;
        writeProject(project);
        write("a.psm", goodSource());
        const AsmToolResult result = run({"p.nalvo"});
        EXPECT_EQ(result.status, 1);
        EXPECT_TRUE(result.err.contains("[errNoAsmBe]"));
    }
}

TEST_F(AsmToolOutcome, WithoutSources)
{
    AsmProject project;
    project.sources.clear();
    writeProject(project.output("hex", "out.hex"));
    const AsmToolResult result = run({"p.nalvo"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errLines(),
              QStringList({"error: No Instructions found! [errOcExpect]",
                           "nalvo-asm: failed, 1 error, 0 warnings, 0 instructions, 0 files written"}));
    EXPECT_FALSE(exists("out.hex"));
}

TEST_F(AsmToolOutcome, AMissingSourceIsAnErrorThoughTheOthersAssemble)
{
    AsmProject project;
    project.sources = QStringList{"a.psm", "missing.psm"};
    writeProject(project.output("hex", "out.hex"));
    write("a.psm", goodSource());
    const AsmToolResult result = run({"p.nalvo"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errLines(),
              QStringList({"error: File does not exist: " + path("missing.psm"),
                           "nalvo-asm: failed, 1 error, 0 warnings, 3 instructions, 1 file written"}));
}

TEST_F(AsmToolOutcome, AFolderAsSource)
{
    AsmProject project;
    project.sources = QStringList("folder.psm");
    writeProject(project);
    mkdir("folder.psm");
    const AsmToolResult result = run({"-q", "p.nalvo"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errLines(), QStringList("error: Can not read file: " + path("folder.psm") + " [errFileRead]"));
}

TEST_F(AsmToolOutcome, ErrorsWarningsAndNeither)
{
    writeGoodProject(" NOSUCH\n");
    EXPECT_EQ(run({"p.nalvo"}).status, 1);
    EXPECT_FALSE(exists("out.hex"));
    writeGoodProject("#EQU unused, 1\n" + goodSource());
    EXPECT_EQ(run({"p.nalvo"}).status, 0);
}

TEST_F(AsmToolOutcome, AnErrorThatStopsNothingStillCounts)
{
    writeGoodProject(":\n" + goodSource());
    const AsmToolResult result = run({"p.nalvo"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errLines().last(), "nalvo-asm: failed, 1 error, 0 warnings, 3 instructions, 1 file written");
    EXPECT_EQ(read("out.hex"), hexText());
}

TEST_F(AsmToolOutcome, AnOutputFileThatCanNotBeWritten)
{
    write("a.psm", goodSource());
    for (const char* file : {"no/such/out.hex", "folder", "a.psm", "p.nalvo"}) {
        mkdir("folder");
        writeProject(AsmProject().output("hex", file));
        const QByteArray project = read("p.nalvo");
        const AsmToolResult result = run({"p.nalvo"});
        EXPECT_EQ(result.status, 1) << file;
        EXPECT_TRUE(result.errLines().value(0).startsWith("error: ")) << result.err.constData();
        EXPECT_TRUE(result.errLines().value(0).contains(path(file) + " [errTarget")) << result.err.constData();
        EXPECT_TRUE(result.err.endsWith(", 3 instructions, 0 files written\n"));
        EXPECT_EQ(read("p.nalvo"), project);
        EXPECT_EQ(read("a.psm"), goodSource());
    }
}

TEST_F(AsmToolOutcome, AnOutputFileOnAFullDisk)
{
    write("a.psm", goodSource());
    for (const char* kind : {"hex", "mem"}) {
        writeProject(AsmProject().output(kind, "/dev/full"));
        const AsmToolResult result = run({"p.nalvo"});
        EXPECT_EQ(result.status, 1) << kind;
        EXPECT_TRUE(result.errLines().value(0).startsWith("error: ")) << result.err.constData();
    }
    writeProject(AsmProject().vhdl("t.vhd", "/dev/full"));
    write("t.vhd", vhdlTemplate());
    EXPECT_EQ(run({"p.nalvo"}).status, 1);
}

TEST_F(AsmToolOutcome, WhatIsLeftOfAnOutputHoldsNothingOld)
{
    write("a.psm", goodSource());
    writeProject(AsmProject().output("hex", "out.hex"));
    write("out.hex", QByteArray(28000, 'x'));
    AsmToolSetup full = setup();
    // As on a disk without room: a file ends after 4096 bytes.
    full.inChild = [] {
        const rlimit limit = {4096, 4096};
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, SIG_IGN);
    };
    const AsmToolResult result = run({"p.nalvo"}, full);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.err.contains("out.hex (File too large) [errTargetWrite]")) << result.err.constData();
    EXPECT_EQ(read("out.hex").size(), 4096);
    EXPECT_FALSE(read("out.hex").contains('x'));
}

TEST_F(AsmToolOutcome, ProjectSourcesAndSettingsStayAsTheyAre)
{
    writeGoodProject("#EQU unused, 1\n" + goodSource());
    QByteArray project = read("p.nalvo");
    project.replace("version=\"3\"", "version=\"2\"");
    project.replace("</project>", "<Unknown a=\"1\"><x>y</x></Unknown></project><!-- a remark -->\n\n");
    write("p.nalvo", project);
    for (const QStringList& arguments :
         {QStringList{"-e", "none", "p.nalvo"}, QStringList{"-e", "none", "-f", "json", "-v", "p.nalvo"},
          QStringList{"-e", "none", "-W", "p.nalvo"}, QStringList{"-e", "none", "-s", "-", "p.nalvo"},
          QStringList{"-e", "save", "-l", "-", "p.nalvo"}}) {
        const QStringList before = snapshot(path(".."));
        EXPECT_NE(run(arguments).status, 2);
        EXPECT_EQ(snapshot(path("..")), before) << arguments.join(' ').toStdString();
    }
    // A run that writes an output touches the output alone.
    const QDateTime time = QFileInfo(path("p.nalvo")).lastModified();
    EXPECT_EQ(run({"p.nalvo"}).status, 0);
    EXPECT_EQ(read("p.nalvo"), project);
    EXPECT_EQ(QFileInfo(path("p.nalvo")).lastModified(), time);
    EXPECT_EQ(QDir(path()).entryList(QDir::Files | QDir::Hidden), QStringList({"a.psm", "out.hex", "p.nalvo"}));
    EXPECT_TRUE(QDir(path("../config")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    EXPECT_TRUE(QDir(path("../home")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST_F(AsmToolOutcome, EightRunsAtOnce)
{
    AsmProject project;
    writeProject(project.output("hex", "out.hex").output("mem", "out.mem").vhdl("t.vhd", "out.vhd"));
    QByteArray source;
    for (int i = 0; i < 500; ++i)
        source += " LOAD s0, " + QByteArray::number(i % 256) + '\n';
    write("a.psm", source + "#ORG ADDR, 0x3FF\n RETI ENABLE\n");
    write("t.vhd", vhdlTemplate());
    EXPECT_EQ(run({"p.nalvo"}).status, 0);
    const QStringList files = {"out.hex", "out.mem", "out.vhd", "list", "syms"};
    run({"-l", "list", "-s", "syms", "p.nalvo"});
    QList<QByteArray> alone;
    for (const QString& file : files) {
        alone.append(read(file));
        EXPECT_FALSE(alone.last().isEmpty());
        QFile::remove(path(file));
    }
    std::vector<std::unique_ptr<ToolProcess>> processes;
    for (int i = 0; i < 8; ++i) {
        processes.push_back(std::make_unique<ToolProcess>());
        processes.back()->setup(NALVO_ASM, {"-l", "list", "-s", "syms", "p.nalvo"}, setup());
        processes.back()->start();
    }
    for (auto& process : processes) {
        ASSERT_TRUE(process->waitForFinished(120000));
        EXPECT_EQ(process->exitCode(), 0) << process->readAllStandardError().constData();
    }
    for (int i = 0; i < files.size(); ++i)
        EXPECT_EQ(read(files.at(i)), alone.at(i)) << files.at(i).toStdString();
    EXPECT_EQ(QDir(path()).entryList(QDir::Files | QDir::Hidden),
              QStringList({"a.psm", "list", "out.hex", "out.mem", "out.vhd", "p.nalvo", "syms", "t.vhd"}));
}

} // namespace
