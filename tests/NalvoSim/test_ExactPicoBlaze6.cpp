// What the core of a PicoBlaze 6 does where the stated simulation does otherwise, by hand, in both modes.

#include "ExactFixture.h"

namespace {

class ExactPicoBlaze6 : public ExactToolTest
{
protected:
    ExactPicoBlaze6()
        : ExactToolTest("Xilinx PicoBlaze 6")
    {
    }

    /// Fills the stack with 30 calls from 001 on, and goes on at 005, "full", with clock 122.
    static QStringList full(const QStringList& rest)
    {
        return QStringList{"       LOAD s0, 30",   // 000  line 1
                           "       CALL deep",     // 001       2
                           "stop:  JUMP stop",     // 002       3
                           "deep:  SUB s0, 1",     // 003       4
                           "       CALL NZ, deep"} // 004       5
               + rest;                             // 005       6
    }
};

TEST_F(ExactPicoBlaze6, SubtractionWithCarryOf00AndFF)
{
    // C = 1 and Z = 1 come from a sum of 100.
    program({"LOAD s0, 0x00", // 000  line 1
             "LOAD s1, 0xFF", // 001
             "LOAD s2, 0xFF", // 002
             "ADD s2, 0x01",  // 003  C1 Z1
             "SUBC s0, s1",   // 004  line 5: 00 - FF - 1 = -100
             "end: JUMP end"});
    const ShownRun exact = this->exact("--until end");
    EXPECT_EQ(exact.reg("s0"), 0);
    EXPECT_EQ(exact.flags(), "C1 Z1");
    EXPECT_EQ(exact.messages, QStringList());
    const ShownRun stated = this->stated("--until end");
    EXPECT_EQ(stated.reg("s0"), 0);
    EXPECT_EQ(stated.flags(), "C1 Z0");
    EXPECT_EQ(stated.messages, QStringList("warning 5 warnCoreChainedZero"));
}

TEST_F(ExactPicoBlaze6, ComparisonWithCarryOf00AndFF)
{
    program({"LOAD s0, 0x00", "LOAD s1, 0xFF", "LOAD s2, 0xFF", "ADD s2, 0x01", "COMPC s0, 0xFF", "end: JUMP end"});
    EXPECT_EQ(exact("--until end").flags(), "C1 Z1");
    const ShownRun stated = this->stated("--until end");
    EXPECT_EQ(stated.flags(), "C1 Z0");
    EXPECT_EQ(stated.messages, QStringList("warning 5 warnCoreChainedZero"));
}

TEST_F(ExactPicoBlaze6, OtherSubtractionsWithCarryAreTheSame)
{
    // One of the inputs is another: the second operand, Z, or C.
    for (const QStringList& flags :
         {QStringList{"ADD s2, 0x01", "SUBC s0, 0xFE"}, QStringList{"ADD s2, 0x02", "SUBC s0, 0xFF"},
          QStringList{"COMP s2, s2", "SUBC s0, 0xFF"}, QStringList{"ADD s2, 0x01", "COMPC s0, 0xFE"}}) {
        program(QStringList{"LOAD s0, 0x00", "LOAD s2, 0xFF"} + flags + QStringList{"end: JUMP end"});
        const ShownRun stated = this->stated("--until end");
        const ShownRun exact = this->exact("--until end");
        EXPECT_EQ(stated.flags(), exact.flags()) << flags.join(' ').toStdString();
        EXPECT_EQ(stated.reg("s0"), exact.reg("s0")) << flags.join(' ').toStdString();
        EXPECT_EQ(stated.messages, QStringList()) << flags.join(' ').toStdString();
    }
}

TEST_F(ExactPicoBlaze6, ScratchpadTakesTheAddressModuloItsSize)
{
    const QStringList lines = {"LOAD s0, 0xC5", "LOAD s1, 0x77", "WRMEM s1, (s0)", "RDMEM s2, (s0)", "end: JUMP end"};
    program(lines, {{"scrpdSize", "64"}});
    ShownRun exact = this->exact("--until end");
    EXPECT_EQ(exact.path, "000@0 001@2 002@4 S05=77 003@6");
    EXPECT_EQ(exact.cell(0x05), 0x77);
    EXPECT_EQ(exact.reg("s2"), 0x77);
    EXPECT_EQ(exact.messages, QStringList({"warning 3 errScrpdWr", "warning 4 errScrpdRd"}));
    EXPECT_EQ(stated().messages, QStringList("error 3 errScrpdWr"));
    program(lines, {{"scrpdSize", "128"}});
    exact = this->exact("--until end");
    EXPECT_EQ(exact.path, "000@0 001@2 002@4 S45=77 003@6");
    EXPECT_EQ(exact.cell(0x45), 0x77);
    EXPECT_EQ(stated().messages, QStringList("error 3 errScrpdWr"));
    program(lines, {{"scrpdSize", "256"}});
    exact = this->exact("--until end");
    EXPECT_EQ(exact.path, "000@0 001@2 002@4 SC5=77 003@6");
    EXPECT_EQ(exact.messages, QStringList());
    EXPECT_EQ(stated("--until end").cell(0xC5), 0x77);
    program({"LOAD s0, 0x40", "RDMEM s2, (s0)"}, {{"scrpdSize", "64"}});
    EXPECT_EQ(stated().messages, QStringList("error 2 errScrpdRd"));
}

TEST_F(ExactPicoBlaze6, TheThirtyFirstCallResets)
{
    program(full({"       SUB s1, 1", // 005  line 6: C1 Z0, s1 = FF
                  "       CALL far",  // 006  line 7
                  "       NOP",       // 007
                  "far:   ADD s2, 7", // 008  half executed: the register, not the flags
                  "       NOP"}));
    // LOAD, CALL and 30 times SUB and CALL, of which the last is not taken: 62 instructions, so that 005 begins with
    // clock 124, the call with 126, and the first instruction at 000 six clocks after it.
    const ShownRun exact = this->exact("-n 65");
    EXPECT_TRUE(exact.path.endsWith("003@120 004@122 005@124 006@126 RESET 000@132"))
        << exact.path.right(80).toStdString();
    EXPECT_EQ(exact.reg("s2"), 7);
    EXPECT_EQ(exact.reg("s1"), 0xFF); // registers stay
    EXPECT_EQ(exact.flags(), "C0 Z0");
    EXPECT_EQ(exact.depth(), 0);
    EXPECT_EQ(exact.messages, QStringList("warning 7 errCallStackOverflow"));
    // The stated simulation takes the 31st, and warns.
    const ShownRun stated = this->stated("-n 65");
    EXPECT_TRUE(stated.path.endsWith("003 004 005 006 008")) << stated.path.right(40).toStdString();
    EXPECT_EQ(stated.depth(), 31);
    EXPECT_EQ(stated.messages, QStringList("warning 7 warnCoreReset"));
    program({"deep: CALL deep"});
    const ShownRun ended = this->stated();
    EXPECT_EQ(ended.messages, QStringList({"warning 1 warnCoreReset", "error 1 errCallStackOverflow"}));
    EXPECT_EQ(ended.instructions(), 31);
}

TEST_F(ExactPicoBlaze6, ThirtyCallsComeBack)
{
    program(full({"ADD s1, 1", "RET"}));
    for (const ShownRun& run : {exact("--until stop"), stated("--until stop")}) {
        EXPECT_EQ(run.end(), "label");
        EXPECT_EQ(run.reg("s1"), 30);
        EXPECT_EQ(run.messages, QStringList());
    }
}

TEST_F(ExactPicoBlaze6, AnEntryAtDepth30Resets)
{
    program({"       INT ENABLE",    // 000  line 1
             "       LOAD s0, 30",   // 001
             "       CALL deep",     // 002
             "       NOP",           // 003
             "deep:  SUB s0, 1",     // 004
             "       CALL NZ, deep", // 005
             "       NOP",           // 006  clock 2 * (3 + 60) = 126
             "       NOP",           // 007  line 8: pre-empted
             "#ORG ADDR, 0x3FF",     //      line 9
             "       ADD s1, 5"});   // 3FF  half executed
    // The entry begins with clock 128, the first instruction at 000 with 134.
    const ShownRun exact = this->exact("-n 65 --interrupt-at-clock 126");
    EXPECT_TRUE(exact.path.endsWith("005@124 006@126 INT RESET 000@134")) << exact.path.right(80).toStdString();
    EXPECT_EQ(exact.reg("s1"), 5);
    EXPECT_EQ(exact.depth(), 0);
    EXPECT_EQ(exact.messages, QStringList("warning 8 errCallStackOverflow"));
    const ShownRun stated = this->stated("-n 65 --interrupt-at 65");
    EXPECT_TRUE(stated.path.endsWith("005 006 INT 3FF")) << stated.path.right(40).toStdString();
    EXPECT_EQ(stated.messages.mid(0, 2), QStringList({"warning 8 warnCoreEntryClocks", "warning 8 warnCoreReset"}));
}

TEST_F(ExactPicoBlaze6, AReturnAtDepth0Resets)
{
    program({"JUMP on",       // 000
             "ADD s1, 1",     // 001
             "on: ADD s1, 1", // 002  line 3
             "RET"});         // 003  line 4: cell 0 holds 000, so that 001 is half executed
    const ShownRun exact = this->exact("-n 4");
    EXPECT_EQ(exact.path, "000@0 002@2 003@4 RESET 000@10");
    EXPECT_EQ(exact.reg("s1"), 2);
    EXPECT_EQ(exact.messages, QStringList("warning 4 errCallStackEmpty"));
    const ShownRun stated = this->stated();
    EXPECT_EQ(stated.messages, QStringList({"error", "error errCallStackEmpty"}));
    EXPECT_EQ(stated.path, "000 002 003");
}

TEST_F(ExactPicoBlaze6, AfterAResetTheLowestCellHoldsWhatWasHalfExecutedThen)
{
    program({"JUMP on",       // 000
             "NOP",           // 001  half executed at the first reset
             "ADD s2, 1",     // 002  half executed at the second
             "ADD s3, 1",     // 003  half executed at the third
             "on: ADD s1, 1", // 004
             "RET"});         // 005
    EXPECT_EQ(exact("-n 4").reg("s2"), 0);
    const ShownRun second = exact("-n 7");
    EXPECT_EQ(second.path, "000@0 004@2 005@4 RESET 000@10 004@12 005@14 RESET 000@20");
    EXPECT_EQ(second.reg("s2"), 1);
    EXPECT_EQ(second.reg("s3"), 0);
    const ShownRun third = exact("-n 10");
    EXPECT_EQ(third.reg("s2"), 1);
    EXPECT_EQ(third.reg("s3"), 1);
}

TEST_F(ExactPicoBlaze6, AReturnFromInterruptAtDepth0GoesToTheCellItself)
{
    program({"ADD s2, 1",      // 000  half executed at the first reset, and executed
             "ADD s1, 1",      // 001
             "RETI DISABLE"}); // 002
    const ShownRun exact = this->exact("-n 4");
    EXPECT_EQ(exact.path, "000@0 001@2 002@4 RESET 000@10");
    EXPECT_EQ(exact.reg("s2"), 3);
    EXPECT_EQ(exact.messages, QStringList("warning 3 errCallStackEmpty"));
    EXPECT_EQ(stated().messages, QStringList({"error", "error errCallStackEmpty"}));
}

TEST_F(ExactPicoBlaze6, LoadReturnAtDepth0LoadsItsRegister)
{
    program({"JUMP on", "NOP", "on: LOADRET s4, 0x99"});
    const ShownRun exact = this->exact("-n 3");
    EXPECT_EQ(exact.path, "000@0 002@2 RESET 000@8");
    EXPECT_EQ(exact.reg("s4"), 0x99);
    EXPECT_EQ(exact.messages, QStringList("warning 3 errCallStackEmpty"));
    EXPECT_EQ(stated().messages, QStringList({"error", "error errCallStackEmpty"}));
}

/// An instruction that is half executed with what it still does. Before it, in bank B: s0 = 11, s1 = 22, s5 = 03;
/// in bank A: s0 = AA, s1 = BB, s5 = 04; cell 3 holds 33, cell 4 holds 44.
struct sHalf_t
{
    const char* name;
    const char* instruction;
    const char* strobe; ///< behind RESET
    const char* bank;
    const char* reg; ///< null: none changes
    int value;
};
class ExactPicoBlaze6Half : public ExactPicoBlaze6, public ::testing::WithParamInterface<sHalf_t>
{
};

TEST_P(ExactPicoBlaze6Half, IsExecutedInAReset)
{
    // The return at depth 0 goes to 001.
    const QStringList lines = {"JUMP on",              // 000  line 1
                               GetParam().instruction, // 001
                               "callee: RET",          // 002
                               "on: LOAD s0, 0xAA",
                               "LOAD s1, 0xBB",
                               "LOAD s5, 4",
                               "LOAD s6, 0x33",
                               "LOAD s7, 0x44",
                               "WRMEM s6, 3",
                               "WRMEM s7, 4",
                               "REGBANK B",
                               "LOAD s0, 0x11",
                               "LOAD s1, 0x22",
                               "LOAD s5, 3",
                               "INT ENABLE",
                               "COMP s0, 0xFF",
                               "RET"};
    program(lines);
    write("values", "5A\n");
    const ShownRun exact = this->exact("--reads values --hwbuild 0x7E -n 16");
    const QString tail = QString("RESET %1 000@34").arg(GetParam().strobe).simplified();
    EXPECT_TRUE(exact.path.endsWith("010@28 " + tail)) << exact.path.right(60).toStdString();
    EXPECT_EQ(exact.flags(), "C0 Z0");
    EXPECT_EQ(exact.bank(), "A");
    EXPECT_EQ(exact.interrupt(), "disabled");
    EXPECT_EQ(exact.depth(), 0);
    QMap<QString, int> wanted = {{"A s0", 0xAA}, {"A s1", 0xBB}, {"A s5", 4},
                                 {"B s0", 0x11}, {"B s1", 0x22}, {"B s5", 3}};
    if (GetParam().reg != nullptr)
        wanted[QString(GetParam().bank) + ' ' + GetParam().reg] = GetParam().value;
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it)
        EXPECT_EQ(exact.reg(it.key().mid(2).toLatin1(), it.key().left(1).toLatin1()), it.value())
            << it.key().toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Instructions, ExactPicoBlaze6Half,
    ::testing::Values(
        sHalf_t{"Load", "LOAD s0, 0x66", "", "B", "s0", 0x66}, //
        sHalf_t{"Add", "ADD s0, s1", "", "B", "s0", 0x33}, sHalf_t{"Rotate", "SL1 s0", "", "B", "s0", 0x23},
        sHalf_t{"Loadret", "LOADRET s0, 0x66", "", "B", "s0", 0x66},
        sHalf_t{"Hwbuild", "HWBUILD s0", "", "B", "s0", 0x7E}, sHalf_t{"Star", "STAR s0, s1", "", "A", "s0", 0x22},
        sHalf_t{"ReadPort", "RDPRT s0, 0x09", "R09=5A", "B", "s0", 0x5A},
        sHalf_t{"ReadPortAtRegister", "RDPRT s0, (s5)", "R04=5A", "B", "s0", 0x5A},
        sHalf_t{"WritePort", "WRPRT s0, 0x09", "W09=11", "B", nullptr, 0},
        sHalf_t{"WritePortAtRegister", "WRPRT s0, (s5)", "W04=11", "B", nullptr, 0},
        sHalf_t{"WriteConstant", "WRPRT 0x5A, 0x3", "KA3=5A", "B", nullptr, 0},
        sHalf_t{"ReadScratchpad", "RDMEM s0, 4", "", "B", "s0", 0x44},
        sHalf_t{"ReadScratchpadAtRegister", "RDMEM s0, (s5)", "", "B", "s0", 0x33},
        sHalf_t{"WriteScratchpad", "WRMEM s0, 9", "S09=11", "B", nullptr, 0},
        sHalf_t{"WriteScratchpadAtRegister", "WRMEM s0, (s5)", "S04=11", "B", nullptr, 0},
        sHalf_t{"Compare", "COMP s0, 0xFF", "", "B", nullptr, 0}, sHalf_t{"Regbank", "REGBANK B", "", "B", nullptr, 0},
        sHalf_t{"Enable", "INT ENABLE", "", "B", nullptr, 0}, sHalf_t{"Jump", "JUMP callee", "", "B", nullptr, 0},
        sHalf_t{"Call", "CALL callee", "", "B", nullptr, 0}, sHalf_t{"Return", "RET", "", "B", nullptr, 0},
        sHalf_t{"ReturnFromInterrupt", "RETI ENABLE", "", "B", nullptr, 0}),
    [](const auto& each) { return std::string(each.param.name); });

