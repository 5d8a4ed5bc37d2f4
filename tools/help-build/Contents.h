#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace nsHelpBuild {

/// A line of the table of contents, with what is below it.
struct ContentsEntry
{
    QString title;  ///< of a section; empty for a page, which has its own
    QString pageId; ///< empty for a section
    QVector<ContentsEntry> entries;
};

/// Reads a table of contents: one entry a line, two blanks of indentation a level; a page's id, or "= title" for a
/// section. Empty lines and lines that begin with "#" do not count.
/// @param errors what is wrong, one line each
QVector<ContentsEntry> readContents(const QString& path, QStringList* errors);

} // namespace nsHelpBuild
