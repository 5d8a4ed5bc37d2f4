#include "ProcSimPortNames.h"

#include "AsmFeParseArg.h"
#include "EquList.h"
#include "ModAsmFeHookIf.h"
#include "Opcode.h"
#include "OpcodeList.h"

namespace nsProc {

using nsModAsmFe::Arg;
using nsModAsmFe::Equ;
using nsModAsmFe::Opcode;

namespace {

const int maxPortAddr = 0xFF;

/// @param name split into name and namespace, if it has one of its own
const Equ* constantOf(ModAsmFeHookIf* hook, QString name, QString nameSpace)
{
    nsModAsmFe::AsmFeParseArg::splitNsFromArg(&name, &nameSpace);
    return hook->equList()->find(nameSpace, name);
}

} // namespace

QString ProcSimPortNames::nameOf(ModAsmFeHookIf* hook, int addr, bool isWrite)
{
    if (hook == nullptr || !hook->isAssembled())
        return QString();
    const nsModAsmFe::eOpcode_t access = isWrite ? nsModAsmFe::ocWrprt : nsModAsmFe::ocRdprt;
    for (const Opcode* opcode : *hook->opcodeList()) {
        const Arg* arg = opcode->arg1;
        if (opcode->opcode != access || arg->type != Arg::numeric || arg->iValue != addr)
            continue;
        QString name = arg->dispName.trimmed();
        if (name.startsWith('(') && name.endsWith(')'))
            name = name.mid(1, name.size() - 2).trimmed();
        // The argument may also be a number or an expression.
        if (const Equ* equ = constantOf(hook, name, opcode->nameSpace))
            return nsModAsmFe::qualifiedName(equ->nameSpace, equ->name);
    }
    return QString();
}

int ProcSimPortNames::addrOf(ModAsmFeHookIf* hook, const QString& name)
{
    if (hook == nullptr || !hook->isAssembled())
        return -1;
    const Equ* equ = constantOf(hook, name, QString());
    if (equ == nullptr || equ->arg->type != Arg::numeric || equ->arg->iValue < 0 || equ->arg->iValue > maxPortAddr)
        return -1;
    return equ->arg->iValue;
}

} // namespace nsProc
