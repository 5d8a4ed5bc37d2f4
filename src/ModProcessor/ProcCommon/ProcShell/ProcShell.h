#pragma once

#include "ProcActionsSim.h"
#include "ProcPluginIf.h"
#include "ProcSimTypes.h"
#include "Processor.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

namespace nsProc {

class ProcConfigWidget;
class ProcAsmBe;
class ProcSim;
struct sSimBoundedRun_t;

/// The shell that all processors share: the interface of a processor to the rest of the program.
///
/// It owns the processor with its settings, which are kept when it is detached; the back end and the actions while it
/// is attached; the simulator while that is enabled.
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
    const ProcCoreConfig* runConfig() const { return m_processor.runConfig(); }
    /// A new simulator of this processor, which belongs to the caller. No hook of it is set.
    virtual ProcSim* createSim() = 0;
    /// The services may be deleted from now on: nothing calls them any more. The hook members are not changed, as only
    /// the services set them.
    void dropServices();

    // The simulator for a caller that wants to know what came of it.

    /// Enables the simulator, if it is not.
    /// @return false after a reported error
    bool simStart();
    /// Runs within bounds. The simulator must be enabled, and no run be in progress.
    void simBoundedRun(sSimBoundedRun_t* run);

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
    QString processorName() override { return m_processor.processorName(); }
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
    /// @param table what the processor is
    /// @param config the settings of the present run, a base of the derived class; not owned
    ProcShell(const ProcTable& table, ProcCoreConfig* config, QObject* parent = nullptr);

    /// A new back end; the shell takes the ownership.
    virtual ProcAsmBe* createAsmBe() = 0;
    /// The actions of a simulator; the shell takes the ownership.
    virtual ProcActionsSim* createActionsSim() = 0;
    /// A new settings widget; the shell takes the ownership.
    virtual ProcConfigWidget* createConfigWidget() = 0;

private:
    bool simEnable();
    void removeSim();
    void showStop(ProcActionsSim::eAction_t action, bool stopping);
    void takeProgramCounter();
    void runSim(ProcActionsSim::eAction_t action, const std::function<void(ProcSim*)>& command);
    void setBase(ProcActionsSim::eAction_t action, eBase_t base);
    void setActionsEnabled(bool enabled);
    void setActionsEnabled(std::initializer_list<ProcActionsSim::eAction_t> actions, bool enabled);

    Processor m_processor;
    ProcConfigWidget* m_configWidget = nullptr; ///< null while the settings dialog is closed
    ProcAsmBe* m_asmBe = nullptr;
    QPointer<ProcActionsSim> m_actions;
    std::shared_ptr<ProcSim> m_sim; ///< shared with its commands that are in progress
    bool m_attached = false;
    bool m_servicesGone = false;
};

} // namespace nsProc
