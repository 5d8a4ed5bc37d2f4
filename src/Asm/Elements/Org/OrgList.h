#pragma once

#include "ElementChain.h"
#include "Org.h"

namespace nsModAsmFe {

/// The `#ORG` directives of the program, in source order. Owns them.
class OrgList
{
public:
    /// Deletes all elements.
    void clear();
    /// Takes the ownership.
    void append(Org* org);
    /// Null if the list is empty.
    Org* first() const { return m_chain.first(); }
    /// Dumps the list to standard output.
    void print() const;

private:
    ElementChain<Org> m_chain;
};

} // namespace nsModAsmFe
