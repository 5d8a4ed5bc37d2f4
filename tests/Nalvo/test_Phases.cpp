// The life of the modules: order of the phases, refusal of the exit, discovery.

#include "ModPluginIf.h"
#include "ModulePhases.h"
#include "PluginList.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

/// A module that writes each phase into a log.
class FakeModule : public ModPluginIf
{
public:
    FakeModule(const QString& name, QStringList* log)
        : m_name(name)
        , m_log(log)
    {
    }

    void modRegisterPlugins(QList<ModPluginIf*> modules) override
    {
        seen = modules;
        write("register");
    }
    void modInit() override { write("init"); }
    void modInitIntermod() override { write("intermod"); }
    void modRun() override { write("run"); }
    bool modExitRequest() override
    {
        write("request");
        return allowsExit;
    }
    void modExitIntermod() override { write("exitIntermod"); }
    void modExit() override { write("exit"); }

    QList<ModPluginIf*> seen;
    bool allowsExit = true;

private:
    void write(const char* phase) { m_log->append(m_name + QLatin1Char(':') + QLatin1String(phase)); }

    QString m_name;
    QStringList* m_log;
};

class PhasesTest : public ::testing::Test
{
protected:
    PhasesTest()
    {
        phases.append(&a);
        phases.append(nullptr);
        phases.append(&b);
        phases.append(&c);
    }

    QStringList log;
    FakeModule a{QStringLiteral("a"), &log};
    FakeModule b{QStringLiteral("b"), &log};
    FakeModule c{QStringLiteral("c"), &log};
    ModulePhases phases;
};

class ServiceHook
{
};

class ServicePlugin
{
public:
    virtual ~ServicePlugin() = default;
    ServiceHook* hook = nullptr;
};

class ServicePluginInterMod
{
public:
    virtual ~ServicePluginInterMod() = default;
    ServiceHook* hook = nullptr;
};

/// A server as all modules are that serve a hook.
class Server : public FakeModule, public ServiceHook
{
public:
    using FakeModule::FakeModule;

    void modRegisterPlugins(QList<ModPluginIf*> modules) override
    {
        registerPluginsOf<ServicePlugin>(modules, this);
        registerPluginsOf<ServicePluginInterMod>(modules, this);
    }
    void registerPlugin(ServicePlugin* plugin)
    {
        if (plugins.add(plugin))
            plugin->hook = this;
    }
    void registerPlugin(ServicePluginInterMod* plugin) { plugin->hook = this; }

    PluginList<ServicePlugin> plugins;
};

class Client : public FakeModule, public ServicePlugin
{
public:
    using FakeModule::FakeModule;

    void modRegisterPlugins(QList<ModPluginIf*>) override { hadHookInPhase = hook != nullptr; }

    bool hadHookInPhase = false;
};

class InterModClient : public FakeModule, public ServicePluginInterMod
{
public:
    using FakeModule::FakeModule;
};

} // namespace

TEST_F(PhasesTest, EachPhaseRunsForAllModulesBeforeTheNext)
{
    phases.start();
    EXPECT_EQ(log, (QStringList{"a:register", "b:register", "c:register", "a:init", "b:init", "c:init", "a:intermod",
                                "b:intermod", "c:intermod", "a:run", "b:run", "c:run"}));
    EXPECT_EQ(a.seen, (QList<ModPluginIf*>{&a, &b, &c}));
    EXPECT_EQ(c.seen, a.seen);
}

TEST_F(PhasesTest, ExitRunsInTheOrderOfTheListToo)
{
    phases.start();
    log.clear();
    EXPECT_TRUE(phases.stop());
    EXPECT_EQ(log, (QStringList{"a:request", "b:request", "c:request", "a:exitIntermod", "b:exitIntermod",
                                "c:exitIntermod", "a:exit", "b:exit", "c:exit"}));
}

TEST_F(PhasesTest, TheFirstRefusalEndsTheExit)
{
    phases.start();
    log.clear();
    b.allowsExit = false;
    EXPECT_FALSE(phases.stop());
    EXPECT_EQ(log, (QStringList{"a:request", "b:request"}));
    b.allowsExit = true;
    log.clear();
    EXPECT_TRUE(phases.stop());
    EXPECT_EQ(log.count(), 9);
}

TEST_F(PhasesTest, NoPhaseRunsTwice)
{
    phases.start();
    phases.start();
    EXPECT_EQ(log.count(), 12);
    EXPECT_TRUE(phases.stop());
    log.clear();
    EXPECT_TRUE(phases.stop());
    phases.start();
    EXPECT_TRUE(log.isEmpty());
}

TEST(DiscoveryTest, AServerRegistersItsClientsOnceInTheOrderOfTheList)
{
    QStringList log;
    Client early("early", &log), late("late", &log);
    InterModClient inter("inter", &log);
    FakeModule stranger("stranger", &log);
    Server server("server", &log);
    ModulePhases phases;
    for (ModPluginIf* module : QList<ModPluginIf*>{&early, &server, &stranger, &late, &inter, &late})
        phases.append(module);
    EXPECT_EQ(early.hook, nullptr);
    phases.start();
    EXPECT_FALSE(early.hadHookInPhase) << "its server comes later in the list";
    EXPECT_TRUE(late.hadHookInPhase);
    EXPECT_EQ(early.hook, &server);
    EXPECT_EQ(inter.hook, &server);
    EXPECT_EQ(server.plugins.plugins(), (QList<ServicePlugin*>{&early, &late}));
}

TEST(PluginListTest, HoldsNoClientTwiceAndSurvivesClientsThatLeaveDuringAWalk)
{
    PluginList<int> list;
    int a = 0, b = 0, c = 0;
    EXPECT_FALSE(list.add(nullptr));
    EXPECT_TRUE(list.add(&a));
    EXPECT_FALSE(list.add(&a));
    EXPECT_TRUE(list.add(&b));
    list.forEach([&](int* client) {
        ++*client;
        list.remove(&b);
        list.add(&c);
    });
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, 0);
    EXPECT_EQ(c, 0) << "a client that comes during the walk has its turn in the next one";
    EXPECT_FALSE(list.remove(&b));
    EXPECT_FALSE(list.remove(nullptr));
    EXPECT_EQ(list.plugins(), (QList<int*>{&a, &c}));
}
