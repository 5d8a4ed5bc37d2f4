#include "HlpWebView.h"

#include "HlpWebPage.h"

#include <QEvent>
#include <QWebElement>
#include <QWebFrame>
#include <QWebHistory>

namespace nsModHlp {

HlpWebView::HlpWebView(QNetworkAccessManager* manager, HlpViewClientIf* client, QWidget* parent)
    : QWebView(parent)
    , m_client(client)
{
    setAccessibleName(tr("Text of the help page"));
    setContextMenuPolicy(Qt::NoContextMenu);
    auto* page = new HlpWebPage(manager, client, this);
    setPage(page);
    connect(page->mainFrame(), &QWebFrame::initialLayoutCompleted, this, &HlpWebView::followPalette);
    connect(this, &QWebView::loadFinished, this, &HlpWebView::followPalette);
    connect(this, &QWebView::urlChanged, this, &HlpWebView::reportChange);
    connect(this, &QWebView::loadFinished, this, &HlpWebView::reportChange);
    connect(page, &QWebPage::selectionChanged, this, &HlpWebView::reportChange);
    connect(this, &QWebView::titleChanged, this, [this](const QString& title) {
        if (m_client != nullptr && !title.isEmpty())
            m_client->viewTitleChanged(title);
    });
}

HlpWebView::~HlpWebView()
{
    // What is loading ends with the base class, and reports it.
    m_client = nullptr;
    page()->disconnect(this);
    page()->mainFrame()->disconnect(this);
    disconnect(this, nullptr, this, nullptr);
}

void HlpWebView::reportChange()
{
    if (m_client != nullptr)
        m_client->viewChanged();
}

bool HlpWebView::canGoBack() const
{
    return history()->canGoBack();
}

bool HlpWebView::canGoForward() const
{
    return history()->canGoForward();
}

bool HlpWebView::find(const QString& text, bool backwards, bool caseSensitive, bool wrap)
{
    QWebPage::FindFlags flags;
    flags.setFlag(QWebPage::FindBackward, backwards);
    flags.setFlag(QWebPage::FindCaseSensitively, caseSensitive);
    flags.setFlag(QWebPage::FindWrapsAroundDocument, wrap);
    return findText(text, flags);
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
    if (m_client != nullptr)
        m_client->newPageWanted(&view);
    return view;
}

} // namespace nsModHlp

extern "C" Q_DECL_EXPORT nsModHlp::HlpViewIf* nalvoMakeHelpView(QNetworkAccessManager* manager,
                                                                nsModHlp::HlpViewClientIf* client, QWidget* parent);

nsModHlp::HlpViewIf* nalvoMakeHelpView(QNetworkAccessManager* manager, nsModHlp::HlpViewClientIf* client,
                                       QWidget* parent)
{
    return new nsModHlp::HlpWebView(manager, client, parent);
}
