#include "Painted.h"

#include "AsmWords.h"
#include "Grammar.h"
#include "HighlightRules.h"
#include "ProcTables.h"
#include "Processor.h"
#include "QtPrinters.h"

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegExp>
#include <QRegularExpression>
#include <QSet>
#include <QTextCodec>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

using namespace nsModAsmFe;

namespace {

const int longestLine = 1000;
const int mostShown = 20; ///< differences

/// A processor with the names of all of them.
class AllProcessors : public nsProc::Processor
{
public:
    AllProcessors()
        : nsProc::Processor(nsProc::xpBlze6Table())
    {
        for (const nsProc::ProcTable* table : nsProc::procTables()) {
            nsProc::Processor processor(*table);
            add(&m_regs, processor.regNames());
            add(&m_banks, processor.regBankNames());
        }
    }
    const QHash<QString, int>* regNames() override { return &m_regs; }
    const QHash<QString, int>* regBankNames() override { return &m_banks; }

private:
    static void add(QHash<QString, int>* all, const QHash<QString, int>* names)
    {
        if (names == nullptr)
            return;
        for (auto name = names->cbegin(); name != names->cend(); ++name)
            all->insert(name.key(), name.value());
    }

    QHash<QString, int> m_regs;
    QHash<QString, int> m_banks;
};

QString idOf(eHighlight_t kind)
{
    return QLatin1String(nsSyntax::styleOf(kind).id);
}

QString paintedLine(const QVector<QPair<QRegExp, QChar>>& rules, const QString& line)
{
    QString painted(line.size(), '.');
    for (const auto& rule : rules) {
        int pos = 0;
        while ((pos = rule.first.indexIn(line, pos)) >= 0) {
            const int length = rule.first.matchedLength();
            painted.replace(pos, length, QString(length, rule.second));
            pos += qMax(1, length);
        }
    }
    return painted;
}

/// Where a line has more than one string, or a semicolon in one: the first quote; else -1.
int oddStrings(const QString& line)
{
    int first = -1;
    int quotes = 0;
    for (int i = 0; i < line.size(); ++i) {
        const bool inString = quotes % 2 == 1;
        if (line.at(i) == ';')
            return inString ? first : -1;
        if (line.at(i) == '"') {
            first = first < 0 ? i : first;
            ++quotes;
        }
        if (quotes > 2)
            return first;
    }
    return -1;
}

/// What our own editor paints against the language. These places are compared with the samples alone.
QVector<bool> oddParts(const QString& line)
{
    // The name of a setting that is painted with its value; attributes that nobody knows.
    static const QRegularExpression odd("\\bDFLTCHARSET\\b[ \t]*,|'nothing\\b|'foo\\b",
                                        QRegularExpression::CaseInsensitiveOption);
    QVector<bool> parts(line.size(), false);
    QRegularExpressionMatchIterator matches = odd.globalMatch(line);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        std::fill_n(parts.begin() + match.capturedStart(), match.capturedLength(), true);
    }
    const int strings = oddStrings(line);
    if (strings >= 0)
        std::fill(parts.begin() + strings, parts.end(), true);
    return parts;
}

} // namespace

QChar letterOf(const QString& styleId)
{
    static const QHash<QString, QChar> letters = {
        {"instruction", 'I'}, {"directive", 'D'}, {"hardware", 'H'}, {"hexadecimal", 'X'}, {"decimal", 'N'},
        {"octal", 'O'},       {"binary", 'B'},    {"label", 'L'},    {"comment", 'C'},     {"separator", 'S'},
        {"navigator", 'V'},   {"attribute", 'A'}, {"string", 'T'},   {"keyword", 'K'},
    };
    return letters.value(styleId, '.');
}

