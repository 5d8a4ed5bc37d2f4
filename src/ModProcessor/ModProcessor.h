#pragma once

#include "ModActionPluginIf.h"
#include "ModAsmFePluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModEditorPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjPluginIf.h"
#include "ModScriptPluginIf.h"
#include "ProcConfig.h"
#include "SimValuesIf.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace nsProc {
class ProcSim;
}

namespace nsModProcessor {

class ProcConfigPage;
class ProcList;
class ProcPluginIf;
class SimScriptApi;

/// The registry of processors: keeps exactly one of them, or none, attached to the other modules.
///
/// All processors live as long as the module; which of them is attached is the project's choice. Visible to scripts as
/// "processor", and the simulator of the attached processor as "simulator".
class ModProcessor : public QObject,
                     public ModPluginIf,
                     public ModMsgPluginIf,
                     public ModConfigPluginIfDflt,
                     public ModPrjPluginIf,
                     public ModGuiPluginIf,
                     public ModScriptPluginIf,
                     public ModCfgAppPluginIfInterMod,
                     public ModEditorPluginIfInterMod,
                     public ModAsmFePluginIfInterMod,
                     public ModActionPluginIfInterMod,
                     public SimValuesIf,
                     public ProcConfig
{
    Q_OBJECT

public:
    explicit ModProcessor(QObject* parent = nullptr);
    ~ModProcessor() override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*>) override {}
    void modInit() override {}
    void modInitIntermod() override;
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override {}

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override {}
    void prjSave() override;
    void prjClose() override;
    QList<PrjStep> prjSteps() override;

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget*) override {}
    void setFocus(ModGuiHookIf::eLocation_t, ModGuiPluginIf*, QWidget*) override {}

    // ModConfigPluginIf
    nsModConfig::ModConfigPagePluginIf* configPage(int index) override;
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override;
    bool configPageCloseRequest() override;
    void configPageClose(bool accept) override;

    // SimValuesIf
    bool isSimulating() override;
    bool registerValue(const QString& name, int* value) override;
    bool scratchpadValue(int addr, int* value) override;
    bool portValue(int addr, int* value) override;

    /// Attaches the processor that the present configuration names, or none.
    void setupProcessorIf();
    /// Attaches the processor in place of the present one. The same one again keeps its state.
    /// @param processor may be null
    void setupProcessorIf(ProcPluginIf* processor);
    /// The attached processor, null if there is none. Owned by the list.
    ProcPluginIf* currentProcessor() const { return m_current; }
    ProcList* processorList() const { return m_list.get(); }

    // What scripts call.

    /// Names of all processors, sorted.
    Q_INVOKABLE QStringList names() const;
    /// Name of the attached processor, empty if there is none.
    Q_INVOKABLE QString current() const;
    /// Makes another processor that of the open project, as the settings page does; an empty name: none. The program
    /// has to be assembled again. An unknown name, and a call without an open project, is a script error.
    /// @return false: the simulator is enabled, which was reported as a message
    Q_INVOKABLE bool select(const QString& name);

private:
    nsProc::ProcSim* sim() const;
    void attach(ProcPluginIf* processor);
    void detach(ProcPluginIf* processor);

    std::unique_ptr<ProcList> m_list;
    std::unique_ptr<ProcConfigPage> m_configPage; ///< null while the settings dialog is closed; deleted before the list
    ProcPluginIf* m_current = nullptr;            ///< not owned
    SimScriptApi* m_simScriptApi;                 ///< owned
};

} // namespace nsModProcessor
