// Every instruction that computes, on all pairs of operands and with all flags.

#include "SideBySide.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

#if defined(__SANITIZE_ADDRESS__)
const int stride = 7; ///< the sanitizers look at the code, not at the numbers
#else
const int stride = 1;
#endif

struct Case
{
    Family family;
    const char* mnemonic;
};

void PrintTo(const Case& which, std::ostream* out)
{
    *out << nameOf(which.family) << ' ' << which.mnemonic;
}

std::vector<Case> cases(const QStringList& words, const QStringList& onlyPicoBlaze, const QStringList& onlyPicoBlaze6)
{
    static std::vector<QByteArray> names;
    names.reserve(200);
    std::vector<Case> result;
    for (Family family : {Family::PicoBlaze3, Family::PicoBlaze6, Family::Mico8}) {
        QStringList all = words;
        if (family != Family::Mico8)
            all += onlyPicoBlaze;
        if (family == Family::PicoBlaze6)
            all += onlyPicoBlaze6;
        for (const QString& word : all) {
            names.push_back(word.toLatin1());
            result.push_back({family, names.back().constData()});
        }
    }
    return result;
}

std::string caseName(const ::testing::TestParamInfo<Case>& info)
{
    return std::string(nameOf(info.param.family)) + '_' + info.param.mnemonic;
}

Build buildOf(Family family)
{
    Build build;
    if (family == Family::Mico8) {
        build.vector = 0;
        build.clocksOfInstr = 3;
        build.regCount = 32;
    }
    return build;
}

/// The instruction with all values of registers 4 and 9.
void allPairs(const Case& which, const Instruction& instruction)
{
    // Another instruction follows, so that the program can continue.
    SideBySide both(which.family, inOnePage({instruction, {"NOP", {}, {}}}), buildOf(which.family));
    ASSERT_EQ(both.problem(), "");
    for (int first = 0; first < 256; first += stride) {
        for (int second = 0; second < 256; second += stride) {
            for (int flags = 0; flags < 4; ++flags) {
                both.goTo(0);
                both.setReg(4, first);
                both.setReg(9, second);
                both.setFlags((flags & 1) != 0, (flags & 2) != 0);
                const std::string difference = both.stepQuickly();
                ASSERT_EQ(difference, "") << first << ", " << second << ", flags " << flags;
            }
        }
    }
}

class TwoOperands : public ::testing::TestWithParam<Case>
{
};

TEST_P(TwoOperands, AllPairs)
{
    allPairs(GetParam(), {GetParam().mnemonic, {Operand::reg, 4}, {Operand::reg, 9}});
}

TEST_P(TwoOperands, Constants)
{
    const int constants[] = {0, 1, 2, 0x55, 0x7F, 0x80, 0xAA, 0xFE, 0xFF};
    std::vector<Instruction> program;
    for (int constant : constants)
        program.push_back({GetParam().mnemonic, {Operand::reg, 4}, {Operand::number, constant}});
    program.push_back({"NOP", {}, {}});
    SideBySide both(GetParam().family, inOnePage(program), buildOf(GetParam().family));
    ASSERT_EQ(both.problem(), "");
    for (int address = 0; address + 1 < int(program.size()); ++address) {
        for (int first = 0; first < 256; ++first) {
            for (int flags = 0; flags < 4; ++flags) {
                both.goTo(address);
                both.setReg(4, first);
                both.setFlags((flags & 1) != 0, (flags & 2) != 0);
                const std::string difference = both.stepQuickly();
                ASSERT_EQ(difference, "") << first << ", constant " << constants[address] << ", flags " << flags;
            }
        }
    }
}

/// Both operands are the same register.
TEST_P(TwoOperands, OneRegisterTwice)
{
    const std::vector<Instruction> program = {{GetParam().mnemonic, {Operand::reg, 4}, {Operand::reg, 4}},
                                              {"NOP", {}, {}}};
    SideBySide both(GetParam().family, inOnePage(program), buildOf(GetParam().family));
    ASSERT_EQ(both.problem(), "");
    for (int first = 0; first < 256; ++first) {
        for (int flags = 0; flags < 4; ++flags) {
            both.goTo(0);
            both.setReg(4, first);
            both.setFlags((flags & 1) != 0, (flags & 2) != 0);
            ASSERT_EQ(both.stepQuickly(), "") << first << ", flags " << flags;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, TwoOperands,
                         ::testing::ValuesIn(cases({"LOAD", "ADD", "ADDC", "SUB", "SUBC", "AND", "OR", "XOR", "COMP",
                                                    "TEST"},
                                                   {}, {"COMPC", "TESTC", "STAR"})),
                         caseName);

class OneOperand : public ::testing::TestWithParam<Case>
{
};

TEST_P(OneOperand, AllValues)
{
    const std::vector<Instruction> program = {{GetParam().mnemonic, {Operand::reg, 4}, {}}, {"NOP", {}, {}}};
    SideBySide both(GetParam().family, inOnePage(program), buildOf(GetParam().family));
    ASSERT_EQ(both.problem(), "");
    for (int first = 0; first < 256; ++first) {
        both.setHwBuild(255 - first);
        for (int flags = 0; flags < 4; ++flags) {
            both.goTo(0);
            both.setReg(4, first);
            both.setFlags((flags & 1) != 0, (flags & 2) != 0);
            ASSERT_EQ(both.stepQuickly(), "") << first << ", flags " << flags;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, OneOperand,
                         ::testing::ValuesIn(cases({"ROL", "ROLC", "ROR", "RORC"},
                                                   {"SL0", "SL1", "SLX", "SR0", "SR1", "SRX"}, {"HWBUILD"})),
                         caseName);

/// Of the two registers that a Mico8 may name, only the first one takes part.
class RotationOfTwo : public ::testing::TestWithParam<Case>
{
};

TEST_P(RotationOfTwo, AllPairs)
{
    allPairs(GetParam(), {GetParam().mnemonic, {Operand::reg, 4}, {Operand::reg, 9}});
}

INSTANTIATE_TEST_SUITE_P(Mico8, RotationOfTwo,
                         ::testing::Values(Case{Family::Mico8, "ROL"}, Case{Family::Mico8, "ROLC"},
                                           Case{Family::Mico8, "ROR"}, Case{Family::Mico8, "RORC"}),
                         caseName);

} // namespace
