// The window itself: title, geometry, style, splash screen, the action of the module, registration.

#include "GuiFixture.h"

#include "SplashScreen.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>
#include <QTest>

namespace {

template <class Plugin>
struct Module : public ModPluginIf, public Plugin
{
    using Plugin::Plugin;
    void modRegisterPlugins(QList<ModPluginIf*>) override {}
    void modInit() override {}
    void modInitIntermod() override {}
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override {}
};

QList<nsModGui::SplashScreen*> splashScreens()
{
    QList<nsModGui::SplashScreen*> result;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* splash = qobject_cast<nsModGui::SplashScreen*>(widget))
            result.append(splash);
    }
    return result;
}

} // namespace

TEST_F(GuiTest, TitleIsTheApplicationAndTheText)
{
    EXPECT_EQ(window.windowTitle(), QString("Nalvo"));
    hook->setWindowTitle("main.nalvo");
    EXPECT_EQ(window.windowTitle(), QString("Nalvo - main.nalvo"));
    hook->setWindowTitle("");
    EXPECT_EQ(window.windowTitle(), QString("Nalvo"));
}

TEST_F(GuiTest, WindowHasStyleSheetAndIcon)
{
    EXPECT_FALSE(window.styleSheet().isEmpty());
    EXPECT_FALSE(window.windowIcon().isNull());
    EXPECT_FALSE(window.windowIcon().availableSizes().isEmpty());
}

TEST_F(GuiTest, GeometryComesFromTheSettings)
{
    cfg.setValue("ModGui/width", 1000);
    cfg.setValue("ModGui/height", 700);
    cfg.setValue("ModGui/x", 40);
    cfg.setValue("ModGui/y", 30);
    gui->rdAppCfg();
    EXPECT_EQ(window.geometry(), QRect(40, 30, 1000, 700));
    EXPECT_EQ(window.iconSize(), QSize(22, 22));
}

TEST_F(GuiTest, TheFirstWindowStandsInsideTheScreenWithItsTitleBar)
{
    gui->rdAppCfg();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize size = (screen.size() * 4 / 5).boundedTo(QSize(1440, 900)).expandedTo(QSize(800, 600));
    EXPECT_EQ(window.size(), size);
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    ASSERT_GT(title, 0);
    EXPECT_GE(window.geometry().top(), screen.top() + title);
    EXPECT_GE(window.geometry().left(), screen.left());
    if (size.width() <= screen.width()) {
        EXPECT_LE(window.geometry().right(), screen.right());
    }
    if (size.height() + title <= screen.height()) {
        EXPECT_LE(window.geometry().bottom(), screen.bottom());
    }
}

TEST_F(GuiTest, AWindowOfAScreenThatIsGoneComesBackOntoOne)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QList<QPoint> lost{{5000, 100}, {-3000, 100}, {100, 4000}, {100, -2000}, {0, 0}};
    for (const QPoint& position : lost) {
        cfg.setValue("ModGui/width", 900);
        cfg.setValue("ModGui/height", 650);
        cfg.setValue("ModGui/x", position.x());
        cfg.setValue("ModGui/y", position.y());
        gui->rdAppCfg();
        EXPECT_EQ(window.size(), QSize(900, 650));
        const QRect bar(window.x(), window.geometry().top() - title, window.width(), title);
        EXPECT_TRUE(screen.contains(bar.topLeft())) << position.x() << ' ' << position.y();
    }
    // One that can be taken hold of stays where it is.
    cfg.setValue("ModGui/x", -600);
    cfg.setValue("ModGui/y", 300);
    gui->rdAppCfg();
    EXPECT_EQ(window.geometry(), QRect(-600, 300, 900, 650));
}

TEST_F(GuiTest, GeometryHasASmallestSize)
{
    cfg.setValue("ModGui/width", 300);
    cfg.setValue("ModGui/height", 599);
    gui->rdAppCfg();
    EXPECT_EQ(window.size(), QSize(800, 600));
}

TEST_F(GuiTest, GeometryIsWrittenBackAndComesAgain)
{
    window.show();
    window.setGeometry(50, 60, 900, 650);
    gui->wrAppCfg();
    EXPECT_EQ(cfg.value("ModGui/width", 0), 900);
    EXPECT_EQ(cfg.value("ModGui/height", 0), 650);
    EXPECT_EQ(cfg.value("ModGui/x", 0), 50);
    EXPECT_EQ(cfg.value("ModGui/y", 0), 60);
    gui->rdAppCfg();
    EXPECT_EQ(window.geometry(), QRect(50, 60, 900, 650));
}

TEST_F(GuiTest, AMaximizedWindowComesBackMaximizedAndKeepsItsSizeForLater)
{
    window.setGeometry(50, 60, 900, 650);
    window.show();
    window.showMaximized();
    ASSERT_TRUE(QTest::qWaitFor([this] { return window.isMaximized() && window.size() != QSize(900, 650); }, 60000));
    gui->wrAppCfg();
    EXPECT_EQ(cfg.value("ModGui/width", 0), 900);
    EXPECT_EQ(cfg.value("ModGui/height", 0), 650);
    window.showNormal();
    gui->rdAppCfg();
    EXPECT_TRUE(window.isMaximized());
    window.showNormal();
    gui->wrAppCfg();
    gui->rdAppCfg();
    EXPECT_FALSE(window.isMaximized());
}

TEST_F(GuiTest, SettingsAreTolerantOfAMissingHook)
{
    gui->modCfgAppHook = nullptr;
    const QRect before = window.geometry();
    gui->rdAppCfg();
    gui->wrAppCfg();
    EXPECT_EQ(window.geometry(), before);
    EXPECT_TRUE(splashScreens().isEmpty());
}

