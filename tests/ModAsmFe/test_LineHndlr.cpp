// Cutting a line into its tags.

#include "QtPrinters.h"

#include "AsmFeLineHndlr.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <random>

using namespace nsModAsmFe;

namespace {

using Tags = QStringList;

Tags tagsOf(const QString& line)
{
    AsmFeLineHndlr hndlr;
    EXPECT_TRUE(hndlr.splitLine(line));
    EXPECT_EQ(hndlr.line(), line);
    Tags tags;
    for (int i = 0; i < AsmFeLineHndlr::eTagCount; ++i) {
        const auto tag = AsmFeLineHndlr::eTag_t(i);
        tags.append(hndlr.tag(tag));
        EXPECT_EQ(hndlr.isEmpty(tag), tags.last().isEmpty());
        EXPECT_EQ(hndlr.tagView(tag).toString(), tags.last());
    }
    EXPECT_EQ(hndlr.mergeLine(), tags.join(""));
    return tags;
}

/// The same, character by character.
class NaiveSplitter
{
public:
    explicit NaiveSplitter(const QString& line)
        : m_line(line)
    {
    }

    Tags tags()
    {
        Tags tags;
        tags << spacer() << label() << spacer() << quoted(",; ") << spacer() << quoted(",; ") << spacer() << one(',')
             << spacer();
        QString arg1 = quoted(";");
        while (!arg1.isEmpty() && arg1.at(arg1.size() - 1).isSpace())
            arg1.chop(1);
        tags << arg1 << spacer() << (peek() == ';' ? m_line.mid(m_pos) : QString(""));
        return tags;
    }

private:
    QChar peek() const { return m_pos < m_line.size() ? m_line.at(m_pos) : QChar(0xffff); }

    QString spacer()
    {
        QString text("");
        while (m_pos < m_line.size() && peek().isSpace())
            text += m_line.at(m_pos++);
        return text;
    }

    QString label()
    {
        QString text("");
        for (int i = m_pos; i < m_line.size(); ++i) {
            const QChar c = m_line.at(i);
            if (c == ',' || c == ';' || c == '"' || c.isSpace())
                return QString("");
            text += c;
            if (c == ':') {
                m_pos = i + 1;
                return text;
            }
        }
        return QString("");
    }

    /// @param ends characters that end the piece; a blank stands for all white space
    QString quoted(const QString& ends)
    {
        QString text("");
        bool inQuotes = false;
        bool escaped = false;
        for (; m_pos < m_line.size(); ++m_pos) {
            const QChar c = m_line.at(m_pos);
            if (escaped) {
                escaped = false;
            } else if (c == '\\') {
                escaped = true;
            } else if (c == '"') {
                inQuotes = !inQuotes;
            } else if (!inQuotes && (ends.contains(c) || (c.isSpace() && ends.contains(' ')))) {
                break;
            }
            text += c;
        }
        return text;
    }

    QString one(QChar c)
    {
        if (peek() != c)
            return QString("");
        ++m_pos;
        return QString(c);
    }

