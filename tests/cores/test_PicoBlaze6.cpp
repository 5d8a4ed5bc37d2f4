// How the real PicoBlaze 6 behaves where one would not guess it, row by row, by programs of a few words.

#include "Seen.h"

#include <gtest/gtest.h>

using namespace p6;

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
    return Seen(Core::PicoBlaze6, stimulusOf(blocks, clocks, interrupts, resets));
}

/// Calls at 000, 002, ... of the address two further on, a return behind each; the last one goes to 2 * depth.
std::vector<quint32> nest(int depth)
{
    std::vector<quint32> words;
    for (int level = 0; level < depth; ++level) {
        words.push_back(call(2 * level + 2));
        words.push_back(ret());
    }
    return words;
}

/// A program that switches to bank B with some values in both banks, and then executes RET at depth 0 at address 010.
/// The instruction that is half executed behind it is at 001, before which the program comes again to 000.
std::vector<Block> halfExecuting(quint32 word)
{
    return {{0,
             {jump(3), word, jump(0x20), withK(LOAD, 1, 0x11), withK(LOAD, 2, 0x12), withK(WRMEM, 1, 0x21),
              withK(WRMEM, 2, 0x22), BANK_B, withK(LOAD, 1, 0x21), withK(LOAD, 2, 0x22), jump(0x10)}},
            {0x10, {ret()}}};
}

} // namespace

TEST(PicoBlaze6, chainedSubtractionsKeepZeroWhereTheResultIsMinus256)
{
    for (const quint32 op : {SUBC, COMPC}) {
        // SR0 of 1 sets both carry and zero.
        const Seen seen = run({{0, {withK(LOAD, 0, 1), SR0(0), withK(op, 1, 0xFF), jump(8, When::Z)}}}, 10);
        EXPECT_EQ(seen.path(), "000 001 002 003 008") << std::hex << op;
        EXPECT_TRUE(seen.model().carry());
    }
}

TEST(PicoBlaze6, chainedInstructionsNeedTheEarlierZero)
{
    for (const quint32 op : {ADDC, SUBC, COMPC, TESTC}) {
        const Seen cleared = run({{0, {withK(op, 1, 0), jump(8, When::Z)}}}, 6);
        EXPECT_EQ(cleared.path(), "000 001 002") << std::hex << op;
        const Seen set = run({{0, {withK(SUB, 0, 0), withK(op, 1, 0), jump(8, When::Z)}}}, 8);
        EXPECT_EQ(set.path(), "000 001 002 008") << std::hex << op;
    }
}

TEST(PicoBlaze6, aScratchpadAddressBeyondTheSizeWraps)
{
    for (const int size : {64, 128, 256}) {
        CoreBuild build;
        build.scratchpadSize = size;
        const Seen seen(Core::PicoBlaze6,
                        stimulusOf({{0,
                                     {withK(LOAD, 0, (size + 5) & 0xFF), withK(LOAD, 1, 0xAB), withY(WRMEM, 1, 0),
                                      withK(RDMEM, 2, 5), withK(WRPRT, 2, 0), withK(LOAD, 0, 0xC5),
                                      withK(WRMEM, 0, 0xC5 % size), withY(RDMEM, 3, 0), withK(WRPRT, 3, 1)}}},
                                   18),
                        build);
        EXPECT_EQ(seen.only("W"), "W 00 ab; W 01 c5");
        EXPECT_EQ(int(seen.model().scratchpad()[std::size_t(0xC5 % size)]), 0xC5);
    }
}

TEST(PicoBlaze6, the31stNestedCallResetsTheCore)
{
    std::vector<Block> blocks = {{0, nest(30)}, {60, {call(0x80)}}, {0x80, {withK(WRPRT, 0, 1), NOP}}};
    const Seen seen = run(blocks, 70);
    EXPECT_EQ(seen.between(56, 70), "I 038 56; I 03a 58; I 03c 60; RESET 080 62; W 01 00 63; I 000 66; I 002 68");
    EXPECT_EQ(seen.model().depth(), 2);
    blocks[1].second = {jump(0x80)};
    EXPECT_EQ(run(blocks, 66).between(58, 66), "I 03a 58; I 03c 60; I 080 62; W 01 00 63; I 081 64");
}

