#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace nsModAsmFe {

/// The names that `#IFDEF` knows, in upper case and in the order of their definition.
class AsmDefines
{
public:
    void clear()
    {
        m_names.clear();
        m_set.clear();
    }
    /// @param name in upper case, not defined yet
    void add(const QString& name)
    {
        m_names.append(name);
        m_set.insert(name);
    }
    bool contains(const QString& name) const { return m_set.contains(name); }
    QStringList names() const { return m_names; }

private:
    QStringList m_names;
    QSet<QString> m_set;
};

} // namespace nsModAsmFe
