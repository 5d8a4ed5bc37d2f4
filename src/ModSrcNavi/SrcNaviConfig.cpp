#include "SrcNaviConfig.h"

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

/// A weight of 0 is stored as the weight of a normal font.
int storedWeight(const QTextCharFormat& format)
{
    return format.fontWeight() == 0 ? int(QFont::Normal) : format.fontWeight();
}

int valueInRange(ModCfgAppHookIf* cfg, const QString& key, int present, int last)
{
    const int value = cfg->value(key, present);
    return value >= 0 && value <= last ? value : present;
}

void rdAppCfgFontFormat(ModCfgAppHookIf* cfg, const QString& context, QTextCharFormat* format)
{
    const QString key = keyFont + context;
    const int weight = valueInRange(cfg, key + QStringLiteral("/weight"), storedWeight(*format), 99);
    format->setFontWeight(weight == QFont::Normal ? 0 : weight);
    format->setFontItalic(cfg->value(key + QStringLiteral("/italic"), int(format->fontItalic())) != 0);
    const QColor color = cfg->value(key + QStringLiteral("/color"), format->foreground().color());
    if (color.isValid())
        format->setForeground(color);
}

void wrAppCfgFontFormat(ModCfgAppHookIf* cfg, const QString& context, const QTextCharFormat& format)
{
    const QString key = keyFont + context;
    cfg->setValue(key + QStringLiteral("/weight"), storedWeight(format));
    cfg->setValue(key + QStringLiteral("/italic"), int(format.fontItalic()));
    cfg->setValue(key + QStringLiteral("/color"), format.foreground().color());
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
    naviWidgetLocation = valueInRange(cfg, keyLocation, naviWidgetLocation, locationRight);
    tagListSortMode = valueInRange(cfg, keySortMode, tagListSortMode, sortPlainDescent);
    const QColor color = cfg->value(keyBookmarkColor, bookmarkSymbolColor);
    if (color.isValid())
        bookmarkSymbolColor = color;
    for (int i = 0; i < fontContextCount; ++i)
        rdAppCfgFontFormat(cfg, QString::fromLatin1(fontContexts[i].key), &fontFormats[i]);
}

void SrcNaviConfig::wrSrcNaviConfig(ModCfgAppHookIf* cfg) const
{
    cfg->setValue(keyLocation, naviWidgetLocation);
    cfg->setValue(keySortMode, tagListSortMode);
    cfg->setValue(keyBookmarkColor, bookmarkSymbolColor);
    for (int i = 0; i < fontContextCount; ++i)
        wrAppCfgFontFormat(cfg, QString::fromLatin1(fontContexts[i].key), fontFormats[i]);
}

} // namespace nsModSrcNavi
