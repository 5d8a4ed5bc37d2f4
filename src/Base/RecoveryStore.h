#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QList>
#include <QMutex>
#include <QString>
#include <QStringList>

/// Texts that are not, or no longer, in the user's files: one file an entry in a folder of the user's data.
///
/// Each store object is an instance with a lock file of its own; the system releases the lock when the process ends,
/// even when it is killed. An entry belongs to the instance that wrote it; other instances see it after that one has
/// ended. All operations may be called from any thread.
class RecoveryStore
{
    Q_DECLARE_TR_FUNCTIONS(RecoveryStore)

public:
    enum eKind_t {
        eKindUnsaved,  ///< changes of an open document
        eKindDropped,  ///< text of a document that was closed without being saved
        eKindReplaced, ///< old content of a file that is being written in place
    };

    struct Entry
    {
        QString id; ///< given by put()
        eKind_t kind = eKindUnsaved;
        QString path;      ///< file of the document, absolute; empty: it has none yet
        QString project;   ///< project file that was open, absolute; may be empty
        QDateTime time;    ///< UTC; set by put()
        bool isNew = true; ///< the user has not been informed of it
        qint64 size = 0;   ///< bytes on the disk
    };

    /// What was open when the program ended without closing its project.
    struct Session
    {
        QString project;   ///< project file, absolute; empty: there is no session
        QStringList files; ///< absolute paths in the order of the pages
        QString lastFile;  ///< absolute path of the current document, may be empty
        int lastCursorPos = 0;
    };

    static const int maxAgeDays = 30;
    static const qint64 maxTotalBytes = qint64(64) * 1024 * 1024;

    explicit RecoveryStore(const QString& folder = defaultFolder());
    /// Ends the instance: all others see its entries from now on.
    ~RecoveryStore();
    RecoveryStore(const RecoveryStore&) = delete;
    RecoveryStore& operator=(const RecoveryStore&) = delete;

    /// The folder that all programs of one user share.
    static QString defaultFolder();
    /// A folder among the temporary files, for users without a home folder.
    static QString spareFolder();
    /// Makes the folder, readable for its owner only. @return false: errno has the reason; also if the folder belongs
    /// to another user
    static bool makeFolder(const QString& folder);

    /// Writes an entry; replaces the stored one if the entry has an id.
    /// @param error why that failed, may be null
    /// @return the id; empty: nothing was written, and an entry of this id is as it was
    QString put(Entry entry, const QByteArray& text, QString* error);
    /// Does nothing for an unknown id.
    void remove(const QString& id);
    /// Keeps the entry in the list, but does not report it to the user again.
    void setSeen(const QString& id);
    /// Takes over the entry of an instance that has ended. @return its new id; empty: another instance has taken it
    /// before
    QString take(const QString& id);
    /// Entries of instances that have ended, and what this one dropped; the newest first.
    QList<Entry> entries() const;
    /// @return false: the entry does not exist or is damaged
    bool read(const QString& id, Entry* entry, QByteArray* text) const;
    /// File that holds the entry, after a header of two lines.
    QString fileOf(const QString& id) const;
    /// Removes entries that are too old, and the oldest ones while all of them together are too large. The newest one
    /// stays.
    void prune(const QDateTime& now);

    /// Keeps the session of this instance; one without a project ends it.
    void putSession(const Session& session);
    /// The last session with this project of an instance that has ended. It is forgotten then.
    Session takeSession(const QString& project);

private:
    bool lock(QString* error);
    void unlock();
    bool isAlive(const QString& instance) const;
    bool isOwn(const QString& name) const;
    bool isVisible(const Entry& entry) const;
    QList<Entry> all() const;
    void removeLeftovers(const QDateTime& now);

    const QString m_folder;
    mutable QMutex m_mutex;
    QString m_instance; ///< empty until something is written
    int m_lockFd = -1;
    int m_serial = 0;
    bool m_hasSession = false;
};
