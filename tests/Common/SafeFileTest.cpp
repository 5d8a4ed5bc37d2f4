#include "SafeFile.h"

#include "DiesAt.h"
#include "FullDisk.h"
#include "OrdinaryUser.h"
#include "RecoveryStore.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class SafeFileTest : public ::testing::Test
{
protected:
    SafeFileTest()
    {
        // Open to the ordinary user as well that some tests become.
        EXPECT_EQ(chmod(data.path().toLocal8Bit().constData(), 0777), 0);
        EXPECT_EQ(chmod(dir.path().toLocal8Bit().constData(), 0755), 0);
        qputenv("XDG_DATA_HOME", data.path().toLocal8Bit());
    }
    ~SafeFileTest() override { SafeFile::setWatch({}); }

    QString path(const char* name) const { return dir.filePath(QLatin1String(name)); }
    QByteArray name(const char* file) const { return path(file).toLocal8Bit(); }
    QByteArray content(const char* file) const
    {
        QFile reader(path(file));
        return reader.open(QIODevice::ReadOnly) ? reader.readAll() : QByteArray("(no file)");
    }
    void put(const char* file, const QByteArray& bytes) const
    {
        QFile writer(path(file));
        ASSERT_TRUE(writer.open(QIODevice::WriteOnly));
        ASSERT_EQ(writer.write(bytes), bytes.size());
    }
    /// @return the reason of a failure, empty on success
    QString replace(const char* file, const QByteArray& bytes) const
    {
        QString error;
        const bool success = SafeFile::replace(path(file), bytes, &error);
        EXPECT_EQ(success, error.isEmpty());
        return error;
    }
    struct stat statusOf(const char* file) const
    {
        struct stat status = {};
        EXPECT_EQ(stat(name(file).constData(), &status), 0);
        return status;
    }
    QStringList files() const
    {
        return QDir(dir.path()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    /// The old contents that are kept for the user.
    static QList<QByteArray> kept()
    {
        QList<QByteArray> result;
        const RecoveryStore store;
        for (const RecoveryStore::Entry& entry : store.entries()) {
            RecoveryStore::Entry read;
            QByteArray text;
            if (store.read(entry.id, &read, &text))
                result.append(text);
        }
        return result;
    }
    /// Makes the step of this number fail, counted from 0. @return number of the steps that were done
    int failAt(int step, const char* file, const QByteArray& bytes, QString* error) const
    {
        int count = 0;
        SafeFile::setWatch([&count, step](SafeFile::eStep_t) { return count++ == step ? ENOSPC : 0; });
        *error = replace(file, bytes);
        SafeFile::setWatch({});
        return count;
    }
    /// Replaces the file in a process of its own that is killed before the step of this number.
    /// @return false: it came to its end
    bool dieAt(int step, const char* file, const QByteArray& bytes) const
    {
        return diesAt(step, [&] { return SafeFile::replace(path(file), bytes, nullptr); });
    }

    QTemporaryDir dir;
    QTemporaryDir data; ///< of the user
};

const int sizes[] = {0, 1, 100, 4096, 16383, 16384, 16385, 100000};

TEST_F(SafeFileTest, WritesNewAndOldFiles)
{
    for (const int size : sizes) {
        EXPECT_EQ(replace("a", QByteArray(size, 'n')), QString());
        EXPECT_EQ(content("a"), QByteArray(size, 'n'));
        EXPECT_EQ(replace("a", "old"), QString());
        EXPECT_EQ(content("a"), "old");
    }
    EXPECT_EQ(files(), QStringList("a"));
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(SafeFileTest, PartsOfAnySizeAreWritten)
{
    SafeFile file(path("a"));
    ASSERT_TRUE(file.open());
    QByteArray all;
    for (int i = 0; i < 3000; ++i) {
        const QByteArray part(i % 40, char('a' + i % 26));
        ASSERT_EQ(file.write(part), part.size());
        all += part;
    }
    EXPECT_EQ(content("a"), "(no file)");
    EXPECT_TRUE(file.commit());
    EXPECT_FALSE(file.isOpen());
    EXPECT_EQ(content("a"), all);
}

TEST_F(SafeFileTest, WithoutACommitNothingHappens)
{
    put("a", "old");
    {
        SafeFile file(path("a"));
        ASSERT_TRUE(file.open());
        file.write("new");
    }
    EXPECT_EQ(content("a"), "old");
    EXPECT_EQ(files(), QStringList("a"));
}

TEST_F(SafeFileTest, AFullDiskLeavesTheOldFile)
{
    put("a", "old");
    for (const int size : sizes) {
        if (size == 0)
            continue;
        const FullDisk disk(rlim_t(size) / 2);
        EXPECT_EQ(replace("a", QByteArray(size, 'n')), qt_error_string(EFBIG)) << size;
        EXPECT_EQ(content("a"), "old") << size;
        EXPECT_EQ(replace("b", QByteArray(size, 'n')), qt_error_string(EFBIG)) << size;
        EXPECT_EQ(files(), QStringList("a")) << size;
    }
}

TEST_F(SafeFileTest, AFailureAtAnyStepLeavesTheOldFile)
{
    const QByteArray old(30000, 'o');
    const QByteArray bytes(50000, 'n');
    put("a", old);
    for (int step = 0;; ++step) {
        QString error;
        const int steps = failAt(step, "a", bytes, &error);
        EXPECT_EQ(files(), QStringList("a"));
        if (error.isEmpty()) {
            EXPECT_EQ(content("a"), bytes);
            // What can not be renamed with its owner and rights is written in place: all but this one step are fatal.
            if (step >= steps)
                break;
            put("a", old);
            continue;
        }
        EXPECT_EQ(content("a"), old) << step;
        EXPECT_EQ(error, qt_error_string(ENOSPC));
        ASSERT_LT(step, 100);
    }
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(SafeFileTest, AFailureAtAnyStepLeavesAFileWithTwoNames)
{
    const QByteArray old(30000, 'o');
    for (const int size : {10, 30000, 50000}) {
        const QByteArray bytes(size, 'n');
        put("a", old);
        ASSERT_EQ(link(name("a").constData(), name("b").constData()), 0);
        int failures = 0;
        for (int step = 0;; ++step, ++failures) {
            QString error;
            const int steps = failAt(step, "a", bytes, &error);
            if (error.isEmpty()) {
                EXPECT_EQ(content("a"), bytes);
                if (step >= steps)
                    break;
                put("a", old);
            } else {
                ASSERT_EQ(content("a"), old) << size << ' ' << step << error.toStdString();
            }
            ASSERT_EQ(content("b"), content("a"));
            ASSERT_EQ(files(), QStringList({"a", "b"}));
            ASSERT_LT(step, 100);
        }
        EXPECT_GT(failures, 8);
        EXPECT_EQ(statusOf("a").st_nlink, 2u);
        EXPECT_TRUE(kept().isEmpty());
        ASSERT_TRUE(QFile::remove(path("b")));
    }
}

TEST_F(SafeFileTest, WhereTheOldContentCanNotBePutBackItIsKept)
{
    const QByteArray old(30000, 'o');
    put("a", old);
    ASSERT_EQ(link(name("a").constData(), name("b").constData()), 0);
    int overwritten = 0;
    SafeFile::setWatch([&overwritten](SafeFile::eStep_t step) {
        if (step == SafeFile::eStepOverwrite)
            ++overwritten;
        return (step == SafeFile::eStepOverwrite && overwritten == 2) || step == SafeFile::eStepRestore ? EIO : 0;
    });
    const QString error = replace("a", QByteArray(50000, 'n'));
    SafeFile::setWatch({});
    EXPECT_EQ(kept(), QList<QByteArray>({old}));
    const RecoveryStore store;
    ASSERT_EQ(store.entries().size(), 1);
    EXPECT_EQ(store.entries().first().path, path("a"));
    EXPECT_EQ(error, qt_error_string(EIO) + ". The old content is kept in " + store.fileOf(store.entries().first().id));
}

TEST_F(SafeFileTest, WithoutRoomForTheOldContentNothingIsWrittenInPlace)
{
    put("a", QByteArray(30000, 'o'));
    ASSERT_EQ(link(name("a").constData(), name("b").constData()), 0);
    const FullDisk disk(20000);
    EXPECT_EQ(replace("a", "new"), "there is no room for a copy of the old content: " + qt_error_string(EFBIG));
    EXPECT_EQ(content("a"), QByteArray(30000, 'o'));
}

TEST_F(SafeFileTest, AKillAtAnyStepLeavesTheOldOrTheNewFile)
{
    const QByteArray old(30000, 'o');
    const QByteArray bytes(50000, 'n');
    put("a", old);
    int step = 0;
    for (; dieAt(step, "a", bytes); ++step) {
        ASSERT_EQ(content("a"), old) << step;
        ASSERT_LT(step, 100);
    }
    EXPECT_EQ(content("a"), bytes);
    EXPECT_GT(step, 6);
}

TEST_F(SafeFileTest, AKillAtAnyStepInPlaceLosesNothing)
{
    const QByteArray old(30000, 'o');
    for (const int size : {10, 50000}) {
        const QByteArray bytes(size, 'n');
        put("a", old);
        ASSERT_EQ(link(name("a").constData(), name("b").constData()), 0);
        int step = 0;
        int torn = 0;
        for (; dieAt(step, "a", bytes); ++step) {
            if (content("a") != old) {
                ++torn;
                ASSERT_GE(content("a").size(), qMin(old.size(), bytes.size())) << step;
                ASSERT_TRUE(kept().contains(old)) << step;
                put("a", old);
            }
            for (const QFileInfo& info : QDir(RecoveryStore::defaultFolder()).entryInfoList(QDir::Files | QDir::Hidden))
                QFile::remove(info.filePath());
            ASSERT_LT(step, 100);
        }
        EXPECT_EQ(content("a"), bytes);
        EXPECT_EQ(content("b"), bytes);
        EXPECT_GT(torn, 0);
        ASSERT_TRUE(QFile::remove(path("b")));
    }
}

TEST_F(SafeFileTest, AnOwnerThatCanNotBeKeptMeansWritingInPlace)
{
    put("a", "old");
    const struct stat before = statusOf("a");
    SafeFile::setWatch([](SafeFile::eStep_t step) { return step == SafeFile::eStepAttributes ? EPERM : 0; });
    EXPECT_EQ(replace("a", "new"), QString());
    EXPECT_EQ(content("a"), "new");
    EXPECT_EQ(statusOf("a").st_ino, before.st_ino);
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(SafeFileTest, AFileThatCanNotBeRenamedIsWrittenInPlace)
{
    for (const int error : {EBUSY, EXDEV, EPERM}) {
        put("a", "old");
        // The first renaming is that of the file, the second one is in the folder of the copy.
        bool first = true;
        SafeFile::setWatch([error, &first](SafeFile::eStep_t step) {
            const bool fails = step == SafeFile::eStepRename && first;
            first = first && !fails;
            return fails ? error : 0;
        });
        EXPECT_EQ(replace("a", "new"), QString());
        EXPECT_EQ(content("a"), "new");
        // A new file has no place to be written in.
        first = true;
        EXPECT_EQ(replace("b", "new"), qt_error_string(error));
        EXPECT_EQ(files(), QStringList("a"));
    }
}

TEST_F(SafeFileTest, AFolderThatTakesNoNewFile)
{
    put("a", "old");
    ASSERT_EQ(chmod(name("a").constData(), 0666), 0);
    ASSERT_EQ(chmod(dir.path().toLocal8Bit().constData(), 0555), 0);
    {
        const OrdinaryUser user;
        EXPECT_EQ(replace("a", "new"), QString());
        EXPECT_EQ(replace("b", "new"), qt_error_string(EACCES));
    }
    ASSERT_EQ(chmod(dir.path().toLocal8Bit().constData(), 0755), 0);
    EXPECT_EQ(content("a"), "new");
    EXPECT_EQ(files(), QStringList("a"));
}

TEST_F(SafeFileTest, AReadOnlyFileStays)
{
    put("a", "old");
    ASSERT_EQ(chmod(name("a").constData(), 0444), 0);
    ASSERT_EQ(chmod(dir.path().toLocal8Bit().constData(), 0777), 0);
    const OrdinaryUser user;
    EXPECT_EQ(replace("a", "new"), qt_error_string(EACCES));
    EXPECT_EQ(content("a"), "old");
}

TEST_F(SafeFileTest, RightsAndOwnerStay)
{
    put("a", "old");
    ASSERT_EQ(chmod(name("a").constData(), 0640), 0);
    // Without root the file stays one's own.
    if (geteuid() == 0) {
        ASSERT_EQ(chown(name("a").constData(), 12345, 54321), 0);
    }
    const struct stat before = statusOf("a");
    EXPECT_EQ(replace("a", "new"), QString());
    EXPECT_EQ(statusOf("a").st_uid, before.st_uid);
    EXPECT_EQ(statusOf("a").st_gid, before.st_gid);
    EXPECT_EQ(statusOf("a").st_mode, before.st_mode);
}

TEST_F(SafeFileTest, ANewFileHasTheRightsOfAnyNewFile)
{
    const mode_t mask = umask(027);
    EXPECT_EQ(replace("a", "new"), QString());
    umask(mask);
    EXPECT_EQ(statusOf("a").st_mode & 0777, 0640u);
}

TEST_F(SafeFileTest, LinksStayLinks)
{
    put("real", "old");
    ASSERT_TRUE(QFile::link(path("real"), path("middle")));
    ASSERT_TRUE(QFile::link(path("middle"), path("a")));
    EXPECT_EQ(replace("a", "new"), QString());
    EXPECT_TRUE(QFileInfo(path("a")).isSymLink());
    EXPECT_TRUE(QFileInfo(path("middle")).isSymLink());
    EXPECT_EQ(content("real"), "new");
    // A link to a file that does not exist yet makes it.
    ASSERT_TRUE(QFile::link(path("none"), path("b")));
    EXPECT_EQ(replace("b", "new"), QString());
    EXPECT_TRUE(QFileInfo(path("b")).isSymLink());
    EXPECT_EQ(content("none"), "new");
}

TEST_F(SafeFileTest, WhatIsNoFileIsRefused)
{
    EXPECT_EQ(SafeFile::replace(dir.path(), "new", nullptr), false);
    EXPECT_EQ(replace("none/a", "new"), qt_error_string(ENOENT));
    ASSERT_EQ(mkfifo(name("pipe").constData(), 0600), 0);
    EXPECT_EQ(replace("pipe", "new"), qt_error_string(EINVAL));
}

} // namespace
