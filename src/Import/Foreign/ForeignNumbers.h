#pragma once

#include "ForeignDialect.h"

#include <QString>

namespace nsImport {

/// A number of a foreign program.
struct ForeignNumber
{
    bool ok = false;
    bool isCharacter = false; ///< the text is a string of one character
    int value = 0;
    QString text; ///< in the result
};

/// The number that a text is in a dialect.
/// @param isUtf8 how the characters of the file become bytes
ForeignNumber foreignNumber(const QString& text, eForeignNumbers_t numbers, bool isUtf8);
/// A byte in the result: a character where it can be shown as one.
ForeignNumber characterNumber(QChar character, bool isUtf8);
/// A number in the result, hexadecimal with two digits at least.
QString hexNumber(int value);
/// The bytes of a text in its file.
QByteArray foreignBytes(const QString& text, bool isUtf8);

} // namespace nsImport
