// Life and widgets of a simulator.

#include "ProcSim.h"

#include "ProcSimClock.h"
#include "ProcSimEngine.h"
#include "ProcSimHighlight.h"
#include "ProcSimPortNames.h"
#include "ProcSimPorts.h"
#include "ProcSimWaveRecorder.h"
#include "ProcSimWidgets.h"

#include "ModAsmFeHookIf.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"
#include "Opcode.h"
#include "OpcodeList.h"

#include <QTimer>

namespace nsProc {

namespace {

const int displayInterval = 40; ///< milliseconds between two pictures of a run

} // namespace

ProcSim::ProcSim(const ProcTable& table, QObject* parent)
    : QObject(parent)
    , m_table(table)
    , m_watch([this] { forgetOpcodes(); })
    , m_widgets(std::make_unique<ProcSimWidgets>())
    , m_displayTimer(new QTimer(this))
{
    m_displayTimer->setInterval(displayInterval);
    connect(m_displayTimer, &QTimer::timeout, this, &ProcSim::updateWidgets);
}

ProcSim::~ProcSim()
{
    simExit();
}

bool ProcSim::simInit(const ProcCoreConfig* config)
{
    m_running = 0;
    if (!modAsmFeHook->isAssembled()) {
        signMsg(errNoOpcodeAssembled);
        return false;
    }
    m_engine = std::make_unique<ProcSimEngine>(&m_table, *config);
    m_engine->load(modAsmFeHook->opcodeList());
    // Without a main window the user can not be asked: the page that was executed last is used.
    m_engine->setAsksPage(modGuiHook != nullptr);
    m_waves = std::make_shared<ProcSimWaveData>();
    m_recorder = std::make_unique<ProcSimWaveRecorder>(m_waves, m_engine->clock());
    m_engine->addObserver(m_recorder.get());
    m_watch.watch(modAsmFeHook->opcodeList());
    if (modGuiHook != nullptr)
        createWidgets();
    if (!initIODevices() || !goToStart())
        return false;
    m_breakpointsTaken = false;
    setBreakpoints();
    showHighlight();
    if (modEditorHook != nullptr)
        modEditorHook->simEn(true);
    return true;
}

bool ProcSim::initIODevices()
{
    SimOutcome outcome;
    const bool success = m_engine->initIODevices(*modAsmFeHook->ioDevList(), &outcome);
    show(outcome);
    return success;
}

void ProcSim::createWidgets()
{
    m_widgets->core = createCoreWidget(m_engine->core(), m_engine->config().pageSize);
    m_widgets->callStack = new ProcSimCallStack(m_engine->callStack());
    m_widgets->io = new ProcSimIO(m_engine->ports());
    m_widgets->statusBar = new ProcSimStatusBar(m_engine->clock(), m_engine->config().clkFreq);
    m_widgets->statusBar->setExact(m_engine->config().exactSimulation != 0);
    m_widgets->core->setExact(m_engine->config().exactSimulation != 0);
    connect(m_widgets->core, &ProcSimCore::interruptHeld, this, &ProcSim::holdInterrupt);
    connect(m_widgets->core, &ProcSimCore::interruptRequested, this, &ProcSim::simInt);
    m_widgets->lastBottom = m_widgets->callStack.data();
    // The waves must be updated at once: later, the clock count may have reached its old value again.
    connect(m_widgets->statusBar, &ProcSimStatusBar::cleared, this, &ProcSim::updateWidgets);
    connect(m_widgets->io, &ProcSimIO::wavesRequested, this, &ProcSim::showWaveViewer);
    connect(m_widgets->core, &ProcSimCore::pcTyped, this, &ProcSim::setPcFromAddr);
    const QString note = m_table.sim.clearsEachInstr ? tr("Set by the instruction that was executed last.")
                                                     : tr("Set by the program since the last single step or reset.");
    setHighlightNote(m_widgets->core, note);
    setHighlightNote(m_widgets->io, note);
    addWidgets();
}

void ProcSim::addWidgets()
{
    modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockLeft, m_widgets->core, tr("Processor core"));
    modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockRight, m_widgets->io, tr("Processor ports"));
    modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockBottom, m_widgets->callStack, tr("Processor callstack"));
    modGuiHook->addWidget(this, ModGuiHookIf::eLocationStatusSecond, m_widgets->statusBar, QString());
}

