#include "ProcSimPortNames.h"

#include "AsmFeParseArg.h"
#include "EquList.h"
#include "Opcode.h"
#include "OpcodeList.h"

namespace nsProc {

using nsModAsmFe::Arg;
using nsModAsmFe::Equ;
using nsModAsmFe::EquList;
using nsModAsmFe::Opcode;
using nsModAsmFe::OpcodeList;

namespace {

const int maxPortAddr = 0xFF;

/// @param name split into name and namespace, if it has one of its own
const Equ* constantOf(const EquList& equs, QString name, QString nameSpace)
{
    nsModAsmFe::AsmFeParseArg::splitNsFromArg(&name, &nameSpace);
    return equs.find(nameSpace, name);
}

} // namespace

QString ProcSimPortNames::nameOf(const OpcodeList& opcodes, const EquList& equs, int addr, bool isWrite)
{
    const nsModAsmFe::eOpcode_t access = isWrite ? nsModAsmFe::ocWrprt : nsModAsmFe::ocRdprt;
    for (const Opcode* opcode : opcodes) {
        const Arg* arg = opcode->arg1;
        if (opcode->opcode != access || arg->type != Arg::numeric || arg->iValue != addr)
            continue;
        QString name = arg->dispName.trimmed();
        if (name.startsWith('(') && name.endsWith(')'))
            name = name.mid(1, name.size() - 2).trimmed();
        // The argument may also be a number or an expression.
        if (const Equ* equ = constantOf(equs, name, opcode->nameSpace))
            return nsModAsmFe::qualifiedName(equ->nameSpace, equ->name);
    }
    return QString();
}

int ProcSimPortNames::addrOf(const EquList& equs, const QString& name)
{
    const Equ* equ = constantOf(equs, name, QString());
    if (equ == nullptr || equ->arg->type != Arg::numeric || equ->arg->iValue < 0 || equ->arg->iValue > maxPortAddr)
        return -1;
    return equ->arg->iValue;
}

} // namespace nsProc
