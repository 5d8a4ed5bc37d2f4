// How the real Mico8 behaves where one would not guess it, row by row, by programs of a few words. It starts at 001;
// the routine of an interrupt is at 000.

#include "Seen.h"

#include <gtest/gtest.h>

using namespace m8;

namespace {

Stimulus stimulusOf(const std::vector<Block>& blocks, qint64 clocks, const std::vector<Pulse>& interrupts = {},
                    const std::vector<Pulse>& resets = {})
{
    Stimulus stimulus;
    stimulus.program = program(blocks);
    stimulus.clocks = clocks;
    stimulus.interrupts = interrupts;
    stimulus.resets = resets;
    stimulus.reads = {0xA5, 0xA6, 0xA7};
    return stimulus;
}

Seen run(const std::vector<Block>& blocks, qint64 clocks, const std::vector<Pulse>& interrupts = {},
         const std::vector<Pulse>& resets = {})
{
    return Seen(Core::Mico8, stimulusOf(blocks, clocks, interrupts, resets));
}

} // namespace

TEST(Mico8, itStartsAt001WithZeroSet)
{
    EXPECT_EQ(run({{0, {NOP, jump(4, When::Z)}}}, 6).before(6), "I 001 0; I 005 2; I 006 4");
    EXPECT_EQ(run({{0, {NOP, jump(4, When::C)}}}, 6).before(6), "I 001 0; I 002 2; I 003 4");
}

TEST(Mico8, aRotateTakesTheSecondRegisterIntoTheFirst)
{
    struct Row
    {
        quint32 op;
        int value;   // of r2
        bool before; // carry
        int result;  // in r1
        bool after;  // carry
    };
    const Row rows[] = {
        {ROL, 0x80, false, 0x01, false}, {ROL, 0x80, true, 0x01, true},   {ROR, 0x01, false, 0x80, false},
        {ROR, 0x01, true, 0x80, true},   {ROLC, 0x80, false, 0x00, true}, {ROLC, 0x41, true, 0x83, false},
        {RORC, 0x01, false, 0x00, true}, {RORC, 0x82, true, 0xC1, false}, {ROL, 0x00, true, 0x00, true},
    };
    for (const Row& row : rows) {
        const Seen seen = run({{0,
                                {NOP, withK(LOAD, 1, 0x3C), withK(LOAD, 2, row.value), row.before ? SET_C : CLR_C,
                                 CLR_Z, withR(row.op, 1, 2), access(WRPRT, 1, 1), access(WRPRT, 2, 2)}}},
                              16);
        const std::string text = "W 01 " + QString("%1").arg(row.result, 2, 16, QChar('0')).toStdString() + "; W 02 " +
                                 QString("%1").arg(row.value, 2, 16, QChar('0')).toStdString();
        EXPECT_EQ(seen.only("W"), text) << std::hex << row.op;
        EXPECT_EQ(seen.model().carry(), row.after) << std::hex << row.op;
        EXPECT_EQ(seen.model().zero(), row.result == 0) << std::hex << row.op;
    }
    // The carry is the same on the HDL models: it leads the way.
    EXPECT_EQ(run({{0, {NOP, withK(LOAD, 2, 1), SET_C, withR(ROR, 1, 2), jump(4, When::C)}}}, 10).path(),
              "001 002 003 004 008");
    EXPECT_EQ(run({{0, {NOP, withK(LOAD, 2, 1), CLR_C, withR(ROR, 1, 2), jump(4, When::NC)}}}, 10).path(),
              "001 002 003 004 008");
    EXPECT_EQ(run({{0, {NOP, withK(LOAD, 2, 1), CLR_C, withR(RORC, 1, 2), jump(4, When::C)}}}, 10).path(),
              "001 002 003 004 008");
}

TEST(Mico8, logicLeavesTheCarry)
{
    for (const quint32 op : {AND, OR, XOR, TEST}) {
        const Seen set = run({{0, {NOP, SET_C, withK(op, 1, 1), jump(4, When::C)}}}, 8);
        EXPECT_EQ(set.path(), "001 002 003 007") << std::hex << op;
        const Seen cleared = run({{0, {NOP, withK(LOAD, 1, 1), withK(op, 1, 1), jump(4, When::NC)}}}, 8);
        EXPECT_EQ(cleared.path(), "001 002 003 007") << std::hex << op;
    }
}

