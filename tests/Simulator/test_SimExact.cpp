// The simulation exactly as the core in the window, by keys and mouse.

#include "SimWindow.h"

#include "ModConfigHookIf.h"
#include "ProcSimCallStack.h"
#include "ProcSimCore.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimEngine.h"
#include "ProcSimIntLine.h"
#include "ProcSimStatusBar.h"
#include "ProcSimWaveData.h"
#include "ProcSimWaveViewer.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace {

const QHash<QString, QString> exactly = {{"simExact", "1"}};

/// The routine counts in s1, the program in s0.
const QStringList counting = {"INT ENABLE",        // 000  line 0
                              "loop: ADD s0, 1",   // 001
                              "CALL callee",       // 002
                              "JUMP loop",         // 003
                              "callee: ADD s2, 1", // 004
                              "RET",               // 005
                              "isr: ADD s1, 1",    // 006  line 6
                              "RETI ENABLE",       // 007
                              "#ORG ADDR, 0x3FF",
                              "JUMP isr"}; // 3FF  line 9

class SimExact : public SimWindow
{
protected:
    template <class Widget>
    Widget* named(const char* name) const
    {
        return window->findChild<Widget*>(name);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window.get(), key, modifiers);
    }
    QCheckBox* hold() const { return named<QCheckBox>("procSimHoldInterrupt"); }
    QString shownClocks() const { return named<QLabel>("procSimClocks")->text(); }
    nsProc::ProcSimEngine& engine() const { return *sim()->engine(); }
    void typeProgramCounter(const QString& text)
    {
        auto* field = sim()->coreWidget()->findChild<nsProc::ProcSimEdtNumeric*>();
        ASSERT_TRUE(field->toolTip().startsWith("Address of the next instruction"));
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    }
    int address() const { return engine().program().address(engine().position()); }
};

TEST_F(SimExact, TheStatusBarSaysSoAndTheCoreOffersTheSwitch)
{
    ASSERT_TRUE(start("XPBlze3", counting, exactly));
    auto* shown = named<QLabel>("procSimExact");
    ASSERT_NE(shown, nullptr);
    EXPECT_TRUE(shown->isVisible());
    EXPECT_EQ(shown->text(), "Exact");
    ASSERT_NE(hold(), nullptr);
    EXPECT_TRUE(hold()->isVisible());
    screenshot("SimulatorExact");
}

TEST_F(SimExact, WithoutTheSettingThereIsNeither)
{
    ASSERT_TRUE(start("XPBlze3", counting));
    EXPECT_FALSE(named<QLabel>("procSimExact")->isVisible());
    EXPECT_FALSE(hold()->isVisible());
}

TEST_F(SimExact, AClickOnTheInterruptStateIsARequest)
{
    ASSERT_TRUE(start("XPBlze3", counting, exactly));
    press(Qt::Key_F11);
    auto* state = named<QLabel>("procSimEdtInterrupt");
    ASSERT_NE(state, nullptr);
    QTest::mouseClick(state, Qt::LeftButton);
    EXPECT_EQ(sim()->core()->interrupt(), nsProc::eIntEnabled);
    press(Qt::Key_F11);
    press(Qt::Key_F11);
    EXPECT_EQ(pcLine(), 6);
    EXPECT_EQ(shownClocks(), "8");
}

TEST_F(SimExact, AStepIsAnInstructionWithTheClocksOfTheCore)
{
    ASSERT_TRUE(start("LMico8v3x", {"NOP", "main: WRPRT r0, 1", "WRMEM r0, 2", "end: JUMP end"}, exactly));
    // It begins behind the first instruction.
    EXPECT_EQ(pcLine(), 1);
    EXPECT_EQ(sim()->core()->zeroBit(), 1);
    press(Qt::Key_F11);
    EXPECT_EQ(pcLine(), 2);
    EXPECT_EQ(shownClocks(), "3");
    press(Qt::Key_F11);
    press(Qt::Key_F11);
    EXPECT_EQ(shownClocks(), "8");
    EXPECT_EQ(pcLine(), 3);
}

