#pragma once

#include "ModSourcesHookIf.h"
#include "ModSourcesPluginIf.h"

#include <QList>

/// Stands in for the list of sources.
class FakeSourcesHook : public ModSourcesHookIf
{
public:
    void registerPlugin(ModSourcesPluginIf* plugin) override
    {
        if (plugin == nullptr || plugins.contains(plugin))
            return;
        plugins.append(plugin);
        plugin->modSourcesHook = this;
    }
    void unregisterPlugin(ModSourcesPluginIf* plugin) override
    {
        if (plugin != nullptr && plugins.removeAll(plugin) > 0)
            plugin->modSourcesHook = nullptr;
    }
    bool chkProjectMembership(QString path) override
    {
        asked.append(path);
        if (srcFiles.contains(path))
            return true;
        if (answerYes && !path.isEmpty())
            setFiles(srcFiles + QStringList(path));
        return answerYes && !path.isEmpty();
    }
    QStringList files() override { return srcFiles; }
    void setFileContentChanged() override
    {
        ++contentChanges;
        for (ModSourcesPluginIf* plugin : QList<ModSourcesPluginIf*>(plugins))
            plugin->srcFileContentChanged();
    }

    /// Sets the list and notifies the clients.
    bool setFiles(QStringList list) override
    {
        srcFiles = list;
        for (ModSourcesPluginIf* plugin : QList<ModSourcesPluginIf*>(plugins))
            plugin->srcFileListChanged();
        return true;
    }
    void addFilesByDialog(QWidget*) override { ++addDialogs; }

    QStringList srcFiles;
    QStringList asked;      ///< paths of chkProjectMembership(), in order
    bool answerYes = false; ///< knob: what the user answers
    int contentChanges = 0;
    int addDialogs = 0;
    QList<ModSourcesPluginIf*> plugins;
};
