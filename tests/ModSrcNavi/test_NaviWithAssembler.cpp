// The navigator in the real window, filled by the real assembler.

#include "CursorRecorder.h"
#include "ExampleFolder.h"
#include "FakeMsgHook.h"
#include "NaviFixture.h"
#include "Settle.h"

#include "CfgTree.h"
#include "ModAsmFe.h"
#include "ModGui.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "ModSources.h"
#include "ModSrcNavi.h"

#include <QMainWindow>
#include <QTemporaryDir>
#include <QTreeWidget>

static void initResources()
{
    Q_INIT_RESOURCE(nalvo);
}

using namespace nsModSrcNavi;

namespace {

class WithAssembler : public ::testing::Test
{
protected:
    WithAssembler()
    {
        initResources();
        QApplication::setStyle("fusion");
        prj = new nsModPrj::ModPrj(&window);
        sources = new nsModSources::ModSources(&window);
        processor = new nsModProcessor::ModProcessor(&window);
        asmFe = new nsModAsmFe::ModAsmFe(&window);
        navi = new ModSrcNavi(&window);
        gui = new nsModGui::ModGui(&window);
        const QList<ModPluginIf*> modules = {prj, sources, processor, asmFe, navi, gui};
        msg.attach(static_cast<ModMsgPluginIf*>(prj));
        msg.attach(static_cast<ModMsgPluginIf*>(sources));
        msg.attach(static_cast<ModMsgPluginIf*>(processor));
        msg.attach(static_cast<ModMsgPluginIf*>(asmFe));
        editor.registerPlugin(static_cast<ModEditorPluginIf*>(navi));
        for (ModPluginIf* module : modules)
            module->modRegisterPlugins(modules);
        for (ModPluginIf* module : modules)
            module->modInit();
        for (ModPluginIf* module : modules)
            module->modInitIntermod();
        window.resize(1000, 700);
        window.show();
        hand = std::make_unique<NaviHand>(window.findChild<NaviWidget*>());
    }
    ~WithAssembler() override
    {
        prj->closePrj();
        asmFe->modExitIntermod();
        asmFe->modExit();
    }

    QString path(const QString& name) const { return folder.filePath(name); }
    void write(const QString& name, const QByteArray& text)
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    /// Assembles one source of this text.
    void assemble(const QByteArray& text)
    {
        write("main.psm", text);
        if (!prj->isValid()) {
            CfgTree tree(nullptr);
            tree.setValue("sources/srcFiles", QStringList({"main.psm"}));
            tree.setValue("ModProcessor/processor", QString("Xilinx PicoBlaze 3"));
            ASSERT_TRUE(prj->savePrjFile(&tree, path("x.nalvo")));
            asmFe->setAssembleOnChange(false);
            ASSERT_TRUE(prj->openPrj(path("x.nalvo")));
        }
        asmFe->assemble(nsModAsmFe::ModAsmFe::eEventNone);
    }
    void picture(const QString& name)
    {
        settleAnimations();
        const QString dir = QStringLiteral(NALVO_BINARY_DIR "/screenshots");
        QDir().mkpath(dir);
        const QPixmap picture = hand->tree->window()->findChild<NaviWidget*>()->grab();
        ASSERT_TRUE(picture.save(dir + '/' + name + ".png"));
        ASSERT_TRUE(window.grab().save(dir + '/' + name + "-window.png"));
    }

    QTemporaryDir folder;
    FakeMsgHook msg;
    CursorRecorder editor;
    QMainWindow window;
    nsModPrj::ModPrj* prj;
    nsModSources::ModSources* sources;
    nsModProcessor::ModProcessor* processor;
    nsModAsmFe::ModAsmFe* asmFe;
    ModSrcNavi* navi;
    nsModGui::ModGui* gui;
    std::unique_ptr<NaviHand> hand;
};

} // namespace

TEST_F(WithAssembler, labelsAreListedIfTheyStandAtTheLeft)
{
    assemble("start: NOP\n  indented: NOP\n#NAMESPACE ns\ninner: NOP\n#ENDNAMESPACE\nJUMP start\n");
    EXPECT_EQ(hand->outline(), QStringList({"start:", "ns::inner:"}));
}