TEST_F(SimExact, TheInterruptButtonLiftsTheInputForOneClock)
{
    ASSERT_TRUE(start("XPBlze3", counting, exactly));
    press(Qt::Key_F11); // INT ENABLE
    trigger(Action::eActionInterrupt);
    // The input counts in the first clock of the next instruction; the one behind that is pre-empted.
    press(Qt::Key_F11);
    EXPECT_EQ(pcLine(), 2);
    EXPECT_EQ(sim()->core()->interrupt(), nsProc::eIntPending);
    press(Qt::Key_F11);
    EXPECT_EQ(pcLine(), 6);
    EXPECT_EQ(shownClocks(), "8"); // an entry and three instructions
    EXPECT_EQ(sim()->callStack()->count(), 1);
    press(Qt::Key_F11);
    press(Qt::Key_F11);
    EXPECT_EQ(pcLine(), 2);
    EXPECT_EQ(reg(1), 1);
    // One clock, one entry.
    for (int step = 0; step < 20; ++step)
        press(Qt::Key_F11);
    EXPECT_EQ(reg(1), 1);
}

TEST_F(SimExact, ARequestWhileInterruptsAreOffIsGoneAfterItsClock)
{
    QStringList lines = counting;
    lines.first() = "NOP";
    ASSERT_TRUE(start("XPBlze3", lines, exactly));
    trigger(Action::eActionInterrupt);
    for (int step = 0; step < 10; ++step)
        press(Qt::Key_F11);
    EXPECT_EQ(reg(1), 0);
}

TEST_F(SimExact, TheSwitchHoldsTheInput)
{
    ASSERT_TRUE(start("XPBlze3", counting, exactly));
    QTest::mouseClick(hold(), Qt::LeftButton, Qt::NoModifier, QPoint(8, hold()->height() / 2));
    ASSERT_TRUE(hold()->isChecked());
    EXPECT_TRUE(engine().intLine()->isHeld());
    // Behind each return the routine is entered again, before any instruction of the program.
    for (int step = 0; step < 13; ++step)
        press(Qt::Key_F11);
    EXPECT_EQ(reg(1), 4);
    EXPECT_EQ(reg(0), 0);
    QTest::mouseClick(hold(), Qt::LeftButton, Qt::NoModifier, QPoint(8, hold()->height() / 2));
    EXPECT_FALSE(engine().intLine()->isHeld());
    for (int step = 0; step < 13; ++step)
        press(Qt::Key_F11);
    EXPECT_LE(reg(1), 5);
    EXPECT_GT(reg(0), 0);
}

TEST_F(SimExact, RunsEndAtBreakpointsAndGoOn)
{
    ASSERT_TRUE(start("XPBlze3", counting, exactly));
    ASSERT_NE(document(), nullptr);
    document()->setSimBreakpoint(4);
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 4);
    EXPECT_EQ(reg(0), 1);
    EXPECT_EQ(shownClocks(), "6");
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 4);
    EXPECT_EQ(reg(0), 2);
    EXPECT_EQ(shownClocks(), "16");
    EXPECT_FALSE(sim()->isRunning());
}

TEST_F(SimExact, ABreakpointInTheRoutineIsReachedByARequest)
{
    ASSERT_TRUE(start("XPBlze3", counting, exactly));
    document()->setSimBreakpoint(6);
    press(Qt::Key_F11);
    trigger(Action::eActionInterrupt);
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 6);
    EXPECT_EQ(shownClocks(), "8");
}

TEST_F(SimExact, StepsOverAndOutOfACall)
{
    ASSERT_TRUE(start("XPBlze3", counting, exactly));
    press(Qt::Key_F11);
    press(Qt::Key_F11);
    EXPECT_EQ(pcLine(), 2);
    press(Qt::Key_F10);
    EXPECT_EQ(pcLine(), 3);
    EXPECT_EQ(reg(2), 1);
    EXPECT_EQ(shownClocks(), "10");
    press(Qt::Key_F11);
    press(Qt::Key_F11);
    press(Qt::Key_F11);
    EXPECT_EQ(pcLine(), 4);
    press(Qt::Key_F11, Qt::ShiftModifier);
    EXPECT_EQ(pcLine(), 3);
    EXPECT_EQ(reg(2), 2);
    EXPECT_EQ(sim()->callStack()->count(), 0);
}

TEST_F(SimExact, RunsToTheCursor)
{
    ASSERT_TRUE(start("XPBlze3", counting, exactly));
    nsModEditor::EditorWidget* widget = document();
    QTextCursor cursor(widget->document()->findBlockByNumber(5));
    widget->setTextCursor(cursor);
    widget->setFocus();
    trigger(Action::eActionToCursor);
    EXPECT_EQ(pcLine(), 5);
}

