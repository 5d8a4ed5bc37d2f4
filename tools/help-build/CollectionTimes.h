#pragma once

#include <QString>

namespace nsHelpBuild {

/// Sets the times that the help compiler has noted in a collection to one that does not depend on the build, so that
/// the same sources give the same bytes. Who opens the collection compares a noted time only to know whether a file was
/// replaced.
/// @param file a collection file (.qhc) that nobody has open
/// @param error what went wrong
/// @return the file was written
bool fixCollectionTimes(const QString& file, QString* error);

} // namespace nsHelpBuild
