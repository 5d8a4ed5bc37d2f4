// Constants, namespaces and conditions in numbers that no person writes.

#include "ChildProcess.h"
#include "HostileRun.h"

#include "Equ.h"

#include <gtest/gtest.h>

namespace {

const QByteArray instruction = " LOAD s0, 1\n";

int scaled(int count)
{
    return underSanitizer ? count / 4 : count;
}

/// "#EQU e<i>, <value of i>" for all numbers below the count.
template <class Value>
QByteArray constants(int count, Value value)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += "#EQU e" + QByteArray::number(i) + ", " + value(i) + "\n";
    return text;
}

QByteArray name(int i)
{
    return "e" + QByteArray::number(i);
}

/// Assembles and checks the value of one constant.
QString valueOf(const QByteArray& source, const QByteArray& constant, int expected)
{
    AsmFixture f;
    if (!f.run(source))
        return "not assembled: " + f.msg.errors().join(" / ").left(300);
    const nsModAsmFe::Equ* equ = f.asmFe.equList()->find("", QString::fromLatin1(constant));
    if (equ == nullptr || equ->arg->iValue != expected)
        return "wrong value: " + QString::number(equ != nullptr ? equ->arg->iValue : -1);
    return brokenRule(f);
}

/// Assembles what must be refused with at least this error; the number of messages stays near that of the constants.
QString errorOf(const QByteArray& source, const QString& key, int maxMessages)
{
    AsmFixture f;
    if (f.run(source))
        return "was not refused";
    if (!f.errors().contains(key))
        return key + " is missing: " + f.msg.errors().join(" / ").left(300);
    if (f.errors().size() > maxMessages)
        return QString("%1 messages").arg(f.errors().size());
    return brokenRule(f);
}

TEST(HostileConstants, aliasChain)
{
    const int count = scaled(100000);
    expectGoodEnd(
        [=] {
            return valueOf(constants(count, [](int i) { return i == 0 ? QByteArray("7") : name(i - 1); }) + instruction,
                           name(count - 1), 7);
        },
        20, 500);
    expectGoodEnd(
        [=] {
            return valueOf(constants(count, [=](int i) { return i == count - 1 ? QByteArray("7") : name(i + 1); }) +
                               instruction,
                           "e0", 7);
        },
        20, 500);
}

TEST(HostileConstants, chainOfExpressions)
{
    const int count = scaled(100000);
    expectGoodEnd(
        [=] {
            return valueOf(constants(count, [](int i) { return i == 0 ? QByteArray("0") : name(i - 1) + " + 1"; }) +
                               instruction,
                           name(count - 1), count - 1);
        },
        20, 500);
    expectGoodEnd(
        [=] {
            return valueOf(
                constants(count,
                          [=](int i) { return i == count - 1 ? QByteArray("0") : "(" + name(i + 1) + " + 1)"; }) +
                    instruction,
                "e0", count - 1);
        },
        20, 500);
}

TEST(HostileConstants, brokenChains)
{
    const int count = scaled(100000);
    for (const bool forwards : {false, true}) {
        const auto next = [=](int i) { return name(forwards ? i + 1 : i - 1); };
        const auto isEnd = [=](int i) { return i == (forwards ? count - 1 : 0); };
        expectGoodEnd(
            [=] {
                return errorOf(constants(count, [=](int i) { return isEnd(i) ? QByteArray("nowhere") : next(i); }) +
                                   instruction,
                               "errUnsupportedArgument", count * 2);
            },
            30, 900);
        expectGoodEnd(
            [=] {
                return errorOf(
                    constants(count, [=](int i) { return isEnd(i) ? QByteArray("nowhere") : next(i) + " + 1"; }) +
                        instruction,
                    "errExprNonNumericTerm", count * 3);
            },
            30, 900);
        // Aliases and expressions by turns.
        expectGoodEnd(
            [=] {
                return errorOf(constants(count,
                                         [=](int i) {
                                             return isEnd(i) ? QByteArray("nowhere")
                                                             : next(i) + (i % 2 == 0 ? " + 1" : "");
                                         }) +
                                   instruction,
                               "errUnsupportedArgument", count * 4);
            },
            30, 900);
    }
}

