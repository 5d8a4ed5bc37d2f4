#pragma once

#include "HelpSources.h"
#include "OutputFolder.h"

#include <QHash>

namespace nsHelpBuild {

/// Writes the help as a web site: static pages with the contents at their side, and an index that a script searches.
/// All of it can be read without that script.
class SiteWriter
{
public:
    /// @param out existing folder
    explicit SiteWriter(const QDir& out)
        : m_out(out)
    {
    }

    /// @param pictures names of the files that already are in the folder
    /// @return false: errorText() says why
    bool write(const HelpSources& help, const QStringList& pictures);
    QString errorText() const { return m_out.errorText(); }

    /// The style sheet of a site: what the program switches with a class depends on the reader's settings here.
    static QByteArray siteStyle(const QByteArray& style);

    /// What the script searches: an array of places, `u` the address, `t` the title, `p` that of the page for a place
    /// in it, `k` further words, `x` the text.
    static QByteArray searchIndex(const QVector<HelpPage>& pages);

private:
    bool writePages(const HelpSources& help);
    bool writeStyle(const HelpSources& help);
    QByteArray frame(const QByteArray& title, const QString& file, const QByteArray& main) const;
    QByteArray navigation(const QVector<ContentsEntry>& contents, const QString& file) const;
    QByteArray neighbours(const QString& file) const;
    static QByteArray wordList(const QVector<HelpPage>& pages);

    OutputFolder m_out;
    QVector<ContentsEntry> m_contents;
    QHash<QString, const HelpPage*> m_pages; ///< by id in lower case
    QVector<const HelpPage*> m_order;        ///< as in the contents
};

} // namespace nsHelpBuild
