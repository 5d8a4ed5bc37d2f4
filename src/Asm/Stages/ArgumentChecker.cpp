#include "ArgumentChecker.h"

#include "ArgumentSplitter.h"
#include "AsmFeFormula.h"
#include "AsmFeMsgHndlr.h"
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

ArgumentChecker::ArgumentChecker(const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages)
    : m_numbers(numbers)
    , m_messages(messages)
{
}

bool ArgumentChecker::syntacticsCheckArgNumeric(const SrcReference* srcRef, Arg* arg, ArgExt* ext)
{
    if (arg->type != Arg::numeric) {
        arg->iValue = m_numbers.toNumeric(arg->name);
        arg->type = Arg::numeric;
    }
    if (!ext->attr.isEmpty()) {
        QRegExp bigEndian("^([24])+BE$");
        if (!bigEndian.exactMatch(ext->attrUpper)) {
            m_messages.signMsg(errUnsupportedAttribute, srcRef, ext->attr);
            return false;
        }
        const int bytes = bigEndian.cap(1) == QLatin1String("2") ? 2 : 4;
        if (bytes == 2 && arg->iValue > 0xffff)
            m_messages.signMsg(warnNumericTruncated, srcRef);
        arg->iValue = swapped(arg->iValue, bytes);
        arg->name = QString::number(arg->iValue);
    }
    if (!ext->range.isEmpty()) {
        unsigned int value = static_cast<unsigned int>(arg->iValue);
        if (!m_numbers.extractRangeFromNumeric(ext->range, &value)) {
            m_messages.signMsg(errIvldRange, srcRef, ext->range);
            return false;
        }
        arg->iValue = static_cast<int>(value);
    }
    return true;
}

/// @return the argument has no range, no attribute and, if asked for, no parentheses; else these are reported
bool ArgumentChecker::refuseArgExt(const SrcReference* srcRef, const ArgExt* ext, bool parenthesesToo)
{
    if (!ext->range.isEmpty()) {
        m_messages.signMsg(errUnsupportedRange, srcRef);
        return false;
    }
    if (!ext->attr.isEmpty()) {
        m_messages.signMsg(errUnsupportedAttribute, srcRef, ext->attr);
        return false;
    }
    if (parenthesesToo && ext->parentheses != ArgExt::parenthesesNone) {
        m_messages.signMsg(errUnsupportedParenthese, srcRef);
        return false;
    }
    return true;
}

bool ArgumentChecker::syntacticsCheckArgReg(const SrcReference* srcRef, Arg* arg, ArgExt* ext, int number)
{
    arg->type = Arg::reg;
    arg->strValue = arg->name;
    arg->iValue = number;
    return refuseArgExt(srcRef, ext, false);
}

bool ArgumentChecker::syntacticsCheckArgBankName(const SrcReference* srcRef, Arg* arg, ArgExt* ext, int number)
{
    arg->type = Arg::regBank;
    arg->strValue = arg->name;
    arg->iValue = number;
    return refuseArgExt(srcRef, ext, true);
}

bool ArgumentChecker::syntacticsCheckArgType(const SrcReference* srcRef, Arg* arg, ArgExt* ext, Arg::eArgType_t type)
{
    arg->type = type;
    return refuseArgExt(srcRef, ext, true);
}

void ArgumentChecker::syntacticsSetArgParentheses(Arg* arg, ArgExt* ext)
{
    if (arg->name.isEmpty() || (!arg->name.startsWith('(') && !arg->name.endsWith(')')) ||
        AsmFeFormula::isFormula(arg->name))
        return;
    if (ArgumentSplitter::splitFromArgParentheseOpen(&arg->name))
        ext->parentheses |= ArgExt::parenthesesOpen;
    if (ArgumentSplitter::splitFromArgParentheseClose(&arg->name))
        ext->parentheses |= ArgExt::parenthesesClose;
    arg->name = arg->name.trimmed();
}

void ArgumentChecker::syntacticsSetArgNameSpace(Arg* arg, const QString& nameSpace)
{
    // The terms of an expression have prefixes of their own, and the colons of a string are text.
    if (!arg->name.contains(':') || !arg->name.contains(QLatin1String("::")) || arg->name.startsWith('"') ||
        AsmFeFormula::isFormula(arg->name) || !AsmFeParseArg::splitNsFromArg(&arg->name, &arg->nameSpace))
        arg->nameSpace = nameSpace;
}

bool ArgumentChecker::syntacticsCheckOpcodeArgumentRegRef(Opcode* opcode)
{
    Arg* arg0 = opcode->arg0;
    Arg* arg1 = opcode->arg1;
    const int p0 = opcode->arg0Ext->parentheses;
    const int p1 = opcode->arg1Ext->parentheses;
    const auto refuse = [&](eMsgType_t type) {
        m_messages.signMsg(type, &opcode->srcRef);
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

} // namespace nsModAsmFe
