#include "ModPrj.h"
#include "FakeHooks.h"
#include "PrjActions.h"
#include "PrjTestSupport.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <functional>

using nsModPrj::ModPrj;
using nsModPrj::PrjActions;
using nsModPrj::PrjConfig;

namespace {

/// Reports its calls as messages, so that they stand in one order with those of the module.
class Client : public ModPrjPluginIf
{
public:
    Client(FakeMsgHook* msg, const char* name)
        : m_msg(msg)
        , m_name(str(name))
    {
    }

    void prjOpen() override
    {
        call("open");
        if (modPrjHook != nullptr)
            readBack = modPrjHook->value(m_name + str("/key"), str("default"));
        if (onOpen)
            onOpen();
    }
    void prjOpened() override { call("opened"); }
    void prjSave() override
    {
        call("save");
        modPrjHook->setValue(m_name + str("/key"), toSave);
        if (onSave)
            onSave();
    }
    void prjClose() override
    {
        call("close");
        validAtClose = modPrjHook->isValid();
        leftAtClose = modPrjHook->value(m_name + str("/key"), str("default"));
    }

    QString toSave = QStringLiteral("saved");
    QString readBack;
    QString leftAtClose;
    bool validAtClose = true;
    std::function<void()> onOpen;
    std::function<void()> onSave;

private:
    void call(const char* what) { m_msg->showInfoMessage(m_name + QLatin1Char('.') + str(what)); }

    FakeMsgHook* m_msg;
    QString m_name;
};

class ModPrjTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        msg.registerPlugin(static_cast<ModMsgPluginIf*>(&prj));
        gui.registerPlugin(static_cast<ModGuiPluginIf*>(&prj));
        action.registerPlugin(static_cast<ModActionPluginIf*>(&prj));
        script.registerPlugin(static_cast<ModScriptPluginIf*>(&prj));
        prj.modInit();
        prj.modInitIntermod();
        prj.modRun();
    }

    QString path(const char* name) { return m_dir.filePath(str(name)); }
    QString makePrj(const char* name, const char* content = "")
    {
        writeFile(path(name), QByteArray("<project version=\"1\">") + content + "</project>");
        return path(name);
    }
    bool closeEnabled() { return prj.menuActions(ModActionHookIf::eActionClassConfiguration).value(2)->isEnabled(); }

    QTemporaryDir m_dir;
    FakeMsgHook msg;
    FakeGuiHook gui;
    FakeActionHook action;
    FakeScriptHook script;
    ModPrj prj;
};

// --- open and close ---

TEST_F(ModPrjTest, NothingIsOpenAtFirst)
{
    EXPECT_FALSE(prj.isValid());
    EXPECT_EQ(prj.prjDir(), QDir(str("")));
    EXPECT_TRUE(prj.prjFileName().isNull());
    EXPECT_EQ(prj.convToRelPath(str("/a/b/c.psm")), str("/a/b/c.psm"));
    EXPECT_EQ(prj.convToAbsPath(str("c.psm")), str("c.psm"));
    QString text = str("d.psm");
    prj.convToAbsPath(&text);
    prj.convToRelPath(&text);
    EXPECT_EQ(text, str("d.psm"));
    EXPECT_EQ(prj.prjTitle(), str("Untitled"));
    EXPECT_EQ(prj.prjVersion(), str("0.1"));
    EXPECT_EQ(prj.prjComment(), QString());
    EXPECT_EQ(script.objects.value(str("project")), &prj);
}

