// The evaluator against a second, naive one, on random expressions.

#include "AsmFeFormula.h"
#include "AsmFeParseArg.h"

#include <gtest/gtest.h>

#include <QString>

#include <random>
#include <vector>

using namespace nsModAsmFe;

namespace {

using Random = std::mt19937;

/// What an evaluation answers.
enum Verdict { verdictOk, verdictSilent, verdictSyntax, verdictOpen, verdictClose };

struct Token
{
    char kind; ///< 't' a term, else the operator itself
    qint64 value;
};

using Tokens = std::vector<Token>;

/// Thrown to leave an evaluation.
struct Failure
{
    Verdict verdict;
};

/// Recursive, on plain vectors, with 64-bit numbers cut back to 32 bits.
class NaiveFormula
{
public:
    Verdict evaluate(const QString& text, int* value)
    {
        try {
            split(text);
            joinMinus();
            joinPlus();
            takeSigns();
            multiplyImplicitly();
            m_pos = 1;
            m_level = 1;
            const qint64 result = segment();
            if (m_pos < m_tokens.size()) {
                m_level = 0;
                rest();
            }
            *value = int(result);
            return verdictOk;
        } catch (const Failure& failure) {
            return failure.verdict;
        }
    }

private:
    static qint64 cut(qint64 value) { return qint64(int(quint32(value))); }

    void split(const QString& text)
    {
        static const QString operators = QStringLiteral("~*/%+-<>&^|()");
        m_tokens = {{'(', 0}};
        QString word;
        const auto endWord = [&] {
            if (word.isEmpty())
                return;
            if (!AsmFeParseArg::isNumeric(word))
                m_badTerm = true;
            m_tokens.push_back({'t', AsmFeParseArg(nullptr).toNumeric(word)});
            word.clear();
        };
        for (const QChar c : text) {
            if (c == '%' && !word.isEmpty())
                throw Failure{verdictSilent};
            if (c.isSpace() || operators.contains(c))
                endWord();
            if (operators.contains(c))
                m_tokens.push_back({c.toLatin1(), 0});
            else if (!c.isSpace())
                word += c;
        }
        endWord();
        m_tokens.push_back({')', 0});
        if (m_badTerm)
            throw Failure{verdictSilent};
    }

    void joinMinus()
    {
        for (size_t i = 0; i + 1 < m_tokens.size(); ++i) {
            if (m_tokens[i].kind != '-')
                continue;
            if (m_tokens[i + 1].kind != '-')
                return;
            m_tokens[i].kind = '+';
            m_tokens.erase(m_tokens.begin() + long(i) + 1);
        }
    }

    void joinPlus()
    {
        Tokens joined;
        for (const Token& token : m_tokens) {
            if (token.kind != '+' || joined.empty() || joined.back().kind != '+')
                joined.push_back(token);
        }
        m_tokens = joined;
    }

    void takeSigns()
    {
        Tokens signedTokens;
        for (size_t i = 0; i < m_tokens.size(); ++i) {
            const bool sign = m_tokens[i].kind == '-' && !signedTokens.empty() && signedTokens.back().kind != 't';
            if (!sign) {
                signedTokens.push_back(m_tokens[i]);
                continue;
            }
            if (m_tokens[i + 1].kind == ')')
                throw Failure{verdictSyntax};
            m_tokens[i + 1].value = cut(-m_tokens[i + 1].value);
        }
        m_tokens = signedTokens;
    }

    void multiplyImplicitly()
    {
        Tokens product;
        for (const Token& token : m_tokens) {
            const char before = product.empty() ? 0 : product.back().kind;
            if (before == 't' && token.kind == 't')
                throw Failure{verdictSyntax};
            if ((before == 't' && token.kind == '(') || (before == ')' && token.kind == 't'))
                product.push_back({'*', 0});
            product.push_back(token);
        }
        m_tokens = product;
    }

    /// From the position after an opening parenthesis to the one after its closing one.
    qint64 segment()
    {
        Tokens part;
        for (;;) {
            if (m_pos >= m_tokens.size())
                throw Failure{verdictClose};
            const Token token = m_tokens[m_pos++];
            if (token.kind == '(') {
                ++m_level;
                part.push_back({'t', segment()});
            } else if (token.kind == ')') {
                --m_level;
                return fold(part);
            } else {
                part.push_back(token);
            }
        }
    }

    /// What follows a parenthesis that closed the whole text.
    void rest()
    {
        while (m_pos < m_tokens.size()) {
            const Token token = m_tokens[m_pos++];
            if (token.kind == ')')
                throw Failure{verdictOpen};
            if (token.kind == '(')
                segment();
        }
    }

    static qint64 fold(Tokens part)
    {
        if (part.empty())
            throw Failure{verdictSilent};
        complement(&part);
        for (const char* family : {"*/", "%", "+-", "<", ">", "&", "|", "^"})
            pass(&part, family);
        if (part.size() != 1 || part[0].kind != 't')
            throw Failure{verdictSyntax};
        return part[0].value;
    }

    static void complement(Tokens* part)
    {
        for (size_t i = 0; i < part->size(); ++i) {
            if ((*part)[i].kind != '~')
                continue;
            if (i + 1 >= part->size() || (*part)[i + 1].kind != 't')
                throw Failure{verdictSyntax};
            (*part)[i] = {'t', cut(~(*part)[i + 1].value)};
            part->erase(part->begin() + long(i) + 1);
        }
    }