TEST_F(WithAssembler, titlesWithAndWithoutQuotes)
{
    assemble("; \\navSep no quotes at all\n; \\navSep \"with quotes\"\n; \\NAVHW \"in capitals\"\nNOP\n");
    EXPECT_EQ(hand->outline(), QStringList({"no quotes at all", "with quotes", "in capitals"}));
    hand->doubleClick("with quotes");
    ASSERT_EQ(editor.cursors.size(), 1);
    EXPECT_EQ(editor.cursors.first().path, path("main.psm"));
    EXPECT_EQ(editor.cursors.first().lineRef, QString("; \\navSep \"with quotes\""));
    EXPECT_EQ(editor.cursors.first().line, 1);
}

TEST_F(WithAssembler, ofTwoCommandsOnALineTheConstantCounts)
{
    assemble("; \\navHw \"hw\" \\navConst \"const\"\nNOP\n");
    ASSERT_EQ(hand->tree->topLevelItemCount(), 1);
    const QTreeWidgetItem* item = hand->tree->topLevelItem(0);
    EXPECT_EQ(item->text(0), QString("const"));
    EXPECT_EQ(item->data(0, Qt::UserRole).value<NaviTag*>()->type, int(NaviTag::typeConstant));
}

TEST_F(WithAssembler, aSkippedBranchIsListedAsDisabled)
{
    assemble("#IFDEF nothing\n; \\navGrpBegin \"off\"\nskipped: NOP\n; \\navGrpEnd\n#ENDIF\nstart: NOP\n");
    EXPECT_EQ(hand->outline(), QStringList({"off", ".skipped:", "start:"}));
    EXPECT_EQ(hand->item("off")->foreground(0).color(), QColor(Qt::gray));
    EXPECT_EQ(hand->item("skipped:")->foreground(0).color(), QColor(Qt::gray));
    EXPECT_FALSE(hand->item("off")->isExpanded());
    EXPECT_EQ(hand->item("start:")->foreground(0).color(), QColor(Qt::black));
}

TEST_F(WithAssembler, aRunThatFailsShowsItsTagsToo)
{
    assemble("start: NOP\n");
    assemble("start: NOP\nother: NONSENSE s0\n");
    EXPECT_EQ(hand->outline(), QStringList({"start:", "other:"}));
}

TEST_F(WithAssembler, aNewRunKeepsTheSelectionAndTheFocus)
{
    assemble("; \\navSep \"one\"\n; \\navSep \"two\"\nNOP\n");
    hand->click("two");
    hand->tree->setFocus();
    assemble("NOP\nNOP\n; \\navSep \"two\"\n; \\navSep \"one\"\nNOP\n");
    ASSERT_NE(hand->tree->currentItem(), nullptr);
    EXPECT_EQ(hand->tree->currentItem()->text(0), QString("two"));
    EXPECT_EQ(window.focusWidget(), hand->tree);
    QTest::keyClick(hand->tree, Qt::Key_Return);
    ASSERT_EQ(editor.cursors.size(), 1);
    EXPECT_EQ(editor.cursors.first().line, 2);
}

TEST_F(WithAssembler, aRunWithOtherTagsBringsThePanelForward)
{
    QWidget other;
    gui->addWidget(nullptr, ModGuiHookIf::eLocationDockLeft, &other, "Other");
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockLeft), &other);
    assemble("start: NOP\n");
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockLeft), window.findChild<NaviWidget*>());
    gui->setCurrentWidget(&other);
    assemble("NOP\nstart: NOP\n");
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockLeft), &other);
    EXPECT_EQ(hand->outline(), QStringList({"start:"}));
    gui->removeWidget(&other);
}

