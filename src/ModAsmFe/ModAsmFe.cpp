#include "ModAsmFe.h"

#include "AsmFeConfigPage.h"
#include "AsmFeFileHndlr.h"
#include "AsmFeStatusBar.h"
#include "AsmScriptApi.h"
#include "FilePath.h"
#include "HelpRef.h"
#include "LateContent.h"
#include "MyLongWork.h"

#include "EquListView.h"
#include "IODevViewerList.h"
#include "ModEditorHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "ModScriptHookIf.h"

namespace nsModAsmFe {

ModAsmFe::ModAsmFe(QObject* parent)
    : QObject(parent)
    , m_fileHndlr(new AsmFeFileHndlr(this))
    , m_msgHndlr(new AsmFeMsgHndlr(m_fileHndlr, this))
    , m_assembler(*m_fileHndlr, *m_msgHndlr, *this)
    , m_editorFeed(m_assembler, *this)
{
    m_assembler.setListener(this);
}

ModAsmFe::~ModAsmFe()
{
    // If the window is deleted without the exit phases, the view still exists.
    clearIODevViewer();
    if (m_equListView != nullptr && m_equListView->parent() == nullptr)
        delete m_equListView;
    delete m_configPage;
}

void ModAsmFe::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModAsmFePluginIf>(modules, this);
    registerPluginsOf<ModAsmFePluginIfInterMod>(modules, this);
    registerPluginsOf<ModAsmFePluginIfBackend>(modules, this);
}

void ModAsmFe::modInit()
{
    // Without menus nobody can trigger an action, and making one asks the platform for fonts.
    if (modActionHook == nullptr && modGuiHook == nullptr)
        return;
    m_actions = new AsmFeActions(this);
    m_actions->setEnabled(false);
    connect(m_actions, SIGNAL(triggered(nsModAsmFe::AsmFeActions::eAction_t)), this,
            SLOT(handleActions(nsModAsmFe::AsmFeActions::eAction_t)));
}

void ModAsmFe::modInitIntermod()
{
    if (modMsgHook != nullptr) {
        modMsgHook->registerPlugin(m_fileHndlr);
        modMsgHook->registerPlugin(m_msgHndlr);
    }
    if (modGuiHook != nullptr) {
        m_statusBar = new AsmFeStatusBar;
        m_equListView = new EquListView;
        HelpRef::set(m_statusBar, QStringLiteral("pageId://mainWindow#status-bar"));
        HelpRef::set(m_equListView, QStringLiteral("pageId://equList"));
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationStatusSecond, m_statusBar, QString());
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockRight, m_equListView, tr("EQU list"));
    }
    LateContent::later(this, [this] { m_editorFeed.setupSupportMenuBasic(modEditorHook); });
    if (modScriptHook != nullptr)
        modScriptHook->registerObject(new AsmScriptApi(this), QStringLiteral("assembler"));
}

void ModAsmFe::modExitIntermod()
{
    if (modGuiHook != nullptr && m_statusBar != nullptr) {
        modGuiHook->removeWidget(m_statusBar);
        if (m_equListView != nullptr)
            modGuiHook->removeWidget(m_equListView);
    }
    removeIODevViewer();
    delete m_equListView;
    delete m_statusBar;
    m_statusBar = nullptr;
    if (modMsgHook != nullptr) {
        modMsgHook->unregisterPlugin(m_msgHndlr);
        modMsgHook->unregisterPlugin(m_fileHndlr);
    }
}

/// Shows the maps of the devices of the open project.
void ModAsmFe::addIODevViewer()
{
    if (modGuiHook == nullptr || m_ioDevViewer != nullptr)
        return;
    m_ioDevViewer = new IODevViewerList;
    HelpRef::set(m_ioDevViewer, QStringLiteral("pageId://deviceMaps"));
    connect(m_ioDevViewer, &IODevViewerList::srcRefRequest, this, &ModAsmFe::showSrcReference);
    // An added panel comes to the front: so the panel that was in front before is brought to the front again.
    QWidget* inFront = modGuiHook->currentWidget(ModGuiHookIf::eLocationDockRight);
    modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockRight, m_ioDevViewer, tr("IO device map viewer"));
    if (inFront != nullptr && modGuiHook->widgetVisible(ModGuiHookIf::eLocationDockRight))
        modGuiHook->setCurrentWidget(inFront);
}