TEST_F(ModPrjTest, OpensAndClosesInOrder)
{
    Client a(&msg, "A");
    Client b(&msg, "B");
    prj.registerPlugin(&a);
    prj.registerPlugin(&b);
    EXPECT_EQ(a.modPrjHook, &prj);
    const QString file =
        makePrj("p.nalvo", "<PrjInfo><title>T</title><version>1.2</version></PrjInfo><A><key>from file</key></A>");
    ASSERT_TRUE(prj.openPrj(file));
    EXPECT_EQ(msg.infos(), QStringList({str("Open project: ") + file, str("A.open"), str("B.open"), str("A.opened"),
                                        str("B.opened"), str("Open project: Done")}));
    EXPECT_TRUE(prj.isValid());
    EXPECT_EQ(a.readBack, str("from file"));
    EXPECT_EQ(b.readBack, str("default"));
    EXPECT_EQ(prj.prjTitle(), str("T"));
    EXPECT_EQ(prj.prjVersion(), str("1.2"));
    EXPECT_TRUE(prj.prjComment().isNull());
    EXPECT_EQ(gui.titles, QStringList(str("p.nalvo ( Title: T, Project version: 1.2)")));

    msg.reset();
    ASSERT_TRUE(prj.closePrj());
    EXPECT_EQ(msg.infos(), QStringList({str("Saving project configuration"), str("A.save"), str("B.save"),
                                        str("A.close"), str("B.close"), str("Close project: Done")}));
    EXPECT_FALSE(prj.isValid());
    EXPECT_FALSE(a.validAtClose);
    EXPECT_EQ(a.leftAtClose, str("default"));
    EXPECT_EQ(gui.titles.last(), QString());
    EXPECT_FALSE(prj.hasNode(str("PrjInfo")));
    EXPECT_TRUE(readFile(file).contains("<A>\n        <key>saved</key>\n    </A>"));
}

TEST_F(ModPrjTest, ClosingWithoutAProjectIsAnError)
{
    EXPECT_FALSE(prj.closePrj());
    EXPECT_EQ(msg.errors(), QStringList(str("No project to close!")));
}

TEST_F(ModPrjTest, SavingWithoutAProjectIsAnError)
{
    Client a(&msg, "A");
    prj.registerPlugin(&a);
    prj.savePrjCfg();
    EXPECT_EQ(msg.texts(), QStringList(str("No project file set.")));
    EXPECT_FALSE(prj.hasNode(str("PrjInfo")));
}

TEST_F(ModPrjTest, FileThatDoesNotOpenLeavesNoProject)
{
    msg.dropOnClear = false;
    EXPECT_FALSE(prj.openPrj(QString()));
    EXPECT_FALSE(prj.openPrj(path("none")));
    EXPECT_FALSE(prj.open(m_dir.path()));
    EXPECT_EQ(msg.texts(),
              QStringList({str("No project file set."), str("Project file does not exist: ") + path("none"),
                           str("Project file is no valid file: ") + m_dir.path()}));
    EXPECT_FALSE(prj.isValid());
}

TEST_F(ModPrjTest, BrokenFileLeavesItsFirstPartButNotInTheNextProject)
{
    writeFile(path("broken"), "<project><A><key>1</key></A><B>");
    EXPECT_FALSE(prj.openPrj(path("broken")));
    EXPECT_EQ(msg.errors(), QStringList(str("Project file not XML conform!") + path("broken")));
    EXPECT_FALSE(prj.isValid());
    EXPECT_EQ(prj.value(str("A/key"), 7), 1);
    ASSERT_TRUE(prj.openPrj(makePrj("p.nalvo")));
    EXPECT_EQ(prj.value(str("A/key"), 7), 7);
}

TEST_F(ModPrjTest, OpeningSavesThePresentProjectEvenIfTheNewOneIsBroken)
{
    Client a(&msg, "A");
    prj.registerPlugin(&a);
    const QString first = makePrj("first.nalvo");
    writeFile(path("broken"), "<project>");
    ASSERT_TRUE(prj.openPrj(first));
    a.toSave = str("work");
    EXPECT_FALSE(prj.openPrj(path("broken")));
    EXPECT_FALSE(prj.isValid());
    EXPECT_TRUE(readFile(first).contains("work"));
}

TEST_F(ModPrjTest, AFailedSaveStillCloses)
{
    const QString file = makePrj("p.nalvo");
    ASSERT_TRUE(prj.openPrj(file));
    ASSERT_TRUE(QFile::remove(file));
    ASSERT_TRUE(QDir().mkdir(file));
    EXPECT_TRUE(prj.closePrj());
    EXPECT_EQ(msg.errors(), QStringList(str("Project file is directory: ") + file));
    EXPECT_FALSE(prj.isValid());
}

