#pragma once

#include <QString>

class QObject;

/// The script engine. Served by nsModScript::ModScript.
class ModScriptHookIf
{
public:
    virtual ~ModScriptHookIf() = default;

    /// Makes the object's signals, slots, properties and invokable operations visible to scripts under the name. A name
    /// that is in use gets the new object. The caller keeps the ownership; once the object is deleted, a call of it is
    /// a script error.
    virtual void registerObject(QObject* object, QString name) = 0;
    /// Runs a script to its end.
    /// @return false after an uncaught exception or a stop by the user, and while another script runs; all of these
    /// have then been reported
    virtual bool executeScript(QString script) = 0;

    // For the operations that scripts call.

    /// Makes the call in progress end with a script error, which the script can catch. Without a script on the stack it
    /// does nothing.
    virtual void throwError(QString text) = 0;
    /// For loops in C++ that a script has called: handles the user's events.
    /// @return false: the user has stopped the script, so the loop must end
    virtual bool scriptGoesOn() = 0;
};
