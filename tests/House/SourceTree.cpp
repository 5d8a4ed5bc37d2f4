#include "SourceTree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace nsHouse {

SourceTree::SourceTree(const QString& root)
    : m_root(QDir::cleanPath(root))
{
}

QStringList SourceTree::files(const QString& folder, const QStringList& patterns) const
{
    QStringList result;
    const QDir root(m_root);
    QDirIterator walk(root.filePath(folder), patterns, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        result.append(root.relativeFilePath(walk.next()));
    result.sort();
    return result;
}

QStringList SourceTree::code() const
{
    QStringList result;
    for (const char* folder : {"src", "tools", "tests", "bench"})
        result += files(QLatin1String(folder), {"*.h", "*.cpp"});
    return result;
}

QStringList SourceTree::all() const
{
    QStringList result = QDir(m_root).entryList(QDir::Files);
    for (const QString& folder : folders(".")) {
        if (folder != "build")
            result += files(folder, {"*"});
    }
    return result;
}

QStringList SourceTree::folders(const QString& folder) const
{
    return QDir(QDir(m_root).filePath(folder)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

QString SourceTree::text(const QString& path) const
{
    QFile file(QDir(m_root).filePath(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool SourceTree::exists(const QString& path) const
{
    return QFile::exists(QDir(m_root).filePath(path));
}

} // namespace nsHouse
