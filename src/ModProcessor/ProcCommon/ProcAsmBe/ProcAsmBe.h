#pragma once

#include "ModAsmFePluginIf.h"
#include "ModMsgPluginIf.h"
#include "ProcAsmMsg.h"
#include "ProcInstr.h"

#include <QHash>
#include <QObject>
#include <QString>

namespace nsModAsmFe {
class Arg;
class Opcode;
class OpcodeList;
class Set;
struct SrcReference;
} // namespace nsModAsmFe

namespace nsProc {

struct ProcCoreConfig;
struct ProcTable;

/// The assembler back end that all processors share: from typed instructions to machine words.
///
/// A processor gives its instruction set as a table, its limits and its `#SET` parameters; the stages, the checks of
/// arguments and the catalogue of messages are common to all.
class ProcAsmBe : public QObject, public ModMsgPluginIf, public ModAsmFePluginIfInterMod
{
    Q_OBJECT

public:
    /// @param table not owned, must live as long as the back end
    ProcAsmBe(const ProcTable& table, QObject* parent);

    /// Register names with their numbers. Owned.
    const QHash<QString, int>* regNames() const { return &m_regs; }
    /// Names of register banks with their numbers, null if the processor has none. Owned.
    const QHash<QString, int>* regBankNames() const { return m_banks.isEmpty() ? nullptr : &m_banks; }
    /// Define for the sources, and namespace of the processor's `#SET` parameters.
    QString processorDefine() const;

    /// Takes the `#SET` parameters, writes the machine words, and checks that there is an instruction where the
    /// processor starts.
    /// @param config the settings of this run; parameters of the sources change them. Not owned, kept until the next
    /// run.
    /// @return false after at least one reported error
    bool assembleStage1(ProcCoreConfig* config);
    /// Checks what depends on the IO devices.
    bool assembleStage2();
    bool checkConfigStage2() { return assembleStage2(); }

    bool assembleOpcodes();
    /// Writes the word of one instruction.
    bool assembleOpcode(nsModAsmFe::Opcode* opcode);

protected:
    /// Largest accepted scratchpad address at the start of a run: the last byte of the scratchpad.
    virtual int startScrpdMax() const;
    /// One `#SET` of the processor's namespace.
    /// @param known false: the usage check will report the parameter
    virtual bool setConfigFromDirective(nsModAsmFe::Set* set, bool* known);
    /// Checks of the settings after the directives.
    virtual bool checkConfigStage1() = 0;

    bool setConfigScrpdIODev(nsModAsmFe::Set* set);
    bool setConfigClkFreq(nsModAsmFe::Set* set);
    /// Takes a parameter that overrides a setting of the configuration, as far as the configuration allows that.
    /// @param name the setting's name in the warning
    /// @return false after a reported error
    bool overrideConfig(nsModAsmFe::Set* set, int* field, const char* name);
    /// @return the parameter's value is a number; else an error is reported
    bool expectNumeric(const nsModAsmFe::Set* set);
    /// @param srcRef may be null
    bool checkConfigIntVectorAddr(const nsModAsmFe::SrcReference* srcRef);

    /// Number of the register at its place in the word; 0 for an unknown name.
    int assembleArg_regDst(const QString& name) const { return m_regs.value(name) << m_layout.dstShift; }
    int assembleArg_regSrc(const QString& name) const { return m_regs.value(name) << m_layout.srcShift; }

    /// Shows one of the back end's messages.
    /// @param srcRef may be null: the message then has no link
    void signMsg(eAsmMsg_t type, const nsModAsmFe::SrcReference* srcRef, const QString& arg, int value);
    /// The same without a position, for a number and a page.
    void signMsg(eAsmMsg_t type, int value, int page = 0);

    ProcCoreConfig* m_config = nullptr;
    int m_scrpdMax = 31;
    QHash<QString, int> m_regs;
    QHash<QString, int> m_banks;

private:
    bool setConfigFromDirectives();
    bool checkAddresses();
    bool checkIntVector(int behavior);
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
    int assembleArg_labelOffsAddr(int from, int to);
    bool checkNumber(const nsModAsmFe::Opcode* opcode, const nsModAsmFe::Arg* arg);

    const ProcTable& m_table;
    const sInstrLayout_t& m_layout;
    nsModAsmFe::OpcodeList* m_opcodes = nullptr; ///< of the assembler, during a run; not owned
};

} // namespace nsProc
