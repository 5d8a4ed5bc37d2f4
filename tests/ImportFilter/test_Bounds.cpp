// What a filter can not do: take for ever, or all the memory.

#include "FilterFixture.h"
#include "QtPrinters.h"
#include "RulePattern.h"

using nsModImport::ImportFilterT001;
using nsModImport::RulePattern;

namespace {

class FilterBounds : public FilterFixture
{
};

} // namespace

TEST_F(FilterBounds, anExpressionThatExplodesIsRefusedBeforeItBegins)
{
    make("lineTextRule: \"((?=(?=a*c)a*d|a*e)a|a)*b\" \"x\"\n");
    EXPECT_EQ(converted(QString(1000, 'a')), "(refused)");
    EXPECT_EQ(filter->problem(), "A rule of the import filter would take too long for this line.");
    EXPECT_EQ(converted("aab"), "x");
    EXPECT_EQ(filter->problem(), "");
    make("tagRule: \"((?=(?=a*c)a*d|a*e)a|a)*b\" \"x\"\n");
    EXPECT_EQ(converted(QString(4000, 'a')), "(refused)");
    make("lineTagRule: \"((?=(?=a*c)a*d|a*e)a|a)*b\" \"\" \"\" \"\" \"x\" \"\" \"\" \"\"\n");
    EXPECT_EQ(converted(QString(4000, 'a')), "(refused)");
    EXPECT_EQ(converted("ab"), "x");
    // Without looking ahead these are matched in one pass.
    make("tagRule: \"(a*)*b\" \"x\"\ntagRule: \"(a|aa)+\" \"y\"\n");
    EXPECT_EQ(converted(QString(4000, 'a')), "y");
}

TEST_F(FilterBounds, anExpressionThatIsTooLargeNeverMatches)
{
    EXPECT_FALSE(RulePattern("((a{1000}){1000}){1000}").isValid());
    EXPECT_FALSE(RulePattern("(a?){2,1024}b").isValid());
    EXPECT_FALSE(RulePattern("(((((a{9}){9}){9}){9}){9}){9}").isValid());
    EXPECT_FALSE(RulePattern(QString(2000, 'a')).isValid());
    EXPECT_FALSE(RulePattern("(").isValid());
    EXPECT_TRUE(RulePattern("").isValid());
    EXPECT_TRUE(RulePattern("[a{99}](b\\{99999\\}){3}").isValid());
    make("tagRule: \"((a{1000}){1000}){1000}\" \"x\"\n");
    EXPECT_EQ(converted("a"), "a");
}

TEST_F(FilterBounds, theWorkGrowsWithTheText)
{
    const RulePattern anchored("^a(b|c)*");
    EXPECT_EQ(anchored.stepsOfSearch(99), anchored.stepsOfMatch(99));
    EXPECT_EQ(RulePattern("a*").stepsOfSearch(99), 100 * RulePattern("a*").stepsOfMatch(99));
    EXPECT_EQ(RulePattern("^a*|b").stepsOfSearch(99), 100 * RulePattern("^a*|b").stepsOfMatch(99));
    EXPECT_GE(RulePattern("(?=a)b").stepsOfMatch(99), 99 * RulePattern("(?:a)b").stepsOfMatch(99));
    EXPECT_GT(RulePattern("(ab){9}").stepsOfMatch(9), 9 * RulePattern("(ab)").stepsOfMatch(9));
}

TEST_F(FilterBounds, aLineHasTimeForItsRules)
{
    make("tagRule: \"a\" \"b\"\n").setTimeLimit(0);
    EXPECT_EQ(converted("a"), "(refused)");
    EXPECT_EQ(filter->problem(), "The rules of the import filter take too long for this line.");
    filter->setTimeLimit(ImportFilterT001::dfltTimeLimit);
    EXPECT_EQ(converted("a"), "b");
}

TEST_F(FilterBounds, aLineDoesNotGrowWithoutEnd)
{
    QByteArray rules;
    for (int i = 0; i < 30; ++i)
        rules += "lineTextRule: \"a\" \"aaaaaaaaaa\"\n";
    make(rules);
    EXPECT_EQ(converted("a"), "(refused)");
    EXPECT_EQ(filter->problem(), "The converted line is too long.");
    make("tagRule: \"((((.*))))\" \"%1%2%3%4\"\n");
    EXPECT_EQ(converted("ab"), "abababab");
    EXPECT_EQ(converted(QString("%2%3%4").repeated(1000)), "(refused)");
    EXPECT_EQ(converted(QString(10001, ' ')), "(refused)");
    EXPECT_EQ(filter->problem(), "The line is too long.");
    EXPECT_EQ(converted(QString(10000, ' ')), QString(10000, ' '));
}

TEST(ShippedFilters, takeEveryOrdinaryLine)
{
    nsModImport::ImportFilter filters(NALVO_SOURCE_DIR "/Common/asmImportFilter");
    for (const QString& name : filters.filterNames()) {
        nsModImport::ImportFilterIf* filter = filters.filter(name);
        filter->setupRules();
        QString line = "label_of_forty_characters_which_is_long: NOSUCH " + QString(40, 'x') + ", " + QString(40, 'y') +
                       " ; " + QString(900, 'c');
        const QString before = line;
        EXPECT_TRUE(filter->convertLine(&line)) << qPrintable(name) << ' ' << qPrintable(filter->problem());
        EXPECT_EQ(line, before);
        filter->clearRules();
    }
}
