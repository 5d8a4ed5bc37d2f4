#pragma once

#include "OpcodeListWatch.h"
#include "ProcCoreConfig.h"
#include "ProcSimOutcome.h"
#include "ProcSimProgram.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace nsModAsmFe {
class IODevList;
} // namespace nsModAsmFe

namespace nsProc {

class ProcSimCallStackData;
class ProcSimCoreCheck;
class ProcSimCoreData;
class ProcSimIntLine;
class ProcSimObserver;
class ProcSimPorts;
struct ProcSimClock;

/// The simulator of a processor: it executes the instructions of an assembler run and answers in values. It knows no
/// window; whoever runs it shows what it reports.
///
/// Its state are registers, flags, scratchpad, call stack, ports and clock count, in objects that views may share. A
/// single step knows all cases and keeps the marks that views show; run() executes many instructions in a loop over the
/// decoded program and leaves to the step what it does not know.
///
/// The program counter is a position in program(). When the list deletes its instructions, the engine drops the
/// program; it decodes the list again when it is next given a position.
class ProcSimEngine
{
public:
    /// @param table the processor; not owned, must outlive this
    /// @param config its settings; copied
    ProcSimEngine(const ProcTable* table, const ProcCoreConfig& config);
    ~ProcSimEngine();
    ProcSimEngine(const ProcSimEngine&) = delete;
    ProcSimEngine& operator=(const ProcSimEngine&) = delete;

    // The program.

    /// Takes the instructions of a list, now and after each assembler run. There is no next instruction after this.
    /// @param opcodes not owned; after its deletion only load() may be called
    void load(nsModAsmFe::OpcodeList* opcodes);
    /// Decodes the present instructions of the list anew, after they have changed in place. The position stays.
    void decode();
    /// Takes over the settings of a later run. Those that can not change during a simulation must be as they were.
    void setConfig(const ProcCoreConfig& config);
    /// Makes the devices that the program declares, and fills the scratchpad.
    /// @return false after a reported error
    bool initIODevices(const nsModAsmFe::IODevList& devices, SimOutcome* outcome);
    /// Empty while the instructions are deleted.
    const ProcSimProgram& program() const { return m_program; }
    const ProcTable& table() const { return *m_table; }
    const ProcCoreConfig& config() const { return m_config; }
    /// By range: shared, then the pages.
    const QStringList& pageNames() const { return m_pageNames; }

    // The position.

    /// @param opcode null if there is no instruction after the last one, which is reported
    /// @return false after a reported error; the program counter is set nevertheless
    bool setProgramCounter(const nsModAsmFe::Opcode* opcode, SimOutcome* outcome);
    /// There is no next instruction. Nothing is reported.
    void dropProgramCounter()
    {
        m_pc = sSimInstr_t::none;
        m_question = sQuestion_t();
    }
    /// Position of the next instruction, sSimInstr_t::none if there is none.
    int position() const { return m_pc; }
    nsModAsmFe::Opcode* programCounter() const { return m_program.opcode(m_pc); }
    /// Position of the instruction that the last step has begun, sSimInstr_t::none if it has not got as far.
    int begun() const { return m_begun; }
    /// The instruction that a report of the last step or run is about; null where there is none.
    const nsModAsmFe::Opcode* placeOf(const sSimReport_t& report) const
    {
        return m_program.opcode(report.position != sSimReport_t::atProgramCounter ? report.position : m_pc);
    }
    /// Absolute source line of the next instruction, or of the last one that there was.
    int lineIndex() const { return m_lineIndex; }
    /// Range of the page that the program is in, or was in last.
    int page() const;
    /// The instruction at an address of a page or of the shared range; null if there is none.
    nsModAsmFe::Opcode* opcodeOfPage(int addr, int memRange) const;

    // Execution.

