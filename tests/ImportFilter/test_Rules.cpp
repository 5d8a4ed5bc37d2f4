// The rules of filter files: how a line is split, and what each kind of rule does with it.

#include "FilterFixture.h"
#include "QtPrinters.h"

using nsModImport::ImportFilterT001;

namespace {

class FilterRules : public FilterFixture
{
protected:
    QStringList fields(const QString& line)
    {
        QStringList result;
        if (filter == nullptr)
            make("");
        filter->splitLine(line);
        EXPECT_EQ(filter->mergeLine(), line);
        for (int i = 0; i < ImportFilterT001::fieldCount; ++i)
            result.append(filter->field(ImportFilterT001::eField_t(i)));
        return result;
    }
};

} // namespace

TEST_F(FilterRules, theFieldsRebuildTheLine)
{
    EXPECT_EQ(fields("\tlab: \tLOAD s0 , 1 ; c,\"d"),
              QStringList({"\t", "lab:", " \t", "LOAD", " ", "s0", " ", ",", " ", "1", " ", "; c,\"d", ""}));
    EXPECT_EQ(fields("LOAD s0 s1"), QStringList({"", "", "", "LOAD", " ", "s0", " ", "", "", "s1", "", "", ""}));
    EXPECT_EQ(fields("x \\;a\\"), QStringList({"", "", "", "x", " ", "\\;a\\", "", "", "", "", "", "", ""}));
}

TEST_F(FilterRules, anEmptyLineConvertsToItself)
{
    make("lineTextRule: \"^\" \"x\"\n");
    EXPECT_EQ(fields(""), QStringList({"", "", "", "", "", "", "", "", "", "", "", "", ""}));
    EXPECT_TRUE(filter->splitLine(""));
    EXPECT_EQ(converted(""), "");
}

TEST_F(FilterRules, aThirdOperandIsRefused)
{
    make("tagRule: \"A\" \"B\"\n");
    EXPECT_EQ(fields("A b, c, d").last(), ", d");
    EXPECT_EQ(converted("A b, c, d"), "(refused)");
    EXPECT_EQ(filter->problem(), "");
    EXPECT_EQ(converted("A b, c"), "B b, c");
}

TEST_F(FilterRules, anEmptyTestFitsAnEmptyFieldAlone)
{
    make("lineTagRule: \"RET\" \"\" \"\" \"\" \"BACK\" \"\" \"\" \"\"\n");
    EXPECT_EQ(converted("ret"), "BACK");
    EXPECT_EQ(converted("RET ; x"), "BACK ; x");
    EXPECT_EQ(converted("RET Z"), "RET Z");
}

TEST_F(FilterRules, aColonMakesALabelInTheFirstWordAlone)
{
    EXPECT_EQ(fields("JUMP a:b").mid(1, 5), QStringList({"", "", "JUMP", " ", "a:b"}));
    EXPECT_EQ(fields("ns::x y").mid(1, 5), QStringList({"ns:", "", ":x", " ", "y"}));
    EXPECT_EQ(fields("a\"b: c").mid(1, 3), QStringList({"", "", "a\"b: c"}));
}

TEST_F(FilterRules, aStringWithACommaStaysInOneField)
{
    EXPECT_EQ(fields("S \"a,b; c\", \"d\\\",e\"").mid(5, 5), QStringList({"\"a,b; c\"", "", ",", " ", "\"d\\\",e\""}));
}

TEST_F(FilterRules, aTemplateWithoutAPlaceholderReplacesTheField)
{
    make("tagRule: \"x.*\" \"fixed text\"\ntagRule: \"y\" \"\"\ntagRule: \"(.)(.)(.)(.)z\" \"%4%3%2%1\"\n"
         "tagRule: \"(a+)w\" \"%1%1%1%1%1\"\ntagRule: \"(.)v\" \"%0-%1\"\n");
    EXPECT_EQ(converted("xa y, x"), "fixed text , fixed text");
    EXPECT_EQ(converted("abcdz"), "dcba");
    EXPECT_EQ(converted("aaw"), "%1%1%1%1%1") << "more than four are no placeholders";
    EXPECT_EQ(converted("5v"), "5-");
}

TEST_F(FilterRules, theFirstLineTagRuleThatFitsFiresAlone)
{
    make("lineTagRule: \"a\" \"(.)(.)\" \"(,)\" \"(.*)\" \"one\" 4 3 2 free text\n"
         " \tlineTagRule: \"(a|one)\" \".*\" \".*\" \".*\" \"two\" 1 3 4\n");
    EXPECT_EQ(converted("l: A  xy , z ;c"), "l: one  z , x ;c");
    EXPECT_EQ(converted("a x"), "two a");
}

TEST_F(FilterRules, aDestinationThatIsNoneLeavesTheField)
{
    testing::internal::CaptureStdout();
    make("lineTagRule: \"a\" \"b\" \"\" \"\" \"c\" 0 5 x\n");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Source field reference exceeds range: 0\n"
                                                      "Source field reference exceeds range: 5\n"
                                                      "Source field reference exceeds range: 0\n");
    EXPECT_EQ(converted("a b"), "c b");
}

TEST_F(FilterRules, tagRulesChangeInstructionAndOperandsAfterTheLineTagRules)
{
    make("lineTagRule: \"a\" \".*\" \".*\" \".*\" \"b\" \"b\" \",\" \"b\"\ntagRule: \"b\" \"c\"\ntagRule: \"b\" "
         "\"d\"\n");
    EXPECT_EQ(converted("b: a ;b"), "b: c c,c;b");
    EXPECT_EQ(converted("b b, bb"), "c c, bb");
}

TEST_F(FilterRules, lineTextRulesAllApplyInTheirOrder)
{
    make("lineTextRule: \"a\" \"b\"\nlineTextRule: \"b(.)\" \"\\1c\"\nlineTextRule: \"z\" \"\"\n"
         "tagTextRule: \"q\" \"q\" \"q\" \"q\"\nlineTextRule: \"(\" \"bad\"\n");
    EXPECT_EQ(converted("lA: zz ;a1"), "l:c  ;1c");
    EXPECT_EQ(converted("q"), "q");
}

TEST_F(FilterRules, linesThatAreNoRulesAreComments)
{
    make(
        "lineTagRule \"a\" \"b\"\nTAGRULE: \"a\" \"b\"\ntagRule: \"a b\" \"c\"\ntagRule: \"(\" \"c\"\nx tagRule: \"a\" "
        "\"b\"\n");
    EXPECT_EQ(converted("a a, a"), "a a, a");
}

TEST_F(FilterRules, rulesAreReadAndDropped)
{
    make("tagRule: \"a\" \"b\"");
    EXPECT_EQ(converted("a"), "b") << "a rule needs no line break behind it";
    filter->clearRules();
    EXPECT_EQ(converted("a"), "a");
    QFile::remove(dir.filePath("f.txt"));
    filter->setupRules();
    EXPECT_EQ(converted("a"), "a") << "without its file it has no rules";
}

TEST_F(FilterRules, theFieldsArePrinted)
{
    make("");
    filter->splitLine("l: a b");
    testing::internal::CaptureStdout();
    filter->printTags();
    const QStringList lines = QString::fromStdString(testing::internal::GetCapturedStdout()).split('\n');
    ASSERT_EQ(lines.size(), 14);
    EXPECT_EQ(lines.at(1), "Tag  1: Label       l:");
    EXPECT_EQ(lines.at(3), "Tag  3: Instruction a");
    EXPECT_EQ(lines.at(12), "Tag 12: Rest        ");
}
