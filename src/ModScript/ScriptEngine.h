#pragma once

#include "ScriptOutcome.h"
#include "ScriptTimeouts.h"

#include <QObject>
#include <QScriptEngine>
#include <QString>

#include <memory>

class QScriptContext;
class QScriptEngineDebugger;

namespace nsModScript {

/// The engine with its debugger and the global functions that scripts have: print(), setTimeout(), clearTimeout(),
/// scriptDir.
///
/// While a script runs, the events of the user are handled every few milliseconds. So everything can be called
/// meanwhile, and a script can be stopped at any moment. Whatever runs goes through this class: the script itself,
/// functions whose time has come and functions that a script has connected to a signal. So it is always known whether
/// script code is on the stack: an engine must not be deleted then (see dispose()).
///
/// A function that calls itself without end is a script error, as the engine limits the depth.
class ScriptEngine : public QObject
{
    Q_OBJECT

public:
    explicit ScriptEngine(eScriptDebugger_t debugger);
    ~ScriptEngine() override;

    /// Deletes the engine: at once, or when the script on the stack, which is stopped, has ended. Nothing is reported
    /// any more.
    static void dispose(ScriptEngine* engine);

    void registerObject(QObject* object, const QString& name);
    void unregisterObject(const QString& name);

    /// Runs a script to its end. None must be on the stack.
    /// @param dir the folder that it comes from, which it sees as `scriptDir`; empty for none
    ScriptOutcome run(const QString& script, const QString& dir = QString());
    /// Script code is on the stack.
    bool isRunning() const { return m_depth > 0; }
    /// The user has stopped what is on the stack.
    bool isStopping() const { return m_isStopping; }
    /// A script runs, or a function waits for its time.
    bool isBusy() const { return isRunning() || !m_timeouts.isEmpty(); }
    /// Ends what runs, also when it waits in the debugger, and forgets the functions that wait for their time. It has
    /// ended when control has returned to the event loop.
    void stop();
    /// The call from a script that is in progress ends with an error.
    void throwError(const QString& text);

signals:
    void busyChanged();
    /// The last script code has left the stack.
    void ended();
    /// A function is about to run from the event loop, and has run.
    void functionStarts();
    void functionEnded(const nsModScript::ScriptOutcome& outcome);

private:
    void attachDebugger();
    void makeGlobals();
    void enter();
    void leave();
    /// Runs what is in scope. @param program the text; the file name stays empty
    QScriptValue evaluate(const QString& program, ScriptOutcome* outcome);
    QScriptValue callFunction(const QScriptValue& function, const QScriptValue& self, const QScriptValue& arguments,
                              ScriptOutcome* outcome);
    QScriptValue handlerOf(QScriptValue function);
    QString textOf(const QScriptValue& exception);
    void runTimeout(int id);

    static QScriptValue print(QScriptContext* context, QScriptEngine* engine);
    static QScriptValue setTimeout(QScriptContext* context, QScriptEngine* engine, void* self);
    static QScriptValue clearTimeout(QScriptContext* context, QScriptEngine* engine, void* self);
    static QScriptValue connectHandler(QScriptContext* context, QScriptEngine* engine, void* self);
    static QScriptValue runHandler(QScriptContext* context, QScriptEngine* engine, void* self);

    QScriptEngine m_engine;
    std::unique_ptr<QScriptEngineDebugger> m_debugger; ///< null until the first script, and where there is none
    ScriptTimeouts m_timeouts;
    bool m_hasDebugger;
    bool m_isSuspended = false; ///< in the debugger
    int m_depth = 0;            ///< script code on the stack: number of entries
    bool m_isStopping = false;
    bool m_isDisposed = false;
};

} // namespace nsModScript
