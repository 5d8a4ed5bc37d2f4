#include "OrgList.h"

#include <cstdio>

namespace nsModAsmFe {

void OrgList::clear()
{
    m_chain.clear();
}

void OrgList::append(Org* org)
{
    m_chain.append(org);
}

void OrgList::print() const
{
    for (const Org* org = first(); org != nullptr; org = org->next) {
        std::printf("org:\t%s, %s (%d)\n", qPrintable(org->name), qPrintable(org->value), org->iValue);
        std::printf("\tsrcRef:\t%04d, %04d, %04d\n", org->srcRef.fileNo, org->srcRef.lineNo, org->srcRef.absLineNo);
    }
}

} // namespace nsModAsmFe
