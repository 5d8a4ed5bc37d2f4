#pragma once

class QNetworkAccessManager;
class QString;
class QUrl;
class QWebView;
class QWidget;

namespace nsModHlp {

/// Whom a view asks and informs: the page of the help that it is a part of.
class HlpViewClientIf
{
public:
    virtual ~HlpViewClientIf() = default;

    /// Can the view go there? It leads to a page of the collection.
    virtual bool isPageOfHelp(const QUrl& url) = 0;
    /// The user has followed a link to a page.
    virtual void linkFollowed(const QUrl& url) = 0;
    /// The user has followed a link of the scheme "script". @param page that holds the link
    virtual void scriptLinkFollowed(const QUrl& url, const QUrl& page) = 0;
    /// A link wants a view of its own: to be put into `view`.
    virtual void newPageWanted(QWebView** view) = 0;
    /// History or selection have changed.
    virtual void viewChanged() = 0;
    /// @param title not empty
    virtual void viewTitleChanged(const QString& title) = 0;
};

/// Draws one page of the help and keeps its history.
class HlpViewIf
{
public:
    virtual ~HlpViewIf() = default;

    /// What is seen. It is deleted with this object, and the other way round.
    virtual QWidget* widget() = 0;
    /// The same, as what draws it.
    virtual QWebView* webView() = 0;
    virtual void goTo(const QUrl& url) = 0;
    /// Where the view is; empty before the first page has begun to load.
    virtual QUrl place() const = 0;
    virtual QString pageTitle() const = 0;
    virtual bool canGoBack() const = 0;
    virtual bool canGoForward() const = 0;
    virtual void goBack() = 0;
    virtual void goForward() = 0;
    virtual bool isTextSelected() const = 0;
    virtual QString textSelected() const = 0;
    virtual void copy() = 0;
    /// Selects the next hit from the selection on. @return false: there is none up to the end of the page
    virtual bool find(const QString& text, bool backwards, bool caseSensitive, bool wrap) = 0;
    /// 1 is the size in which the page was written.
    virtual double zoom() const = 0;
    virtual void setZoom(double factor) = 0;
};

/// The one function of the library: makes a view.
/// @param manager loads the pages; not owned, must outlive the view
/// @param client not owned, must outlive the view; it is not called any more once the view is being deleted
/// @param parent of the widget, which it owns
using HlpViewMaker = HlpViewIf* (*)(QNetworkAccessManager* manager, HlpViewClientIf* client, QWidget* parent);
/// Its name.
constexpr const char* hlpViewMakerName = "nalvoMakeHelpView";

} // namespace nsModHlp
