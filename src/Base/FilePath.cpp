#include "FilePath.h"

#include <QDir>
#include <QFileInfo>

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
