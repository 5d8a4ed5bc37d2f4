// Commands of the simulator in the window: where they start, where they end, what they report.

#include "ModalHelper.h"
#include "SimWindow.h"

#include "ProcSimIO.h"

#include <QTimer>

using nsProc::eIntDisabled;
using nsProc::eIntEnabled;
using nsProc::eIntPending;
using nsProc::eIntService;

namespace {

class SimCommands : public SimWindow
{
};

const QStringList callProgram = {
    "    LOAD s0, 1", // 0
    "    CALL proc",  // 1
    "    LOAD s1, 2", // 2
    "end:",           // 3
    "    JUMP end",   // 4
    "proc:",          // 5
    "    ADD s0, 4",  // 6
    "    ADD s0, 8",  // 7
    "    RET",        // 8
};

TEST_F(SimCommands, StepsOneInstruction)
{
    ASSERT_TRUE(start("XPBlze3", callProgram));
    EXPECT_EQ(pcLine(), 0);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(pcLine(), 1);
    EXPECT_EQ(reg(0), 1);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(pcLine(), 6);
    EXPECT_EQ(sim()->callStack()->count(), 1);
    EXPECT_EQ(clocks(), 4);
}

TEST_F(SimCommands, NextLineStepsOverACall)
{
    ASSERT_TRUE(start("XPBlze3", callProgram));
    trigger(Action::eActionNextLine);
    trigger(Action::eActionNextLine);
    EXPECT_EQ(pcLine(), 2);
    EXPECT_EQ(reg(0), 13);
    EXPECT_EQ(sim()->callStack()->count(), 0);
    EXPECT_FALSE(sim()->isRunning());
}

TEST_F(SimCommands, NextLineEndsAtOnceAtACallThatIsNotTaken)
{
    ASSERT_TRUE(start("XPBlze3", {"CALL Z, proc", "NOP", "proc: RET"}));
    trigger(Action::eActionNextLine);
    EXPECT_EQ(pcLine(), 1);
    EXPECT_EQ(clocks(), 2);
}

TEST_F(SimCommands, NextLineStopsAtABreakpointInTheCallee)
{
    ASSERT_TRUE(start("XPBlze3", callProgram));
    document()->setSimBreakpoint(7);
    trigger(Action::eActionNextLine);
    trigger(Action::eActionNextLine);
    EXPECT_EQ(pcLine(), 7);
    EXPECT_FALSE(sim()->isRunning());
    EXPECT_EQ(enabledActions(), "0 1 2 3 4 5 6 7 8 9 10 11");
}

TEST_F(SimCommands, EndOfCallEndsBehindTheCall)
{
    ASSERT_TRUE(start("XPBlze3", callProgram));
    sim()->simNextInstruction();
    sim()->simNextInstruction();
    ASSERT_EQ(pcLine(), 6);
    trigger(Action::eActionToEndOfCall);
    EXPECT_EQ(pcLine(), 2);
}

TEST_F(SimCommands, EndOfCallAtTheTopRunsToABreakpoint)
{
    ASSERT_TRUE(start("XPBlze3", callProgram));
    document()->setSimBreakpoint(4);
    trigger(Action::eActionToEndOfCall);
    EXPECT_EQ(pcLine(), 4);
}

TEST_F(SimCommands, ToCursorRunsToTheLine)
{
    ASSERT_TRUE(start("XPBlze3", callProgram));
    document()->setCursorToLine(7);
    trigger(Action::eActionToCursor);
    EXPECT_EQ(pcLine(), 7);
    EXPECT_EQ(reg(0), 5);
}

TEST_F(SimCommands, ToCursorOnTheCurrentInstructionDoesNothing)
{
    ASSERT_TRUE(start("XPBlze3", callProgram));
    document()->setCursorToLine(0);
    trigger(Action::eActionToCursor);
    EXPECT_EQ(pcLine(), 0);
    EXPECT_EQ(clocks(), 0);
}

TEST_F(SimCommands, CursorOnACommentMeansTheNextInstructionBelow)
{
    ASSERT_TRUE(start("XPBlze3", {"NOP", "NOP", "; text", "", "NOP", "end: JUMP end"}));
    document()->setCursorToLine(2);
    trigger(Action::eActionToCursor);
    EXPECT_EQ(pcLine(), 4);
}

TEST_F(SimCommands, CursorBehindTheProgramIsReported)
{
    ASSERT_TRUE(start("XPBlze3", {"end: JUMP end", "; nothing", ""}));
    document()->setCursorToLine(1);
    trigger(Action::eActionSetPc);
    EXPECT_EQ(messages("No command to execute!"), 1);
    EXPECT_EQ(pcLine(), 0);
    EXPECT_EQ(enabledActions(), "0 6 7 8 9 11");
}

TEST_F(SimCommands, CursorInAForeignFileIsReported)
{
    ASSERT_TRUE(start("XPBlze3", callProgram));
    const QString other = writeFile("other.psm", "NOP\n");
    const ModalHelper noMember([](QDialog* dialog) { dialog->reject(); });
    ASSERT_TRUE(editor()->openFile(other));
    trigger(Action::eActionSetPc);
    EXPECT_EQ(messages("The current file not part of the project."), 1);
    EXPECT_EQ(pcLine(), 0);
}

TEST_F(SimCommands, SetPcFromCursorKeepsTheCallStack)
{
    ASSERT_TRUE(start("XPBlze3", callProgram));
    sim()->simNextInstruction();
    sim()->simNextInstruction();
    document()->setCursorToLine(2);
    trigger(Action::eActionSetPc);
    EXPECT_EQ(pcLine(), 2);
    EXPECT_EQ(sim()->callStack()->count(), 1);
    EXPECT_EQ(clocks(), 4);
}

TEST_F(SimCommands, BreakpointOnABlankLineActsOnTheInstructionBelow)
{
    ASSERT_TRUE(start("XPBlze3", {"LOAD s0, 1", "", "; text", "LOAD s0, 2", "end: JUMP end"}));
    document()->setSimBreakpoint(1);
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 3);
    EXPECT_EQ(reg(0), 1);
}

