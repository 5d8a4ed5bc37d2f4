#pragma once

#include "FakeTree.h"
#include "ModPrjHookIf.h"
#include "ModPrjPluginIf.h"

#include <QFileInfo>
#include <QList>

/// Stands in for the project: a tree of settings and a project file that need not exist.
///
/// open() and close() drive the clients that registered, in the order of the real service.
class FakePrjHook : public ModPrjHookIf
{
public:
    void registerPlugin(ModPrjPluginIfInterMod* plugin) override
    {
        if (plugin != nullptr)
            plugin->modPrjHook = this;
    }
    void unregisterPlugin(ModPrjPluginIfInterMod* plugin) override
    {
        if (plugin != nullptr)
            plugin->modPrjHook = nullptr;
    }
    void registerPlugin(ModPrjPluginIf* plugin) override
    {
        if (plugin == nullptr || plugins.contains(plugin))
            return;
        plugins.append(plugin);
        plugin->modPrjHook = this;
    }
    void unregisterPlugin(ModPrjPluginIf* plugin) override
    {
        if (plugin != nullptr && plugins.removeAll(plugin) > 0)
            plugin->modPrjHook = nullptr;
    }

    bool isValid() override { return !path.isEmpty(); }
    void savePrjCfg() override
    {
        ++saves;
        for (ModPrjPluginIf* plugin : QList<ModPrjPluginIf*>(plugins))
            plugin->prjSave();
    }
    QString value(QString key, QString dflt) override { return tree.get(key, dflt); }
    void setValue(QString key, QString value) override { tree.set(key, value); }
    int value(QString key, int dflt) override { return tree.get(key, dflt); }
    void setValue(QString key, int value) override { tree.set(key, value); }
    QStringList value(QString key, QStringList dflt) override { return tree.get(key, dflt); }
    void setValue(QString key, QStringList value) override { tree.set(key, value); }
    QColor value(QString key, QColor dflt) override { return tree.get(key, dflt); }
    void setValue(QString key, QColor value) override { tree.set(key, value); }
    QFont font(QString key, QFont dflt) override { return tree.get(key, dflt); }
    void setFont(QString key, QFont value) override { tree.set(key, value); }

    QDir prjDir() override { return isValid() ? QFileInfo(path).dir() : QDir(QString::fromLatin1("")); }
    QString prjFileName() override { return isValid() ? QFileInfo(path).fileName() : QString(); }
    QString convToRelPath(QString file) override { return isValid() ? prjDir().relativeFilePath(file) : file; }
    void convToRelPath(QString* file) override { *file = convToRelPath(*file); }
    QString convToAbsPath(QString file) override { return isValid() ? prjDir().absoluteFilePath(file) : file; }
    void convToAbsPath(QString* file) override { *file = convToAbsPath(*file); }
    QString prjTitle() override { return title; }
    QString prjVersion() override { return version; }
    QString prjComment() override { return comment; }
    void stepsChanged() override { ++stepChanges; }
    void showNewProject(std::function<void()>) override { ++newProjects; }

    /// Opens a project with this file and the present tree.
    bool open(QString file) override
    {
        path = file;
        for (ModPrjPluginIf* plugin : QList<ModPrjPluginIf*>(plugins))
            plugin->prjOpen();
        for (ModPrjPluginIf* plugin : QList<ModPrjPluginIf*>(plugins))
            plugin->prjOpened();
        return true;
    }
    /// Saves and closes the project.
    void close()
    {
        for (ModPrjPluginIf* plugin : QList<ModPrjPluginIf*>(plugins))
            plugin->prjAboutToClose();
        savePrjCfg();
        saved = tree;
        path.clear();
        tree.values.clear();
        for (ModPrjPluginIf* plugin : QList<ModPrjPluginIf*>(plugins))
            plugin->prjClose();
    }

    QString path; ///< project file; empty: no project is open
    FakeTree tree;
    FakeTree saved; ///< the tree as it was when close() emptied it
    int saves = 0;
    int stepChanges = 0; ///< calls of stepsChanged()
    int newProjects = 0; ///< calls of showNewProject()
    QString title;
    QString version;
    QString comment;
    QList<ModPrjPluginIf*> plugins;
};