TEST_F(SimExact, AResetKeepsRegistersAndScratchpad)
{
    ASSERT_TRUE(start(
        "XPBlze3", {"LOAD s0, 0x5A", "WRMEM s0, 3", "INT ENABLE", "COMP s0, s0", "CALL on", "on: JUMP on"}, exactly));
    for (int step = 0; step < 6; ++step)
        press(Qt::Key_F11);
    EXPECT_EQ(sim()->core()->zeroBit(), 1);
    EXPECT_EQ(sim()->callStack()->count(), 1);
    QTest::mouseClick(hold(), Qt::LeftButton, Qt::NoModifier, QPoint(8, hold()->height() / 2));
    trigger(Action::eActionReset);
    EXPECT_EQ(pcLine(), 0);
    EXPECT_EQ(reg(0), 0x5A);
    int cell = 0;
    ASSERT_TRUE(sim()->core()->scrpd(3, &cell));
    EXPECT_EQ(cell, 0x5A);
    EXPECT_EQ(sim()->core()->carryBit(), 0);
    EXPECT_EQ(sim()->core()->zeroBit(), 0);
    EXPECT_EQ(sim()->core()->interrupt(), nsProc::eIntDisabled);
    EXPECT_EQ(sim()->callStack()->count(), 0);
    // The switch shows what the input does.
    EXPECT_EQ(hold()->isChecked(), engine().intLine()->isHeld());
}

TEST_F(SimExact, AResetOfThePicoBlaze6SelectsBankA)
{
    const QStringList lines = {"LOAD s0, 0x11", "REGBANK B", "LOAD s0, 0x22", "end: JUMP end"};
    ASSERT_TRUE(start("XPBlze6", lines, exactly));
    for (int step = 0; step < 4; ++step)
        press(Qt::Key_F11);
    trigger(Action::eActionReset);
    EXPECT_EQ(sim()->core()->bank(), 0);
    EXPECT_EQ(sim()->core()->regValue(0, 0), 0x11);
    EXPECT_EQ(sim()->core()->regValue(1, 0), 0x22);
}

TEST_F(SimExact, AResetOfTheMico8StartsAt001WithZeroClear)
{
    ASSERT_TRUE(start("LMico8v3x", {"NOP", "main: LOAD r0, 5", "SET C", "end: JUMP end"}, exactly));
    EXPECT_EQ(sim()->core()->zeroBit(), 1);
    for (int step = 0; step < 3; ++step)
        press(Qt::Key_F11);
    trigger(Action::eActionReset);
    EXPECT_EQ(pcLine(), 1);
    EXPECT_EQ(reg(0), 5);
    EXPECT_EQ(sim()->core()->carryBit(), 0);
    EXPECT_EQ(sim()->core()->zeroBit(), 0);
}

TEST_F(SimExact, AResetOfTheStatedSimulationClears)
{
    ASSERT_TRUE(start("XPBlze3", {"LOAD s0, 0x5A", "WRMEM s0, 3", "end: JUMP end"}));
    for (int step = 0; step < 3; ++step)
        press(Qt::Key_F11);
    trigger(Action::eActionReset);
    EXPECT_EQ(reg(0), 0);
    int cell = -1;
    ASSERT_TRUE(sim()->core()->scrpd(3, &cell));
    EXPECT_EQ(cell, 0);
}

TEST_F(SimExact, AProgramCounterCanBeTypedThatHasNoInstruction)
{
    ASSERT_TRUE(start("XPBlze3", {"LOAD s0, 5", "end: JUMP end"}, exactly));
    press(Qt::Key_F11);
    typeProgramCounter("200");
    EXPECT_EQ(address(), 0x200);
    EXPECT_EQ(sim()->programCounter(), nullptr);
    press(Qt::Key_F11);
    EXPECT_EQ(address(), 0x201);
    EXPECT_EQ(reg(0), 0); // LOAD s0, 0
    EXPECT_EQ(messages("No command to execute!"), 1);
    // It comes round to the program.
    ASSERT_NE(document(), nullptr);
    document()->setSimBreakpoint(1);
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 1);
    EXPECT_EQ(shownClocks(), QString::number(2 + 2 * (0x400 - 0x200) + 2));
}