void ProcSim::showWaveViewer()
{
    if (modGuiHook == nullptr || m_engine == nullptr)
        return;
    if (m_widgets->waveViewer == nullptr) {
        m_widgets->waveViewer = new ProcSimWaveViewer(m_waves, m_engine->config().clkFreq);
        m_widgets->waveViewer->setBase(numberBase(m_base));
        m_widgets->waveViewer->setPortNames(
            [this](int addr, ProcSimWaveData::eAccessType_t access) {
                return modAsmFeHook->isAssembled()
                           ? ProcSimPortNames::nameOf(*modAsmFeHook->opcodeList(), *modAsmFeHook->equList(), addr,
                                                      access == ProcSimWaveData::eAccessWr)
                           : QString();
            },
            [this](const QString& name) {
                return modAsmFeHook->isAssembled() ? ProcSimPortNames::addrOf(*modAsmFeHook->equList(), name) : -1;
            });
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockBottom, m_widgets->waveViewer, tr("Waves"));
    }
    m_widgets->lastBottom = m_widgets->waveViewer.data();
    modGuiHook->setCurrentWidget(m_widgets->waveViewer);
}

bool ProcSim::simReload(const ProcCoreConfig* config)
{
    m_running = 0;
    if (m_engine == nullptr)
        return false;
    if (!modAsmFeHook->isAssembled()) {
        signMsg(errNoOpcodeAssembled);
        return false;
    }
    const QString changed = changedSetting(*config);
    if (!changed.isEmpty()) {
        signMsg(errProcSetChanged, changed);
        return false;
    }
    m_engine->setConfig(*config);
    m_engine->load(modAsmFeHook->opcodeList());
    if (m_widgets->waveViewer != nullptr)
        m_widgets->waveViewer->updatePortNames();
    nsModAsmFe::Opcode* opcode = modAsmFeHook->opcodeList()->nextOfLineIndex(m_engine->lineIndex());
    if (opcode == nullptr) {
        signMsg(errPcRestore);
        return false;
    }
    setProgramCounter(opcode);
    if (callStack()->count() > 0)
        signMsg(warnCallStackInvalidDueToReload);
    m_breakpointsTaken = false;
    setBreakpoints();
    // The user is editing: the view must not move.
    showHighlight(false);
    return true;
}

QString ProcSim::changedSetting(const ProcCoreConfig& config) const
{
    const ProcCoreConfig& present = m_engine->config();
    for (const eSetting_t setting : m_table.fixedSettings) {
        const sSettingField_t& field = settingField(setting);
        const bool isSame =
            field.value != nullptr ? config.*field.value == present.*field.value : !(config.clkFreq != present.clkFreq);
        if (!isSame)
            return QString::fromLatin1(field.name);
    }
    return QString();
}

void ProcSim::dropWidget(QWidget* widget)
{
    if (widget == nullptr)
        return;
    if (modGuiHook != nullptr && !m_servicesGone)
        modGuiHook->removeWidget(widget);
    delete widget;
}

void ProcSim::simExit()
{
    m_running = 0;
    m_displayTimer->stop();
    if (m_engine != nullptr)
        m_engine->load(nullptr);
    m_watch.watch(nullptr);
    if (hasEditor()) {
        modEditorHook->clearLineHighlited();
        modEditorHook->simEn(false);
    }
    // A field that loses the focus with its dock ends an edit, to nobody.
    if (m_widgets->core != nullptr)
        m_widgets->core->blockSignals(true);
    dropWidget(m_widgets->core);
    dropWidget(m_widgets->io);
    dropWidget(m_widgets->callStack);
    dropWidget(m_widgets->waveViewer);
    dropWidget(m_widgets->statusBar);
}

