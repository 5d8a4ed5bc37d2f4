#include "WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace nsModGui {

namespace {

const QSize largestFirst(1440, 900);
const int graspWidth = 100; ///< pixels of the title bar that must be visible so that the user can drag it

QRect primaryArea()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->availableGeometry() : QRect();
}

int titleHeight(const QWidget* window)
{
    return qMax(0, window->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, window));
}

bool isReachable(const QRect& title, const QRect& area)
{
    const QRect seen = title.intersected(area);
    return seen.width() >= qMin(graspWidth, title.width()) && 2 * seen.height() >= title.height();
}

/// A client area of this size in the middle of the available area, its title bar below the upper edge.
QRect centered(const QSize& size, const QRect& area, int title)
{
    QRect result(QPoint(), size);
    result.moveCenter(area.center());
    result.moveTopLeft({qMax(result.left(), area.left()), qMax(result.top(), area.top() + title)});
    return result;
}

} // namespace

const QSize WindowPlace::smallest(800, 600);
const QSize WindowPlace::largest(8192, 8192);
const int WindowPlace::farthest = 32767;

QRect WindowPlace::first(const QWidget* window)
{
    const QRect area = primaryArea();
    const QSize size = (area.size() * 4 / 5).boundedTo(largestFirst).expandedTo(smallest);
    return centered(size, area, titleHeight(window));
}

QRect WindowPlace::reachable(const QRect& stored, const QWidget* window)
{
    const int height = titleHeight(window);
    const QRect title(stored.left(), stored.top() - height, stored.width(), height);
    const QRect inner = stored; // if the title bar is not known, the window itself must be on a screen
    for (const QScreen* screen : QGuiApplication::screens()) {
        if (isReachable(height > 0 ? title : inner, screen->availableGeometry()))
            return stored;
    }
    return centered(stored.size(), primaryArea(), height);
}

} // namespace nsModGui
