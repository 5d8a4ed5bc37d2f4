#pragma once

#include <QList>
#include <QSet>

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
        if (m_set.contains(line)) {
            m_set.remove(line);
            m_lines.removeOne(line);
        } else {
            m_set.insert(line);
            m_lines.append(line);
        }
    }
    void clear()
    {
        m_set.clear();
        m_lines.clear();
    }
    /// Replaces each line by what the function makes of it; less than 0 takes the mark away. Of two marks that come to
    /// the same line one stays.
    template <class Function>
    void map(Function newLine)
    {
        const QList<int> lines = m_lines;
        clear();
        for (const int line : lines) {
            const int moved = newLine(line);
            if (moved >= 0 && !contains(moved))
                toggle(moved);
        }
    }
    bool contains(int line) const { return m_set.contains(line); }
    const QList<int>& lines() const { return m_lines; }

private:
    QList<int> m_lines;
    QSet<int> m_set;
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
