#include "ShippedFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

QString ShippedFolder::programDir(const QString& programFile)
{
    const QString file = programFile.isEmpty() ? QCoreApplication::applicationFilePath() : programFile;
    const QString program = QFileInfo(file).canonicalFilePath();
    return QFileInfo(program.isEmpty() ? file : program).path();
}

QStringList ShippedFolder::candidates(const QString& programDir, const QString& name)
{
    QStringList paths;
    for (const char* place : {"/../", "/../../", "/../../Common/"})
        paths.append(QDir::cleanPath(programDir + QLatin1String(place) + name));
    return paths;
}

QString ShippedFolder::find(const QString& programDir, const QString& name)
{
    for (const QString& dir : candidates(programDir, name)) {
        if (QFileInfo(dir).isDir())
            return dir;
    }
    return QString();
}

QStringList ShippedFolder::filesBelow(const QString& dir)
{
    QStringList files;
    QDirIterator it(dir, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        files.append(it.next());
    files.sort();
    return files;
}
