// The simulator's actions and its life beside everything else that the user does.

#include "SimWindow.h"

#include "ModSources.h"
#include "ProcList.h"
#include "ProcPluginIf.h"
#include "ProcSimCallStack.h"
#include "ProcSimCore.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimIO.h"
#include "ProcSimIODeviceView.h"
#include "ProcSimIOPluginIf.h"
#include "ProcSimStatusBar.h"
#include "ProcSimWaveViewer.h"

#include <QLabel>
#include <QTabWidget>
#include <QTimer>

namespace {

const QStringList endless = {"loop: ADD s0, 1", "WRPRT s0, 5", "JUMP loop"};

class SimControl : public SimWindow
{
protected:
    /// Does something a while after a run has begun.
    template <class What>
    void later(What what, int delay = 30)
    {
        QTimer::singleShot(delay, window.get(), what);
    }
    nsProc::ProcSimEdtNumeric* numberField(const QString& toolTip) const
    {
        for (nsProc::ProcSimEdtNumeric* field : window->findChildren<nsProc::ProcSimEdtNumeric*>()) {
            if (field->toolTip() == toolTip)
                return field;
        }
        return nullptr;
    }
};

TEST_F(SimControl, DisplayFollowsARunAndIsExactAtItsEnd)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    auto* shown = window->findChild<QLabel*>("procSimClocks");
    ASSERT_NE(shown, nullptr);
    qint64 during = 0;
    later(
        [&] {
            during = shown->text().toLongLong();
            sim()->simStop();
        },
        300);
    trigger(Action::eActionRun);
    EXPECT_GT(during, 0);
    EXPECT_EQ(shown->text(), QString::number(clocks()));
    nsProc::ProcSimEdtNumeric* field = numberField("Register s0");
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->value(), reg(0));
}

TEST_F(SimControl, EditDuringARunCountsAtTheNextInstruction)
{
    ASSERT_TRUE(start("XPBlze3", {"loop: COMP s1, 0x5A", "JUMP NZ, loop", "done: JUMP done"}));
    document()->setSimBreakpoint(2);
    later([&] {
        nsProc::ProcSimEdtNumeric* field = numberField("Register s1");
        ASSERT_NE(field, nullptr);
        field->selectAll();
        QTest::keyClicks(field, "5a");
    });
    // Without the edit the run would not end.
    later([&] { sim()->simStop(); }, 5000);
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 2);
}

TEST_F(SimControl, ValueForANewPortIsTypedInAndRead)
{
    ASSERT_TRUE(start("XPBlze3", {"#EQU PORT, 0x21", "RDPRT s3, PORT", "end: JUMP end"}));
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("An IO device was added to read. Please type in your value."), 1);
    EXPECT_EQ(pcLine(), 1);
    ASSERT_EQ(sim()->ports()->devices().size(), 1);
    QWidget* card = sim()->ioWidget()->viewOf(sim()->ports()->devices().first());
    nsProc::ProcSimEdtNumeric* value = nullptr;
    bool isNamed = false;
    for (nsProc::ProcSimEdtNumeric* field : card->findChildren<nsProc::ProcSimEdtNumeric*>()) {
        if (field->toolTip() == "Value")
            value = field;
    }
    for (const QLabel* label : card->findChildren<QLabel*>())
        isNamed = isNamed || label->text() == "PORT";
    ASSERT_NE(value, nullptr);
    EXPECT_TRUE(isNamed);
    value->selectAll();
    QTest::keyClicks(value, "c7");
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(reg(3), 0xC7);
    EXPECT_EQ(pcLine(), 2);
}

TEST_F(SimControl, WriteBesideADeviceThatOnlyReadsGetsADeviceOfItsOwn)
{
    ASSERT_TRUE(start("XPBlze3", {"RDPRT s0, 7", "WRPRT s0, 7", "end: JUMP end"}));
    trigger(Action::eActionNextInstruction);
    trigger(Action::eActionNextInstruction);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(sim()->ports()->devices().size(), 2);
    // A device that was closed comes back with the next access.
    sim()->ports()->removeIOPlugins();
    trigger(Action::eActionReset);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(sim()->ports()->devices().size(), 1);
    EXPECT_EQ(messages("An IO device was added to read."), 2);
}

