#pragma once

#include <QString>

namespace nsModPrj {

/// Title, version and comment of a project.
class PrjConfig
{
public:
    /// Sets the defaults: title "Untitled" in the user's language, version "0.1", no comment.
    PrjConfig();

    QString cfgTitle;   ///< key "PrjInfo/title"
    QString cfgVersion; ///< key "PrjInfo/version"
    QString cfgComment; ///< key "PrjInfo/comment"
};

} // namespace nsModPrj
