// The assembler's settings page: its texts and choices, what it takes and gives, and what it says is missing.

#include "PageFixture.h"
#include "QtPrinters.h"

#include "AsmFeConfigPage.h"
#include "MyFileSelectOpen.h"
#include "MyFileSelectSave.h"
#include "MyPathEdit.h"
#include "Settle.h"
#include "TargetConfigWidget.h"
#include "TargetMapperConfigWidget.h"

#include <QGraphicsEffect>
#include <QSpinBox>
#include <QTemporaryDir>

using namespace nsModAsmFe;

namespace {

class AsmFePage : public PageFixture
{
protected:
    AsmFePage()
    {
        page.setConfig(&given, dir.path());
        show(&page);
    }

    QStringList entries(const char* name) const
    {
        QStringList result;
        auto* box = page.findChild<QComboBox*>(name);
        for (int i = 0; box != nullptr && i < box->count(); ++i)
            result.append(box->itemText(i) + '=' + box->itemData(i).toString());
        return result;
    }
    QCheckBox* enable(const char* target) const
    {
        return page.findChild<QWidget*>(target)->findChild<QCheckBox*>("targetEnable");
    }
    MyFileSelectSave* outputFile(const char* target) const
    {
        return page.findChild<QWidget*>(target)->findChild<MyFileSelectSave*>("targetOutputFile");
    }
    QString hint(const char* target) const
    {
        auto* label = page.findChild<QWidget*>(target)->findChild<QLabel*>("targetHint");
        return label->isHidden() ? QString() : label->text();
    }
    bool outputHint() const { return !page.findChild<QLabel*>("outputHint")->isHidden(); }

