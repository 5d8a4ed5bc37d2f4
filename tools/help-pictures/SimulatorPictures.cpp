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
#include <QApplication>
#include <QMouseEvent>

namespace {

using nsProc::ProcSimIOPluginIf;
using nsProc::ProcSimPorts;

/// Up to a call within a call.
const int stepCount = 400;
const int wavesHeight = 230;
const int stackHeight = 150;

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

void clickAt(QWidget* widget, const QPoint& pos)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, pos, Qt::LeftButton, type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
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
    for (int step = 0; step < stepCount; ++step)
        stage.trigger(next);
    auto* gui = stage.module<ModGuiHookIf>();
    if (auto* fit = sim->waveViewer()->findChild<QAbstractButton*>(QStringLiteral("procSimWaveZoomFit")))
        fit->click();
    gui->setCurrentWidget(sim->waveViewer());
    stage.setBottomHeight(wavesHeight);
    if (auto* waves = sim->waveViewer()->findChild<QWidget*>(QStringLiteral("procSimWaves")))
        clickAt(waves, QPoint(waves->width() / 2, waves->height() / 2));
    stage.take(QStringLiteral("simulatorWaves"), sim->waveViewer());
    gui->setCurrentWidget(sim->callStackWidget());
    stage.setBottomHeight(stackHeight);
    stage.take(QStringLiteral("simulator"), stage.window());
    // The panels at the sides as a user has them who looks at them alone.
    gui->setWidgetVisible(ModGuiHookIf::eLocationDockBottom, false);
    gui->setCurrentWidget(sim->coreWidget());
    stage.take(QStringLiteral("simulatorState"), sim->coreWidget());
    gui->setCurrentWidget(sim->ioWidget());
    stage.take(QStringLiteral("simulatorDevices"), sim->ioWidget());
    gui->setWidgetVisible(ModGuiHookIf::eLocationDockBottom, true);
    stage.trigger(QStringLiteral("Enable/disable simulator"));
}
