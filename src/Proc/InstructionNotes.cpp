#include "InstructionNotes.h"

#include "ProcTable.h"

#include <QCoreApplication>
#include <QStringList>

namespace nsProc {

using namespace nsModAsmFe;

namespace {

#define NALVO_NOTE(text) QT_TRANSLATE_NOOP("nsProc::InstructionNotes", text)

/// How an instruction sets a flag.
enum eFlagRule_t {
    flagKept,
    flagResult,     ///< 1 if the result is 0
    flagChained,    ///< that of a processor that chains, else flagResult
    flagEqual,      ///< 1 if equal
    flagSum,        ///< 1 if the sum is above 255
    flagBorrow,     ///< 1 with a borrow
    flagLess,       ///< 1 if the register is less
    flagLogic,      ///< 0 where logic clears it
    flagParity,     ///< parity of the result where logic clears it
    flagXorParity,  ///< carry XOR parity
    flagLeft,       ///< bit 7 of before
    flagRight,      ///< bit 0 of before
    flagZero,       ///< 0
    flagOne,        ///< 1
    flagRestored,   ///< as at the interrupt
    flagByArgument, ///< the one that is named
};

struct sNote
{
    eOpcode_t opcode;
    const char* effect;
    eFlagRule_t zero;
    eFlagRule_t carry;
};

const sNote notes[] = {
    {ocAdd, NALVO_NOTE("adds"), flagResult, flagSum},
    {ocAddc, NALVO_NOTE("adds with carry"), flagChained, flagSum},
    {ocAnd, NALVO_NOTE("and, bit by bit"), flagResult, flagLogic},
    {ocCall, NALVO_NOTE("calls a subroutine"), flagKept, flagKept},
    {ocClr, NALVO_NOTE("clears a flag"), flagByArgument, flagByArgument},
    {ocComp, NALVO_NOTE("compares"), flagEqual, flagLess},
    {ocCompc, NALVO_NOTE("compares with carry"), flagChained, flagLess},
    {ocInt, NALVO_NOTE("allows or refuses interrupts"), flagKept, flagKept},
    {ocHwbuild, NALVO_NOTE("reads the constant of the hardware"), flagResult, flagOne},
    {ocJump, NALVO_NOTE("jumps"), flagKept, flagKept},
    {ocLoad, NALVO_NOTE("loads a register"), flagKept, flagKept},
    {ocLoadret, NALVO_NOTE("loads a register and returns"), flagKept, flagKept},
    {ocNop, NALVO_NOTE("does nothing"), flagKept, flagKept},
    {ocOr, NALVO_NOTE("or, bit by bit"), flagResult, flagLogic},
    {ocRdmem, NALVO_NOTE("reads the scratchpad"), flagKept, flagKept},
    {ocRdprt, NALVO_NOTE("reads a port"), flagKept, flagKept},
    {ocRegbank, NALVO_NOTE("selects a register bank"), flagKept, flagKept},
    {ocRet, NALVO_NOTE("returns from a subroutine"), flagKept, flagKept},
    {ocReti, NALVO_NOTE("returns from an interrupt"), flagRestored, flagRestored},
    {ocRol, NALVO_NOTE("rotates to the left"), flagResult, flagLeft},
    {ocRolc, NALVO_NOTE("rotates to the left through carry"), flagResult, flagLeft},
    {ocRor, NALVO_NOTE("rotates to the right"), flagResult, flagRight},
    {ocRorc, NALVO_NOTE("rotates to the right through carry"), flagResult, flagRight},
    {ocSet, NALVO_NOTE("sets a flag"), flagByArgument, flagByArgument},
    {ocSl0, NALVO_NOTE("shifts to the left, 0 comes in"), flagResult, flagLeft},
    {ocSl1, NALVO_NOTE("shifts to the left, 1 comes in"), flagZero, flagLeft},
    {ocSlx, NALVO_NOTE("shifts to the left, bit 0 stays"), flagResult, flagLeft},
    {ocSr0, NALVO_NOTE("shifts to the right, 0 comes in"), flagResult, flagRight},
    {ocSr1, NALVO_NOTE("shifts to the right, 1 comes in"), flagZero, flagRight},
    {ocSrx, NALVO_NOTE("shifts to the right, bit 7 stays"), flagResult, flagRight},
    {ocStar, NALVO_NOTE("writes a register of the other bank"), flagKept, flagKept},
    {ocWrmem, NALVO_NOTE("writes the scratchpad"), flagKept, flagKept},
    {ocWrprt, NALVO_NOTE("writes a port"), flagKept, flagKept},
    {ocSub, NALVO_NOTE("subtracts"), flagResult, flagBorrow},
    {ocSubc, NALVO_NOTE("subtracts with carry"), flagChained, flagBorrow},
    {ocTest, NALVO_NOTE("and, without a result"), flagResult, flagParity},
    {ocTestc, NALVO_NOTE("and with the flags of before, without a result"), flagChained, flagXorParity},
    {ocXor, NALVO_NOTE("exclusive or, bit by bit"), flagResult, flagLogic},
};

QString tr(const char* text)
{
    return QCoreApplication::translate("nsProc::InstructionNotes", text);
}

const sNote* noteOf(eOpcode_t opcode)
{
    for (const sNote& note : notes) {
        if (note.opcode == opcode)
            return &note;
    }
    return nullptr;
}

QString flagText(eFlagRule_t rule, const ProcTable* table)
{
    const bool clears = table == nullptr || table->sim.logicClearsCarry;
    const bool chains = table != nullptr && table->sim.chainsZero;
    switch (rule) {
    case flagKept:
    case flagByArgument:
        return QString();
    case flagResult:
        return tr(NALVO_NOTE("1 if the result is 0"));
    case flagChained:
        return chains ? tr(NALVO_NOTE("1 if it was 1 and the result is 0")) : tr(NALVO_NOTE("1 if the result is 0"));
    case flagEqual:
        return tr(NALVO_NOTE("1 if equal"));
    case flagSum:
        return tr(NALVO_NOTE("1 if the sum is above 255"));
    case flagBorrow:
        return tr(NALVO_NOTE("1 with a borrow"));
    case flagLess:
        return tr(NALVO_NOTE("1 if the register is less"));
    case flagLogic:
        return clears ? QStringLiteral("0") : QString();
    case flagParity:
        return clears ? tr(NALVO_NOTE("parity of the result")) : QString();
    case flagXorParity:
        return tr(NALVO_NOTE("carry XOR parity of the result"));
    case flagLeft:
        return tr(NALVO_NOTE("bit 7 of before"));
    case flagRight:
        return tr(NALVO_NOTE("bit 0 of before"));
    case flagZero:
        return QStringLiteral("0");
    case flagOne:
        return QStringLiteral("1");
    case flagRestored:
        return tr(NALVO_NOTE("as at the interrupt"));
    }
    return QString();
}

const char* formText(const sInstr_t& row)
{
    switch (row.form) {
    case formTwoOperand:
        return NALVO_NOTE("register, number or register");
    case formPort:
        return row.words[wordConstant] != 0 ? NALVO_NOTE("register or number, port or (register)")
                                            : NALVO_NOTE("register, port or (register)");
    case formScrpd:
        return NALVO_NOTE("register, address or (register)");
    case formFlow:
        return row.words[wordComputed] != 0 ? NALVO_NOTE("label; or flag, label; or (register, register)")
                                            : NALVO_NOTE("label; or flag, label");
    case formReturn:
        return NALVO_NOTE("nothing or a flag");
    case formSwitch:
        return NALVO_NOTE("ENABLE or DISABLE");
    case formReg:
        return NALVO_NOTE("register");
    case formRegNumber:
        return NALVO_NOTE("register, number");
    case formRotate:
        return NALVO_NOTE("register; or register, register");
    case formFlag:
        return NALVO_NOTE("C or Z");
    case formBank:
        return NALVO_NOTE("register bank");
    case formUnsupported:
    case formSimulated:
    case formNone:
        break;
    }
    return "";
}

} // namespace

QString instructionForm(const ProcTable* table, eOpcode_t opcode)
{
    const sInstr_t* row = table != nullptr ? table->assembled(opcode) : nullptr;
    const char* text = row != nullptr ? formText(*row) : "";
    return *text != '\0' ? tr(text) : QString();
}

QString instructionEffect(eOpcode_t opcode)
{
    const sNote* note = noteOf(opcode);
    return note != nullptr ? tr(note->effect) : QString();
}

QString instructionFlags(const ProcTable* table, eOpcode_t opcode)
{
    const sNote* note = noteOf(opcode);
    if (note == nullptr)
        return QString();
    if (note->zero == flagByArgument)
        return tr(NALVO_NOTE("the flag that is named"));
    QStringList texts;
    const QString zero = flagText(note->zero, table);
    const QString carry = flagText(note->carry, table);
    if (!zero.isEmpty())
        texts.append(QStringLiteral("Z: ") + zero);
    if (!carry.isEmpty())
        texts.append(QStringLiteral("C: ") + carry);
    return texts.isEmpty() ? tr(NALVO_NOTE("flags unchanged")) : texts.join(QLatin1String(", "));
}

QString instructionNote(const ProcTable* table, eOpcode_t opcode)
{
    const QString form = instructionForm(table, opcode);
    const QString rest = instructionEffect(opcode) + QLatin1String("; ") + instructionFlags(table, opcode);
    return form.isEmpty() ? rest : form + QLatin1String(": ") + rest;
}

} // namespace nsProc
