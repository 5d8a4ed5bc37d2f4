#pragma once

#include "AsmFeFormula.h"

#include <QString>

namespace nsModAsmFe {

class AsmFeMsgHndlr;
class AsmFeParseArg;
class Arg;
class Equ;
class EquList;
struct SrcReference;

/// The values of expressions, whose terms are numbers and constants.
class FormulaResolver
{
public:
    /// @param equs read, and those that an expression uses marked as used
    FormulaResolver(const EquList& equs, const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages);

    /// Evaluates an expression over constants that have their values.
    /// @return false after a reported error
    bool formula(const SrcReference* srcRef, const QString& nameSpace, const QString& text, unsigned int* value);
    /// Evaluates an expression and reports what is wrong with its form.
    bool evaluateFormula(const SrcReference* srcRef, const QString& text, const AsmFeFormula::TermValue& termValue,
                         unsigned int* value);
    /// The `#EQU` that a term names, null if there is none.
    Equ* equOfTerm(const QString& nameSpace, const QString& term) const;
    /// Takes the value of an `#EQU` that has been checked for a term. What is wrong with the constant is reported at
    /// the constant; that the term has no value is reported here.
    /// @param equ null if the term names none
    bool equTermValue(const SrcReference* srcRef, const QString& term, Equ* equ, int* value);
    /// Makes an argument that holds an expression the number of its value.
    bool syntacticsCheckArgFormula(const SrcReference* srcRef, Arg* arg);

private:
    bool formulaTermValue(const SrcReference* srcRef, const QString& nameSpace, const QString& term, int* value);

    const EquList& m_equs;
    const AsmFeParseArg& m_numbers;
    AsmFeMsgHndlr& m_messages;
};

} // namespace nsModAsmFe
