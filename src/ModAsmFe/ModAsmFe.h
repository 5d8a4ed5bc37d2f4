#pragma once

#include "AsmEditorFeed.h"
#include "AsmFeActions.h"
#include "AsmFeConfig.h"
#include "AsmFeMsgHndlr.h"
#include "AsmRunListener.h"
#include "Assembler.h"
#include "ModActionPluginIf.h"
#include "ModAsmFeHookIf.h"
#include "ModAsmFePluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModEditorPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjPluginIf.h"
#include "ModScriptPluginIf.h"
#include "ModSourcesPluginIf.h"
#include "ModSrcNaviPluginIf.h"
#include "ModSyscallPluginIf.h"
#include "PluginBackend.h"
#include "PluginList.h"
#include "ProjectConsent.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

class MyBusyCursor;
class MyLongWork;

namespace nsModAsmFe {

class AsmFeFileHndlr;
class AsmFeConfigPage;
class AsmFeStatusBar;
class EquListView;
class IODevViewerList;

/// The assembler's place in the window: its hook, its settings, its views, and the hand-overs to the other modules. The
/// work itself is done by the Assembler and its stages.
class ModAsmFe : public QObject,
                 public ModAsmFeHookIf,
                 public ModPluginIf,
                 public ModMsgPluginIf,
                 public ModPrjPluginIf,
                 public ModConfigPluginIfDflt,
                 public ModGuiPluginIf,
                 public ModSourcesPluginIf,
                 public ModEditorPluginIf,
                 public ModSrcNaviPluginIf,
                 public ModActionPluginIf,
                 public ModSyscallPluginIf,
                 public ModScriptPluginIf,
                 public ModCfgAppPluginIfInterMod,
                 public AsmFeConfig,
                 private AsmRunListener
{
    Q_OBJECT

public:
    explicit ModAsmFe(QObject* parent = nullptr);
    ~ModAsmFe() override;

    /// Runs the assembler on the open project, from the sources on the disk to the files of the event.
    void assemble(eAssembleEvent_t event);
    /// Whether a saved source or a changed list of sources starts a run; on by default. A batch program starts its run
    /// itself.
    void setAssembleOnChange(bool enabled) { m_assembleOnChange = enabled; }
    /// Output files that the last run has written, absolute, in order.
    QStringList writtenFiles() const { return m_assembler.writtenFiles(); }
    /// A run is in progress.
    bool isRunning() const { return m_assembler.isRunning(); }
    /// @return the last run assembled the program and wrote all files of its event
    bool runSucceeded() const { return m_assembler.runSucceeded(); }

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override;
    void modExit() override;

    // ModAsmFeHookIf
    void registerPlugin(ModAsmFePluginIfInterMod* plugin) override;
    void unregisterPlugin(ModAsmFePluginIfInterMod* plugin) override;
    void registerPlugin(ModAsmFePluginIf* plugin) override;
    void unregisterPlugin(ModAsmFePluginIf* plugin) override;
    void registerPlugin(ModAsmFePluginIfBackend* plugin) override;
    void unregisterPlugin(ModAsmFePluginIfBackend* plugin) override;
    LabelList* labelList() override { return &m_assembler.program().labels; }
    EquList* equList() override { return &m_assembler.program().equs; }
    OrgList* orgList() override { return &m_assembler.program().orgs; }
    SetList* setList() override { return &m_assembler.program().sets; }
    OpcodeList* opcodeList() override { return &m_assembler.program().opcodes; }
    IODevList* ioDevList() override { return &m_assembler.program().ioDevs; }
    bool setOverwriteBehaviorError() override { return behaviorSet == setError; }
    bool setOverwriteBehaviorWarning() override { return behaviorSet == setWarn; }
    bool isAssembled() override { return m_assembler.isAssembled(); }
    bool instMemConfig(int* pageSize, int* pageCount, bool* sharedMemHi) override;
    AsmFeFileHndlr* fileHndlr() override { return m_fileHndlr; }
    AsmFeMsgHndlr* msgHndlr() override { return m_msgHndlr; }
    AsmFeParseArg* parseArg() override { return &m_assembler.parseArg(); }
    int asmBehaviorChkIntVector() override { return behaviorChkIntVector; }
    SymbolTable symbolTable(const QVector<sSymbolSource>& sources) override { return m_assembler.symbols(sources); }
    const AsmWords* words() override { return &m_assembler.words(); }
    QStringList charsetNames() override { return m_assembler.charsets().names(); }
    void handOverAddresses() override;
    void showEquList() override;

    // ModConfigPluginIf
    nsModConfig::ModConfigPagePluginIf* configPage(int index) override;
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override;
    void configPageClose(bool accepted) override;
    void configPagesClosed(bool accepted) override;

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override {}
    void prjSave() override;
    void prjClose() override;
    QList<PrjStep> prjSteps() override;

    // ModSourcesPluginIf
    void srcFileListChanged() override;
    void srcFileContentChanged() override;

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget* widget) override;
    void setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf* plugin, QWidget* widget) override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) override;

    /// Names that `#IFDEF` knows, in upper case.
    QStringList defines() const { return m_assembler.program().defines.names(); }

