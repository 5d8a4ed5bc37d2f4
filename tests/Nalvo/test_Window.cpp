// The main window with all its modules: start, close, settings.

#include "MainWindowFixture.h"

#include "ModActionHookIf.h"
#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrj.h"
#include "ModPrjPluginIf.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMetaMethod>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>

namespace {

const char* const project = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
                            "<project version=\"3\">\n    <PrjInfo>\n        <title>Title</title>\n"
                            "    </PrjInfo>\n</project>\n";

struct PrjClient : public ModPrjPluginIf
{
    void prjOpen() override { log.append("open"); }
    void prjOpened() override { log.append("opened"); }
    void prjSave() override { log.append("save"); }
    void prjClose() override { log.append("close"); }
    QStringList log;
};

} // namespace

TEST_F(MainWindowFixture, ModulesStandInTheirOrder)
{
    makeWindow();
    const QStringList order{"nsModMsg::ModMsg",
                            "nsModPrj::ModPrj",
                            "nsModSources::ModSources",
                            "nsModProcessor::ModProcessor",
                            "nsModAsmFe::ModAsmFe",
                            "nsModSyscall::ModSyscall",
                            "nsModEditor::ModEditor",
                            "nsModSrcNavi::ModSrcNavi",
                            "nsModHlp::ModHlp",
                            "nsModNetwork::ModNetwork",
                            "nsModSwUpdate::ModSwUpdate",
                            "nsModAction::ModAction",
                            "nsModArgs::ModArgs",
                            "nsModCfgApp::ModCfgApp",
                            "nsModClipboard::ModClipboard",
                            "nsModConfig::ModConfig",
                            "nsModFindReplace::ModFindReplace",
                            "nsModGui::ModGui",
                            "nsModTemplates::ModTemplates",
                            "nsModScript::ModScript",
                            "nsModImport::ModImport",
                            "nsModFonts::ModFonts",
                            "nsModSymbols::ModSymbols"};
    QStringList present;
    for (ModPluginIf* candidate : window->modules()) {
        auto* object = dynamic_cast<QObject*>(candidate);
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(object->parent(), window.get());
        present.append(object->metaObject()->className());
    }
    QStringList expected = order;
    for (const QString& name : order) {
        if (!present.contains(name))
            expected.removeAll(name);
    }
    EXPECT_EQ(present, expected);
    EXPECT_GE(present.count(), 9);
}

TEST_F(MainWindowFixture, WindowComesUpWithNameMenusAndMessages)
{
    makeWindow();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(QCoreApplication::organizationName(), QString("Brelmont"));
    EXPECT_EQ(QCoreApplication::applicationName(), QString("Nalvo"));
    EXPECT_EQ(window->windowTitle(), QString("Nalvo"));
    EXPECT_FALSE(window->styleSheet().isEmpty());
    QStringList titles;
    for (const QAction* action : window->menuBar()->actions())
        titles.append(action->menu()->title());
    EXPECT_EQ(titles,
              (QStringList{"Configuration", "File", "Edit", "Navigation", "Assembler", "Simulator", "Tools", "Help"}));
    QStringList help;
    for (const QAction* action : window->menuBar()->actions().last()->menu()->actions())
        help.append(action->text());
    EXPECT_TRUE(help.contains("Set default window size."));
    ASSERT_NE(messageView(), nullptr);
    auto* gui = module<ModGuiHookIf>();
    EXPECT_TRUE(gui->hasWidget(ModGuiHookIf::eLocationDockBottom, messageView()));
    EXPECT_TRUE(messageView()->isVisible());
}

TEST_F(MainWindowFixture, theSmallestWindowLeavesTheCentreItsRoom)
{
    makeWindow();
    window->resize(800, 600);
    QCoreApplication::processEvents();
    EXPECT_EQ(window->size(), QSize(800, 600));
    auto* gui = module<ModGuiHookIf>();
    const QWidget* page = gui->currentWidget(ModGuiHookIf::eLocationTabs);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->objectName(), QString("prjMngr"));
    EXPECT_GE(page->width(), 300);
    EXPECT_GE(page->height(), 300);
    screenshot("main-smallest");
}

TEST_F(MainWindowFixture, AMessageBringsTheMessageViewToTheFront)
{
    makeWindow();
    auto* gui = module<ModGuiHookIf>();
    QWidget other;
    gui->addWidget(nullptr, ModGuiHookIf::eLocationDockBottom, &other, "Other");
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockBottom), &other);
    module<ModMsgHookIf>()->showInfoMessage("text");
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockBottom), messageView());
    gui->removeWidget(&other);
}

