// Instructions as no assembler leaves them: each is refused by its own message, and nothing happens.

#include "SimBench.h"

#include "Opcode.h"
#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimEngine.h"
#include "ProcSimPorts.h"

#include <gtest/gtest.h>

namespace {

using nsModAsmFe::Arg;
using nsModAsmFe::Opcode;

struct Broken
{
    const char* name;
    const char* processor;
    const char* program; ///< instructions separated by ;
    void (*breakIt)(Opcode*);
    const char* text; ///< of the internal error
};

void PrintTo(const Broken& broken, std::ostream* out)
{
    *out << broken.name;
}

template <Arg::eArgType_t type>
void first(Opcode* opcode)
{
    opcode->arg0->type = type;
}

template <Arg::eArgType_t type>
void second(Opcode* opcode)
{
    opcode->arg1->type = type;
}

const Broken cases[] = {
    {"JumpToANumber", b3, "JUMP NZ, far;far: NOP", second<Arg::numeric>, "Argument is no label: far"},
    {"CallOfANumber", m8, "CALL NZ, far;far: NOP", second<Arg::numeric>, "Argument is no label: far"},
    {"LabelWithoutAnInstruction", b3, "JUMP far;far: NOP", [](Opcode* opcode) { opcode->arg0->labelOpcode = nullptr; },
     "Label is not resolved: far"},
    {"ConditionalLabelWithoutAnInstruction", b6, "CALL NZ, far;far: NOP",
     [](Opcode* opcode) { opcode->arg1->labelOpcode = nullptr; }, "Label is not resolved: far"},
    {"JumpOnSomethingElse", b3, "JUMP far;far: NOP", first<Arg::enable>, "Unsupported argument!"},
    {"CallOnSomethingElse", m8, "CALL far;far: NOP", first<Arg::regBank>, "Unsupported argument!"},
    {"ReturnOnSomethingElse", b3, "RET NZ", first<Arg::numeric>, "Unsupported argument!"},
    {"ComputedJumpWhereThereIsNone", b3, "JUMP far;far: NOP", first<Arg::regRef>, "Unsupported argument!"},
    {"SumInANumber", b3, "ADD s0, s1;NOP", first<Arg::numeric>, "Argument is no register: s0"},
    {"SumWithALabel", b3, "ADD s0, s1;NOP", second<Arg::label>, "Can not get value of argument: s1"},
    {"LoadOfAFlag", b6, "LOAD s0, s1;NOP", second<Arg::flagC>, "Can not get value of argument: s1"},
    {"LoadIntoANumber", m8, "LOAD r0, r1;NOP", first<Arg::numeric>, "Argument is no register: r0"},
    {"CompareWithNothing", b3, "COMP s0, s1;NOP", second<Arg::empty>, "Can not get value of argument: s1"},
    {"TestOfANumber", m8, "TEST r0, r1;NOP", first<Arg::numeric>, "Argument is no register: r0"},
    {"ShiftOfANumber", b3, "SL0 s0;NOP", first<Arg::numeric>, "Argument is no register: s0"},
    {"RotationOfANumber", m8, "ROL r0;NOP", first<Arg::numeric>, "Argument is no register: r0"},
    {"RegisterBeyondTheCount", b3, "LOAD s0, 1;NOP", [](Opcode* opcode) { opcode->arg0->iValue = 16; },
     "Register index exceeds register count: s0"},
    {"SourceBeyondTheCount", b6, "LOAD s0, s1;NOP", [](Opcode* opcode) { opcode->arg1->iValue = 16; },
     "Register index exceeds register count: s1"},
    {"ComputedJumpByANamedRegister", b6, "JUMP (s0), (s1);NOP", second<Arg::reg>,
     "Argument is no register reference: s1"},
    {"PortConstantToARegister", b6, "WRPRT 0x55, 3;NOP", second<Arg::reg>, "Argument is no numeric: 3"},
    {"PortConstantWhereThereIsNone", b3, "WRPRT s0, 3;NOP", first<Arg::numeric>, "Argument is no register: s0"},
    {"ReadOfAPortByALabel", b3, "RDPRT s0, 3;NOP", second<Arg::label>, "Can not get value of argument: 3"},
    {"ScratchpadByALabel", b3, "RDMEM s0, 3;NOP", second<Arg::label>, "Can not get value of argument: 3"},
    {"WriteToTheScratchpadByALabel", m8, "WRMEM r0, 3;NOP", second<Arg::label>, "Can not get value of argument: 3"},
    {"BankThatIsNone", b6, "REGBANK A;NOP", [](Opcode* opcode) { opcode->arg0->iValue = 2; },
     "Can not get value of argument: A"},
    {"LoadretOfARegister", b6, "LOADRET s0, 3", second<Arg::reg>, "Can not get value of argument: 3"},
    {"StarOfALabel", b6, "STAR s0, s1;NOP", second<Arg::label>, "Can not get value of argument: s1"},
    {"StarIntoANumber", b6, "STAR s0, s1;NOP", first<Arg::numeric>, "Argument is no register: s0"},
    {"ClrOfANumber", m8, "CLR C;NOP", first<Arg::numeric>, "Unsupported argument!"},
};

class BrokenArguments : public ::testing::TestWithParam<Broken>
{
};

TEST_P(BrokenArguments, AreRefused)
{
    SimBench bench(GetParam().processor, GetParam().program);
    ASSERT_TRUE(bench.started) << bench.run.summary();
    nsProc::ProcSimCoreData& core = *bench.sim->core();
    core.editReg(0, 0, 0x5A);
    core.editReg(0, 1, 0xA5);
    core.editCarryBit(1);
    Opcode* opcode = bench.sim->programCounter();
    GetParam().breakIt(opcode);
    bench.sim->engine()->decode();
    EXPECT_FALSE(bench.sim->simOpcode());
    EXPECT_EQ(bench.lastInternalError(), GetParam().text);
    EXPECT_EQ(bench.run.msg.log.last().text, QString("Internal error: ") + GetParam().text);
    EXPECT_TRUE(bench.run.msg.log.last().hlpDoc.isEmpty());
    EXPECT_TRUE(bench.run.msg.log.last().srcFile.isEmpty());
    EXPECT_EQ(bench.sim->programCounter(), opcode);
    EXPECT_EQ(bench.sim->clock()->clocks, 0);
    EXPECT_EQ(core.regValue(0, 0), 0x5A);
    EXPECT_EQ(core.regValue(0, 1), 0xA5);
    EXPECT_EQ(core.carryBit(), 1);
    EXPECT_EQ(core.zeroBit(), 0);
    EXPECT_EQ(core.bank(), 0);
    EXPECT_EQ(bench.sim->callStack()->count(), 0);
    EXPECT_TRUE(bench.sim->ports()->devices().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(All, BrokenArguments, ::testing::ValuesIn(cases),
                         [](const auto& tested) { return tested.param.name; });

/// The program counter has moved on by then.
TEST(BrokenInstructions, RangeWithoutAName)
{
    SimBench bench(b3, "NOP;NOP");
    ASSERT_TRUE(bench.started);
    Opcode* opcode = bench.sim->programCounter()->next;
    opcode->memRange = 7;
    bench.sim->engine()->decode();
    bench.sim->simOpcode();
    EXPECT_EQ(bench.lastInternalError(), "Can not resolve page name!");
    EXPECT_EQ(bench.sim->programCounter(), opcode);
}

/// The simulator of the Mico8 could compare with carry, but no instruction of it does.
TEST(BrokenInstructions, CompcOfMico8)
{
    for (int zero : {0, 1}) {
        SimBench bench(m8, "COMP r0, 4;NOP");
        ASSERT_TRUE(bench.started);
        bench.sim->programCounter()->opcode = nsModAsmFe::ocCompc;
        bench.sim->engine()->decode();
        bench.sim->core()->editReg(0, 0, 5);
        bench.sim->core()->editCarryBit(1);
        bench.sim->core()->editZeroBit(zero);
        EXPECT_TRUE(bench.sim->simOpcode());
        EXPECT_EQ(bench.sim->core()->carryBit(), 0);
        EXPECT_EQ(bench.sim->core()->zeroBit(), zero);
    }
}

TEST(BrokenInstructions, PortConstantOfMico8)
{
    SimBench bench(m8, "WRPRT r9, 3;NOP");
    ASSERT_TRUE(bench.started);
    Arg* arg = bench.sim->programCounter()->arg0;
    arg->type = Arg::numeric;
    arg->iValue = 0x55;
    bench.sim->engine()->decode();
    EXPECT_TRUE(bench.sim->simOpcode());
    ASSERT_EQ(bench.sim->ports()->devices().size(), 1);
    EXPECT_TRUE(bench.sim->ports()->devices().first()->chkAddr(3));
    EXPECT_EQ(bench.sim->clock()->clocks, 2);
}

} // namespace
