#pragma once

#include "ElementChain.h"
#include "Equ.h"
#include "SymbolHash.h"

#include <QSet>
#include <QStringList>

namespace nsModAsmFe {

/// The `#EQU` directives of the program, in source order. Owns them.
class EquList
{
public:
    EquList();
    ~EquList();
    EquList(const EquList&) = delete;
    EquList& operator=(const EquList&) = delete;

    /// Deletes all elements.
    void clear();
    /// Takes the ownership. Namespace and name must be set and stay.
    void append(Equ* equ);
    /// Null if the list is empty.
    Equ* first() const { return m_chain.first(); }
    /// Dumps the list to standard output.
    void print() const;

    bool contains(const QString& nameSpace, const QString& name) const { return find(nameSpace, name) != nullptr; }
    /// Is the name used in any namespace?
    bool containsName(const QString& name) const { return m_names.contains(name); }
    /// Null if there is no such `#EQU`; names are compared with case.
    Equ* find(const QString& nameSpace, const QString& name) const { return m_byName.find(nameSpace, name); }
    /// All names in list order, with namespace and "::" where there is one.
    QStringList nameList() const;

private:
    ElementChain<Equ> m_chain;
    SymbolHash<Equ> m_byName;
    QSet<QString> m_names;
};

} // namespace nsModAsmFe
