// Random programs, side by side. The long run:
//   NALVO_SIM_SEED=12345 NALVO_SIM_INSTRUCTIONS=100000000 build/release/test_SimReference --gtest_filter='*Random*'

#include "RandomProgram.h"
#include "SideBySide.h"

#include <gtest/gtest.h>

#include <QHash>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <utility>

namespace {

#if defined(__SANITIZE_ADDRESS__)
const long long defaultInstructions = 100000;
#else
const long long defaultInstructions = 1200000;
#endif

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
    void shuffle(SideBySide* both, const Machine& machine)
    {
        const int regCount = machine.build.regCount;
        both->goTo(int(m_random() % unsigned(machine.program.size())));
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

    void run(const Machine& machine, long long count, bool warns = false)
    {
        SideBySide both(GetParam(), machine.program, machine.build, true, warns);
        ASSERT_EQ(both.problem(), "");
        for (long long i = 0; i < count; ++i) {
            if (i % instructionsOfStretch == 0 || both.model().pc < 0)
                shuffle(&both, machine);
            if (m_random() % 11 == 0)
                both.raiseInterrupt();
            const int position = both.model().pc;
            const Instruction& instruction = machine.program.instructions[size_t(position)];
            const bool isInterrupted = both.model().interrupt == State::pending;
            const std::string difference = both.step();
            ASSERT_TRUE(difference.empty()) << "step " << i << ":" << difference;
            note(both.outcome(), isInterrupted ? nullptr : &instruction);
            // An instruction that could not be executed is skipped.
            if (both.model().pc == position)
                both.goTo((position + 1) % machine.program.size());
        }
        takeWarnings(both);
    }

    /// The same in the run loop, in stretches of any length.
    void runLoop(const Machine& machine, long long count, bool isFollowed, bool warns = false)
    {
        SideBySide both(GetParam(), machine.program, machine.build, isFollowed, warns);
        ASSERT_EQ(both.problem(), "");
        for (long long i = 0; i < count; i += instructionsOfStretch) {
            shuffle(&both, machine);
            const int size = machine.program.size();
            for (int left = instructionsOfStretch; left > 0;) {
                const int stretch = 1 + int(m_random() % unsigned(left));
                left -= stretch;
                if (m_random() % 3 == 0)
                    both.raiseInterrupt();
                const int position = both.model().pc;
                const std::string difference = both.run(stretch);
                ASSERT_TRUE(difference.empty())
                    << "instruction " << i << ", " << stretch << " from position " << position << ":" << difference;
                ++m_outcomes[size_t(both.outcome())];
                // What could not be executed, and the end of the program, is left.
                if (both.outcome() != Outcome::done)
                    both.goTo(both.model().pc < 0 ? int(m_random() % unsigned(size)) : (both.model().pc + 1) % size);
            }
        }
        takeWarnings(both);
    }

    /// Each warning has come once for each place.
    void takeWarnings(const SideBySide& both)
    {
        std::set<std::pair<int, int>> places;
        for (const std::pair<int, int>& warning : both.warnings()) {
            EXPECT_TRUE(places.insert(warning).second)
                << "twice: " << nsProc::simMsg(warning.first)->key << " at position " << warning.second;
            EXPECT_GE(warning.second, 0);
            m_warnings.insert(nsProc::simMsg(warning.first)->key);
        }
    }

    /// @param instruction null for the one at the interrupt vector
    void note(Outcome outcome, const Instruction* instruction)
    {
        ++m_outcomes[size_t(outcome)];
        if (instruction == nullptr)
            return;
        ++m_executed[instruction->mnemonic];
        if (instruction->first.kind == Operand::inParentheses && outcome == Outcome::done)
            ++m_computed[instruction->mnemonic];
    }

    /// A comparison of what never happens says nothing.
    void expectAllHappened(long long total)
    {
        const Family family = GetParam();
        const int mnemonics = family == Family::PicoBlaze3 ? 30 : family == Family::PicoBlaze6 ? 36 : 26;
        EXPECT_EQ(m_executed.size(), mnemonics);
        for (auto it = m_executed.cbegin(); it != m_executed.cend(); ++it)
            EXPECT_GT(it.value(), total / 500) << it.key().toStdString();
        for (int outcome = 0; outcome < outcomeCount; ++outcome) {
            const bool isOfPicoBlaze6 = Outcome(outcome) == Outcome::noTarget;
            const bool isOfMico8 = Outcome(outcome) == Outcome::badRegister;
            const bool isOfPicoBlaze =
                Outcome(outcome) == Outcome::noVector; // the vector of a Mico8 is where it starts
            const bool happens = (!isOfPicoBlaze6 || family == Family::PicoBlaze6) &&
                                 (!isOfMico8 || family == Family::Mico8) && (!isOfPicoBlaze || family != Family::Mico8);
            if (happens)
                EXPECT_GT(m_outcomes[size_t(outcome)], total / 10000) << "outcome " << outcome;
            else
                EXPECT_EQ(m_outcomes[size_t(outcome)], 0) << "outcome " << outcome;
        }
        if (family == Family::PicoBlaze6) {
            EXPECT_GT(m_computed["JUMP"], total / 10000);
            EXPECT_GT(m_computed["CALL"], total / 10000);
        }
    }

    std::mt19937 m_random;
    QHash<QString, long long> m_executed;
    QHash<QString, long long> m_computed; ///< with a target that was found
    std::array<long long, outcomeCount> m_outcomes{};
    std::set<std::string> m_warnings; ///< keys that have come
};

TEST_P(RandomPrograms, AgreeWithTheModel)
{
    const long long total = number("NALVO_SIM_INSTRUCTIONS", defaultInstructions);
    const unsigned seed = unsigned(number("NALVO_SIM_SEED", 20161109)) + unsigned(GetParam());
    const long long instructionsOfProgram = std::min<long long>(40000, std::max<long long>(total / 20, 1));
    int programs = 0;
    for (long long executed = 0; executed < total && !HasFatalFailure(); executed += instructionsOfProgram) {
        m_random.seed(seed + unsigned(programs) * 7919);
        const Layout layout = Layout(programs % layoutCount);
        SCOPED_TRACE("NALVO_SIM_SEED=" + std::to_string(seed - unsigned(GetParam())) +
                     " NALVO_SIM_INSTRUCTIONS=" + std::to_string(total) + ", program " + std::to_string(programs));
        run(randomMachine(GetParam(), layout, &m_random), std::min(instructionsOfProgram, total - executed));
        ++programs;
    }
    if (total >= 100000 && !HasFatalFailure())
        expectAllHappened(total);
}

TEST_P(RandomPrograms, AgreeInTheRunLoop)
{
    const long long total = number("NALVO_SIM_INSTRUCTIONS", defaultInstructions);
    const unsigned seed = unsigned(number("NALVO_SIM_SEED", 20161109)) + unsigned(GetParam());
    const long long instructionsOfProgram = std::min<long long>(40000, std::max<long long>(total / 20, 1));
    int programs = 0;
    for (long long executed = 0; executed < total && !HasFatalFailure(); executed += instructionsOfProgram) {
        m_random.seed(seed + unsigned(programs) * 104729);
        SCOPED_TRACE("NALVO_SIM_SEED=" + std::to_string(seed - unsigned(GetParam())) +
                     " NALVO_SIM_INSTRUCTIONS=" + std::to_string(total) + ", program " + std::to_string(programs));
        // Each layout without and with an observer that follows.
        const bool isFollowed = programs / layoutCount % 2 != 0;
        runLoop(randomMachine(GetParam(), Layout(programs % layoutCount), &m_random),
                std::min(instructionsOfProgram, total - executed), isFollowed);
        ++programs;
    }
    // A comparison of stretches that all end at once says nothing.
    EXPECT_TRUE(HasFatalFailure() || m_outcomes[size_t(Outcome::done)] > programs);
}

TEST_P(RandomPrograms, AreTheSameWithWarningsOfTheCore)
{
    const long long total = number("NALVO_SIM_INSTRUCTIONS", defaultInstructions) / 3;
    const long long instructionsOfProgram = std::max<long long>(total / 12, 1);
    for (unsigned program = 0; program < 12 && !HasFatalFailure(); ++program) {
        m_random.seed(program * 15485863 + unsigned(GetParam()));
        SCOPED_TRACE("program " + std::to_string(program));
        const Machine machine = randomMachine(GetParam(), Layout(program / 4 % layoutCount), &m_random);
        if (program % 2 == 0)
            run(machine, instructionsOfProgram, true);
        else
            runLoop(machine, instructionsOfProgram, program % 4 == 1, true);
    }
    // A comparison without warnings says nothing.
    std::set<std::string> wanted = {"warnCoreStart", "warnCoreRequestKept"};
    if (GetParam() == Family::PicoBlaze3)
        wanted.insert({"warnCoreReturnedFlags", "warnCoreEntryFlags", "warnCoreEntryClocks"});
    else if (GetParam() == Family::PicoBlaze6)
        wanted.insert({"warnCoreConstantWrite", "warnCoreReturnedBank", "warnCoreEntryBank", "warnCoreEntryClocks"});
    else
        wanted.insert({"warnCoreNoSecondLevel", "warnCoreAccessClocks", "warnCoreRotateSource", "warnCoreRotateCarry",
                       "warnCoreStaysEnabled"});
    for (const std::string& key : wanted)
        EXPECT_EQ(m_warnings.count(key), 1U) << key;
}

INSTANTIATE_TEST_SUITE_P(Processors, RandomPrograms,
                         ::testing::Values(Family::PicoBlaze3, Family::PicoBlaze6, Family::Mico8),
                         [](const auto& tested) { return nameOf(tested.param); });

} // namespace
