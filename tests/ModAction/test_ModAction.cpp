// Menus and tool bars: order, content, separators, and when they are rebuilt.

#include "ModAction.h"
#include "ModActionPluginIf.h"

#include <gtest/gtest.h>

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace {

/// A client with lists of its own for each class; counts how often it is asked.
struct Client : public ModActionPluginIf
{
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override
    {
        ++asked;
        order.append(actionClass);
        return menus.value(actionClass);
    }
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) override
    {
        ++asked;
        return toolBars.value(actionClass);
    }
    QMap<int, QList<QAction*>> menus;
    QMap<int, QList<QAction*>> toolBars;
    QList<int> order;
    int asked = 0;
};

/// A client that is a module, for the discovery.
struct ClientModule : public ModPluginIf, public Client
{
    void modRegisterPlugins(QList<ModPluginIf*>) override {}
    void modInit() override {}
    void modInitIntermod() override {}
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override {}
};

struct InterMod : public ModPluginIf, public ModActionPluginIfInterMod
{
    void modRegisterPlugins(QList<ModPluginIf*>) override {}
    void modInit() override {}
    void modInitIntermod() override {}
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override {}
};

class ActionTest : public ::testing::Test
{
protected:
    ActionTest()
        : module(&window)
        , hook(&module)
    {
        for (const char* name : {"a1", "a2", "b1", "c1"})
            actions.append(new QAction(QLatin1String(name), &window));
    }

    void start()
    {
        module.modInit();
        module.modInitIntermod();
        module.modRun();
    }

    QMenu* menu(const char* title) const
    {
        for (QAction* action : window.menuBar()->actions()) {
            if (action->menu() != nullptr && action->menu()->title() == QLatin1String(title))
                return action->menu();
        }
        return nullptr;
    }
    QToolBar* toolBar(const char* title) const
    {
        for (QToolBar* bar : window.findChildren<QToolBar*>()) {
            if (bar->windowTitle() == QLatin1String(title))
                return bar;
        }
        return nullptr;
    }
    static QString texts(const QWidget* widget)
    {
        QStringList result;
        for (const QAction* action : widget->actions())
            result.append(action->isSeparator() ? QStringLiteral("|") : action->text());
        return result.join(QLatin1Char(' '));
    }

    QMainWindow window;
    nsModAction::ModAction module;
    ModActionHookIf* hook;
    QList<QAction*> actions;
    Client a, b, c;
};

} // namespace

TEST_F(ActionTest, MenusAndToolBarsStandInTheOrderOfTheScreen)
{
    module.modInit();
    const QStringList titles{"Configuration", "File", "Edit", "Navigation", "Assembler", "Simulator", "Tools", "Help"};
    QStringList menus, bars, names;
    for (const QAction* action : window.menuBar()->actions())
        menus.append(action->menu()->title());
    for (const QToolBar* bar : window.findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        bars.append(bar->windowTitle());
        names.append(bar->objectName());
    }
    EXPECT_EQ(menus, titles);
    EXPECT_EQ(bars, titles);
    EXPECT_EQ(names.removeDuplicates(), 0);
    EXPECT_FALSE(names.contains(QString()));
}

TEST_F(ActionTest, SetUpTwiceMakesNoSecondMenu)
{
    module.modInit();
    module.modInit();
    EXPECT_EQ(window.menuBar()->actions().count(), 8);
    EXPECT_EQ(window.findChildren<QToolBar*>().count(), 8);
}

TEST_F(ActionTest, ClassWithoutActionsShowsADisabledMenuAndAnEnabledToolBar)
{
    a.menus[ModActionHookIf::eActionClassFile] = {actions[0]};
    hook->registerPlugin(&a);
    start();
    EXPECT_TRUE(menu("File")->isEnabled());
    EXPECT_FALSE(menu("Edit")->isEnabled());
    EXPECT_FALSE(menu("Help")->menuAction()->isEnabled());
    EXPECT_TRUE(toolBar("Edit")->isEnabled());
    a.menus.clear();
    hook->refreshActions();
    EXPECT_FALSE(menu("File")->isEnabled());
    EXPECT_EQ(texts(menu("File")), QString());
}

TEST_F(ActionTest, ClientsAreSetApartBySeparators)
{
    a.menus[1] = {actions[0], actions[1]};
    b.menus[1] = {actions[2]};
    c.menus[1] = {actions[3]};
    a.toolBars[1] = {actions[0]};
    b.toolBars[1] = {actions[2]};
    hook->registerPlugin(&a);
    hook->registerPlugin(&b);
    start();
    EXPECT_EQ(texts(menu("File")), QString("a1 a2 | b1"));
    hook->registerPlugin(&c);
    EXPECT_EQ(texts(menu("File")), QString("a1 a2 | b1 | c1"));
    EXPECT_EQ(texts(toolBar("File")), QString("a1 | b1"));
    b.menus.clear();
    hook->refreshActions();
    EXPECT_EQ(texts(menu("File")), QString("a1 a2 | c1"));
    a.menus.clear();
    hook->refreshActions();
    EXPECT_EQ(texts(menu("File")), QString("c1"));
}

