#pragma once

#include "ProcActionsSim.h"
#include "ProcCoreConfig.h"
#include "ProcPluginIf.h"
#include "ProcSimTypes.h"

#include <QObject>
#include <QPointer>

#include <limits>
#include <memory>

namespace nsProc {

class ProcConfigWidget;
class ProcAsmBe;
class ProcSim;

/// The shell that all processors share: the interface of a processor to the rest of the program.
///
/// It owns the back end and the actions while the processor is attached, the simulator while that is enabled, and the
/// processor's settings, which are kept when it is detached.
///
/// A simulator's command handles the user's events while it runs. So each operation here can be called in the middle of
/// another one, and the simulator can be disabled while one of its commands is on the stack: it is then deleted when
/// that command has ended.
class ProcShell : public QObject, public nsModProcessor::ProcPluginIf
{
    Q_OBJECT

public:
    ~ProcShell() override;

    /// Null while the simulator is disabled.
    ProcSim* sim() const { return m_sim.get(); }
    /// Null while the processor is detached.
    ProcActionsSim* actionsSim() const { return m_actions; }
    /// Settings of the last assembler run, which the simulator works with.
    const ProcCoreConfig* runConfig() const { return m_config; }
    /// A new simulator of this processor, which belongs to the caller. No hook of it is set.
    virtual ProcSim* createSim() = 0;
    /// The services may be deleted from now on: nothing calls them any more. The hook members are not changed, as only
    /// the services set them.
    void dropServices();

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

public slots:
    void handleActionsSim(nsProc::ProcActionsSim::eAction_t action);
    /// Enables the simulator, stops its run, or disables it.
    void simEnableDisable();
    /// Stops a run, or disables the simulator.
    void simDisable();
    void setPcFromCursor();
    void simRun();
    void simNextInstruction();
    void simNextLine();
    void simInt();
    void simRst();
    void simToEndOfCall();
    void simToCursor();
    void setBaseDec();
    void setBaseHex();
    void setBaseOct();
    /// Hands a new assembler result to the simulator.
    void simReload();

protected:
    /// @param config the settings of the present run, a base of the derived class; not owned
    explicit ProcShell(ProcCoreConfig* config, QObject* parent = nullptr);

    /// Sets the user's settings, which take effect with the next run.
    void setSettings(const ProcCoreConfig& settings);
    /// A new back end; the shell takes the ownership.
    virtual ProcAsmBe* createAsmBe() = 0;
    /// The actions of a simulator; the shell takes the ownership.
    virtual ProcActionsSim* createActionsSim() = 0;
    /// First component of the processor's keys in the project, such as "XPBlze3".
    virtual QString cfgSection() const = 0;
    /// The settings as a new processor has them.
    virtual ProcCoreConfig defaultConfig() const = 0;
    /// A new settings widget; the shell takes the ownership.
    virtual ProcConfigWidget* createConfigWidget() = 0;
    /// A number of the settings in the project. A number out of its range is replaced by the nearest one in it. The
    /// range is wide enough for numbers that the assembler itself checks and reports.
    struct sCfgNumber
    {
        QString key;
        int* value; ///< null for the clock frequency
        int min = 0;
        int max = std::numeric_limits<int>::max();
    };
    /// The keys in the order of the file, with the fields of the settings that hold them.
    virtual QList<sCfgNumber> cfgNumbers(ProcCoreConfig* settings) const;

private:
    bool simEnable();
    void removeSim();
    void showStop(ProcActionsSim::eAction_t action, bool stopping);
    void takeProgramCounter();
    void runSim(ProcActionsSim::eAction_t action, void (ProcSim::*command)());
    void setBase(ProcActionsSim::eAction_t action, eBase_t base);
    void setActionsEnabled(bool enabled);
    void setActionsEnabled(std::initializer_list<ProcActionsSim::eAction_t> actions, bool enabled);

    /// The user's settings, as the project stores them. Each run starts from them: what a source sets applies to that
    /// run only.
    ProcCoreConfig m_settings;
    ProcConfigWidget* m_configWidget = nullptr; ///< null while the settings dialog is closed
    ProcCoreConfig* m_config;
    ProcAsmBe* m_asmBe = nullptr;
    QPointer<ProcActionsSim> m_actions;
    std::shared_ptr<ProcSim> m_sim; ///< shared with its commands that are in progress
    bool m_attached = false;
    bool m_servicesGone = false;
};

} // namespace nsProc
