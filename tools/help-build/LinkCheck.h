#pragma once

#include "Contents.h"
#include "HelpPage.h"

namespace nsHelpBuild {

/// What is wrong between the pages: dead links and anchors, pages that the table of contents lacks or names twice,
/// messages of the program without an entry, anchors that a page has twice, what a page must not hold, links to files.
/// @return one line each
QStringList checkPages(const QVector<HelpPage>& pages, const QVector<ContentsEntry>& contents);

/// The pictures that pages show and that are not there.
/// @param pictureDir where the pictures are
/// @return one line each
QStringList checkPictures(const QVector<HelpPage>& pages, const QString& pictureDir);

} // namespace nsHelpBuild
