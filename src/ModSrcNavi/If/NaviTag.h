#pragma once

#include <QString>

namespace nsModSrcNavi {

/// One entry of the source navigator, made by the assembler while it reads the sources.
struct NaviTag
{
    /// Kind of an entry.
    enum eType_t {
        typeUnset = 0,
        typeLabel = 1,
        typeHardware = 2,
        typeConstant = 3,
        typeSeparator = 4,
        typeGroupBegin = 5,
        typeGroupEnd = 6,
    };

    int type = typeUnset;
    QString filePath;      ///< absolute
    int line = 0;          ///< counted from 0
    QString lineRef;       ///< text that finds the line again after edits; empty for a label, whose title does
    QString title;         ///< what the navigator shows
    bool disabled = false; ///< the line lies in a conditional branch that is skipped
};

} // namespace nsModSrcNavi
