// Random programs in foreign dialects: generated, converted, assembled, and compared with the words that the original
// makes. A long run, which tells every program that differs:
//   NALVO_FOREIGN_PROGRAMS=1000 build/release/test_ImportReference --gtest_filter='*Random*'

#include "ImportCase.h"

#include <gtest/gtest.h>

using foreign::Dialect;

namespace {

/// Programs a dialect.
#if defined(__SANITIZE_ADDRESS__)
const unsigned shortRun = 6;
#else
const unsigned shortRun = 30;
#endif

class RandomPrograms : public ::testing::TestWithParam<Dialect>
{
};

} // namespace

TEST_P(RandomPrograms, haveTheWordsOfTheOriginal)
{
    const QByteArray asked = qgetenv("NALVO_FOREIGN_PROGRAMS");
    const unsigned count = asked.isEmpty() ? shortRun : asked.toUInt();
    int wrong = 0;
    for (unsigned seed = 1; seed <= count; ++seed) {
        const QString problem = importProblem({GetParam(), foreign::randomProgram(GetParam(), seed)});
        if (problem.isEmpty())
            continue;
        ++wrong;
        if (wrong <= 3 || !asked.isEmpty())
            ADD_FAILURE() << "seed " << seed << ": " << problem.toStdString();
    }
    EXPECT_EQ(wrong, 0) << "of " << count << " programs";
}

INSTANTIATE_TEST_SUITE_P(All, RandomPrograms,
                         ::testing::Values(Dialect::Kcpsm3, Dialect::Kcpsm6, Dialect::PBlazIde, Dialect::Mico8Vendor,
                                           Dialect::Mico8Gnu));
