#pragma once

#include <QStringList>
#include <QVector>

/// Where two texts differ, line by line.
///
/// The result is minimal for ordinary edits. For two large texts that have little in common the reported stretches may
/// be larger than necessary, as the work is limited.
class LineDiff
{
public:
    /// A stretch of lines on the left that has become one on the right; one of the counts may be 0, not both.
    struct sHunk_t
    {
        int left = 0; ///< first line, counted from 0
        int leftCount = 0;
        int right = 0;
        int rightCount = 0;
    };

    /// @return the differences from top to bottom, with equal lines between them; empty for equal texts
    static QVector<sHunk_t> compare(const QStringList& left, const QStringList& right);
};
