#pragma once

#include <QString>

/// The release of all programs of this system. Its numbers are settings of the build.
struct Release
{
    int year = 0;
    int month = 0;
    int number = 0; ///< counts the releases of a month
    int state = 0;  ///< 0 alpha, 1 beta, any other: released

    /// That of this build.
    static Release own();
    /// In the form year-month.number.
    QString text() const;
    /// The same with a suffix for the state.
    QString textWithState() const;
};
