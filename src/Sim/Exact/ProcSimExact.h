#pragma once

#include "ProcSimEngine.h"
#include "ProcSimIntLine.h"

#include <QSet>

namespace nsProc {

/// The engine exactly as the core: it executes the words of the memory clock by clock where that can be seen, and goes
/// on where a core goes on.
///
/// The program counter is a cell of the memory. A stack holds positions, not lines, and its cells keep what was written
/// last; the list that views show is made from them after each step or run. With the stack eStackOfCalls each
/// instruction writes its address to the cell at the pointer: that cell is read only after the pointer has moved, so it
/// is enough that the instruction that moves the pointer writes it.
class ProcSimEngine::Exact
{
public:
    /// The most clocks that one step can take: an entry, a reset, and an access.
    static constexpr int maxClocks = 300;

    /// @param engine whose state this works on; not owned
    explicit Exact(ProcSimEngine* engine);

    /// Decodes the words of the memory, in the place of those before. The stack stays.
    void decode(const nsModAsmFe::OpcodeList& opcodes);
    /// Words of a page.
    int pageSize() const { return m_pageSize; }
    /// Its times are those of the clock count.
    ProcSimIntLine& line();

    /// The reset input of the core: what it keeps stays. The requests go.
    void reset();
    bool moveToStart(SimOutcome* outcome);
    /// To a cell of the present page, which may be empty.
    bool moveToAddr(int addr);
    bool moveTo(const nsModAsmFe::Opcode* opcode, SimOutcome* outcome);
    SimOutcome step();
    qint64 run(qint64 count, int until, SimOutcome* outcome);

private:
    class Step;
    template <bool isObserved, sCoreTraits_t::eStack_t stack>
    class Loop;
    friend class Step;

    /// A cell of the stack.
    struct sCell_t
    {
        int position = 0;
        bool carry = false;
        bool zero = false;
        int bank = 0;
        int caller = sSimInstr_t::none; ///< position of the call; none for an interrupt
    };
    static constexpr int maxCells = 32;
    static constexpr int slotClocks = 2;  ///< of an instruction, and of an interrupt entry that costs any
    static constexpr int resetClocks = 4; ///< from the end of what caused a reset to the first instruction
    /// The last clocks of an instruction in which a request comes too late for it, where requests are latched.
    static constexpr int latchLead = 1;

    const sCoreTraits_t& traits() const { return m_engine.m_table->core; }
    const ProcSimProgram& program() const { return m_engine.m_program; }
    /// Calls in progress from which on the next one loses an address.
    int stackLimit() const;
    /// Registers of their own are the upper bytes of an address.
    bool hasLongAddresses() const { return traits().hasLongAddresses && m_engine.m_config.addressBits > 8; }
    int wrapped(int pointer) const { return pointer & (traits().stackCells - 1); }
    /// The position of an address in the page of another position.
    int positionFrom(int position, int addr) const { return position - position % m_pageSize + addr % m_pageSize; }
    int positionInPage(int addr) const { return positionFrom(m_engine.m_pc, addr); }
    int following(int position) const { return program().instr(position).next; }

    // The stack, without any limit.
    /// @param position that is kept
    /// @param caller see sCell_t
    void push(int position, int caller, bool carry, bool zero, int bank);
    /// @param position of what takes the cell away
    sCell_t popAt(int position);
    /// The cell that was pushed last.
    const sCell_t& top() const;

    // Parts of a step. Those that answer false have reported why and changed nothing.
    SimOutcome oneStep();
    void followClock();
    bool enterInterrupt(SimOutcome* outcome);
    void preempt(int position);
    void resetByCore(bool isHalfLost);
    bool finishReset(SimOutcome* outcome);
    bool executeOne(SimOutcome* outcome);
    void latchRequests(qint64 end);
    void endInstruction(int opcode, int condition, bool isTaken, qint64 start);
    /// A message of the stated simulation: where it does not stop the run, a warning, once for each place.
    bool mayGoOn(eSimMsg_t msg, int stop, int position, SimOutcome* outcome, int value = 0);
    qint64 quietCount(qint64 count) const;
    template <bool isObserved>
    qint64 loop(qint64 count, int until);
    void place(int position);
    void showInterrupt();
    void showStack();
    void showState();

    ProcSimEngine& m_engine;
    int m_pageSize = 1;
    ProcSimIntLine m_line;
    sCell_t m_cells[maxCells];
    int m_pointer = 0;
    int m_depth = 0;    ///< calls in progress, as far as the stack holds them
    sCell_t m_flagCopy; ///< C and Z of the last interrupt, where they are kept once
    bool m_isEnabled = false;
    bool m_isInRoutine = false; ///< from an entry to a return from interrupt, where that keeps entries off
    bool m_isLatched = false;
    bool m_isDue = false;       ///< the next step begins with an interrupt entry
    bool m_isResetting = false; ///< the instruction at the position is half executed, then the core is reset
    bool m_isHalfLost = false;  ///< an interrupt request takes away what it would still do
    bool m_isExecuted = false;  ///< the last step has executed its instruction
    bool m_hasRun = false;      ///< since power-up
    bool m_wasEmpty = false;    ///< the last cell had no instruction
    qint64 m_clock = 0;         ///< the clock count as this has left it
    qint64 m_seen = 0;          ///< clock up to which requests are latched
    QSet<quint64> m_reported;   ///< messages with their places
};

} // namespace nsProc
