#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A form of a foreign dialect, and what becomes of it.
struct DialectCase
{
    const char* filter;    ///< its name
    const char* source;    ///< foreign lines
    const char* converted; ///< the lines that the filter makes of them
    QList<unsigned> words; ///< the words of the old tool, by hand from the word table of the processor
    const char* refusal;   ///< without words: "stop", where a line is not converted; else a message of the assembler
};

QList<DialectCase> picoBlaze3Cases();
QList<DialectCase> picoBlaze6Cases();
QList<DialectCase> pBlazIdeCases();
QList<DialectCase> mico8Cases();
