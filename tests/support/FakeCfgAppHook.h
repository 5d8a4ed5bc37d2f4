#pragma once

#include "FakeTree.h"
#include "ModCfgAppHookIf.h"
#include "ModCfgAppPluginIf.h"

#include <QList>

/// Stands in for the application settings.
class FakeCfgAppHook : public ModCfgAppHookIf
{
public:
    void registerPlugin(ModCfgAppPluginIfInterMod* plugin) override
    {
        if (plugin != nullptr)
            plugin->modCfgAppHook = this;
    }
    void unregisterPlugin(ModCfgAppPluginIfInterMod* plugin) override
    {
        if (plugin != nullptr)
            plugin->modCfgAppHook = nullptr;
    }
    void registerPlugin(ModCfgAppPluginIf* plugin) override
    {
        if (plugin == nullptr || plugins.contains(plugin))
            return;
        plugins.append(plugin);
        plugin->modCfgAppHook = this;
    }
    void unregisterPlugin(ModCfgAppPluginIf* plugin) override
    {
        if (plugin != nullptr && plugins.removeAll(plugin) > 0)
            plugin->modCfgAppHook = nullptr;
    }

    void saveAppConfig() override { ++saves; }
    QString value(QString key, QString dflt) override { return tree.get(key, dflt); }
    void setValue(QString key, QString value) override { tree.set(key, value); }
    int value(QString key, int dflt) override { return tree.get(key, dflt); }
    void setValue(QString key, int value) override { tree.set(key, value); }
    QStringList value(QString key, QStringList dflt) override { return tree.get(key, dflt); }
    void setValue(QString key, QStringList value) override { tree.set(key, value); }
    QColor value(QString key, QColor dflt) override { return tree.get(key, dflt); }
    void setValue(QString key, QColor value) override { tree.set(key, value); }
    QDate value(QString key, QDate dflt) override { return tree.get(key, dflt); }
    void setValue(QString key, QDate value) override { tree.set(key, value); }
    QFont font(QString key, QFont dflt) override { return tree.get(key, dflt); }
    void setFont(QString key, QFont value) override { tree.set(key, value); }

    FakeTree tree;
    int saves = 0;
    QList<ModCfgAppPluginIf*> plugins;
};
