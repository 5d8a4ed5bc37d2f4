#pragma once

#include <QElapsedTimer>

/// Shows the busy cursor while long work goes on in the GUI's thread, as long as the object lives.
///
/// Nothing can come in while the work goes on, no timer either: so the work itself says now and then, by goesOn(), that it has not
/// ended yet. Work that ends soon changes no cursor. In a program without a display nothing happens.
///
///     MyBusyCursor busy;
///     for (const Line& line : lines) {
///         busy.goesOn();
///         ...
///     }
class MyBusyCursor
{
public:
    /// What a user takes for immediate, in milliseconds.
    static const int usualDelay = 300;

    /// @param delay time from now on that the work may take without a sign, in milliseconds
    explicit MyBusyCursor(int delay = usualDelay);
    /// Gives back the cursor that was there before.
    ~MyBusyCursor();
    MyBusyCursor(const MyBusyCursor&) = delete;
    MyBusyCursor& operator=(const MyBusyCursor&) = delete;

    /// The work goes on. Cheap enough for each of many small steps.
    void goesOn();
    bool isShown() const { return m_shown; }

private:
    QElapsedTimer m_timer;
    int m_delay;
    bool m_shown = false;
};
