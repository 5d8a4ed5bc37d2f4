// What the core of a Mico8 does where the stated simulation does otherwise, by hand, in both modes.

#include "ExactFixture.h"

namespace {

class ExactMico8 : public ExactToolTest
{
protected:
    ExactMico8()
        : ExactToolTest("Lattice Mico8 v3.x")
    {
    }

    /// Behind a jump to the routine at 000 there is the program, from 001 and line 2 on; the routine stands at the end.
    void routine(const QStringList& lines, const QStringList& isr = {"isr: RETI"}) const
    {
        program(QStringList("JUMP isr") + lines + isr);
    }
    /// Nests so many calls; each return adds 1 to r1.
    void nest(int calls) const
    {
        program({"       JUMP start",                      // 000  line 1
                 QString("start: LOAD r2, %1").arg(calls), // 001
                 "       CALL deep",                       // 002
                 "stop:  JUMP stop",                       // 003
                 "deep:  SUB r2, 1",                       // 004
                 "       CALL NZ, deep",                   // 005  line 6
                 "       ADD r1, 1",                       // 006
                 "       RET"});                           // 007
    }
    /// Those of the stated simulation, from the label `main` on, so that it begins where the core does.
    ShownRun statedFromMain(const QString& arguments = QString()) const { return stated("--start main " + arguments); }
};

TEST_F(ExactMico8, TheProgramStartsAt001)
{
    program({"NOP", "LOAD r1, 5", "end: JUMP end"});
    EXPECT_EQ(exact("--until end").path, "001@0");
    const ShownRun stated = this->stated("--until end");
    EXPECT_EQ(stated.path, "000 001");
    EXPECT_EQ(stated.messages, QStringList("warning 1 warnCoreStart"));
    program({"NOP", "main: LOAD r1, 5", "end: JUMP end"});
    EXPECT_EQ(statedFromMain("--until end").messages, QStringList());
}

TEST_F(ExactMico8, ZeroIsSetAtTheStart)
{
    program({"NOP", "main: JUMP Z, taken", "end: JUMP end", "taken: JUMP taken"});
    EXPECT_EQ(exact("-n 2").path, "001@0 003@2");
    EXPECT_EQ(exact("-n 1").flags(), "C0 Z1");
    const ShownRun stated = this->statedFromMain("-n 2");
    EXPECT_EQ(stated.path, "001 002");
    EXPECT_EQ(stated.flags(), "C0 Z0");
    EXPECT_EQ(stated.messages, QStringList("warning 2 warnCoreStartZero"));
    // Once an instruction has set the flag, it is the same.
    program({"NOP", "main: COMP r0, 1", "JUMP NZ, end", "NOP", "end: JUMP end"});
    EXPECT_EQ(statedFromMain("--until end").messages, QStringList());
    EXPECT_EQ(exact("--until end").path, "001@0 002@2");
}

/// A rotation of r1 = 41 with the second register r2, with the carry before it.
struct sRotation_t
{
    const char* instruction;
    int second;
    int carry;
    int exactResult;
    const char* exactFlags;
    int statedResult;
    const char* statedFlags;
    QStringList warnings;
};
class ExactMico8Rotation : public ExactMico8, public ::testing::WithParamInterface<sRotation_t>
{
};

TEST_P(ExactMico8Rotation, TakesTheSecondRegister)
{
    const sRotation_t& row = GetParam();
    program({"NOP", "main: LOAD r1, 0x41", QString("LOAD r2, %1").arg(row.second), row.carry != 0 ? "SET C" : "CLR C",
             "CLR Z", row.instruction, "end: JUMP end"});
    const ShownRun exact = this->exact("--until end");
    EXPECT_EQ(exact.reg("r1"), row.exactResult);
    EXPECT_EQ(exact.reg("r2"), row.second);
    EXPECT_EQ(exact.flags(), row.exactFlags);
    EXPECT_EQ(exact.messages, QStringList());
    const ShownRun stated = this->statedFromMain("--until end");
    EXPECT_EQ(stated.reg("r1"), row.statedResult);
    EXPECT_EQ(stated.flags(), row.statedFlags);
    QStringList warnings;
    for (const QString& warning : row.warnings)
        warnings << "warning 6 " + warning;
    EXPECT_EQ(stated.messages, warnings);
}

const QStringList source("warnCoreRotateSource");
const QStringList carry("warnCoreRotateCarry");

INSTANTIATE_TEST_SUITE_P(All, ExactMico8Rotation,
                         ::testing::Values(
                             // 81 to the left is 03, and 41 is 82; the carry of the core stays.
                             sRotation_t{"ROL r1, r2", 0x81, 0, 0x03, "C0 Z0", 0x82, "C0 Z0", source},
                             sRotation_t{"ROL r1, r2", 0x81, 1, 0x03, "C1 Z0", 0x82, "C0 Z0", source + carry},
                             sRotation_t{"ROR r1, r2", 0x02, 0, 0x01, "C0 Z0", 0xA0, "C1 Z0", source + carry},
                             sRotation_t{"ROR r1, r2", 0x02, 1, 0x01, "C1 Z0", 0xA0, "C1 Z0", source},
                             // With the carry: what goes out of the rotated register is the carry afterwards.
                             sRotation_t{"ROLC r1, r2", 0x80, 1, 0x01, "C1 Z0", 0x83, "C0 Z0", source},
                             sRotation_t{"ROLC r1, r2", 0x80, 0, 0x00, "C1 Z1", 0x82, "C0 Z0", source},
                             sRotation_t{"RORC r1, r2", 0x02, 1, 0x81, "C0 Z0", 0xA0, "C1 Z0", source},
                             // One register, or two with one value: the carry alone.
                             sRotation_t{"ROL r1, r1", 0x99, 1, 0x82, "C1 Z0", 0x82, "C0 Z0", carry},
                             sRotation_t{"ROR r1, r1", 0x99, 0, 0xA0, "C0 Z0", 0xA0, "C1 Z0", carry},
                             sRotation_t{"ROL r1, r2", 0x41, 0, 0x82, "C0 Z0", 0x82, "C0 Z0", QStringList()},
                             sRotation_t{"ROLC r1, r1", 0x99, 1, 0x83, "C0 Z0", 0x83, "C0 Z0", QStringList()},
                             sRotation_t{"RORC r1, r1", 0x99, 0, 0x20, "C1 Z0", 0x20, "C1 Z0", QStringList()}));

TEST_F(ExactMico8, ARotationWithOneRegisterIsTheSameWord)
{
    program({"NOP", "main: LOAD r1, 0x81", "ROL r1", "end: JUMP end"});
    EXPECT_EQ(exact("--until end").reg("r1"), 0x03);
    EXPECT_EQ(statedFromMain("--until end").reg("r1"), 0x03);
}

TEST_F(ExactMico8, ReturnFromInterruptLeavesInterruptsEnabledAndTheRequestIsLatched)
{
    routine({"main: INT ENABLE", // 001  line 2, clock 0
             "loop: ADD r1, 1",  // 002
             "JUMP loop",        // 003
             "isr: ADD r2, 1",   // 004
             "RETI"},            // 005  line 6
            {});
    // The entry costs nothing; it comes again one instruction after each return.
    const ShownRun exact = this->exact("-n 14 --interrupt-at-clock 0");
    EXPECT_EQ(exact.path, "001@0 INT 000@2 004@4 005@6 002@8 INT 000@10 004@12 005@14 003@16 INT 000@18 004@20 005@22 "
                          "002@24 INT 000@26");
    EXPECT_EQ(exact.messages, QStringList());
    const ShownRun stated = this->statedFromMain("-n 8 --interrupt-at 2");
    EXPECT_EQ(stated.path, "001 INT 000 004 005 002 003 002 003");
    EXPECT_EQ(stated.interrupt(), "disabled");
    EXPECT_EQ(stated.messages, QStringList("warning 6 warnCoreStaysEnabled"));
}

TEST_F(ExactMico8, ARequestWhileInterruptsAreOffIsKept)
{
    routine({"main: NOP", "NOP", "INT ENABLE", "NOP", "end: JUMP end"});
    EXPECT_EQ(exact("-n 5 --interrupt-at-clock 0").path, "001@0 002@2 003@4 INT 000@6 006@8");
    const ShownRun stated = this->statedFromMain("--until end --interrupt-at 2");
    EXPECT_EQ(stated.path, "001 002 003 004");
    EXPECT_EQ(stated.messages, QStringList("warning 3 warnCoreRequestKept"));
}

TEST_F(ExactMico8, ARequestIsEnteredBehindTheInstructionThatEndsOneClockLaterAtTheEarliest)
{
    routine({"main: INT ENABLE", "NOP", "NOP", "end: JUMP end"});
    EXPECT_EQ(exact("-n 3 --interrupt-at-clock 0").path, "001@0 INT 000@2 005@4");
    EXPECT_EQ(exact("-n 3 --interrupt-at-clock 1").path, "001@0 002@2 INT 000@4");
    EXPECT_EQ(exact("-n 3 --interrupt-at-clock 2").path, "001@0 002@2 INT 000@4");
    EXPECT_EQ(exact("-n 4 --interrupt-at-clock 3").path, "001@0 002@2 003@4 INT 000@6");
    // The clocks of a write are 2, 3 and 4: a request in the clock 3 comes in time for it, one in 4 does not.
    routine({"main: INT ENABLE", "WRPRT r0, 1", "NOP", "end: JUMP end"});
    EXPECT_EQ(exact("-n 3 --interrupt-at-clock 3").path, "001@0 002@2 W01=00 INT 000@5");
    EXPECT_EQ(exact("-n 4 --interrupt-at-clock 4").path, "001@0 002@2 W01=00 003@5 INT 000@7");
}

TEST_F(ExactMico8, WhatIsPushedIsTheNextAddressAndTheFlagsBehindTheInstruction)
{
    routine({"main: INT ENABLE", // 001
             "COMP r0, 0",       // 002  clock 2: Z1
             "JUMP Z, end",      // 003
             "NOP",              // 004
             "end: JUMP end"},   // 005
            {"isr: COMP r0, 1",  // 006  C1 Z0
             "RETI"});
    const ShownRun inRoutine = exact("-n 3 --interrupt-at-clock 2");
    EXPECT_EQ(inRoutine.path, "001@0 002@2 INT 000@4");
    const QJsonObject item = inRoutine.state.value("callStack").toArray().at(0).toObject();
    EXPECT_EQ(item.value("address").toInt(), 3);
    EXPECT_EQ(item.value("zero").toInt(), 1);
    EXPECT_EQ(item.value("carry").toInt(), 0);
    EXPECT_EQ(exact("--until end --interrupt-at-clock 2").path, "001@0 002@2 INT 000@4 006@6 007@8 003@10");
}

/// What is executed when a request comes, and what follows it. The program: 001 INT ENABLE, 002 SET C, 003 the
/// instruction, with the clocks 4 and 5; 004 end, 005 target, 006 behind it, 007 isr.
struct sMet_t
{
    const char* name;
    const char* instruction;
    const char* path; ///< from 003 on
};
class ExactMico8Meets : public ExactMico8, public ::testing::WithParamInterface<sMet_t>
{
};

TEST_P(ExactMico8Meets, ARequest)
{
    routine({"main: INT ENABLE", "SET C", GetParam().instruction, "end: JUMP end", "target: NOP", "JUMP end"});
    EXPECT_EQ(exact("-n 5 --interrupt-at-clock 4").path, QString("001@0 002@2 003@4 ") + GetParam().path);
}

INSTANTIATE_TEST_SUITE_P(All, ExactMico8Meets,
                         ::testing::Values(sMet_t{"Taken", "JUMP C, target", "005@6 INT 000@8"},
                                           sMet_t{"NotTaken", "JUMP NC, target", "INT 000@6 007@8"},
                                           sMet_t{"Jump", "JUMP target", "INT 000@6 007@8"},
                                           sMet_t{"Call", "CALL target", "005@6 INT 000@8"},
                                           sMet_t{"TakenCall", "CALL C, target", "005@6 INT 000@8"},
                                           sMet_t{"CallNotTaken", "CALL NC, target", "INT 000@6 007@8"},
                                           sMet_t{"Other", "NOP", "INT 000@6 007@8"},
                                           // Both go to 000, at depth 0.
                                           sMet_t{"Return", "RET", "000@6 INT 000@8"},
                                           sMet_t{"ReturnFromInterrupt", "RETI", "000@6 INT 000@8"}),
                         [](const auto& each) { return std::string(each.param.name); });

TEST_F(ExactMico8, AnUnconditionalJumpHasItsTargetPushed)
{
    routine({"main: INT ENABLE", "JUMP target", "NOP", "target: NOP", "end: JUMP end"});
    const ShownRun exact = this->exact("-n 3 --interrupt-at-clock 2");
    EXPECT_EQ(exact.path, "001@0 002@2 INT 000@4");
    EXPECT_EQ(exact.state.value("callStack").toArray().at(0).toObject().value("address").toInt(), 4);
}

TEST_F(ExactMico8, TheEntryAgainIsPutOffToo)
{
    routine({"main: INT ENABLE", // 001  clock 0
             "SET C",            // 002
             "JUMP C, on",       // 003  no entry behind it
             "NOP",              // 004
             "on: CALL callee",  // 005  nor here
             "end: JUMP end",    // 006
             "callee: RET"});    // 007  nor here
    EXPECT_EQ(exact("-n 15 --interrupt-at-clock 0").path,
              "001@0 INT 000@2 008@4 002@6 INT 000@8 008@10 003@12 005@14 007@16 006@18 INT 000@20 008@22 006@24 INT "
              "000@26 008@28");
}

TEST_F(ExactMico8, EnableInTheRoutineGivesNoSecondLevel)
{
    routine({"main: INT ENABLE", // 001  line 2
             "NOP",              // 002
             "end: JUMP end"},   // 003
            {"isr: INT ENABLE",  // 004  line 5, clock 4
             "NOP",              // 005
             "RETI"});           // 006
    EXPECT_EQ(exact("-n 7 --interrupt-at-clock 0 --interrupt-at-clock 4").path,
              "001@0 INT 000@2 004@4 005@6 006@8 002@10 INT 000@12");
    EXPECT_EQ(exact("-n 3 --interrupt-at-clock 0").interrupt(), "service");
    const ShownRun stated = this->statedFromMain("-n 8 --interrupt-at 2 --interrupt-at 4");
    EXPECT_EQ(stated.path, "001 INT 000 004 INT 000 004 005 006 005");
    EXPECT_EQ(stated.messages, QStringList({"warning 5 warnCoreNoSecondLevel", "warning 7 warnCoreStaysEnabled"}));
}

TEST_F(ExactMico8, AfterAReturnNothingIsEnteredBeforeAReturnFromInterrupt)
{
    routine({"main: INT ENABLE", // 001
             "NOP",              // 002
             "INT ENABLE",       // 003
             "CALL callee",      // 004
             "NOP",              // 005
             "end: JUMP end",    // 006
             "callee: RETI"},    // 007  behind a call: clears the state; the address is that of the return
            {"isr: RET"});       // 008
    // The request stays latched, but it is entered only behind the RETI and the first instruction after it.
    EXPECT_EQ(exact("-n 9 --interrupt-at-clock 0").path,
              "001@0 INT 000@2 008@4 002@6 003@8 004@10 007@12 005@14 INT 000@16");
}

TEST_F(ExactMico8, TheSeventeenthCallOverwritesTheOldestReturn)
{
    nest(17);
    // LOAD and the first call; 17 times SUB and CALL, the last not taken; 17 times ADD and RET. The last return takes
    // what the 17th call has written: it goes behind the inner call instead of the outer one.
    const ShownRun exact = this->exact("-n 70");
    EXPECT_EQ(exact.address(), 6);
    EXPECT_EQ(exact.reg("r1"), 17);
    EXPECT_EQ(exact.messages, QStringList({"warning 6 errCallStackOverflow", "warning 8 errCallStackEmpty"}));
    const ShownRun stated = this->stated("--until stop");
    EXPECT_EQ(stated.end(), "label");
    EXPECT_EQ(stated.reg("r1"), 17);
    EXPECT_EQ(stated.messages, QStringList({"warning 1 warnCoreStart", "warning 6 warnCoreStackWraps"}));
    nest(16);
    EXPECT_EQ(this->exact("--until stop").reg("r1"), 16);
    EXPECT_EQ(this->exact("--until stop").messages, QStringList());
    nest(31);
    EXPECT_EQ(this->stated("--until stop").reg("r1"), 31);
    nest(32);
    EXPECT_EQ(this->stated("--until stop").key(), "errCallStackOverflow");
}

TEST_F(ExactMico8, AReturnAtDepth0TakesCell15AsItIs)
{
    program({"NOP", "main: NOP", "RET", "end: JUMP end"});
    const ShownRun exact = this->exact("-n 3");
    EXPECT_EQ(exact.path, "001@0 002@2 000@4");
    EXPECT_EQ(exact.messages, QStringList("warning 3 errCallStackEmpty"));
    const ShownRun stated = this->statedFromMain();
    EXPECT_EQ(stated.messages, QStringList({"error", "error errCallStackEmpty"}));
    EXPECT_EQ(stated.status, 3);
}

TEST_F(ExactMico8, CellsAreWrittenByCallsAndEntriesAlone)
{
    // After 16 calls and returns, cell 15 holds the return of the 16th, whatever was executed since.
    nest(16);
    QByteArray text = read("a.psm");
    text.replace("stop:  JUMP stop", "stop:  RET");
    write("a.psm", text);
    const ShownRun exact = this->exact("-n 67");
    EXPECT_TRUE(exact.path.endsWith("006@128 007@130 003@132")) << exact.path.right(60).toStdString();
    EXPECT_EQ(exact.address(), 6);
}

TEST_F(ExactMico8, PortsAndScratchpadTakeThreeClocksAndWaitStates)
{
    const QStringList lines = {"NOP",         "main: NOP",   "WRPRT r0, 1",  "RDPRT r1, 2",
                               "WRMEM r0, 3", "RDMEM r1, 3", "end: JUMP end"};
    program(lines);
    write("values", "5A\n");
    EXPECT_EQ(exact("--until end --reads values").path, "001@0 002@2 W01=00 003@5 R02=5A 004@8 S03=00 005@11");
    EXPECT_EQ(exact("--until end --reads values").clocks(), 14);
    const ShownRun stated = this->statedFromMain("--until end --reads values");
    EXPECT_EQ(stated.clocks(), 10);
    EXPECT_EQ(stated.messages, QStringList("warning 3 warnCoreAccessClocks"));
    // Wait states are those of the ports.
    program(lines, {{"simWaitStates", "4"}});
    EXPECT_EQ(exact("--until end --reads values").path, "001@0 002@2 W01=00 003@9 R02=5A 004@16 S03=00 005@19");
    // A setting of three clocks is right for accesses, and wrong for all else.
    program(lines, {{"instrClkCnt", "3"}});
    EXPECT_EQ(statedFromMain("--until end --reads values").clocks(), 15);
    EXPECT_EQ(statedFromMain("--until end --reads values").messages, QStringList("warning 2 warnCoreAccessClocks"));
    EXPECT_EQ(exact("--until end --reads values").clocks(), 14);
}

TEST_F(ExactMico8, AnEntryCostsNothing)
{
    routine({"main: INT ENABLE", "NOP", "end: JUMP end"});
    EXPECT_EQ(exact("--until end --interrupt-at-clock 0").clocks(), 8);
    const ShownRun stated = this->statedFromMain("--until end --interrupt-at 2");
    EXPECT_EQ(stated.path, "001 INT 000 004 002");
    EXPECT_EQ(stated.clocks(), 8);
    EXPECT_EQ(stated.messages, QStringList("warning 5 warnCoreStaysEnabled"));
}

TEST_F(ExactMico8, RegistersAbove15AreThoseBelowOnACoreOf16)
{
    const QStringList lines = {"NOP", "main: LOAD r17, 0x5A", "ADD r1, r17", "WRPRT r31, 1", "end: JUMP end"};
    program(lines, {{"regCount", "16"}});
    const ShownRun exact = this->exact("--until end");
    EXPECT_EQ(exact.reg("r1"), 0xB4);
    EXPECT_EQ(exact.reg("r17"), -1);
    EXPECT_EQ(exact.messages, QStringList());
    EXPECT_EQ(this->statedFromMain().key(), "internal");
    program(lines, {{"regCount", "32"}});
    EXPECT_EQ(this->exact("--until end").reg("r17"), 0x5A);
    EXPECT_EQ(this->exact("--until end").reg("r1"), 0x5A);
}

TEST_F(ExactMico8, RegistersAreTheUpperBytesOfLongAddresses)
{
    const QStringList lines = {"NOP",
                               "main: LOAD r1, 0x34",
                               "LOAD r13, 0x12",
                               "LOAD r14, 0x56",
                               "LOAD r15, 0x78",
                               "LOAD r2, 0x99",
                               "WRPRT r2, (r1)",
                               "RDPRT r3, (r1)",
                               "WRMEM r2, (r1)",
                               "RDMEM r4, (r1)",
                               "WRPRT r2, 0x05",
                               "end: JUMP end"};
    write("values", "5A\n");
    program(lines, {{"simAddressBits", "16"}, {"scrpdSize", "8192"}});
    ShownRun exact = this->exact("--until end --reads values");
    EXPECT_TRUE(exact.path.endsWith("006@10 W1234=99 007@13 R1234=5A 008@16 S1234=99 009@19 00A@22 W05=99"))
        << exact.path.toStdString();
    EXPECT_EQ(exact.reg("r4"), 0x99);
    EXPECT_EQ(exact.cell(0x1234), 0x99);
    program(lines, {{"simAddressBits", "32"}});
    EXPECT_TRUE(this->exact("-n 6").path.endsWith("W78561234=99")) << this->exact("-n 6").path.toStdString();
    // Ten bits: two of the upper byte.
    program(lines, {{"simAddressBits", "10"}});
    EXPECT_TRUE(this->exact("-n 6 --reads values").path.endsWith("W234=99")) << this->exact("-n 6").path.toStdString();
    program(lines);
    EXPECT_TRUE(this->exact("-n 6 --reads values").path.endsWith("W34=99")) << this->exact("-n 6").path.toStdString();
    program(lines, {{"simAddressBits", "16"}, {"scrpdSize", "8192"}});
    const ShownRun stated = this->statedFromMain("--until end --reads values");
    EXPECT_TRUE(stated.path.endsWith("006 W34=99 007 R34=5A 008 S34=99 009 00A W05=99")) << stated.path.toStdString();
    EXPECT_EQ(stated.messages,
              QStringList({"warning 7 warnCoreAccessClocks", "warning 7 warnCoreAddress", "warning 8 warnCoreAddress",
                           "warning 9 warnCoreAddress", "warning 10 warnCoreAddress"}));
}

TEST_F(ExactMico8, AnAddressInTheWordHasFiveBits)
{
    // The sixth bit of the address is the lowest one of the register: the core writes r3.
    program({"NOP", "main: LOAD r3, 0x99", "WRPRT r2, 0x25", "end: JUMP end"});
    EXPECT_EQ(exact("--until end").path, "001@0 002@2 W05=99");
    const ShownRun stated = this->statedFromMain("--until end");
    EXPECT_EQ(stated.path, "001 002 W25=00");
    EXPECT_EQ(stated.messages, QStringList({"warning 3 warnCoreAccessClocks", "warning 3 warnCoreAddress"}));
}

TEST_F(ExactMico8, EmptyMemoryIsSubtractionAndTheMemoryEndsAtFFF)
{
    program({"JUMP end", "main: LOAD r0, 5", "COMP r0, 6", "NOP", "end: NOP"});
    // 005 is the first empty cell.
    const ShownRun first = exact("-n 5");
    EXPECT_EQ(first.path, "001@0 002@2 003@4 004@6 005@8");
    EXPECT_TRUE(read("t").endsWith("I 005 00000 8\n"));
    EXPECT_EQ(first.reg("r0"), 0);
    EXPECT_EQ(first.flags(), "C0 Z1");
    EXPECT_EQ(exact("-n 4").flags(), "C1 Z0");
    const ShownRun exact = this->exact("-n 4097");
    EXPECT_TRUE(exact.path.endsWith("FFF@8188 000@8190 004@8192")) << exact.path.right(40).toStdString();
    // The second time round the gap is the same place.
    EXPECT_EQ(this->exact("-n 9000").messages, QStringList("warning errNoOpcodeToExec"));
    const ShownRun stated = this->statedFromMain();
    EXPECT_EQ(stated.path, "001 002 003 004");
    EXPECT_EQ(stated.messages, QStringList({"error", "error errNoOpcodeToExec"}));
}

TEST_F(ExactMico8, LogicLeavesTheCarryAndZeroIsThatOfTheResultAlone)
{
    program({"NOP",             //
             "main: SET C",     // 001
             "AND r0, 0",       // 002
             "OR r0, 1",        // 003
             "XOR r0, 1",       // 004
             "TEST r0, 1",      // 005
             "JUMP NC, end",    // 006  not taken
             "LOAD r1, 0xFF",   // 007
             "CLR Z",           // 008
             "ADDC r1, 0",      // 009  00: Z1 by itself
             "end: JUMP end"}); // 00A
    for (const ShownRun& run : {exact("--until end"), statedFromMain("--until end")}) {
        EXPECT_EQ(run.instructions(), 9);
        EXPECT_EQ(run.flags(), "C1 Z1");
        EXPECT_EQ(run.messages, QStringList());
    }
}

} // namespace