TEST_F(SimExact, TheClockCountMayBeClearedInTheMiddleOfARequest)
{
    ASSERT_TRUE(start("XPBlze3", counting, exactly));
    for (int step = 0; step < 6; ++step)
        press(Qt::Key_F11);
    QTest::mouseClick(hold(), Qt::LeftButton, Qt::NoModifier, QPoint(8, hold()->height() / 2));
    QPushButton* clear = nullptr;
    for (QPushButton* button : sim()->statusBarWidget()->findChildren<QPushButton*>()) {
        if (button->text() == "Clear")
            clear = button;
    }
    ASSERT_NE(clear, nullptr);
    QTest::mouseClick(clear, Qt::LeftButton);
    EXPECT_EQ(shownClocks(), "0");
    press(Qt::Key_F11);
    EXPECT_EQ(shownClocks(), "2");
    press(Qt::Key_F11);
    EXPECT_EQ(pcLine(), 6);
    EXPECT_EQ(shownClocks(), "6");
    // A request of the button before the count is cleared is not lost.
    QTest::mouseClick(hold(), Qt::LeftButton, Qt::NoModifier, QPoint(8, hold()->height() / 2));
    for (int step = 0; step < 5; ++step)
        press(Qt::Key_F11);
    const int entries = reg(1);
    trigger(Action::eActionInterrupt);
    QTest::mouseClick(clear, Qt::LeftButton);
    for (int step = 0; step < 5; ++step)
        press(Qt::Key_F11);
    EXPECT_EQ(reg(1), entries + 1);
}

TEST_F(SimExact, TheCallStackThatHasComeRoundShowsTheLevelsThatItHolds)
{
    ASSERT_TRUE(start("LMico8v3x", {"NOP", "deep: ADD r0, 1", "CALL deep"}, exactly));
    for (int step = 0; step < 2 * 17; ++step)
        press(Qt::Key_F11);
    EXPECT_EQ(messages("Call stack overflow!"), 1) << messageTexts().join('\n').toStdString();
    for (int step = 0; step < 2 * 23; ++step)
        press(Qt::Key_F11);
    EXPECT_EQ(reg(0), 40);
    EXPECT_EQ(sim()->callStack()->count(), 16);
    screenshot("SimulatorExactStack");
}

TEST_F(SimExact, TheCallStackOfPicoBlaze3ComesRound)
{
    ASSERT_TRUE(start("XPBlze3", {"CALL deep", "NOP", "deep: ADD s0, 1", "CALL deep"}, exactly));
    for (int step = 0; step < 1 + 2 * 30; ++step)
        press(Qt::Key_F11);
    ASSERT_EQ(sim()->callStack()->count(), 31);
    EXPECT_EQ(sim()->callStack()->items().begin()->pc, 0);
    // One more: the call from 000 is lost, and all that are left are calls from 003.
    press(Qt::Key_F11);
    press(Qt::Key_F11);
    ASSERT_EQ(sim()->callStack()->count(), 31);
    for (const nsProc::sCallStackItem_t& item : sim()->callStack()->items())
        EXPECT_EQ(item.pc, 3);
}

TEST_F(SimExact, TheCallStackOfPicoBlaze6IsEmptyAfterAReset)
{
    ASSERT_TRUE(start("XPBlze6", {"deep: ADD s0, 1", "CALL deep"}, exactly));
    for (int step = 0; step < 2 * 31; ++step)
        press(Qt::Key_F11);
    EXPECT_EQ(sim()->callStack()->count(), 0);
    EXPECT_EQ(address(), 0);
    EXPECT_EQ(reg(0), 32); // the instruction at the target is half executed
}

TEST_F(SimExact, TheProgramGoesOnAfterAnotherRunOfTheAssembler)
{
    ASSERT_TRUE(start("XPBlze3", counting, exactly));
    for (int step = 0; step < 4; ++step)
        press(Qt::Key_F11);
    EXPECT_EQ(pcLine(), 5);
    QStringList lines = counting;
    lines[4] = "callee: ADD s2, 5";
    writeSource(lines);
    ASSERT_TRUE(assemble());
    EXPECT_EQ(pcLine(), 5);
    EXPECT_EQ(messages("Call stack may becomes invalid"), 1);
    for (int step = 0; step < 5; ++step)
        press(Qt::Key_F11);
    EXPECT_EQ(reg(2), 6);
    EXPECT_TRUE(named<QLabel>("procSimExact")->isVisible());
}