TEST_F(SimCommands, RunThatStartsAtABreakpointExecutesIt)
{
    ASSERT_TRUE(start("XPBlze3", {"loop: ADD s0, 1", "JUMP loop"}));
    document()->setSimBreakpoint(0);
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 0);
    EXPECT_EQ(reg(0), 1);
    trigger(Action::eActionRun);
    EXPECT_EQ(reg(0), 2);
}

TEST_F(SimCommands, BreakpointBehindTheProgramIsDropped)
{
    ASSERT_TRUE(start("XPBlze3", {"LOAD s0, 1", "RET", "", ""}));
    document()->setSimBreakpoint(3);
    trigger(Action::eActionRun);
    EXPECT_EQ(messages("Call stack is empty! Nothing to return."), 1);
}

TEST_F(SimCommands, BreakpointsChangeDuringARun)
{
    ASSERT_TRUE(start("XPBlze3", {"loop: ADD s0, 1", "NOP", "JUMP loop"}));
    nsModEditor::EditorWidget* widget = document();
    QTimer::singleShot(0, widget, [widget] { widget->setSimBreakpoint(1); });
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 1);
    // Cleared again, the next run has to be stopped by hand.
    widget->setSimBreakpoint(1);
    const int before = int(clocks());
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, widget, [this, before] {
        if (clocks() > before + 6)
            sim()->simStop();
    });
    beat.start(0);
    trigger(Action::eActionRun);
    EXPECT_GT(clocks(), before + 6);
}

TEST_F(SimCommands, CallNumber32Overflows)
{
    ASSERT_TRUE(start("XPBlze3", {"ADD s0, 1", "proc: CALL proc"}));
    trigger(Action::eActionRun);
    EXPECT_EQ(messages("Call stack overflow!"), 1);
    EXPECT_EQ(sim()->callStack()->count(), 31);
    EXPECT_EQ(pcLine(), 1);
    EXPECT_EQ(clocks(), 2 + 31 * 2);
    EXPECT_FALSE(sim()->isRunning());
}

TEST_F(SimCommands, ReturnAtDepthZeroLeavesNoInstruction)
{
    ASSERT_TRUE(start("XPBlze3", {"RET"}));
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(sim()->programCounter(), nullptr);
    EXPECT_EQ(messages("Internal error: Zero program pointer!"), 1);
    EXPECT_EQ(messages("Call stack is empty! Nothing to return."), 1);
    EXPECT_EQ(clocks(), 2);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("No command to execute!"), 1);
    EXPECT_EQ(clocks(), 2);
}

