// Random programs, side by side. The long run:
//   NALVO_SIM_SEED=12345 NALVO_SIM_INSTRUCTIONS=100000000 build/release/test_SimReference --gtest_filter='*Random*'

#include "RandomProgram.h"
#include "SideBySide.h"

#include <gtest/gtest.h>

#include <QHash>

namespace {

#if defined(__SANITIZE_ADDRESS__)
const long long defaultInstructions = 100000;
#else
const long long defaultInstructions = 1200000;
#endif

const int instructionsOfProgram = 40000;
const int instructionsOfStretch = 48; ///< then the run goes on elsewhere, so that no loop holds it

long long number(const char* name, long long otherwise)
{
    const QByteArray text = qgetenv(name);
    return text.isEmpty() ? otherwise : text.toLongLong();
}

class RandomPrograms : public ::testing::TestWithParam<Family>
{
protected:
    /// Somewhere else, with other values.
    void shuffle(SideBySide* both, int regCount)
    {
        both->goTo(int(m_random() % unsigned(programSize)));
        for (int index = 0; index < regCount; ++index) {
            if (m_random() % 3 == 0)
                both->setReg(index, int(m_random() % 256));
        }
        // Now and then a pair of registers that names an address of the program.
        both->setReg(int(m_random() % unsigned(regCount)), int(m_random() % 4));
        both->setFlags(m_random() % 2 != 0, m_random() % 2 != 0);
        both->setHwBuild(int(m_random() % 256));
        if (m_random() % 40 == 0)
            both->clearCalls();
    }

    void run(const std::vector<Instruction>& program, long long count)
    {
        SideBySide both(GetParam(), program);
        ASSERT_EQ(both.problem(), "");
        const int regCount = GetParam() == Family::Mico8 ? 32 : 16;
        for (long long i = 0; i < count; ++i) {
            if (i % instructionsOfStretch == 0 || both.model().pc < 0)
                shuffle(&both, regCount);
            if (m_random() % 11 == 0)
                both.raiseInterrupt();
            const int address = both.model().pc;
            const int vectorOrNext = both.model().interrupt == NaiveProcessor::pending ? -1 : address;
            const std::string difference = both.step();
            ASSERT_EQ(difference, "") << "instruction " << i << " at " << address << ": "
                                      << program[size_t(address)].text(GetParam()).toStdString();
            if (vectorOrNext >= 0)
                ++m_executed[program[size_t(address)].mnemonic];
            // What could not be done is left behind.
            if (both.model().pc == address)
                both.goTo((address + 1) % programSize);
        }
    }

    std::mt19937 m_random;
    QHash<QString, long long> m_executed;
};

TEST_P(RandomPrograms, AgreeWithTheModel)
{
    const long long total = number("NALVO_SIM_INSTRUCTIONS", defaultInstructions);
    const unsigned seed = unsigned(number("NALVO_SIM_SEED", 20161109)) + unsigned(GetParam());
    for (long long executed = 0; executed < total && !HasFatalFailure(); executed += instructionsOfProgram) {
        m_random.seed(seed + unsigned(executed / instructionsOfProgram) * 7919);
        SCOPED_TRACE("seed " + std::to_string(seed) + ", program " + std::to_string(executed / instructionsOfProgram));
        run(randomProgram(GetParam(), &m_random), std::min<long long>(instructionsOfProgram, total - executed));
    }
    const int mnemonics = GetParam() == Family::PicoBlaze3 ? 30 : GetParam() == Family::PicoBlaze6 ? 36 : 26;
    EXPECT_EQ(m_executed.size(), mnemonics);
    for (auto it = m_executed.cbegin(); it != m_executed.cend(); ++it)
        EXPECT_GT(it.value(), total / 500) << it.key().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Processors, RandomPrograms, ::testing::Values(Family::PicoBlaze3, Family::PicoBlaze6, Family::Mico8),
                         [](const auto& tested) { return nameOf(tested.param); });

} // namespace