    static void pass(Tokens* part, const QString& family)
    {
        Tokens result;
        for (size_t i = 0; i < part->size(); ++i) {
            const char kind = (*part)[i].kind;
            if (kind == 't' || !family.contains(QLatin1Char(kind))) {
                result.push_back((*part)[i]);
                continue;
            }
            if (kind == '<' || kind == '>') {
                ++i;
                if (i >= part->size() || (*part)[i].kind != kind)
                    throw Failure{verdictSyntax};
            }
            if (result.empty() || result.back().kind != 't' || i + 1 >= part->size() || (*part)[i + 1].kind != 't')
                throw Failure{verdictSyntax};
            result.back().value = operate(kind, result.back().value, (*part)[++i].value);
        }
        *part = result;
    }

    static qint64 operate(char kind, qint64 a, qint64 b)
    {
        if ((kind == '/' || kind == '%') && (b == 0 || (a == -2147483648LL && b == -1)))
            throw Failure{verdictSyntax};
        switch (kind) {
        case '*':
            return cut(a * b);
        case '/':
            return a / b;
        case '%':
            return a % b;
        case '+':
            return cut(a + b);
        case '-':
            return cut(a - b);
        case '<':
            return cut(qint64(quint64(a) << (b & 31)));
        case '>':
            return a >> (b & 31);
        case '&':
            return a & b;
        case '|':
            return a | b;
        default:
            return a ^ b;
        }
    }

    Tokens m_tokens;
    size_t m_pos = 0;
    int m_level = 0;
    bool m_badTerm = false;
};

QString pick(Random* random, const QStringList& from)
{
    return from.at(int((*random)() % unsigned(from.size())));
}

QString number(Random* random)
{
    static const QStringList numbers = {"0",     "1",          "2",          "3",         "7",
                                        "31",    "255",        "0x10",       "\\17",      "b101",
                                        "65536", "2147483647", "0x7FFFFFFF", "123456789", "99999999999"};
    return pick(random, numbers);
}

/// An expression that is well formed, for the most part.
QString expression(Random* random, int depth)
{
    static const QStringList operators = {" + ", " - ", " * ", "/", " % ", " << ", " >> ",
                                          "&",   "|",   "^",   "-", "--",  "- -"};
    QString text;
    const int terms = 1 + int((*random)() % 4);
    for (int i = 0; i < terms; ++i) {
        if (i > 0)
            text += pick(random, operators);
        if ((*random)() % 6 == 0)
            text += pick(random, {"~", "-", "+"});
        if (depth > 0 && (*random)() % 3 == 0)
            text += '(' + expression(random, depth - 1) + ')';
        else
            text += number(random);
    }
    return text;
}

/// Tokens without any sense.
QString soup(Random* random)
{
    static const QStringList tokens = {"+", "-", "*", "/", " %", "%", "<<", ">>", "<", ">", "&", "|", "^",
                                       "~", "(", ")", " ", "1",  "2", "15", "x",  "-", "(", ")", "3", " 4"};
    QString text;
    const int count = int((*random)() % 9);
    for (int i = 0; i < count; ++i)
        text += pick(random, tokens);
    return text;
}

/// Parentheses close more than they open somewhere: what the rest then means is not worth a rule.
bool closesTooEarly(const QString& text)
{
    int level = 0;
    for (int i = 0; i < text.size(); ++i) {
        level += text.at(i) == '(' ? 1 : text.at(i) == ')' ? -1 : 0;
        if (level < 0)
            return true;
    }
    return false;
}

void compare(const QString& text)
{
    static const Verdict verdicts[] = {verdictOk, verdictSilent, verdictSyntax, verdictOpen, verdictClose};
    int expected = 0;
    const Verdict verdict = NaiveFormula().evaluate(text, &expected);
    unsigned int value = 0;
    const auto result = AsmFeFormula().evaluate(
        text,
        [](const QString& term, int* v) {
            *v = AsmFeParseArg(nullptr).toNumeric(term);
            return AsmFeParseArg::isNumeric(term);
        },
        &value);
    EXPECT_EQ(verdicts[result], verdict) << text.toStdString();
    if (verdict == verdictOk) {
        EXPECT_EQ(int(value), expected) << text.toStdString();
    }
}

TEST(FormulaRandom, wellFormed)
{
    Random random(2024);
    for (int i = 0; i < 40000 && !::testing::Test::HasFailure(); ++i)
        compare(expression(&random, 4));
}

TEST(FormulaRandom, soup)
{
    Random random(77);
    for (int i = 0; i < 200000 && !::testing::Test::HasFailure(); ++i) {
        const QString text = soup(&random);
        if (!closesTooEarly(text))
            compare(text);
    }
}

TEST(FormulaRandom, wellFormedWithDamage)
{
    Random random(5);
    for (int i = 0; i < 40000 && !::testing::Test::HasFailure(); ++i) {
        QString text = expression(&random, 3);
        const int pos = int(random() % unsigned(text.size()));
        if (random() % 2 == 0)
            text.remove(pos, 1);
        else
            text.insert(pos, soup(&random).left(2));
        if (!closesTooEarly(text))
            compare(text);
    }
}

} // namespace