TEST_F(ModPrjTest, UnknownSectionsAndValuesSurviveASave)
{
    const QString file = makePrj("p.nalvo", "<Foreign a=\"1\"><x><y>a&amp;#47;b&amp;#33;</y></x></Foreign>");
    ASSERT_TRUE(prj.openPrj(file));
    EXPECT_EQ(prj.value(str("Foreign/x/y"), QString()), str("a/b!"));
    prj.savePrjCfg();
    EXPECT_EQ(readFile(file), QByteArray(R"x(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<project version="3">
    <Foreign a="1">
        <x>
            <y>a&amp;#47;b&amp;#33;</y>
        </x>
    </Foreign>
    <PrjInfo>
        <title></title>
        <version></version>
        <comment></comment>
    </PrjInfo>
</project>
)x"));
    EXPECT_TRUE(prj.isValid());
}

TEST_F(ModPrjTest, SettingsThatTheFileCanNotCarryAreReported)
{
    const QString file = makePrj("p.nalvo");
    ASSERT_TRUE(prj.openPrj(file));
    prj.setValue(str("A/1 bad"), 1);
    prj.setValue(str("A/good"), 2);
    prj.savePrjCfg();
    EXPECT_EQ(msg.warnings(), QStringList(str("Project setting can not be saved: A/1 bad")));
    ASSERT_TRUE(prj.closePrj());
    ASSERT_TRUE(prj.openPrj(file));
    EXPECT_EQ(prj.value(str("A/good"), 0), 2);
}

TEST_F(ModPrjTest, TypedValuesGoToTheFileAndBack)
{
    const QString file = makePrj("p.nalvo");
    ASSERT_TRUE(prj.openPrj(file));
    ModPrjHookIf* hook = &prj;
    const QFont font(str("DejaVu Sans Mono"), 13);
    hook->setValue(str("t/s"), str("a/b:<&>"));
    hook->setValue(str("t/i"), -5);
    hook->setValue(str("t/l"), QStringList({str("a:b"), str("c/&")}));
    hook->setValue(str("t/c"), QColor(1, 2, 3));
    hook->setFont(str("t/f"), font);
    ASSERT_TRUE(prj.closePrj());
    EXPECT_EQ(hook->value(str("t/i"), 1), 1);
    ASSERT_TRUE(prj.openPrj(file));
    EXPECT_EQ(hook->value(str("t/s"), QString()), str("a/b:<&>"));
    EXPECT_EQ(hook->value(str("t/i"), 1), -5);
    EXPECT_EQ(hook->value(str("t/l"), QStringList()), QStringList({str("a:b"), str("c/&")}));
    EXPECT_EQ(hook->value(str("t/c"), QColor()), QColor(1, 2, 3));
    EXPECT_EQ(hook->font(str("t/f"), QFont()), font);
}

TEST_F(ModPrjTest, PathsAreRelativeToTheProjectFile)
{
    ASSERT_TRUE(prj.openPrj(makePrj("p.nalvo")));
    EXPECT_EQ(prj.prjFileName(), str("p.nalvo"));
    EXPECT_EQ(prj.prjDir().path(), m_dir.path());
    EXPECT_EQ(prj.convToRelPath(path("src/a.psm")), str("src/a.psm"));
    EXPECT_EQ(prj.convToAbsPath(str("src/a.psm")), path("src/a.psm"));
    EXPECT_EQ(prj.convToAbsPath(str("/src/a.psm")), str("/src/a.psm"));
    QString text = path("b.psm");
    prj.convToRelPath(&text);
    EXPECT_EQ(text, str("b.psm"));
    prj.convToAbsPath(&text);
    EXPECT_EQ(text, path("b.psm"));
    prj.convToAbsPath(static_cast<QString*>(nullptr));
    prj.convToRelPath(static_cast<QString*>(nullptr));
}

TEST_F(ModPrjTest, ARelativeNameIsMadeAbsolute)
{
    makePrj("p.nalvo");
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(m_dir.path()));
    const bool opened = prj.openPrj(str("p.nalvo"));
    ASSERT_TRUE(QDir::setCurrent(before));
    ASSERT_TRUE(opened);
    EXPECT_EQ(prj.convToAbsPath(str("a.psm")), QDir(m_dir.path()).canonicalPath() + str("/a.psm"));
    EXPECT_TRUE(gui.titles.last().startsWith(str("p.nalvo ( Title: ")));
}