TEST(Mico8, additionsAndSubtractionsSetZeroFromTheirOwnResult)
{
    // Zero is clear before: FF + 0 + 1, and 00 - FF - 1.
    EXPECT_EQ(run({{0, {NOP, withK(LOAD, 1, 0xFF), SET_C, CLR_Z, withK(ADDC, 1, 0), jump(4, When::Z)}}}, 12).path(),
              "001 002 003 004 005 009");
    EXPECT_EQ(run({{0, {NOP, SET_C, CLR_Z, withK(SUBC, 1, 0xFF), jump(4, When::Z)}}}, 10).path(),
              "001 002 003 004 008");
}

TEST(Mico8, aReturnFromTheRoutineLeavesInterruptsOnAndTheRequestComesAgain)
{
    // Entered again one instruction behind each RETI.
    const Seen seen = run({{0, {RETI, INT_ENABLE, NOP, NOP, NOP}}}, 16, {{0}});
    EXPECT_EQ(seen.before(16), "I 001 0; INT 000 2; I 000 2; I 002 4; INT 000 6; I 000 6; I 003 8; INT 000 10; I 000 "
                               "10; I 004 12; INT 000 14; I 000 14");
    EXPECT_TRUE(seen.model().interruptsEnabled());
}

TEST(Mico8, theEntryAgainWaitsForAnInstructionThatDoesNotPutOff)
{
    // Behind RETI come a call, a return, a taken conditional jump; only then a NOP.
    const Seen seen =
        run({{0, {RETI, INT_ENABLE, call(6), jump(8, When::Z), NOP}}, {8, {RET}}, {11, {NOP, NOP}}}, 18, {{0}});
    EXPECT_EQ(seen.before(18), "I 001 0; INT 000 2; I 000 2; I 002 4; I 008 6; I 003 8; I 00b 10; INT 000 12; I 000 "
                               "12; I 00c 14; INT 000 16; I 000 16");
}

TEST(Mico8, aRequestWhileInterruptsAreOffIsKept)
{
    const Seen seen = run({{0, {RETI, NOP, NOP, NOP, INT_ENABLE, NOP}}}, 12, {{0}});
    EXPECT_EQ(seen.before(12), "I 001 0; I 002 2; I 003 4; I 004 6; INT 000 8; I 000 8; I 005 10");
}

TEST(Mico8, aRequestIsEnteredBehindTheInstructionThatEndsLater)
{
    const std::vector<Block> blocks = {{0, {NOP, INT_ENABLE, NOP, NOP, NOP, NOP}}};
    for (int clock = 0; clock < 8; ++clock) {
        const int entry = 2 * ((clock + 1) / 2) + 2; // an instruction ends in each odd clock
        const Seen seen = run(blocks, 14, {{clock}});
        EXPECT_EQ(seen.only("INT"), "INT 000");
        EXPECT_EQ(seen.between(entry, entry + 1), QString("INT 000 %1; I 000 %1").arg(entry).toStdString());
    }
}

TEST(Mico8, flowThatIsTakenPutsTheEntryOff)
{
    struct Row
    {
        quint32 word;
        bool putsOff;
        int target;
    };
    const Row rows[] = {
        {jump(4, When::Z), true, 6}, {jump(4, When::NZ), false, 3}, {call(4), true, 6},
        {call(4, When::Z), true, 6}, {call(4, When::C), false, 3},  {jump(4), false, 6},
    };
    for (const Row& row : rows) {
        // The word at 002 runs in clocks 2 and 3, the request comes in clock 2.
        const Seen seen = run({{0, {RETI, INT_ENABLE, row.word, NOP}}, {6, {NOP, NOP}}}, 12, {{2}});
        const QString next = QString("%1").arg(row.target, 3, 16, QChar('0'));
        const QString behind = QString("%1").arg(row.target + 1, 3, 16, QChar('0'));
        // What is pushed is where RETI goes.
        const QString text = row.putsOff
                                 ? QString("I 001 0; I 002 2; I %1 4; INT 000 6; I 000 6; I %2 8; INT 000 10; I 000 10")
                                       .arg(next, behind)
                                 : QString("I 001 0; I 002 2; INT 000 4; I 000 4; I %1 6; INT 000 8; I 000 8; I %2 10")
                                       .arg(next, behind);
        EXPECT_EQ(seen.before(12), text.toStdString()) << std::hex << row.word;
    }
}