TEST_F(ExactPicoBlaze6, ARequestTakesAwayWhatIsHalfExecuted)
{
    program({"JUMP on",        // 000
             "ADD s1, 1",      // 001
             "on: INT ENABLE", // 002
             "RET",            // 003  clock 4
             "#ORG ADDR, 0x3FF", "RETI DISABLE"});
    const ShownRun taken = exact("-n 4 --interrupt-at-clock 4");
    EXPECT_EQ(taken.path, "000@0 002@2 003@4 RESET 000@10");
    EXPECT_EQ(taken.reg("s1"), 0);
    EXPECT_EQ(exact("-n 4 --interrupt-at-clock 5").reg("s1"), 1);
    EXPECT_EQ(exact("-n 4").reg("s1"), 1);
}

TEST_F(ExactPicoBlaze6, RequestsInTheClocksOfAResetAreLost)
{
    program({"INT ENABLE", // 000  clocks 0, 10
             "JUMP on",    // 001
             "on: RET",    // 002  clock 4
             "#ORG ADDR, 0x3FF", "RETI DISABLE"});
    EXPECT_EQ(exact("-n 5 --interrupt-at-clock 5:5").path, "000@0 001@2 002@4 RESET 000@10 001@12");
    EXPECT_EQ(exact("-n 5 --interrupt-at-clock 5:6").path, "000@0 001@2 002@4 RESET 000@10 INT 3FF@14");
}