TEST_F(SimExact, AMemoryThatHasLostAPageHoldsTheStackNevertheless)
{
    const QStringList twoPages = {"#SET INSTMEM::PAGECOUNT, 2",
                                  "#ORG MEMRANGE, SHARED",
                                  "NOP",
                                  "#ORG ADDR, 0x3FF",
                                  "RETI ENABLE",
                                  "#ORG MEMRANGE, PAGE0",
                                  "JUMP far",
                                  "#ORG MEMRANGE, PAGE1",
                                  "far: CALL deep",
                                  "NOP",
                                  "deep: RET"};
    ASSERT_TRUE(start("XPBlze3", twoPages, exactly)) << messageTexts().join('\n').toStdString();
    press(Qt::Key_F11);
    press(Qt::Key_F11);
    EXPECT_EQ(pcLine(), 10);
    QStringList lines;
    for (int line = 0; line < 12; ++line)
        lines << "RET";
    writeSource(lines);
    assemble();
    for (int step = 0; step < 40; ++step)
        press(Qt::Key_F11);
    typeProgramCounter("3");
    EXPECT_EQ(address(), 3);
    press(Qt::Key_F11);
    trigger(Action::eActionReset);
    EXPECT_EQ(address(), 0);
}

TEST_F(SimExact, WavesShowAConstantAtItsPort)
{
    ASSERT_TRUE(start("XPBlze6", {"WRPRT 0x5A, 0x3", "LOAD s0, 0xA5", "WRPRT s0, 0x3", "end: JUMP end"}, exactly));
    sim()->showWaveViewer();
    ASSERT_NE(sim()->waveViewer(), nullptr);
    nsProc::ProcSimWaveData* waves = sim()->waveViewer()->data();
    waves->addChannel(3, nsProc::ProcSimWaveData::eAccessWr, "out");
    for (int step = 0; step < 3; ++step)
        press(Qt::Key_F11);
    const auto* channel = waves->channel(3, nsProc::ProcSimWaveData::eAccessWr);
    ASSERT_NE(channel, nullptr);
    ASSERT_EQ(channel->values.size(), 2U);
    EXPECT_EQ(channel->values[0].value, 0x5A);
    EXPECT_EQ(channel->values[0].clock, 0);
    EXPECT_EQ(channel->values[1].value, 0xA5);
    EXPECT_EQ(channel->values[1].clock, 4);
    EXPECT_EQ(waves->channels().size(), 1U);
}

TEST_F(SimExact, TheSettingIsMadeOnThePageOfTheProcessor)
{
    ASSERT_TRUE(open("XPBlze3", {"RET", "LOAD s0, 1", "end: JUMP end"}));
    // Off, as the project says nothing.
    trigger(Action::eActionEnable);
    EXPECT_FALSE(named<QLabel>("procSimExact")->isVisible());
    trigger(Action::eActionEnable);
    module<ModConfigHookIf>()->openDialog("Processor");
    auto* dialog = named<QWidget>("configDialog");
    ASSERT_NE(dialog, nullptr);
    QTabWidget* tabs = nullptr;
    for (QTabWidget* candidate : dialog->findChildren<QTabWidget*>()) {
        if (candidate->isVisible())
            tabs = candidate;
    }
    ASSERT_NE(tabs, nullptr);
    int page = 0;
    while (page < tabs->count() && tabs->tabText(page).remove('&') != "Simulation")
        ++page;
    ASSERT_LT(page, tabs->count());
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier, tabs->tabBar()->tabRect(page).center());
    auto* exact = tabs->currentWidget()->findChild<QCheckBox*>("exactSimulation");
    auto* stop = tabs->currentWidget()->findChild<QCheckBox*>("stopAtStack");
    ASSERT_TRUE(exact != nullptr && stop != nullptr && exact->isVisible());
    EXPECT_FALSE(stop->isEnabled());
    exact->setFocus();
    QTest::keyClick(exact, Qt::Key_Space);
    EXPECT_TRUE(exact->isChecked());
    EXPECT_TRUE(stop->isEnabled());
    screenshot("ProcessorSimulation");
    for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
        if (button->isVisible() && button->text().remove('&') == "Apply and close")
            QTest::mouseClick(button, Qt::LeftButton);
    }
    ASSERT_TRUE(assemble());
    trigger(Action::eActionEnable);
    EXPECT_TRUE(named<QLabel>("procSimExact")->isVisible());
    press(Qt::Key_F11);
    EXPECT_EQ(pcLine(), 1);
    EXPECT_EQ(messages("Call stack is empty!"), 1);
}

} // namespace
