#include "AsmScriptApi.h"

#include "LabelList.h"
#include "LabelTarget.h"
#include "ModAsmFe.h"
#include "ModPrjHookIf.h"
#include "ModScriptHookIf.h"
#include "Opcode.h"
#include "OpcodeList.h"

namespace nsModAsmFe {

AsmScriptApi::AsmScriptApi(ModAsmFe* module)
    : QObject(module)
    , m_module(module)
{
}

bool AsmScriptApi::assemble(int button)
{
    static const AsmFeActions::eAction_t actions[] = {AsmFeActions::eActionAssemble, AsmFeActions::eActionButton1,
                                                      AsmFeActions::eActionButton2};
    if (button < 0 || button > 2)
        fail(tr("There is no button %1.").arg(button));
    else if (m_module->modPrjHook == nullptr || !m_module->modPrjHook->isValid())
        fail(tr("No project is open."));
    else if (m_module->isRunning())
        fail(tr("The assembler is running."));
    else {
        m_module->handleActions(actions[button]);
        return m_module->runSucceeded();
    }
    return false;
}

bool AsmScriptApi::isAssembled() const
{
    return m_module->isAssembled();
}

QStringList AsmScriptApi::writtenFiles() const
{
    return m_module->writtenFiles();
}

int AsmScriptApi::instructionCount() const
{
    return needsProgram() ? m_module->opcodeList()->count() : 0;
}

QStringList AsmScriptApi::labels() const
{
    return needsProgram() ? m_module->labelList()->nameList() : QStringList();
}

int AsmScriptApi::labelAddress(const QString& name) const
{
    if (!needsProgram())
        return -1;
    const LabelTarget target = LabelTarget::find(*m_module->labelList(), *m_module->opcodeList(), name);
    if (target.label == nullptr)
        fail(tr("No such label: %1").arg(name));
    else if (target.opcode == nullptr)
        fail(tr("No instruction stands at or behind the label: %1").arg(name));
    else
        return target.opcode->pageAddr;
    return -1;
}

bool AsmScriptApi::needsProgram() const
{
    if (m_module->isAssembled())
        return true;
    fail(tr("No program is assembled."));
    return false;
}

void AsmScriptApi::fail(const QString& text) const
{
    if (m_module->modScriptHook != nullptr)
        m_module->modScriptHook->throwError(text);
}

} // namespace nsModAsmFe
