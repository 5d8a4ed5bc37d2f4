#pragma once

#include "HelpSources.h"
#include "OutputFolder.h"

namespace nsHelpBuild {

/// Writes the pages and what the help compiler needs to make the program's collection of them, and beside it the
/// entries of the messages as a text.
class CollectionWriter
{
public:
    /// @param out existing folder
    explicit CollectionWriter(const QDir& out)
        : m_out(out)
    {
    }

    /// @param pictures names of the files that already are in the folder
    /// @return false: errorText() says why
    bool write(const HelpSources& help, const QStringList& pictures);
    QString errorText() const { return m_out.errorText(); }

    /// A whole HTML file of a page's body.
    static QByteArray htmlOf(const HelpPage& page);

private:
    static QByteArray project(const HelpSources& help, const QStringList& otherFiles);

    OutputFolder m_out;
};

} // namespace nsHelpBuild
