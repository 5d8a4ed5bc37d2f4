#pragma once

#include "HlpViewIf.h"

#include <QUrl>
#include <QWidget>

class QLabel;

namespace nsModHlp {

class HlpSourceIf;

/// One help page with its history. What draws it is a HlpViewIf.
///
/// Shows pages of the collection alone: links to the web open in the user's browser, others lead nowhere. The engine
/// takes time and memory, so it is made after the widget has been shown for the first time: a tab that nobody looks at
/// costs nothing.
class HlpWidget : public QWidget, private HlpViewClientIf
{
    Q_OBJECT

public:
    /// @param source of the pages; not owned, must outlive the widget
    explicit HlpWidget(HlpSourceIf* source, QWidget* parent = nullptr);
    ~HlpWidget() override;

    /// Goes to a page. The first page is the start of the history. What is no page of the help leads to the page about
    /// internal errors.
    void setSource(const QUrl& url);
    /// Where the widget is; while a page is loading, where it goes to.
    QUrl source() const;
    /// Of the page where the widget is; empty if it has none.
    QString title() const;

    bool canGoBack() const;
    bool canGoForward() const;
    bool hasSelection() const;
    QString selectedText() const;
    /// Selects the next hit from the selection on. @return false: there is none up to the end of the page
    bool find(const QString& text, bool backwards, bool caseSensitive, bool wrap);

    /// Made at the first call. Null where the engine can not be loaded: the page says so then.
    QWebView* view();

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
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void makeView();
    void showFailure(const QString& reason);

    // HlpViewClientIf
    bool isPageOfHelp(const QUrl& url) override;
    void linkFollowed(const QUrl& url) override { emit linkClicked(url); }
    void scriptLinkFollowed(const QUrl& url, const QUrl& page) override;
    void newPageWanted(QWebView** view) override { emit newPage(view); }
    void viewChanged() override { emit actionChanged(this); }
    void viewTitleChanged(const QString& title) override { emit titleChanged(this, title); }

    void zoom(int steps);

    HlpSourceIf* m_source;
    HlpViewIf* m_view = nullptr; ///< null until it is needed
    QLabel* m_failure = nullptr; ///< in place of a view that can not be made
    QUrl m_target;               ///< of setSource(), as it was given
};

} // namespace nsModHlp
