// A comparison is worth what it finds: each of a hundred deliberate faults of the models must show.

#include "Faults.h"

#include <gtest/gtest.h>

#include <QFile>

#include <map>
#include <set>

namespace {

using Where = std::tuple<Core, Language>;

std::string nameOfCase(const testing::TestParamInfo<Where>& info)
{
    return std::string(nameOf(std::get<0>(info.param))) + nameOf(std::get<1>(info.param));
}

class Faults : public testing::TestWithParam<Where>
{
protected:
    void SetUp() override
    {
        const auto [core, language] = GetParam();
        for (const Trial& trial : trials(core))
            m_trials.push_back({trial, runModel(core, trial.build, trial.stimulus).lines});
    }

    /// @return the number of the trial that shows the fault, -1 for none
    int shows(const QString& source)
    {
        const auto [core, language] = GetParam();
        std::map<std::vector<int>, std::unique_ptr<HdlCore>> compiled; // by how the core is built
        for (std::size_t n = 0; n < m_trials.size(); ++n) {
            const auto& [trial, lines] = m_trials[n];
            const CoreBuild& build = trial.build;
            std::unique_ptr<HdlCore>& hdl =
                compiled[{build.scratchpadSize, build.vector, build.hwBuild, build.registers, build.addressBits}];
            if (!hdl)
                hdl = std::make_unique<HdlCore>(core, language, build, source);
            EXPECT_TRUE(hdl->isCompiled()) << qPrintable(hdl->error());
            if (!hdl->isCompiled() || hdl->run(trial.stimulus) != lines)
                return int(n);
        }
        return -1;
    }

    std::vector<std::pair<Trial, QStringList>> m_trials;
};

} // namespace

TEST(FaultList, hasAHundredFaultsEachInOnePlaceOfAModel)
{
    const std::vector<Fault> faults = readFaults();
    EXPECT_GE(faults.size(), 100u);
    std::set<QString> words;
    for (const Fault& fault : faults) {
        EXPECT_FALSE(sourceWith(fault).isEmpty()) << qPrintable(fault.file + ": " + fault.what);
        EXPECT_NE(fault.from, fault.to) << qPrintable(fault.what);
        EXPECT_TRUE(words.insert(fault.file + fault.what).second) << qPrintable(fault.what);
    }
}

TEST_P(Faults, eachCompilesAndShows)
{
    const auto [core, language] = GetParam();
    if (!HdlCore::isToolThere(language))
        GTEST_SKIP() << qPrintable(HdlCore::toolOf(language)) << " is not installed";
    EXPECT_EQ(shows(HdlCore::sourceOf(core, language)), -1) << "the model itself differs";
    const QString name = HdlCore::sourceOf(core, language).section('/', -1);
    QTemporaryDir dir;
    int count = 0;
    for (const Fault& fault : readFaults()) {
        if (fault.file != name)
            continue;
        const QString source = dir.filePath(name);
        QFile file(source);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(sourceWith(fault).toUtf8());
        file.close();
        const int trial = shows(source);
        EXPECT_NE(trial, -1) << qPrintable(fault.file + ": " + fault.what + ": no program shows it");
        if (qEnvironmentVariableIsSet("NALVO_FAULTS_VERBOSE"))
            printf("%3d %s\n", trial, qPrintable(fault.what));
        ++count;
    }
    EXPECT_GE(count, 15);
}

INSTANTIATE_TEST_SUITE_P(Cores, Faults, testing::Combine(testing::ValuesIn(allCores), testing::ValuesIn(allLanguages)),
                         nameOfCase);