TEST_F(ExactPicoBlaze6, AReturnFromInterruptBringsBackTheBank)
{
    program({"INT ENABLE",     // 000
             "NOP",            // 001  pre-empted
             "end: JUMP end",  // 002
             "isr: REGBANK B", // 003
             "RETI DISABLE",   // 004  line 5
             "#ORG ADDR, 0x3FF", "JUMP isr"});
    const ShownRun exact = this->exact("--until end --interrupt-at-clock 0");
    EXPECT_EQ(exact.path, "000@0 INT 3FF@4 003@6 004@8 001@10");
    EXPECT_EQ(exact.bank(), "A");
    const ShownRun stated = this->stated("--until end --interrupt-at 2");
    EXPECT_EQ(stated.bank(), "B");
    EXPECT_EQ(stated.messages, QStringList({"warning 2 warnCoreEntryClocks", "warning 5 warnCoreReturnedBank"}));
}

TEST_F(ExactPicoBlaze6, AReturnFromInterruptBehindACallBringsBackTheBankOfTheCall)
{
    program({"COMP s0, 1",         // 000  C1
             "CALL C, callee",     // 001
             "end: JUMP end",      // 002
             "callee: COMP s0, 0", // 003  C0
             "REGBANK B",          // 004
             "RETI DISABLE"});     // 005  line 6
    const ShownRun exact = this->exact("-n 6");
    // Address and flags are those of the call, so that it is taken again.
    EXPECT_EQ(exact.path, "000@0 001@2 003@4 004@6 005@8 001@10");
    EXPECT_EQ(this->exact("-n 5").bank(), "A");
    EXPECT_EQ(this->exact("-n 5").flags(), "C1 Z0");
    EXPECT_EQ(this->stated("-n 5").bank(), "B");
    EXPECT_EQ(this->stated("-n 5").flags(), "C1 Z0");
    EXPECT_EQ(this->stated("-n 5").messages, QStringList("warning 6 warnCoreReturnedBank"));
}

