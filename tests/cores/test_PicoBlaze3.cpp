// How the real PicoBlaze 3 behaves where one would not guess it, row by row, by programs of a few words.

#include "Seen.h"

#include <gtest/gtest.h>

using namespace p3;

namespace {

Seen run(const std::vector<Block>& blocks, qint64 clocks, const std::vector<Pulse>& interrupts = {},
         const std::vector<Pulse>& resets = {})
{
    Stimulus stimulus;
    stimulus.program = program(blocks);
    stimulus.clocks = clocks;
    stimulus.interrupts = interrupts;
    stimulus.resets = resets;
    return Seen(Core::PicoBlaze3, stimulus);
}

const quint32 stop = 0; // stands for a word that is not reached

} // namespace

TEST(PicoBlaze3, aScratchpadAddressInARegisterWraps)
{
    const Seen seen = run({{0,
                            {withK(LOAD, 0, 0x41), withK(LOAD, 1, 0xAB), withY(WRMEM, 1, 0), withK(RDMEM, 2, 1),
                             withK(WRPRT, 2, 0), withK(LOAD, 0, 0xC1), withY(RDMEM, 3, 0), withK(WRPRT, 3, 1)}}},
                          16);
    EXPECT_EQ(seen.only("W"), "W 00 ab; W 01 ab");
}

// A call at each even address up to 3E, a return behind each. The 32nd return finds the cell of the outermost call
// written again, last by the innermost return itself.
TEST(PicoBlaze3, the32ndNestedCallOverwritesTheOldestReturn)
{
    std::vector<quint32> nest;
    for (int level = 0; level < 32; ++level) {
        nest.push_back(call(2 * level + 2));
        nest.push_back(ret());
    }
    const Seen seen = run({{0, nest}, {0x40, {withK(WRPRT, 0, 1), ret(), withK(WRPRT, 0, 2)}}}, 2 * 68);
    EXPECT_EQ(seen.between(62, 72), "I 03e 62; I 040 64; W 01 00 65; I 041 66; I 03f 68; I 03d 70");
    EXPECT_EQ(seen.between(126, 134), "I 005 126; I 003 128; I 042 130; W 02 00 131; I 043 132");
    EXPECT_EQ(seen.model().depth(), 0);
}

TEST(PicoBlaze3, aCallThatIsNotTakenLeavesTheStack)
{
    const Seen seen = run({{0, {call(8, When::Z), call(4), withK(WRPRT, 0, 1), jump(3), ret(When::NZ)}}}, 10);
    EXPECT_EQ(seen.path(), "000 001 004 002 003");
}

TEST(PicoBlaze3, anInterruptAtDepth31OverwritesTheOldestReturn)
{
    std::vector<quint32> nest = {INT_ENABLE};
    for (int level = 0; level < 31; ++level) {
        nest.push_back(call(2 * level + 3));
        nest.push_back(ret());
    }
    // The routine runs at 3FF with the pointer at the cell of the outermost call, which so holds the address of RETI.
    const Seen seen = run({{0, nest}, {63, {NOP, NOP, ret()}}, {0x3FF, {RETI_DISABLE}}}, 2 * 69, {{64}});
    EXPECT_EQ(seen.between(62, 74), "I 03d 62; I 03f 64; INT 040 66; I 3ff 68; I 040 70; I 041 72");
    EXPECT_EQ(seen.between(130, 138), "I 006 130; I 004 132; I 000 134; I 001 136");
}

TEST(PicoBlaze3, aReturnAtDepth0TakesAStaleCell)
{
    EXPECT_EQ(run({{0, {NOP, NOP, ret()}}}, 10).path(), "000 001 002 001 002");
    // Two returns: the second one takes the cell below, which is untouched, too.
    EXPECT_EQ(run({{0, {jump(4), ret(), stop, stop, ret()}}}, 10).path(), "000 004 001 001 001");
}

