#pragma once

#include <QString>

class QObject;

/// The script engine. Served by nsModScript::ModScript.
class ModScriptHookIf
{
public:
    virtual ~ModScriptHookIf() = default;

    /// Makes the object's signals, slots and properties visible to scripts under the name. The caller keeps the
    /// ownership.
    virtual void registerObject(QObject* object, QString name) = 0;
    /// Runs a script to its end.
    /// @return false after an uncaught exception, which has then been reported
    virtual bool executeScript(QString script) = 0;
};
