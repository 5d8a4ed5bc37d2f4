#include "Display.h"

#include <QGuiApplication>

bool Display::isThere()
{
    const QString platform = QGuiApplication::platformName();
    return !platform.isEmpty() && platform != QLatin1String("offscreen") &&
           !platform.startsWith(QLatin1String("minimal"));
}
