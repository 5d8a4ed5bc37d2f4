#pragma once

#include "ModCfgApp.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

/// The real application settings in a folder of the test, for several starts of the program in a row.
///
/// CMakeLists.txt of such a test names ModCfgApp under MODULES and ModMsg under FACES.
class AppCfgOnDisk
{
public:
    AppCfgOnDisk() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path()); }

    /// A start of the program: the client reads what is stored.
    void start(ModCfgAppPluginIf* client)
    {
        m_settings = std::make_unique<nsModCfgApp::ModCfgApp>();
        m_settings->registerPlugin(client);
        m_settings->loadAppConfig();
        m_settings->distributeAppConfigToModules();
    }
    /// What the dialog does on apply.
    void save() { m_settings->saveAppConfig(); }
    void end(ModCfgAppPluginIf* client)
    {
        m_settings->unregisterPlugin(client);
        m_settings.reset();
    }
    /// The stored text of a key, "(none)" where there is none.
    QString stored(const QString& key) const
    {
        const QSettings settings(QSettings::IniFormat, QSettings::UserScope, QCoreApplication::organizationName(),
                                 QCoreApplication::applicationName());
        return settings.value(key, QStringLiteral("(none)")).toString();
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<nsModCfgApp::ModCfgApp> m_settings;
};
