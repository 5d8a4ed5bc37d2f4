#include "ColorScheme.h"

#include "AppStyle.h"
#include "Colors.h"

#include <QApplication>
#include <QDebug>
#include <QEvent>
#include <QScopedValueRollback>
#include <QToolTip>
#include <QWidget>

namespace {

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

} // namespace

ColorScheme::ColorScheme(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    window->installEventFilter(this);
    // Whatever palette the application starts with is the system's, but not that of a window before this one.
    if (QApplication::palette() == Colors::palette())
        readSystem();
    m_isSystemDark = isDark(QApplication::palette());
    apply();
}

void ColorScheme::setChoice(eChoice_t choice)
{
    if (choice == m_choice)
        return;
    m_choice = choice;
    apply();
}

/// The palette that the application has without one of its own is the system's.
void ColorScheme::readSystem()
{
    const QScopedValueRollback<bool> busy(m_isBusy, true);
    QApplication::setPalette(QPalette());
    m_isSystemDark = isDark(QApplication::palette());
}

void ColorScheme::apply()
{
    const bool dark = m_choice == eAlwaysDark || (m_choice == eAsSystem && m_isSystemDark);
    const QScopedValueRollback<bool> busy(m_isBusy, true);
    Colors::setScheme(dark ? Colors::eDark : Colors::eLight);
    QApplication::setPalette(Colors::palette());
    QToolTip::setPalette(Colors::palette());
    const QString sheet = Colors::styleSheet();
    if (sheet.isNull()) {
        qDebug("Can not open style sheet");
    } else if (sheet != m_window->styleSheet()) {
        // A window that was never shown keeps what its parts have asked the former sheet for.
        m_window->ensurePolished();
        m_window->setStyleSheet(sheet);
    }
}

bool ColorScheme::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_window || m_isBusy)
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::ThemeChange) {
        AppStyle::followSystemFont();
        readSystem();
        apply();
    } else if (event->type() == QEvent::ApplicationPaletteChange && QApplication::palette() != Colors::palette()) {
        // Somebody else has set a palette, which is what the system's settings do on some desktops.
        m_isSystemDark = isDark(QApplication::palette());
        apply();
    }
    return QObject::eventFilter(watched, event);
}