const QVector<sSample_t>& samples()
{
    static const QVector<sSample_t> all = {
        {"loop:   LOAD  s0, 0x1F ; note", "LLLLL...IIII..HH..XXXX.CCCCCC"},
        {"        add   sF, 12", "........III...HH..NN"},
        {"        ADD   r31, b1010", "........III...HHH..BBBBB"},
        {"        SUB   S0, \\17", "........III.......OOO"},
        {"        JUMP  nz, loop", "........IIII..KK......"},
        {"        regbank B", "........IIIIIII.H"},
        {"        RETI  enable", "........IIII..KKKKKK"},
        {"        LOADS s0x, 0x1G", "......................."},
        {"  inner: NOP", ".........III"},
        {"len:    rd:", "LLLL....AA."},
        {"        CALL  uart::put", "........IIII..AAAAAA..."},
        {"        LOAD  s0, \"a\" ; it's \"x\"", "........IIII..HH..TTT.CCCCCCCCCC"},
        {"        LOAD  s0, \"a;b\"[1] ; x", "........IIII..HH..TTTTT.N..CCC"},
        {"        LOAD  s0, \"a\\\"b\"'LEN", "........IIII..HH..TTTTTT.AAA"},
        {"        LOAD  s0, \"a\", \"b\"", "........IIII..HH..TTT..TTT"},
        {"        LOAD  s0, \"open", "........IIII..HH......."},
        {"        LOAD  s0, 0x1234'2BE", "........IIII..HH..XXXXXX.AAA"},
        {"        LOAD  s0, \"A\"'ISO-8859-1", "........IIII..HH..TTT.AAAAAAAAAA"},
        {"L1:     JUMP  L1", "LLL.....IIII...."},
        {"        LOAD  s0, 850", "........IIII..HH..NNN"},
        {"        INSTMEM IODev LEN append false fifo hex hiMem loMem mem rd rdWr reg sim true verilog vhdl wr",
         "........AAAAAAA.AAAAA.AAA.AAAAAA.AAAAA.AAAA.AAA.AAAAA.AAAAA.AAA.AA.AAAA.AAA.AAA.AAAA.AAAAAAA.AAAA.AA"},
        {"        JUMP  Z'x, s0'2BE", "........IIII..K.A..HH.AAA"},
        {"#EQU    value, 0x10", "DDDD...........XXXX"},
        {"#set    IODEV::rx::TYPE, fifo", "DDDD....AAAAAAAAAAA......AAAA"},
        {"#SET    ASM::DFLTCHARSET,  iso-8859-1", "DDDD....AAAAAAAAAAAAAAAAAAAAAAAAAAAAA"},
        {"#SET    IODEV::rx::SIMACCESSMODE, rdWr", "DDDD....AAAAAAAAAAA...............AAAA"},
        {"#ORG    ADDR, 0x3FF", "DDDD....KKKK..XXXXX"},
        {"#ORG    MEMRANGE, page12", "DDDD....KKKKKKKK..KKKKKK"},
        {"        CALL  myPAGE3", "........IIII........."},
        {"#DEFINE debug  ; on", "DDDDDDDDDDDDD..CCCC"},
        {"#IFDEF  debug | PROC::XPBLZE3 ; x", "DDDDDDDDDDDDDDDDDDDDDDDDDDDDDDCCC"},
        {"#ELSEIF other", "DDDDDDDDDDDDD"},
        {"#ELSE", "DDDDD"},
        {"#ENDIF", "DDDDDD"},
        {"#NAMESPACE uart", "DDDDDDDDDDDDDDD"},
        {"#ENDNAMESPACE", "DDDDDDDDDDDDD"},
        {"#FOO    x", "........."},
        {"; plain comment with LOAD and \"text\"", "CCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCC"},
        {"; ## separator", "SSSSSSSSSSSSSS"},
        {"  ; ## comment", "..CCCCCCCCCCCC"},
        {"; \\navSep \"My title\" end", "CCVVVVVVVVVVVVVVVVVVCCCC"},
        {"; \\navconst title end", "CCVVVVVVVVVVVVVVVCCCC"},
        {"; \\navGrpBegin \"g\"", "CCVVVVVVVVVVVVVVVV"},
        {"; \\navGrpEnd x", "CCVVVVVVVVVVCC"},
        {"; ## \\navHw \"x\"", "SSSSSVVVVVVVVVV"},
        {"        NOP   ; \\navHw pins", "........III...CCVVVVVVVVVVV"},
        {"", ""},
    };
    return all;
}

QStringList sampleLines()
{
    QStringList lines;
    for (const sSample_t& sample : samples())
        lines.append(sample.line);
    return lines;
}

