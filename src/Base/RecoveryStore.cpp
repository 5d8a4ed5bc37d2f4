#include "RecoveryStore.h"

#include "SafeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QStandardPaths>

#include <algorithm>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QByteArray magic("nalvo-recovery 1\n");
const QLatin1String newSuffix(".new");
const QLatin1String seenSuffix(".seen");
const QLatin1String lockSuffix(".lock");
const QLatin1String sessionSuffix(".session");
const qint64 maxHeader = 64 * 1024; ///< bytes

QByteArray header(const RecoveryStore::Entry& entry)
{
    const QJsonObject object{{"kind", int(entry.kind)},
                             {"path", entry.path},
                             {"project", entry.project},
                             {"time", entry.time.toString(Qt::ISODateWithMs)}};
    return magic + QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

/// Reads the header. The file then stands at the text.
bool readHeader(QFile* file, RecoveryStore::Entry* entry)
{
    if (!file->open(QIODevice::ReadOnly) || file->readLine(maxHeader) != magic)
        return false;
    const QJsonObject object = QJsonDocument::fromJson(file->readLine(maxHeader)).object();
    const int kind = object.value("kind").toInt(-1);
    entry->kind = RecoveryStore::eKind_t(kind);
    entry->path = object.value("path").toString();
    entry->project = object.value("project").toString();
    entry->time = QDateTime::fromString(object.value("time").toString(), Qt::ISODateWithMs);
    return entry->time.isValid() && kind >= RecoveryStore::eKindUnsaved && kind <= RecoveryStore::eKindReplaced;
}

QString instanceOf(const QString& id)
{
    return id.section(QLatin1Char('-'), 0, 0);
}

} // namespace

RecoveryStore::RecoveryStore(const QString& folder)
    : m_folder(folder)
{
}

RecoveryStore::~RecoveryStore()
{
    unlock();
}

QString RecoveryStore::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/Brelmont/Nalvo/recovery");
}

QString RecoveryStore::spareFolder()
{
    return QDir::tempPath() + QStringLiteral("/nalvo-recovery-") + QString::number(::geteuid());
}

bool RecoveryStore::makeFolder(const QString& folder)
{
    const QByteArray name = QFile::encodeName(folder);
    if (!QFileInfo::exists(folder) && !QDir().mkpath(QFileInfo(folder).path()))
        return false;
    if (::mkdir(name.constData(), 0700) == 0)
        return true;
    // In the folder for temporary files any user can create a folder of this name.
    struct stat status = {};
    if (errno != EEXIST || ::lstat(name.constData(), &status) != 0)
        return false;
    errno = EACCES;
    return S_ISDIR(status.st_mode) && status.st_uid == ::geteuid();
}

