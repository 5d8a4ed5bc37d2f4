#pragma once

#include <QString>

namespace nsModScript {

/// Whether the debugger is attached.
///
/// Its window opens on an uncaught exception and at a `debugger` statement, and the script waits until somebody has
/// closed it. Where nobody can, it would wait for ever: on the platforms "offscreen" and "minimal", which have no
/// display, exceptions are only reported, and `debugger` does nothing. Tests run there.
enum eScriptDebugger_t { eDebuggerOnDisplay, eDebuggerAlways, eDebuggerNever };

/// What a script came to.
struct ScriptOutcome
{
    enum eEnd_t { eEndGood, eEndException, eEndStopped };

    eEnd_t end = eEndGood;
    /// Of an exception, from 1 on; 0: not known, as of a number or text that was thrown while the debugger is attached.
    int line = 0;
    QString text; ///< of an exception
};

} // namespace nsModScript
