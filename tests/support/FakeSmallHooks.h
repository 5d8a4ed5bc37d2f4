#pragma once

// Fakes of the services with few operations: actions, settings dialog, help, scripts.

#if __has_include("ModActionHookIf.h")
#include "ModActionHookIf.h"
#include "ModActionPluginIf.h"

/// Counts refreshes.
class FakeActionHook : public ModActionHookIf
{
public:
    void registerPlugin(ModActionPluginIfInterMod* plugin) override { setHook(plugin, this); }
    void unregisterPlugin(ModActionPluginIfInterMod* plugin) override { setHook(plugin, nullptr); }
    void registerPlugin(ModActionPluginIf* plugin) override { setHook(plugin, this); }
    void unregisterPlugin(ModActionPluginIf* plugin) override { setHook(plugin, nullptr); }
    void refreshActions() override { ++refreshes; }

    int refreshes = 0;

private:
    template <class Plugin>
    void setHook(Plugin* plugin, ModActionHookIf* hook)
    {
        if (plugin != nullptr)
            plugin->modActionHook = hook;
    }
};
#endif

#if __has_include("ModConfigHookIf.h")
#include "ModConfigHookIf.h"
#include "ModConfigPluginIf.h"

#include <QStringList>

/// Records which pages were asked for.
class FakeConfigHook : public ModConfigHookIf
{
public:
    void registerPlugin(ModConfigPluginIf* plugin) override
    {
        if (plugin != nullptr)
            plugin->modConfigHook = this;
    }
    void unregisterPlugin(ModConfigPluginIf* plugin) override
    {
        if (plugin != nullptr)
            plugin->modConfigHook = nullptr;
    }
    void openDialog() override { opened.append(QString()); }
    void openDialog(QString title) override { opened.append(title); }
    void closeDialog(bool accepted) override { closed.append(accepted); }
    bool selectDialogPageByTitle(QString title) override
    {
        selected.append(title);
        return true;
    }

    QStringList opened;
    QStringList selected;
    QList<bool> closed;
};
#endif

#if __has_include("ModHlpHookIf.h")
#include "ModHlpHookIf.h"
#include "ModHlpPluginIf.h"

#include <QList>
#include <QStringList>

/// Records what help was asked for.
class FakeHlpHook : public ModHlpHookIf
{
public:
    void registerPlugin(ModHlpPluginIf* plugin)
    {
        if (plugin != nullptr)
            plugin->modHlpHook = this;
    }
    void unregisterPlugin(ModHlpPluginIf* plugin)
    {
        if (plugin != nullptr)
            plugin->modHlpHook = nullptr;
    }
    void showDialogHlpRef(QWidget*, QString ref) override { refs.append(ref); }
    void showHlp(QUrl url) override { urls.append(url); }
    void closeDialogHlp(QWidget* dialog) override { closed.append(dialog); }

    QStringList refs;
    QList<QUrl> urls;
    QList<QWidget*> closed;
};
#endif

#if __has_include("ModScriptHookIf.h")
#include "ModScriptHookIf.h"
#include "ModScriptPluginIf.h"

#include <QHash>
#include <QStringList>

/// Records the objects and scripts.
class FakeScriptHook : public ModScriptHookIf
{
public:
    void registerPlugin(ModScriptPluginIf* plugin)
    {
        if (plugin != nullptr)
            plugin->modScriptHook = this;
    }
    void unregisterPlugin(ModScriptPluginIf* plugin)
    {
        if (plugin != nullptr)
            plugin->modScriptHook = nullptr;
    }
    void registerObject(QObject* object, QString name) override { objects.insert(name, object); }
    bool executeScript(QString script) override
    {
        scripts.append(script);
        return result;
    }
    void throwError(QString text) override { errors.append(text); }
    bool scriptGoesOn() override { return ++looks != stopAtLook; }

    QHash<QString, QObject*> objects;
    QStringList scripts;
    QStringList errors;
    int looks = 0;
    int stopAtLook = 0; ///< knob: the user stops the script at this look; 0: never
    bool result = true; ///< knob: what executeScript() answers
};
#endif
