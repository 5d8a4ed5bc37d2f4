#pragma once

#include <QHash>
#include <QString>

namespace nsModAsmFe {
struct AsmBeProgram;
class Opcode;
class OpcodeList;
} // namespace nsModAsmFe

namespace nsProc {

class ProcAsmReport;
struct ProcCoreConfig;
struct ProcTable;

/// The assembler back end that all processors share: from typed instructions to machine words, as the processor's table
/// says.
///
/// It keeps nothing of a run. The stages are classes of their own; here are their order and the checks of the
/// addresses.
class ProcBackEnd
{
public:
    /// @param table not owned, must live as long as the back end
    explicit ProcBackEnd(const ProcTable& table);

    const ProcTable& table() const { return m_table; }
    /// Register names with their numbers. Owned.
    const QHash<QString, int>* regNames() const { return &m_regs; }
    /// Names of register banks with their numbers, null if the processor has none. Owned.
    const QHash<QString, int>* regBankNames() const { return m_banks.isEmpty() ? nullptr : &m_banks; }

    /// Takes the `#SET` parameters, writes the machine words, and checks that there is an instruction where the
    /// processor starts.
    /// @param config the settings of this run; parameters of the sources change them
    /// @return false after at least one reported error
    bool assembleStage1(const nsModAsmFe::AsmBeProgram& program, ProcCoreConfig* config) const;
    /// Checks what depends on the IO devices.
    bool assembleStage2(const nsModAsmFe::AsmBeProgram& program, const ProcCoreConfig& config) const;
    /// The part of the first stage that writes the machine words.
    bool assembleOpcodes(const nsModAsmFe::AsmBeProgram& program, const ProcCoreConfig& config) const;
    /// Writes the word of one instruction.
    bool assembleOpcode(const nsModAsmFe::AsmBeProgram& program, const ProcCoreConfig& config,
                        nsModAsmFe::Opcode* opcode) const;

private:
    bool checkAddresses(const nsModAsmFe::AsmBeProgram& program, const ProcCoreConfig& config,
                        const ProcAsmReport& report) const;
    bool checkIntVector(const nsModAsmFe::OpcodeList& opcodes, const ProcCoreConfig& config, bool isWarning,
                        const ProcAsmReport& report) const;

    const ProcTable& m_table;
    QHash<QString, int> m_regs;
    QHash<QString, int> m_banks;
};

} // namespace nsProc
