// What the core of a PicoBlaze 3 does where the stated simulation does otherwise, by hand, in both modes.

#include "ExactFixture.h"

namespace {

class ExactPicoBlaze3 : public ExactToolTest
{
protected:
    ExactPicoBlaze3()
        : ExactToolTest("Xilinx PicoBlaze 3")
    {
    }

    /// Nests so many calls; each return adds 1 to s1. At the innermost level it executes so many `NOP`, from 006 on.
    void nest(int calls, int nops = 0) const
    {
        QStringList lines = {QString("       LOAD s0, %1").arg(calls), // 000     line 1
                             "       CALL deep",                       // 001          2
                             "back:  WRPRT s1, 1",                     // 002          3
                             "stop:  JUMP stop",                       // 003          4
                             "deep:  SUB s0, 1",                       // 004          5
                             "       CALL NZ, deep"};                  // 005          6
        for (int i = 0; i < nops; ++i)
            lines << "       NOP";
        program(lines + QStringList{"       ADD s1, 1", // 006, line 7, without NOPs
                                    "       RET",       // 007
                                    "lost:  WRPRT s1, 2", "end: JUMP end", "#ORG ADDR, 0x3FF",
                                    "vector: RETI DISABLE"}); // one behind `end`
    }
};

TEST_F(ExactPicoBlaze3, ScratchpadTakesTheAddressModulo64)
{
    program({"LOAD s0, 0x45", "LOAD s1, 0x77", "WRMEM s1, (s0)", "LOAD s2, 0xC5", "RDMEM s3, (s2)", "end: JUMP end"});
    const ShownRun exact = this->exact("--until end");
    EXPECT_EQ(exact.path, "000@0 001@2 002@4 S05=77 003@6 004@8");
    EXPECT_EQ(exact.cell(5), 0x77);
    EXPECT_EQ(exact.reg("s3"), 0x77);
    EXPECT_EQ(exact.messages, QStringList({"warning 3 errScrpdWr", "warning 5 errScrpdRd"}));
    const ShownRun stated = this->stated();
    EXPECT_EQ(stated.path, "000 001");
    EXPECT_EQ(stated.messages, QStringList("error 3 errScrpdWr"));
    EXPECT_EQ(stated.status, 3);
    program({"LOAD s2, 0x40", "RDMEM s3, (s2)"});
    EXPECT_EQ(this->stated().messages, QStringList("error 2 errScrpdRd"));
}

TEST_F(ExactPicoBlaze3, TheThirtySecondCallLosesTheOldestReturn)
{
    nest(32);
    // The 32nd return goes behind the last instruction of depth 32: behind the innermost return itself, to 008. Before
    // it: LOAD and the first call; 32 times SUB and CALL, the last of them not taken; 32 times ADD and RET.
    const ShownRun exact = this->exact("--until lost");
    EXPECT_EQ(exact.end(), "label");
    EXPECT_EQ(exact.address(), 8);
    EXPECT_EQ(exact.reg("s1"), 32);
    EXPECT_EQ(exact.clocks(), 2 * (2 + 64 + 64));
    EXPECT_EQ(exact.messages, QStringList("warning 6 errCallStackOverflow"));
    const ShownRun stated = this->stated();
    EXPECT_EQ(stated.messages, QStringList("error 6 errCallStackOverflow"));
    EXPECT_EQ(stated.depth(), 31);
    EXPECT_EQ(stated.instructions(), 2 + 2 * 30 + 1);
}

TEST_F(ExactPicoBlaze3, ThirtyOneCallsComeBack)
{
    nest(31);
    for (const ShownRun& run : {exact("--until stop"), stated("--until stop")}) {
        EXPECT_EQ(run.end(), "label");
        EXPECT_EQ(run.reg("s1"), 31);
        EXPECT_TRUE(run.path.endsWith("W01=1F")) << run.path.toStdString();
        EXPECT_EQ(run.messages, QStringList());
    }
}

TEST_F(ExactPicoBlaze3, AnEntryAtDepth31LosesTheOldestReturn)
{
    program({"INT ENABLE",        // 000  line 1
             "LOAD s0, 31",       // 001
             "CALL deep",         // 002
             "back: WRPRT s1, 1", // 003
             "deep: SUB s0, 1",   // 004
             "CALL NZ, deep",     // 005  line 6
             "NOP",               // 006  line 7
             "NOP",               // 007
             "ADD s1, 1",         // 008
             "RET",               // 009
             "isr: NOP",          // 00A
             "RETI DISABLE",      // 00B
             "lost: WRPRT s1, 2", // 00C
             "end: JUMP end",     // 00D
             "#ORG ADDR, 0x3FF", "JUMP isr"});
    // The third instruction is in slot 2, so 31 times SUB and CALL take the slots 3 to 64; 006 is slot 65, which begins
    // with clock 130. A request there pre-empts 007. The entry, JUMP, NOP and RETI take a slot each.
    const ShownRun exact = this->exact("--until lost --interrupt-at-clock 130");
    EXPECT_TRUE(exact.path.contains("005@128 006@130 INT 3FF@134 00A@136 00B@138 007@140 008@142 009@144 006@146"))
        << exact.path.toStdString();
    // With the entry the pointer has come round to the oldest cell, to which RETI wrote its own address.
    EXPECT_EQ(exact.end(), "label");
    EXPECT_EQ(exact.reg("s1"), 31);
    EXPECT_EQ(exact.messages, QStringList("warning 8 errCallStackOverflow"));
    // The instruction of slot 66 is the 67th.
    const ShownRun stated = this->stated("--interrupt-at 67");
    EXPECT_EQ(stated.messages, QStringList({"warning 8 warnCoreEntryClocks", "error 8 errCallStackOverflow"}));
    EXPECT_EQ(stated.instructions(), 66);
}

TEST_F(ExactPicoBlaze3, AReturnAtDepth0TakesAStaleCell)
{
    program({"RET", "LOAD s0, 1", "end: JUMP end"});
    const ShownRun exact = this->exact("--until end");
    EXPECT_EQ(exact.path, "000@0 001@2");
    EXPECT_EQ(exact.messages, QStringList("warning 1 errCallStackEmpty"));
    const ShownRun stated = this->stated();
    EXPECT_EQ(stated.messages, QStringList({"error", "error errCallStackEmpty"}));
    EXPECT_EQ(stated.status, 3);
}

TEST_F(ExactPicoBlaze3, ACellChangesWithEachInstructionThatIsExecutedAtIt)
{
    program({"RET", "ADD s0, 1", "RET", "end: WRPRT s0, 7"});
    // The pointer goes from 0 to 31, where 002 writes itself to the cell, and down to 0 through cells that hold 000.
    // From 0 it comes to 31 again, whose cell is 002 by now: the return goes to 003.
    const ShownRun exact = this->exact("--until end");
    EXPECT_EQ(exact.reg("s0"), 32);
    EXPECT_EQ(exact.instructions(), 1 + 2 * 32);
    EXPECT_EQ(exact.messages, QStringList({"warning 1 errCallStackEmpty", "warning 3 errCallStackEmpty"}));
}

TEST_F(ExactPicoBlaze3, TheRoutineSeesTheFlagsOfThePreEmptedInstruction)
{
    program({"INT ENABLE",        // 000  slot 0
             "LOAD s0, 0xFF",     // 001  slot 1
             "ADD s0, 1",         // 002  slot 2: pre-empted
             "end: JUMP end",     // 003
             "isr: RETI DISABLE", // 004
             "#ORG ADDR, 0x3FF", "JUMP isr"});
    const ShownRun exact = this->exact("--until isr --interrupt-at-clock 2");
    EXPECT_EQ(exact.path, "000@0 001@2 INT 3FF@6");
    EXPECT_EQ(exact.flags(), "C1 Z1");
    EXPECT_EQ(exact.reg("s0"), 0xFF); // its registers stay
    // The return brings back what was before: 0 and 0. Then the instruction is executed.
    EXPECT_EQ(this->exact("-n 4 --interrupt-at-clock 2").flags(), "C0 Z0");
    const ShownRun after = this->exact("--until end --interrupt-at-clock 2");
    EXPECT_EQ(after.path, "000@0 001@2 INT 3FF@6 004@8 002@10");
    EXPECT_EQ(after.flags(), "C1 Z1");
    EXPECT_EQ(after.messages, QStringList());
    const ShownRun stated = this->stated("--until isr --interrupt-at 3");
    EXPECT_EQ(stated.path, "000 001 INT 3FF");
    EXPECT_EQ(stated.flags(), "C0 Z0");
    EXPECT_EQ(stated.messages, QStringList({"warning 3 warnCoreEntryFlags", "warning 3 warnCoreEntryClocks"}));
}

/// A pre-empted instruction with the flags that the routine sees. Before it, C = 1 and Z = 0, s0 = FF, s1 = 01.
struct sPreEmpted_t
{
    const char* instruction;
    const char* flags;
};
class ExactPicoBlaze3Flags : public ExactPicoBlaze3, public ::testing::WithParamInterface<sPreEmpted_t>
{
};

TEST_P(ExactPicoBlaze3Flags, InTheRoutine)
{
    program({"LOAD s0, 0xFF",        // 000  slot 0
             "LOAD s1, 0x01",        // 001
             "COMP s1, s0",          // 002  C1 Z0
             "INT ENABLE",           // 003  slot 3, clock 6
             GetParam().instruction, // 004
             "end: JUMP end", "isr: RETI DISABLE", "callee: RET", "#ORG ADDR, 0x3FF", "JUMP isr"});
    const ShownRun exact = this->exact("--until isr --interrupt-at-clock 6");
    EXPECT_EQ(exact.path, "000@0 001@2 002@4 003@6 INT 3FF@10");
    EXPECT_EQ(exact.flags(), GetParam().flags);
    EXPECT_EQ(exact.reg("s0"), 0xFF);
    EXPECT_EQ(exact.reg("s1"), 0x01);
    EXPECT_EQ(exact.depth(), 1);
    EXPECT_EQ(exact.interrupt(), "disabled");
    EXPECT_EQ(exact.messages, QStringList());
    const ShownRun stated = this->stated("--until isr --interrupt-at 5");
    EXPECT_EQ(stated.flags(), "C1 Z0");
    QStringList warnings = {"warning 5 warnCoreEntryFlags", "warning 5 warnCoreEntryClocks"};
    if (stated.flags() == GetParam().flags)
        warnings.removeFirst();
    EXPECT_EQ(stated.messages, warnings);
}

// Those that set flags have set them; of the others, RETI leaves them as all do.
INSTANTIATE_TEST_SUITE_P(
    Instructions, ExactPicoBlaze3Flags,
    ::testing::Values(sPreEmpted_t{"AND s0, 0x00", "C0 Z1"}, sPreEmpted_t{"OR s0, 0x00", "C0 Z0"},
                      sPreEmpted_t{"XOR s0, 0xFF", "C0 Z1"}, sPreEmpted_t{"TEST s0, 0x07", "C1 Z0"},
                      sPreEmpted_t{"TEST s0, 0x03", "C0 Z0"}, sPreEmpted_t{"COMP s0, 0xFF", "C0 Z1"},
                      sPreEmpted_t{"ADD s0, 0x00", "C0 Z0"}, sPreEmpted_t{"ADDC s0, 0x00", "C1 Z1"},
                      sPreEmpted_t{"SUB s1, 0x02", "C1 Z0"}, sPreEmpted_t{"SUBC s1, 0x00", "C0 Z1"},
                      sPreEmpted_t{"SR0 s1", "C1 Z1"}, sPreEmpted_t{"SR1 s1", "C1 Z0"}, sPreEmpted_t{"SL0 s1", "C0 Z0"},
                      sPreEmpted_t{"ROL s1", "C0 Z0"}, sPreEmpted_t{"RORC s1", "C1 Z0"},
                      sPreEmpted_t{"LOAD s0, 0x00", "C1 Z0"}, sPreEmpted_t{"RDPRT s0, 0x01", "C1 Z0"},
                      sPreEmpted_t{"WRPRT s0, 0x01", "C1 Z0"}, sPreEmpted_t{"RDMEM s0, 0x01", "C1 Z0"},
                      sPreEmpted_t{"WRMEM s0, 0x01", "C1 Z0"}, sPreEmpted_t{"JUMP end", "C1 Z0"},
                      sPreEmpted_t{"CALL callee", "C1 Z0"}, sPreEmpted_t{"RET", "C1 Z0"},
                      sPreEmpted_t{"RETI DISABLE", "C1 Z0"}, sPreEmpted_t{"INT ENABLE", "C1 Z0"},
                      // Too late: the request has come through.
                      sPreEmpted_t{"INT DISABLE", "C1 Z0"}),
    [](const auto& each) {
        QString name = QString(each.param.instruction);
        return name.remove(QRegularExpression("\\W")).toStdString();
    });

TEST_F(ExactPicoBlaze3, ThereIsOneCopyOfTheFlags)
{
    // Both entries come to the vector; s2 tells them apart.
    program({"LOAD s0, 1",         // 000  slot 0
             "COMP s0, 2",         // 001  C1 Z0
             "INT ENABLE",         // 002  slot 2, clock 4
             "JUMP Z, end",        // 003  pre-empted
             "other: JUMP other",  // 004
             "isr: ADD s2, 1",     // 005
             "COMP s2, 2",         // 006
             "JUMP Z, inner",      // 007
             "COMP s0, 1",         // 008  C0 Z1
             "INT ENABLE",         // 009
             "NOP",                // 00A  pre-empted
             "RETI DISABLE",       // 00B
             "inner: RETI ENABLE", // 00C
             "end: JUMP end",      // 00D
             "#ORG ADDR, 0x3FF", "JUMP isr"});
    // Slots: 3 entry, 4 vector, 5 to 8 the routine up to COMP s0, 9 INT ENABLE at clock 18, 10 entry.
    const ShownRun exact = this->exact("--interrupt-at-clock 4 --interrupt-at-clock 18 --until end");
    EXPECT_EQ(exact.path, "000@0 001@2 002@4 INT 3FF@8 005@10 006@12 007@14 008@16 009@18 INT 3FF@22 005@24 006@26 "
                          "007@28 00C@30 00A@32 00B@34 003@36");
    EXPECT_EQ(exact.flags(), "C0 Z1");
    // Stated: each level has its own, so that 003 is not taken.
    const ShownRun stated = this->stated("--interrupt-at 4 --interrupt-at 10 --until other");
    EXPECT_EQ(stated.path, "000 001 002 INT 3FF 005 006 007 008 009 INT 3FF 005 006 007 00C 00A 00B 003");
    EXPECT_EQ(stated.flags(), "C1 Z0");
    EXPECT_TRUE(stated.messages.contains("warning 12 warnCoreReturnedFlags"));
    EXPECT_FALSE(stated.messages.contains("warning 13 warnCoreReturnedFlags"));
}

TEST_F(ExactPicoBlaze3, AReturnFromInterruptBehindACallGoesToTheCallWithTheFlagsOfTheLastInterrupt)
{
    program({"COMP s0, 0",           // 000  Z1
             "CALL Z, callee",       // 001
             "end: JUMP end",        // 002
             "callee: RETI DISABLE", // 003
             "#ORG ADDR, 0x3FF", "RETI DISABLE"});
    // No interrupt yet: 0 and 0, so that the call is not taken the second time.
    const ShownRun exact = this->exact("--until end");
    EXPECT_EQ(exact.path, "000@0 001@2 003@4 001@6");
    EXPECT_EQ(exact.flags(), "C0 Z0");
    const ShownRun stated = this->stated("-n 6");
    EXPECT_EQ(stated.path, "000 001 003 001 003 001");
    EXPECT_EQ(stated.flags(), "C0 Z1");
    EXPECT_EQ(stated.messages, QStringList("warning 4 warnCoreReturnedFlags"));
}

TEST_F(ExactPicoBlaze3, TheCopyIsThatOfTheLastInterrupt)
{
    program({"COMP s0, 1",           // 000  C1 Z0
             "INT ENABLE",           // 001  clock 2
             "NOP",                  // 002  pre-empted: the copy is C1 Z0
             "COMP s0, 0",           // 003  C0 Z1
             "CALL Z, callee",       // 004
             "end: JUMP end",        // 005
             "callee: RETI DISABLE", // 006
             "#ORG ADDR, 0x3FF", "RETI DISABLE"});
    const ShownRun exact = this->exact("--until end --interrupt-at-clock 2");
    EXPECT_EQ(exact.path, "000@0 001@2 INT 3FF@6 002@8 003@10 004@12 006@14 004@16");
    EXPECT_EQ(exact.flags(), "C1 Z0");
}

TEST_F(ExactPicoBlaze3, ARequestWaitsWhileInterruptsAreOffAsLongAsTheInputIsUp)
{
    program({"NOP", "NOP", "NOP", "INT ENABLE", "NOP", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI DISABLE"});
    // INT ENABLE begins with clock 6.
    EXPECT_EQ(exact("--until end --interrupt-at-clock 0:7").path, "000@0 001@2 002@4 003@6 INT 3FF@10 004@12");
    EXPECT_EQ(exact("--until end --interrupt-at-clock 0:6").path, "000@0 001@2 002@4 003@6 004@8");
    const ShownRun stated = this->stated("--until end --interrupt-at 2");
    EXPECT_EQ(stated.path, "000 001 002 003 004");
    EXPECT_EQ(stated.messages, QStringList("warning 2 warnCoreRequestKept"));
}

TEST_F(ExactPicoBlaze3, APulseThatCoversNoFirstClockIsLost)
{
    program({"INT ENABLE", "NOP", "NOP", "NOP", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI DISABLE"});
    EXPECT_EQ(exact("--until end --interrupt-at-clock 3").path, "000@0 001@2 002@4 003@6");
    EXPECT_EQ(exact("--until end --interrupt-at-clock 1").path, "000@0 001@2 002@4 003@6");
    EXPECT_EQ(exact("--until end --interrupt-at-clock 4").path, "000@0 001@2 002@4 INT 3FF@8 003@10");
    EXPECT_EQ(exact("--until end --interrupt-at-clock 3:2").path, "000@0 001@2 002@4 INT 3FF@8 003@10");
    // The stated simulation has requests before instructions alone, and each is taken.
    EXPECT_EQ(stated("--until end --interrupt-at 4").path, "000 001 002 INT 3FF 003");
}

TEST_F(ExactPicoBlaze3, AnEntryCostsTwoClocks)
{
    program({"INT ENABLE", "NOP", "NOP", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI DISABLE"});
    const ShownRun exact = this->exact("--until end --interrupt-at-clock 0");
    EXPECT_EQ(exact.path, "000@0 INT 3FF@4 001@6 002@8");
    EXPECT_EQ(exact.clocks(), 10);
    const ShownRun stated = this->stated("--until end --interrupt-at 2");
    EXPECT_EQ(stated.path, "000 INT 3FF 001 002");
    EXPECT_EQ(stated.clocks(), 8);
    EXPECT_EQ(stated.messages, QStringList("warning 2 warnCoreEntryClocks"));
}

TEST_F(ExactPicoBlaze3, EmptyMemoryIsLoadOfZeroAndTheMemoryEndsAt3FF)
{
    program({"LOAD s0, 5", "ADD s1, 1"});
    const ShownRun exact = this->exact("-n 1025");
    EXPECT_TRUE(exact.path.startsWith("000@0 001@2 002@4 003@6")) << exact.path.left(50).toStdString();
    EXPECT_TRUE(exact.path.endsWith("3FE@2044 3FF@2046 000@2048")) << exact.path.right(50).toStdString();
    EXPECT_EQ(this->exact("-n 3").reg("s0"), 0);
    EXPECT_TRUE(read("t").endsWith("I 002 00000 4\n"));
    EXPECT_EQ(exact.reg("s0"), 5);
    EXPECT_EQ(exact.reg("s1"), 1);
    // One gap, one warning.
    EXPECT_EQ(exact.messages, QStringList("warning errNoOpcodeToExec"));
    const ShownRun stated = this->stated();
    EXPECT_EQ(stated.path, "000 001");
    EXPECT_EQ(stated.messages, QStringList({"error", "error errNoOpcodeToExec"}));
    EXPECT_EQ(stated.status, 3);
}

TEST_F(ExactPicoBlaze3, TheSlotOfAnEntryLeadsToNoOther)
{
    // The vector's instruction enables interrupts at once, and the program goes on at 000 behind it.
    program({"INT ENABLE", "NOP", "NOP", "end: JUMP end", "#ORG ADDR, 0x3FF", "INT ENABLE"});
    // A request at clock 0; its entry takes the clocks 2 and 3. The vector's instruction begins with clock 4.
    EXPECT_EQ(exact("-n 4 --interrupt-at-clock 0 --interrupt-at-clock 2").path, "000@0 INT 3FF@4 000@6 001@8");
    EXPECT_EQ(exact("-n 5 --interrupt-at-clock 0 --interrupt-at-clock 4").path,
              "000@0 INT 3FF@4 INT 3FF@8 000@10 001@12");
    EXPECT_EQ(exact("-n 4 --interrupt-at-clock 0:3").path, "000@0 INT 3FF@4 000@6 001@8");
}

TEST_F(ExactPicoBlaze3, AnEntryDirectlyBehindReturnEnable)
{
    program({"INT ENABLE", "NOP", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI ENABLE"});
    // RETI ENABLE begins with clock 4.
    EXPECT_EQ(exact("--until end --interrupt-at-clock 0 --interrupt-at-clock 4").path,
              "000@0 INT 3FF@4 INT 3FF@8 001@10");
    EXPECT_EQ(exact("--until end --interrupt-at-clock 0:5").path, "000@0 INT 3FF@4 INT 3FF@8 001@10");
}

TEST_F(ExactPicoBlaze3, ARequestDuringDisableComesTooLate)
{
    program({"INT ENABLE", "INT DISABLE", "NOP", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI ENABLE"});
    EXPECT_EQ(exact("--until end --interrupt-at-clock 2:2").path, "000@0 001@2 002@4");
    // One instruction before, it pre-empts the disabling, which comes after the routine.
    EXPECT_EQ(exact("--until end --interrupt-at-clock 0").path, "000@0 INT 3FF@4 001@6 002@8");
}

TEST_F(ExactPicoBlaze3, ARequestPreEmptsTheSlotThatItsClockTells)
{
    program({"INT ENABLE", "NOP", "NOP", "NOP", "NOP", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI DISABLE"});
    // A request that rises in clock c and is held for two clocks pre-empts slot floor((c + 3) / 2).
    EXPECT_EQ(exact("--until end --interrupt-at-clock 0:2").path, "000@0 INT 3FF@4 001@6 002@8 003@10 004@12");
    EXPECT_EQ(exact("--until end --interrupt-at-clock 1:2").path, "000@0 001@2 INT 3FF@6 002@8 003@10 004@12");
    EXPECT_EQ(exact("--until end --interrupt-at-clock 2:2").path, "000@0 001@2 INT 3FF@6 002@8 003@10 004@12");
    EXPECT_EQ(exact("--until end --interrupt-at-clock 3:2").path, "000@0 001@2 002@4 INT 3FF@8 003@10 004@12");
}

TEST_F(ExactPicoBlaze3, APreEmptedInstructionStrobesNothing)
{
    program({"INT ENABLE", "NOP", "RDPRT s0, 1", "WRPRT s0, 2", "WRMEM s0, 3", "end: JUMP end", "#ORG ADDR, 0x3FF",
             "RETI ENABLE"});
    write("values", "5A\n");
    // 001 is slot 1; the entries pre-empt the read (slot 2), the write and the one to the scratchpad in turn.
    EXPECT_EQ(
        exact("--until end --reads values --interrupt-at-clock 2 --interrupt-at-clock 8 --interrupt-at-clock 14").path,
        "000@0 001@2 INT 3FF@6 002@8 R01=5A INT 3FF@12 003@14 W02=5A INT 3FF@18 004@20 S03=5A");
}

TEST_F(ExactPicoBlaze3, AVectorWithoutInstructionIsExecutedAsZeroAndNothingIsPopped)
{
    program({"INT ENABLE", "LOAD s0, 5", "end: JUMP end"});
    const ShownRun exact = this->exact("-n 4 --interrupt-at-clock 2");
    EXPECT_EQ(exact.path, "000@0 001@2 INT 3FF@6 000@8");
    EXPECT_EQ(this->exact("-n 3 --interrupt-at-clock 2").reg("s0"), 0);
    EXPECT_EQ(exact.depth(), 1);
    EXPECT_EQ(exact.messages, QStringList("warning errNoOpcodeAtIntVect"));
    const ShownRun stated = this->stated("--interrupt-at 3");
    EXPECT_EQ(stated.messages, QStringList({"warning 3 warnCoreEntryClocks", "error errNoOpcodeAtIntVect"}));
    EXPECT_EQ(stated.path, "000 001");
}

} // namespace
