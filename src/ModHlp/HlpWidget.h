#pragma once

#include <QUrl>
#include <QWidget>

class QWebView;

namespace nsModHlp {

class HlpNetworkAccessManager;
class HlpWebPage;

/// One help page with its history. The only class that knows the engine that draws it.
///
/// Shows pages of the collection alone: links to the web open in the user's browser, others lead nowhere.
class HlpWidget : public QWidget
{
    Q_OBJECT

public:
    /// @param manager loads the pages; not owned, must outlive the widget
    explicit HlpWidget(HlpNetworkAccessManager* manager, QWidget* parent = nullptr);

    /// Goes to a page. The first page is the start of the history.
    void setSource(const QUrl& url);
    /// Where the widget is; while a page is loading, where it goes to.
    QUrl source() const;
    QString title() const;

    bool canGoBack() const;
    bool canGoForward() const;
    bool hasSelection() const;
    QString selectedText() const;
    /// Selects the next hit from the selection on. @return false: there is none up to the end of the page
    bool find(const QString& text, bool backwards, bool caseSensitive, bool wrap);

    QWebView* view() const { return m_view; }

public slots:
    void goBack();
    void goForward();
    void copy();

signals:
    /// The page wants another widget for a link: to be put into `view`.
    void newPage(QWebView** view);
    /// History or selection have changed.
    void actionChanged(nsModHlp::HlpWidget* widget);
    void titleChanged(QWidget* widget, QString title);
    void linkClicked(QUrl url);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void zoom(int steps);

    HlpNetworkAccessManager* m_manager;
    QWebView* m_view;
    QUrl m_target; ///< of setSource()
};

} // namespace nsModHlp