    QString m_line;
    int m_pos = 0;
};

TEST(LineHndlr, allPieces)
{
    EXPECT_EQ(tagsOf("  start: LOAD  s0 , 1 + 2  ; text\n"),
              Tags({"  ", "start:", " ", "LOAD", "  ", "s0", " ", ",", " ", "1 + 2", "", "; text\n"}));
    EXPECT_EQ(tagsOf("a:b"), Tags({"", "a:", "", "b", "", "", "", "", "", "", "", ""}));
    EXPECT_EQ(tagsOf("ADD s0,s1"), Tags({"", "", "", "ADD", " ", "s0", "", ",", "", "s1", "", ""}));
}

TEST(LineHndlr, linesWithoutInstruction)
{
    EXPECT_EQ(tagsOf(""), Tags({"", "", "", "", "", "", "", "", "", "", "", ""}));
    EXPECT_EQ(tagsOf(" \t \n"), Tags({" \t \n", "", "", "", "", "", "", "", "", "", "", ""}));
    EXPECT_EQ(tagsOf("; only\n"), Tags({"", "", "", "", "", "", "", "", "", "", "", "; only\n"}));
    EXPECT_EQ(tagsOf("label: ; text"), Tags({"", "label:", " ", "", "", "", "", "", "", "", "", "; text"}));
    EXPECT_EQ(tagsOf(":"), Tags({"", ":", "", "", "", "", "", "", "", "", "", ""}));
    EXPECT_EQ(tagsOf("::"), Tags({"", ":", "", ":", "", "", "", "", "", "", "", ""}));
}

TEST(LineHndlr, labels)
{
    EXPECT_EQ(tagsOf("ns::x NOP").mid(1, 3), Tags({"ns:", "", ":x"}));
    // What holds a quote, a comma, a semicolon or a blank is none.
    for (const char* line : {"a\"b:", "a,b:", "a;b:", "a b:", "\"a:"})
        EXPECT_EQ(tagsOf(QString::fromLatin1(line)).at(1), QString("")) << line;
    EXPECT_EQ(tagsOf("#$%:").at(1), QString("#$%:"));
    EXPECT_EQ(tagsOf("\ta: b:").at(3), QString("b:"));
}

TEST(LineHndlr, quotes)
{
    EXPECT_EQ(tagsOf("#EQU t, \"a;b\" ; c").mid(9), Tags({"\"a;b\"", "", "; c"}));
    EXPECT_EQ(tagsOf("LOAD s0, \"x\\\"y\"").at(9), QString("\"x\\\"y\""));
    EXPECT_EQ(tagsOf("LOAD \"a, b\" c").at(5), QString("\"a, b\""));
    EXPECT_EQ(tagsOf("LOAD s0, \"open ; no comment").at(9), QString("\"open ; no comment"));
    // A backslash protects the next character outside of quotes too.
    EXPECT_EQ(tagsOf("LOAD s0, \\; x").at(9), QString("\\; x"));
    EXPECT_EQ(tagsOf("LOAD a\\,b,c").at(5), QString("a\\,b"));
    EXPECT_EQ(tagsOf("LOAD s0, \"a\\").at(9), QString("\"a\\"));
}

TEST(LineHndlr, arguments)
{
    EXPECT_EQ(tagsOf("LOAD s0 s1 s2").mid(5, 5), Tags({"s0", " ", "", "", "s1 s2"}));
    EXPECT_EQ(tagsOf("LOAD s0,,s1").mid(5, 5), Tags({"s0", "", ",", "", ",s1"}));
    EXPECT_EQ(tagsOf("LOAD , s1").mid(5, 5), Tags({"", "", ",", " ", "s1"}));
    EXPECT_EQ(tagsOf("#NAMESPACE, ns").mid(3, 7), Tags({"#NAMESPACE", "", "", "", ",", " ", "ns"}));
    EXPECT_EQ(tagsOf("RET;x").mid(3), Tags({"RET", "", "", "", "", "", "", "", ";x"}));
}

TEST(LineHndlr, whiteSpaceBehindArg1IsLost)
{
    AsmFeLineHndlr hndlr;
    hndlr.splitLine("LOAD s0, 1 \t ; x\n");
    EXPECT_EQ(hndlr.mergeLine(), QString("LOAD s0, 1; x\n"));
    hndlr.splitLine("LOAD s0, 1\r\n");
    EXPECT_EQ(hndlr.mergeLine(), QString("LOAD s0, 1"));
    hndlr.splitLine("  RET  \n");
    EXPECT_EQ(hndlr.mergeLine(), QString("  RET  \n"));
}

TEST(LineHndlr, scanners)
{
    QString line = "  a: w,x ;c";
    int pos = 0;
    const int length = line.size();
    EXPECT_EQ(AsmFeLineHndlr::splitLineSpacer(line, &pos, length), QString("  "));
    EXPECT_EQ(AsmFeLineHndlr::splitLineSpacer(line, &pos, length), QString(""));
    EXPECT_EQ(AsmFeLineHndlr::splitLineLabel(line, &pos, length), QString("a:"));
    EXPECT_EQ(pos, 4);
    EXPECT_EQ(AsmFeLineHndlr::splitLineLabel(line, &pos, length), QString(""));
    EXPECT_EQ(pos, 4);
    EXPECT_EQ(AsmFeLineHndlr::splitLineSpacer(line, &pos, length), QString(" "));
    EXPECT_EQ(AsmFeLineHndlr::splitLineSep(line, &pos, length), QString(""));
    EXPECT_EQ(AsmFeLineHndlr::splitLineWord(line, &pos, length), QString("w"));
    EXPECT_EQ(AsmFeLineHndlr::splitLineSep(line, &pos, length), QString(","));
    EXPECT_EQ(AsmFeLineHndlr::splitLineComment(line, &pos, length), QString(""));
    EXPECT_EQ(AsmFeLineHndlr::splitLineList(line, &pos, length), QString("x"));
    EXPECT_EQ(pos, 9);
    EXPECT_EQ(AsmFeLineHndlr::splitLineComment(line, &pos, length), QString(";c"));
    EXPECT_EQ(pos, length);
    EXPECT_EQ(AsmFeLineHndlr::splitLineWord(line, &pos, length), QString(""));
    EXPECT_EQ(pos, length);
}

TEST(LineHndlr, scannersStopAtTheLength)
{
    QString line = "abc\\";
    int pos = 0;
    EXPECT_EQ(AsmFeLineHndlr::splitLineWord(line, &pos, 2), QString("ab"));
    EXPECT_EQ(pos, 2);
    // A backslash at the very end protects nothing.
    EXPECT_EQ(AsmFeLineHndlr::splitLineList(line, &pos, 4), QString("c\\"));
    EXPECT_EQ(pos, 4);
}

TEST(LineHndlr, randomLines)
{
    std::mt19937 random(8);
    const QString alphabet = QString::fromUtf8("ab,;\"\\: \t\n\r'#()[]+sé") + QChar(0xa0) + QChar(0);
    for (int i = 0; i < 60000 && !::testing::Test::HasFailure(); ++i) {
        QString line;
        const int length = int(random() % 24);
        for (int k = 0; k < length; ++k)
            line += alphabet.at(int(random() % unsigned(alphabet.size())));
        const Tags tags = tagsOf(line);
        EXPECT_EQ(tags, NaiveSplitter(line).tags()) << line.toStdString();
        // Nothing but white space after the second argument gets lost.
        const QString merged = tags.join("");
        const int afterArg1 = tags.mid(0, 10).join("").size();
        EXPECT_TRUE(line.startsWith(merged.left(afterArg1)));
        EXPECT_TRUE(line.endsWith(tags.at(11)));
        EXPECT_TRUE(line.mid(afterArg1, line.size() - afterArg1 - tags.at(11).size()).trimmed().isEmpty());
    }
}

} // namespace
