// Life and widgets of a simulator.

#include "ProcSim.h"

#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimHighlight.h"
#include "ProcSimIODevice.h"
#include "ProcSimPortNames.h"
#include "ProcSimPorts.h"
#include "ProcSimWidgets.h"

#include "IODevList.h"
#include "ModAsmFeHookIf.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"
#include "Opcode.h"
#include "OpcodeList.h"

#include <QHash>
#include <QTimer>

#include <algorithm>

namespace nsProc {

using nsModAsmFe::IODev;

namespace {

const int displayInterval = 40; ///< milliseconds between two pictures of a run

} // namespace

ProcSim::ProcSim(const sProcSimTraits_t& traits, QObject* parent)
    : QObject(parent)
    , m_traits(traits)
    , m_watch([this] { forgetOpcodes(); })
    , m_widgets(std::make_unique<ProcSimWidgets>())
    , m_displayTimer(new QTimer(this))
{
    std::fill(std::begin(m_handlers), std::end(m_handlers), &ProcSim::simOpcode_unsupported);
    m_displayTimer->setInterval(displayInterval);
    connect(m_displayTimer, &QTimer::timeout, this, &ProcSim::updateWidgets);
}

ProcSim::~ProcSim()
{
    simExit();
}

bool ProcSim::simInit(const ProcCoreConfig* config)
{
    m_config = *config;
    m_running = 0;
    m_pc = nullptr;
    m_clocksOfInstr = clocksOfInstr();
    if (!modAsmFeHook->isAssembled()) {
        signMsg(errNoOpcodeAssembled);
        return false;
    }
    m_core = std::make_shared<ProcSimCoreData>(regCount(), m_traits.bankCount, scrpdSize());
    m_callStack = std::make_shared<ProcSimCallStackData>(m_traits.callStackCapacity);
    m_ports = std::make_shared<ProcSimPorts>();
    m_clock = std::make_shared<ProcSimClock>();
    m_watch.watch(modAsmFeHook->opcodeList());
    if (modGuiHook != nullptr)
        createWidgets();
    m_pageNames = QStringList(QStringLiteral("SHARED"));
    for (int page = 0; page < m_config.pageCount; ++page)
        m_pageNames.append(QStringLiteral("PAGE%1").arg(page));
    m_lastPage = std::min(1, m_config.pageCount);
    if (!initIODevices() || !setProgramCounter(simStartPointer()))
        return false;
    m_breakpointsTaken = false;
    setBreakpoints();
    showHighlight();
    if (modEditorHook != nullptr)
        modEditorHook->simEn(true);
    return true;
}

void ProcSim::createWidgets()
{
    m_widgets->core = createCoreWidget(m_core, m_config.pageSize);
    m_widgets->callStack = new ProcSimCallStack(m_callStack);
    m_widgets->io = new ProcSimIO(m_ports);
    m_widgets->statusBar = new ProcSimStatusBar(m_clock, m_config.clkFreq);
    m_widgets->lastBottom = m_widgets->callStack.data();
    // The waves must be updated at once: later, the clock count may have reached its old value again.
    connect(m_widgets->statusBar, &ProcSimStatusBar::cleared, this, &ProcSim::updateWidgets);
    connect(m_widgets->io, &ProcSimIO::wavesRequested, this, &ProcSim::showWaveViewer);
    connect(m_widgets->core, &ProcSimCore::pcTyped, this, &ProcSim::setPcFromAddr);
    const QString note = m_traits.clearsEachInstr ? tr("Set by the instruction that was executed last.")
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
    if (modGuiHook == nullptr || m_core == nullptr)
        return;
    if (m_widgets->waveViewer == nullptr) {
        m_widgets->waveViewer = new ProcSimWaveViewer(m_config.clkFreq);
        m_waves = m_widgets->waveViewer->data();
        m_widgets->waveViewer->setBase(numberBase(m_base));
        m_widgets->waveViewer->setPortNames(
            [this](int addr, ProcSimWaveData::eAccessType_t access) {
                return ProcSimPortNames::nameOf(modAsmFeHook, addr, access == ProcSimWaveData::eAccessWr);
            },
            [this](const QString& name) { return ProcSimPortNames::addrOf(modAsmFeHook, name); });
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockBottom, m_widgets->waveViewer, tr("Waves"));
    }
    m_widgets->lastBottom = m_widgets->waveViewer.data();
    modGuiHook->setCurrentWidget(m_widgets->waveViewer);
}

