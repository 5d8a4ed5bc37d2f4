#pragma once

#include "PrjSettings.h"

#include <QColor>
#include <QDir>
#include <QFont>
#include <QString>
#include <QStringList>

#include <functional>

class ModPrjPluginIf;
class ModPrjPluginIfInterMod;

/// The open project: its settings tree, its place on the disk and its title. Served by nsModPrj::ModPrj.
///
/// Every getter takes a key such as "AsmFe/behavior/equ" and the value to answer when the key does not exist.
class ModPrjHookIf : public PrjSettings
{
public:
    using PrjSettings::convToAbsPath;
    using PrjSettings::convToRelPath;
    using PrjSettings::setValue;
    using PrjSettings::value;

    virtual void registerPlugin(ModPrjPluginIfInterMod* plugin) = 0;
    virtual void unregisterPlugin(ModPrjPluginIfInterMod* plugin) = 0;
    /// While a project is open, the new client gets prjOpen() and prjOpened() at once.
    virtual void registerPlugin(ModPrjPluginIf* plugin) = 0;
    /// While a project is open, the leaving client gets prjSave() and prjClose().
    virtual void unregisterPlugin(ModPrjPluginIf* plugin) = 0;

    /// @return a project is open
    virtual bool isValid() = 0;
    /// Collects the settings of all clients and writes the project file.
    virtual void savePrjCfg() = 0;

    virtual QColor value(QString key, QColor dflt) = 0;
    virtual void setValue(QString key, QColor value) = 0;
    virtual QFont font(QString key, QFont dflt) = 0;
    virtual void setFont(QString key, QFont value) = 0;

    /// Folder of the project file, QDir("") without a project.
    virtual QDir prjDir() = 0;
    /// File name without folder, a null string without a project.
    virtual QString prjFileName() = 0;
    virtual void convToRelPath(QString* path) = 0;
    virtual void convToAbsPath(QString* path) = 0;
    virtual QString prjTitle() = 0;
    virtual QString prjVersion() = 0;
    virtual QString prjComment() = 0;
    /// Closes the open project, with all that its clients ask the user then, and opens the file. Whatever belongs to
    /// the open project may be deleted meanwhile.
    /// @return false: the file can not be read, which was reported; no project is open then
    virtual bool open(QString file) = 0;

    /// Steps of a client have changed: all are asked again, soon.
    virtual void stepsChanged() = 0;
    /// Brings up the page that makes new projects.
    /// @param opened called when a project that was made there has been opened; may be null. Forgotten if the user goes
    /// another way.
    virtual void showNewProject(std::function<void()> opened) = 0;
};
