// Arguments: numbers, registers, parentheses, namespaces and expressions.

#include "ModAsmFe.h"

#include "AsmFeParseArg.h"
#include "Opcode.h"

#include <QRegExp>

namespace nsModAsmFe {

namespace {

/// The value with its bytes in the opposite order, over two or four bytes.
int swapped(int value, int bytes)
{
    const unsigned int v = static_cast<unsigned int>(value);
    if (bytes == 2)
        return int(((v >> 8) & 0xffu) | ((v << 8) & 0xffffu));
    return int((v >> 24) | ((v >> 8) & 0xff00u) | ((v << 8) & 0xff0000u) | (v << 24));
}

} // namespace

bool ModAsmFe::syntacticsCheckArgNumeric(const SrcReference* srcRef, Arg* arg, ArgExt* ext)
{
    if (arg->type != Arg::numeric) {
        arg->iValue = m_parseArg->toNumeric(arg->name);
        arg->type = Arg::numeric;
    }
    if (!ext->attr.isEmpty()) {
        QRegExp bigEndian("^([24])+BE$");
        if (!bigEndian.exactMatch(ext->attrUpper)) {
            m_msgHndlr->signMsg(errUnsupportedAttribute, srcRef, ext->attr);
            return false;
        }
        const int bytes = bigEndian.cap(1) == QLatin1String("2") ? 2 : 4;
        if (bytes == 2 && arg->iValue > 0xffff)
            m_msgHndlr->signMsg(warnNumericTruncated, srcRef);
        arg->iValue = swapped(arg->iValue, bytes);
        arg->name = QString::number(arg->iValue);
    }
    if (!ext->range.isEmpty()) {
        unsigned int value = static_cast<unsigned int>(arg->iValue);
        if (!m_parseArg->extractRangeFromNumeric(ext->range, &value)) {
            m_msgHndlr->signMsg(errIvldRange, srcRef, ext->range);
            return false;
        }
        arg->iValue = static_cast<int>(value);
    }
    return true;
}

/// @return the argument has no range, no attribute and, if asked for, no parentheses; else these are reported
bool ModAsmFe::refuseArgExt(const SrcReference* srcRef, const ArgExt* ext, bool parenthesesToo)
{
    if (!ext->range.isEmpty()) {
        m_msgHndlr->signMsg(errUnsupportedRange, srcRef);
        return false;
    }
    if (!ext->attr.isEmpty()) {
        m_msgHndlr->signMsg(errUnsupportedAttribute, srcRef, ext->attr);
        return false;
    }
    if (parenthesesToo && ext->parentheses != ArgExt::parenthesesNone) {
        m_msgHndlr->signMsg(errUnsupportedParenthese, srcRef);
        return false;
    }
    return true;
}

bool ModAsmFe::syntacticsCheckArgReg(const SrcReference* srcRef, Arg* arg, ArgExt* ext)
{
    arg->type = Arg::reg;
    arg->strValue = arg->name;
    arg->iValue = m_regTable.value(arg->name);
    return refuseArgExt(srcRef, ext, false);
}

bool ModAsmFe::syntacticsCheckArgBankName(const SrcReference* srcRef, Arg* arg, ArgExt* ext)
{
    arg->type = Arg::regBank;
    arg->strValue = arg->name;
    arg->iValue = m_bankTable.value(arg->name);
    return refuseArgExt(srcRef, ext, true);
}

bool ModAsmFe::syntacticsCheckArgType(const SrcReference* srcRef, Arg* arg, ArgExt* ext, Arg::eArgType_t type)
{
    arg->type = type;
    return refuseArgExt(srcRef, ext, true);
}

void ModAsmFe::syntacticsSetArgParentheses(Arg* arg, ArgExt* ext)
{
    if (arg->name.isEmpty() || (!arg->name.startsWith('(') && !arg->name.endsWith(')')) || isFormula(arg->name))
        return;
    if (splitFromArgParentheseOpen(&arg->name))
        ext->parentheses |= ArgExt::parenthesesOpen;
    if (splitFromArgParentheseClose(&arg->name))
        ext->parentheses |= ArgExt::parenthesesClose;
    arg->name = arg->name.trimmed();
}

void ModAsmFe::syntacticsSetArgNameSpace(Arg* arg, const QString& nameSpace)
{
    // The terms of an expression have prefixes of their own, and the colons of a string are text.
    if (!arg->name.contains(QLatin1String("::")) || arg->name.startsWith('"') || isFormula(arg->name) ||
        !AsmFeParseArg::splitNsFromArg(&arg->name, &arg->nameSpace))
        arg->nameSpace = nameSpace;
}

bool ModAsmFe::syntacticsCheckOpcodeArgumentRegRef(Opcode* opcode)
{
    Arg* arg0 = opcode->arg0;
    Arg* arg1 = opcode->arg1;
    const int p0 = opcode->arg0Ext->parentheses;
    const int p1 = opcode->arg1Ext->parentheses;
    const auto refuse = [&](eMsgType_t type) {
        m_msgHndlr->signMsg(type, &opcode->srcRef);
        return false;
    };
    const bool enclosed0 = arg0->type == Arg::reg && p0 != ArgExt::parenthesesNone;
    const bool enclosed1 = arg1->type == Arg::reg && p1 != ArgExt::parenthesesNone;
    if (enclosed0 && p0 == ArgExt::parenthesesBoth) {
        arg0->type = Arg::regRef;
        // A second register in parentheses of its own is a reference too.
        if (enclosed1 && p1 == ArgExt::parenthesesBoth)
            arg1->type = Arg::regRef;
        return true;
    }
    if (!enclosed0 && enclosed1 && p1 == ArgExt::parenthesesBoth) {
        arg1->type = Arg::regRef;
        return true;
    }
    if (!enclosed0 && !enclosed1)
        return true;
    // The remaining valid form is one pair of parentheses around both registers.
    if (arg0->type != Arg::reg || arg1->type != Arg::reg)
        return refuse(errUnsupportedParenthese);
    if (p0 != ArgExt::parenthesesOpen)
        return refuse(errMissingParentheseOpen);
    if (p1 != ArgExt::parenthesesClose)
        return refuse(errMissingParentheseClose);
    arg0->type = Arg::regRef;
    arg1->type = Arg::regRef;
    return true;
}

bool ModAsmFe::formula(const SrcReference* srcRef, const QString& nameSpace, const QString& text, unsigned int* value)
{
    return evaluateFormula(
        srcRef, text, [&](const QString& term, int* v) { return formulaTermValue(srcRef, nameSpace, term, v); }, value);
}

/// Evaluates an expression and reports what is wrong with its form.
bool ModAsmFe::evaluateFormula(const SrcReference* srcRef, const QString& text,
                               const AsmFeFormula::TermValue& termValue, unsigned int* value)
{
    switch (AsmFeFormula().evaluate(text, termValue, value)) {
    case AsmFeFormula::resultOk:
        return true;
    case AsmFeFormula::resultSyntax:
        m_msgHndlr->signMsg(errSyntax, srcRef);
        return false;
    case AsmFeFormula::resultMissingOpen:
        m_msgHndlr->signMsg(errMissingParentheseOpen, srcRef);
        return false;
    case AsmFeFormula::resultMissingClose:
        m_msgHndlr->signMsg(errMissingParentheseClose, srcRef);
        return false;
    case AsmFeFormula::resultFailed:
        break;
    }
    return false;
}

bool ModAsmFe::formulaTermValue(const SrcReference* srcRef, const QString& nameSpace, const QString& term, int* value)
{
    if (AsmFeParseArg::isNumeric(term)) {
        *value = m_parseArg->toNumeric(term);
        return true;
    }
    Equ* equ = equOfTerm(nameSpace, term);
    return equTermValue(srcRef, term, equ, value);
}

/// The `#EQU` that a term names, null if there is none.
Equ* ModAsmFe::equOfTerm(const QString& nameSpace, const QString& term) const
{
    QString name = term;
    QString termNameSpace = nameSpace;
    AsmFeParseArg::splitNsFromArg(&name, &termNameSpace);
    return m_equList.find(termNameSpace, name);
}

/// Takes the value of an `#EQU` that has been checked for a term. What is wrong with the constant is reported at the
/// constant; that the term has no value is reported here.
/// @param equ null if the term names none
bool ModAsmFe::equTermValue(const SrcReference* srcRef, const QString& term, Equ* equ, int* value)
{
    if (equ == nullptr || equ->arg->type != Arg::numeric) {
        m_msgHndlr->signMsg(errExprNonNumericTerm, srcRef, term);
        return false;
    }
    equ->used = true;
    *value = equ->arg->iValue;
    return true;
}

/// A range or an attribute after an expression applies neither to a term nor to the whole expression.
bool ModAsmFe::syntacticsCheckArgFormula(const SrcReference* srcRef, Arg* arg)
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
