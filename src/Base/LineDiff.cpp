#include "LineDiff.h"

#include <QHash>

#include <algorithm>

namespace {

const int maxEdits = 1000;               ///< lines that may differ for the exact search
const qint64 maxWork = 20 * 1000 * 1000; ///< compared lines in all

/// A part of both texts, [begin, end).
struct sRange_t
{
    int left;
    int leftEnd;
    int right;
    int rightEnd;
};

struct sPair_t
{
    int left;
    int right;
};

class Comparison
{
public:
    Comparison(const QStringList& left, const QStringList& right)
    {
        // Numbers in place of texts: equal lines have equal numbers.
        QHash<QString, int> numbers;
        const auto number = [&numbers](const QStringList& lines) {
            QVector<int> result;
            result.reserve(lines.size());
            for (const QString& line : lines) {
                auto it = numbers.constFind(line);
                if (it == numbers.constEnd())
                    it = numbers.insert(line, numbers.size());
                result.append(it.value());
            }
            return result;
        };
        m_left = number(left);
        m_right = number(right);
    }

    QVector<LineDiff::sHunk_t> run()
    {
        // A stack instead of recursion, as texts may need many steps. The part that comes first in the text is on top.
        m_parts.append({0, m_left.size(), 0, m_right.size()});
        while (!m_parts.isEmpty()) {
            const sRange_t part = trimmed(m_parts.takeLast());
            if (part.left == part.leftEnd && part.right == part.rightEnd)
                continue;
            if (part.left == part.leftEnd || part.right == part.rightEnd ||
                (!searchExactly(part) && !splitAtAnchors(part)))
                add(part);
        }
        return m_hunks;
    }

private:
    bool equal(int left, int right)
    {
        ++m_work;
        return m_left.at(left) == m_right.at(right);
    }

    sRange_t trimmed(sRange_t part)
    {
        while (part.left < part.leftEnd && part.right < part.rightEnd && equal(part.left, part.right)) {
            ++part.left;
            ++part.right;
        }
        while (part.left < part.leftEnd && part.right < part.rightEnd && equal(part.leftEnd - 1, part.rightEnd - 1)) {
            --part.leftEnd;
            --part.rightEnd;
        }
        return part;
    }

    /// Appends a hunk; extends the last one if they touch.
    void add(const sRange_t& part)
    {
        if (!m_hunks.isEmpty()) {
            LineDiff::sHunk_t& last = m_hunks.last();
            if (last.left + last.leftCount == part.left && last.right + last.rightCount == part.right) {
                last.leftCount += part.leftEnd - part.left;
                last.rightCount += part.rightEnd - part.right;
                return;
            }
        }
        m_hunks.append({part.left, part.leftEnd - part.left, part.right, part.rightEnd - part.right});
    }

    /// The shortest way from one text to the other: for each number of edits and each diagonal the furthest point.
    /// @return false when it takes too many edits; nothing is added then
    bool searchExactly(const sRange_t& part)
    {
        const int leftSize = part.leftEnd - part.left;
        const int rightSize = part.rightEnd - part.right;
        const int limit = qMin(maxEdits, leftSize + rightSize);
        QVector<QVector<int>> history;
        QVector<int> reach(2 * limit + 3, 0);
        const int middle = limit + 1;
        for (int edits = 0; edits <= limit && m_work < maxWork; ++edits) {
            m_work += edits;
            for (int diagonal = -edits; diagonal <= edits; diagonal += 2) {
                const bool down = diagonal == -edits || (diagonal != edits && reach.at(middle + diagonal - 1) <
                                                                                  reach.at(middle + diagonal + 1));
                int left = down ? reach.at(middle + diagonal + 1) : reach.at(middle + diagonal - 1) + 1;
                int right = left - diagonal;
                while (left < leftSize && right < rightSize && left >= 0 && right >= 0 &&
                       equal(part.left + left, part.right + right)) {
                    ++left;
                    ++right;
                }
                reach[middle + diagonal] = left;
                if (left == leftSize && right == rightSize) {
                    history.append(reach.mid(middle - edits, 2 * edits + 1));
                    addWay(part, history, diagonal);
                    return true;
                }
            }
            history.append(reach.mid(middle - edits, 2 * edits + 1));
        }
        return false;
    }

