#include "SrcNaviConfig.h"

#include "CfgLookItems.h"
#include "ModCfgAppHookIf.h"

#include <QFont>

namespace nsModSrcNavi {

namespace {

const QString keyLocation = QStringLiteral("ModSrcNavi/naviWidgetLocation");
const QString keySortMode = QStringLiteral("ModSrcNavi/tagListSortMode");
const QString keyBookmarkColor = QStringLiteral("ModSrcNavi/bookmarkSymbolColor");
const QString keyFont = QStringLiteral("ModSrcNavi/font/");

struct sFontContext_t
{
    const char* key;
    Colors::eRole_t color;
};

const sFontContext_t fontContexts[SrcNaviConfig::fontContextCount] = {
    {"label", Colors::eNaviLabel}, {"hw", Colors::eNaviHw},          {"const", Colors::eNaviConst},
    {"sep", Colors::eNaviTitle},   {"grpBegin", Colors::eNaviTitle},
};

template <class Items, class Config>
void allItems(Items items, Config& config)
{
    items.choice(keyLocation, config.naviWidgetLocation, SrcNaviConfig::locationRight);
    items.choice(keySortMode, config.tagListSortMode, SrcNaviConfig::sortPlainDescent);
    items.item(keyBookmarkColor, config.bookmarkSymbolColor);
    for (int i = 0; i < SrcNaviConfig::fontContextCount; ++i)
        items.item(keyFont + QLatin1String(fontContexts[i].key), config.fontFormats[i]);
}

} // namespace

SrcNaviConfig::SrcNaviConfig()
{
    for (int i = 0; i < fontContextCount; ++i) {
        fontFormats[i].setFontWeight(QFont::Bold);
        fontFormats[i].setForeground(Colors::of(fontContexts[i].color, Colors::eLight));
    }
}

Colors::eRole_t SrcNaviConfig::colorOf(eFontContext_t context)
{
    return fontContexts[context].color;
}

void SrcNaviConfig::rdSrcNaviConfig(ModCfgAppHookIf* cfg)
{
    allItems(CfgLookReader<ModCfgAppHookIf>(cfg), *this);
}

void SrcNaviConfig::wrSrcNaviConfig(ModCfgAppHookIf* cfg) const
{
    allItems(CfgLookWriter<ModCfgAppHookIf>(cfg), *this);
}

} // namespace nsModSrcNavi
