#include "EquList.h"

#include <cstdio>

namespace nsModAsmFe {

EquList::EquList() = default;

EquList::~EquList()
{
    clear();
}

void EquList::clear()
{
    m_chain.clear();
    m_byName.clear();
    m_names.clear();
}

void EquList::append(Equ* equ)
{
    equ->prev = m_chain.last();
    m_chain.append(equ);
    m_byName.insert(equ->nameSpace, equ->name, equ);
    m_names.insert(equ->name);
}

void EquList::print() const
{
    for (const Equ* equ = first(); equ != nullptr; equ = equ->next) {
        std::printf("equ:\t%s = %s (%s, %d)\n", qPrintable(qualifiedName(equ->nameSpace, equ->name)),
                    qPrintable(equ->arg->dispName), argTypeName(equ->arg->type), equ->arg->iValue);
        std::printf("\tsrcRef:\t%04d, %04d, %04d\n", equ->srcRef.fileNo, equ->srcRef.lineNo, equ->srcRef.absLineNo);
    }
}

QStringList EquList::nameList() const
{
    QStringList names;
    for (const Equ* equ = first(); equ != nullptr; equ = equ->next)
        names.append(qualifiedName(equ->nameSpace, equ->name));
    return names;
}

} // namespace nsModAsmFe
