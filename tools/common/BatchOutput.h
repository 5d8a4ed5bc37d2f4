#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>

namespace nsBatch {

/// The name in front of what the program says of itself; before anything is printed.
void setProgramName(const QByteArray& name);
/// Prints in one piece, so that the lines of several runs on one terminal do not mix.
void print(std::FILE* stream, const QByteArray& text);
/// The same with a line end behind.
void printLine(std::FILE* stream, const QByteArray& line);
/// Prints a message of the program itself on standard error, with its name in front.
void printComplaint(const QString& text);
/// Prints what is wrong with the command line, and where to find help.
/// @return false
bool wrongUsage(const QString& text);
/// Hands over what waits for standard output.
/// @return why anything that was printed there so far was lost, empty if nothing was
QString stdoutFailure();

/// The text as one line for a terminal: line ends become blanks, other control characters show as \xNN.
QString oneLine(const QString& text);
/// Texts of sources are bytes, one a character. Where such bytes are UTF-8, these are the characters that the author
/// wrote.
QString readable(const QString& text);

/// The path as a user sees it: relative to the working folder.
QString shownPath(const QString& path);

} // namespace nsBatch