TEST_F(ExactPicoBlaze6, AReturnLeavesTheBank)
{
    program({"CALL callee", "end: JUMP end", "callee: REGBANK B", "RET"});
    EXPECT_EQ(exact("--until end").bank(), "B");
    EXPECT_EQ(stated("--until end").bank(), "B");
    EXPECT_EQ(stated("--until end").messages, QStringList());
}

TEST_F(ExactPicoBlaze6, APreEmptedBankSwitchIsSeenInTheRoutineAndExecutedAgain)
{
    program({"INT ENABLE",      // 000
             "REGBANK B",       // 001  line 2: pre-empted
             "LOAD s0, 1",      // 002
             "end: JUMP end",   // 003
             "isr: LOAD s1, 2", // 004
             "RETI DISABLE",    // 005
             "#ORG ADDR, 0x3FF", "JUMP isr"});
    const ShownRun inRoutine = exact("--until isr --interrupt-at-clock 0");
    EXPECT_EQ(inRoutine.path, "000@0 INT 3FF@4");
    EXPECT_EQ(inRoutine.bank(), "B");
    EXPECT_EQ(exact("-n 4 --interrupt-at-clock 0").bank(), "A"); // back
    const ShownRun after = exact("--until end --interrupt-at-clock 0");
    EXPECT_EQ(after.path, "000@0 INT 3FF@4 004@6 005@8 001@10 002@12");
    EXPECT_EQ(after.bank(), "B");
    EXPECT_EQ(after.reg("s0", "B"), 1);
    EXPECT_EQ(after.reg("s1", "B"), 2);
    EXPECT_EQ(after.reg("s1", "A"), 0);
    const ShownRun stated = this->stated("--until end --interrupt-at 2");
    EXPECT_EQ(stated.reg("s1", "A"), 2);
    EXPECT_EQ(stated.reg("s1", "B"), 0);
    EXPECT_EQ(stated.messages, QStringList({"warning 2 warnCoreEntryClocks", "warning 2 warnCoreEntryBank"}));
}

