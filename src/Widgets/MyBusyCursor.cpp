#include "MyBusyCursor.h"

#include <QCursor>
#include <QGuiApplication>

MyBusyCursor::MyBusyCursor(int delay)
    : m_delay(delay)
{
    m_timer.start();
}

MyBusyCursor::~MyBusyCursor()
{
    if (m_shown)
        QGuiApplication::restoreOverrideCursor();
}

void MyBusyCursor::goesOn()
{
    if (m_shown || m_timer.elapsed() < m_delay ||
        qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr)
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    m_shown = true;
}

void MyBusyCursor::rests()
{
    if (m_shown)
        QGuiApplication::restoreOverrideCursor();
    m_shown = false;
    m_timer.restart();
}
