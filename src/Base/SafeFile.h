#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QIODevice>
#include <QString>

#include <functional>

#include <sys/types.h>

/// Replaces the whole content of a user's file. All documents, projects, settings and waves are written by this class.
///
/// What is written goes into a file beside the target, which commit() puts in its place. Until then, and after any
/// failure, the target holds its old content byte for byte; if the process is killed, it holds the old or the new one.
/// Links stay links, rights and owner are kept. Where renaming would break that (a file with several names, an owner
/// that can not be kept, a folder that takes no new file), commit() writes into the target itself, after its old
/// content is safe in the RecoveryStore; when that fails the old content is put back.
///
/// Sequential, write only. A failure of write() is remembered: commit() then fails with its reason.
class SafeFile : public QIODevice
{
    Q_DECLARE_TR_FUNCTIONS(SafeFile)

public:
    /// The steps of writing, in their order. Each of them can fail, and before each of them the program
    /// can be killed.
    enum eStep_t {
        eStepCreate,     ///< the file beside the target
        eStepWrite,      ///< a part of the content
        eStepSync,       ///< the content on the disk
        eStepAttributes, ///< owner and rights of the target
        eStepRename,
        eStepReserve, ///< from here on in the target itself: room for the new content
        eStepOverwrite,
        eStepTruncate,
        eStepSyncTarget,
        eStepRestore ///< a part of the old content, after a failure
    };
    /// Asked before each step. @return 0, or the errno with which the step is to fail
    using Watch = std::function<int(eStep_t)>;

    /// Who may read the file.
    enum eRights_t {
        eRightsKept,  ///< as before; of a new file, whom the system lets
        eRightsOwner, ///< its owner alone (mode 0600), whatever the rights were before; at no time anyone else
    };

    /// @param path existing or not; of a link, the target is written
    explicit SafeFile(const QString& path, eRights_t rights = eRightsKept);
    /// Without commit() the target is unchanged.
    ~SafeFile() override;

    /// @return false: errorString() says why
    bool open();
    bool open(OpenMode mode) override { return mode == WriteOnly && open(); }
    bool isSequential() const override { return true; }
    /// Replaces the target by what was written, and closes this device. After success the content is on the disk.
    /// @return false: the target is as it was, and errorString() says why. If even putting the old content back failed,
    /// the text names the file that holds it.
    bool commit();
    /// Drops what was written.
    void close() override;

    /// open(), write() and commit() in one call. @param error why it failed, may be null
    static bool replace(const QString& path, const QByteArray& bytes, QString* error, eRights_t rights = eRightsKept);

    /// For tests: makes steps fail, or ends the process at one. An empty function removes the watch.
    static void setWatch(Watch watch);

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override;

private:
    bool createAside();
    bool createAsideIn(const QString& folder);
    bool flush();
    bool takeAttributes();
    bool renameAside();
    bool writeInPlace();
    bool overwriteTarget(int target, const QByteArray& old);
    bool copyAsideTo(int target);
    bool restoreTarget(int target, const QByteArray& old);
    void removeAside();
    bool fail(int error);

    QString m_target; ///< absolute, without links
    QString m_aside;  ///< the file that is written; empty: none
    int m_fd = -1;    ///< of m_aside
    eRights_t m_rights = eRightsKept;
    bool m_exists = false;
    bool m_inPlace = false;
    bool m_failed = false;
    qint64 m_size = 0;   ///< bytes written so far
    QByteArray m_buffer; ///< bytes that are still to be written
};