void ModAsmFe::removeIODevViewer()
{
    if (m_ioDevViewer == nullptr)
        return;
    m_ioDevViewer->clear();
    if (modGuiHook != nullptr)
        modGuiHook->removeWidget(m_ioDevViewer);
    // Deleted later, as the call may come from the view.
    if (m_assembler.isRunning())
        m_ioDevViewer->deleteLater();
    else
        delete m_ioDevViewer;
    m_ioDevViewer = nullptr;
}

void ModAsmFe::modExit()
{
    delete m_actions;
    m_actions = nullptr;
}

void ModAsmFe::registerPlugin(ModAsmFePluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modAsmFeHook = this;
}

void ModAsmFe::unregisterPlugin(ModAsmFePluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modAsmFeHook = nullptr;
}

void ModAsmFe::registerPlugin(ModAsmFePluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modAsmFeHook = this;
}

void ModAsmFe::unregisterPlugin(ModAsmFePluginIf* plugin)
{
    if (m_plugins.remove(plugin))
        plugin->modAsmFeHook = nullptr;
}

void ModAsmFe::registerPlugin(ModAsmFePluginIfBackend* plugin)
{
    if (plugin == nullptr || plugin == m_backend.plugin())
        return;
    if (m_backend.plugin() != nullptr)
        m_backend.plugin()->modAsmFeHook = nullptr;
    m_backend.setPlugin(plugin);
    plugin->modAsmFeHook = this;
    m_assembler.setBackend(&m_backend);
    applyBackendConfig();
}

void ModAsmFe::unregisterPlugin(ModAsmFePluginIfBackend* plugin)
{
    if (plugin == nullptr || plugin != m_backend.plugin())
        return;
    plugin->modAsmFeHook = nullptr;
    m_backend.setPlugin(nullptr);
    m_assembler.setBackend(nullptr);
    clearIODevViewer();
    applyBackendConfig();
}

bool ModAsmFe::instMemConfig(int* pageSize, int* pageCount, bool* sharedMemHi)
{
    const AsmMemGeometry& geometry = m_assembler.program().geometry;
    *pageSize = geometry.pageSize;
    *pageCount = geometry.pageCount;
    *sharedMemHi = geometry.isSharedHigh;
    return isAssembled();
}

void ModAsmFe::prjOpen()
{
    // The check of the interrupt vector has no key: it stays as it is until the program ends.
    const int chkIntVector = behaviorChkIntVector;
    static_cast<AsmFeConfig&>(*this) = AsmFeConfig();
    behaviorChkIntVector = chkIntVector;
    rdAsmFeConfig(modPrjHook);
    // The handler takes the folder of a path, so it gets the path of a file in the project's folder.
    m_fileHndlr->setPrjDir(modPrjHook->prjDir().absoluteFilePath(modPrjHook->prjFileName()));
    applyBaseConfig();
    m_msgHndlr->forgetErrors();
    showFiles();
    addIODevViewer();
    if (m_actions != nullptr)
        m_actions->setEnabled(AsmFeActions::eActionAssemble, true);
}

void ModAsmFe::prjSave()
{
    wrAsmFeConfig(modPrjHook);
}

void ModAsmFe::prjClose()
{
    if (m_actions != nullptr)
        m_actions->setEnabled(false);
    if (m_statusBar != nullptr)
        m_statusBar->setProcessorName(QString());
    clearHighlighter();
    m_fileHndlr->setPrjDir(QString());
    m_missedEvent = nothingMissed;
    m_assembler.drop();
    removeIODevViewer();
}

nsModConfig::ModConfigPagePluginIf* ModAsmFe::configPage(int)
{
    if (m_configPage == nullptr)
        m_configPage = new AsmFeConfigPage;
    return m_configPage;
}

void ModAsmFe::configPageSetConfig(nsModConfig::ModConfigPagePluginIf*)
{
    if (m_configPage == nullptr)
        return;
    const bool isOpen = modPrjHook != nullptr && modPrjHook->isValid();
    m_configPage->setConfig(this, isOpen ? modPrjHook->prjDir().absolutePath() : QString());
}

