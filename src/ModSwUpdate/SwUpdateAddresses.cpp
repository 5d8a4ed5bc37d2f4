#include "SwUpdateAddresses.h"

namespace nsModSwUpdate {

namespace {

QUrl webUrl(const QString& address)
{
    const QUrl url(address.trimmed(), QUrl::StrictMode);
    return url.isValid() && !url.host().isEmpty() && SwUpdateAddresses::isWebScheme(url) ? url : QUrl();
}

} // namespace

SwUpdateAddresses::SwUpdateAddresses(const QString& serverAddress, const QString& pageAddress)
    : downloadPage(webUrl(pageAddress))
{
    const bool hasScheme = serverAddress.contains(QLatin1String("://"));
    const QUrl url = webUrl(hasScheme ? serverAddress : QStringLiteral("http://") + serverAddress.trimmed());
    if (url.isEmpty())
        return;
    server.setScheme(url.scheme());
    server.setHost(url.host());
    server.setPort(url.port());
}

SwUpdateAddresses SwUpdateAddresses::own()
{
    return SwUpdateAddresses(QStringLiteral(NALVO_UPDATE_SERVER), QStringLiteral(NALVO_DOWNLOAD_PAGE));
}

bool SwUpdateAddresses::isWebScheme(const QUrl& url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

} // namespace nsModSwUpdate
