#pragma once

#include <QString>

namespace nsModProcessor {

/// The project's choice of a processor.
class ProcConfig
{
public:
    QString processor; ///< display name; empty if none is chosen
};

} // namespace nsModProcessor