TEST_F(ExactPicoBlaze6, APreEmptedReturnFromInterruptSwitchesToTheBankOfTheNewestCell)
{
    program({"REGBANK B",         // 000
             "INT ENABLE",        // 001
             "CALL callee",       // 002  pushes bank B
             "end: JUMP end",     // 003
             "callee: REGBANK A", // 004
             "NOP",               // 005  clock 8
             "RETI DISABLE",      // 006  line 7: pre-empted
             "isr: LOAD s1, 2",   // 007
             "RETI DISABLE",      // 008
             "#ORG ADDR, 0x3FF", "JUMP isr"});
    const ShownRun exact = this->exact("--until isr --interrupt-at-clock 8");
    EXPECT_EQ(exact.path, "000@0 001@2 002@4 004@6 005@8 INT 3FF@12");
    EXPECT_EQ(exact.bank(), "B");
    const ShownRun after = this->exact("-n 8 --interrupt-at-clock 8");
    EXPECT_EQ(after.reg("s1", "B"), 2);
    EXPECT_EQ(after.bank(), "A"); // of the entry
    const ShownRun stated = this->stated("--until isr --interrupt-at 6");
    EXPECT_EQ(stated.bank(), "A");
    EXPECT_TRUE(stated.messages.contains("warning 7 warnCoreEntryBank")) << stated.messages.join(' ').toStdString();
}

