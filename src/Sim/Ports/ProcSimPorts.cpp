#include "ProcSimPorts.h"

#include "ProcSimIOFifo.h"
#include "ProcSimIOMem.h"
#include "ProcSimIOReg8Bit.h"

namespace nsProc {

ProcSimPorts::~ProcSimPorts()
{
    removeIOPlugins();
}

ProcSimIOPluginIf* ProcSimPorts::addIOPlugin(eDevType_t type, eDirection_t direction, int initValue)
{
    ProcSimIOPluginIf* device = nullptr;
    switch (type) {
    case eDevReg:
        device = new ProcSimIOReg8Bit;
        break;
    case eDevFifo:
        device = new ProcSimIOFifo(initValue);
        break;
    case eDevMem:
        device = new ProcSimIOMem(initValue);
        break;
    }
    if (device == nullptr)
        return nullptr;
    device->procSimIOHook = this;
    device->setBase(m_base);
    device->setDirection(direction);
    m_devices.append(device);
    if (m_listener != nullptr)
        m_listener->deviceAdded(device);
    return device;
}

void ProcSimPorts::removeIOPlugin(ProcSimIOPluginIf* plugin)
{
    if (!m_devices.removeOne(plugin))
        return;
    if (m_listener != nullptr)
        m_listener->deviceRemoved(plugin);
    delete plugin;
}

void ProcSimPorts::removeIOPlugins()
{
    while (!m_devices.isEmpty())
        removeIOPlugin(m_devices.last());
}

ProcSimIOPluginIf* ProcSimPorts::find(int addr, eDirection_t direction) const
{
    for (ProcSimIOPluginIf* device : m_devices) {
        if (device->chkAddr(addr) && device->chkDirection(direction))
            return device;
    }
    return nullptr;
}

bool ProcSimPorts::chkIOPluginToRd(int addr, const QString& name)
{
    // This also finds a device for both directions.
    if (find(addr, ProcSimIOPluginIf::eDirectionRd) != nullptr)
        return true;
    addIOPlugin(eDevReg, ProcSimIOPluginIf::eDirectionRd, 0)->setBaseAddr(addr, name);
    return false;
}

bool ProcSimPorts::value(int addr, const QString& name, int* value)
{
    ProcSimIOPluginIf* device = find(addr, ProcSimIOPluginIf::eDirectionRd);
    if (device == nullptr) {
        addIOPlugin(eDevReg, ProcSimIOPluginIf::eDirectionRd, 0)->setBaseAddr(addr, name);
        return false;
    }
    m_touched = true;
    return device->value(addr, name, value);
}

bool ProcSimPorts::setValue(int addr, const QString& name, int value)
{
    ProcSimIOPluginIf* device = find(addr, ProcSimIOPluginIf::eDirectionWr);
    if (device == nullptr) {
        device = addIOPlugin(eDevFifo, ProcSimIOPluginIf::eDirectionWr, 0);
        device->setBaseAddr(addr, name);
    }
    m_touched = true;
    m_contentChanged = m_contentChanged || !device->holds(addr, value);
    device->setValue(addr, name, value);
    return true;
}

void ProcSimPorts::clear()
{
    for (ProcSimIOPluginIf* device : qAsConst(m_devices))
        device->clear();
}

void ProcSimPorts::clearHighlighted()
{
    for (ProcSimIOPluginIf* device : qAsConst(m_devices))
        device->clearHighlighted();
    m_touched = false;
}

void ProcSimPorts::clearTouched()
{
    if (m_touched)
        clearHighlighted();
}

void ProcSimPorts::setBase(int base)
{
    m_base = base;
    for (ProcSimIOPluginIf* device : qAsConst(m_devices))
        device->setBase(base);
}

bool ProcSimPorts::takeContentChanged()
{
    const bool changed = m_contentChanged;
    m_contentChanged = false;
    return changed;
}

} // namespace nsProc
