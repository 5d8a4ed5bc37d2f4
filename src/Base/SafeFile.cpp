#include "SafeFile.h"

#include "FilePath.h"
#include "RecoveryStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

const int blockSize = 16 * 1024;
const mode_t ownerOnly = S_IRUSR | S_IWUSR;
const char* const accessList = "system.posix_acl_access";

SafeFile::Watch& watch()
{
    static SafeFile::Watch function;
    return function;
}

/// @return errno of a failure that a test wants, or 0
int forcedError(SafeFile::eStep_t step)
{
    return watch() ? watch()(step) : 0;
}

/// Makes the system call of one step. The function returns -1 and sets errno, like a system call.
/// @return 0 or the errno
template <class Call>
int run(SafeFile::eStep_t step, Call call)
{
    if (const int error = forcedError(step))
        return error;
    long result = 0;
    do {
        errno = 0;
        result = long(call());
    } while (result < 0 && errno == EINTR);
    return result < 0 ? (errno != 0 ? errno : EIO) : 0;
}

/// Writes all of the bytes at a position of the file, or at the present one (position -1). @return 0 or the errno
int writeAll(int fd, const char* data, qint64 size, qint64 position, SafeFile::eStep_t step)
{
    while (size > 0) {
        ssize_t taken = 0;
        const size_t part = size_t(qMin<qint64>(size, blockSize));
        const int error = run(step, [&] {
            taken = position < 0 ? ::write(fd, data, part) : ::pwrite(fd, data, part, off_t(position));
            return taken;
        });
        if (error != 0)
            return error;
        if (taken == 0)
            return ENOSPC;
        data += taken;
        size -= taken;
        position += position < 0 ? 0 : taken;
    }
    return 0;
}

/// @return 0 or the errno. A file system without support for syncing counts as success.
int syncFile(int fd, SafeFile::eStep_t step)
{
    const int error = run(step, [fd] { return ::fsync(fd); });
    return error == EINVAL || error == ENOSYS ? 0 : error;
}

/// Copies the access control list, which the system stores in addition to the rights of owner, group and others.
int copyAccessList(const QByteArray& from, int to)
{
    const ssize_t size = ::getxattr(from.constData(), accessList, nullptr, 0);
    if (size <= 0)
        return 0;
    QByteArray list(int(size), 0);
    if (::getxattr(from.constData(), accessList, list.data(), size_t(size)) != size)
        return EPERM;
    return ::fsetxattr(to, accessList, list.constData(), size_t(size), 0) == 0 ? 0 : errno;
}

bool forbidsNewFiles(int error)
{
    return error == EACCES || error == EPERM || error == EROFS;
}

} // namespace

SafeFile::SafeFile(const QString& path, eRights_t rights)
    : m_target(pathWithoutLinks(path))
    , m_rights(rights)
{
}

SafeFile::~SafeFile()
{
    close();
}

void SafeFile::setWatch(Watch function)
{
    watch() = std::move(function);
}

bool SafeFile::fail(int error)
{
    m_failed = true;
    setErrorString(qt_error_string(error));
    return false;
}

