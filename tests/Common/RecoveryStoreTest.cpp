#include "RecoveryStore.h"

#include "FullDisk.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Entry = RecoveryStore::Entry;

class RecoveryStoreTest : public ::testing::Test
{
protected:
    QString folder() const { return dir.filePath(QStringLiteral("a/b/recovery")); }

    static Entry entryOf(const QString& path, RecoveryStore::eKind_t kind = RecoveryStore::eKindUnsaved)
    {
        Entry entry;
        entry.path = path;
        entry.kind = kind;
        entry.project = QStringLiteral("/p/x.nalvo");
        return entry;
    }
    static QByteArray textOf(const RecoveryStore& store, const QString& id)
    {
        Entry entry;
        QByteArray text;
        return store.read(id, &entry, &text) ? text : QByteArray("(no entry)");
    }
    static QStringList pathsIn(const RecoveryStore& store)
    {
        QStringList result;
        for (const Entry& entry : store.entries())
            result.append(entry.path);
        return result;
    }
    QStringList files() const { return QDir(folder()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir dir;
};

TEST_F(RecoveryStoreTest, NothingIsWrittenBeforeTheFirstEntry)
{
    {
        RecoveryStore store(folder());
        store.remove(QStringLiteral("none"));
        store.prune(QDateTime::currentDateTimeUtc());
        store.putSession({});
        EXPECT_TRUE(store.entries().isEmpty());
        EXPECT_TRUE(store.takeSession(QStringLiteral("/p")).project.isEmpty());
    }
    EXPECT_FALSE(QDir(dir.filePath(QStringLiteral("a"))).exists());
}

TEST_F(RecoveryStoreTest, OthersSeeAnEntryWhenItsInstanceHasEnded)
{
    RecoveryStore other(folder());
    {
        RecoveryStore store(folder());
        const QString id = store.put(entryOf(QStringLiteral("/p/a.psm")), "text \n\0x", nullptr);
        ASSERT_FALSE(id.isEmpty());
        EXPECT_EQ(textOf(store, id), "text \n\0x");
        EXPECT_TRUE(store.entries().isEmpty());
        EXPECT_TRUE(other.entries().isEmpty());
        EXPECT_TRUE(other.take(id).isEmpty());
    }
    ASSERT_EQ(other.entries().size(), 1);
    const Entry entry = other.entries().first();
    EXPECT_EQ(entry.path, "/p/a.psm");
    EXPECT_EQ(entry.project, "/p/x.nalvo");
    EXPECT_EQ(entry.kind, RecoveryStore::eKindUnsaved);
    EXPECT_TRUE(entry.isNew);
    EXPECT_TRUE(entry.time.isValid());
    struct stat status = {};
    ASSERT_EQ(stat(folder().toLocal8Bit().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u);
}

TEST_F(RecoveryStoreTest, AKillLeavesTheEntriesAndTheSession)
{
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        RecoveryStore store(folder());
        store.put(entryOf(QStringLiteral("/p/a.psm")), "text", nullptr);
        store.putSession({QStringLiteral("/p/x.nalvo"), {QStringLiteral("/p/a.psm")}, QStringLiteral("/p/a.psm"), 7});
        kill(getpid(), SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    RecoveryStore store(folder());
    ASSERT_EQ(pathsIn(store), QStringList("/p/a.psm"));
    EXPECT_EQ(textOf(store, store.entries().first().id), "text");
    EXPECT_TRUE(store.takeSession(QStringLiteral("/p/y.nalvo")).project.isEmpty());
    const RecoveryStore::Session session = store.takeSession(QStringLiteral("/p/x.nalvo"));
    EXPECT_EQ(session.files, QStringList("/p/a.psm"));
    EXPECT_EQ(session.lastFile, "/p/a.psm");
    EXPECT_EQ(session.lastCursorPos, 7);
    EXPECT_TRUE(store.takeSession(QStringLiteral("/p/x.nalvo")).project.isEmpty());
    // The lock of the killed one goes with the next cleaning.
    EXPECT_EQ(files().filter(QStringLiteral(".lock")).size(), 1);
    store.prune(QDateTime::currentDateTimeUtc());
    EXPECT_TRUE(files().filter(QStringLiteral(".lock")).isEmpty());
}

TEST_F(RecoveryStoreTest, TheSessionOfARunningInstanceIsItsOwn)
{
    RecoveryStore other(folder());
    {
        RecoveryStore store(folder());
        store.putSession({QStringLiteral("/p/x.nalvo"), {QStringLiteral("/p/a.psm")}, QString(), 0});
        EXPECT_TRUE(other.takeSession(QStringLiteral("/p/x.nalvo")).project.isEmpty());
        store.putSession({});
    }
    EXPECT_TRUE(other.takeSession(QStringLiteral("/p/x.nalvo")).project.isEmpty());
}

TEST_F(RecoveryStoreTest, AnEntryIsReplacedAndRemovedByItsId)
{
    RecoveryStore store(folder());
    Entry entry = entryOf(QStringLiteral("/p/a.psm"));
    entry.id = store.put(entry, "one", nullptr);
    EXPECT_EQ(store.put(entry, "two", nullptr), entry.id);
    EXPECT_EQ(textOf(store, entry.id), "two");
    entry.kind = RecoveryStore::eKindDropped;
    EXPECT_TRUE(store.entries().isEmpty());
    EXPECT_EQ(store.put(entry, "three", nullptr), entry.id);
    EXPECT_EQ(pathsIn(store), QStringList("/p/a.psm"));
    store.setSeen(entry.id);
    EXPECT_FALSE(store.entries().first().isNew);
    EXPECT_EQ(textOf(store, entry.id), "three");
    store.remove(entry.id);
    EXPECT_EQ(textOf(store, entry.id), "(no entry)");
    EXPECT_EQ(files().filter(QStringLiteral(".lock")), files());
}

TEST_F(RecoveryStoreTest, AnEntryIsTakenByOne)
{
    {
        RecoveryStore store(folder());
        store.put(entryOf(QStringLiteral("/p/a.psm")), "text", nullptr);
    }
    RecoveryStore one(folder());
    RecoveryStore two(folder());
    const QString id = one.entries().first().id;
    const QString taken = one.take(id);
    EXPECT_EQ(textOf(one, taken), "text");
    EXPECT_TRUE(two.take(id).isEmpty());
    EXPECT_TRUE(two.entries().isEmpty());
    EXPECT_TRUE(two.take(taken).isEmpty());
}

TEST_F(RecoveryStoreTest, AFullDiskIsReportedAndLeavesTheOldEntry)
{
    RecoveryStore store(folder());
    Entry entry = entryOf(QStringLiteral("/p/a.psm"));
    entry.id = store.put(entry, "one", nullptr);
    QString error;
    {
        const FullDisk disk(10);
        EXPECT_TRUE(store.put(entry, "two", &error).isEmpty());
    }
    EXPECT_EQ(error, qt_error_string(EFBIG));
    EXPECT_EQ(textOf(store, entry.id), "one");
    RecoveryStore nowhere(QStringLiteral("/proc/none/recovery"));
    error.clear();
    EXPECT_TRUE(nowhere.put(entry, "text", &error).isEmpty());
    EXPECT_FALSE(error.isEmpty());
}

TEST_F(RecoveryStoreTest, OldEntriesGo)
{
    {
        RecoveryStore store(folder());
        store.put(entryOf(QStringLiteral("/p/a.psm")), "text", nullptr);
    }
    RecoveryStore store(folder());
    store.put(entryOf(QStringLiteral("/p/live.psm")), "text", nullptr);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    store.prune(now.addDays(RecoveryStore::maxAgeDays - 1));
    EXPECT_EQ(store.entries().size(), 1);
    store.prune(now.addDays(RecoveryStore::maxAgeDays + 1));
    EXPECT_TRUE(store.entries().isEmpty());
    // What a running program holds has no age.
    EXPECT_EQ(files().filter(QStringLiteral(".new")).size(), 1);
}

TEST_F(RecoveryStoreTest, TheOldestGoWhereAllAreTooLarge)
{
    const QByteArray large(int(RecoveryStore::maxTotalBytes / 2) - 4096, 'x');
    {
        RecoveryStore store(folder());
        for (const char* path : {"1", "2", "3"})
            store.put(entryOf(QLatin1String(path)), large, nullptr);
    }
    RecoveryStore store(folder());
    store.prune(QDateTime::currentDateTimeUtc());
    EXPECT_EQ(pathsIn(store), QStringList({"3", "2"}));
    // The newest one stays, however large it is.
    {
        RecoveryStore other(folder());
        other.put(entryOf(QStringLiteral("4")), large + large + large, nullptr);
    }
    store.prune(QDateTime::currentDateTimeUtc());
    EXPECT_EQ(pathsIn(store), QStringList("4"));
}

TEST_F(RecoveryStoreTest, DamagedEntriesAreNoEntries)
{
    QDir().mkpath(folder());
    const QList<QByteArray> contents{QByteArray(), "nalvo-recovery 1\n", "nalvo-recovery 1\n{}\ntext",
                                     "nalvo-recovery 1\n{\"kind\":9,\"time\":\"2026-01-01T00:00:00Z\"}\ntext",
                                     QByteArray(200000, 'x')};
    for (int i = 0; i < contents.size(); ++i) {
        QFile file(folder() + QStringLiteral("/1x1-%1.new").arg(i));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents.at(i));
    }
    RecoveryStore store(folder());
    EXPECT_TRUE(store.entries().isEmpty());
    EXPECT_EQ(textOf(store, QStringLiteral("1x1-2")), "(no entry)");
}

} // namespace
