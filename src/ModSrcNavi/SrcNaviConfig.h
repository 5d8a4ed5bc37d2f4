#pragma once

#include "Colors.h"

#include <QColor>
#include <QTextCharFormat>

class ModCfgAppHookIf;

namespace nsModSrcNavi {

/// Where the navigator stands, how it sorts and how its entries look.
class SrcNaviConfig
{
public:
    enum eLocation_t { locationDisabled = 0, locationLeft = 1, locationRight = 2 };

    /// Order of the entries.
    enum eTagListSortMode_t { sortDocument = 0, sortPlainAscent = 1, sortPlainDescent = 2 };

    /// Kinds of entries with a format of their own, in the order in which the user sees them.
    enum eFontContext_t {
        fontLabel,
        fontHw,
        fontConst,
        fontSep,
        fontGrpBegin,
        fontContextCount, ///< number of contexts, not a context
    };

    SrcNaviConfig();

    /// Reads all keys from the application's settings. A missing key, or one with an invalid value, leaves the field as
    /// it is.
    void rdSrcNaviConfig(ModCfgAppHookIf* cfg);
    void wrSrcNaviConfig(ModCfgAppHookIf* cfg) const;

    /// The colour of a new user's entries.
    static Colors::eRole_t colorOf(eFontContext_t context);

    int naviWidgetLocation = locationLeft; ///< a value of eLocation_t
    int reserved = 0;
    int tagListSortMode = sortDocument; ///< a value of eTagListSortMode_t
    QColor bookmarkSymbolColor = Colors::of(Colors::eMarkBookmark, Colors::eLight);
    QTextCharFormat fontFormats[fontContextCount];
};

} // namespace nsModSrcNavi
