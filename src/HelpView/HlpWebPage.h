#pragma once

#include <QWebPage>

namespace nsModHlp {

class HlpViewClientIf;

/// Decides where links lead.
class HlpWebPage : public QWebPage
{
    Q_OBJECT

public:
    HlpWebPage(QNetworkAccessManager* manager, HlpViewClientIf* client, QObject* parent);

protected:
    bool acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request, NavigationType type) override;
    // A help page asks nothing.
    void javaScriptAlert(QWebFrame*, const QString&) override {}
    bool javaScriptConfirm(QWebFrame*, const QString&) override { return false; }
    bool javaScriptPrompt(QWebFrame*, const QString&, const QString&, QString*) override { return false; }

private:
    HlpViewClientIf* m_client;
};

} // namespace nsModHlp
