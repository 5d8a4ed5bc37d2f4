#pragma once

#include <QList>
#include <QVector>

#include <algorithm>

namespace nsModEditor {

/// Marked lines of a document: in the order in which they were set, with a fast look-up of one line.
///
/// The marks are plain numbers, counted from 0: they stay where they are when the text moves, unless a MarkFollower
/// moves them.
class LineMarks
{
public:
    void toggle(int line)
    {
        const auto place = std::lower_bound(m_sorted.begin(), m_sorted.end(), line);
        if (place != m_sorted.end() && *place == line) {
            m_sorted.erase(place);
            m_lines.removeOne(line);
        } else {
            m_sorted.insert(place, line);
            m_lines.append(line);
        }
    }
    void clear()
    {
        m_sorted.clear();
        m_lines.clear();
    }
    /// Replaces each line by what the function makes of it; less than 0 takes the mark away. Of two marks that come to
    /// the same line one stays.
    template <class Function>
    void map(Function newLine)
    {
        QList<int> moved;
        moved.reserve(m_lines.size());
        for (const int line : qAsConst(m_lines)) {
            const int target = newLine(line);
            if (target >= 0)
                moved.append(target);
        }
        m_lines = moved;
        m_sorted = QVector<int>(moved.begin(), moved.end());
        std::sort(m_sorted.begin(), m_sorted.end());
        if (std::adjacent_find(m_sorted.begin(), m_sorted.end()) == m_sorted.end())
            return;
        clear();
        for (const int line : qAsConst(moved)) {
            if (!contains(line))
                toggle(line);
        }
    }
    bool contains(int line) const { return std::binary_search(m_sorted.begin(), m_sorted.end(), line); }
    const QList<int>& lines() const { return m_lines; }

private:
    QList<int> m_lines;
    QVector<int> m_sorted; ///< the same in ascending order
};

/// All marks of a document.
struct sDocumentMarks_t
{
    bool isEmpty() const
    {
        return simBreakpoints.lines().isEmpty() && bookmarks.lines().isEmpty() && simStartPointer < 0;
    }

    LineMarks simBreakpoints;
    LineMarks bookmarks;
    int simStartPointer = -1; ///< line; -1 for none
};

} // namespace nsModEditor
