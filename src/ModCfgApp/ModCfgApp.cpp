#include "ModCfgApp.h"

#include "ModMsgHookIf.h"

#include "SafeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QVector>

#include <algorithm>

namespace nsModCfgApp {

namespace {

const QString rootName = QStringLiteral("app");

/// The settings file of this user, existing or not.
QString settingsFile()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QCoreApplication::organizationName(),
                     QCoreApplication::applicationName())
        .fileName();
}

} // namespace

ModCfgApp::ModCfgApp(QObject* parent)
    : CfgTree(parent)
    , CfgLookAccess(this)
{
    getNode(QStringList())->setName(rootName);
}

ModCfgApp::~ModCfgApp() = default;

// --- file ---

void ModCfgApp::loadAppConfig()
{
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, QCoreApplication::organizationName(),
                       QCoreApplication::applicationName());
    // Settings of the organisation or of the machine are not read.
    settings.setFallbacksEnabled(false);
    for (const QString& key : settings.allKeys()) {
        const QVariant stored = settings.value(key);
        // A text with commas that was typed into the file without quotes arrives as a list.
        const bool isList = stored.userType() == QMetaType::QStringList;
        CfgTree::setValue(key, isList ? stored.toStringList().join(QLatin1String(", ")) : stored.toString());
    }
}

void ModCfgApp::saveAppConfig()
{
    if (modMsgHook != nullptr)
        modMsgHook->showInfoMessage(tr("Saving application configuation"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    const QString path = settingsFile();
    QByteArray text;
    QString reason;
    bool success = formatSettings(&text, &reason);
    if (success) {
        // Among the settings is the password of the proxy.
        success =
            QDir().mkpath(QFileInfo(path).path()) && SafeFile::replace(path, text, &reason, SafeFile::eRightsOwner);
        if (!success && reason.isEmpty())
            reason = tr("The folder can not be made.");
    }
    if (success || modMsgHook == nullptr)
        return;
    modMsgHook->showErrorMessage(tr("Can not write application configuration: ") + path);
    modMsgHook->showInfoMessage(tr("Reason: ") + reason);
}

/// QSettings defines the format of the file, but does not report whether all of it was written. So it writes a
/// temporary file, and a second QSettings reads a copy of that to verify it.
bool ModCfgApp::formatSettings(QByteArray* text, QString* reason)
{
    *reason = tr("No temporary file can be written.");
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("settings.ini"));
    const QString copy = folder.filePath(QStringLiteral("copy.ini"));
    QSettings settings(path, QSettings::IniFormat);
    for (CfgNode* child : getNode(QStringList())->childs())
        saveAppCfgNode(child, &settings);
    const QStringList keys = settings.allKeys();
    // No file is written for an empty tree.
    if (!keys.isEmpty()) {
        settings.sync();
        if (!folder.isValid() || settings.status() != QSettings::NoError || !QFile::copy(path, copy))
            return false;
        const QSettings written(copy, QSettings::IniFormat);
        if (!std::all_of(keys.cbegin(), keys.cend(),
                         [&](const QString& key) { return written.value(key) == settings.value(key); }))
            return false;
        QFile file(copy);
        if (!file.open(QIODevice::ReadOnly))
            return false;
        *text = file.readAll();
    }
    reason->clear();
    return true;
}

void ModCfgApp::saveAppCfgNode(CfgNode* top, QSettings* settings)
{
    struct Entry
    {
        CfgNode* node;
        int pathLength; ///< of the parent's path
    };
    QString path;
    QVector<Entry> open{{top, 0}};
    while (!open.isEmpty()) {
        const Entry entry = open.takeLast();
        path.truncate(entry.pathLength);
        path += entry.node->name();
        if (!entry.node->value().isEmpty())
            settings->setValue(path, entry.node->value());
        path += QLatin1Char('/');
        const QList<CfgNode*> childs = entry.node->childs();
        for (int i = childs.size() - 1; i >= 0; --i)
            open.append({childs.at(i), path.size()});
    }
}

void ModCfgApp::distributeAppConfigToModules()
{
    m_plugins.forEach([](ModCfgAppPluginIf* plugin) { plugin->rdAppCfg(); });
}

void ModCfgApp::collectAppConfigFromModules()
{
    m_plugins.forEach([](ModCfgAppPluginIf* plugin) { plugin->wrAppCfg(); });
}

// --- clients ---

void ModCfgApp::registerPlugin(ModCfgAppPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modCfgAppHook = this;
}

void ModCfgApp::unregisterPlugin(ModCfgAppPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modCfgAppHook = nullptr;
}

void ModCfgApp::registerPlugin(ModCfgAppPluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modCfgAppHook = this;
}

void ModCfgApp::unregisterPlugin(ModCfgAppPluginIf* plugin)
{
    if (!m_plugins.contains(plugin))
        return;
    plugin->wrAppCfg();
    m_plugins.remove(plugin);
    plugin->modCfgAppHook = nullptr;
}

// --- settings ---

QDate ModCfgApp::value(QString key, QDate dflt)
{
    return CfgTree::value(key, dflt);
}

void ModCfgApp::setValue(QString key, QDate value)
{
    CfgTree::setValue(key, value);
}

// --- life cycle ---

void ModCfgApp::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModCfgAppPluginIf>(modules, this);
    registerPluginsOf<ModCfgAppPluginIfInterMod>(modules, this);
}

void ModCfgApp::modInit() {}

void ModCfgApp::modInitIntermod()
{
    loadAppConfig();
    distributeAppConfigToModules();
}

void ModCfgApp::modRun() {}

bool ModCfgApp::modExitRequest()
{
    return true;
}

void ModCfgApp::modExitIntermod()
{
    collectAppConfigFromModules();
    saveAppConfig();
}

void ModCfgApp::modExit() {}

} // namespace nsModCfgApp