TEST(Mico8, aReturnPutsTheEntryOff)
{
    const Seen seen = run({{0, {RETI, INT_ENABLE, call(4), NOP, NOP}}, {6, {RET}}}, 10, {{4}});
    EXPECT_EQ(seen.before(10), "I 001 0; I 002 2; I 006 4; I 003 6; INT 000 8; I 000 8");
}

TEST(Mico8, theRoutineSeesAndTheReturnBringsBackTheFlagsBehindTheInstruction)
{
    // 003 sets carry and clears zero; the entry comes behind it. The routine clears the carry.
    const Seen seen = run({{0, {jump(0x10, When::C), INT_ENABLE, NOP, withK(SUB, 1, 1), jump(0x1C, When::C)}},
                           {0x10, {withK(ADD, 2, 0), RETI}}},
                          16, {{4}});
    EXPECT_EQ(seen.before(16), "I 001 0; I 002 2; I 003 4; INT 000 6; I 000 6; I 010 8; I 011 10; I 004 12; I 020 14");
}

TEST(Mico8, interruptsSwitchedOnInTheRoutineGiveNoSecondLevel)
{
    const Seen seen = run({{0, {INT_ENABLE, INT_ENABLE, NOP, NOP}}}, 10, {{0, 100}});
    EXPECT_EQ(seen.before(10), "I 001 0; INT 000 2; I 000 2; I 001 4; I 002 6; I 003 8");
}

TEST(Mico8, interruptsSwitchedOffInTheRoutineStayOff)
{
    const Seen seen =
        run({{0, {jump(0x10), INT_ENABLE, NOP, NOP, INT_ENABLE, NOP}}, {0x10, {INT_DISABLE, RETI}}}, 18, {{0}});
    EXPECT_EQ(
        seen.before(18),
        "I 001 0; INT 000 2; I 000 2; I 010 4; I 011 6; I 002 8; I 003 10; I 004 12; INT 000 14; I 000 14; I 010 16");
}

TEST(Mico8, aRequestDuringIntDisableComesTooLate)
{
    EXPECT_EQ(run({{0, {RETI, INT_ENABLE, INT_DISABLE, NOP}}}, 6, {{2}}).before(6), "I 001 0; I 002 2; I 003 4");
}

TEST(Mico8, behindAPlainReturnFromTheRoutineNothingIsEnteredUntilSomeRETI)
{
    // RET ends the first routine. The RETI behind the call at 003 ends what keeps entries off, and goes behind the
    // call.
    const Seen seen = run({{0, {RET, INT_ENABLE, NOP, call(5), NOP, NOP}}, {8, {RETI}}}, 18, {{0, 4}});
    EXPECT_EQ(
        seen.before(18),
        "I 001 0; INT 000 2; I 000 2; I 002 4; I 003 6; I 008 8; I 004 10; INT 000 12; I 000 12; I 005 14; I 006 16");
}

TEST(Mico8, aReturnFromAnInterruptBehindACallBringsBackTheFlagsAtTheCall)
{
    const Seen seen = run({{0, {NOP, SET_C, CLR_Z, call(5), jump(4, When::C)}}, {8, {CLR_C, SET_Z, RETI}}}, 16);
    EXPECT_EQ(seen.path(), "001 002 003 008 009 00a 004 008");
    EXPECT_FALSE(seen.model().zero());
}

TEST(Mico8, the17thNestedCallOverwritesTheOldestReturn)
{
    // Calls at 001, 003, ... 021, a return behind each. The 17th one, at 021, goes to 023.
    std::vector<quint32> nest = {NOP};
    for (int level = 0; level < 17; ++level) {
        nest.push_back(call(2));
        nest.push_back(RET);
    }
    nest.push_back(RET);
    const Seen seen = run({{0, nest}}, 2 * 36);
    // 16 returns come to 004; the 17th finds the cell of the 17th call, 022, not 002.
    EXPECT_EQ(seen.between(32, 38), "I 021 32; I 023 34; I 022 36");
    EXPECT_EQ(seen.between(64, 72), "I 006 64; I 004 66; I 022 68; I 020 70");
}

