#pragma once

#include "ElementChain.h"
#include "Label.h"
#include "SymbolHash.h"

#include <QStringList>

namespace nsModAsmFe {

/// The labels of the program, in source order. Owns them.
class LabelList
{
public:
    /// Deletes all elements.
    void clear();
    /// Takes the ownership. Namespace and name must be set and stay.
    void append(Label* label);
    /// Null if the list is empty.
    Label* first() const { return m_chain.first(); }
    /// Dumps the list to standard output.
    void print() const;

    bool contains(const QString& nameSpace, const QString& name) const { return find(nameSpace, name) != nullptr; }
    /// Null if there is no such label; names are compared with case.
    Label* find(const QString& nameSpace, const QString& name) const { return m_byName.find(nameSpace, name); }
    /// All names in list order, with namespace and "::" where there is one.
    QStringList nameList() const;

private:
    ElementChain<Label> m_chain;
    SymbolHash<Label> m_byName;
};

} // namespace nsModAsmFe
