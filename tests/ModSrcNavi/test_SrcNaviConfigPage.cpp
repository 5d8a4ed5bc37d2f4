// The settings page of the source navigator, alone and as the dialog uses it.

#include "AppCfgOnDisk.h"
#include "FakeGuiHook.h"
#include "ModalHelper.h"
#include "NaviFixture.h"
#include "PageFixture.h"

#include "ModSrcNavi.h"
#include "MyColorSelector.h"
#include "MyFontTable.h"
#include "SrcNaviConfigPage.h"

#include <QColorDialog>
#include <QPointer>

namespace {

using nsModSrcNavi::ModSrcNavi;
using nsModSrcNavi::SrcNaviConfig;
using nsModSrcNavi::SrcNaviConfigPage;

class SrcNaviConfigPageTest : public PageFixture
{
protected:
    SrcNaviConfigPageTest()
    {
        navi.modGuiHook = &gui;
        navi.modInitIntermod();
    }
    void openPage()
    {
        page = dynamic_cast<SrcNaviConfigPage*>(navi.configPage(0));
        navi.configPageSetConfig(page);
        show(page);
        table = page->findChild<MyFontTable*>();
    }
    void closePage(bool accepted)
    {
        navi.configPageClose(accepted);
        EXPECT_TRUE(page.isNull());
    }
    QModelIndex cell(int row, int column) const { return table->model()->index(row, column); }
    QWidget* panel() { return gui.widgetNamed("Source Navigator"); }
    void addTag(const QString& title)
    {
        auto* tag = new nsModSrcNavi::NaviTag;
        tag->type = 1;
        tag->title = title;
        navi.addTag(tag);
    }

    FakeGuiHook gui;
    ModSrcNavi navi;
    QPointer<SrcNaviConfigPage> page;
    MyFontTable* table = nullptr;
};

TEST_F(SrcNaviConfigPageTest, FixedTexts)
{
    openPage();
    EXPECT_EQ(page->pageTitle(), "Source Navi");
    EXPECT_EQ(page->pageHelpRef(), "pageId://configPageSourceNavi");
    EXPECT_FALSE(page->pageIcon().pixmap(48, 48).isNull());
    for (const char* text : {"Code Navigator Configuration", "Widget behavior", "Code navigator widget location:",
                             "Startup tag list sort mode:", "Navigator tree", "Bookmark symbol color:", "Fonts:"})
        EXPECT_TRUE(labels(page).contains(text)) << text;
    const auto texts = [this](const char* label) {
        QStringList result;
        auto* box = field<QComboBox>(page, label);
        for (int i = 0; box != nullptr && i < box->count(); ++i)
            result.append(box->itemText(i));
        return result;
    };
    EXPECT_EQ(texts("Code navigator widget location:"), QStringList({"Disabled", "Left side", "Right side"}));
    EXPECT_EQ(texts("Startup tag list sort mode:"),
              QStringList({"Document structure", "Plain Ascent", "Plain Descent"}));
    QStringList rows;
    for (int i = 0; i < table->model()->rowCount(); ++i)
        rows.append(cell(i, 0).data().toString());
    EXPECT_EQ(rows, QStringList({"Label", "Hardware title", "Contant title", "Separator title", "Group title"}));
    expectToolTips(page);
}

TEST_F(SrcNaviConfigPageTest, TheLocationMovesThePanel)
{
    QWidget* widget = panel();
    ASSERT_NE(widget, nullptr);
    ASSERT_TRUE(gui.hasWidget(ModGuiHookIf::eLocationDockLeft, widget));
    openPage();
    choose(field<QComboBox>(page, "Code navigator widget location:"), "Right side");
    EXPECT_TRUE(gui.hasWidget(ModGuiHookIf::eLocationDockLeft, widget)) << "not before the dialog is accepted";
    closePage(true);
    EXPECT_TRUE(gui.hasWidget(ModGuiHookIf::eLocationDockRight, widget));
    openPage();
    EXPECT_EQ(field<QComboBox>(page, "Code navigator widget location:")->currentText(), "Right side");
    choose(field<QComboBox>(page, "Code navigator widget location:"), "Disabled");
    closePage(true);
    EXPECT_EQ(panel(), nullptr);
    EXPECT_TRUE(widget->isHidden());
    openPage();
    choose(field<QComboBox>(page, "Code navigator widget location:"), "Left side");
    closePage(true);
    EXPECT_EQ(panel(), widget);
    EXPECT_FALSE(widget->isHidden());
}

TEST_F(SrcNaviConfigPageTest, TheSortModeSortsAtOnceAndBothWays)
{
    addTag("b");
    addTag("c");
    addTag("a");
    navi.showTagList();
    const NaviHand hand(panel());
    EXPECT_EQ(hand.outline(), QStringList({"b", "c", "a"}));
    openPage();
    choose(field<QComboBox>(page, "Startup tag list sort mode:"), "Plain Descent");
    closePage(true);
    EXPECT_EQ(hand.outline(), QStringList({"c", "b", "a"}));
    EXPECT_EQ(hand.sortBox->currentText(), "Plain Descent");
    openPage();
    choose(field<QComboBox>(page, "Startup tag list sort mode:"), "Document structure");
    closePage(true);
    EXPECT_EQ(hand.outline(), QStringList({"b", "c", "a"}));
    EXPECT_EQ(hand.sortBox->currentText(), "Document structure");
}

TEST_F(SrcNaviConfigPageTest, FormatsShowInTheTree)
{
    addTag("a");
    navi.showTagList();
    openPage();
    table->setFocus();
    table->setCurrentIndex(cell(SrcNaviConfig::fontLabel, MyFontTable::columnBold));
    QTest::keyClick(table, Qt::Key_Space);
    QTest::keyClick(table, Qt::Key_Right);
    QTest::keyClick(table, Qt::Key_Space);
    ModalHelper helper([](QDialog* dialog) {
        qobject_cast<QColorDialog*>(dialog)->setCurrentColor(QColor(1, 2, 3));
        dialog->accept();
    });
    const QRect rect = table->visualRect(cell(SrcNaviConfig::fontLabel, MyFontTable::columnContext));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, rect.center());
    EXPECT_EQ(helper.seen(), 1);
    closePage(true);
    const NaviHand hand(panel());
    EXPECT_FALSE(hand.item("a")->font(0).bold());
    EXPECT_TRUE(hand.item("a")->font(0).italic());
    EXPECT_EQ(hand.item("a")->foreground(0).color(), QColor(1, 2, 3));
}

