#include "InstructionChecker.h"

#include "ArgumentChecker.h"
#include "AsmFeFormula.h"
#include "AsmFeMsgHndlr.h"
#include "AsmFeParseArg.h"
#include "AsmProgram.h"
#include "AsmWords.h"
#include "FormulaResolver.h"
#include "Opcode.h"
#include "RunWatch.h"
#include "StringEncoder.h"

#include <QHash>

namespace nsModAsmFe {

InstructionChecker::InstructionChecker(AsmProgram& program, const AsmWords& words, ArgumentChecker& arguments,
                                       FormulaResolver& formulas, StringEncoder& strings, const AsmFeParseArg& numbers,
                                       AsmFeMsgHndlr& messages, RunWatch& watch)
    : m_program(program)
    , m_words(words)
    , m_arguments(arguments)
    , m_formulas(formulas)
    , m_strings(strings)
    , m_numbers(numbers)
    , m_messages(messages)
    , m_watch(watch)
{
}

bool InstructionChecker::syntacticsCheckOpcode()
{
    if (m_program.opcodes.first() == nullptr) {
        m_messages.signMsg(errOcExpect);
        return false;
    }
    bool success = true;
    for (Opcode* opcode : m_program.opcodes) {
        if (!m_watch.goesOn())
            return false;
        opcode->opcode = opcodeOfMnemonic(opcode->name);
        if (opcode->opcode == ocUndefined) {
            m_messages.signMsg(errOcUnsupported, &opcode->srcRef, opcode->name);
            success = false;
        }
        success = syntacticsCheckOpcodeArgument(opcode, opcode->arg0, opcode->arg0Ext) && success;
        success = syntacticsCheckOpcodeArgument(opcode, opcode->arg1, opcode->arg1Ext) && success;
        success = m_arguments.syntacticsCheckOpcodeArgumentRegRef(opcode) && success;
    }
    return success;
}

bool InstructionChecker::syntacticsCheckOpcodeArgument(Opcode* opcode, Arg* arg, ArgExt* ext)
{
    const SrcReference* srcRef = &opcode->srcRef;
    if (arg->name.isEmpty()) {
        arg->type = Arg::empty;
        const auto refuse = [&](eMsgType_t type) {
            m_messages.signMsg(type, srcRef);
            return false;
        };
        if (!ext->range.isEmpty())
            return refuse(errRangeWithoutArg);
        if (!ext->attr.isEmpty())
            return refuse(errAttrWithoutArg);
        return ext->parentheses == ArgExt::parenthesesNone || refuse(errUnsupportedParenthese);
    }
    ArgumentChecker::syntacticsSetArgParentheses(arg, ext);
    ArgumentChecker::syntacticsSetArgNameSpace(arg, opcode->nameSpace);
    const QHash<QString, int>& regs = m_words.regs();
    const QHash<QString, int>& banks = m_words.banks();
    bool numeric = false;
    auto reg = regs.cend();
    auto bank = banks.cend();
    const auto lookUp = [&] {
        numeric = AsmFeParseArg::isNumeric(arg->name);
        reg = numeric ? regs.cend() : regs.constFind(arg->name);
        bank = numeric || reg != regs.cend() ? banks.cend() : banks.constFind(arg->name);
        return numeric || reg != regs.cend() || bank != banks.cend();
    };
    // No constant has the name of a number, a register or a bank, so these need no look-up.
    Equ* equ = lookUp() ? nullptr : m_program.equs.find(arg->nameSpace, arg->name);
    if (equ != nullptr) {
        equ->used = true;
        arg->takeValue(*equ->arg);
        lookUp();
    }
    if (numeric)
        return m_arguments.syntacticsCheckArgNumeric(srcRef, arg, ext);
    if (reg != regs.cend())
        return m_arguments.syntacticsCheckArgReg(srcRef, arg, ext, *reg);
    if (bank != banks.cend())
        return m_arguments.syntacticsCheckArgBankName(srcRef, arg, ext, *bank);
    if (m_program.labels.contains(arg->nameSpace, arg->name))
        return syntacticsCheckOpcodeArgumentLabel(opcode, arg, ext);
    return syntacticsCheckOpcodeArgumentWord(opcode, arg, ext);
}

bool InstructionChecker::syntacticsCheckOpcodeArgumentLabel(Opcode* opcode, Arg* arg, ArgExt* ext)
{
    const SrcReference* srcRef = &opcode->srcRef;
    arg->type = Arg::label;
    const Label* label = m_program.labels.find(arg->nameSpace, arg->name);
    Opcode* target = m_program.opcodes.nextOfLineIndex(label->srcRef.absLineNo);
    if (target == nullptr || target->nameSpace != arg->nameSpace) {
        m_messages.signMsg(errLblDoesNotReferenceOc, srcRef);
        return false;
    }
    arg->labelOpcode = target;
    if (!ext->range.isEmpty()) {
        unsigned int value = static_cast<unsigned int>(target->pageAddr);
        if (!m_numbers.extractRangeFromNumeric(ext->range, &value)) {
            m_messages.signMsg(errUnsupportedRange, srcRef);
            return false;
        }
        arg->type = Arg::numeric;
        arg->iValue = static_cast<int>(value);
    }
    if (ext->parentheses != ArgExt::parenthesesNone) {
        m_messages.signMsg(errUnsupportedParenthese, srcRef);
        return false;
    }
    if (!ext->attr.isEmpty()) {
        m_messages.signMsg(errUnsupportedAttribute, srcRef, ext->attr);
        return false;
    }
    return true;
}

/// What is neither number, register, bank nor label: a flag, a switch, a string or an expression.
bool InstructionChecker::syntacticsCheckOpcodeArgumentWord(Opcode* opcode, Arg* arg, ArgExt* ext)
{
    static const QHash<QString, Arg::eArgType_t> words = {
        {"Z", Arg::flagZ},   {"NZ", Arg::flagNZ},     {"C", Arg::flagC},
        {"NC", Arg::flagNC}, {"ENABLE", Arg::enable}, {"DISABLE", Arg::disable},
    };
    const SrcReference* srcRef = &opcode->srcRef;
    const auto word = words.constFind(arg->name.toUpper());
    if (word != words.constEnd())
        return m_arguments.syntacticsCheckArgType(srcRef, arg, ext, *word);
    if (StringEncoder::isString(arg->name)) {
        const bool success = m_strings.syntacticsCheckArgString(srcRef, arg, ext, false);
        if (arg->type == Arg::numeric)
            return success;
        // Reported in addition to the error in the string: how an instruction can use a string.
        m_messages.signMsg(errStrExpectRange, srcRef);
        return false;
    }
    if (AsmFeFormula::isFormula(arg->name))
        return m_formulas.syntacticsCheckArgFormula(srcRef, arg);
    m_messages.signMsg(errUnsupportedArgument, srcRef, arg->name);
    return false;
}

} // namespace nsModAsmFe
