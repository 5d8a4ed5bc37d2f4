#include "LabelList.h"

#include <cstdio>

namespace nsModAsmFe {

void LabelList::clear()
{
    m_chain.clear();
    m_byName.clear();
}

void LabelList::append(Label* label)
{
    m_chain.append(label);
    m_byName.insert(label->nameSpace, label->name, label);
}

void LabelList::print() const
{
    for (const Label* label = first(); label != nullptr; label = label->next) {
        std::printf("label:\t%s\n", qPrintable(qualifiedName(label->nameSpace, label->name)));
        std::printf("\tsrcRef:\t%04d, %04d, %04d\n", label->srcRef.fileNo, label->srcRef.lineNo,
                    label->srcRef.absLineNo);
    }
}

QStringList LabelList::nameList() const
{
    QStringList names;
    for (const Label* label = first(); label != nullptr; label = label->next)
        names.append(qualifiedName(label->nameSpace, label->name));
    return names;
}

} // namespace nsModAsmFe