    /// Follows the shortest way back from its end, and adds its edits in text order.
    void addWay(const sRange_t& part, const QVector<QVector<int>>& history, int diagonal)
    {
        QVector<sRange_t> way;
        for (int edits = history.size() - 1; edits > 0; --edits) {
            const QVector<int>& before = history.at(edits - 1);
            const auto reach = [&before, edits](int d) {
                const int index = d + edits - 1;
                return index >= 0 && index < before.size() ? before.at(index) : -1;
            };
            const bool down = diagonal == -edits || (diagonal != edits && reach(diagonal - 1) < reach(diagonal + 1));
            diagonal += down ? 1 : -1;
            const int left = part.left + reach(diagonal);
            const int right = part.right + reach(diagonal) - diagonal;
            way.append({left, left + (down ? 0 : 1), right, right + (down ? 1 : 0)});
        }
        for (auto it = way.crbegin(); it != way.crend(); ++it)
            add(*it);
    }

    /// Splits the part at lines that occur once on each side, and in the same order on both.
    /// @return false without any, or when the work is used up
    bool splitAtAnchors(const sRange_t& part)
    {
        if (m_work >= maxWork)
            return false;
        const QVector<sPair_t> anchors = orderedAnchors(part);
        if (anchors.isEmpty())
            return false;
        sRange_t rest = part;
        for (auto it = anchors.crbegin(); it != anchors.crend(); ++it) {
            m_parts.append({it->left + 1, rest.leftEnd, it->right + 1, rest.rightEnd});
            rest.leftEnd = it->left;
            rest.rightEnd = it->right;
        }
        m_parts.append(rest);
        return true;
    }

    QVector<sPair_t> orderedAnchors(const sRange_t& part)
    {
        m_work += part.leftEnd - part.left + part.rightEnd - part.right;
        const QHash<int, int> left = uniqueLines(m_left, part.left, part.leftEnd);
        const QHash<int, int> right = uniqueLines(m_right, part.right, part.rightEnd);
        QVector<sPair_t> common;
        for (int line = part.left; line < part.leftEnd; ++line) {
            const int number = m_left.at(line);
            if (left.value(number, -1) == line && right.value(number, -1) >= 0)
                common.append({line, right.value(number)});
        }
        return longestAscending(common);
    }

    /// For each line that occurs once its index; -1 for a line that occurs more than once.
    static QHash<int, int> uniqueLines(const QVector<int>& lines, int begin, int end)
    {
        QHash<int, int> result;
        for (int line = begin; line < end; ++line) {
            const auto it = result.find(lines.at(line));
            if (it == result.end())
                result.insert(lines.at(line), line);
            else
                it.value() = -1;
        }
        return result;
    }

    /// @param pairs ascending on the left
    /// @return the longest choice that ascends on the right, too
    static QVector<sPair_t> longestAscending(const QVector<sPair_t>& pairs)
    {
        QVector<int> tails; // index of the pair that ends the best choice of each length
        QVector<int> before(pairs.size(), -1);
        for (int i = 0; i < pairs.size(); ++i) {
            const auto it = std::lower_bound(tails.begin(), tails.end(), pairs.at(i).right,
                                             [&pairs](int tail, int right) { return pairs.at(tail).right < right; });
            const int length = int(it - tails.begin());
            before[i] = length > 0 ? tails.at(length - 1) : -1;
            if (it == tails.end())
                tails.append(i);
            else
                *it = i;
        }
        QVector<sPair_t> result;
        for (int i = tails.isEmpty() ? -1 : tails.last(); i >= 0; i = before.at(i))
            result.prepend(pairs.at(i));
        return result;
    }

    QVector<int> m_left;
    QVector<int> m_right;
    QVector<sRange_t> m_parts;
    QVector<LineDiff::sHunk_t> m_hunks;
    qint64 m_work = 0;
};

} // namespace

QVector<LineDiff::sHunk_t> LineDiff::compare(const QStringList& left, const QStringList& right)
{
    return Comparison(left, right).run();
}
