#pragma once

#include "ModAsmFePluginIf.h"
#include "ModEditorPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "OpcodeListWatch.h"
#include "ProcCoreConfig.h"
#include "ProcSimMsg.h"
#include "ProcSimTypes.h"

#include <QObject>
#include <QString>

#include <memory>

class QTimer;

namespace nsModAsmFe {
class Opcode;
} // namespace nsModAsmFe

namespace nsProc {

class ProcSimCallStack;
class ProcSimCallStackData;
class ProcSimCore;
class ProcSimCoreData;
class ProcSimEngine;
class ProcSimIO;
class ProcSimPorts;
class ProcSimStatusBar;
class ProcSimWaveData;
class ProcSimWaveRecorder;
class ProcSimWaveViewer;
struct ProcSimClock;
struct ProcSimWidgets;
struct ProcTable;
struct SimOutcome;
struct sSimBoundedRun_t;
struct sSimReport_t;

/// The simulator that all processors share, in the window: it runs a ProcSimEngine on the instructions of the last
/// assembler run, shows what that reports as messages, and its state in docks.
///
/// An object of a derived class exists while the simulator is enabled. The widgets in the docks show the state of the
/// engine and change it when the user types. Without a main window there are no widgets; the simulator needs none.
///
/// The commands that run more than one instruction are loops that handle the user's events after each of them. So
/// anything can be called while a loop is active, and the instructions can be deleted: the simulator then drops its
/// pointers to them.
class ProcSim : public QObject,
                public ModMsgPluginIf,
                public ModGuiPluginIf,
                public ModAsmFePluginIfInterMod,
                public ModEditorPluginIfSimulator
{
    Q_OBJECT

public:
    ~ProcSim() override;

    // Life. The hooks must be set.

    /// Makes the state and shows it in the main window, goes to the first instruction.
    /// @param config settings of the processor; copied
    /// @return false after a reported error; simExit() is then called for, too
    bool simInit(const ProcCoreConfig* config);
    /// Takes over a new assembler result; state and devices stay. Ends a run.
    /// @return stepping is possible; false after a reported error
    bool simReload(const ProcCoreConfig* config);
    /// Takes the widgets from the main window and deletes them. A command that is still in progress ends.
    void simExit();
    /// The services may be deleted from now on: nothing calls them any more.
    void dropServices() { m_servicesGone = true; }

    // Commands. Those that execute return at once while one of them is in progress.

    /// Ends a run and goes back to the start; the clock count goes on.
    void simRst();
    /// Runs until simStop(), a breakpoint or an error.
    void simRun();
    /// The command in progress ends after the present instruction.
    void simStop() { m_running = 0; }
    bool isRunning() const { return m_running == 1; }
    void simNextInstruction();
    /// One instruction; a call runs until it has returned.
    void simNextLine();
    void simToEndOfCall();
    void simToCursor();
    /// Runs within bounds, and fills in what came of it.
    void simBoundedRun(sSimBoundedRun_t* run);
    /// @return the program counter stands on the instruction at the cursor or the first one below
    bool setPcFromCursor();
    /// Sets the program counter to an address of the page that the program is in, or was in last. Not during a run.
    /// @return false after a report, with the program counter where it was
    bool setPcFromAddr(int addr);
    /// Sets or takes back a pending interrupt, if interrupts are enabled.
    void simInt();
    /// Holds the interrupt input of an exact simulation up, or lets go of it.
    void holdInterrupt(bool up);
    void setBase(eBase_t base);
    /// Takes the breakpoints of the editor over into the instructions.
    void setBreakpoints();
    void clearBreakpoints();

    /// Executes one instruction, or enters the interrupt and executes the one at the vector.
    /// @return false after a reported message; the program counter is then unchanged
    bool simOpcode();

    /// @param opcode null if there is no instruction after the last one, which is reported
    /// @return false after a reported error; the program counter is set nevertheless
    bool setProgramCounter(nsModAsmFe::Opcode* opcode);
    /// The next instruction; null if there is none.
    nsModAsmFe::Opcode* programCounter() const;
    /// The instruction at an address of the page that the program counter stands in; the user is asked where that is
    /// not known.
    /// @return false, and null in the result, if there is none
    bool getOpcodeOfAddr(int addr, nsModAsmFe::Opcode** result);
    bool getOpcodeOfCursor(nsModAsmFe::Opcode** result);
    /// The instruction that the simulation starts with; null if there is none.
    nsModAsmFe::Opcode* simStartPointer();

    // State. Null before simInit().
    ProcSimEngine* engine() const { return m_engine.get(); }
    ProcSimCoreData* core() const;
    ProcSimCallStackData* callStack() const;
    ProcSimPorts* ports() const;
    ProcSimClock* clock() const;

    // Widgets. Null without a main window.
    ProcSimCore* coreWidget() const;
    ProcSimCallStack* callStackWidget() const;
    ProcSimIO* ioWidget() const;
    ProcSimStatusBar* statusBarWidget() const;
    /// Null until the user has asked for it.
    ProcSimWaveViewer* waveViewer() const;

    // ModGuiPluginIf
    /// Does nothing: the widgets are removed together with the simulator.
    void removeWidgetRequest(QWidget* widget) override;
    void setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf* plugin, QWidget* widget) override;

public slots:
    /// Makes the wave viewer, if there is none yet, and brings it to the front.
    void showWaveViewer();
    /// Brings the widgets up to date.
    void updateWidgets();

signals:
    /// The user has typed an address, and the program counter was set to it.
    void programCounterTyped();

protected:
    /// @param table the processor; not owned, must outlive this
    explicit ProcSim(const ProcTable& table, QObject* parent = nullptr);

