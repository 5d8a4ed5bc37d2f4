#pragma once

#include "ElementChain.h"
#include "Set.h"
#include "SymbolHash.h"

#include <QHash>
#include <QVector>

namespace nsModAsmFe {

/// The `#SET` directives of the program, in source order. Owns them.
class SetList
{
public:
    /// Deletes all elements.
    void clear();
    /// Takes the ownership. Namespace and name must be set and stay.
    void append(Set* set);
    /// Null if the list is empty.
    Set* first() const { return m_chain.first(); }
    /// Dumps the list to standard output.
    void print() const;

    /// The namespace is compared as written, the parameter's name in upper case.
    bool contains(const QString& nameSpace, const QString& nameUpper) const
    {
        return find(nameSpace, nameUpper) != nullptr;
    }
    /// The first such parameter, or null.
    Set* find(const QString& nameSpace, const QString& nameUpper) const { return m_byName.find(nameSpace, nameUpper); }

    /// All `VALUE` parameters of a namespace, in order.
    QVector<Set*> values(const QString& nameSpace) const { return m_values.value(nameSpace); }

private:
    ElementChain<Set> m_chain;
    SymbolHash<Set> m_byName;
    QHash<QString, QVector<Set*>> m_values;
};

} // namespace nsModAsmFe
