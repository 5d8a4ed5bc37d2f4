#pragma once

#include <QByteArray>
#include <QString>

namespace Utf8 {

/// Decodes bytes as UTF-8. A byte order mark is an ordinary character, also at the start.
/// @param text what came of it, also where the bytes are something else
/// @return false when the bytes are no UTF-8
bool decode(const QByteArray& bytes, QString* text);

} // namespace Utf8
