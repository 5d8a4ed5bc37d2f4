#include "ExactSide.h"
#include "RandomWords.h"

#include <gtest/gtest.h>

namespace {

/// Where the simulation has no clock or address of its own, the model's are not compared.
bool isSame(const ExactEvent& ours, const ExactEvent& other)
{
    const bool isInstruction = ours.kind == ExactEvent::Instruction;
    return ours.kind == other.kind && ours.port == other.port && ours.value == other.value &&
           (!isInstruction || (ours.address == other.address && ours.clock == other.clock));
}

/// Nothing if equal, else the first difference with what came before.
std::string difference(const ExactEvents& ours, const ExactEvents& other)
{
    size_t i = 0;
    while (i < ours.size() && i < other.size() && isSame(ours[i], other[i]))
        ++i;
    if (i == ours.size() && i == other.size())
        return {};
    std::string text;
    for (size_t j = i < 12 ? 0 : i - 12; j < i; ++j)
        text += "  " + other[j].text() + "\n";
    text += "ours:  " + (i < ours.size() ? ours[i].text() : "nothing") + "\n";
    text += "model: " + (i < other.size() ? other[i].text() : "nothing") + "\n";
    return text;
}

class ExactRandomWords : public testing::TestWithParam<Core>
{
protected:
    /// Runs a random program on both sides, in pieces, and compares all that can be seen after each.
    static void compare(unsigned seed, qint64 clocks, bool steps, qint64* instructions)
    {
        const Core core = GetParam();
        std::mt19937 random(seed * 7 + unsigned(core));
        const CoreBuild build = randomBuild(core, &random);
        const Flavour flavour = allFlavours[seed % 4];
        const Stimulus stimulus = randomStimulus(core, build, flavour, clocks, &random);
        ExactSide side(core, build, stimulus);
        const std::unique_ptr<ExactModel> model = makeModel(core, build, stimulus.program, stimulus.waitStates);
        size_t read = 0;
        model->setRead([&](int) { return read < stimulus.reads.size() ? stimulus.reads[read++] : quint8(0); });
        model->setInterrupt([&](qint64 clock) {
            return std::any_of(stimulus.interrupts.begin(), stimulus.interrupts.end(), [clock](const Pulse& pulse) {
                return clock >= pulse.clock && clock < pulse.clock + pulse.length;
            });
        });
        while (side.clock() < clocks) {
            const int count = std::uniform_int_distribution<int>(1, steps ? 3 : 700)(random);
            ASSERT_EQ(steps ? side.step(count) : side.run(count), "") << "seed " << seed;
            ExactEvents events;
            while (model->clock() < side.clock())
                model->step(&events);
            ASSERT_EQ(difference(side.events(), events), "") << "seed " << seed;
            ASSERT_EQ(side.differs(*model), "") << "seed " << seed << ", clock " << side.clock();
            *instructions += count;
            side.forgetEvents();
        }
    }
};

TEST_P(ExactRandomWords, AMillionInstructionsDoWhatTheModelDoes)
{
    qint64 instructions = 0;
    for (unsigned seed = 0; instructions < 1000000; ++seed) {
        compare(seed, 24000, false, &instructions);
        if (HasFatalFailure())
            return;
    }
}

TEST_P(ExactRandomWords, StepsDoWhatTheModelDoes)
{
    qint64 instructions = 0;
    for (unsigned seed = 500; seed < 540; ++seed) {
        compare(seed, 3000, true, &instructions);
        if (HasFatalFailure())
            return;
    }
}

INSTANTIATE_TEST_SUITE_P(Cores, ExactRandomWords, testing::ValuesIn(allCores),
                         [](const auto& each) { return std::string(nameOf(each.param)); });

} // namespace
