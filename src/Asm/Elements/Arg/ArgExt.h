#pragma once

#include <QString>

namespace nsModAsmFe {

/// What stood around an argument: its attribute, its range and its parentheses.
class ArgExt
{
public:
    enum eAttrType_t { unset = 0, empty = 1, upper = 2, lower = 3, length = 4, charset = 5 };
    /// Bits of `parentheses`.
    enum eParentheses_t { parenthesesNone = 0, parenthesesOpen = 1, parenthesesClose = 2, parenthesesBoth = 3 };

    QString attr;      ///< text after the last `'`, empty if none
    QString attrUpper; ///< the same in upper case
    QString range;     ///< text between `[` and `]`, empty if none
    // A program can have millions of arguments: these are kept small.
    qint16 rangeStart = 0;
    qint16 rangeStop = 0;
    qint8 attrType = unset;
    qint8 parentheses = parenthesesNone; ///< bit 0: began with `(`; bit 1: ended with `)`
};

} // namespace nsModAsmFe
