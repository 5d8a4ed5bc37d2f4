// Renames in random programs: namespaces, conditions, expressions, attributes, ranges, strings, odd blanks.

#include "SymbolsFixture.h"

#include <gtest/gtest.h>

using namespace nsModAsmFe;

namespace {

class RandomProgram
{
public:
    explicit RandomProgram(quint32 seed)
        : m_state(seed)
    {
    }

    int random(int bound)
    {
        m_state = m_state * 1664525u + 1013904223u;
        return int((m_state >> 8) % quint32(bound));
    }
    QString blanks() { return random(4) == 0 ? QString(random(3) + 1, random(2) ? ' ' : '\t') : QString(); }
    QString oneOf(const QStringList& list) { return list.at(random(list.size())); }
    /// Names are alike, so that parts of one are found in others.
    QString name() { return oneOf({"a", "A", "aa", "a_a", "ba_", "x", "y1", "ab", "limit", "limit2", "s", "z_"}); }
    QString constant() { return oneOf({"co", "CO", "cc", "c_c", "d_c", "cx", "l", "limits", "k", "K", "kk", "z_c"}); }
    QString prefix(const QString& nameSpace)
    {
        // Each namespace has all names, so that every prefix leads to something.
        const QString space = oneOf({"", "n", "n::m", "s_"});
        if (random(2) == 0 || space == nameSpace)
            return space == nameSpace && random(2) == 0 ? QString() : space + "::";
        return QString();
    }
    QString number() { return oneOf({"1", "0x2", "b101", "12"}); }
    QString term(const QString& nameSpace) { return random(3) == 0 ? number() : prefix(nameSpace) + constant(); }
    QString expression(const QString& nameSpace, int depth = 0)
    {
        QString text = term(nameSpace);
        for (int i = random(3); i > 0; --i)
            text += blanks() + oneOf({"+", "&", "|", "^"}) + blanks() + term(nameSpace);
        return depth < 2 && random(4) == 0
                   ? "(" + blanks() + text + blanks() + ")" + oneOf({"+", "|"}) + expression(nameSpace, depth + 1)
                   : text;
    }
    QString comment() { return random(3) == 0 ? blanks() + "; " + name() + " \"" + constant() : QString(); }
    void addSpace(const QString& nameSpace, QStringList* lines)
    {
        const QStringList constants = {"co", "CO", "cc", "c_c", "d_c", "cx", "l", "limits", "k", "K", "kk", "z_c"};
        for (const QString& constant : constants)
            lines->append(blanks() + oneOf({"#EQU ", "#equ\t"}) + constant + blanks() + "," + blanks() +
                          QString::number(random(6)) + comment());
        for (const char* label : {"a", "A", "aa", "a_a", "ba_", "x", "y1", "ab", "limit", "limit2", "s", "z_"}) {
            QString line = blanks() + label + ":";
            if (random(5) == 0) {
                lines->append(line + comment());
                line = " ";
            }
            lines->append(line + blanks() + " " + statement(nameSpace) + comment());
        }
        if (random(2) == 0) {
            lines->append("#IFDEF nothing");
            lines->append("LOAD s0, " + constant() + " + " + name());
            lines->append("#ENDIF");
        }
    }
    QString statement(const QString& nameSpace)
    {
        switch (random(7)) {
        case 0:
            return oneOf({"JUMP ", "call  "}) + prefix(nameSpace) + name();
        case 1:
            return oneOf({"JUMP NZ,", "CALL C , ", "jump z,"}) + prefix(nameSpace) + name();
        case 2:
            return "LOAD s1," + blanks() + expression(nameSpace);
        case 3:
            return "ADD s2, " + prefix(nameSpace) + constant() + blanks() + oneOf({"[1:0]", "[7:1]", ""});
        case 4:
            return "LOAD s3, \"" + oneOf({"a", "c", ";"}) + "\"";
        case 5:
            return "WRPRT s4, " + oneOf({"(s5)", prefix(nameSpace) + constant()});
        default:
            return "LOAD s6 , " + prefix(nameSpace) + constant();
        }
    }
    QString text()
    {
        QStringList lines;
        addSpace("", &lines);
        lines << "#NAMESPACE n";
        addSpace("n", &lines);
        lines << "#NAMESPACE m";
        addSpace("n::m", &lines);
        lines << "#ENDNAMESPACE"
              << "#ENDNAMESPACE"
              << "#NAMESPACE s_";
        addSpace("s_", &lines);
        lines << "#ENDNAMESPACE";
        return lines.join('\n');
    }

private:
    quint32 m_state;
};

TEST(SymbolFuzz, aRenameChangesNoWordOfARandomProgram)
{
    int programs = 0;
    int renames = 0;
    for (quint32 seed = 1; seed <= 40; ++seed) {
        RandomProgram random(seed);
        Sources sources;
        sources.add("a.psm", random.text());
        if (!sources.assemble())
            continue;
        ++programs;
        const QVector<int> before = sources.image();
        const QString original = sources.all().first().text;
        const SymbolTable table = sources.table();
        for (int symbol = 0; symbol < table.symbols().size(); symbol += 1 + random.random(4)) {
            const SymbolRename plan(table, sources.words());
            const QString name = QStringLiteral("renamed_%1").arg(symbol);
            if (!plan.refusal(symbol, name).isEmpty())
                continue;
            QStringList lines = original.split('\n');
            const QVector<sSymbolPlace> places = plan.places(symbol);
            for (int i = places.size() - 1; i >= 0; --i)
                lines[places.at(i).line].replace(places.at(i).column, places.at(i).length, name);
            sources.all()[0].text = lines.join('\n');
            ASSERT_TRUE(sources.assemble()) << seed << ": " << qPrintable(table.symbol(symbol).fullName());
            ASSERT_EQ(sources.image(), before) << seed << ": " << qPrintable(table.symbol(symbol).fullName());
            ++renames;
        }
    }
    EXPECT_GT(programs, 20);
    EXPECT_GT(renames, 500);
}

} // namespace
