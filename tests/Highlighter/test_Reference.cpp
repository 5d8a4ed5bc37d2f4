// The highlighter against the plain loop over all rules, on real sources and on seeded random ones.

#include "HighlightFixture.h"

#include "HighlightPattern.h"

#include <QSet>

#include <random>

namespace {

/// Pieces of text in which expressions like to go wrong.
QStringList nastyPieces()
{
    return {"LOAD",
            "load",
            "s0",
            "S0",
            "sF",
            "0x1F",
            "0x",
            "b101",
            "B2",
            "12",
            "\\017",
            "\\",
            "#",
            "#EQU",
            "#equ",
            "#DEFINE",
            "#IFDEF ",
            "#MACRO\t",
            "#NAMESPACE ",
            "::",
            ":",
            "screen",
            "IODEV::keys_2",
            "::iodev::SCREEN",
            ";",
            "; ##",
            "\"",
            "'",
            " ",
            " ",
            "\t",
            "UTF-8",
            "utf-8",
            "UTF-8-8",
            "ISO-8859-1",
            "iso-8859-15",
            "ISO-8859-1-ISO-8859-1",
            "EBCDIC-DE-273+EURO",
            "EBCDIC-DE-2733EURO",
            "EBCDIC-DE-27EURO",
            "ANSI_X3.4-1968",
            "ANSI_X3x4-1968",
            "ISO_646.IRV:1983",
            "GB2312.1980-0",
            "IBM-37,SWAPLFNL",
            "KOI8-R",
            "KOI8-RU",
            "2BE",
            "24BE",
            "\\navHw",
            "\\navSep \"x\"",
            "\\navConst abc  ",
            "\\navGrpEnd",
            "hex",
            "ccessMode",
            "\accessMode",
            "rdWr",
            "PAGE0",
            "page12x",
            "_",
            "-",
            "+",
            ".",
            ",",
            "(",
            ")",
            "[",
            "]",
            "{",
            "}",
            "|",
            "*",
            "?",
            "$",
            "^",
            "=",
            QString(QChar(0x212a)),
            QString(QChar(0x17f)),
            QString(QChar(0x130)),
            QString(QChar(0x131)),
            QString(QChar(0xe4)),
            QString(QChar(0x301)),
            QString::fromUtf8("\xf0\x9f\x98\x80"),
            QString(QChar(0xa0)),
            QString(QChar(0x2028)),
            QString(QChar(0x660)),
            "x",
            "a",
            "K",
            "is",
            "ISO_8859-1:1987"};
}

QString randomText(std::mt19937* random, const QStringList& pieces, int lines)
{
    QString text;
    for (int line = 0; line < lines; ++line) {
        const int count = int((*random)() % 14);
        for (int i = 0; i < count; ++i)
            text += pieces.at(int((*random)() % unsigned(pieces.size())));
        text += '\n';
    }
    return text;
}

QString randomPattern(std::mt19937* random)
{
    static const QStringList parts = {
        "\\b",   "\\b",   "a",   "b",     "s0",    "-",   "[a-b]",  "[^a]",   "[0-9]", "\\S", "\\s",   "\\d",   "\\w",
        "+",     "*",     "?",   "|",     "(",     ")",   "(ab|s)", "^",      "$",     ".",   "{1,2}", "{0}",   "\\B",
        "(?!a)", "(?=s)", "\\-", "\\x41", "[]a]",  "k",   "i",      "[a-]",   "::",    "#",   "\\(",   "[\\]]", "_",
        "\\1",   "\\\\",  "A",   "\\b*",  "[A-b]", "a-a", "s0-s0",  "a-s0-a", "K",     "S"};
    QString pattern;
    const int count = 1 + int((*random)() % 6);
    for (int i = 0; i < count; ++i)
        pattern += parts.at(int((*random)() % unsigned(parts.size())));
    return (*random)() % 3 == 0 ? "\\b" + pattern + "\\b" : pattern;
}

QTextCharFormat randomFormat(std::mt19937* random)
{
    QTextCharFormat format;
    const unsigned kind = (*random)() % 6;
    if (kind == 1)
        format.setBackground(Qt::yellow);
    else if (kind > 1)
        format.setForeground(QColor::fromHsv(int(kind) * 50, 200, 200));
    return format;
}

} // namespace

