#include "ProcAsmBe.h"

#include "ProcTable.h"

#include "ModAsmFeHookIf.h"

namespace nsProc {

using namespace nsModAsmFe;

ProcAsmBe::ProcAsmBe(const ProcTable& table, QObject* parent)
    : QObject(parent)
    , m_backEnd(table)
{
}

QString ProcAsmBe::processorDefine() const
{
    return QLatin1String(m_backEnd.table().define);
}

AsmBeProgram ProcAsmBe::program() const
{
    AsmBeProgram program;
    program.opcodes = modAsmFeHook->opcodeList();
    program.sets = modAsmFeHook->setList();
    program.ioDevs = modAsmFeHook->ioDevList();
    program.msgHndlr = modAsmFeHook->msgHndlr();
    program.isSetRefused = modAsmFeHook->setOverwriteBehaviorError();
    program.isSetWarned = modAsmFeHook->setOverwriteBehaviorWarning();
    program.chkIntVector = modAsmFeHook->asmBehaviorChkIntVector();
    modAsmFeHook->instMemConfig(&program.pageSize, &program.pageCount, &program.isSharedMemHigh);
    return program;
}

bool ProcAsmBe::assembleStage1(ProcCoreConfig* config)
{
    if (modAsmFeHook == nullptr)
        return false;
    m_config = config;
    return m_backEnd.assembleStage1(program(), config);
}

bool ProcAsmBe::assembleStage2()
{
    return modAsmFeHook != nullptr && m_config != nullptr && m_backEnd.assembleStage2(program(), *m_config);
}

bool ProcAsmBe::assembleOpcodes()
{
    return modAsmFeHook != nullptr && m_config != nullptr && m_backEnd.assembleOpcodes(program(), *m_config);
}

bool ProcAsmBe::assembleOpcode(Opcode* opcode)
{
    return modAsmFeHook != nullptr && m_config != nullptr && m_backEnd.assembleOpcode(program(), *m_config, opcode);
}

} // namespace nsProc
