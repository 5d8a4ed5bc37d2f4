#include "ModProcessor.h"

#include "ModActionHookIf.h"
#include "ModAsmFeHookIf.h"
#include "ModCfgAppHookIf.h"
#include "ModConfigHookIf.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "ModScriptHookIf.h"
#include "ProcConfigPage.h"
#include "ProcList.h"
#include "ProcPluginIf.h"
#include "ProcShell.h"
#include "SimScriptApi.h"

namespace nsModProcessor {

namespace {

template <class Plugin, class Hook>
void registerAt(Hook* hook, ProcPluginIf* processor)
{
    if (hook != nullptr)
        hook->registerPlugin(static_cast<Plugin*>(processor));
}

template <class Plugin, class Hook>
void unregisterAt(Hook* hook, ProcPluginIf* processor)
{
    if (hook != nullptr)
        hook->unregisterPlugin(static_cast<Plugin*>(processor));
}

} // namespace

ModProcessor::ModProcessor(QObject* parent)
    : QObject(parent)
    , m_list(std::make_unique<ProcList>())
    , m_simScriptApi(new SimScriptApi(this))
{
}

ModProcessor::~ModProcessor()
{
    // If the window is deleted without being closed, the servers may be deleted already: no processor must call them
    // any more.
    for (ProcPluginIf* processor : m_list->processors()) {
        if (auto* shell = dynamic_cast<nsProc::ProcShell*>(processor))
            shell->dropServices();
    }
}

void ModProcessor::modInitIntermod()
{
    if (modScriptHook == nullptr)
        return;
    modScriptHook->registerObject(this, "processor");
    modScriptHook->registerObject(m_simScriptApi, "simulator");
}

QStringList ModProcessor::names() const
{
    return m_list->nameList();
}

QString ModProcessor::current() const
{
    return m_current != nullptr ? m_current->processorName() : QString();
}

bool ModProcessor::select(const QString& name)
{
    ProcPluginIf* next = m_list->interface(name);
    const bool isOpen = modPrjHook != nullptr && modPrjHook->isValid();
    if (!isOpen || (next == nullptr && !name.isEmpty())) {
        if (modScriptHook != nullptr)
            modScriptHook->throwError(isOpen ? tr("There is no processor %1.").arg(name) : tr("No project is open."));
        return false;
    }
    // The simulator belongs to the present one.
    if (next != m_current && m_current != nullptr && !m_current->configWidgetCloseRequest())
        return false;
    processor = name;
    setupProcessorIf();
    if (m_configPage != nullptr)
        m_configPage->setProcessor(name);
    return true;
}

void ModProcessor::prjOpen()
{
    rdProcConfig(modPrjHook);
    setupProcessorIf();
    if (m_current != nullptr)
        m_current->rdCfg();
}

void ModProcessor::prjSave()
{
    wrProcConfig(modPrjHook);
    if (m_current != nullptr)
        m_current->wrCfg();
}

void ModProcessor::prjClose()
{
    // If the next project names an unknown processor, the page would otherwise keep the one of this project.
    if (m_configPage != nullptr)
        m_configPage->setProcessor(QString());
    if (m_current == nullptr)
        return;
    ProcPluginIf* leaving = m_current;
    m_current = nullptr;
    detach(leaving);
}

QList<PrjStep> ModProcessor::prjSteps()
{
    if (m_current != nullptr || modPrjHook == nullptr || !modPrjHook->isValid() || modConfigHook == nullptr)
        return {};
    return {{PrjStep::eOrderProcessor, true, tr("Choose a processor"), tr("Opens the settings of the processor"),
             [this] { modConfigHook->openDialog(QStringLiteral("Processor")); }}};
}

nsModConfig::ModConfigPagePluginIf* ModProcessor::configPage(int)
{
    if (m_configPage == nullptr)
        m_configPage = std::make_unique<ProcConfigPage>(m_list.get());
    return m_configPage.get();
}

void ModProcessor::configPageSetConfig(nsModConfig::ModConfigPagePluginIf*)
{
    if (m_configPage != nullptr)
        m_configPage->setConfig(this);
}

bool ModProcessor::configPageCloseRequest()
{
    return m_current == nullptr || m_current->configWidgetCloseRequest();
}

void ModProcessor::configPageClose(bool accept)
{
    // The page belongs to the project: without one there is nothing to attach a processor for.
    if (m_configPage != nullptr && accept && modPrjHook != nullptr && modPrjHook->isValid()) {
        processor = m_configPage->config().processor;
        setupProcessorIf();
        if (m_current != nullptr)
            m_current->configWidgetFetchConfig();
    }
    m_configPage.reset();
}

void ModProcessor::setupProcessorIf()
{
    setupProcessorIf(m_list->interface(processor));
}

void ModProcessor::setupProcessorIf(ProcPluginIf* next)
{
    if (next == m_current)
        return;
    if (m_current != nullptr)
        detach(m_current);
    if (next != nullptr)
        attach(next);
    m_current = next;
}

void ModProcessor::attach(ProcPluginIf* next)
{
    next->modInit();
    registerAt<ModGuiPluginIf>(modGuiHook, next);
    registerAt<ModMsgPluginIf>(modMsgHook, next);
    registerAt<ModEditorPluginIf>(modEditorHook, next);
    registerAt<ModAsmFePluginIfBackend>(modAsmFeHook, next);
    registerAt<ModActionPluginIf>(modActionHook, next);
    registerAt<ModCfgAppPluginIfInterMod>(modCfgAppHook, next);
    registerAt<ModPrjPluginIfInterMod>(modPrjHook, next);
    next->modInitIntermod();
}

void ModProcessor::detach(ProcPluginIf* leaving)
{
    leaving->modExitIntermod();
    unregisterAt<ModPrjPluginIfInterMod>(modPrjHook, leaving);
    unregisterAt<ModCfgAppPluginIfInterMod>(modCfgAppHook, leaving);
    unregisterAt<ModGuiPluginIf>(modGuiHook, leaving);
    unregisterAt<ModMsgPluginIf>(modMsgHook, leaving);
    unregisterAt<ModEditorPluginIf>(modEditorHook, leaving);
    unregisterAt<ModAsmFePluginIfBackend>(modAsmFeHook, leaving);
    unregisterAt<ModActionPluginIf>(modActionHook, leaving);
    leaving->modExit();
}

} // namespace nsModProcessor