TEST_F(SimCommands, EndOfTheProgramIsReported)
{
    ASSERT_TRUE(start("XPBlze3", {"NOP"}));
    trigger(Action::eActionRun);
    EXPECT_EQ(messages("Internal error: Zero program pointer!"), 1);
    EXPECT_EQ(messages("No command to execute!"), 1);
    EXPECT_EQ(clocks(), 2);
}

TEST_F(SimCommands, StartMarkIsWhereTheSimulationStarts)
{
    ASSERT_TRUE(open("XPBlze3", callProgram));
    document()->setSimStartPointer(5);
    trigger(Action::eActionEnable);
    EXPECT_EQ(pcLine(), 6);
    sim()->simNextInstruction();
    trigger(Action::eActionReset);
    EXPECT_EQ(pcLine(), 6);
    EXPECT_EQ(clocks(), 2);
    document()->clearSimStartPointer();
    trigger(Action::eActionReset);
    EXPECT_EQ(pcLine(), 0);
}

TEST_F(SimCommands, ResetClearsTheStateButNotTheClock)
{
    ASSERT_TRUE(start(
        "XPBlze3", {"LOAD s3, 7", "WRMEM s3, 5", "WRPRT s3, 9", "INT ENABLE", "SUB s4, 1", "CALL proc", "proc: NOP"}));
    for (int i = 0; i < 6; ++i)
        sim()->simNextInstruction();
    ASSERT_EQ(sim()->callStack()->count(), 1);
    ASSERT_EQ(sim()->ports()->devices().size(), 1);
    trigger(Action::eActionReset);
    int cell = -1;
    EXPECT_TRUE(sim()->core()->scrpd(5, &cell));
    EXPECT_EQ(cell, 0);
    EXPECT_EQ(reg(3), 0);
    EXPECT_EQ(sim()->core()->regAlias(0, 3), "");
    EXPECT_EQ(sim()->core()->carryBit(), 0);
    EXPECT_EQ(sim()->core()->interrupt(), eIntDisabled);
    EXPECT_EQ(sim()->callStack()->count(), 0);
    EXPECT_EQ(sim()->ports()->devices().size(), 1);
    EXPECT_EQ(pcLine(), 0);
    EXPECT_EQ(clocks(), 12);
}

const QStringList interruptProgram = {
    "    INT ENABLE",   // 0
    "    LOAD s0, 0",   // 1
    "    SUB s0, 1",    // 2: carry
    "loop:",            // 3
    "    ADD s1, 1",    // 4
    "    JUMP loop",    // 5
    "#ORG ADDR, 0x300", // 6
    "isr:",             // 7
    "    ADD s2, 1",    // 8
    "    RETI ENABLE",  // 9
    "#ORG ADDR, 0x3FF", // 10
    "    JUMP isr",     // 11
};

TEST_F(SimCommands, InterruptIsServedAndReturnedFrom)
{
    ASSERT_TRUE(start("XPBlze3", interruptProgram));
    trigger(Action::eActionInterrupt);
    EXPECT_EQ(sim()->core()->interrupt(), eIntDisabled);
    for (int i = 0; i < 3; ++i)
        sim()->simNextInstruction();
    EXPECT_EQ(sim()->core()->interrupt(), eIntEnabled);
    ASSERT_EQ(pcLine(), 4);
    trigger(Action::eActionInterrupt);
    EXPECT_EQ(sim()->core()->interrupt(), eIntPending);
    trigger(Action::eActionInterrupt);
    EXPECT_EQ(sim()->core()->interrupt(), eIntEnabled);
    trigger(Action::eActionInterrupt);
    const qint64 before = clocks();
    sim()->simNextInstruction();
    // The instruction at the vector is executed in the same step, the entry costs no clock.
    EXPECT_EQ(sim()->core()->interrupt(), eIntService);
    EXPECT_EQ(clocks(), before + 2);
    EXPECT_EQ(pcLine(), 8);
    ASSERT_EQ(sim()->callStack()->count(), 1);
    EXPECT_EQ(sim()->callStack()->items().front().label, "ISR");
    trigger(Action::eActionInterrupt);
    EXPECT_EQ(sim()->core()->interrupt(), eIntService);
    sim()->simNextInstruction();
    EXPECT_EQ(sim()->core()->carryBit(), 0);
    sim()->simNextInstruction();
    EXPECT_EQ(sim()->core()->interrupt(), eIntEnabled);
    EXPECT_EQ(pcLine(), 4);
    EXPECT_EQ(sim()->core()->carryBit(), 1);
}

