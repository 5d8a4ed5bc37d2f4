// The module: its place in the window, its settings, its clients and the way to the editor.

#include "CursorRecorder.h"
#include "FakeHooks.h"
#include "NaviFixture.h"

#include "ModSrcNavi.h"

using namespace nsModSrcNavi;

namespace {

class Module : public ::testing::Test
{
protected:
    Module()
    {
        gui.registerPlugin(static_cast<ModGuiPluginIf*>(&navi));
        cfg.registerPlugin(static_cast<ModCfgAppPluginIf*>(&navi));
        editor.registerPlugin(static_cast<ModEditorPluginIf*>(&navi));
        prj.registerPlugin(static_cast<ModPrjPluginIf*>(&navi));
    }
    void start()
    {
        navi.modRegisterPlugins({&navi});
        navi.modInit();
        navi.modInitIntermod();
        panel = gui.widgetNamed("Source Navigator");
        ASSERT_NE(panel, nullptr);
        panel->resize(320, 480);
        hand = std::make_unique<NaviHand>(panel);
    }
    static NaviTag* tag(int type, const QString& title, const QString& lineRef = QString(), int line = 0)
    {
        auto* result = new NaviTag;
        result->type = type;
        result->title = title;
        result->filePath = "/project/main.psm";
        result->lineRef = lineRef;
        result->line = line;
        return result;
    }
    void run()
    {
        navi.clearTagList();
        navi.addTag(tag(NaviTag::typeGroupBegin, "group", "; \\navGrpBegin \"group\"", 3));
        navi.addTag(tag(NaviTag::typeLabel, "b", "", 5));
        navi.addTag(tag(NaviTag::typeGroupEnd, ""));
        navi.addTag(tag(NaviTag::typeLabel, "A", "", 9));
        navi.showTagList();
    }

    FakeGuiHook gui;
    FakeCfgAppHook cfg;
    CursorRecorder editor;
    FakePrjHook prj;
    ModSrcNavi navi;
    QWidget* panel = nullptr;
    std::unique_ptr<NaviHand> hand;
};

} // namespace

TEST_F(Module, standsAtTheLeftAtFirst)
{
    start();
    EXPECT_TRUE(gui.hasWidget(ModGuiHookIf::eLocationDockLeft, panel));
    EXPECT_EQ(gui.widgets.value(panel).plugin, static_cast<ModGuiPluginIf*>(&navi));
    EXPECT_TRUE(panel->isVisible());
}

TEST_F(Module, movesWithItsSettings)
{
    start();
    cfg.setValue("ModSrcNavi/naviWidgetLocation", 2);
    navi.rdAppCfg();
    EXPECT_TRUE(gui.hasWidget(ModGuiHookIf::eLocationDockRight, panel));
    EXPECT_EQ(gui.widgets.size(), 2) << "the list of files, too";
    navi.naviWidgetLocation = 0;
    navi.configureNaviWidget();
    EXPECT_EQ(gui.widgets.size(), 1);
    EXPECT_FALSE(gui.widgets.contains(panel));
    EXPECT_FALSE(panel->isVisible());
    navi.naviWidgetLocation = 1;
    navi.configureNaviWidget();
    EXPECT_TRUE(gui.hasWidget(ModGuiHookIf::eLocationDockLeft, panel));
    EXPECT_TRUE(panel->isVisible());
}

TEST_F(Module, staysInItsPlaceIfItIsTheRightOne)
{
    start();
    gui.widgets[panel].name = "untouched";
    navi.configureNaviWidget();
    EXPECT_EQ(gui.widgets.value(panel).name, QString("untouched"));
}

TEST_F(Module, followsTheProject)
{
    start();
    EXPECT_FALSE(panel->isEnabled());
    prj.open("/project/x.nalvo");
    EXPECT_TRUE(panel->isEnabled());
    run();
    EXPECT_EQ(hand->tree->topLevelItemCount(), 2);
    prj.close();
    EXPECT_FALSE(panel->isEnabled());
    EXPECT_EQ(hand->tree->topLevelItemCount(), 0);
    // The list is empty too.
    navi.showTagList();
    EXPECT_EQ(hand->tree->topLevelItemCount(), 0);
}

TEST_F(Module, showsEachOrder)
{
    start();
    prj.open("/project/x.nalvo");
    run();
    EXPECT_EQ(hand->outline(), QStringList({"group", ".b", "A"}));
    hand->choose("Plain Ascent");
    EXPECT_EQ(navi.tagListSortMode, 1);
    EXPECT_EQ(hand->outline(), QStringList({"A", "b", "group"}));
    hand->choose("Plain Descent");
    EXPECT_EQ(navi.tagListSortMode, 2);
    EXPECT_EQ(hand->outline(), QStringList({"group", "b", "A"}));
    run();
    EXPECT_EQ(hand->outline(), QStringList({"group", "b", "A"}));
    hand->choose("Document structure");
    EXPECT_EQ(hand->outline(), QStringList({"group", ".b", "A"}));
}

TEST_F(Module, theOrderSurvivesARestart)
{
    start();
    prj.open("/project/x.nalvo");
    hand->choose("Plain Descent");
    navi.wrAppCfg();
    EXPECT_EQ(cfg.value("ModSrcNavi/tagListSortMode", -1), 2);

    FakeGuiHook otherGui;
    ModSrcNavi other;
    otherGui.registerPlugin(static_cast<ModGuiPluginIf*>(&other));
    cfg.registerPlugin(static_cast<ModCfgAppPluginIf*>(&other));
    other.modInitIntermod();
    other.rdAppCfg();
    QWidget* otherPanel = otherGui.widgetNamed("Source Navigator");
    ASSERT_NE(otherPanel, nullptr);
    EXPECT_EQ(NaviHand(otherPanel).sortBox->currentText(), QString("Plain Descent"));
    other.addTag(tag(NaviTag::typeLabel, "1"));
    other.addTag(tag(NaviTag::typeLabel, "2"));
    other.showTagList();
    EXPECT_EQ(NaviHand(otherPanel).outline(), QStringList({"2", "1"}));
}