TEST(PicoBlaze3, whatRunsWithThePointerAtTheLastCellIsTakenByAReturnAtDepth0)
{
    // RET takes the pointer from 0 to 31 and goes to 001. CALL brings it back to 0; its own address is in cell 31 then.
    const Seen seen = run({{0, {jump(8), NOP, call(6)}}, {6, {NOP, ret(), ret()}}}, 20);
    EXPECT_EQ(seen.path(), "000 008 001 002 006 007 003 004 005 006");
}

TEST(PicoBlaze3, theRoutineSeesTheFlagsOfThePreemptedInstruction)
{
    // 002 is pre-empted: ADD would set carry and zero. Its register stays; the return brings the old flags back.
    const Seen seen = run({{0, {INT_ENABLE, withK(LOAD, 0, 0xFF), withK(ADD, 0, 1), withK(WRPRT, 0, 1), stop}},
                           {0x20, {withK(WRPRT, 0, 2), RETI_DISABLE}},
                           {0x3F0, {jump(0x20, When::Z)}},
                           {0x3FF, {jump(0x3F0, When::C)}}},
                          20, {{2}});
    EXPECT_EQ(seen.before(20),
              "I 000 0; I 001 2; INT 002 4; I 3ff 6; I 3f0 8; I 020 10; W 02 ff 11; I 021 12; I 002 14; "
              "I 003 16; W 01 00 17; I 004 18");
}

TEST(PicoBlaze3, theReturnBringsBackTheFlagsFromBeforeThePreemptedInstruction)
{
    // SUB at 001 sets carry; AND at 002, pre-empted, clears it; ADDC at 002 afterwards would see it if it was AND no
    // more. The return brings the carry back for the instruction that is executed again.
    const Seen seen =
        run({{0, {INT_ENABLE, withK(SUB, 0, 1), withK(ADDC, 1, 0), withK(WRPRT, 1, 1)}}, {0x3FF, {RETI_DISABLE}}}, 12,
            {{2}});
    EXPECT_EQ(seen.before(12), "I 000 0; I 001 2; INT 002 4; I 3ff 6; I 002 8; I 003 10; W 01 01 11");
}

TEST(PicoBlaze3, preemptedLoadsAndAccessesHaveNoFlags)
{
    const std::vector<quint32> withoutFlags = {withK(LOAD, 1, 0), withK(RDPRT, 1, 0), withK(RDMEM, 1, 0),
                                               withK(WRPRT, 1, 0), withK(WRMEM, 1, 0)};
    for (const quint32 word : withoutFlags) {
        // Carry is set before, and the routine still finds it.
        const Seen seen = run({{0, {INT_ENABLE, withK(SUB, 0, 1), word}}, {0x3FF, {jump(0x30, When::C)}}}, 10, {{2}});
        EXPECT_EQ(seen.before(10), "I 000 0; I 001 2; INT 002 4; I 3ff 6; I 030 8") << std::hex << word;
    }
}

TEST(PicoBlaze3, aPreemptedReturnFromAnInterruptLeavesTheFlags)
{
    // Power-up copies are 0, 0: if RETI at 002 brought them back, the routine would not find the carry.
    const Seen seen =
        run({{0, {INT_ENABLE, withK(SUB, 0, 1), RETI_ENABLE}}, {0x3FF, {jump(0x30, When::C)}}}, 10, {{2}});
    EXPECT_EQ(seen.before(10), "I 000 0; I 001 2; INT 002 4; I 3ff 6; I 030 8");
}

TEST(PicoBlaze3, aPreemptedInstructionStrobesNothing)
{
    const Seen seen = run({{0, {INT_ENABLE, NOP, withK(RDPRT, 1, 7)}}, {0x3FF, {RETI_DISABLE}}}, 12, {{2}});
    EXPECT_EQ(seen.before(12), "I 000 0; I 001 2; INT 002 4; I 3ff 6; I 002 8; R 07 00 9; I 003 10");
    const Seen write = run({{0, {INT_ENABLE, NOP, withK(WRPRT, 1, 7)}}, {0x3FF, {RETI_DISABLE}}}, 12, {{2}});
    EXPECT_EQ(write.before(12), "I 000 0; I 001 2; INT 002 4; I 3ff 6; I 002 8; W 07 00 9; I 003 10");
}

