#include "HlpWidget.h"

#include "HelpRef.h"
#include "HlpNetworkAccessManager.h"
#include "HlpWebView.h"

#include <QTimer>
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
{
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Help page"));
    HelpRef::set(this, QStringLiteral("pageId://gettingStarted"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
}

HlpWidget::~HlpWidget()
{
    // The page reports changes while it is deleted.
    if (m_view == nullptr)
        return;
    m_view->page()->disconnect(this);
    m_view->disconnect(this);
    delete m_view;
}

QWebView* HlpWidget::view()
{
    if (m_view == nullptr)
        makeView();
    return m_view;
}

void HlpWidget::makeView()
{
    auto* view = new HlpWebView(this);
    auto* page = new HlpWebPage(m_manager, view);
    view->usePage(page);
    view->setContextMenuPolicy(Qt::NoContextMenu);
    m_view = view;
    layout()->addWidget(view);
    const bool hasFocus = this->hasFocus();
    setFocusProxy(view);
    if (hasFocus)
        view->setFocus();
    connect(view, &HlpWebView::newPage, this, &HlpWidget::newPage);
    connect(page, &HlpWebPage::linkFollowed, this, &HlpWidget::linkClicked);
    const auto changed = [this] { emit actionChanged(this); };
    connect(view, &QWebView::urlChanged, this, changed);
    connect(view, &QWebView::loadFinished, this, changed);
    connect(page, &QWebPage::selectionChanged, this, changed);
    connect(view, &QWebView::titleChanged, this, [this](const QString& title) {
        if (!title.isEmpty())
            emit titleChanged(this, title);
    });
    // By its real name, to which the links in the page are relative.
    if (!m_target.isEmpty())
        view->load(m_manager->pageOf(m_target));
}

void HlpWidget::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    // The rest of the window is painted first.
    if (m_view == nullptr)
        QTimer::singleShot(0, this, [this] { view(); });
}

void HlpWidget::setSource(const QUrl& url)
{
    m_target = url;
    if (m_view != nullptr)
        m_view->load(m_manager->pageOf(url));
    // At the start of the program, the collection is opened after the window is seen.
    const QString name = m_manager->isReady() ? m_manager->titleOf(m_manager->pageOf(url)) : QString();
    if (!name.isEmpty())
        emit titleChanged(this, name);
}

QUrl HlpWidget::source() const
{
    if (m_view != nullptr && !m_view->url().isEmpty())
        return m_view->url();
    return m_target.isEmpty() ? QUrl() : m_manager->pageOf(m_target);
}

QString HlpWidget::title() const
{
    return m_view != nullptr && !m_view->title().isEmpty() ? m_view->title() : m_manager->titleOf(source());
}

bool HlpWidget::canGoBack() const
{
    return m_view != nullptr && m_view->history()->canGoBack();
}

bool HlpWidget::canGoForward() const
{
    return m_view != nullptr && m_view->history()->canGoForward();
}

bool HlpWidget::hasSelection() const
{
    return m_view != nullptr && m_view->hasSelection();
}

QString HlpWidget::selectedText() const
{
    return m_view != nullptr ? m_view->selectedText() : QString();
}

bool HlpWidget::find(const QString& text, bool backwards, bool caseSensitive, bool wrap)
{
    QWebPage::FindFlags flags;
    flags.setFlag(QWebPage::FindBackward, backwards);
    flags.setFlag(QWebPage::FindCaseSensitively, caseSensitive);
    flags.setFlag(QWebPage::FindWrapsAroundDocument, wrap);
    return view()->findText(text, flags);
}

void HlpWidget::goBack()
{
    if (m_view != nullptr)
        m_view->back();
}

void HlpWidget::goForward()
{
    if (m_view != nullptr)
        m_view->forward();
}

void HlpWidget::copy()
{
    if (m_view != nullptr)
        m_view->triggerPageAction(QWebPage::Copy);
}

void HlpWidget::zoom(int steps)
{
    view()->setZoomFactor(qBound(minZoom, view()->zoomFactor() + steps * zoomStep, maxZoom));
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
