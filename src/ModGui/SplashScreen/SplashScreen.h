#pragma once

#include <QSplashScreen>

namespace nsModGui {

/// The picture at start-up, with the release. Deletes itself a moment after it has been shown.
class SplashScreen : public QSplashScreen
{
    Q_OBJECT

public:
    SplashScreen();

    /// Shows the picture in the middle of the rectangle, in pixels of the screen, handles events once, and starts the
    /// time after which the picture is closed.
    void show(int x, int y, int width, int height);

private slots:
    void splashScreenStop();
};

} // namespace nsModGui
