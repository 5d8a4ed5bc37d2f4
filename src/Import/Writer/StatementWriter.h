#pragma once

#include "ProgramLayout.h"

namespace nsImport {

/// Writes one statement of a foreign program as lines of the result, with its comment, and in the columns of the
/// original.
class StatementWriter
{
public:
    /// The word of lines that have no counterpart: no instruction is called so, and the assembler says so there.
    static const QLatin1String noCounterpart;

    /// Both not owned.
    StatementWriter(const ForeignProgram& program, const ProgramLayout& layout)
        : m_program(program)
        , m_layout(layout)
    {
    }

    /// @param replaceBroken what has no counterpart becomes a NOP, to see whether all others are right
    QStringList write(int statement, bool replaceBroken) const;
    /// An instruction where the program has none.
    QStringList writeFiller(int address, const QString& instruction) const;
    static QString addressLine(int address);

private:
    /// What a line of the result consists of.
    struct Parts
    {
        QString label;
        QString word;
        QString operands;
        int labelColumn = 0;
        int wordColumn = 8;
        int operandColumn = 16; ///< -1: a blank after the word
    };

    QStringList writeCode(const ForeignStatement& statement, bool replaceBroken) const;
    QString writeDefinition(const ForeignStatement& statement, int index) const;
    QString definitionLine(const ForeignStatement& statement, const ForeignSymbol& symbol) const;
    QString asComment(const ForeignStatement& statement) const;
    QString line(const ForeignStatement& statement, const Parts& parts, const QString& comment) const;
    QString commentOf(const ForeignStatement& statement) const;
    Parts columnsOf(const ForeignStatement& statement) const;
    QStringList labelsOf(const ForeignStatement& statement) const;
    void appendLooseLabels(int address, QStringList* lines) const;

    const ForeignProgram& m_program;
    const ProgramLayout& m_layout;
};

} // namespace nsImport