TEST(PicoBlaze6, anInterruptAtDepth30ResetsTheCore)
{
    std::vector<quint32> words = {INT_ENABLE, jump(2)};
    for (int level = 1; level <= 30; ++level) {
        words.push_back(call(2 * level + 2));
        words.push_back(ret());
    }
    const std::vector<Block> blocks = {{0, words}, {62, {NOP, NOP, NOP, NOP}}, {0x3FF, {withK(WRPRT, 0, 1)}}};
    const Seen seen = run(blocks, 76, {{64}});
    EXPECT_EQ(seen.between(62, 76), "I 03c 62; I 03e 64; INT 03f 66; RESET 3ff 68; W 01 00 69; I 000 72; I 001 74");
    // At depth 29 it enters.
    EXPECT_EQ(run(blocks, 68, {{60}}).between(60, 68), "I 03a 60; INT 03c 62; I 3ff 64; W 01 00 65; I 400 66");
}

TEST(PicoBlaze6, returnsAtDepth0ResetTheCore)
{
    // Cell 0 is 000: RET and LOADRET go behind it, RETI to it.
    for (const quint32 word : {ret(), loadret(3, 0x55), ret(When::NZ)}) {
        const Seen seen = run({{0, {jump(8), withK(WRPRT, 3, 1), NOP}}, {8, {word}}}, 14);
        const std::string value = word == loadret(3, 0x55) ? "55" : "00";
        EXPECT_EQ(seen.before(14),
                  "I 000 0; I 008 2; RESET 001 4; W 01 " + value + " 5; I 000 8; I 008 10; RESET 002 12");
    }
    const Seen seen = run({{0, {withK(WRPRT, 3, 1), jump(8)}}, {8, {RETI_DISABLE}}}, 14);
    EXPECT_EQ(seen.before(14),
              "I 000 0; W 01 00 1; I 001 2; I 008 4; RESET 000 6; W 01 00 7; I 000 10; W 01 00 11; I 001 12");
}

TEST(PicoBlaze6, aReturnThatIsNotTakenAtDepth0ResetsNothing)
{
    EXPECT_EQ(run({{0, {ret(When::Z), ret(When::C), NOP}}}, 6).path(), "000 001 002");
}

TEST(PicoBlaze6, aReturnAtDepth0GoesBehindTheInstructionOfTheResetBefore)
{
    // A cell of the scratchpad counts the runs. In the first one the 31st call resets the core and half executes 100;
    // in the next ones a return at depth 0 does it.
    std::vector<quint32> words = {withK(RDMEM, 5, 1), withK(ADD, 5, 1), withK(WRMEM, 5, 1), withK(COMP, 5, 1),
                                  jump(0x70, When::NZ)};
    for (int level = 1; level <= 30; ++level)
        words.push_back(call(level + 5));
    words.push_back(call(0x100));
    const auto resets = [&](quint32 word) {
        return run({{0, words}, {0x70, {word}}, {0x100, {withK(WRPRT, 5, 1), withK(WRPRT, 5, 2)}}}, 106)
            .only("RESET W");
    };
    EXPECT_EQ(resets(ret()), "RESET 100; W 01 01; RESET 101; W 02 02; RESET 102");
    EXPECT_EQ(resets(RETI_DISABLE), "RESET 100; W 01 01; RESET 100; W 01 02; RESET 100; W 01 03");
}

TEST(PicoBlaze6, aResetOfTheCoreClearsFlagsEnableBankAndStack)
{
    // Carry is set, interrupts on, bank B; the request is held over the reset, and nothing is entered.
    const Seen seen = run({{0,
                            {jump(0x20, When::C), withK(WRPRT, 1, 1), withK(LOAD, 1, 7), BANK_B, INT_ENABLE,
                             withK(SUB, 1, 1), RETI_ENABLE}},
                           {0x3FF, {RETI_DISABLE}}},
                          30, {{14, 20}});
    EXPECT_EQ(seen.before(26),
              "I 000 0; I 001 2; W 01 00 3; I 002 4; I 003 6; I 004 8; I 005 10; I 006 12; RESET 000 14; I 000 18; "
              "I 001 20; W 01 07 21; I 002 22; I 003 24");
    EXPECT_EQ(seen.model().bank(), 1);
}

