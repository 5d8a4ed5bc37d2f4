#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

// A painted line is a text of the same length: for each character the letter of its kind.
//
//     I instruction   D directive   H hardware   X hexadecimal   N decimal   O octal   B binary   L label   C comment
//     S separator   V navigator   A attribute   T string   K key word   . nothing

/// The letter of a kind, by the id of its style; '.' for none.
QChar letterOf(const QString& styleId);

/// A line and how every editor is to paint it.
struct sSample_t
{
    const char* line;
    const char* painted;
};

/// What is odd about the language, and all that our own editor paints differently.
const QVector<sSample_t>& samples();
QStringList sampleLines();

/// All different lines of the examples and of the assembler's cases.
const QStringList& sourceLines();

/// How our own editor paints the lines, with the registers and banks of all processors.
/// @param withCharsets the names of the character sets are painted, too
QStringList paintedByWindow(const QStringList& lines, bool withCharsets);

/// Compares with the samples; a difference fails the test.
void expectSamples(const QStringList& painted, const QString& who);
/// Compares the source lines with our own editor. What the editor paints against the language does not count.
void expectAsWindow(const QStringList& painted, const QString& who);
