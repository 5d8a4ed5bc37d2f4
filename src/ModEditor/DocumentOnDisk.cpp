#include "DocumentOnDisk.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace nsModEditor {

namespace {

QByteArray hashOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

/// The one path of a file, whether it exists or not.
QString canonicalPath(const QString& path)
{
    const QFileInfo info(path);
    const QString canonical = info.canonicalFilePath();
    if (!canonical.isEmpty())
        return canonical;
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? QDir::cleanPath(info.absoluteFilePath())
                            : QDir::cleanPath(folder + '/' + info.fileName());
}

} // namespace

DocumentOnDisk::DocumentOnDisk(const QString& path, const QByteArray& bytes)
    : m_known(true)
    , m_hash(hashOf(bytes))
{
    const QFileInfo info(path);
    m_size = info.size();
    m_modified = info.lastModified();
    m_changed = info.metadataChangeTime();
}

DocumentOnDisk::eState_t DocumentOnDisk::state(const QString& path, QByteArray* bytes) const
{
    const QFileInfo info(path);
    if (!info.exists())
        return m_known ? eStateGone : eStateSame;
    if (!info.isFile())
        return eStateNoFile;
    QFile file(path);
    if (info.size() > maxFileSize || !file.open(QIODevice::ReadOnly)) {
        *bytes = QByteArray();
        return eStateChanged;
    }
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError || content.size() < file.size()) {
        *bytes = QByteArray();
        return eStateChanged;
    }
    if (m_known && hashOf(content) == m_hash)
        return eStateSame;
    // Empty content must differ from no content (null).
    *bytes = content.isNull() ? QByteArray("") : content;
    return eStateChanged;
}

bool DocumentOnDisk::looksSame(const QString& path) const
{
    const QFileInfo info(path);
    if (!info.exists())
        return !m_known;
    return m_known && info.size() == m_size && info.lastModified() == m_modified &&
           info.metadataChangeTime() == m_changed;
}

bool DocumentOnDisk::isSameFile(const QString& first, const QString& second)
{
    return canonicalPath(first) == canonicalPath(second);
}

} // namespace nsModEditor
