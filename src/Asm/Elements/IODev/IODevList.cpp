#include "IODevList.h"

#include <cstdio>

namespace nsModAsmFe {

IODevList::~IODevList()
{
    clear();
}

void IODevList::clear()
{
    qDeleteAll(m_devs);
    m_devs.clear();
}

void IODevList::append(IODev* dev)
{
    m_devs.append(dev);
}

void IODevList::print() const
{
    for (const IODev* dev : m_devs)
        print(dev);
}

void IODevList::print(const IODev* dev) const
{
    std::printf("ioDev:\t%s, type %d, base address %u, %d words, %d written\n", qPrintable(dev->devName), dev->devType,
                dev->baseAddr, dev->memSize, dev->valueCnt);
}

IODev* IODevList::find(const QString& devName) const
{
    for (IODev* dev : m_devs) {
        if (dev->devName == devName)
            return dev;
    }
    return nullptr;
}

} // namespace nsModAsmFe
