#include "ProcList.h"

#include "LMico8v3x.h"
#include "XPBlze3.h"
#include "XPBlze6.h"

namespace nsModProcessor {

ProcList::ProcList()
{
    m_processors.append(new nsLMico8v3x::LMico8v3x);
    m_processors.append(new nsXPBlze6::XPBlze6);
    m_processors.append(new nsXPBlze3::XPBlze3);
}

ProcList::~ProcList()
{
    clear();
}

ProcPluginIf* ProcList::interface(const QString& name) const
{
    if (name.isEmpty())
        return nullptr;
    for (ProcPluginIf* processor : m_processors) {
        if (processor->processorName() == name)
            return processor;
    }
    return nullptr;
}

QStringList ProcList::nameList() const
{
    QStringList names;
    for (ProcPluginIf* processor : m_processors)
        names.append(processor->processorName());
    names.sort();
    names.removeDuplicates();
    return names;
}

void ProcList::clear()
{
    for (ProcPluginIf* processor : qAsConst(m_processors)) {
        processor->modExitIntermod();
        processor->modExit();
    }
    for (ProcPluginIf* processor : qAsConst(m_processors))
        delete processor;
    m_processors.clear();
}

} // namespace nsModProcessor
