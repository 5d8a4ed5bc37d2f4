#include "MyLongWork.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

namespace {

const int handleInterval = 50; ///< milliseconds between two looks at the events
const int barWidth = 80;       ///< pixels

int delayOfBar = MyLongWork::usualDelay; ///< milliseconds

} // namespace

void MyLongWork::setDelay(int delay)
{
    delayOfBar = delay;
}

MyLongWork::MyLongWork(const QString& what, std::function<void(QWidget*)> show, std::function<void(QWidget*)> hide)
    : m_what(what)
    , m_show(std::move(show))
    , m_hide(std::move(hide))
{
    m_timer.start();
}

MyLongWork::~MyLongWork()
{
    hideBar();
    delete m_bar;
}

bool MyLongWork::goesOn(const QString& state)
{
    if (m_cancelled || m_handles)
        return !m_cancelled;
    if (!m_shown) {
        if (m_timer.elapsed() < delayOfBar || qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr)
            return true;
        showBar();
    } else if (delayOfBar > 0 && m_handled.elapsed() < handleInterval) {
        return true;
    }
    if (m_state)
        m_state->setText(state.isEmpty() ? m_what : QStringLiteral("%1: %2").arg(m_what, state));
    m_handles = true;
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    m_handles = false;
    m_handled.restart();
    return !m_cancelled;
}

void MyLongWork::commits()
{
    m_committed = true;
    if (m_button)
        m_button->setEnabled(false);
}

void MyLongWork::rests()
{
    hideBar();
    m_timer.restart();
}

void MyLongWork::showBar()
{
    if (!m_bar) {
        m_bar = new QWidget;
        m_bar->setObjectName(QStringLiteral("longWork"));
        m_state = new QLabel(m_bar);
        m_state->setObjectName(QStringLiteral("longWorkState"));
        auto* progress = new QProgressBar(m_bar);
        progress->setRange(0, 0);
        progress->setFixedWidth(barWidth);
        progress->setTextVisible(false);
        m_button = new QToolButton(m_bar);
        m_button->setObjectName(QStringLiteral("longWorkCancel"));
        m_button->setText(tr("Cancel"));
        m_button->setToolTip(tr("Ends the work in progress (Esc)"));
        m_button->setCursor(Qt::ArrowCursor);
        m_button->setEnabled(!m_committed);
        connect(m_button.data(), &QToolButton::clicked, this, &MyLongWork::cancel);
        auto* layout = new QHBoxLayout(m_bar);
        layout->setContentsMargins(8, 0, 4, 0);
        layout->addWidget(m_state);
        layout->addWidget(progress);
        layout->addWidget(m_button);
    }
    m_shown = true;
    m_show(m_bar);
}

void MyLongWork::hideBar()
{
    if (m_shown && m_bar)
        m_hide(m_bar);
    m_shown = false;
}

void MyLongWork::cancel()
{
    m_cancelled = m_cancelled || !m_committed;
}

bool MyLongWork::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::Close:
        break;
    default:
        return false;
    }
    // What a window of the system gets goes on to a widget in it. A question can be answered.
    if (watched->isWindowType() || QApplication::activeModalWidget() != nullptr ||
        QApplication::activePopupWidget() != nullptr)
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget != nullptr && m_bar && (widget == m_bar || m_bar->isAncestorOf(widget)))
        return false;
    // Before a command of the page that has this key, too.
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        cancel();
    if (event->type() == QEvent::ShortcutOverride)
        event->accept();
    if (event->type() == QEvent::Close)
        event->ignore();
    return true;
}
