// The generator of random programs: what it makes is valid, always the same for a seed, and uses the forms of the
// dialect.

#include "ForeignCase.h"
#include "RandomForeign.h"

#include <QRegularExpression>

using foreign::Dialect;

namespace {

class RandomForeign : public ::testing::TestWithParam<Dialect>
{
protected:
    /// Assembles the program of the seed.
    foreign::Image assembled(unsigned seed, QStringList* errors, QString* text)
    {
        QTemporaryDir folder;
        const foreign::RandomProgram program = foreign::randomProgram(GetParam(), seed);
        const QString main = foreign::writeProgram(program, folder.path());
        foreign::Options options;
        options.memorySize = program.memorySize;
        for (const foreign::SourceFile& file : program.files)
            *text += QString::fromLatin1(file.text);
        return foreign::assemble(GetParam(), main, options, errors);
    }
};

/// Patterns for the forms of the dialect.
QStringList formsOf(Dialect dialect)
{
    const QStringList six = {"'upper",
                             "'lower",
                             "INST\\s",
                             "DEFAULT_JUMP",
                             "INCLUDE",
                             "STRING",
                             "TABLE",
                             "\\]'d",
                             "\\]'b",
                             "~\"",
                             "~[0-9]",
                             "~[a-z]",
                             "LOAD&RETURN\\s+\\w+\\s*,\\s*\\w+\\$",
                             "OUTPUTK\\s+\\w+#",
                             "timestamp_hours",
                             "STAR",
                             "JUMP@",
                             "CALL@",
                             "HWBUILD",
                             "REGBANK",
                             "\\bDCS"};
    const QStringList kcpsm = {"NAMEREG",
                               "ADDRESS",
                               "CONSTANT",
                               "'d",
                               "'b",
                               "\"[A-Z]\"",
                               "RETURNI",
                               "INTERRUPT",
                               "JUMP\\s+[0-9A-F]{3}\\b",
                               "INPUT\\s+\\w+\\s*,\\s*\\(",
                               "\\x1A",
                               "\\r\\n"};
    const QStringList pBlazIde = {"DSIN", "DSOUT", "DSIO", "DSRAM", "DSROM",       "EQU",  "ORG",
                                  "VHDL", "EINT",  "DINT", "RETI",  "\\$[0-9A-F]", "%[01]"};
    const QStringList mico8 = {"\\.equ", "\\.org", "\\$\\+", "\\$-", "_lo\\(", "_hi\\(",
                               "0b",     "'.'",    "/\\*",   "//",   "\\s#"};
    const QStringList vendor = {"\\sequ\\s", "\\sreg\\s"};
    const QStringList gnu = {"\\.set", "\\.text", "\\d:", "\\db\\b", "\\df\\b", "\\.L\\d"};
    switch (dialect) {
    case Dialect::Kcpsm3:
        return kcpsm;
    case Dialect::Kcpsm6:
        return kcpsm + six;
    case Dialect::PBlazIde:
        return pBlazIde;
    case Dialect::Mico8Vendor:
        return mico8 + vendor;
    case Dialect::Mico8Gnu:
        return mico8 + gnu;
    }
    return {};
}

} // namespace

TEST_P(RandomForeign, programsAreValidAndOfTheRightLength)
{
    for (unsigned seed = 0; seed < 120; ++seed) {
        QStringList errors;
        QString text;
        const foreign::Image image = assembled(seed, &errors, &text);
        EXPECT_EQ(errors.join("\n").toStdString(), "") << "seed " << seed;
        EXPECT_TRUE(image.words.contains(0)) << "seed " << seed;
        // Lines end as on any system.
        const int lines = text.split(QRegularExpression("\r\n|\r|\n")).size();
        EXPECT_GE(lines, 50) << "seed " << seed;
        EXPECT_LE(lines, 480) << "seed " << seed;
        if (::testing::Test::HasFailure())
            return;
    }
}

TEST_P(RandomForeign, aSeedGivesTheSameProgram)
{
    const foreign::RandomProgram first = foreign::randomProgram(GetParam(), 7);
    const foreign::RandomProgram second = foreign::randomProgram(GetParam(), 7);
    ASSERT_EQ(first.files.size(), second.files.size());
    for (int i = 0; i < first.files.size(); ++i)
        EXPECT_EQ(first.files[i].text.toStdString(), second.files[i].text.toStdString());
    EXPECT_NE(first.files[0].text, foreign::randomProgram(GetParam(), 8).files[0].text);
}

TEST_P(RandomForeign, allFormsOccur)
{
    QString text;
    for (unsigned seed = 0; seed < 40; ++seed) {
        QStringList errors;
        assembled(seed, &errors, &text);
    }
    for (const QString& form : formsOf(GetParam())) {
        const QRegularExpression expression(form, QRegularExpression::CaseInsensitiveOption);
        EXPECT_TRUE(expression.match(text).hasMatch()) << form.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(All, RandomForeign,
                         ::testing::Values(Dialect::Kcpsm3, Dialect::Kcpsm6, Dialect::PBlazIde, Dialect::Mico8Vendor,
                                           Dialect::Mico8Gnu));