TEST_F(SimCommands, InterruptWithoutAnInstructionAtTheVector)
{
    ASSERT_TRUE(start("XPBlze3", {"INT ENABLE", "loop: JUMP loop"}));
    sim()->simNextInstruction();
    trigger(Action::eActionInterrupt);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("No instruction at interrupt vector: 1023"), 1);
    EXPECT_EQ(sim()->core()->interrupt(), eIntService);
    EXPECT_EQ(sim()->callStack()->count(), 1);
}

TEST_F(SimCommands, ReloadKeepsStateAndLine)
{
    ASSERT_TRUE(start("XPBlze3", {"LOAD s0, 1", "LOAD s1, 2", "LOAD s2, 3", "end: JUMP end"}));
    sim()->simNextInstruction();
    sim()->simNextInstruction();
    ASSERT_EQ(pcLine(), 2);
    writeSource({"; inserted", "LOAD s0, 1", "LOAD s1, 2", "LOAD s2, 3", "end: JUMP end"});
    ASSERT_TRUE(assemble());
    // The same line, which is one instruction earlier now.
    EXPECT_EQ(pcLine(), 2);
    EXPECT_EQ(sim()->programCounter()->arg0->name.toUpper(), "S1");
    EXPECT_EQ(reg(0), 1);
    EXPECT_EQ(reg(1), 2);
    EXPECT_EQ(clocks(), 4);
    EXPECT_EQ(messages("Call stack may becomes"), 0);
    EXPECT_EQ(enabledActions(), "0 1 2 3 4 5 6 7 8 9 11");
}

TEST_F(SimCommands, ReloadInACallWarnsAndStillReturns)
{
    QStringList lines = callProgram;
    ASSERT_TRUE(start("XPBlze3", lines));
    sim()->simNextInstruction();
    sim()->simNextInstruction();
    lines[7] = "    ADD s0, 32";
    writeSource(lines);
    ASSERT_TRUE(assemble());
    EXPECT_EQ(messages("Call stack may becomes invalid due to reloading sources to simulator!"), 1);
    trigger(Action::eActionToEndOfCall);
    EXPECT_EQ(pcLine(), 2);
    EXPECT_EQ(reg(0), 37);
}

TEST_F(SimCommands, ReturnToALineThatIsGone)
{
    ASSERT_TRUE(start("XPBlze3", {"JUMP main", "proc: RET", "", "", "main: CALL proc", "NOP"}));
    trigger(Action::eActionNextInstruction);
    trigger(Action::eActionNextInstruction);
    ASSERT_EQ(pcLine(), 1);
    writeSource({"JUMP proc", "proc: RET"});
    ASSERT_TRUE(assemble());
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("Call stack contains an invalid return address."), 1);
    EXPECT_EQ(sim()->programCounter(), nullptr);
}

TEST_F(SimCommands, FailedAssemblyTakesSteppingAwayUntilAGoodOne)
{
    ASSERT_TRUE(start("XPBlze3", callProgram));
    sim()->simNextInstruction();
    writeSource({"this is nothing"});
    EXPECT_FALSE(assemble());
    EXPECT_EQ(messages("Need successfull assembled code for simulation."), 1);
    EXPECT_EQ(sim()->programCounter(), nullptr);
    EXPECT_EQ(enabledActions(), "0 6 7 8 9 11");
    writeSource(callProgram);
    EXPECT_TRUE(assemble());
    EXPECT_EQ(pcLine(), 1);
    EXPECT_EQ(enabledActions(), "0 1 2 3 4 5 6 7 8 9 11");
    EXPECT_EQ(reg(0), 1);
}

