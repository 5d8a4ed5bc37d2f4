#include "HlpViewLibrary.h"

#include "ShippedFolder.h"

#include <QLibrary>

namespace nsModHlp {

namespace {

const QString fileName = QStringLiteral("/nalvo-help-view.so");
QString chosenFile; ///< empty: the one that ships beside the program
QString lastError;

} // namespace

QString HlpViewLibrary::file()
{
    return chosenFile.isEmpty() ? ShippedFolder::programDir() + fileName : chosenFile;
}

void HlpViewLibrary::setFile(const QString& file)
{
    chosenFile = file;
}

QString HlpViewLibrary::error()
{
    return lastError;
}

HlpViewIf* HlpViewLibrary::makeView(QNetworkAccessManager* manager, HlpViewClientIf* client, QWidget* parent)
{
    // Loaded once, and not unloaded: the engine does not survive that.
    QLibrary library(file());
    const auto maker = reinterpret_cast<HlpViewMaker>(library.resolve(hlpViewMakerName));
    lastError = maker == nullptr ? library.errorString() : QString();
    return maker != nullptr ? maker(manager, client, parent) : nullptr;
}

} // namespace nsModHlp
