#pragma once

#include "HlpViewIf.h"

#include <QWebView>

namespace nsModHlp {

/// A view that asks for another one when a link wants it. Its pages are dark where the palette is.
class HlpWebView : public QWebView, public HlpViewIf
{
    Q_OBJECT

public:
    /// Arguments as HlpViewMaker says.
    HlpWebView(QNetworkAccessManager* manager, HlpViewClientIf* client, QWidget* parent);
    ~HlpWebView() override;

    // HlpViewIf
    QWidget* widget() override { return this; }
    QWebView* webView() override { return this; }
    void goTo(const QUrl& url) override { load(url); }
    QUrl place() const override { return url(); }
    QString pageTitle() const override { return title(); }
    bool canGoBack() const override;
    bool canGoForward() const override;
    void goBack() override { back(); }
    void goForward() override { forward(); }
    bool isTextSelected() const override { return hasSelection(); }
    QString textSelected() const override { return selectedText(); }
    void copy() override { triggerPageAction(QWebPage::Copy); }
    bool find(const QString& text, bool backwards, bool caseSensitive, bool wrap) override;
    double zoom() const override { return zoomFactor(); }
    void setZoom(double factor) override { setZoomFactor(factor); }

protected:
    QWebView* createWindow(QWebPage::WebWindowType type) override;
    void changeEvent(QEvent* event) override;

private:
    void followPalette();
    void reportChange();

    HlpViewClientIf* m_client; ///< null while the view is being deleted
};

} // namespace nsModHlp
