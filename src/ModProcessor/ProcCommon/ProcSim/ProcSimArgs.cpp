// Arguments and results of instructions: reading, storing, and the messages when that fails.

#include "ProcSim.h"

#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"

#include "AsmFeMsgHndlr.h"
#include "ModAsmFeHookIf.h"
#include "ModMsgHookIf.h"
#include "Opcode.h"
#include "OpcodeList.h"

namespace nsProc {

using nsModAsmFe::Arg;
using nsModAsmFe::Opcode;

bool ProcSim::getValueNum(const Arg* arg, int* value)
{
    if (arg->type != Arg::numeric) {
        signInternalError(tr("Argument is no numeric: %1").arg(arg->name));
        return false;
    }
    *value = arg->iValue;
    return true;
}

bool ProcSim::getValueLabel(const Arg* arg, Opcode** target, QString* name)
{
    if (arg->type != Arg::label) {
        signInternalError(tr("Argument is no label: %1").arg(arg->name));
        return false;
    }
    if (arg->labelOpcode == nullptr) {
        signInternalError(tr("Label is not resolved: %1").arg(arg->name));
        return false;
    }
    *target = arg->labelOpcode;
    *name = arg->name;
    return true;
}

bool ProcSim::getValueReg(const Arg* arg, int* value)
{
    if (arg->type != Arg::reg) {
        signInternalError(tr("Argument is no register: %1").arg(arg->name));
        return false;
    }
    return readReg(arg, value);
}

bool ProcSim::getValueRegRef(const Arg* arg, int* value)
{
    if (arg->type != Arg::regRef) {
        signInternalError(tr("Argument is no register reference: %1").arg(arg->name));
        return false;
    }
    return readReg(arg, value);
}

bool ProcSim::readReg(const Arg* arg, int* value)
{
    if (arg->iValue >= m_core->regCount()) {
        signInternalError(tr("Register index exceeds register count: %1").arg(arg->name));
        return false;
    }
    if (!m_core->reg(arg->iValue, arg->dispName, value)) {
        signMsg(errRegRd, arg->name);
        return false;
    }
    return true;
}

bool ProcSim::getValueRegNum(const Arg* arg, int* value)
{
    switch (arg->type) {
    case Arg::reg:
        return getValueReg(arg, value);
    case Arg::regRef:
        return getValueRegRef(arg, value);
    case Arg::numeric:
        *value = arg->iValue;
        return true;
    default:
        signInternalError(tr("Can not get value of argument: %1").arg(arg->name));
        return false;
    }
}

bool ProcSim::getValueDoubleRefReg(const Opcode* opcode, Opcode** target, QString* name)
{
    int high = 0;
    int low = 0;
    if (!getValueRegRef(opcode->arg0, &high) || !getValueRegRef(opcode->arg1, &low))
        return false;
    const int addr = (high << 8) + low;
    const Opcode* before = m_pc;
    if (!getOpcodeOfAddr(addr, target)) {
        // If the program counter has changed while the user was asked for the page, there is nothing to report.
        if (m_pc == before)
            signInternalError(tr("No instruction at address: %1").arg(addr));
        return false;
    }
    *name = QStringLiteral("%1 = %2, %3 = %4")
                .arg(opcode->arg0->name, QString::number(high), opcode->arg1->name, QString::number(low));
    return true;
}

bool ProcSim::setValueReg(const Arg* arg, int value)
{
    if (arg->type != Arg::reg) {
        signInternalError(tr("Argument is no register: %1").arg(arg->name));
        return false;
    }
    if (!m_core->setReg(arg->iValue, arg->dispName, value)) {
        signInternalError(tr("Register index exceeds register count: %1").arg(arg->name));
        return false;
    }
    return true;
}

void ProcSim::setCarryBitFromResult(int result)
{
    // As an unsigned number, so that a borrow counts.
    m_core->setCarryBit(quint32(result) > 255);
}

void ProcSim::setZeroBitFromResult(int result)
{
    m_core->setZeroBit(isZeroResult(result) || result == -256);
}

bool ProcSim::isZeroResult(int result)
{
    return (result & ~0x100) == 0;
}

bool ProcSim::operands(int* dst, int* src)
{
    return getValueReg(m_pc->arg0, dst) && getValueRegNum(m_pc->arg1, src);
}

bool ProcSim::isConditionMet(const Arg* arg, bool* met)
{
    switch (arg->type) {
    case Arg::flagC:
        *met = m_core->carryBit() == 1;
        return true;
    case Arg::flagNC:
        *met = m_core->carryBit() == 0;
        return true;
    case Arg::flagZ:
        *met = m_core->zeroBit() == 1;
        return true;
    case Arg::flagNZ:
        *met = m_core->zeroBit() == 0;
        return true;
    default:
        signInternalError(tr("Unsupported argument!"));
        return false;
    }
}

bool ProcSim::pushToCallstack(const QString& label)
{
    sCallStackItem_t item;
    item.label = label;
    item.carry = m_core->carryBit() != 0;
    item.zero = m_core->zeroBit() != 0;
    item.pc = m_pc->pageAddr;
    item.lineIndex = m_pc->srcRef.absLineNo;
    return m_callStack->add(item);
}

bool ProcSim::pullFromCallstack(bool restoreFlags)
{
    sCallStackItem_t item;
    if (!m_callStack->takeLast(&item)) {
        setProgramCounter(nullptr);
        signMsg(errCallStackEmpty);
        return false;
    }
    Opcode* opcode = modAsmFeHook->opcodeList()->nextOfLineIndex(item.lineIndex);
    if (opcode == nullptr) {
        setProgramCounter(nullptr);
        signMsg(errCallStackInvalidRetAddr);
        return false;
    }
    setProgramCounter(opcode);
    if (restoreFlags) {
        m_core->setCarryBit(item.carry);
        m_core->setZeroBit(item.zero);
    }
    return true;
}

bool ProcSim::finishAt(Opcode* target)
{
    setProgramCounter(target);
    addClocks();
    return true;
}

bool ProcSim::finish()
{
    return finishAt(m_pc->next);
}

void ProcSim::addClocks()
{
    m_clock->clocks += m_clocksOfInstr;
}

void ProcSim::signMsg(eSimMsg_t type, const QString& arg, int value)
{
    const sSimMsg_t* msg = simMsg(type);
    if (msg == nullptr) {
        signInternalError(tr("Unsupported simulator message."));
        return;
    }
    m_lastMsg = QString::fromLatin1(msg->key);
    // Updates the widgets first, as one of them may come to the front and would cover the message.
    updateWidgets();
    if (modMsgHook == nullptr)
        return;
    QString text = tr(msg->text);
    if (text.contains("%1"))
        text = text.arg(arg.isEmpty() ? QString::number(value) : arg);
    QUrl help("pageid://" + QLatin1String(m_traits.helpPage));
    help.setFragment(m_lastMsg);
    const nsModMsg::MsgUrl link = m_pc != nullptr && modAsmFeHook != nullptr
                                      ? modAsmFeHook->msgHndlr()->srcUrl(m_pc->srcRef)
                                      : nsModMsg::MsgUrl();
    if (m_lastMsg.startsWith(QLatin1String("warn")))
        modMsgHook->showWarningMessage(text, help, link);
    else
        modMsgHook->showErrorMessage(text, help, link);
}

void ProcSim::signInternalError(const QString& text)
{
    m_lastMsg = QStringLiteral("internal");
    m_lastText = text;
    updateWidgets();
    if (modMsgHook != nullptr)
        modMsgHook->showErrorMessage(tr("Internal error: ") + text);
}

QString ProcSim::takeLastMsg()
{
    const QString key = m_lastMsg;
    m_lastMsg.clear();
    return key;
}

} // namespace nsProc
