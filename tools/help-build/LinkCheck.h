#pragma once

#include "Contents.h"
#include "HelpPage.h"

namespace nsHelpBuild {

/// What is wrong between the pages: dead links and anchors, pages that the table of contents lacks or names twice,
/// messages of the program without an entry, anchors that a page has twice, pictures that are not there, links into the
/// web or to files.
/// @param pictureDir where the pictures are
/// @return one line each
QStringList checkPages(const QVector<HelpPage>& pages, const QVector<ContentsEntry>& contents,
                       const QString& pictureDir);

} // namespace nsHelpBuild
