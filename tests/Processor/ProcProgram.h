#pragma once

#include "Encodings.h"

#include <QStringList>
#include <QVector>

/// An instruction with the word that is expected of it.
struct sProgramLine
{
    QString text; ///< as a person writes it, with `{address}` where a label stands
    int word = 0;
};

/// A source for one run over thousands of instructions. Each line is an instruction; line n has the address n and the
/// label `Ln`, so that any address can be a target.
class ProcProgram
{
public:
    /// Lines before and after the instructions, so that the targets of relative jumps exist.
    static const int margin = 2048;

    explicit ProcProgram(const sInstrSet& set);

    /// Address of the instruction that is added next.
    int nextAddress() const { return m_lines.size(); }
    /// @param text with labels, such as "JUMP L12"
    void add(const QString& text, int word);
    /// Adds an instruction with every value of its operands.
    void addAll(const sEncoding& encoding);

    /// The source so far; the lines after the instructions are appended.
    QStringList source() const;
    /// Settings of a project that has room for all of it.
    QHash<QString, int> settings() const;

    int firstAddress() const { return margin; }
    int count() const { return m_lines.size() - margin; }
    const sProgramLine& line(int address) const { return m_lines.at(address); }

private:
    void addOperands(const sEncoding& encoding, const QString& text, const QStringList& open, QVector<int> values);

    const sInstrSet& m_set;
    QVector<sProgramLine> m_lines;
};

/// Number of values of an operand, and the first one.
struct sOperandRange
{
    int first;
    int count;
};
sOperandRange rangeOf(const sInstrSet& set, QChar letter);
/// How the text of an instruction at an address shows an operand.
QString operandText(const sInstrSet& set, QChar letter, int value, int address);