TEST(Mico8, aReturnAtDepth0TakesAStaleCell)
{
    EXPECT_EQ(run({{0, {NOP, NOP, RET}}}, 10).path(), "001 002 000 001 002");
    // The pointer is at the last cell then: a call writes it, and two returns find it after once around.
    const Seen seen = run({{0, {NOP, RET}}}, 8);
    EXPECT_EQ(seen.path(), "001 000 001 000");
    EXPECT_EQ(seen.model().depth(), 14);
}

TEST(Mico8, anInstructionTakesTwoClocksAndAnAccessThree)
{
    const Seen seen = run(
        {{0, {NOP, NOP, access(WRPRT, 1, 3), access(RDPRT, 1, 3), access(WRMEM, 1, 3), access(RDMEM, 2, 3), NOP}}}, 17);
    EXPECT_EQ(seen.before(17),
              "I 001 0; I 002 2; W 03 00 3; I 003 5; R 03 a5 6; I 004 8; I 005 11; I 006 14; I 007 16");
    EXPECT_EQ(int(seen.model().registers()[2]), 0xA5);
}

TEST(Mico8, anAccessToAPortWaits)
{
    Stimulus stimulus =
        stimulusOf({{0, {NOP, access(WRPRT, 1, 3), access(RDPRT, 1, 3), access(WRMEM, 1, 3), NOP}}}, 19);
    stimulus.waitStates = 2;
    EXPECT_EQ(Seen(Core::Mico8, stimulus).before(19),
              "I 001 0; W 03 00 3; I 002 5; R 03 a5 8; I 003 10; I 004 13; I 005 15; I 006 17");
}

TEST(Mico8, aRequestDuringAnAccessIsEnteredBehindIt)
{
    const std::vector<Block> blocks = {{0, {RETI, INT_ENABLE, access(WRPRT, 1, 3), NOP, NOP}}};
    EXPECT_EQ(run(blocks, 6, {{3}}).before(6), "I 001 0; I 002 2; W 03 00 3; INT 000 5; I 000 5");
    EXPECT_EQ(run(blocks, 8, {{4}}).before(8), "I 001 0; I 002 2; W 03 00 3; I 003 5; INT 000 7; I 000 7");
}

TEST(Mico8, onACoreOf16RegistersTheUpperOnesAreTheLowerOnes)
{
    for (const int count : {16, 32}) {
        CoreBuild build;
        build.registers = count;
        const Seen seen(
            Core::Mico8,
            stimulusOf(
                {{0, {NOP, withK(LOAD, 17, 0x55), access(WRPRT, 1, 1), withR(LOAD, 2, 17), access(WRPRT, 2, 2)}}}, 10),
            build);
        EXPECT_EQ(seen.only("W"), count == 16 ? "W 01 55; W 02 55" : "W 01 00; W 02 55");
    }
}

TEST(Mico8, longAddressesTakeTheirUpperBytesFromRegisters)
{
    const std::vector<quint32> words = {NOP,
                                        withK(LOAD, 13, 0x12),
                                        withK(LOAD, 14, 0x34),
                                        withK(LOAD, 15, 0x56),
                                        withK(LOAD, 1, 0x78),
                                        access(WRPRT_REG, 1, 1),
                                        access(RDPRT_REG, 1, 1),
                                        access(WRPRT, 1, 5)};
    const std::pair<int, const char*> rows[] = {{8, "W 78 78; R 78 a5; W 05 a5"},
                                                {16, "W 1278 78; R 1278 a5; W 05 a5"},
                                                {24, "W 341278 78; R 341278 a5; W 05 a5"},
                                                {32, "W 56341278 78; R 56341278 a5; W 05 a5"}};
    for (const auto& [bits, text] : rows) {
        CoreBuild build;
        build.addressBits = bits;
        EXPECT_EQ(Seen(Core::Mico8, stimulusOf({{0, words}}, 17), build).only("W R"), text);
    }
}

