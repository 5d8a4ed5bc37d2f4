#pragma once

#include <QString>

#include <functional>
#include <ostream>

/// How a piece of work has ended that ran in a process of its own.
struct ChildResult
{
    bool finished = false; ///< neither crashed nor stopped for its time
    int signal = 0;        ///< what ended it instead
    QString text;          ///< what the work has returned: what is wrong, or nothing
    qint64 peakMb = 0;     ///< memory at its highest, beyond what the process began with
};

/// Whether the build watches memory itself: it then needs more of it, and more time.
extern const bool underSanitizer;

/// Runs the work in a copy of this process.
/// @param work returns what is wrong, or an empty text
/// @param seconds time that it may take; sanitizers get more
ChildResult runInChild(const std::function<QString()>& work, int seconds);

/// Runs the work in a copy of this process and fails the test if it ends badly or takes more memory than that.
void expectGoodEnd(const std::function<QString()>& work, int seconds, int maxMb);
