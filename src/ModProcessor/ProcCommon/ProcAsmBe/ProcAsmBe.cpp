#include "ProcAsmBe.h"

#include "ProcTable.h"

#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "IODevList.h"
#include "ModAsmFeHookIf.h"
#include "ModMsgHookIf.h"
#include "Opcode.h"
#include "OpcodeList.h"
#include "SetList.h"

#include <QUrl>

namespace nsProc {

using namespace nsModAsmFe;

ProcAsmBe::ProcAsmBe(const ProcTable& table, QObject* parent)
    : QObject(parent)
    , m_table(table)
    , m_layout(table.layout)
{
    for (int number = 0; number < table.regs.count; ++number)
        m_regs.insert(table.regName(number), number);
    for (const char* bank = table.banks; *bank != '\0'; ++bank)
        m_banks.insert(QChar(*bank), int(bank - table.banks));
}

QString ProcAsmBe::processorDefine() const
{
    return QLatin1String(m_table.define);
}

bool ProcAsmBe::assembleStage1(ProcCoreConfig* config)
{
    if (modAsmFeHook == nullptr)
        return false;
    m_opcodes = modAsmFeHook->opcodeList();
    m_config = config;
    m_scrpdMax = startScrpdMax();
    return setConfigFromDirectives() && checkConfigStage1() && assembleOpcodes() && checkAddresses();
}

bool ProcAsmBe::assembleStage2()
{
    if (modAsmFeHook == nullptr || m_config == nullptr)
        return false;
    const IODev* dev = modAsmFeHook->ioDevList()->find(m_config->scrpdIODev);
    if (dev == nullptr || dev->memSize == m_config->scrpdSize)
        return true;
    signMsg(errScrpdIODevSizeMismatch, nullptr, QString(), 0);
    return false;
}

bool ProcAsmBe::setConfigFromDirectives()
{
    for (Set* set = modAsmFeHook->setList()->first(); set != nullptr; set = set->next) {
        bool known = true;
        if (set->nameSpaceUpper == processorDefine() && !setConfigFromDirective(set, &known))
            return false;
    }
    return true;
}

bool ProcAsmBe::setConfigFromDirective(Set* set, bool* known)
{
    *known = true;
    if (set->nameUpper == QLatin1String("SCRPDIODEV"))
        return setConfigScrpdIODev(set);
    if (set->nameUpper == QLatin1String("CLKFREQ"))
        return setConfigClkFreq(set);
    *known = false;
    return true;
}

bool ProcAsmBe::expectNumeric(const Set* set)
{
    if (set->valueType == Set::valueNumeric)
        return true;
    modAsmFeHook->msgHndlr()->signMsg(errExpectNumeric, &set->srcRef, set->value);
    return false;
}

bool ProcAsmBe::setConfigScrpdIODev(Set* set)
{
    set->used = true;
    if (set->valueType != Set::valueText) {
        modAsmFeHook->msgHndlr()->signMsg(errExpectString, &set->srcRef, set->value);
        return false;
    }
    for (const Set* other = modAsmFeHook->setList()->first(); other != nullptr; other = other->next) {
        if (other->nameSpaceUpper.startsWith(QLatin1String("IODEV::")) && other->nameSpace == set->value) {
            m_config->scrpdIODev = set->value;
            return true;
        }
    }
    signMsg(errScrpdIODevNotDefined, &set->srcRef, QString(), 0);
    return false;
}

bool ProcAsmBe::setConfigClkFreq(Set* set)
{
    set->used = true;
    if (!expectNumeric(set))
        return false;
    m_config->clkFreq = set->iValue;
    if (set->iValue >= 0)
        return true;
    signMsg(errIvldClkFreq, &set->srcRef, set->value, 0);
    return false;
}

bool ProcAsmBe::overrideConfig(Set* set, int* field, const char* name)
{
    set->used = true;
    if (!expectNumeric(set))
        return false;
    if (modAsmFeHook->setOverwriteBehaviorError()) {
        modAsmFeHook->msgHndlr()->signMsg(errSetOverwriteGuiSettings, &set->srcRef);
        return false;
    }
    if (modAsmFeHook->setOverwriteBehaviorWarning() && set->iValue != *field)
        modAsmFeHook->msgHndlr()->signMsg(warnSetOverwriteGuiSettings, &set->srcRef, QString::fromLatin1(name));
    *field = set->iValue;
    return true;
}

int ProcAsmBe::startScrpdMax() const
{
    return m_config->scrpdSize - 1;
}

bool ProcAsmBe::checkConfigIntVectorAddr(const SrcReference* srcRef)
{
    if (m_config->intVectorAddr < m_config->pageSize)
        return true;
    signMsg(errIntVectorOutOfMem, srcRef, QString::number(m_config->intVectorAddr), 0);
    return false;
}

bool ProcAsmBe::checkAddresses()
{
    if (m_opcodes->opcodeOfMemAddr(0) == nullptr) {
        signMsg(errMissingInstrAtStartAddr, nullptr, QString(), 0);
        return false;
    }
    const int behavior = modAsmFeHook->asmBehaviorChkIntVector();
    return behavior == 2 || checkIntVector(behavior);
}

/// @param behavior 1 warns, anything else is an error
bool ProcAsmBe::checkIntVector(int behavior)
{
    const bool warn = behavior == 1;
    const int addr = m_config->intVectorAddr;
    const Opcode* opcode = m_opcodes->opcodeOfAddr(addr);
    if (opcode == nullptr) {
        signMsg(warn ? warnMissingInstrAtIntVectorAddr : errMissingInstrAtIntVectorAddr, addr);
        return warn;
    }
    if (opcode->memRange == 0)
        return true;
    for (int range = 1; range <= m_config->pageCount; ++range) {
        if (m_opcodes->opcodeOfAddr(addr, range) != nullptr)
            continue;
        signMsg(warn ? warnMissingInstrAtIntVectorAddrAndPage : errMissingInstrAtIntVectorAddrAndPage, addr, range - 1);
        return warn;
    }
    return true;
}

void ProcAsmBe::signMsg(eAsmMsg_t type, const SrcReference* srcRef, const QString& arg, int value)
{
    const sAsmMsg_t* msg = asmMsg(type);
    if (msg == nullptr || modMsgHook == nullptr)
        return;
    QString text = tr(msg->text);
    if (text.contains("%2"))
        text = text.arg(arg, QString::number(value));
    else if (text.contains("%1"))
        text = text.arg(arg);
    QUrl help("pageid://" + QLatin1String(m_table.asmHelpPage));
    help.setFragment(QString::fromLatin1(msg->key));
    const nsModMsg::MsgUrl link =
        srcRef != nullptr && modAsmFeHook != nullptr ? modAsmFeHook->msgHndlr()->srcUrl(*srcRef) : nsModMsg::MsgUrl();
    if (QLatin1String(msg->key).startsWith(QLatin1String("warn")))
        modMsgHook->showWarningMessage(text, help, link);
    else
        modMsgHook->showErrorMessage(text, help, link);
}

void ProcAsmBe::signMsg(eAsmMsg_t type, int value, int page)
{
    signMsg(type, nullptr, QString::number(value), page);
}

} // namespace nsProc