TEST_F(ActionTest, ARefreshLeavesNoSeparatorsOfTheLastOneBehind)
{
    a.menus[1] = a.toolBars[1] = {actions[0]};
    b.menus[1] = b.toolBars[1] = {actions[2]};
    hook->registerPlugin(&a);
    hook->registerPlugin(&b);
    start();
    const int count = window.findChildren<QAction*>().size();
    for (int i = 0; i < 10; ++i)
        hook->refreshActions();
    EXPECT_EQ(window.findChildren<QAction*>().size(), count);
    EXPECT_EQ(texts(menu("File")), QString("a1 | b1"));
    EXPECT_EQ(texts(toolBar("File")), QString("a1 | b1"));
}

TEST_F(ActionTest, NullActionsAreLeftOut)
{
    a.menus[1] = {nullptr, actions[0]};
    b.menus[1] = {nullptr};
    hook->registerPlugin(&a);
    hook->registerPlugin(&b);
    start();
    EXPECT_EQ(texts(menu("File")), QString("a1"));
}

TEST_F(ActionTest, ToolBarsHaveIconsOf26Pixels)
{
    start();
    for (const QToolBar* bar : window.findChildren<QToolBar*>())
        EXPECT_EQ(bar->iconSize(), QSize(26, 26)) << qPrintable(bar->windowTitle());
    window.setIconSize(QSize(22, 22));
    EXPECT_EQ(toolBar("File")->iconSize(), QSize(26, 26));
}

TEST_F(ActionTest, AnEmptyToolBarStaysAsItIs)
{
    a.toolBars[1] = {actions[0]};
    hook->registerPlugin(&a);
    start();
    for (const char* title : {"File", "Edit"}) {
        EXPECT_TRUE(toolBar(title)->isMovable()) << title;
        EXPECT_TRUE(toolBar(title)->isEnabled()) << title;
        EXPECT_FALSE(toolBar(title)->isHidden()) << title;
    }
    hook->unregisterPlugin(&a);
    EXPECT_TRUE(toolBar("File")->actions().isEmpty());
    EXPECT_TRUE(toolBar("File")->isMovable());
    EXPECT_TRUE(toolBar("File")->isEnabled());
    EXPECT_FALSE(toolBar("File")->isHidden());
}

TEST_F(ActionTest, NothingIsDrawnBeforeTheRunAndAfterTheExit)
{
    a.menus[1] = {actions[0]};
    module.modInit();
    hook->registerPlugin(&a);
    hook->refreshActions();
    EXPECT_EQ(texts(menu("File")), QString());
    EXPECT_EQ(a.asked, 0);
    module.modRun();
    EXPECT_EQ(texts(menu("File")), QString("a1"));
    EXPECT_EQ(a.asked, 16);
    b.menus[1] = {actions[2]};
    hook->registerPlugin(&b);
    EXPECT_EQ(texts(menu("File")), QString("a1 | b1"));
    hook->unregisterPlugin(&a);
    EXPECT_EQ(texts(menu("File")), QString("b1"));
    module.modExitIntermod();
    hook->unregisterPlugin(&b);
    EXPECT_EQ(texts(menu("File")), QString("b1"));
    EXPECT_EQ(b.modActionHook, nullptr);
}

TEST_F(ActionTest, ARefreshAsksInTheOrderOfTheValues)
{
    hook->registerPlugin(&a);
    start();
    EXPECT_EQ(a.order, (QList<int>{0, 1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(ActionTest, RegistrationIgnoresNullRepeatsAndStrangers)
{
    start();
    hook->registerPlugin(static_cast<ModActionPluginIf*>(nullptr));
    hook->unregisterPlugin(static_cast<ModActionPluginIf*>(nullptr));
    hook->registerPlugin(static_cast<ModActionPluginIfInterMod*>(nullptr));
    hook->unregisterPlugin(static_cast<ModActionPluginIfInterMod*>(nullptr));
    a.menus[1] = {actions[0]};
    hook->registerPlugin(&a);
    hook->registerPlugin(&a);
    EXPECT_EQ(texts(menu("File")), QString("a1"));
    EXPECT_EQ(a.modActionHook, hook);
    EXPECT_EQ(a.asked, 16);
    b.modActionHook = hook;
    hook->unregisterPlugin(&b);
    EXPECT_EQ(b.modActionHook, hook);
    EXPECT_EQ(a.asked, 16);
    hook->unregisterPlugin(&a);
    EXPECT_EQ(a.modActionHook, nullptr);
    EXPECT_EQ(texts(menu("File")), QString());
}

TEST_F(ActionTest, DiscoveryTakesModulesThatAreClients)
{
    ClientModule client;
    InterMod inter;
    client.menus[1] = {actions[0]};
    module.modRegisterPlugins({&module, nullptr, &client, &inter, &client});
    EXPECT_EQ(client.modActionHook, hook);
    EXPECT_EQ(inter.modActionHook, hook);
    start();
    EXPECT_EQ(texts(menu("File")), QString("a1"));
    hook->unregisterPlugin(&inter);
    EXPECT_EQ(inter.modActionHook, nullptr);
}

TEST_F(ActionTest, AnActionThatItsOwnerDeletesIsGone)
{
    a.menus[1] = {actions[0], actions[1]};
    a.toolBars[1] = a.menus[1];
    hook->registerPlugin(&a);
    start();
    delete actions[0];
    EXPECT_EQ(texts(menu("File")), QString("a2"));
    EXPECT_EQ(texts(toolBar("File")), QString("a2"));
}
