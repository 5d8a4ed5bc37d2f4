#pragma once

#include "ModAsmFePluginIf.h"
#include "ModEditorPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "OpcodeListWatch.h"
#include "ProcCoreConfig.h"
#include "ProcSimMsg.h"
#include "ProcSimTypes.h"
#include "eOpcode.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class QTimer;

namespace nsModAsmFe {
class Arg;
class IODev;
class Opcode;
} // namespace nsModAsmFe

namespace nsProc {

class ProcSimCallStack;
class ProcSimCallStackData;
class ProcSimCore;
class ProcSimCoreData;
class ProcSimIO;
class ProcSimObserver;
class ProcSimPorts;
class ProcSimStatusBar;
class ProcSimWaveData;
class ProcSimWaveViewer;
struct ProcSimClock;
struct ProcSimWidgets;
struct sCallStackItem_t;

/// The differences between simulated processors, except for their instructions.
struct sProcSimTraits_t
{
    const char* helpPage; ///< host of the help links, such as "XPBlze3SimMessages"
    int bankCount = 1;
    int callStackCapacity = 31;        ///< levels
    bool clearsEachInstr = true;       ///< highlights end with each instruction; else only with each single step
    bool logicClearsCarry = true;      ///< `AND`, `OR`, `XOR` clear carry, and `TEST` sets it to the parity
    bool chainsZero = false;           ///< `ADDC` and `SUBC` only keep a zero flag that was set before
    bool takesComputedTargets = false; ///< `JUMP` and `CALL` take a target from two registers
    bool takesPortConstants = false;   ///< `WRPRT` takes a constant
    QStringList fixedSettings;         ///< what may not change during a simulation, in the order of the checks
};

/// The simulator that all processors share: it executes the instructions of the last assembler run.
///
/// An object of a derived class exists while the simulator is enabled. Its state is registers, flags, call stack, ports
/// and clock count, which are kept in objects of their own; the widgets in the docks show these and change them when
/// the user types. Without a main window there are no widgets; the simulator needs none.
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
    /// @return the program counter stands on the instruction at the cursor or the first one below
    bool setPcFromCursor();
    /// Sets the program counter to an address of the page that the program is in, or was in last. Not during a run.
    /// @return false after a report, with the program counter where it was
    bool setPcFromAddr(int addr);
    /// Sets or takes back a pending interrupt, if interrupts are enabled.
    void simInt();
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
    nsModAsmFe::Opcode* programCounter() const { return m_pc; }
    /// The instruction at an address of the page that the program counter stands in; the user is asked where that is
    /// not known.
    /// @return false, and null in the result, if there is none
    bool getOpcodeOfAddr(int addr, nsModAsmFe::Opcode** result);
    bool getOpcodeOfCursor(nsModAsmFe::Opcode** result);
    /// The instruction that the simulation starts with; null if there is none.
    nsModAsmFe::Opcode* simStartPointer();

    // State. Null before simInit().
    ProcSimCoreData* core() const { return m_core.get(); }
    ProcSimCallStackData* callStack() const { return m_callStack.get(); }
    ProcSimPorts* ports() const { return m_ports.get(); }
    ProcSimClock* clock() const { return m_clock.get(); }
    const QStringList& pageNames() const { return m_pageNames; }
    /// Absolute source line of the next instruction.
    int lineIndex() const { return m_lineIndex; }

    // Widgets. Null without a main window.
    ProcSimCore* coreWidget() const;
    ProcSimCallStack* callStackWidget() const;
    ProcSimIO* ioWidget() const;
    ProcSimStatusBar* statusBarWidget() const;
    /// Null until the user has asked for it.
    ProcSimWaveViewer* waveViewer() const;

    /// @param observer null for none; not owned
    void setObserver(ProcSimObserver* observer) { m_observer = observer; }
    /// The key of the last message that was shown, "internal" for an internal error, empty if none was since the last
    /// call.
    QString takeLastMsg();
    /// Text of the last internal error.
    const QString& lastInternalError() const { return m_lastText; }

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
    using Handler = bool (ProcSim::*)();

    explicit ProcSim(const sProcSimTraits_t& traits, QObject* parent = nullptr);

    // To be provided by a processor.
    /// The widget that shows core(); made in simInit().
    virtual ProcSimCore* createCoreWidget(const std::shared_ptr<ProcSimCoreData>& data, int pcMax) = 0;
    virtual int regCount() const { return 16; }
    virtual int scrpdSize() const { return m_config.scrpdSize; }
    /// Clock cycles of an instruction.
    virtual int clocksOfInstr() const { return 2; }

    /// Enters the instructions that all processors have.
    void setCommonHandlers();
    /// Enters these, and the further instructions that every PicoBlaze has.
    void setPicoBlazeHandlers();
    /// Enters an instruction of the processor.
    template <class Sim>
    void setHandler(nsModAsmFe::eOpcode_t opcode, bool (Sim::*handler)())
    {
        m_handlers[opcode] = static_cast<Handler>(handler);
    }

    const ProcCoreConfig& config() const { return m_config; }

    // Arguments: each function reports what it can not read.
    bool getValueNum(const nsModAsmFe::Arg* arg, int* value);
    bool getValueLabel(const nsModAsmFe::Arg* arg, nsModAsmFe::Opcode** target, QString* name);
    bool getValueReg(const nsModAsmFe::Arg* arg, int* value);
    bool getValueRegRef(const nsModAsmFe::Arg* arg, int* value);
    bool getValueRegNum(const nsModAsmFe::Arg* arg, int* value);
    bool getValueDoubleRefReg(const nsModAsmFe::Opcode* opcode, nsModAsmFe::Opcode** target, QString* name);
    bool setValueReg(const nsModAsmFe::Arg* arg, int value);
    void setCarryBitFromResult(int result);
    void setZeroBitFromResult(int result);
    static bool isZeroResult(int result);

