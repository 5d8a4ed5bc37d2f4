#include "LabelList.h"

#include <cstdio>

namespace nsModAsmFe {

LabelList::~LabelList()
{
    clear();
}

void LabelList::clear()
{
    while (m_first != nullptr) {
        Label* next = m_first->next;
        delete m_first;
        m_first = next;
    }
    m_last = nullptr;
    m_byName.clear();
}

void LabelList::append(Label* label)
{
    if (m_last == nullptr)
        m_first = label;
    else
        m_last->next = label;
    m_last = label;
    m_byName.insert(label->nameSpace, label->name, label);
}

void LabelList::print() const
{
    for (const Label* label = m_first; label != nullptr; label = label->next) {
        std::printf("label:\t%s\n", qPrintable(qualifiedName(label->nameSpace, label->name)));
        std::printf("\tsrcRef:\t%04d, %04d, %04d\n", label->srcRef.fileNo, label->srcRef.lineNo,
                    label->srcRef.absLineNo);
    }
}

QStringList LabelList::nameList() const
{
    QStringList names;
    for (const Label* label = m_first; label != nullptr; label = label->next)
        names.append(qualifiedName(label->nameSpace, label->name));
    return names;
}

} // namespace nsModAsmFe