TEST_F(SimCommands, ResetAfterAFailedAssemblyHasNothingToExecute)
{
    ASSERT_TRUE(start("XPBlze3", callProgram));
    writeSource({"LOAD s0, 1", "this is nothing"});
    EXPECT_FALSE(assemble());
    trigger(Action::eActionReset);
    EXPECT_EQ(sim()->programCounter(), nullptr);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("No command to execute!"), 1);
}

TEST_F(SimCommands, ShorterProgramLosesTheProgramCounter)
{
    ASSERT_TRUE(start("XPBlze3", {"NOP", "NOP", "NOP", "end: JUMP end"}));
    for (int i = 0; i < 3; ++i)
        sim()->simNextInstruction();
    ASSERT_EQ(pcLine(), 3);
    writeSource({"end: JUMP end"});
    ASSERT_TRUE(assemble());
    EXPECT_EQ(messages("Can not restore program counter. Please set manually from cursor."), 1);
    EXPECT_EQ(enabledActions(), "0 6 7 8 9 11");
    document()->setCursorToLine(0);
    trigger(Action::eActionSetPc);
    EXPECT_EQ(pcLine(), 0);
    EXPECT_EQ(enabledActions(), "0 1 2 3 4 5 6 7 8 9 11");
}

class SimSettings : public SimWindow,
                    public ::testing::WithParamInterface<std::tuple<const char*, const char*, const char*>>
{
};

TEST_P(SimSettings, ChangedSettingStopsTheSimulationUntilItIsRestored)
{
    const char* processor = std::get<0>(GetParam());
    const QStringList program = {"loop: JUMP loop"};
    ASSERT_TRUE(start(processor, program));
    writeSource(QStringList(std::get<1>(GetParam())) + program);
    ASSERT_TRUE(assemble()) << messageTexts().join('\n').toStdString();
    EXPECT_EQ(
        messages(
            QString("At least one processor settings was changed. Please restart simulator or restore the setting: ") +
            std::get<2>(GetParam())),
        1)
        << messageTexts().join('\n').toStdString();
    EXPECT_EQ(enabledActions(), "0 6 7 8 9 11");
    writeSource(QStringList("; restored") + program);
    ASSERT_TRUE(assemble());
    EXPECT_EQ(enabledActions(), "0 1 2 3 4 5 6 7 8 9 11");
    EXPECT_EQ(pcLine(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    All, SimSettings,
    ::testing::Values(std::make_tuple("XPBlze3", "#SET PROC::XPBLZE3::CLKFREQ, 1000000", "clkFreq"),
                      std::make_tuple("XPBlze3", "#SET INSTMEM::PAGESIZE, 2048", "pageSize"),
                      std::make_tuple("XPBlze6", "#SET PROC::XPBLZE6::SCRPDSIZE, 128", "scrpdSize"),
                      std::make_tuple("XPBlze6", "#SET PROC::XPBLZE6::CLKFREQ, 1000000", "clkFreq"),
                      std::make_tuple("LMico8v3x", "#SET PROC::LMICO8V3X::INSTCLKCYCLECOUNT, 3", "instrClkCnt"),
                      std::make_tuple("LMico8v3x", "#SET PROC::LMICO8V3X::REGCOUNT, 16", "regCount")));

TEST_F(SimCommands, InterruptVectorMayChangeDuringASimulation)
{
    const QStringList program = {"INT ENABLE", "loop: JUMP loop", "#ORG ADDR, 0x200", "isr: RETI ENABLE"};
    ASSERT_TRUE(start("XPBlze6", program, {{"intVectorAddr", "1023"}}));
    sim()->simNextInstruction();
    writeSource(program + QStringList("#SET PROC::XPBLZE6::INTVECTOR, 0x200"));
    ASSERT_TRUE(assemble()) << messageTexts().join('\n').toStdString();
    trigger(Action::eActionInterrupt);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("No instruction at interrupt vector"), 0);
    EXPECT_EQ(pcLine(), 1);
}

TEST_F(SimCommands, SimulationNeedsAnAssembledProgram)
{
    EXPECT_FALSE(open("XPBlze3", {"this is nothing"}));
    trigger(Action::eActionEnable);
    EXPECT_EQ(sim(), nullptr);
    EXPECT_EQ(messages("Need successfull assembled code for simulation."), 1);
    EXPECT_EQ(enabledActions(), "0");
}

} // namespace