public slots:
    void handleActions(nsModAsmFe::AsmFeActions::eAction_t action);
    /// Moves the editor to a place in the sources. @param srcRef of this run, or null for none
    void showSrcReference(nsModAsmFe::SrcReference* srcRef);

private:
    // AsmRunListener
    bool runGoesOn(int lines) override;
    void outputsBegin() override;
    void programDropped() override;
    bool wantsNaviTags() override { return modSrcNaviHook != nullptr; }
    void naviTagFound(const AsmNaviTag& tag) override;
    void naviTagsComplete() override;
    void tabIndentSet(int indent) override;
    void addressesMapped() override;
    void programComplete() override;
    void refreshTextCompleter() override { m_editorFeed.setupTextCompleter(modEditorHook); }
    void refreshInsertionMenu() override;
    void refreshIODevViewer() override;
    void runFailed() override { clearIODevViewer(); }
    QStringList refusedOutputs(const QVector<AsmOutsideFile>& files) override;
    QString refusalHint() override;
    bool runExternalPrograms(eAssembleEvent_t event) override;
    void refreshEquList() override;

    void clearIODevViewer();
    void addIODevViewer();
    void removeIODevViewer();
    void applyBaseConfig();
    void applyBackendConfig();
    void clearHighlighter();
    AsmProjectInfo projectInfo() const;
    ProjectConsent consent() const;
    void takePage();
    /// Tells the other modules which files the project has besides its sources.
    void showFiles();
    void showWritten();
    QStringList filesOfEvent(eAssembleEvent_t event) const;
    void assembleMissed();

    static const int nothingMissed = -1;

    PluginList<ModAsmFePluginIf> m_plugins;
    PluginBackend m_backend;

    AsmFeActions* m_actions = nullptr;
    AsmFeFileHndlr* m_fileHndlr;
    AsmFeMsgHndlr* m_msgHndlr;
    Assembler m_assembler;
    AsmEditorFeed m_editorFeed;
    QPointer<AsmFeConfigPage> m_configPage; ///< null while the settings dialog is closed
    AsmFeStatusBar* m_statusBar = nullptr;
    QPointer<EquListView> m_equListView;     ///< null without a window
    QPointer<IODevViewerList> m_ioDevViewer; ///< null without a window or an open project
    bool m_assembleOnChange = true;
    bool m_programsRun = false;        ///< the run in progress waits for the external programs
    int m_missedEvent = nothingMissed; ///< eAssembleEvent_t of a run that is to follow
    MyBusyCursor* m_busy = nullptr;    ///< of the run in progress; not owned
    MyLongWork* m_work = nullptr;      ///< of the run in progress; not owned
};

} // namespace nsModAsmFe
