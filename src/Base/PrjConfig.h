#pragma once

#include <QString>

class CfgStore;

namespace nsModPrj {

/// Title, version and comment of a project.
class PrjConfig
{
public:
    /// Sets the defaults: title "Untitled" in the user's language, version "0.1", no comment.
    PrjConfig();

    /// Takes all three out of the tree; a missing one becomes a null string.
    void rdPrjConfig(CfgStore* tree);
    void wrPrjConfig(CfgStore* tree) const;

    QString cfgTitle;
    QString cfgVersion;
    QString cfgComment;
};

} // namespace nsModPrj
