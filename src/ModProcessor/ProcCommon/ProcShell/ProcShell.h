#pragma once

#include "ProcCoreConfig.h"
#include "ProcPluginIf.h"

#include <QObject>

namespace nsProc {

class ProcConfigWidget;
class ProcAsmBe;

/// The shell that all processors share: the one object that the rest of the program knows of a processor.
///
/// It owns the back end while the processor is attached, and carries the processor's settings, which outlive attachment.
class ProcShell : public QObject, public nsModProcessor::ProcPluginIf
{
    Q_OBJECT

public:
    // ProcPluginIf
    void modInit() override;
    void modInitIntermod() override;
    void modExitIntermod() override;
    void modExit() override;
    nsModProcessor::ProcConfigPluginIf* configWidget() override;
    void configWidgetSetConfig() override;
    void configWidgetFetchConfig() override;
    bool configWidgetCloseRequest() override;
    void configWidgetClose() override;
    void rdCfg() override;
    void wrCfg() override;

    // ModAsmFePluginIfBackend
    QString processorDefine() override;
    const QHash<QString, int>* regNames() override;
    const QHash<QString, int>* regBankNames() override;
    bool assembleStage1() override;
    bool assembleStage2() override;
    void setAssembled(bool assembled) override;
    int beConfig() override;

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget* widget) override;
    void setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf* plugin, QWidget* widget) override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) override;

protected:
    /// @param config the settings of the present run, a base of the derived class; not owned
    explicit ProcShell(ProcCoreConfig* config, QObject* parent = nullptr);

    /// Takes the user's settings, for the next run on.
    void setSettings(const ProcCoreConfig& settings);
    /// A new back end; the shell takes the ownership.
    virtual ProcAsmBe* createAsmBe() = 0;
    /// First component of the processor's keys in the project, such as "XPBlze3".
    virtual QString cfgSection() const = 0;
    /// The settings as a new processor has them.
    virtual ProcCoreConfig defaultConfig() const = 0;
    /// A new settings widget; the shell takes the ownership.
    virtual ProcConfigWidget* createConfigWidget() = 0;
    /// The keys in the order of the file, with the fields of the settings that hold them; null for the clock frequency.
    virtual QList<QPair<QString, int*>> cfgNumbers(ProcCoreConfig* settings) const;

private:
    /// The user's settings, as the project stores them. Each run starts from them: what a source sets holds for that run alone.
    ProcCoreConfig m_settings;
    ProcConfigWidget* m_configWidget = nullptr; ///< null while the settings dialog is closed
    ProcCoreConfig* m_config;
    ProcAsmBe* m_asmBe = nullptr;
};

} // namespace nsProc