void ProcSim::forgetOpcodes()
{
    m_running = 0;
    m_breakpointsTaken = false;
    ++m_deletions;
}

void ProcSim::setBase(eBase_t base)
{
    m_base = base;
    const int number = numberBase(base);
    if (m_engine != nullptr)
        m_engine->ports()->setBase(number);
    if (m_widgets->core != nullptr)
        m_widgets->core->setBase(number);
    if (m_widgets->callStack != nullptr)
        m_widgets->callStack->setBase(number);
    if (m_widgets->waveViewer != nullptr)
        m_widgets->waveViewer->setBase(number);
    if (m_widgets->statusBar != nullptr)
        m_widgets->statusBar->setBase(base == eBaseOct ? "OCT" : base == eBaseDec ? "DEC" : "HEX");
    updateWidgets();
}

void ProcSim::showRunning(bool running)
{
    if (m_widgets->core != nullptr)
        m_widgets->core->setRunning(running);
    if (m_widgets->statusBar != nullptr)
        m_widgets->statusBar->setRunning(running);
}

void ProcSim::updateWidgets()
{
    if (m_widgets->core != nullptr)
        m_widgets->core->refresh();
    if (m_widgets->callStack != nullptr) {
        // It would come to the front of the dock. Who looks at the waves goes on looking at them.
        const bool isBehind = m_widgets->waveViewer != nullptr && m_widgets->waveViewer->isVisible();
        const bool wasBlocked = m_widgets->callStack->blockSignals(isBehind);
        m_widgets->callStack->refresh();
        m_widgets->callStack->blockSignals(wasBlocked);
    }
    if (m_widgets->io != nullptr)
        m_widgets->io->refresh();
    if (m_widgets->statusBar != nullptr)
        m_widgets->statusBar->refresh();
    if (m_widgets->waveViewer != nullptr) {
        m_widgets->waveViewer->setClock(m_engine->clock()->clocks);
        m_widgets->waveViewer->refresh();
    }
}

ProcSimCoreData* ProcSim::core() const
{
    return m_engine != nullptr ? m_engine->core().get() : nullptr;
}

ProcSimCallStackData* ProcSim::callStack() const
{
    return m_engine != nullptr ? m_engine->callStack().get() : nullptr;
}

ProcSimPorts* ProcSim::ports() const
{
    return m_engine != nullptr ? m_engine->ports().get() : nullptr;
}

ProcSimClock* ProcSim::clock() const
{
    return m_engine != nullptr ? m_engine->clock().get() : nullptr;
}

ProcSimCore* ProcSim::coreWidget() const
{
    return m_widgets->core;
}

ProcSimCallStack* ProcSim::callStackWidget() const
{
    return m_widgets->callStack;
}

ProcSimIO* ProcSim::ioWidget() const
{
    return m_widgets->io;
}

ProcSimStatusBar* ProcSim::statusBarWidget() const
{
    return m_widgets->statusBar;
}

ProcSimWaveViewer* ProcSim::waveViewer() const
{
    return m_widgets->waveViewer;
}

void ProcSim::removeWidgetRequest(QWidget*) {}

void ProcSim::setFocus(ModGuiHookIf::eLocation_t, ModGuiPluginIf* plugin, QWidget* widget)
{
    if (plugin != static_cast<ModGuiPluginIf*>(this) || modGuiHook == nullptr || m_engine == nullptr)
        return;
    modGuiHook->setCurrentWidget(m_widgets->statusBar);
    modGuiHook->setCurrentWidget(m_widgets->core);
    modGuiHook->setCurrentWidget(m_widgets->io);
    if (widget != nullptr && (widget == m_widgets->callStack || widget == m_widgets->waveViewer))
        m_widgets->lastBottom = widget;
    else if (m_widgets->lastBottom != nullptr)
        modGuiHook->setCurrentWidget(m_widgets->lastBottom);
    if (modMsgHook != nullptr)
        modMsgHook->clearMessages();
}

} // namespace nsProc
