#pragma once

#include <QString>
#include <QStringList>

namespace nsHouse {

/// The files of a source tree, which need not be under version control.
class SourceTree
{
public:
    /// @p root: absolute path of the folder that holds src, tests and the documents
    explicit SourceTree(const QString& root);

    const QString& root() const { return m_root; }
    /// Paths below the root of the files in @p folder and all folders in it that match one of @p patterns ("*.h"),
    /// sorted.
    QStringList files(const QString& folder, const QStringList& patterns) const;
    /// All headers and sources that we wrote: of the program, its tools, tests and benchmarks.
    QStringList code() const;
    /// All files but hidden ones and what a build leaves.
    QStringList all() const;
    /// Names of the folders in @p folder, sorted.
    QStringList folders(const QString& folder) const;
    /// Text of a file below the root; empty where there is none.
    QString text(const QString& path) const;
    bool exists(const QString& path) const;

private:
    QString m_root;
};

} // namespace nsHouse
