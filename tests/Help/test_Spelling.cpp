// The prose of every page, read by the spelling checker of the system with a list of words of our own.

#include "HelpTree.h"
#include "QtPrinters.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QSet>

namespace {

using nsHelpBuild::HelpPage;

/// The words of the list; comments begin with "#".
QSet<QString> knownWords()
{
    QFile file(HelpTree::folder() + "/words.txt");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QSet<QString> words;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        const QString word = line.section('#', 0, 0).trimmed();
        if (!word.isEmpty())
            words.insert(word);
    }
    return words;
}

/// The words of a text that a dictionary may hold: no names of files or of things in a program.
QStringList wordsOf(const QString& text)
{
    static const QRegularExpression blanks("\\s+");
    static const QRegularExpression ends("^[^\\w#.&@$/-]+|[^\\w]+$");
    static const QRegularExpression plain("^\\p{L}[\\p{L}'/-]*$");
    static const QRegularExpression joints("[/-]+");
    static const QRegularExpression camelCase("\\p{Ll}\\p{Lu}");
    QSet<QString> words;
    for (QString token : QString(text).replace(QChar(0x2019), '\'').split(blanks, Qt::SkipEmptyParts)) {
        token.remove(ends);
        if (!plain.match(token).hasMatch())
            continue;
        for (QString word : token.split(joints, Qt::SkipEmptyParts)) {
            if (word.endsWith("'s"))
                word.chop(2);
            while (word.endsWith('\''))
                word.chop(1);
            if (word.size() > 1 && !camelCase.match(word).hasMatch())
                words.insert(word);
        }
    }
    QStringList sorted = words.values();
    sorted.sort();
    return sorted;
}

/// Those words that the checker does not know.
QStringList unknownToChecker(const QStringList& words)
{
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("LC_ALL", "C.UTF-8");
    process.setProcessEnvironment(env);
    process.start("hunspell", {"-d", "en_GB", "-i", "UTF-8", "-l"});
    EXPECT_TRUE(process.waitForStarted()) << "hunspell is not installed";
    process.write(words.join('\n').toUtf8() + '\n');
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    QStringList unknown = QString::fromUtf8(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    unknown.removeDuplicates();
    return unknown;
}

QStringList misspelt(const QString& text)
{
    static const QSet<QString> known = knownWords();
    QStringList left;
    for (const QString& word : wordsOf(text)) {
        if (!known.contains(word) && !known.contains(word.toLower()))
            left.append(word);
    }
    return left.isEmpty() ? left : unknownToChecker(left);
}

class HelpSpelling : public ::testing::TestWithParam<QString>
{
};

TEST_P(HelpSpelling, isRight)
{
    HelpPage page;
    QString error;
    ASSERT_TRUE(readText(HelpTree::sourceDir() + '/' + GetParam(), &page, &error)) << error.toStdString();
    for (const QString& word : misspelt(page.title + '\n' + page.prose))
        ADD_FAILURE() << GetParam().toStdString() << ": " << word.toStdString();
}

INSTANTIATE_TEST_SUITE_P(page, HelpSpelling, ::testing::ValuesIn(HelpTree::files()), HelpTree::testName);

TEST(HelpSpellingCheck, FindsWhatIsWrong)
{
    EXPECT_EQ(misspelt("The colour of the langauge, initialize."), QStringList("langauge"));
    EXPECT_EQ(misspelt("A misspeltt word's end (behaviourr)."), QStringList({"behaviourr", "misspeltt"}));
    EXPECT_EQ(misspelt("color"), QStringList("color"));
    EXPECT_EQ(misspelt("half-wordd and eiter/or"), QStringList({"eiter", "wordd"}));
}

TEST(HelpSpellingCheck, NamesOfProgramsAreNoWords)
{
    EXPECT_EQ(misspelt("errSyntax s0 0x1F example.psm #EQU PROC::XPBLZE6 in_port --dumpp"), QStringList());
    EXPECT_EQ(wordsOf("a (bracketed) \"quoted\" word's don't"), QStringList({"bracketed", "don't", "quoted", "word"}));
}

TEST(HelpSpellingCheck, TheListHoldsWhatThePagesNeed)
{
    // Words that nobody writes any more hide errors.
    QString text;
    for (const QString& path : HelpTree::files()) {
        HelpPage page;
        QString error;
        if (readText(HelpTree::sourceDir() + '/' + path, &page, &error))
            text += page.title + '\n' + page.prose + '\n';
    }
    QSet<QString> used;
    for (const QString& word : wordsOf(text))
        used << word << word.toLower();
    QStringList unused = (knownWords() - used).values();
    unused.sort();
    EXPECT_EQ(unused, QStringList());
}

} // namespace
