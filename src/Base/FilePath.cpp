#include "FilePath.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace {

const int maxLinks = 40; ///< in a row, as many as the system follows

} // namespace

QString pathWithoutLinks(const QString& path)
{
    QFileInfo info(path);
    // A link whose target does not exist yet: a write makes the target.
    for (int i = 0; i < maxLinks && info.isSymLink() && !info.exists(); ++i)
        info.setFile(info.symLinkTarget());
    if (info.exists())
        return info.canonicalFilePath();
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    if (folder.isEmpty())
        return QDir::cleanPath(info.absoluteFilePath());
    return QDir(folder).filePath(info.fileName());
}

bool isSameFile(const QString& path, const QString& other)
{
    struct stat info = {};
    struct stat otherInfo = {};
    return stat(QFile::encodeName(path).constData(), &info) == 0 &&
           stat(QFile::encodeName(other).constData(), &otherInfo) == 0 && info.st_dev == otherInfo.st_dev &&
           info.st_ino == otherInfo.st_ino;
}
