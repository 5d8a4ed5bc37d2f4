// Cases with their results worked out by hand: a few instructions, what stood before, what must stand after.

#include "SimBench.h"

#include "Opcode.h"
#include "OpcodeList.h"
#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimEngine.h"
#include "ProcSimIOFifo.h"
#include "ProcSimPorts.h"

#include <gtest/gtest.h>

namespace {

struct Row
{
    const char* name;
    const char* processor;
    const char* program; ///< instructions separated by ;
    int steps;
    int r0, r1; ///< registers 0 and 1 before
    int c, z;   ///< flags before
    int r0After, r1After;
    int cAfter, zAfter;
    int pcAfter; ///< address of the next instruction, -1 for none
    int clocks;
    const char* key; ///< of the last message, empty for none
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

const Row rows[] = {
    // name, processor, program, steps, before (registers 0 and 1, carry, zero), after (the same, pc), clocks, message
    {"AddWraps", b3, "ADD s0, 1;NOP", 1, 0xFF, 0, 0, 0, 0x00, 0, 1, 1, 1, 2, ""},
    {"AddcOfAllOnes", b3, "ADDC s0, s1;NOP", 1, 0xFF, 0xFF, 1, 1, 0xFF, 0xFF, 1, 0, 1, 2, ""},
    {"SubBorrows", b3, "SUB s0, 1;NOP", 1, 0x00, 0, 0, 1, 0xFF, 0, 1, 0, 1, 2, ""},
    {"SubcToMinus256", b3, "SUBC s0, s1;NOP", 1, 0x00, 0xFF, 1, 0, 0x00, 0xFF, 1, 1, 1, 2, ""},
    {"CompEqual", b3, "COMP s0, 5;NOP", 1, 5, 0, 1, 0, 5, 0, 0, 1, 1, 2, ""},
    {"CompLess", b3, "COMP s0, 6;NOP", 1, 5, 0, 0, 1, 5, 0, 1, 0, 1, 2, ""},
    {"TestOdd", b3, "TEST s0, 1;NOP", 1, 3, 0, 0, 1, 3, 0, 1, 0, 1, 2, ""},
    {"TestEven", b3, "TEST s0, 3;NOP", 1, 3, 0, 1, 1, 3, 0, 0, 0, 1, 2, ""},
    {"AndClearsCarry", b3, "AND s0, s1;NOP", 1, 0xF0, 0x3C, 1, 1, 0x30, 0x3C, 0, 0, 1, 2, ""},
    {"LoadLeavesFlags", b3, "LOAD s0, s1;NOP", 1, 1, 0, 1, 0, 0, 0, 1, 0, 1, 2, ""},
    {"Sr0ToZero", b3, "SR0 s0;NOP", 1, 1, 0, 0, 0, 0, 0, 1, 1, 1, 2, ""},
    {"Sl1IsNeverZero", b3, "SL1 s0;NOP", 1, 0x80, 0, 0, 1, 1, 0, 1, 0, 1, 2, ""},
    {"SrxKeepsTheSign", b3, "SRX s0;NOP", 1, 0x81, 0, 0, 1, 0xC0, 0, 1, 0, 1, 2, ""},
    {"RolcTakesTheCarry", b3, "ROLC s0;NOP", 1, 0x80, 0, 1, 1, 1, 0, 1, 0, 1, 2, ""},
    {"RetKeepsTheFlagsOfTheCallee", b3, "CALL f;NOP;f: SUB s0, 1;RET", 3, 0, 0, 0, 1, 0xFF, 0, 1, 0, 1, 6, ""},
    {"RetNotTakenGoesOn", b3, "RET Z;LOAD s0, 7;NOP", 2, 0, 0, 0, 0, 7, 0, 0, 0, 2, 4, ""},
    {"WrmemBeyondTheScratchpad", b3, "WRMEM s0, (s1);NOP", 1, 9, 64, 0, 0, 9, 64, 0, 0, 0, 0, "errScrpdWr"},
    {"RdmemBeyondTheScratchpad", b3, "RDMEM s0, (s1);NOP", 1, 9, 64, 0, 0, 9, 64, 0, 0, 0, 0, "errScrpdRd"},
    {"ScratchpadRoundTrip", b3, "WRMEM s0, 63;RDMEM s1, 63;NOP", 2, 9, 0, 1, 1, 9, 9, 1, 1, 2, 4, ""},
    {"RetOfNothing", b3, "RET;NOP", 1, 1, 2, 0, 0, 1, 2, 0, 0, -1, 2, "errCallStackEmpty"},
    {"RetiOfNothing", b3, "RETI ENABLE;NOP", 1, 1, 2, 1, 0, 1, 2, 1, 0, -1, 2, "errCallStackEmpty"},
    {"RolOfAllButTheTopBit", b3, "ROL s0;NOP", 1, 0x7F, 0, 1, 1, 0xFE, 0, 0, 0, 1, 2, ""},
    {"Sl0OfTheTopBitIsZero", b3, "SL0 s0;NOP", 1, 0x80, 0, 0, 0, 0, 0, 1, 1, 1, 2, ""},
    {"Sr1IsNeverZero", b3, "SR1 s0;NOP", 1, 0x01, 0, 0, 1, 0x80, 0, 1, 0, 1, 2, ""},
    {"JumpNotTakenGoesOn", b3, "JUMP C, far;NOP;NOP;far: NOP", 1, 0, 0, 0, 0, 0, 0, 0, 0, 1, 2, ""},
    {"JumpTaken", b3, "JUMP C, far;NOP;NOP;far: NOP", 1, 0, 0, 1, 0, 0, 0, 1, 0, 3, 2, ""},
    {"CallNotTakenGoesOn", b3, "CALL NZ, far;NOP;NOP;far: NOP", 1, 0, 0, 0, 1, 0, 0, 0, 1, 1, 2, ""},
    {"CallTaken", b3, "CALL NZ, far;NOP;NOP;far: NOP", 1, 0, 0, 1, 0, 0, 0, 1, 0, 3, 2, ""},
    {"LastInstruction", b3, "ADD s0, 1", 1, 1, 0, 0, 0, 2, 0, 0, 0, -1, 2, "internal"},
    {"BehindTheLastInstruction", b3, "ADD s0, 1", 2, 1, 0, 0, 0, 2, 0, 0, 0, -1, 2, "errNoOpcodeToExec"},
    {"BehindTheRetOfNothing", b3, "RET;NOP", 2, 1, 2, 0, 0, 1, 2, 0, 0, -1, 2, "errNoOpcodeToExec"},
    {"Call32Overflows", b3, "f: CALL f", 32, 0, 0, 1, 0, 0, 0, 1, 0, 0, 62, "errCallStackOverflow"},
    {"ReadOfAFreePort", b3, "RDPRT s0, 9;NOP", 1, 5, 0, 0, 0, 5, 0, 0, 0, 0, 0, "warnIODevAddedToRd"},
    {"RepeatedReadTakesTheRegister", b3, "RDPRT s0, 9;NOP", 2, 5, 0, 1, 1, 0, 0, 1, 1, 1, 2, "warnIODevAddedToRd"},

    {"ZeroIsChainedBySubc", b6, "SUB s0, 5;LOAD s0, 0;SUBC s0, 0;NOP", 3, 5, 0, 0, 0, 0, 0, 0, 1, 3, 6, ""},
    {"ZeroIsChainedByAddc", b6, "ADD s0, 5;LOAD s0, 0;ADDC s0, 0;NOP", 3, 5, 0, 0, 0, 0, 0, 0, 0, 3, 6, ""},
    {"CompcOfEqualWords", b6, "COMP s0, 18;COMPC s1, 52;NOP", 2, 18, 52, 1, 0, 18, 52, 0, 1, 2, 4, ""},
    {"CompcOfWordsWithUnequalLowHalves", b6, "COMP s0, 19;COMPC s1, 52;NOP", 2, 18, 52, 0, 0, 18, 52, 1, 0, 2, 4, ""},
    {"TestcXorsTheCarry", b6, "TESTC s0, 1;NOP", 1, 3, 0, 1, 1, 3, 0, 0, 0, 1, 2, ""},
    {"TestcKeepsZero", b6, "TESTC s0, 4;NOP", 1, 3, 0, 0, 1, 3, 0, 0, 1, 1, 2, ""},
    {"RegbankShowsOtherRegisters", b6, "REGBANK B;NOP", 1, 1, 2, 1, 1, 0, 0, 1, 1, 1, 2, ""},
    {"LoadretReturnsWithAValue", b6, "CALL f;NOP;f: LOADRET s0, 0x41", 2, 0, 0, 1, 1, 0x41, 0, 1, 1, 1, 4, ""},
    {"LoadretOfNothing", b6, "LOADRET s0, 3;NOP", 1, 0, 0, 0, 0, 3, 0, 0, 0, -1, 2, "errCallStackEmpty"},
    {"ComputedCallToNowhere", b6, "CALL (s0), (s1);NOP", 1, 1, 0x23, 0, 0, 1, 0x23, 0, 0, 0, 0, "internal"},
    {"CompIgnoresTheFlags", b6, "COMP s0, 5;NOP", 1, 5, 0, 1, 0, 5, 0, 0, 1, 1, 2, ""},
    {"SubcToMinus256IsNotZero", b6, "SUBC s0, s1;NOP", 1, 0x00, 0xFF, 1, 1, 0x00, 0xFF, 1, 0, 1, 2, ""},
    {"AddcTo256IsZero", b6, "ADDC s0, s1;NOP", 1, 0x00, 0xFF, 1, 1, 0x00, 0xFF, 1, 1, 1, 2, ""},
    {"AndClearsCarryToo", b6, "AND s0, s1;NOP", 1, 0xF0, 0x0F, 1, 0, 0x00, 0x0F, 0, 1, 1, 2, ""},
    {"ComputedJumpToNowhere", b6, "JUMP (s0), (s1);NOP", 1, 1, 0x23, 1, 1, 1, 0x23, 1, 1, 0, 0, "internal"},
    {"WrmemBeyond", b6, "WRMEM s0, (s1);NOP", 1, 9, 64, 0, 0, 9, 64, 0, 0, 0, 0, "errScrpdWr"},
    {"RdmemBeyond", b6, "RDMEM s0, (s1);NOP", 1, 9, 64, 0, 0, 9, 64, 0, 0, 0, 0, "errScrpdRd"},
    {"RetOfNothing6", b6, "RET;NOP", 1, 1, 2, 0, 0, 1, 2, 0, 0, -1, 2, "errCallStackEmpty"},
    {"ReadOfAFreePort6", b6, "RDPRT s0, (s1);NOP", 1, 5, 9, 0, 0, 5, 9, 0, 0, 0, 0, "warnIODevAddedToRd"},
    {"Call32Overflows6", b6, "f: CALL f", 32, 0, 0, 1, 0, 0, 0, 1, 0, 0, 62, "errCallStackOverflow"},
    {"ComputedCall32Overflows", b6, "CALL (s0), (s1)", 32, 0, 0, 1, 0, 0, 0, 1, 0, 0, 62, "errCallStackOverflow"},

    {"AndLeavesCarry", m8, "AND r0, r1;NOP", 1, 0xF0, 0x0F, 1, 0, 0, 0x0F, 1, 1, 1, 2, ""},
    {"TestLeavesCarry", m8, "TEST r0, 1;NOP", 1, 3, 0, 1, 1, 3, 0, 1, 0, 1, 2, ""},
    {"RolOfTwoRegistersTurnsTheFirst", m8, "ROL r0, r1;NOP", 1, 0x80, 0x55, 0, 1, 0x01, 0x55, 1, 0, 1, 2, ""},
    {"ClrAndSet", m8, "SET C;CLR Z;NOP", 2, 0, 0, 0, 1, 0, 0, 1, 0, 2, 4, ""},
    {"AddcSetsZeroByItself", m8, "ADDC r0, 0;NOP", 1, 0xFF, 0, 1, 0, 0, 0, 1, 1, 1, 2, ""},
    {"RorcOfTwoRegistersTakesTheCarry", m8, "RORC r0, r1;NOP", 1, 0x01, 0xFF, 0, 0, 0x00, 0xFF, 1, 1, 1, 2, ""},
    {"SubcSetsZeroByItself", m8, "SUBC r0, r1;NOP", 1, 0x00, 0xFF, 1, 0, 0x00, 0xFF, 1, 1, 1, 2, ""},
    {"CompIsLess", m8, "COMP r0, 6;NOP", 1, 5, 0, 0, 1, 5, 0, 1, 0, 1, 2, ""},
    {"ClrOfCarryAndSetOfZero", m8, "CLR C;SET Z;NOP", 2, 0, 0, 1, 0, 0, 0, 0, 1, 2, 4, ""},
    {"WrmemBeyond8", m8, "WRMEM r0, (r1);NOP", 1, 9, 32, 0, 0, 9, 32, 0, 0, 0, 0, "errScrpdWr"},
    {"RdmemBeyond8", m8, "RDMEM r0, (r1);NOP", 1, 9, 32, 0, 0, 9, 32, 0, 0, 0, 0, "errScrpdRd"},
    {"RetOfNothing8", m8, "RET;NOP", 1, 1, 2, 0, 0, 1, 2, 0, 0, -1, 2, "errCallStackEmpty"},
    {"RetiOfNothing8", m8, "RETI;NOP", 1, 1, 2, 1, 0, 1, 2, 1, 0, -1, 2, "errCallStackEmpty"},
    {"ReadOfAFreePort8", m8, "RDPRT r0, 9;NOP", 1, 5, 0, 0, 0, 5, 0, 0, 0, 0, 0, "warnIODevAddedToRd"},
    {"Call32Overflows8", m8, "f: CALL f", 32, 0, 0, 1, 0, 0, 0, 1, 0, 0, 62, "errCallStackOverflow"},
};

class HandMade : public ::testing::TestWithParam<Row>
{
};

TEST_P(HandMade, Row)
{
    const Row& row = GetParam();
    SimBench bench(row.processor, row.program);
    ASSERT_TRUE(bench.started) << bench.run.summary();
    nsProc::ProcSimCoreData& core = *bench.sim->core();
    core.editReg(0, 0, row.r0);
    core.editReg(0, 1, row.r1);
    core.editCarryBit(row.c);
    core.editZeroBit(row.z);
    for (int step = 0; step < row.steps; ++step)
        bench.sim->simOpcode();
    EXPECT_EQ(core.regValue(core.bank(), 0), row.r0After);
    EXPECT_EQ(core.regValue(core.bank(), 1), row.r1After);
    EXPECT_EQ(core.carryBit(), row.cAfter);
    EXPECT_EQ(core.zeroBit(), row.zAfter);
    const nsModAsmFe::Opcode* pc = bench.sim->programCounter();
    EXPECT_EQ(pc != nullptr ? pc->pageAddr : -1, row.pcAfter);
    EXPECT_EQ(bench.sim->clock()->clocks, row.clocks);
    EXPECT_EQ(bench.lastKey().toStdString(), row.key);
}

INSTANTIATE_TEST_SUITE_P(Rows, HandMade, ::testing::ValuesIn(rows),
                         [](const auto& tested) { return tested.param.name; });

TEST(HandMadeMore, StarWritesTheOtherBank)
{
    SimBench bench(b6, "STAR s0, s1;NOP");
    ASSERT_TRUE(bench.started);
    nsProc::ProcSimCoreData& core = *bench.sim->core();
    core.editReg(0, 0, 0x11);
    core.editReg(0, 1, 0x5A);
    bench.sim->simOpcode();
    EXPECT_EQ(core.regValue(1, 0), 0x5A);
    EXPECT_EQ(core.regValue(0, 0), 0x11);
    EXPECT_EQ(core.bank(), 0);
}

TEST(HandMadeMore, ComputedJumpAndCall)
{
    SimBench bench(b6, "LOAD s1, 1;LOAD s2, 0x23;CALL (s1), (s2);#ORG ADDR, 0x123;RET");
    ASSERT_TRUE(bench.started) << bench.run.summary();
    for (int step = 0; step < 3; ++step)
        bench.sim->simOpcode();
    ASSERT_NE(bench.sim->programCounter(), nullptr);
    EXPECT_EQ(bench.sim->programCounter()->pageAddr, 0x123);
    ASSERT_EQ(bench.sim->callStack()->count(), 1);
    EXPECT_EQ(bench.sim->callStack()->items().front().label, "s1 = 1, s2 = 35");
    bench.sim->simOpcode();
    EXPECT_EQ(bench.sim->programCounter()->pageAddr, 0x123);
    EXPECT_EQ(bench.sim->callStack()->count(), 0);
}

TEST(HandMadeMore, ComputedJumpTakesTheHighPartFirst)
{
    SimBench bench(b6, "JUMP (s1), (s2);#ORG ADDR, 0x123;NOP");
    ASSERT_TRUE(bench.started) << bench.run.summary();
    bench.sim->core()->editReg(0, 1, 1);
    bench.sim->core()->editReg(0, 2, 0x23);
    EXPECT_TRUE(bench.sim->simOpcode());
    ASSERT_NE(bench.sim->programCounter(), nullptr);
    EXPECT_EQ(bench.sim->programCounter()->pageAddr, 0x123);
    EXPECT_EQ(bench.sim->callStack()->count(), 0);
    EXPECT_EQ(bench.sim->clock()->clocks, 2);
}

TEST(HandMadeMore, RetiRestoresTheFlagsOfTheInterruptedInstruction)
{
    for (const char* processor : {b3, b6}) {
        // The interrupted instruction would set other flags than those that the interrupt finds.
        SimBench bench(processor, "INT ENABLE;SUB s0, s1;NOP;#ORG ADDR, 0x3FF;RETI ENABLE");
        ASSERT_TRUE(bench.started) << bench.run.summary();
        nsProc::ProcSimCoreData& core = *bench.sim->core();
        bench.sim->simOpcode();
        core.editCarryBit(1);
        core.editZeroBit(0);
        bench.sim->simInt();
        ASSERT_EQ(core.interrupt(), nsProc::eIntPending);
        EXPECT_TRUE(bench.sim->simOpcode());
        EXPECT_EQ(core.interrupt(), nsProc::eIntEnabled);
        EXPECT_EQ(bench.sim->programCounter()->pageAddr, 1);
        EXPECT_EQ(core.carryBit(), 1);
        EXPECT_EQ(core.zeroBit(), 0);
        // The entry costs nothing: the clocks are those of INT and RETI.
        EXPECT_EQ(bench.sim->clock()->clocks, 4);
        EXPECT_TRUE(bench.sim->simOpcode());
        EXPECT_EQ(core.carryBit(), 0);
        EXPECT_EQ(core.zeroBit(), 1);
    }
}

/// The handler changes the flags, and the return brings those back that the interrupt has found.
TEST(HandMadeMore, HandlerChangesNoFlagsButByRet)
{
    for (const char* back : {"RETI ENABLE", "RET"}) {
        SimBench bench(b3,
                       QString("INT ENABLE;NOP;NOP;handler: COMP s0, s0;%1;#ORG ADDR, 0x3FF;JUMP handler").arg(back));
        ASSERT_TRUE(bench.started) << bench.run.summary();
        nsProc::ProcSimCoreData& core = *bench.sim->core();
        bench.sim->simOpcode();
        core.editCarryBit(1);
        bench.sim->simInt();
        for (int step = 0; step < 2; ++step)
            bench.sim->simOpcode();
        EXPECT_EQ(core.carryBit(), 0);
        EXPECT_EQ(core.zeroBit(), 1);
        EXPECT_EQ(core.interrupt(), nsProc::eIntService);
        bench.sim->simOpcode();
        const bool isReti = QString(back) != "RET";
        // A plain return takes the interrupted instruction for a call, and continues after it.
        EXPECT_EQ(bench.sim->programCounter()->pageAddr, isReti ? 1 : 2);
        EXPECT_EQ(core.carryBit(), isReti ? 1 : 0);
        EXPECT_EQ(core.zeroBit(), isReti ? 0 : 1);
        EXPECT_EQ(core.interrupt(), isReti ? nsProc::eIntEnabled : nsProc::eIntService);
    }
}

TEST(HandMadeMore, ComputedTargetWithoutAnInstruction)
{
    SimBench bench(b6, "CALL (s1), (s2);NOP");
    ASSERT_TRUE(bench.started);
    bench.sim->core()->editReg(0, 1, 1);
    bench.sim->core()->editReg(0, 2, 0x23);
    EXPECT_FALSE(bench.sim->simOpcode());
    EXPECT_EQ(bench.lastInternalError(), "No instruction at address: 291");
    EXPECT_EQ(bench.run.msg.log.last().text, "Internal error: No instruction at address: 291");
    EXPECT_EQ(bench.sim->programCounter()->pageAddr, 0);
}

TEST(HandMadeMore, ConstantGoesToItsPort)
{
    SimBench bench(b6, "WRPRT 0x55, 3;NOP");
    ASSERT_TRUE(bench.started);
    EXPECT_TRUE(bench.sim->simOpcode());
    ASSERT_EQ(bench.sim->ports()->devices().size(), 1);
    auto* fifo = dynamic_cast<nsProc::ProcSimIOFifo*>(bench.sim->ports()->devices().first());
    ASSERT_NE(fifo, nullptr);
    EXPECT_TRUE(fifo->chkAddr(3));
    EXPECT_TRUE(fifo->chkDirection(nsProc::ProcSimIOPluginIf::eDirectionWr));
    EXPECT_FALSE(fifo->chkDirection(nsProc::ProcSimIOPluginIf::eDirectionRd));
    EXPECT_EQ(fifo->lines().text(0), "55");
}

TEST(HandMadeMore, EmptyFifoIsReported)
{
    SimBench bench(b3, "RDPRT s0, 4;NOP");
    ASSERT_TRUE(bench.started);
    const auto reads = nsProc::ProcSimIOPluginIf::eDirectionRd;
    bench.sim->ports()->addIOPlugin(nsProc::ProcSimPorts::eDevFifo, reads, 0)->setBaseAddr(4, "x");
    EXPECT_FALSE(bench.sim->simOpcode());
    EXPECT_EQ(bench.lastKey(), "errIODevRd");
    EXPECT_EQ(bench.sim->clock()->clocks, 0);
    EXPECT_EQ(bench.sim->programCounter()->pageAddr, 0);
}

TEST(HandMadeMore, RegisterBeyondTheCount)
{
    SimBench bench(m8, "LOAD r16, 1;ADD r0, r20;NOP", {{"LMico8v3x/regCount", 16}});
    ASSERT_TRUE(bench.started) << bench.run.summary();
    EXPECT_FALSE(bench.sim->simOpcode());
    EXPECT_EQ(bench.lastInternalError(), "Register index exceeds register count: r16");
    EXPECT_EQ(bench.sim->clock()->clocks, 0);
    bench.sim->setProgramCounter(bench.sim->programCounter()->next);
    EXPECT_FALSE(bench.sim->simOpcode());
    EXPECT_EQ(bench.lastInternalError(), "Register index exceeds register count: r20");
}

TEST(HandMadeMore, ClocksOfAnInstructionAreASetting)
{
    SimBench bench(m8, "loop: ADD r0, 1;JUMP loop", {{"LMico8v3x/instrClkCnt", 3}});
    ASSERT_TRUE(bench.started);
    for (int step = 0; step < 10; ++step)
        bench.sim->simOpcode();
    EXPECT_EQ(bench.sim->clock()->clocks, 30);
}

TEST(HandMadeMore, RetiOfMico8LeavesTheInterruptShut)
{
    // The vector of a Mico8 is its address 0.
    SimBench bench(m8, "RETI;INT ENABLE;loop: ADD r0, 1;JUMP loop");
    ASSERT_TRUE(bench.started);
    bench.sim->setProgramCounter(bench.sim->programCounter()->next);
    bench.sim->simOpcode();
    bench.sim->simInt();
    ASSERT_EQ(bench.sim->core()->interrupt(), nsProc::eIntPending);
    bench.sim->core()->editCarryBit(1);
    bench.sim->simOpcode();
    EXPECT_EQ(bench.sim->core()->interrupt(), nsProc::eIntDisabled);
    EXPECT_EQ(bench.sim->programCounter()->pageAddr, 2);
    EXPECT_EQ(bench.sim->core()->carryBit(), 1);
    EXPECT_EQ(bench.sim->callStack()->count(), 0);
}

TEST(HandMadeMore, MessagesHaveTheirHelpAndTheirPlace)
{
    const struct
    {
        const char* processor;
        const char* page;
    } pages[] = {{b3, "XPBlze3SimMessages"}, {b6, "XPBlze6SimMessages"}, {m8, "LMico8v3xSimMessages"}};
    for (const auto& page : pages) {
        SimBench bench(page.processor, "NOP;RET");
        ASSERT_TRUE(bench.started);
        bench.sim->simOpcode();
        bench.sim->simOpcode();
        EXPECT_EQ(bench.run.msg.log.last().text, "Call stack is empty! Nothing to return.");
        // The host of a link has no case.
        EXPECT_EQ(bench.run.msg.log.last().hlpDoc.scheme(), "pageid");
        EXPECT_EQ(bench.run.msg.log.last().hlpDoc.host(), QString(page.page).toLower());
        EXPECT_EQ(bench.run.msg.log.last().key(), "errCallStackEmpty");
    }
}

TEST(HandMadeMore, MessageLeadsToTheInstruction)
{
    SimBench bench(b3, "NOP;NOP;WRMEM s0, (s1)");
    ASSERT_TRUE(bench.started);
    bench.sim->core()->editReg(0, 1, 200);
    for (int step = 0; step < 3; ++step)
        bench.sim->simOpcode();
    EXPECT_EQ(bench.run.msg.log.last().key(), "errScrpdWr");
    EXPECT_EQ(bench.run.msg.log.last().line(), 2);
    EXPECT_EQ(bench.run.msg.log.last().type, ModMsgHookIf::eMsgError);
}

TEST(HandMadeMore, HwBuildWithoutAValue)
{
    SimBench bench(b6, "HWBUILD s0;NOP");
    ASSERT_TRUE(bench.started);
    bench.sim->core()->setHwbld(-1);
    EXPECT_FALSE(bench.sim->simOpcode());
    EXPECT_EQ(bench.run.msg.log.last().text, "Can not read hwbuild value.");
    EXPECT_EQ(bench.sim->programCounter()->pageAddr, 0);
}

TEST(HandMadeMore, UnsupportedInstructionIsReportedAtIt)
{
    SimBench bench(b3, "NOP;NOP");
    ASSERT_TRUE(bench.started);
    bench.sim->programCounter()->opcode = nsModAsmFe::ocStar;
    bench.sim->engine()->decode();
    EXPECT_FALSE(bench.sim->simOpcode());
    EXPECT_EQ(bench.lastKey(), "errOcUnsupported");
    EXPECT_EQ(bench.sim->clock()->clocks, 0);
}

} // namespace
