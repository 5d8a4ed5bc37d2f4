#pragma once

#include "ModConfigPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjPluginIf.h"
#include "ModScriptPluginIf.h"
#include "ModSourcesHookIf.h"
#include "ModSourcesPluginIf.h"
#include "PluginList.h"
#include "SourcesConfig.h"

#include <QObject>
#include <QPointer>

namespace nsModSources {

class SourcesConfigPage;

/// The ordered list of the project's sources; the assembler reads them in this order as one program.
class ModSources : public QObject,
                   public ModSourcesHookIf,
                   public ModPluginIf,
                   public ModPrjPluginIf,
                   public ModMsgPluginIf,
                   public ModConfigPluginIfDflt,
                   public ModScriptPluginIf,
                   public SourcesConfig
{
    Q_OBJECT

public:
    explicit ModSources(QObject* parent = nullptr);
    ~ModSources() override;

    // ModSourcesHookIf
    void registerPlugin(ModSourcesPluginIf* plugin) override;
    void unregisterPlugin(ModSourcesPluginIf* plugin) override;
    bool chkProjectMembership(QString path) override;
    QStringList files() override;
    void setFileContentChanged() override;
    bool setFiles(QStringList files) override;
    void addFilesByDialog(QWidget* parent) override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override;
    bool modExitRequest() override;
    void modExitIntermod() override;
    void modExit() override;

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override;
    void prjSave() override;
    void prjClose() override;
    QList<PrjStep> prjSteps() override;

    // ModConfigPluginIf
    nsModConfig::ModConfigPagePluginIf* configPage(int index) override;
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override;
    void configPageClose(bool accepted) override;
    void configPagesClosed(bool accepted) override;

protected:
    /// Appends a file and notifies the clients; does nothing if the list has it already.
    /// @param path absolute path
    void addFile(QString path);
    /// Removes a file and notifies the clients; does nothing if the list does not have it.
    void removeFile(QString path);

private:
    void setFilesListChanged();
    bool askToAdd(const QString& path);

    PluginList<ModSourcesPluginIf> m_plugins;
    QPointer<SourcesConfigPage> m_page; ///< while the configuration dialog is open
};

} // namespace nsModSources
