// The settings page on which the project's processor is chosen.

#include "PageFixture.h"
#include "QtPrinters.h"
#include "RegistryFixture.h"

#include "ModConfigPageHookIf.h"
#include "ModPrj.h"
#include "ProcConfigPage.h"
#include "ProcShell.h"

#include <QPointer>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTemporaryDir>

namespace {

using nsModProcessor::ProcConfigPage;

class HelpRecorder : public nsModConfig::ModConfigPageHookIf
{
public:
    void showDialogPageHelp(nsModConfig::ModConfigPagePluginIf* page) override { refs.append(page->pageHelpRef()); }

    QStringList refs;
};

/// The registry with its page, as the settings dialog calls it.
class ProcConfigPageTest : public PageFixture
{
protected:
    ProcConfigPageTest()
    {
        prj.registerPlugin(static_cast<ModPrjPluginIf*>(&registry));
        registry.modMsgHook = &msg;
        registry.modGuiHook = &gui;
        registry.modEditorHook = &editor;
        registry.modAsmFeHook = &asmFe;
        registry.modActionHook = &action;
        registry.modCfgAppHook = &cfgApp;
    }
    ~ProcConfigPageTest() override { registry.prjClose(); }

    void open(const QString& name)
    {
        prj.tree.set("ModProcessor/processor", name);
        prj.open("/nowhere/p.nalvo");
    }
    void openPage()
    {
        page = dynamic_cast<ProcConfigPage*>(registry.configPage(0));
        ASSERT_NE(page, nullptr);
        registry.configPageSetConfig(page);
        page->setPrjConfigEnabled(prj.isValid());
        show(page);
    }
    void closePage(bool accept)
    {
        registry.configPageClose(accept);
        EXPECT_TRUE(page.isNull());
    }
    QComboBox* combo() { return field<QComboBox>(page, "Processor:"); }
    QStackedWidget* stack() { return page->findChild<QStackedWidget*>("processorConfig"); }
    nsModProcessor::ProcPluginIf* processor(const char* name) { return registry.processorList()->interface(name); }
    /// What the processor would write into the project.
    FakeTree written(const char* name)
    {
        FakePrjHook other;
        auto* plugin = processor(name);
        ModPrjHookIf* const before = plugin->modPrjHook;
        plugin->modPrjHook = &other;
        plugin->wrCfg();
        plugin->modPrjHook = before;
        return other.tree;
    }