    QTemporaryDir dir;
    AsmFeConfig given;
    AsmFeConfigPage page;
};

TEST_F(AsmFePage, SaysWhatItIs)
{
    EXPECT_EQ(page.pageTitle(), "Assembler");
    EXPECT_EQ(page.pageHelpRef(), "pageId://configPageAsmFe");
    EXPECT_FALSE(page.pageIcon().availableSizes().isEmpty());
    EXPECT_TRUE(page.checkConfig());
}

TEST_F(AsmFePage, TextsAndChoices)
{
    const QStringList shown = labels(&page);
    for (const char* text : {"Assembler configuration",
                             "Assembler behavior",
                             "Character set",
                             "Output file configuration",
                             "Default character set:",
                             "Default charset behavior:",
                             "Equations overwrite behavior:",
                             "Settings overwrite behavior:",
                             "Check interrupt vector behavior:",
                             "File write events",
                             "Events:",
                             "Button 1",
                             "Button 2",
                             "After saving",
                             "Write VHDL files:",
                             "Write verilog files:",
                             "Write hex files:",
                             "Write mem files:",
                             "Hex output file",
                             "Mem output file",
                             "VHDL output file",
                             "Verilog output file",
                             "Enable:",
                             "Output file:",
                             "Gap stuffing enable:",
                             "Entity name:",
                             "Template file:"})
        EXPECT_TRUE(shown.contains(text)) << text;
    EXPECT_EQ(entries("behaviorCharset"), QStringList({"Don't use default charset=0", "Warn by using default charset=1",
                                                       "Use default charset without warning=2"}));
    EXPECT_EQ(entries("behaviorEqu"), QStringList({"Don't overwrite equations=0", "Warn by overwriting equations=1",
                                                   "Overwrite equation without warning=2"}));
    EXPECT_EQ(entries("behaviorSet"), QStringList({"Don't overwrite settings=0", "Warn by overwriting settings=1",
                                                   "Overwrite settings without warning=2"}));
    EXPECT_EQ(entries("behaviorIntVector"),
              QStringList({"Don't check interrupt vector=2", "Warn if not defined by assembler code=1",
                           "Error if not defined by assembler code=0"}));
    EXPECT_TRUE(entries("defaultCharset").contains("UTF-8=UTF-8"));
    EXPECT_TRUE(entries("defaultCharset").contains("US-ASCII=US-ASCII"));
}

TEST_F(AsmFePage, GivesBackWhatItWasGiven)
{
    AsmFeConfig config;
    config.defaultCharset = "US-ASCII";
    config.behaviorCharset = 2;
    config.behaviorEqu = 0;
    config.behaviorSet = 2;
    config.behaviorChkIntVector = 0;
    config.targets[kindVhdl].en = true;
    config.targets[kindVhdl].writeFileEventBut1 = false;
    config.targets[kindVhdl].entityName = "rom";
    config.targets[kindVhdl].templateFile = dir.filePath("t.vhd");
    config.targets[kindVhdl].outputFile = dir.filePath("out/o.vhd");
    config.targets[kindVerilog].writeFileEventSave = true;
    config.targets[kindVerilog].entityName = "rom_v";
    config.targets[kindVerilog].outputFile = dir.filePath("o.v");
    config.targets[kindHex].en = true;
    config.targets[kindHex].writeFileEventBut2 = false;
    config.targets[kindHex].outputFile = dir.filePath("o.hex");
    config.targets[kindMem].gapStuffingEn = false;
    config.targets[kindMem].writeFileEventSave = true;
    config.targets[kindMem].outputFile = dir.filePath("o.mem");
    page.setConfig(&config, dir.path());
    EXPECT_EQ(outputFile("targetHex")->pathEdit()->text(), "o.hex");
    AsmFeConfig result;
    page.config(&result);
    EXPECT_EQ(result.defaultCharset, "US-ASCII");
    EXPECT_EQ(result.behaviorCharset, 2);
    EXPECT_EQ(result.behaviorEqu, 0);
    EXPECT_EQ(result.behaviorSet, 2);
    EXPECT_EQ(result.behaviorChkIntVector, 0);
    EXPECT_TRUE(result.targets[kindVhdl].en);
    EXPECT_FALSE(result.targets[kindVhdl].writeFileEventBut1);
    EXPECT_TRUE(result.targets[kindVhdl].writeFileEventBut2);
    EXPECT_EQ(result.targets[kindVhdl].entityName, "rom");
    EXPECT_EQ(result.targets[kindVhdl].templateFile, dir.filePath("t.vhd"));
    EXPECT_EQ(result.targets[kindVhdl].outputFile, dir.filePath("out/o.vhd"));
    EXPECT_FALSE(result.targets[kindVerilog].en);
    EXPECT_TRUE(result.targets[kindVerilog].writeFileEventSave);
    EXPECT_EQ(result.targets[kindVerilog].entityName, "rom_v");
    EXPECT_EQ(result.targets[kindVerilog].outputFile, dir.filePath("o.v"));
    EXPECT_TRUE(result.targets[kindHex].en);
    EXPECT_FALSE(result.targets[kindHex].writeFileEventBut2);
    EXPECT_EQ(result.targets[kindHex].outputFile, dir.filePath("o.hex"));
    EXPECT_FALSE(result.targets[kindMem].gapStuffingEn);
    EXPECT_TRUE(result.targets[kindMem].writeFileEventSave);
    EXPECT_EQ(result.targets[kindMem].outputFile, dir.filePath("o.mem"));
}

TEST_F(AsmFePage, ImagesGiveBackWhatTheyWereGiven)
{
    AsmFeConfig config;
    const eTargetKind_t images[] = {kindMif, kindCoe, kindBinary, kindIntelHex, kindRamMem};
    for (eTargetKind_t kind : images) {
        config.targets[kind].en = kind != kindCoe;
        config.targets[kind].outputFile = dir.filePath(QString("o.%1").arg(int(kind)));
        config.targets[kind].wordWidth = 10 + kind;
        config.targets[kind].writeFileEventSave = kind == kindIntelHex;
    }
    config.targets[kindBinary].layout = layoutBig;
    config.targets[kindIntelHex].layout = layoutWords;
    config.targets[kindRamMem].layout = layoutWhole;
    page.setConfig(&config, dir.path());
    AsmFeConfig result;
    page.config(&result);
    for (eTargetKind_t kind : images) {
        EXPECT_EQ(result.targets[kind].en, config.targets[kind].en) << kind;
        EXPECT_EQ(result.targets[kind].outputFile, config.targets[kind].outputFile);
        EXPECT_EQ(result.targets[kind].wordWidth, config.targets[kind].wordWidth);
        EXPECT_EQ(result.targets[kind].writeFileEventSave, config.targets[kind].writeFileEventSave);
        EXPECT_EQ(result.targets[kind].layout, config.targets[kind].layout);
    }
}

TEST_F(AsmFePage, AnImageByKeys)
{
    auto* section = page.findChild<QWidget*>("targetIntelHex");
    ASSERT_NE(section, nullptr);
    auto* width = section->findChild<QSpinBox*>("targetWordWidth");
    auto* layout = section->findChild<QComboBox*>("targetLayout");
    ASSERT_TRUE(width != nullptr && layout != nullptr);
    EXPECT_FALSE(width->isEnabled());
    QTest::keyClick(enable("targetIntelHex"), Qt::Key_Space);
    EXPECT_TRUE(width->isEnabled() && layout->isEnabled());
    EXPECT_FALSE(outputHint());
    EXPECT_EQ(hint("targetIntelHex"), "No output file is given: nothing will be written.");
    type(outputFile("targetIntelHex")->pathEdit(), "a.ihex");
    EXPECT_EQ(hint("targetIntelHex"), "");
    width->selectAll();
    QTest::keyClicks(width, "32");
    choose(layout, "A record a word, addresses count words");
    auto* event = page.findChild<QCheckBox*>(QString("targetEvent%1%2").arg(int(kindIntelHex)).arg(2));
    ASSERT_NE(event, nullptr);
    EXPECT_EQ(event->toolTip(), "Write Intel HEX files: After saving");
    QTest::keyClick(event, Qt::Key_Space);
    AsmFeConfig result;
    page.config(&result);
    EXPECT_TRUE(result.targets[kindIntelHex].en);
    EXPECT_EQ(result.targets[kindIntelHex].outputFile, dir.filePath("a.ihex"));
    EXPECT_EQ(result.targets[kindIntelHex].wordWidth, 32);
    EXPECT_EQ(result.targets[kindIntelHex].layout, int(layoutWords));
    EXPECT_TRUE(result.targets[kindIntelHex].writeFileEventSave);
}

TEST_F(AsmFePage, CharacterSetThatNobodyKnowsStays)
{
    AsmFeConfig config;
    config.defaultCharset = "Nobody-1";
    page.setConfig(&config, dir.path());
    AsmFeConfig result;
    page.config(&result);
    EXPECT_EQ(result.defaultCharset, "Nobody-1");
}

TEST_F(AsmFePage, AValueThatIsNotInTheListStaysUntilAnotherIsChosen)
{
    AsmFeConfig odd;
    odd.behaviorEqu = 7;
    odd.behaviorCharset = -1;
    odd.defaultCharset.clear();
    AsmFeConfig other;
    other.behaviorEqu = AsmFeConfig::equError;
    page.setConfig(&other, dir.path());
    page.setConfig(&odd, dir.path());
    AsmFeConfig taken = odd;
    page.config(&taken);
    EXPECT_EQ(taken.behaviorEqu, 7);
    EXPECT_EQ(taken.behaviorCharset, -1);
    EXPECT_EQ(taken.defaultCharset, "");
    page.findChild<QComboBox*>("behaviorEqu")->setFocus();
    QTest::keyClick(page.findChild<QComboBox*>("behaviorEqu"), Qt::Key_Down);
    page.config(&taken);
    EXPECT_EQ(taken.behaviorEqu, AsmFeConfig::equError);
}

TEST_F(AsmFePage, DefaultsAreThoseOfANewConfiguration)
{
    AsmFeConfig config;
    config.behaviorEqu = 0;
    config.targets[kindHex].en = true;
    config.targets[kindMem].gapStuffingEn = false;
    page.setConfig(&config, dir.path());
    page.setDefaultConfig();
    AsmFeConfig result;
    page.config(&result);
    EXPECT_EQ(result.behaviorEqu, 1);
    EXPECT_EQ(result.defaultCharset, "UTF-8");
    EXPECT_FALSE(result.targets[kindHex].en);
    EXPECT_TRUE(result.targets[kindMem].gapStuffingEn);
    EXPECT_TRUE(result.targets[kindHex].writeFileEventBut1);
    EXPECT_FALSE(result.targets[kindHex].writeFileEventSave);
}

TEST_F(AsmFePage, ChoicesByKeys)
{
    choose(page.findChild<QComboBox*>("behaviorSet"), "Overwrite settings without warning");
    choose(field<QComboBox>(&page, "Equations overwrite behavior:"), "Don't overwrite equations");
    AsmFeConfig result;
    page.config(&result);
    EXPECT_EQ(result.behaviorSet, 2);
    EXPECT_EQ(result.behaviorEqu, 0);
}

TEST_F(AsmFePage, SaysThatNothingIsWrittenUntilSomethingIs)
{
    EXPECT_TRUE(outputHint());
    area.ensureWidgetVisible(enable("targetHex"));
    QTest::mouseClick(enable("targetHex"), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, enable("targetHex")->height() / 2));
    ASSERT_TRUE(enable("targetHex")->isChecked());
    EXPECT_FALSE(outputHint());
    EXPECT_EQ(hint("targetHex"), "No output file is given: nothing will be written.");
    EXPECT_TRUE(outputFile("targetHex")->isEnabled());
    EXPECT_FALSE(outputFile("targetMem")->isEnabled());
    type(outputFile("targetHex")->pathEdit(), "nowhere/a.hex");
    EXPECT_EQ(hint("targetHex"), "The folder of the output file does not exist: nothing can be written.");
    type(outputFile("targetHex")->pathEdit(), "a.hex");
    EXPECT_EQ(hint("targetHex"), "");
    AsmFeConfig result;
    page.config(&result);
    EXPECT_EQ(result.targets[kindHex].outputFile, dir.filePath("a.hex"));
    QTest::keyClick(enable("targetHex"), Qt::Key_Space);
    EXPECT_TRUE(outputHint());
    EXPECT_FALSE(outputFile("targetHex")->isEnabled());
}

