#pragma once

#include "ForeignDialect.h"

#include <QMap>
#include <QString>
#include <QVector>

namespace nsImport {

/// A part of a line.
struct ForeignPiece
{
    int pos = 0;
    int length = 0;
};

/// One line of a foreign program, cut into its parts.
struct ForeignStatement
{
    int file = 0;        ///< index in ForeignProgram::files
    int line = 0;        ///< counted from 1
    QString text;        ///< the whole line
    QString code;        ///< the line with blanks in place of its comments, without what follows the last word
    QString comment;     ///< without the characters that mark it
    int commentPos = -1; ///< column of the comment in the line; -1: there is none

    QVector<ForeignPiece> labels; ///< without their colons
    ForeignPiece name;            ///< what an equate defines
    ForeignPiece word;
    QVector<ForeignPiece> operands;

    const sForeignWord_t* meaning = nullptr; ///< of the word; null: there is none, or an unknown one
    int address = 0;                         ///< where the statement stands
    int size = 0;                            ///< words that it makes
    int firstInstruction = -1;               ///< index in ForeignProgram::instructions
    int firstLabel = -1;                     ///< symbol of the first label; those of the others follow
    int symbol = -1;                         ///< what the statement defines
    bool isData = false;                     ///< stands in a section of data
    bool isBroken = false;                   ///< reported; becomes a line that the assembler refuses
    QString remark;                          ///< what the comment of the result says in addition

    QString part(const ForeignPiece& piece) const { return code.mid(piece.pos, piece.length); }
    QString operand(int i) const { return i < operands.size() ? part(operands.at(i)) : QString(); }
    bool hasWord() const { return word.length > 0; }
    bool isEmpty() const { return labels.isEmpty() && word.length == 0; }
    eForeignOp_t op() const { return meaning != nullptr ? meaning->op : opIgnored; }
};

/// An instruction of the result, with the word that it must become.
struct ImportInstruction
{
    QString text; ///< word and operands, separated by a blank
    quint32 word = 0;
    bool isBroken = false;
};

/// A file of a foreign program. One that is included twice is two of them.
struct ForeignFile
{
    QString path;       ///< absolute
    QString name;       ///< as the program names it
    bool isUtf8 = true; ///< else each byte is a character
};

/// A name of the result for a name of the program.
struct ForeignSymbol
{
    enum eKind_t { eLabel, eValue, eRegister, eString, eTable };

    eKind_t kind = eLabel;
    QString name;       ///< in the program
    QString ours;       ///< in the result
    int statement = -1; ///< where it is defined; -1: the dialect knows it

    enum eState_t { eOpen, eBusy, eDone, eFailed };
    eState_t state = eOpen;   ///< of the value
    int value = 0;            ///< of a value; address of a label; number of a register
    QString text;             ///< of a value, in the result
    bool isCharacter = false; ///< the text is a string of one character
    bool isUsed = false;
    bool isStamp = false; ///< a moment that the old tool has put in
};

/// A foreign program as it was read, in the order in which the old tool sees its lines.
struct ForeignProgram
{
    const ForeignDialect* dialect = nullptr;
    QVector<ForeignFile> files; ///< the main source is the first one
    QVector<ForeignStatement> statements;
    QVector<ImportInstruction> instructions;
    QVector<ForeignSymbol> symbols;
    QMap<int, QString> targets; ///< labels of the result at addresses that have none in the program
    int defaultJump = -1;       ///< statement that says where unused words jump to; -1: there is none
    QString defaultTarget;      ///< its label in the result
    int highestTarget = 0;      ///< of all jumps and calls
    int scratchpadSize = 0;     ///< bytes that the program reaches by number

    const ForeignStatement& statementOf(const ForeignSymbol& symbol) const { return statements.at(symbol.statement); }
};

} // namespace nsImport