TEST_F(HighlightTest, AssemblerRulesOnAllExamples)
{
    const QStringList files = sources("examples");
    ASSERT_GE(files.size(), 3);
    ASSERT_TRUE(setAsmRules(highlightProcessors[0], &config));
    ASSERT_GT(config.rules().size(), 300);
    for (const QString& file : files)
        expectEqualText(readFile(file), file);
}

TEST_F(HighlightTest, AssemblerRulesOnAllAssemblerCases)
{
    const QStringList files = sources("tests/data/asm");
    ASSERT_GE(files.size(), 500);
    // Most lines of the cases are alike, and the plain loop is slow.
    QSet<QString> lines;
    for (const QString& file : files) {
        for (const QString& line : readFile(file).split('\n'))
            lines.insert(line);
    }
    QStringList sorted(lines.begin(), lines.end());
    sorted.sort();
    ASSERT_GT(sorted.size(), 2000);
    int processor = 0;
    for (const char* name : highlightProcessors) {
        ASSERT_TRUE(setAsmRules(name, &config));
        QStringList part;
        for (int i = processor++; i < sorted.size(); i += 3)
            part.append(sorted.at(i));
        setText(part.join('\n'));
        expectEqual(name);
    }
}

TEST_F(HighlightTest, AssemblerRulesOnRandomText)
{
    std::mt19937 random(1);
    for (const char* name : highlightProcessors) {
        ASSERT_TRUE(setAsmRules(name, &config));
        expectEqualText(randomText(&random, nastyPieces(), 400), name);
    }
}

TEST_F(HighlightTest, EveryWordOfTheRulesInEveryCase)
{
    ASSERT_TRUE(setAsmRules(highlightProcessors[1], &config));
    QStringList lines;
    for (const auto& rule : config.rules()) {
        QString word = rule.first.pattern();
        word.remove("\\b");
        lines += word + ' ' + word.toLower() + " x" + word + ' ' + word + "_ " + word + '-' + word + ':' +
                 word.toLower() + word;
    }
    setText(lines.join('\n'));
    expectEqual();
}

TEST_F(HighlightTest, SelectionsInAssemblerText)
{
    ASSERT_TRUE(setAsmRules(highlightProcessors[1], &config));
    std::mt19937 random(2);
    const QStringList pieces = nastyPieces();
    setText(randomText(&random, pieces, 60));
    for (int i = 0; i < 60; ++i) {
        const QString selected = pieces.at(int(random() % unsigned(pieces.size()))) +
                                 (i % 2 == 0 ? pieces.at(int(random() % unsigned(pieces.size()))) : QString());
        select(selected);
        expectEqual("selected " + selected);
    }
    select(QString());
    expectEqual("nothing selected");
}

