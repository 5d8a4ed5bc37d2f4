#pragma once

#include "Org.h"

namespace nsModAsmFe {

/// The `#ORG` directives of the program, in source order. Owns them.
class OrgList
{
public:
    OrgList() = default;
    ~OrgList();
    OrgList(const OrgList&) = delete;
    OrgList& operator=(const OrgList&) = delete;

    /// Deletes all elements.
    void clear();
    /// Takes the ownership.
    void append(Org* org);
    /// Null if the list is empty.
    Org* first() const { return m_first; }
    /// Dumps the list to standard output.
    void print() const;

private:
    Org* m_first = nullptr;
    Org* m_last = nullptr;
};

} // namespace nsModAsmFe
