#include "SetList.h"

#include <cstdio>

namespace nsModAsmFe {

void SetList::clear()
{
    m_chain.clear();
    m_byName.clear();
    m_values.clear();
}

void SetList::append(Set* set)
{
    set->prev = m_chain.last();
    m_chain.append(set);
    m_byName.insert(set->nameSpace, set->nameUpper, set);
    if (set->nameUpper == QLatin1String("VALUE"))
        m_values[set->nameSpace].append(set);
}

void SetList::print() const
{
    for (const Set* set = first(); set != nullptr; set = set->next) {
        std::printf("set:\t%s = %s\n", qPrintable(qualifiedName(set->nameSpace, set->name)), qPrintable(set->value));
        std::printf("\tsrcRef:\t%04d, %04d, %04d\n", set->srcRef.fileNo, set->srcRef.lineNo, set->srcRef.absLineNo);
    }
}

} // namespace nsModAsmFe
