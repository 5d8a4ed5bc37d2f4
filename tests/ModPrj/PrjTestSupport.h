#pragma once

#include <QFile>
#include <QString>

#include <gtest/gtest.h>

#include <unistd.h>

inline QString str(const char* text)
{
    return QString::fromUtf8(text);
}

inline void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// For a forked child: the rights of files mean nothing to the superuser, so be somebody else.
inline void dropRights()
{
    if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
        _exit(99);
}