TEST_F(WithAssembler, theTextOfALineEndsBeforeTheLineBreak)
{
    assemble("; \\navSep\"Ports\"\r\n; \\navSep\n  ; \\navConst(x)\nNOP\n");
    ASSERT_EQ(hand->tree->topLevelItemCount(), 3);
    const QStringList expected = {"; \\navSep\"Ports\"", "; \\navSep", "  ; \\navConst(x)"};
    for (int i = 0; i < 3; ++i) {
        const auto* tag = hand->tree->topLevelItem(i)->data(0, Qt::UserRole).value<NaviTag*>();
        EXPECT_EQ(tag->lineRef, expected.at(i));
    }
}

TEST_F(WithAssembler, aLabelIsFoundByItsName)
{
    assemble("start: NOP\n#NAMESPACE ns\ninner: NOP\n#ENDNAMESPACE\nJUMP start\n");
    hand->doubleClick("start:");
    hand->doubleClick("ns::inner:");
    ASSERT_EQ(editor.cursors.size(), 2);
    EXPECT_EQ(editor.cursors.at(0).lineRef, QString("start:"));
    EXPECT_EQ(editor.cursors.at(0).line, 0);
    EXPECT_EQ(editor.cursors.at(1).lineRef, QString("inner:"));
    EXPECT_EQ(editor.cursors.at(1).line, 2);
}

TEST_F(WithAssembler, behindAnotherTabItStaysThereWhenItsSettingsChange)
{
    QWidget other;
    gui->addWidget(nullptr, ModGuiHookIf::eLocationDockLeft, &other, "Other");
    auto* panel = window.findChild<NaviWidget*>();
    EXPECT_FALSE(panel->isVisible());
    navi->configureNaviWidget();
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(other.isVisible());
    gui->removeWidget(&other);
}

TEST_F(WithAssembler, movesBetweenTheRealDocks)
{
    auto* panel = window.findChild<NaviWidget*>();
    EXPECT_TRUE(gui->hasWidget(ModGuiHookIf::eLocationDockLeft, panel));
    EXPECT_TRUE(gui->widgetVisible(ModGuiHookIf::eLocationDockLeft));
    navi->naviWidgetLocation = 2;
    navi->configureNaviWidget();
    EXPECT_TRUE(gui->hasWidget(ModGuiHookIf::eLocationDockRight, panel));
    EXPECT_FALSE(gui->hasWidget(ModGuiHookIf::eLocationDockLeft, panel));
    EXPECT_TRUE(panel->isVisible());
    navi->naviWidgetLocation = 0;
    navi->configureNaviWidget();
    EXPECT_FALSE(gui->hasWidget(ModGuiHookIf::eLocationDockRight, panel));
    EXPECT_FALSE(panel->isVisible());
    // A run meanwhile brings nothing up.
    assemble("start: NOP\n");
    EXPECT_FALSE(panel->isVisible());
    navi->naviWidgetLocation = 1;
    navi->configureNaviWidget();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(hand->outline(), QStringList({"start:"}));
}

TEST_F(WithAssembler, picturesOfTheExample)
{
    copyFolder(NALVO_SOURCE_DIR "/examples/uart_monitor", folder.path());
    picture("navigator-empty");
    ASSERT_TRUE(prj->openPrj(path("uart_monitor.nalvo")));
    asmFe->assemble(nsModAsmFe::ModAsmFe::eEventNone);
    ASSERT_TRUE(asmFe->isAssembled());
    EXPECT_FALSE(hand->outline().contains("Unexpected end tag"));
    EXPECT_EQ(hand->tree->topLevelItem(0)->text(0), QString("UART monitor"));
    ASSERT_NE(hand->item("Main program"), nullptr);
    EXPECT_GT(hand->item("Main program")->childCount(), 0);
    hand->click("Timer");
    hand->rightClick("Characters");
    hand->click("Main program");
    picture("navigator-document");
    EXPECT_EQ(hand->tree->currentItem(), hand->item("Main program"));
    hand->choose("Plain Ascent");
    EXPECT_EQ(hand->tree->currentItem(), hand->item("Main program"));
    picture("navigator-ascent");
    hand->choose("Plain Descent");
    picture("navigator-descent");
    const QStringList descent = hand->outline();
    for (int i = 1; i < descent.size(); ++i)
        EXPECT_GE(descent.at(i - 1).toLower(), descent.at(i).toLower());
}
