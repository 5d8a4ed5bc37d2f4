#pragma once

#include "CppScan.h"
#include "SourceTree.h"

#include <QStringList>
#include <QVector>

namespace nsHouse {

/// What a newcomer can hold in the head.
struct sLimits_t
{
    int fileLines = 600;
    int functionLines = 80;
    int operations = 100;
    int members = 25;
};

/// A class that may be larger than the limits, but not larger than this.
struct sAllowed_t
{
    QString name;
    int operations;
    int members;
};

/// Files, functions and classes of a tree that are larger than the limits.
class Sizes
{
public:
    /// Reads all code of the tree.
    Sizes(const SourceTree& tree, const sLimits_t& limits);

    QStringList longFiles() const { return m_longFiles; }
    QStringList longFunctions() const { return m_longFunctions; }
    /// Classes over the limits or over what is allowed to them, and names that are allowed more than they need.
    QStringList largeClasses(const QVector<sAllowed_t>& allowed) const;
    /// All classes of the tree, the one with the most operations and members first.
    const QVector<sClass_t>& classes() const { return m_classes; }

private:
    void read(const QString& path, const QString& text);

    sLimits_t m_limits;
    QStringList m_longFiles;
    QStringList m_longFunctions;
    QVector<sClass_t> m_classes;
};

} // namespace nsHouse
