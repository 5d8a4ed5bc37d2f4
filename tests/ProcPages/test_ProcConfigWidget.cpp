// The settings widgets of the processors: their controls, what they show, and what is taken out of them.

#include "PageFixture.h"
#include "QtPrinters.h"

#include "LMico8v3xConfig.h"
#include "LMico8v3xConfigWidget.h"
#include "XPBlze3Config.h"
#include "XPBlze3ConfigWidget.h"
#include "XPBlze6Config.h"
#include "XPBlze6ConfigWidget.h"

#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

#include <limits>

namespace {

class HelpCounter : public nsModProcessor::ProcConfigHookIf
{
public:
    void setWidgetHelpChanged() override { ++changes; }

    int changes = 0;
};

class ProcConfigWidgetTest : public PageFixture
{
protected:
    ~ProcConfigWidgetTest() override
    {
        for (QWidget* widget :
             {static_cast<QWidget*>(&blaze3), static_cast<QWidget*>(&blaze6), static_cast<QWidget*>(&mico8)})
            widget->setParent(nullptr);
    }
    void present(QWidget* widget)
    {
        if (area.widget() != nullptr)
            area.takeWidget();
        show(widget);
    }
    static QStringList comboTexts(const QComboBox* box)
    {
        QStringList texts;
        for (int i = 0; i < box->count(); ++i)
            texts.append(box->itemText(i));
        return texts;
    }