TEST(PicoBlaze6, aHalfExecutedInstructionLoadsItsRegister)
{
    struct Row
    {
        quint32 word;
        int bank;
        int value; // of s1 in that bank
    };
    CoreBuild build;
    build.hwBuild = 0x42;
    const Row rows[] = {
        {withK(LOAD, 1, 0x66), 1, 0x66},  {loadret(1, 0x55), 1, 0x55},   {hwbuild(1), 1, 0x42},
        {withK(STAR, 1, 0x77), 0, 0x77},  {withY(STAR, 1, 2), 0, 0x22},  {withK(RDPRT, 1, 9), 1, 0xA5},
        {withK(RDMEM, 1, 0x21), 1, 0x11}, {withY(RDMEM, 1, 2), 1, 0x12}, {withY(ADD, 1, 2), 1, 0x43},
    };
    for (const Row& row : rows) {
        // 9 instructions before the reset, which begins in clock 18.
        const Seen seen(Core::PicoBlaze6, stimulusOf(halfExecuting(row.word), 24), build);
        EXPECT_EQ(seen.only("RESET"), "RESET 001");
        const std::vector<quint8> registers = seen.model().registers();
        EXPECT_EQ(int(registers[std::size_t(16 * row.bank + 1)]), row.value) << std::hex << row.word;
        EXPECT_EQ(int(registers[std::size_t(16 * (1 - row.bank) + 1)]), row.bank == 1 ? 0x11 : 0x21)
            << std::hex << row.word;
    }
}

TEST(PicoBlaze6, aHalfExecutedAccessFindsTheAddressOfARegisterInBankA)
{
    EXPECT_EQ(run(halfExecuting(withY(WRPRT, 1, 2)), 24).only("W"), "W 12 21");
    EXPECT_EQ(run(halfExecuting(withY(RDPRT, 1, 2)), 24).only("R"), "R 12 a5");
    EXPECT_EQ(run(halfExecuting(withK(WRPRT, 1, 9)), 24).only("W"), "W 09 21");
    EXPECT_EQ(run(halfExecuting(wrprtConstant(0x5A, 3)), 24).only("K"), "K a3 5a");
    EXPECT_EQ(int(run(halfExecuting(withY(WRMEM, 1, 2)), 24).model().scratchpad()[0x12]), 0x21);
    EXPECT_EQ(int(run(halfExecuting(withK(WRMEM, 1, 0x30)), 24).model().scratchpad()[0x30]), 0x21);
}

TEST(PicoBlaze6, aHalfExecutedInstructionChangesNoFlagsEnableBankOrAddress)
{
    for (const quint32 word : {withK(SUB, 3, 1), INT_ENABLE, BANK_B, jump(0x30), call(0x30), RETI_ENABLE, ret()}) {
        const Seen seen = run(halfExecuting(word), 26, {{22, 20}});
        EXPECT_EQ(seen.between(20, 26), "RESET 001 20; I 000 24") << std::hex << word;
        EXPECT_FALSE(seen.model().carry());
        EXPECT_FALSE(seen.model().interruptsEnabled());
        EXPECT_EQ(seen.model().bank(), 0);
        EXPECT_EQ(seen.model().depth(), 0);
    }
}

TEST(PicoBlaze6, nothingIsHalfExecutedThatAnInterruptWouldPreempt)
{
    const std::vector<Block> blocks = {{0, {jump(3), withK(WRPRT, 0, 1), NOP, INT_ENABLE, ret()}},
                                       {0x3FF, {RETI_DISABLE}}};
    EXPECT_EQ(run(blocks, 14, {{2, 30}}).before(14),
              "I 000 0; I 003 2; INT 004 4; I 3ff 6; I 004 8; RESET 001 10; W 01 00 11");
    EXPECT_EQ(run(blocks, 14, {{4}}).before(14), "I 000 0; I 003 2; I 004 4; RESET 001 6; I 000 10; I 003 12");
    EXPECT_EQ(run(blocks, 14, {{5}}).before(14),
              "I 000 0; I 003 2; I 004 4; RESET 001 6; W 01 00 7; I 000 10; I 003 12");
}

TEST(PicoBlaze6, requestsInTheClocksOfAResetAreLost)
{
    const std::vector<Block> blocks = {{0, {INT_ENABLE, jump(8), NOP}}, {8, {ret()}}, {0x3FF, {RETI_DISABLE}}};
    EXPECT_EQ(run(blocks, 16, {{6, 4}}).before(16),
              "I 000 0; I 001 2; I 008 4; RESET 001 6; I 000 10; I 001 12; I 008 14");
}