TEST_F(AsmFePage, SaysThatATemplateIsMissing)
{
    QTest::keyClick(enable("targetVhdl"), Qt::Key_Space);
    EXPECT_TRUE(hint("targetVhdl").startsWith("No template file is given: nothing will be written."));
    EXPECT_TRUE(hint("targetVhdl").contains("rom_1kx18.vhd and rom_1kx18_halves.vhd"))
        << qPrintable(hint("targetVhdl"));
    auto* templateFile = page.findChild<QWidget*>("targetVhdl")->findChild<MyFileSelectOpen*>("targetTemplateFile");
    type(templateFile->pathEdit(), "t.vhd");
    EXPECT_EQ(hint("targetVhdl"), "The template file does not exist: nothing can be written.");
    QFile file(dir.filePath("t.vhd"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    type(templateFile->pathEdit(), "./t.vhd");
    EXPECT_EQ(hint("targetVhdl"), "No output file is given: nothing will be written.");
}

TEST_F(AsmFePage, EventsAreAGrid)
{
    // Hex is the third row, saving the third column.
    auto* box = page.findChild<QCheckBox*>("targetEvent22");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->toolTip(), "Write hex files: After saving");
    QTest::keyClick(box, Qt::Key_Space);
    AsmFeConfig result;
    page.config(&result);
    EXPECT_TRUE(result.targets[kindHex].writeFileEventSave);
    EXPECT_FALSE(result.targets[kindMem].writeFileEventSave);
}

TEST_F(AsmFePage, EventsOfAnOutputThatIsOffAreGreyAndSayThatTheyOnlyWarn)
{
    const auto isGrey = [this](const char* name) {
        const auto* widget = page.findChild<QWidget*>(name);
        return widget->graphicsEffect() != nullptr && widget->graphicsEffect()->isEnabled();
    };
    auto* eventsHint = page.findChild<QLabel*>("targetEventsHint");
    ASSERT_NE(eventsHint, nullptr);
    // The buttons write all kinds from the start, and all outputs are off.
    EXPECT_TRUE(isGrey("targetEvents2"));
    EXPECT_TRUE(isGrey("targetEvent20"));
    EXPECT_FALSE(eventsHint->isHidden());
    EXPECT_TRUE(eventsHint->text().contains("only warn that no file is defined"));
    EXPECT_TRUE(eventsHint->text().contains("those of images, from MIF on, do not even warn"));
    QTest::keyClick(enable("targetHex"), Qt::Key_Space);
    for (const char* name : {"targetEvents2", "targetEvent20", "targetEvent21", "targetEvent22"})
        EXPECT_FALSE(isGrey(name)) << name;
    for (const char* name : {"targetEvents3", "targetEvent30", "targetEvents0", "targetEvents1", "targetEvent12"})
        EXPECT_TRUE(isGrey(name)) << name;
    EXPECT_FALSE(eventsHint->isHidden());
    // A device of the sources may have a file of that kind, so the events stay in use.
    auto* memOnButton1 = page.findChild<QCheckBox*>("targetEvent30");
    ASSERT_TRUE(memOnButton1->isEnabled() && memOnButton1->isChecked());
    QTest::keyClick(memOnButton1, Qt::Key_Space);
    AsmFeConfig result;
    page.config(&result);
    EXPECT_FALSE(result.targets[kindMem].writeFileEventBut1);
    // Where no event of an output that is off is set, there is nothing to say.
    for (const char* name : {"targetEvent00", "targetEvent01", "targetEvent10", "targetEvent11", "targetEvent31"})
        page.findChild<QCheckBox*>(name)->setChecked(false);
    EXPECT_TRUE(eventsHint->isHidden());
    QTest::keyClick(enable("targetHex"), Qt::Key_Space);
    EXPECT_TRUE(isGrey("targetEvent20"));
    EXPECT_FALSE(eventsHint->isHidden());
}

TEST_F(AsmFePage, BelongsToTheProject)
{
    page.setPrjConfigEnabled(false);
    EXPECT_FALSE(page.pageIsEnabled());
    EXPECT_FALSE(page.findChild<QComboBox*>("behaviorEqu")->isEnabled());
    page.setPrjConfigEnabled(true);
    EXPECT_TRUE(page.pageIsEnabled());
    EXPECT_TRUE(page.findChild<QComboBox*>("behaviorEqu")->isEnabled());
    EXPECT_FALSE(outputFile("targetHex")->isEnabled());
}

TEST_F(AsmFePage, LooksLikeThis)
{
    const QString pictures = QStringLiteral(NALVO_BINARY_DIR "/screenshots");
    QDir().mkpath(pictures);
    AsmFeConfig config;
    config.targets[kindHex].en = true;
    config.targets[kindHex].outputFile = dir.filePath("a/rather/long/path/to/the/output/folder/of/the/project/rom.hex");
    config.targets[kindVhdl].en = true;
    config.targets[kindVhdl].entityName = "program_rom";
    page.setConfig(&config, dir.path());
    EXPECT_TRUE(expectReadable(&pages).save(pictures + "/configPageAssembler.png"));
    pages.resize(720, page.sizeHint().height() + 40);
    settleLayout();
    EXPECT_TRUE(expectReadable(&pages).save(pictures + "/configPageAssemblerWhole.png"));
}

} // namespace