    nsXPBlze3::XPBlze3ConfigWidget blaze3;
    nsXPBlze6::XPBlze6ConfigWidget blaze6;
    nsLMico8v3x::LMico8v3xConfigWidget mico8;
};

TEST_F(ProcConfigWidgetTest, EachHasTheTabsOfCoreAndMemory)
{
    for (QWidget* widget :
         {static_cast<QWidget*>(&blaze3), static_cast<QWidget*>(&blaze6), static_cast<QWidget*>(&mico8)}) {
        auto* tabs = widget->findChild<QTabWidget*>();
        ASSERT_NE(tabs, nullptr);
        ASSERT_EQ(tabs->count(), 3);
        EXPECT_EQ(tabs->tabText(0), "Processor core");
        EXPECT_EQ(tabs->tabText(1), "Instruction memory");
        EXPECT_EQ(tabs->tabText(2), "Simulation");
        EXPECT_EQ(tabs->widget(0)->objectName(), "configWidget");
        EXPECT_EQ(tabs->widget(1)->objectName(), "configWidget");
        expectToolTips(widget);
    }
}

TEST_F(ProcConfigWidgetTest, LabelsAndUnits)
{
    EXPECT_EQ(labels(blaze3.findChild<QTabWidget*>()->widget(0)), QStringList({"Clock frequency:", "MHz"}));
    EXPECT_EQ(labels(blaze3.findChild<QTabWidget*>()->widget(1)), QStringList({"Instruction memory page size:", "kB"}));
    EXPECT_EQ(
        labels(blaze6.findChild<QTabWidget*>()->widget(0)),
        QStringList({"Clock frequency:", "MHz", "Scratchpad size:", "Bytes", "Interrupt vector address:", "= 0xFFF"}));
    EXPECT_EQ(labels(mico8.findChild<QTabWidget*>()->widget(0)),
              QStringList({"Clock frequency:", "MHz", "Register count:", "Internal scratchpad size:", "Bytes",
                           "Instruction clock cycle count:", "Clock cycles"}));
}

TEST_F(ProcConfigWidgetTest, RangesAndStartValues)
{
    for (QWidget* widget :
         {static_cast<QWidget*>(&blaze3), static_cast<QWidget*>(&blaze6), static_cast<QWidget*>(&mico8)}) {
        EXPECT_EQ(field<QDoubleSpinBox>(widget, "Clock frequency:")->maximum(), 10000);
        auto* pageSize = field<QSpinBox>(widget, "Instruction memory page size:");
        EXPECT_EQ(pageSize->minimum(), 0);
        EXPECT_EQ(pageSize->maximum(), 4096);
        EXPECT_EQ(pageSize->value(), 1024);
    }
    auto* vector = field<QSpinBox>(&blaze6, "Interrupt vector address:");
    EXPECT_EQ(vector->minimum(), 0);
    EXPECT_EQ(vector->maximum(), 4095);
    EXPECT_EQ(vector->value(), 4095);
    EXPECT_EQ(comboTexts(field<QComboBox>(&blaze6, "Scratchpad size:")), QStringList({"64", "128", "256"}));
    EXPECT_EQ(comboTexts(field<QComboBox>(&mico8, "Register count:")), QStringList({"16", "32"}));
    auto* scrpd = field<QDoubleSpinBox>(&mico8, "Internal scratchpad size:");
    EXPECT_EQ(scrpd->minimum(), 32);
    EXPECT_EQ(scrpd->maximum(), 4294967296.0);
    EXPECT_EQ(field<QSpinBox>(&mico8, "Instruction clock cycle count:")->maximum(), 10000);
}

TEST_F(ProcConfigWidgetTest, ShowsHertzInMegahertzAndLosesNone)
{
    nsXPBlze3::XPBlze3Config config;
    config.clkFreq = 33333333;
    blaze3.setConfig(&config);
    auto* clock = field<QDoubleSpinBox>(&blaze3, "Clock frequency:");
    EXPECT_EQ(clock->cleanText(), "33.333333");
    nsXPBlze3::XPBlze3Config taken;
    blaze3.config(&taken);
    EXPECT_EQ(taken.clkFreq, 33333333);

    config.clkFreq = 80000000;
    blaze3.setConfig(&config);
    EXPECT_EQ(clock->cleanText(), "80") << "decimals that say nothing are not shown";
    config.clkFreq = 10e9;
    blaze3.setConfig(&config);
    EXPECT_EQ(clock->cleanText(), "10000");
    blaze3.config(&taken);
    EXPECT_EQ(taken.clkFreq, 10e9) << "more than an int holds";
}

TEST_F(ProcConfigWidgetTest, TypedValuesComeOut)
{
    present(&mico8);
    type(field<QDoubleSpinBox>(&mico8, "Clock frequency:"), "12.5");
    choose(field<QComboBox>(&mico8, "Register count:"), "16");
    type(field<QDoubleSpinBox>(&mico8, "Internal scratchpad size:"), "2048");
    type(field<QSpinBox>(&mico8, "Instruction clock cycle count:"), "3");
    mico8.findChild<QTabWidget*>()->setCurrentIndex(1);
    type(field<QSpinBox>(&mico8, "Instruction memory page size:"), "512");
    nsLMico8v3x::LMico8v3xConfig config;
    config.pageCount = 7;
    config.intVectorAddr = 0;
    mico8.config(&config);
    EXPECT_EQ(config.clkFreq, 12500000);
    EXPECT_EQ(config.regCount, 16);
    EXPECT_EQ(config.scrpdSize, 2048);
    EXPECT_EQ(config.instrClkCnt, 3);
    EXPECT_EQ(config.pageSize, 512);
    EXPECT_EQ(config.pageCount, 7) << "what no control stands for stays";
}

TEST_F(ProcConfigWidgetTest, TheLargestScratchpadIsWhatASettingHolds)
{
    present(&mico8);
    type(field<QDoubleSpinBox>(&mico8, "Internal scratchpad size:"), "4294967296");
    EXPECT_EQ(field<QDoubleSpinBox>(&mico8, "Internal scratchpad size:")->value(), 4294967296.0);
    nsLMico8v3x::LMico8v3xConfig config;
    mico8.config(&config);
    EXPECT_EQ(config.scrpdSize, std::numeric_limits<int>::max());
}

TEST_F(ProcConfigWidgetTest, AValueThatIsNotInTheListStaysUntilAnotherIsChosen)
{
    nsXPBlze6::XPBlze6Config config;
    config.scrpdSize = 100;
    blaze6.setConfig(&config);
    blaze6.config(&config);
    EXPECT_EQ(config.scrpdSize, 100);
    present(&blaze6);
    choose(field<QComboBox>(&blaze6, "Scratchpad size:"), "256");
    blaze6.config(&config);
    EXPECT_EQ(config.scrpdSize, 256);
}

TEST_F(ProcConfigWidgetTest, DefaultsAreThoseOfANewProcessor)
{
    nsXPBlze6::XPBlze6Config config;
    config.scrpdSize = 256;
    config.intVectorAddr = 17;
    config.clkFreq = 1;
    config.pageSize = 2;
    blaze6.setConfig(&config);
    blaze6.setDefaultConfig();
    blaze6.config(&config);
    EXPECT_EQ(config.scrpdSize, 64);
    EXPECT_EQ(config.intVectorAddr, 1023);
    EXPECT_EQ(config.clkFreq, 80000000);
    EXPECT_EQ(config.pageSize, 1024);

    nsLMico8v3x::LMico8v3xConfig mico;
    mico8.setDefaultConfig();
    mico8.config(&mico);
    EXPECT_EQ(mico.scrpdSize, 32);
    EXPECT_EQ(mico.regCount, 32);
    EXPECT_EQ(mico.instrClkCnt, 2);
}

TEST_F(ProcConfigWidgetTest, TheInterruptVectorIsReadAndShownInHexadecimalToo)
{
    nsXPBlze6::XPBlze6Config config;
    blaze6.setConfig(&config);
    present(&blaze6);
    auto* box = blaze6.findChild<QSpinBox*>("intVectorAddr");
    const auto* hex = blaze6.findChild<QLabel*>("intVectorAddrHex");
    ASSERT_NE(hex, nullptr);
    EXPECT_EQ(box->text(), "1023");
    EXPECT_EQ(hex->text(), "= 0x3FF");
    const auto retype = [box](const QString& text) {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Return);
    };
    retype("0x3f0");
    EXPECT_EQ(box->value(), 0x3F0);
    EXPECT_EQ(box->text(), "1008");
    EXPECT_EQ(hex->text(), "= 0x3F0");
    retype("17");
    EXPECT_EQ(hex->text(), "= 0x011");
    // A digit that would lead out of the range is not taken.
    retype("0xFFFF");
    EXPECT_EQ(box->value(), 0xFFF);
    blaze6.config(&config);
    EXPECT_EQ(config.intVectorAddr, 0xFFF);
}

TEST_F(ProcConfigWidgetTest, AChangeOfTabAsksForOtherHelp)
{
    HelpCounter counter;
    present(&blaze6);
    blaze6.procConfigHook = &counter;
    QTabBar* bar = blaze6.findChild<QTabBar*>();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
    EXPECT_EQ(counter.changes, 1);
    blaze6.initWidget();
    EXPECT_EQ(blaze6.findChild<QTabWidget*>()->currentIndex(), 0);
    blaze6.procConfigHook = nullptr;
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
    EXPECT_EQ(counter.changes, 2) << "without a page nobody is told";
    EXPECT_EQ(blaze3.widgetHelpRef(), "pageId://configPageXPBlze3Processor");
    EXPECT_EQ(blaze6.widgetHelpRef(), "pageId://configPageXPBlze6Processor");
    EXPECT_EQ(mico8.widgetHelpRef(), "pageId://configPageLMico8v3xProcessor");
}

} // namespace