TEST_F(SrcNaviConfigPageTest, CancelRestoreAndDefaults)
{
    navi.naviWidgetLocation = SrcNaviConfig::locationRight;
    openPage();
    auto* location = field<QComboBox>(page, "Code navigator widget location:");
    choose(location, "Disabled");
    navi.configPageSetConfig(page);
    EXPECT_EQ(location->currentText(), "Right side");
    page->setDefaultConfig();
    EXPECT_EQ(location->currentText(), "Left side");
    closePage(false);
    EXPECT_EQ(navi.naviWidgetLocation, int(SrcNaviConfig::locationRight));
    navi.configPageClose(true);
    EXPECT_EQ(navi.naviWidgetLocation, int(SrcNaviConfig::locationRight));
}

TEST_F(SrcNaviConfigPageTest, TheSettingsSurviveARestart)
{
    AppCfgOnDisk disk;
    disk.start(&navi);
    openPage();
    choose(field<QComboBox>(page, "Code navigator widget location:"), "Right side");
    choose(field<QComboBox>(page, "Startup tag list sort mode:"), "Plain Ascent");
    table->setFocus();
    table->setCurrentIndex(cell(SrcNaviConfig::fontSep, MyFontTable::columnBold));
    QTest::keyClick(table, Qt::Key_Space);
    closePage(true);
    disk.save();
    disk.end(&navi);
    EXPECT_EQ(disk.stored("ModSrcNavi/naviWidgetLocation"), "2");
    EXPECT_EQ(disk.stored("ModSrcNavi/tagListSortMode"), "1");
    EXPECT_EQ(disk.stored("ModSrcNavi/font/sep/weight"), "50");
    EXPECT_EQ(disk.stored("ModSrcNavi/font/hw/weight"), "75");
    ModSrcNavi next;
    disk.start(&next);
    EXPECT_EQ(next.naviWidgetLocation, 2);
    EXPECT_EQ(next.tagListSortMode, 1);
    EXPECT_EQ(next.fontFormats[SrcNaviConfig::fontSep].fontWeight(), 0);
    disk.end(&next);
}

TEST_F(SrcNaviConfigPageTest, Pictures)
{
    openPage();
    screenshot("configPageSourceNavi");
}

} // namespace
