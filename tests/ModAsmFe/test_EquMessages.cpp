// Which messages constants get that depend on one another, and in which order: fixed examples, and random programs
// against a second resolver that recurses as the rules are written.

#include "AsmFixture.h"

#include "Equ.h"

#include <gtest/gtest.h>

#include <QMap>

#include <random>

using namespace nsModAsmFe;

namespace {

const QByteArray instruction = " LOAD s0, 1\n";

/// Errors and warnings in their order, each with the line that it stands at, counted from 1.
QStringList shown(const AsmFixture& f)
{
    QStringList result;
    for (const FakeMsgHook::Entry& entry : f.msg.messages()) {
        if (entry.type != ModMsgHookIf::eMsgInfo)
            result.append(entry.key() +
                          (entry.srcFile.isEmpty() ? QString() : ' ' + QString::number(entry.line() + 1)));
    }
    return result;
}

QStringList shownFor(const QByteArray& source)
{
    AsmFixture f;
    EXPECT_FALSE(f.run(source + instruction)) << source.constData();
    return shown(f);
}

TEST(EquMessages, termThatIsALoop)
{
    // The loop is reported again for each constant that leads to it, and is no number for the expression.
    EXPECT_EQ(shownFor("#EQU dd, aa + 1\n#EQU aa, aa\n"),
              QStringList({"errEquClosedLoop 2", "errExprNonNumericTerm 1", "errEquClosedLoop 2"}));
    EXPECT_EQ(shownFor("#EQU aa, aa\n#EQU dd, aa + 1\n"),
              QStringList({"errEquClosedLoop 1", "errEquClosedLoop 1", "errExprNonNumericTerm 2"}));
    EXPECT_EQ(
        shownFor("#EQU dd, aa + 1\n#EQU aa, bb\n#EQU bb, aa\n"),
        QStringList({"errEquClosedLoop 3", "errExprNonNumericTerm 1", "errEquClosedLoop 3", "errEquClosedLoop 2"}));
}

TEST(EquMessages, termFailsBeforeItsUser)
{
    EXPECT_EQ(shownFor("#EQU bb, ~ ff % (--ff)\n#EQU ff, cc + 1\n"),
              QStringList({"errExprNonNumericTerm 2", "errSyntax 1"}));
    EXPECT_EQ(shownFor("#EQU ff, cc + 1\n#EQU bb, ~ ff % (--ff)\n"),
              QStringList({"errExprNonNumericTerm 1", "errSyntax 2"}));
    EXPECT_EQ(shownFor("#EQU bb, 1 / ff\n#EQU ff, gg\n#EQU gg, s0'2BE\n#EQU hh, ff\n"),
              QStringList({"errUnsupportedAttribute 3", "errExprNonNumericTerm 1"}));
}

TEST(EquMessages, nothingIsReadAfterTheFirstFailingTerm)
{
    EXPECT_EQ(shownFor("#EQU foo, bb + foo\n#EQU bb, nowhere\n"),
              QStringList({"errUnsupportedArgument 2", "errExprNonNumericTerm 1", "errUnsupportedArgument 2"}));
    EXPECT_EQ(shownFor("#EQU foo, bb + cc\n#EQU bb, nowhere\n#EQU cc, !\n"),
              QStringList({"errUnsupportedArgument 2", "errExprNonNumericTerm 1", "errUnsupportedArgument 2",
                           "errUnsupportedArgument 3"}));
    // One that has a kind in spite of its failure gives a number: the term after it is a loop.
    EXPECT_EQ(shownFor("#EQU foo, bb + foo\n#EQU bb, nowhere + 1\n"),
              QStringList({"errExprNonNumericTerm 2", "errEquClosedLoop 1"}));
    // Numbers without a value report in their turn, too.
    EXPECT_EQ(shownFor("#EQU foo, 0d1 + bb + 0o1\n#EQU bb, nowhere\n"),
              QStringList({"errExpectArgument", "errUnsupportedArgument 2", "errExprNonNumericTerm 1",
                           "errUnsupportedArgument 2"}));
}

TEST(EquMessages, loopsThroughExpressions)
{
    EXPECT_EQ(shownFor("#EQU p, q * 2\n#EQU q, p + 1\n"), QStringList("errEquClosedLoop 2"));
    EXPECT_EQ(shownFor("#EQU p, q\n#EQU q, p + 1\n"), QStringList("errEquClosedLoop 2"));
    EXPECT_EQ(shownFor("#EQU q, p + 1\n#EQU p, q\n"), QStringList({"errEquClosedLoop 2", "errExprNonNumericTerm 1"}));
}

TEST(EquMessages, aFailureFailsTheRunWhoeverHasAskedForIt)
{
    // The value of the first is worked out with what the second leaves, and the second counts as done after that.
    AsmFixture f;
    EXPECT_FALSE(f.run("#EQU a, b_ + 1\n#EQU b_, nowhere + 1\n" + instruction));
    EXPECT_EQ(shown(f), QStringList("errExprNonNumericTerm 2"));
}

/// What a constant of a random program is.
enum Kind {
    kindNumber,
    kindReg,
    kindRegWithAttr,
    kindNowhere,
    kindEmpty,
    kindAlias,
    kindSum,
    kindQuotient,
    kindBroken
};

struct Constant
{
    Kind kind = kindNumber;
    int value = 0; ///< of a number
    int left = 0;  ///< number of the constant that an alias or an expression names; -1 names nothing
    int right = 0;
};

QByteArray nameOf(int i)
{
    return i < 0 ? QByteArray("nowhere") : QByteArray("e") + char('a' + i / 26) + char('a' + i % 26);
}

QByteArray textOf(const Constant& constant)
{
    switch (constant.kind) {
    case kindNumber:
        return QByteArray::number(constant.value);
    case kindReg:
        return "s1";
    case kindRegWithAttr:
        return "s1'2BE";
    case kindNowhere:
        return "nowhere";
    case kindEmpty:
        return "";
    case kindAlias:
        return nameOf(constant.left);
    case kindSum:
        return nameOf(constant.left) + " + " + nameOf(constant.right);
    case kindQuotient:
        return nameOf(constant.left) + " / " + nameOf(constant.right);
    case kindBroken:
        return "~ " + nameOf(constant.left) + " % (--" + nameOf(constant.right) + ")";
    }
    return "";
}

/// Resolves by recursion, without any memory of failures but the kind that a constant has got.
class NaiveResolver
{
public:
    explicit NaiveResolver(const std::vector<Constant>& constants)
        : m_constants(constants)
        , m_states(constants.size())
    {
    }

