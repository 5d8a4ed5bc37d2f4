#pragma once

#include <QString>

namespace nsModSrcNavi {

/// A name of the program with the place that defines it.
struct NaviSymbol
{
    QString name;   ///< with its namespace
    QString note;   ///< what it is, in a few words
    QString file;   ///< absolute
    int line = 0;   ///< counted from 0
    int column = 0; ///< of its first character, from 0 on
    int length = 0; ///< characters
};

} // namespace nsModSrcNavi
