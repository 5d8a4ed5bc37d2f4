#pragma once

#include "CppScan.h"
#include "SourceTree.h"

#include <QMap>
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
    /// @param tables names of functions that are no more than a table, a case a row
    QStringList longFunctions(const QStringList& tables = {}) const;
    /// Classes over the limits or over what is allowed to them, and names that are allowed more than they need.
    QStringList largeClasses(const QVector<sAllowed_t>& allowed) const;
    /// All classes of the tree, the one with the most operations and members first.
    const QVector<sClass_t>& classes() const { return m_classes; }

private:
    void read(const QString& path, const QString& text);

    sLimits_t m_limits;
    QStringList m_longFiles;
    QMap<QString, QString> m_longFunctions; ///< path and name to the finding
    QVector<sClass_t> m_classes;
};

} // namespace nsHouse