// --- clients ---

TEST_F(ModPrjTest, LateClientsAreCaughtUp)
{
    Client a(&msg, "A");
    const QString file = makePrj("p.nalvo", "<A><key>from file</key></A>");
    ASSERT_TRUE(prj.openPrj(file));
    msg.reset();
    prj.registerPlugin(&a);
    EXPECT_EQ(msg.texts(), QStringList({str("A.open"), str("A.opened")}));
    EXPECT_EQ(a.readBack, str("from file"));
    msg.reset();
    prj.registerPlugin(&a);
    EXPECT_TRUE(msg.texts().isEmpty());

    prj.unregisterPlugin(&a);
    EXPECT_EQ(msg.texts(), QStringList({str("A.save"), str("A.close")}));
    EXPECT_EQ(a.modPrjHook, nullptr);
    EXPECT_TRUE(prj.isValid());
    EXPECT_EQ(prj.value(str("A/key"), QString()), str("saved"));
    EXPECT_TRUE(a.validAtClose);
    msg.reset();
    prj.unregisterPlugin(&a);
    EXPECT_TRUE(msg.texts().isEmpty());
    prj.savePrjCfg();
    EXPECT_TRUE(readFile(file).contains("<key>saved</key>"));
}

TEST_F(ModPrjTest, LateClientThatClosesTheProjectIsNotToldThatItIsOpened)
{
    Client a(&msg, "A");
    ASSERT_TRUE(prj.openPrj(makePrj("p.nalvo")));
    a.onOpen = [this] { prj.closePrj(); };
    prj.registerPlugin(&a);
    EXPECT_FALSE(msg.texts().contains(str("A.opened")));
}

TEST_F(ModPrjTest, ClientsOfNoProjectGetNoCalls)
{
    Client a(&msg, "A");
    prj.registerPlugin(&a);
    prj.registerPlugin(&a);
    prj.unregisterPlugin(&a);
    prj.registerPlugin(static_cast<ModPrjPluginIf*>(nullptr));
    prj.unregisterPlugin(static_cast<ModPrjPluginIf*>(nullptr));
    prj.registerPlugin(static_cast<ModPrjPluginIfInterMod*>(nullptr));
    prj.unregisterPlugin(static_cast<ModPrjPluginIfInterMod*>(nullptr));
    EXPECT_TRUE(msg.texts().isEmpty());
    prj.registerPlugin(&a);
    prj.registerPlugin(&a);
    ASSERT_TRUE(prj.openPrj(makePrj("p.nalvo")));
    EXPECT_EQ(msg.texts().count(str("A.open")), 1);
}

TEST_F(ModPrjTest, InterModClientsGetTheHookAlone)
{
    ModPrjPluginIfInterMod client;
    prj.registerPlugin(&client);
    EXPECT_EQ(client.modPrjHook, &prj);
    prj.unregisterPlugin(&client);
    EXPECT_EQ(client.modPrjHook, nullptr);
}

TEST_F(ModPrjTest, ClientsMayCloseSaveAndOpenFromWithin)
{
    Client a(&msg, "A");
    Client b(&msg, "B");
    prj.registerPlugin(&a);
    prj.registerPlugin(&b);
    const QString first = makePrj("first.nalvo");
    const QString second = makePrj("second.nalvo");
    a.onOpen = [this] { prj.closePrj(); };
    EXPECT_FALSE(prj.openPrj(first));
    EXPECT_FALSE(prj.isValid());
    EXPECT_FALSE(msg.texts().contains(str("B.open")));

    bool nested = false;
    a.onOpen = [this, &nested, second] {
        if (!nested) {
            nested = true;
            prj.openPrj(second);
        }
    };
    EXPECT_FALSE(prj.openPrj(first));
    EXPECT_EQ(prj.prjFileName(), str("second.nalvo"));
    EXPECT_EQ(msg.texts().count(str("B.open")), 1);

    a.onSave = [this] {
        prj.savePrjCfg();
        prj.closePrj();
    };
    msg.reset();
    prj.savePrjCfg();
    EXPECT_EQ(msg.texts().count(str("A.save")), 1);
    EXPECT_TRUE(prj.closePrj());
    EXPECT_FALSE(prj.isValid());
}

