#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

/// A file that the build has written for an editor.
inline QByteArray definition(const QString& path)
{
    QFile file(NALVO_EDITOR_DIR + ('/' + path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

inline void writeText(const QString& path, const QByteArray& text)
{
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    EXPECT_EQ(file.write(text), text.size());
}

/// Runs a program of the system and returns its output. That it is missing, or has no success, fails the test.
inline QByteArray outputOf(const QString& program, const QStringList& arguments, const QProcessEnvironment& env,
                           const QString& folder = QString())
{
    QProcess process;
    process.setProcessEnvironment(env);
    process.setWorkingDirectory(folder);
    process.setStandardInputFile("/dev/null");
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForStarted()) << qPrintable(program) << " is not there";
    EXPECT_TRUE(process.waitForFinished(300000));
    EXPECT_EQ(process.exitCode(), 0) << qPrintable(program) << ": " << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}
