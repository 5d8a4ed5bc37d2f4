#include "HlpWebView.h"

#include "HlpNetworkAccessManager.h"

#include <QDesktopServices>
#include <QEvent>
#include <QNetworkRequest>
#include <QWebElement>
#include <QWebFrame>

namespace nsModHlp {

HlpWebPage::HlpWebPage(HlpNetworkAccessManager* manager, QObject* parent)
    : QWebPage(parent)
    , m_manager(manager)
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
        if (type == NavigationTypeLinkClicked)
            m_manager->runScriptLink(url, frame);
        return false;
    }
    if (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https")) {
        if (type == NavigationTypeLinkClicked)
            QDesktopServices::openUrl(url);
        return false;
    }
    if (url.scheme() != QLatin1String("pageid") && !m_manager->isOfCollection(url))
        return false;
    if (type == NavigationTypeLinkClicked)
        emit linkFollowed(url);
    return true;
}

HlpWebView::HlpWebView(QWidget* parent)
    : QWebView(parent)
{
    setAccessibleName(tr("Text of the help page"));
}

HlpWebView::~HlpWebView()
{
    // What is loading ends with the base class, and reports it.
    page()->mainFrame()->disconnect(this);
    disconnect(this, nullptr, this, nullptr);
}

void HlpWebView::usePage(HlpWebPage* page)
{
    setPage(page);
    connect(page->mainFrame(), &QWebFrame::initialLayoutCompleted, this, &HlpWebView::followPalette);
    connect(this, &QWebView::loadFinished, this, &HlpWebView::followPalette);
}

void HlpWebView::changeEvent(QEvent* event)
{
    QWebView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        followPalette();
}

void HlpWebView::followPalette()
{
    const int middle = 128;
    QWebElement root = page()->mainFrame()->documentElement();
    if (palette().color(QPalette::Base).lightness() < middle)
        root.addClass(QStringLiteral("dark"));
    else
        root.removeClass(QStringLiteral("dark"));
}

QWebView* HlpWebView::createWindow(QWebPage::WebWindowType)
{
    QWebView* view = nullptr;
    emit newPage(&view);
    return view;
}

} // namespace nsModHlp
