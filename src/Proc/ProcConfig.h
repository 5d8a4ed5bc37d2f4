#pragma once

#include <QString>

class PrjSettings;

namespace nsModProcessor {

/// The project's choice of a processor.
class ProcConfig
{
public:
    void rdProcConfig(PrjSettings* prj);
    void wrProcConfig(PrjSettings* prj) const;

    QString processor; ///< display name; empty if none is chosen
};

} // namespace nsModProcessor
