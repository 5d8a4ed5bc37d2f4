#pragma once

#include "ForeignDialect.h"

namespace nsImport {

/// The machine words of a processor, worked out from the processor's table alone: what the result assembles to is
/// compared with them.
class WordEncoder
{
public:
    explicit WordEncoder(const nsProc::ProcTable& table)
        : m_table(table)
    {
    }

    enum eSecond_t { eNumber, eRegister, eConstantPort };

    /// Register and number, register and register, or number and port.
    quint32 operands(nsModAsmFe::eOpcode_t opcode, int first, int second, eSecond_t kind) const;
    /// An instruction without operands, or with the word ENABLE, DISABLE, Z, NZ, C, NC, A or B.
    quint32 plain(nsModAsmFe::eOpcode_t opcode, const QString& operand) const;
    /// A jump or call. @param condition empty: always @param address of the instruction
    quint32 flow(nsModAsmFe::eOpcode_t opcode, const QString& condition, int target, int address) const;
    quint32 computedFlow(nsModAsmFe::eOpcode_t opcode, int high, int low) const;

    /// Largest number that the instruction takes as its second operand.
    int maxNumber(nsModAsmFe::eOpcode_t opcode) const;
    /// Does the distance of a jump fit into its word?
    bool reaches(int address, int target) const;

private:
    const nsProc::ProcTable& m_table;
};

} // namespace nsImport
