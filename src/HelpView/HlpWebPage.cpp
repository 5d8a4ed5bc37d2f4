#include "HlpWebPage.h"

#include "HlpViewIf.h"

#include <QDesktopServices>
#include <QNetworkRequest>
#include <QWebFrame>

namespace nsModHlp {

HlpWebPage::HlpWebPage(QNetworkAccessManager* manager, HlpViewClientIf* client, QObject* parent)
    : QWebPage(parent)
    , m_client(client)
{
    setNetworkAccessManager(manager);
    settings()->setAttribute(QWebSettings::JavascriptEnabled, false);
    settings()->setAttribute(QWebSettings::PluginsEnabled, false);
    settings()->setAttribute(QWebSettings::LocalContentCanAccessFileUrls, false);
}

bool HlpWebPage::acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request, NavigationType type)
{
    const QUrl url = request.url();
    if (url.scheme() == QLatin1String("script")) {
        // The user has followed a link; nothing that is opened by its name calls a script.
        if (type == NavigationTypeLinkClicked && frame != nullptr)
            m_client->scriptLinkFollowed(url, frame->url());
        return false;
    }
    if (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https")) {
        if (type == NavigationTypeLinkClicked)
            QDesktopServices::openUrl(url);
        return false;
    }
    if (!m_client->isPageOfHelp(url))
        return false;
    if (type == NavigationTypeLinkClicked)
        m_client->linkFollowed(url);
    return true;
}

} // namespace nsModHlp
