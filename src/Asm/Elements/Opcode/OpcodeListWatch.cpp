#include "OpcodeListWatch.h"

#include "OpcodeList.h"

namespace nsModAsmFe {

void OpcodeListWatch::watch(OpcodeList* list)
{
    if (list == m_list)
        return;
    if (m_list != nullptr)
        m_list->removeWatch(this);
    m_list = list;
    if (m_list != nullptr)
        m_list->addWatch(this);
}

} // namespace nsModAsmFe
