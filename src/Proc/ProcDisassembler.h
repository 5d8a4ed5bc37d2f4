#pragma once

#include "eOpcode.h"

#include <QString>
#include <QVector>

#include <functional>

namespace nsProc {

struct ProcTable;
struct sInstr_t;

/// Turns machine words back into the text of instructions, as the processor's table says.
///
/// Only words that the assembler can make have a text. Where two texts make one word, the more general one is given: a
/// NOP is a load of the first register with itself.
class ProcDisassembler
{
public:
    /// How the text shows the target of a jump or call, such as the label at this address.
    using TargetName = std::function<QString(int addr)>;

    /// A part of an instruction's text, and where its word holds it.
    struct sOperand_t
    {
        enum eKind_t { word, reg, regRef, number, target };

        eKind_t kind;
        int shift;    ///< place of its field
        int bits;     ///< width of its field
        QString text; ///< of a word
    };
    /// One word of the table, and what its other bits hold.
    struct sPattern_t
    {
        nsModAsmFe::eOpcode_t opcode;
        int mask; ///< bits that tell the instruction
        int match;
        QVector<sOperand_t> operands;
    };

    /// @param table not owned, must live as long as the disassembler
    explicit ProcDisassembler(const ProcTable& table);

    /// The instruction of a word; empty if there is none.
    /// @param address of the word, to which relative targets are counted
    QString text(int word, int address, const TargetName& targetName) const;
    /// All words that the assembler can make, the more general ones first.
    const QVector<sPattern_t>& patterns() const { return m_patterns; }
    /// The pattern of a word; null if the assembler makes no such word. Lives as long as the disassembler.
    const sPattern_t* pattern(int word) const;
    /// The text of an operand of the word's pattern.
    QString operandText(const sOperand_t& operand, int word, int address, const TargetName& targetName) const;
    /// What the word holds in the field of an operand.
    static int field(const sOperand_t& operand, int word);
    /// Where a target leads to; that may lie outside of the memory.
    /// @param address of the word
    int targetAddress(const sOperand_t& operand, int word, int address) const;

private:
    void addPatterns(const sInstr_t& instr);
    void addOperandForms(const sInstr_t& instr);
    void addFlow(const sInstr_t& instr);
    void addPattern(const sInstr_t& instr, int word, const QVector<sOperand_t>& operands);

    sOperand_t dst() const;
    sOperand_t src() const;
    sOperand_t number(int shift, int maximum) const;

    const ProcTable& m_table;
    QVector<sPattern_t> m_patterns; ///< the more general ones first
};

} // namespace nsProc
