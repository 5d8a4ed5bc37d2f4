#pragma once

#include "ImportRun.h"
#include "RandomForeign.h"

/// A foreign program with what it is made for.
struct ImportCase
{
    foreign::Dialect dialect = foreign::Dialect::Kcpsm3;
    foreign::RandomProgram program;
};

/// Imports the program and compares the words of the result with those of the original.
/// @return an empty text if all is well, else what is wrong
QString importProblem(const ImportCase& test);
