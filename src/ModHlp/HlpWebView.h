#pragma once

#include <QWebPage>
#include <QWebView>

namespace nsModHlp {

class HlpNetworkAccessManager;

/// Decides where links lead.
class HlpWebPage : public QWebPage
{
    Q_OBJECT

public:
    HlpWebPage(HlpNetworkAccessManager* manager, QObject* parent);

signals:
    void linkFollowed(QUrl url);

protected:
    bool acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request, NavigationType type) override;
    // A help page asks nothing.
    void javaScriptAlert(QWebFrame*, const QString&) override {}
    bool javaScriptConfirm(QWebFrame*, const QString&) override { return false; }
    bool javaScriptPrompt(QWebFrame*, const QString&, const QString&, QString*) override { return false; }

private:
    HlpNetworkAccessManager* m_manager;
};

/// A view that asks for another one when a link wants it.
class HlpWebView : public QWebView
{
    Q_OBJECT

public:
    using QWebView::QWebView;

signals:
    void newPage(QWebView** view);

protected:
    QWebView* createWindow(QWebPage::WebWindowType type) override;
};

} // namespace nsModHlp
