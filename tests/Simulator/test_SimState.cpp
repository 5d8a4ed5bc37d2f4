// The state of a simulation in the window: whose it is, how the user changes it, what becomes of it.

#include "SimWindow.h"

#include "ModalHelper.h"
#include "ProcSimCore.h"
#include "ProcSimEdtInterrupt.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimIO.h"
#include "ProcSimIOPluginIf.h"
#include "ProcSimStatusBar.h"

#include <QLabel>
#include <QTimer>

using nsProc::eIntDisabled;
using nsProc::eIntEnabled;
using nsProc::eIntPending;
using nsProc::eIntService;

namespace {

const QStringList endless = {"loop: ADD s0, 1", "WRPRT s0, 5", "JUMP loop"};

class SimState : public SimWindow
{
protected:
    /// Does something when a run has begun.
    template <class What>
    void inTheRun(What what)
    {
        QTimer::singleShot(0, window.get(), what);
    }
};

TEST_F(SimState, ClickOnTheInterruptActsOnWhatTheProgramHasMadeOfIt)
{
    ASSERT_TRUE(start("XPBlze3", {"INT ENABLE", "INT DISABLE", "loop: JUMP loop"}));
    trigger(Action::eActionNextInstruction);
    auto* mark = sim()->coreWidget()->findChild<nsProc::ProcSimEdtInterrupt*>();
    ASSERT_NE(mark, nullptr);
    ASSERT_EQ(mark->value(), eIntEnabled);
    // The program goes on, the picture does not yet.
    EXPECT_TRUE(sim()->simOpcode());
    ASSERT_EQ(mark->value(), eIntEnabled);
    QTest::mouseClick(mark, Qt::LeftButton);
    EXPECT_EQ(sim()->core()->interrupt(), eIntDisabled);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("No instruction at interrupt vector"), 0);
}

TEST_F(SimState, ProjectThatIsOpenedDuringARunHasNoSimulator)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    const QPointer<QWidget> ports = sim()->ioWidget();
    const QPointer<QWidget> core = sim()->coreWidget();
    writeFile("next.psm", "loop: NOP\nJUMP loop\n");
    const QString next = writeFile("next.nalvo", projectText("XPBlze3", {}).replace("main.psm", "next.psm"));
    inTheRun([&] {
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(next));
        EXPECT_EQ(sim(), nullptr);
        EXPECT_EQ(enabledActions(), "0");
    });
    trigger(Action::eActionRun);
    EXPECT_EQ(sim(), nullptr);
    EXPECT_EQ(ports, nullptr);
    EXPECT_EQ(core, nullptr);
    EXPECT_EQ(enabledActions(), "0");
    ASSERT_TRUE(assemble());
    trigger(Action::eActionEnable);
    ASSERT_NE(sim(), nullptr);
    EXPECT_EQ(reg(0), 0);
    EXPECT_EQ(clocks(), 0);
    EXPECT_TRUE(sim()->ports()->devices().isEmpty());
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(clocks(), 2);
}

TEST_F(SimState, InterruptWithAFullCallStackIsReportedOnceAndTheProgramGoesOn)
{
    ASSERT_TRUE(start("XPBlze3", {"INT ENABLE", "proc: COMP s0, 30", "JUMP Z, deep", "ADD s0, 1", "CALL proc", "deep: ADD s1, 1",
                                  "ADD s1, 1", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI ENABLE"}));
    document()->setSimBreakpoint(5);
    trigger(Action::eActionRun);
    ASSERT_EQ(pcLine(), 5);
    // One more level than the program has taken.
    nsProc::sCallStackItem_t item;
    while (sim()->callStack()->add(item)) {
    }
    trigger(Action::eActionInterrupt);
    ASSERT_EQ(sim()->core()->interrupt(), eIntPending);
    const qint64 before = clocks();
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("Call stack overflow!"), 1);
    EXPECT_EQ(sim()->core()->interrupt(), eIntService);
    EXPECT_EQ(pcLine(), 5);
    EXPECT_EQ(clocks(), before);
    EXPECT_EQ(sim()->callStack()->count(), 31);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("Call stack overflow!"), 1);
    EXPECT_EQ(pcLine(), 6);
    EXPECT_EQ(reg(1), 1);
}

TEST_F(SimState, DeviceWhoseAddressDoesNotFitIsReportedAndAnswersNowhere)
{
    const auto device = [](const QString& name, const QString& addr) {
        return QStringList{"#SET IODEV::" + name + "::EN, TRUE", "#SET IODEV::" + name + "::TYPE, REG",
                           "#SET IODEV::" + name + "::SIZE, 1", "#SET IODEV::" + name + "::SIMEN, TRUE",
                           "#SET IODEV::" + name + "::BASEADDR, " + addr};
    };
    ASSERT_TRUE(start("XPBlze3", device("far", "0x10000") + device("last", "0xFFFF") + QStringList("RDPRT s0, 0") +
                                     QStringList("end: JUMP end")))
        << messageTexts().join('\n').toStdString();
    EXPECT_EQ(messages("The address of IO device IODEV::far does not fit into 16 bits."), 1)
        << messageTexts().join('\n').toStdString();
    EXPECT_EQ(messages("The address of IO device IODEV::last"), 0);
    ASSERT_EQ(sim()->ports()->devices().size(), 2);
    EXPECT_EQ(sim()->ports()->deviceToRead(0), nullptr);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("An IO device was added to read."), 1);
    EXPECT_EQ(sim()->ports()->devices().size(), 3);
}

TEST_F(SimState, ForeignFileIsTheReasonAlsoAfterAFailedRun)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    writeSource(QStringList("nonsense s0, 1") + endless);
    EXPECT_FALSE(assemble());
    const QString other = writeFile("other.psm", "NOP\n");
    const ModalHelper noMember([](QDialog* dialog) { dialog->reject(); });
    ASSERT_TRUE(editor()->openFile(other));
    const int before = messages("Need successfull assembled code for simulation.");
    trigger(Action::eActionSetPc);
    EXPECT_EQ(messages("The current file not part of the project."), 1);
    EXPECT_EQ(messages("Need successfull assembled code for simulation."), before);
    // In a file of the project, there is still nothing to go to.
    ASSERT_TRUE(editor()->openFile(source()));
    trigger(Action::eActionSetPc);
    EXPECT_EQ(messages("Need successfull assembled code for simulation."), before + 1);
}

} // namespace
