#include "SplashScreen.h"

#include "Colors.h"
#include "SchemeIcons.h"

#include <QCoreApplication>
#include <QTimer>

namespace nsModGui {

namespace {

const int showTime = 2500; ///< milliseconds

/// The icon selects the picture in the resolution of the screen.
QPixmap splashPixmap()
{
    const QIcon icon = SchemeIcons::of(QStringLiteral(":/SplashScreen/img/splashScreen.png"));
    return icon.pixmap(icon.availableSizes().value(0, QSize(0, 0)));
}

} // namespace

SplashScreen::SplashScreen()
    // The window is shown after it, and would hide it.
    : QSplashScreen(splashPixmap(), Qt::WindowStaysOnTopHint)
{
    setObjectName(QStringLiteral("splashScreen"));
    showMessage(tr("Release %1").arg(QCoreApplication::applicationVersion()),
                Qt::AlignHCenter | Qt::AlignBottom | Qt::AlignVCenter, Colors::of(Colors::eDrawingDark));
}

void SplashScreen::show(int x, int y, int width, int height)
{
    move(x + (width - this->width()) / 2, y + (height - this->height()) / 2);
    QSplashScreen::show();
    // Started before events are handled, as one of them could end the program.
    QTimer::singleShot(showTime, this, &SplashScreen::splashScreenStop);
    QCoreApplication::processEvents();
}

void SplashScreen::splashScreenStop()
{
    deleteLater();
}

} // namespace nsModGui