TEST(PicoBlaze3, aPreemptedInstructionWritesNoScratchpad)
{
    const Seen seen = run({{0, {INT_ENABLE, withK(LOAD, 0, 5), withK(WRMEM, 0, 3)}},
                           {0x20, {withK(RDMEM, 1, 3), withK(WRPRT, 1, 1), RETI_DISABLE}},
                           {0x3FF, {jump(0x20)}}},
                          20, {{2}});
    EXPECT_EQ(seen.only("W"), "W 01 00");
}

TEST(PicoBlaze3, nestedInterruptsHaveOneCopyOfTheFlags)
{
    // Outer entry with C=0, Z=0 before it. The routine sets the carry and lets an inner one in; both return at once.
    // The outer return then brings the flags of the inner entry: carry.
    const Seen seen = run({{0, {INT_ENABLE, NOP, NOP, jump(0x30, When::C)}},
                           {0x10, {withK(SUB, 0, 1), INT_ENABLE, NOP, RETI_ENABLE}},
                           {0x20, {RETI_DISABLE}},
                           {0x3FF, {jump(0x18)}},
                           // The first entry goes to 010, the second one to 020.
                           {0x18, {withK(ADD, 4, 1), withK(COMP, 4, 1), jump(0x10, When::Z), jump(0x20)}}},
                          42, {{2}, {16}});
    EXPECT_EQ(seen.path(), "000 001 3ff 018 019 01a 010 011 3ff 018 019 01a 01b 020 012 013 002 003 030");
}

TEST(PicoBlaze3, aReturnFromAnInterruptBehindACallGoesToTheCallWithTheFlagsOfTheLastInterrupt)
{
    // Carry is set before the call; after power-up the copy is 0, 0.
    const Seen seen = run({{0, {withK(SUB, 0, 1), call(8, When::C), jump(0x30)}}, {8, {RETI_DISABLE}}}, 12);
    EXPECT_EQ(seen.path(), "000 001 008 001 002 030");
}

TEST(PicoBlaze3, aRequestWhileInterruptsAreOffWaitsAsLongAsTheInputIsUp)
{
    const std::vector<Block> blocks = {{0, {NOP, NOP, NOP, INT_ENABLE, NOP, NOP}}, {0x3FF, {RETI_DISABLE}}};
    EXPECT_EQ(run(blocks, 12, {{0, 7}}).before(12), "I 000 0; I 001 2; I 002 4; I 003 6; INT 004 8; I 3ff 10");
    EXPECT_EQ(run(blocks, 12, {{0, 6}}).before(12), "I 000 0; I 001 2; I 002 4; I 003 6; I 004 8; I 005 10");
}

TEST(PicoBlaze3, aPulseThatCoversNoFirstHalfIsLost)
{
    const std::vector<Block> blocks = {{0, {INT_ENABLE, NOP, NOP, NOP}}, {0x3FF, {RETI_DISABLE}}};
    EXPECT_EQ(run(blocks, 10, {{3}}).before(10), "I 000 0; I 001 2; I 002 4; I 003 6; I 004 8");
    EXPECT_EQ(run(blocks, 10, {{3, 2}}).before(10), "I 000 0; I 001 2; I 002 4; INT 003 6; I 3ff 8");
}

