// The settings page of the update check, by keys, through two starts of the program.

#include "AppCfgOnDisk.h"
#include "ModSwUpdate.h"
#include "PageFixture.h"
#include "QtPrinters.h"
#include "SwUpdateConfigPage.h"

#include <QPointer>

namespace {

using nsModSwUpdate::ModSwUpdate;
using nsModSwUpdate::SwUpdateConfig;
using nsModSwUpdate::SwUpdateConfigPage;

class SwUpdateConfigPageTest : public PageFixture
{
protected:
    void openPage()
    {
        page = dynamic_cast<SwUpdateConfigPage*>(module.configPage(0));
        module.configPageSetConfig(page);
        show(page);
        interval = field<QComboBox>(page, "Update check interval:");
        timeOut = field<QSpinBox>(page, "Update check timeout:");
        ASSERT_NE(interval, nullptr);
        ASSERT_NE(timeOut, nullptr);
    }

    ModSwUpdate module;
    QPointer<SwUpdateConfigPage> page;
    QComboBox* interval = nullptr;
    QSpinBox* timeOut = nullptr;
};

TEST_F(SwUpdateConfigPageTest, textsAndRanges)
{
    openPage();
    EXPECT_EQ(page->pageTitle(), "Updates");
    EXPECT_EQ(page->pageHelpRef(), "pageId://configPageSwUpdate");
    EXPECT_FALSE(page->pageIcon().pixmap(48, 48).isNull());
    EXPECT_TRUE(page->pageIsEnabled());
    EXPECT_TRUE(page->checkConfig());
    for (const char* text : {"Update check configuration", "Current release:", "seconds"})
        EXPECT_TRUE(labels(page).contains(text)) << text;
    auto* release = field<QLineEdit>(page, "Current release:");
    ASSERT_NE(release, nullptr);
    EXPECT_EQ(release->text(), "2016-9.1");
    EXPECT_TRUE(release->isReadOnly());
    QStringList entries;
    for (int i = 0; i < interval->count(); ++i)
        entries.append(interval->itemText(i) + ' ' + interval->itemData(i).toString());
    EXPECT_EQ(entries, (QStringList{"Daily 1", "Weekly 2", "Monthly 3", "Never 0"}));
    EXPECT_EQ(interval->currentText(), "Daily");
    EXPECT_EQ(timeOut->minimum(), 5);
    EXPECT_EQ(timeOut->maximum(), 60);
    EXPECT_EQ(timeOut->value(), 20);
    expectToolTips(page);
    screenshot("config-updates");
    module.configPageClose(false);
    EXPECT_TRUE(page.isNull());
}

TEST_F(SwUpdateConfigPageTest, whatIsAppliedIsThereAfterARestart)
{
    AppCfgOnDisk disk;
    disk.start(&module);
    openPage();
    choose(interval, "Never");
    type(timeOut, "45");
    module.configPageClose(true);
    disk.save();
    EXPECT_EQ(disk.stored("ModSwUpdate/updateCheckInterval"), "0");
    EXPECT_EQ(disk.stored("ModSwUpdate/timeOut"), "45");
    disk.end(&module);
    ModSwUpdate next;
    disk.start(&next);
    EXPECT_EQ(next.updateCheckInterval, SwUpdateConfig::intervalNever);
    EXPECT_EQ(next.timeOut, 45);
    disk.end(&next);
}

TEST_F(SwUpdateConfigPageTest, whatIsNotAppliedIsDropped)
{
    openPage();
    choose(interval, "Weekly");
    type(timeOut, "60");
    module.configPageClose(false);
    EXPECT_EQ(module.updateCheckInterval, SwUpdateConfig::intervalDaily);
    EXPECT_EQ(module.timeOut, 20);
}

TEST_F(SwUpdateConfigPageTest, defaultsAndRestore)
{
    module.updateCheckInterval = SwUpdateConfig::intervalMonthly;
    module.timeOut = 30;
    openPage();
    EXPECT_EQ(interval->currentText(), "Monthly");
    page->setDefaultConfig();
    EXPECT_EQ(interval->currentText(), "Daily");
    EXPECT_EQ(timeOut->value(), 20);
    module.configPageSetConfig(page);
    EXPECT_EQ(interval->currentText(), "Monthly");
    EXPECT_EQ(timeOut->value(), 30);
    module.configPageClose(false);
}

TEST_F(SwUpdateConfigPageTest, itSaysWhenThereIsNoServer)
{
    openPage();
    EXPECT_TRUE(labels(page).contains("This build has no update server, so it never checks for updates."));
    module.configPageClose(false);
    module.setAddresses({"127.0.0.1:1", ""});
    openPage();
    EXPECT_FALSE(labels(page).contains("This build has no update server, so it never checks for updates."));
    module.configPageClose(false);
}

} // namespace
