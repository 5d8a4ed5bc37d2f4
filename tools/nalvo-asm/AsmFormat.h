#pragma once

#include <QString>

namespace nsNalvoAsm {

/// Puts the lines of a source into columns, to standard output or back into its file.
/// @param file "-" is standard input
/// @param inPlace the file is replaced as a whole, and only if it changes
/// @return why that failed, or an empty text
QString formatFile(const QString& file, bool inPlace);

} // namespace nsNalvoAsm
