#include "SimDump.h"

#include "AsmFeFileHndlr.h"
#include "BatchOutput.h"
#include "ModAsmFe.h"
#include "Opcode.h"
#include "OpcodeList.h"
#include "ProcShell.h"
#include "ProcSim.h"
#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace nsNalvoSim {

using nsModAsmFe::Opcode;
using nsProc::ProcSimCoreData;

namespace {

/// A scratchpad may be declared far larger than programs use it: beyond this, trailing zeros are left out.
const int scrpdShown = 65536;

/// The name that a table has for a number.
QString nameOf(const QHash<QString, int>* names, int number, const QString& otherwise)
{
    return names != nullptr ? names->key(number, otherwise) : otherwise;
}

/// File and line of an instruction, nulls if there is none.
QJsonObject place(nsModAsmFe::ModAsmFe* asmFe, const Opcode* opcode)
{
    if (opcode == nullptr)
        return {{"file", QJsonValue()}, {"line", QJsonValue()}};
    const QString file = asmFe->fileHndlr()->absSrcFilePath(opcode->srcRef.fileNo);
    return {{"file", nsBatch::shownPath(file)}, {"line", opcode->srcRef.lineNo + 1}};
}

QJsonObject programCounter(nsModAsmFe::ModAsmFe* asmFe, const nsProc::ProcSim* sim)
{
    const Opcode* opcode = sim->programCounter();
    QJsonObject object = place(asmFe, opcode);
    object.insert("address", opcode != nullptr ? QJsonValue(opcode->pageAddr) : QJsonValue());
    object.insert("page", opcode != nullptr ? QJsonValue(sim->core()->pageName()) : QJsonValue());
    return object;
}

QJsonObject registers(nsProc::ProcShell* shell, const ProcSimCoreData& core)
{
    QJsonObject banks;
    for (int bank = 0; bank < core.bankCount(); ++bank) {
        QJsonObject values;
        for (int index = 0; index < core.regCount(); ++index)
            values.insert(nameOf(shell->regNames(), index, QString::number(index)), core.regValue(bank, index));
        banks.insert(nameOf(shell->regBankNames(), bank, QString(QChar('A' + bank))), values);
    }
    return banks;
}

QJsonArray scratchpad(const ProcSimCoreData& core)
{
    const auto cell = [&core](int addr) {
        int value = 0;
        core.scrpd(addr, &value);
        return value;
    };
    int count = core.scrpdSize();
    while (count > scrpdShown && cell(count - 1) == 0)
        --count;
    QJsonArray values;
    for (int addr = 0; addr < count; ++addr)
        values.append(cell(addr));
    return values;
}

QJsonArray callStack(nsModAsmFe::ModAsmFe* asmFe, const nsProc::ProcSimCallStackData& stack)
{
    QJsonArray items;
    for (const nsProc::sCallStackItem_t& item : stack.items()) {
        QJsonObject object = place(asmFe, asmFe->opcodeList()->nextOfLineIndex(item.lineIndex));
        object.insert("label", nsBatch::readable(item.label));
        object.insert("address", item.pc);
        object.insert("carry", int(item.carry));
        object.insert("zero", int(item.zero));
        items.append(object);
    }
    return items;
}

const char* interruptName(nsProc::eInt_t state)
{
    switch (state) {
    case nsProc::eIntEnabled:
        return "enabled";
    case nsProc::eIntDisabled:
        return "disabled";
    case nsProc::eIntPending:
        return "pending";
    case nsProc::eIntService:
        break;
    }
    return "service";
}

} // namespace

const char* reasonName(SimEnd::eReason_t reason)
{
    static const char* const names[] = {"instructions", "clocks", "label", "message", "reads", "signal", "file"};
    return names[reason];
}

QByteArray dumpText(nsModAsmFe::ModAsmFe* asmFe, nsProc::ProcShell* shell, const nsProc::ProcSim* sim,
                    qint64 instructions, const SimEnd& end)
{
    const ProcSimCoreData& core = *sim->core();
    const QJsonObject object{
        {"processor", shell->processorName()},
        {"pc", programCounter(asmFe, sim)},
        {"registers", registers(shell, core)},
        {"bank", nameOf(shell->regBankNames(), core.bank(), QString(QChar('A' + core.bank())))},
        {"flags", QJsonObject{{"carry", core.carryBit()}, {"zero", core.zeroBit()}}},
        {"interrupt", interruptName(core.interrupt())},
        {"scratchpad", scratchpad(core)},
        {"callStack", callStack(asmFe, *sim->callStack())},
        {"clocks", sim->clock()->clocks},
        {"instructions", instructions},
        {"end", QJsonObject{{"reason", reasonName(end.reason)},
                            {"key", end.key.isEmpty() ? QJsonValue() : QJsonValue(end.key)},
                            {"text", end.text}}},
    };
    return QJsonDocument(object).toJson();
}

} // namespace nsNalvoSim