TEST(HostileConstants, closedLoops)
{
    const int count = scaled(50000);
    for (const char* tail : {"", " + 1"}) {
        for (const int step : {1, count - 1}) {
            expectGoodEnd(
                [=] {
                    return errorOf(constants(count, [=](int i) { return name((i + step) % count) + tail; }) +
                                       instruction,
                                   "errEquClosedLoop", count * 3);
                },
                30, 900);
        }
    }
    // Many small ones, and long ways into a loop.
    expectGoodEnd(
        [=] {
            return errorOf(constants(count, [](int i) { return name(i ^ 1); }) + instruction, "errEquClosedLoop",
                           count * 3);
        },
        30, 900);
    expectGoodEnd(
        [=] {
            return errorOf(constants(count, [=](int i) { return name(i == count - 1 ? i : i + 1); }) + instruction,
                           "errEquClosedLoop", count * 3);
        },
        30, 900);
}

TEST(HostileConstants, mutualRecursionThroughExpressions)
{
    AsmFixture f;
    EXPECT_FALSE(f.run("#EQU p, q * 2\n#EQU q, p + 1\n" + instruction));
    EXPECT_TRUE(f.errors().contains("errEquClosedLoop"));
    EXPECT_FALSE(f.run("#EQU p, (p)\n#EQU q, q + q\n#EQU r, ::r\n" + instruction));
    EXPECT_EQ(f.errors().count("errEquClosedLoop"), 3);
    // Each of many names all others.
    expectGoodEnd(
        [] {
            const int count = 300;
            QByteArray all = "0";
            for (int i = 0; i < count; ++i)
                all += " + " + name(i);
            return errorOf(constants(count, [&](int) { return all; }) + instruction, "errEquClosedLoop", count * count);
        },
        20, 300);
}

TEST(HostileConstants, fanOut)
{
    // Values that are used twice each would take for ever if they were worked out each time.
    expectGoodEnd(
        [] {
            const int count = 2000;
            return valueOf(
                constants(count,
                          [=](int i) { return i == count - 1 ? QByteArray("1") : name(i + 1) + " + " + name(i + 1); }) +
                    instruction,
                "e0", 0);
        },
        10, 100);
    expectGoodEnd(
        [] {
            const int count = 2000;
            return errorOf(constants(count,
                                     [=](int i) {
                                         return i == count - 1 ? QByteArray("nowhere")
                                                               : name(i + 1) + " + " + name(i + 1);
                                     }) +
                               instruction,
                           "errUnsupportedArgument", count * 4);
        },
        10, 100);
    // One expression over very many constants.
    expectGoodEnd(
        [] {
            const int count = scaled(100000);
            QByteArray sum = "0";
            for (int i = 0; i < count; ++i)
                sum += "+" + name(i);
            return valueOf("#EQU all, " + sum + "\n" + constants(count, [](int) { return QByteArray("1"); }) +
                               instruction,
                           "all", count);
        },
        20, 400);
}

TEST(HostileConstants, oneNameVeryOften)
{
    expectGoodEnd(
        [] {
            return valueOf(QByteArray("#EQU x, 1\n").repeated(scaled(100000)) + "#EQU x, 5\n" + instruction, "x", 5);
        },
        20, 500);
}

