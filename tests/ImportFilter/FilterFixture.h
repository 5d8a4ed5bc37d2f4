#pragma once

#include "ImportFilter.h"
#include "ImportFilterT001.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <memory>

/// A folder for filter files.
class FilterFixture : public ::testing::Test
{
protected:
    QString write(const QString& name, const QByteArray& content)
    {
        const QString path = dir.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return path;
    }
    /// A filter with these rules, ready to convert.
    nsModImport::ImportFilterT001& make(const QByteArray& rules)
    {
        const QString path = write("f.txt", "type: T001\nname: f\n" + rules);
        filter = std::make_unique<nsModImport::ImportFilterT001>(path);
        filter->setupRules();
        return *filter;
    }
    /// What the filter makes of a line; "(refused)" for nothing.
    QString converted(const QString& line)
    {
        QString result = line;
        if (filter->convertLine(&result))
            return result;
        EXPECT_EQ(result, line) << "a refused line is untouched";
        return "(refused)";
    }

    QTemporaryDir dir;
    std::unique_ptr<nsModImport::ImportFilterT001> filter;
};