TEST_F(ExactPicoBlaze6, TheRoutineSeesTheFlagsFromBeforeThePreEmptedInstruction)
{
    program({"LOAD s0, 0xFF", "INT ENABLE", "ADD s0, 1", "end: JUMP end", "isr: RETI DISABLE", "#ORG ADDR, 0x3FF",
             "JUMP isr"});
    EXPECT_EQ(exact("--until isr --interrupt-at-clock 2").flags(), "C0 Z0");
    const ShownRun stated = this->stated("--until isr --interrupt-at 3");
    EXPECT_EQ(stated.flags(), "C0 Z0");
    EXPECT_EQ(stated.messages, QStringList("warning 3 warnCoreEntryClocks"));
}

TEST_F(ExactPicoBlaze6, EachLevelHasItsCopyOfTheFlags)
{
    program({"COMP s0, 1",         // 000  C1 Z0
             "INT ENABLE",         // 001  clock 2
             "JUMP Z, bad",        // 002  pre-empted; not taken
             "end: JUMP end",      // 003
             "bad: JUMP bad",      // 004
             "isr: ADD s2, 1",     // 005
             "COMP s2, 2",         // 006
             "JUMP Z, inner",      // 007
             "COMP s0, 0",         // 008  C0 Z1
             "INT ENABLE",         // 009
             "NOP",                // 00A  pre-empted
             "RETI DISABLE",       // 00B
             "inner: RETI ENABLE", // 00C
             "#ORG ADDR, 0x3FF", "JUMP isr"});
    // Slots: 2 entry, 3 vector, 4 to 7 the routine, 8 INT ENABLE at clock 16.
    const ShownRun exact = this->exact("--until end --interrupt-at-clock 2 --interrupt-at-clock 16");
    EXPECT_EQ(exact.path, "000@0 001@2 INT 3FF@6 005@8 006@10 007@12 008@14 009@16 INT 3FF@20 005@22 006@24 007@26 "
                          "00C@28 00A@30 00B@32 002@34");
    EXPECT_EQ(exact.flags(), "C1 Z0");
    const ShownRun stated = this->stated("--until end --interrupt-at 3 --interrupt-at 9");
    EXPECT_EQ(stated.flags(), "C1 Z0");
    EXPECT_EQ(stated.messages, QStringList("warning 3 warnCoreEntryClocks"));
}

