#include "MenuKeys.h"

#include "KeyEdit.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace nsModAction {

MenuKeys::MenuKeys(QMainWindow* window)
    : QObject(window)
    , m_window(window)
{
    // The event goes to the widget with the focus, so this filters the events of the application.
    qApp->installEventFilter(this);
}

bool MenuKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType() || qobject_cast<KeyEdit*>(watched) != nullptr)
        return false;
    const bool isOurs = static_cast<QWidget*>(watched)->window() == m_window &&
                        QApplication::activePopupWidget() == nullptr && QApplication::activeModalWidget() == nullptr;
    return isOurs && openMenu(static_cast<QKeyEvent*>(event));
}

bool MenuKeys::openMenu(const QKeyEvent* event)
{
    if (event->modifiers() != Qt::AltModifier || event->key() < Qt::Key_A || event->key() > Qt::Key_Z)
        return false;
    QMenu* menu = menuOf(QChar(event->key()));
    if (menu == nullptr)
        return false;
    if (!menu->isEnabled())
        return true;
    m_window->menuBar()->setActiveAction(menu->menuAction());
    for (QAction* entry : menu->actions()) {
        if (entry->isSeparator() || !entry->isVisible() || !entry->isEnabled())
            continue;
        menu->setActiveAction(entry);
        break;
    }
    return true;
}

QMenu* MenuKeys::menuOf(QChar letter) const
{
    for (QAction* entry : m_window->menuBar()->actions()) {
        if (entry->menu() != nullptr && entry->isVisible() && entry->text().startsWith(letter, Qt::CaseInsensitive))
            return entry->menu();
    }
    return nullptr;
}

} // namespace nsModAction