TEST(PicoBlaze3, aRequestPreemptsTheSlotThatItsClockLeadsTo)
{
    const std::vector<Block> blocks = {{0, {INT_ENABLE}}, {0x3FF, {RETI_DISABLE}}};
    for (int clock = 0; clock < 12; ++clock) {
        const int slot = (clock + 3) / 2;
        const Seen seen = run(blocks, 20, {{clock, 2}});
        EXPECT_EQ(seen.between(2 * slot, 2 * slot + 3),
                  QString("INT 00%1 %2; I 3ff %3").arg(slot).arg(2 * slot).arg(2 * slot + 2).toStdString());
    }
}

TEST(PicoBlaze3, anEntryCostsTwoClocksAndSwitchesInterruptsOff)
{
    // The input stays up: no second entry before RETI ENABLE, and one directly behind it.
    const Seen seen =
        run({{0, {INT_ENABLE, NOP, NOP}}, {0x10, {NOP, RETI_ENABLE}}, {0x3FF, {jump(0x10)}}}, 16, {{2, 100}});
    EXPECT_EQ(seen.before(16), "I 000 0; I 001 2; INT 002 4; I 3ff 6; I 010 8; I 011 10; INT 002 12; I 3ff 14");
}

TEST(PicoBlaze3, aRequestDuringIntDisableComesTooLate)
{
    const std::vector<Block> blocks = {{0, {INT_ENABLE, INT_DISABLE, NOP}}, {0x3FF, {RETI_DISABLE}}};
    EXPECT_EQ(run(blocks, 8, {{2, 4}}).before(8), "I 000 0; I 001 2; I 002 4; I 003 6");
    EXPECT_EQ(run(blocks, 6, {{0}}).before(6), "I 000 0; INT 001 2; I 3ff 4");
}

TEST(PicoBlaze3, behindTheLastInstructionS0IsClearedOnAndOn)
{
    const Seen seen = run({{0, {withK(WRPRT, 0, 1), withK(LOAD, 0, 9), jump(0x3FE)}}}, 12);
    EXPECT_EQ(seen.before(12), "I 000 0; W 01 00 1; I 001 2; I 002 4; I 3fe 6; I 3ff 8; I 000 10; W 01 00 11");
}

TEST(PicoBlaze3, aVectorWithoutInstructionGoesOnAt000)
{
    const Seen seen = run({{0, {INT_ENABLE, withK(LOAD, 0, 9), withK(WRPRT, 0, 1)}}}, 14, {{2}});
    EXPECT_EQ(seen.before(14), "I 000 0; I 001 2; INT 002 4; I 3ff 6; I 000 8; I 001 10; I 002 12; W 01 09 13");
    EXPECT_EQ(seen.model().depth(), 1);
}

TEST(PicoBlaze3, aResetKeepsRegistersAndScratchpad)
{
    // Before: register 1 and a cell hold 5, carry is set, interrupts are on, one call deep. Behind: what is left of it.
    const std::vector<Block> blocks = {
        {0,
         {jump(0x10, When::C), withK(WRPRT, 1, 1), withK(RDMEM, 2, 7), withK(WRPRT, 2, 2), withK(LOAD, 1, 5), call(8)}},
        {8, {withK(WRMEM, 1, 7), INT_ENABLE, withK(SUB, 3, 1), NOP}}};
    // The input is up behind the reset, and nothing is entered.
    const Seen seen = run(blocks, 35, {{22, 10}}, {{20, 2}});
    EXPECT_EQ(seen.between(14, 35),
              "I 009 14; I 00a 16; I 00b 18; RESET 000 20; I 000 23; I 001 25; W 01 05 26; I 002 27; "
              "I 003 29; W 02 05 30; I 004 31; I 005 33");
    EXPECT_EQ(seen.model().depth(), 1);
}

TEST(PicoBlaze3, subtractionsSetZeroFromTheirOwnResult)
{
    // Carry set, zero not: SUBC 00, FF is -256, whose low byte is 0.
    const Seen seen = run({{0, {withK(SUB, 0, 1), withK(SUBC, 1, 0xFF), jump(8, When::Z)}}}, 8);
    EXPECT_EQ(seen.path(), "000 001 002 008");
}