TEST_F(GuiTest, SplashScreenStandsInTheMiddleOfTheWindowForAMoment)
{
    QCoreApplication::setApplicationVersion("2016-9.1");
    cfg.setValue("ModGui/width", 1000);
    cfg.setValue("ModGui/height", 700);
    cfg.setValue("ModGui/x", 100);
    cfg.setValue("ModGui/y", 50);
    QElapsedTimer clock;
    clock.start();
    gui->rdAppCfg();
    ASSERT_EQ(splashScreens().count(), 1);
    QPointer<nsModGui::SplashScreen> splash = splashScreens().first();
    EXPECT_EQ(splash->objectName(), QString("splashScreen"));
    EXPECT_EQ(splash->message(), QString("Release 2016-9.1"));
    EXPECT_TRUE(splash->isVisible());
    EXPECT_FALSE(splash->pixmap().isNull());
    EXPECT_LE((splash->pos() + splash->rect().center() - QRect(100, 50, 1000, 700).center()).manhattanLength(), 2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return splash.isNull(); }, 120000));
    EXPECT_GE(clock.elapsed(), 2300);
}

TEST_F(GuiTest, SplashScreenGoesWithTheModuleAndIsNotDoubled)
{
    gui->rdAppCfg();
    gui->rdAppCfg();
    EXPECT_EQ(splashScreens().count(), 1);
    delete gui;
    EXPECT_TRUE(splashScreens().isEmpty());
}

TEST_F(GuiTest, ActionSetsTheSizeForPictures)
{
    EXPECT_TRUE(gui->menuActions(ModActionHookIf::eActionClassHelp).isEmpty());
    gui->modInit();
    const QList<QAction*> actions = gui->menuActions(ModActionHookIf::eActionClassHelp);
    ASSERT_EQ(actions.count(), 1);
    EXPECT_EQ(actions[0]->text(), QString("Set default window size."));
    EXPECT_EQ(actions[0]->toolTip(), QString("Sets default window size for presentation screenshots"));
    EXPECT_EQ(actions[0]->data().toInt(), 0);
    EXPECT_TRUE(actions[0]->isEnabled());
    EXPECT_TRUE(gui->menuActions(ModActionHookIf::eActionClassFile).isEmpty());

    hook->addWidget(&a, Hook::eLocationDockBottom, make("docked"), "docked");
    window.show();
    QCoreApplication::processEvents();
    actions[0]->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.size(), QSize(1280, 750));
    EXPECT_NEAR(dock("dockBottom")->height(), 200, 8);
    gui->modExit();
    EXPECT_TRUE(gui->menuActions(ModActionHookIf::eActionClassHelp).isEmpty());
}

TEST_F(GuiTest, ActionsCanBeDisabledAllOrOne)
{
    gui->modInit();
    QAction* action = gui->menuActions(ModActionHookIf::eActionClassHelp).first();
    auto* group = qobject_cast<nsModGui::GuiActions*>(action->actionGroup());
    ASSERT_NE(group, nullptr);
    group->setEnabled(false);
    EXPECT_FALSE(action->isEnabled());
    group->setEnabled(nsModGui::GuiActions::eActionSetDefaultWindowSize, true);
    EXPECT_TRUE(action->isEnabled());
    group->setEnabled(static_cast<nsModGui::GuiActions::eAction_t>(7), false);
    EXPECT_TRUE(action->isEnabled());
}

TEST_F(GuiTest, DiscoveryTakesModulesThatAreClients)
{
    struct PlainClient : public GuiClient
    {
        PlainClient()
            : GuiClient("m", new QStringList)
        {
        }
        ~PlainClient() override { delete log; }
    };
    Module<PlainClient> client;
    Module<ModGuiPluginIfInterMod> inter;
    gui->modRegisterPlugins({gui, nullptr, &client, &inter});
    EXPECT_EQ(client.modGuiHook, hook);
    EXPECT_EQ(inter.modGuiHook, hook);
    hook->addWidget(&a, Hook::eLocationTabs, make("page"), "page");
    EXPECT_EQ(client.log->count(), 1);
    hook->unregisterPlugin(&inter);
    EXPECT_EQ(inter.modGuiHook, nullptr);
    hook->unregisterPlugin(&client);
}

TEST_F(GuiTest, RegistrationIgnoresNullRepeatsAndStrangers)
{
    GuiClient stranger("stranger", &log);
    stranger.modGuiHook = hook;
    hook->registerPlugin(static_cast<ModGuiPluginIf*>(nullptr));
    hook->unregisterPlugin(static_cast<ModGuiPluginIf*>(nullptr));
    hook->registerPlugin(static_cast<ModGuiPluginIfInterMod*>(nullptr));
    hook->unregisterPlugin(static_cast<ModGuiPluginIfInterMod*>(nullptr));
    hook->unregisterPlugin(&stranger);
    EXPECT_EQ(stranger.modGuiHook, hook);
    hook->registerPlugin(&a);
    hook->addWidget(&b, Hook::eLocationTabs, make("page"), "page");
    EXPECT_EQ(log.count("a:1:none:page"), 1);
    hook->unregisterPlugin(&a);
    EXPECT_EQ(a.modGuiHook, nullptr);
    log.clear();
    hook->addWidget(&b, Hook::eLocationTabs, make("page"), "page");
    EXPECT_EQ(log, QStringList{"b:1:none:page"});
}
