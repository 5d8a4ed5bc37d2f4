#pragma once

#include "ForeignAssembler.h"

/// What all dialects share: files, lines, operands, and the words by address.
namespace foreign {

/// The lines of one file. Bytes are taken as characters, one each; an 0x1A at the end is none of them.
/// @param found false if the file can not be read
QVector<Line> readLines(const QString& file, bool* found);

/// The text up to the first semicolon that stands in no double quotes.
QString withoutSemicolonComment(const QString& text);

/// Splits at the commas that stand in no double quotes, single quotes (only if asked for), parentheses or brackets, and
/// trims the parts. An empty text has no parts.
QStringList splitOperands(const QString& text, bool singleQuotes = false);

/// A line without its comment, in parts.
struct Statement
{
    Line line;
    QString label;        ///< without colon; empty if there is none
    QString word;         ///< in capitals
    QStringList operands; ///< as written
    int address = 0;      ///< where its words begin
    int size = 0;         ///< number of words
};

/// Base of the assemblers: words by address, and errors with their place.
class AssemblerBase
{
protected:
    AssemblerBase(const Options& options, QStringList* errors)
        : m_options(options)
        , m_errors(errors)
    {
    }

    void fail(const Line& line, const QString& text);

    /// Enters the words of the statement at its address; two words for one address are an error.
    void place(const Statement& statement, const QVector<quint32>& words);

    /// Checks the operands' number.
    bool hasOperands(const Statement& statement, int count);

    Options m_options;
    QStringList* m_errors;
    Image m_image;
    int m_lastAddress = 0x3FF; ///< the highest that the processor has
};

/// The digits as a number of this base; -1 if there are none, too many or others.
qint64 digitsToNumber(const QString& digits, int base);

} // namespace foreign
