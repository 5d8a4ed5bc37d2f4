#include "HlpWidget.h"

#include "HelpRef.h"
#include "HlpNetworkAccessManager.h"
#include "HlpSourceIf.h"
#include "HlpViewLibrary.h"

#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace nsModHlp {

namespace {

const qreal minZoom = 0.5;
const qreal maxZoom = 3.0;
const qreal zoomStep = 0.1;

} // namespace

HlpWidget::HlpWidget(HlpSourceIf* source, QWidget* parent)
    : QWidget(parent)
    , m_source(source)
{
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Help page"));
    HelpRef::set(this, QStringLiteral("pageId://gettingStarted"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
}

HlpWidget::~HlpWidget()
{
    // While this is still the client of the view, which ends what it loads.
    delete m_view;
}

QWebView* HlpWidget::view()
{
    if (m_view == nullptr)
        makeView();
    return m_view != nullptr ? m_view->webView() : nullptr;
}

void HlpWidget::makeView()
{
    m_view = HlpViewLibrary::makeView(m_source->network(), this, this);
    if (m_view == nullptr) {
        showFailure(HlpViewLibrary::error());
        return;
    }
    delete m_failure;
    m_failure = nullptr;
    QWidget* view = m_view->widget();
    layout()->addWidget(view);
    const bool hasFocus = this->hasFocus();
    setFocusProxy(view);
    if (hasFocus)
        view->setFocus();
    // By its real name, to which the links in the page are relative.
    if (!m_target.isEmpty())
        m_view->goTo(m_source->network()->pageOf(m_target));
}

void HlpWidget::showFailure(const QString& reason)
{
    if (m_failure == nullptr) {
        m_failure = new QLabel;
        m_failure->setObjectName(QStringLiteral("hlpFailure"));
        m_failure->setAlignment(Qt::AlignCenter);
        m_failure->setWordWrap(true);
        m_failure->setTextFormat(Qt::PlainText);
        m_failure->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        layout()->addWidget(m_failure);
    }
    m_failure->setText(tr("The pages of the help can not be shown:\n%1").arg(reason));
}

bool HlpWidget::isPageOfHelp(const QUrl& url)
{
    return url.scheme() == QLatin1String("pageid") || m_source->network()->isOfCollection(url);
}

void HlpWidget::scriptLinkFollowed(const QUrl& url, const QUrl& page)
{
    m_source->network()->runScriptLink(url, page);
}

void HlpWidget::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    // The rest of the window is painted first.
    if (m_view == nullptr && m_failure == nullptr)
        QTimer::singleShot(0, this, [this] { view(); });
}

void HlpWidget::setSource(const QUrl& url)
{
    m_target = url;
    if (m_view != nullptr)
        m_view->goTo(m_source->network()->pageOf(url));
    // At the start of the program, the collection is opened after the window is seen.
    const QString name =
        m_source->isReady() ? m_source->network()->titleOf(m_source->network()->pageOf(url)) : QString();
    if (!name.isEmpty())
        emit titleChanged(this, name);
}

QUrl HlpWidget::source() const
{
    if (m_view != nullptr && !m_view->place().isEmpty())
        return m_view->place();
    return m_target.isEmpty() ? QUrl() : m_source->network()->pageOf(m_target);
}

QString HlpWidget::title() const
{
    return m_view != nullptr && !m_view->pageTitle().isEmpty() ? m_view->pageTitle()
                                                               : m_source->network()->titleOf(source());
}

bool HlpWidget::canGoBack() const
{
    return m_view != nullptr && m_view->canGoBack();
}

bool HlpWidget::canGoForward() const
{
    return m_view != nullptr && m_view->canGoForward();
}

bool HlpWidget::hasSelection() const
{
    return m_view != nullptr && m_view->isTextSelected();
}

QString HlpWidget::selectedText() const
{
    return m_view != nullptr ? m_view->textSelected() : QString();
}

bool HlpWidget::find(const QString& text, bool backwards, bool caseSensitive, bool wrap)
{
    return view() != nullptr && m_view->find(text, backwards, caseSensitive, wrap);
}

void HlpWidget::goBack()
{
    if (m_view != nullptr)
        m_view->goBack();
}

void HlpWidget::goForward()
{
    if (m_view != nullptr)
        m_view->goForward();
}

void HlpWidget::copy()
{
    if (m_view != nullptr)
        m_view->copy();
}

void HlpWidget::zoom(int steps)
{
    if (view() != nullptr)
        m_view->setZoom(qBound(minZoom, m_view->zoom() + steps * zoomStep, maxZoom));
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
