#include "LineDiff.h"

#include <gtest/gtest.h>

#include <random>

namespace {

QStringList lines(const char* letters)
{
    QStringList result;
    for (const char* letter = letters; *letter != 0; ++letter)
        result.append(QString(QLatin1Char(*letter)));
    return result;
}

/// The differences as text: "left+count>right+count" for each.
std::string shown(const QVector<LineDiff::sHunk_t>& hunks)
{
    QStringList result;
    for (const LineDiff::sHunk_t& hunk : hunks)
        result.append(
            QStringLiteral("%1+%2>%3+%4").arg(hunk.left).arg(hunk.leftCount).arg(hunk.right).arg(hunk.rightCount));
    return result.join(QLatin1Char(' ')).toStdString();
}

std::string shown(const char* left, const char* right)
{
    return shown(LineDiff::compare(lines(left), lines(right)));
}

/// The left text with all differences carried over; fails where lines between them are not equal.
QStringList applied(const QStringList& left, const QStringList& right, const QVector<LineDiff::sHunk_t>& hunks)
{
    QStringList result;
    int line = 0;
    for (const LineDiff::sHunk_t& hunk : hunks) {
        EXPECT_GT(hunk.leftCount + hunk.rightCount, 0);
        result += left.mid(line, hunk.left - line);
        EXPECT_EQ(result.size(), hunk.right);
        result += right.mid(hunk.right, hunk.rightCount);
        line = hunk.left + hunk.leftCount;
    }
    return result + left.mid(line);
}

/// The number of lines that both have in order, by the table of all pairs.
int commonLines(const QStringList& left, const QStringList& right)
{
    QVector<QVector<int>> best(left.size() + 1, QVector<int>(right.size() + 1, 0));
    for (int i = 1; i <= left.size(); ++i) {
        for (int j = 1; j <= right.size(); ++j)
            best[i][j] =
                left.at(i - 1) == right.at(j - 1) ? best[i - 1][j - 1] + 1 : qMax(best[i - 1][j], best[i][j - 1]);
    }
    return best.last().last();
}

QStringList randomLines(std::mt19937* random, int size, int kinds)
{
    QStringList result;
    for (int i = 0; i < size; ++i)
        result.append(QString::number((*random)() % unsigned(kinds)));
    return result;
}

TEST(LineDiff, findsWhatWasInsertedRemovedAndChanged)
{
    EXPECT_EQ(shown("abc", "abc"), "");
    EXPECT_EQ(shown("", ""), "");
    EXPECT_EQ(shown("abc", "abxc"), "2+0>2+1");
    EXPECT_EQ(shown("abc", "ac"), "1+1>1+0");
    EXPECT_EQ(shown("abc", "axc"), "1+1>1+1");
    EXPECT_EQ(shown("", "ab"), "0+0>0+2");
    EXPECT_EQ(shown("ab", ""), "0+2>0+0");
    EXPECT_EQ(shown("abcdef", "axcdyf"), "1+1>1+1 4+1>4+1");
}

TEST(LineDiff, randomTextsNeedNoMoreLinesThanTheShortestWay)
{
    std::mt19937 random(4711);
    for (int round = 0; round < 400; ++round) {
        const QStringList left = randomLines(&random, int(random() % 30), 6);
        const QStringList right = randomLines(&random, int(random() % 30), 6);
        const QVector<LineDiff::sHunk_t> hunks = LineDiff::compare(left, right);
        ASSERT_EQ(applied(left, right, hunks), right);
        int changed = 0;
        for (const LineDiff::sHunk_t& hunk : hunks)
            changed += hunk.leftCount + hunk.rightCount;
        ASSERT_EQ(changed, left.size() + right.size() - 2 * commonLines(left, right));
    }
}

TEST(LineDiff, largeTextsWithManyDifferencesAreStillTakenApart)
{
    // Every third line differs: far beyond the exact search, so that it goes on between lines that are there once.
    QStringList left;
    QStringList right;
    for (int i = 0; i < 30000; ++i) {
        left.append(i % 3 == 0 ? QStringLiteral("left %1").arg(i) : QString::number(i));
        right.append(i % 3 == 0 ? QStringLiteral("right %1").arg(i) : QString::number(i));
    }
    const QVector<LineDiff::sHunk_t> hunks = LineDiff::compare(left, right);
    EXPECT_EQ(hunks.size(), 10000);
    EXPECT_EQ(applied(left, right, hunks), right);
}

TEST(LineDiff, largeTextsWithoutAnythingInCommonEndInOneDifference)
{
    std::mt19937 random(1);
    const QStringList left = randomLines(&random, 200000, 100);
    const QStringList right = randomLines(&random, 200000, 90);
    const QVector<LineDiff::sHunk_t> hunks = LineDiff::compare(left, right);
    EXPECT_EQ(applied(left, right, hunks), right);
}

} // namespace
