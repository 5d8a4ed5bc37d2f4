// The state of a simulation in the window: whose it is, how the user changes it, what becomes of it.

#include "SimWindow.h"

#include "ModalHelper.h"
#include "ProcSimCore.h"
#include "ProcSimEdtInterrupt.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimHighlight.h"
#include "ProcSimIO.h"
#include "ProcSimIOPluginIf.h"
#include "ProcSimStatusBar.h"
#include "QtPrinters.h"

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
    ASSERT_TRUE(start("XPBlze3", {"INT ENABLE", "proc: COMP s0, 30", "JUMP Z, deep", "ADD s0, 1", "CALL proc",
                                  "deep: ADD s1, 1", "ADD s1, 1", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI ENABLE"}));
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

TEST_F(SimState, ProgramCounterIsTypedIn)
{
    ASSERT_TRUE(start("XPBlze3", {"LOAD s0, 1", "LOAD s1, 2", "LOAD s2, 3", "end: JUMP end"}));
    auto* pc = sim()->coreWidget()->findChild<nsProc::ProcSimEdtNumeric*>();
    ASSERT_NE(pc, nullptr);
    ASSERT_TRUE(pc->toolTip().startsWith("Address of the next instruction"));
    const auto type = [pc](const char* text) {
        pc->selectAll();
        QTest::keyClicks(pc, text);
        QTest::keyClick(pc, Qt::Key_Return);
    };
    type("2");
    EXPECT_EQ(pcLine(), 2);
    EXPECT_EQ(sim()->core()->pc(), 2);
    EXPECT_EQ(pc->text(), "002");
    EXPECT_EQ(clocks(), 0);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(reg(2), 3);
    EXPECT_EQ(reg(0), 0);
    // Where no instruction is, the program counter stays, and the user is told.
    type("200");
    EXPECT_EQ(messages("No command to execute!"), 1);
    EXPECT_EQ(pcLine(), 3);
    EXPECT_EQ(pc->text(), "003");
    EXPECT_EQ(pc->value(), 3);
}

TEST_F(SimState, CommandStartsAtTheAddressThatWasTypedLast)
{
    ASSERT_TRUE(start("XPBlze3", {"LOAD s0, 1", "LOAD s1, 2", "LOAD s2, 3", "end: JUMP end"}));
    auto* pc = sim()->coreWidget()->findChild<nsProc::ProcSimEdtNumeric*>();
    pc->selectAll();
    QTest::keyClicks(pc, "2");
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(reg(0), 0);
    EXPECT_EQ(reg(2), 3);
    EXPECT_EQ(pcLine(), 3);
    // No command starts anywhere else, if there is no instruction at the address.
    pc->selectAll();
    QTest::keyClicks(pc, "77");
    trigger(Action::eActionNextLine);
    EXPECT_EQ(messages("No command to execute!"), 1);
    EXPECT_EQ(clocks(), 2);
    EXPECT_EQ(pcLine(), 3);
    EXPECT_EQ(pc->text(), "003");
}

TEST_F(SimState, SimulatorThatGoesTakesAHalfTypedAddressWithIt)
{
    ASSERT_TRUE(start("XPBlze3", {"LOAD s0, 1", "LOAD s1, 2", "end: JUMP end"}));
    auto* pc = sim()->coreWidget()->findChild<nsProc::ProcSimEdtNumeric*>();
    QApplication::setActiveWindow(window.get());
    pc->setFocus();
    ASSERT_TRUE(pc->hasFocus());
    pc->selectAll();
    QTest::keyClicks(pc, "77");
    const int before = messageTexts().size();
    trigger(Action::eActionEnable);
    EXPECT_EQ(sim(), nullptr);
    EXPECT_EQ(messageTexts().size(), before) << messageTexts().join('\n').toStdString();
}

TEST_F(SimState, TypedProgramCounterBringsSteppingBack)
{
    ASSERT_TRUE(start("XPBlze3", {"RET", "end: JUMP end"}));
    auto* pc = sim()->coreWidget()->findChild<nsProc::ProcSimEdtNumeric*>();
    document()->setCursorToLine(2);
    trigger(Action::eActionSetPc);
    ASSERT_EQ(enabledActions(), "0 6 7 8 9 11");
    trigger(Action::eActionReset);
    trigger(Action::eActionNextInstruction);
    ASSERT_EQ(sim()->programCounter(), nullptr);
    document()->setCursorToLine(2);
    trigger(Action::eActionSetPc);
    ASSERT_EQ(enabledActions(), "0 6 7 8 9 10 11");
    pc->selectAll();
    QTest::keyClicks(pc, "1");
    QTest::keyClick(pc, Qt::Key_Return);
    EXPECT_EQ(pcLine(), 1);
    EXPECT_EQ(enabledActions(), "0 1 2 3 4 5 6 7 8 9 10 11");
}

TEST_F(SimState, ProgramCounterIsNotTypedInDuringARunOrWithoutAProgram)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    auto* pc = sim()->coreWidget()->findChild<nsProc::ProcSimEdtNumeric*>();
    EXPECT_FALSE(pc->isReadOnly());
    inTheRun([&] {
        EXPECT_TRUE(pc->isReadOnly());
        sim()->simStop();
    });
    trigger(Action::eActionRun);
    EXPECT_FALSE(pc->isReadOnly());
    writeSource({"nonsense s0, 1"});
    EXPECT_FALSE(assemble());
    const int before = messages("Need successfull assembled code for simulation.");
    pc->selectAll();
    QTest::keyClicks(pc, "1");
    QTest::keyClick(pc, Qt::Key_Return);
    EXPECT_EQ(messages("Need successfull assembled code for simulation."), before + 1);
    EXPECT_EQ(sim()->programCounter(), nullptr);
}

TEST_F(SimState, TypedAddressIsOneOfThePageThatTheProgramIsIn)
{
    ASSERT_TRUE(start("XPBlze3", {"#SET INSTMEM::PAGECOUNT, 2", "#ORG MEMRANGE, SHARED", "common: JUMP common",
                                  "#ORG MEMRANGE, PAGE0", "LOAD s0, 1", "LOAD s0, 2", "#ORG MEMRANGE, PAGE1",
                                  "LOAD s0, 3", "LOAD s0, 4"}))
        << messageTexts().join('\n').toStdString();
    auto* pc = sim()->coreWidget()->findChild<nsProc::ProcSimEdtNumeric*>();
    const auto type = [pc](int addr) {
        pc->selectAll();
        QTest::keyClicks(pc, QString::number(addr, 16));
        QTest::keyClick(pc, Qt::Key_Return);
    };
    document()->setCursorToLine(7);
    trigger(Action::eActionSetPc);
    const int first = sim()->core()->pc();
    ASSERT_EQ(sim()->core()->pageName(), "PAGE1");
    type(first + 1);
    EXPECT_EQ(pcLine(), 8);
    EXPECT_EQ(sim()->core()->pageName(), "PAGE1");
    // In the range that all pages share, and out of it again: the page is the one that the program was in last.
    document()->setCursorToLine(2);
    trigger(Action::eActionSetPc);
    ASSERT_EQ(sim()->core()->pageName(), "SHARED");
    const int shared = sim()->core()->pc();
    type(first);
    EXPECT_EQ(pcLine(), 7);
    type(shared);
    EXPECT_EQ(pcLine(), 2);
    document()->setCursorToLine(4);
    trigger(Action::eActionSetPc);
    type(first + 1);
    EXPECT_EQ(pcLine(), 5);
}

TEST_F(SimState, RunningIsShown)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    auto* state = sim()->statusBarWidget()->findChild<QLabel*>("procSimState");
    ASSERT_NE(state, nullptr);
    EXPECT_NE(state->text(), "Running");
    const auto picture = [this](Action::eAction_t which) { return action(which)->icon().pixmap(24).toImage(); };
    const QImage run = picture(Action::eActionRun);
    const QImage next = picture(Action::eActionNextLine);
    const QString tip = action(Action::eActionRun)->toolTip();
    const QImage stop = QIcon(":/ProcCommon/img/simulator/simStop.png").pixmap(24).toImage();
    ASSERT_FALSE(stop.isNull());
    inTheRun([&] {
        EXPECT_EQ(state->text(), "Running");
        EXPECT_EQ(picture(Action::eActionRun), stop);
        EXPECT_EQ(picture(Action::eActionNextLine), next);
        EXPECT_EQ(action(Action::eActionRun)->toolTip(), "Stop simulation");
        EXPECT_EQ(action(Action::eActionRun)->text(), "Run...");
        // The sign is the place to stop the run.
        trigger(Action::eActionRun);
    });
    trigger(Action::eActionRun);
    EXPECT_NE(state->text(), "Running");
    EXPECT_EQ(picture(Action::eActionRun), run);
    EXPECT_EQ(action(Action::eActionRun)->toolTip(), tip);
    inTheRun([&] {
        EXPECT_EQ(picture(Action::eActionToEndOfCall), stop);
        EXPECT_EQ(picture(Action::eActionRun), run);
        // A reset ends the run, and with it the sign.
        trigger(Action::eActionReset);
    });
    trigger(Action::eActionToEndOfCall);
    EXPECT_NE(picture(Action::eActionToEndOfCall), stop);
    EXPECT_NE(state->text(), "Running");
}

TEST_F(SimState, RunThatFollowsARunInOneGoIsShown)
{
    ASSERT_TRUE(start("XPBlze3", endless));
    auto* state = sim()->statusBarWidget()->findChild<QLabel*>("procSimState");
    ASSERT_NE(state, nullptr);
    const QString tip = action(Action::eActionRun)->toolTip();
    QString during;
    inTheRun([&] {
        trigger(Action::eActionRun);
        inTheRun([&] {
            during = state->text() + '/' + action(Action::eActionRun)->toolTip();
            sim()->simStop();
        });
        trigger(Action::eActionRun);
    });
    trigger(Action::eActionRun);
    EXPECT_EQ(during, "Running/Stop simulation");
    EXPECT_NE(state->text(), "Running");
    EXPECT_EQ(action(Action::eActionRun)->toolTip(), tip);
}

/// Which registers of the first bank are highlighted, by their numbers.
QString highlightedRegs(const nsProc::ProcSimCoreData* core)
{
    QStringList indices;
    for (int index = 0; index < core->regCount(); ++index) {
        if (core->isRegHighlighted(0, index))
            indices.append(QString::number(index));
    }
    return indices.join(' ');
}

const QStringList threeLoads = {"LOAD s0, 1", "LOAD s1, 2", "LOAD s2, 3", "end: JUMP end"};

TEST_F(SimState, HighlightsOfAPicoBlaze6PileUpOverARunAndSaySo)
{
    ASSERT_TRUE(start("XPBlze6", threeLoads));
    document()->setSimBreakpoint(3);
    trigger(Action::eActionRun);
    ASSERT_EQ(pcLine(), 3);
    EXPECT_EQ(highlightedRegs(sim()->core()), "0 1 2");
    const QString note = "Set by the program since the last single step or reset.";
    EXPECT_EQ(nsProc::highlightNote(sim()->coreWidget()), note);
    EXPECT_EQ(nsProc::highlightNote(sim()->ioWidget()), note);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(highlightedRegs(sim()->core()), "");
}

TEST_F(SimState, HighlightsOfTheOthersAreThoseOfTheLastInstructionAndSaySo)
{
    ASSERT_TRUE(start("XPBlze3", threeLoads));
    document()->setSimBreakpoint(3);
    trigger(Action::eActionRun);
    ASSERT_EQ(pcLine(), 3);
    EXPECT_EQ(highlightedRegs(sim()->core()), "2");
    EXPECT_EQ(nsProc::highlightNote(sim()->coreWidget()), "Set by the instruction that was executed last.");
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(highlightedRegs(sim()->core()), "");
}

TEST_F(SimState, BreakpointOfADocumentThatClosesIsForgotten)
{
    ASSERT_TRUE(start("XPBlze3", {"loop: ADD s0, 1", "NOP", "JUMP loop"}));
    document()->setSimBreakpoint(1);
    trigger(Action::eActionRun);
    ASSERT_EQ(pcLine(), 1);
    editor()->closeFile();
    // A run that was not stopped once in two rounds of the loop has no breakpoint in it.
    const qint64 before = clocks();
    QTimer rounds;
    QObject::connect(&rounds, &QTimer::timeout, [this, before] {
        if (clocks() > before + 12)
            sim()->simStop();
    });
    rounds.start(0);
    trigger(Action::eActionRun);
    rounds.stop();
    EXPECT_GT(clocks(), before + 12);
    document()->setSimBreakpoint(1);
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 1);
}

} // namespace
