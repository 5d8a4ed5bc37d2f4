#pragma once

#include <QString>

namespace nsModEditor {

/// A bracket of a line and its partner, as positions in the text.
struct sBracketPair_t
{
    int at = -1; ///< -1: there is none
    int partner = -1;
};

/// The pair of the bracket after the position, or of the one before it. Brackets in a string or a comment have their
/// partner there. No bracket of the language has its partner in another line.
sBracketPair_t bracketPairAt(const QString& line, int position);

} // namespace nsModEditor
