#include "ShippedFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

QString ShippedFolder::programDir()
{
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath();
    return program.isEmpty() ? QCoreApplication::applicationDirPath() : QFileInfo(program).path();
}

QString ShippedFolder::find(const QString& programDir, const QString& name)
{
    for (const char* place : {"/../", "/../../", "/../../Common/"}) {
        const QString dir = QDir::cleanPath(programDir + QLatin1String(place) + name);
        if (QFileInfo(dir).isDir())
            return dir;
    }
    return QString();
}