TEST(PicoBlaze6, aReturnFromAnInterruptBringsBackTheBank)
{
    // The routine switches to bank A; RETI brings B back, RET does not.
    for (const quint32 word : {RETI_DISABLE, ret()}) {
        const Seen seen = run(
            {{0, {BANK_B, withK(LOAD, 1, 0x21), call(8), withK(WRPRT, 1, 1)}}, {8, {BANK_A, jump(10, When::Z), word}}},
            12);
        EXPECT_EQ(seen.model().bank(), word == RETI_DISABLE ? 1 : 0);
    }
    const Seen seen = run({{0, {BANK_B, withK(LOAD, 1, 0x21), INT_ENABLE, withK(WRPRT, 1, 1)}},
                           {0x20, {RETI_DISABLE}},
                           {0x3FF, {BANK_A}},
                           {0x400, {jump(0x20)}}},
                          16, {{4}});
    EXPECT_EQ(seen.before(16),
              "I 000 0; I 001 2; I 002 4; INT 003 6; I 3ff 8; I 400 10; I 020 12; I 003 14; W 01 21 15");
}

TEST(PicoBlaze6, aReturnFromAnInterruptBehindACallGoesToTheCallWithItsFlags)
{
    // The flags and the bank at the call come back, so the call is not taken for ever: the carry is set there.
    const Seen seen =
        run({{0, {withK(SUB, 0, 1), BANK_B, call(8, When::C), NOP}}, {8, {withK(AND, 0, 0), BANK_A, RETI_ENABLE}}}, 14);
    EXPECT_EQ(seen.path(), "000 001 002 008 009 00a 002");
    EXPECT_TRUE(seen.model().carry());
    EXPECT_FALSE(seen.model().zero());
    EXPECT_EQ(seen.model().bank(), 1);
    EXPECT_TRUE(seen.model().interruptsEnabled());
}

TEST(PicoBlaze6, thePreemptedSwitchOfTheBankIsSeenInTheRoutine)
{
    // s1 is 11 in bank A, 21 in bank B. REGBANK B at 003 is pre-empted, executed again behind the return.
    const Seen seen = run({{0, {withK(LOAD, 1, 0x11), withK(STAR, 1, 0x21), INT_ENABLE, BANK_B, withK(WRPRT, 1, 1)}},
                           {0x20, {withK(WRPRT, 1, 2), RETI_DISABLE}},
                           {0x3FF, {jump(0x20)}}},
                          20, {{4}});
    EXPECT_EQ(seen.before(20),
              "I 000 0; I 001 2; I 002 4; INT 003 6; I 3ff 8; I 020 10; W 02 21 11; I 021 12; I 003 14; I 004 16; "
              "W 01 21 17; I 005 18");
}

TEST(PicoBlaze6, aPreemptedReturnFromAnInterruptSwitchesToTheBankOfTheNewestCell)
{
    // A routine of an interrupt from bank A runs in bank B; its RETI at 022 is pre-empted by the next request.
    const Seen seen = run(
        {
            {0, {withK(LOAD, 1, 0x11), withK(STAR, 1, 0x21), INT_ENABLE, NOP, withK(WRPRT, 1, 1)}},
            {0x20, {BANK_B, INT_ENABLE, RETI_DISABLE}},
            {0x3FF, {withK(WRPRT, 1, 2)}},
            {0x400, {withK(ADD, 2, 1), withK(STAR, 2, 1), jump(0x20)}},
        },
        26, {{4}, {16}});
    EXPECT_EQ(seen.before(26),
              "I 000 0; I 001 2; I 002 4; INT 003 6; I 3ff 8; W 02 11 9; I 400 10; I 401 12; I 402 14; I 020 16; "
              "I 021 18; I 022 20; I 003 22; I 004 24; W 01 11 25");
    const Seen preempted = run({{0, {withK(LOAD, 1, 0x11), withK(STAR, 1, 0x21), INT_ENABLE, NOP, withK(WRPRT, 1, 1)}},
                                {0x20, {BANK_B, INT_ENABLE, RETI_DISABLE}},
                                {0x3FF, {withK(WRPRT, 1, 2)}},
                                {0x400, {jump(0x20)}}},
                               22, {{4}, {14}});
    EXPECT_EQ(preempted.before(22),
              "I 000 0; I 001 2; I 002 4; INT 003 6; I 3ff 8; W 02 11 9; I 400 10; I 020 12; I 021 14; INT 022 16; "
              "I 3ff 18; W 02 11 19; I 400 20");
}

