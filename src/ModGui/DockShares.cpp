#include "DockShares.h"

#include "LateContent.h"

#include <QDockWidget>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QTimer>

namespace nsModGui {

namespace {

// A dock that the user has not resized yet gets at most this share of the window.
const double firstLeft = 0.28;
const double firstSides = 0.55; ///< left and right together
const double firstRight = 0.18; ///< the right one beside a wide left one
const double firstBottom = 0.22;

const double smallestShare = 0.01;
const double largestShare = 0.9;

} // namespace

DockShares::DockShares(QMainWindow* window)
    : QObject(window)
    , m_window(window)
{
    window->installEventFilter(this);
}

void DockShares::add(QDockWidget* dock)
{
    m_docks.append(dock);
    dock->installEventFilter(this);
}

bool DockShares::isReady() const
{
    return m_window != nullptr && m_window->isVisible();
}

bool DockShares::isHorizontal(QDockWidget* dock) const
{
    const Qt::DockWidgetArea area = m_window->dockWidgetArea(dock);
    return area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
}

int DockShares::windowExtent(QDockWidget* dock) const
{
    return qMax(1, isHorizontal(dock) ? m_window->width() : m_window->height());
}

int DockShares::extentOf(QDockWidget* dock) const
{
    return isHorizontal(dock) ? dock->width() : dock->height();
}

double DockShares::firstShare(QDockWidget* dock) const
{
    const bool horizontal = isHorizontal(dock);
    const QSize wanted = dock->sizeHint();
    double most = firstBottom;
    if (horizontal) {
        most = firstLeft;
        if (m_window->dockWidgetArea(dock) == Qt::RightDockWidgetArea) {
            double left = 0;
            for (const QDockWidget* other : m_docks) {
                if (other != nullptr && other->isVisible() &&
                    m_window->dockWidgetArea(const_cast<QDockWidget*>(other)) == Qt::LeftDockWidgetArea)
                    left = double(other->width()) / m_window->width();
            }
            most = qMax(firstRight, firstSides - left);
        }
    }
    // A dock never gets smaller than its minimum; but a larger share that it needs in a small window is not kept in a
    // big one.
    return qMin(double(horizontal ? wanted.width() : wanted.height()) / windowExtent(dock), most);
}

QStringList DockShares::shares()
{
    record();
    QStringList result;
    for (auto it = m_shares.cbegin(); it != m_shares.cend(); ++it)
        result.append(QStringLiteral("%1=%2").arg(it.key()).arg(it.value(), 0, 'f', 4));
    result.sort();
    return result;
}

void DockShares::setShares(const QStringList& shares)
{
    for (const QString& entry : shares) {
        const double share = entry.section('=', 1).toDouble();
        const QString name = entry.section('=', 0, 0);
        for (const QDockWidget* dock : qAsConst(m_docks)) {
            if (dock != nullptr && dock->objectName() == name && share >= smallestShare && share <= largestShare)
                m_shares.insert(name, share);
        }
    }
    applySoon();
}

void DockShares::record()
{
    // While a share has not been applied yet, the extent on the screen is not the choice of the user.
    if (!isReady() || m_applyPending)
        return;
    for (QDockWidget* dock : qAsConst(m_docks)) {
        // A dock with the extent that apply() has set keeps its share, even if the window is too small for it.
        if (dock != nullptr && dock->isVisible() && extentOf(dock) != m_applied.value(dock->objectName()))
            m_shares.insert(dock->objectName(),
                            qBound(smallestShare, double(extentOf(dock)) / windowExtent(dock), largestShare));
    }
}

void DockShares::apply()
{
    m_applyPending = false;
    if (!isReady())
        return;
    // What has changed its smallest size has it now.
    if (m_window->layout() != nullptr)
        m_window->layout()->activate();
    for (QDockWidget* dock : qAsConst(m_docks)) {
        if (dock == nullptr || !dock->isVisible())
            continue;
        if (!m_shares.contains(dock->objectName()))
            m_shares.insert(dock->objectName(), firstShare(dock));
        const int extent = qRound(m_shares.value(dock->objectName()) * windowExtent(dock));
        if (extent != extentOf(dock))
            m_window->resizeDocks({dock}, {extent}, isHorizontal(dock) ? Qt::Horizontal : Qt::Vertical);
    }
    for (QDockWidget* dock : qAsConst(m_docks)) {
        if (dock != nullptr && dock->isVisible())
            m_applied.insert(dock->objectName(), extentOf(dock));
    }
}

void DockShares::applySoon()
{
    if (m_applyPending)
        return;
    m_applyPending = true;
    // At the start, all panels of a dock have to say what room they need.
    if (LateContent::isStarting())
        LateContent::later(this, [this] { apply(); });
    else
        QTimer::singleShot(0, this, &DockShares::apply);
}

bool DockShares::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Resize:
        // The layout has its new size already.
        if (watched == m_window && !m_applyPending)
            apply();
        break;
    case QEvent::Show:
        // The layout handles a new dock later.
        applySoon();
        break;
    case QEvent::MouseButtonRelease:
        // The borders between the docks are parts of the window.
        if (watched == m_window)
            record();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace nsModGui