TEST(Mico8, aScratchpadAddressBeyondTheSizeWraps)
{
    CoreBuild build;
    build.scratchpadSize = 32;
    const Seen seen(
        Core::Mico8,
        stimulusOf(
            {{0, {NOP, withK(LOAD, 1, 0x25), access(WRMEM_REG, 1, 1), access(RDMEM, 2, 5), access(WRPRT, 2, 1)}}}, 11),
        build);
    EXPECT_EQ(seen.only("W"), "W 01 25");
}

TEST(Mico8, behindTheLastInstructionR0IsClearedOnAndOn)
{
    const Seen seen = run({{0, {access(WRPRT, 0, 1), withK(LOAD, 0, 9), SET_C, CLR_Z, jump(-6)}}}, 19);
    EXPECT_EQ(seen.before(19),
              "I 001 0; I 002 2; I 003 4; I 004 6; I ffe 8; I fff 10; I 000 12; W 01 00 13; I 001 15; I 002 17");
    const Seen flags = run({{0, {jump(4, When::Z), SET_C, CLR_Z, jump(-4)}}, {4, {jump(4, When::NC)}}}, 12);
    EXPECT_EQ(flags.path(), "001 002 003 fff 000 004");
}

TEST(Mico8, aResetKeepsRegistersAndScratchpad)
{
    // Before: r1 and a cell hold 5, carry is set, zero is not, interrupts are on and a request is latched, one call
    // deep. Behind the reset the word that was to come next, NOP, leaves zero as the reset did: 0.
    const std::vector<Block> blocks = {{0,
                                        {RETI,
                                         jump(4, When::NC),
                                         NOP,
                                         NOP,
                                         NOP,
                                         jump(3, When::Z),
                                         access(RDMEM, 2, 7),
                                         access(WRPRT, 2, 2),
                                         access(WRPRT, 1, 1),
                                         withK(LOAD, 1, 5),
                                         access(WRMEM, 1, 7),
                                         CLR_Z,
                                         call(2),
                                         NOP,
                                         SET_C,
                                         NOP,
                                         NOP,
                                         NOP,
                                         NOP,
                                         NOP,
                                         NOP}}};
    const Seen seen = run(blocks, 48, {}, {{26, 3}});
    EXPECT_EQ(seen.between(0, 48), "I 001 0; I 005 2; I 008 4; W 01 00 5; I 009 7; I 00a 9; I 00b 12; I 00c 14; I 00e "
                                   "16; I 00f 18; I 010 20; I 011 22; "
                                   "I 012 24; RESET 000 26; I 001 30; I 005 32; I 006 34; I 007 37; W 02 05 38; I 008 "
                                   "40; W 01 05 41; I 009 43; I 00a 45");
}

TEST(Mico8, theWordInTheRegisterOfTheMemoryLeavesZeroBehindAtAReset)
{
    // The word at 00b is the next one when the reset comes.
    const std::pair<quint32, const char*> rows[] = {{NOP, "001 00a 001 002"},
                                                    {withK(XOR, 5, 0), "001 00a 001 00a"},
                                                    {SET_Z, "001 00a 001 00a"},
                                                    {withK(LOAD, 5, 0), "001 00a 001 002"},
                                                    {withK(ADD, 5, 1), "001 00a 001 002"}};
    for (const auto& [word, path] : rows) {
        const Seen seen = run({{0, {NOP, jump(9, When::Z), NOP}}, {10, {NOP, word}}}, 11, {}, {{4, 2}});
        // At power-up zero is set: the first jump is taken.
        EXPECT_EQ(seen.path(), path) << std::hex << word;
    }
}

TEST(Mico8, aResetForgetsTheRequestAndTheRoutine)
{
    const std::vector<Block> blocks = {{0, {NOP, INT_ENABLE, NOP, NOP, NOP, NOP, NOP, NOP}}};
    // In the routine when the reset comes; a request behind it is entered.
    EXPECT_EQ(run(blocks, 19, {{0}, {13}}, {{6, 2}}).before(19),
              "I 001 0; INT 000 2; I 000 2; I 001 4; RESET 000 6; I 001 9; I 002 11; I 003 13; INT 000 15; I 000 15; I "
              "001 17");
}