TEST_F(ExactPicoBlaze6, AConstantIsWrittenWithEightAddressLines)
{
    program({"WRPRT 0x5A, 0x3", "LOAD s0, 0x5A", "WRPRT s0, 0x3", "end: JUMP end"});
    EXPECT_EQ(exact("--until end").path, "000@0 KA3=5A 001@2 002@4 W03=5A");
    const ShownRun stated = this->stated("--until end");
    EXPECT_EQ(stated.path, "000 W03=5A 001 002 W03=5A");
    EXPECT_EQ(stated.messages, QStringList("warning 1 warnCoreConstantWrite"));
}

TEST_F(ExactPicoBlaze6, AComputedJumpIntoAGapExecutesZeroes)
{
    program({"LOAD s0, 0x05", "LOAD s1, 0x20", "JUMP (s0, s1)"});
    const ShownRun exact = this->exact("-n 5");
    EXPECT_EQ(exact.path, "000@0 001@2 002@4 520@6 521@8");
    EXPECT_TRUE(read("t").endsWith("I 521 00000 8\n"));
    EXPECT_EQ(exact.reg("s0"), 5); // LOAD s0, s0
    EXPECT_EQ(exact.messages, QStringList("warning errNoOpcodeToExec"));
    const ShownRun stated = this->stated();
    EXPECT_EQ(stated.messages, QStringList("error"));
    EXPECT_EQ(stated.key(), "internal");
    EXPECT_EQ(stated.status, 3);
    program({"LOAD s0, 0x05", "LOAD s1, 0x20", "CALL (s0, s1)"});
    EXPECT_EQ(this->exact("-n 4").path, "000@0 001@2 002@4 520@6");
    EXPECT_EQ(this->exact("-n 4").depth(), 1);
    EXPECT_EQ(this->stated().key(), "internal");
}