bool ProcSim::simReload(const ProcCoreConfig* config)
{
    m_running = 0;
    if (m_core == nullptr)
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
    m_config = *config;
    if (m_widgets->waveViewer != nullptr)
        m_widgets->waveViewer->updatePortNames();
    nsModAsmFe::Opcode* opcode = modAsmFeHook->opcodeList()->nextOfLineIndex(m_lineIndex);
    if (opcode == nullptr) {
        signMsg(errPcRestore);
        return false;
    }
    setProgramCounter(opcode);
    if (m_callStack->count() > 0)
        signMsg(warnCallStackInvalidDueToReload);
    m_breakpointsTaken = false;
    setBreakpoints();
    // The user is editing: the view must not move.
    showHighlight(false);
    return true;
}

QString ProcSim::changedSetting(const ProcCoreConfig& config) const
{
    const QHash<QString, bool> changed = {{"scrpdSize", config.scrpdSize != m_config.scrpdSize},
                                          {"pageSize", config.pageSize != m_config.pageSize},
                                          {"clkFreq", config.clkFreq != m_config.clkFreq},
                                          {"instrClkCnt", config.instrClkCnt != m_config.instrClkCnt},
                                          {"regCount", config.regCount != m_config.regCount}};
    for (const QString& setting : m_traits.fixedSettings) {
        if (changed.value(setting))
            return setting;
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
    m_pc = nullptr;
    m_watch.watch(nullptr);
    if (hasEditor()) {
        modEditorHook->clearLineHighlited();
        modEditorHook->simEn(false);
    }
    m_waves = nullptr;
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
    m_pc = nullptr;
    m_breakpointsTaken = false;
    ++m_deletions;
}

bool ProcSim::initIODevices()
{
    bool success = true;
    for (IODev* dev : modAsmFeHook->ioDevList()->devices()) {
        if (dev->simEn && !initIODevice(dev))
            success = false;
    }
    return success;
}

bool ProcSim::initIODevice(IODev* dev)
{
    // A copy, as initValue() takes a pointer to values that are not const.
    std::vector<unsigned int> values = dev->values;
    if (dev->devName == m_config.scrpdIODev) {
        m_core->initScrpd(values.data(), std::min(dev->memSize, int(values.size())));
        return true;
    }
    ProcSimPorts::eDevType_t type = ProcSimPorts::eDevReg;
    switch (dev->devType) {
    case IODev::reg:
        break;
    case IODev::fifo:
        type = ProcSimPorts::eDevFifo;
        break;
    case IODev::mem:
        type = ProcSimPorts::eDevMem;
        break;
    default:
        signInternalError(tr("Unsupported device type for IO Device!"));
        return false;
    }
    if (dev->simAccessMode < IODev::simRd || dev->simAccessMode > IODev::simRdWr) {
        signInternalError(tr("Unsupported direction for IODevice!"));
        return false;
    }
    const auto direction = ProcSimPorts::eDirection_t(dev->simAccessMode);
    ProcSimIOPluginIf* plugin = m_ports->addIOPlugin(type, direction, int(dev->initValue));
    plugin->setMemSize(dev->memSize);
    if (dev->baseAddr > uint(ProcSimIODevice::maxAddr)) {
        plugin->setBaseAddr(ProcSimIODevice::noAddr, QString());
        signMsg(warnIODevNoPort, dev->devName);
    } else {
        plugin->setBaseAddr(int(dev->baseAddr), QString());
    }
    plugin->setName(dev->devName);
    plugin->initValue(values.data(), std::min(dev->memSize, int(values.size())));
    return true;
}

void ProcSim::setBase(eBase_t base)
{
    m_base = base;
    const int number = numberBase(base);
    if (m_ports != nullptr)
        m_ports->setBase(number);
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
    if (m_widgets->callStack != nullptr)
        m_widgets->callStack->refresh();
    if (m_widgets->io != nullptr)
        m_widgets->io->refresh();
    if (m_widgets->statusBar != nullptr)
        m_widgets->statusBar->refresh();
    if (m_widgets->waveViewer != nullptr) {
        m_widgets->waveViewer->setClock(m_clock->clocks);
        m_widgets->waveViewer->refresh();
    }
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
    if (plugin != static_cast<ModGuiPluginIf*>(this) || modGuiHook == nullptr || m_core == nullptr)
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
