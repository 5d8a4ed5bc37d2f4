// The evaluator of expressions: its rules one by one, and its size.

#include "QtPrinters.h"

#include "AsmFeFormula.h"
#include "AsmFeParseArg.h"

#include <gtest/gtest.h>

using namespace nsModAsmFe;

namespace {

using Result = AsmFeFormula::eResult_t;

Result evaluate(const QString& text, int* value)
{
    const AsmFeParseArg parseArg(nullptr);
    unsigned int result = 0;
    const Result state = AsmFeFormula().evaluate(
        text,
        [&](const QString& term, int* v) {
            *v = parseArg.toNumeric(term);
            return AsmFeParseArg::isNumeric(term);
        },
        &result);
    *value = int(result);
    return state;
}

void expectValue(const char* text, int expected)
{
    int value = 0;
    EXPECT_EQ(evaluate(QString::fromLatin1(text), &value), AsmFeFormula::resultOk) << text;
    EXPECT_EQ(value, expected) << text;
}

void expectResult(const char* text, Result expected)
{
    int value = 0;
    EXPECT_EQ(evaluate(QString::fromLatin1(text), &value), expected) << text;
}

TEST(Formula, operators)
{
    expectValue("6 * 7", 42);
    expectValue("43 / 6", 7);
    expectValue("43 % 6", 1);
    expectValue("40 + 2", 42);
    expectValue("40 - 2", 38);
    expectValue("1 << 4", 16);
    expectValue("0x100 >> 4", 16);
    expectValue("12 & 10", 8);
    expectValue("12 ^ 10", 6);
    expectValue("12 | 10", 14);
    expectValue("~5", -6);
    expectValue("-5 / 2", -2);
    expectValue("-5 % 3", -2);
    expectValue("5 % -3", 2);
    expectValue("-16 >> 2", -4);
}

/// Every pair of neighbours in the order of the passes, in both orders of writing.
TEST(Formula, precedence)
{
    expectValue("~1 * 3", -6);
    expectValue("3 * ~1", -6);
    expectValue("12 / 2 * 3", 18);
    expectValue("2 * 12 / 5", 4);
    expectValue("7 % 4 * 2", 7);
    expectValue("4 * 2 % 3", 2);
    expectValue("17 % 12 / 5", 1);
    expectValue("1 + 7 % 4", 4);
    expectValue("7 % 4 + 1", 4);
    expectValue("10 - 7 % 4", 7);
    expectValue("1 + 2 << 1", 6);
    expectValue("1 << 1 + 2", 8);
    expectValue("10 - 2 >> 1", 4);
    // A shift to the left comes before one to the right, wherever it stands.
    expectValue("256 >> 1 << 2", 16);
    expectValue("1 << 4 >> 2", 4);
    expectValue("7 & 1 << 2", 4);
    expectValue("24 & 32 >> 2", 8);
    expectValue("1 << 4 | 1", 17);
    expectValue("1 | 6 & 4", 5);
    expectValue("6 & 4 | 1", 5);
    expectValue("1 | 2 ^ 2", 1);
    expectValue("2 ^ 2 | 1", 1);
    expectValue("7 ^ 6 & 3", 5);
    expectValue("1 + 2 * 3", 7);
    expectValue("(1 + 2) * 3", 9);
}

TEST(Formula, leftToRight)
{
    expectValue("10 - 3 - 2", 5);
    expectValue("100 / 5 / 2", 10);
    expectValue("100 % 30 % 7", 3);
    expectValue("1 << 2 << 3", 32);
    expectValue("1024 >> 2 >> 3", 32);
    expectValue("10 - 3 + 2", 9);
}

TEST(Formula, signs)
{
    expectValue("1 - -1", 2);
    expectValue("1 --1", 2);
    expectValue("-1 + 2", 1);
    expectValue("5 --- 1", 4);
    expectValue("5 ---- 1", 6);
    expectValue("2 * -3", -6);
    expectValue("(-3)", -3);
    expectValue("-3 * -3", 9);
    expectValue("1 - 2 - - 3", 2);
    expectValue("~ -1", 0);
    expectValue("1 + + + 2", 3);
    expectValue("1 ++ 2", 3);
    // A sign before a parenthesis is lost, and a minus after one is a sign, whose term is then multiplied.
    expectValue("-(3)", 3);
    expectValue("(2) - 3", -6);
    expectValue("(2) -3", -6);
}

TEST(Formula, implicitMultiplication)
{
    expectValue("2(3)", 6);
    expectValue("(2)3", 6);
    expectValue("2 (3)", 6);
    expectValue("2(3)4", 24);
    expectValue("1 + 2(3)", 7);
    expectValue("6 / 2(3)", 9);
    expectResult("1 2", AsmFeFormula::resultSyntax);
    expectResult("1 2 + 3", AsmFeFormula::resultSyntax);
}

TEST(Formula, blanks)
{
    expectValue("1+2", 3);
    expectValue("  1  +\t2\n", 3);
    expectValue("( 1 )", 1);
    expectValue("1 < < 2", 4);
}

TEST(Formula, modulo)
{
    expectValue("5 % 3", 2);
    expectValue("5 %3", 2);
    expectValue("(5)%3", 2);
    // Without a blank in front of it the whole text is given up, and nobody says why.
    expectResult("5%3", AsmFeFormula::resultFailed);
    expectResult("5% 3", AsmFeFormula::resultFailed);
    expectResult("1 + 5%3", AsmFeFormula::resultFailed);
}

TEST(Formula, shiftCountsModulo32)
{
    expectValue("1 << 31", -2147483647 - 1);
    expectValue("1 << 32", 1);
    expectValue("1 << 33", 2);
    expectValue("8 >> 35", 1);
    expectValue("1 << -1", -2147483647 - 1);
    expectValue("1 >> -31", 0);
    expectValue("-1 >> 31", -1);
    expectValue("-1 << 1", -2);
}

TEST(Formula, wrapsAt32Bits)
{
    expectValue("2147483647 + 1", -2147483647 - 1);
    expectValue("-2147483647 - 2", 2147483647);
    expectValue("65536 * 65536", 0);
    expectValue("46341 * 46341", -2147479015);
    expectValue("-(1 << 31)", -2147483647 - 1);
    expectValue("0 - (1 << 31)", -2147483647 - 1);
    expectValue("2147483647 * -2147483647", -1);
}

TEST(Formula, undefinedDivisions)
{
    expectResult("1 / 0", AsmFeFormula::resultSyntax);
    expectResult("1 % 0", AsmFeFormula::resultSyntax);
    expectResult("0 / 0", AsmFeFormula::resultSyntax);
    expectResult("1 / (2 - 2)", AsmFeFormula::resultSyntax);
    expectResult("(1 << 31) / -1", AsmFeFormula::resultSyntax);
    expectResult("(1 << 31) % -1", AsmFeFormula::resultSyntax);
    expectValue("(1 << 31) / 1", -2147483647 - 1);
    expectValue("-2147483647 / -1", 2147483647);
}

TEST(Formula, operatorsWithoutOperands)
{
    for (const char* text : {"1 +",  "1 -",     "1 *",     "* 1",    "/ 1",   "1 * / 2", "1 <",   "1 < 2",   "1 <<",
                             "<< 1", "1 <<< 2", "1 <> 2",  "1 >< 2", "1 > 2", "~",       "1 ~ 2", "~ ~ 1",   "1 & & 2",
                             "+",    "+ 1",     "1 (+) 2", "& 1",    "1 |",   "1 ^ ^ 2", "% 3",   "1 % % 2", "1 * + 2"})
        expectResult(text, AsmFeFormula::resultSyntax);
}

TEST(Formula, aMinusAloneIsAnError)
{
    for (const char* text :
         {"-", "--", "---", "1 -", "1 * -", "(-)", "1 + (-)", "1 - -", "( - )", "(2) -", "-)", "2(3) - "})
        expectResult(text, AsmFeFormula::resultSyntax);
    expectResult("-()", AsmFeFormula::resultFailed);
}

TEST(Formula, parentheses)
{
    expectValue("((((7))))", 7);
    expectValue("(1 + 2) * (3 + 4)", 21);
    expectResult("(1", AsmFeFormula::resultMissingClose);
    expectResult("((1)", AsmFeFormula::resultMissingClose);
    expectResult("1)", AsmFeFormula::resultMissingOpen);
    expectResult("(1))", AsmFeFormula::resultMissingOpen);
    // An empty pair of parentheses fails without a message.
    expectResult("()", AsmFeFormula::resultFailed);
    expectResult("(", AsmFeFormula::resultFailed);
    expectResult("1 + ()", AsmFeFormula::resultFailed);
    expectResult("", AsmFeFormula::resultFailed);
    expectResult("  ", AsmFeFormula::resultFailed);
    expectResult("(1)(2)", AsmFeFormula::resultSyntax);
}

TEST(Formula, termsThatHaveNoValue)
{
    expectResult("1 + x", AsmFeFormula::resultFailed);
    expectResult("$ * 2", AsmFeFormula::resultFailed);
    // Terms get their values before the order of the operators is looked at.
    expectResult("x + * 1", AsmFeFormula::resultFailed);
}

TEST(Formula, aFailedOneLeavesNothingBehind)
{
    AsmFeFormula formula;
    const auto seven = [](const QString&, int* value) {
        *value = 7;
        return true;
    };
    unsigned int value = 0;
    EXPECT_EQ(formula.evaluate("(a + b", seven, &value), AsmFeFormula::resultMissingClose);
    EXPECT_EQ(formula.evaluate("a%b", seven, &value), AsmFeFormula::resultFailed);
    EXPECT_EQ(formula.evaluate("a + b", seven, &value), AsmFeFormula::resultOk);
    EXPECT_EQ(value, 14u);
    EXPECT_EQ(formula.terms("a + ns::b * (c-1)"), QStringList({"a", "ns::b", "c", "1"}));
    EXPECT_TRUE(formula.terms("a%b").isEmpty());
}

TEST(Formula, whatIsAnExpression)
{
    for (const char* text :
         {"1+2", "-1", "a*b", "a/b", "1<<2", "1>>2", "~a", "a&b", "a^b", "a|b", "a%b", "a-b", "\"-\""})
        EXPECT_TRUE(AsmFeFormula::isFormula(QString::fromLatin1(text))) << text;
    for (const char* text :
         {"", "1", "(1)", "a<b", "a>b", "a<>b", "< <", "<", ">", "a::b", "\\17", "s0", "\"A\"", "<>"})
        EXPECT_FALSE(AsmFeFormula::isFormula(QString::fromLatin1(text))) << text;
}

TEST(Formula, deepNesting)
{
    const int depth = 100000;
    int value = 0;
    const QString open(depth, '(');
    const QString close(depth, ')');
    EXPECT_EQ(evaluate(open + "7" + close, &value), AsmFeFormula::resultOk);
    EXPECT_EQ(value, 7);
    EXPECT_EQ(evaluate(open + "7" + close.mid(1), &value), AsmFeFormula::resultMissingClose);
    EXPECT_EQ(evaluate(open + "7" + close + ")", &value), AsmFeFormula::resultMissingOpen);
    EXPECT_EQ(evaluate(open + close, &value), AsmFeFormula::resultFailed);
    EXPECT_EQ(evaluate(QString("1 + (").repeated(depth) + "1" + close, &value), AsmFeFormula::resultOk);
    EXPECT_EQ(value, depth + 1);
    EXPECT_EQ(evaluate(QString("2(").repeated(40) + "1" + QString(40, ')'), &value), AsmFeFormula::resultOk);
    EXPECT_EQ(value, 0);
}

TEST(Formula, manyTerms)
{
    const int count = 1000000;
    int value = 0;
    EXPECT_EQ(evaluate(QString("1+").repeated(count - 1) + "1", &value), AsmFeFormula::resultOk);
    EXPECT_EQ(value, count);
    EXPECT_EQ(evaluate("0" + QString(" - -1").repeated(count / 4), &value), AsmFeFormula::resultOk);
    EXPECT_EQ(evaluate(QString("(1)+").repeated(count / 4) + "0", &value), AsmFeFormula::resultOk);
    EXPECT_EQ(value, count / 4);
    EXPECT_EQ(evaluate("1" + QString(count, '-') + "1", &value), AsmFeFormula::resultOk);
    EXPECT_EQ(evaluate(QString(count, '+') + "1", &value), AsmFeFormula::resultSyntax);
}

} // namespace
