// nalvo-asm --format FILE: a source in columns.

#include "AsmToolFixture.h"
#include "ExampleFolder.h"

#include <QDirIterator>

namespace {

class AsmToolFormat : public AsmToolTest
{
};

TEST_F(AsmToolFormat, GoesToStandardOutputAndLeavesTheFile)
{
    write("a.psm", "load s0,1;one\n");
    const AsmToolResult result = run({"--format", "a.psm"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, QByteArray("        LOAD    s0, 1                   ;one\n"));
    EXPECT_EQ(result.err, QByteArray());
    EXPECT_EQ(read("a.psm"), QByteArray("load s0,1;one\n"));
}

TEST_F(AsmToolFormat, InPlaceWritesTheFileOnceOnly)
{
    write("a.psm", "load s0,1\n");
    EXPECT_EQ(run({"--format", "a.psm", "--in-place"}).status, 0);
    EXPECT_EQ(read("a.psm"), QByteArray("        LOAD    s0, 1\n"));
    const QStringList before = snapshot(path());
    const AsmToolResult result = run({"--in-place", "--format=a.psm"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, QByteArray());
    EXPECT_EQ(snapshot(path()), before);
}

TEST_F(AsmToolFormat, ReadsStandardInput)
{
    write("in", "ret\n");
    AsmToolSetup setup = this->setup();
    setup.stdinFile = path("in");
    EXPECT_EQ(run({"--format", "-"}, setup).out, QByteArray("        RET\n"));
    EXPECT_EQ(run({"--format", "-", "--in-place"}, setup).status, 2);
}

TEST_F(AsmToolFormat, FailuresAreReported)
{
    writeGoodProject();
    EXPECT_EQ(run({"--format", "none.psm"}).status, 1);
    EXPECT_TRUE(run({"--format", "none.psm"}).err.contains("Can not read none.psm: it does not exist"));
    mkdir("d");
    EXPECT_EQ(run({"--format", "d"}).status, 1);
    EXPECT_EQ(run({"--format", ""}).status, 2);
    EXPECT_EQ(run({"--format", "a.psm", "p.nalvo"}).status, 2);
    EXPECT_EQ(run({"--in-place", "p.nalvo"}).status, 2);
    EXPECT_EQ(run({"--in-place", "--format", "json"}).status, 2);
    // The format of messages as ever.
    EXPECT_EQ(run({"--format", "json", "p.nalvo"}).status, 0);
}

/// All examples assemble to the same files, listings and messages after their sources were formatted.
TEST_F(AsmToolFormat, ChangesNoWordOfTheExamples)
{
    copyFolder(NALVO_SOURCE_DIR "/examples", path("examples"));
    QStringList projects;
    QStringList sources;
    for (QDirIterator it(path("examples"), QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString file = it.next();
        if (file.endsWith(".nalvo"))
            projects.append(file);
        else if (file.endsWith(".psm"))
            sources.append(file);
    }
    ASSERT_GE(projects.size(), 5);
    ASSERT_GE(sources.size(), 10);
    const auto outcome = [&](const QString& project) {
        const AsmToolResult result = run({"-v", "--event", "none", "--listing", "-", project});
        EXPECT_EQ(result.status, 0) << project.toStdString();
        // The listing shows the sources' lines behind the words.
        QByteArray words;
        for (const QByteArray& line : result.out.split('\n'))
            words += line.simplified().toUpper().replace(' ', "") + '\n';
        return words + result.err;
    };
    QList<QByteArray> before;
    for (const QString& project : qAsConst(projects))
        before.append(outcome(project));
    int changed = 0;
    for (const QString& source : qAsConst(sources)) {
        const AsmToolResult result = run({"--format", source});
        EXPECT_EQ(result.status, 0);
        QFile file(source);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        changed += int(file.readAll() != result.out);
        ASSERT_EQ(run({"--format", source, "--in-place"}).status, 0);
    }
    EXPECT_GT(changed, 0);
    for (int i = 0; i < projects.size(); ++i)
        EXPECT_EQ(outcome(projects.at(i)), before.at(i)) << projects.at(i).toStdString();
}

} // namespace
