#include "Sizes.h"

#include <algorithm>

namespace nsHouse {

Sizes::Sizes(const SourceTree& tree, const sLimits_t& limits)
    : m_limits(limits)
{
    for (const QString& path : tree.code())
        read(path, tree.text(path));
    std::stable_sort(m_classes.begin(), m_classes.end(), [](const sClass_t& a, const sClass_t& b) {
        return a.operations + a.members > b.operations + b.members;
    });
}

void Sizes::read(const QString& path, const QString& text)
{
    const int lines = text.count('\n');
    if (lines > m_limits.fileLines)
        m_longFiles.append(QString("%1: %2 lines").arg(path).arg(lines));
    const CppScan scan(text);
    for (const sFunction_t& function : scan.functions()) {
        if (function.lines > m_limits.functionLines)
            m_longFunctions.insert(
                path + ": " + function.name,
                QString("%1:%2: %3 has %4 lines").arg(path).arg(function.line).arg(function.name).arg(function.lines));
    }
    m_classes += scan.classes();
}

QStringList Sizes::longFunctions(const QStringList& tables) const
{
    QMap<QString, QString> findings = m_longFunctions;
    for (const QString& name : tables) {
        if (findings.remove(name) == 0)
            findings.insert(name, name + " needs no exception");
    }
    return findings.values();
}

QStringList Sizes::largeClasses(const QVector<sAllowed_t>& allowed) const
{
    QStringList findings;
    QStringList large;
    for (const sClass_t& one : m_classes) {
        if (one.operations <= m_limits.operations && one.members <= m_limits.members)
            continue;
        large.append(one.name);
        const bool isAllowed = std::any_of(allowed.begin(), allowed.end(), [&one](const sAllowed_t& entry) {
            return entry.name == one.name && one.operations <= entry.operations && one.members <= entry.members;
        });
        if (!isAllowed)
            findings.append(
                QString("%1 has %2 operations and %3 members").arg(one.name).arg(one.operations).arg(one.members));
    }
    for (const sAllowed_t& entry : allowed) {
        if (!large.contains(entry.name))
            findings.append(entry.name + " needs no exception");
    }
    return findings;
}

} // namespace nsHouse
