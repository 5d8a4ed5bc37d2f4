#pragma once

#include "HlpViewIf.h"

#include <QString>

namespace nsModHlp {

/// The library that draws the pages. The engine in it takes longer to load than all else of the program, so it is
/// loaded for the first page that is seen, and stays.
class HlpViewLibrary
{
public:
    /// Makes a view as HlpViewMaker says. @return null: the library can not be loaded, see error()
    static HlpViewIf* makeView(QNetworkAccessManager* manager, HlpViewClientIf* client, QWidget* parent);
    /// Why there was no view, for the user.
    static QString error();
    /// Another file in place of the one that lies beside the program; empty: that one.
    static void setFile(const QString& file);

private:
    static QString file();
};

} // namespace nsModHlp
