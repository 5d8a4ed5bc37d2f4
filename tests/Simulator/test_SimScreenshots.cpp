// Pictures of running simulations, for a person to look at.

#include "ExampleFolder.h"
#include "SimWindow.h"

#include "ProcSimCallStack.h"
#include "ProcSimIO.h"
#include "ProcSimWaveViewer.h"

#include <QAbstractButton>
#include <QDockWidget>
#include <QMainWindow>
#include <QTimer>

namespace {

class SimScreenshots : public SimWindow, public ::testing::WithParamInterface<const char*>
{
};

TEST_P(SimScreenshots, RunningSimulation)
{
    const QString name = GetParam();
    copyFolder(NALVO_SOURCE_DIR "/examples/" + name, projectDir() + '/' + name);
    copyFolder(NALVO_SOURCE_DIR "/examples/templates", projectDir() + "/templates");
    makeWindow();
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + '/' + name + '/' + name + ".nalvo"));
    // Addresses stand beside the lines of documents that are open at the run.
    for (const char* source : {"/src/uart.psm", "/src/main.psm"})
        editor()->openFile(projectDir() + '/' + name + source);
    asmFe()->assemble(nsModAsmFe::ModAsmFe::eEventNone);
    trigger(Action::eActionEnable);
    ASSERT_NE(sim(), nullptr);
    // The status of a transmitter that has room.
    using nsProc::ProcSimIOPluginIf;
    using nsProc::ProcSimPorts;
    sim()
        ->ports()
        ->addIOPlugin(ProcSimPorts::eDevReg, ProcSimIOPluginIf::eDirectionRd, 0)
        ->setBaseAddr(0, "PORT_STATUS");
    sim()
        ->ports()
        ->addIOPlugin(ProcSimPorts::eDevMem, ProcSimIOPluginIf::eDirectionRdWr, 0)
        ->setBaseAddr(0x80, "buffer");
    sim()->showWaveViewer();
    ASSERT_NE(sim()->waveViewer(), nullptr);
    for (int addr = 1; addr < 5; ++addr)
        sim()->waveViewer()->addAddrChannel(addr, nsProc::ProcSimWaveData::eAccessWr, -1, QString());
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, window.get(), [this] {
        if (clocks() > 20000)
            sim()->simStop();
    });
    beat.start(0);
    trigger(Action::eActionRun);
    beat.stop();
    for (int i = 0; i < 30 && sim()->callStack()->count() < 2; ++i)
        trigger(Action::eActionNextInstruction);
    if (auto* fit = sim()->waveViewer()->findChild<QAbstractButton*>("procSimWaveZoomFit"))
        fit->click();
    screenshot("sim-" + name + "-waves");
    module<ModGuiHookIf>()->setCurrentWidget(sim()->callStackWidget());
    trigger(Action::eActionNextInstruction);
    EXPECT_FALSE(window->grab().isNull());
    screenshot("sim-" + name + "-stack");
}

INSTANTIATE_TEST_SUITE_P(Examples, SimScreenshots,
                         ::testing::Values("uart_monitor", "motor_control", "keypad_lock", "two_pages"));

} // namespace
