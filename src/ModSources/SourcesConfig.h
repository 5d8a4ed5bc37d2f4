#pragma once

#include <QStringList>

namespace nsModSources {

/// The settings of the sources.
class SourcesConfig
{
public:
    QStringList srcFiles; ///< absolute paths, in project order
};

} // namespace nsModSources