TEST_F(SimControl, DocksComeToTheFrontAsAGroup)
{
    ASSERT_TRUE(start("XPBlze3", {"RET"}));
    auto* gui = module<ModGuiHookIf>();
    trigger(Action::eActionNextInstruction);
    ASSERT_FALSE(messageTexts().isEmpty());
    // The user looks at something else in each dock, then at the ports again.
    for (QTabWidget* tabs : window->findChildren<QTabWidget*>()) {
        if (tabs->indexOf(sim()->coreWidget()) >= 0 || tabs->indexOf(sim()->ioWidget()) >= 0 ||
            tabs->indexOf(sim()->callStackWidget()) >= 0)
            tabs->setCurrentIndex(0);
    }
    EXPECT_NE(gui->currentWidget(ModGuiHookIf::eLocationDockLeft), sim()->coreWidget());
    gui->setCurrentWidget(sim()->ioWidget());
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockLeft), sim()->coreWidget());
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockRight), sim()->ioWidget());
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockBottom), sim()->callStackWidget());
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationStatusSecond), sim()->statusBarWidget());
    EXPECT_TRUE(messageTexts().isEmpty());
}

TEST_F(SimControl, WavesTakeWhatPassesAndAreClearedByReset)
{
    ASSERT_TRUE(start("XPBlze3", {"loop: ADD s0, 1", "WRPRT s0, 5", "RDPRT s1, 5", "JUMP loop"}));
    EXPECT_EQ(sim()->waveViewer(), nullptr);
    emit sim()->ioWidget()->wavesRequested();
    nsProc::ProcSimWaveViewer* viewer = sim()->waveViewer();
    ASSERT_NE(viewer, nullptr);
    auto* gui = module<ModGuiHookIf>();
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockBottom), viewer);
    EXPECT_TRUE(viewer->data()->isEmpty());
    viewer->addAddrChannel(5, nsProc::ProcSimWaveData::eAccessWr, -1, QString());
    viewer->addAddrChannel(5, nsProc::ProcSimWaveData::eAccessRd, -1, QString());
    trigger(Action::eActionNextInstruction);
    trigger(Action::eActionNextInstruction);
    trigger(Action::eActionNextInstruction); // adds the register
    trigger(Action::eActionNextInstruction);
    const auto& channels = viewer->data()->channels();
    ASSERT_EQ(channels.size(), 2u);
    ASSERT_EQ(channels[0]->values.size(), 1u);
    EXPECT_EQ(channels[0]->values[0].value, 1);
    EXPECT_EQ(channels[0]->values[0].clock, 2);
    ASSERT_EQ(channels[1]->values.size(), 1u);
    EXPECT_EQ(channels[1]->values[0].clock, 4);
    // Asked for again, it is the same one.
    emit sim()->ioWidget()->wavesRequested();
    EXPECT_EQ(sim()->waveViewer(), viewer);
    trigger(Action::eActionReset);
    EXPECT_EQ(channels.size(), 2u);
    EXPECT_TRUE(channels[0]->values.empty());
    const QPointer<QWidget> alive(viewer);
    trigger(Action::eActionEnable);
    EXPECT_EQ(alive, nullptr);
}

TEST_F(SimControl, ActionsStandAsTheyShould)
{
    ASSERT_TRUE(open("XPBlze3", endless));
    QStringList shown;
    for (QAction* entry : shell()->menuActions(ModActionHookIf::eActionClassSimulator))
        shown.append(entry->isSeparator()
                         ? "-"
                         : QString::number(entry->data().toInt()) + ' ' + entry->text() + '/' + entry->toolTip());
    EXPECT_EQ(shown.join('\n').toStdString(),
              "0 Enable/disable simulator/Enable/disable simulator\n"
              "-\n"
              "7 Reset/Reset simulator\n"
              "8 Set program counter from text cursor/Set program counter from text cursor\n"
              "6 Interrupt/Toggle interrupt\n"
              "-\n"
              "1 Run.../Run simulation\n"
              "2 Next line/Simulate next line\n"
              "3 Next instruction/Simulate next instruction\n"
              "4 Simulate to end of call/Simulate to end of call\n"
              "5 Simulate to cursor/Simulate to cursor\n"
              "-\n"
              "9 Dec/Set numeric base to decimal\n"
              "10 Hex/set numeric base to hexadecimal\n"
              "11 Oct/Set numeric base to octal");
    EXPECT_EQ(shell()->toolBarActions(ModActionHookIf::eActionClassSimulator).size(), shown.size());
    EXPECT_TRUE(shell()->menuActions(ModActionHookIf::eActionClassEdit).isEmpty());
    for (QAction* entry : shell()->actionsSim()->actions())
        EXPECT_TRUE(entry->isSeparator() || !entry->icon().availableSizes().isEmpty()) << entry->text().toStdString();
    EXPECT_EQ(enabledActions(), "0");
}

