#pragma once

#include "SourceTree.h"

#include <QSet>
#include <QString>
#include <QStringList>

namespace nsHouse {

/// Compares what documents name with what the tree has.
///
/// In `backticks` and in indented blocks, a path has a slash or the ending of a source file; it must exist, from the
/// root, from the document's folder, or as the end of a path. A name of the code has parentheses, "::" or capitals
/// inside; its words must be words of the code, wherever in the document they stand. A word with a stand-in such as
/// NAME, Xxx or "..." is not checked.
class Documents
{
public:
    /// Reads all words of the code and the build files.
    explicit Documents(const SourceTree& tree);

    /// What the document names and the tree does not have, one a line.
    QStringList unknownNames(const QString& document) const;

private:
    bool isThere(const QString& folder, const QString& path) const;
    bool isKnown(const QString& name) const;

    SourceTree m_tree;
    QStringList m_paths;   ///< of all files, each after a slash
    QSet<QString> m_words; ///< of the code, and the names of the files
};

} // namespace nsHouse
