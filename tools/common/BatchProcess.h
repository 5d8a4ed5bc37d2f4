#pragma once

#include <QStringList>

namespace nsBatch {

/// What every main() here does: makes the process safe to run in any surroundings and hands over the arguments.
/// @param program name of the program, at the start of its error messages; a literal
/// @param run gets the arguments with the program's name in front; returns the exit status
int runProgram(const char* program, int argc, char** argv, int (*run)(const QStringList& arguments));

/// Is SOURCE_DATE_EPOCH unset, or a moment that a time stamp can show? If not, reports it on standard error.
bool checkSourceDateEpoch();

} // namespace nsBatch
