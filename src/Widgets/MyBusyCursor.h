#pragma once

#include <QElapsedTimer>

/// Shows the busy cursor during long work in the GUI thread, until the object is deleted.
///
/// No event is handled during the work, not even a timer, so the work must call goesOn() from time to time. Short work
/// does not change the cursor. In a program without a display nothing happens.
///
///     MyBusyCursor busy;
///     for (const Line& line : lines) {
///         busy.goesOn();
///         ...
///     }
class MyBusyCursor
{
public:
    /// Duration that a user perceives as immediate, in milliseconds.
    static const int usualDelay = 300;

    /// @param delay time after which the busy cursor is shown, in milliseconds
    explicit MyBusyCursor(int delay = usualDelay);
    /// Restores the cursor.
    ~MyBusyCursor();
    MyBusyCursor(const MyBusyCursor&) = delete;
    MyBusyCursor& operator=(const MyBusyCursor&) = delete;

    /// To be called during the work; fast enough for each of many small steps.
    void goesOn();
    /// The work rests, as the user is asked or has to wait for something else: restores the cursor. The time counts
    /// anew from here.
    void rests();
    bool isShown() const { return m_shown; }

private:
    QElapsedTimer m_timer;
    int m_delay;
    bool m_shown = false;
};
