#pragma once

#include "Contents.h"
#include "HelpPage.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace nsHelpBuild {

/// All that the help consists of.
class HelpSources
{
public:
    /// Reads and converts everything. What is wrong with single files stands in errors() afterwards.
    /// @param folder holds pages/, instructions/, contents.txt and style.css
    /// @param changeLog becomes the page of the release notes
    void read(const QString& folder, const QString& changeLog);
    /// Gives each picture that is there its width in the page.
    void setPictureWidths(const QString& pictureDir);

    QString folder() const { return m_folder; }
    const QVector<HelpPage>& pages() const { return m_pages; }
    const QVector<ContentsEntry>& contents() const { return m_contents; }
    /// One line each.
    const QStringList& errors() const { return m_errors; }

private:
    QString m_folder;
    QVector<HelpPage> m_pages;
    QVector<ContentsEntry> m_contents;
    QStringList m_errors;
};

/// Reads and converts one file as it was written: a page, or the text about an instruction, which becomes a part of
/// several pages. Links are not looked at. @return false: error says what is wrong with the file
bool readText(const QString& path, HelpPage* page, QString* error);

} // namespace nsHelpBuild
