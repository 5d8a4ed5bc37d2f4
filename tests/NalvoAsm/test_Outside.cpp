// Output files outside of the folder of the project file.

#include "AsmToolFixture.h"

namespace {

class AsmToolOutside : public AsmToolTest
{
protected:
    QString outside(const QString& name) const { return m_other.filePath(name); }
    QByteArray readOutside(const QString& name) const
    {
        QFile file(outside(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    QString refusal(const QString& name) const
    {
        return QString("error: Output file outside of the project's folder is not allowed: %1 (a source names "
                       "it; --allow-outside writes it) [errTargetOutside]")
            .arg(name);
    }
    /// A device whose output a source names.
    void writeProjectWithSet(const QString& file) const
    {
        writeProject(AsmProject().output("hex", "main.hex"));
        write("a.psm", QString("#SET IODEV::rom::EN, TRUE\n"
                               "#SET IODEV::rom::SIZE, 4\n"
                               "#SET IODEV::rom::VALUE, 0: 1, 2, 3, 4\n"
                               "#SET IODEV::rom::HEXEN, TRUE\n"
                               "#SET IODEV::rom::HEXTARGETFILE, \"%1\"\n")
                               .arg(file)
                               .toUtf8() +
                           goodSource());
    }
    void expectRefused(const QString& name) const
    {
        const AsmToolResult result = run({"p.nalvo"});
        EXPECT_EQ(result.status, 1);
        EXPECT_TRUE(result.errLines().contains(refusal(name))) << result.err.constData();
        EXPECT_EQ(QDir(m_other.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
    }

    QTemporaryDir m_other;
};

TEST_F(AsmToolOutside, aSourceIsRefused)
{
    writeProjectWithSet(outside("out.hex"));
    expectRefused(outside("out.hex"));
}

TEST_F(AsmToolOutside, theOptionAllowsIt)
{
    writeProjectWithSet(outside("out.hex"));
    const AsmToolResult result = run({"--allow-outside", "p.nalvo"});
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_TRUE(readOutside("out.hex").startsWith("00001\n00002\n")) << readOutside("out.hex").constData();
}

TEST_F(AsmToolOutside, whatTheProjectNamesIsWritten)
{
    writeProject(AsmProject().output("hex", outside("out.hex")));
    write("a.psm", goodSource());
    EXPECT_EQ(run({"p.nalvo"}).status, 0);
    EXPECT_EQ(readOutside("out.hex"), hexText());
}

TEST_F(AsmToolOutside, dotsLeadOut)
{
    mkdir("inner");
    writeProjectWithSet("inner/../../" + QFileInfo(m_other.path()).fileName() + "/out.hex");
    const AsmToolResult result = run({"p.nalvo"});
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.indexOf("[errTargetOutside]"), -1) << result.err.constData();
    EXPECT_FALSE(QFile::exists(outside("out.hex")));
}

TEST_F(AsmToolOutside, dotsThatComeBackDoNot)
{
    mkdir("inner");
    writeProjectWithSet("inner/../out.hex");
    EXPECT_EQ(run({"p.nalvo"}).status, 0);
    EXPECT_TRUE(exists("out.hex"));
}

TEST_F(AsmToolOutside, aFolderBesideWithTheSameBeginningIsOutside)
{
    const QString beside = path() + "-beside";
    QDir().mkpath(beside);
    writeProjectWithSet(beside + "/out.hex");
    EXPECT_EQ(run({"p.nalvo"}).status, 1);
    EXPECT_FALSE(QFile::exists(beside + "/out.hex"));
    QDir(beside).removeRecursively();
}

TEST_F(AsmToolOutside, linksLeadOut)
{
    // To a folder, to a file that exists, and to one that a write would make.
    QFile::link(m_other.path(), path("folder"));
    writeProjectWithSet("folder/out.hex");
    expectRefused(path("folder/out.hex"));

    QTemporaryDir third;
    QFile existing(third.filePath("old"));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly) && existing.write("old") == 3);
    existing.close();
    QFile::link(third.filePath("old"), path("file.hex"));
    writeProjectWithSet("file.hex");
    expectRefused(path("file.hex"));
    ASSERT_TRUE(existing.open(QIODevice::ReadOnly));
    EXPECT_EQ(existing.readAll(), QByteArray("old"));

    QFile::link(outside("new.hex"), path("dangling.hex"));
    writeProjectWithSet("dangling.hex");
    expectRefused(path("dangling.hex"));
}

TEST_F(AsmToolOutside, aProjectThatIsOpenedThroughALinkKnowsItsFolder)
{
    writeProjectWithSet("out.hex");
    QFile::link(path(), outside("link"));
    EXPECT_EQ(run({outside("link/p.nalvo")}).status, 0);
    EXPECT_TRUE(exists("out.hex"));
}

TEST_F(AsmToolOutside, theNullDeviceIsNoFile)
{
    writeProjectWithSet("/dev/null");
    EXPECT_EQ(run({"p.nalvo"}).status, 0);
}

} // namespace
