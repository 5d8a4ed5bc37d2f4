#pragma once

#include "Contents.h"
#include "HelpPage.h"

#include <QDir>

namespace nsHelpBuild {

/// Writes the pages and what the help compiler needs to make the program's collection of them.
class CollectionWriter
{
public:
    /// @param out existing folder
    explicit CollectionWriter(const QDir& out)
        : m_out(out)
    {
    }

    /// @return false: errorText() says why
    bool write(const QVector<HelpPage>& pages, const QVector<ContentsEntry>& contents, const QStringList& otherFiles);
    QString errorText() const { return m_error; }

    /// A whole HTML file of a page's body.
    static QByteArray htmlOf(const HelpPage& page);

private:
    bool writeFile(const QString& name, const QByteArray& bytes);
    QByteArray project(const QVector<HelpPage>& pages, const QVector<ContentsEntry>& contents,
                       const QStringList& otherFiles) const;

    QDir m_out;
    QString m_error;
};

} // namespace nsHelpBuild