    QStringList resolveAll()
    {
        for (size_t i = 0; i < m_constants.size(); ++i) {
            m_path.clear();
            check(int(i));
        }
        return m_shown;
    }

    QMap<QByteArray, int> values() const
    {
        QMap<QByteArray, int> result;
        for (size_t i = 0; i < m_states.size(); ++i) {
            if (m_states[i].type == typeNumeric)
                result.insert(nameOf(int(i)), m_states[i].value);
        }
        return result;
    }

private:
    enum Type { typeUnset, typeNumeric, typeOther };

    struct State
    {
        Type type = typeUnset;
        int value = 0;
    };

    void report(const char* key, int at) { m_shown.append(QString("%1 %2").arg(key).arg(at + 1)); }

    bool check(int i)
    {
        const Constant& constant = m_constants[size_t(i)];
        State& state = m_states[size_t(i)];
        if (state.type != typeUnset)
            return true;
        switch (constant.kind) {
        case kindEmpty:
            state.type = typeOther;
            report("errExpectArgument", i);
            return false;
        case kindAlias:
            if (constant.left >= 0)
                return checkAlias(i);
            report("errUnsupportedArgument", i);
            return false;
        case kindNumber:
            state = {typeNumeric, constant.value};
            return true;
        case kindReg:
            state.type = typeOther;
            return true;
        case kindRegWithAttr:
            state.type = typeOther;
            report("errUnsupportedAttribute", i);
            return false;
        case kindNowhere:
            report("errUnsupportedArgument", i);
            return false;
        default:
            return checkExpression(i);
        }
    }

    /// @return the way goes on to the target, or it is a loop, which is reported
    bool isFree(int from, int target)
    {
        if (!m_path.contains(target))
            return true;
        report("errEquClosedLoop", from);
        return false;
    }

    bool checkAlias(int i)
    {
        const int target = m_constants[size_t(i)].left;
        m_path.append(i);
        const bool success = isFree(i, target) && check(target);
        m_path.removeLast();
        if (success)
            m_states[size_t(i)] = m_states[size_t(target)];
        return success;
    }

