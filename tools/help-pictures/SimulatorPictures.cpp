// A simulation and its panels.

#include "PictureWindow.h"
#include "Pictures.h"

#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModProcessor.h"
#include "ProcShell.h"
#include "ProcSim.h"
#include "ProcSimCallStack.h"
#include "ProcSimCore.h"
#include "ProcSimIO.h"
#include "ProcSimPorts.h"
#include "ProcSimWaveViewer.h"

#include <QAbstractButton>

namespace {

using nsProc::ProcSimIOPluginIf;
using nsProc::ProcSimPorts;

const int maxSteps = 20000;

nsProc::ProcSim* simOf(const PictureWindow& stage)
{
    auto* shell = dynamic_cast<nsProc::ProcShell*>(stage.module<nsModProcessor::ModProcessor>()->currentProcessor());
    return shell != nullptr ? shell->sim() : nullptr;
}

void addDevices(nsProc::ProcSim* sim)
{
    const struct
    {
        ProcSimPorts::eDevType_t type;
        ProcSimIOPluginIf::eDirection_t direction;
        int addr;
        const char* name;
    } devices[] = {
        // Its transmitter has room at once.
        {ProcSimPorts::eDevReg, ProcSimIOPluginIf::eDirectionRd, 0, "PORT_UART_STATUS"},
        {ProcSimPorts::eDevFifo, ProcSimIOPluginIf::eDirectionWr, 1, "PORT_UART_TX"},
        {ProcSimPorts::eDevMem, ProcSimIOPluginIf::eDirectionRdWr, 0x80, "buffer"},
    };
    for (const auto& device : devices) {
        ProcSimIOPluginIf* added = sim->ports()->addIOPlugin(device.type, device.direction, 0);
        if (added != nullptr)
            added->setBaseAddr(device.addr, QLatin1String(device.name));
    }
}

} // namespace

void takeSimulator(PictureWindow& stage)
{
    const QString next = QStringLiteral("Next instruction");
    stage.trigger(QStringLiteral("Enable/disable simulator"));
    nsProc::ProcSim* sim = simOf(stage);
    if (sim == nullptr)
        return stage.fail(QStringLiteral("the simulator can not be enabled"));
    addDevices(sim);
    sim->showWaveViewer();
    for (int addr = 1; addr <= 3 && sim->waveViewer() != nullptr; ++addr)
        sim->waveViewer()->addAddrChannel(addr, nsProc::ProcSimWaveData::eAccessWr, -1, QString());
    for (int step = 0; step < maxSteps; ++step)
        stage.trigger(next);
    auto* gui = stage.module<ModGuiHookIf>();
    if (auto* fit = sim->waveViewer()->findChild<QAbstractButton*>(QStringLiteral("procSimWaveZoomFit")))
        fit->click();
    gui->setCurrentWidget(sim->waveViewer());
    stage.take(QStringLiteral("simulatorWaves"), sim->waveViewer());
    gui->setCurrentWidget(sim->callStackWidget());
    stage.take(QStringLiteral("simulator"), stage.window());
    gui->setCurrentWidget(sim->coreWidget());
    stage.take(QStringLiteral("simulatorState"), sim->coreWidget());
    gui->setCurrentWidget(sim->ioWidget());
    stage.take(QStringLiteral("simulatorDevices"), sim->ioWidget());
    stage.trigger(QStringLiteral("Enable/disable simulator"));
}
