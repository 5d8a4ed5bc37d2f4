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
    Qt::GlobalColor color;
};

const sFontContext_t fontContexts[SrcNaviConfig::fontContextCount] = {
    {"label", Qt::black},    {"hw", Qt::darkBlue},         {"const", Qt::darkGreen},
    {"sep", Qt::darkYellow}, {"grpBegin", Qt::darkYellow},
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
        fontFormats[i].setForeground(QColor(fontContexts[i].color));
    }
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
