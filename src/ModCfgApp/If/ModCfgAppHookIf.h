#pragma once

#include <QColor>
#include <QDate>
#include <QFont>
#include <QString>
#include <QStringList>

class ModCfgAppPluginIf;
class ModCfgAppPluginIfInterMod;

/// The per-user settings of the application, as strings under keys such as "ModGui/width". Served by
/// nsModCfgApp::ModCfgApp.
///
/// Every getter takes a key and the value to answer when the key does not exist; a getter never creates a key. The
/// settings can be read in modInitIntermod() of the modules that follow the server in the module list; clients get them
/// in rdAppCfg().
class ModCfgAppHookIf
{
public:
    virtual ~ModCfgAppHookIf() = default;

    virtual void registerPlugin(ModCfgAppPluginIfInterMod* plugin) = 0;
    virtual void unregisterPlugin(ModCfgAppPluginIfInterMod* plugin) = 0;
    /// A late client gets no rdAppCfg().
    virtual void registerPlugin(ModCfgAppPluginIf* plugin) = 0;
    /// Calls wrAppCfg() on the leaving client.
    virtual void unregisterPlugin(ModCfgAppPluginIf* plugin) = 0;

    /// Writes the settings to the user's file at once, as they stand in the tree.
    virtual void saveAppConfig() = 0;

    virtual QString value(QString key, QString dflt) = 0;
    virtual void setValue(QString key, QString value) = 0;
    virtual int value(QString key, int dflt) = 0;
    virtual void setValue(QString key, int value) = 0;
    virtual QStringList value(QString key, QStringList dflt) = 0;
    virtual void setValue(QString key, QStringList value) = 0;
    virtual QColor value(QString key, QColor dflt) = 0;
    virtual void setValue(QString key, QColor value) = 0;
    virtual QDate value(QString key, QDate dflt) = 0;
    virtual void setValue(QString key, QDate value) = 0;
    virtual QFont font(QString key, QFont dflt) = 0;
    virtual void setFont(QString key, QFont value) = 0;
};
