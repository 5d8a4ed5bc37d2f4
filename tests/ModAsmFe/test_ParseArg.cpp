// Numeric literals, prefixes and ranges, compared with the regular expressions that define them.

#include "FakeMsgHook.h"
#include "QtPrinters.h"

#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "AsmFeParseArg.h"

#include <gtest/gtest.h>

#include <QRegExp>

#include <random>

using namespace nsModAsmFe;

namespace {

using Random = std::mt19937;

/// The same by regular expressions.
namespace reference {

bool isNumeric(const QString& text)
{
    static const QList<QRegExp> forms = {
        QRegExp("^[+-]*0[xX]{1}[0-9a-fA-F]+$"), QRegExp("^[+-]*[0-9]+$"),         QRegExp("^[+-]*0[dD]{1}[0-9]+$"),
        QRegExp("^[+-]*\\\\[0-7]+$"),           QRegExp("^[+-]*0[oO]{1}[0-9]+$"), QRegExp("^[+-]*[bB]{1}[0-9]+$"),
    };
    for (const QRegExp& form : forms) {
        if (text.indexOf(form) >= 0)
            return true;
    }
    return false;
}

int toNumeric(QString text, bool* reported)
{
    static const QRegExp hex("^[+-]*0[xX][0-9a-fA-F]*$");
    static const QRegExp dec("^[+-]*[0-9]*$");
    static const QRegExp oct("^[+-]*\\\\[0-9]*$");
    static const QRegExp bin("^[+-]*[bB]{1}[0-1]*$");
    *reported = false;
    if (text.indexOf(hex) >= 0)
        return text.toInt(nullptr, 16);
    if (text.indexOf(dec) >= 0)
        return text.toInt(nullptr, 10);
    if (text.indexOf(oct) >= 0)
        return text.remove(0, 1).toInt(nullptr, 8);
    if (text.indexOf(bin) >= 0)
        return text.remove(0, 1).toInt(nullptr, 2);
    *reported = true;
    return 0;
}

bool splitNs(QString* arg, QString* nameSpace)
{
    QRegExp prefix("^(\\S*)::(.*)");
    if (!prefix.exactMatch(*arg))
        return false;
    *nameSpace = prefix.cap(1);
    *arg = prefix.cap(2);
    return true;
}

bool extractRange(const QString& range, unsigned int* value)
{
    bool reported = false;
    int high = 0;
    int low = 0;
    if (isNumeric(range)) {
        high = low = toNumeric(range, &reported);
    } else {
        QRegExp pair("(\\S+)\\s*:\\s*(\\S+)");
        if (!pair.exactMatch(range) || !isNumeric(pair.cap(1)) || !isNumeric(pair.cap(2)))
            return false;
        high = toNumeric(pair.cap(1), &reported);
        low = toNumeric(pair.cap(2), &reported);
    }
    quint64 mask = 1;
    for (int i = 0; i < high && i < 40; ++i)
        mask = mask * 2 + 1;
    *value = static_cast<unsigned int>(static_cast<int>(static_cast<unsigned int>(mask) & *value) >> (low & 31));
    return true;
}

} // namespace reference

QString randomText(Random* random, const QString& alphabet, int maxLength)
{
    QString text;
    const int length = int((*random)() % unsigned(maxLength + 1));
    for (int i = 0; i < length; ++i)
        text += alphabet.at(int((*random)() % unsigned(alphabet.size())));
    return text;
}

/// A text that is nearly a number.
QString nearlyNumber(Random* random)
{
    static const QStringList signs = {"", "", "", "+", "-", "--", "+-", " "};
    static const QStringList marks = {"", "", "0x", "0X", "0d", "0D", "0o", "0O", "b", "B", "\\", "0b", "0xx", "00x"};
    const QString digits = randomText(random, (*random)() % 2 ? "01" : "0123456789abcdefAF7", 12);
    QString text = signs.at(int((*random)() % unsigned(signs.size()))) +
                   marks.at(int((*random)() % unsigned(marks.size()))) + digits;
    if ((*random)() % 20 == 0)
        text += QString("\n \t:;")[int((*random)() % 5)];
    return text;
}

class ParseArgTest : public ::testing::Test
{
protected:
    ParseArgTest() { msg.attach(&msgHndlr); }

