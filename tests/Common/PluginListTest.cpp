#include "PluginList.h"

#include <gtest/gtest.h>

namespace {

struct Plugin
{
    virtual ~Plugin() = default;
    int calls = 0;
};

class Module : public ModPluginIf
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

class Client : public Module, public Plugin
{
};

struct Server
{
    void registerPlugin(Plugin* plugin) { plugins.add(plugin); }
    PluginList<Plugin> plugins;
};

TEST(PluginList, HoldsAClientOnceAndInOrder)
{
    PluginList<Plugin> list;
    Plugin a;
    Plugin b;
    EXPECT_TRUE(list.add(&b));
    EXPECT_TRUE(list.add(&a));
    EXPECT_FALSE(list.add(&b));
    EXPECT_EQ(list.plugins(), QList<Plugin*>({&b, &a}));
    EXPECT_TRUE(list.contains(&a));
    EXPECT_EQ(list.count(), 2);
    EXPECT_TRUE(list.remove(&b));
    EXPECT_FALSE(list.remove(&b));
    EXPECT_FALSE(list.contains(&b));
}

TEST(PluginList, IgnoresNull)
{
    PluginList<Plugin> list;
    EXPECT_FALSE(list.add(nullptr));
    EXPECT_FALSE(list.remove(nullptr));
    EXPECT_EQ(list.count(), 0);
}

TEST(PluginList, AWalkSurvivesClientsThatComeAndGo)
{
    PluginList<Plugin> list;
    Plugin a;
    Plugin b;
    Plugin c;
    list.add(&a);
    list.add(&b);
    list.forEach([&](Plugin* plugin) {
        ++plugin->calls;
        list.remove(&b);
        list.add(&c);
    });
    EXPECT_EQ(a.calls, 1);
    EXPECT_EQ(b.calls, 0);
    EXPECT_EQ(c.calls, 0);
    EXPECT_EQ(list.plugins(), QList<Plugin*>({&a, &c}));
}

TEST(PluginList, DiscoveryFindsTheClientsAmongTheModules)
{
    Module module;
    Client first;
    Client second;
    Server server;
    registerPluginsOf<Plugin>({nullptr, &first, &module, &second, &first}, &server);
    EXPECT_EQ(server.plugins.plugins(), QList<Plugin*>({&first, &second}));
}

} // namespace
