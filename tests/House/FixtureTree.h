#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

/// A small source tree for one test.
class FixtureTree
{
public:
    FixtureTree() { EXPECT_TRUE(m_dir.isValid()); }

    QString root() const { return m_dir.path(); }

    void write(const QString& path, const QString& text)
    {
        const QString file = m_dir.filePath(path);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(text.toUtf8());
    }

private:
    QTemporaryDir m_dir;
};
