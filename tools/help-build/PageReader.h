#pragma once

#include "HelpPage.h"

#include <QHash>

namespace nsHelpBuild {

/// A text with a head: lines `key: value` up to a line `---`, and the body after it.
struct HeadedText
{
    QHash<QString, QString> head;
    QByteArray body;
    int headLines = 0; ///< with the line `---`

    /// @return false: error says what is wrong
    bool read(const QString& path, QString* error);
};

/// Reads one page. @return false: error says what is wrong with the file
bool readPage(const QString& path, HelpPage* page, QString* error);

/// Reads all pages below a folder, in the order of their paths.
/// @param errors one line for each file that is no page, and each id that two pages have
QVector<HelpPage> readPages(const QString& folder, QStringList* errors);

} // namespace nsHelpBuild
