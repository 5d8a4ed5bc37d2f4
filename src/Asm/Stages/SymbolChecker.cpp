#include "SymbolChecker.h"

#include "AsmFeMsgHndlr.h"
#include "AsmFeParseArg.h"
#include "AsmProgram.h"
#include "AsmWords.h"
#include "RunWatch.h"

#include <algorithm>

namespace nsModAsmFe {

SymbolChecker::SymbolChecker(const AsmProgram& program, const AsmWords& words, AsmFeMsgHndlr& messages, RunWatch& watch)
    : m_program(program)
    , m_words(words)
    , m_messages(messages)
    , m_watch(watch)
{
}

bool SymbolChecker::isValidName(const QString& name)
{
    return std::all_of(name.cbegin(), name.cend(), [](QChar c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
    });
}

bool SymbolChecker::mayBeNamed(const AsmWords& words, const QString& name, eMsgType_t* fault)
{
    const QString upper = name.toUpper();
    if (words.isInstruction(upper))
        *fault = errLblIsOpcode;
    else if (words.isArgument(upper))
        *fault = errLblIsOpcodeArg;
    else if (words.regs().contains(name))
        *fault = errLblIsReg;
    else if (words.banks().contains(name))
        *fault = errLblIsPage;
    else if (AsmFeParseArg::isNumeric(name))
        *fault = errLblIsNumeric;
    else if (!isValidName(name))
        *fault = errUnallowedCharsInName;
    else
        return true;
    return false;
}

bool SymbolChecker::checkName(const SrcReference* srcRef, const QString& name)
{
    eMsgType_t fault = errInternal;
    if (mayBeNamed(m_words, name, &fault))
        return true;
    m_messages.signMsg(fault, srcRef, name);
    return false;
}

bool SymbolChecker::syntacticsCheckLabel()
{
    bool success = true;
    for (const Label* label = m_program.labels.first(); label != nullptr; label = label->next) {
        if (!m_watch.goesOn())
            return false;
        if (!checkName(&label->srcRef, label->name)) {
            success = false;
        } else if (m_program.equs.containsName(label->name)) {
            m_messages.signMsg(errLblIsEqu, &label->srcRef, label->name);
            success = false;
        }
    }
    return success;
}

bool SymbolChecker::syntacticsCheckEquNames()
{
    bool success = true;
    for (const Equ* equ = m_program.equs.first(); equ != nullptr; equ = equ->next) {
        if (!m_watch.goesOn())
            return false;
        success = checkName(&equ->srcRef, equ->name) && success;
    }
    return success;
}

void SymbolChecker::usageCheck()
{
    for (const Equ* equ = m_program.equs.first(); equ != nullptr && m_watch.goesOn(); equ = equ->next) {
        if (!equ->used)
            m_messages.signMsg(warnEquUnused, &equ->srcRef, equ->name);
    }
    for (const Set* set = m_program.sets.first(); set != nullptr && m_watch.goesOn(); set = set->next) {
        if (!set->used)
            m_messages.signMsg(warnSetIgnoring, &set->srcRef);
    }
    for (const Org* org = m_program.orgs.first(); org != nullptr && m_watch.goesOn(); org = org->next) {
        if (!org->used)
            m_messages.signMsg(warnOrgIgnoring, &org->srcRef);
    }
}

} // namespace nsModAsmFe
