#include "ProcSimDevices.h"

#include "ProcCoreConfig.h"
#include "ProcSimCoreData.h"
#include "ProcSimIODevice.h"
#include "ProcSimOutcome.h"
#include "ProcSimPorts.h"

#include "IODevList.h"

#include <QCoreApplication>

#include <algorithm>

namespace nsProc {

using nsModAsmFe::IODev;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nsProc::ProcSim", text);
}

} // namespace

bool ProcSimDevices::init(const nsModAsmFe::IODevList& devices)
{
    bool success = true;
    for (const IODev* dev : devices.devices()) {
        if (dev->simEn && !initDevice(*dev))
            success = false;
    }
    return success;
}

bool ProcSimDevices::initDevice(const IODev& dev)
{
    // A copy, as initValue() takes a pointer to values that are not const.
    std::vector<unsigned int> values = dev.values;
    if (dev.devName == m_config.scrpdIODev) {
        m_core.initScrpd(values.data(), std::min(dev.memSize, int(values.size())));
        return true;
    }
    ProcSimPorts::eDevType_t type = ProcSimPorts::eDevReg;
    switch (dev.devType) {
    case IODev::reg:
        break;
    case IODev::fifo:
        type = ProcSimPorts::eDevFifo;
        break;
    case IODev::mem:
        type = ProcSimPorts::eDevMem;
        break;
    default:
        m_outcome.reportInternal(tr("Unsupported device type for IO Device!"));
        return false;
    }
    if (dev.simAccessMode < IODev::simRd || dev.simAccessMode > IODev::simRdWr) {
        m_outcome.reportInternal(tr("Unsupported direction for IODevice!"));
        return false;
    }
    const auto direction = ProcSimPorts::eDirection_t(dev.simAccessMode);
    ProcSimIOPluginIf* plugin = m_ports.addIOPlugin(type, direction, int(dev.initValue));
    plugin->setMemSize(dev.memSize);
    if (dev.baseAddr > uint(ProcSimIODevice::maxAddr)) {
        plugin->setBaseAddr(ProcSimIODevice::noAddr, QString());
        m_outcome.report(warnIODevNoPort, dev.devName);
    } else {
        plugin->setBaseAddr(int(dev.baseAddr), QString());
    }
    plugin->setName(dev.devName);
    plugin->initValue(values.data(), std::min(dev.memSize, int(values.size())));
    return true;
}

} // namespace nsProc
