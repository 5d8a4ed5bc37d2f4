#pragma once

#include <QCoreApplication>
#include <QStringList>

class ModMsgHookIf;
class PrjSettings;

namespace nsModSources {

/// The sources of a project.
class SourcesConfig
{
    Q_DECLARE_TR_FUNCTIONS(nsModSources::SourcesConfig)

public:
    /// Takes the list of the project's settings in place of this one, and reports files that do not exist, which are
    /// left out, or whose rights are restricted.
    /// @param prj null empties the list
    /// @param msg may be null
    void rdSourcesConfig(PrjSettings* prj, ModMsgHookIf* msg);
    /// Puts the list into the project's settings, and reports the files that rdSourcesConfig() has left out and that
    /// the settings so lose.
    /// @param msg may be null
    void wrSourcesConfig(PrjSettings* prj, ModMsgHookIf* msg);
    void clearSourcesConfig();

    QStringList srcFiles; ///< absolute paths, in project order

private:
    QStringList m_vanishedFiles; ///< entries without a file
};

} // namespace nsModSources
