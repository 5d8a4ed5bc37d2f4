#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>

namespace nsBatch {

/// Sets the name at the start of the program's own messages; to be called before anything is printed.
void setProgramName(const QByteArray& name);
/// Prints in one piece, so that the lines of several runs on one terminal do not mix.
void print(std::FILE* stream, const QByteArray& text);
/// The same, followed by a line end.
void printLine(std::FILE* stream, const QByteArray& line);
/// Prints a message of the program itself on standard error, with its name in front.
void printError(const QString& text);
/// Prints what is wrong with the command line, and where to find help.
/// @return false
bool wrongUsage(const QString& text);
/// Flushes standard output.
/// @return why output was lost so far; empty if none was
QString stdoutFailure();

/// The text as one line for a terminal: line ends become blanks, other control characters show as \xNN.
QString oneLine(const QString& text);
/// Texts of sources are bytes, one a character. Where such bytes are UTF-8, these are the characters that the author
/// wrote.
QString readable(const QString& text);

/// The path as a user sees it: relative to the working folder.
QString shownPath(const QString& path);

} // namespace nsBatch
