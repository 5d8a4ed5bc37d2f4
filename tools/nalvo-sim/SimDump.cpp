#include "SimDump.h"

#include "AsmFeFileHndlr.h"
#include "AsmProgram.h"
#include "BatchOutput.h"
#include "Opcode.h"
#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimEngine.h"
#include "SimProject.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace nsNalvoSim {

using nsModAsmFe::Opcode;
using nsProc::ProcSimCoreData;

namespace {

/// A scratchpad may be declared far larger than programs use it: beyond this, trailing zeros are left out.
const int scrpdShown = 65536;

/// The letter of a register bank; "A" for registers that are in no bank.
QString bankName(const nsProc::ProcTable& processor, int bank)
{
    return QString(QLatin1Char(*processor.banks != '\0' ? processor.banks[bank] : 'A'));
}

/// File and line of an instruction, nulls if there is none.
QJsonObject place(const SimProject& project, const Opcode* opcode)
{
    if (opcode == nullptr)
        return {{"file", QJsonValue()}, {"line", QJsonValue()}};
    const QString file = project.files->absSrcFilePath(opcode->srcRef.fileNo);
    return {{"file", nsBatch::shownPath(file)}, {"line", opcode->srcRef.lineNo + 1}};
}

QJsonObject programCounter(const SimProject& project, const nsProc::ProcSimEngine& engine)
{
    const Opcode* opcode = engine.programCounter();
    QJsonObject object = place(project, opcode);
    const bool isKnown = engine.position() != nsProc::sSimInstr_t::none;
    object.insert("address", isKnown ? QJsonValue(engine.program().address(engine.position())) : QJsonValue());
    object.insert("page", isKnown ? QJsonValue(engine.core()->pageName()) : QJsonValue());
    return object;
}

QJsonObject registers(const nsProc::ProcTable& processor, const ProcSimCoreData& core)
{
    QJsonObject banks;
    for (int bank = 0; bank < core.bankCount(); ++bank) {
        QJsonObject values;
        for (int index = 0; index < core.regCount(); ++index)
            values.insert(processor.regName(index), core.regValue(bank, index));
        banks.insert(bankName(processor, bank), values);
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

QJsonArray callStack(const SimProject& project, const nsProc::ProcSimCallStackData& stack)
{
    QJsonArray items;
    for (const nsProc::sCallStackItem_t& item : stack.items()) {
        QJsonObject object = place(project, project.program->opcodes.nextOfLineIndex(item.lineIndex));
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

QByteArray dumpText(const SimProject& project, const nsProc::ProcSimEngine& engine, qint64 instructions,
                    const SimEnd& end)
{
    const ProcSimCoreData& core = *engine.core();
    const QJsonObject object{
        {"processor", project.processor->name},
        {"pc", programCounter(project, engine)},
        {"registers", registers(*project.processor, core)},
        {"bank", bankName(*project.processor, core.bank())},
        {"flags", QJsonObject{{"carry", core.carryBit()}, {"zero", core.zeroBit()}}},
        {"interrupt", interruptName(core.interrupt())},
        {"scratchpad", scratchpad(core)},
        {"callStack", callStack(project, *engine.callStack())},
        {"clocks", engine.clock()->clocks},
        {"instructions", instructions},
        {"end", QJsonObject{{"reason", reasonName(end.reason)},
                            {"key", end.key.isEmpty() ? QJsonValue() : QJsonValue(end.key)},
                            {"text", end.text}}},
    };
    return QJsonDocument(object).toJson();
}

} // namespace nsNalvoSim
