#pragma once

#include "ProcSimOutcome.h"
#include "ProcTable.h"

#include <QHash>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <vector>

namespace nsModAsmFe {
class Arg;
class Opcode;
class OpcodeList;
} // namespace nsModAsmFe

namespace nsProc {

/// An instruction with its arguments resolved, so that its execution looks nothing up. 16 bytes: there is one for each
/// step of a run.
struct sSimInstr_t
{
    /// Bit of `op`: the run loop leaves the instruction to the single step, which knows all cases.
    static constexpr quint8 leftToStep = 0x80;
    static constexpr int none = -1;     ///< as `next` and `target`: there is no instruction
    static constexpr int computed = -2; ///< as `target`: two registers hold the address

    // Bits of `mode` of a flow: it is taken if the bit of the present flags is set.
    static constexpr quint8 ifNotCarry = 0b0101;
    static constexpr quint8 ifCarry = 0b1010;
    static constexpr quint8 ifNotZero = 0b0011;
    static constexpr quint8 ifZero = 0b1100;
    static constexpr quint8 always = 0b1111;
    // `mode` of the others.
    static constexpr quint8 byRegister = 0;   ///< the source is the register `src`
    static constexpr quint8 byNumber = 1;     ///< the source is `value`
    static constexpr quint8 constantPort = 2; ///< of a write of a port: `target` is written to the port `value`

    quint8 op;   ///< an opcode, and leftToStep
    quint8 dst;  ///< register; for a flag 0 carry, 1 zero
    quint8 src;  ///< register
    quint8 mode; ///< see above
    int value;   ///< number: immediate, port, address; register bank; 1 for ENABLE, 0 for DISABLE
    int next;    ///< position of the instruction that follows in the source
    int target;  ///< position where a flow goes

    nsModAsmFe::eOpcode_t opcode() const { return nsModAsmFe::eOpcode_t(op & ~leftToStep); }
    bool isLeftToStep() const { return (op & leftToStep) != 0; }
};
static_assert(sizeof(sSimInstr_t) == 16, "an instruction has no gaps");

/// The instructions of an assembler run, decoded for one processor. A position is an index in source order, or in the
/// instruction memory if that was decoded.
///
/// Reads the elements once, in decode(); what an argument can not be is kept as a fault, which the instruction reports
/// when it is executed.
class ProcSimProgram
{
public:
    /// Why an instruction can not be executed.
    struct sFault_t
    {
        sSimReport_t report;
        /// Not before the instruction has read a port or the scratchpad, or has taken its branch.
        bool isLate;
        const nsModAsmFe::Arg* read; ///< register that the instruction has read before it finds the fault; may be null
    };

    /// @param table of the processor; not owned
    explicit ProcSimProgram(const ProcTable* table)
        : m_table(table)
    {
    }

    /// Decodes the instructions of a list in place of those before.
    /// @param opcodes their elements must outlive the next decode() or clear()
    /// @param regCount registers of a bank
    /// @param rangeCount ranges of the instruction memory, the shared one included
    void decode(const nsModAsmFe::OpcodeList& opcodes, int regCount, int rangeCount);
    /// The same from the words of the instruction memory: each of its cells is a position, page after page. Cells
    /// without an instruction hold the word 0.
    /// @param pageSize words of a page, above 0
    /// @param pageCount pages, above 0; instructions of the shared range stand in each
    void decodeMemory(const nsModAsmFe::OpcodeList& opcodes, int regCount, int pageSize, int pageCount);
    /// Marks instructions for the single step. The next decode() forgets that.
    void leaveToStep(const std::function<bool(const sSimInstr_t&)>& isLeft);
    void clear();

    int count() const { return int(m_instrs.size()); }
    const sSimInstr_t* instrs() const { return m_instrs.data(); }
    const sSimInstr_t& instr(int position) const { return m_instrs[size_t(position)]; }
    /// Not owned. Null for a cell of the memory without an instruction.
    /// @param position may be sSimInstr_t::none: null then
    nsModAsmFe::Opcode* opcode(int position) const { return position < 0 ? nullptr : m_opcodes[size_t(position)]; }
    /// sSimInstr_t::none for null, and for an instruction of another program. In a memory of several pages an
    /// instruction of the shared range is found in the first page.
    int positionOf(const nsModAsmFe::Opcode* opcode) const;
    /// Address within its page, and machine word, of a position.
    int address(int position) const;
    int word(int position) const;
    /// Words of a page if the memory was decoded, else 0.
    int pageSize() const { return m_pageSize; }
    /// Null if the arguments are as they should be.
    const sFault_t* fault(int position) const;
    /// All instructions stand in ranges that exist.
    bool isPlaced() const { return m_isPlaced; }
    /// Some instructions stand in the shared range, so that the page is not known from the address alone.
    bool hasShared() const { return m_hasShared; }
    /// A return by the line of the instruction finds this one.
    bool isFirstOfLine(int position) const;

private:
    class Decoder;
    class MemoryDecoder;

    const ProcTable* m_table;
    std::vector<sSimInstr_t> m_instrs;
    std::vector<nsModAsmFe::Opcode*> m_opcodes; ///< not owned
    QHash<const nsModAsmFe::Opcode*, int> m_positions;
    QHash<int, sFault_t> m_faults; ///< by position
    bool m_isPlaced = true;
    bool m_hasShared = false;
    int m_pageSize = 0;
};

} // namespace nsProc