    QStringList log;
    RecordingMsgHook msg{&log};
    RecordingGuiHook gui{&log};
    RecordingEditorHook editor{&log};
    RecordingAsmFeHook asmFe{&log};
    RecordingActionHook action{&log};
    RecordingCfgAppHook cfgApp{&log};
    RecordingPrjHook prj{&log};
    nsModProcessor::ModProcessor registry;
    QPointer<ProcConfigPage> page;
};

TEST_F(ProcConfigPageTest, WithoutAKeyThePageShowsUnsetAndSaysWhatToDo)
{
    prj.open("/nowhere/p.nalvo");
    openPage();
    EXPECT_EQ(registry.currentProcessor(), nullptr);
    EXPECT_EQ(combo()->currentText(), "Unset");
    EXPECT_EQ(stack()->currentIndex(), 0);
    EXPECT_EQ(page->processor(), "Unset");
    EXPECT_EQ(page->config().processor, "");
    EXPECT_EQ(page->pageHelpRef(), "pageId://configPageProcessor");
    const QLabel* hint = stack()->currentWidget()->findChild<QLabel*>();
    ASSERT_NE(hint, nullptr);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_TRUE(hint->text().contains("Choose one above")) << qPrintable(hint->text());
    expectToolTips(page);
}

TEST_F(ProcConfigPageTest, FixedTexts)
{
    openPage();
    EXPECT_EQ(page->pageTitle(), "Processor");
    EXPECT_FALSE(page->pageIcon().pixmap(48, 48).isNull());
    EXPECT_TRUE(labels(page).contains("Processor configuration"));
    EXPECT_TRUE(page->checkConfig());
    EXPECT_EQ(registry.configPageCnt(), 1);
    EXPECT_EQ(registry.configPage(0), page.data()) << "it is made once";
}

TEST_F(ProcConfigPageTest, ComboBoxAndStackHaveTheOrderOfTheList)
{
    prj.open("/nowhere/p.nalvo");
    openPage();
    QStringList texts;
    for (int i = 0; i < combo()->count(); ++i) {
        texts.append(combo()->itemText(i));
        EXPECT_EQ(combo()->itemData(i).toString(), i == 0 ? QString() : combo()->itemText(i));
    }
    EXPECT_EQ(texts, QStringList({"Unset", nameMico8, namePicoBlaze6, namePicoBlaze3}));
    EXPECT_EQ(registry.processorList()->nameList(), QStringList({nameMico8, namePicoBlaze3, namePicoBlaze6}));
    ASSERT_EQ(stack()->count(), 4);
    for (int i = 1; i < 4; ++i) {
        choose(combo(), texts.at(i));
        EXPECT_EQ(stack()->currentIndex(), i);
        EXPECT_EQ(stack()->currentWidget(), processor(texts.at(i).toLatin1())->configWidget()->widget());
        EXPECT_EQ(page->pageHelpRef(), processor(texts.at(i).toLatin1())->configWidget()->widgetHelpRef());
        EXPECT_EQ(page->processor(), texts.at(i));
    }
}

TEST_F(ProcConfigPageTest, EachWidgetShowsWhatItsProcessorHas)
{
    open(namePicoBlaze3);
    openPage();
    choose(combo(), namePicoBlaze6);
    EXPECT_EQ(field<QDoubleSpinBox>(stack()->currentWidget(), "Clock frequency:")->value(), 80);
    EXPECT_EQ(field<QSpinBox>(stack()->currentWidget(), "Interrupt vector address:")->value(), 1023);
    closePage(true);
    EXPECT_EQ(written(namePicoBlaze6).get("XPBlze6/clkFreq", QString()), "80000000");
    EXPECT_EQ(written(namePicoBlaze6).get("XPBlze6/intVectorAddr", 0), 1023);
}

TEST_F(ProcConfigPageTest, AcceptingTheSameProcessorKeepsItAndTakesTheValues)
{
    open(namePicoBlaze6);
    openPage();
    EXPECT_EQ(combo()->currentText(), namePicoBlaze6);
    auto* const current = registry.currentProcessor();
    log.clear();
    type(field<QDoubleSpinBox>(stack()->currentWidget(), "Clock frequency:"), "100");
    closePage(true);
    EXPECT_EQ(registry.currentProcessor(), current);
    EXPECT_EQ(log, QStringList()) << "nothing was attached anew";
    EXPECT_EQ(written(namePicoBlaze6).get("XPBlze6/clkFreq", QString()), "100000000");
}

TEST_F(ProcConfigPageTest, AcceptingAnotherProcessorAttachesItAndTakesItsValuesAlone)
{
    open(namePicoBlaze6);
    openPage();
    type(field<QDoubleSpinBox>(stack()->currentWidget(), "Clock frequency:"), "100");
    choose(combo(), nameMico8);
    type(field<QSpinBox>(stack()->currentWidget(), "Instruction clock cycle count:"), "5");
    EXPECT_EQ(registry.currentProcessor(), processor(namePicoBlaze6)) << "not before the dialog is accepted";
    closePage(true);
    EXPECT_EQ(registry.currentProcessor(), processor(nameMico8));
    EXPECT_EQ(registry.processor, nameMico8);
    EXPECT_EQ(written(nameMico8).get("LMico8v3x/instrClkCnt", 0), 5);
    EXPECT_EQ(written(namePicoBlaze6).get("XPBlze6/clkFreq", QString()), "80000000");
}

TEST_F(ProcConfigPageTest, AcceptingUnsetDetachesAndStoresNoName)
{
    open(namePicoBlaze6);
    openPage();
    type(field<QDoubleSpinBox>(stack()->currentWidget(), "Clock frequency:"), "100");
    choose(combo(), "Unset");
    closePage(true);
    EXPECT_EQ(registry.currentProcessor(), nullptr);
    EXPECT_TRUE(log.contains("-ModAsmFePluginIfBackend"));
    prj.savePrjCfg();
    EXPECT_EQ(prj.tree.get("ModProcessor/processor", QString("(none)")), "");
    EXPECT_EQ(written(namePicoBlaze6).get("XPBlze6/clkFreq", QString()), "80000000") << "nothing was taken";
}

TEST_F(ProcConfigPageTest, CancellingChangesNothingAndDeletesAllWidgets)
{
    open(namePicoBlaze6);
    openPage();
    QList<QPointer<QWidget>> widgets;
    for (auto* each : registry.processorList()->processors())
        widgets.append(each->configWidget()->widget());
    type(field<QDoubleSpinBox>(stack()->currentWidget(), "Clock frequency:"), "100");
    choose(combo(), namePicoBlaze3);
    log.clear();
    closePage(false);
    EXPECT_EQ(log, QStringList());
    EXPECT_EQ(registry.currentProcessor(), processor(namePicoBlaze6));
    EXPECT_EQ(registry.processor, namePicoBlaze6);
    EXPECT_EQ(written(namePicoBlaze6).get("XPBlze6/clkFreq", QString()), "80000000");
    ASSERT_EQ(widgets.size(), 3);
    for (const QPointer<QWidget>& widget : widgets)
        EXPECT_TRUE(widget.isNull());
    registry.configPageClose(true);
    EXPECT_EQ(registry.processor, namePicoBlaze6) << "without a page there is nothing to take";
}

TEST_F(ProcConfigPageTest, AnUnknownProcessorChangesNothingOnThePage)
{
    open("Some Other 9");
    openPage();
    EXPECT_EQ(combo()->currentText(), "Unset");
    page->setProcessor(namePicoBlaze3);
    page->setProcessor("Some Other 9");
    EXPECT_EQ(page->processor(), namePicoBlaze3);
    closePage(false);
    prj.savePrjCfg();
    EXPECT_EQ(prj.tree.get("ModProcessor/processor", QString()), "Some Other 9");
}

TEST_F(ProcConfigPageTest, RestoringPutsThePresentValuesBack)
{
    open(namePicoBlaze6);
    openPage();
    type(field<QDoubleSpinBox>(stack()->currentWidget(), "Clock frequency:"), "100");
    choose(combo(), nameMico8);
    registry.configPageSetConfig(page);
    EXPECT_EQ(combo()->currentText(), namePicoBlaze6);
    EXPECT_EQ(field<QDoubleSpinBox>(stack()->currentWidget(), "Clock frequency:")->value(), 80);
}

TEST_F(ProcConfigPageTest, DefaultsAreThoseOfTheShownProcessorAlone)
{
    open(namePicoBlaze6);
    openPage();
    auto* clock6 = field<QDoubleSpinBox>(stack()->currentWidget(), "Clock frequency:");
    type(clock6, "100");
    choose(combo(), namePicoBlaze3);
    auto* clock3 = field<QDoubleSpinBox>(stack()->currentWidget(), "Clock frequency:");
    type(clock3, "50");
    page->setDefaultConfig();
    EXPECT_EQ(clock3->value(), 80);
    EXPECT_EQ(clock6->value(), 100);
    EXPECT_EQ(page->processor(), namePicoBlaze3);
    choose(combo(), "Unset");
    page->setDefaultConfig();
    EXPECT_EQ(page->processor(), "Unset");
    EXPECT_EQ(clock6->value(), 100);
}

TEST_F(ProcConfigPageTest, TellsTheDialogOfOtherHelp)
{
    HelpRecorder recorder;
    prj.open("/nowhere/p.nalvo");
    openPage();
    page->modConfigPageHook = &recorder;
    choose(combo(), nameMico8);
    EXPECT_EQ(recorder.refs, QStringList({"pageId://configPageLMico8v3xProcessor"}));
    stack()->currentWidget()->findChild<QTabWidget*>()->setCurrentIndex(1);
    EXPECT_EQ(recorder.refs.size(), 2);
    QTest::keyClick(combo(), Qt::Key_Home);
    EXPECT_EQ(recorder.refs.size(), 3);
    EXPECT_EQ(recorder.refs.last(), "pageId://configPageProcessor");
    page->modConfigPageHook = nullptr;
}

TEST_F(ProcConfigPageTest, WithoutAProjectThePageIsDisabledAndSaysWhy)
{
    openPage();
    EXPECT_FALSE(page->pageIsEnabled());
    EXPECT_TRUE(page->findChild<QLabel*>("pageNote")->isVisible());
    EXPECT_FALSE(combo()->isEnabled());
    page->setPrjConfigEnabled(true);
    EXPECT_TRUE(page->pageIsEnabled());
    EXPECT_TRUE(combo()->isEnabled());
    EXPECT_FALSE(page->findChild<QLabel*>("pageNote")->isVisible());
}

TEST_F(ProcConfigPageTest, AcceptingWithoutAProjectAttachesNothing)
{
    open(namePicoBlaze3);
    prj.close();
    ASSERT_EQ(registry.currentProcessor(), nullptr);
    log.clear();
    openPage();
    closePage(true);
    EXPECT_EQ(registry.currentProcessor(), nullptr);
    EXPECT_EQ(log.filter("+"), QStringList());
    // The same where the project closes below an open dialog.
    open(namePicoBlaze6);
    openPage();
    prj.close();
    closePage(true);
    EXPECT_EQ(registry.currentProcessor(), nullptr);
    // The next project is as it says itself.
    open(namePicoBlaze3);
    EXPECT_EQ(registry.currentProcessor(), processor(namePicoBlaze3));
    openPage();
    closePage(true);
    EXPECT_EQ(registry.currentProcessor(), processor(namePicoBlaze3));
}

TEST_F(ProcConfigPageTest, ThePageMayOutliveNothing)
{
    auto other = std::make_unique<nsModProcessor::ModProcessor>();
    QPointer<ProcConfigPage> left = dynamic_cast<ProcConfigPage*>(other->configPage(0));
    ASSERT_FALSE(left.isNull());
    other.reset();
    EXPECT_TRUE(left.isNull());
}

TEST(ProcConfigPageOnDisk, ValuesSurviveTheProjectOnDisk)
{
    QTemporaryDir folder;
    const QString file = folder.filePath("p.nalvo");
    FakeMsgHook msg;
    FakeGuiHook gui;
    {
        nsModPrj::ModPrj prj;
        prj.modGuiHook = &gui;
        nsModProcessor::ModProcessor registry;
        msg.attach(static_cast<ModMsgPluginIf*>(&prj));
        prj.registerPlugin(static_cast<ModPrjPluginIf*>(&registry));
        QFile empty(file);
        ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
        empty.write("<project version=\"3\"/>");
        empty.close();
        ASSERT_TRUE(prj.open(file));
        auto* page = dynamic_cast<ProcConfigPage*>(registry.configPage(0));
        page->setProcessor(namePicoBlaze6);
        auto* widget = registry.processorList()->interface(namePicoBlaze6)->configWidget()->widget();
        widget->findChild<QDoubleSpinBox*>("clkFreq")->setValue(33.333333);
        widget->findChild<QComboBox*>("scrpdSize")->setCurrentText("256");
        widget->findChild<QSpinBox*>("intVectorAddr")->setValue(2047);
        widget->findChild<QSpinBox*>("pageSize")->setValue(2048);
        registry.configPageClose(true);
        ASSERT_TRUE(prj.closePrj());
        registry.prjClose();
    }
    QFile text(file);
    ASSERT_TRUE(text.open(QIODevice::ReadOnly));
    const QByteArray content = text.readAll();
    for (const char* line :
         {"<processor>Xilinx PicoBlaze 6</processor>", "<scrpdSize>256</scrpdSize>",
          "<intVectorAddr>2047</intVectorAddr>", "<clkFreq>33333333</clkFreq>", "<pageSize>2048</pageSize>"})
        EXPECT_TRUE(content.contains(line)) << line << '\n' << content.constData();

    nsModPrj::ModPrj prj;
    prj.modGuiHook = &gui;
    nsModProcessor::ModProcessor registry;
    msg.attach(static_cast<ModMsgPluginIf*>(&prj));
    prj.registerPlugin(static_cast<ModPrjPluginIf*>(&registry));
    ASSERT_TRUE(prj.open(file));
    auto* page = dynamic_cast<ProcConfigPage*>(registry.configPage(0));
    registry.configPageSetConfig(page);
    EXPECT_EQ(page->processor(), namePicoBlaze6);
    auto* widget = registry.currentProcessor()->configWidget()->widget();
    EXPECT_EQ(widget->findChild<QDoubleSpinBox*>("clkFreq")->value(), 33.333333);
    EXPECT_EQ(widget->findChild<QComboBox*>("scrpdSize")->currentText(), "256");
    EXPECT_EQ(widget->findChild<QSpinBox*>("intVectorAddr")->value(), 2047);
    EXPECT_EQ(widget->findChild<QSpinBox*>("pageSize")->value(), 2048);
    registry.configPageClose(false);
    prj.closePrj();
}

TEST_F(ProcConfigPageTest, Pictures)
{
    prj.open("/nowhere/p.nalvo");
    openPage();
    screenshot("configPageProcessorUnset");
    for (const char* name : {nameMico8, namePicoBlaze6}) {
        choose(combo(), name);
        screenshot(QString("configPageProcessor%1").arg(combo()->currentIndex()));
    }
    stack()->currentWidget()->findChild<QTabWidget*>()->setCurrentIndex(1);
    screenshot("configPageProcessorMemory");
    page->setPrjConfigEnabled(false);
    screenshot("configPageProcessorDisabled");
}

} // namespace
