#include "CfgTree.h"
#include "FullDisk.h"
#include "OrdinaryUser.h"
#include "PrjFile.h"
#include "PrjTestSupport.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using nsModPrj::PrjFile;

namespace {

class PrjFileOnDisk : public ::testing::Test
{
protected:
    QString path(const char* name) { return m_dir.filePath(str(name)); }

    /// @return the message, empty on success
    QString read(const QString& file)
    {
        CfgTree tree;
        QString error;
        const bool success = PrjFile::read(&tree, file, &error);
        EXPECT_EQ(success, error.isEmpty());
        return error;
    }
    QString write(const QString& file, const QString& value = str("v"))
    {
        CfgTree tree;
        tree.setValue(str("s/k"), value);
        QString error;
        const bool success = PrjFile::write(&tree, file, nullptr, &error);
        EXPECT_EQ(success, error.isEmpty());
        return error;
    }
    QString valueIn(const QString& file)
    {
        CfgTree tree;
        QString error;
        EXPECT_TRUE(PrjFile::read(&tree, file, &error)) << error.toStdString();
        return tree.value(str("s/k"), str("<no node>"));
    }
    QStringList filesInDir()
    {
        return QDir(m_dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    PrjFileOnDisk()
    {
        // Open to the ordinary user as well that some tests become.
        EXPECT_EQ(chmod(m_data.path().toLocal8Bit().constData(), 0777), 0);
        qputenv("XDG_DATA_HOME", m_data.path().toLocal8Bit());
    }

    QTemporaryDir m_dir;
    QTemporaryDir m_data; ///< of the user
};

TEST_F(PrjFileOnDisk, WritesAndReads)
{
    EXPECT_EQ(write(path("p.nalvo"), str("one")), QString());
    EXPECT_EQ(valueIn(path("p.nalvo")), str("one"));
    EXPECT_EQ(write(path("p.nalvo"), str("two")), QString());
    EXPECT_EQ(valueIn(path("p.nalvo")), str("two"));
    EXPECT_EQ(filesInDir(), QStringList(str("p.nalvo")));
}

TEST_F(PrjFileOnDisk, ReadComplaints)
{
    EXPECT_EQ(read(QString()), str("No project file set."));
    EXPECT_EQ(read(path("none")), str("Project file does not exist: ") + path("none"));
    EXPECT_EQ(read(m_dir.path()), str("Project file is no valid file: ") + m_dir.path());
    EXPECT_EQ(read(str("/dev/null")), str("Project file is no valid file: /dev/null"));
    ASSERT_EQ(mkfifo(path("pipe").toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(read(path("pipe")), str("Project file is no valid file: ") + path("pipe"));
    writeFile(path("empty"), "");
    EXPECT_EQ(read(path("empty")), str("Project file not XML conform!") + path("empty"));
}

TEST_F(PrjFileOnDisk, ReadOfAFileWithoutRights)
{
    const QString file = path("p.nalvo");
    ASSERT_EQ(write(file), QString());
    ASSERT_EQ(chmod(file.toLocal8Bit().constData(), 0), 0);
    ASSERT_EQ(chmod(m_dir.path().toLocal8Bit().constData(), 0755), 0);
    EXPECT_EXIT(
        {
            dropRights();
            const bool ok = read(file) == str("Project file is not readable: ") + file;
            _exit(ok ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

TEST_F(PrjFileOnDisk, ReadOfAFileThatCanNotBeOpened)
{
    const QString file = path("p.nalvo");
    ASSERT_EQ(write(file), QString());
    EXPECT_EXIT(
        {
            rlimit none = {};
            setrlimit(RLIMIT_NOFILE, &none);
            const bool ok = read(file) == str("Can not open project file: ") + file;
            _exit(ok ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

TEST_F(PrjFileOnDisk, ReadOfAFileWhoseContentCanNotBeRead)
{
    // Regular and readable by its rights, but the lowest page of a process is never mapped.
    EXPECT_EQ(read(str("/proc/self/mem")), str("Can not open project file: /proc/self/mem"));
}

TEST_F(PrjFileOnDisk, HugeFilesAreNotRead)
{
    writeFile(path("huge"), "<project/>");
    ASSERT_EQ(truncate(path("huge").toLocal8Bit().constData(), 200LL * 1024 * 1024), 0);
    EXPECT_EQ(read(path("huge")), str("Project file is too large: ") + path("huge"));
}

TEST_F(PrjFileOnDisk, WriteComplaints)
{
    EXPECT_EQ(write(m_dir.path()), str("Project file is directory: ") + m_dir.path());
    EXPECT_EQ(write(path("no/such/folder")), str("Can not open project file: ") + path("no/such/folder"));
    ASSERT_EQ(mkfifo(path("pipe").toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(write(path("pipe")), str("Project file is no valid file: ") + path("pipe"));
    struct stat status = {};
    ASSERT_EQ(stat(path("pipe").toLocal8Bit().constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(PrjFileOnDisk, WriteWithoutRights)
{
    const QString file = path("p.nalvo");
    ASSERT_EQ(write(file, str("old")), QString());
    ASSERT_EQ(chmod(file.toLocal8Bit().constData(), 0444), 0);
    ASSERT_EQ(chmod(m_dir.path().toLocal8Bit().constData(), 0777), 0);
    EXPECT_EXIT(
        {
            dropRights();
            const bool ok = write(file) == str("Project file is not writable: ") + file;
            _exit(ok ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
    // A writable file in a folder that takes no new file is changed in place.
    ASSERT_EQ(chmod(file.toLocal8Bit().constData(), 0666), 0);
    ASSERT_EQ(chmod(m_dir.path().toLocal8Bit().constData(), 0555), 0);
    {
        const OrdinaryUser user;
        EXPECT_EQ(write(file, str("new")), QString());
    }
    ASSERT_EQ(chmod(m_dir.path().toLocal8Bit().constData(), 0755), 0);
    EXPECT_EQ(valueIn(file), str("new"));
}

TEST_F(PrjFileOnDisk, WriteOnAFullDiskKeepsTheOldFile)
{
    const QString file = path("p.nalvo");
    ASSERT_EQ(write(file, str("old")), QString());
    for (const int size : {1, 1000, 2563, 16000, 16384, 17000, 100000}) {
        const FullDisk disk(size / 2);
        EXPECT_EQ(write(file, QString(size, QLatin1Char('x'))), str("Can not write project file: ") + file) << size;
        EXPECT_EQ(valueIn(file), str("old")) << size;
        EXPECT_EQ(filesInDir(), QStringList(str("p.nalvo")));
    }
}

TEST_F(PrjFileOnDisk, BothNamesOfAFileHaveTheNewContent)
{
    const QString file = path("p.nalvo");
    ASSERT_EQ(write(file, str("old")), QString());
    ASSERT_EQ(link(file.toLocal8Bit().constData(), path("other.nalvo").toLocal8Bit().constData()), 0);
    EXPECT_EQ(write(file, str("new")), QString());
    EXPECT_EQ(valueIn(path("other.nalvo")), str("new"));
}

TEST_F(PrjFileOnDisk, TreesBeyondTheLimitsAreNotWritten)
{
    const QString file = path("p.nalvo");
    ASSERT_EQ(write(file, str("old")), QString());
    CfgTree large;
    large.setValue(str("k"), QString(static_cast<int>(PrjFile::maxBytes), QLatin1Char('x')));
    QString error;
    EXPECT_FALSE(PrjFile::write(&large, file, nullptr, &error));
    EXPECT_EQ(error, str("Can not write project file: ") + file);
    CfgTree wide;
    for (int i = 0; i <= PrjFile::maxNodes; ++i)
        wide.getNode(QStringList())->addChild(str("k"));
    error.clear();
    EXPECT_FALSE(PrjFile::write(&wide, file, nullptr, &error));
    EXPECT_EQ(error, str("Can not write project file: ") + file);
    EXPECT_EQ(valueIn(file), str("old"));
}

TEST_F(PrjFileOnDisk, ALinkStaysALink)
{
    ASSERT_TRUE(QDir(m_dir.path()).mkdir(str("real")));
    ASSERT_EQ(write(path("real/p.nalvo"), str("old")), QString());
    ASSERT_TRUE(QFile::link(path("real/p.nalvo"), path("middle.nalvo")));
    ASSERT_TRUE(QFile::link(path("middle.nalvo"), path("p.nalvo")));
    EXPECT_EQ(write(path("p.nalvo"), str("new")), QString());
    EXPECT_TRUE(QFileInfo(path("p.nalvo")).isSymLink());
    EXPECT_TRUE(QFileInfo(path("middle.nalvo")).isSymLink());
    EXPECT_FALSE(QFileInfo(path("real/p.nalvo")).isSymLink());
    EXPECT_EQ(valueIn(path("real/p.nalvo")), str("new"));

    ASSERT_TRUE(QFile::link(path("loop"), path("loop")));
    EXPECT_EQ(read(path("loop")), str("Project file does not exist: ") + path("loop"));
}

TEST_F(PrjFileOnDisk, KeepsTheRightsOfTheFile)
{
    const QString file = path("p.nalvo");
    ASSERT_EQ(write(file), QString());
    ASSERT_EQ(chmod(file.toLocal8Bit().constData(), 0640), 0);
    ASSERT_EQ(write(file, str("new")), QString());
    struct stat status = {};
    ASSERT_EQ(stat(file.toLocal8Bit().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640u);
}

} // namespace
