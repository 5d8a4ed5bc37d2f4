// What "cmake --install" leaves works at any place.

#include "InstalledTree.h"

#include "Release.h"
#include "ShippedFolder.h"

#include <memory>

#include <unistd.h>

namespace {

class Install : public testing::Test
{
protected:
    static void SetUpTestSuite() { tree = std::make_unique<InstalledTree>(); }
    static void TearDownTestSuite() { tree.reset(); }

    static QString script(const char* name) { return QStringLiteral(NALVO_SOURCE_DIR "/tests/Install/") + name; }

    static std::unique_ptr<InstalledTree> tree;
};

std::unique_ptr<InstalledTree> Install::tree;

} // namespace

TEST_F(Install, everyLinkIsRelativeAndLeadsIntoTheTree)
{
    int links = 0;
    const QString root = QFileInfo(tree->path()).canonicalFilePath() + '/';
    for (const QString& file : tree->files()) {
        const QFileInfo info(tree->path(file));
        if (!info.isSymLink())
            continue;
        ++links;
        EXPECT_TRUE(info.canonicalFilePath().startsWith(root)) << qPrintable(file);
        char target[4096] = "";
        ASSERT_GT(readlink(info.filePath().toLocal8Bit().constData(), target, sizeof target - 1), 0)
            << qPrintable(file);
        EXPECT_NE(target[0], '/') << qPrintable(file);
    }
    EXPECT_GE(links, 5 + 5 + 3) << "programs, folders, help";
}

TEST_F(Install, theProgramsFindWhatShipsBesideThem)
{
    const QString dir = ShippedFolder::programDir(tree->path("bin/nalvo"));
    for (const char* name : {"asmTemplates", "asmImportFilter", "hdlTemplates", "examples", "fonts", "hlp"}) {
        const QString found = ShippedFolder::find(dir, name);
        EXPECT_EQ(found, QDir::cleanPath(dir + "/../" + name));
        EXPECT_FALSE(ShippedFolder::filesBelow(found).isEmpty()) << name;
    }
    for (const char* name : {"hlp/hlpCollection.qhc", "hlp/nalvo.qch", "hlp/messages.txt"})
        EXPECT_TRUE(QFileInfo(ShippedFolder::candidates(dir, name).constFirst()).isFile()) << name;
}

TEST_F(Install, theExamplesComeWithoutWhatARunHasWritten)
{
    EXPECT_TRUE(QFileInfo(tree->path("share/nalvo/examples/uart_monitor/output")).isDir());
    for (const QString& file : tree->files()) {
        EXPECT_FALSE(file.contains("/output/")) << qPrintable(file);
        EXPECT_FALSE(file.endsWith(".user")) << qPrintable(file);
    }
}

TEST_F(Install, everyFileBelongsToOneComponent)
{
    QStringList files;
    for (const char* component : {"program", "tools", "help", "data", "editors", "docs"})
        files += InstalledTree(component).files();
    files.sort();
    EXPECT_EQ(files.join('\n').toStdString(), tree->files().join('\n').toStdString());
}

TEST_F(Install, theToolsStandAlone)
{
    const InstalledTree tools("tools");
    for (const char* name : {"nalvo-asm", "nalvo-sim", "nalvo-import", "nalvo-prove"}) {
        const sRun_t run = runProgram(tools.path(QStringLiteral("bin/") + name), {"--version"});
        EXPECT_EQ(run.status, 0) << name;
        EXPECT_TRUE(run.out.endsWith(' ' + Release::own().text().toLatin1() + '\n')) << run.out.constData();
    }
    const sRun_t run = runProgram(tools.path("bin/nalvo-asm"), {"--explain", "errSyntax"});
    EXPECT_EQ(run.status, 0) << run.out.constData();
    EXPECT_GT(run.out.size(), 100);
}

TEST_F(Install, noProgramHasARunPath)
{
    const QStringList programs = QDir(tree->path("libexec/nalvo/bin")).entryList(QDir::Files);
    // The library that draws the help lies beside them.
    EXPECT_EQ(programs.join(' ').toStdString(),
              "nalvo nalvo-asm nalvo-help-view.so nalvo-import nalvo-prove nalvo-sim");
    for (const QString& program : programs) {
        const sRun_t run = runProgram("readelf", {"-d", tree->path("libexec/nalvo/bin/" + program)});
        EXPECT_EQ(run.status, 0) << run.out.constData();
        EXPECT_TRUE(run.out.contains("NEEDED")) << qPrintable(program);
        EXPECT_FALSE(run.out.contains("RPATH") || run.out.contains("RUNPATH")) << qPrintable(program);
    }
}

TEST_F(Install, theBatchProgramsWork)
{
    const sRun_t run = runProgram("sh", {script("batch.sh"), tree->path("bin")});
    EXPECT_EQ(run.status, 0) << run.out.constData();
    EXPECT_TRUE(run.out.contains("The batch programs work.\n")) << run.out.constData();
}

TEST_F(Install, theWindowWorks)
{
    const sRun_t run = runProgram("sh", {script("window.sh"), tree->path("bin")});
    EXPECT_EQ(run.status, 0) << run.out.constData();
}

TEST_F(Install, aWindowWithoutItsHelpIsNoticed)
{
    const InstalledTree program("program");
    const InstalledTree data("data");
    const sRun_t copied = runProgram("cp", {"-R", data.path() + "/.", program.path()});
    ASSERT_EQ(copied.status, 0) << copied.out.constData();
    const sRun_t run = runProgram("sh", {script("window.sh"), program.path("bin")});
    EXPECT_NE(run.status, 0);
    EXPECT_TRUE(run.out.contains("BAD: Cannot setup help data!\n")) << run.out.constData();
}
