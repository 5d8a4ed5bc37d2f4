#include "SetList.h"

#include <cstdio>

namespace nsModAsmFe {

SetList::~SetList()
{
    clear();
}

void SetList::clear()
{
    while (m_first != nullptr) {
        Set* next = m_first->next;
        delete m_first;
        m_first = next;
    }
    m_last = nullptr;
    m_byName.clear();
    m_values.clear();
}

void SetList::append(Set* set)
{
    set->prev = m_last;
    if (m_last == nullptr)
        m_first = set;
    else
        m_last->next = set;
    m_last = set;
    m_byName.insert(set->nameSpace, set->nameUpper, set);
    if (set->nameUpper == QLatin1String("VALUE"))
        m_values[set->nameSpace].append(set);
}

void SetList::print() const
{
    for (const Set* set = m_first; set != nullptr; set = set->next) {
        std::printf("set:\t%s = %s\n", qPrintable(qualifiedName(set->nameSpace, set->name)), qPrintable(set->value));
        std::printf("\tsrcRef:\t%04d, %04d, %04d\n", set->srcRef.fileNo, set->srcRef.lineNo, set->srcRef.absLineNo);
    }
}

} // namespace nsModAsmFe