class Module : public ModPluginIf, public ModPrjPluginIfInterMod
{
public:
    void modRegisterPlugins(QList<ModPluginIf*>) override {}
    void modInit() override {}
    void modInitIntermod() override {}
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override {}
};

TEST_F(ModPrjTest, FindsItsClientsInTheModuleList)
{
    Module module;
    prj.modRegisterPlugins({nullptr, &prj, &module});
    EXPECT_EQ(module.modPrjHook, static_cast<ModPrjHookIf*>(&prj));
}

TEST_F(ModPrjTest, ExitSavesAndCloses)
{
    Client a(&msg, "A");
    prj.registerPlugin(&a);
    const QString file = makePrj("p.nalvo");
    ASSERT_TRUE(prj.openPrj(file));
    EXPECT_TRUE(prj.modExitRequest());
    prj.modExitIntermod();
    EXPECT_TRUE(prj.isValid());
    prj.modExit();
    EXPECT_FALSE(prj.isValid());
    EXPECT_TRUE(readFile(file).contains("<key>saved</key>"));
    EXPECT_TRUE(prj.menuActions(ModActionHookIf::eActionClassConfiguration).isEmpty());
}

// --- without a main window ---

TEST(ModPrjBatch, WritesAndAsksNothingByItself)
{
    QTemporaryDir dir;
    FakeMsgHook msg;
    const QString file = dir.filePath(str("p.nalvo"));
    const QByteArray content = "<project><A><key>1</key></A></project>";
    writeFile(file, content);
    writeFile(dir.filePath(str("q.nalvo")), content);
    Client a(&msg, "A");
    {
        ModPrj prj;
        prj.modRegisterPlugins({});
        prj.modInit();
        prj.modInitIntermod();
        prj.modRun();
        prj.registerPlugin(&a);
        EXPECT_FALSE(prj.openPrj(dir.filePath(str("none"))));
        ASSERT_TRUE(prj.openPrj(file));
        ASSERT_TRUE(prj.openPrj(dir.filePath(str("q.nalvo"))));
        ASSERT_TRUE(prj.openPrj(file));
        prj.hndlAction(PrjActions::eActionNew);
        prj.hndlAction(PrjActions::eActionOpen);
        EXPECT_TRUE(prj.menuActions(ModActionHookIf::eActionClassConfiguration).isEmpty());
        EXPECT_EQ(prj.configPage(0), nullptr);
        prj.configPageClose(true);
        prj.configPagesClosed(true);
        prj.modExitIntermod();
        prj.modExit();
        EXPECT_FALSE(prj.isValid());
    }
    EXPECT_EQ(readFile(file), content);
    EXPECT_EQ(readFile(dir.filePath(str("q.nalvo"))), content);
    EXPECT_FALSE(msg.texts().contains(str("A.save")));
    EXPECT_EQ(msg.texts().count(str("A.close")), 3);
}

// --- actions ---

TEST_F(ModPrjTest, ActionsStandInTheConfigurationMenu)
{
    const QList<QAction*> actions = prj.menuActions(ModActionHookIf::eActionClassConfiguration);
    ASSERT_EQ(actions.size(), 4);
    EXPECT_EQ(prj.toolBarActions(ModActionHookIf::eActionClassConfiguration), actions.mid(0, 3));
    EXPECT_EQ(actions.last()->text(), str("Recent projects"));
    EXPECT_TRUE(prj.menuActions(ModActionHookIf::eActionClassFile).isEmpty());
    EXPECT_TRUE(prj.toolBarActions(ModActionHookIf::eActionClassHelp).isEmpty());
    const QStringList texts{str("New project..."), str("Open project..."), str("Close project")};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(actions[i]->text(), texts[i]);
        EXPECT_EQ(actions[i]->data().toInt(), i);
        EXPECT_FALSE(actions[i]->toolTip().isEmpty());
    }
}