void ModAsmFe::configPageClose(bool accepted)
{
    // Without a project there is nothing that the values could belong to.
    if (m_configPage != nullptr && accepted && modPrjHook != nullptr && modPrjHook->isValid())
        takePage();
    delete m_configPage;
}

/// What this user types is what this user wants: a new output path is not asked for. Paths that were there before are,
/// as they may have come with the project.
void ModAsmFe::takePage()
{
    QString before[targetKindCount];
    for (int kind = 0; kind < targetKindCount; ++kind)
        before[kind] = targets[kind].outputFile;
    m_configPage->config(this);
    for (int kind = 0; kind < targetKindCount; ++kind) {
        const QString& file = targets[kind].outputFile;
        if (!file.isEmpty() && file != before[kind])
            consent().setAnswer(ProjectConsent::kindOutput, {pathWithoutLinks(file)}, true);
    }
}

void ModAsmFe::configPagesClosed(bool accepted)
{
    if (!accepted)
        return;
    applyBaseConfig();
    applyBackendConfig();
    if (modPrjHook != nullptr && !modPrjHook->isValid())
        clearHighlighter();
}

void ModAsmFe::clearHighlighter()
{
    // The rules belong to the processor of the project: without a project, text is not highlighted.
    if (modEditorHook != nullptr)
        modEditorHook->clearHighlighter();
}

void ModAsmFe::srcFileListChanged()
{
    if (m_assembleOnChange)
        assemble(eEventNone);
}

void ModAsmFe::srcFileContentChanged()
{
    if (m_assembleOnChange)
        assemble(eEventSave);
}

void ModAsmFe::removeWidgetRequest(QWidget*)
{
    // The views of the assembler stand in docks and stay there.
}

void ModAsmFe::setFocus(ModGuiHookIf::eLocation_t, ModGuiPluginIf*, QWidget*) {}

QList<QAction*> ModAsmFe::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    return actionClass == ModActionHookIf::eActionClassAssembler && m_actions != nullptr ? m_actions->menuActions()
                                                                                         : QList<QAction*>();
}

QList<QAction*> ModAsmFe::toolBarActions(ModActionHookIf::eActionClass_t actionClass)
{
    return actionClass == ModActionHookIf::eActionClassAssembler && m_actions != nullptr ? m_actions->toolBarActions()
                                                                                         : QList<QAction*>();
}

void ModAsmFe::handleActions(AsmFeActions::eAction_t action)
{
    if (m_programsRun) {
        if (modMsgHook != nullptr)
            modMsgHook->showInfoMessage(tr("The external programs of the last run have not ended yet."));
        return;
    }
    if (modMsgHook != nullptr)
        modMsgHook->clearMessages();
    switch (action) {
    case AsmFeActions::eActionAssemble:
        assemble(eEventSave);
        break;
    case AsmFeActions::eActionButton1:
        assemble(eEventButton1);
        break;
    case AsmFeActions::eActionButton2:
        assemble(eEventButton2);
        break;
    }
}

void ModAsmFe::showSrcReference(SrcReference* srcRef)
{
    if (srcRef == nullptr || modEditorHook == nullptr)
        return;
    const QString file = m_fileHndlr->absSrcFilePath(srcRef->fileNo);
    if (!file.isEmpty())
        modEditorHook->setCursorToLine(file, srcRef->lineNo);
}

void ModAsmFe::applyBaseConfig()
{
    m_assembler.charsets().setupDefaultCodec(defaultCharset);
    m_editorFeed.setHighlighter(modEditorHook);
}

void ModAsmFe::applyBackendConfig()
{
    m_assembler.refreshProcessorNames();
    if (m_statusBar != nullptr)
        m_statusBar->setProcessorName(m_assembler.backend() != nullptr ? m_backend.processorName() : QString());
    m_editorFeed.setupSupportMenuHardware(modEditorHook);
    m_editorFeed.setHighlighter(modEditorHook);
    showFiles();
}

} // namespace nsModAsmFe