const QStringList& sourceLines()
{
    static const QStringList lines = [] {
        QStringList files;
        for (const char* folder : {"/examples", "/tests/data/asm"}) {
            QDirIterator it(NALVO_SOURCE_DIR + QString(folder), {"*.psm"}, QDir::Files, QDirIterator::Subdirectories);
            while (it.hasNext()) {
                const QString file = it.next();
                // The programs below it are for other assemblers.
                if (!file.contains("/examples/import/"))
                    files.append(file);
            }
        }
        files.sort();
        QStringList all;
        QSet<QString> known;
        for (const QString& path : files) {
            QFile file(path);
            EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
            const QString text = QString::fromLatin1(file.readAll());
            for (QString line : text.split('\n')) {
                // What the tools would take for the end of a line, or for another character, is no matter of painting.
                line.remove(QRegularExpression("[^\\t -~]"));
                // Editors leave off within lines that nobody writes. No line depends on others, so each is there once.
                if (line.size() <= longestLine && !known.contains(line))
                    all.append(line);
                known.insert(line);
            }
        }
        return all;
    }();
    return lines;
}

QStringList paintedByWindow(const QStringList& lines, bool withCharsets)
{
    AllProcessors processor;
    AsmWords words;
    words.setProcessor(&processor);
    QStringList charsets;
    if (withCharsets) {
        for (const QByteArray& codec : QTextCodec::availableCodecs())
            charsets.append(QString::fromLatin1(codec).toUpper());
    }
    QVector<QPair<QRegExp, QChar>> rules;
    for (const sHighlightRule_t& rule : highlightRules(words, charsets, {}))
        rules.append({QRegExp(rule.expression, rule.cs), letterOf(idOf(rule.kind))});
    QStringList painted;
    QHash<QString, QString> known;
    for (const QString& line : lines) {
        if (!known.contains(line))
            known.insert(line, paintedLine(rules, line));
        painted.append(known.value(line));
    }
    return painted;
}

void expectSamples(const QStringList& painted, const QString& who)
{
    ASSERT_EQ(painted.size(), samples().size()) << qPrintable(who);
    for (int i = 0; i < painted.size(); ++i) {
        const sSample_t& sample = samples().at(i);
        ASSERT_EQ(strlen(sample.line), strlen(sample.painted)) << sample.line;
        QString shown = painted.at(i);
        for (int column = 0; column < shown.size(); ++column) {
            if (sample.line[column] == ' ' && sample.painted[column] == '.')
                shown[column] = '.';
        }
        EXPECT_EQ(shown, QString(sample.painted)) << qPrintable(who) << ": " << sample.line;
    }
}

void expectAsWindow(const QStringList& painted, const QString& who)
{
    const QStringList& lines = sourceLines();
    static const QStringList window = paintedByWindow(lines, true);
    // A word that is by chance the name of a character set, such as `r8` or 500, is what it is.
    static const QStringList withoutCharsets = paintedByWindow(lines, false);
    ASSERT_EQ(painted.size(), lines.size()) << qPrintable(who);
    int compared = 0;
    int leftOut = 0;
    int shown = 0;
    for (int i = 0; i < lines.size() && shown < mostShown; ++i) {
        const QString& line = lines.at(i);
        ASSERT_EQ(painted.at(i).size(), line.size()) << qPrintable(who) << " line " << i << ": " << qPrintable(line);
        // Cases say themselves which of their lines are wrong.
        if (line.contains("; error:"))
            continue;
        const QVector<bool> odd = oddParts(line);
        for (int column = 0; column < line.size(); ++column) {
            if (line.at(column).isSpace())
                continue;
            leftOut += int(odd.at(column));
            compared += int(!odd.at(column));
            const QChar got = painted.at(i).at(column);
            if (odd.at(column) || got == window.at(i).at(column) || got == withoutCharsets.at(i).at(column))
                continue;
            ADD_FAILURE() << qPrintable(who) << "\n    " << qPrintable(line) << "\ngot " << qPrintable(painted.at(i))
                          << "\nwin " << qPrintable(window.at(i));
            ++shown;
            break;
        }
    }
    EXPECT_GT(compared, shown == 0 ? 100000 : 0);
    EXPECT_LT(leftOut, compared / 100);
}
