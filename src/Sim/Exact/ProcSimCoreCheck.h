#pragma once

#include "ProcSimOutcome.h"
#include "ProcSimProgram.h"

#include <QSet>

#include <vector>

namespace nsProc {

class ProcSimCallStackData;
class ProcSimCoreData;
struct ProcCoreConfig;
struct ProcTable;

/// Warns, in a simulation that is not exact, of instructions whose outcome on the core would be another one. Each
/// warning comes once for each instruction.
///
/// It is told of each instruction before it is executed, and of each interrupt entry, and keeps what the core would
/// know beside the state of the simulation.
class ProcSimCoreCheck
{
public:
    /// Nothing is owned. @param core, stack of the simulation
    ProcSimCoreCheck(const ProcTable& table, const ProcCoreConfig& config, const ProcSimCoreData& core,
                     const ProcSimCallStackData& stack);

    /// Must the run loop leave the instruction to the step, so that it is looked at?
    bool looksAt(const sSimInstr_t& in) const;
    /// The same for the next instruction, whichever it is: the first one, and one that a lost request came before.
    bool looksAtNext() const { return !m_hasBegun || m_isRequestLost || m_isStartZero; }
    void beforeInstruction(const ProcSimProgram& program, int position, SimOutcome* outcome);
    /// @param position that the entry pre-empts
    void beforeEntry(const ProcSimProgram& program, int position, SimOutcome* outcome);
    /// A request came while it could not be taken.
    void requestLost() { m_isRequestLost = true; }
    /// The simulation starts anew.
    void clear();
    /// The program is another one: what was reported was reported at other places.
    void forgetPlaces() { m_reported.clear(); }

private:
    class Flags;

    void checkArithmetic(int position, const sSimInstr_t& in, SimOutcome* outcome);
    void checkRotate(int position, const sSimInstr_t& in, int word, SimOutcome* outcome);
    void checkAccess(int position, const sSimInstr_t& in, int word, SimOutcome* outcome);
    /// The zero flag that the core starts with, as long as nothing has set it.
    void checkStartZero(int position, const sSimInstr_t& in, SimOutcome* outcome);
    /// A call or an entry is about to take a level of the stack.
    void checkPush(int position, SimOutcome* outcome);
    void checkReturn(int position, const sSimInstr_t& in, SimOutcome* outcome);
    void warn(eSimMsg_t msg, int position, SimOutcome* outcome);
    int source(const sSimInstr_t& in) const;
    /// Does the condition of a flow hold?
    bool isTaken(const sSimInstr_t& in) const;
    /// Clock cycles of an instruction on the core.
    int coreClocks(int opcode) const;
    /// The register bank in which a routine runs that pre-empts an instruction.
    int bankOfEntry(const sSimInstr_t& in) const;

    const ProcTable& m_table;
    const ProcCoreConfig& m_config;
    const ProcSimCoreData& m_core;
    const ProcSimCallStackData& m_stack;
    std::vector<int> m_banks; ///< by level of the stack: selected at the call or entry
    bool m_copyCarry = false; ///< of the last entry
    bool m_copyZero = false;
    bool m_isInRoutine = false;
    bool m_isEnabled = false; ///< the enable bit of a core that latches requests
    bool m_isStartZero;       ///< the zero flag is that of the start
    bool m_hasBegun = false;
    bool m_isRequestLost = false;
    QSet<quint64> m_reported; ///< messages with their places
};

} // namespace nsProc
