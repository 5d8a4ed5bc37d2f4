#include "ProcShell.h"

#include "ProcAsmBe.h"
#include "ProcSim.h"

#include "ModAsmFeHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"

#include <QApplication>

namespace nsProc {

ProcShell::ProcShell(const ProcTable& table, ProcCoreConfig* config, QObject* parent)
    : QObject(parent)
    , m_processor(table, config)
{
}

ProcShell::~ProcShell() = default;

void ProcShell::modInit()
{
    // A run that was in progress when the processor was detached has kept its simulator until now. It belongs to the
    // project that was open then.
    removeSim();
    if (m_asmBe == nullptr) {
        m_asmBe = createAsmBe();
        m_asmBe->setParent(this);
    }
    // A batch program does not need actions and can not create them.
    if (m_actions == nullptr && qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) {
        m_actions = createActionsSim();
        m_actions->setParent(this);
        m_actions->setEnabled(false);
        m_actions->setEnabled(ProcActionsSim::eActionEnable, true);
        connect(m_actions, SIGNAL(triggered(nsProc::ProcActionsSim::eAction_t)), this,
                SLOT(handleActionsSim(nsProc::ProcActionsSim::eAction_t)));
    }
    m_attached = true;
}

void ProcShell::modInitIntermod()
{
    if (modMsgHook != nullptr)
        modMsgHook->registerPlugin(m_asmBe);
    if (modAsmFeHook != nullptr)
        modAsmFeHook->registerPlugin(m_asmBe);
}

void ProcShell::modExitIntermod()
{
    if (m_servicesGone) {
        m_sim.reset();
        return;
    }
    simDisable();
    if (m_asmBe == nullptr)
        return;
    if (modMsgHook != nullptr)
        modMsgHook->unregisterPlugin(m_asmBe);
    if (modAsmFeHook != nullptr)
        modAsmFeHook->unregisterPlugin(m_asmBe);
}

void ProcShell::modExit()
{
    delete m_asmBe;
    m_asmBe = nullptr;
    // Deleted later, as the call may come from one of the actions.
    if (m_actions != nullptr)
        m_actions->deleteLater();
    m_actions = nullptr;
    m_attached = false;
}

bool ProcShell::configWidgetCloseRequest()
{
    if (m_sim == nullptr)
        return true;
    if (modMsgHook != nullptr)
        modMsgHook->showErrorMessage(tr("The simulator must be disabled before closing the configuration dialog."));
    return false;
}

void ProcShell::rdCfg()
{
    if (modPrjHook != nullptr)
        m_processor.readSettings(modPrjHook);
}

void ProcShell::wrCfg()
{
    if (modPrjHook != nullptr)
        m_processor.writeSettings(modPrjHook);
}

QString ProcShell::processorDefine()
{
    return m_asmBe != nullptr ? m_asmBe->processorDefine() : QString();
}

const QHash<QString, int>* ProcShell::regNames()
{
    return m_asmBe != nullptr ? m_asmBe->regNames() : nullptr;
}

const QHash<QString, int>* ProcShell::regBankNames()
{
    return m_asmBe != nullptr ? m_asmBe->regBankNames() : nullptr;
}

bool ProcShell::assembleStage1()
{
    if (modAsmFeHook == nullptr || m_asmBe == nullptr)
        return false;
    ProcCoreConfig* config = m_processor.startRun();
    return modAsmFeHook->instMemConfig(&config->pageSize, &config->pageCount, &config->sharedMemHi) &&
           m_asmBe->assembleStage1(config);
}

bool ProcShell::assembleStage2()
{
    return m_asmBe != nullptr && m_asmBe->assembleStage2();
}

void ProcShell::setAssembled(bool)
{
    simReload();
}

int ProcShell::beConfig()
{
    return m_processor.beConfig();
}

void ProcShell::removeWidgetRequest(QWidget*) {}

void ProcShell::setFocus(ModGuiHookIf::eLocation_t, ModGuiPluginIf*, QWidget*) {}

QList<QAction*> ProcShell::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    const bool isOurs = actionClass == ModActionHookIf::eActionClassSimulator && m_actions != nullptr;
    return isOurs ? m_actions->menuActions() : QList<QAction*>();
}

QList<QAction*> ProcShell::toolBarActions(ModActionHookIf::eActionClass_t actionClass)
{
    const bool isOurs = actionClass == ModActionHookIf::eActionClassSimulator && m_actions != nullptr;
    return isOurs ? m_actions->toolBarActions() : QList<QAction*>();
}

} // namespace nsProc
