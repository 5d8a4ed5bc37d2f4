// Every example of every page: sources assemble with the messages and the words that the page states, sessions print
// what it shows.

#include "ExampleRunner.h"
#include "HelpTree.h"
#include "QtPrinters.h"

namespace {

using nsHelpBuild::HelpExample;
using nsHelpBuild::HelpPage;

class HelpExamples : public ::testing::TestWithParam<QString>
{
};

TEST_P(HelpExamples, areTrue)
{
    HelpPage page;
    QString error;
    ASSERT_TRUE(readText(HelpTree::sourceDir() + '/' + GetParam(), &page, &error)) << error.toStdString();
    ExampleRunner runner;
    for (const HelpExample& example : qAsConst(page.examples)) {
        for (const QString& difference : runner.differences(example))
            ADD_FAILURE() << GetParam().toStdString() << ':' << example.line << ": " << difference.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(page, HelpExamples, ::testing::ValuesIn(HelpTree::files()), HelpTree::testName);

QStringList differences(const QString& info, const QString& text)
{
    return ExampleRunner().differences({info, text, 1});
}

TEST(HelpExampleRunner, SeesEveryMessageThatIsNotStated)
{
    EXPECT_EQ(differences("psm", " LOAD s0, 1\n"), QStringList());
    EXPECT_EQ(differences("psm", " NOSUCH\n"), QStringList("expected nothing, got errOcUnsupported@1"));
    EXPECT_EQ(differences("psm errOcUnsupported@1", " NOSUCH\n"), QStringList());
    EXPECT_EQ(differences("psm errOcUnsupported@2", " NOSUCH\n"),
              QStringList("expected errOcUnsupported@2, got errOcUnsupported@1"));
    EXPECT_EQ(differences("psm errSyntax@1", " LOAD s0, 1\n"), QStringList("expected errSyntax@1, got nothing"));
    // One statement stands for one message.
    EXPECT_EQ(differences("psm errOcUnsupported@1", " NOSUCH\n NOSUCH\n").size(), 1);
}

TEST(HelpExampleRunner, ComparesTheWordsOfTheProcessor)
{
    EXPECT_EQ(differences("psm words=00001", " LOAD s0, 1\n"), QStringList());
    EXPECT_EQ(differences("psm pb6 words=01001", " LOAD s0, 1\n"), QStringList());
    EXPECT_EQ(differences("psm mico8 words=13001", " LOAD r0, 1\n").size(), 1);
    EXPECT_EQ(differences("psm words=00002", " LOAD s0, 1\n"), QStringList("expected the words 00002, got 00001"));
    EXPECT_EQ(differences("psm words=00001,00002", " LOAD s0, 1\n"),
              QStringList("expected the words 00001 00002, got 00001"));
}

TEST(HelpExampleRunner, AnInstructionAtTheInterruptVectorCountsWhenItIsNamed)
{
    const QString text = " INT ENABLE\n";
    EXPECT_EQ(differences("psm", text), QStringList());
    EXPECT_EQ(differences("psm warnMissingInstrAtIntVectorAddr@0", text), QStringList());
    EXPECT_EQ(differences("psm warnMissingInstrAtIntVectorAddr@0", " LOAD s0, 1\n#ORG ADDR, 0x3FF\n RETI ENABLE\n"),
              QStringList("expected warnMissingInstrAtIntVectorAddr@0, got nothing"));
}

TEST(HelpExampleRunner, ASessionPrintsWhatThePageShows)
{
    ExampleRunner runner;
    EXPECT_EQ(runner.differences({"psm", " LOAD s0, 7\n", 1}), QStringList());
    EXPECT_EQ(runner.differences({"session", "$ nalvo-asm -q -l - example.nalvo | wc -l\n1\n", 5}), QStringList());
    EXPECT_EQ(runner.differences({"session", "$ cat example.psm\n LOAD s0, 7\n$ true\n$ printf x\nx\n", 5}),
              QStringList());
    const QStringList wrong = runner.differences({"session", "$ cat example.psm\n LOAD s0, 8\n", 5});
    EXPECT_EQ(wrong, QStringList("the session differs, it is:\n$ cat example.psm\n LOAD s0, 7\n"));
    // What goes to the error stream counts.
    EXPECT_EQ(runner.differences({"session", "$ echo bad >&2\n", 5}).size(), 1);
}

TEST(HelpExampleRunner, OnlyShownKindsAreNotRun)
{
    EXPECT_EQ(differences("psm fragment", " NOSUCH\n"), QStringList());
    EXPECT_EQ(differences("text", "$ false\n"), QStringList());
    EXPECT_FALSE(ExampleRunner::isRun({"sh", "", 1}));
    EXPECT_TRUE(ExampleRunner::isRun({"psm pb6", "", 1}));
    EXPECT_TRUE(ExampleRunner::isRun({"session", "", 1}));
}

TEST(HelpExampleRunner, ThePagesHaveExamples)
{
    int count = 0;
    for (const HelpPage& page : HelpTree::help().pages())
        count += int(std::count_if(page.examples.cbegin(), page.examples.cend(), ExampleRunner::isRun));
    EXPECT_GT(count, 500);
}

} // namespace
