#include "FakeHooks.h"
#include "QtPrinters.h"
#include "SrcNaviConfig.h"

#include <gtest/gtest.h>

#include <QFont>

using namespace nsModSrcNavi;

namespace {

const char* const contexts[] = {"label", "hw", "const", "sep", "grpBegin"};

} // namespace

TEST(SrcNaviConfig, hasItsDefaults)
{
    SrcNaviConfig config;
    EXPECT_EQ(config.naviWidgetLocation, 1);
    EXPECT_EQ(config.reserved, 0);
    EXPECT_EQ(config.tagListSortMode, 0);
    EXPECT_EQ(config.bookmarkSymbolColor, QColor(Qt::darkYellow));
    const Qt::GlobalColor colors[] = {Qt::black, Qt::darkBlue, Qt::darkGreen, Qt::darkYellow, Qt::darkYellow};
    for (int i = 0; i < SrcNaviConfig::fontContextCount; ++i) {
        EXPECT_EQ(config.fontFormats[i].fontWeight(), QFont::Bold) << contexts[i];
        EXPECT_FALSE(config.fontFormats[i].fontItalic()) << contexts[i];
        EXPECT_EQ(config.fontFormats[i].foreground().color(), QColor(colors[i])) << contexts[i];
    }
}

TEST(SrcNaviConfig, writesItsKeysAndNoOther)
{
    FakeCfgAppHook cfg;
    SrcNaviConfig().wrSrcNaviConfig(&cfg);
    QStringList expected = {"ModSrcNavi/naviWidgetLocation", "ModSrcNavi/tagListSortMode",
                            "ModSrcNavi/bookmarkSymbolColor"};
    for (const char* context : contexts) {
        for (const char* part : {"weight", "italic", "color"})
            expected.append(QString("ModSrcNavi/font/%1/%2").arg(context, part));
    }
    QStringList keys = cfg.tree.values.keys();
    expected.sort();
    keys.sort();
    EXPECT_EQ(keys, expected);
}

TEST(SrcNaviConfig, survivesARestart)
{
    SrcNaviConfig config;
    config.naviWidgetLocation = 2;
    config.tagListSortMode = 1;
    config.bookmarkSymbolColor = QColor("#123456");
    config.fontFormats[SrcNaviConfig::fontHw].setFontWeight(0);
    config.fontFormats[SrcNaviConfig::fontHw].setFontItalic(true);
    config.fontFormats[SrcNaviConfig::fontHw].setForeground(QColor("#abcdef"));
    FakeCfgAppHook cfg;
    config.wrSrcNaviConfig(&cfg);
    EXPECT_EQ(cfg.value("ModSrcNavi/font/hw/weight", -1), 50);

    SrcNaviConfig read;
    read.rdSrcNaviConfig(&cfg);
    EXPECT_EQ(read.naviWidgetLocation, 2);
    EXPECT_EQ(read.tagListSortMode, 1);
    EXPECT_EQ(read.bookmarkSymbolColor, QColor("#123456"));
    EXPECT_EQ(read.fontFormats[SrcNaviConfig::fontHw].fontWeight(), 0);
    EXPECT_TRUE(read.fontFormats[SrcNaviConfig::fontHw].fontItalic());
    EXPECT_EQ(read.fontFormats[SrcNaviConfig::fontHw].foreground().color(), QColor("#abcdef"));
    EXPECT_EQ(read.fontFormats[SrcNaviConfig::fontSep].fontWeight(), QFont::Bold);
}

TEST(SrcNaviConfig, missingAndSenselessValuesLeaveTheFields)
{
    FakeCfgAppHook cfg;
    SrcNaviConfig config;
    config.tagListSortMode = 2;
    config.rdSrcNaviConfig(&cfg);
    EXPECT_EQ(config.tagListSortMode, 2);
    EXPECT_TRUE(cfg.tree.values.isEmpty());
    cfg.setValue("ModSrcNavi/naviWidgetLocation", 3);
    cfg.setValue("ModSrcNavi/tagListSortMode", -1);
    cfg.setValue("ModSrcNavi/bookmarkSymbolColor", QColor());
    cfg.setValue("ModSrcNavi/font/label/color", QColor());
    cfg.setValue("ModSrcNavi/font/label/weight", 1000);
    config.rdSrcNaviConfig(&cfg);
    EXPECT_EQ(config.naviWidgetLocation, 1);
    EXPECT_EQ(config.tagListSortMode, 2);
    EXPECT_EQ(config.bookmarkSymbolColor, QColor(Qt::darkYellow));
    EXPECT_EQ(config.fontFormats[0].foreground().color(), QColor(Qt::black));
    EXPECT_EQ(config.fontFormats[0].fontWeight(), QFont::Bold);
}