TEST(HostileConditions, veryMany)
{
    const int count = scaled(100000);
    expectGoodEnd([=] { return refusedRun({QByteArray("#IFDEF x\n NONSENSE\n").repeated(count) + "#ENDIF\n"}); }, 10,
                  200);
    expectGoodEnd(
        [=] {
            return hostileRun(
                {QByteArray("#IFDEF x\n NONSENSE\n#ELSEIF y\n#ELSE\n#ENDIF\n").repeated(count) + instruction});
        },
        10, 200);
    expectGoodEnd([=] { return refusedRun({QByteArray("#IFDEF x\n").repeated(count)}); }, 10, 200);
    expectGoodEnd([=] { return refusedRun({"#IFDEF " + QByteArray("a|").repeated(count) + "\n"}); }, 10, 200);
    expectGoodEnd(
        [=] {
            QByteArray text;
            for (int i = 0; i < count; ++i)
                text += "#DEFINE d" + QByteArray::number(i) + "\n#IFDEF D" + QByteArray::number(i) + "\n#ENDIF\n";
            return hostileRun({text + instruction});
        },
        20, 300);
}

/// Namespaces within one another, each with a constant, a label and an instruction.
QByteArray nested(int depth)
{
    QByteArray text;
    for (int i = 0; i < depth; ++i)
        text += "#NAMESPACE n" + QByteArray::number(i) + "\n#EQU e, 1\nl: LOAD s0, e\n";
    return text + "#ENDNAMESPACE\n#ENDNAMESPACE\n";
}

TEST(HostileNameSpaces, nestedDeeply)
{
    expectGoodEnd(
        [] {
            AsmFixture f;
            f.be.pageSize = 4096;
            if (!f.run(nested(1000)))
                return "not assembled: " + f.msg.errors().join(" / ").left(300);
            return f.asmFe.opcodeList()->count() == 1000 ? brokenRule(f) : QString("instructions are missing");
        },
        20, 200);
}

TEST(HostileNameSpaces, nestedTooDeeply)
{
    expectGoodEnd(
        [] {
            AsmFixture f;
            if (f.run(nested(10000)))
                return QString("was not refused");
            const QString text = "Namespace exceeds maximum of 32768 characters.";
            return f.msg.errors().value(0) == text ? brokenRule(f) : "unexpected: " + f.msg.errors().value(0);
        },
        20, 700);
    expectGoodEnd([] { return refusedRun({"#NAMESPACE " + QByteArray(40000, 'a') + "\n" + instruction}); }, 10, 50);
}

TEST(HostileNameSpaces, veryMany)
{
    expectGoodEnd(
        [] {
            QByteArray text;
            for (int i = 0; i < 900; ++i) {
                const QByteArray number = QByteArray::number(i);
                text += "#NAMESPACE n" + number + "\nl: JUMP ::n" + number + "::l\n#EQU e, 1\n#ENDNAMESPACE\n";
            }
            return hostileRun({text});
        },
        10, 100);
}

TEST(HostileLabels, veryMany)
{
    expectGoodEnd(
        [] {
            const int count = scaled(100000);
            QByteArray text;
            for (int i = 0; i < count; ++i)
                text += "l" + QByteArray::number(i) + ":\n";
            return hostileRun({text + " JUMP l0\n JUMP l" + QByteArray::number(count - 1) + "\n"});
        },
        20, 400);
}

TEST(HostileParameters, veryMany)
{
    expectGoodEnd(
        [] {
            QByteArray text;
            for (int i = 0; i < scaled(50000); ++i) {
                const QByteArray dev = "#SET IODEV::d" + QByteArray::number(i) + "::";
                text += dev + "EN, TRUE\n" + dev + "SIZE, 4\n" + dev + "VALUE, append: 1, 2\n";
            }
            return hostileRun({text + instruction});
        },
        30, 600);
    expectGoodEnd(
        [] {
            const QByteArray value = "#SET IODEV::d::VALUE, append: 1\n";
            return hostileRun({"#SET IODEV::d::EN, TRUE\n#SET IODEV::d::SIZE, 100000\n" +
                               value.repeated(scaled(100000)) + instruction});
        },
        20, 400);
    expectGoodEnd([] { return hostileRun({QByteArray("#ORG ADDR, 0\n").repeated(scaled(100000)) + instruction}); }, 20,
                  300);
    expectGoodEnd(
        [] { return hostileRun({QByteArray("#ORG MEMRANGE, PAGE0\n").repeated(scaled(100000)) + instruction}); }, 20,
        300);
}

} // namespace
