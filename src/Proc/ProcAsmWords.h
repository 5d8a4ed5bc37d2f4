#pragma once

#include "ProcAsmReport.h"
#include "ProcInstr.h"

namespace nsModAsmFe {
class Arg;
class Opcode;
class OpcodeList;
class RunWatch;
} // namespace nsModAsmFe

namespace nsProc {

struct ProcTable;

/// The machine words of typed instructions: where a word gets its bits.
class ProcAsmWords
{
public:
    /// @param table read
    /// @param scrpdSize bytes of the scratchpad
    ProcAsmWords(const ProcTable& table, int scrpdSize, const ProcAsmReport& report);

    /// Writes the words of all instructions.
    /// @param watch null where nobody can cancel
    /// @return false after at least one reported error, or if the run was cancelled
    bool assembleOpcodes(const nsModAsmFe::OpcodeList& opcodes, nsModAsmFe::RunWatch* watch);
    /// Writes the word of one instruction.
    bool assembleOpcode(nsModAsmFe::Opcode* opcode);

private:
    bool refuse(const nsModAsmFe::Opcode* opcode, const nsModAsmFe::Arg* arg);

    bool assembleTwoOperand(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    bool assemblePort(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    bool assembleFlow(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    bool assembleReturn(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    bool assembleSwitch(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    bool assembleNone(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    bool assembleReg(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    bool assembleRegNumber(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    bool assembleRotate(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    bool assembleFlag(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    bool assembleBank(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    bool assembleConstantPort(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    bool assembleComputedFlow(nsModAsmFe::Opcode* opcode, const sInstr_t& instr);
    int assembleArg_regDst(const nsModAsmFe::Arg* arg) const;
    int assembleArg_regSrc(const nsModAsmFe::Arg* arg) const;
    int assembleArg_labelOffsAddr(int from, int to);
    bool checkNumber(const nsModAsmFe::Opcode* opcode, const nsModAsmFe::Arg* arg);

    const ProcTable& m_table;
    const sInstrLayout_t& m_layout;
    int m_scrpdMax; ///< largest scratchpad address
    const ProcAsmReport& m_report;
};

} // namespace nsProc