TEST_F(SimControl, EnableAndDisable)
{
    ASSERT_TRUE(open("XPBlze3", endless));
    trigger(Action::eActionEnable);
    ASSERT_NE(sim(), nullptr);
    EXPECT_EQ(enabledActions(), "0 1 2 3 4 5 6 7 8 9 11");
    auto* gui = module<ModGuiHookIf>();
    const QPointer<QWidget> core = gui->currentWidget(ModGuiHookIf::eLocationDockLeft);
    ASSERT_NE(core, nullptr);
    EXPECT_NE(gui->currentWidget(ModGuiHookIf::eLocationDockRight), nullptr);
    EXPECT_NE(gui->currentWidget(ModGuiHookIf::eLocationDockBottom), nullptr);
    trigger(Action::eActionEnable);
    EXPECT_EQ(sim(), nullptr);
    EXPECT_EQ(core, nullptr);
    EXPECT_EQ(enabledActions(), "0");
}

TEST_F(SimControl, BaseActions)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    trigger(Action::eActionBaseDec);
    EXPECT_EQ(enabledActions(), "0 1 2 3 4 5 6 7 8 10 11");
    trigger(Action::eActionBaseOct);
    EXPECT_EQ(enabledActions(), "0 1 2 3 4 5 6 7 8 9 10");
    EXPECT_EQ(sim()->ports()->base(), 8);
    trigger(Action::eActionNextLine);
    EXPECT_EQ(enabledActions(), "0 1 2 3 4 5 6 7 8 9 10 11");
}

TEST_F(SimControl, RunIsStoppedByItsOwnAction)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    QString during;
    later([&] {
        during = enabledActions();
        trigger(Action::eActionRun);
    });
    trigger(Action::eActionRun);
    EXPECT_EQ(during, "0 1 6 7 9 11");
    EXPECT_EQ(enabledActions(), "0 1 2 3 4 5 6 7 8 9 10 11");
    EXPECT_GT(clocks(), 0);
    EXPECT_NE(sim(), nullptr);
}

TEST_F(SimControl, NoInstructionFollowsAStop)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    qint64 atStop = -1;
    later([&] {
        trigger(Action::eActionRun);
        atStop = clocks();
    });
    trigger(Action::eActionRun);
    EXPECT_EQ(clocks(), atStop);
}

TEST_F(SimControl, FirstPressOfEnableStopsARunTheSecondDisables)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    later([&] { trigger(Action::eActionEnable); });
    trigger(Action::eActionRun);
    ASSERT_NE(sim(), nullptr);
    EXPECT_FALSE(sim()->isRunning());
    trigger(Action::eActionEnable);
    EXPECT_EQ(sim(), nullptr);
}

TEST_F(SimControl, TwoPressesOfEnableInARunDisable)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    later([&] {
        trigger(Action::eActionEnable);
        trigger(Action::eActionEnable);
    });
    trigger(Action::eActionRun);
    EXPECT_EQ(sim(), nullptr);
    EXPECT_EQ(enabledActions(), "0");
}

TEST_F(SimControl, StopAndRunAgainInOneGo)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    later([&] {
        trigger(Action::eActionRun);
        later([&] { sim()->simStop(); });
        trigger(Action::eActionRun);
    });
    trigger(Action::eActionRun);
    EXPECT_FALSE(sim()->isRunning());
    EXPECT_EQ(enabledActions(), "0 1 2 3 4 5 6 7 8 9 10 11");
}

TEST_F(SimControl, StepsAreRefusedDuringARun)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    later([&] {
        const qint64 before = clocks();
        sim()->simNextInstruction();
        sim()->simNextLine();
        sim()->simToCursor();
        sim()->simToEndOfCall();
        sim()->simRun();
        EXPECT_EQ(clocks(), before);
        sim()->simStop();
    });
    trigger(Action::eActionRun);
}

TEST_F(SimControl, ResetEndsARun)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    later([&] { trigger(Action::eActionReset); });
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 0);
    EXPECT_EQ(reg(0), 0);
    EXPECT_FALSE(sim()->isRunning());
}

