#pragma once

#include "Arg.h"

#include <QString>

namespace nsModAsmFe {

class ArgExt;
class AsmFeMsgHndlr;
class AsmFeParseArg;
class Opcode;
struct SrcReference;

/// The form of single arguments: numbers, registers, banks, and what may stand around them.
///
/// What it finds out is written into the argument that it is called for.
class ArgumentChecker
{
public:
    /// @param numbers converts literals
    ArgumentChecker(const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages);

    // Each of these returns false after a reported error.
    bool syntacticsCheckArgNumeric(const SrcReference* srcRef, Arg* arg, ArgExt* ext);
    /// @param number of the register, as the caller has looked it up
    bool syntacticsCheckArgReg(const SrcReference* srcRef, Arg* arg, ArgExt* ext, int number);
    /// @param number of the bank
    bool syntacticsCheckArgBankName(const SrcReference* srcRef, Arg* arg, ArgExt* ext, int number);
    bool syntacticsCheckArgType(const SrcReference* srcRef, Arg* arg, ArgExt* ext, Arg::eArgType_t type);
    /// Registers in parentheses are references.
    bool syntacticsCheckOpcodeArgumentRegRef(Opcode* opcode);

    /// Takes parentheses off the text, unless they belong to an expression.
    static void syntacticsSetArgParentheses(Arg* arg, ArgExt* ext);
    /// Takes a namespace prefix off the text. @param nameSpace of the line, where there is no prefix
    static void syntacticsSetArgNameSpace(Arg* arg, const QString& nameSpace);

private:
    bool refuseArgExt(const SrcReference* srcRef, const ArgExt* ext, bool parenthesesToo);

    const AsmFeParseArg& m_numbers;
    AsmFeMsgHndlr& m_messages;
};

} // namespace nsModAsmFe
