#pragma once

#include "ModSrcNaviHookIf.h"
#include "ModSrcNaviPluginIf.h"
#include "NaviTag.h"

#include <QList>

/// Stands in for the source navigator: keeps the tags.
class FakeSrcNaviHook : public ModSrcNaviHookIf
{
public:
    ~FakeSrcNaviHook() override { qDeleteAll(tags); }
    void registerPlugin(ModSrcNaviPluginIf* plugin) override { plugin->modSrcNaviHook = this; }
    void unregisterPlugin(ModSrcNaviPluginIf* plugin) override { plugin->modSrcNaviHook = nullptr; }
    void registerPlugin(ModSrcNaviPluginIfSymbols* plugin) override { plugin->modSrcNaviHook = this; }
    void unregisterPlugin(ModSrcNaviPluginIfSymbols* plugin) override { plugin->modSrcNaviHook = nullptr; }
    void clearTagList() override
    {
        qDeleteAll(tags);
        tags.clear();
    }
    void addTag(nsModSrcNavi::NaviTag* tag) override { tags.append(tag); }
    void showTagList() override { ++shown; }
    void setTargetFiles(QStringList templates, QStringList outputs, QMap<QString, int> errors) override
    {
        templateFiles = templates;
        outputFiles = outputs;
        errorCounts = errors;
    }

    QList<nsModSrcNavi::NaviTag*> tags;
    QStringList templateFiles;
    QStringList outputFiles;
    QMap<QString, int> errorCounts;
    int shown = 0; ///< calls of showTagList()
};
