#pragma once

#include <QString>

namespace nsModSymbols {

/// A piece of a source.
struct sTextPlace
{
    QString path;   ///< absolute
    int line = 0;   ///< from 0 on
    int column = 0; ///< from 0 on
    int length = 0; ///< characters

    bool isNull() const { return path.isEmpty(); }
};

} // namespace nsModSymbols