    /// Executes one instruction, or enters the interrupt and executes the one at the vector.
    SimOutcome step();
    /// The same for an instruction that the last step has left at a question for the page: eEndAsksPage.
    /// @param memRange the range to look in
    SimOutcome goOnInPage(int memRange);
    /// Whether a step asks for the page where it is not known. By default it takes the one that was executed last.
    void setAsksPage(bool asks) { m_asksPage = asks; }
    /// Executes instructions, without marks for views, until one is not executed or reports something, there is no next
    /// one, the position `until` is reached, or an observer has called halt().
    /// @param count at most so many
    /// @param outcome of the last one
    /// @return number of instructions that were executed
    qint64 run(qint64 count, int until, SimOutcome* outcome);
    /// For observers: the program must not go on, from now on and for good. The instruction that is being notified is
    /// not executed.
    void halt() { m_isHalted = true; }
    /// Sets or takes back a pending interrupt, if interrupts are enabled. In an exact simulation the interrupt input is
    /// up for one clock.
    void toggleInterrupt();
    /// The interrupt input of an exact simulation; null in any other.
    ProcSimIntLine* intLine();
    /// State and devices as they are at the start, or as the core's reset leaves them; the clock count goes on. Program
    /// counter and observers stay.
    void reset();
    /// Goes to the instruction that the processor executes first.
    /// @return false after a reported error
    bool moveToStart(SimOutcome* outcome);
    /// To an address of the present page.
    /// @return false, with nothing changed, if there is no instruction, or no memory in an exact simulation
    bool moveToAddr(int addr, SimOutcome* outcome);
    /// Ends all highlights.
    void clearHighlights();
    /// Clock cycles of an instruction, or the most that one can take in an exact simulation.
    int clocksOfInstr() const;
    /// For observers of ports: the clock in which the instruction that is being executed accesses its port.
    qint64 accessClock() const;

    /// @param observer not owned, must outlive its entry
    void addObserver(ProcSimObserver* observer);
    void removeObserver(ProcSimObserver* observer);

    // State.
    const std::shared_ptr<ProcSimCoreData>& core() const { return m_core; }
    const std::shared_ptr<ProcSimCallStackData>& callStack() const { return m_callStack; }
    const std::shared_ptr<ProcSimPorts>& ports() const { return m_ports; }
    const std::shared_ptr<ProcSimClock>& clock() const { return m_clock; }

private:
    class Exact;
    class Step;
    template <bool isObserved, bool isPaged>
    class Loop;

    /// A question for the page, and what goes on when it is answered.
    struct sQuestion_t
    {
        enum eAbout_t { eNothing, eVector, eTarget };
        eAbout_t about = eNothing;
        int addr = 0;
        QString label; ///< of the call
    };

    /// What a run loop leaves.
    struct sLoopEnd_t
    {
        int bank;
        bool carry;
        bool zero;
        int pc;
        int page;
        qint64 executed; ///< instructions
    };

    void forgetOpcodes();
    void ensureDecoded();
    int positionOfPage(int addr, int memRange) const;
    bool moveTo(int position, SimOutcome* outcome);
    bool pageToLookIn(int* memRange) const;
    bool enterInterrupt(SimOutcome* outcome);
    bool enterVector(int memRange, SimOutcome* outcome);
    bool readPort(int addr, const QString& name, int* value, SimOutcome* outcome);
    void executeOne(SimOutcome* outcome);
    void finishStep(bool executed, SimOutcome* outcome);
    template <bool isObserved>
    qint64 loop(qint64 count, int until);
    void storeLoop(const sLoopEnd_t& end);

    const ProcTable* m_table;
    ProcCoreConfig m_config;
    int m_clocksOfInstr;
    QStringList m_pageNames;
    nsModAsmFe::OpcodeList* m_opcodes = nullptr; ///< not owned
    nsModAsmFe::OpcodeListWatch m_watch;
    ProcSimProgram m_program;
    bool m_isDecoded = false;

    int m_pc = sSimInstr_t::none;
    int m_begun = sSimInstr_t::none;
    int m_lineIndex = 0;
    int m_lastPage; ///< range of the page that was executed last
    bool m_asksPage = false;
    bool m_isHalted = false;
    sQuestion_t m_question;

    std::vector<ProcSimObserver*> m_observers;
    std::vector<ProcSimObserver*> m_followers; ///< those of them that follow the instructions

    std::shared_ptr<ProcSimCoreData> m_core;
    std::shared_ptr<ProcSimCallStackData> m_callStack;
    std::shared_ptr<ProcSimPorts> m_ports;
    std::shared_ptr<ProcSimClock> m_clock;
    std::unique_ptr<ProcSimCoreCheck> m_check; ///< null unless it warns where the core would do otherwise
    std::unique_ptr<Exact> m_exact;            ///< null unless the simulation is exact
};

} // namespace nsProc
