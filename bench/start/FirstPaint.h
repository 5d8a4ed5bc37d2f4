#pragma once

#include "MonotonicClock.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>

#include <cstdio>
#include <cstdlib>

/// An application that ends as soon as its main window has been painted for the first time, and prints how many
/// milliseconds after the given moment that was.
class FirstPaint : public QApplication
{
public:
    /// @param started by monotonicNow() of the process that has started this one
    FirstPaint(int& argc, char** argv, long long started)
        : QApplication(argc, argv)
        , m_started(started)
    {
    }

    bool notify(QObject* receiver, QEvent* event) override
    {
        const QEvent::Type type = event->type();
        if (type == QEvent::Paint && qobject_cast<QMainWindow*>(static_cast<QWidget*>(receiver)->window()) != nullptr)
            m_isPainted = true;
        const bool result = QApplication::notify(receiver, event);
        // The window system has the whole picture when one of these comes back.
        if (m_isPainted && (type == QEvent::Expose || type == QEvent::UpdateRequest))
            end();
        return result;
    }

private:
    [[noreturn]] void end() const
    {
        std::printf("%f\n", double(monotonicNow() - m_started) / 1e6);
        std::fflush(stdout);
        std::_Exit(0);
    }

    long long m_started;
    bool m_isPainted = false;
};