    // Call stack. An item stores the position of the program counter.
    bool pushToCallstack(const QString& label);
    bool pullFromCallstack(bool restoreFlags);

    void signMsg(eSimMsg_t type, const QString& arg = QString(), int value = 0);
    void signInternalError(const QString& text);

    // Ends of instructions.
    bool finishAt(nsModAsmFe::Opcode* target);
    bool finish();
    void addClocks();

    // Instructions: each uses the arguments of the instruction at the program counter.
    bool simOpcode_unsupported();
    bool simOpcode_load();
    bool simOpcode_add(bool withCarry);
    bool simOpcode_addNoCarry() { return simOpcode_add(false); }
    bool simOpcode_addWithCarry() { return simOpcode_add(true); }
    bool simOpcode_sub(bool withCarry);
    bool simOpcode_subNoCarry() { return simOpcode_sub(false); }
    bool simOpcode_subWithCarry() { return simOpcode_sub(true); }
    bool simOpcode_and();
    bool simOpcode_or();
    bool simOpcode_xor();
    bool simOpcode_comp(bool withCarry);
    bool simOpcode_compNoCarry() { return simOpcode_comp(false); }
    bool simOpcode_compWithCarry() { return simOpcode_comp(true); }
    bool simOpcode_test();
    bool simOpcode_testWithCarry();
    bool simOpcode_sr();
    bool simOpcode_jump();
    bool simOpcode_call();
    bool simOpcode_ret();
    bool simOpcode_retI();
    bool simOpcode_int();
    bool simOpcode_nop();
    bool simOpcode_rdMem();
    bool simOpcode_wrMem();
    bool simOpcode_rdPrt();
    bool simOpcode_wrPrt();
    /// Is the condition of the first argument met? Without a condition it is.
    bool isConditionMet(const nsModAsmFe::Arg* arg, bool* met);
    /// Reads destination and source of an instruction with two operands.
    bool operands(int* dst, int* src);
    bool finishLogic(int result);
    bool finishSum(int result, bool withCarry);
    bool returnFromCall();
    /// The result of the shift or rotation at the program counter: up to 9 bits, which the caller reduces to 8.
    bool shifted(int* value, int* carry);

    nsModAsmFe::Opcode* m_pc = nullptr; ///< not owned; null after the instructions were deleted

private:
    // Life and widgets.
    bool initIODevices();
    bool initIODevice(nsModAsmFe::IODev* dev);
    void createWidgets();
    void addWidgets();
    void dropWidget(QWidget* widget);
    void forgetOpcodes();
    /// The first setting that has changed although it may not change during a simulation; empty if there is none.
    QString changedSetting(const ProcCoreConfig& config) const;
    /// Brings the widgets up to date, and shows the line of the next instruction.
    /// @param isFollowed the editor goes to the line; else it is only marked
    void showHighlight(bool isFollowed = true);
    void clearHighlights();
    void showRunning(bool running);
    bool hasEditor() const { return modEditorHook != nullptr && !m_servicesGone; }

    // Commands.
    template <class Ends>
    void runLoop(Ends ends);
    void startRun();
    void endRun();
    bool goOn();
    void syncBreakpoints();
    bool enterInterrupt();
    /// Page in which to look an address up, while the program counter stands in the shared range.
    bool resolvePage(int* memRange);
    /// Goes to an address that the user has typed without a Return, before a command starts.
    /// @return false after a report: the command must not start elsewhere
    bool takeTypedPc();
    /// The instruction at an address of a page or of the shared range.
    bool opcodeOfPage(int addr, int memRange, nsModAsmFe::Opcode** result) const;

    // Steps that several instructions share.
    bool readPort(const nsModAsmFe::Arg* arg, int addr, int* value);
    bool readReg(const nsModAsmFe::Arg* arg, int* value);
    bool flowTarget(bool* taken, nsModAsmFe::Opcode** target, QString* name);

    sProcSimTraits_t m_traits;
    Handler m_handlers[nsModAsmFe::ocCount];
    ProcCoreConfig m_config;
    QStringList m_pageNames; ///< by range: shared, then the pages
    int m_lineIndex = 0;
    int m_clocksOfInstr = 2;
    int m_lastPage = 1; ///< range of the page that was executed last
    int m_running = 0;
    int m_deletions = 0; ///< counts how often the instructions were deleted
    eBase_t m_base = eBaseHex;
    QString m_lastMsg;
    QString m_lastText;
    ProcSimObserver* m_observer = nullptr;
    ProcSimWaveData* m_waves = nullptr; ///< of the wave viewer
    nsModAsmFe::OpcodeListWatch m_watch;
    int m_breakpointsRevision = 0; ///< the editor's, breakpoints that the instructions have
    bool m_breakpointsTaken = false;
    bool m_servicesGone = false;

    std::shared_ptr<ProcSimCoreData> m_core;
    std::shared_ptr<ProcSimCallStackData> m_callStack;
    std::shared_ptr<ProcSimPorts> m_ports;
    std::shared_ptr<ProcSimClock> m_clock;

    std::unique_ptr<ProcSimWidgets> m_widgets;
    QTimer* m_displayTimer;
};

} // namespace nsProc
