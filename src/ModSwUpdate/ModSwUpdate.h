#pragma once

#include "ModActionPluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModHlpPluginIf.h"
#include "ModMsgHookIf.h"
#include "ModMsgPluginIf.h"
#include "ModNetworkPluginIf.h"
#include "ModPluginIf.h"
#include "SwUpdateActions.h"
#include "SwUpdateAddresses.h"
#include "SwUpdateConfig.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

namespace nsModSwUpdate {

class SwUpdateCheck;
class SwUpdateConfigPage;

/// Asks the update server whether there is a newer release: on demand, and at a start when the interval has passed.
///
/// Nothing is sent by a build without an update server, nor by itself before the first start of a user has ended.
class ModSwUpdate : public QObject,
                    public ModPluginIf,
                    public ModCfgAppPluginIf,
                    public ModNetworkPluginIf,
                    public ModHlpPluginIf,
                    public ModMsgPluginIf,
                    public ModActionPluginIf,
                    public ModConfigPluginIfDflt,
                    public SwUpdateConfig
{
    Q_OBJECT

public:
    /// Sets the version of the application.
    explicit ModSwUpdate(QObject* parent = nullptr);
    ~ModSwUpdate() override;

    /// In place of those of the build, for the next check; for tests.
    void setAddresses(const SwUpdateAddresses& addresses) { m_addresses = addresses; }

    /// Asks now, unless a check is in progress.
    void chkForUpdate();

    // ModCfgAppPluginIf
    void rdAppCfg() override;
    void wrAppCfg() override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) override;

    // ModConfigPluginIf
    nsModConfig::ModConfigPagePluginIf* configPage(int) override;
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override;
    void configPageClose(bool accepted) override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*>) override {}
    void modInit() override;
    void modInitIntermod() override {}
    void modRun() override;
    bool modExitRequest() override { return true; }
    void modExitIntermod() override;
    void modExit() override;

public slots:
    void handleActions(nsModSwUpdate::SwUpdateActions::eAction_t action);
    /// Reports the answer; a newer release opens the download page.
    void evaluateUpdateCheck();
    /// Ends the check in progress.
    void handleTimeout();

private slots:
    void handleFailure(const QString& reason);
    void stopCheck();

private:
    void openDownloadPage();
    void showChangeLog();
    void showMessage(ModMsgHookIf::eMsgType_t type, const QString& text);

    SwUpdateAddresses m_addresses;
    SwUpdateCheck* m_check = nullptr;
    SwUpdateActions* m_actions = nullptr;
    QTimer m_timer; ///< runs while an answer is awaited
    QPointer<SwUpdateConfigPage> m_configPage;
};

} // namespace nsModSwUpdate