bool SafeFile::open()
{
    close();
    m_failed = false;
    m_inPlace = false;
    m_size = 0;
    struct stat status = {};
    const QByteArray name = QFile::encodeName(m_target);
    m_exists = ::stat(name.constData(), &status) == 0;
    if (m_exists && !S_ISREG(status.st_mode))
        return fail(S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
    // Renaming could replace a file that may not be written.
    if (m_exists && ::faccessat(AT_FDCWD, name.constData(), W_OK, AT_EACCESS) != 0)
        return fail(errno);
    m_inPlace = m_exists && status.st_nlink > 1;
    return createAside() && QIODevice::open(WriteOnly | Unbuffered);
}

bool SafeFile::createAside()
{
    if (createAsideIn(QFileInfo(m_target).absolutePath()))
        return true;
    if (!m_exists || !forbidsNewFiles(errno))
        return fail(errno);
    m_inPlace = true;
    for (const QString& folder : {RecoveryStore::defaultFolder(), RecoveryStore::spareFolder()}) {
        if (RecoveryStore::makeFolder(folder) && createAsideIn(folder))
            return true;
    }
    return fail(errno);
}

/// On failure errno says why.
bool SafeFile::createAsideIn(const QString& folder)
{
    int error = EEXIST;
    for (int i = 0; i < 100 && error == EEXIST; ++i) {
        const quint64 number = QRandomGenerator::system()->generate64();
        m_aside = folder + QLatin1String("/.nalvo-") + QString::number(number, 36);
        error = run(eStepCreate, [this] {
            m_fd = ::open(QFile::encodeName(m_aside).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC,
                          m_exists || m_rights == eRightsOwner ? 0600 : 0666);
            return m_fd;
        });
    }
    if (error != 0)
        m_aside.clear();
    errno = error;
    return error == 0;
}

qint64 SafeFile::writeData(const char* data, qint64 size)
{
    if (m_failed)
        return -1;
    size = qMin<qint64>(size, 1 << 30);
    m_buffer.append(data, int(size));
    m_size += size;
    return m_buffer.size() < blockSize || flush() ? size : -1;
}

bool SafeFile::flush()
{
    if (m_failed)
        return false;
    const int error = writeAll(m_fd, m_buffer.constData(), m_buffer.size(), -1, eStepWrite);
    m_buffer.clear();
    return error == 0 || fail(error);
}

bool SafeFile::commit()
{
    if (m_fd < 0)
        return fail(EBADF);
    bool success = flush();
    if (success) {
        const int error = syncFile(m_fd, eStepSync);
        success = error == 0 || fail(error);
    }
    if (success && !m_inPlace)
        m_inPlace = !takeAttributes();
    if (success && !m_inPlace)
        success = renameAside();
    if (success && m_inPlace)
        success = writeInPlace();
    const QString reason = errorString();
    close();
    if (!success)
        setErrorString(reason);
    return success;
}

/// @return false: the attributes of the old file can not be given to the new one
bool SafeFile::takeAttributes()
{
    if (!m_exists)
        return m_rights != eRightsOwner || ::fchmod(m_fd, ownerOnly) == 0;
    const QByteArray name = QFile::encodeName(m_target);
    struct stat old = {};
    struct stat now = {};
    if (::stat(name.constData(), &old) != 0 || ::fstat(m_fd, &now) != 0)
        return false;
    return run(eStepAttributes, [&] {
               if ((old.st_uid != now.st_uid || old.st_gid != now.st_gid) &&
                   ::fchown(m_fd, old.st_uid, old.st_gid) != 0)
                   return -1;
               if (m_rights == eRightsOwner)
                   return ::fchmod(m_fd, ownerOnly);
               if (::fchmod(m_fd, old.st_mode & 07777) != 0)
                   return -1;
               errno = copyAccessList(name, m_fd);
               return errno == 0 ? 0 : -1;
           }) == 0;
}

/// A file that the system refuses to rename is left to writeInPlace().
bool SafeFile::renameAside()
{
    const QByteArray from = QFile::encodeName(m_aside);
    const QByteArray to = QFile::encodeName(m_target);
    const int error = run(eStepRename, [&] { return ::rename(from.constData(), to.constData()); });
    if (error != 0) {
        m_inPlace = m_exists && (forbidsNewFiles(error) || error == EBUSY || error == EXDEV);
        return m_inPlace || fail(error);
    }
    m_aside.clear();
    // The new name, too, must survive a loss of power. Not every file system can sync a folder.
    const QByteArray folder = QFile::encodeName(QFileInfo(m_target).absolutePath());
    const int fd = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
    return true;
}

bool SafeFile::writeInPlace()
{
    QFile reader(m_target);
    if (!reader.open(QIODevice::ReadOnly)) {
        m_failed = true;
        setErrorString(reader.errorString());
        return false;
    }
    const QByteArray old = reader.readAll();
    if (reader.error() != QFileDevice::NoError || old.size() != reader.size())
        return fail(EIO);
    // Also for reading, which reserving space needs on a file system that does not support it.
    const int target = ::open(QFile::encodeName(m_target).constData(), O_RDWR | O_CLOEXEC);
    if (target < 0)
        return fail(errno);
    if (m_rights == eRightsOwner && ::fchmod(target, ownerOnly) != 0) {
        const int error = errno;
        ::close(target);
        return fail(error);
    }
    RecoveryStore store;
    RecoveryStore spare(RecoveryStore::spareFolder());
    RecoveryStore::Entry entry;
    entry.kind = RecoveryStore::eKindReplaced;
    entry.path = m_target;
    QString error;
    // A user without a home folder, as on a build server, still has a folder for temporary files.
    RecoveryStore* keeper = &store;
    QString id = keeper->put(entry, old, &error);
    if (id.isEmpty()) {
        keeper = &spare;
        id = keeper->put(entry, old, nullptr);
    }
    if (id.isEmpty()) {
        ::close(target);
        m_failed = true;
        setErrorString(tr("there is no room for a copy of the old content: %1").arg(error));
        return false;
    }
    const bool written = overwriteTarget(target, old);
    const bool whole = written || restoreTarget(target, old);
    ::close(target);
    if (whole)
        keeper->remove(id);
    else
        setErrorString(tr("%1. The old content is kept in %2").arg(errorString(), keeper->fileOf(id)));
    return written;
}

bool SafeFile::overwriteTarget(int target, const QByteArray& old)
{
    // Reserves the space first, so that a full disk is detected while the old content is still complete.
    if (m_size > old.size()) {
        const int error = run(eStepReserve, [&] {
            errno = ::posix_fallocate(target, 0, off_t(m_size));
            return errno == 0 ? 0 : -1;
        });
        if (error != 0)
            return fail(error);
    }
    if (!copyAsideTo(target))
        return false;
    int error = run(eStepTruncate, [&] { return ::ftruncate(target, off_t(m_size)); });
    if (error == 0)
        error = syncFile(target, eStepSyncTarget);
    return error == 0 || fail(error);
}

bool SafeFile::copyAsideTo(int target)
{
    std::vector<char> block(blockSize);
    for (qint64 position = 0; position < m_size;) {
        const ssize_t got = ::pread(m_fd, block.data(), size_t(blockSize), off_t(position));
        if (got <= 0)
            return fail(got < 0 ? errno : EIO);
        const int error = writeAll(target, block.data(), got, position, eStepOverwrite);
        if (error != 0)
            return fail(error);
        position += got;
    }
    return true;
}

bool SafeFile::restoreTarget(int target, const QByteArray& old)
{
    return writeAll(target, old.constData(), old.size(), 0, eStepRestore) == 0 &&
           ::ftruncate(target, off_t(old.size())) == 0 && ::fsync(target) == 0;
}

void SafeFile::removeAside()
{
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
    if (!m_aside.isEmpty())
        ::unlink(QFile::encodeName(m_aside).constData());
    m_aside.clear();
}

void SafeFile::close()
{
    removeAside();
    m_buffer.clear();
    if (isOpen())
        QIODevice::close();
}

bool SafeFile::replace(const QString& path, const QByteArray& bytes, QString* error, eRights_t rights)
{
    SafeFile file(path, rights);
    const bool success = file.open() && file.write(bytes) == bytes.size() && file.commit();
    if (!success && error != nullptr)
        *error = file.errorString();
    return success;
}