TEST(PicoBlaze6, theRoutineSeesTheFlagsFromBeforeThePreemptedInstruction)
{
    // ADD at 002 would set carry and zero. It is executed again behind the return.
    const Seen seen = run({{0, {INT_ENABLE, withK(LOAD, 0, 0xFF), withK(ADD, 0, 1), jump(0x20, When::Z)}},
                           {0x3FF, {jump(0x30, When::C)}},
                           {0x400, {jump(0x30, When::Z), RETI_DISABLE}}},
                          18, {{2}});
    EXPECT_EQ(seen.before(18), "I 000 0; I 001 2; INT 002 4; I 3ff 6; I 400 8; I 401 10; I 002 12; I 003 14; I 020 16");
}

TEST(PicoBlaze6, nestedInterruptsHaveACopyOfTheFlagsEach)
{
    // The outer entry finds carry 0, the inner one carry 1.
    const Seen seen = run({{0, {INT_ENABLE, NOP, NOP, jump(0x30, When::C)}},
                           {0x10, {withK(SUB, 0, 1), INT_ENABLE, NOP, RETI_ENABLE}},
                           {0x20, {RETI_DISABLE}},
                           {0x3FF, {withK(ADD, 4, 1)}},
                           {0x400, {withK(COMP, 4, 1), jump(0x10, When::Z), jump(0x20)}}},
                          42, {{2}, {14}});
    EXPECT_EQ(seen.path(), "000 001 3ff 400 401 010 011 3ff 400 401 402 020 012 013 002 003 004 005 006");
}

TEST(PicoBlaze6, aConstantWriteHasTheLowNibbleOfTheConstantInThePort)
{
    EXPECT_EQ(run({{0, {wrprtConstant(0x5A, 3), wrprtConstant(0xFF, 15)}}}, 4).only("K W"), "K a3 5a; K ff ff");
}

TEST(PicoBlaze6, computedJumpsAndCallsGoAnywhere)
{
    // The upper nibble of the first register does not count. 234 is empty: LOAD s0, s0, and on.
    const Seen seen = run({{0, {withK(LOAD, 1, 0xF2), withK(LOAD, 2, 0x34), jumpRegs(1, 2)}}}, 12);
    EXPECT_EQ(seen.path(), "000 001 002 234 235 236");
    const Seen called =
        run({{0, {withK(LOAD, 1, 2), withK(LOAD, 2, 0x34), callRegs(1, 2), withK(WRPRT, 2, 1)}}, {0x235, {ret()}}}, 12);
    EXPECT_EQ(called.path(), "000 001 002 234 235 003");
}

TEST(PicoBlaze6, behindTheLastInstructionNothingHappensUpToFFF)
{
    const Seen seen = run({{0, {withK(LOAD, 0, 9), jump(0xFFD)}}}, 14);
    EXPECT_EQ(seen.path(), "000 001 ffd ffe fff 000 001");
    EXPECT_EQ(int(seen.model().registers()[0]), 9);
}

TEST(PicoBlaze6, aRequestPreemptsTheSlotThatItsClockLeadsTo)
{
    CoreBuild build;
    build.vector = 0xABC;
    for (int clock = 0; clock < 12; ++clock) {
        const int slot = (clock + 3) / 2;
        const Seen seen(Core::PicoBlaze6, stimulusOf({{0, {INT_ENABLE}}}, 20, {{clock, 2}}), build);
        EXPECT_EQ(seen.between(2 * slot, 2 * slot + 3),
                  QString("INT 00%1 %2; I abc %3").arg(slot).arg(2 * slot).arg(2 * slot + 2).toStdString());
    }
}

