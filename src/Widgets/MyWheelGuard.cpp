#include "MyWheelGuard.h"

#include <QAbstractSpinBox>
#include <QChildEvent>
#include <QComboBox>

namespace {

bool isBox(const QObject* object)
{
    return qobject_cast<const QComboBox*>(object) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(object) != nullptr;
}

} // namespace

MyWheelGuard::MyWheelGuard(QWidget* page)
    : QObject(page)
{
}

void MyWheelGuard::install(QWidget* page)
{
    auto* filter = new MyWheelGuard(page);
    filter->guard(page);
    for (QWidget* widget : page->findChildren<QWidget*>())
        filter->guard(widget);
}

void MyWheelGuard::guard(QWidget* widget)
{
    widget->installEventFilter(this);
    // By default a box takes the focus when the wheel is turned over it.
    if (isBox(widget) && widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
}

bool MyWheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildPolished) {
        // Only now the constructor of the child's class has run.
        if (auto* child = qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child())) {
            guard(child);
            for (QWidget* widget : child->findChildren<QWidget*>())
                guard(widget);
        }
    } else if (event->type() == QEvent::Wheel && isBox(watched) && !static_cast<QWidget*>(watched)->hasFocus()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