    void compare(const QString& text)
    {
        EXPECT_EQ(AsmFeParseArg::isNumeric(text), reference::isNumeric(text)) << text.toStdString();
        bool reported = false;
        const int value = reference::toNumeric(text, &reported);
        msg.reset();
        EXPECT_EQ(parseArg.toNumeric(text), value) << text.toStdString();
        EXPECT_EQ(msg.keys(ModMsgHookIf::eMsgError), reported ? QStringList("errExpectArgument") : QStringList())
            << text.toStdString();
    }

    void compareSplit(const QString& text)
    {
        QString arg = text;
        QString nameSpace = "before";
        QString refArg = text;
        QString refNameSpace = "before";
        EXPECT_EQ(AsmFeParseArg::splitNsFromArg(&arg, &nameSpace), reference::splitNs(&refArg, &refNameSpace))
            << text.toStdString();
        EXPECT_EQ(arg, refArg) << text.toStdString();
        EXPECT_EQ(nameSpace, refNameSpace) << text.toStdString();
    }

    void compareRange(const QString& range, unsigned int value)
    {
        unsigned int result = value;
        unsigned int refResult = value;
        EXPECT_EQ(parseArg.extractRangeFromNumeric(range, &result), reference::extractRange(range, &refResult))
            << range.toStdString();
        EXPECT_EQ(result, refResult) << range.toStdString() << ' ' << value;
    }

