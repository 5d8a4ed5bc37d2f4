#pragma once

#include "ForeignAssembler.h"

/// Random programs in foreign dialects. They have no meaning, but each is valid and the original's rules leave no doubt
/// about its words.
namespace foreign {

struct SourceFile
{
    QString name; ///< path from the program's folder
    QByteArray text;
};

struct RandomProgram
{
    QVector<SourceFile> files; ///< the first one is the main source
    int memorySize = 1024;     ///< words that the program is made for
};

/// The same seed gives the same program: 50 to 400 lines, which use the forms of the dialect at random.
RandomProgram randomProgram(Dialect dialect, unsigned seed);

/// Writes the files into the folder.
/// @return the path of the main source; empty if a file can not be written
QString writeProgram(const RandomProgram& program, const QString& folder);

} // namespace foreign