TEST(PicoBlaze6, aRequestWhileInterruptsAreOffWaitsAsLongAsTheInputIsUp)
{
    const std::vector<Block> blocks = {{0, {NOP, NOP, NOP, INT_ENABLE, NOP, NOP}}, {0x3FF, {RETI_DISABLE}}};
    EXPECT_EQ(run(blocks, 12, {{0, 7}}).before(12), "I 000 0; I 001 2; I 002 4; I 003 6; INT 004 8; I 3ff 10");
    EXPECT_EQ(run(blocks, 12, {{0, 6}}).before(12), "I 000 0; I 001 2; I 002 4; I 003 6; I 004 8; I 005 10");
}

TEST(PicoBlaze6, aPulseThatCoversNoFirstHalfIsLost)
{
    const std::vector<Block> blocks = {{0, {INT_ENABLE, NOP, NOP, NOP}}, {0x3FF, {RETI_DISABLE}}};
    EXPECT_EQ(run(blocks, 10, {{3}}).before(10), "I 000 0; I 001 2; I 002 4; I 003 6; I 004 8");
}

TEST(PicoBlaze6, anEntryCostsTwoClocksAndIsPossibleDirectlyBehindAReturn)
{
    const Seen seen = run({{0, {INT_ENABLE, NOP, NOP}}, {0x3FF, {RETI_ENABLE}}}, 14, {{2, 100}});
    EXPECT_EQ(seen.before(14), "I 000 0; I 001 2; INT 002 4; I 3ff 6; INT 002 8; I 3ff 10; INT 002 12");
}

TEST(PicoBlaze6, aRequestDuringIntDisableComesTooLate)
{
    const std::vector<Block> blocks = {{0, {INT_ENABLE, INT_DISABLE, NOP}}, {0x3FF, {RETI_DISABLE}}};
    EXPECT_EQ(run(blocks, 8, {{2, 4}}).before(8), "I 000 0; I 001 2; I 002 4; I 003 6");
}

TEST(PicoBlaze6, aPreemptedInstructionStrobesNothingAndWritesNothing)
{
    const quint32 words[] = {withK(RDPRT, 1, 7), withK(WRPRT, 1, 7), wrprtConstant(1, 2), withK(WRMEM, 1, 3),
                             withK(STAR, 1, 4)};
    for (const quint32 word : words) {
        const Seen seen = run({{0, {INT_ENABLE, withK(LOAD, 1, 9), word}}}, 10, {{2}});
        EXPECT_EQ(seen.before(10), "I 000 0; I 001 2; INT 002 4; I 3ff 6; I 400 8");
        EXPECT_EQ(int(seen.model().registers()[1]), 9);
        EXPECT_EQ(int(seen.model().registers()[17]), 0);
        EXPECT_EQ(int(seen.model().scratchpad()[3]), 0);
    }
}

TEST(PicoBlaze6, aResetKeepsRegistersAndScratchpadAndSelectsBankA)
{
    const std::vector<Block> blocks = {
        {0,
         {jump(0x10, When::C), withK(WRPRT, 1, 1), withK(RDMEM, 2, 7), withK(WRPRT, 2, 2), withK(LOAD, 1, 5), call(8)}},
        {8, {withK(WRMEM, 1, 7), INT_ENABLE, withK(SUB, 3, 1), BANK_B}}};
    const Seen seen = run(blocks, 37, {{24, 10}}, {{22, 2}});
    EXPECT_EQ(seen.between(16, 37),
              "I 00a 16; I 00b 18; I 00c 20; RESET 000 22; I 000 25; I 001 27; W 01 05 28; I 002 29; "
              "I 003 31; W 02 05 32; I 004 33; I 005 35");
    EXPECT_EQ(seen.model().depth(), 1);
    EXPECT_EQ(seen.model().bank(), 0);
}

TEST(PicoBlaze6, hwbuildSetsCarryAndZeroByItsValue)
{
    for (const int value : {0, 0x42}) {
        CoreBuild build;
        build.hwBuild = value;
        const Seen seen(
            Core::PicoBlaze6,
            stimulusOf({{0, {hwbuild(1), withK(WRPRT, 1, 1), jump(8, When::C)}}, {8, {jump(0x10, When::Z)}}}, 10),
            build);
        EXPECT_EQ(seen.path(), value == 0 ? "000 001 002 008 010" : "000 001 002 008 009");
        EXPECT_EQ(seen.only("W"), value == 0 ? "W 01 00" : "W 01 42");
    }
}
