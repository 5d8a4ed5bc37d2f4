#pragma once

#include <QVector>

namespace nsModEditor {

/// A run of characters of one line that have the same format.
struct HighlightSpan
{
    int start;
    int length;
    int format; ///< index among the formats of the matcher
};

using HighlightSpans = QVector<HighlightSpan>;

} // namespace nsModEditor
