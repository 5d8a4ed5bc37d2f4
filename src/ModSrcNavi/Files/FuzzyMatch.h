#pragma once

#include <QString>

namespace nsModSrcNavi {

/// How well a pattern fits a name whose characters it holds in their order, without regard to case.
///
/// Better are characters in a row, at the beginning of the name or of a word in it, and short names. Blanks in the
/// pattern are ignored.
/// @return greater is better; -1: the pattern does not fit; 0 for an empty pattern
int fuzzyMatch(const QString& pattern, const QString& name);

} // namespace nsModSrcNavi
