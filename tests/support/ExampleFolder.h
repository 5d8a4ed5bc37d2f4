#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

/// Copies a folder with all below it, except what a run has written into folders named "output"; the copies can be
/// written. So a test finds an example as it comes, whoever has assembled it before.
inline void copyFolder(const QString& from, const QString& to)
{
    QDir().mkpath(to);
    QDirIterator it(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        if (it.fileInfo().dir().dirName() == "output" && !it.fileName().startsWith('.'))
            continue;
        const QString target = to + '/' + QDir(from).relativeFilePath(path);
        QDir().mkpath(QFileInfo(target).path());
        QFile::remove(target);
        QFile::copy(path, target);
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    }
}