TEST_F(SimControl, SavingDuringARunReloadsAndEndsIt)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    later([&] {
        document()->insertText("; a comment\n");
        editor()->saveFile();
    });
    trigger(Action::eActionRun);
    EXPECT_FALSE(sim()->isRunning());
    ASSERT_NE(sim()->programCounter(), nullptr);
    EXPECT_GT(clocks(), 0);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("No command"), 0);
}

TEST_F(SimControl, FailedAssemblyDuringARunEndsIt)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    later([&] {
        writeSource({"this is nothing"});
        EXPECT_FALSE(assemble());
    });
    trigger(Action::eActionRun);
    EXPECT_EQ(sim()->programCounter(), nullptr);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("No command to execute!"), 1);
}

TEST_F(SimControl, ClosingTheProjectDuringARunStopsItFirst)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    auto* processor = shell();
    const QPointer<QWidget> ports = sim()->ioWidget();
    bool inPlace = false;
    bool detached = false;
    later([&] {
        module<nsModPrj::ModPrj>()->close();
        inPlace = processor->sim() != nullptr && !processor->sim()->isRunning();
        detached = shell() == nullptr;
    });
    trigger(Action::eActionRun);
    EXPECT_TRUE(inPlace);
    EXPECT_TRUE(detached);
    // The run has ended: what was left of the simulator is gone.
    EXPECT_EQ(processor->sim(), nullptr);
    EXPECT_EQ(ports, nullptr);
}

TEST_F(SimControl, ClosingTheProjectTakesAnIdleSimulatorAway)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    auto* processor = shell();
    const QPointer<QWidget> ports = sim()->ioWidget();
    ASSERT_NE(ports, nullptr);
    module<nsModPrj::ModPrj>()->close();
    EXPECT_EQ(processor->sim(), nullptr);
    EXPECT_EQ(ports, nullptr);
}

TEST_F(SimControl, AnotherProcessorDuringARun)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    auto* registry = module<nsModProcessor::ModProcessor>();
    later([&] { registry->setupProcessorIf(registry->processorList()->interface("Xilinx PicoBlaze 6")); });
    trigger(Action::eActionRun);
    EXPECT_EQ(sim(), nullptr);
    ASSERT_TRUE(assemble());
    trigger(Action::eActionEnable);
    ASSERT_NE(sim(), nullptr);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(reg(0), 1);
}

TEST_F(SimControl, QuittingDuringARun)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    bool closed = false;
    later([&] { closed = closeWindow(); });
    shell()->simRun();
    EXPECT_TRUE(closed);
}

TEST_F(SimControl, OpeningAnotherProjectDuringARun)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    const QString other = writeFile("other.nalvo", projectText("LMico8v3x", {}));
    later([&] { EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(other)); });
    trigger(Action::eActionRun);
    EXPECT_EQ(sim(), nullptr);
    writeSource({"loop: ADD r0, 1", "JUMP loop"});
    ASSERT_TRUE(assemble());
    trigger(Action::eActionEnable);
    ASSERT_NE(sim(), nullptr);
    EXPECT_EQ(sim()->core()->regCount(), 32);
}

TEST_F(SimControl, DialogStaysOpenWhileTheSimulatorIsEnabled)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    EXPECT_FALSE(module<nsModProcessor::ModProcessor>()->configPageCloseRequest());
    EXPECT_EQ(messages("The simulator must be disabled before closing the configuration dialog."), 1);
    trigger(Action::eActionEnable);
    EXPECT_TRUE(module<nsModProcessor::ModProcessor>()->configPageCloseRequest());
}

TEST_F(SimControl, ProjectOfADifferentNameFindsTheSimulatorGone)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    const QString project = writeFile("second.nalvo", projectText("XPBlze3", {}));
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(project));
    EXPECT_EQ(sim(), nullptr);
    EXPECT_EQ(enabledActions(), "0");
}

TEST_F(SimControl, AddressColumnComesWithTheSimulator)
{
    ASSERT_TRUE(open("XPBlze3", endless));
    nsModEditor::EditorWidget* widget = document();
    QCoreApplication::processEvents();
    const int before = widget->viewport()->x();
    trigger(Action::eActionEnable);
    QCoreApplication::processEvents();
    EXPECT_GT(widget->viewport()->x(), before);
    trigger(Action::eActionEnable);
    QCoreApplication::processEvents();
    EXPECT_EQ(widget->viewport()->x(), before);
}

} // namespace
