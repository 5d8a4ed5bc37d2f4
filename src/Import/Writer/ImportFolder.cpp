#include "ImportFolder.h"

#include "SafeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace nsImport {

namespace {

QString withoutLinks(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? path : canonical;
}

bool exists(const QString& path)
{
    // A link that leads nowhere is there as well.
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace

ImportFolder::ImportFolder(const QString& path)
    : m_path(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))
    , m_shown(path)
{
}

bool ImportFolder::hasFiles() const
{
    return QFileInfo(m_path).isDir() &&
           !QDir(m_path).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
}

bool ImportFolder::write(const QVector<ImportFile>& files, const QStringList& originals, bool force,
                         ImportMessages& messages)
{
    bool isOriginal = false;
    const QString taken = conflict(files, originals, force, &isOriginal);
    if (!taken.isEmpty()) {
        messages.add(isOriginal ? errImpOriginal : errImpExists, {m_shown + taken.mid(m_path.size())});
        return false;
    }
    const QString failure = writeAll(files);
    if (!failure.isEmpty())
        messages.add(errImpCannotWrite, {m_shown, failure});
    return failure.isEmpty();
}

/// A file or folder that is there already and must not be lost; empty if there is none.
QString ImportFolder::conflict(const QVector<ImportFile>& files, const QStringList& originals, bool force,
                               bool* isOriginal) const
{
    *isOriginal = false;
    for (const ImportFile& file : files) {
        const QString path = m_path + '/' + file.name;
        *isOriginal = originals.contains(withoutLinks(path));
        // A folder in place of a file could hold anything.
        if (*isOriginal || (exists(path) && !QFileInfo(path).isFile()))
            return path;
    }
    if (exists(m_path) && !QFileInfo(m_path).isDir())
        return m_path;
    return force || !hasFiles() ? QString() : m_path;
}

/// @return why that failed, or an empty text
QString ImportFolder::writeAll(const QVector<ImportFile>& files) const
{
    const QString parent = QFileInfo(m_path).absolutePath();
    if (!QDir().mkpath(parent))
        return tr("the folder can not be made");
    QTemporaryDir beside(parent + QStringLiteral("/.nalvo-import-XXXXXX"));
    if (!beside.isValid())
        return beside.errorString();
    const QString folder = beside.filePath(QStringLiteral("new"));
    const QString failure = writeInto(folder, files);
    if (!failure.isEmpty())
        return failure;
    // An empty folder gives way; its own rights are not worth keeping.
    if (QFileInfo(m_path).isDir() && !QFileInfo(m_path).isSymLink())
        QDir().rmdir(m_path);
    if (!exists(m_path))
        return QDir().rename(folder, m_path) ? QString() : tr("the folder can not be made");
    return moveIn(folder, files);
}

QString ImportFolder::writeInto(const QString& folder, const QVector<ImportFile>& files) const
{
    for (const ImportFile& file : files) {
        const QString path = folder + '/' + file.name;
        QString error;
        if (!QDir().mkpath(QFileInfo(path).absolutePath()))
            return tr("the folder can not be made");
        if (!SafeFile::replace(path, file.content, &error))
            return error;
    }
    // Where the outputs go.
    return QDir().mkpath(folder + QStringLiteral("/output")) ? QString() : tr("the folder can not be made");
}

QString ImportFolder::moveIn(const QString& folder, const QVector<ImportFile>& files) const
{
    const QString old = folder + QStringLiteral(".old");
    QStringList moved;
    QString failure;
    QDir().mkpath(m_path + QStringLiteral("/output"));
    for (const ImportFile& file : files) {
        const QString target = m_path + '/' + file.name;
        const QString kept = old + '/' + file.name;
        const bool hadOne = exists(target);
        QDir().mkpath(QFileInfo(target).absolutePath());
        QDir().mkpath(QFileInfo(kept).absolutePath());
        if (hadOne && !QFile::rename(target, kept)) {
            failure = tr("%1 can not be replaced").arg(file.name);
            break;
        }
        moved.append(file.name);
        if (!QFile::rename(folder + '/' + file.name, target)) {
            failure = tr("%1 can not be put in its place").arg(file.name);
            break;
        }
    }
    if (failure.isEmpty())
        return QString();
    for (const QString& name : qAsConst(moved)) {
        QFile::remove(m_path + '/' + name);
        QFile::rename(old + '/' + name, m_path + '/' + name);
    }
    return failure;
}

} // namespace nsImport
