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

/// A view that asks for another one when a link wants it. Its pages are dark where the palette is.
class HlpWebView : public QWebView
{
    Q_OBJECT

public:
    explicit HlpWebView(QWidget* parent = nullptr);
    ~HlpWebView() override;

    /// Shows pages that are made by a page object. @param page owned by the caller
    void usePage(HlpWebPage* page);

signals:
    void newPage(QWebView** view);

protected:
    QWebView* createWindow(QWebPage::WebWindowType type) override;
    void changeEvent(QEvent* event) override;

private:
    void followPalette();
};

} // namespace nsModHlp