TEST_F(ModPrjTest, CloseIsEnabledExactlyWhileAProjectIsOpen)
{
    EXPECT_FALSE(closeEnabled());
    ASSERT_TRUE(prj.openPrj(makePrj("p.nalvo")));
    EXPECT_TRUE(closeEnabled());
    prj.menuActions(ModActionHookIf::eActionClassConfiguration).value(2)->trigger();
    EXPECT_FALSE(prj.isValid());
    EXPECT_FALSE(closeEnabled());
    EXPECT_FALSE(prj.openPrj(path("none")));
    EXPECT_FALSE(closeEnabled());
}

TEST_F(ModPrjTest, TheSettingsDialogLocksTheActions)
{
    const QList<QAction*> actions = prj.menuActions(ModActionHookIf::eActionClassConfiguration);
    for (const bool open : {false, true}) {
        if (open) {
            ASSERT_TRUE(prj.openPrj(makePrj("p.nalvo")));
        }
        prj.configPage(0);
        for (QAction* entry : actions)
            EXPECT_FALSE(entry->isEnabled()) << entry->text().toStdString();
        const int titles = gui.titles.size();
        prj.configPageClose(false);
        EXPECT_EQ(gui.titles.size(), titles);
        prj.configPageClose(true);
        EXPECT_EQ(gui.titles.size(), titles + (open ? 1 : 0));
        prj.configPagesClosed(true);
        EXPECT_TRUE(actions[0]->isEnabled());
        EXPECT_TRUE(actions[1]->isEnabled());
        EXPECT_EQ(actions[2]->isEnabled(), open);
    }
}

TEST(PrjActionsTest, ReportsItsValueAndEnablesOne)
{
    PrjActions actions;
    QList<int> seen;
    QObject::connect(&actions, QOverload<PrjActions::eAction_t>::of(&PrjActions::triggered),
                     [&seen](PrjActions::eAction_t action) { seen.append(action); });
    for (QAction* entry : actions.menuActions())
        entry->trigger();
    EXPECT_EQ(seen, QList<int>({0, 1, 2}));
    actions.setEnabled(PrjActions::eActionOpen, false);
    EXPECT_TRUE(actions.menuActions().value(0)->isEnabled());
    EXPECT_FALSE(actions.menuActions().value(1)->isEnabled());
    EXPECT_TRUE(actions.menuActions().value(2)->isEnabled());
    actions.setEnabled(false);
    EXPECT_FALSE(actions.menuActions().value(0)->isEnabled());
}

TEST_F(ModPrjTest, ScriptsSeeOpenCloseAndTheActions)
{
    const QString file = makePrj("p.nalvo");
    bool result = false;
    ASSERT_TRUE(QMetaObject::invokeMethod(&prj, "open", Q_RETURN_ARG(bool, result), Q_ARG(QString, file)));
    EXPECT_TRUE(result);
    ASSERT_TRUE(QMetaObject::invokeMethod(&prj, "close"));
    EXPECT_FALSE(prj.isValid());
    EXPECT_GE(prj.metaObject()->indexOfSlot("hndlAction(nsModPrj::PrjActions::eAction_t)"), 0);
}

TEST(PrjConfigTest, Info)
{
    CfgTree tree;
    PrjConfig config;
    EXPECT_EQ(config.cfgTitle, str("Untitled"));
    EXPECT_EQ(config.cfgVersion, str("0.1"));
    EXPECT_TRUE(config.cfgComment.isEmpty());
    config.cfgTitle = str("a");
    config.cfgVersion = str("b");
    config.cfgComment = str("c");
    ModPrj::wrPrjInfo(&tree, config);
    EXPECT_EQ(tree.value(str("PrjInfo/title"), QString()), str("a"));
    EXPECT_EQ(tree.value(str("PrjInfo/version"), QString()), str("b"));
    EXPECT_EQ(tree.value(str("PrjInfo/comment"), QString()), str("c"));
    CfgTree empty;
    ModPrj::rdPrjInfo(&empty, &config);
    EXPECT_TRUE(config.cfgTitle.isNull());
    EXPECT_TRUE(config.cfgVersion.isNull());
    EXPECT_TRUE(config.cfgComment.isNull());
}

} // namespace