TEST_F(MainWindowFixture, ASmallSavedSizeIsNotTaken)
{
    writeSetting("ModGui/width", "300");
    writeSetting("ModGui/height", "620");
    makeWindow();
    EXPECT_EQ(window->size(), QSize(800, 620));
}

TEST_F(MainWindowFixture, CloseWritesTheSettingsOnce)
{
    makeWindow();
    window->resize(1000, 700);
    EXPECT_FALSE(QFile::exists(settingsFile()));
    EXPECT_TRUE(closeWindow());
    EXPECT_TRUE(QFile::exists(settingsFile()));
    EXPECT_EQ(readSetting("ModGui/width"), QString("1000"));
    EXPECT_EQ(readSetting("ModGui/height"), QString("700"));
    // Another close event after the exit phases is accepted and does nothing more.
    EXPECT_TRUE(QFile::remove(settingsFile()));
    QCloseEvent again;
    again.ignore();
    QCoreApplication::sendEvent(window.get(), &again);
    EXPECT_TRUE(again.isAccepted());
    EXPECT_FALSE(QFile::exists(settingsFile()));
    makeWindow();
    EXPECT_EQ(window->size(), QSize(800, 600));
}

TEST_F(MainWindowFixture, SizeComesAgainAtTheNextStart)
{
    makeWindow();
    window->setGeometry(30, 40, 900, 650);
    closeWindow();
    makeWindow();
    EXPECT_EQ(window->geometry(), QRect(30, 40, 900, 650));
}

TEST_F(MainWindowFixture, ExitIsTheOneOperationForScriptsAndRunsNoExitPhase)
{
    makeWindow();
    const QMetaObject& meta = Nalvo::staticMetaObject;
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(), QByteArray("exit()"));
    // Without a running event loop it does nothing at all.
    EXPECT_TRUE(QMetaObject::invokeMethod(window.get(), "exit"));
    QCoreApplication::processEvents();
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(QFile::exists(settingsFile()));
    EXPECT_NE(module<ModActionHookIf>(), nullptr);
    // It keeps loops from beginning, such as those of dialogs, up to the end of the next one of the application.
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
}

TEST_F(MainWindowFixture, AClientOfTheProjectIsCaughtUpWhenItComesAndWhenItLeaves)
{
    makeWindow();
    auto* prj = module<nsModPrj::ModPrj>();
    ASSERT_NE(prj, nullptr);
    ModPrjHookIf* hook = prj;
    PrjClient early, late;
    hook->registerPlugin(&early);
    hook->registerPlugin(&early);
    EXPECT_TRUE(early.log.isEmpty());
    ASSERT_TRUE(prj->open(writeFile("p.nalvo", project)));
    EXPECT_EQ(early.log, (QStringList{"open", "opened"}));
    hook->registerPlugin(&late);
    EXPECT_EQ(late.log, (QStringList{"open", "opened"}));
    hook->unregisterPlugin(&late);
    EXPECT_EQ(late.log, (QStringList{"open", "opened", "save", "close"}));
    prj->close();
    EXPECT_EQ(early.log, (QStringList{"open", "opened", "save", "close"}));
    hook->unregisterPlugin(&early);
    EXPECT_EQ(early.modPrjHook, nullptr);
}

TEST_F(MainWindowFixture, AnOpenProjectIsSavedAndClosedAtTheExit)
{
    makeWindow();
    auto* prj = module<nsModPrj::ModPrj>();
    ASSERT_TRUE(prj->open(writeFile("p.nalvo", project)));
    PrjClient client;
    prj->registerPlugin(&client);
    closeWindow();
    EXPECT_EQ(client.log, (QStringList{"open", "opened", "save", "close"}));
    EXPECT_FALSE(prj->isValid());
}

TEST_F(MainWindowFixture, MenuOfTheBarsOffersToolBarsAlone)
{
    makeWindow();
    const std::unique_ptr<QMenu> menu(window->createPopupMenu());
    QStringList texts;
    for (const QAction* action : menu->actions())
        texts.append(action->text());
    EXPECT_EQ(texts.count(), window->findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly).count());
    EXPECT_TRUE(texts.contains("Assembler"));
    EXPECT_FALSE(texts.contains("Dock widget left"));
}