TEST_F(ExactPicoBlaze6, TheMemoryEndsAtFFF)
{
    program({"LOAD s0, 5", "ADD s1, 1"});
    const ShownRun exact = this->exact("-n 4097");
    EXPECT_TRUE(exact.path.startsWith("000@0 001@2 002@4")) << exact.path.left(50).toStdString();
    EXPECT_TRUE(exact.path.endsWith("FFE@8188 FFF@8190 000@8192")) << exact.path.right(50).toStdString();
    EXPECT_EQ(exact.messages, QStringList("warning errNoOpcodeToExec"));
    EXPECT_EQ(this->exact("-n 100").reg("s0"), 5);
    const ShownRun stated = this->stated();
    EXPECT_EQ(stated.path, "000 001");
    EXPECT_EQ(stated.messages, QStringList({"error", "error errNoOpcodeToExec"}));
}

TEST_F(ExactPicoBlaze6, ARequestWaitsWhileInterruptsAreOffAsLongAsTheInputIsUp)
{
    program({"NOP", "NOP", "NOP", "INT ENABLE", "NOP", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI DISABLE"});
    EXPECT_EQ(exact("--until end --interrupt-at-clock 0:7").path, "000@0 001@2 002@4 003@6 INT 3FF@10 004@12");
    EXPECT_EQ(exact("--until end --interrupt-at-clock 0:6").path, "000@0 001@2 002@4 003@6 004@8");
    const ShownRun stated = this->stated("--until end --interrupt-at 2");
    EXPECT_EQ(stated.path, "000 001 002 003 004");
    EXPECT_EQ(stated.messages, QStringList("warning 2 warnCoreRequestKept"));
}

TEST_F(ExactPicoBlaze6, APulseThatCoversNoFirstClockIsLost)
{
    program({"INT ENABLE", "NOP", "NOP", "NOP", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI DISABLE"});
    EXPECT_EQ(exact("--until end --interrupt-at-clock 3").path, "000@0 001@2 002@4 003@6");
    EXPECT_EQ(exact("--until end --interrupt-at-clock 4").path, "000@0 001@2 002@4 INT 3FF@8 003@10");
    EXPECT_EQ(stated("--until end --interrupt-at 4").path, "000 001 002 INT 3FF 003");
}

TEST_F(ExactPicoBlaze6, AnEntryCostsTwoClocks)
{
    program({"INT ENABLE", "NOP", "NOP", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI DISABLE"});
    EXPECT_EQ(exact("--until end --interrupt-at-clock 0").clocks(), 10);
    const ShownRun stated = this->stated("--until end --interrupt-at 2");
    EXPECT_EQ(stated.clocks(), 8);
    EXPECT_EQ(stated.messages, QStringList("warning 2 warnCoreEntryClocks"));
}

TEST_F(ExactPicoBlaze6, TheSlotOfAnEntryLeadsToNoOther)
{
    program({"INT ENABLE", "NOP", "NOP", "end: JUMP end", "#ORG ADDR, 0xFFF", "INT ENABLE"},
            {{"intVectorAddr", "4095"}, {"memMap/pageSize", "4096"}});
    EXPECT_EQ(exact("-n 4 --interrupt-at-clock 0:3").path, "000@0 INT FFF@4 000@6 001@8");
    EXPECT_EQ(exact("-n 4 --interrupt-at-clock 0:5").path, "000@0 INT FFF@4 INT FFF@8 000@10");
}

TEST_F(ExactPicoBlaze6, EnableCountsAtOnceAndDisableToo)
{
    program({"INT ENABLE", "INT DISABLE", "NOP", "end: JUMP end", "#ORG ADDR, 0x3FF", "RETI ENABLE"});
    EXPECT_EQ(exact("--until end --interrupt-at-clock 2:2").path, "000@0 001@2 002@4");
    EXPECT_EQ(exact("--until end --interrupt-at-clock 0:5").path, "000@0 INT 3FF@4 INT 3FF@8 001@10 002@12");
}

} // namespace
