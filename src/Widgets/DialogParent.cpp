#include "DialogParent.h"

#include <QApplication>
#include <QMainWindow>

QWidget* DialogParent::get()
{
    if (QWidget* active = QApplication::activeWindow())
        return active;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr)
            return window;
    }
    return nullptr;
}
