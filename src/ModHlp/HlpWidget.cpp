#include "HlpWidget.h"

#include "HlpNetworkAccessManager.h"
#include "HlpWebView.h"

#include <QVBoxLayout>
#include <QWebHistory>
#include <QWheelEvent>

namespace nsModHlp {

namespace {

const qreal minZoom = 0.5;
const qreal maxZoom = 3.0;
const qreal zoomStep = 0.1;

} // namespace

HlpWidget::HlpWidget(HlpNetworkAccessManager* manager, QWidget* parent)
    : QWidget(parent)
    , m_manager(manager)
    , m_view(nullptr)
{
    auto* view = new HlpWebView(this);
    auto* page = new HlpWebPage(manager, view);
    view->setPage(page);
    view->setContextMenuPolicy(Qt::NoContextMenu);
    m_view = view;
    setFocusProxy(m_view);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    connect(view, &HlpWebView::newPage, this, &HlpWidget::newPage);
    connect(page, &HlpWebPage::linkFollowed, this, &HlpWidget::linkClicked);
    const auto changed = [this] { emit actionChanged(this); };
    connect(m_view, &QWebView::urlChanged, this, changed);
    connect(m_view, &QWebView::loadFinished, this, changed);
    connect(page, &QWebPage::selectionChanged, this, changed);
    connect(m_view, &QWebView::titleChanged, this, [this](const QString& title) {
        if (!title.isEmpty())
            emit titleChanged(this, title);
    });
}

void HlpWidget::setSource(const QUrl& url)
{
    m_target = url;
    // By its real name, to which the links in the page are relative.
    m_view->load(m_manager->resolved(url));
}

QUrl HlpWidget::source() const
{
    return m_view->url().isEmpty() ? m_target : m_view->url();
}

QString HlpWidget::title() const
{
    return m_view->title();
}

bool HlpWidget::canGoBack() const
{
    return m_view->history()->canGoBack();
}

bool HlpWidget::canGoForward() const
{
    return m_view->history()->canGoForward();
}

bool HlpWidget::hasSelection() const
{
    return m_view->hasSelection();
}

QString HlpWidget::selectedText() const
{
    return m_view->selectedText();
}

bool HlpWidget::find(const QString& text, bool backwards, bool caseSensitive, bool wrap)
{
    QWebPage::FindFlags flags;
    flags.setFlag(QWebPage::FindBackward, backwards);
    flags.setFlag(QWebPage::FindCaseSensitively, caseSensitive);
    flags.setFlag(QWebPage::FindWrapsAroundDocument, wrap);
    return m_view->findText(text, flags);
}

void HlpWidget::goBack()
{
    m_view->back();
}

void HlpWidget::goForward()
{
    m_view->forward();
}

void HlpWidget::copy()
{
    m_view->triggerPageAction(QWebPage::Copy);
}

void HlpWidget::zoom(int steps)
{
    m_view->setZoomFactor(qBound(minZoom, m_view->zoomFactor() + steps * zoomStep, maxZoom));
}

void HlpWidget::wheelEvent(QWheelEvent* event)
{
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QWidget::wheelEvent(event);
        return;
    }
    zoom(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

} // namespace nsModHlp