    bool checkExpression(int i)
    {
        const Constant& constant = m_constants[size_t(i)];
        m_states[size_t(i)].type = typeNumeric;
        m_path.append(i);
        int values[2] = {};
        const bool hasTerms = term(i, constant.left, &values[0]) && term(i, constant.right, &values[1]);
        m_path.removeLast();
        if (!hasTerms)
            return false;
        if (constant.kind == kindBroken || (constant.kind == kindQuotient && values[1] == 0)) {
            report("errSyntax", i);
            return false;
        }
        m_states[size_t(i)].value = constant.kind == kindSum ? values[0] + values[1] : values[0] / values[1];
        return true;
    }

    bool term(int i, int target, int* value)
    {
        if (target < 0) {
            report("errExprNonNumericTerm", i);
            return false;
        }
        if (!isFree(i, target))
            return false;
        check(target);
        const State& state = m_states[size_t(target)];
        *value = state.value;
        if (state.type != typeNumeric)
            report("errExprNonNumericTerm", i);
        return state.type == typeNumeric;
    }

    const std::vector<Constant>& m_constants;
    std::vector<State> m_states;
    QList<int> m_path;
    QStringList m_shown;
};

/// @param failing how many of ten leaves are no values
std::vector<Constant> randomConstants(std::mt19937* random, int failing)
{
    const auto below = [&](int bound) { return int((*random)() % unsigned(bound)); };
    std::vector<Constant> constants(size_t(2 + below(9)));
    for (Constant& constant : constants) {
        static const Kind leaves[] = {kindReg, kindRegWithAttr, kindNowhere, kindEmpty};
        static const Kind users[] = {kindAlias, kindAlias, kindAlias, kindSum, kindSum, kindQuotient, kindBroken};
        if (below(10) < 3)
            constant.kind = below(10) < failing ? leaves[below(4)] : kindNumber;
        else
            constant.kind = users[below(failing > 0 ? 7 : 5)];
        constant.value = below(4);
        constant.left = below(40) == 0 ? -1 : below(int(constants.size()));
        constant.right = below(40) == 0 ? -1 : below(int(constants.size()));
    }
    return constants;
}

TEST(EquMessages, randomProgramsAsTheRulesSay)
{
    std::mt19937 random(4711);
    int failed = 0;
    AsmFixture f(AsmFixture::partBackend);
    for (int round = 0; round < 4000 && !::testing::Test::HasFailure(); ++round) {
        const std::vector<Constant> constants = randomConstants(&random, round % 3 * 3);
        QByteArray source;
        for (size_t i = 0; i < constants.size(); ++i)
            source += "#EQU " + nameOf(int(i)) + ", " + textOf(constants[i]) + "\n";
        NaiveResolver naive(constants);
        const QStringList expected = naive.resolveAll();
        const bool assembled = f.run(source + instruction);
        QStringList actual = shown(f);
        for (const QString& entry : shown(f)) {
            if (entry.startsWith("warnEquUnused"))
                actual.removeAll(entry);
        }
        EXPECT_EQ(actual, expected) << source.constData();
        EXPECT_EQ(assembled, expected.isEmpty()) << source.constData();
        failed += int(!assembled);
        QMap<QByteArray, int> values;
        for (const Equ* equ = f.asmFe.equList()->first(); equ != nullptr; equ = equ->next) {
            if (equ->arg->type == Arg::numeric)
                values.insert(equ->name.toLatin1(), equ->arg->iValue);
        }
        EXPECT_EQ(values, naive.values()) << source.constData();
    }
    // Neither all of them nor none.
    EXPECT_GT(failed, 1000);
    EXPECT_LT(failed, 3900);
}

TEST(EquListOrder, aReplacedConstantKeepsItsPlace)
{
    AsmFixture f;
    f.run("#EQU first, 1\n#EQU second, 2\n#EQU third, 3\n#EQU first, 4\n#EQU second, 5\n LOAD s0, 1\n",
          ModAsmFe::eEventSave);
    EXPECT_EQ(f.warnings().count("warnEquDuplicate"), 2);
    EXPECT_EQ(f.asmFe.equList()->nameList(), QStringList({"first", "second", "third"}));
    QList<int> values;
    QList<int> lines;
    for (const Equ* equ = f.asmFe.equList()->first(); equ != nullptr; equ = equ->next) {
        values.append(equ->arg->iValue);
        lines.append(equ->srcRef.lineNo);
    }
    EXPECT_EQ(values, QList<int>({4, 5, 3}));
    // The place in the list is that of the first, the position in the source that of the last.
    EXPECT_EQ(lines, QList<int>({3, 4, 2}));
}

} // namespace
