#pragma once

#include "HelpPage.h"

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QStringList>

namespace nsHelpBuild {

/// How many points of a picture stand side by side in one pixel of a page at 100 %, so that it is sharp at 200 %, too.
const int pictureScale = 2;

/// Pixels that a PNG file takes on a page at 100 %; 0 if it is none.
int shownWidth(const QString& pngFile);
/// The page with the width of each picture, which a browser would else take for that of its points.
/// @param pictureDir where the pictures are; what is not there gets no width
QByteArray withPictureWidths(const QByteArray& html, const QString& pictureDir);
/// Copies the pictures that pages show. @return their names in the output folder
QStringList copyPictures(const QString& pictureDir, const QVector<HelpPage>& pages, const QDir& out);

} // namespace nsHelpBuild
