#pragma once

#include <QString>

/// What the program prints about itself instead of opening its window. No display is needed.
namespace ProgramInfo {

/// Does one of the arguments ask for help or for the version?
bool isAsked(int argc, const char* const* argv);
/// The help, or else the version, as lines for standard output. Needs an application object, whose first argument is
/// the name of the program.
QString text(int argc, const char* const* argv);
/// text(), on standard output.
/// @return the exit status of the program: 0, or 1 if the text could not be written, which is reported
int show(int argc, char** argv);

} // namespace ProgramInfo
