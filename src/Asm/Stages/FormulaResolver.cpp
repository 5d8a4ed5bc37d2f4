#include "FormulaResolver.h"

#include "AsmFeMsgHndlr.h"
#include "AsmFeParseArg.h"
#include "EquList.h"

namespace nsModAsmFe {

FormulaResolver::FormulaResolver(const EquList& equs, const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages)
    : m_equs(equs)
    , m_numbers(numbers)
    , m_messages(messages)
{
}

bool FormulaResolver::formula(const SrcReference* srcRef, const QString& nameSpace, const QString& text,
                              unsigned int* value)
{
    return evaluateFormula(
        srcRef, text, [&](const QString& term, int* v) { return formulaTermValue(srcRef, nameSpace, term, v); }, value);
}

/// Evaluates an expression and reports what is wrong with its form.
bool FormulaResolver::evaluateFormula(const SrcReference* srcRef, const QString& text,
                                      const AsmFeFormula::TermValue& termValue, unsigned int* value)
{
    switch (AsmFeFormula().evaluate(text, termValue, value)) {
    case AsmFeFormula::resultOk:
        return true;
    case AsmFeFormula::resultSyntax:
        m_messages.signMsg(errSyntax, srcRef);
        return false;
    case AsmFeFormula::resultMissingOpen:
        m_messages.signMsg(errMissingParentheseOpen, srcRef);
        return false;
    case AsmFeFormula::resultMissingClose:
        m_messages.signMsg(errMissingParentheseClose, srcRef);
        return false;
    case AsmFeFormula::resultFailed:
        break;
    }
    return false;
}

bool FormulaResolver::formulaTermValue(const SrcReference* srcRef, const QString& nameSpace, const QString& term,
                                       int* value)
{
    if (AsmFeParseArg::isNumeric(term)) {
        *value = m_numbers.toNumeric(term);
        return true;
    }
    Equ* equ = equOfTerm(nameSpace, term);
    return equTermValue(srcRef, term, equ, value);
}

/// The `#EQU` that a term names, null if there is none.
Equ* FormulaResolver::equOfTerm(const QString& nameSpace, const QString& term) const
{
    QString name = term;
    QString termNameSpace = nameSpace;
    AsmFeParseArg::splitNsFromArg(&name, &termNameSpace);
    return m_equs.find(termNameSpace, name);
}

/// Takes the value of an `#EQU` that has been checked for a term. What is wrong with the constant is reported at the
/// constant; that the term has no value is reported here.
/// @param equ null if the term names none
bool FormulaResolver::equTermValue(const SrcReference* srcRef, const QString& term, Equ* equ, int* value)
{
    if (equ == nullptr || equ->arg->type != Arg::numeric) {
        m_messages.signMsg(errExprNonNumericTerm, srcRef, term);
        return false;
    }
    equ->used = true;
    *value = equ->arg->iValue;
    return true;
}

/// A range or an attribute after an expression applies neither to a term nor to the whole expression.
bool FormulaResolver::syntacticsCheckArgFormula(const SrcReference* srcRef, Arg* arg)
{
    // The value of a constant is known.
    if (arg->type == Arg::numeric)
        return true;
    arg->type = Arg::numeric;
    unsigned int value = 0;
    if (!formula(srcRef, arg->nameSpace, arg->name, &value))
        return false;
    arg->iValue = static_cast<int>(value);
    return true;
}

} // namespace nsModAsmFe