    AsmFeFileHndlr fileHndlr;
    AsmFeMsgHndlr msgHndlr{&fileHndlr};
    AsmFeParseArg parseArg{&msgHndlr};
    FakeMsgHook msg;
};

TEST_F(ParseArgTest, knownValues)
{
    const struct
    {
        const char* text;
        bool numeric;
        int value;
    } rows[] = {
        {"0x10", true, 16},      {"0X10", true, 16},
        {"010", true, 10},       {"\\10", true, 8},
        {"b101", true, 5},       {"B101", true, 5},
        {"0d12", true, 0},       {"0o17", true, 0},
        {"b102", true, 0},       {"-b101", true, 0},
        {"-\\17", true, 0},      {"--5", true, 0},
        {"0xFFFFFFFF", true, 0}, {"0x7FFFFFFF", true, 2147483647},
        {"2147483648", true, 0}, {"-2147483648", true, -2147483647 - 1},
        {"-5", true, -5},        {"+5", true, 5},
        {"", false, 0},          {"-", false, 0},
        {"0x", false, 0},        {"\\8", false, 0},
        {"b", false, 0},         {"\\", false, 0},
        {"0", true, 0},          {"-0x10", true, -16},
        {"1 ", false, 0},        {" 1", false, 0},
        {"1\n", false, 0},       {"x10", false, 0},
        {"0b11", false, 0},      {"1.5", false, 0},
        {"\\", false, 0},
    };
    for (const auto& row : rows) {
        const QString text = QString::fromLatin1(row.text);
        EXPECT_EQ(AsmFeParseArg::isNumeric(text), row.numeric) << row.text;
        EXPECT_EQ(parseArg.toNumeric(text), row.value) << row.text;
        compare(text);
    }
}

TEST_F(ParseArgTest, formsWithoutConversionAreReported)
{
    for (const char* text : {"0d12", "0o17", "b102", "x", "\"A\"", "1 2"}) {
        msg.reset();
        EXPECT_EQ(parseArg.toNumeric(QString::fromLatin1(text)), 0);
        ASSERT_EQ(msg.messages().size(), 1) << text;
        EXPECT_EQ(msg.messages().first().key(), QString("errExpectArgument"));
        EXPECT_TRUE(msg.messages().first().srcFile.isEmpty());
    }
    // What does not fit is not.
    msg.reset();
    for (const char* text : {"", "99999999999", "--5", "-b101", "0x", "\\99", "b"})
        EXPECT_EQ(parseArg.toNumeric(QString::fromLatin1(text)), 0) << text;
    EXPECT_TRUE(msg.messages().isEmpty());
}

TEST_F(ParseArgTest, withoutMessageHandler)
{
    EXPECT_EQ(AsmFeParseArg(nullptr).toNumeric("0d1"), 0);
}

TEST_F(ParseArgTest, randomTexts)
{
    Random random(4711);
    const QString alphabet = QString::fromUtf8("+-00xXdDoObB\\0123456789abcdefABCDEF :\n\t\"'٣é") + QChar(0);
    for (int i = 0; i < 60000 && !HasFailure(); ++i)
        compare(i % 2 == 0 ? randomText(&random, alphabet, 8) : nearlyNumber(&random));
}

TEST_F(ParseArgTest, prefixes)
{
    for (const char* text : {"a::b", "::b", "a::b::c", "::", ":::", "::::", "a:: b::c", "a b::c", " ::a", "a:b", "",
                             ":", "a::", "a::b c", "a\n::b", "a:: ", "a:::b"})
        compareSplit(QString::fromLatin1(text));
    QString arg = "a::b::c";
    QString nameSpace;
    EXPECT_TRUE(AsmFeParseArg::splitNsFromArg(&arg, &nameSpace));
    EXPECT_EQ(nameSpace, QString("a::b"));
    EXPECT_EQ(arg, QString("c"));
    arg = "::name";
    EXPECT_TRUE(AsmFeParseArg::splitNsFromArg(&arg, &nameSpace));
    EXPECT_TRUE(nameSpace.isEmpty());
    EXPECT_EQ(arg, QString("name"));
    Random random(99);
    for (int i = 0; i < 30000 && !HasFailure(); ++i)
        compareSplit(randomText(&random, QString(":::::ab \n\t"), 9));
}

TEST_F(ParseArgTest, ranges)
{
    const struct
    {
        unsigned int value;
        const char* range;
        unsigned int result;
    } rows[] = {
        {0xff, "3:0", 15},
        {0xf0, "7:4", 15},
        {0x80, "7", 1},
        {0x1, "0", 1},
        {0x12345678, "31:0", 0x12345678},
        // The shift is arithmetic, and counts modulo 32.
        {0x80000000u, "31:31", 0xffffffffu},
        {0x5a, "7 : 4", 5},
        {0x5a, "0x7:\\4", 5},
        {0x5a, "b111:b100", 5},
        // Nothing forbids the wrong way round, nor what is no bit.
        {0xff, "0:7", 0},
        {0xff, "-1:0", 1},
        {0xf0, "2147483647:4", 15},
        {0xff, "7:32", 0xff},
        {0xff, "99999999999", 1},
    };
    for (const auto& row : rows) {
        unsigned int value = row.value;
        EXPECT_TRUE(parseArg.extractRangeFromNumeric(QString::fromLatin1(row.range), &value)) << row.range;
        EXPECT_EQ(value, row.result) << row.range;
        compareRange(QString::fromLatin1(row.range), row.value);
    }
    for (const char* range : {"", ":", "7:", ":0", "a:b", "7:4:0", " 7:4", "7:4 ", "x", "7 4", "7::4"}) {
        unsigned int value = 5;
        EXPECT_FALSE(parseArg.extractRangeFromNumeric(QString::fromLatin1(range), &value)) << range;
        EXPECT_EQ(value, 5u);
        compareRange(QString::fromLatin1(range), 5);
    }
}

TEST_F(ParseArgTest, randomRanges)
{
    Random random(31);
    for (int i = 0; i < 30000 && !HasFailure(); ++i) {
        const QString range = i % 3 == 0 ? randomText(&random, "0123456789:: \tx", 7)
                                         : nearlyNumber(&random).left(4) + QString("::  ").mid(int(random() % 4)) +
                                               nearlyNumber(&random).left(3);
        compareRange(range, random());
    }
}

} // namespace
