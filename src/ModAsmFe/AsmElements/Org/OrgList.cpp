#include "OrgList.h"

#include <cstdio>

namespace nsModAsmFe {

OrgList::~OrgList()
{
    clear();
}

void OrgList::clear()
{
    while (m_first != nullptr) {
        Org* next = m_first->next;
        delete m_first;
        m_first = next;
    }
    m_last = nullptr;
}

void OrgList::append(Org* org)
{
    if (m_last == nullptr)
        m_first = org;
    else
        m_last->next = org;
    m_last = org;
}

void OrgList::print() const
{
    for (const Org* org = m_first; org != nullptr; org = org->next) {
        std::printf("org:\t%s, %s (%d)\n", qPrintable(org->name), qPrintable(org->value), org->iValue);
        std::printf("\tsrcRef:\t%04d, %04d, %04d\n", org->srcRef.fileNo, org->srcRef.lineNo, org->srcRef.absLineNo);
    }
}

} // namespace nsModAsmFe
