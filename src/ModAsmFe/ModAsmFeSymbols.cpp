// Symbols: the rule for names, the typing of instruction arguments, and what was never used.

#include "ModAsmFe.h"

#include "AsmFeParseArg.h"
#include "Opcode.h"

#include <algorithm>

namespace nsModAsmFe {

void ModAsmFe::setupKeywordLists()
{
    m_instructionWords =
        QStringList({"RET",     "RETI",  "ADDC",  "SUBC", "INT",     "COMP",    "COMPC", "ADD",   "AND",  "CALL",
                     "HWBUILD", "JUMP",  "LOAD",  "NOP",  "OR",      "ROL",     "ROLC",  "ROR",   "RORC", "SL0",
                     "SL1",     "SLX",   "SR0",   "SR1",  "SRX",     "SUB",     "TEST",  "TESTC", "XOR",  "WRMEM",
                     "WRPRT",   "RDMEM", "RDPRT", "STAR", "regBank", "LOADRET", "SET",   "CLR"});
    m_argumentWords = QStringList({"ENABLE", "DISABLE", "C", "NC", "Z", "NZ"});
    m_instructionWordSet = QSet<QString>(m_instructionWords.cbegin(), m_instructionWords.cend());
    m_argumentWordSet = QSet<QString>(m_argumentWords.cbegin(), m_argumentWords.cend());
}

bool ModAsmFe::isValidName(const QString& name)
{
    return std::all_of(name.cbegin(), name.cend(), [](QChar c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
    });
}

/// The rule for the name of a label or an `#EQU`.
bool ModAsmFe::checkName(const SrcReference* srcRef, const QString& name)
{
    const QString upper = name.toUpper();
    if (m_instructionWordSet.contains(upper))
        m_msgHndlr->signMsg(errLblIsOpcode, srcRef, name);
    else if (m_argumentWordSet.contains(upper))
        m_msgHndlr->signMsg(errLblIsOpcodeArg, srcRef, name);
    else if (m_regTable.contains(name))
        m_msgHndlr->signMsg(errLblIsReg, srcRef, name);
    else if (m_bankTable.contains(name))
        m_msgHndlr->signMsg(errLblIsPage, srcRef, name);
    else if (AsmFeParseArg::isNumeric(name))
        m_msgHndlr->signMsg(errLblIsNumeric, srcRef, name);
    else if (!isValidName(name))
        m_msgHndlr->signMsg(errUnallowedCharsInName, srcRef, name);
    else
        return true;
    return false;
}

bool ModAsmFe::syntacticsCheckLabel()
{
    bool success = true;
    for (const Label* label = m_labelList.first(); label != nullptr; label = label->next) {
        if (!checkName(&label->srcRef, label->name)) {
            success = false;
        } else if (m_equList.containsName(label->name)) {
            m_msgHndlr->signMsg(errLblIsEqu, &label->srcRef, label->name);
            success = false;
        }
    }
    return success;
}

bool ModAsmFe::syntacticsCheckEquNames()
{
    bool success = true;
    for (const Equ* equ = m_equList.first(); equ != nullptr; equ = equ->next)
        success = checkName(&equ->srcRef, equ->name) && success;
    return success;
}

bool ModAsmFe::syntacticsCheckOpcode()
{
    if (m_opcodeList.first() == nullptr) {
        m_msgHndlr->signMsg(errOcExpect);
        return false;
    }
    bool success = true;
    for (Opcode* opcode : m_opcodeList) {
        opcode->opcode = opcodeOfMnemonic(opcode->name);
        if (opcode->opcode == ocUndefined) {
            m_msgHndlr->signMsg(errOcUnsupported, &opcode->srcRef, opcode->name);
            success = false;
        }
        success = syntacticsCheckOpcodeArgument(opcode, opcode->arg0, opcode->arg0Ext) && success;
        success = syntacticsCheckOpcodeArgument(opcode, opcode->arg1, opcode->arg1Ext) && success;
        success = syntacticsCheckOpcodeArgumentRegRef(opcode) && success;
    }
    return success;
}

bool ModAsmFe::syntacticsCheckOpcodeArgument(Opcode* opcode, Arg* arg, ArgExt* ext)
{
    const SrcReference* srcRef = &opcode->srcRef;
    if (arg->name.isEmpty()) {
        arg->type = Arg::empty;
        const auto refuse = [&](eMsgType_t type) {
            m_msgHndlr->signMsg(type, srcRef);
            return false;
        };
        if (!ext->range.isEmpty())
            return refuse(errRangeWithoutArg);
        if (!ext->attr.isEmpty())
            return refuse(errAttrWithoutArg);
        return ext->parentheses == ArgExt::parenthesesNone || refuse(errUnsupportedParenthese);
    }
    syntacticsSetArgParentheses(arg, ext);
    syntacticsSetArgNameSpace(arg, opcode->nameSpace);
    // No constant has the name of a number, a register or a bank, so these need no look-up.
    bool numeric = AsmFeParseArg::isNumeric(arg->name);
    bool reg = !numeric && m_regTable.contains(arg->name);
    bool bank = !numeric && !reg && m_bankTable.contains(arg->name);
    Equ* equ = numeric || reg || bank ? nullptr : m_equList.find(arg->nameSpace, arg->name);
    if (equ != nullptr) {
        equ->used = true;
        arg->takeValue(*equ->arg);
        numeric = AsmFeParseArg::isNumeric(arg->name);
        reg = m_regTable.contains(arg->name);
        bank = m_bankTable.contains(arg->name);
    }
    if (numeric)
        return syntacticsCheckArgNumeric(srcRef, arg, ext);
    if (reg)
        return syntacticsCheckArgReg(srcRef, arg, ext);
    if (bank)
        return syntacticsCheckArgBankName(srcRef, arg, ext);
    if (m_labelList.contains(arg->nameSpace, arg->name))
        return syntacticsCheckOpcodeArgumentLabel(opcode, arg, ext);
    return syntacticsCheckOpcodeArgumentWord(opcode, arg, ext);
}

bool ModAsmFe::syntacticsCheckOpcodeArgumentLabel(Opcode* opcode, Arg* arg, ArgExt* ext)
{
    const SrcReference* srcRef = &opcode->srcRef;
    arg->type = Arg::label;
    const Label* label = m_labelList.find(arg->nameSpace, arg->name);
    Opcode* target = m_opcodeList.nextOfLineIndex(label->srcRef.absLineNo);
    if (target == nullptr || target->nameSpace != arg->nameSpace) {
        m_msgHndlr->signMsg(errLblDoesNotReferenceOc, srcRef);
        return false;
    }
    arg->labelOpcode = target;
    if (!ext->range.isEmpty()) {
        unsigned int value = static_cast<unsigned int>(target->pageAddr);
        if (!m_parseArg->extractRangeFromNumeric(ext->range, &value)) {
            m_msgHndlr->signMsg(errUnsupportedRange, srcRef);
            return false;
        }
        arg->type = Arg::numeric;
        arg->iValue = static_cast<int>(value);
    }
    if (ext->parentheses != ArgExt::parenthesesNone) {
        m_msgHndlr->signMsg(errUnsupportedParenthese, srcRef);
        return false;
    }
    if (!ext->attr.isEmpty()) {
        m_msgHndlr->signMsg(errUnsupportedAttribute, srcRef, ext->attr);
        return false;
    }
    return true;
}

/// What is neither number, register, bank nor label: a flag, a switch, a string or an expression.
bool ModAsmFe::syntacticsCheckOpcodeArgumentWord(Opcode* opcode, Arg* arg, ArgExt* ext)
{
    static const QHash<QString, Arg::eArgType_t> words = {
        {"Z", Arg::flagZ},   {"NZ", Arg::flagNZ},     {"C", Arg::flagC},
        {"NC", Arg::flagNC}, {"ENABLE", Arg::enable}, {"DISABLE", Arg::disable},
    };
    const SrcReference* srcRef = &opcode->srcRef;
    const auto word = words.constFind(arg->name.toUpper());
    if (word != words.constEnd())
        return syntacticsCheckArgType(srcRef, arg, ext, *word);
    if (isString(arg->name)) {
        const bool success = syntacticsCheckArgString(srcRef, arg, ext, false);
        if (arg->type == Arg::numeric)
            return success;
        // Reported in addition to the error in the string: how an instruction can use a string.
        m_msgHndlr->signMsg(errStrExpectRange, srcRef);
        return false;
    }
    if (isFormula(arg->name))
        return syntacticsCheckArgFormula(srcRef, arg);
    m_msgHndlr->signMsg(errUnsupportedArgument, srcRef, arg->name);
    return false;
}

void ModAsmFe::usageCheck()
{
    for (const Equ* equ = m_equList.first(); equ != nullptr; equ = equ->next) {
        if (!equ->used)
            m_msgHndlr->signMsg(warnEquUnused, &equ->srcRef, equ->name);
    }
    for (const Set* set = m_setList.first(); set != nullptr; set = set->next) {
        if (!set->used)
            m_msgHndlr->signMsg(warnSetIgnoring, &set->srcRef);
    }
    for (const Org* org = m_orgList.first(); org != nullptr; org = org->next) {
        if (!org->used)
            m_msgHndlr->signMsg(warnOrgIgnoring, &org->srcRef);
    }
}

} // namespace nsModAsmFe
