#pragma once

#include "Arg.h"

namespace nsModAsmFe {

class ArgExt;
class ArgumentChecker;
class AsmFeMsgHndlr;
class AsmFeParseArg;
class AsmWords;
class FormulaResolver;
class Opcode;
class RunWatch;
class StringEncoder;
struct AsmProgram;

/// Gives each instruction its opcode and each of its arguments a type and a value.
class InstructionChecker
{
public:
    /// @param program instructions are written, constants marked as used, labels read
    /// @param words read: registers and banks
    InstructionChecker(AsmProgram& program, const AsmWords& words, ArgumentChecker& arguments,
                       FormulaResolver& formulas, StringEncoder& strings, const AsmFeParseArg& numbers,
                       AsmFeMsgHndlr& messages, RunWatch& watch);

    /// @return false after a reported error
    bool syntacticsCheckOpcode();

private:
    bool syntacticsCheckOpcodeArgument(Opcode* opcode, Arg* arg, ArgExt* ext);
    bool syntacticsCheckOpcodeArgumentLabel(Opcode* opcode, Arg* arg, ArgExt* ext);
    bool syntacticsCheckOpcodeArgumentWord(Opcode* opcode, Arg* arg, ArgExt* ext);

    AsmProgram& m_program;
    const AsmWords& m_words;
    ArgumentChecker& m_arguments;
    FormulaResolver& m_formulas;
    StringEncoder& m_strings;
    const AsmFeParseArg& m_numbers;
    AsmFeMsgHndlr& m_messages;
    RunWatch& m_watch;
};

} // namespace nsModAsmFe