    /// The widget that shows core(); made in simInit().
    virtual ProcSimCore* createCoreWidget(const std::shared_ptr<ProcSimCoreData>& data, int pcMax) = 0;

private:
    // Life and widgets.
    bool initIODevices();
    bool goToStart();
    void createWidgets();
    void addWidgets();
    void dropWidget(QWidget* widget);
    void forgetOpcodes();
    /// The first setting that has changed although it may not change during a simulation; empty if there is none.
    QString changedSetting(const ProcCoreConfig& config) const;
    /// Brings the widgets up to date, and shows the line of the next instruction.
    /// @param isFollowed the editor goes to the line; else it is only marked
    void showHighlight(bool isFollowed = true);
    void showRunning(bool running);
    bool hasEditor() const { return modEditorHook != nullptr && !m_servicesGone; }

    // Commands.
    template <class Ends>
    void runLoop(Ends ends);
    void startRun();
    void endRun();
    bool goOn();
    void syncBreakpoints();
    /// Asks for the page in which to look an address up, while the program counter stands in the shared range.
    /// @return false if the program counter has changed meanwhile
    bool resolvePage(int* memRange);
    /// Goes to an address that the user has typed without a Return, before a command starts.
    /// @return false after a report: the command must not start elsewhere
    bool takeTypedPc();

    // Messages.
    void show(const SimOutcome& outcome);
    void show(const sSimReport_t& report);
    void signMsg(eSimMsg_t type, const QString& arg = QString(), int value = 0);

    const ProcTable& m_table;
    int m_running = 0;
    int m_deletions = 0; ///< counts how often the instructions were deleted
    eBase_t m_base = eBaseHex;
    nsModAsmFe::OpcodeListWatch m_watch;
    int m_breakpointsRevision = 0; ///< the editor's, breakpoints that the instructions have
    bool m_breakpointsTaken = false;
    bool m_servicesGone = false;

    std::shared_ptr<ProcSimWaveData> m_waves;
    std::unique_ptr<ProcSimWaveRecorder> m_recorder; ///< before the engine, which notifies it
    std::unique_ptr<ProcSimEngine> m_engine;

    std::unique_ptr<ProcSimWidgets> m_widgets;
    QTimer* m_displayTimer;
};

} // namespace nsProc