/// Takes the lock before this instance writes any file, so that no other instance considers it ended.
bool RecoveryStore::lock(QString* error)
{
    if (m_lockFd >= 0)
        return true;
    int code = makeFolder(m_folder) ? EAGAIN : errno;
    for (int i = 0; i < 100 && code == EAGAIN; ++i) {
        m_instance = QString::number(::getpid()) + QLatin1Char('x') +
                     QString::number(QRandomGenerator::system()->generate64(), 36);
        const QByteArray name = QFile::encodeName(m_folder + QLatin1Char('/') + m_instance + lockSuffix);
        const int fd = ::open(name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (fd < 0) {
            code = errno == EEXIST ? EAGAIN : errno;
            continue;
        }
        // Another instance may have removed the file as a leftover before it was locked.
        struct stat there = {};
        if (::flock(fd, LOCK_EX | LOCK_NB) == 0 && ::stat(name.constData(), &there) == 0) {
            m_lockFd = fd;
            return true;
        }
        ::close(fd);
    }
    m_instance.clear();
    if (error != nullptr)
        *error = qt_error_string(code);
    return false;
}

void RecoveryStore::unlock()
{
    if (m_lockFd < 0)
        return;
    QFile::remove(m_folder + QLatin1Char('/') + m_instance + lockSuffix);
    ::close(m_lockFd);
    m_lockFd = -1;
}

/// An instance without a lock file has ended normally.
bool RecoveryStore::isAlive(const QString& instance) const
{
    if (m_lockFd >= 0 && instance == m_instance)
        return true;
    const QByteArray name = QFile::encodeName(m_folder + QLatin1Char('/') + instance + lockSuffix);
    const int fd = ::open(name.constData(), O_RDWR | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool free = ::flock(fd, LOCK_EX | LOCK_NB) == 0;
    ::close(fd);
    return !free;
}

bool RecoveryStore::isOwn(const QString& name) const
{
    return m_lockFd >= 0 && instanceOf(name) == m_instance;
}

bool RecoveryStore::isVisible(const Entry& entry) const
{
    return isOwn(entry.id) ? entry.kind == eKindDropped : !isAlive(instanceOf(entry.id));
}

QString RecoveryStore::fileOf(const QString& id) const
{
    const QString base = m_folder + QLatin1Char('/') + id;
    return QFile::exists(base + seenSuffix) ? base + seenSuffix : base + newSuffix;
}

QString RecoveryStore::put(Entry entry, const QByteArray& text, QString* error)
{
    const QMutexLocker locker(&m_mutex);
    if (!lock(error))
        return QString();
    if (entry.id.isEmpty())
        entry.id = m_instance + QLatin1Char('-') + QString::number(++m_serial);
    entry.time = QDateTime::currentDateTimeUtc();
    const QString base = m_folder + QLatin1Char('/') + entry.id;
    // The text can be one that others may not read.
    if (!SafeFile::replace(base + (entry.isNew ? newSuffix : seenSuffix), header(entry) + text, error,
                           SafeFile::eRightsOwner))
        return QString();
    QFile::remove(base + (entry.isNew ? seenSuffix : newSuffix));
    return entry.id;
}

void RecoveryStore::remove(const QString& id)
{
    const QMutexLocker locker(&m_mutex);
    if (!id.isEmpty())
        QFile::remove(fileOf(id));
}

void RecoveryStore::setSeen(const QString& id)
{
    const QMutexLocker locker(&m_mutex);
    const QString base = m_folder + QLatin1Char('/') + id;
    QFile::rename(base + newSuffix, base + seenSuffix);
}

QString RecoveryStore::take(const QString& id)
{
    const QMutexLocker locker(&m_mutex);
    if (isOwn(id) || !lock(nullptr) || isAlive(instanceOf(id)))
        return isOwn(id) ? id : QString();
    const QString result = m_instance + QLatin1Char('-') + QString::number(++m_serial);
    return QFile::rename(fileOf(id), m_folder + QLatin1Char('/') + result + newSuffix) ? result : QString();
}

QList<RecoveryStore::Entry> RecoveryStore::all() const
{
    QList<Entry> result;
    const QStringList patterns{QLatin1Char('*') + newSuffix, QLatin1Char('*') + seenSuffix};
    for (const QFileInfo& info : QDir(m_folder).entryInfoList(patterns, QDir::Files)) {
        Entry entry;
        QFile file(info.filePath());
        if (!readHeader(&file, &entry))
            continue;
        entry.id = info.completeBaseName();
        entry.isNew = info.fileName().endsWith(newSuffix);
        entry.size = info.size();
        result.append(entry);
    }
    std::stable_sort(result.begin(), result.end(), [](const Entry& a, const Entry& b) { return a.time > b.time; });
    return result;
}

QList<RecoveryStore::Entry> RecoveryStore::entries() const
{
    const QMutexLocker locker(&m_mutex);
    QList<Entry> result = all();
    result.erase(std::remove_if(result.begin(), result.end(), [this](const Entry& entry) { return !isVisible(entry); }),
                 result.end());
    return result;
}

bool RecoveryStore::read(const QString& id, Entry* entry, QByteArray* text) const
{
    const QMutexLocker locker(&m_mutex);
    QFile file(fileOf(id));
    if (!readHeader(&file, entry))
        return false;
    entry->id = id;
    entry->isNew = file.fileName().endsWith(newSuffix);
    entry->size = file.size();
    *text = file.readAll();
    return file.error() == QFileDevice::NoError;
}

void RecoveryStore::prune(const QDateTime& now)
{
    const QList<Entry> list = entries();
    const QMutexLocker locker(&m_mutex);
    qint64 total = 0;
    for (int i = 0; i < list.size(); ++i) {
        const Entry& entry = list.at(i);
        total += entry.size;
        if (entry.time.addDays(maxAgeDays) < now || (i > 0 && total > maxTotalBytes)) {
            QFile::remove(fileOf(entry.id));
            total -= entry.size;
        }
    }
    removeLeftovers(now);
}

/// Locks of instances that were killed, and files that were being written then.
void RecoveryStore::removeLeftovers(const QDateTime& now)
{
    for (const QFileInfo& info : QDir(m_folder).entryInfoList({QLatin1Char('*') + lockSuffix}, QDir::Files)) {
        if (!isAlive(info.completeBaseName()))
            QFile::remove(info.filePath());
    }
    for (const QFileInfo& info :
         QDir(m_folder).entryInfoList({QStringLiteral(".nalvo-*")}, QDir::Files | QDir::Hidden)) {
        if (info.lastModified().addDays(1) < now)
            QFile::remove(info.filePath());
    }
}

void RecoveryStore::putSession(const Session& session)
{
    const QMutexLocker locker(&m_mutex);
    if (session.project.isEmpty()) {
        if (m_hasSession)
            QFile::remove(m_folder + QLatin1Char('/') + m_instance + sessionSuffix);
        m_hasSession = false;
        return;
    }
    if (!lock(nullptr))
        return;
    const QJsonObject object{{"project", session.project},
                             {"files", QJsonArray::fromStringList(session.files)},
                             {"lastFile", session.lastFile},
                             {"lastCursorPos", session.lastCursorPos}};
    m_hasSession = SafeFile::replace(m_folder + QLatin1Char('/') + m_instance + sessionSuffix,
                                     QJsonDocument(object).toJson(QJsonDocument::Compact), nullptr) ||
                   m_hasSession;
}

RecoveryStore::Session RecoveryStore::takeSession(const QString& project)
{
    const QMutexLocker locker(&m_mutex);
    Session result;
    // The newest first; older ones of the same project are obsolete.
    for (const QFileInfo& info :
         QDir(m_folder).entryInfoList({QLatin1Char('*') + sessionSuffix}, QDir::Files, QDir::Time)) {
        QFile file(info.filePath());
        if (isAlive(info.completeBaseName()) || !file.open(QIODevice::ReadOnly))
            continue;
        const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
        if (object.value("project").toString() != project)
            continue;
        if (result.project.isEmpty()) {
            result.project = project;
            for (const QJsonValue& value : object.value("files").toArray())
                result.files.append(value.toString());
            result.lastFile = object.value("lastFile").toString();
            result.lastCursorPos = object.value("lastCursorPos").toInt();
        }
        file.remove();
    }
    return result;
}
