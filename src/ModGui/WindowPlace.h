#pragma once

#include <QRect>

class QWidget;

namespace nsModGui {

/// Where the window stands on the screens.
class WindowPlace
{
public:
    /// Size of the client area at the first start, and a place inside the available area of the primary screen.
    static QRect first(const QWidget* window);
    /// The stored geometry of the client area, moved onto a screen if its title bar could not be reached there. The
    /// size stays.
    static QRect reachable(const QRect& stored, const QWidget* window);

    static const QSize smallest; ///< of the client area
    static const QSize largest;  ///< of the client area, more than any desk has room for
    static const int farthest;   ///< coordinate of its place that a stored one is taken as, in pixels
};

} // namespace nsModGui
