// The help collection is the same, byte by byte, whenever it is made.

#include "InstalledTree.h"

#include "CollectionTimes.h"

namespace {

class CollectionTimes : public testing::Test
{
protected:
    /// Lets the help compiler make the collection of the build once more. @return path of the collection
    QString compiled(const char* name) const
    {
        const QString folder = m_dir.filePath(name);
        const sRun_t copied = runProgram("cp", {"-R", NALVO_BINARY_DIR "/help/pages", folder});
        EXPECT_EQ(copied.status, 0) << copied.out.constData();
        const QString file = folder + "/hlpCollection.qhc";
        QFile::remove(file);
        QFile::remove(folder + "/nalvo.qch");
        const sRun_t run = runProgram(NALVO_QHELPGENERATOR, {"-s", folder + "/hlpCollection.qhcp", "-o", file},
                                      {"QT_QPA_PLATFORM=offscreen", "QT_HASH_SEED=0"});
        EXPECT_EQ(run.status, 0) << run.out.constData();
        return file;
    }
    static QByteArray bytesOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
        return file.readAll();
    }

    QTemporaryDir m_dir;
};

} // namespace

TEST_F(CollectionTimes, doNotDependOnTheMoment)
{
    const QString first = compiled("first");
    const QString second = compiled("second");
    EXPECT_TRUE(bytesOf(QFileInfo(first).path() + "/nalvo.qch") == bytesOf(QFileInfo(second).path() + "/nalvo.qch"));
    EXPECT_FALSE(bytesOf(first) == bytesOf(second)) << "the help compiler notes the moment, to the millisecond";
    for (const QString& file : {first, second}) {
        QString error;
        EXPECT_TRUE(nsHelpBuild::fixCollectionTimes(file, &error)) << qPrintable(error);
    }
    EXPECT_TRUE(bytesOf(first) == bytesOf(second));
}

TEST_F(CollectionTimes, theShippedOneHasThem)
{
    EXPECT_TRUE(bytesOf(NALVO_BINARY_DIR "/help/pages/hlpCollection.qhc").contains("2000-01-01T00:00:00.000"));
}

TEST_F(CollectionTimes, whatIsNoCollectionIsAnErrorAndStaysAsItIs)
{
    QString error;
    EXPECT_FALSE(nsHelpBuild::fixCollectionTimes(m_dir.filePath("none.qhc"), &error));
    EXPECT_EQ(error, "there is no such file");
    EXPECT_FALSE(QFileInfo::exists(m_dir.filePath("none.qhc")));
    const QString path = m_dir.filePath("text.qhc");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no collection");
    file.close();
    error.clear();
    EXPECT_FALSE(nsHelpBuild::fixCollectionTimes(path, &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(bytesOf(path), "no collection");
}