TEST_F(HighlightTest, RandomRulesOnRandomText)
{
    std::mt19937 random(3);
    const QStringList pieces = {"a",
                                "b",
                                "A",
                                "s0",
                                "S0",
                                "-",
                                "_",
                                "0",
                                "12",
                                " ",
                                " ",
                                "::",
                                "#",
                                "(",
                                "ab",
                                "\\",
                                ".",
                                "]",
                                "k",
                                QString(QChar(0x212a)),
                                QString(QChar(0x17f)),
                                QString(QChar(0x130)),
                                QString(QChar(0x131)),
                                QString(QChar(0x301)),
                                "I",
                                "i",
                                "a-b",
                                "s0-s0",
                                "^",
                                "{",
                                "*",
                                "a-a-a-a",
                                "s0-s0-s0",
                                "a-s0-a-s0-a"};
    int painted = 0;
    for (int round = 0; round < 3000; ++round) {
        config.clear();
        QStringList patterns;
        for (int i = int(random() % 9); i >= 0; --i) {
            const QRegExp::PatternSyntax syntaxes[] = {QRegExp::RegExp,      QRegExp::RegExp,        QRegExp::RegExp,
                                                       QRegExp::RegExp,      QRegExp::RegExp2,       QRegExp::Wildcard,
                                                       QRegExp::FixedString, QRegExp::W3CXmlSchema11};
            QRegExp rule(randomPattern(&random), random() % 2 == 0 ? Qt::CaseSensitive : Qt::CaseInsensitive,
                         syntaxes[random() % 8]);
            rule.setMinimal(random() % 5 == 0);
            config.addRule(rule, randomFormat(&random));
            patterns += rule.pattern();
        }
        expectEqualText(randomText(&random, pieces, 25), "rules " + patterns.join("   "));
        const QString selected = randomPattern(&random);
        select(selected);
        expectEqual("rules " + patterns.join("   ") + " selected " + selected);
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            painted += block.layout()->formats().size();
        if (HasFatalFailure())
            return;
        select(QString());
    }
    EXPECT_GT(painted, 30000);
}

/// The sound of the analysis, apart from the painting: what it refuses must not match.
TEST(HighlightPatternTest, RefusesOnlyWhatCannotMatch)
{
    std::mt19937 random(4);
    const QStringList pieces = {"a",
                                "b",
                                "A",
                                "B",
                                "s0",
                                "S0",
                                "-",
                                "0",
                                " ",
                                "::",
                                "#",
                                "(",
                                "k",
                                "K",
                                "]",
                                "\\",
                                QString(QChar(0x212a)),
                                QString(QChar(0x17f)),
                                "AB",
                                "i",
                                "I"};
    int refused = 0;
    int matched = 0;
    for (int round = 0; round < 20000; ++round) {
        const QRegExp regExp(randomPattern(&random), random() % 2 == 0 ? Qt::CaseSensitive : Qt::CaseInsensitive);
        const nsModEditor::HighlightPattern pattern(regExp);
        const QString text = randomText(&random, pieces, 1).trimmed();
        const bool may = pattern.mayMatch(text, nsModEditor::LineFacts(text));
        bool matches = false;
        pattern.forEachMatch(text, [&matches](int, int) { matches = true; });
        ASSERT_FALSE(matches && !may) << qPrintable(regExp.pattern()) << " on " << qPrintable(text);
        refused += may ? 0 : 1;
        matched += matches ? 1 : 0;
    }
    EXPECT_GT(refused, 1000);
    EXPECT_GT(matched, 1000);
}

/// Letters beyond ASCII that the expressions take for ASCII letters must all be known.
TEST(HighlightPatternTest, KnowsAllLettersThatFoldToAscii)
{
    QVector<QRegExp> letters;
    for (char letter = '0'; letter <= 'z'; ++letter)
        letters.append(QRegExp(QRegExp::escape(QString(QLatin1Char(letter))), Qt::CaseInsensitive));
    for (uint code = 128; code < 0x10000; ++code) {
        const QString text = QChar(code);
        bool folds = false;
        for (const QRegExp& letter : qAsConst(letters))
            folds = folds || letter.indexIn(text) >= 0;
        ASSERT_FALSE(folds && !nsModEditor::LineFacts(text).foldsToAscii) << std::hex << code;
    }
}

/// A word ends where the expressions say so, for every character.
TEST(HighlightPatternTest, WordCharactersAreThoseOfTheExpressions)
{
    const QRegExp boundary("^\\b");
    for (uint code = 0; code < 0x10000; ++code)
        ASSERT_EQ(boundary.indexIn(QString(QChar(code))) == 0, nsModEditor::isWordCharacter(QChar(code)))
            << std::hex << code;
}
