#pragma once

#include "RandomForeign.h"

namespace foreign {

/// Writes a program in another way that means the same: labels that nothing uses in front of lines and between them,
/// comments and blanks in odd places, other line ends, no end of the last line.
RandomProgram disguised(const RandomProgram& program, Dialect dialect, unsigned seed);

} // namespace foreign
