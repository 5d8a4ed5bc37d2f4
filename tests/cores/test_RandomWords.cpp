#include "RandomWords.h"

#include <gtest/gtest.h>

#include <QSet>

namespace {

int countAddresses(const QStringList& lines)
{
    QSet<QString> addresses;
    for (const QString& line : lines) {
        if (line.startsWith("I "))
            addresses += line.section(' ', 1, 1);
    }
    return addresses.size();
}

using Where = std::tuple<Core, Language>;

class RandomWords : public testing::TestWithParam<Where>
{
};

std::string nameOfCase(const testing::TestParamInfo<Where>& info)
{
    return std::string(nameOf(std::get<0>(info.param))) + nameOf(std::get<1>(info.param));
}

} // namespace

// The model in HDL and the one in C++ were written from the same tables, one clock by clock, the other instruction by
// instruction.
TEST_P(RandomWords, theHdlModelDoesWhatTheNaiveModelDoes)
{
    const auto [core, language] = GetParam();
    if (!HdlCore::isToolThere(language))
        GTEST_SKIP() << qPrintable(HdlCore::toolOf(language)) << " is not installed";
    int events = 0;
    const unsigned seeds =
        qEnvironmentVariableIsSet("NALVO_CORE_SEEDS") ? qEnvironmentVariableIntValue("NALVO_CORE_SEEDS") : 4;
    for (unsigned seed = 0; seed < seeds; ++seed) {
        std::mt19937 random(1000 * unsigned(core) + seed);
        const CoreBuild build = seed == 0 ? CoreBuild() : randomBuild(core, &random);
        const HdlCore hdl(core, language, build);
        ASSERT_TRUE(hdl.isCompiled()) << qPrintable(hdl.error());
        for (const Flavour flavour : allFlavours) {
            const Stimulus stimulus = randomStimulus(core, build, flavour, 3000, &random);
            const ModelRun model = runModel(core, build, stimulus);
            const QStringList lines = hdl.run(stimulus);
            ASSERT_EQ(difference("model", model.lines, nameOf(language), lines), std::string())
                << "seed " << seed << ", flavour " << int(flavour);
            events += lines.size();
        }
    }
    EXPECT_GT(events, int(seeds) * 5 * 1000);
}

TEST_P(RandomWords, flagsAreTheSameForAllValuesAtTheEdges)
{
    const auto [core, language] = GetParam();
    if (!HdlCore::isToolThere(language))
        GTEST_SKIP() << qPrintable(HdlCore::toolOf(language)) << " is not installed";
    const HdlCore hdl(core, language);
    for (const Stimulus& stimulus : flagPrograms(core)) {
        const QStringList lines = hdl.run(stimulus);
        ASSERT_EQ(difference("model", runModel(core, {}, stimulus).lines, nameOf(language), lines), std::string());
        EXPECT_GT(lines.filter("W 03 ").size(), 4);
    }
}

// Programs that turn in a small circle show little.
TEST(RandomWords, theProgramsGoFar)
{
    for (const Core core : allCores) {
        for (const Flavour flavour : allFlavours) {
            int addresses = 0;
            for (unsigned seed = 0; seed < 10; ++seed) {
                std::mt19937 random(seed);
                addresses += countAddresses(runModel(core, {}, randomStimulus(core, {}, flavour, 3000, &random)).lines);
            }
            EXPECT_GT(addresses / 10, 50) << nameOf(core) << ", flavour " << int(flavour);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Cores, RandomWords,
                         testing::Combine(testing::ValuesIn(allCores), testing::ValuesIn(allLanguages)), nameOfCase);
