#pragma once

#include <QString>

namespace nsBatch {

/// How many characters have to be inserted, deleted or replaced to make one text of the other. The time grows with the
/// product of their lengths.
int editDistance(const QString& a, const QString& b);

} // namespace nsBatch