TEST_F(Module, aDoubleClickLeadsToTheLine)
{
    start();
    prj.open("/project/x.nalvo");
    run();
    hand->doubleClick("group");
    ASSERT_EQ(editor.cursors.size(), 1);
    EXPECT_EQ(editor.cursors.first().path, QString("/project/main.psm"));
    EXPECT_EQ(editor.cursors.first().lineRef, QString("; \\navGrpBegin \"group\""));
    EXPECT_EQ(editor.cursors.first().line, 3);
    QTest::keyClick(hand->tree, Qt::Key_Down);
    QTest::keyClick(hand->tree, Qt::Key_Return);
    ASSERT_EQ(editor.cursors.size(), 2);
    EXPECT_EQ(editor.cursors.last().lineRef, QString("b:"));
    EXPECT_EQ(editor.cursors.last().line, 5);
}

TEST_F(Module, aRunInsideOfTheJumpDoesNoHarm)
{
    // The editor opens a file, its user adds it to the project, and the assembler runs.
    start();
    prj.open("/project/x.nalvo");
    run();
    int runs = 0;
    editor.whenCursor = [this, &runs] {
        ++runs;
        run();
    };
    hand->doubleClick("group");
    ASSERT_EQ(editor.cursors.size(), 1);
    EXPECT_EQ(editor.cursors.first().lineRef, QString("; \\navGrpBegin \"group\""));
    hand->click("group");
    QTest::keyClick(hand->tree, Qt::Key_Return);
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(editor.cursors.last().path, QString("/project/main.psm"));
}

TEST_F(Module, betweenClearAndShowNothingCanBeClicked)
{
    start();
    prj.open("/project/x.nalvo");
    run();
    const QPoint pos = hand->spot("group");
    hand->click("group");
    navi.clearTagList();
    navi.addTag(tag(NaviTag::typeLabel, "new"));
    // What the window system has sent meanwhile arrives in the middle of the run.
    QTest::mouseDClick(hand->tree->viewport(), Qt::LeftButton, {}, pos);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, pos, hand->tree->viewport()->mapToGlobal(pos));
    QApplication::sendEvent(hand->tree->viewport(), &menu);
    QTest::keyClick(hand->tree, Qt::Key_Return);
    for (const char* button : {"Set", "Clear", "Clear all"})
        hand->press(button);
    EXPECT_TRUE(editor.cursors.isEmpty());
    // Another order shows what there is so far.
    hand->choose("Plain Ascent");
    EXPECT_EQ(hand->outline(), QStringList({"new"}));
    navi.addTag(tag(NaviTag::typeLabel, "newer"));
    navi.showTagList();
    EXPECT_EQ(hand->outline(), QStringList({"new", "newer"}));
}

TEST_F(Module, servesItsClients)
{
    struct Client : ModSrcNaviPluginIf
    {
    } client;
    ModSrcNaviHookIf* hook = &navi;
    hook->registerPlugin(static_cast<ModSrcNaviPluginIf*>(nullptr));
    hook->unregisterPlugin(static_cast<ModSrcNaviPluginIf*>(nullptr));
    hook->unregisterPlugin(&client);
    EXPECT_EQ(client.modSrcNaviHook, nullptr);
    hook->registerPlugin(&client);
    hook->registerPlugin(&client);
    EXPECT_EQ(client.modSrcNaviHook, hook);
    hook->unregisterPlugin(&client);
    EXPECT_EQ(client.modSrcNaviHook, nullptr);
    hook->addTag(nullptr);
    hook->showTagList();
}

TEST(ModuleAlone, doesWithoutAnyOther)
{
    ModSrcNavi navi;
    navi.modRegisterPlugins({nullptr, &navi});
    navi.modInit();
    navi.modInitIntermod();
    navi.rdAppCfg();
    navi.prjOpen();
    navi.prjOpened();
    auto* tag = new NaviTag;
    tag->type = NaviTag::typeSeparator;
    navi.addTag(tag);
    navi.showTagList();
    navi.configureNaviWidget();
    navi.modRun();
    EXPECT_TRUE(navi.modExitRequest());
    navi.prjSave();
    navi.prjClose();
    navi.wrAppCfg();
    navi.modExitIntermod();
    navi.modExit();
    EXPECT_EQ(QApplication::topLevelWidgets().size(), 3) << "the panel, the list of files and its menu";
    for (QWidget* widget : QApplication::topLevelWidgets())
        EXPECT_FALSE(widget->isVisible());
    EXPECT_NE(navi.configPage(0), nullptr);
    navi.configPageClose(true);
}

TEST(ModuleAlone, aJumpWithoutAnEditorDoesNothing)
{
    FakeGuiHook gui;
    ModSrcNavi navi;
    gui.registerPlugin(static_cast<ModGuiPluginIf*>(&navi));
    navi.modInitIntermod();
    navi.prjOpen();
    auto* tag = new NaviTag;
    tag->type = NaviTag::typeSeparator;
    tag->title = "sep";
    navi.addTag(tag);
    navi.showTagList();
    NaviHand hand(gui.widgetNamed("Source Navigator"));
    hand.doubleClick("sep");
    EXPECT_EQ(hand.tree->currentItem()->text(0), QString("sep"));
}
