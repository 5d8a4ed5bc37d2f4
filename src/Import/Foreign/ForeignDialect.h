#pragma once

#include "eOpcode.h"

#include <QHash>
#include <QString>

namespace nsProc {
struct ProcTable;
}

namespace nsImport {

/// What a statement of a foreign program does.
enum eForeignOp_t {
    opInstruction, ///< one instruction; its form says what its operands are
    opConstant,    ///< name, value
    opSetConstant, ///< name, value; may be repeated with another value
    opNameReg,     ///< register, new name
    opEquate,      ///< the name stands in front of the word: value or register
    opAddress,     ///< address of what follows
    opString,      ///< name, parts
    opTable,       ///< name, bytes in brackets
    opWord,        ///< the machine word itself
    opDefaultJump, ///< target of all unused words
    opInclude,     ///< another file stands here
    opEnd,         ///< the source ends here; what follows are comments
    opIgnored,     ///< nothing of the program: becomes a comment
    opOutput,      ///< a file that the old tool writes: becomes a comment, and an output of the project
    opSection,     ///< says by its operand whether code or data follow
    opCode,        ///< code follows
    opData,        ///< data follow
    opNoCounter,   ///< makes data or something else that the result can not have
};

/// What the operands of an instruction are.
enum eForeignForm_t {
    frmNone,          ///< no operand; `arg` is the operand of the result, if it has one
    frmRegAny,        ///< register, and register or value
    frmRegReg,        ///< two registers
    frmRegValue,      ///< register, value
    frmRegConst,      ///< one register; the value is `arg`
    frmReg,           ///< one register
    frmRotate,        ///< one register, or two
    frmPort,          ///< register, and value, register or register in parentheses
    frmPortDirect,    ///< register, value
    frmPortIndirect,  ///< register, register with or without parentheses
    frmPortConstant,  ///< value, port; a string or table makes several instructions
    frmLoadReturn,    ///< register, value; a string or table makes several instructions
    frmFlow,          ///< target, or condition and target
    frmFlowCondition, ///< target; the condition is `arg`
    frmFlowComputed,  ///< two registers in parentheses
    frmReturn,        ///< nothing, or a condition
    frmSwitch,        ///< ENABLE or DISABLE
    frmInterrupt,     ///< the word INTERRUPT; `arg` is the operand of the result
    frmBank,          ///< A or B
};

/// One word of a dialect.
struct sForeignWord_t
{
    const char* word; ///< in upper case
    eForeignOp_t op;
    nsModAsmFe::eOpcode_t opcode = nsModAsmFe::ocUndefined;
    eForeignForm_t form = frmNone; ///< of an equate: frmReg, its value is a register; frmRegValue, it is none
    const char* arg = "";
};

/// How numbers are written.
enum eForeignNumbers_t {
    numHexPlain, ///< `1F` is hexadecimal, `20'd` decimal, `0101'b` binary; also `$1F` and `%0101`
    numDollar,   ///< `12` decimal, `$1F`, `%0101`
    numC,        ///< `12`, `0x1F`, `017`, `0b101`, `'A'`
};

/// A name that a dialect knows without a definition.
struct sForeignConstant_t
{
    const char* name;
    int value;
};

/// A foreign dialect as data: all that the reader of foreign programs must know of it.
struct ForeignDialect
{
    enum eDialect_t { eKcpsm3, eKcpsm6, ePblazide, eMico8, eDialectCount };

    eDialect_t dialect;
    const char* key;   ///< on the command line
    const char* title; ///< for the user
    const nsProc::ProcTable& (*processor)();

    const sForeignWord_t* words;
    int wordCount;
    const ForeignDialect* base = nullptr; ///< whose words it has as well; may be null

    eForeignNumbers_t numbers;
    bool namesDifferByCase; ///< else another spelling of a name is the same name
    bool expressions;       ///< values can be calculated
    bool anyOrder;          ///< its assemblers do not agree on which operators bind stronger
    bool hashComments;      ///< `#` at the start of a line
    bool cComments;         ///< block comments and `//`
    bool localLabels;       ///< `1:` with `1b` and `1f`
    bool hashImmediates;    ///< `#0` is 0
    int maxAddress;         ///< highest address that an instruction can name

    const sForeignConstant_t* constants = nullptr;
    int constantCount = 0;
    bool stamps = false; ///< knows the moment of the run

    /// The word in upper case; null if the dialect does not have it.
    const sForeignWord_t* find(const QString& upper) const;
    /// Number of a register with its original name, -1 if it is none.
    int registerOf(const QString& name) const;

    static const ForeignDialect& of(eDialect_t dialect);
    /// The dialect with this key; null if there is none.
    static const ForeignDialect* ofKey(const QString& key);
};

/// No dialect: the words alone that KCPSM3 and pBlazIDE have in common, as the base of both.
const ForeignDialect& picoBlazeWords();

// The dialects, a file each.
const ForeignDialect& kcpsm3Dialect();
const ForeignDialect& kcpsm6Dialect();
const ForeignDialect& pblazideDialect();
const ForeignDialect& mico8Dialect();

} // namespace nsImport
