#include "ModArgs.h"
#include "FakeHooks.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

using nsModArgs::ModArgs;

namespace {

QString str(const char* text)
{
    return QString::fromUtf8(text);
}

class Args : public ModArgs
{
public:
    explicit Args(const QStringList& words)
        : m_words(words)
    {
    }

protected:
    QStringList arguments() const override { return m_words; }

private:
    QStringList m_words;
};

struct ArgsCase
{
    const char* words; ///< after the program's name, separated by blanks; "''" is an empty word
    const char* prjFile;
    const char* scriptFile;
    QStringList errors;
};

std::ostream& operator<<(std::ostream& out, const ArgsCase& c)
{
    return out << '[' << c.words << ']';
}

class ModArgsCases : public ::testing::TestWithParam<ArgsCase>
{
};

TEST_P(ModArgsCases, CommandLine)
{
    const ArgsCase& c = GetParam();
    QStringList words = str(c.words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    words.replaceInStrings(str("''"), QString());
    words.prepend(str("nalvo"));
    FakeMsgHook msg;
    Args args(words);
    msg.registerPlugin(static_cast<ModMsgPluginIf*>(&args));
    args.modInit();
    EXPECT_EQ(msg.texts(), c.errors);
    EXPECT_EQ(msg.errors(), c.errors);
    EXPECT_EQ(args.hasError(), !c.errors.isEmpty());
    EXPECT_EQ(args.prjFile(), str(c.prjFile));
    EXPECT_EQ(args.scriptFile(), str(c.scriptFile));
    for (const FakeMsgHook::Entry& entry : msg.messages()) {
        EXPECT_TRUE(entry.hlpDoc.isEmpty());
        EXPECT_TRUE(entry.srcFile.isEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, ModArgsCases,
    ::testing::Values(
        ArgsCase{"", "", "", {}}, ArgsCase{"a.nalvo", "a.nalvo", "", {}}, ArgsCase{"-s b.js", "", "b.js", {}},
        ArgsCase{"a.nalvo -s b.js", "a.nalvo", "b.js", {}}, ArgsCase{"-s b.js a.nalvo", "a.nalvo", "b.js", {}},
        ArgsCase{"'' a.nalvo ''", "a.nalvo", "", {}}, ArgsCase{"-s '' b.js", "", "b.js", {}},
        ArgsCase{"-s", "", "", {}}, ArgsCase{"a.nalvo -s", "a.nalvo", "", {}}, ArgsCase{"-", "", "", {}},
        ArgsCase{"- a.nalvo", "a.nalvo", "", {}}, ArgsCase{"-x", "", "", {str("Found unknown argument: -x")}},
        ArgsCase{"--help", "", "", {str("Found unknown argument: --help")}},
        ArgsCase{"-t a.nalvo", "", "", {str("Found unknown argument: -t")}},
        ArgsCase{"a.nalvo -x", "a.nalvo", "", {str("Found unknown argument: -x")}},
        // The keys in sort order; the first bad one ends the walk.
        ArgsCase{"-y -x -s b.js", "", "b.js", {str("Found unknown argument: -x")}},
        ArgsCase{"-a -s b.js c.nalvo", "c.nalvo", "", {str("Found unknown argument: -a")}},
        // The values of one key, the last one first.
        ArgsCase{"a.nalvo b.nalvo",
                 "",
                 "",
                 {str("Multiple project files defined: b.nalvo"), str("Multiple project files defined: a.nalvo")}},
        ArgsCase{"a.nalvo b.nalvo -s a -s b",
                 "",
                 "",
                 {str("Multiple project files defined: b.nalvo"), str("Multiple project files defined: a.nalvo")}},
        ArgsCase{
            "-s a -s b", "", "", {str("Multiple script files defined: b"), str("Multiple script files defined: a")}},
        ArgsCase{"c.nalvo -s -s b",
                 "c.nalvo",
                 "",
                 {str("Multiple script files defined: b"), str("Multiple script files defined: ")}}));

TEST(ModArgsTest, WithoutAMessageServiceTheErrorIsStillFlagged)
{
    Args args({str("nalvo"), str("-x")});
    args.modRegisterPlugins({});
    args.modInit();
    args.modInitIntermod();
    args.modRun();
    EXPECT_TRUE(args.hasError());
    EXPECT_TRUE(args.modExitRequest());
    args.modExitIntermod();
    args.modExit();
}

TEST(ModArgsTest, ReadsTheProcessArguments)
{
    ModArgs args;
    EXPECT_EQ(args.setupArguementMap(), QCoreApplication::arguments().size() >= 2);
}

TEST(ModArgsTest, EvenTheProgramNameMayBeMissing)
{
    Args args({});
    args.modInit();
    EXPECT_FALSE(args.hasError());
}

} // namespace
