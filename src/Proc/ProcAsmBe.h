#pragma once

#include "AsmBackend.h"
#include "ModAsmFePluginIf.h"
#include "ModMsgPluginIf.h"
#include "ProcBackEnd.h"

#include <QObject>

namespace nsProc {

/// The assembler back end among the modules: it has their hooks, and hands the program that they lead to to the back
/// end that all processors share.
class ProcAsmBe : public QObject, public ModMsgPluginIf, public ModAsmFePluginIfInterMod
{
    Q_OBJECT

public:
    /// @param table not owned, must live as long as the back end
    ProcAsmBe(const ProcTable& table, QObject* parent);

    /// Register names with their numbers. Owned.
    const QHash<QString, int>* regNames() const { return m_backEnd.regNames(); }
    /// Names of register banks with their numbers, null if the processor has none. Owned.
    const QHash<QString, int>* regBankNames() const { return m_backEnd.regBankNames(); }
    /// Define for the sources, and namespace of the processor's `#SET` parameters.
    QString processorDefine() const;

    /// The part of the assembler's program that a back end works on. The hook must be set.
    nsModAsmFe::AsmBeProgram program() const;
    /// @param config the settings of this run; parameters of the sources change them. Not owned, kept until the next
    /// run.
    /// @return false without a program, and after at least one reported error
    bool assembleStage1(ProcCoreConfig* config);
    /// Checks what depends on the IO devices.
    bool assembleStage2();
    bool checkConfigStage2() { return assembleStage2(); }
    /// The machine words alone, after a first stage.
    bool assembleOpcodes();
    bool assembleOpcode(nsModAsmFe::Opcode* opcode);

private:
    ProcBackEnd m_backEnd;
    ProcCoreConfig* m_config = nullptr; ///< of the last run; not owned
};

} // namespace nsProc
