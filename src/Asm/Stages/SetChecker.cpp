#include "SetChecker.h"

#include "AsmCharsets.h"
#include "AsmFeMsgHndlr.h"
#include "AsmFeParseArg.h"
#include "AsmRunListener.h"
#include "RunWatch.h"
#include "SetList.h"

namespace nsModAsmFe {

SetChecker::SetChecker(SetList& sets, AsmCharsets& charsets, const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages,
                       AsmRunListener& listener, RunWatch& watch)
    : m_sets(sets)
    , m_charsets(charsets)
    , m_numbers(numbers)
    , m_messages(messages)
    , m_listener(listener)
    , m_watch(watch)
{
}

bool SetChecker::syntacticsCheckSet()
{
    bool success = true;
    for (Set* set = m_sets.first(); set != nullptr; set = set->next) {
        if (!m_watch.goesOn())
            return false;
        if (set->value.isEmpty()) {
            m_messages.signMsg(errExpectArgument, &set->srcRef);
            success = false;
            continue;
        }
        classifySet(set);
        if (set->nameSpaceUpper == QLatin1String("ASM"))
            success = syntacticsCheckSetAsm(set) && success;
        else if (set->nameSpaceUpper == QLatin1String("EDITOR"))
            success = syntacticsCheckSetEditor(set) && success;
    }
    return success;
}

void SetChecker::classifySet(Set* set)
{
    const QString upper = set->value.toUpper();
    if (AsmFeParseArg::isNumeric(set->value)) {
        set->valueType = Set::valueNumeric;
        set->iValue = m_numbers.toNumeric(upper);
    } else if (upper == QLatin1String("TRUE")) {
        set->valueType = Set::valueTrue;
    } else if (upper == QLatin1String("FALSE")) {
        set->valueType = Set::valueFalse;
    } else {
        set->valueType = Set::valueText;
    }
}

bool SetChecker::syntacticsCheckSetAsm(Set* set)
{
    if (set->nameUpper != QLatin1String("DFLTCHARSET")) {
        m_messages.signMsg(errSetUnsupportedParameter, &set->srcRef, set->name);
        return false;
    }
    set->used = true;
    if (!m_charsets.contains(set->value.toUpper())) {
        m_messages.signMsg(errStrIvldCharset, &set->srcRef, set->value);
        return false;
    }
    return m_charsets.setupDefaultCodec(set->value);
}

bool SetChecker::syntacticsCheckSetEditor(Set* set)
{
    if (set->nameUpper != QLatin1String("TABINDENT")) {
        m_messages.signMsg(errSetUnsupportedParameter, &set->srcRef, set->name);
        return false;
    }
    set->used = true;
    if (set->valueType != Set::valueNumeric) {
        m_messages.signMsg(errExpectNumeric, &set->srcRef, set->value);
        return false;
    }
    m_listener.tabIndentSet(set->iValue);
    return true;
}

} // namespace nsModAsmFe
