#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>

/// What a program printed and how it ended.
struct sRun_t
{
    int status = -1; ///< -1: it did not start or did not end by itself
    QByteArray out;  ///< both streams
};

/// @param environment added to that of the test, each NAME=VALUE
inline sRun_t runProgram(const QString& program, const QStringList& arguments, const QStringList& environment = {})
{
    QProcess process;
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    // Leaks of a program that is ended in the middle of its work say nothing.
    all.insert("ASAN_OPTIONS", "detect_leaks=0");
    for (const QString& variable : environment)
        all.insert(variable.section('=', 0, 0), variable.section('=', 1));
    process.setProcessEnvironment(all);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    sRun_t run;
    if (process.waitForFinished(600000) && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.out = process.readAll();
    return run;
}

/// The build, installed by "cmake --install" into a folder of its own and then moved.
class InstalledTree
{
public:
    /// @param component empty: all
    explicit InstalledTree(const QString& component = QString())
    {
        QStringList arguments = {"--install", NALVO_BINARY_DIR, "--prefix", "/opt/nalvo", "--strip"};
        if (!component.isEmpty())
            arguments += {"--component", component};
        const sRun_t run = runProgram(NALVO_CMAKE, arguments, {"DESTDIR=" + m_dir.filePath("stage")});
        EXPECT_EQ(run.status, 0) << run.out.constData();
        EXPECT_TRUE(QDir().rename(m_dir.filePath("stage/opt/nalvo"), path()));
        EXPECT_TRUE(QDir(m_dir.filePath("stage")).removeRecursively());
    }

    /// @param name below the prefix
    QString path(const QString& name = QString()) const
    {
        return QDir::cleanPath(m_dir.filePath("another place/") + name);
    }
    /// All files and links, relative to the prefix, sorted.
    QStringList files() const
    {
        QStringList files;
        const auto filter = QDir::Files | QDir::Hidden | QDir::System | QDir::Dirs | QDir::NoDotAndDotDot;
        for (QDirIterator it(path(), filter, QDirIterator::Subdirectories); it.hasNext();) {
            it.next();
            if (it.fileInfo().isSymLink() || !it.fileInfo().isDir())
                files.append(QDir(path()).relativeFilePath(it.filePath()));
        }
        files.sort();
        return files;
    }

private:
    QTemporaryDir m_dir;
};
