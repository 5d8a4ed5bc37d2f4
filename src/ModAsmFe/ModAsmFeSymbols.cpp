// Symbols: the rule for names, the resolution of `#EQU`, the typing of instruction arguments, and what was never used.

#include "ModAsmFe.h"

#include "AsmFeParseArg.h"
#include "Opcode.h"

#include <algorithm>

namespace nsModAsmFe {

void ModAsmFe::setupKeywordLists()
{
    m_instructionWords = QStringList({"RET",  "RETI", "ADDC",   "SUBC",  "INT",   "COMP",  "COMPC", "ADD",
                                      "AND",  "CALL", "HWBUILD", "JUMP", "LOAD",  "NOP",   "OR",    "ROL",
                                      "ROLC", "ROR",  "RORC",   "SL0",   "SL1",   "SLX",   "SR0",   "SR1",
                                      "SRX",  "SUB",  "TEST",   "TESTC", "XOR",   "WRMEM", "WRPRT", "RDMEM",
                                      "RDPRT", "STAR", "regBank", "LOADRET", "SET", "CLR"});
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

bool ModAsmFe::syntacticsCheckEquArguments()
{
    bool success = true;
    for (Equ* equ = m_equList.first(); equ != nullptr; equ = equ->next) {
        m_equCheckStack.clear();
        success = syntacticsCheckEquArgument(equ) && success;
    }
    m_failedEqus.clear();
    return success;
}

/// Takes parentheses and prefix off the value's text; doing so again changes nothing.
void ModAsmFe::prepareEqu(Equ* equ)
{
    if (equ->arg->type != Arg::unset || equ->prepared || equ->arg->name.isEmpty())
        return;
    equ->prepared = true;
    syntacticsSetArgParentheses(equ->arg, equ->argExt);
    syntacticsSetArgNameSpace(equ->arg, equ->nameSpace);
}

/// The `#EQU`s whose values this one needs and that have none yet.
QList<Equ*> ModAsmFe::equDependencies(Equ* equ)
{
    QList<Equ*> needed;
    prepareEqu(equ);
    const auto need = [&](const QString& nameSpace, const QString& name) {
        Equ* target = m_equList.find(nameSpace, name);
        if (target != nullptr && target->arg->type == Arg::unset && !m_failedEqus.contains(target))
            needed.append(target);
        return target != nullptr;
    };
    if (equ->arg->name.isEmpty() || need(equ->arg->nameSpace, equ->arg->name))
        return needed;
    if (AsmFeParseArg::isNumeric(equ->arg->name) || isString(equ->arg->name) || !isFormula(equ->arg->name))
        return needed;
    const QStringList terms = AsmFeFormula().terms(equ->arg->name);
    for (QString term : terms) {
        if (AsmFeParseArg::isNumeric(term))
            continue;
        QString nameSpace = equ->arg->nameSpace;
        AsmFeParseArg::splitNsFromArg(&term, &nameSpace);
        // The evaluation ends at a term that is nothing.
        if (!need(nameSpace, term))
            break;
    }
    return needed;
}

/// Finds the value of an `#EQU`.
///
/// Constants can depend on one another over thousands of steps, so the way down is kept in a list and not on the machine's stack.
/// Whatever an `#EQU` depends on has been resolved, or is known to have failed, when its own value is looked at.
bool ModAsmFe::syntacticsCheckEquArgument(Equ* equ)
{
    if (equ->arg->type == Arg::unset && !m_failedEqus.contains(equ) && m_equCheckStack.isEmpty())
        resolveEqu(equ);
    const auto failure = m_failedEqus.find(equ);
    if (failure == m_failedEqus.end())
        return true;
    AsmFeMsgHndlr::HeldMsgs held;
    // One that got a kind before it failed counts as done from now on, and one that names such a one gets its value when it is
    // asked for again. Their messages move on to who has asked: each of many constants with all the messages of those behind it
    // would be more than the memory holds.
    const Equ* target = m_equList.find(equ->arg->nameSpace, equ->arg->name);
    const bool movesOn = equ->arg->type != Arg::unset || (target != nullptr && !m_failedEqus.contains(target));
    if (movesOn) {
        held.swap(*failure);
        m_failedEqus.erase(failure);
    } else {
        held = *failure;
    }
    m_msgHndlr->signHeldMsgs(std::move(held));
    return false;
}

bool ModAsmFe::resolveEqu(Equ* root)
{
    struct sStep_t
    {
        Equ* equ;
        QList<Equ*> needed;
    };
    std::vector<sStep_t> path;
    const auto enter = [&](Equ* equ) {
        path.push_back({equ, equDependencies(equ)});
        m_equCheckStack.insert(equ->srcRef.absLineNo);
    };
    // A loop is told at the member before the one where the walk has entered it; each member tells it at the one before itself.
    const auto failLoop = [&](Equ* target) {
        const auto first = std::find_if(path.begin(), path.end(), [=](const sStep_t& s) { return s.equ == target; });
        const auto loopMsg = [](const Equ* at) {
            return AsmFeMsgHndlr::HeldMsgs{{errEquClosedLoop, true, at->srcRef, {}, {}, {}}};
        };
        const Equ* last = path.back().equ;
        for (auto step = path.begin(); step != path.end(); ++step)
            m_failedEqus.insert(step->equ, loopMsg(step <= first ? last : (step - 1)->equ));
        path.clear();
    };
    enter(root);
    while (!path.empty()) {
        sStep_t& step = path.back();
        if (!step.needed.isEmpty()) {
            Equ* target = step.needed.takeFirst();
            if (m_equCheckStack.contains(target->srcRef.absLineNo))
                failLoop(target);
            else if (target->arg->type == Arg::unset && !m_failedEqus.contains(target))
                enter(target);
            continue;
        }
        Equ* equ = step.equ;
        AsmFeMsgHndlr::HeldMsgs held;
        AsmFeMsgHndlr::HeldMsgs* before = m_msgHndlr->setHeldMsgs(&held);
        const bool success = checkEquValue(equ);
        m_msgHndlr->setHeldMsgs(before);
        if (success)
            m_msgHndlr->signHeldMsgs(std::move(held));
        else
            m_failedEqus[equ].swap(held);
        m_equCheckStack.remove(equ->srcRef.absLineNo);
        path.pop_back();
    }
    m_equCheckStack.clear();
    return !m_failedEqus.contains(root);
}

/// Takes over the value of the `#EQU` that this one names.
/// @param isAlias it names one
bool ModAsmFe::checkEquAlias(Equ* equ, bool* isAlias)
{
    Equ* target = m_equList.find(equ->arg->nameSpace, equ->arg->name);
    *isAlias = target != nullptr;
    if (target == nullptr)
        return true;
    if (!syntacticsCheckEquArgument(target))
        return false;
    target->used = true;
    equ->arg->takeValue(*target->arg);
    return true;
}

/// A range or an attribute behind the name of another `#EQU` selects from that one's value.
bool ModAsmFe::checkEquAliasExt(Equ* equ)
{
    if (equ->argExt->attr.isEmpty() && equ->argExt->range.isEmpty())
        return true;
    switch (equ->arg->type) {
    case Arg::numeric:
        return syntacticsCheckArgNumeric(&equ->srcRef, equ->arg, equ->argExt);
    case Arg::stringUtf16:
    case Arg::stringEncoded:
        return syntacticsCheckArgString(&equ->srcRef, equ->arg, equ->argExt, true);
    default:
        return refuseArgExt(&equ->srcRef, equ->argExt, false);
    }
}

bool ModAsmFe::checkEquValue(Equ* equ)
{
    Arg* arg = equ->arg;
    ArgExt* ext = equ->argExt;
    const SrcReference* srcRef = &equ->srcRef;
    // A value can become empty when its parentheses are taken off: that one is refused below.
    if (arg->name.isEmpty() && !equ->prepared) {
        arg->type = Arg::empty;
        m_msgHndlr->signMsg(errExpectArgument, srcRef);
        return false;
    }
    prepareEqu(equ);
    bool isAlias = false;
    if (!checkEquAlias(equ, &isAlias))
        return false;
    if (isAlias && arg->type != Arg::unset)
        return checkEquAliasExt(equ);
    if (AsmFeParseArg::isNumeric(arg->name))
        return syntacticsCheckArgNumeric(srcRef, arg, ext);
    if (m_regTable.contains(arg->name))
        return syntacticsCheckArgReg(srcRef, arg, ext);
    if (m_bankTable.contains(arg->name))
        return syntacticsCheckArgBankName(srcRef, arg, ext);
    if (isString(arg->name))
        return syntacticsCheckArgString(srcRef, arg, ext, true);
    if (isFormula(arg->name))
        return syntacticsCheckArgFormula(srcRef, arg, ext);
    m_msgHndlr->signMsg(errUnsupportedArgument, srcRef, arg->name);
    return false;
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
    // The value of a constant that is an expression is known, and may be a part of the expression's.
    if (numeric || (equ != nullptr && arg->type == Arg::numeric && !isString(arg->name)))
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
        // Beside what is wrong with the string, this tells how a string reaches an instruction.
        m_msgHndlr->signMsg(errStrExpectRange, srcRef);
        return false;
    }
    if (isFormula(arg->name))
        return syntacticsCheckArgFormula(srcRef, arg, ext);
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
